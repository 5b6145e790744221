// testy/desk/tabulka_vlaku_test.cpp - the train table.
#include "app/blikani.h"
#include "desk/tabulka_vlaku.h"
#include "jizda/vlak.h"
#include "pomocne/virtualni_platforma.h"

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
        v.stanice = {9, 1};
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
