// testy/davka/skript_test.cpp - the words of a script.
#include "davka/skript.h"
#include "zaklad/text.h"

#include <gtest/gtest.h>

using SlovaRadku = std::vector<std::string>;

TEST(Skript, PartsALineIntoWords) {
    EXPECT_EQ(slova_radku("klik navestidlo\t205   ctrl"), (SlovaRadku{"klik", "navestidlo", "205", "ctrl"}));
    EXPECT_EQ(slova_radku("   "), SlovaRadku{});
    EXPECT_EQ(slova_radku("prihlas\r"), SlovaRadku{"prihlas"});
    EXPECT_EQ(slova_radku("\xEF\xBB\xBFprihlas"), SlovaRadku{"prihlas"});
}

TEST(Skript, LeavesCommentsOut) {
    EXPECT_EQ(slova_radku("# jen poznamka"), SlovaRadku{});
    EXPECT_EQ(slova_radku("cekej 30s # pul minuty"), (SlovaRadku{"cekej", "30s"}));
    EXPECT_EQ(slova_radku("pis \"kolej #3\""), (SlovaRadku{"pis", "kolej #3"}));
}

TEST(Skript, KeepsBlanksOfQuotedTexts) {
    EXPECT_EQ(slova_radku("over prikaz prikaz=\" VC \" volba=\"\""),
              (SlovaRadku{"over", "prikaz", "prikaz= VC ", "volba="}));
    EXPECT_EQ(slova_radku("pis \"a \"\"b\"\" c\""), (SlovaRadku{"pis", "a \"b\" c"}));
    EXPECT_EQ(slova_radku("pis \"\""), (SlovaRadku{"pis", ""}));
}

TEST(Skript, RefusesATextWithoutItsEnd) {
    EXPECT_THROW(slova_radku("pis \"bez konce"), ChybaSkriptu);
}

TEST(Skript, ReadsWholeNumbersStrictly) {
    EXPECT_EQ(cele_cislo("205", 0, 999), 205);
    EXPECT_EQ(cele_cislo("+5", 0, 999), 5);
    EXPECT_EQ(cele_cislo("-3", -3, 999), -3);
    for (const char* spatne : {"", "5x", "x5", " 5", "5 ", "1000", "-4", "+-5", "5.0", "0x5"})
        EXPECT_EQ(cele_cislo(spatne, -3, 999), std::nullopt) << spatne;
    EXPECT_EQ(cele_cislo("99999999999999999999", 0, INT64_MAX), std::nullopt);
}

TEST(Skript, ReadsDurationsInTheirUnits) {
    EXPECT_EQ(doba_slova("30s"), 30'000);
    EXPECT_EQ(doba_slova("1500ms"), 1500);
    EXPECT_EQ(doba_slova("10min"), 600'000);
    EXPECT_EQ(doba_slova("2h"), 7'200'000);
    EXPECT_EQ(doba_slova("0s"), 0);
    for (const char* spatne : {"", "30", "s", "-1s", "1.5s", "30 s", "5d", "99999999999h"})
        EXPECT_THROW(doba_slova(spatne), ChybaSkriptu) << spatne;
}

TEST(Skript, ReadsTimesOfDay) {
    EXPECT_EQ(cas_slova("8:05:30"), 8 * 3600 + 5 * 60 + 30);
    EXPECT_EQ(cas_slova("23:59:59"), 86399);
    EXPECT_EQ(cas_slova("0:00"), 0);
    for (const char* spatne : {"", "8", "24:00:00", "8:60:00", "8:00:60", "8:00:00:00", "8:-1:00", "8:+1:00",
                               "a:00:00", "8:000:00", "8:00:"})
        EXPECT_THROW(cas_slova(spatne), ChybaSkriptu) << spatne;
}

TEST(Skript, ReadsColoursInAnyCase) {
    EXPECT_EQ(barva_textu("0x0000FF00"), 0xFF00u);
    EXPECT_EQ(barva_textu("0xffff"), 0xFFFFu);
    EXPECT_EQ(barva_textu("8421504"), 0x808080u);
    EXPECT_EQ(barva_textu("zelena"), std::nullopt);
    EXPECT_EQ(barva_textu("0x1FFFFFFFF"), std::nullopt);
}

TEST(Skript, PartsFieldAndValueAtTheFirstEqualsSign) {
    const Prirazeni p = prirazeni("text=a=b");
    EXPECT_EQ(p.pole, "text");
    EXPECT_EQ(p.hodnota, "a=b");
    EXPECT_EQ(prirazeni("text=").hodnota, "");
    EXPECT_THROW(prirazeni("text"), ChybaSkriptu);
    EXPECT_THROW(prirazeni("=x"), ChybaSkriptu);
}

TEST(Skript, TakesOnlyCharactersOfTheCodePage) {
    EXPECT_EQ(text_slova("děčín"), Text("děčín"_cz));
    EXPECT_THROW(text_slova("日本"), ChybaSkriptu);
    EXPECT_THROW(text_slova("\xFF"), ChybaSkriptu) << "damaged UTF-8";
}

TEST(Skript, OffersTheLikeliestWord) {
    constexpr std::array<std::string_view, 3> kZnama = {"vypis", "over", "cekej"};
    EXPECT_NE(napoveda("vipis", kZnama).find("vypis"), std::string::npos);
    EXPECT_NE(napoveda("over", kZnama).find("over"), std::string::npos);
    EXPECT_EQ(napoveda("lokomotiva", kZnama), "");
    EXPECT_EQ(napoveda("", kZnama), "");
}
