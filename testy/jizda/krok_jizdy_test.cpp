// testy/jizda/krok_jizdy_test.cpp - the movement step and whole journeys over the little junction.
#include "cesty/prehoz_rukou.h"
#include "cesty/prekazky.h"
#include "desk/hlaseni.h"
#include "jizda/poslusnost.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/volnost.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"

#include <algorithm>

namespace {

class Jizda : public SVlaky {};

} // namespace

TEST_F(Jizda, StandingTrainGathersSpeedFirstAndMovesInTheNextStep) {
    const int v = vlak_na(62, true, 11);
    cesta(radek(0));
    krok();
    EXPECT_EQ(metry(62), 0);
    EXPECT_EQ(vlak(v).rychlost, 3);
    krok(2000);
    EXPECT_EQ(metry(62), 1); // Int(3 * 2000 / 3600) = 1
}

TEST_F(Jizda, StepIsCutToWholeMetresBeforeTheFactors) {
    const int v = vlak_na(62, true, 11);
    cesta(radek(0));
    vlak(v).rychlost = 30;
    krok(100);
    EXPECT_EQ(metry(62), 0);
    vlak(v).rychlost = 50;
    krok(100);
    EXPECT_EQ(metry(62), 1);
    simulace.rychlost = 4;
    vlak(v).rychlost = 100;
    krok(1000);
    EXPECT_EQ(metry(62), 106); // Int(27.7) * 4 * 0.97 = 104.76
}

TEST_F(Jizda, TrainWithoutARouteOrALocomotiveStands) {
    const int v = vlak_na(62, true, 11);
    vlak(v).rychlost = 50;
    krok();
    EXPECT_EQ(metry(62), 0);
    cesta(radek(0));
    vlak(v).vozy = vozy_vlaku({"943", "B"});
    krok();
    EXPECT_EQ(metry(62), 0);
    vlak(v).vozy = vozy_vlaku({"943", "754"});
    krok();
    EXPECT_GT(metry(62), 0);
}

TEST_F(Jizda, LastNineMetresOfASectionAreNeverRun) {
    const int v = vlak_na(62, true, 11);
    cesta(radek(0));
    vlak(v).rychlost = 50;
    nastav_metry(62, 390); // of 400
    krok(100);
    EXPECT_EQ(metry(62), 391);
    EXPECT_EQ(vlak(v).prvky.size(), 1u);
    vlak(v).rychlost = 50;
    krok(100);
    EXPECT_EQ(metry(62), 400);
    EXPECT_EQ(cisla_prvku(vlak(v).prvky), (std::vector<std::int16_t>{62, 440}));
}

TEST_F(Jizda, WholeJourneyFromTheSignalOverTheSwitchToTheTrack) {
    const int v = vlak_na(62, true, 1234);
    nastav_metry(62, 60);
    cesta(radek(0));
    krok();
    EXPECT_EQ(cesty[0].Vlak, v);
    EXPECT_EQ(relief.navestidlo[262].barva, barvy::zelena);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 440; }));
    EXPECT_EQ(relief.navestidlo[262].barva, barvy::seda);
    EXPECT_EQ(relief.kolej[440].barva, barvy::cervena);
    EXPECT_EQ(cesty[0].Umazat, 1);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 7; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 152);
    // The tail leaves 62: cyan and free, its number gone.
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvek_konec > 0; }));
    EXPECT_EQ(relief.kolej[62].barva, barvy::azurova);
    EXPECT_TRUE(odjete.test(62));
    EXPECT_EQ(metry(62), 0);
    EXPECT_NE(stitek(62), "1234");
    ASSERT_FALSE(relief.lstDenik.radky.empty());
    EXPECT_EQ(relief.lstDenik.radky.back(), "Vlak 1234 odjel z Borovce v 8:00"_cz);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 63; }));
    EXPECT_EQ(stitek(63), "1234");
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvek_konec == 3; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 2);
    EXPECT_EQ(relief.kolej[440].barva, barvy::seda);
    EXPECT_TRUE(vlak(v).omezeni_ukonceno);
    // The end of the route: no stop, no exit for this sense; the route goes.
    vlak(v).smer = false;
    ASSERT_TRUE(jed_dokud([&] { return cesty[0].zacatek < 0; }));
    EXPECT_EQ(metry(63), 600);
    EXPECT_EQ(vlak(v).rychlost, 0);
}

TEST_F(Jizda, TrainThatReachesTheExitLeavesTheArea) {
    const int v = vlak_na(62, true, 1234);
    pridej_do_tabulky(v);
    zastavky(v, {2}, {-3}, {-3});
    vlak(v).stanice_index = 0;
    prevezmi_hlaseni({Text("Zpoždění vlaku 1234 +5´"_cz), Text("Zpoždění vlaku 12345 +5´"_cz)});
    cesta(radek(0));
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).cislo < 0; }));
    krok();
    EXPECT_EQ(relief.kolej[63].barva, barvy::seda);
    EXPECT_EQ(metry(63), 0);
    EXPECT_FALSE(vlak_na_koleji(63));
    EXPECT_NE(stitek(63), "1234");
    EXPECT_EQ(radek_tabulky(1234), -1);
    EXPECT_EQ(relief.lstZpravy.radky.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_FALSE(prikaz_radek.obsazen); // Borovec is where it was going
}

TEST_F(Jizda, SelectedDelayStaysOnItsTrainWhenALineAboveGoes) {
    const int v = vlak_na(62, true, 1234);
    zastavky(v, {2}, {-3}, {-3});
    vlak(v).stanice_index = 0;
    const Text vybrany("Zpoždění vlaku 12345 +5´"_cz);
    prevezmi_hlaseni({Text("Zpoždění vlaku 77 +5´"_cz), Text("Zpoždění vlaku 1234 +5´"_cz), vybrany,
                      Text("Zpoždění vlaku 99 +5´"_cz)});
    relief.lstZpravy.vybrany = 2;
    cesta(radek(0));
    ASSERT_TRUE(jed_dokud([&] { return relief.lstZpravy.radky.size() == 3; }));
    ASSERT_GE(relief.lstZpravy.vybrany, 0);
    EXPECT_EQ(relief.lstZpravy.radky[static_cast<std::size_t>(relief.lstZpravy.vybrany)], vybrany);
}

TEST_F(Jizda, WrongExitIsToldButVrbiceAndDubniceAreOneDirection) {
    const int v = vlak_na(62, true, 1234);
    zastavky(v, {2, 6}, {-3, 500}, {480, -3});
    vlak_opustil(v, 2);
    EXPECT_EQ(relief.lblVolba[0].text(), " Vlak 1234 odjel nesprávným směrem (BOR) !"_cz);
    skryj_prikaz();
    const int w = vlak_na(63, true, 55);
    zastavky(w, {9, 5}, {-3, 500}, {480, -3});
    vlak_opustil(w, 4);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(relief.kolej[63].barva, barvy::seda);
}

TEST_F(Jizda, OccupiedTrackStopsATrainBeforeIt) {
    pridej_kolej(441, false);
    const int v = vlak_na(62, true, 11);
    cesta({262, 441, {62, 440, 441}, {1, 1, 1}, {0, 0, 0}, 0});
    barvi_prvek(440, barvy::cervena);
    ASSERT_TRUE(jed_dokud([&] { return cesty[0].Umazat == 1; }));
    for (int i = 0; i < 5; ++i)
        krok();
    EXPECT_EQ(vlak(v).prvky.size(), 1u);
    EXPECT_EQ(cesty.size(), 1u); // the start work is done once
    barvi_prvek(440, barvy::seda);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 440; }));
}

TEST_F(Jizda, CallingOnRouteLeadsOntoAnOccupiedTrackAndStays) {
    pridej_kolej(12);
    vlak_na(12, true, 22);
    nastav_metry(12, 30);
    const int v = vlak_na(62, true, 11);
    const int c = cesta({262, 12, {62, 440, 7, 12}, {1, 1, 2, 1}, {0, 0, 2, 0}, 0});
    cesty[static_cast<std::size_t>(c)].PN = true;
    cesty[static_cast<std::size_t>(c)].PN_do = ted_s() + 1000;
    relief.imgVyhybka[7].stav = "102"_cz;
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 12; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 102);
    EXPECT_EQ(metry(12), 30); // it is at the place of the one that stands there
    EXPECT_EQ(vlak(v).rychlost_cesty, 30);
    EXPECT_EQ(relief.navestidlo[262].barva, barvy::zelena); // a calling-on route leaves its signal alone
    ASSERT_TRUE(jed_dokud([&] { return metry(12) == 60; }));
    for (int i = 0; i < 10; ++i)
        krok();
    EXPECT_EQ(cesty[0].zacatek, 262); // until its locking is released
    EXPECT_EQ(vlak(v).rychlost, 0);
    cesty[0].PN_zaver = true;
    krok();
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Jizda, LockingOfACallingOnRouteGoesWithTheTrainThatLeavesTheJunction) {
    for (const int ridici : {-1, 7}) {
        cesty = std::vector<Cesta>(1);
        vlaky = prvni_vlaky();
        const int c = cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
        Cesta& pn = cesty[static_cast<std::size_t>(c)];
        pn.PN = true;
        pn.Umazat = 3;
        pn.Vlak = 5; // the record of a train that is no more
        vyhybka_stav(7, 2 + stav_vyhybky::rezervace, false, false);
        if (ridici == 7) { // somebody else stands on the switch
            const int v = vlak_na(440, true, 77);
            vlak(v).prvky.push_back({7, druh_prvku::vyhybka, 2});
            vlak(v).muze_jet = false;
        }
        krok();
        EXPECT_LT(cesty.front().zacatek, 0);
        EXPECT_EQ(stav_vyhybky_cislo(7), ridici == 7 ? 152 : 2);
    }
}

TEST_F(Jizda, RouteThatLosesItsTrainGivesBackWhatLiesBeforeItsHead) {
    for (const bool vlakova : {true, false}) {
        cesty = std::vector<Cesta>(1);
        const int c = cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0}, vlakova);
        Cesta& osirela = cesty[static_cast<std::size_t>(c)];
        osirela.Umazat = 1;
        osirela.Vlak = 5; // coupled to another train on 440
        barvi_prvek(440, barvy::cervena);
        vyhybka_stav(7, 2 + (vlakova ? stav_vyhybky::vlak : stav_vyhybky::posun), false, false);
        barvi_prvek(63, vlakova ? barvy::zelena : barvy::bila);
        krok();
        EXPECT_LT(cesty.front().zacatek, 0);
        EXPECT_EQ(relief.kolej[440].barva, barvy::cervena) << "the other train stands there";
        EXPECT_EQ(stav_vyhybky_cislo(7), 2);
        EXPECT_EQ(relief.kolej[63].barva, barvy::seda);
    }
}

TEST_F(Jizda, SwitchThatAnotherRouteHasLockedSinceStaysWhenItsCallingOnRouteGoes) {
    const int c = cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
    Cesta& pn = cesty[static_cast<std::size_t>(c)];
    pn.PN = pn.PN_zaver = true; // released by RNZ
    pn.Umazat = 3;
    pn.Vlak = 5;
    vyhybka_stav(7, 2 + stav_vyhybky::rezervace, false, false);
    krok();
    EXPECT_LT(cesty.front().zacatek, 0);
    EXPECT_EQ(stav_vyhybky_cislo(7), 2 + stav_vyhybky::rezervace);
}

TEST_F(Jizda, CallingOnAspectThatIsOverIsNotEntered) {
    const int v = vlak_na(62, true, 11);
    const int c = cesta(radek(0));
    cesty[static_cast<std::size_t>(c)].PN = true;
    cesty[static_cast<std::size_t>(c)].PN_do = ted_s() - 1;
    for (int i = 0; i < 10; ++i)
        krok();
    EXPECT_EQ(metry(62), 0);
    EXPECT_EQ(vlak(v).rychlost, 0);
}

TEST_F(Jizda, RouteThatGoesInAStepHidesNoLaterRouteFromTheTrainsBehindIt) {
    pridej_kolej(90, false);
    pridej_kolej(91, false);
    const int v1 = vlak_na(91, true, 11), v2 = vlak_na(62, true, 12);
    RadekCesty dojeta = radek(0);
    dojeta.konec = 91;
    dojeta.prvky = {90, 91};
    dojeta.druhy = {druh_prvku::kolej, druh_prvku::kolej};
    dojeta.polohy = {0, 0};
    cesta(dojeta);
    cesty[0].Umazat = 1;
    cesty[0].Vlak = static_cast<std::int16_t>(v1);
    nastav_metry(91, delka_koleje(91));
    cesta(radek(0));
    vlak(v2).rychlost = 50;
    krok();
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, radek(0).zacatek);
    EXPECT_EQ(cesty[0].Vlak, v2);
    EXPECT_GT(metry(62), 0);
}

TEST_F(Jizda, RouteWhoseElementsHaveChangedBetweenTwoStepsIsFoundByTheNewOnes) {
    pridej_kolej(90, false);
    const int v = vlak_na(62, true, 11);
    RadekCesty jinudy = radek(0);
    jinudy.prvky.front() = 90;
    cesta(jinudy);
    krok();
    EXPECT_NE(cesty[0].Vlak, v);
    cesty[0].prvky.front().prvek = radek(0).prvky.front();
    krok();
    EXPECT_EQ(cesty[0].Vlak, v);
}

TEST_F(Jizda, OfTwoRoutesFromATrackTheFirstThatMayBeEnteredIsTaken) {
    const int v = vlak_na(62, true, 11);
    cesta(radek(0));
    cesta(radek(0));
    cesta(radek(0));
    cesty[0].cas_ruseni = 5;
    krok();
    EXPECT_NE(cesty[0].Vlak, v);
    EXPECT_EQ(cesty[1].Vlak, v);
    EXPECT_NE(cesty[2].Vlak, v);
}

TEST_F(Jizda, CancelledRouteIsNotEntered) {
    vlak_na(62, true, 11);
    const int c = cesta(radek(0));
    cesty[static_cast<std::size_t>(c)].cas_ruseni = ted_s() + 180;
    for (int i = 0; i < 10; ++i)
        krok();
    EXPECT_EQ(metry(62), 0);
    EXPECT_EQ(cesty[0].Vlak, -3); // and a route without a train is not removed
}

TEST_F(Jizda, TrainsTakeTrainRoutesAndShuntsShuntRoutes) {
    const int v = vlak_na(62, true, 11);
    vlak(v).posun = true;
    cesta(radek(0));
    krok();
    krok();
    EXPECT_EQ(cesty[0].Vlak, -3);
    cesta(radek(0), false);
    krok();
    EXPECT_EQ(cesty[1].Vlak, v);
    EXPECT_EQ(vlak(v).rychlost_cesty, 30);
}

TEST_F(Jizda, WaitingTrainKeepsItsTail) {
    const int v = vlak_na(63, true, 11);
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({62, 440, 7, 63}, {1, 1, 2, 1}, {0, 0, 2, 0});
    for (const int e : {62, 440})
        barvi_prvek(e, barvy::cervena);
    nastav_metry(62, 400);
    nastav_metry(440, 80);
    nastav_metry(63, 500);
    t.muze_jet = false;
    krok();
    EXPECT_EQ(t.prvek_konec, 0);
    t.muze_jet = true;
    krok();
    EXPECT_EQ(t.prvek_konec, 3);
}

TEST_F(Jizda, SwitchesCountTwentyMetresOfATrain) {
    const int v = vlak_na(63, true, 11);
    Vlak& t = vlak(v);
    t.delka = 200;
    t.prvky = prvky_cesty({440, 7, 63}, {1, 2, 1}, {0, 2, 0});
    barvi_prvek(440, barvy::cervena);
    nastav_metry(440, 80);
    nastav_metry(63, 179); // 80 + 20 + 179 - 80 < 200
    krok();
    EXPECT_EQ(t.prvek_konec, 0);
    nastav_metry(63, 180);
    krok();
    EXPECT_EQ(t.prvek_konec, 1);
    nastav_metry(63, 200);
    krok();
    EXPECT_EQ(t.prvek_konec, 2);
}

TEST_F(Jizda, DerailerIsReleasedTwentyMetresLater) {
    const int v = vlak_na(63, true, 11);
    Vlak& t = vlak(v);
    t.delka = 100;
    t.prvky = prvky_cesty({0, 440, 63}, {4, 1, 1}, {0, 0, 0});
    relief.lblVykolejka[0].barva = barvy::cervena;
    barvi_prvek(440, barvy::cervena);
    nastav_metry(440, 0);
    nastav_metry(63, 119);
    krok();
    EXPECT_EQ(t.prvek_konec, 0);
    nastav_metry(63, 120);
    krok();
    EXPECT_EQ(t.prvek_konec, 1);
    EXPECT_EQ(relief.lblVykolejka[0].barva, barvy::seda);
}

TEST_F(Jizda, TailThatLeavesASecondTrainBehindKeepsTheTrackRed) {
    const int v = vlak_na(62, true, 11);
    const int druhy = vlak_na(62, true, 22);
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({62, 440}, {1, 1}, {0, 0});
    barvi_prvek(440, barvy::cervena);
    nastav_metry(62, 400);
    nastav_metry(440, 70);
    krok();
    EXPECT_EQ(t.prvek_konec, 1);
    EXPECT_EQ(metry(62), 150);
    EXPECT_EQ(relief.kolej[62].barva, barvy::cervena);
    EXPECT_EQ(stitek(62), "22");
    EXPECT_EQ(vlak(druhy).prvky.back().prvek, 62);
}

// ZKRATIT has left it in the list of the track behind it, where nothing of it stands.
TEST_F(Jizda, TailThatLeavesATrackOfAShortenedTrainFreesIt) {
    const int zkraceny = vlak_na(62, true, 22);
    vlak(zkraceny).prvky = prvky_cesty({62, 640}, {1, 1}, {0, 0});
    barvi_prvek(640, barvy::cervena);
    const int v = vlak_na(62, true, 11);
    zkrat_vlak(zkraceny);
    ASSERT_EQ(relief.kolej[62].barva, barvy::cervena) << "the other one stands there";
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({62, 440}, {1, 1}, {0, 0});
    barvi_prvek(440, barvy::cervena);
    nastav_metry(62, 400);
    nastav_metry(440, 70);
    krok();
    ASSERT_EQ(t.prvek_konec, 1);
    EXPECT_TRUE(je_volna(62));
    EXPECT_EQ(metry(62), 0);
}

// A shunt longer than the track on which it has turned back comes over the track and the switch behind it
// again.
TEST_F(Jizda, TailLeavesNothingFreeUnderItsOwnHead) {
    const int v = vlak_na(440, true, 11);
    Vlak& t = vlak(v);
    t.prvky = prvky_cesty({440, 7, 63, 7, 440}, {1, 2, 1, 2, 1}, {0, 2, 0, 2, 0});
    barvi_prvek(63, barvy::cervena);
    vyhybka_stav(7, 152, false, false);
    nastav_metry(63, 600);
    nastav_metry(440, 60);
    t.delka = 500;
    krok();
    ASSERT_GE(t.prvek_konec, 2);
    EXPECT_EQ(relief.kolej[440].barva, barvy::cervena);
    EXPECT_EQ(stav_vyhybky_cislo(7), 152);
}

TEST_F(Jizda, SwitchThatAnotherRouteHasLockedIsNotFreedBehindTheTail) {
    for (const bool zavrena : {false, true}) {
        vlaky = prvni_vlaky();
        const int v = vlak_na(63, true, 11);
        Vlak& t = vlak(v);
        t.prvky = prvky_cesty({7, 63}, {2, 1}, {2, 0});
        nastav_metry(63, 70);
        cesty = std::vector<Cesta>(1);
        if (zavrena)
            cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0}, false);
        vyhybka_stav(7, 202, false, false); // released by RNZ under the train, and locked anew
        krok();
        EXPECT_EQ(t.prvek_konec, 1);
        EXPECT_EQ(stav_vyhybky_cislo(7), zavrena ? 202 : 2);
    }
}

// NOUZ has taken the switch from the route of the waiting train; the record goes on naming it.
TEST_F(Jizda, SwitchIsFreeBehindATrainThoughARouteThatHasLostItNamesIt) {
    const int ztracena = cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
    vyhybka_nouz(7);
    ASSERT_FALSE(cesty[static_cast<std::size_t>(ztracena)].Postavena);
    const int v = vlak_na(64, false, 11);
    cesta({64, 340, {64, 7, 340}, {1, 2, 1}, {0, 3, 0}, 0});
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 340 && vlak(v).prvek_konec == 2; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 3);
}

TEST_F(Jizda, TrainRunsOnOverASwitchThatNouzHasTakenFromItsRoute) {
    const int v = vlak_na(62, true, 11);
    cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 440; }));
    vyhybka_nouz(7);
    EXPECT_EQ(stav_vyhybky_cislo(7), 3);
    Cesta jina;
    jina.zacatek = 64;
    jina.konec = 340;
    jina.prvky = prvky_cesty({64, 7, 340}, {1, 2, 1}, {0, 3, 0});
    jina.VC = true;
    EXPECT_EQ(prekazka_staveni(jina).druh, DruhPrekazky::pred_vlakem);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 7; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 152);
    EXPECT_EQ(prekazka_staveni(jina).druh, DruhPrekazky::vyhybka);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvek_konec == 3; }));
    EXPECT_EQ(stav_vyhybky_cislo(7), 2);
    EXPECT_EQ(prekazka_staveni(jina).druh, DruhPrekazky::zadna);
}

// A train that had turned back comes on over its old route: another one was cleared there meanwhile.
TEST_F(Jizda, TrainThatRunsOverASwitchOfAnotherRoutePutsItsSignalToStop) {
    const int v = vlak_na(62, true, 11);
    cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 440; }));
    vyhybka_nouz(7);
    const int c = cesta({64, 340, {64, 7, 340}, {1, 2, 1}, {0, 3, 0}, 0});
    ASSERT_EQ(relief.navestidlo[64].barva, barvy::zelena);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 7; }));
    EXPECT_EQ(relief.navestidlo[64].barva, barvy::seda);
    EXPECT_FALSE(cesty[static_cast<std::size_t>(c)].Postavena);
    EXPECT_EQ(stav_vyhybky_cislo(7), 152);
}

TEST_F(Jizda, SwitchStopsUnderTheTrainThatComesToItOnSight) {
    const int v = vlak_na(62, true, 11);
    const int c = cesta({262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0});
    Cesta& pn = cesty[static_cast<std::size_t>(c)];
    pn.PN = true;
    pn.PN_do = ted_s() + 30;
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 440; }));
    pn.PN_zaver = true; // RNZ under the train
    vyhybka_stav(7, 2, false, false);
    hod_vyhybku(7, PovelVyhybky::plus);
    ASSERT_TRUE(vyhybka_v_pohybu(7));
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 7; }));
    EXPECT_FALSE(vyhybka_v_pohybu(7));
    EXPECT_EQ(stav_vyhybky_cislo(7), 3);
}

TEST_F(Jizda, PieceOfSwitch14StaysOccupiedUnderATrainThatHasLeftTheSwitch) {
    pridej_kolej(4, false);
    relief.imgVyhybka.zaloz(14).stav = "158"_cz;
    const int v = vlak_na(4, true, 11);
    vyhybka_stav(14, 8, false, false);
    EXPECT_EQ(relief.kolej[4].barva, barvy::cervena);
    vlak(v).cislo = kZadny;
    vyhybka_stav(14, 8, false, false);
    EXPECT_EQ(relief.kolej[4].barva, barvy::seda);
}

TEST_F(Jizda, HeadIsNeverReleased) {
    const int v = vlak_na(440, true, 11);
    nastav_metry(440, 150); // more than its 80 m
    krok();
    EXPECT_EQ(vlak(v).prvek_konec, 0);
    EXPECT_EQ(relief.kolej[440].barva, barvy::cervena);
}

TEST_F(Jizda, RouteOfATrainThatIsGoneIsRemoved) {
    cesta(radek(0));
    cesta(radek(1));
    cesta(radek(2));
    cesty[0].Vlak = 5; // a free record
    cesty[1].Vlak = kKOdstraneni;
    krok();
    ASSERT_EQ(cesty.size(), 2u); // the one that moved down waits for the next step
    EXPECT_EQ(cesty[0].Vlak, kKOdstraneni);
    krok();
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, 63);
}

// Nobody could give RNZ for it any more: the record that the menu asks for is gone.
TEST_F(Jizda, CallingOnRouteOfATrainThatIsGoneFreesItsSwitches) {
    cesta(radek(0));
    cesty[0].PN = true;
    cesty[0].PN_do = ted_s() + 20;
    cesty[0].Umazat = 2;
    cesty[0].Vlak = 5; // a free record
    relief.navestidlo[262].barva = barvy::bila;
    relief.imgVyhybka[7].stav = "102"_cz;
    krok();
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stav_vyhybky_cislo(7), 2);
    EXPECT_EQ(relief.navestidlo[262].barva, barvy::seda);
}

// After RNZ its switches may serve another route already.
TEST_F(Jizda, ReleasedCallingOnRouteOfATrainThatIsGoneTouchesNoSwitch) {
    cesta(radek(0));
    cesty[0].PN = cesty[0].PN_zaver = true;
    cesty[0].Umazat = 2;
    cesty[0].Vlak = 5;
    relief.imgVyhybka[7].stav = "52"_cz;
    krok();
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stav_vyhybky_cislo(7), 52);
}

TEST_F(Jizda, RouteThatItsTrainHasRunIsTakenByNobodyElse) {
    pridej_kolej(90, false);
    const int v1 = vlak_na(62, true, 11), v2 = vlak_na(90, true, 12);
    cesta(radek(0)); // the way on of the first train, from the end of the route it has run
    RadekCesty dojeta = radek(0);
    dojeta.konec = 62;
    dojeta.prvky = {90, 62};
    dojeta.druhy = {druh_prvku::kolej, druh_prvku::kolej};
    dojeta.polohy = {0, 0};
    cesta(dojeta);
    cesty[1].Umazat = 1;
    cesty[1].Vlak = static_cast<std::int16_t>(v1);
    vlak(v2).rychlost = 50;
    krok();
    ASSERT_EQ(cesty.size(), 1u); // the locking under it is gone: it goes with the step
    EXPECT_EQ(cesty[0].Vlak, v1);
    krok();
    EXPECT_EQ(metry(90), 0);
    EXPECT_EQ(vlak(v2).prvky.size(), 1u);
}

TEST_F(Jizda, TrainThatRunsAcrossTheBeginningOfAnotherTrainsRouteIsNotTurnedByIt) {
    const int stojici = vlak_na(63, true, 11), jedouci = vlak_na(62, false, 12, {"943", "843"});
    cesta(radek(0)); // to the right, run by the first train, which stands at its end
    cesty[0].Umazat = static_cast<std::uint8_t>(cesty[0].prvky.size() - 1);
    cesty[0].Vlak = static_cast<std::int16_t>(stojici);
    krok();
    EXPECT_FALSE(vlak(jedouci).smer);
    EXPECT_EQ(rady_vozu(vlak(jedouci).vozy), (std::vector<Text>{"943", "843"}));
}

TEST_F(Jizda, RouteThatNoTrainHasTakenStays) {
    cesta(radek(0));
    cesta(radek(1));
    cesty[0].Umazat = static_cast<std::uint8_t>(cesty[0].prvky.size() - 1);
    for (int i = 0; i < 5; ++i)
        krok();
    EXPECT_EQ(cesty.size(), 2u);
}

TEST_F(Jizda, RouteWithoutAFinalTrackEndsTheProgram) {
    const int v = vlak_na(62, true, 11);
    cesta({262, 7, {62, 7}, {1, 2}, {0, 2}, 0});
    nastav_metry(62, 400);
    vlak(v).rychlost = 50;
    krok();
    ASSERT_EQ(vlak(v).prvky.back().prvek, 7);
    EXPECT_THROW(krok(), KonecProgramu);
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text, "Chyba: cesta bez koncového úseku"_cz);
    EXPECT_EQ(svet.konec, 1);
}

TEST_F(Jizda, NothingMovesInAPause) {
    const int v = vlak_na(62, true, 11);
    cesta(radek(0));
    vlak(v).rychlost = 50;
    zastav_hodiny();
    krok(60'000);
    EXPECT_EQ(metry(62), 0);
    spust_hodiny();
    krok(100);
    EXPECT_EQ(metry(62), 1); // the pause costs nothing
}

// --- crossings

TEST_F(Jizda, ShuntOverACrossingLowersItsCounterAgain) {
    pridej_kolej(100, false);
    const int v = vlak_na(62, true, 11);
    vlak(v).posun = true;
    const int c = cesta({262, 63, {62, 100, 63}, {1, 1, 1}, {0, 0, 0}, 0}, false);
    cesty[static_cast<std::size_t>(c)].prejezd = 0;
    stanicni_prejezdy[0].uzavren = true;
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvky.back().prvek == 100; }));
    EXPECT_EQ(stanicni_prejezdy[0].pocet, 129);
    EXPECT_FALSE(stanicni_prejezdy[0].uzavren);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).prvek_konec == 2; }));
    EXPECT_EQ(stanicni_prejezdy[0].pocet, 128);
}

TEST_F(Jizda, ApproachClosesTheCrossingOfTheNextRoute) {
    pridej_kolej(12);
    const int v = vlak_na(62, true, 11);
    cesta({262, 12, {62, 12}, {1, 1}, {0, 0}, 0});
    nastav_metry(62, 400);
    vlak(v).rychlost = 50;
    const int dalsi = cesta({64, 63, {12, 63}, {1, 1}, {0, 0}, 0});
    cesty[static_cast<std::size_t>(dalsi)].prejezd = 0;
    krok();
    ASSERT_EQ(vlak(v).prvky.back().prvek, 12);
    EXPECT_EQ(stanicni_prejezdy[0].cas, ted_s() + 30);
    EXPECT_EQ(stanicni_prejezdy[1].cas, -3);
}

// --- many trains

TEST_F(Jizda, HundredTrainsKeepTheirState) {
    for (int i = 0; i < 100; ++i)
        vlak_na(62, false, 1000 + i);
    for (int i = 0; i < 50; ++i)
        krok();
    EXPECT_EQ(std::count_if(vlaky.begin(), vlaky.end(), [](const Vlak& v) { return v.cislo > 0; }), 100);
    EXPECT_EQ(metry(62), 0);
}
