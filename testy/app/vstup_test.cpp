// testy/app/vstup_test.cpp - keys, clicks and menus.
#include "app/simulace.h"
#include "app/vstup.h"
#include "cesty/cesta.h"
#include "cesty/vyber.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

int zvoleny_cil = kZadny;

class Klavesy : public SPlatformou {
protected:
    void SetUp() override { simulace.pauza = false; }
    bool stiskni(TextPohled jmeno) { return klavesa(klavesa_podle_jmena(jmeno)); }
};

TEST_F(Klavesy, AreKnownByTheirNames) {
    EXPECT_EQ(klavesa_podle_jmena("Enter").kod, KodKlavesy::enter);
    EXPECT_EQ(klavesa_podle_jmena("esc").kod, KodKlavesy::esc);
    EXPECT_EQ(klavesa_podle_jmena("Num/").kod, KodKlavesy::num_lomeno);
    EXPECT_EQ(klavesa_podle_jmena("Num+").kod, KodKlavesy::num_plus);
    EXPECT_EQ(klavesa_podle_jmena("Num-").kod, KodKlavesy::num_minus);
    const Klavesa makro = klavesa_podle_jmena("Ctrl+Alt+Shift+a");
    EXPECT_EQ(makro.kod, KodKlavesy::pismeno);
    EXPECT_EQ(makro.pismeno, 'A');
    EXPECT_TRUE(makro.ctrl && makro.alt && makro.shift);
    const Klavesa konec = klavesa_podle_jmena("Ctrl+Alt+F10");
    EXPECT_EQ(konec.kod, KodKlavesy::f10);
    EXPECT_TRUE(konec.ctrl && konec.alt && !konec.shift);
    EXPECT_EQ(klavesa_podle_jmena("F13").kod, KodKlavesy::zadna);
    EXPECT_EQ(klavesa_podle_jmena("").kod, KodKlavesy::zadna);
    EXPECT_EQ(klavesa_podle_jmena("Ctrl+").kod, KodKlavesy::zadna);
}

TEST_F(Klavesy, AreKnownByTheNamesOfOtherKeyboardsToo) {
    EXPECT_EQ(klavesa_podle_jmena("Return").kod, KodKlavesy::enter);
    EXPECT_EQ(klavesa_podle_jmena("escape").kod, KodKlavesy::esc);
    EXPECT_EQ(klavesa_podle_jmena("PrtSc").kod, KodKlavesy::print_screen);
    EXPECT_EQ(klavesa_podle_jmena("/").kod, KodKlavesy::num_lomeno);
    EXPECT_EQ(klavesa_podle_jmena("+").kod, KodKlavesy::num_plus);
    EXPECT_EQ(klavesa_podle_jmena("-").kod, KodKlavesy::num_minus);
    const Klavesa plus = klavesa_podle_jmena("Ctrl++");
    EXPECT_EQ(plus.kod, KodKlavesy::num_plus);
    EXPECT_TRUE(plus.ctrl);
}

TEST_F(Klavesy, KeyWithoutAUseOnTheDeskDoesNothing) {
    const bool pauza = simulace.pauza;
    for (const char* jmeno : {"F1", "F4", "F5", "F6", "F7", "F12", "PageUp", "PageDown", "Home", "End",
                              "Insert", "Space", "Backspace", "7", "Num0", "Num*", "Alt+F4", "Tab"})
        EXPECT_FALSE(stiskni(jmeno)) << jmeno;
    EXPECT_EQ(klavesa_podle_jmena("Ctrl+PageUp").kod, KodKlavesy::jina);
    EXPECT_EQ(klavesa_podle_jmena("Num12").kod, KodKlavesy::zadna);
    EXPECT_EQ(simulace.pauza, pauza);
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Klavesy, UnknownKeyIsRefused) {
    EXPECT_FALSE(stiskni("F12"));
    EXPECT_FALSE(stiskni("A"));
}

TEST_F(Klavesy, PauseTogglesAndBeeps) {
    stiskni("F10");
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    stiskni("F10");
    EXPECT_FALSE(simulace.pauza);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{800, 10}, {800, 10}}));
}

TEST_F(Klavesy, SpeedStopsAtThreeWithoutTheDebugMarker) {
    for (int i = 0; i < 5; ++i)
        stiskni("Num+");
    EXPECT_EQ(simulace.rychlost, 3);
    EXPECT_EQ(relief.lblrychlost_simulace[0].text(), "3");
    simulace.rychlost = 4; // the start screen offers it
    stiskni("Num+");
    EXPECT_EQ(simulace.rychlost, 4);
    for (int i = 0; i < 9; ++i)
        stiskni("Num-");
    EXPECT_EQ(simulace.rychlost, 1);
}

TEST_F(Klavesy, SpeedGoesToEightInDebugMode) {
    svet.zapis("debug.dat", "");
    for (int i = 0; i < 12; ++i)
        stiskni("Num+");
    EXPECT_EQ(simulace.rychlost, 8);
}

TEST_F(Klavesy, ClicksOnTheSpeedWorkLikeItsKeys) {
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::leve, false);
    EXPECT_EQ(simulace.rychlost, 2);
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::prave, false);
    EXPECT_EQ(simulace.rychlost, 1);
}

TEST_F(Klavesy, ArrowsMoveThePointerOnARasterOfFive) {
    svet.kurzor = {100, 102};
    stiskni("Vlevo");
    EXPECT_EQ(svet.kurzor.x, 88);
    stiskni("Vpravo");
    EXPECT_EQ(svet.kurzor.x, 100);
    stiskni("Nahoru");
    EXPECT_EQ(svet.kurzor.y, 100);
    stiskni("Nahoru");
    EXPECT_EQ(svet.kurzor.y, 95);
    svet.kurzor.y = 102;
    stiskni("Dolu");
    EXPECT_EQ(svet.kurzor.y, 105);
    stiskni("Dolu");
    EXPECT_EQ(svet.kurzor.y, 110);
}

TEST_F(Klavesy, SlashSilencesTheConsents) {
    stiskni("Num/");
    EXPECT_TRUE(simulace.ticho_souhlasu);
}

TEST_F(Klavesy, F9PausesAndBringsTheTimetableViewer) {
    stiskni("F9");
    EXPECT_TRUE(simulace.pauza);
    EXPECT_EQ(svet.spustene_programy, (std::vector<Text>{svet.cesta() + "TeskGVD.exe"}));
    svet.okna_systemu = {"TESKGVD"};
    stiskni("F9");
    EXPECT_EQ(svet.spustene_programy.size(), 1u);
}

TEST_F(Klavesy, F2AsksForAUnitWhenThePointerIsOverNothing) {
    prikaz_radek.rezim_zadani = 0;
    stiskni("F2");
    EXPECT_EQ(relief.lblPrikaz[0].text(), " JEDNOTKA? ");
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::azurova);
    EXPECT_EQ(prikaz_radek.rezim_zadani, 4);
    EXPECT_TRUE(relief.txtZadav_pole[0].povoleny);
}

TEST_F(Klavesy, F2DuringAPauseDoesNothing) {
    simulace.pauza = true;
    stiskni("F2");
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Klavesy, F3OpensTheTrainPanel) {
    stiskni("F3");
    EXPECT_EQ(relief.cmdVLAK[0].pozadi, 0x800000);
    EXPECT_TRUE(relief.lblIinfo_o_vlaku[0].viditelny);
}

TEST_F(Klavesy, EnterClicksWhatIsUnderThePointer) {
    najeti(Druh::cmDenik, 0);
    stiskni("Enter");
    EXPECT_TRUE(relief.lstDenik.viditelny);
}

TEST_F(Klavesy, EnterAnswersTheLineBeforeItClicks) {
    zprava(" M ", "text", barvy::cervena);
    najeti(Druh::cmDenik, 0);
    stiskni("Enter");
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_FALSE(relief.lstDenik.viditelny);
}

TEST_F(Klavesy, EnterInAPauseDoesNotClick) {
    simulace.pauza = true;
    najeti(Druh::cmDenik, 0);
    stiskni("Enter");
    EXPECT_FALSE(relief.lstDenik.viditelny);
}

TEST_F(Klavesy, EnterOverTheEmptyLineFindsNothingToClick) {
    for (const Druh druh : {Druh::lblPrikaz, Druh::lblVolba}) {
        najeti(druh, 0);
        EXPECT_TRUE(stiskni("Enter"));
        klik(druh, 0, Tlacitko::leve, false);
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
}

TEST_F(Klavesy, ClickOnTheLineAnswersItLikeEnter) {
    for (const Druh druh : {Druh::lblPrikaz, Druh::lblVolba}) {
        zprava(" M ", "text", barvy::cervena);
        klik(druh, 0, Tlacitko::leve, false);
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
}

TEST_F(Klavesy, EnterOnTheQuestionOfANeighbourGivesConsent) {
    Prvek& lampa = relief.lblSouhlas.zaloz(1);
    lampa.text = znak(8);
    lampa.popis = TextPohled("4711");
    klik(Druh::lblSouhlas, 1, Tlacitko::leve, false);
    ASSERT_EQ(prikaz_radek.kod_zpravy, 2);
    stiskni("Enter");
    EXPECT_TRUE(souhlasy.souhlas[1]);
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{4711}));
    EXPECT_EQ(lampa.popis(), "");
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(svet.pipnuti.back(), (Pipnuti{400, 150}));
}

TEST_F(Klavesy, EnterOnTheQuestionBringsOneMessageOnly) {
    Prvek& lampa = relief.lblSouhlas.zaloz(1);
    lampa.text = znak(8);
    lampa.popis = TextPohled("4711");
    klik(Druh::lblSouhlas, 1, Tlacitko::leve, false);
    zprava(" M ", "A", barvy::cervena);
    zprava(" M ", "B", barvy::cervena);
    stiskni("Enter");
    EXPECT_EQ(relief.lblVolba[0].text(), "A");
    EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 2u);
}

TEST_F(Klavesy, RightClickOnAStationCrossingOpensItsMenu) {
    relief.lblPrejezd.zaloz(1);
    klik(Druh::lblPrejezd, 1, Tlacitko::leve, false);
    EXPECT_TRUE(menu.jmeno.empty());
    klik(Druh::lblPrejezd, 1, Tlacitko::prave, false);
    EXPECT_EQ(menu.prvek, 1);
    EXPECT_EQ(menu.druh, Druh::lblPrejezd);
}

TEST_F(Klavesy, WordsOfTheStackOrderTakeTurns) {
    klik(Druh::lblZasobnik_PV, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblZasobnik_PV[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::seda);
    klik(Druh::lblZasobnik_VZ, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::bila);
}

TEST_F(Klavesy, PrintScreenPauses) {
    stiskni("PrintScreen");
    EXPECT_TRUE(simulace.pauza);
}

TEST_F(Klavesy, ImagesOfTheBarSendTheirKeys) {
    EXPECT_EQ(relief.imgPauza[0].popis, "Pauza [F10]"_cz);
    EXPECT_EQ(relief.imgMinimalizuj[0].popis, "Minimalizovat okno simulace [F11]"_cz);
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.pauza);
    klik(Druh::imgMinimalizuj, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.minimalizovano, 1);
    klik(Druh::imgSound, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.zvuk_vypnut);
}

TEST_F(Klavesy, ElementThatDoesNotExistTakesNoInput) {
    EXPECT_NO_THROW(klik(Druh::navestidlo, 262, Tlacitko::leve, false));
    EXPECT_NO_THROW(klik(Druh::imgVyhybka, -3, Tlacitko::prave, false));
    EXPECT_NO_THROW(dvojklik(Druh::cislo_koleje, 12));
    najeti(Druh::navestidlo, 262);
    EXPECT_FALSE(vyber.mys_nad_prvkem);
}

// The operator's hands on a junction at rest.
class Ruce : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        postav_male_kolejiste();
        relief.lblcas[0].text = TextPohled("12:00:00");
        simulace.pauza = false;
    }
    bool stiskni(TextPohled jmeno) { return klavesa(klavesa_podle_jmena(jmeno)); }
    void vyber_cestu() {
        klik(Druh::navestidlo, 262, Tlacitko::leve, false);
        klik(Druh::Image1, 63, Tlacitko::leve, false);
    }
};

TEST_F(Ruce, PickASignalAndAnEnd) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    EXPECT_EQ(vyber.volba_zacatek, 262);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " VC ");
    klik(Druh::Image1, 63, Tlacitko::leve, false);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, 262);
    EXPECT_EQ(cesty[0].konec, 63);
    EXPECT_TRUE(cesty[0].VC);
}

TEST_F(Ruce, PickAShuntRouteWithCtrl) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, true);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " PC ");
    klik(Druh::Image1, 63, Tlacitko::leve, false);
    EXPECT_EQ(cesty[0].zacatek, 262);
    EXPECT_FALSE(cesty[0].VC);
}

TEST_F(Ruce, PickAnEndByEitherLabelOfTheTrack) {
    for (const int popisek : {63, 263}) {
        cesty = std::vector<Cesta>(1);
        vyber = Vyber{};
        klik(Druh::navestidlo, 262, Tlacitko::leve, false);
        klik(Druh::cislo_koleje, popisek, Tlacitko::leve, false);
        EXPECT_EQ(cesty[0].konec, 63) << popisek;
    }
}

TEST_F(Ruce, RightButtonOnATargetPicksNothing) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    klik(Druh::Image1, 63, Tlacitko::prave, false);
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Ruce, PickWithTheShuntingSignal) {
    klik(Druh::navestidlo_ser, 540, Tlacitko::leve, false);
    klik(Druh::Image1, 62, Tlacitko::leve, false);
    EXPECT_EQ(cesty[0].zacatek, 540);
}

TEST_F(Ruce, EscDropsTheStart) {
    svet.kurzor_viditelny = false;
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    stiskni("Esc");
    EXPECT_EQ(vyber.volba_zacatek, -3);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_TRUE(svet.kurzor_viditelny);
    EXPECT_FALSE(relief.navestidlo[262].ramecek);
}

TEST_F(Ruce, ClickOnTheEmptyDeskTakesTheHighlightAway) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    klik_na_plochu();
    EXPECT_FALSE(relief.navestidlo[262].ramecek);
    EXPECT_EQ(vyber.volba_navestidlo, -3);
    EXPECT_EQ(vyber.volba_zacatek, 262); // the start itself stays picked
}

TEST_F(Ruce, EnterAcceptsTheWarningOfTheEnd) {
    stitky.push_back({63, "", "pozor", ""});
    vyber_cestu();
    ASSERT_EQ(relief.lblPrikaz[0].text(), " POZOR NVL ");
    EXPECT_NE(cesty[0].varovani, 0);
    svet.pipnuti.clear();
    stiskni("Enter");
    EXPECT_EQ(cesty[0].varovani, 0);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{400, 150}}));
}

TEST_F(Ruce, EachMenuOpensByTheRightButton) {
    const std::pair<Druh, int> prvky[] = {{Druh::navestidlo, 262},
                                          {Druh::navestidlo_ser, 540},
                                          {Druh::imgVyhybka, 7},
                                          {Druh::imgStanoviste, 1}};
    for (const auto& [druh, n] : prvky) {
        klik(druh, n, Tlacitko::prave, false);
        EXPECT_FALSE(menu.jmeno.empty()) << jmeno_druhu(druh);
        EXPECT_EQ(menu.prvek, n);
        zavri_menu();
    }
    klik(Druh::imgVyhybka, 7, Tlacitko::leve, false);
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST_F(Ruce, F2WorksAsTheRightButtonOnWhatIsUnderThePointer) {
    najeti(Druh::imgVyhybka, 7);
    stiskni("F2");
    EXPECT_FALSE(menu.jmeno.empty());
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Ruce, EnterPicksWhatIsUnderThePointer) {
    najeti(Druh::navestidlo, 262);
    stiskni("Enter");
    EXPECT_EQ(vyber.volba_zacatek, 262);
}

TEST_F(Ruce, MacroIsRecordedStoredAndPlayedByItsLetter) {
    stiskni("Alt+Shift+K");
    EXPECT_TRUE(vyber.makro_zaznam);
    vyber_cestu();
    EXPECT_EQ(cesty[0].zacatek, -3); // no route is made while a macro is recorded
    stiskni("Enter");
    EXPECT_FALSE(vyber.makro_zaznam);
    stiskni("Ctrl+Alt+K");
    EXPECT_EQ(cesty[0].zacatek, 262);
}

TEST_F(Ruce, MacroIsNotPlayedInAPause) {
    stiskni("Alt+Shift+K");
    vyber_cestu();
    stiskni("Enter");
    simulace.pauza = true;
    svet.pipnuti.clear();
    stiskni("Alt+K");
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Ruce, EscDropsTheMacro) {
    stiskni("Ctrl+Alt+Shift+K");
    stiskni("Esc");
    EXPECT_FALSE(vyber.makro_zaznam);
    EXPECT_EQ(relief.lblMakro_pismeno[0].text(), "");
}

TEST_F(Ruce, LetterAloneIsNoKeyOfTheDesk) {
    EXPECT_FALSE(stiskni("K"));
    EXPECT_FALSE(stiskni("Shift+K"));
}

class UkazatelMysi : public SPlatformou {};

TEST_F(UkazatelMysi, RemembersTheElementAndTheSignalUnderIt) {
    relief.navestidlo.zaloz(262);
    svet.cas.sekunda = 40;
    najeti(Druh::navestidlo, 262);
    EXPECT_TRUE(vyber.mys_nad_prvkem);
    EXPECT_EQ(vyber.mys_prvek, 262);
    EXPECT_EQ(simulace.najety_prvek, 262);
    EXPECT_EQ(simulace.posledni_pohyb, 8 * 3600 + 40);
    najeti(Druh::cmDenik, 0);
    EXPECT_EQ(simulace.najety_prvek, -3);
    odjeti();
    EXPECT_FALSE(vyber.mys_nad_prvkem);
}

class OtevreneMenu : public SPlatformou {
protected:
    void SetUp() override {
        zvoleny_cil = kZadny;
        menu.jmeno = "mnuVYHYBKA";
        menu.polozky = {{"miNOUZ", "NOUZ", true, true, [](int cil) { zvoleny_cil = cil; }, 7},
                        {"miSkryta", "", true, false, [](int) { zvoleny_cil = 1; }, 0},
                        {"miZAV", "ZAV", false, true, [](int) { zvoleny_cil = 2; }, 0},
                        {"miMST", "MST", true, true, nullptr, 0}};
    }
};

TEST_F(OtevreneMenu, ChosenEntryActsOnItsElementAndCloses) {
    EXPECT_TRUE(zvol_v_menu("miNOUZ"));
    EXPECT_EQ(zvoleny_cil, 7);
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST_F(OtevreneMenu, HiddenAndDisabledEntriesCannotBeChosen) {
    EXPECT_FALSE(zvol_v_menu("miSkryta"));
    EXPECT_FALSE(zvol_v_menu("miZAV"));
    EXPECT_FALSE(zvol_v_menu("miNeni"));
    EXPECT_EQ(zvoleny_cil, kZadny);
    EXPECT_FALSE(menu.jmeno.empty());
}

TEST_F(OtevreneMenu, EntryWithoutLogicOnlyCloses) {
    EXPECT_TRUE(zvol_v_menu("miMST"));
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST_F(OtevreneMenu, ClickElsewhereOrEscClosesIt) {
    klik_na_plochu();
    EXPECT_TRUE(menu.jmeno.empty());
    SetUp();
    klavesa({KodKlavesy::esc});
    EXPECT_TRUE(menu.jmeno.empty());
    SetUp();
    klik(Druh::cmDenik, 0, Tlacitko::leve, false);
    EXPECT_TRUE(menu.jmeno.empty());
}

} // namespace
