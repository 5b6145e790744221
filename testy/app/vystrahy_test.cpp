// testy/app/vystrahy_test.cpp - what the operator must not miss.
#include "app/casovace.h"
#include "app/sledovani_provozu.h"
#include "app/stav_simulace.h"
#include "app/vystrahy.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/svet_vlaku.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "uzel/dopravny.h"

namespace {

class Vystrahy : public SVlaky {
protected:
    // A train of the timetable that leaves the main station at 8:10.
    int vlak_v_odjezdu() {
        pridej_kolej(30);
        relief.cislo_koleje[30].popis = "5"_cz;
        GvdVlak r;
        r.cislo = 11;
        r.druh = 7;
        r.zastavky = zastavky_radku({dopravna::tesk, dopravna::borovec}, {-1, 510}, {490, -1});
        r.dny = 0x7F;
        gvd_vlaky = TabulkaGvd({r});
        const int i = vlak_na(30, true, 11);
        zastavky(i, {dopravna::tesk, dopravna::borovec}, {-1, 510}, {490, -1});
        vlak(i).stanice_index = 0;
        return i;
    }
    static void pohledni() {
        sleduj_provoz();
        sleduj_provoz();
        sleduj_vystrahy();
    }
    static void uplyne(int minut) {
        for (int i = 0; i < minut; ++i) {
            ++simulace.minuty_simulace;
            nastav_cas(cas_hodin() + 60);
            pohledni();
        }
    }
    static std::vector<Vystraha> druhu(DruhVystrahy druh) {
        std::vector<Vystraha> vse = vystrahy();
        std::erase_if(vse, [druh](const Vystraha& v) { return v.druh != druh; });
        return vse;
    }
    ~Vystrahy() override { gvd_vlaky = {}; }
};

TEST_F(Vystrahy, QuietDeskHasNone) {
    pohledni();
    uplyne(30);
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, ConsentThatAsksIsNamedAtItsLampUntilItIsGiven) {
    relief.lblSouhlas.zaloz(2);
    zadej_souhlas(2, 16851);
    ASSERT_EQ(vystrahy().size(), 1u);
    const Vystraha v = vystrahy().front();
    EXPECT_EQ(v.text, Text("Vrbice žádá o souhlas pro vlak 16851"_cz));
    EXPECT_EQ(v.prvek, Druh::lblSouhlas);
    EXPECT_EQ(v.n, 2);
    EXPECT_EQ(v.vlak, 16851);
    souhlas_us(2);
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, TrainIsNamedThreeMinutesAfterItsDepartureAndNotBefore) {
    const int i = vlak_v_odjezdu();
    pohledni();
    uplyne(12);
    EXPECT_TRUE(vystrahy().empty()) << "8:12, it may leave since 8:10";
    uplyne(1);
    ASSERT_EQ(vystrahy().size(), 1u);
    const Vystraha v = vystrahy().front();
    EXPECT_EQ(v.druh, DruhVystrahy::vlak_stoji);
    EXPECT_EQ(v.text, Text("Os 11 stojí 3 min, THN 5: nemá postavenou cestu"_cz));
    EXPECT_EQ(v.prvek, Druh::cislo_koleje);
    EXPECT_EQ(v.n, 30);
    vlak(i).prvky.push_back({62, druh_prvku::kolej, 0});
    vlak(i).prvek_konec = 1;
    vlak(i).stanice_index = 1;
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty()) << "it goes";
}

TEST_F(Vystrahy, TrainWithoutALocomotiveSaysSo) {
    const int i = vlak_v_odjezdu();
    vlak(i).vozy = vozy_vlaku({"B", "B"});
    pohledni();
    uplyne(15);
    ASSERT_EQ(druhu(DruhVystrahy::bez_lokomotivy).size(), 1u);
    EXPECT_NE(vystrahy().front().text.find(Text("nemá lokomotivu"_cz)), Text::npos);
}

TEST_F(Vystrahy, ShuntingMovementThatStandsIsNone) {
    const int i = vlak_v_odjezdu();
    vlak(i).posun = true;
    pohledni();
    uplyne(60);
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, DelayIsToldWhileItGrowsByMoreThanTwoMinutes) {
    const int i = vlak_na(62, true, 4711);
    vlak(i).zpozdeni = 8; // carried in
    pohledni();
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty());
    vlak(i).zpozdeni = 10;
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty());
    vlak(i).zpozdeni = 11;
    uplyne(1);
    ASSERT_EQ(vystrahy().size(), 1u);
    EXPECT_EQ(vystrahy().front().druh, DruhVystrahy::zpozdeni);
    EXPECT_EQ(vystrahy().front().text, Text("Os 4711: zpoždění roste, 11 min (+3)"_cz));
    uplyne(kKlidZpozdeni_min - 1);
    EXPECT_EQ(vystrahy().size(), 1u);
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty()) << "it grows no more";
}

TEST_F(Vystrahy, DelayThatIsMadeGoodIsNotTold) {
    const int i = vlak_na(62, true, 4711);
    pohledni();
    vlak(i).zpozdeni = 5;
    uplyne(1);
    ASSERT_EQ(vystrahy().size(), 1u);
    vlak(i).zpozdeni = 4;
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, RecordThatHasBecomeAnotherTrainBeginsAnew) {
    const int i = vlak_na(62, true, 4711);
    pohledni();
    vlak(i).cislo = 4712;
    vlak(i).zpozdeni = 20;
    uplyne(1);
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, CrossingIsNamedAfterTenMinutesClosed) {
    relief.lblPrejezd.zaloz(1);
    pohledni();
    stanicni_prejezdy[1].uzavren = true;
    pohledni();
    uplyne(9);
    EXPECT_TRUE(vystrahy().empty());
    uplyne(1);
    ASSERT_EQ(vystrahy().size(), 1u);
    EXPECT_EQ(vystrahy().front().text, Text("přejezd 5,910 je zavřen 10 min"_cz));
    EXPECT_EQ(vystrahy().front().prvek, Druh::lblPrejezd);
    EXPECT_EQ(vystrahy().front().n, 1);
    stanicni_prejezdy[1].uzavren = false;
    pohledni();
    stanicni_prejezdy[1].uzavren = true;
    uplyne(2);
    EXPECT_TRUE(vystrahy().empty()) << "the road was open in between";
}

TEST_F(Vystrahy, MessagesBehindTheOneOnTheLineAreCounted) {
    zprava(" POZOR ", Text("první"_cz), barvy::bila);
    EXPECT_TRUE(vystrahy().empty()) << "it is seen";
    zprava(" INFO ", Text("druhá"_cz), barvy::bila);
    ASSERT_EQ(vystrahy().size(), 1u);
    EXPECT_EQ(vystrahy().front().text, Text("za hlášením čekají další: 1"_cz));
    EXPECT_EQ(vystrahy().front().prvek, Druh::lblPrikaz);
    potvrd_prikaz();
    dalsi_zprava();
    EXPECT_TRUE(vystrahy().empty());
}

TEST_F(Vystrahy, RouteThatWaitsForAWarningBehindAMessageSaysSo) {
    zprava(" POZOR ", Text("první"_cz), barvy::bila);
    zprava(DruhZpravy::vyluka, Text("na koleji 5"_cz), barvy::cervena);
    ASSERT_EQ(vystrahy().size(), 1u);
    EXPECT_NE(vystrahy().front().text.find(Text("cesta čeká na potvrzení"_cz)), Text::npos);
}

// The watch is the observer's own: whoever asks changes nothing, and nothing else is written.
TEST_F(Vystrahy, AskingAndWatchingChangeNothingElse) {
    vlak_v_odjezdu();
    relief.lblSouhlas.zaloz(0);
    zadej_souhlas(0, 4711);
    pohledni();
    uplyne(20);
    const StavSimulace pred = stav_simulace();
    EXPECT_EQ(vystrahy().size(), 2u);
    EXPECT_EQ(stav_simulace(), pred);
    stav_vystrah = {};
    sleduj_vystrahy();
    StavSimulace po = stav_simulace();
    po.stav_vystrah = pred.stav_vystrah;
    EXPECT_EQ(po, pred);
}

TEST_F(Vystrahy, ClockStepWatches) {
    relief.lblPrejezd.zaloz(0);
    stanicni_prejezdy[0].uzavren = true;
    svet.posun_ms(1500);
    krok_hodin();
    EXPECT_GE(stav_vystrah.zavreno_od_s[0], 0);
}

} // namespace
