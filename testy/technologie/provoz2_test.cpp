// testy/technologie/provoz2_test.cpp - the maintenance screen of the stack, the possessions and the macros.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/nova_simulace.h"
#include "cesty/duvod.h"
#include "cesty/stavedlo.h"
#include "cesty/ulozena_makra.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "obsluha/makra.h"
#include "obsluha/vstup.h"
#include "technologie/provoz2.h"

struct Provoz2Obrazovka : Stavedlo {
    Provoz2Obrazovka() {
        simulace.obrazovka = "frmMain";
        relief.lblPauza[0].viditelny = false;
    }
    static void otevri() { ::klik(Druh::lblZasobnik_EZ, 0, Tlacitko::leve, false); }
    static void stiskni(TextPohled jmeno) { klavesa(klavesa_podle_jmena(jmeno)); }
    static std::vector<Text> radky() { return provoz2.lstZasobnik.radky; }
    // Two routes in the stack: the first waits for its limit, the second too.
    static void zarad_dve() {
        zarad(240, 41);
        zarad(242, 604);
    }
    void zapis_makra(const std::vector<ZaznamMakra>& makra) const {
        Zapisovac soubor;
        for (const ZaznamMakra& m : makra)
            popis_zaznamu_makra(soubor, m);
        svet.zapis("data/tesk.mak", soubor.bajty);
    }
};

// --- opening and closing

TEST_F(Provoz2Obrazovka, ClickOnEzStopsTheClockAndShowsTheStack) {
    zarad_dve();
    otevri();
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie2");
    EXPECT_EQ(radky(), (std::vector<Text>{popis_cesty(0), popis_cesty(1)}));
}

TEST_F(Provoz2Obrazovka, OpeningClosesAnOpenMenu) {
    otevri_menu({"mnuVYHYBKA", "", Druh::imgVyhybka, 5, {}});
    otevri_technologii(Technologie::provoz2);
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST_F(Provoz2Obrazovka, EscEnterAndTheEndOfThePauseCloseIt) {
    for (const TextPohled jmeno : {"Esc", "Enter", "F10"}) {
        otevri();
        svet.posun_ms(3'600'000);
        stiskni(jmeno);
        EXPECT_EQ(simulace.obrazovka, "frmMain") << jmeno;
        EXPECT_FALSE(simulace.pauza) << jmeno;
        EXPECT_FALSE(relief.lblPauza[0].viditelny) << jmeno;
        EXPECT_EQ(simulace.tick_hodin, svet.tik) << "the hour over the list costs no simulated time";
        EXPECT_EQ(simulace.tick_jizdy, svet.tik);
        EXPECT_EQ(provoz2, Provoz2{});
    }
}

TEST_F(Provoz2Obrazovka, StaysClosedBeforeTheLogin) {
    zastav_hodiny();
    prikaz_radek.slovo = DruhZpravy::init;
    otevri();
    stiskni("PrintScreen");
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_TRUE(simulace.pauza);
}

TEST_F(Provoz2Obrazovka, NewSimulationForgetsIt) {
    zarad_dve();
    otevri();
    nova_simulace();
    EXPECT_EQ(provoz2, Provoz2{});
    EXPECT_FALSE((otevrena_technologie() == Technologie::provoz2));
}

TEST_F(Provoz2Obrazovka, NoTimerMovesARouteWhileItIsOpen) {
    zarad_dve();
    otevri();
    const std::vector<Cesta> predtim = cesty;
    const Text cas = text_hodin();
    for (int i = 0; i < 60; ++i) {
        svet.posun_ms(1000);
        for (const Casovac& c : casovace)
            c.telo();
    }
    EXPECT_EQ(cesty, predtim);
    EXPECT_EQ(text_hodin(), cas);
}

TEST_F(Provoz2Obrazovka, CoversTheDesk) {
    otevri();
    ::klik(Druh::lblZasobnik_PV, 0, Tlacitko::leve, false);
    EXPECT_TRUE(plati_vz());
    ::klik(Druh::imgVyhybka, 5, Tlacitko::prave, false);
    EXPECT_TRUE(menu.jmeno.empty());
    dvojklik(Druh::cislo_koleje, 41);
    const int rychlost = simulace.rychlost;
    stiskni("Num+");
    EXPECT_EQ(simulace.rychlost, rychlost);
    stiskni("Alt+Shift+A");
    EXPECT_FALSE(makro_se_zaznamenava());
    EXPECT_TRUE((otevrena_technologie() == Technologie::provoz2));
}

TEST_F(Provoz2Obrazovka, ProgramCanBeEndedFromIt) {
    otevri();
    stiskni("Ctrl+Alt+F10");
    EXPECT_TRUE(svet.konec.has_value());
}

// --- head

TEST_F(Provoz2Obrazovka, HeadTellsMajorAndMinorVersion) {
    EXPECT_EQ(hlava_technologie(), " RVZ     Tesk     t0049 f0230      ver " + text_cisla(kVerzeMajor) + "." +
                                       text_cisla(kVerzeMinor));
}

TEST_F(Provoz2Obrazovka, DateFollowsTheComputersClockAndNotTheSimulation) {
    svet.cas = {2005, 1, 1, 12, 38, 39, 0};
    otevri();
    EXPECT_EQ(technologie.lblDatum, " 01.01.05 12:38:39");
    const Text cas = text_hodin();
    svet.cas = {2031, 12, 24, 7, 5, 9, 0};
    EXPECT_EQ(technologie.lblDatum, " 01.01.05 12:38:39") << "only its timer writes it";
    tik_technologie();
    EXPECT_EQ(technologie.lblDatum, " 24.12.31 07:05:09");
    EXPECT_EQ(text_hodin(), cas);
}

TEST_F(Provoz2Obrazovka, DateStandsWhileItIsClosed) {
    tik_technologie();
    EXPECT_EQ(technologie.lblDatum, "");
    EXPECT_EQ(perioda_technologie(), 0);
    otevri();
    EXPECT_GT(perioda_technologie(), 0);
    EXPECT_LE(perioda_technologie(), 1000);
}

TEST_F(Provoz2Obrazovka, NumbersOfRowsHaveALeadingBlankBelowTen) {
    EXPECT_EQ(cisla_radku(0), "");
    const Text deset = cisla_radku(10);
    EXPECT_EQ(deset.substr(0, 8), " 1\r\n 2\r\n");
    EXPECT_EQ(deset.substr(deset.size() - 8), " 9\r\n10\r\n");
}

TEST_F(Provoz2Obrazovka, EveryLineOfALongListHasItsNumber) {
    std::vector<ZaznamMakra> makra;
    for (int i = 0; i < 26; ++i)
        makra.push_back({Text(1, static_cast<char>('A' + i)), {{240, 41, 1}}});
    zapis_makra(makra);
    otevri();
    EXPECT_EQ(technologie.lblCisla2, cisla_radku(26));
    EXPECT_EQ(technologie.lblcisla, cisla_radku(20));
}

// --- the stack

TEST_F(Provoz2Obrazovka, ListHoldsWhatTheCountCounts) {
    postav(240, 41);
    zarad(242, 604);
    cesty.push_back(cesty.back());
    cesty.back().Vlak = kKopieAB;
    zmena_zasobniku();
    otevri();
    EXPECT_EQ(radky(), std::vector<Text>{popis_cesty(1)}) << "neither a standing route nor an automatic copy";
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
}

TEST_F(Provoz2Obrazovka, EmptyStackHasNoLine) {
    otevri();
    EXPECT_TRUE(radky().empty());
    stiskni("Delete");
    EXPECT_EQ(cesty.size(), 1u);
}

TEST_F(Provoz2Obrazovka, DeleteTakesTheRouteOutOfTheStack) {
    zarad_dve();
    const Text druha = popis_cesty(1);
    otevri();
    klik_na_radek(provoz2.lstZasobnik, 0);
    stiskni("Delete");
    EXPECT_EQ(radky(), std::vector<Text>{druha});
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(popis_cesty(0), druha);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, 0) << "the next line takes the selection";
    stiskni("Delete");
    EXPECT_TRUE(radky().empty());
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, -1);
    EXPECT_TRUE((otevrena_technologie() == Technologie::provoz2));
}

TEST_F(Provoz2Obrazovka, DeleteOfTheRouteThatTheStackWaitsForEmptiesTheWaitingLine) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    cekej(12);
    ASSERT_TRUE(ceka_na_ni_zasobnik(cesty[0]));
    otevri();
    klik_na_radek(provoz2.lstZasobnik, 0);
    stiskni("Delete");
    EXPECT_EQ(relief.lblZasobnik_blokv[0].popis(), "0");
    EXPECT_EQ(relief.lblZasobnik_blokv[0].text(), "");
    EXPECT_FALSE(relief.lblZasobnik_blokv[0].viditelny);
}

TEST_F(Provoz2Obrazovka, RouteWithCommandedSwitchesStays) {
    zarad(240, 41);
    while (!cesty[0].prehozena)
        cekej(1);
    otevri();
    ASSERT_EQ(radky().size(), 1u);
    klik_na_radek(provoz2.lstZasobnik, 0);
    stiskni("Delete");
    EXPECT_EQ(radky().size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, 240);
}

TEST_F(Provoz2Obrazovka, DeleteWithoutASelectionRemovesNothing) {
    zarad_dve();
    otevri();
    stiskni("Delete");
    EXPECT_EQ(cesty.size(), 2u);
}

TEST_F(Provoz2Obrazovka, LineThatNoLongerTellsTheStackRemovesNothing) {
    zarad_dve();
    otevri();
    klik_na_radek(provoz2.lstZasobnik, 0);
    std::swap(cesty[0], cesty[1]);
    stiskni("Delete");
    EXPECT_EQ(cesty.size(), 2u);
    EXPECT_EQ(radky()[0], popis_cesty(0)) << "the list is read anew";
}

TEST_F(Provoz2Obrazovka, ClickOnALineShowsTheRouteAndWhyItWaits) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    cekej(12);
    otevri();
    EXPECT_TRUE(provoz2.podrobnosti.empty());
    klik_na_radek(provoz2.lstZasobnik, 0);
    ASSERT_FALSE(provoz2.podrobnosti.empty());
    EXPECT_EQ(provoz2.podrobnosti.front(), popis_cesty(0));
    ASSERT_NE(duvod_cekani(0), "");
    EXPECT_EQ(provoz2.podrobnosti.back(), Text("Čeká: "_cz) + duvod_cekani(0));
    klik_na_radek(provoz2.lstZasobnik, -1);
    EXPECT_TRUE(provoz2.podrobnosti.empty());
}

// --- possessions

TEST_F(Provoz2Obrazovka, PossessionLineEndsWithTheLength) {
    stitky = {{0, "", "", ""}, {41, "", "", "oprava"}, {42, "jen tag", "omezeni", ""}};
    otevri();
    ASSERT_EQ(provoz2.lstVYL_UPO.radky.size(), 1u) << "possessions only";
    EXPECT_EQ(provoz2.lstVYL_UPO.radky[0], "TST L41 oprava 400m VYL");
    klik_na_radek(provoz2.lstVYL_UPO, 0);
    stiskni("Delete");
    EXPECT_EQ(provoz2.lstVYL_UPO.radky.size(), 1u) << "a possession is ended at its track";
}

// --- macros

TEST_F(Provoz2Obrazovka, MacrosStandWithTheirPicksAndLetters) {
    zapis_makra({{"A", {{240, 41, 1}, {41, 40, 2}}}, {"B", {{242, 604, 1}}}});
    otevri();
    ASSERT_EQ(provoz2.lstmakra.radky.size(), 2u);
    EXPECT_EQ(provoz2.lstmakra.radky[0], nacti_makra().radky[0]);
    EXPECT_EQ(provoz2.lblKlavesy_maker, "A\rB");
    klik_na_radek(provoz2.lstmakra, 1);
    EXPECT_EQ(provoz2.lblKlavesy_maker, "Alt+B");
    klik_na_radek(provoz2.lstZasobnik, -1);
    EXPECT_EQ(provoz2.lblKlavesy_maker, "A\rB");
}

TEST_F(Provoz2Obrazovka, DeleteTakesAllRecordsOfTheLetter) {
    zapis_makra({{"A", {{240, 41, 1}}}, {"B", {{242, 604, 1}}}, {"A", {{241, 604, 1}}}});
    otevri();
    klik_na_radek(provoz2.lstmakra, 2);
    stiskni("Delete");
    const std::vector<ZaznamMakra> zbyla = cti_makra(svet.precti("data/tesk.mak"));
    ASSERT_EQ(zbyla.size(), 1u);
    EXPECT_EQ(zbyla[0].pismeno, "B");
    ASSERT_EQ(provoz2.lstmakra.radky.size(), 1u);
    EXPECT_EQ(provoz2.lstmakra.vybrany, 0);
    EXPECT_EQ(cesty[0].zacatek, -3) << "no route is touched";
}

TEST_F(Provoz2Obrazovka, OpensWithoutAMacroFile) {
    std::filesystem::remove(svet.koren / "data" / "tesk.mak");
    otevri();
    EXPECT_TRUE((otevrena_technologie() == Technologie::provoz2));
    EXPECT_TRUE(provoz2.lstmakra.radky.empty());
}

// --- the selection by keys

TEST_F(Provoz2Obrazovka, ArrowsMoveWithinTheListAndTabBetweenLists) {
    zapis_makra({{"A", {{240, 41, 1}}}});
    zarad_dve();
    otevri();
    stiskni("Dolu");
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, 0);
    stiskni("Dolu");
    stiskni("Dolu");
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, 1) << "the last line holds";
    stiskni("Tab");
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, -1) << "one selection in all the lists";
    EXPECT_EQ(provoz2.lstmakra.vybrany, 0) << "the empty list of possessions is passed over";
    stiskni("Nahoru");
    EXPECT_EQ(provoz2.lstmakra.vybrany, 0);
    stiskni("Shift+Tab");
    EXPECT_EQ(provoz2.lstZasobnik.vybrany, 0);
    stiskni("Shift+Tab");
    EXPECT_EQ(provoz2.lstPocitace.vybrany, 0);
    stiskni("Delete");
    EXPECT_EQ(cesty.size(), 2u) << "computers are not taken away";
    EXPECT_FALSE(provoz2.lstPocitace.radky.empty());
}

TEST_F(Provoz2Obrazovka, TabIsNoKeyOfTheDesk) {
    EXPECT_FALSE(klavesa(klavesa_podle_jmena("Tab")));
}

// --- why not?

TEST_F(Provoz2Obrazovka, WaitingLineAndStartSignalTellTheReason) {
    EXPECT_EQ(duvod_zasobniku(), "");
    EXPECT_EQ(duvod_u_navestidla(240), "");
    EXPECT_EQ(duvod_u_navestidla(kZadny), "") << "the empty record has no signal";
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    cekej(12);
    ASSERT_TRUE(ceka_na_ni_zasobnik(cesty[0]));
    EXPECT_NE(duvod_zasobniku(), "");
    EXPECT_EQ(duvod_zasobniku(), duvod_cekani(0));
    EXPECT_EQ(duvod_u_navestidla(240), duvod_cekani(0));
    EXPECT_EQ(duvod_u_navestidla(242), "");
}
