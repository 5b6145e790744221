// testy/jizda/souprava_test.cpp - locomotives in a consist.
#include "jizda/souprava.h"
#include "pomocne/vozy_vlaku.h"

#include <gtest/gtest.h>

namespace {

Vlak souprava(const std::vector<Text>& vozy, const std::vector<Text>& urceni = {}) {
    Vlak v;
    v.vozy = vozy_vlaku(vozy, urceni);
    return v;
}

} // namespace

TEST(Souprava, LocomotiveSeriesLieStrictlyBetween100And900) {
    EXPECT_FALSE(je_loko("100"));
    EXPECT_TRUE(je_loko("101"));
    EXPECT_TRUE(je_loko(" 754 "));
    EXPECT_TRUE(je_loko("560"));
    EXPECT_TRUE(je_loko("899"));
    EXPECT_FALSE(je_loko("900"));
    EXPECT_FALSE(je_loko("943"));
    EXPECT_FALSE(je_loko("ZAL"));
    EXPECT_FALSE(je_loko("560p"));
    EXPECT_FALSE(je_loko(""));
}

TEST(Souprava, LightEngineHasNothingButLocomotives) {
    EXPECT_TRUE(jen_loko(souprava({"754", "731"})));
    EXPECT_FALSE(jen_loko(souprava({"754", "B"})));
    EXPECT_FALSE(jen_loko(souprava({})));
}

TEST(Souprava, OneLocomotiveIsEnoughToMove) {
    EXPECT_TRUE(ma_loko(souprava({"943", "B", "210"})));
    EXPECT_FALSE(ma_loko(souprava({"943", "B"})));
}

TEST(Souprava, StandbyLocomotiveDrawsOnlyWhenAlone) {
    EXPECT_FALSE(ma_tazne_loko(souprava({"731", "B"}, {"ZAL", ""})));
    EXPECT_TRUE(ma_tazne_loko(souprava({"731"}, {"ZAL"})));
    EXPECT_TRUE(ma_tazne_loko(souprava({"731", "754"}, {"ZAL", ""})));
    EXPECT_FALSE(ma_tazne_loko(souprava({"731", "754"}, {"ZAL", "ZAL"})));
}

TEST(Souprava, DrivingTrailerAtTheEndCountsAsAssisting) {
    EXPECT_TRUE(posledni_je_loko(souprava({"754", "943"})));
    EXPECT_FALSE(posledni_je_loko(souprava({"754", "100"})));
    EXPECT_FALSE(posledni_je_loko(souprava({"754"})));
    EXPECT_FALSE(posledni_je_loko(souprava({"754", "Bdt"})));
}

TEST(Souprava, SecondLocomotiveNeedsThreeVehicles) {
    EXPECT_TRUE(druhy_je_loko(souprava({"754", "750", "B"})));
    EXPECT_FALSE(druhy_je_loko(souprava({"754", "750"})));
    EXPECT_FALSE(druhy_je_loko(souprava({"754", "B", "750"})));
}
