// testy/desk/tabulka_vlaku_test.cpp - the train table.
#include "app/blikani.h"
#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/tabulka_vlaku.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zastavky.h"
#include "zaklad/cisla.h"

namespace {

class TabulkaVlaku : public SPlatformou {
protected:
    static Vlak& vlak(std::int32_t cislo) {
        Vlak& v = vlaky[0];
        v = Vlak{};
        v.cislo = cislo;
        v.druh = 5;
        v.delka = 220;
        v.max_rychlost = 120;
        v.zastavky = zastavky_vlaku({9, 1});
        return v;
    }
    static void pridej(std::int32_t cislo) {
        vlak(cislo);
        pridej_do_tabulky(0);
    }
    static const Text& radek(int i) { return relief.lblTabulka_vlaku[i].text(); }
};

} // namespace

TEST_F(TabulkaVlaku, LineHasCategoryNumberAndDataAtTheirColumns) {
    pridej(1234);
    EXPECT_EQ(radek(0), "R   1234   220m, LHO, 120km/h            ");
    EXPECT_EQ(radek(0).size(), 41u);
    vlak(5678).zpozdeni = 5;
    vlaky[0].cislo2 = 99;
    vlaky[0].druh2 = 7;
    vlaky[0].cislo2_platne = true;
    pridej_do_tabulky(0);
    EXPECT_EQ(radek(1), "Os  99      +5220m, LHO, 120km/h         ");
}

TEST_F(TabulkaVlaku, FullTableMovesDownAndTheNewTrainTakesTheTop) {
    for (int i = 0; i < kRadkuTabulky; ++i)
        pridej(100 + i);
    EXPECT_EQ(radek_tabulky(100), 0);
    blikani.blikani_radku[0] = true;
    pridej(999);
    EXPECT_EQ(radek_tabulky(999), 0);
    EXPECT_EQ(radek_tabulky(100), 1);
    EXPECT_EQ(radek_tabulky(123), -1); // the last one fell off
    EXPECT_FALSE(blikani.blikani_radku[0]);
    EXPECT_TRUE(blikani.blikani_radku[1]);
}

TEST_F(TabulkaVlaku, LinesBelowMoveUp) {
    for (const int cislo : {11, 22, 33})
        pridej(cislo);
    blikej_v_tabulce(33, true);
    smaz_z_tabulky(22);
    EXPECT_EQ(radek_tabulky(33), 1);
    EXPECT_TRUE(blikani.blikani_radku[1]);
    EXPECT_FALSE(blikani.blikani_radku[2]);
    EXPECT_EQ(radek(2), "");
    smaz_z_tabulky(22);
    smaz_z_tabulky(0);
    EXPECT_EQ(radek_tabulky(11), 0);
}

TEST_F(TabulkaVlaku, LineIsCutToItsWidth) {
    vlak(123456).zpozdeni = -120;
    vlaky[0].delka = 32767;
    vlaky[0].max_rychlost = 160;
    pridej_do_tabulky(0);
    EXPECT_EQ(radek(0), "R   123456  +-12032767m, LHO, 160km/h    ");
    vlaky[0].zastavky = zastavky_vlaku({9, 7}); // a station without a code
    pridej_do_tabulky(0);
    EXPECT_EQ(radek(1), "R   123456  +-12032767m, , 160km/h       ");
    EXPECT_EQ(radek(1).size(), 41u);
}

TEST_F(TabulkaVlaku, NewTrainTakesTheFirstEmptyLine) {
    for (const int cislo : {11, 22, 33})
        pridej(cislo);
    prevezmi_radek_tabulky(1, Text(41, ' '));
    blikani.blikani_radku[1] = true;
    pridej(44);
    EXPECT_EQ(radek_tabulky(44), 1);
    EXPECT_FALSE(blikani.blikani_radku[1]); // the flashing of the one before is over
    EXPECT_EQ(radek_tabulky(33), 2);
}

TEST_F(TabulkaVlaku, RightClickOffersToTakeTheLineOutAndTheTrainGoesOn) {
    for (const int cislo : {11, 22, 33})
        pridej(cislo);
    klik(Druh::lblTabulka_vlaku, 1, Tlacitko::prave, false);
    EXPECT_EQ(menu.jmeno, "mnuTabulka");
    EXPECT_EQ(menu.prvek, 1);
    ASSERT_EQ(menu.polozky.size(), 1u);
    EXPECT_EQ(polozka_menu("miSmazat").text, "SMAZ");
    EXPECT_TRUE(zvol_v_menu("miSmazat"));
    EXPECT_EQ(radek_tabulky(22), -1);
    EXPECT_EQ(radek_tabulky(33), 1);
    EXPECT_EQ(vlaky[0].cislo, 33);
    klik(Druh::lblTabulka_vlaku, 2, Tlacitko::prave, false); // empty now
    EXPECT_EQ(menu.jmeno, "");
    klik(Druh::lblTabulka_vlaku, 0, Tlacitko::prostredni, false);
    EXPECT_EQ(menu.jmeno, "");
}

TEST_F(TabulkaVlaku, LeftClickFramesTheFirstLabelThatShowsTheNumber) {
    pridej(1234);
    for (const int n : {301, 40, 41, 12}) {
        Prvek& stitek = relief.cislo_koleje.zaloz(n);
        stitek.text = Text(n == 12 ? " 12345 " : " 1234 ");
        stitek.vlevo = 1000 + n;
        stitek.nahore = 2000 + n;
        stitek.sirka = 600;
        stitek.vyska = 195;
    }
    klik(Druh::lblTabulka_vlaku, 0, Tlacitko::leve, false);
    const Prvek& ramecek = relief.shpVyhledavani[0];
    EXPECT_EQ(ramecek.vlevo(), 1040 - 200);
    EXPECT_EQ(ramecek.nahore(), 2040 - 200);
    EXPECT_EQ(ramecek.sirka(), 600 + 400);
    EXPECT_EQ(ramecek.vyska(), 195 + 400);
    EXPECT_EQ(blikani.ramecek_hledani, 6);
    simulace.pauza = false;
    for (int i = 0; i < 8; ++i)
        krok_blikani();
    EXPECT_EQ(blikani.ramecek_hledani, 0);
    EXPECT_EQ(ramecek.sirka(), 600 + 400 - 6 * 80);
    EXPECT_TRUE(ramecek.viditelny);
}

TEST_F(TabulkaVlaku, TrainThatNoLabelShowsIsNotFramed) {
    pridej(1234);
    relief.cislo_koleje.zaloz(5);
    const Prvek pred = relief.shpVyhledavani[0];
    for (const int radek : {0, 1, 23}) { // not shown; empty lines, though empty labels read as 0 too
        klik(Druh::lblTabulka_vlaku, radek, Tlacitko::leve, false);
        EXPECT_EQ(blikani.ramecek_hledani, 0);
        EXPECT_EQ(relief.shpVyhledavani[0], pred);
    }
}

TEST_F(TabulkaVlaku, TrainOfALineDoesNotHangOnWhatTheLineShows) {
    pridej(1234);
    relief.lblTabulka_vlaku[0].text = Text("Os  99");
    EXPECT_EQ(cislo_radku(0), 1234);
    EXPECT_EQ(radek_tabulky(1234), 0);
    EXPECT_EQ(radek_tabulky(99), -1);
    relief.lblTabulka_vlaku[0].text = Text();
    pridej(5678);
    EXPECT_EQ(radek_tabulky(5678), 1); // the line is taken
}

TEST_F(TabulkaVlaku, LineOfASaveStaysAsItIsAndItsNumberStandsFromTheFifthCharacter) {
    prevezmi_radek_tabulky(2, "Os  4701");
    EXPECT_EQ(radek(2), "Os  4701");
    EXPECT_EQ(cislo_radku(2), 4701);
    prevezmi_radek_tabulky(2, "   ");
    EXPECT_FALSE(radek_obsazen(2));
    EXPECT_EQ(cislo_radku(2), 0);
    prevezmi_radek_tabulky(2, "xxx");
    EXPECT_TRUE(radek_obsazen(2));
    EXPECT_EQ(cislo_radku(2), 0);
}
