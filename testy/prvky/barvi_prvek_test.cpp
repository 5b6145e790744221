// testy/prvky/barvi_prvek_test.cpp - the painter of tracks, its mirrors, labels and lamps.
#include "cesty/stavedlo.h"
#include "prvky/barvi_prvek.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "relief/prejezdy.h"

using Malir = Stavedlo;

TEST_F(Malir, PaintsAndLogsATrackAndItsLabels) {
    stitek(241, "K41");
    barvi_prvek(41, barvy::zelena);
    EXPECT_EQ(barva(41), barvy::zelena);
    EXPECT_EQ(relief.cislo_koleje[41].barva, barvy::zelena);
    EXPECT_EQ(relief.cislo_koleje[241].barva, barvy::zelena);
    EXPECT_EQ(zapsano({73, 41, barvy::zelena}), 1u);
}

TEST_F(Malir, LabelsOf12And13And19HaveNoTwin) {
    for (const int n : {12, 13, 19}) {
        kolej(n, 0, 100, 0);
        stitek(n, "K");
        stitek(n + 200, "K");
        barvi_prvek(n, barvy::cervena);
        EXPECT_EQ(relief.cislo_koleje[n].barva, barvy::cervena);
        EXPECT_EQ(relief.cislo_koleje[n + 200].barva, barvy::seda);
    }
}

TEST_F(Malir, LabelOnRedKeepsItsColour) {
    relief.cislo_koleje[41].pozadi = barvy::cervena;
    barvi_prvek(41, barvy::zelena);
    EXPECT_EQ(relief.cislo_koleje[41].barva, barvy::seda);
}

TEST_F(Malir, LinesAreNeverGreenOrCyan) {
    kolej(638, 0, 100, 0);
    for (const int n : {604, 118, 84, 212, 117, 219}) {
        for (const Barva b : {barvy::zelena, barvy::azurova}) {
            barvi_prvek(n, b);
            EXPECT_EQ(barva(n), barvy::seda) << n;
        }
        barvi_prvek(n, barvy::cervena);
        EXPECT_EQ(barva(n), barvy::cervena) << n;
        barvi_prvek(n, barvy::seda);
    }
    barvi_prvek(638, barvy::zelena);
    EXPECT_EQ(barva(638), barvy::zelena) << "638 is a station track as well";
}

TEST_F(Malir, EndWithALabelForNumbersOnlyIsLeftUnpainted) {
    stitek(48, " ");
    barvi_prvek(48, barvy::zelena, false, true);
    EXPECT_EQ(barva(48), barvy::seda);
    EXPECT_EQ(relief.cislo_koleje[48].barva, barvy::bila);
    barvi_prvek(41, barvy::zelena, false, true);
    EXPECT_EQ(barva(41), barvy::zelena) << "it has a name";
    kolej(116, 0, 100, 0);
    stitek(116, " ");
    barvi_prvek(116, barvy::zelena, false, true);
    EXPECT_EQ(barva(116), barvy::zelena) << "116 is always painted";
}

TEST_F(Malir, ArrowsOfTheSingleTracksFollow) {
    for (const int n : {118, 120}) {
        barvi_prvek(n, barvy::cervena);
        EXPECT_EQ(relief.lblSouhlas2[n].barva, barvy::azurova);
        barvi_prvek(n, barvy::seda);
        EXPECT_EQ(relief.lblSouhlas2[n].barva, barvy::seda);
    }
}

TEST_F(Malir, TwinsTakeTheColour) {
    const std::vector<std::pair<int, std::vector<int>>> dvojcata = {
        {686, {687}},      {738, {739}},      {76, {289}},           {77, {290}},
        {118, {306}},      {576, {498, 590}}, {97, {426, 225, 226}}, {18, {190, 189}},
        {114, {325, 585}}, {113, {437, 584}}, {115, {336, 320}},     {116, {335, 554}}};
    for (const auto& [vzor, kopie] : dvojcata) {
        kolej(vzor, 0, 100, 0);
        for (const int n : kopie)
            kolej(n, 0, 100, 0);
        barvi_prvek(vzor, barvy::cervena);
        for (const int n : kopie)
            EXPECT_EQ(barva(n), barvy::cervena) << n;
    }
}

TEST_F(Malir, GreyOnTheLineClearsItsCrossing) {
    kolej(600, 0, 100, 0);
    kolej(602, 0, 100, 0);
    prejezdy.assign(11, Prejezd{});
    prejezdy[9].zona = prejezdy[10].zona = true;
    barvi_prvek(602, barvy::cervena);
    EXPECT_TRUE(prejezdy[9].zona);
    barvi_prvek(602, barvy::seda);
    EXPECT_FALSE(prejezdy[9].zona);
    EXPECT_TRUE(prejezdy[10].zona);
    barvi_prvek(600, barvy::seda);
    EXPECT_FALSE(prejezdy[10].zona);
    prejezdy.clear();
    EXPECT_NO_THROW(barvi_prvek(600, barvy::seda)) << "a junction without line crossings";
}

TEST_F(Malir, LampOfALineEndGoesGreyWhenBothSectionsAreFree) {
    relief.lblSouhlas[0].barva = barvy::modra;
    relief.cislo_koleje[84].text = TextPohled("1234");
    relief.lblPredvidany_odjezd[0].text = TextPohled("15");
    relief.kolej[212].barva = barvy::cervena;
    barvi_prvek(84, barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::modra);
    barvi_prvek(212, barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::seda);
    EXPECT_EQ(relief.cislo_koleje[84].text(), "");
    EXPECT_EQ(relief.lblPredvidany_odjezd[0].text(), "");
    EXPECT_FALSE(relief.lblPredvidany_odjezd[0].viditelny);
}

TEST_F(Malir, LampStaysForTheConsentedTrain) {
    for (const int k : {0, 2}) {
        relief.lblSouhlas[k].barva = barvy::modra;
        souhlasy.souhlas[static_cast<std::size_t>(k)] = true;
        barvi_prvek(k == 0 ? 84 : 117, barvy::seda);
        EXPECT_EQ(relief.lblSouhlas[k].barva, barvy::modra);
        EXPECT_EQ(relief.lblSouhlas[k].text(), znak(k == 0 ? 8 : 176));
    }
}

TEST_F(Malir, TailFreesALineEndAtOnce) {
    barvi_prvek(84, barvy::cervena);
    barvi_prvek(84, barvy::azurova, true);
    EXPECT_EQ(barva(84), barvy::seda);
    EXPECT_EQ(relief.lblSouhlas[0].barva, barvy::seda);
    EXPECT_TRUE(odjete.none());
}

TEST_F(Malir, PaintingAgainTakesASectionOutOfTheLeftOnes) {
    barvi_prvek(41, barvy::azurova, true);
    EXPECT_TRUE(odjete.test(41));
    barvi_prvek(41, barvy::azurova);
    EXPECT_FALSE(odjete.test(41));
    EXPECT_FALSE(je_volna(41));
}

TEST_F(Malir, FlankSwitchForbidsThePair) {
    // 11 at the corner left of 12, one row lower than 10
    vyhybka(10, 1000, 1000, 2);
    vyhybka(12, 2000, 1195, 2);
    vyhybka(11, 1000, 1195, 2);
    EXPECT_TRUE(sousedni_volne(10, 12));
    relief.imgVyhybka[11].stav = TextPohled("52");
    EXPECT_FALSE(sousedni_volne(10, 12));
    EXPECT_EQ(bocni_vyhybka(10, 12), 11);
    relief.imgVyhybka[11].stav = TextPohled("2");
    stav_vyhybek.vyhybka_pohyb.assign(20, false);
    stav_vyhybek.vyhybka_pohyb[11] = true;
    EXPECT_FALSE(sousedni_volne(10, 12));
    relief.imgVyhybka[12].nahore = 1390;
    EXPECT_TRUE(sousedni_volne(10, 12)) << "they are not one row apart";
}

TEST_F(Malir, ThreeSwitchesNeedNoFlankProtection) {
    for (const int a : {53, 54, 55}) {
        vyhybka(a, 1000, 1000, 2);
        vyhybka(a + 2, 2000, 1195, 2);
        vyhybka(a + 1, 1000, 1195, 52);
        EXPECT_TRUE(sousedni_volne(a, a + 2));
    }
}
