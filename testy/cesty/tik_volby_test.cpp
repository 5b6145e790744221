// testy/cesty/tik_volby_test.cpp - the route machine, branch by branch.
#include "cesty/prehoz_rukou.h"
#include "cesty/stavedlo.h"
#include "cesty/tik_volby.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "pomocne/prvky_cesty.h"
#include "prvky/barvi_prvek.h"
#include "prvky/stanicni_prejezdy.h"

using StavebCest = Stavedlo;

TEST_F(StavebCest, TrainRouteFromPickToClearedSignal) {
    klik(240);
    klik_cil(42);
    cekej(1);
    EXPECT_FALSE(cesty[0].prehozena) << "two seconds belong to the operator";
    EXPECT_EQ(prikaz(), " VC ");
    cekej(1);
    const Cesta& c = cesty[0];
    ASSERT_TRUE(c.prehozena);
    EXPECT_EQ(c.Kdy_prehoz, ted_s() + 5);
    EXPECT_EQ(c.prejezd, kBezPrejezdu);
    EXPECT_EQ(c.vyhybka, 5);
    EXPECT_EQ(prikaz(), "") << "the prompt has done its work";
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_EQ(vyber.volba_konec, -3);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_FALSE(relief.cislo_koleje[42].ramecek);
    EXPECT_EQ(relief.cislo_koleje[42].barva, barvy::azurova);
    EXPECT_EQ(barva(42), barvy::azurova);
    EXPECT_EQ(barva(40), barvy::seda) << "the track before the signal is not painted";
    EXPECT_EQ(stav(5), 3);
    EXPECT_TRUE(vyhybka_v_pohybu(5));
    EXPECT_EQ(relief.lblZasobnik_blokv[0].text(), "VC TST S240 K42 400m");
    EXPECT_EQ(relief.lblZasobnik_blokv[0].popis(), "2");
    EXPECT_EQ(stav_zasobniku.ceka, 2);
    relief.lblZasobnik_blokv[0].popis = Text("7"); // the route does not hang on what the line shows
    EXPECT_EQ(relief.lblZasobnik_blokv[0].barva, barvy::cerna);
    EXPECT_EQ(zapsano({31, 240, 42}), 1u);
    cekej(5);
    EXPECT_FALSE(c.Provedena) << "the time must be past, not just reached";
    cekej(1);
    EXPECT_TRUE(c.Provedena);
    EXPECT_TRUE(c.Postavena);
    EXPECT_EQ(stav(5), 53);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    EXPECT_EQ(barva(42), barvy::zelena);
    EXPECT_EQ(navestni(240), barvy::zelena);
    EXPECT_EQ(c.prvky.back().poloha, 2);
    EXPECT_EQ(relief.lblZasobnik_blokv[0].text(), "");
    EXPECT_EQ(relief.lblZasobnik_blokv[0].popis(), "-3");
    EXPECT_EQ(stav_zasobniku.ceka, std::nullopt);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "00");
    EXPECT_EQ(zapsano({51, 240, 42}), 1u);
    EXPECT_EQ(zapsano({75, 240, barvy::zelena}), 1u);
}

TEST_F(StavebCest, PromptOfAPickOverAShortSectionGoesWithItsSecondRoute) {
    kolej(12, 3000, 4000, 4975);
    kolej(20, 5000, 6000, 4975);
    cil(12, "TST L12");
    cil(20, "TST L20");
    navest(601, 229, "TST S601");
    navest(212, 229, "TST S212");
    zat = {{601, 12, prvky_cesty({40, 12}, {1, 1}, {0, 0}), 0},
           {212, 20, prvky_cesty({12, 20}, {1, 1}, {0, 0}), 0}};
    postav_tabulky();
    klik(601);
    klik_cil(20);
    ASSERT_EQ(volba(), "TST S601 TST L20");
    prepni_pv_vz(false);
    relief.kolej[20].barva = barvy::cervena; // what waits has been taken over, too
    cekej(3);
    EXPECT_EQ(prikaz(), "");
}

TEST_F(StavebCest, SwitchInPositionIsReservedAtOnce) {
    zarad(240, 41);
    cekej(2);
    EXPECT_EQ(stav(5), 102);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    cekej(6);
    EXPECT_EQ(stav(5), 52);
}

TEST_F(StavebCest, SectionOccupiedWhileTheSwitchesRunStaysOccupied) {
    zarad(240, 41);
    cekej(2);
    ASSERT_EQ(barva(41), barvy::azurova);
    barvi_prvek(41, barvy::cervena);
    cekej(6);
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(barva(41), barvy::cervena);
}

TEST_F(StavebCest, ShuntRouteIsWhite) {
    relief.imgVyhybka[5].stav = TextPohled("3");
    postav(240, 41, druh_volby::posun);
    EXPECT_EQ(stav(5), 202);
    EXPECT_EQ(navestni(240), barvy::bila);
    EXPECT_EQ(barva(41), barvy::bila) << "the free end is painted as the end of the route";
    EXPECT_EQ(zapsano({32, 240, 41}), 1u);
    EXPECT_EQ(zapsano({52, 240, 41}), 1u);
}

TEST_F(StavebCest, ShuntRouteOntoAnOccupiedTrackLeavesItAsItIs) {
    relief.kolej[41].barva = barvy::cervena;
    postav(240, 41, druh_volby::posun);
    EXPECT_EQ(barva(41), barvy::cervena);
    EXPECT_EQ(stav(5), 202);
    EXPECT_EQ(navestni(240), barvy::bila);
}

TEST_F(StavebCest, TrainRouteIntoAnOccupiedEndWaitsWithoutAWord) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    cekej(10);
    EXPECT_FALSE(cesty[0].prehozena);
    EXPECT_EQ(prikaz(), "");
    EXPECT_TRUE(relief.lblZasobnik_blokv[0].viditelny);
    EXPECT_EQ(relief.lblZasobnik_blokv[0].barva, barvy::bila);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_FALSE(relief.cislo_koleje[41].ramecek);
    relief.kolej[41].barva = barvy::seda;
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena);
    EXPECT_EQ(relief.lblZasobnik_blokv[0].barva, barvy::cerna);
}

TEST_F(StavebCest, BlockedRouteHoldsBackTheOthersUnderVZ) {
    zarad(240, 41);
    zarad(240, 42); // the same switch the other way
    zarad(46, 118); // independent
    cekej(12);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_FALSE(cesty[1].prehozena);
    EXPECT_FALSE(cesty[2].prehozena);
    prepni_pv_vz(false);
    cekej(8);
    EXPECT_FALSE(cesty[1].prehozena);
    EXPECT_TRUE(cesty[2].Provedena);
}

TEST_F(StavebCest, AutomaticCopyWaitsInTheBackground) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41).Vlak = kKopieAB;
    zarad(46, 118);
    cekej(12);
    EXPECT_EQ(relief.lblZasobnik_blokv[0].text(), "");
    EXPECT_TRUE(cesty[1].Provedena) << "nobody sees the copy, so it holds nobody back";
    relief.kolej[41].barva = barvy::seda;
    cekej(8);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(cesty[0].Vlak, kKopieAB);
}

TEST_F(StavebCest, BlockedSignalAndMovingSwitchRefuse) {
    relief.navestidlo[240].barva = barvy::cervena;
    zarad(240, 41);
    cekej(3);
    EXPECT_FALSE(cesty[0].prehozena);
    relief.navestidlo[240].barva = barvy::seda;
    stav_vyhybek.vyhybka_pohyb.assign(10, false);
    stav_vyhybek.vyhybka_pohyb[5] = true;
    cekej(3);
    EXPECT_FALSE(cesty[0].prehozena);
    stav_vyhybek.vyhybka_pohyb[5] = false;
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena);
}

TEST_F(StavebCest, BlockedShuntSignalRefuses) {
    zarad(545, 44, druh_volby::posun);
    relief.navestidlo_ser[545].barva = barvy::modra;
    cekej(5);
    EXPECT_FALSE(cesty[0].prehozena);
}

TEST_F(StavebCest, DerailerIsLaidForTheRoute) {
    zarad(545, 44, druh_volby::posun);
    cekej(2);
    EXPECT_EQ(relief.lblVykolejka[1].barva, barvy::cerna);
    EXPECT_EQ(relief.lblVykolejka[1].pozadi, barvy::seda);
    cekej(6);
    EXPECT_EQ(relief.lblVykolejka[1].text(), znak(21));
    EXPECT_EQ(relief.lblVykolejka[1].barva, barvy::bila);
    EXPECT_EQ(relief.lblVykolejka[1].pozadi, barvy::cerna);
    EXPECT_EQ(navestni(545), barvy::bila);
}

TEST_F(StavebCest, DerailerOnTheRailsGoesCyan) {
    relief.lblVykolejka[1].text = znak(21);
    zarad(545, 44, druh_volby::posun);
    cekej(2);
    EXPECT_EQ(relief.lblVykolejka[1].barva, barvy::azurova);
}

// 202 into its first end: the locking says nothing about the derailer, the release does.
TEST_F(StavebCest, DerailerThatRunsWithASwitchIntoMinusComesToRestWithItsRelease) {
    vyhybka(202, 2400, 4390, 24);
    Prvek& vykolejka = relief.lblVykolejka.zaloz(0);
    vykolejka.text = znak(21);
    zat.push_back({246, 43, prvky_cesty({46, 202, 43}, {1, 2, 1}, {0, 23, 0}), 0});
    postav_tabulky();
    zarad(246, 43);
    for (const int klid : {2, 12}) {
        cekej(klid);
        EXPECT_EQ(stav(202), klid == 2 ? 23 : 73);
        EXPECT_EQ(vykolejka.text(), znak(21));
        EXPECT_EQ(vykolejka.barva, barvy::cerna);
        EXPECT_EQ(vykolejka.pozadi, barvy::seda) << "it moves";
        EXPECT_TRUE(vykolejka.ramecek);
    }
    zrus_cestu(246);
    cekej(6);
    EXPECT_EQ(stav(202), 23);
    EXPECT_EQ(vykolejka.text(), znak(23));
    EXPECT_EQ(vykolejka.barva, barvy::seda);
    EXPECT_EQ(vykolejka.pozadi, barvy::cerna);
    EXPECT_FALSE(vykolejka.ramecek);
}

TEST_F(StavebCest, DerailerThatRunsWithASwitchIntoPlusComesToRestWithTheLocking) {
    vyhybka(202, 2400, 4390, 23);
    Prvek& vykolejka = relief.lblVykolejka.zaloz(0);
    vykolejka.text = znak(23);
    zat.push_back({246, 43, prvky_cesty({46, 202, 43}, {1, 2, 1}, {0, 24, 0}), 0});
    postav_tabulky();
    zarad(246, 43);
    cekej(2);
    EXPECT_EQ(vykolejka.pozadi, barvy::seda) << "it moves";
    cekej(10);
    EXPECT_EQ(stav(202), 74);
    EXPECT_EQ(vykolejka.text(), znak(21));
    EXPECT_EQ(vykolejka.barva, barvy::seda);
    EXPECT_EQ(vykolejka.pozadi, barvy::cerna);
}

TEST_F(StavebCest, DoubleSlipIsCommandedAndLocked) {
    zarad(240, 47);
    cekej(2);
    EXPECT_EQ(stav(7), 27);
    EXPECT_EQ(relief.imgVyhybka[7].obrazek(), 133);
    cekej(6);
    EXPECT_EQ(stav(7), 77);
}

TEST_F(StavebCest, TimeOfTheSwitchesOnceSetStays) {
    zarad(240, 41).Kdy_prehoz = ted_s() + 4;
    cekej(5);
    EXPECT_TRUE(cesty[0].Provedena);
}

TEST_F(StavebCest, FreshRecordOfAFirstRouteTouchesNoCrossing) {
    zarad(240, 41);
    EXPECT_EQ(cesty[0].prejezd, 0);
    cekej(12);
    EXPECT_EQ(cesty[0].prejezd, kBezPrejezdu);
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
}

// --- station crossings

TEST_F(StavebCest, CrossingIsLeftAloneWhenNoTrainStandsBeforeTheSignal) {
    zarad(240, 43);
    cekej(8);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(cesty[0].prejezd, 0);
    EXPECT_FALSE(cesty[0].prejezd_zaver);
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
}

TEST_F(StavebCest, SignalWaitsForTheClosingCrossing) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(2);
    const std::int32_t zavre = ted_s() + 40;
    EXPECT_EQ(stanicni_prejezdy[0].cas, zavre);
    cekej(20);
    EXPECT_FALSE(cesty[0].Postavena);
    EXPECT_EQ(barva(43), barvy::zelena) << "all is locked, only the signal waits";
    cekej(19);
    EXPECT_FALSE(cesty[0].Postavena);
    cekej(1);
    EXPECT_EQ(ted_s(), zavre);
    EXPECT_TRUE(cesty[0].Postavena);
}

TEST_F(StavebCest, EmergencyOpeningEndsTheWait) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(15);
    ASSERT_FALSE(cesty[0].Postavena);
    stanicni_prejezdy[0].cas = -3;
    cekej(1);
    EXPECT_TRUE(cesty[0].Postavena);
}

TEST_F(StavebCest, CrossingInUseIsClosedAtOnce) {
    for (const int duvod : {0, 1, 2}) {
        cesty.assign(1, Cesta{});
        stanicni_prejezdy = {};
        relief.kolej[40].barva = barvy::cervena;
        relief.kolej[107].barva = relief.kolej[43].barva = barvy::seda;
        relief.navestidlo[240].barva = barvy::seda;
        if (duvod == 0)
            stanicni_prejezdy[0].pocet = 129;
        if (duvod == 1)
            stanicni_prejezdy[0].cas = ted_s() - 1;
        if (duvod == 2)
            stanicni_prejezdy[0].UZ = true;
        zarad(240, 43);
        cekej(12);
        EXPECT_TRUE(stanicni_prejezdy[0].uzavren) << duvod;
        EXPECT_TRUE(cesty[0].Postavena) << duvod;
    }
}

TEST_F(StavebCest, CallingOnRouteLeavesTheCrossing) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43, druh_volby::pn);
    cekej(12);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
}

// --- lines

TEST_F(StavebCest, LineBecomesPartOfTheRoute) {
    zarad(241, 604);
    cekej(2);
    EXPECT_EQ(relief.lblSouhlas2[604].text(), ">>");
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    cekej(6);
    EXPECT_EQ(cisla_prvku(cesty[0].prvky), (std::vector<std::int16_t>{41, 6, 604, 654, 704}));
    EXPECT_EQ(druhy_prvku(cesty[0].prvky), (std::vector<std::uint8_t>{1, 2, 1, 1, 1}));
    EXPECT_EQ(polohy_prvku(cesty[0].prvky), (std::vector<std::uint8_t>{2, 5, 0, 0, 2}));
    for (const int n : {604, 654, 704})
        EXPECT_EQ(barva(n), barvy::seda) << "a line shows only occupied or free";
}

TEST_F(StavebCest, RouteToTheFarSectionRunsDownTheLine) {
    kolej(51, 9000, 9500, 4000);
    stitek(51, "K51");
    navest(51, 230, "TRT L51");
    zat = {{51, 604, prvky_cesty({51, 704}, {1, 1}, {0, 0}), 0}};
    postav_tabulky();
    zarad(51, 604);
    cekej(8);
    EXPECT_EQ(relief.lblSouhlas2[604].text(), "<<");
    EXPECT_EQ(cisla_prvku(cesty[0].prvky), (std::vector<std::int16_t>{51, 704, 654, 604}));
    relief.lblSouhlas2[604].text = TextPohled(">>");
    zarad(51, 604);
    cekej(5);
    EXPECT_FALSE(cesty[1].prehozena);
}

TEST_F(StavebCest, OppositeArrowRefusesWithoutAnyTrace) {
    relief.lblSouhlas2[604].text = TextPohled("<<");
    relief.lblSouhlas2[604].barva = barvy::azurova;
    relief.kolej[41].barva = barvy::cervena;
    zarad(241, 604);
    const std::size_t pred = zaznamy().size();
    cekej(12);
    EXPECT_FALSE(cesty[0].prehozena);
    EXPECT_EQ(zaznamy().size(), pred);
    EXPECT_EQ(relief.lblSouhlas2[604].text(), "<<");
    EXPECT_EQ(stav(6), 5);
    relief.lblSouhlas2[604].barva = barvy::seda;
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena) << "a grey arrow holds nobody";
}

TEST_F(StavebCest, LineIsAddedOnceWhileTheSignalWaits) {
    zat = {{240, 604, prvky_cesty({40, 107, 604}, {1, 1, 1}, {0, 0, 0}), 0}};
    postav_tabulky();
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 604);
    cekej(12);
    ASSERT_FALSE(cesty[0].Postavena);
    const auto prvky = cesty[0].prvky;
    EXPECT_EQ(prvky.size(), 5u);
    cekej(20);
    ASSERT_FALSE(cesty[0].Postavena);
    EXPECT_EQ(cesty[0].prvky, prvky);
}

TEST_F(StavebCest, RouteOutTurnsTheConsentLamp) {
    zarad(40, 84);
    zarad(40, 117);
    cekej(2);
    EXPECT_EQ(relief.lblSouhlas[0].text(), znak(15));
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[2].text(), znak(183));
    cekej(6);
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::modra);
    EXPECT_EQ(relief.lblSouhlas[2].barva, barvy::modra);
}

TEST_F(StavebCest, LitConsentLampRefuses) {
    relief.lblSouhlas[0].barva = barvy::modra;
    zarad(40, 84);
    cekej(5);
    EXPECT_FALSE(cesty[0].prehozena);
    EXPECT_EQ(relief.lblSouhlas[0].text(), znak(8));
}

TEST_F(StavebCest, SingleTrackIsHeldByItsArrow) {
    zarad(46, 118);
    cekej(2);
    EXPECT_TRUE(cesty[0].prehozena);
    EXPECT_EQ(relief.lblSouhlas2[118].text(), "<<");
    EXPECT_EQ(relief.lblSouhlas2[118].barva, barvy::azurova);
    relief.kolej[118].barva = barvy::seda;
    zarad(48, 118);
    cekej(3);
    EXPECT_FALSE(cesty[1].prehozena);
    cesty.erase(cesty.begin());
    relief.lblSouhlas2[118].barva = barvy::seda;
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena);
    EXPECT_EQ(relief.lblSouhlas2[118].text(), ">>");
}

TEST_F(StavebCest, ArrowOfAnEndSectionFollowsTheSignal) {
    zarad(246, 120);
    cekej(2);
    EXPECT_EQ(relief.lblSouhlas2[120].text(), ">>");
    cesty.assign(1, Cesta{});
    relief.kolej[120].barva = barvy::seda;
    relief.navestidlo[246].text = znak(230);
    zarad(246, 120);
    cekej(2);
    EXPECT_EQ(relief.lblSouhlas2[120].text(), "<<");
}

// --- calling-on

TEST_F(StavebCest, CallingOnRouteLocksOnlyItsSwitches) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41, druh_volby::pn);
    cekej(8);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(barva(41), barvy::cervena);
    EXPECT_EQ(stav(5), 102);
    EXPECT_EQ(cesty[0].PN_do, ted_s() + 30);
    EXPECT_EQ(zapsano({33, 240, 41}), 1u);
    EXPECT_TRUE(pn_sviti(240));
}

TEST_F(StavebCest, CallingOnAspectFlashesForHalfAMinute) {
    zarad(240, 41, druh_volby::pn);
    cekej(8);
    ASSERT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(relief.lblPN[1].text(), "TST S240PN  0:30");
    EXPECT_TRUE(relief.lblPN[1].viditelny);
    EXPECT_EQ(relief.lblPN[1].vlevo(), 11290 - relief.lblPN[1].sirka() + 180);
    EXPECT_FALSE(simulace.pn_bezi);
    cekej(1);
    EXPECT_TRUE(simulace.pn_bezi);
    EXPECT_EQ(navestni(240), barvy::bila);
    EXPECT_EQ(relief.lblPN[1].text(), "TST S240PN  0:29");
    cekej(1);
    EXPECT_EQ(navestni(240), barvy::seda);
    cekej(27);
    EXPECT_EQ(relief.lblPN[1].text(), "TST S240PN  0:01");
    cekej(1);
    EXPECT_FALSE(simulace.pn_bezi);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_EQ(cesty[0].PN_do, -3);
    EXPECT_EQ(relief.lblPN[1].text(), "");
    EXPECT_FALSE(relief.lblPN[1].viditelny);
    EXPECT_TRUE(pn_skoncila(240));
    EXPECT_EQ(zapsano({53, 240, 41}), 1u);
}

TEST_F(StavebCest, TwoCountdownsStandUnderEachOther) {
    zarad(240, 41, druh_volby::pn);
    zarad(46, 118, druh_volby::pn).varovani = 0;
    skryj_prikaz();
    cekej(8);
    EXPECT_EQ(relief.lblPN[1].text(), "TST S240PN  0:30\x0DTST L46PN  0:30");
    cesty[0].PN_do = ted_s();
    cekej(1);
    EXPECT_EQ(relief.lblPN[1].text(), "TST L46PN  0:29");
}

// --- the tick

TEST_F(StavebCest, NothingHappensInAPause) {
    zarad(240, 41);
    simulace.pauza = true;
    cekej(20);
    EXPECT_FALSE(cesty[0].prehozena);
}

TEST_F(StavebCest, ManualThrowEndsAfterItsTime) {
    hod_vyhybku(5, PovelVyhybky::plus);
    ASSERT_TRUE(vyhybka_v_pohybu(5));
    cekej(2);
    EXPECT_TRUE(vyhybka_v_pohybu(5));
    cekej(1);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    EXPECT_EQ(stav(5), 3);
    EXPECT_EQ(stav_vyhybek.prehoz_cas, -3);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, -3);
}

TEST_F(StavebCest, WalkEndsAt256Routes) {
    prepni_pv_vz(false);
    zarad(240, 41);
    cesty[0].cas_stavby = -3; // it never works
    const Cesta vzor = cesty[0];
    cesty.assign(255, vzor);
    zarad(46, 118);
    zarad(48, 118);
    cekej(10);
    EXPECT_TRUE(cesty[255].prehozena);
    EXPECT_FALSE(cesty[256].prehozena);
}

TEST_F(StavebCest, SameSignalPickedAnewKeepsItsHighlight) {
    relief.kolej[41].barva = barvy::cervena;
    klik(240);
    klik_cil(41);
    cekej(3);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    klik(240);
    cekej(1);
    EXPECT_TRUE(relief.navestidlo[240].ramecek);
}
