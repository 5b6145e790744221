// testy/obsluha/vstup_test.cpp - clicks and menus.
#include "app/cas.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

int zvoleny_cil = kZadny;

class Kliky : public SPlatformou {
protected:
    void SetUp() override { simulace.pauza = false; }
};

TEST_F(Kliky, ClicksOnTheSpeedWorkLikeItsKeys) {
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::leve, false);
    EXPECT_EQ(simulace.rychlost, 2);
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::prave, false);
    EXPECT_EQ(simulace.rychlost, 1);
}

TEST_F(Kliky, ClickOnTheLineAnswersItLikeEnter) {
    for (const Druh druh : {Druh::lblPrikaz, Druh::lblVolba}) {
        zprava(" M ", "text", barvy::cervena);
        klik(druh, 0, Tlacitko::leve, false);
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
}

TEST_F(Kliky, EveryHandIsCountedOnce) {
    const auto povelu = [](auto ruka) {
        const std::int32_t pred = pocty_provozu.povelu;
        ruka();
        return pocty_provozu.povelu - pred;
    };
    EXPECT_EQ(povelu([] { klik(Druh::lblrychlost_simulace, 0, Tlacitko::leve, false); }), 1);
    EXPECT_EQ(povelu([] { klik(Druh::lblVolba, 0, Tlacitko::leve, false); }), 1) << "it is the key Enter";
    EXPECT_EQ(povelu([] { klavesa({.kod = KodKlavesy::esc}); }), 1);
    EXPECT_EQ(povelu([] { klik_na_plochu(); }), 1);
    EXPECT_EQ(povelu([] { zvol_v_menu("miVC"); }), 0) << "no menu is open";
    EXPECT_EQ(povelu([] { pis_do_pole("14"); }), 0) << "no field is open";
    EXPECT_EQ(povelu([] { najeti(Druh::lblVolba, 0); }), 0) << "looking is no command";
}

TEST_F(Kliky, NothingIsCommandedDuringTheLogin) {
    zapis_male_kolejiste(simulace.cesta_aplikace);
    postav_male_kolejiste();
    for (const TextPohled slovo : {" INIT ", " TPC ", " ARCHIV "}) {
        zprava(slovo, " OK ", barvy::zelena, 0, false, barvy::bila, 0, false);
        const Relief pred = relief;
        const Simulace simulace_pred = simulace;
        for (std::size_t d = 0; d < kDruhy.size(); ++d) {
            const Druh druh = static_cast<Druh>(d);
            if (druh == Druh::lblPrikaz || druh == Druh::lblVolba || druh == Druh::imgKONEC ||
                druh == Druh::imgMinimalizuj || druh == Druh::imgSound || druh == Druh::imgDEBUG)
                continue;
            for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n) {
                for (const Tlacitko t : {Tlacitko::leve, Tlacitko::prostredni, Tlacitko::prave})
                    klik(druh, n, t, t == Tlacitko::leve);
                dvojklik(druh, n);
            }
        }
        klik_na_plochu();
        for (const char* klavesa_ : {"Esc", "F2", "F3", "F8", "F9", "F10", "Num/", "Num+", "Num-", "Delete",
                                     "PrintScreen", "Ctrl+S", "Alt+A", "Alt+Shift+A"})
            EXPECT_TRUE(klavesa(klavesa_podle_jmena(klavesa_))) << klavesa_;
        EXPECT_TRUE(menu.jmeno.empty());
        EXPECT_EQ(relief, pred) << slovo;
        EXPECT_EQ(simulace, simulace_pred);
        EXPECT_EQ(vyber, Vyber{});
        EXPECT_TRUE(svet.pipnuti.empty());
        EXPECT_TRUE(svet.spustene_programy.empty());
        skryj_prikaz();
    }
}

TEST_F(Kliky, LoginIsAnsweredByAClickOnItsLineAndTheDeskCanBeLeft) {
    zprava(" INIT ", " OK ", barvy::zelena, 0, false, barvy::bila, 0, false);
    klik(Druh::imgKONEC, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.otazky.size(), 1u);
    klik(Druh::imgMinimalizuj, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.minimalizovano, 1);
    klik(Druh::imgSound, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.zvuk_vypnut);
    klik(Druh::lblPrikaz, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " TPC ");
    klik(Druh::lblVolba, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " ARCHIV ");
    simulace.pauza = true;
    klik(Druh::lblVolba, 0, Tlacitko::leve, false);
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(Kliky, RightClickOnAStationCrossingOpensItsMenu) {
    relief.lblPrejezd.zaloz(1);
    klik(Druh::lblPrejezd, 1, Tlacitko::leve, false);
    EXPECT_TRUE(menu.jmeno.empty());
    klik(Druh::lblPrejezd, 1, Tlacitko::prave, false);
    EXPECT_EQ(menu.prvek, 1);
    EXPECT_EQ(menu.druh, Druh::lblPrejezd);
}

TEST_F(Kliky, WordsOfTheStackOrderTakeTurns) {
    klik(Druh::lblZasobnik_PV, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblZasobnik_PV[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::seda);
    klik(Druh::lblZasobnik_VZ, 0, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::bila);
}

TEST_F(Kliky, ImagesOfTheBarSendTheirKeys) {
    EXPECT_EQ(relief.imgPauza[0].popis, "Pauza [F10]"_cz);
    EXPECT_EQ(relief.imgMinimalizuj[0].popis, "Minimalizovat okno simulace [F11]"_cz);
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.pauza);
    klik(Druh::imgMinimalizuj, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.minimalizovano, 1);
    klik(Druh::imgSound, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.zvuk_vypnut);
}

TEST_F(Kliky, ElementThatDoesNotExistTakesNoInput) {
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
        nastav_cas("12:00:00");
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
