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
    EXPECT_EQ(duvod_cekani(1), "směr na koleji 118 je zavřen"_cz);
    EXPECT_EQ(duvod_cekani(2), "na trati do TRT je opačný směr"_cz);
}

TEST_F(Duvod, CrossingCancellationAndStopHaveTheirSentences) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(12);
    EXPECT_EQ(duvod_cekani(0), "čeká na dobu uzavírání přejezdu 140,310, zbývá 30 s"_cz);
    stanicni_prejezdy[0].cas = -3;
    cekej(1);
    navestidlo_stuj(240);
    EXPECT_EQ(duvod_cekani(0), "návěstidlo je na STŮJ, návěst obnoví DN"_cz);
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
