// testy/prvky/souhlasy_test.cpp - consents to the three neighbouring stations.
#include "app/blikani.h"
#include "app/cas.h"
#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "obsluha/klavesy.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/vstup.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

namespace {

struct Souhlas : testing::Test {
    VirtualniPlatforma svet;
    Souhlas() {
        for (int k = 0; k < 3; ++k) {
            Prvek& lampa = relief.lblSouhlas.zaloz(k);
            lampa.barva = barvy::seda;
            lampa.text = znak(uzel::kKonceTrati[static_cast<std::size_t>(k)].znak_dovnitr);
        }
        nastav_cas("12:00:00");
        simulace.pauza = false;
        gtn_otevri();
        zapsano = bajty_logu(svet).size();
    }
    // Records of the log since the test began: code and element.
    std::vector<std::pair<int, int>> udalosti() const {
        std::vector<std::pair<int, int>> vse;
        for (const Udalost& u : udalosti_logu(svet, zapsano))
            vse.emplace_back(u.kod, u.prvek);
        return vse;
    }
    std::size_t zapsano = 0;
};

using Udalosti = std::vector<std::pair<int, int>>;

} // namespace

TEST_F(Souhlas, LeftClickAsksWhetherToTakeTheTrain) {
    const TextPohled vyzvy[] = {" PLH: Přijmete vlak 4711 ?"_cz, " HVO: Přijmete vlak 4711 ?"_cz,
                                " VRB: Přijmete vlak 4711 ?"_cz};
    for (int k = 0; k < 3; ++k) {
        prikaz_radek = Prikaz{};
        skryj_prikaz();
        relief.lblSouhlas[k].popis = Text("4711");
        klik_souhlas(k, Tlacitko::leve);
        EXPECT_EQ(relief.lblPrikaz[0].text(), " ZPRÁVA "_cz);
        EXPECT_EQ(relief.lblPrikaz[0].pozadi(), barvy::azurova);
        EXPECT_EQ(relief.lblVolba[0].text(), vyzvy[k]);
        EXPECT_EQ(prikaz_radek.kod_zpravy, k + 1);
        EXPECT_TRUE(prikaz_radek.blikani_prikazu);
    }
}

TEST_F(Souhlas, LeftClickSaysNothingWhenNobodyAsks) {
    klik_souhlas(0, Tlacitko::leve);
    klik_souhlas(0, Tlacitko::prostredni);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Souhlas, RightClickOpensTheMenuOfTheLine) {
    const TextPohled nazvy[] = {"PLH-JAV", "HVO-JAV", "VRB-THN"};
    for (int k = 0; k < 3; ++k) {
        klik_souhlas(k, Tlacitko::prave);
        EXPECT_EQ(menu.jmeno, "mnuSouhlas");
        EXPECT_EQ(menu.hlava, nazvy[k]);
        ASSERT_EQ(menu.polozky.size(), 1u);
        EXPECT_EQ(menu.polozky[0].jmeno, "miUS");
        EXPECT_EQ(menu.polozky[0].text, "US");
    }
}

TEST_F(Souhlas, GivenConsentTurnsTheLampInwardsAndLetsTheTrainIn) {
    const int dovnitr[] = {8, 8, 176};
    for (int k = 0; k < 3; ++k) {
        relief.lblSouhlas[k].text = Text("x");
        relief.lblSouhlas[k].popis = text_cisla(4711 + k);
        menu_souhlasu(k);
        menu.polozky[0].akce(menu.polozky[0].cil);
        EXPECT_EQ(relief.lblSouhlas[k].text(), znak(dovnitr[k]));
        EXPECT_EQ(relief.lblSouhlas[k].barva(), barvy::modra);
        EXPECT_TRUE(relief.lblSouhlas[k].popis->empty());
        EXPECT_TRUE(souhlasy.souhlas[static_cast<std::size_t>(k)]);
    }
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{4711, 4712, 4713}));
    EXPECT_EQ(udalosti(), (Udalosti{{103, 0}, {103, 1}, {103, 2}}));
}

TEST_F(Souhlas, WithARouteLockedOutwardsTheLampGoesOnSayingSo) {
    relief.lblSouhlas[2].barva = barvy::modra;
    relief.lblSouhlas[2].text = znak(183);
    relief.lblSouhlas[2].popis = Text("99");
    udel_souhlas(2);
    EXPECT_EQ(relief.lblSouhlas[2].text(), znak(183));
    EXPECT_EQ(relief.lblSouhlas[2].barva(), barvy::modra);
    EXPECT_TRUE(souhlasy.souhlas[2]);
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{99}));
}

TEST_F(Souhlas, WithNobodyAskingDoesNothing) {
    const Relief pred = relief;
    udel_souhlas(1);
    EXPECT_EQ(relief, pred);
    EXPECT_EQ(souhlasy, Souhlasy{});
    EXPECT_EQ(udalosti(), Udalosti{});
}

TEST_F(Souhlas, GivenFromTheMenuConfirmsTheQuestionOfItsLine) {
    relief.lblSouhlas[0].popis = Text("4711");
    klik_souhlas(0, Tlacitko::leve);
    zprava(" OK ", "dalsi", barvy::zelena);
    udel_souhlas(0);
    EXPECT_EQ(relief.lblVolba[0].text(), "dalsi"); // the message that waited
    EXPECT_EQ(svet.pipnuti, (std::vector<VirtualniPlatforma::Pipnuti>{{400, 150}}));
}

TEST_F(Souhlas, QuestionBroughtByTheQueueIsConfirmedToo) {
    relief.lblSouhlas[0].popis = Text("4711");
    zprava(" OK ", "prvni", barvy::zelena);
    klik_souhlas(0, Tlacitko::leve);
    potvrd_prikaz();
    dalsi_zprava();
    ASSERT_EQ(relief.lblVolba[0].text(), " PLH: Přijmete vlak 4711 ?"_cz);
    udel_souhlas(0);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Souhlas, QuestionOfAnotherLineIsNotAnsweredByIt) {
    relief.lblSouhlas[0].popis = Text("4711");
    relief.lblSouhlas[1].popis = Text("4712");
    klik_souhlas(1, Tlacitko::leve);
    udel_souhlas(0);
    EXPECT_TRUE(prikaz_radek.obsazen);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 2);
    EXPECT_FALSE(souhlasy.souhlas[1]);
}

TEST_F(Souhlas, EnterOnTheQuestionGivesTheConsentOnce) {
    relief.lblSouhlas[1].popis = Text("4711");
    klik(Druh::lblSouhlas, 1, Tlacitko::leve, false);
    zprava(" OK ", "dalsi", barvy::zelena);
    klavesa(klavesa_podle_jmena("Enter"));
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{4711}));
    EXPECT_TRUE(souhlasy.souhlas[1]);
    EXPECT_TRUE(relief.lblSouhlas[1].popis->empty());
    EXPECT_EQ(udalosti(), (Udalosti{{103, 1}}));
    EXPECT_EQ(relief.lblVolba[0].text(), "dalsi"); // the message behind it is not lost
    klavesa(klavesa_podle_jmena("Enter"));
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(souhlasy.cekajici_vlaky.size(), 1u);
}

TEST_F(Souhlas, LampBlinksByMovingItsGlyphUntilTheTrainIsTaken) {
    relief.lblSouhlas[2].popis = Text("4711");
    const Text glyf = znak(176);
    for (int i = 0; i < 4; ++i) {
        krok_blikani();
        EXPECT_EQ(relief.lblSouhlas[2].text(), i % 2 == 0 ? " " + glyf : glyf);
    }
    krok_blikani();
    udel_souhlas(2); // in the phase of two characters
    krok_blikani();
    EXPECT_EQ(relief.lblSouhlas[2].text(), glyf);
}

TEST_F(Souhlas, UnknownLineOrMissingLampIsIgnored) {
    relief = novy_relief();
    relief.lblSouhlas.zaloz(0).popis = Text("1");
    for (const int k : {-1, 1, 2, 3}) {
        klik_souhlas(k, Tlacitko::leve);
        klik_souhlas(k, Tlacitko::prave);
        udel_souhlas(k);
    }
    EXPECT_EQ(souhlasy, Souhlasy{});
    EXPECT_TRUE(menu.jmeno.empty());
}

TEST(KonecTrati, IsKnownByItsSignalAndByItsSection) {
    for (int n = -3; n <= 999; ++n) {
        const int k = n == 212 || n == 84 ? 0 : n == 213 || n == 85 ? 1 : n == 219 || n == 117 ? 2 : -1;
        EXPECT_EQ(uzel::konec_trati(n), k) << n;
    }
}
