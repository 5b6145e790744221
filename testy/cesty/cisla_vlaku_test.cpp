// testy/cesty/cisla_vlaku_test.cpp - train numbers on labels and lines.
#include "cesty/cisla_vlaku.h"
#include "cesty/stavedlo.h"
#include "cesty/uvolneni.h"
#include "jizda/na_koleji.h"
#include "jizda/vlak.h"
#include "pomocne/prvky_cesty.h"
#include "relief/prejezdy.h"

struct Cisla : Stavedlo {
    static const Text& text(int n) { return relief.cislo_koleje[n].text(); }
};

TEST_F(Cisla, NumberOnATrackIsShownAndLogged) {
    relief.cislo_koleje[41].viditelny = false;
    pis_cislo(41, "1234");
    EXPECT_EQ(text(41), "1234");
    EXPECT_TRUE(relief.cislo_koleje[41].viditelny);
    EXPECT_EQ(zapsano({90, 41, 1234}), 1u);
    pis_cislo(41, "77", false, true);
    EXPECT_EQ(zapsano_kodu(90), 1u);
    EXPECT_NO_THROW(pis_cislo(199, "1"));
}

TEST_F(Cisla, TrackAtRestTakesItsNameBack) {
    pis_cislo(41, "1234");
    pis_cislo(41, "", true);
    EXPECT_EQ(text(41), "K41");
    EXPECT_TRUE(relief.cislo_koleje[41].viditelny);
}

TEST_F(Cisla, LockedTrackIsCleared) {
    pis_cislo(41, "1234");
    relief.kolej[41].barva = barvy::zelena;
    pis_cislo(41, "", true);
    EXPECT_EQ(text(41), "");
    EXPECT_FALSE(relief.cislo_koleje[41].viditelny);
}

TEST_F(Cisla, OccupiedTrackKeepsItsNumber) {
    pis_cislo(41, "1234");
    relief.kolej[41].barva = barvy::cervena;
    pis_cislo(41, "", true);
    EXPECT_EQ(text(41), "1234");
}

TEST_F(Cisla, TrackWithTwoEqualLabelsIsLeftToTheRunning) {
    stitek(241, "K41");
    pis_cislo(41, "1234");
    pis_cislo(41, "", true);
    EXPECT_EQ(text(41), "1234");
}

TEST_F(Cisla, NumbersOnALineStandOneBehindTheOther) {
    pis_cislo(604, "11");
    pis_cislo(704, "22");
    pis_cislo(654, "11");
    EXPECT_EQ(text(604), "11");
    EXPECT_EQ(text(654), "22");
    EXPECT_EQ(text(704), "");
    pis_cislo(604, "");
    EXPECT_EQ(text(704), "");
}

TEST_F(Cisla, NumbersMoveUpAndTheLastOnePutsTheArrowOut) {
    relief.lblSouhlas2[604].text = TextPohled(">>");
    relief.lblSouhlas2[604].barva = barvy::azurova;
    pis_cislo(604, "11");
    pis_cislo(604, "22");
    pis_cislo(704, "11", true);
    EXPECT_EQ(text(604), "22");
    EXPECT_EQ(text(654), "");
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova) << "a train is still on the line";
    pis_cislo(704, "", true);
    EXPECT_EQ(text(604), "22") << "nothing takes nothing off";
    pis_cislo(704, "33", true);
    EXPECT_EQ(text(604), "22");
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    pis_cislo(704, "22", true, true);
    EXPECT_EQ(text(604), "");
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova) << "the route stays locked";
    pis_cislo(604, "22");
    pis_cislo(704, "22", true);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::seda);
}

TEST_F(Cisla, TrainWithoutAFreeLabelTakesTheOneThatFallsFree) {
    for (const char* cislo : {"11", "22", "33"})
        pis_cislo(604, cislo);
    pis_cislo(41, "44");
    postav(241, 604);
    EXPECT_EQ(text(704), "33") << "the line has three labels, and all are taken";
    pis_cislo(704, "11", true, true);
    EXPECT_EQ(text(704), "") << "a signal at stop: nothing is said of who comes";
    pis_cislo(704, "22", true);
    EXPECT_EQ(text(604), "33");
    EXPECT_EQ(text(654), "44") << "the train before the cleared signal";
    // on its way the number goes with the train
    pis_cislo(654, "44", true);
    EXPECT_EQ(text(654), "") << "it is not written again";
    pis_cislo(41, "", true);
    vlaky[3].cislo = 44;
    vlaky[3].prvky = prvky_cesty({41, 6, 604}, {1, 2, 1});
    cesty[0].Vlak = 3;
    cesty[0].Umazat = 2;
    pis_cislo(704, "33", true);
    EXPECT_EQ(text(604), "44");
    vlaky[3].prvky.push_back({77, 0, 0});
    pis_cislo(704, "55", true);
    pis_cislo(704, "44", true);
    EXPECT_EQ(text(604), "") << "it runs elsewhere by now";
    vlaky[3] = Vlak{};
}

TEST_F(Cisla, StandingRouteKeepsTheArrow) {
    postav(241, 604);
    pis_cislo(604, "22");
    pis_cislo(604, "22", true);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
}

TEST_F(Cisla, EmptyLineClearsItsCrossingsOnly) {
    prejezdy.assign(3, Prejezd{});
    prejezdy[0].kolej = 654;
    prejezdy[1].kolej = 656;
    prejezdy[2].kolej = 54;
    for (Prejezd& p : prejezdy)
        p.uvolnen = true;
    pis_cislo(604, "11");
    pis_cislo(604, "11", true);
    EXPECT_FALSE(prejezdy[0].uvolnen);
    EXPECT_TRUE(prejezdy[1].uvolnen);
    EXPECT_TRUE(prejezdy[2].uvolnen);
}

TEST_F(Cisla, LineOfT2ShowsItsTrainInAllPlaces) {
    for (const int n : {638, 688, 738}) {
        kolej(n, 0, 100, 0);
        stitek(n, "");
    }
    relief.cislo_koleje[638].text = relief.cislo_koleje[638].popis = TextPohled(" T2 ");
    pis_cislo(738, "11");
    for (const int n : {638, 688, 738})
        EXPECT_EQ(text(n), " 11 ");
    pis_cislo(738, "11", true);
    EXPECT_EQ(text(638), " T2 ");
    EXPECT_EQ(text(688), "");
    EXPECT_EQ(text(738), "");
}

TEST_F(Cisla, OtherLinesAreNotConcernedByT2) {
    kolej(638, 0, 100, 0);
    stitek(638, " T2 ");
    pis_cislo(604, "11");
    EXPECT_EQ(text(604), "11");
    EXPECT_EQ(text(654), "");
    EXPECT_EQ(text(638), " T2 ");
}

TEST_F(Cisla, NumberLeavesTheEndBeforeTheLineToo) {
    for (const int n : {96, 632, 682}) {
        kolej(n, 0, 100, 0);
        stitek(n, n == 96 ? "96" : "");
    }
    relief.lblSouhlas2[632].text = TextPohled(">>");
    pis_cislo(96, "11");
    pis_cislo(632, "11");
    pis_cislo(682, "11", true);
    EXPECT_EQ(text(96), "96");
    EXPECT_EQ(text(632), "");
    relief.lblSouhlas2[632].text = TextPohled("<<");
    pis_cislo(96, "11");
    pis_cislo(632, "11");
    pis_cislo(682, "11", true);
    EXPECT_EQ(text(96), "11");
}

TEST_F(Cisla, LabelsDrawnTwiceFollow) {
    for (const int n : {614, 615, 608, 609, 998}) {
        stitek(n, "");
        relief.cislo_koleje[n].viditelny = false;
    }
    stitek(118, "118");
    pis_cislo(614, "11");
    pis_cislo(608, "22");
    pis_cislo(118, "33");
    EXPECT_EQ(text(615), "11");
    EXPECT_EQ(text(609), "22");
    EXPECT_EQ(text(998), "33");
    EXPECT_TRUE(relief.cislo_koleje[998].viditelny);
}

// --- chains of routes

TEST_F(Cisla, NumberFollowsTheChainOfRoutes) {
    pis_cislo(40, "1234");
    postav(241, 604);
    postav(240, 41);
    EXPECT_EQ(text(41), "1234");
    EXPECT_EQ(text(604), "1234");
    zrus_cestu(240);
    EXPECT_EQ(text(604), "") << "taken off along the chain";
    EXPECT_EQ(text(40), "1234");
}

TEST_F(Cisla, NumberOfATrainOnATrackWithTwoLabelsStays) {
    stitek(241, "K41");
    pis_cislo(40, "1234");
    postav(240, 41, druh_volby::pn);
    relief.kolej[41].barva = barvy::cervena;
    pis_cislo(41, "1234");
    vymaz_cislo(0, false, {});
    EXPECT_EQ(text(41), "1234");
}

TEST_F(Cisla, EndOfACancelledRouteShowsItsNameAgainAfterTheNumberHasGone) {
    pis_cislo(604, "1234");
    postav(604, 41);
    postav(41, 40);
    ASSERT_EQ(text(40), "1234");
    zrus_cestu(604);
    EXPECT_EQ(text(40), "") << "taken off along the chain";
    zrus_cestu(41);
    cekej(6);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(text(40), "K40");
    EXPECT_EQ(text(41), "K41");
}

TEST_F(Cisla, RNZTakesBackTheNumberOfATrainThatHasNotCome) {
    pis_cislo(40, "1234");
    relief.kolej[40].barva = barvy::cervena;
    postav(240, 41, druh_volby::pn);
    ASSERT_EQ(text(41), "1234");
    cekej(31);
    rnz(240);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(text(41), "K41");
    EXPECT_EQ(text(40), "1234");
}

// The number of the train that is called on hides the one of the train at the end until it has come.
TEST_F(Cisla, NumberOfTheStandingTrainComesBackWithRNZ) {
    vlaky[3].cislo = 77;
    pridej_na_kolej(41, 3, true, -1);
    relief.kolej[41].barva = barvy::cervena;
    ASSERT_EQ(text(41), "77");
    pis_cislo(40, "1234");
    postav(240, 41, druh_volby::pn);
    ASSERT_EQ(text(41), "1234");
    cekej(31);
    rnz(240);
    EXPECT_EQ(text(41), "77");
}

TEST_F(Cisla, SecondLabelGivesTheNumberWhenTheFirstShowsItsName) {
    stitek(240, "K40");
    relief.cislo_koleje[240].text = TextPohled("77");
    postav(240, 41);
    EXPECT_EQ(text(41), "77");
}

TEST_F(Cisla, ChainStopsBeforeAnotherNumber) {
    pis_cislo(40, "1234");
    postav(241, 604);
    pis_cislo(604, "5678");
    postav(240, 41);
    EXPECT_EQ(text(41), "1234");
    EXPECT_EQ(text(604), "5678");
    EXPECT_EQ(text(654), "");
}

TEST_F(Cisla, ShuntRouteCarriesNoNumber) {
    pis_cislo(40, "1234");
    postav(240, 41, druh_volby::posun);
    EXPECT_EQ(text(41), "K41");
}

TEST_F(Cisla, RouteWithoutATrainBeforeItWritesNothing) {
    postav(240, 41);
    EXPECT_EQ(text(41), "K41");
    EXPECT_EQ(zapsano_kodu(90), 0u);
}

TEST_F(Cisla, StopTakesTheNumberOffAndDNBringsItBack) {
    pis_cislo(41, "1234");
    postav(241, 604);
    ASSERT_EQ(text(604), "1234");
    navestidlo_stuj(241);
    EXPECT_EQ(text(604), "");
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    obnov_cestu(241);
    EXPECT_EQ(text(604), "1234");
}

TEST_F(Cisla, RingOfRoutesEnds) {
    zat = {{240, 41, prvky_cesty({40, 41}, {1, 1}, {0, 0}), 0},
           {41, 40, prvky_cesty({41, 40}, {1, 1}, {0, 0}), 0}};
    postav_tabulky();
    pis_cislo(40, "1234");
    postav(240, 41);
    cesty.push_back(cesty[0]);
    cesty[1].zacatek = 41;
    cesty[1].konec = 40;
    cesty[1].prvky = prvky_cesty({41, 40});
    postup_cisla(0);
    EXPECT_EQ(text(41), "1234");
    vymaz_cislo(0, false, "");
    EXPECT_NE(text(41), "1234");
}
