// testy/obsluha/menu_koleje_test.cpp - the menu of a track and the clicks on its number labels.
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "gvd/gvd.h"
#include "jizda/svet_vlaku.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "pomocne/zastavky.h"

#include <algorithm>

namespace {

class MenuKolejeTest : public SVlaky {
protected:
    static void otevri(int stitek) { klik(Druh::cislo_koleje, stitek, Tlacitko::prave, false); }
    static std::vector<Text> popisky_vlaku() {
        std::vector<Text> popisky;
        for (int i = 0; i < 4; ++i)
            if (polozka_menu("miVlak_kolej" + text_cisla(i)).viditelna)
                popisky.push_back(polozka_menu("miVlak_kolej" + text_cisla(i)).text);
        return popisky;
    }
    static bool ma_polozku(TextPohled jmeno) {
        return std::any_of(menu.polozky.begin(), menu.polozky.end(),
                           [&](const PolozkaMenu& p) { return p.jmeno == jmeno; });
    }
    static int posun_na(int kolej, std::vector<Text> vozy, TextPohled urceni, std::int32_t cislo = 77) {
        const int v = vlak_na(kolej, true, cislo, std::move(vozy));
        vlak(v).posun = true;
        vlak(v).vozy[0].urceni = Text(urceni);
        return v;
    }
    static Barva barva_radku(std::int32_t cislo) {
        return relief.lblTabulka_vlaku[radek_tabulky(cislo)].barva;
    }
};

} // namespace

// --- the head and the entries of the track

TEST_F(MenuKolejeTest, TellsTheNameTheLengthAndTheMetresOfTheTrack) {
    nastav_metry(62, 250);
    otevri(62);
    EXPECT_EQ(menu.jmeno, "mnuKolej");
    EXPECT_EQ(menu.prvek, 62);
    EXPECT_EQ(menu.hlava, "= BOR K62K =");
    EXPECT_EQ(polozka_menu("miNazev_kolej").text, "= BOR K62K =");
    EXPECT_EQ(polozka_menu("miDelka_kolej").text, "  400 m");
    EXPECT_EQ(polozka_menu("mikolej_debug").text, "250");
    EXPECT_FALSE(polozka_menu("mikolej_debug").viditelna);
    simulace.polozky_ladeni = true;
    otevri(62);
    EXPECT_TRUE(polozka_menu("mikolej_debug").viditelna);
}

TEST_F(MenuKolejeTest, LineHasNoTrackNameAndTheLengthOfAllItsSections) {
    otevri(640);
    EXPECT_EQ(menu.prvek, 640);
    EXPECT_EQ(polozka_menu("miNazev_kolej").text, "= cil 640 =");
    EXPECT_EQ(polozka_menu("miDelka_kolej").text, "  2100 m"); // 1200 + 900
}

TEST_F(MenuKolejeTest, BothLabelsOfATrackOpenOneMenu) {
    otevri(262);
    EXPECT_EQ(menu.prvek, 62);
    ASSERT_TRUE(menu.misto.has_value()); // below the label that was clicked
    EXPECT_EQ(menu.misto->vlevo, relief.cislo_koleje[262].vlevo());
    EXPECT_EQ(menu.misto->nahore, relief.cislo_koleje[262].nahore() + kVyskaZnaku + 20);
    relief.cislo_koleje.zaloz(641);
    otevri(641);
    EXPECT_EQ(menu.prvek, 640);
}

TEST_F(MenuKolejeTest, TrackWhoseLabelIsDarkIsReachedByItsTarget) {
    posun_na(64, {"754"}, "DKV");
    zobraz_kolej(zaznam_koleje(64));
    ASSERT_FALSE(relief.cislo_koleje[64].viditelny); // shunting movements show no number
    klik(Druh::Image1, 64, Tlacitko::prave, false);
    EXPECT_EQ(menu.prvek, 64);
    EXPECT_EQ(popisky_vlaku(), std::vector<Text>{"DKVx"});
    EXPECT_FALSE(menu.misto) << "the label may be far from the place that was clicked";
    zavri_menu();
    relief.Image1.zaloz(999); // a target without a label
    klik(Druh::Image1, 999, Tlacitko::prave, false);
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST_F(MenuKolejeTest, LabelsOfLineEndsAreNoSecondLabels) {
    for (const int n : {212, 213, 219}) {
        relief.cislo_koleje.zaloz(n);
        otevri(n);
        EXPECT_EQ(menu.prvek, n);
    }
}

TEST_F(MenuKolejeTest, LabelsFrom651OnHaveNoMenu) {
    relief.cislo_koleje.zaloz(650);
    otevri(650);
    EXPECT_EQ(menu.prvek, 650);
    zavri_menu();
    relief.cislo_koleje.zaloz(652);
    relief.cislo_koleje.zaloz(651);
    for (const int n : {690, 652}) {
        otevri(n);
        EXPECT_TRUE(menu.jmeno.empty()) << n;
    }
    otevri(651); // counts as 650
    EXPECT_EQ(menu.prvek, 650);
}

TEST_F(MenuKolejeTest, KcPicksTheTrackAsTheEndOfARoute) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    otevri(63);
    EXPECT_EQ(polozka_menu("miKC").text, "KC");
    ASSERT_TRUE(zvol_v_menu("miKC"));
    EXPECT_EQ(cesty[0].zacatek, 262);
    EXPECT_EQ(cesty[0].konec, 63);
}

TEST_F(MenuKolejeTest, LeftClickOnALabelPicksItsTrack) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    klik(Druh::cislo_koleje, 263, Tlacitko::leve, false);
    EXPECT_EQ(cesty[0].konec, 63);
}

TEST_F(MenuKolejeTest, LeftClickOnALabelFrom651OnPicksNothing) {
    klik(Druh::navestidlo, 263, Tlacitko::leve, false);
    klik(Druh::cislo_koleje, 690, Tlacitko::leve, false);
    EXPECT_EQ(vyber.volba_konec, -3);
    EXPECT_EQ(cesty[0].zacatek, -3);
    klik(Druh::cislo_koleje, 640, Tlacitko::leve, false);
    EXPECT_EQ(cesty[0].konec, 640);
}

TEST_F(MenuKolejeTest, NotesOfTheTrackAskForTheirText) {
    struct Zadani {
        TextPohled polozka, text;
        int rezim;
    };
    for (const Zadani& z :
         {Zadani{"miSTIT_kolej", "STIT", 1}, Zadani{"miNVL", "NVL", 2}, Zadani{"miVYL", "VYL", 3}}) {
        otevri(262);
        EXPECT_EQ(polozka_menu(z.polozka).text, z.text);
        ASSERT_TRUE(zvol_v_menu(z.polozka));
        EXPECT_EQ(prikaz_radek.rezim_zadani, z.rezim);
        EXPECT_EQ(prikaz_radek.zadany_prvek, 62);
        klavesa(klavesa_podle_jmena("Esc"));
    }
}

// --- the trains of the track

TEST_F(MenuKolejeTest, TrackWithFiveTrainsListsTheFirstFour) {
    for (int i = 0; i < 5; ++i)
        vlak_na(62, false, 71 + i);
    otevri(62);
    EXPECT_EQ(popisky_vlaku(), (std::vector<Text>{"71", "72", "73", "74"}));
}

TEST_F(MenuKolejeTest, EmptyTrackHidesTheEntriesOfTrains) {
    otevri(62);
    EXPECT_TRUE(popisky_vlaku().empty());
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(polozka_menu("miInfo" + text_cisla(i)).viditelna);
    EXPECT_FALSE(zvol_v_menu("miInfo0"));
    vlak_na(62, true, 77);
    otevri(62);
    EXPECT_EQ(popisky_vlaku(), std::vector<Text>{"77"});
    EXPECT_TRUE(polozka_menu("miInfo0").viditelna);
    EXPECT_FALSE(polozka_menu("miInfo1").viditelna);
}

TEST_F(MenuKolejeTest, CommandsOfTheFourTrainsHaveTheirNamesAndCaptions) {
    otevri(62);
    const std::vector<std::pair<Text, Text>> povely = {
        {"miInfo", "INFO"}, {"miSpojit", "SPOJIT"}, {"miOtoc", "OTOCIT"},     {"miPosun", "POSUN/VLAK"},
        {"miCIV", "CIV"},   {"miOdjezd", "ODJEZD"}, {"miZkratit", "ZKRATIT"}, {"miOtocN", "OTOC NOUZOVE"}};
    for (const auto& [jmeno, text] : povely)
        for (int i = 0; i < 4; ++i) {
            const bool ma = i < 2 || jmeno == "miInfo" || jmeno == "miPosun" ||
                            (i == 2 && (jmeno == "miSpojit" || jmeno == "miOtoc" || jmeno == "miCIV"));
            const Text cele = jmeno + text_cisla(i);
            ASSERT_EQ(ma_polozku(cele), ma) << cele;
            if (!ma)
                continue;
            EXPECT_EQ(polozka_menu(cele).text, text);
            EXPECT_TRUE(polozka_menu(cele).podmenu);
        }
    EXPECT_FALSE(polozka_menu("miVlak_kolej0").podmenu);
    EXPECT_FALSE(polozka_menu("miKC").podmenu);
}

TEST_F(MenuKolejeTest, TrainIsCalledByTheNumberInForce) {
    const int v = vlak_na(62, true, 77);
    vlak(v).cislo2 = 78;
    otevri(62);
    EXPECT_EQ(popisky_vlaku(), std::vector<Text>{"77"});
    vlak(v).cislo2_platne = true;
    otevri(62);
    EXPECT_EQ(popisky_vlaku(), std::vector<Text>{"78"});
}

TEST_F(MenuKolejeTest, ShuntingMovementIsCalledByItsNextWork) {
    const auto popis = [&](const std::vector<Text>& vozy, TextPohled urceni) {
        koleje_vlaky = prvni_koleje_vlaky();
        posun_na(62, vozy, urceni);
        otevri(62);
        return popisky_vlaku().at(0);
    };
    EXPECT_EQ(popis({"754"}, ""), "x?????");
    EXPECT_EQ(popis({"230", "230"}, ""), "x?????");
    EXPECT_EQ(popis({"754"}, "DKV"), "DKVx");
    EXPECT_EQ(popis({"754", "731"}, "5678"), "5678x");
    EXPECT_EQ(popis({"754", "B"}, "5678"), "5678#");
    EXPECT_EQ(popis({"754", "B"}, "ZAL"), "77#");
    EXPECT_EQ(popis({"B", "B"}, ""), "77#");
}

// --- their commands

TEST_F(MenuKolejeTest, InfoShowsTheTrain) {
    vlak_na(62, false, 77);
    const int w = vlak_na(62, false, 88);
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miInfo1"));
    EXPECT_TRUE(info_ukazuje(w));
}

TEST_F(MenuKolejeTest, CouplingTakesTheTrainAndTheNextOne) {
    const int a = vlak_na(62, false, 77, {"B"});
    const int b = vlak_na(62, false, 78, {"C"});
    const int c = vlak_na(62, false, 79, {"A"});
    otevri(62);
    EXPECT_TRUE(polozka_menu("miSpojit0").povolena);
    EXPECT_TRUE(polozka_menu("miSpojit1").povolena);
    EXPECT_FALSE(polozka_menu("miSpojit2").povolena); // nobody stands behind
    ASSERT_TRUE(zvol_v_menu("miSpojit1"));
    EXPECT_EQ(vlak(b).vozy.size(), 2u);
    EXPECT_LT(vlak(c).cislo, 1);
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miSpojit0"));
    EXPECT_EQ(vlak(a).vozy.size(), 3u);
    EXPECT_LT(vlak(b).cislo, 1);
    otevri(62);
    EXPECT_FALSE(zvol_v_menu("miSpojit0"));
}

TEST_F(MenuKolejeTest, TurnReversesAndShowsTheTrain) {
    const int v = vlak_na(62, true, 77, {"754", "B"});
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miOtoc0"));
    EXPECT_FALSE(vlak(v).smer);
    EXPECT_EQ(vlak(v).vozy.front().rada, "B");
    EXPECT_TRUE(info_ukazuje(v));
    prepni_panel(Panel::denik);
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miOtocN0"));
    EXPECT_TRUE(vlak(v).smer);
    EXPECT_EQ(vlak(v).vozy.front().rada, "B"); // the head stays where it was
    EXPECT_TRUE(info_ukazuje(v));
}

TEST_F(MenuKolejeTest, TrainAndShuntChangePlaces) {
    const int v = vlak_na(62, true, 77);
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miPosun0"));
    EXPECT_TRUE(vlak(v).posun);
    EXPECT_TRUE(info_ukazuje(v));
    otevri(262);
    ASSERT_TRUE(zvol_v_menu("miPosun0"));
    EXPECT_FALSE(vlak(v).posun);
}

TEST_F(MenuKolejeTest, DepartureIsOrderedForTheNextMinute) {
    const int v = vlak_na(62, true, 77);
    zastavky(v, {9, 2, 6}, {-3, 478, 500}, {470, 482, -3});
    vlak(v).stanice_index = 1;
    vlak(v).zastavky[1].odjezd_realny = -10;
    vlak(v).muze_jet = false;
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miOdjezd0"));
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 481);
    EXPECT_FALSE(vlak(v).muze_jet);
    minuta();
    EXPECT_TRUE(vlak(v).muze_jet);
}

TEST_F(MenuKolejeTest, ShorteningPullsTheTailUp) {
    const int v = vlak_na(62, true, 77);
    vlak(v).prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0});
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miZkratit0"));
    EXPECT_EQ(vlak(v).prvek_konec, 1);
}

TEST_F(MenuKolejeTest, CallToADriverStopsTheClockAndAsksForTheNumber) {
    const int v = vlak_na(62, true, 77);
    otevri(62);
    ASSERT_TRUE(zvol_v_menu("miCIV0"));
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "77");
    EXPECT_TRUE(relief.txtZadav_pole[0].povoleny);
    EXPECT_EQ(prikaz_radek.zadany_prvek, v);
    EXPECT_EQ(prikaz_radek.rezim_zadani, 5);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 9);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " CIV ");
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, 0xFFFF00);
    EXPECT_EQ(relief.lblVolba[0].text(), "");
}

TEST_F(MenuKolejeTest, CallToADriverTakesTheLineFromWhatStoodThere) {
    zprava(" M ", "text", barvy::cervena);
    volej_civ(vlak_na(62, true, 77));
    EXPECT_EQ(relief.lblPrikaz[0].text(), " CIV ");
    EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 1u); // lost: this is meant
}

TEST_F(MenuKolejeTest, TrainThatHasGoneIsLeftAlone) {
    const int v = vlak_na(62, true, 77);
    otevri(62);
    zrus_vlak(v);
    ASSERT_TRUE(zvol_v_menu("miCIV0"));
    EXPECT_FALSE(simulace.pauza);
    const int w = vlak_na(62, true, 88);
    ASSERT_EQ(w, v); // its record serves another train by now
    otevri(62);
    vlak(w).cislo = 99;
    ASSERT_TRUE(zvol_v_menu("miOtoc0"));
    EXPECT_TRUE(vlak(w).smer);
}

// --- double click, pointer over a label

TEST_F(MenuKolejeTest, DoubleClickShowsTheTrainOfTheLabel) {
    const int v = vlak_na(62, false, 77);
    const int w = vlak_na(62, false, 88);
    ASSERT_EQ(stitek(262), "88");
    dvojklik(Druh::cislo_koleje, 262);
    EXPECT_TRUE(info_ukazuje(w));
    ASSERT_EQ(stitek(62), "77");
    dvojklik(Druh::cislo_koleje, 62);
    EXPECT_TRUE(info_ukazuje(v));
}

TEST_F(MenuKolejeTest, DoubleClickOnATrackNameShowsTheOnlyMovementThere) {
    const int v = posun_na(62, {"754"}, "");
    zobraz_kolej(zaznam_koleje(62));
    ASSERT_EQ(stitek(262), "K62");
    dvojklik(Druh::cislo_koleje, 262);
    EXPECT_TRUE(info_ukazuje(v));
    prepni_panel(Panel::denik);
    const int w = posun_na(62, {"731"}, "", 88);
    zobraz_kolej(zaznam_koleje(62));
    dvojklik(Druh::cislo_koleje, 262); // two of them: which one is meant cannot be told
    EXPECT_FALSE(info_ukazuje(v));
    EXPECT_FALSE(info_ukazuje(w));
}

TEST_F(MenuKolejeTest, DoubleClickOnAnEmptyTrackPicksIt) {
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    dvojklik(Druh::cislo_koleje, 263);
    EXPECT_EQ(cesty[0].konec, 63);
}

TEST_F(MenuKolejeTest, DoubleClickOnANumberOfALineFindsItsTrain) {
    const int v = vlak_na(640, true, 77);
    relief.cislo_koleje[640].text = " 77 "_cz;
    dvojklik(Druh::cislo_koleje, 640);
    EXPECT_TRUE(info_ukazuje(v));
}

TEST_F(MenuKolejeTest, DoubleClickOnANumberWithoutATrainAsksTheTimetable) {
    GvdVlak g;
    g.druh = 7;
    g.cislo = 5678;
    g.nazev = "Bystrice";
    g.zastavky = zastavky_radku({9, 2}, {-1, 600}, {540, -1});
    gvd_vlaky = TabulkaGvd({g});
    info_o_vlaku({}, vlak_na(62, true, 77));
    prepni_panel(Panel::denik);
    relief.cislo_koleje[64].text = TextPohled("5678");
    dvojklik(Druh::cislo_koleje, 64);
    Text ceka(zkratka_druhu(7));
    ceka += " 5678 Bystrice (Tesk hl. n. odj. 9:00 ... Borovec příj. 10:00) 0min; 0m, 0km/h"_cz;
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), ceka);
    EXPECT_TRUE(relief.lblIinfo_o_vlaku[0].viditelny);
    EXPECT_EQ(vlak_na_panelu(), -3); // no train to take a vehicle from
    EXPECT_EQ(vozu_na_panelu(), 0);
    relief.cislo_koleje[64].text = TextPohled("9999"); // nobody knows it
    dvojklik(Druh::cislo_koleje, 64);
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), ceka);
}

TEST_F(MenuKolejeTest, PointerOverANumberHighlightsTheRowOfItsTrain) {
    pridej_do_tabulky(vlak_na(62, true, 77));
    pridej_do_tabulky(vlak_na(63, true, 88));
    najeti(Druh::cislo_koleje, 62);
    EXPECT_EQ(barva_radku(77), 0xFF00FF);
    EXPECT_EQ(barva_radku(88), 0xFFFFFF);
    najeti(Druh::cislo_koleje, 63);
    EXPECT_EQ(barva_radku(77), 0xFFFFFF);
    EXPECT_EQ(barva_radku(88), 0xFF00FF);
    najeti(Druh::cislo_koleje, 263); // the name of a track changes nothing
    najeti(Druh::cislo_koleje, 64);
    EXPECT_EQ(barva_radku(88), 0xFF00FF);
    relief.lblTabulka_vlaku[radek_tabulky(88)].barva = 0xFFFFFF;
    najeti(Druh::cislo_koleje, 63); // once for each change of the number
    EXPECT_EQ(barva_radku(88), 0xFFFFFF);
}

TEST_F(MenuKolejeTest, HighlightGoesWithItsTrainWhenRowsMove) {
    pridej_do_tabulky(vlak_na(62, true, 77));
    pridej_do_tabulky(vlak_na(63, true, 88));
    najeti(Druh::cislo_koleje, 63);
    smaz_z_tabulky(77);
    EXPECT_EQ(radek_tabulky(88), 0);
    EXPECT_EQ(barva_radku(88), 0xFF00FF);
    EXPECT_EQ(relief.lblTabulka_vlaku[1].barva, 0xFFFFFF);
    smaz_z_tabulky(88);
    EXPECT_EQ(relief.lblTabulka_vlaku[0].barva, 0xFFFFFF);
}
