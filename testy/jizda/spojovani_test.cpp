// testy/jizda/spojovani_test.cpp - coupling, splitting, turning, the next train of a set; train and shunt.
#include "cesty/cisla_vlaku.h"
#include "desk/info_o_vlaku.h"
#include "desk/stav_blikani.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/casy.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "jizda/posun.h"
#include "jizda/svet_vlaku.h"
#include "obsluha/vstup.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"

#include <algorithm>

namespace {

using Vozy = std::vector<Text>;

class Spojovani : public SVlaky {
protected:
    Spojovani() {
        pridej_kolej(32);
        pridej_kolej(574);
    }
    static GvdVlak radek_gvd(std::int32_t cislo) {
        GvdVlak g;
        g.cislo = cislo;
        g.druh = 7;
        g.zastavky = zastavky_radku({9, 2}, {-1, 600}, {540, -1});
        g.vozy = {"843"};
        g.vozy_vlaky = {0, 0};
        g.kolej = "3";
        g.nazev = "Bystrice";
        g.loko_rada = 843;
        return g;
    }
    static int poradi(int kolej, int v) {
        const auto& seznam = koleje_vlaky.at(static_cast<std::size_t>(zaznam_koleje(kolej))).vlaky;
        return static_cast<int>(std::find(seznam.begin(), seznam.end(), v) - seznam.begin());
    }
};

} // namespace

TEST_F(Spojovani, FreeRecordIsUsedAgainAndTheTableGrowsByOne) {
    for (std::size_t i = 0; i < kPrvnichVlaku; ++i)
        vlaky[i].cislo = 100;
    EXPECT_EQ(novy_vlak(), static_cast<int>(kPrvnichVlaku));
    EXPECT_EQ(vlaky.size(), kPrvnichVlaku + 1);
    EXPECT_EQ(vlaky.back().cislo, -3);
    EXPECT_EQ(vlaky.back().rezerva, -3);
    EXPECT_EQ(vlaky.back().prvek_konec, 0);
    vlaky[7].cislo = -3;
    vlaky[7].rychlost_cesty = 40;
    EXPECT_EQ(novy_vlak(), 7);
    EXPECT_EQ(vlaky[7].rychlost_cesty, 0); // nothing of the last train stays
}

TEST_F(Spojovani, EndOfARecordTakesItsRowUnlessItsLocomotiveOnlyRanAlong) {
    const int v = vlak_na(62, true, 77);
    const int loko = vlak_na(63, true, 77, {"754"});
    pridej_do_tabulky(v);
    zrus_vlak(loko);
    EXPECT_EQ(radek_tabulky(77), 0);
    EXPECT_EQ(vlak(loko).cislo, -3);
    EXPECT_TRUE(vlak(loko).muze_jet);
    EXPECT_EQ(vlak(loko).prvky.size(), 1u);
    EXPECT_EQ(vlak(loko).prvek_konec, 0);
    zrus_vlak(v);
    EXPECT_EQ(radek_tabulky(77), -1);
}

TEST_F(Spojovani, LocomotiveAlwaysJoinsTheTrain) {
    for (const bool loko_prvni : {true, false}) {
        const int v = vlak_na(62, false, 77, {"B", "Bd"});
        const int loko = vlak_na(62, false, 88, {"754"});
        vlak(loko).delka = 18;
        cesty[0].zacatek = 262;
        cesty[0].Vlak = static_cast<std::int16_t>(loko);
        cesty[0].Umazat = 0;
        loko_prvni ? spoj(loko, v) : spoj(v, loko);
        EXPECT_EQ(vlak(v).cislo, 77);
        EXPECT_EQ(vlak(loko).cislo, -3);
        EXPECT_EQ(vlak(v).vozy.size(), 3u);
        EXPECT_EQ(vlak(v).delka, 58);
        EXPECT_EQ(cesty[0].Vlak, v);
        EXPECT_EQ(koleje_vlaky[static_cast<std::size_t>(zaznam_koleje(62))].vlaky,
                  std::vector<std::int16_t>{static_cast<std::int16_t>(v)});
        uber_ze_vsech(v);
        zrus_vlak(v);
    }
}

TEST_F(Spojovani, VehiclesComeToTheSideOnWhichTheOtherTrainStands) {
    const auto spojene = [&](bool smer_a, bool smer_b, const Vozy& vozy_a) {
        const int a = vlak_na(62, smer_a, 77, vozy_a);
        const int b = vlak_na(62, smer_b, 88, {"363", "C"});
        spoj(a, b);
        const int zbyl = vlak(a).cislo > 0 ? a : b;
        const Vozy vozy = rady_vozu(vlak(zbyl).vozy);
        uber_ze_vsech(zbyl);
        zrus_vlak(zbyl);
        return vozy;
    };
    EXPECT_EQ(spojene(true, true, {"754", "B"}), (Vozy{"363", "C", "754", "B"}));
    EXPECT_EQ(spojene(true, false, {"754", "B"}), (Vozy{"C", "363", "754", "B"})); // the other one is turned
    EXPECT_EQ(spojene(false, false, {"754", "B"}), (Vozy{"754", "B", "363", "C"}));
    EXPECT_EQ(spojene(false, true, {"754", "B"}), (Vozy{"754", "B", "C", "363"}));
    // The locomotive joins.
    EXPECT_EQ(spojene(true, true, {"754"}), (Vozy{"363", "C", "754"}));
    EXPECT_EQ(spojene(false, false, {"754"}), (Vozy{"754", "363", "C"}));
    EXPECT_EQ(spojene(true, false, {"754", "731"}), (Vozy{"731", "754", "363", "C"}));
}

TEST_F(Spojovani, TrainThatIsNotWhollyOnTheTrackIsNotCoupled) {
    const int a = vlak_na(62, true, 77);
    const int b = vlak_na(62, true, 88);
    vlak(b).prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0});
    simulace.zvuk_vypnut = true;
    spoj(a, b);
    EXPECT_EQ(vlak(b).cislo, 88);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " SPOJIT ");
    EXPECT_EQ(relief.lblVolba[0].text(), " Nelze spojit vlak, který není celou délkou na koleji!"_cz);
    ASSERT_EQ(svet.pipnuti.size(), 1u); // even when the sound is off
    EXPECT_EQ(svet.pipnuti[0], (VirtualniPlatforma::Pipnuti{100, 200}));
}

TEST_F(Spojovani, CouplingGivesTheStopItsDepartureBack) {
    const int v = vlak_na(62, true, 77, {"B", "B"});
    zastavky(v, {9, 2, 6}, {-3, 478, 500}, {470, 482, -3});
    vlak(v).stanice_index = 1;
    vlak(v).zastavky[1].odjezd_realny = -10;
    vlak(v).priznaky = 2;
    const int prvni = vlak_na(62, true, 88, {"754"});
    spoj(v, prvni);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, -10); // the assisting one at the end is still missing
    vlak(v).priznaky = 0;
    const int druhy = vlak_na(62, true, 88, {"754"});
    spoj(v, druhy);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 483); // three minutes
    vlak(v).zastavky[1].odjezd_realny = -10;
    vlak(v).druh = 14;
    spoj(v, vlak_na(62, true, 88, {"754"}));
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 486);
    vlak(v).zastavky[1].odjezd_realny = -10;
    vlak(v).zastavky[1].odjezd = 495;
    spoj(v, vlak_na(62, true, 88, {"754"}));
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 495);
}

TEST_F(Spojovani, TrainThatNeedsTwoLocomotivesWaitsForTheSecondOne) {
    const int v = vlak_na(62, false, 77, {"B", "B"});
    zastavky(v, {9, 2}, {-3, 500}, {482, -3});
    vlak(v).zastavky[0].odjezd_realny = -10;
    vlak(v).priznaky = 1;
    spoj(v, vlak_na(62, false, 88, {"754"})); // behind the carriages: no second one at the front
    EXPECT_EQ(vlak(v).zastavky[0].odjezd_realny, -10);
    otoc_vlak(v);
    spoj(v, vlak_na(62, true, 88, {"754"}));
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"754", "754", "B", "B"}));
    EXPECT_EQ(vlak(v).zastavky[0].odjezd_realny, 483);
}

TEST_F(Spojovani, SplitLeavesTheFrontPartOnTheSideOfTheHead) {
    for (const bool smer : {true, false}) {
        const int v = vlak_na(62, smer, 77, {"754", "B"});
        zastavky(v, {9, 2, 6}, {-3, 478, 500}, {470, 482, -3});
        vlak(v).stanice_index = 1;
        vlak(v).delka = 42;
        const int d = odvesit(v, 0, false);
        ASSERT_GE(d, 0);
        EXPECT_EQ(rady_vozu(vlak(d).vozy), Vozy{"754"});
        EXPECT_EQ(rady_vozu(vlak(v).vozy), Vozy{"B"});
        EXPECT_EQ(vlak(d).delka, 18);
        EXPECT_EQ(vlak(v).delka, 24);
        EXPECT_EQ(vlak(d).cislo, 77);
        EXPECT_TRUE(vlak(d).posun);
        EXPECT_TRUE(vlak(d).muze_jet);
        EXPECT_EQ(vlak(d).stanice_index, 0);
        EXPECT_EQ(vlak(d).zastavky[1].odjezd_realny, 482);
        EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, -10);
        EXPECT_EQ(metry(62), 42);
        EXPECT_EQ(poradi(62, d) > poradi(62, v), smer);
        EXPECT_EQ(cisla_prvku(vlak(d).prvky), std::vector<std::int16_t>{62});
        uber_ze_vsech(v);
        uber_ze_vsech(d);
        zrus_vlak(v);
        zrus_vlak(d);
    }
}

TEST_F(Spojovani, LastVehicleComesOffAloneAtTheOtherEnd) {
    const int v = vlak_na(62, true, 77, {"B", "C", "754"});
    vlak(v).delka = 90;
    const int d = odvesit(v, 2, false);
    EXPECT_EQ(rady_vozu(vlak(d).vozy), Vozy{"754"});
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"B", "C"}));
    EXPECT_LT(poradi(62, d), poradi(62, v));
}

TEST_F(Spojovani, LengthGoesWithTheCarriagesAndLocomotivesCountEighteenMetres) {
    const int v = vlak_na(62, true, 77, {"754", "B", "B", "B"});
    vlak(v).delka = 100;
    const int d = odvesit(v, 1, false);
    EXPECT_EQ(vlak(d).delka, 51); // 100 * 1 / 3 + 18
    EXPECT_EQ(vlak(v).delka, 49);
    const int w = vlak_na(63, true, 88, {"754", "731"});
    vlak(w).delka = 18;
    const int e = odvesit(w, 0, false);
    EXPECT_EQ(vlak(e).delka, 18); // no carriage at all
    EXPECT_EQ(vlak(w).delka, 18); // never shorter than a locomotive
    const int tri = vlak_na(64, true, 99, {"754", "754", "754"});
    vlak(tri).delka = 60;
    EXPECT_EQ(vlak(odvesit(tri, 1, false)).delka, 36);
    EXPECT_EQ(vlak(tri).delka, 24);
}

TEST_F(Spojovani, UnitsAndSingleVehiclesAreNotSplit) {
    const int v = vlak_na(62, true, 77, {"560", "060", "754"});
    EXPECT_EQ(odvesit(v, 0, false), -3);
    EXPECT_EQ(odvesit(v, 1, false), -3);
    EXPECT_EQ(odvesit(v, 7, false), -3);
    const int w = vlak_na(63, true, 88, {"754"});
    EXPECT_EQ(odvesit(w, 0, false), -3);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(vlak(v).vozy.size(), 3u);
}

TEST_F(Spojovani, SplitTakesTheRoutesThatWaitForTheTrain) {
    const int v = vlak_na(62, true, 77, {"754", "B"});
    cesta(radek(0));
    cesty[0].Vlak = static_cast<std::int16_t>(v);
    odvesit(v, 0, false);
    EXPECT_EQ(cesty[0].Vlak, -3);
}

TEST_F(Spojovani, LocomotiveOnTrack32GoesToTheStubAtOnce) {
    const int v = vlak_na(32, true, 77, {"754", "B"});
    nastav_urceni(vlak(v).vozy, {"DKV", ""});
    const int d = odvesit(v, 0, false);
    EXPECT_EQ(cisla_prvku(vlak(d).prvky), std::vector<std::int16_t>{574});
    EXPECT_FALSE(vlak(d).smer);
    EXPECT_EQ(relief.kolej[574].barva, barvy::cervena);
    EXPECT_EQ(koleje_vlaky[static_cast<std::size_t>(zaznam_koleje(574))].vlaky[0], d);
    const int w = vlak_na(32, true, 78, {"754", "B"});
    nastav_urceni(vlak(w).vozy, {"DKV", ""});
    EXPECT_EQ(cisla_prvku(vlak(odvesit(w, 0, false)).prvky),
              std::vector<std::int16_t>{32}); // the stub is occupied
}

TEST_F(Spojovani, ShortenedTrainLeavesTheTracksBehindFree) {
    const int v = vlak_na(62, true, 77);
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({62, 440, 7, 0, 63}, {1, 1, 2, 4, 1}, {0, 0, 2, 0, 0});
    for (const int e : {440, 63})
        barvi_prvek(e, barvy::cervena);
    relief.lblVykolejka[0].barva = barvy::cervena;
    vyhybka_stav(7, 152, false, false);
    nastav_metry(63, 250);
    zkrat_vlak(v);
    EXPECT_EQ(t.prvek_konec, 4);
    EXPECT_EQ(relief.kolej[62].barva, barvy::seda);
    EXPECT_EQ(relief.kolej[440].barva, barvy::seda);
    EXPECT_EQ(relief.kolej[63].barva, barvy::cervena);
    EXPECT_EQ(relief.lblVykolejka[0].barva, barvy::seda);
    EXPECT_EQ(stav_vyhybky_cislo(7), 2);
    EXPECT_EQ(metry(63), 250);
    EXPECT_EQ(stitek(62), "77"); // until it moves
    EXPECT_TRUE(vlak_na_koleji(62));
    uber_z_opustenych(v);
    EXPECT_FALSE(vlak_na_koleji(62));
    EXPECT_NE(stitek(62), "77");
}

// A train on sight stands over the switch, RNZ has freed it before, and another route has it since.
TEST_F(Spojovani, ShortenedTrainLeavesTheSwitchOfAnotherRouteLocked) {
    const int v = vlak_na(62, true, 77);
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({62, 7, 63}, {1, 2, 1}, {0, 2, 0});
    t.konec_omezeni = 7;
    barvi_prvek(63, barvy::cervena);
    cesta({64, 62, {64, 7, 440}, {1, 2, 1}, {0, 3, 0}, 0});
    zkrat_vlak(v);
    EXPECT_EQ(stav_vyhybky_cislo(7), 53);
    EXPECT_TRUE(t.omezeni_ukonceno) << "its limit ends where it has cleared the switch";
}

TEST_F(Spojovani, TurnReversesTheVehiclesAndTheEmergencyTurnOnlyTheSense) {
    const int v = vlak_na(62, true, 77, {"754", "B", "C"});
    nastav_urceni(vlak(v).vozy, {"DKV", "", "5"});
    otoc_vlak(v);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"C", "B", "754"}));
    EXPECT_EQ(urceni_vozu(vlak(v).vozy), (Vozy{"5", "", "DKV"}));
    EXPECT_FALSE(vlak(v).smer);
    otoc_nouzove(v);
    EXPECT_TRUE(vlak(v).smer);
    EXPECT_EQ(vlak(v).vozy.front().rada, "C");
}

// --- the pictures of the train page

TEST_F(Spojovani, ClickOnAPictureTakesTheFrontOfTheTrainOff) {
    const int v = vlak_na(62, true, 77, {"754", "731", "B", "C"});
    info_o_vlaku({}, v);
    klik(Druh::imgObrzaek_vlaku, 1, Tlacitko::leve, false);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"B", "C"}));
    EXPECT_EQ(vozu_na_panelu(), 2); // the page follows
    EXPECT_EQ(vlak_na_panelu(), v);
    EXPECT_FALSE(prikaz_radek.obsazen);
    klik(Druh::imgObrzaek_vlaku, 3, Tlacitko::leve, false); // no vehicle stands there any more
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"B", "C"}));
}

TEST_F(Spojovani, PartOfARunningTrainIsNotSplitOff) {
    const int v = vlak_na(62, true, 77, {"754", "B"});
    vlak(v).prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0});
    info_o_vlaku({}, v);
    odvesit_klik(0);
    EXPECT_EQ(vlak(v).vozy.size(), 2u);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " ODVESIT ");
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::cervena);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::bila);
    EXPECT_EQ(relief.lblVolba[0].text(), " Nelze odvěsit část jedoucího vlaku!"_cz);
    ASSERT_EQ(svet.pipnuti.size(), 1u);
    EXPECT_EQ(svet.pipnuti[0], (VirtualniPlatforma::Pipnuti{100, 200}));
    simulace.zvuk_vypnut = true; // this refusal is silent then, the one of coupling is not
    odvesit_klik(0);
    EXPECT_EQ(svet.pipnuti.size(), 1u);
}

TEST_F(Spojovani, NothingComesOffOnALineOrAtItsEnd) {
    for (const int e : {84, 85, 117, 120, 123, 212, 213, 219, 602, 600, 36}) {
        pridej_kolej(e);
        const int v = vlak_na(e, true, 77, {"754", "B"});
        info_o_vlaku({}, v);
        odvesit_klik(0);
        EXPECT_EQ(vlak(v).vozy.size(), e == 600 || e == 36 ? 1u : 2u) << e;
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
    }
}

TEST_F(Spojovani, OldPicturesAreDrawnAnewAndNothingElseHappens) {
    const int v = vlak_na(62, true, 77, {"754", "B", "C"});
    info_o_vlaku({}, v);
    vlak(v).vozy.pop_back();
    odvesit_klik(0);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"754", "B"}));
    EXPECT_EQ(vozu_na_panelu(), 2);
    odvesit_klik(0);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), Vozy{"B"});
}

TEST_F(Spojovani, ClickOnAPictureOfATurnedSetTakesNothingElseOff) {
    const int v = vlak_na(62, true, 77, {"754", "B", "C"});
    info_o_vlaku({}, v);
    otoc_vlak(v);
    odvesit_klik(0); // on the picture of the locomotive, which runs at the end
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"C", "B", "754"}));
    EXPECT_EQ(relief.imgObrzaek_vlaku[0].popis(), "C");
    odvesit_klik(2);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (Vozy{"C", "B"}));
}

TEST_F(Spojovani, OpenTrainPageIsWhatTheTrainIsAfterEachStep) {
    const int v = vlak_na(62, true, 77, {"754", "B", "C"});
    info_o_vlaku({}, v);
    otoc_vlak(v);
    vlak(v).delka = 333;
    krok();
    EXPECT_EQ(relief.imgObrzaek_vlaku[0].popis(), "C");
    EXPECT_EQ(relief.imgObrzaek_vlaku[2].popis(), "754");
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), text_vlaku(v));
    EXPECT_NE(relief.lblIinfo_o_vlaku[0].text().find("333m"), Text::npos);
    vlak(v).vozy.pop_back();
    krok();
    EXPECT_FALSE(relief.imgObrzaek_vlaku[2].viditelny);
    prepni_panel(Panel::denik);
    otoc_vlak(v);
    krok();
    EXPECT_FALSE(relief.imgObrzaek_vlaku[0].viditelny); // another page stays open
    prepni_panel(Panel::vlak);
    EXPECT_EQ(relief.imgObrzaek_vlaku[0].popis(), vlak(v).vozy[0].rada);
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), text_vlaku(v));
}

TEST_F(Spojovani, TrainPageFollowsWhatHappensToItsTrain) {
    const int v = vlak_na(62, true, 77, {"754", "B", "C"});
    odvesit(v, 0, false);
    EXPECT_EQ(vlak_na_panelu(), -3); // the page was not open
    info_o_vlaku({}, v);
    odvesit(v, 0, false);
    EXPECT_EQ(vozu_na_panelu(), 1);
    prepni_panel(Panel::denik);
    const int w = vlak_na(63, true, 88, {"754", "B", "C"});
    odvesit(w, 0, true);
    EXPECT_EQ(vlak_na_panelu(), w);
    EXPECT_TRUE(info_ukazuje(w));
    prepni_panel(Panel::denik);
    zmena_posun(w, 63, true);
    EXPECT_FALSE(info_ukazuje(w));
    zmena_posun(w, 63, false);
    EXPECT_TRUE(info_ukazuje(w));
}

TEST_F(Spojovani, CoupledTrainIsShown) {
    const int a = vlak_na(62, true, 77, {"B", "C"});
    const int b = vlak_na(62, true, 88, {"754"});
    spoj(a, b);
    EXPECT_TRUE(info_ukazuje(a));
    EXPECT_EQ(vozu_na_panelu(), 3);
}

TEST_F(Spojovani, RouteOfTheTrainThatJoinedEndsThere) {
    const int v = vlak_na(63, true, 77, {"B", "C"});
    const int loko = vlak_na(63, true, 88, {"754"});
    cesta(radek(0));
    cesty[0].Vlak = static_cast<std::int16_t>(loko);
    cesty[0].Umazat = 3;
    spoj(v, loko);
    EXPECT_EQ(cesty[0].zacatek, -3); // its record may be used again at once
}

// --- the next train

TEST_F(Spojovani, FinishedSetTakesOnItsNextTrain) {
    simulace.minuty_simulace = 1440;
    gvd_vlaky = TabulkaGvd({radek_gvd(5678)});
    const int v = vlak_na(62, true, 77, {"843", "943"});
    nastav_urceni(vlak(v).vozy, {"5678", "5678"});
    vlak(v).cislo2 = 78;
    vlak(v).cislo2_platne = true;
    vlak(v).zpozdeni = 9;
    pridej_do_tabulky(v);
    navazny_vlak(v);
    EXPECT_EQ(vlak(v).cislo, 5678);
    EXPECT_EQ(zobrazene_cislo(vlak(v)), 5678);
    EXPECT_EQ(vlak(v).zpozdeni, 0);
    EXPECT_EQ(vlak(v).stanice_index, -1);
    EXPECT_EQ(sloupec(vlak(v).zastavky, &Zastavka::odjezd),
              (std::vector<std::int16_t>{1980, -1})); // of the second day
    EXPECT_EQ(vlak(v).pokyn, "3");
    EXPECT_EQ(radek_tabulky(78), -1);
    EXPECT_EQ(radek_tabulky(5678), 0);
    EXPECT_EQ(stitek(62), "5678");
    EXPECT_FALSE(vlak(v).muze_jet);
}

TEST_F(Spojovani, SetWithoutANextTrainStaysAsItIs) {
    gvd_vlaky = TabulkaGvd({radek_gvd(5678)});
    const auto zustane = [&](const Vozy& vozy, const Vozy& urceni) {
        const int v = vlak_na(62, true, 77, vozy);
        nastav_urceni(vlak(v).vozy, urceni);
        navazny_vlak(v);
        const bool stejny = vlak(v).cislo == 77 && rady_vozu(vlak(v).vozy) == vozy;
        uber_ze_vsech(v);
        zrus_vlak(v);
        return stejny;
    };
    EXPECT_TRUE(zustane({"843"}, {"ZAL"}));
    EXPECT_TRUE(zustane({"843"}, {"5679"})); // not in the timetable
    EXPECT_TRUE(zustane({"843", "943"}, {"77", "77"}));
    EXPECT_TRUE(zustane({"843", "943"}, {"77", ""}));
    EXPECT_TRUE(zustane({"754"}, {"5678"})); // a light engine
    EXPECT_FALSE(zustane({"843"}, {"5678"}));
}

TEST_F(Spojovani, SingleVehicleMarkedWithItsOwnNumberTakesItsTimetableAnew) {
    gvd_vlaky = TabulkaGvd({radek_gvd(5678)});
    const auto znovu = [&](const Vozy& vozy) {
        const int v = vlak_na(62, true, 5678, vozy);
        nastav_urceni(vlak(v).vozy, Vozy(vozy.size(), "5678"));
        vlak(v).stanice_index = 1;
        vlak(v).zpozdeni = 9;
        pridej_do_tabulky(v);
        navazny_vlak(v);
        const bool vzal = vlak(v).stanice_index == -1 && vlak(v).zpozdeni == 0 &&
                          sloupec(vlak(v).zastavky, &Zastavka::stanice) ==
                              sloupec(radek_gvd(5678).zastavky, &ZastavkaGvd::stanice);
        EXPECT_EQ(radek_tabulky(5678), 0);
        EXPECT_FALSE(!vzal && vlak(v).zpozdeni != 9);
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        return vzal;
    };
    EXPECT_TRUE(znovu({"843"}));
    EXPECT_FALSE(znovu({"843", "943"})); // they stay with their train
    EXPECT_FALSE(znovu({"754"}));        // a light engine
}

TEST_F(Spojovani, VehicleOfAnotherNextTrainComesOff) {
    gvd_vlaky = TabulkaGvd({radek_gvd(5678)});
    const int v = vlak_na(62, true, 77, {"843", "843"});
    nastav_urceni(vlak(v).vozy, {"77", "5678"});
    navazny_vlak(v);
    EXPECT_EQ(vlak(v).cislo, 77);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), Vozy{"843"});
    const auto dalsi =
        std::find_if(vlaky.begin(), vlaky.end(), [](const Vlak& x) { return x.cislo == 5678; });
    ASSERT_NE(dalsi, vlaky.end());
    EXPECT_EQ(rady_vozu(dalsi->vozy), Vozy{"843"});
    EXPECT_EQ(urceni_vozu(dalsi->vozy), Vozy{"5678"});
}

TEST_F(Spojovani, LocomotiveComesOffWhenTheNextTrainGoesBack) {
    const auto objede = [&](std::uint8_t druha, bool smer, const Vozy& vozy) {
        GvdVlak g = radek_gvd(5678);
        zmen_stanice(g.zastavky, {9, druha});
        gvd_vlaky = TabulkaGvd({g});
        const int v = vlak_na(62, smer, 77, vozy);
        nastav_urceni(vlak(v).vozy, Vozy(vozy.size(), "5678"));
        navazny_vlak(v);
        EXPECT_EQ(vlak(v).cislo, 5678);
        const bool odvesena = vlak(v).vozy.size() < vozy.size();
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        return odvesena;
    };
    for (const int druha : {8, 11, 5}) {
        EXPECT_TRUE(objede(static_cast<std::uint8_t>(druha), true, {"754", "B"})) << druha;
        EXPECT_FALSE(objede(static_cast<std::uint8_t>(druha), false, {"754", "B"})) << druha;
        EXPECT_FALSE(objede(static_cast<std::uint8_t>(druha), true, {"754", "943"}))
            << druha; // driving trailer
        EXPECT_FALSE(objede(static_cast<std::uint8_t>(druha), true, {"B", "754"})) << druha;
    }
    EXPECT_TRUE(objede(7, false, {"754", "943"}));
    EXPECT_FALSE(objede(7, true, {"754", "B"}));
    EXPECT_FALSE(objede(2, true, {"754", "B"}));
}

TEST_F(Spojovani, TimesFarBehindThePresentBelongToTomorrow) {
    EXPECT_EQ(korekce(0), 0);
    EXPECT_EQ(korekce(-3), 0);
    EXPECT_EQ(korekce(480), 0);
    EXPECT_EQ(korekce(320), 0); // 480 / 320 = 1.5
    EXPECT_EQ(korekce(319), 1440);
    simulace.minuty_simulace = 1440;
    EXPECT_EQ(korekce(480), 1440);
    EXPECT_EQ(korekce(319), 2880);
}

// --- train and shunt

TEST_F(Spojovani, TrainBecomesAShuntAndItsNumberGoesFromTheLabel) {
    const int v = vlak_na(62, true, 77);
    zmena_posun(v, 62, false);
    EXPECT_TRUE(vlak(v).posun);
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(stitek(62), "");
    zmena_posun(v, 62, false);
    EXPECT_FALSE(vlak(v).posun);
    EXPECT_EQ(stitek(62), "77");
    EXPECT_EQ(radek_tabulky(77), 0);
}

TEST_F(Spojovani, RowOfATrainThatBecameAShuntFlashesNoMore) {
    const int v = vlak_na(62, true, 77);
    pridej_do_tabulky(v);
    blikej_v_tabulce(77, true); // its last minute
    zmena_posun(v, 62, false);
    EXPECT_EQ(radek_tabulky(77), 0);
    EXPECT_FALSE(blikani.blikani_radku[0]);
}

TEST_F(Spojovani, LightEngineGetsANumberAndATimetableOfItsOwn) {
    const int v = vlak_na(62, true, 77, {"754"});
    vlak(v).posun = true;
    nastav_urceni(vlak(v).vozy, {"DKV"});
    zmena_posun(v, 62, false);
    EXPECT_GE(vlak(v).cislo, 70000);
    EXPECT_LT(vlak(v).cislo, 80000);
    EXPECT_EQ(vlak(v).druh, 16);
    EXPECT_EQ(sloupec(vlak(v).zastavky, &Zastavka::stanice), (std::vector<std::uint8_t>{2, 28}));
    EXPECT_EQ(sloupec(vlak(v).zastavky, &Zastavka::odjezd_realny), (std::vector<std::int16_t>{482, -3}));
    EXPECT_FALSE(vlak(v).muze_jet);
    const std::int32_t cislo = vlak(v).cislo;
    zmena_posun(v, 62, false);
    EXPECT_EQ(radek_tabulky(cislo), -1); // a made-up number goes from the table
}

TEST_F(Spojovani, LightEngineGoesWhereItsNextWorkIs) {
    const auto kam = [&](int kolej, TextPohled urceni) {
        const int v = vlak_na(kolej, true, 77, {"754"});
        vlak(v).posun = true;
        nastav_urceni(vlak(v).vozy, {Text(urceni)});
        vlak_na_posun_cislo(v);
        const std::vector<std::uint8_t> stanice = sloupec(vlak(v).zastavky, &Zastavka::stanice);
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        return stanice;
    };
    pridej_kolej(50);
    using Stanice = std::vector<std::uint8_t>;
    EXPECT_EQ(kam(32, "DKV"), (Stanice{9, 28}));
    EXPECT_EQ(kam(32, "Vh"), (Stanice{9, 34}));
    EXPECT_EQ(kam(32, "bor"), (Stanice{9, 2}));
    EXPECT_EQ(kam(32, "5678"), (Stanice{9, 12}));
    EXPECT_EQ(kam(50, ""), (Stanice{12, 9}));
    // nor does it matter whether trains stop on its track
    for (const int kolej : {76, 77, 97})
        pridej_kolej(kolej);
    EXPECT_EQ(kam(76, ""), (Stanice{12, 9}));
    EXPECT_EQ(kam(77, "vh"), (Stanice{12, 34}));
    EXPECT_EQ(kam(97, ""), (Stanice{8, 12}));
}

TEST_F(Spojovani, LightEngineHasAQuarterOfAnHour) {
    const int v = vlak_na(32, true, 77, {"754"});
    vlak(v).cislo2 = 5;
    vlak(v).pokyn = "3";
    vlak_na_posun_cislo(v);
    EXPECT_EQ(sloupec(vlak(v).zastavky, &Zastavka::prijezd), (std::vector<std::int16_t>{480, 495}));
    EXPECT_EQ(sloupec(vlak(v).zastavky, &Zastavka::odjezd), (std::vector<std::int16_t>{482, -3}));
    EXPECT_EQ(vlak(v).cislo2, 0);
    EXPECT_EQ(vlak(v).max_rychlost, 80);
    EXPECT_EQ(vlak(v).pokyn, "");
    EXPECT_EQ(vlak(v).stanice_index, 0);
    EXPECT_EQ(radek_tabulky(vlak(v).cislo), 0);
}

TEST_F(Spojovani, SetFromTheYardOrTheDepotHasServedItsFirstStop) {
    for (const int odkud : {17, 18, 33, 34, 9}) {
        const int v = vlak_na(32, true, 77, {"754", "B"});
        vlak(v).posun = true;
        zastavky(v, {static_cast<std::uint8_t>(odkud), 9, 2}, {-3, 470, 500}, {460, 490, -3});
        zmena_posun(v, 32, true);
        EXPECT_EQ(vlak(v).stanice_index, odkud == 9 ? -1 : 1) << odkud;
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
    }
}

TEST_F(Spojovani, NumberRunsAheadOverTheRouteOfATrainOnly) {
    const int v = vlak_na(62, true, 77);
    postup_cisla(cesta(radek(1)));
    ASSERT_EQ(stitek(64), "77");
    zmena_posun(v, 62, false);
    EXPECT_NE(stitek(64), "77");
    zmena_posun(v, 62, false);
    EXPECT_EQ(stitek(64), "77");
}

TEST_F(Spojovani, ChangeIsRefusedOffTheStationTracks) {
    const int v = vlak_na(62, true, 77);
    vlak(v).prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0});
    zmena_posun(v, 62, false);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " ZMENA ");
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::cervena);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::bila);
    EXPECT_EQ(relief.lblVolba[0].text(), " Na kolejiK62 není změna možná!"_cz);
    EXPECT_FALSE(vlak(v).posun);
    skryj_prikaz();
    const int w = vlak_na(340, true, 88);
    vlak(w).posun = true;
    zmena_posun(w, 340, false);
    EXPECT_EQ(relief.lblVolba[0].text(), " Na koleji  není změna možná!"_cz);
    EXPECT_TRUE(vlak(w).posun);
    skryj_prikaz();
    pridej_kolej(503);
    const int x = vlak_na(503, true, 99);
    vlak(x).posun = true;
    zmena_posun(x, 503, false);
    EXPECT_EQ(relief.lblVolba[0].text(), " Na koleji K503není změna možná!"_cz);
    EXPECT_TRUE(vlak(x).posun);
}
