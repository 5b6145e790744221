// testy/gvd/provoz_test.cpp - the traffic step: who comes at which minute, and with whose permission.
#include "app/nova_simulace.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "gvd/provoz.h"
#include "gvd/skladba.h"
#include "jizda/zastavky.h"
#include "obsluha/menu_prvku.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "prvky/souhlasy.h"

#include <gtest/gtest.h>

namespace {

class Provoz : public SProvozem {
protected:
    // The step at a minute of the day.
    static void v(TextPohled cas) {
        hodiny(cas);
        krok_provozu();
    }
    static GvdVlak z_lhotina(std::int32_t cislo, std::int16_t odjezd) {
        return radek(cislo, {{1, -1, odjezd}, {8, 660, 661}, {9, 680, -1}});
    }
    static void lhotin() { koleje({86, 87, 88, 89, 90}); }
};

// --- rows that are not considered

TEST_F(Provoz, RowOfAnotherDayHasNoEffectAtAll) {
    lhotin();
    pridej(z_lhotina(1701, 640), [](GvdVlak& g) { g.dny = 2; });
    pridej(z_lhotina(1703, 632), [](GvdVlak& g) { g.dny = 2; });
    v("10:30:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1], DalsiVlak{});
}

TEST_F(Provoz, DelayLineBringsARowOfAnotherDayIntoTheNextTrains) {
    lhotin();
    pridej(z_lhotina(1701, 620), [](GvdVlak& g) { g.dny = 0; });
    prevezmi_hlaseni({Text("Zpoždění vlaku 1701 +18´"_cz)});
    v("10:30:00");
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cislo, 1701);
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cas, 8);
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].predpoklad, 638);
}

TEST_F(Provoz, TrainDelayedOverMidnightStillSetsOff) {
    lhotin();
    pridej(z_lhotina(1701, 1430));
    prevezmi_hlaseni({Text("Zpoždění vlaku 1701 +8´"_cz)});
    v("23:56:00"); // announced two minutes before
    ASSERT_NE(najdi(1701), nullptr);
    EXPECT_EQ(barva(87), barvy::zelena);
    simulace.den = 2;
    zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 1; });
    v("23:58:00");
    EXPECT_EQ(barva(87), barvy::cervena);
}

TEST_F(Provoz, ArrivalAtMidnightIsAnArrival) {
    koleje({87});
    pridej(radek(1234, {{1, 0, 5}, {8, 10, -1}}));
    const int i = vytvor_vlak(true, 87, false, -3, 0);
    relief.cislo_koleje[87].text = TextPohled("1234");
    relief.kolej[87].barva = barvy::zelena;
    hodiny("0:00:00");
    krok_provozu();
    EXPECT_EQ(barva(87), barvy::cervena) << "not at five past, when it leaves";
    EXPECT_EQ(vlaky[static_cast<std::size_t>(i)].stanice_index, 0);
}

TEST_F(Provoz, MinutePastGivesNoBranch) {
    lhotin();
    koleje({112, 55});
    pridej(z_lhotina(1701, 629));
    pridej(radek(2, {{27, 629, 629}, {9, 640, -1}}));
    v("10:30:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    v("0:00:00"); // a departure at 0:01 is not seen from the day before
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky[0].odjezd = 1; });
    v("23:59:00");
    EXPECT_EQ(pocet_vlaku(), 0);
}

// --- delays

TEST_F(Provoz, DelayIsDrawnOnceTwentyMinutesBefore) {
    lhotin();
    simulace.zpozdeni_povoleno = true;
    pridej(z_lhotina(1701, 650), [](GvdVlak& g) { g.druh = 14; });
    zasej_aby([](float x) { return x > 0.95f; });
    v("10:29:00");
    EXPECT_TRUE(relief.lstZpravy.radky.empty());
    EXPECT_FALSE(simulace.nova_zprava);
    v("10:30:00");
    ASSERT_EQ(relief.lstZpravy.radky.size(), 1u);
    const std::int16_t zpozdeni = zpozdeni_vlaku(1701);
    EXPECT_GE(zpozdeni, 5);
    EXPECT_LE(zpozdeni, 89);
    EXPECT_EQ(relief.lstZpravy.radky[0],
              Text("Zpoždění vlaku 1701 +"_cz) + text_cisla(zpozdeni) + Text("´"_cz));
    EXPECT_TRUE(simulace.nova_zprava);
    v("10:31:00");
    EXPECT_EQ(relief.lstZpravy.radky.size(), 1u);
}

// The rows of one number stand for the days of one train; the delay is told by the number.
TEST_F(Provoz, DelayThatIsDrawnHoldsInTheSameMinuteForTheRowsOfTheNumberThatFollow) {
    lhotin();
    koleje({55, 56});
    simulace.zpozdeni_povoleno = true;
    const auto z_nadrazi = [](std::int32_t cislo, std::int16_t odjezd) {
        GvdVlak r = radek(cislo, {{27, odjezd, odjezd}, {9, 700, -1}});
        r.dny = 2;
        return r;
    };
    pridej(z_nadrazi(1701, 625)); // stands before the row that draws
    pridej(z_lhotina(1701, 650), [](GvdVlak& g) { g.druh = 14; });
    pridej(z_lhotina(1703, 640));
    pridej(z_nadrazi(1703, 625)); // of another number
    pridej(z_nadrazi(1701, 625));
    zasej_aby([](float x) { return x > 0.95f && static_cast<double>(nahodne()) * 90 < 5; });
    v("10:30:00");
    ASSERT_EQ(zpozdeni_vlaku(1701), 5);
    EXPECT_EQ(pocet_vlaku(), 1);
    EXPECT_EQ(barva(55), barvy::cervena);
    EXPECT_EQ(barva(56), barvy::seda);
}

TEST_F(Provoz, TrainThatMayEnterIsSeenWhateverTheMinuteOfItsRow) {
    koleje({538});
    stav_provozu.zaloha_731_jede = true;
    pridej(radek(1702, {{9, -1, 20}, {12, 680, 681}, {2, 700, -1}}));
    v("10:30:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    pridej_cekajici(1702);
    v("10:31:00");
    EXPECT_NE(najdi(1702), nullptr);
}

TEST_F(Provoz, TrainDueInLessThanTwentyMinutesIsNeverDrawn) {
    lhotin();
    simulace.zpozdeni_povoleno = true;
    pridej(z_lhotina(1701, 649), [](GvdVlak& g) { g.druh = 14; });
    zasej_aby([](float x) { return x > 0.95f; });
    for (const TextPohled cas : {"10:30:00", "10:35:00", "10:46:00"})
        v(cas);
    EXPECT_TRUE(relief.lstZpravy.radky.empty());
}

TEST_F(Provoz, RowsThatBeginAtTheMainStationOrADepotAreNeverDelayed) {
    simulace.zpozdeni_povoleno = true;
    for (const int kod : {9, 28, 30, 34})
        pridej(radek(100 + kod, {{static_cast<std::uint8_t>(kod), -1, 650}, {8, 700, -1}}),
               [](GvdVlak& g) { g.druh = 14; });
    const Nahoda pred = nahoda;
    v("10:30:00");
    EXPECT_TRUE(relief.lstZpravy.radky.empty());
    EXPECT_EQ(nahoda, pred); // nothing was drawn
}

TEST_F(Provoz, ThresholdsOfTheDelayDrawHoldInSinglePrecision) {
    struct Druh {
        std::uint8_t druh;
        double prah;
        bool vcetne;
        int nejvyse;
    };
    for (const Druh& d : {Druh{1, 0.9, true, 29}, Druh{8, 0.9, true, 29}, Druh{5, 0.85, false, 29},
                          Druh{7, 0.81, false, 29}, Druh{9, 0.8, false, 89}, Druh{14, 0.8, false, 89}}) {
        gvd_vlaky = TabulkaGvd({radek(1, {{1, -1, 650}, {9, 700, -1}})});
        zmen_radek_gvd(0, [&](GvdVlak& g) { g.druh = d.druh; });
        int zpozdenych = 0;
        for (std::uint64_t semeno = 0; semeno < 3000; ++semeno) {
            zasej_nahodu(semeno * 7919);
            const double r1 = nahodne();
            const double r2 = nahodne();
            const Nahoda po_dvou = nahoda;
            zasej_nahodu(semeno * 7919);
            const int minut = nahodne_zpozdeni(0);
            if (!(d.vcetne ? r1 >= d.prah : r1 > d.prah)) {
                EXPECT_EQ(minut, 0);
                EXPECT_NE(nahoda, po_dvou); // the second number is not drawn
                continue;
            }
            ++zpozdenych;
            const int cele = static_cast<int>(r2 * (d.nejvyse + 1));
            EXPECT_EQ(minut, cele >= 1 && cele <= 4 ? 5 : cele);
            EXPECT_LE(minut, d.nejvyse);
            EXPECT_EQ(nahoda, po_dvou);
        }
        EXPECT_GT(zpozdenych, 150);
    }
    EXPECT_LT(static_cast<double>(0.9f), 0.9); // the threshold itself, drawn, is no delay
}

TEST_F(Provoz, DelayIsReadFromTheFirstLineOfTheTrain) {
    prevezmi_hlaseni({Text("Jiná zpráva 4701 +33´"_cz), Text("Zpoždění vlaku 47011 +30´"_cz),
                      Text("Zpoždění vlaku 4701 +5´"_cz), Text("Zpoždění vlaku 4701 +9´"_cz),
                      Text("Zpoždění vlaku 12 +15´"_cz)});
    EXPECT_EQ(zpozdeni_vlaku(4701), 5);
    EXPECT_EQ(zpozdeni_vlaku(12), 15);
    EXPECT_EQ(zpozdeni_vlaku(47011), 30);
    EXPECT_EQ(zpozdeni_vlaku(470), 0);
}

TEST_F(Provoz, DeletedDelayLineMakesTheTrainPunctual) {
    lhotin();
    pridej(z_lhotina(1701, 632));
    prevezmi_hlaseni({Text("Zpoždění vlaku 1701 +15´"_cz)});
    v("10:30:00");
    EXPECT_EQ(najdi(1701), nullptr);
    relief.lstZpravy.vybrany = 0;
    smaz_radek_zprav();
    v("10:31:00");
    EXPECT_NE(najdi(1701), nullptr);
}

// --- announcement and setting off

TEST_F(Provoz, TrainIsAnnouncedTwoMinutesBeforeAndSetsOffAtItsMinute) {
    lhotin();
    pridej(z_lhotina(1701, 632));
    v("10:29:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    v("10:30:00");
    Vlak* vlak = najdi(1701);
    ASSERT_NE(vlak, nullptr);
    EXPECT_FALSE(vlak->muze_jet);
    EXPECT_TRUE(vlak->smer);
    EXPECT_EQ(cisla_prvku(vlak->prvky), std::vector<std::int16_t>{87});
    EXPECT_EQ(vlak->stanice_index, -4);
    EXPECT_EQ(vlak->prvek_konec, 0);
    EXPECT_EQ(barva(87), barvy::zelena);
    EXPECT_EQ(cislo_na(87), "1701");
    EXPECT_EQ(svet.pipnuti, (std::vector<VirtualniPlatforma::Pipnuti>{{500, 200}}));
    v("10:31:00"); // not a second time
    EXPECT_EQ(pocet_vlaku(), 1);
    v("10:32:00");
    EXPECT_TRUE(vlak->muze_jet);
    EXPECT_EQ(barva(87), barvy::cervena);
    EXPECT_EQ(relief.kolej[87].stav, "400");
}

TEST_F(Provoz, NobodySetsOffWhereOnlyTheNumberHasRunAhead) {
    lhotin();
    pridej(z_lhotina(1701, 632));
    v("10:30:00");
    Vlak* vlak = najdi(1701);
    ASSERT_NE(vlak, nullptr);
    vlak->prvky = prvky_cesty(
        {600}, {1}); // sent off before its minute; its number has run back over a route to track 87
    relief.kolej[87].barva = barvy::zelena;
    v("10:32:00");
    EXPECT_EQ(cislo_na(87), "1701");
    EXPECT_EQ(barva(87), barvy::zelena);
}

TEST_F(Provoz, TrainOrderedToDepartInItsMinuteWaitsNoMore) {
    lhotin();
    pridej(z_lhotina(1701, 632));
    v("10:30:00");
    Vlak* vlak = najdi(1701);
    ASSERT_NE(vlak, nullptr);
    v("10:31:00");
    simulace.cas_zacatku = 631;
    simulace.minuty_simulace = 0;
    odjezd_povel(static_cast<int>(vlak - vlaky.data()));
    EXPECT_EQ(relief.cislo_koleje[87].pozadi, 0x00FFFFu);
    EXPECT_TRUE(blikani.blikani_radku[0]);
    simulace.minuty_simulace = 1;
    v("10:32:00");
    EXPECT_TRUE(vlak->muze_jet);
    EXPECT_EQ(relief.cislo_koleje[87].pozadi, barvy::cerna);
    EXPECT_FALSE(blikani.blikani_radku[0]);
}

TEST_F(Provoz, FullStationAnnouncesNobodyAndTheTrainNeverComes) {
    lhotin();
    for (const int n : {86, 87, 88, 89, 90})
        obsad(n);
    pridej(z_lhotina(1701, 632));
    v("10:30:00");
    v("10:31:00");
    relief.kolej[87].barva = barvy::seda;
    v("10:32:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    EXPECT_EQ(barva(87), barvy::seda);
}

TEST_F(Provoz, TracksAreTakenInTheirOrder) {
    lhotin();
    pridej(z_lhotina(1701, 632));
    pridej(z_lhotina(1703, 632));
    pridej(z_lhotina(1705, 632));
    v("10:30:00");
    EXPECT_EQ(cislo_na(87), "1701");
    EXPECT_EQ(cislo_na(88), "1703");
    EXPECT_EQ(cislo_na(86), "1705");
    EXPECT_EQ(svet.pipnuti.size(), 1u); // one beep a minute
}

TEST_F(Provoz, PickUpGoodsTrainHasATrackOfItsOwn) {
    lhotin();
    koleje({66, 67, 68, 69, 62, 63, 64, 65, 41, 42, 43});
    int cislo = 81000;
    for (const std::uint8_t kod : {1, 6, 2, 4})
        pridej(radek(++cislo, {{kod, -1, 632}, {9, 700, -1}}), [](GvdVlak& g) { g.druh = 15; });
    v("10:30:00");
    EXPECT_EQ(cislo_na(89), "81001");
    EXPECT_EQ(cislo_na(66), "81002");
    EXPECT_EQ(cislo_na(62), "81003");
    EXPECT_EQ(cislo_na(43), "81004");
    EXPECT_FALSE(najdi(81002)->smer);
}

TEST_F(Provoz, LateTrainWaitsOnTheOvertakingTrack) {
    lhotin();
    pridej(z_lhotina(1701, 620));
    prevezmi_hlaseni({Text("Zpoždění vlaku 1701 +12´"_cz)});
    stav_provozu.dalsi_vlaky[1] = {8, 33, 4, 631}; // due at 10:31, the late one at 10:32
    v("10:30:00");
    EXPECT_EQ(cislo_na(86), "1701");
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cas, 8);
}

TEST_F(Provoz, AnnouncedTrainIsNoLongerTheNextOne) {
    lhotin();
    pridej(z_lhotina(1701, 639));
    v("10:30:00");
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1], (DalsiVlak{9, 1701, 7, 639}));
    v("10:33:00");
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cas, 6);
    v("10:37:00");
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cas, 100);
    EXPECT_EQ(stav_provozu.dalsi_vlaky[1].cislo, 1701);
}

TEST_F(Provoz, StationBeyondTheTableIsNoNextTrain) {
    GvdVlak r = z_lhotina(5, 639);
    r.zastavky[0].stanice = 200;
    pridej(r);
    v("10:30:00");
    for (const DalsiVlak& d : stav_provozu.dalsi_vlaky)
        EXPECT_EQ(d, DalsiVlak{});
}

// --- entries at the minute

TEST_F(Provoz, DepotEntryNeedsAFreeEndOfRoutesToo) {
    koleje({112});
    pridej(radek(100, {{28, 630, 630}, {12, 640, -1}}));
    Cesta cesta;
    cesta.zacatek = 1;
    cesta.prvky = prvky_cesty({1, 112});
    cesta.prehozena = true;
    cesty = {cesta};
    v("10:30:00");
    EXPECT_EQ(pocet_vlaku(), 0);
    cesty = {Cesta{}};
    v("10:30:00");
    ASSERT_NE(najdi(100), nullptr);
    EXPECT_FALSE(najdi(100)->smer);
    EXPECT_EQ(barva(112), barvy::cervena);
}

TEST_F(Provoz, YardEntriesTakeTheFirstFreeTrack) {
    koleje({55, 56, 91, 92});
    pridej(radek(100, {{27, 630, 630}, {12, 640, -1}}));
    pridej(radek(102, {{27, 630, 630}, {12, 640, -1}}));
    pridej(radek(104, {{27, 630, 630}, {12, 640, -1}}));
    pridej(radek(106, {{31, 630, 630}, {12, 640, -1}}));
    v("10:30:00");
    EXPECT_EQ(cislo_na(55), "100");
    EXPECT_EQ(cislo_na(56), "102");
    EXPECT_EQ(najdi(104), nullptr);
    EXPECT_EQ(cislo_na(91), "106");
    EXPECT_TRUE(najdi(106)->smer);
}

TEST_F(Provoz, SecondEndOfTheDepotNeverGivesATrain) {
    koleje({112, 119});
    pridej(radek(100, {{30, 630, 630}, {12, 640, -1}}));
    v("10:30:00");
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Provoz, PostLocomotiveStandsByAndShunts) {
    koleje({574});
    GvdVlak r = radek(100, {{33, 630, 630}, {9, 640, -1}});
    r.vozy = {"210"};
    r.vozy_vlaky = {0};
    pridej(r);
    v("10:30:00");
    const Vlak* vlak = najdi(100);
    ASSERT_NE(vlak, nullptr);
    EXPECT_TRUE(vlak->posun);
    EXPECT_EQ(vlak->vozy[0].urceni, "ZAL");
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    EXPECT_EQ(barva(574), barvy::cervena);
    EXPECT_EQ(cislo_na(574), "");
    ASSERT_EQ(koleje_vlaky.size(), 2u);
    EXPECT_EQ(koleje_vlaky[1].prvek, 574);
}

TEST_F(Provoz, BranchDepotTellsTrainsFromSetsByTheirNumber) {
    koleje({25});
    pridej(radek(69999, {{34, 630, 630}, {9, 640, -1}}));
    v("10:30:00");
    ASSERT_NE(najdi(69999), nullptr);
    EXPECT_TRUE(najdi(69999)->posun);
    EXPECT_EQ(cislo_na(25), "");
    EXPECT_EQ(relief.kolej[25].stav, "500");

    nova_simulace();
    simulace.cas_zacatku = 629;
    koleje({25});
    pridej(radek(70000, {{34, 630, 630}, {9, 640, -1}}));
    v("10:30:00");
    ASSERT_NE(najdi(70000), nullptr);
    EXPECT_FALSE(najdi(70000)->posun);
    EXPECT_EQ(cislo_na(25), "70000");
}

TEST_F(Provoz, BranchDepotWaitsForARunningSet) {
    koleje({25});
    pridej(radek(1801, {{34, 630, 630}, {9, 640, -1}}));
    vlaky[3].cislo = 1801;
    vlaky[3].vozy = vozy_vlaku({"754", "Bp"}, {"", ""});
    v("10:30:00");
    EXPECT_EQ(barva(25), barvy::seda);
}

TEST_F(Provoz, MissingElementsAreSkipped) {
    for (const int kod : {1, 2, 4, 5, 6, 9, 19, 20, 27, 28, 30, 31, 33, 34, 255})
        for (const std::int16_t t : {630, 631, 632, 650})
            pridej(radek(1000 + kod, {{static_cast<std::uint8_t>(kod), t, t}, {9, 700, -1}}));
    souhlasy.cekajici_vlaky = {1005, 1009, 1019};
    EXPECT_NO_THROW(v("10:30:00"));
    EXPECT_EQ(pocet_vlaku(), 0);
}

// --- consent

struct KonecSouhlasu {
    std::uint8_t stanice;
    int k, venku, uvnitr, signal, glyf;
};
class Souhlas : public Provoz, public testing::WithParamInterface<KonecSouhlasu> {};

TEST_P(Souhlas, TrainAsksThenWaitsThenComesIn) {
    const KonecSouhlasu& s = GetParam();
    koleje({s.venku, s.uvnitr});
    souhlasova_lampa(s.k);
    pridej(radek(4701, {{s.stanice, -1, 631}, {9, 660, -1}}));
    simulace.ticho_souhlasu = true;
    v("10:29:00");
    EXPECT_EQ(relief.lblSouhlas[s.k].popis, "");
    v("10:30:00");
    EXPECT_EQ(relief.lblSouhlas[s.k].popis, "4701");
    EXPECT_FALSE(simulace.ticho_souhlasu);
    EXPECT_EQ(pocet_vlaku(), 0);

    udel_souhlas(s.k);
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{4701});
    EXPECT_TRUE(souhlasy.souhlas[static_cast<std::size_t>(s.k)]);
    obsad(s.uvnitr);
    v("10:31:00");
    v("10:45:00"); // it waits as long as the line is taken, and is never delayed
    EXPECT_EQ(pocet_vlaku(), 0);
    relief.kolej[s.uvnitr].barva = barvy::seda;
    v("10:46:00");
    const Vlak* vlak = najdi(4701);
    ASSERT_NE(vlak, nullptr);
    EXPECT_EQ(cisla_prvku(vlak->prvky), std::vector<std::int16_t>{static_cast<std::int16_t>(s.venku)});
    EXPECT_TRUE(vlak->smer);
    EXPECT_TRUE(vlak->muze_jet);
    EXPECT_EQ(vlak->zpozdeni, 15);
    EXPECT_EQ(barva(s.venku), barvy::cervena);
    EXPECT_EQ(cislo_na(s.uvnitr), "4701");
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{0});
    EXPECT_FALSE(souhlasy.souhlas[static_cast<std::size_t>(s.k)]);
    EXPECT_EQ(relief.lblSouhlas[s.k].barva(), barvy::modra);
    EXPECT_EQ(relief.lblSouhlas[s.k].text, znak(s.glyf));
    EXPECT_EQ(relief.lblPredvidany_odjezd[s.k].text, "46");
    EXPECT_TRUE(relief.lblPredvidany_odjezd[s.k].viditelny);

    ASSERT_EQ(cesty.size(), 1u);
    const Cesta& c = cesty[0];
    EXPECT_EQ(c.zacatek, s.signal);
    EXPECT_EQ(c.konec, s.uvnitr);
    EXPECT_EQ(cisla_prvku(c.prvky), (std::vector<std::int16_t>{static_cast<std::int16_t>(s.venku),
                                                               static_cast<std::int16_t>(s.uvnitr)}));
    EXPECT_TRUE(c.VC && c.prehozena && c.Postavena && c.Provedena);
    EXPECT_EQ(c.ZT, 999);
    EXPECT_EQ(c.prejezd, 255);
    EXPECT_EQ(c.Vlak, -3);
    EXPECT_EQ(c.cas_ruseni, -3);
}

INSTANTIATE_TEST_SUITE_P(Konce, Souhlas,
                         testing::Values(KonecSouhlasu{19, 0, 212, 84, 284, 8},
                                         KonecSouhlasu{20, 1, 213, 85, 285, 8},
                                         KonecSouhlasu{5, 2, 219, 117, 317, 176}));

TEST_F(Provoz, ConsentedTrainOfAnotherDayDoesNotComeIn) {
    koleje({219, 117});
    souhlasova_lampa(2);
    pridej(radek(4701, {{5, -1, 631}, {9, 660, -1}}), [](GvdVlak& g) { g.dny = 2; });
    prevezmi_hlaseni({Text("Zpoždění vlaku 4701 +7´"_cz)});
    souhlasy.cekajici_vlaky = {4701};
    v("10:40:00");
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Provoz, RequestIsMadeInOneMinuteOnly) {
    koleje({219, 117});
    souhlasova_lampa(2);
    pridej(radek(4701, {{5, -1, 631}, {9, 660, -1}}));
    v("10:30:00");
    zadej_souhlas(2, TextPohled());
    v("10:31:00");
    EXPECT_EQ(relief.lblSouhlas[2].popis, "");
}

TEST_F(Provoz, SecondRouteFromALineIsAppended) {
    koleje({219, 117});
    Cesta prvni;
    prvni.zacatek = 7;
    cesty = {prvni};
    pridej_cestu_souhlasu(2);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[0].zacatek, 7);
    EXPECT_EQ(cesty[1].zacatek, 317);
}

TEST_F(Provoz, WaitingListShrinksToOneZero) {
    pridej(radek(1, {{5, -1, 631}, {9, 660, -1}}));
    pridej(radek(2, {{5, -1, 631}, {9, 660, -1}}));
    souhlasy.cekajici_vlaky = {1, 2};
    vyrad_cekajici(0);
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{2});
    vyrad_cekajici(0); // not in it
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{2});
    vyrad_cekajici(1);
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{0});
    pridej_cekajici(9);
    pridej_cekajici(9);
    pridej_cekajici(8);
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{9, 8}));
}

TEST_F(Provoz, SetTrainRunsUnderEitherNumber) {
    vlaky[4].cislo = 50;
    vlaky[4].cislo2 = 60;
    EXPECT_EQ(spust_vlak(60), 4);
    EXPECT_TRUE(vlaky[4].muze_jet);
    EXPECT_EQ(spust_vlak(70), 0);
    EXPECT_FALSE(vlaky[0].muze_jet);
}

// --- standby locomotives

TEST_F(Provoz, StandbyLocomotiveComesFromTheSideThatIsDue) {
    koleje({538, 569});
    v("10:30:00");
    EXPECT_EQ(barva(538), barvy::cervena);
    EXPECT_EQ(barva(569), barvy::seda);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    v("10:31:00");
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Provoz, StandbyLocomotiveOfTheOtherSideComesFrom569) {
    koleje({538, 569});
    stav_provozu.zaloha_731_strana = true;
    v("10:30:00");
    EXPECT_EQ(barva(538), barvy::seda);
    EXPECT_EQ(barva(569), barvy::cervena);
    EXPECT_EQ(pocet_vlaku(), 1);
    EXPECT_TRUE(vlaky[0].smer);
    EXPECT_TRUE(vlaky[0].posun);
    EXPECT_EQ(vlaky[0].vozy[0].urceni, "ZAL");
}

} // namespace
