// testy/relief/prejezdy_test.cpp - line crossings under a passing train.
#include "pomocne/male_kolejiste.h"
#include "relief/prejezdy.h"
#include "zaklad/chyba.h"

#include <gtest/gtest.h>

namespace {

class PrejezdTrati : public testing::Test {
protected:
    DocasnaSlozka slozka;

    PrejezdTrati() {
        simulace = Simulace{};
        simulace.cesta_aplikace = slozka.cesta;
        zapis_male_kolejiste(slozka.cesta);
        relief = novy_relief();
        nacti_relief();
        prejezdy.clear();
    }
    ~PrejezdTrati() override {
        simulace = Simulace{};
        relief = Relief{};
        prejezdy.clear();
    }
    void pis(const Bajty& bajty) { zapis_soubor(slozka.cesta + "data\\tesk.pzz", bajty); }

    // Flags of crossing `i` with the head at `metry` of 640 (1200 m long).
    void stuj(TextPohled metry, bool smer, int delka_vlaku) {
        relief.kolej[640].stav = metry;
        kontrola_prejezdu(640, smer, delka_vlaku);
    }
    static bool zona(std::size_t i = 0) { return prejezdy[i].zona; }
    static bool uvolnen(std::size_t i = 0) { return prejezdy[i].uvolnen; }
};

TEST_F(PrejezdTrati, RecordHasTheLayoutOfTheFormat) {
    EXPECT_EQ(soubor_prejezdu({{9, "AB", 640, -2}}), (Bajty{9, 2, 0, 'A', 'B', 0x80, 2, 0xFE, 0xFF}));
}

TEST_F(PrejezdTrati, EmptyFileLeavesNoCrossingAndNoError) {
    pis({});
    nacti_prejezdy();
    EXPECT_TRUE(prejezdy.empty());
    stuj("500", true, 100);
    EXPECT_TRUE(prejezdy.empty());
}

TEST_F(PrejezdTrati, KeepsItsPlaceInTheFile) {
    pis(soubor_prejezdu({{1, "A", 640, 100}, {2, "B", 690, 200}, {3, "", -5, -6}}));
    nacti_prejezdy();
    ASSERT_EQ(prejezdy.size(), 3u);
    EXPECT_EQ(prejezdy[0], (Prejezd{false, false, false, 640, 100, "A"}));
    EXPECT_EQ(prejezdy[1], (Prejezd{false, false, false, 690, 200, "B"}));
    EXPECT_EQ(prejezdy[2], (Prejezd{false, false, false, -5, -6, ""}));
}

TEST_F(PrejezdTrati, ReadingAgainReplacesTheTable) {
    nacti_prejezdy();
    prejezdy[0].vyluka = true;
    nacti_prejezdy();
    ASSERT_EQ(prejezdy.size(), 1u);
    EXPECT_FALSE(prejezdy[0].vyluka);
}

TEST_F(PrejezdTrati, CutLastRecordIsDroppedAtEveryByte) {
    Bajty bajty = soubor_prejezdu({{1, "prvni", 640, 100}, {2, "druhy", 690, 200}});
    const std::size_t kratky = soubor_prejezdu({{1, "prvni", 640, 100}}).size();
    while (bajty.size() > kratky) {
        bajty.pop_back();
        pis(bajty);
        nacti_prejezdy();
        ASSERT_EQ(prejezdy.size(), 1u) << bajty.size();
    }
}

TEST_F(PrejezdTrati, MissingFileIsError53) {
    smaz_soubor(slozka.cesta + "data\\tesk.pzz");
    try {
        nacti_prejezdy();
        FAIL();
    } catch (const BehovaChyba& e) {
        EXPECT_EQ(e.kod, KodChyby::soubor_nenalezen);
    }
}

TEST_F(PrejezdTrati, ZoneAndClearingAreStrictTowardsLargerMetres) {
    nacti_prejezdy(); // 500 m from the start of the element
    stuj("300", true, 80);
    EXPECT_FALSE(zona());
    stuj("301", true, 80);
    EXPECT_TRUE(zona());
    EXPECT_FALSE(uvolnen());
    stuj("679", true, 80); // 500 + 100 + 80
    EXPECT_TRUE(zona());
    stuj("680", true, 80);
    EXPECT_FALSE(zona());
    EXPECT_FALSE(uvolnen());
    stuj("681", true, 80);
    EXPECT_TRUE(uvolnen());
    stuj("949", true, 80); // 1200 - 250
    EXPECT_TRUE(uvolnen());
    stuj("950", true, 80);
    EXPECT_FALSE(uvolnen());
    EXPECT_FALSE(zona());
}

TEST_F(PrejezdTrati, ZoneAndClearingAreStrictFromTheOtherEnd) {
    nacti_prejezdy(); // 1200 - 500 = 700 m from the far end
    stuj("500", false, 80);
    EXPECT_FALSE(zona());
    stuj("501", false, 80);
    EXPECT_TRUE(zona());
    stuj("879", false, 80);
    EXPECT_TRUE(zona());
    stuj("880", false, 80);
    EXPECT_FALSE(zona());
    EXPECT_FALSE(uvolnen());
    stuj("881", false, 80);
    EXPECT_TRUE(uvolnen());
    stuj("950", false, 80);
    EXPECT_FALSE(uvolnen());
}

TEST_F(PrejezdTrati, TwoOnOneElementBothRespondToOneCall) {
    pis(soubor_prejezdu({{0, "A", 640, 400}, {0, "B", 640, 500}, {0, "C", 690, 400}}));
    for (const bool smer : {true, false}) {
        nacti_prejezdy();
        stuj(smer ? "450" : "750", smer, 80);
        EXPECT_TRUE(zona(0)) << smer;
        EXPECT_TRUE(zona(1)) << smer;
        EXPECT_FALSE(zona(2)) << smer; // another element
        prejezdy[2].zona = true;
        stuj("0", smer, 80);
        EXPECT_FALSE(zona(0)) << smer;
        EXPECT_FALSE(zona(1)) << smer;
        EXPECT_TRUE(zona(2)) << smer;
    }
}

TEST_F(PrejezdTrati, PossessionIsNotTouched) {
    nacti_prejezdy();
    prejezdy[0].vyluka = true;
    stuj("500", true, 80);
    EXPECT_TRUE(prejezdy[0].vyluka);
}

TEST_F(PrejezdTrati, BlankPositionIsTheStartOfTheElement) {
    nacti_prejezdy();
    prejezdy[0].poloha = 100;
    stuj("", true, 10);
    EXPECT_TRUE(zona());
}

TEST_F(PrejezdTrati, ElementThatTheReliefDoesNotHoldIsSkipped) {
    pis(soubor_prejezdu({{0, "A", 777, 400}}));
    nacti_prejezdy();
    prejezdy[0].zona = true;
    kontrola_prejezdu(777, true, 80);
    EXPECT_TRUE(zona());
}

} // namespace
