// testy/prvky/souhlasy_test.cpp - consents to the three neighbouring stations.
#include "app/blikani.h"
#include "prvky/souhlasy.h"
#include "prvky/svety.h"

TEST_F(Souhlas, TrainThatMayComeDoesNotHangOnTheTagOfTheLamp) {
    zadej_souhlas(1, 4711);
    EXPECT_EQ(relief.lblSouhlas[1].popis(), "4711");
    relief.lblSouhlas[1].popis = Text("12");
    souhlas_us(1);
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{4711}));
    EXPECT_EQ(souhlasy.zada[1], std::nullopt);
    EXPECT_EQ(relief.lblSouhlas[1].popis(), "");
}

TEST_F(Souhlas, NobodyAsksByAnEmptyTag) {
    zadej_souhlas(0, "4711");
    EXPECT_EQ(souhlasy.zada[0], 4711);
    zadej_souhlas(0, TextPohled());
    EXPECT_EQ(souhlasy.zada[0], std::nullopt);
    souhlas_us(0);
    EXPECT_FALSE(souhlasy.souhlas[0]);
    zadej_souhlas(3, 4711); // no line end
}

TEST_F(Souhlas, GivenConsentTurnsTheLampInwardsAndLetsTheTrainIn) {
    const int dovnitr[] = {8, 8, 176};
    for (int k = 0; k < 3; ++k) {
        relief.lblSouhlas[k].text = Text("x");
        zadej_souhlas(k, 4711 + k);
        souhlas_us(k);
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
    zadej_souhlas(2, 99);
    souhlas_us(2);
    EXPECT_EQ(relief.lblSouhlas[2].text(), znak(183));
    EXPECT_EQ(relief.lblSouhlas[2].barva(), barvy::modra);
    EXPECT_TRUE(souhlasy.souhlas[2]);
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{99}));
}

TEST_F(Souhlas, WithNobodyAskingDoesNothing) {
    const Relief pred = relief;
    souhlas_us(1);
    EXPECT_EQ(relief, pred);
    EXPECT_EQ(souhlasy, Souhlasy{});
    EXPECT_EQ(udalosti(), Udalosti{});
}

TEST_F(Souhlas, LampBlinksByMovingItsGlyphUntilTheTrainIsTaken) {
    zadej_souhlas(2, 4711);
    const Text glyf = znak(176);
    for (int i = 0; i < 4; ++i) {
        krok_blikani();
        EXPECT_EQ(relief.lblSouhlas[2].text(), i % 2 == 0 ? " " + glyf : glyf);
    }
    krok_blikani();
    souhlas_us(2); // in the phase of two characters
    krok_blikani();
    EXPECT_EQ(relief.lblSouhlas[2].text(), glyf);
}

TEST_F(Souhlas, UnknownLineOrMissingLampIsIgnored) {
    relief = novy_relief();
    relief.lblSouhlas.zaloz(0).popis = Text("1");
    for (const int k : {-1, 1, 2, 3})
        souhlas_us(k);
    EXPECT_EQ(souhlasy, Souhlasy{});
}

TEST(KonecTrati, IsKnownByItsSignalAndByItsSection) {
    for (int n = -3; n <= 999; ++n) {
        const int k = n == 212 || n == 84 ? 0 : n == 213 || n == 85 ? 1 : n == 219 || n == 117 ? 2 : -1;
        EXPECT_EQ(uzel::konec_trati(n), k) << n;
    }
}
