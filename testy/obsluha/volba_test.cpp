// testy/obsluha/volba_test.cpp - picks, the stack and the warnings.
#include "app/casovace.h"
#include "cesty/stavedlo.h"
#include "obsluha/volba.h"
#include "pomocne/prvky_cesty.h"

using Volba = Stavedlo;

namespace {

void pridej_stitek(int prvek, TextPohled stitek, TextPohled nvl, TextPohled vyluka) {
    stitky.push_back({static_cast<std::int16_t>(prvek), Text(stitek), Text(nvl), Text(vyluka)});
}

} // namespace

TEST_F(Volba, LeftClickPicksTheStartOfATrainRoute) {
    klik(240);
    EXPECT_EQ(vyber.volba_zacatek, 240);
    EXPECT_EQ(vyber.volba_konec, -3);
    EXPECT_EQ(vyber.volba_druh, 1);
    EXPECT_EQ(vyber.volba_navestidlo, 240);
    EXPECT_EQ(vyber.volba_cas, 8 * 3600);
    EXPECT_FALSE(vyber.volba_posun);
    EXPECT_EQ(prikaz(), " VC ");
    EXPECT_EQ(volba(), "TST S240");
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::zelena);
    EXPECT_EQ(relief.navestidlo[240].pozadi, barvy::zelena);
    EXPECT_TRUE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(simulace.detail_navestidlo, 240);
    EXPECT_EQ(pipnuto(800, 10), 1u);
    EXPECT_EQ(zapsano({11, 240, 0}), 1u);
}

TEST_F(Volba, CtrlAndTheMiddleButtonPickAShuntRoute) {
    klik(240, true);
    EXPECT_EQ(vyber.volba_druh, 2);
    EXPECT_TRUE(vyber.volba_posun);
    EXPECT_EQ(prikaz(), " PC ");
    EXPECT_EQ(relief.navestidlo[240].pozadi, barvy::bila);
    klik_navestidlo(241, Tlacitko::prostredni, false);
    EXPECT_EQ(vyber.volba_zacatek, 241);
    EXPECT_EQ(vyber.volba_druh, 2);
    EXPECT_EQ(zapsano_kodu(12), 2u);
}

TEST_F(Volba, ShuntSignalPicksAShuntRoute) {
    klik_navestidlo_ser(545, Tlacitko::leve);
    EXPECT_EQ(vyber.volba_druh, 2);
    EXPECT_EQ(vyber.volba_zacatek, 545);
    EXPECT_EQ(relief.navestidlo_ser[545].pozadi, barvy::bila);
    klik_cil(44);
    ASSERT_EQ(cesty[0].zacatek, 545);
    EXPECT_FALSE(cesty[0].VC);
    EXPECT_EQ(relief.cislo_koleje[44].pozadi, barvy::bila);
}

TEST_F(Volba, MenuPicksACallingOnRoute) {
    volba_pn(240);
    EXPECT_EQ(vyber.volba_druh, 3);
    EXPECT_EQ(prikaz(), " PN ");
    EXPECT_EQ(relief.navestidlo[240].pozadi, barvy::azurova);
    EXPECT_EQ(zapsano({13, 240, 0}), 1u);
    klik_cil(41);
    EXPECT_TRUE(cesty[0].VC);
    EXPECT_TRUE(cesty[0].PN);
    EXPECT_EQ(relief.cislo_koleje[41].pozadi, barvy::azurova);
    EXPECT_EQ(zapsano({23, 240, 41}), 1u);
}

TEST_F(Volba, TargetEndsTheSelection) {
    simulace.rychlost = 3;
    relief.cislo_koleje[41].pozadi = 0x808000;
    klik(240);
    klik_cil(41);
    ASSERT_EQ(cesty.size(), 1u);
    const Cesta& c = cesty[0];
    EXPECT_EQ(c.zacatek, 240);
    EXPECT_EQ(c.konec, 41);
    EXPECT_EQ(c.ZT, 1);
    EXPECT_EQ(cisla_prvku(c.prvky), (std::vector<std::int16_t>{40, 5, 41}));
    EXPECT_EQ(polohy_prvku(c.prvky), (std::vector<std::uint8_t>{2, 2, 0}))
        << "the track before the signal is marked";
    EXPECT_TRUE(c.VC);
    EXPECT_EQ(c.cas_stavby, ted_s() + 6);
    EXPECT_EQ(c.Kdy_prehoz, -3);
    EXPECT_EQ(c.barva_cisla, 0x808000);
    EXPECT_EQ(volba(), "TST S240 TST L41");
    EXPECT_EQ(vyber.volba_konec, 41);
    EXPECT_EQ(vyber.volba_cas, -3);
    EXPECT_EQ(vyber.volba_druh, 0);
    EXPECT_EQ(vyber.volba_navestidlo, -3);
    EXPECT_EQ(relief.cislo_koleje[41].pozadi, barvy::zelena);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
    EXPECT_EQ(zapsano({21, 240, 41}), 1u);
    EXPECT_EQ(pipnuto(800, 10), 2u);
}

TEST_F(Volba, EndWithoutATargetIsNamedByTrackAndLength) {
    klik(240);
    klik_cil(42);
    EXPECT_EQ(volba(), "TST S240 K42 400m");
}

TEST_F(Volba, SecondClickOnTheSameSignalStartsTheSelectionAnew) {
    klik(240);
    svet.posun_ms(5000);
    klik(240);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(vyber.volba_cas, 8 * 3600 + 5);
    EXPECT_EQ(vyber.volba_zacatek, 240);
}

TEST_F(Volba, OppositeFacingBeginsAFreshSelection) {
    klik(240);
    klik(41);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(vyber.volba_zacatek, 41);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_TRUE(relief.navestidlo[41].ramecek);
}

TEST_F(Volba, ThreeClicksBuildAChain) {
    klik(240);
    klik(241);
    ASSERT_EQ(cesty[0].konec, 41);
    EXPECT_EQ(vyber.volba_zacatek, 241);
    EXPECT_EQ(vyber.volba_druh, 1) << "the new start must be ready for its end";
    navest(605, 229, "TRT S605");
    klik(605);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[1].zacatek, 241);
    EXPECT_EQ(cesty[1].konec, 604);
    EXPECT_EQ(vyber.volba_zacatek, 605);
}

TEST_F(Volba, CtrlClickEndsAShuntRoute) {
    klik(240, true);
    klik(241, true);
    ASSERT_EQ(cesty[0].konec, 41);
    EXPECT_FALSE(cesty[0].VC);
    EXPECT_EQ(vyber.volba_druh, 2);
}

TEST_F(Volba, TrainClickDoesNotEndAShuntSelection) {
    klik(240, true);
    klik(241);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(vyber.volba_druh, 1);
}

TEST_F(Volba, SomePairsOfSignalsNeverChain) {
    for (const int n : {113, 114, 618, 616, 313, 314, 315, 316})
        navest(n, 229, "TST S" + text_cisla(n));
    zat = {{113, 116, prvky_cesty({113, 116}, {1, 1}, {0, 0}), 0},
           {113, 115, prvky_cesty({113, 115}, {1, 1}, {0, 0}), 0}};
    postav_tabulky();
    stitek(115, "115");
    klik(113);
    klik(316);
    EXPECT_EQ(cesty[0].zacatek, -3);
    klik(113);
    klik(315);
    EXPECT_EQ(cesty[0].konec, 115) << "only the named pairs are excepted";
}

TEST_F(Volba, EndPickAfterTheLimitIsIgnored) {
    klik(240);
    svet.posun_ms(10000);
    krok_volby();
    EXPECT_EQ(vyber.volba_zacatek, 240) << "ten seconds are still allowed";
    svet.posun_ms(1000);
    krok_volby();
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_EQ(vyber.volba_cas, -3);
    EXPECT_EQ(prikaz(), " VOLBA ");
    EXPECT_EQ(volba(), " Překročen časový limit volby!"_cz);
    EXPECT_EQ(pipnuto(100, 200), 1u);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    klik_cil(41);
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Volba, LimitBeginsAnewAtMidnightOfTheWallClock) {
    svet.cas.hodina = 23;
    svet.cas.minuta = 59;
    svet.cas.sekunda = 57;
    klik(240);
    svet.posun_ms(5000);
    krok_volby();
    svet.posun_ms(9000);
    krok_volby();
    EXPECT_EQ(vyber.volba_zacatek, 240);
    svet.posun_ms(3000);
    krok_volby();
    EXPECT_EQ(vyber.volba_zacatek, -3);
}

TEST_F(Volba, UnknownRouteIsToldAndLeavesNothing) {
    klik(240);
    klik_cil(44);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(prikaz(), " VC ");
    EXPECT_EQ(volba(), " Cesta nenalezena v závěrové tabulce ! "_cz);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::cervena);
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::bila);
    EXPECT_EQ(pipnuto(100, 200), 1u);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_EQ(vyber.volba_konec, -3);
    EXPECT_EQ(vyber.volba_navestidlo, -3);
    EXPECT_EQ(vyber.volba_druh, 0);
}

TEST_F(Volba, UnknownCallingOnRouteSaysPN) {
    volba_pn(545);
    EXPECT_EQ(vyber.volba_druh, 3);
    klik_cil(44); // only the shunt table holds it
    EXPECT_EQ(prikaz(), " PN ");
    EXPECT_EQ(volba(), " Cesta nenalezena v závěrové tabulce ! "_cz);
    EXPECT_EQ(pipnuto(100, 200), 1u);
}

TEST_F(Volba, GreenStartKeepsItsHighlightAtAFailedLookUp) {
    relief.navestidlo[240].barva = barvy::zelena;
    klik(240);
    EXPECT_TRUE(vyber.volba_svetla);
    klik_cil(44);
    EXPECT_TRUE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(relief.navestidlo[240].pozadi, barvy::zelena);
}

TEST_F(Volba, BlockedSignalsRefuse) {
    relief.navestidlo[240].barva = barvy::cervena;
    klik(240);
    EXPECT_EQ(prikaz(), " ZAM ");
    EXPECT_EQ(volba(), " Návěstidlo zablokováno v poloze STŮJ!"_cz);
    EXPECT_EQ(vyber.volba_zacatek, -3);
    skryj_prikaz();
    volba_pn(240);
    EXPECT_EQ(prikaz(), " ZAM ");
    skryj_prikaz();
    relief.navestidlo_ser[545].barva = barvy::modra;
    klik_navestidlo_ser(545, Tlacitko::leve);
    EXPECT_EQ(volba(), " Návěstidlo zablokováno v poloze POSUN ZAKÁZÁN!"_cz);
    EXPECT_EQ(vyber.volba_zacatek, -3);
}

TEST_F(Volba, DeadSignalsTakeNoClicks) {
    relief.navestidlo[240].pozadi = barvy::seda;
    klik(240);
    relief.navestidlo[241].barva = barvy::purpurova;
    klik(241);
    simulace.pauza = true;
    klik(41);
    klik_navestidlo_ser(545, Tlacitko::leve);
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Volba, NotesOnTheEndHoldTheRouteUntilOneConfirmation) {
    pridej_stitek(41, "stitek", "nvl", "vyluka");
    klik(240);
    klik_cil(41);
    EXPECT_NE(cesty[0].varovani, 0);
    EXPECT_EQ(prikaz(), " POZOR VYLUKA ");
    EXPECT_EQ(volba(), " vyluka");
    EXPECT_TRUE(prikaz_radek.blikani_prikazu);
    EXPECT_EQ(pipnuto(800, 100), 3u);
    cekej(10);
    EXPECT_FALSE(cesty[0].prehozena);
    potvrd_varovani();
    EXPECT_EQ(cesty[0].varovani, 0);
    EXPECT_EQ(pipnuto(400, 150), 1u);
    dalsi_zprava();
    EXPECT_EQ(prikaz(), " POZOR NVL ");
    potvrd_varovani();
    dalsi_zprava();
    EXPECT_EQ(prikaz(), " POZOR STITEK ");
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena) << "the first Enter has freed it";
}

TEST_F(Volba, NoteOnTheLabelOfALineWarnsARouteThatEndsFartherOn) {
    zat.push_back({240, 604, prvky_cesty({40, 6, 654}, {1, 2, 1}, {0, 5, 0}), 0});
    postav_tabulky();
    pridej_stitek(604, "", "", "vyluka");
    klik(240);
    klik_cil(604);
    EXPECT_NE(cesty[0].varovani, 0);
    EXPECT_EQ(volba(), " vyluka");
}

TEST_F(Volba, EscTakesTheWarningsOfTheDroppedRouteAlong) {
    pridej_stitek(41, "stitek", "nvl", "vyluka");
    klik(240);
    klik_cil(41);
    zrus_volbu();
    EXPECT_EQ(prikaz(), "");
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_FALSE(prikaz_radek.blikani_prikazu);
    dalsi_zprava();
    EXPECT_EQ(prikaz(), "") << "none of the three waits";
}

TEST_F(Volba, EscLeavesTheWarningOfAnotherRoute) {
    pridej_stitek(41, "", "nvl", "");
    pridej_stitek(42, "", "jine", "");
    zarad(240, 41);
    klik(240);
    klik_cil(42);
    zrus_volbu();
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_NE(cesty[0].varovani, 0);
    EXPECT_EQ(prikaz(), " POZOR NVL ");
}

TEST_F(Volba, MessageBehindTheWarningsOfADroppedRouteComes) {
    pridej_stitek(41, "", "nvl", "");
    klik(240);
    klik_cil(41);
    zprava(" M ", "jina", barvy::cervena);
    zrus_volbu();
    EXPECT_EQ(prikaz(), " M ");
}

TEST_F(Volba, TagOnTheLineStopsClicksOnMainSignals) {
    pridej_stitek(41, "stitek", "", "");
    klik(240);
    klik_cil(41);
    ASSERT_EQ(prikaz(), " POZOR STITEK ");
    klik(241);
    volba_pn(241);
    EXPECT_EQ(vyber.volba_zacatek, 240);
    klik_navestidlo_ser(545, Tlacitko::leve);
    EXPECT_EQ(vyber.volba_zacatek, 545);
    EXPECT_EQ(prikaz(), " POZOR STITEK ") << "the warning stays until it is confirmed";
}

TEST_F(Volba, CallingOnSignalInTheSameStationIsToldOnce) {
    zarad(240, 43, druh_volby::pn);
    skryj_prikaz();
    svet.pipnuti.clear();
    zarad(241, 604);
    EXPECT_EQ(prikaz(), " POZOR PN ");
    EXPECT_EQ(volba(), Text("TST S240") + Text(" Svítí přivolávací návěst  !"_cz));
    EXPECT_NE(cesty[1].varovani, 0);
    EXPECT_EQ(pipnuto(800, 300), 1u);
    skryj_prikaz();
    EXPECT_EQ(zarad(240, 41, druh_volby::posun).varovani, 0) << "shunting is not concerned";
    relief.navestidlo[241].popis = TextPohled("XYZ S1");
    EXPECT_EQ(zarad(241, 604).varovani, 0);
}

TEST_F(Volba, EscTakesTheNewestPickBack) {
    relief.cislo_koleje[41].pozadi = 0x808000;
    klik(240);
    klik_cil(41);
    zrus_volbu();
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(cesty[0].konec, -3);
    EXPECT_EQ(cesty[0].cas_stavby, -3);
    EXPECT_EQ(relief.cislo_koleje[41].pozadi, 0x808000);
    EXPECT_TRUE(relief.cislo_koleje[41].ramecek);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "00");
    EXPECT_EQ(prikaz(), "");
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_EQ(vyber.volba_konec, -3);
}

TEST_F(Volba, EscLeavesACommandedRoute) {
    klik(240);
    klik_cil(41);
    cesty[0].prehozena = true;
    zrus_volbu();
    EXPECT_EQ(cesty[0].zacatek, 240);
}

TEST_F(Volba, EscDropsOnlyTheStart) {
    klik(240);
    zrus_volbu();
    EXPECT_EQ(vyber.volba_zacatek, -3);
    svet.posun_ms(60000);
    krok_volby();
    EXPECT_EQ(prikaz(), "") << "a dropped selection does not run out of time";
}

TEST_F(Volba, ReusedFirstRecordCarriesNothingOver) {
    volba_pn(240);
    klik_cil(41);
    cesty[0].varovani = -1;
    cesty[0].prejezd = 1;
    cesty[0].PN_do = 77;
    zrus_volbu();
    klik(240);
    klik_cil(42);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_FALSE(cesty[0].PN);
    EXPECT_EQ(cesty[0].varovani, 0);
    EXPECT_EQ(cesty[0].PN_do, -3);
    EXPECT_EQ(cesty[0].prejezd, 0);
    zarad(241, 604);
    EXPECT_EQ(cesty[1].prejezd, kBezPrejezdu);
}

TEST_F(Volba, EmptyDeskDropsTheSelection) {
    klik(240);
    klik_plocha();
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(vyber.volba_druh, 0);
    EXPECT_EQ(vyber.volba_navestidlo, -3);
    EXPECT_EQ(vyber.volba_cas, -3);
    EXPECT_EQ(vyber.volba_zacatek, 240);
    klik_cil(41);
    EXPECT_EQ(cesty[0].zacatek, -3) << "without a kind no route is looked up";
}

TEST_F(Volba, PromptGoesWithItsChoice) {
    klik(240);
    klik_plocha();
    EXPECT_FALSE(prikaz_radek.obsazen);
    klik(240);
    klik_cil(44);
    EXPECT_TRUE(prikaz_radek.obsazen);
    klik_plocha();
    EXPECT_FALSE(prikaz_radek.obsazen);
    zprava(" M ", "text", barvy::cervena);
    klik_plocha();
    EXPECT_EQ(prikaz(), " M "); // other messages stay
}

TEST_F(Volba, ChoiceIsToldBesideTheMessageThatHoldsTheLine) {
    EXPECT_FALSE(vyzva_mimo_radek());
    klik(240);
    EXPECT_FALSE(vyzva_mimo_radek()); // the line itself tells it
    zrus_volbu();
    zprava(" POZOR NVL "_cz, "omezení"_cz, barvy::cervena);
    klik(240);
    EXPECT_EQ(prikaz(), " POZOR NVL ");
    EXPECT_EQ(vyzva_mimo_radek(), (Vyzva{" VC ", "TST S240", barvy::bila, barvy::zelena}));
    klik(240, true);
    EXPECT_EQ(vyzva_mimo_radek(), (Vyzva{" PC ", "TST S240", barvy::bila, barvy::cerna}));
    volba_pn(240);
    EXPECT_EQ(vyzva_mimo_radek(), (Vyzva{" PN ", "TST S240", barvy::bila, barvy::azurova}));
    zrus_volbu();
    EXPECT_FALSE(vyzva_mimo_radek());
    klik(240);
    klik_plocha();
    EXPECT_FALSE(vyzva_mimo_radek());
    klik(240);
    klik_cil(44);
    EXPECT_FALSE(vyzva_mimo_radek()); // chosen: the stack has it
}

TEST_F(Volba, EmptyDeskKeepsTheHighlightOfAClearedSignal) {
    relief.navestidlo[240].barva = barvy::zelena;
    klik(240);
    klik_plocha();
    EXPECT_TRUE(relief.navestidlo[240].ramecek);
}

namespace {

struct Dvojity {
    int konec, zacatek, pres, dal;
};
constexpr std::array<Dvojity, 17> kDvojite = {{{604, 284, 2, 202},
                                               {606, 285, 3, 203},
                                               {84, 604, 2, 2},
                                               {85, 606, 3, 3},
                                               {20, 601, 12, 212},
                                               {19, 603, 11, 211},
                                               {21, 297, 10, 210},
                                               {600, 20, 12, 12},
                                               {602, 19, 11, 11},
                                               {624, 621, 73, 273},
                                               {626, 623, 72, 272},
                                               {620, 624, 73, 73},
                                               {622, 626, 72, 72},
                                               {120, 619, 37, 237},
                                               {123, 617, 36, 236},
                                               {618, 120, 37, 37},
                                               {616, 123, 36, 36}}};

ZaznamCesty prima(int zacatek, int konec) {
    return {static_cast<std::int16_t>(zacatek), static_cast<std::int16_t>(konec),
            prvky_cesty({40, 41}, {1, 1}, {0, 0}), 0};
}

} // namespace

TEST_F(Volba, ShortConnectingSectionsAreRunOverByOneClick) {
    for (const Dvojity& d : kDvojite) {
        zat = {prima(d.zacatek, d.pres), prima(d.dal, d.konec)};
        postav_tabulky();
        cesty.assign(1, Cesta{});
        vyber = Vyber{};
        vyber.volba_zacatek = static_cast<std::int16_t>(d.zacatek);
        vyber.volba_druh = 1;
        klik_cil(d.konec);
        ASSERT_EQ(cesty.size(), 2u) << d.zacatek << " to " << d.konec;
        EXPECT_EQ(cesty[0].konec, d.pres);
        EXPECT_EQ(cesty[1].zacatek, d.dal);
        EXPECT_EQ(cesty[1].konec, d.konec);
        EXPECT_EQ(zapsano({21, d.dal, d.konec}), 1u);
    }
}

TEST_F(Volba, OtherEndOfTheJunctionIsTakenWhenOnlyItIsInTheTable) {
    zat = {prima(624, 73), prima(73, 20)};
    postav_tabulky();
    vyber.volba_zacatek = 624;
    vyber.volba_druh = 1;
    klik_cil(620);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[1].konec, 20);
}

TEST_F(Volba, FailedFirstPartEndsTheDoublePick) {
    zat = {prima(73, 620)};
    postav_tabulky();
    vyber.volba_zacatek = 624;
    vyber.volba_druh = 1;
    klik_cil(620);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(pipnuto(100, 200), 1u);
}

TEST_F(Volba, FailedDoublePickCannotRunOutOfTime) {
    zat = {prima(73, 620)};
    postav_tabulky();
    vyber.volba_zacatek = 624;
    vyber.volba_druh = 1;
    vyber.volba_cas = platforma.nastenny_cas().sekundy_dne() - 60;
    klik_cil(620);
    hlidej_cas_volby();
    EXPECT_EQ(relief.lblVolba[0].text, Text(" Cesta nenalezena v závěrové tabulce ! "_cz));
    EXPECT_EQ(pipnuto(100, 200), 1u);
}

TEST_F(Volba, NumbersOfEndsAreFolded) {
    zat = {prima(240, 41), prima(240, 118), prima(240, 604), prima(240, 12)};
    postav_tabulky();
    for (const auto& [e, konec] :
         std::vector<std::pair<int, int>>{{241, 41}, {513, 118}, {605, 604}, {212, 12}}) {
        vyber = Vyber{};
        vyber.volba_zacatek = 240;
        vyber.volba_druh = 1;
        klik_cil(e);
        EXPECT_EQ(cesty.back().konec, konec);
    }
}

TEST_F(Volba, SignalsAsEndsStandForTheirTracks) {
    zat = {prima(240, 96), prima(240, 118)};
    postav_tabulky();
    navest(633, 229, "TRY S633");
    navest(998, 229, "THN S998");
    klik(240);
    klik(633);
    EXPECT_EQ(cesty.back().konec, 96);
    klik(240);
    klik(998);
    EXPECT_EQ(cesty.back().konec, 118);
}

TEST_F(Volba, ShuntSignalOver699EndsARouteOnItsTrack) {
    zpc = {{545, 520, prvky_cesty({45, 44}, {1, 1}, {0, 0}), 0},
           {545, 566, prvky_cesty({45, 44}, {1, 1}, {0, 0}), 0}};
    postav_tabulky();
    navest(720, 240, "TST Se720");
    navest(566, 240, "TST Se566");
    klik_navestidlo_ser(545, Tlacitko::leve);
    klik_navestidlo_ser(720, Tlacitko::leve);
    EXPECT_EQ(cesty.back().konec, 520);
    klik_navestidlo_ser(545, Tlacitko::leve);
    klik_navestidlo_ser(566, Tlacitko::leve);
    EXPECT_EQ(cesty.back().konec, 566);
}

// --- the stack

TEST_F(Volba, StackCountsWhatWaits) {
    zarad(240, 41);
    zarad(241, 604);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "02");
    cesty[1].Vlak = kKopieAB;
    zmena_zasobniku();
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
    EXPECT_EQ(radky_zasobniku(), std::vector<int>{0});
    cesty[0].Postavena = true;
    zmena_zasobniku();
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "00");
}

TEST_F(Volba, RemovalFromTheStackClearsTheWaitingLine) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    zarad(241, 604);
    cekej(3);
    ASSERT_EQ(relief.lblZasobnik_blokv[0].popis(), "1");
    odeber_ze_zasobniku(0);
    EXPECT_EQ(cesty.size(), 1u);
    EXPECT_EQ(relief.lblZasobnik_blokv[0].popis(), "0");
    EXPECT_EQ(relief.lblZasobnik_blokv[0].text(), "");
    EXPECT_FALSE(relief.lblZasobnik_blokv[0].viditelny);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
}

TEST_F(Volba, CommandedRouteStaysInTheStackList) {
    zarad(240, 41);
    cekej(3);
    ASSERT_TRUE(cesty[0].prehozena);
    odeber_ze_zasobniku(0);
    EXPECT_EQ(cesty[0].zacatek, 240);
    odeber_ze_zasobniku(7);
    odeber_ze_zasobniku(-1);
}

TEST_F(Volba, OrderOfTheStackIsSwitchedByItsWords) {
    EXPECT_TRUE(plati_vz());
    prepni_pv_vz(false);
    EXPECT_FALSE(plati_vz());
    EXPECT_EQ(relief.lblZasobnik_PV[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::seda);
    prepni_pv_vz(true);
    EXPECT_TRUE(plati_vz());
}
