// testy/cesty/duvod_test.cpp - why a route waits.
#include "cesty/duvod.h"
#include "cesty/stavedlo.h"
#include "cesty/uvolneni.h"
#include "prvky/stanicni_prejezdy.h"

using Duvod = Stavedlo;

TEST_F(Duvod, NothingIsSaidOfWhatDoesNotWait) {
    EXPECT_EQ(duvod_cekani(0), "");
    EXPECT_EQ(duvod_cekani(-1), "");
    EXPECT_EQ(duvod_cekani(5), "");
    postav(240, 41);
    EXPECT_EQ(duvod_cekani(0), "");
}

TEST_F(Duvod, EachConditionHasItsSentence) {
    prepni_pv_vz(false);
    zarad(240, 41);
    EXPECT_EQ(duvod_cekani(0), "čeká na dobu stavění, zbývá 2 s"_cz);
    cesty[0].varovani = -1;
    EXPECT_EQ(duvod_cekani(0), "čeká na potvrzení výstrahy"_cz);
    cesty[0].varovani = 0;
    cekej(2);
    EXPECT_EQ(duvod_cekani(0), "přestavují se výhybky, závěr za 6 s"_cz);
    cekej(6);
    zarad(240, 42);
    cekej(2);
    EXPECT_EQ(duvod_cekani(1), "výhybka 5 je pod závěrem cesty VC TST S240 TST L41"_cz);
    relief.imgVyhybka[5].stav = TextPohled("152");
    EXPECT_EQ(duvod_cekani(1), "výhybka 5 je obsazena"_cz);
    relief.imgVyhybka[5].stav = TextPohled("2");
    stav_vyhybek.vyhybka_pohyb.assign(10, false);
    stav_vyhybek.vyhybka_pohyb[5] = true;
    EXPECT_EQ(duvod_cekani(1), "výhybka 5 se přestavuje"_cz);
    stav_vyhybek.vyhybka_pohyb[5] = false;
    relief.kolej[42].barva = barvy::cervena;
    EXPECT_EQ(duvod_cekani(1), "úsek K42 je obsazen"_cz);
    relief.navestidlo[240].barva = barvy::cervena;
    EXPECT_EQ(duvod_cekani(1), "návěstidlo TST S240 je zablokováno (ZAM)"_cz);
}

TEST_F(Duvod, SwitchOfAPairIsNamedByItself) {
    prepni_pv_vz(false);
    relief.imgVyhybka[7].stav = TextPohled("77");
    zarad(240, 47);
    cekej(2);
    EXPECT_EQ(duvod_cekani(0), "výhybka 7a je pod závěrem"_cz);
}

TEST_F(Duvod, SwitchThatRunsForAnotherRouteNamesIt) {
    prepni_pv_vz(false);
    zarad(240, 42);
    cekej(2);
    zarad(240, 41);
    cekej(2);
    ASSERT_TRUE(vyhybka_v_pohybu(5));
    EXPECT_EQ(duvod_cekani(1), Text("výhybka 5 se přestavuje pro cestu "_cz) + popis_cesty(0));
}

// The first route has been run over and its record stands as long as its train is held at the platform;
// what its tail has left belongs to the next one.
TEST_F(Duvod, RouteThatHoldsTheElementNowIsNamed) {
    prepni_pv_vz(false);
    postav(240, 41);
    cesty[0].Umazat = 2;
    relief.imgVyhybka[5].stav = TextPohled("2");
    postav(240, 42);
    zarad(41, 40);
    cekej(2);
    EXPECT_EQ(duvod_cekani(2), Text("výhybka 5 je pod závěrem cesty "_cz) + popis_cesty(1));
}

TEST_F(Duvod, FlankProtectionTellsWhatItLacks) {
    zat.push_back({243, 44, prvky_cesty({43, 5, 6, 44}, {1, 2, 2, 1}, {0, 2, 5, 0}), 0});
    postav_tabulky();
    prepni_pv_vz(false);
    relief.imgVyhybka[6].nahore = 4195; // 7 lies at the fourth corner
    relief.imgVyhybka[7].vlevo = relief.imgVyhybka[6].vlevo();
    relief.imgVyhybka[7].nahore = 4000;
    zarad(240, 47);
    cekej(3);
    zarad(243, 44);
    cekej(2);
    EXPECT_EQ(duvod_cekani(1),
              Text("výhybka 7a nedává boční ochranu, protože se přestavuje pro cestu "_cz) + popis_cesty(0));
    cekej(6);
    EXPECT_EQ(duvod_cekani(1),
              Text("výhybka 7a nedává boční ochranu, protože je pod závěrem cesty "_cz) + popis_cesty(0));
}

TEST_F(Duvod, CrossingTrackIsNamedInsteadOfTheFreeOne) {
    kolej(106, 4000, 5000, 4390);
    kolej(543, 4000, 5000, 4390);
    zat.push_back({243, 44, prvky_cesty({43, 106, 44}, {1, 1, 1}, {0, 0, 0}), 0});
    postav_tabulky();
    zarad(243, 44);
    relief.kolej[543].barva = barvy::cervena;
    cekej(2);
    EXPECT_EQ(duvod_cekani(0), "křižující úsek 543 je obsazen"_cz);
    relief.kolej[106].barva = barvy::cervena;
    EXPECT_EQ(duvod_cekani(0), "úsek 106 je obsazen"_cz);
}

// A calling-on route locks no track, yet no train route may come to meet its train.
TEST_F(Duvod, RouteThatHoldsTheEndIsNamed) {
    prepni_pv_vz(false);
    postav(240, 41, druh_volby::pn);
    zarad(604, 41).varovani = 0; // the calling-on signal shines in the same station
    cekej(2);
    EXPECT_EQ(duvod_cekani(1), Text("konec cesty drží cesta "_cz) + popis_cesty(0));
    cesty[0].prehozena = cesty[0].Postavena = false;
    EXPECT_EQ(duvod_cekani(1), "");
}

TEST_F(Duvod, TrainRouteToTheEndOfAShuntRouteIsNamed) {
    zpc.push_back({242, 41, prvky_cesty({42, 6, 41}, {1, 2, 1}, {0, 6, 0}), 0});
    postav_tabulky();
    prepni_pv_vz(false);
    zarad(240, 41);
    cekej(3);
    ASSERT_EQ(barva(41), barvy::azurova);
    zarad(242, 41, druh_volby::posun);
    cekej(2);
    EXPECT_EQ(duvod_cekani(1), Text("na konec cesty vede cesta "_cz) + popis_cesty(0));
}

TEST_F(Duvod, WaitingLineAsksForTheRouteThatWaits) {
    prepni_pv_vz(false);
    postav(240, 41);
    zarad(240, 41);
    cekej(3);
    ASSERT_EQ(cesty[0].ZT, cesty[1].ZT);
    EXPECT_EQ(duvod_zasobniku(), duvod_cekani(1));
    EXPECT_EQ(duvod_zasobniku(), Text("výhybka 5 je pod závěrem cesty "_cz) + popis_cesty(0));
    EXPECT_EQ(duvod_u_navestidla(240), duvod_cekani(1));
    EXPECT_EQ(duvod_u_navestidla(241), "");
}

TEST_F(Duvod, BlockedRouteBeforeIsNamedUnderVZ) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    zarad(46, 118);
    cekej(3);
    EXPECT_EQ(duvod_cekani(0), "úsek TST L41 je obsazen"_cz);
    EXPECT_EQ(duvod_cekani(1), "před ní čeká cesta VC TST S240 TST L41 (VZ)"_cz);
    prepni_pv_vz(false);
    EXPECT_EQ(duvod_cekani(1), "");
}

TEST_F(Duvod, LinesAndConsentsHaveTheirSentences) {
    prepni_pv_vz(false);
    relief.lblSouhlas[0].barva = barvy::modra;
    relief.lblSouhlas2[118].barva = barvy::azurova;
    relief.lblSouhlas2[604].text = TextPohled("<<");
    relief.lblSouhlas2[604].barva = barvy::azurova;
    zarad(40, 84);
    zarad(46, 118);
    zarad(241, 604);
    cekej(3);
    EXPECT_EQ(duvod_cekani(0), "souhlas PLH-JAV není volný"_cz);
    EXPECT_EQ(duvod_cekani(1), "směr na koleji 118 není volný"_cz);
    EXPECT_EQ(duvod_cekani(2), "na traťové koleji TRT platí opačný směr"_cz);
}

TEST_F(Duvod, CrossingCancellationAndStopHaveTheirSentences) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(12);
    EXPECT_EQ(duvod_cekani(0), "čeká na uzavření přejezdu 140,310, zbývá 30 s"_cz);
    stanicni_prejezdy[0].cas = -3;
    cekej(1);
    navestidlo_stuj(240);
    EXPECT_EQ(duvod_cekani(0), "návěstidlo je na STŮJ, návěst obnoví DN"_cz);
    relief.navestidlo[240].barva = barvy::cervena;
    EXPECT_EQ(duvod_cekani(0), "návěstidlo TST S240 je zablokováno (ZAM)"_cz) << "DN is refused, too";
    relief.navestidlo[240].barva = barvy::seda;
    obnov_cestu(240);
    zrus_cestu(240);
    EXPECT_EQ(duvod_cekani(0), "ruší se, závěr se uvolní za 180 s"_cz);
}

TEST_F(Duvod, CallingOnRouteWaitsForItsRelease) {
    postav(240, 41, druh_volby::pn);
    EXPECT_EQ(duvod_cekani(0), "");
    cekej(31);
    EXPECT_EQ(duvod_cekani(0), "přivolávací návěst skončila, závěr uvolní RNZ"_cz);
}

TEST_F(Duvod, RouteBehindTheWalkSaysSo) {
    postav(240, 41);
    cesty.resize(256, cesty[0]);
    zarad(604, 41);
    cekej(3);
    ASSERT_FALSE(cesty[256].prehozena);
    EXPECT_EQ(duvod_cekani(256), "je před ní 256 cest, víc jich stavědlo naráz neobslouží"_cz);
    EXPECT_EQ(duvod_cekani(255), "");
}

TEST_F(Duvod, AskingChangesNothing) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    zarad(241, 604);
    cekej(3);
    const Relief pred = relief;
    const auto cesty_pred = cesty;
    for (int i = 0; i < 2; ++i)
        duvod_cekani(i);
    EXPECT_EQ(relief, pred);
    EXPECT_EQ(cesty, cesty_pred);
}
