// testy/zaklad/text_test.cpp - code page 1250, literals, case, cuts.
#include "zaklad/text.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(KodovaStranka, MapsEveryByteToItsOwnCharacterAndBack) {
    std::set<char32_t> znaky;
    for (int bajt = 0; bajt < 256; ++bajt) {
        const char32_t unicode = cp1250::na_unicode(static_cast<unsigned char>(bajt));
        EXPECT_TRUE(znaky.insert(unicode).second) << bajt;
        EXPECT_EQ(cp1250::z_unicode(unicode), bajt);
        EXPECT_EQ(z_utf8(na_utf8(znak(bajt))), znak(bajt)) << bajt;
    }
}

TEST(KodovaStranka, HoldsTheCzechLetters) {
    EXPECT_EQ(z_utf8("áčďéěíňóřšťúůýž"), "\xE1\xE8\xEF\xE9\xEC\xED\xF2\xF3\xF8\x9A\x9D\xFA\xF9\xFD\x9E");
    EXPECT_EQ(z_utf8("ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ"), "\xC1\xC8\xCF\xC9\xCC\xCD\xD2\xD3\xD8\x8A\x8D\xDA\xD9\xDD\x8E");
    EXPECT_EQ(z_utf8("´°§–€"), "\xB4\xB0\xA7\x96\x80");
    EXPECT_EQ(na_utf8("Tesk \xE8. 5"), "Tesk č. 5");
}

TEST(KodovaStranka, CharacterOutsideBecomesAQuestionMark) {
    EXPECT_EQ(z_utf8("a日b"), "a?b");
    EXPECT_EQ(z_utf8("𝄞"), "?");
    EXPECT_EQ(z_utf8("ñ"), "?");
}

TEST(KodovaStranka, DamagedUtf8CostsOneMarkAByte) {
    EXPECT_EQ(z_utf8("a\xC3"), "a?");         // cut
    EXPECT_EQ(z_utf8("\x80z"), "?z");         // stray
    EXPECT_EQ(z_utf8("\xE2\x82z"), "??z");    // the third byte is missing
    EXPECT_EQ(z_utf8("\xC0\xAF"), "??");      // overlong "/"
    EXPECT_EQ(z_utf8("\xE0\x80\xAF"), "???"); // overlong "/"
    EXPECT_EQ(z_utf8("\xF8\x88\x80\x80\x80"), "?????");
    EXPECT_EQ(z_utf8("\xFF"), "?");
}

TEST(Literal, IsConvertedWhileCompiling) {
    constexpr TextPohled text = "Zpoždění vlaku +5´"_cz;
    static_assert(text.size() == 18);
    EXPECT_EQ(text, "Zpo\x9E"
                    "d\xECn\xED vlaku +5\xB4");
    EXPECT_EQ(""_cz, "");
    EXPECT_EQ(na_utf8("průj. příj. ř."_cz), "průj. příj. ř.");
}

TEST(Glyf, IsOneByte) {
    EXPECT_EQ(znak(229), "\xE5");
    EXPECT_EQ(kod_znaku("\xE5 "), 229);
    EXPECT_EQ(kod_znaku(""), 0);
    EXPECT_EQ(znak(0).size(), 1u);
}

TEST(Orez, TakesBlanksOnly) {
    EXPECT_EQ(orez("  a b  "), "a b");
    EXPECT_EQ(orez("   "), "");
    EXPECT_EQ(orez(""), "");
    EXPECT_EQ(orez(" \x08 "), "\x08"); // a signal's glyph
    EXPECT_EQ(orez("\r\t"), "\r\t");
}

TEST(Pismena, FoldByTheCodePage) {
    EXPECT_EQ(mala_pismena("ABC xyz 12 \xC8\x8E\xD9"), "abc xyz 12 \xE8\x9E\xF9");
    EXPECT_EQ(velka_pismena("abc XYZ 12 \xE8\x9E\xF9"), "ABC XYZ 12 \xC8\x8E\xD9");
    for (int bajt = 0; bajt < 256; ++bajt) {
        const Text jeden = znak(bajt);
        EXPECT_EQ(mala_pismena(velka_pismena(mala_pismena(jeden))), mala_pismena(jeden)) << bajt;
        EXPECT_TRUE(stejne_bez_velikosti(mala_pismena(jeden), velka_pismena(jeden))) << bajt;
        if (mala_pismena(jeden) != jeden) {
            EXPECT_EQ(velka_pismena(mala_pismena(jeden)), jeden) << bajt;
        }
    }
}

TEST(Pismena, OtherLettersAreNotEqual) {
    EXPECT_TRUE(stejne_bez_velikosti("\x8A", "\x9A"));
    EXPECT_FALSE(stejne_bez_velikosti("s", "\x9A"));
    EXPECT_FALSE(stejne_bez_velikosti("a", "ab"));
    EXPECT_FALSE(stejne_bez_velikosti("@", "`")); // 64 and 96: no letters
}

TEST(Vyrez, CountsFromOne) {
    EXPECT_EQ(vyrez("abcdef", 1, 3), "abc");
    EXPECT_EQ(vyrez("abcdef", 5, 10), "ef");
    EXPECT_EQ(vyrez("abcdef", 6), "f");
    EXPECT_EQ(vyrez("abcdef", 7), "");
    EXPECT_EQ(vyrez("abcdef", 0, 3), "");
    EXPECT_EQ(vyrez("", 1), "");
}

TEST(VlozDo, KeepsTheLengthOfTheLine) {
    Text radek = "..........";
    vloz_do(radek, 1, "Os");
    vloz_do(radek, 5, "123");
    vloz_do(radek, 9, "konec");
    EXPECT_EQ(radek, "Os..123.ko");
    vloz_do(radek, 11, "x");
    vloz_do(radek, 0, "x");
    EXPECT_EQ(radek, "Os..123.ko");
}

} // namespace
