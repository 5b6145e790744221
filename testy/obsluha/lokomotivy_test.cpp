// testy/obsluha/lokomotivy_test.cpp - locomotives called out of the depots.
#include "desk/menu.h"
#include "jizda/svet_vlaku.h"
#include "obsluha/lokomotivy.h"
#include "obsluha/vstup.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "zaklad/nahoda.h"

namespace {

class Lokomotivy : public SVlaky {
protected:
    Lokomotivy() {
        for (const int n : {112, 119, 25})
            pridej_kolej(n);
        for (const int n : {28, 30, 34, 2}) {
            relief.popis_stanice.zaloz(n).text = "DKV " + text_cisla(n);
            relief.popis_stanice[n].viditelny = true;
        }
        zasej_nahodu(1);
    }
    // The only train that exists; -1 when there is none.
    static int jediny() {
        int nalezeny = -1;
        for (std::size_t v = 0; v < vlaky.size(); ++v)
            if (vlaky[v].cislo > 0) {
                EXPECT_EQ(nalezeny, -1);
                nalezeny = static_cast<int>(v);
            }
        return nalezeny;
    }
    // What each of them has that comes out of a depot.
    static void over_lokomotivu(const Vlak& v, TextPohled rada, int delka) {
        EXPECT_GE(v.cislo, 74'800);
        EXPECT_LT(v.cislo, 75'000);
        EXPECT_EQ(v.druh, 16);
        EXPECT_TRUE(v.muze_jet);
        EXPECT_EQ(v.delka, delka);
        EXPECT_EQ(v.max_rychlost, 80);
        EXPECT_EQ(v.rychlost_trati, 80);
        EXPECT_EQ(v.loko_rada, cele_z_textu(rada));
        EXPECT_EQ(rady_vozu(v.vozy), std::vector<Text>{Text(rada)});
    }
    static std::vector<Text> texty_menu() {
        std::vector<Text> texty;
        for (const PolozkaMenu& p : menu.polozky)
            texty.push_back(p.text);
        return texty;
    }
};

} // namespace

TEST_F(Lokomotivy, NamesOfTheDepotsOpenTheirMenus) {
    for (const int n : {28, 30}) {
        klik(Druh::popis_stanice, n, Tlacitko::prave, false);
        EXPECT_EQ(menu.jmeno, "mnuLOKO");
        EXPECT_EQ(menu.prvek, n);
        EXPECT_EQ(menu.hlava, "DKV " + text_cisla(n));
        EXPECT_EQ(texty_menu(), (std::vector<Text>{"210", "230", "2x230", "240", "242", "362", "363", "731",
                                                   "742", "754"}));
    }
    klik(Druh::popis_stanice, 34, Tlacitko::leve, false);
    EXPECT_EQ(menu.jmeno, "mnuLOKO_VH");
    EXPECT_EQ(texty_menu(), (std::vector<Text>{"842", "850"}));
    klik(Druh::popis_stanice, 2, Tlacitko::prave, false);
    EXPECT_NE(menu.jmeno, "mnuLOKO");
    EXPECT_NE(menu.jmeno, "mnuLOKO_VH");
}

TEST_F(Lokomotivy, LocomotiveOfTheDepotComesAsAShuntingMovement) {
    klik(Druh::popis_stanice, 28, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("mi754"));
    const Vlak& v = vlak(jediny());
    over_lokomotivu(v, "754", 18);
    EXPECT_FALSE(v.smer);
    EXPECT_TRUE(v.posun);
    EXPECT_EQ(urceni_vozu(v.vozy), std::vector<Text>{""});
    EXPECT_EQ(cisla_prvku(v.prvky), std::vector<std::int16_t>{112});
    EXPECT_EQ(druhy_prvku(v.prvky), std::vector<std::uint8_t>{1});
    EXPECT_EQ(polohy_prvku(v.prvky), std::vector<std::uint8_t>{2});
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::stanice), (std::vector<std::uint8_t>{27, 12}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::prijezd), (std::vector<std::int16_t>{-3, 482}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd), (std::vector<std::int16_t>{480, -3}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd_realny), (std::vector<std::int16_t>{480, -3}));
    EXPECT_EQ(v.stanice_index, 0);
    EXPECT_EQ(v.prvek_konec, 0);
    EXPECT_EQ(v.cislo2, 0);
    EXPECT_EQ(relief.kolej[112].barva, barvy::cervena);
    EXPECT_EQ(metry(112), 500);
    EXPECT_EQ(koleje_vlaky[static_cast<std::size_t>(zaznam_koleje(112))].vlaky.front(), jediny());
    EXPECT_EQ(stitek(112), ""); // shunting movements show no number
    EXPECT_EQ(radek_tabulky(v.cislo), -1);
}

TEST_F(Lokomotivy, SecondGateSendsThemTheOtherWay) {
    loko_menu(30, "363");
    EXPECT_TRUE(vlak(jediny()).smer);
    EXPECT_EQ(cisla_prvku(vlak(jediny()).prvky), std::vector<std::int16_t>{119});
    EXPECT_EQ(relief.kolej[119].barva, barvy::cervena);
}

TEST_F(Lokomotivy, PairHasTwoVehiclesAndThirtySixMetres) {
    klik(Druh::popis_stanice, 30, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("mi2x230"));
    const Vlak& v = vlak(jediny());
    EXPECT_EQ(rady_vozu(v.vozy), (std::vector<Text>{"230", "230"}));
    EXPECT_EQ(v.delka, 36);
    EXPECT_EQ(v.loko_rada, 230);
}

TEST_F(Lokomotivy, EntriesAreAlsoKnownByTheirPlaceInTheMenu) {
    klik(Druh::popis_stanice, 30, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("miLoko9"));
    EXPECT_EQ(vlak(jediny()).loko_rada, 754);
}

TEST_F(Lokomotivy, NothingComesThroughAGateWithARouteAcrossIt) {
    RadekCesty pres;
    pres.zacatek = 262;
    pres.konec = 112;
    pres.prvky = {62, 112};
    pres.druhy = {1, 1};
    pres.polohy = {0, 0};
    cesta(pres, false);
    loko_menu(28, "754");
    EXPECT_EQ(jediny(), -1);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Lokomotivy, NothingComesToAnOccupiedGateOrOneThatIsNotDrawn) {
    barvi_prvek(112, barvy::cervena);
    loko_menu(28, "754");
    barvi_prvek(25, barvy::cervena);
    loko_vh_menu("850");
    EXPECT_EQ(jediny(), -1);
    relief.kolej = TabulkaPrvku{};
    loko_menu(30, "754");
    EXPECT_EQ(jediny(), -1);
}

TEST_F(Lokomotivy, OnlyTheSeriesOfTheMenuCome) {
    loko_menu(28, "842");
    loko_menu(29, "754");
    loko_vh_menu("754");
    EXPECT_EQ(jediny(), -1);
}

TEST_F(Lokomotivy, RailcarOfTheBranchDepotComesAsATrain) {
    klik(Druh::popis_stanice, 34, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("mi850"));
    const Vlak& v = vlak(jediny());
    over_lokomotivu(v, "850", 20);
    EXPECT_TRUE(v.smer);
    EXPECT_FALSE(v.posun);
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::stanice), (std::vector<std::uint8_t>{34, 9}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::prijezd), (std::vector<std::int16_t>{-3, 487}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd), (std::vector<std::int16_t>{480, -3}));
    EXPECT_EQ(relief.kolej[25].barva, barvy::cervena);
    EXPECT_EQ(metry(25), 200);
    EXPECT_EQ(stitek(25), text_cisla(v.cislo));
    EXPECT_EQ(radek_tabulky(v.cislo), 0);
}

TEST_F(Lokomotivy, NumberOfTheRailcarRunsOnOverTheRouteThatWaitsForIt) {
    RadekCesty cekajici;
    cekajici.zacatek = 225;
    cekajici.konec = 63;
    cekajici.prvky = {25, 63};
    cekajici.druhy = {1, 1};
    cekajici.polohy = {0, 0};
    cesta(cekajici);
    loko_vh_menu("842");
    EXPECT_EQ(stitek(63), text_cisla(vlak(jediny()).cislo));
}
