// testy/cesty/uvolneni_test.cpp - RC, DN, STUJ, RNZ and the cancellation.
#include "app/casovace.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/opakovani.h"
#include "cesty/stavedlo.h"
#include "cesty/uvolneni.h"
#include "jizda/vlak.h"
#include "pomocne/prvky_cesty.h"
#include "prvky/barvi_prvek.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/volnost.h"

using Uvolneni = Stavedlo;

TEST_F(Uvolneni, CancelledRouteIsAllAtRest) {
    postav(240, 42);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5) << "nobody stands before the signal";
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_EQ(zapsano({34, 240, 0}), 1u);
    cekej(4);
    EXPECT_TRUE(relief.lblMereni_casu[0].viditelny);
    EXPECT_EQ(cesty[0].zacatek, 240);
    cekej(1);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stav(5), 3);
    EXPECT_EQ(barva(42), barvy::seda);
    EXPECT_EQ(relief.cislo_koleje[42].text(), "K42");
    EXPECT_EQ(relief.cislo_koleje[42].barva, barvy::seda);
    EXPECT_FALSE(relief.lblMereni_casu[0].viditelny);
    EXPECT_EQ(zapsano({54, 240, 0}), 1u);
}

TEST_F(Uvolneni, CancellationMayComeFiveSecondsBeforeTheSwitches) {
    zarad(240, 41);
    cekej(2);
    cesty[0].Kdy_prehoz = ted_s() + 6;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    cesty[0].Kdy_prehoz = ted_s() + 5;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s()) << "no signal was ever cleared";
    cekej(1);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stav(5), 2);
}

TEST_F(Uvolneni, TrainBeforeTheSignalLengthensTheCancellation) {
    relief.kolej[40].barva = barvy::cervena;
    postav(240, 41);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 180);
    cesty.assign(1, Cesta{});
    relief.imgVyhybka[5].stav = TextPohled("2");
    relief.kolej[41].barva = barvy::seda;
    postav(240, 41, druh_volby::posun);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 60);
}

TEST_F(Uvolneni, DNGivesTheSignalBackWhileTheCancellationRuns) {
    relief.kolej[40].barva = barvy::cervena;
    postav(240, 41);
    zrus_cestu(240);
    cekej(10);
    EXPECT_TRUE(dn_mozne(240));
    obnov_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(navestni(240), barvy::zelena);
    EXPECT_FALSE(relief.lblMereni_casu[0].viditelny);
    EXPECT_EQ(zapsano({54, 240, 0}), 1u);
    cekej(300);
    EXPECT_EQ(cesty[0].zacatek, 240);
}

TEST_F(Uvolneni, CancelledTrackShowsItsNameThoughItsTrainIsGone) {
    relief.kolej[40].barva = barvy::cervena;
    relief.cislo_koleje[40].text = TextPohled("1234");
    postav(240, 41);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "1234");
    zrus_cestu(240);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "") << "no number, and still locked";
    relief.cislo_koleje[40].text = TextPohled("K40"); // the train has left to the other side
    cekej(180);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "K41");
    EXPECT_TRUE(relief.cislo_koleje[41].viditelny);
}

// Of two labels the running alone says which shows a train, so RC leaves the announced number there.
TEST_F(Uvolneni, CancelledTrackWithTwoLabelsKeepsTheNumberUntilTheCancellationIsOver) {
    stitek(241, "K41");
    relief.kolej[40].barva = barvy::cervena;
    relief.cislo_koleje[40].text = TextPohled("1234");
    postav(240, 41);
    zrus_cestu(240);
    cekej(179);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "1234");
    cekej(1);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "K41");
    EXPECT_EQ(relief.cislo_koleje[241].text(), "K41");
}

TEST_F(Uvolneni, CancelledTrackUnderATrainKeepsItsNumber) {
    relief.cislo_koleje[41].text = TextPohled("77");
    relief.kolej[41].barva = barvy::cervena;
    postav(240, 41, druh_volby::posun);
    zrus_cestu(240);
    cekej(6);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "77");
}

TEST_F(Uvolneni, SecondCancellationStartsTheTimeAnew) {
    relief.kolej[40].barva = barvy::cervena;
    postav(240, 41);
    zrus_cestu(240);
    cekej(100);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 180);
}

TEST_F(Uvolneni, RouteWithASwitchOutOfPlaceIsPassedOver) {
    postav(240, 41);
    const Cesta nizsi = cesty[0];
    cesty.push_back(nizsi);
    cesty[1].prvky[1].poloha = 3; // its switch was brought elsewhere by NOUZ
    zrus_cestu(240);
    EXPECT_EQ(cesty[1].cas_ruseni, -3);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
}

TEST_F(Uvolneni, OccupiedMiddleSectionRefusesTheCancellation) {
    postav(240, 43);
    relief.kolej[107].barva = barvy::cervena;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
}

TEST_F(Uvolneni, ShuntRouteOntoWagonsCanBeCancelled) {
    relief.kolej[41].barva = barvy::cervena;
    postav(240, 41, druh_volby::posun);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
    cekej(5);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(barva(41), barvy::cervena) << "a red track is never painted grey";
}

TEST_F(Uvolneni, RouteOverTheSingleTrackCanBeCancelled) {
    postav(43, 46);
    zrus_cestu(43);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
    cekej(5);
    EXPECT_EQ(barva(46), barvy::seda);
    EXPECT_EQ(relief.lblSouhlas2[118].barva, barvy::seda);
}

TEST_F(Uvolneni, RouteWithAnUnnamedEndCanBeCancelled) {
    stitek(42, "  ");
    postav(240, 42);
    ASSERT_EQ(barva(42), barvy::seda);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
}

TEST_F(Uvolneni, RedEndOfATrainRouteStaysRed) {
    postav(240, 41);
    zrus_cestu(240);
    relief.kolej[41].barva = barvy::cervena;
    cekej(6);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(barva(41), barvy::cervena);
}

TEST_F(Uvolneni, EnteredAndForeignRoutesAreNotCancelled) {
    postav(240, 41);
    cesty[0].Umazat = 1;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    cesty[0].Umazat = 0;
    cesty[0].prvky[0].prvek = 212;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    cesty[0].prvky[0].prvek = 40;
    relief.navestidlo[240].barva = barvy::cervena;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3) << "the signal is blocked";
}

TEST_F(Uvolneni, CancellationSwitchesTheAutomaticModeOff) {
    postav(240, 41);
    prepni_ab(240);
    ASSERT_EQ(glyf_navestidla(240), 8);
    zrus_cestu(240);
    EXPECT_EQ(glyf_navestidla(240), 229);
}

TEST_F(Uvolneni, CancelledRouteFreesItsLine) {
    postav(241, 604);
    zrus_cestu(241);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova) << "the route is still locked";
    cekej(5);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::seda);
}

TEST_F(Uvolneni, DirectionStaysForTheTrainOnTheLine) {
    postav(241, 604);
    zrus_cestu(241);
    relief.kolej[654].barva = barvy::cervena;
    cekej(6);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
}

TEST_F(Uvolneni, DirectionStaysForAnotherRouteOntoTheLine) {
    zat.push_back({46, 604, prvky_cesty({46, 604}, {1, 1}, {0, 0}), 0});
    postav_tabulky();
    postav(241, 604);
    postav(46, 604);
    zrus_cestu(46);
    cekej(6);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    zrus_cestu(241);
    cekej(6);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::seda);
}

TEST_F(Uvolneni, CancellationStopsEveryRouteThatStandsFromTheSignal) {
    zat.push_back({46, 604, prvky_cesty({46, 604}, {1, 1}, {0, 0}), 0});
    postav_tabulky();
    postav(46, 604);
    postav(46, 604); // nothing of the first one is locked: it leads straight out to the line
    ASSERT_EQ(cesty.size(), 2u);
    ASSERT_TRUE(cesty[0].Postavena && cesty[1].Postavena);
    zrus_cestu(46);
    EXPECT_EQ(cesty[1].cas_ruseni, ted_s() + 5);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    EXPECT_EQ(navestni(46), barvy::seda);
    EXPECT_FALSE(cesty[0].Postavena) << "no train leaves past a signal at stop";
    EXPECT_TRUE(cesty[0].Provedena);
    obnov_cestu(46); // DN takes the oldest
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(navestni(46), barvy::zelena);
    cekej(6);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(navestni(46), barvy::zelena) << "the signal shows what the standing route gives";
}

TEST_F(Uvolneni, CancellationBeforeTheSignalClearedTakesTheHighlightsAway) {
    zarad(240, 41);
    cekej(4);
    klik(240);
    relief.cislo_koleje[41].pozadi = barvy::zelena;
    relief.cislo_koleje[41].ramecek = true;
    zrus_cestu(240);
    cekej(1);
    ASSERT_EQ(cesty[0].zacatek, -3);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_FALSE(relief.cislo_koleje[41].ramecek);
}

TEST_F(Uvolneni, CancelledRouteOutPutsTheLampOut) {
    postav(40, 84);
    ASSERT_EQ(relief.lblSouhlas[0].barva, barvy::modra);
    zrus_cestu(40);
    cekej(6);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::seda);
}

// Whichever way it ends, before its locking or after it: the next train that asks is asked for inwards.
TEST_F(Uvolneni, LampOfTheLineEndPointsInwardsAgainWhenTheRouteOutHasEnded) {
    struct KonecCesty {
        int konec, k, ven, dovnitr;
    };
    for (const auto& [konec, k, ven, dovnitr] : {KonecCesty{84, 0, 15, 8}, KonecCesty{117, 2, 183, 176}})
        for (const int za : {3, 12}) {
            zarad(40, konec);
            cekej(za);
            EXPECT_EQ(relief.lblSouhlas[k].text(), znak(ven));
            EXPECT_EQ(relief.lblSouhlas[k].barva, za > 6 ? barvy::modra : barvy::seda);
            zrus_cestu(40);
            cekej(6);
            EXPECT_EQ(cesty[0].zacatek, -3);
            EXPECT_EQ(relief.lblSouhlas[k].barva, barvy::seda);
            EXPECT_EQ(relief.lblSouhlas[k].text(), znak(dovnitr)) << konec << " after " << za << " s";
        }
    postav(40, 84); // a train runs over it and leaves
    for (const int n : {84, 212})
        barvi_prvek(n, barvy::cervena);
    barvi_prvek(84, barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[0].text(), znak(15));
    barvi_prvek(212, barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[0].text(), znak(8));
}

TEST_F(Uvolneni, CancelledRouteCallsTheCrossingOff) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(4);
    ASSERT_GT(stanicni_prejezdy[0].cas, 0);
    zrus_cestu(240);
    cekej(1);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stanicni_prejezdy[0].cas, -3);
}

TEST_F(Uvolneni, CancelledRouteLeavesTheCrossingToAnotherOneThatWaitsForIt) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(4);
    const auto cas = stanicni_prejezdy[0].cas;
    ASSERT_GT(cas, 0);
    Cesta jina = cesty[0];
    jina.zacatek = 246;
    cesty.push_back(jina);
    zrus_cestu(240);
    cekej(4);
    ASSERT_EQ(cesty[0].zacatek, 246);
    EXPECT_FALSE(cesty[0].Postavena) << "the road is open yet";
    EXPECT_EQ(stanicni_prejezdy[0].cas, cas);
    proved_zruseni(0);
    EXPECT_EQ(stanicni_prejezdy[0].cas, -3);
}

TEST_F(Uvolneni, CrossingClosedByTheOperatorIsNotCalledOff) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(4);
    stanicni_prejezdy[0].UZ = true;
    const auto cas = stanicni_prejezdy[0].cas;
    zrus_cestu(240);
    cekej(1);
    EXPECT_EQ(stanicni_prejezdy[0].cas, cas);
}

TEST_F(Uvolneni, RoutesBehindACancelledOneAreWalkedInTheSameTick) {
    postav(240, 41);
    zrus_cestu(240);
    zarad(240, 42);
    cekej(5);
    EXPECT_EQ(cesty[0].konec, 42);
    EXPECT_TRUE(cesty[0].prehozena);
}

TEST_F(Uvolneni, RouteBlockedByACancelledOneGoesInTheSameTick) {
    postav(240, 41);
    zarad(240, 42);
    std::swap(cesty[0], cesty[1]);
    zrus_cestu(240);
    cekej(4);
    EXPECT_FALSE(cesty[0].prehozena);
    cekej(1);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_TRUE(cesty[0].prehozena) << "the walk began anew with nothing held back";
}

// --- STUJ and DN

TEST_F(Uvolneni, StujPutsTheSignalToStopAndKeepsTheRoute) {
    postav(241, 604);
    navestidlo_stuj(241);
    EXPECT_EQ(navestni(241), barvy::seda);
    EXPECT_FALSE(cesty[0].Postavena);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_EQ(stav(6), 55);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    cekej(20);
    EXPECT_EQ(navestni(241), barvy::seda) << "the machine does not clear it again";
    obnov_cestu(241);
    EXPECT_EQ(navestni(241), barvy::zelena);
    EXPECT_TRUE(cesty[0].Postavena);
}

TEST_F(Uvolneni, StujSwitchesTheAutomaticModeOffAndDropsItsCopy) {
    postav(240, 41);
    prepni_ab(240);
    Cesta kopie = cesty[0];
    kopie.Vlak = kKopieAB;
    kopie.Postavena = kopie.Provedena = kopie.prehozena = false;
    cesty.insert(cesty.begin(), kopie);
    navestidlo_stuj(240);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_FALSE(cesty[0].Postavena);
    EXPECT_TRUE(cesty[0].Provedena);
}

TEST_F(Uvolneni, DNWaitsForTheFirstSectionAndTheBlocking) {
    postav(240, 43);
    navestidlo_stuj(240);
    relief.kolej[107].barva = barvy::cervena;
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::seda);
    relief.kolej[107].barva = barvy::zelena;
    relief.navestidlo[240].barva = barvy::cervena;
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::cervena);
    relief.navestidlo[240].barva = barvy::seda;
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::zelena);
}

TEST_F(Uvolneni, ShuntSignalGetsItsWhiteBack) {
    postav(545, 44, druh_volby::posun);
    navestidlo_stuj(545);
    EXPECT_EQ(navestni(545), barvy::seda);
    obnov_cestu(545);
    EXPECT_EQ(navestni(545), barvy::bila);
}

// --- calling-on routes

TEST_F(Uvolneni, StujEndsACallingOnAspect) {
    postav(240, 41, druh_volby::pn);
    navestidlo_stuj(240);
    EXPECT_EQ(cesty[0].PN_do, ted_s());
    EXPECT_TRUE(cesty[0].Postavena);
    cekej(1);
    EXPECT_EQ(cesty[0].PN_do, -3);
    EXPECT_EQ(relief.lblPN[1].text(), "");
}

// The menu that offered it was opened while the aspect showed.
TEST_F(Uvolneni, PPNDoesNotLightACallingOnAspectThatHasEndedAgain) {
    postav(240, 42, druh_volby::pn);
    const std::int32_t konec = cesty[0].PN_do;
    ppn(240);
    EXPECT_EQ(cesty[0].PN_do, konec + 30);
    navestidlo_stuj(240);
    ppn(240);
    cekej(2);
    EXPECT_EQ(cesty[0].PN_do, -3) << "put to stop";
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_FALSE(pn_sviti(240));

    cesty.assign(1, Cesta{});
    relief.imgVyhybka[5].stav = TextPohled("2");
    postav(240, 42, druh_volby::pn);
    posun_cas(cesty[0].PN_do - ted_s());
    ppn(240); // between the second that ends it and the next step of the machine
    cekej(2);
    EXPECT_EQ(cesty[0].PN_do, -3) << "run out";
    EXPECT_FALSE(pn_sviti(240));
}

TEST_F(Uvolneni, RNZReleasesACallingOnRouteAfterItsAspect) {
    postav(240, 41, druh_volby::pn);
    rnz(240);
    ASSERT_EQ(cesty[0].zacatek, 240) << "the aspect still runs";
    cekej(31);
    rnz(240);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(stav(5), 2);
    EXPECT_EQ(zapsano({104, 240, 0}), 1u);
}

struct PodVlakem : Uvolneni {
    // A train stands on switch 5 of a calling-on route whose aspect is over, and RNZ has been given.
    PodVlakem() {
        postav(240, 41, druh_volby::pn);
        cekej(31);
        cesty[0].Umazat = 1;
        cesty[0].Vlak = 0;
        vlaky[0].prvky = prvky_cesty({40, 5});
        vlaky[0].prvek_konec = 0;
        rnz(240);
    }
};

TEST_F(PodVlakem, RNZLeavesTheRecordToItsEnd) {
    ASSERT_EQ(cesty[0].zacatek, 240);
    EXPECT_TRUE(cesty[0].PN_zaver);
    vlaky[0].prvky = prvky_cesty({40, 5, 41});
    vlaky[0].prvek_konec = 2;
    rnz(240);
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(PodVlakem, SecondRNZTouchesNoSwitchThatAnotherRouteHasLocked) {
    ASSERT_EQ(stav(5), 2);
    vyhybka_stav(5, 202, false, false); // locked by a shunt route since
    rnz(240);
    EXPECT_EQ(stav(5), 202);
}

TEST_F(Uvolneni, RNZFreesTheLineOfACallingOnRoute) {
    postav(241, 604, druh_volby::pn);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::azurova);
    cekej(31);
    rnz(241);
    EXPECT_EQ(relief.lblSouhlas2[604].barva, barvy::seda);
}

// --- the whole life of a route under a train

// A train of one section runs over the route, as the running does it: head, then tail.
namespace {

void prejed(std::size_t i, int vlak) {
    const std::int16_t zacatek = cesty[i].zacatek;
    cesty[i].Vlak = static_cast<std::int16_t>(vlak);
    for (std::size_t k = 1; k < cesty[i].prvky.size(); ++k) {
        const int n = cesty[i].prvky[k].prvek;
        if (druh_na(cesty[i], k) == druh_prvku::vyhybka)
            vyhybka_stav(n, poloha_na(cesty[i], k) + 150, false, false);
        else
            barvi_prvek(n, barvy::cervena);
        cesty[i].Umazat = static_cast<std::uint8_t>(k);
        navestidla(zacatek)[zacatek].barva = barvy::seda;
        const int ocas = cesty[i].prvky[k - 1].prvek;
        if (druh_na(cesty[i], k - 1) == druh_prvku::vyhybka) {
            vyhybka_stav(ocas, poloha_na(cesty[i], k - 1), false, false);
        } else if (je_cislo_koleje(ocas) && ocas < 600) {
            barvi_prvek(ocas, barvy::azurova, true);
            pis_cislo(ocas, "", true);
        } else {
            barvi_prvek(ocas, barvy::seda);
        }
    }
}

} // namespace

TEST_F(Uvolneni, SectionsFallAwayBehindATrain) {
    relief.kolej[40].barva = barvy::cervena;
    pis_cislo(40, "1234");
    postav(240, 41);
    EXPECT_EQ(relief.cislo_koleje[41].text(), "1234") << "the number goes before the train";
    prejed(0, 0);
    EXPECT_EQ(barva(40), barvy::azurova);
    EXPECT_TRUE(je_volna(40));
    EXPECT_EQ(relief.cislo_koleje[40].text(), "K40");
    EXPECT_EQ(stav(5), 2);
    EXPECT_EQ(barva(41), barvy::cervena);
    // The section is free for the next route while the train still has its own.
    krok_volby();
    EXPECT_EQ(barva(40), barvy::azurova);
    zarad(41, 40, druh_volby::posun);
    cekej(2);
    EXPECT_TRUE(cesty[1].prehozena);
    smaz_cestu(0);
    krok_volby();
    EXPECT_EQ(barva(40), barvy::azurova) << "now it is reserved by the new route";
    EXPECT_TRUE(odjete.none());
}

TEST_F(Uvolneni, SectionLeftByATrainIsGreyWhenItsRouteIsGone) {
    relief.kolej[40].barva = barvy::cervena;
    postav(240, 41);
    prejed(0, 0);
    smaz_cestu(0);
    krok_volby();
    EXPECT_EQ(barva(40), barvy::seda);
    EXPECT_EQ(relief.cislo_koleje[40].barva, barvy::seda);
}
