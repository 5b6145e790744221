// testy/prvky/prejezdy_stanice_test.cpp - the operator's commands on the station crossings.
#include "app/blikani.h"
#include "app/casovace.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/svety.h"

namespace {

const Text kZavreno = znak(16) + Text(8, '\x0D') + znak(16);

} // namespace

TEST_F(PrejezdStanice, OperatorsClosureStartsInHalfAMinute) {
    prejezd_uz(0);
    EXPECT_TRUE(stanicni_prejezdy[0].UZ);
    EXPECT_EQ(stanicni_prejezdy[0].cas, ted_s() + 30);
    EXPECT_FALSE(stanicni_prejezdy[0].uzavren);
    EXPECT_EQ(relief.lblPrejezd[0].barva(), barvy::bila);
    EXPECT_EQ(stanicni_prejezdy[1], StanicniPrejezd{});
}

TEST_F(PrejezdStanice, ClosureOfACrossingThatATrainHasClosedSetsNoTime) {
    stanicni_prejezdy[1].uzavren = true;
    prejezd_uz(1);
    EXPECT_TRUE(stanicni_prejezdy[1].UZ);
    EXPECT_EQ(stanicni_prejezdy[1].cas, -3);
    EXPECT_EQ(relief.lblPrejezd[1].barva(), barvy::bila);
}

TEST_F(PrejezdStanice, ClosureTimeIsReachedByTheBlinkStepOnlyWhenItHasPassed) {
    prejezd_uz(0);
    nastav_cas("12:00:30");
    krok_blikani();
    EXPECT_FALSE(stanicni_prejezdy[0].uzavren);
    nastav_cas("12:00:31");
    krok_blikani();
    EXPECT_TRUE(stanicni_prejezdy[0].uzavren);
    EXPECT_EQ(stanicni_prejezdy[0].cas, -3);
    EXPECT_EQ(relief.lblPrejezd[0].text(), kZavreno);
    EXPECT_FALSE(relief.lblPrejezd[0].ramecek());
}

TEST_F(PrejezdStanice, LampsWinkUntilTheBarriersAreDownAndStandStillWhenOpen) {
    krok_blikani();
    EXPECT_EQ(relief.lblPrejezd[0].text(), pruh({13, 16, 13, 16, 13, 16, 13, 16, 13, 16}));
    EXPECT_TRUE(relief.lblPrejezd[0].ramecek());
    prejezd_uz(0);
    krok_blikani();
    const Text prvni = relief.lblPrejezd[0].text;
    krok_blikani();
    const Text druhy = relief.lblPrejezd[0].text;
    krok_blikani();
    EXPECT_NE(prvni, druhy);
    EXPECT_EQ(relief.lblPrejezd[0].text(), prvni);
}

TEST_F(PrejezdStanice, EmergencyOpeningClearsEverythingAlsoACounterThatATrainLeftBehind) {
    for (const int pocet : {127, 128, 129, 255, 0}) {
        stanicni_prejezdy[0] = {true, true, 5, 6, 4711, static_cast<std::uint8_t>(pocet)};
        prejezd_not(0);
        const StanicniPrejezd cekany{false, false, 5, 6, -3, 128};
        EXPECT_EQ(stanicni_prejezdy[0], cekany) << pocet;
        EXPECT_EQ(relief.lblPrejezd[0].barva(), barvy::seda);
        EXPECT_TRUE(prejezd_v_klidu(0));
    }
}

TEST_F(PrejezdStanice, EmergencyOpeningEndsTheWaitingOfASignal) {
    Prvek& navestidlo = relief.navestidlo.zaloz(20);
    navestidlo.barva = barvy::seda;
    navestidlo.text = znak(229);
    navestidlo.popis = Text("TVH S20");
    for (const int n : {20, 107, 12})
        relief.kolej.zaloz(n).barva = barvy::azurova;
    Cesta& c = cesty.front();
    c.zacatek = 20;
    c.konec = 12;
    c.prvky = prvky_cesty({20, 107, 12}, {1, 1, 1}, {2, 0, 2});
    c.VC = c.prehozena = c.prejezd_zaver = true;
    c.prejezd = 0;
    c.cas_stavby = 0;
    c.Kdy_prehoz = ted_s() - 1;
    stanicni_prejezdy[0].cas = ted_s() + 40;
    krok_volby();
    EXPECT_FALSE(c.Postavena);
    EXPECT_EQ(relief.navestidlo[20].barva(), barvy::seda);
    prejezd_not(0);
    krok_volby();
    EXPECT_TRUE(cesty.front().Postavena);
    EXPECT_EQ(relief.navestidlo[20].barva(), barvy::zelena);
}

TEST_F(PrejezdStanice, IsIdleOnlyWithoutTrainsClosingTimeAndOperatorsClosure) {
    EXPECT_TRUE(prejezd_v_klidu(0));
    stanicni_prejezdy[0].cas = 0;
    EXPECT_FALSE(prejezd_v_klidu(0));
    stanicni_prejezdy[0] = {};
    stanicni_prejezdy[0].pocet = 127; // a lost train counts as a train
    EXPECT_FALSE(prejezd_v_klidu(0));
    stanicni_prejezdy[0] = {};
    stanicni_prejezdy[0].UZ = true;
    EXPECT_FALSE(prejezd_v_klidu(0));
    EXPECT_FALSE(prejezd_v_klidu(2));
    EXPECT_FALSE(prejezd_v_klidu(-3));
}

TEST_F(PrejezdStanice, AnIndexThatIsNoCrossingDoesNothing) {
    for (const int k : {-3, -1, 2, 128}) {
        prejezd_uz(k);
        prejezd_not(k);
    }
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
    EXPECT_EQ(stanicni_prejezdy[1], StanicniPrejezd{});
}

TEST_F(PrejezdStanice, CommandsWorkWithoutTheLabelOnTheRelief) {
    relief = novy_relief();
    nastav_cas("12:00:00");
    prejezd_uz(1);
    EXPECT_EQ(stanicni_prejezdy[1].cas, ted_s() + 30);
    prejezd_not(1);
    EXPECT_EQ(stanicni_prejezdy[1], StanicniPrejezd{});
}
