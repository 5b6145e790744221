// testy/cesty/dotazy_test.cpp - questions about tracks and routes, removal of a route.
#include "cesty/dotazy.h"
#include "cesty/stavedlo.h"
#include "prvky/barvi_prvek.h"
#include "prvky/jmena.h"
#include "prvky/volnost.h"

using Dotazy = Stavedlo;

TEST_F(Dotazy, EmptyTableFindsNothing) {
    for (const int n : {-3, 0, 41, 84, 240, 604, 998}) {
        EXPECT_TRUE(cil_volny(n));
        EXPECT_FALSE(je_nastaveno_z(n));
        EXPECT_FALSE(je_nastaveno_posun_z(n));
        EXPECT_FALSE(je_posun_do(n));
        EXPECT_FALSE(je_vlak_do(n));
        EXPECT_FALSE(pn_sviti(n));
        EXPECT_FALSE(pn_skoncila(n));
        EXPECT_FALSE(dn_mozne(n));
        EXPECT_FALSE(rc_mozne(n));
    }
}

TEST_F(Dotazy, RemovalOfTheFirstRouteMovesTheOthersDown) {
    zarad(240, 41);
    zarad(241, 604);
    smaz_cestu(0);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, 241);
    smaz_cestu(0);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0], Cesta{});
}

TEST_F(Dotazy, TwoPartsOfATrackAreFreeTogether) {
    for (const int n : {309, 328, 177, 178, 316, 369, 106, 543})
        kolej(n, 0, 100, 0);
    EXPECT_TRUE(je_volna(309));
    relief.kolej[328].barva = barvy::cervena;
    EXPECT_FALSE(je_volna(309));
    EXPECT_FALSE(je_volna(328));
    relief.kolej[106].barva = barvy::zelena;
    EXPECT_FALSE(je_volna(543));
    EXPECT_TRUE(je_volna(177));
}

TEST_F(Dotazy, EndIsHeldByACommandedRoute) {
    zarad(240, 41);
    EXPECT_TRUE(cil_volny(41));
    EXPECT_FALSE(je_vlak_do(41));
    cekej(3);
    ASSERT_TRUE(cesty[0].prehozena);
    EXPECT_FALSE(cil_volny(41));
    EXPECT_TRUE(je_vlak_do(41));
    EXPECT_TRUE(rc_mozne(240));
    EXPECT_FALSE(dn_mozne(240));
    EXPECT_FALSE(je_nastaveno_z(40));
    cekej(8);
    EXPECT_TRUE(je_nastaveno_z(40));
    EXPECT_TRUE(dn_mozne(240));
    cesty[0].Umazat = 1;
    EXPECT_FALSE(je_nastaveno_z(40));
    EXPECT_FALSE(rc_mozne(240));
    EXPECT_FALSE(je_vlak_do(41));
}

TEST_F(Dotazy, LineIsHeldByARouteThatIsNotRunToItsEnd) {
    postav(241, 604);
    ASSERT_EQ(cesty[0].prvky.back().prvek, 704);
    EXPECT_FALSE(cil_volny(704));
    cesty[0].Umazat = static_cast<std::uint8_t>(cesty[0].prvky.size() - 1);
    EXPECT_TRUE(cil_volny(704));
    relief.kolej[704].barva = barvy::cervena;
    EXPECT_FALSE(cil_volny(704));
}

TEST_F(Dotazy, ShuntRouteLeadsToItsEndUntilItIsRun) {
    postav(240, 41, druh_volby::posun);
    EXPECT_TRUE(je_posun_do(41));
    EXPECT_TRUE(je_nastaveno_posun_z(40));
    cesty[0].Umazat = 2;
    EXPECT_FALSE(je_posun_do(41));
    EXPECT_FALSE(je_nastaveno_posun_z(40));
}

TEST_F(Dotazy, TextOfARouteNamesItsEnds) {
    zarad(240, 41);
    zarad(240, 42);
    zarad(240, 41, druh_volby::posun);
    zarad(240, 43, druh_volby::pn);
    EXPECT_EQ(popis_cesty(0), "VC TST S240 TST L41");
    EXPECT_EQ(popis_cesty(1), "VC TST S240 K42 400m");
    EXPECT_EQ(popis_cesty(2), "PC TST S240 TST L41");
    EXPECT_EQ(popis_cesty(3), "PN TST S240 K43 250m");
}

TEST_F(Dotazy, GlyphTellsTheFacing) {
    for (const int glyf : {8, 229, 228, 227, 176}) {
        relief.navestidlo[240].text = " " + znak(glyf) + " ";
        EXPECT_TRUE(sude_navestidlo(240)) << glyf;
    }
    for (const int glyf : {15, 183, 226, 230}) {
        relief.navestidlo[240].text = znak(glyf);
        EXPECT_FALSE(sude_navestidlo(240)) << glyf;
    }
    for (const int n : {317, 225, 318, 519, 520, 576, 577})
        EXPECT_TRUE(sude_navestidlo(n));
    relief.navestidlo_ser[545].text = znak(242);
    EXPECT_TRUE(sude_navestidlo(545));
    relief.navestidlo_ser[545].text = znak(241);
    EXPECT_FALSE(sude_navestidlo(545));
    EXPECT_FALSE(sude_navestidlo(999));
}

TEST_F(Dotazy, SectionLeftByATailIsFreeAndComesToRest) {
    zarad(240, 41);
    cesty[0].Vlak = 0;
    cesty[0].Umazat = 2;
    barvi_prvek(40, barvy::azurova, true);
    EXPECT_EQ(barva(40), barvy::azurova);
    EXPECT_TRUE(je_volna(40));
    uklid_odjete();
    EXPECT_EQ(barva(40), barvy::azurova) << "its train is still on the route";
    cesty[0].Vlak = -10;
    uklid_odjete();
    EXPECT_EQ(barva(40), barvy::seda);
    EXPECT_TRUE(odjete.none());
}

TEST_F(Dotazy, AfterALoadCyanThatNoRouteHoldsWasLeftByATail) {
    zarad(240, 41);
    cesty[0].prehozena = true;
    for (const int n : {41, 43, 604})
        relief.kolej[n].barva = barvy::azurova;
    obnov_odjete();
    EXPECT_FALSE(je_volna(41));
    EXPECT_TRUE(je_volna(43));
    EXPECT_FALSE(je_volna(604));
    uklid_odjete();
    EXPECT_EQ(barva(43), barvy::seda);
}

TEST_F(Dotazy, AfterALoadACallingOnRouteWithoutItsTrainReservesNothing) {
    zarad(240, 41);
    cesty[0].prehozena = true;
    relief.kolej[41].barva = barvy::azurova;
    cesty[0].PN = true;
    obnov_odjete();
    EXPECT_TRUE(je_volna(41));
    cesty[0].PN = false;
    obnov_odjete();
    EXPECT_FALSE(je_volna(41));
}

TEST_F(Dotazy, AfterALoadTheTracksBeforeATrainOnACallingOnRouteStayReserved) {
    zarad(240, 41);
    cesty[0].prehozena = true;
    cesty[0].Vlak = 0;
    cesty[0].Umazat = 1; // the head is on the first section behind the signal
    ASSERT_GT(cesty[0].prvky.size(), 2u);
    const int pred_vlakem = cesty[0].prvky.back().prvek;
    relief.kolej[pred_vlakem].barva = relief.kolej[cesty[0].prvky.front().prvek].barva = barvy::azurova;
    obnov_odjete();
    EXPECT_FALSE(je_volna(pred_vlakem));
    EXPECT_TRUE(je_volna(cesty[0].prvky.front().prvek));
    uklid_odjete();
    EXPECT_EQ(barva(pred_vlakem), barvy::azurova);
}
