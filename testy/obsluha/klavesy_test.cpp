// testy/obsluha/klavesy_test.cpp - keys, and their names.
#include "app/simulace.h"
#include "desk/menu.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "obsluha/klavesy.h"
#include "obsluha/vstup.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

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

TEST_F(Klavesy, F2AsksForAUnitOverWhatTakesNoRightButton) {
    prevezmi_radek_tabulky(3, Text(41, ' '));
    for (const auto& [druh, n] :
         {std::pair{Druh::imgToc, 0}, std::pair{Druh::lblPrava, 0}, std::pair{Druh::lblTabulka_vlaku, 3}}) {
        potvrd_prikaz();
        relief.txtZadav_pole[0].povoleny = false;
        najeti(druh, n);
        stiskni("F2");
        EXPECT_EQ(relief.lblPrikaz[0].text(), " JEDNOTKA? ") << jmeno_druhu(druh);
    }
    potvrd_prikaz();
    prevezmi_radek_tabulky(3, "Os  1234       62m, BOR, 80km/h          ");
    stiskni("F2");
    EXPECT_FALSE(prikaz_radek.obsazen) << "a row of a train has a menu";
    EXPECT_FALSE(menu.jmeno.empty());
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

TEST_F(Klavesy, EnterOnTheQuestionOfANeighbourGivesConsent) {
    Prvek& lampa = relief.lblSouhlas.zaloz(1);
    lampa.text = znak(8);
    zadej_souhlas(1, 4711);
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
    zadej_souhlas(1, 4711);
    klik(Druh::lblSouhlas, 1, Tlacitko::leve, false);
    zprava(" M ", "A", barvy::cervena);
    zprava(" M ", "B", barvy::cervena);
    stiskni("Enter");
    EXPECT_EQ(relief.lblVolba[0].text(), "A");
    EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 2u);
}

TEST_F(Klavesy, PrintScreenPauses) {
    stiskni("PrintScreen");
    EXPECT_TRUE(simulace.pauza);
}

} // namespace
