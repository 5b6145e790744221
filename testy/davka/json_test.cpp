// testy/davka/json_test.cpp - the output of the headless runner.
#include "davka/json.h"

#include <gtest/gtest.h>

TEST(Json, KeepsTheOrderInWhichItWasBuilt) {
    ZaznamJsonu z;
    pridej(z, "vypis", json_utf8("hodiny"));
    pridej(z, "cas", json_text("8:00:00"));
    pridej(z, "den", 1);
    pridej(z, "pauza", true);
    pridej(z, "menu", Json());
    EXPECT_EQ(zapis_json(Json(z)),
              R"({"vypis": "hodiny", "cas": "8:00:00", "den": 1, "pauza": true, "menu": null})");
}

TEST(Json, WritesTextsOfTheCoreInUnicode) {
    EXPECT_EQ(zapis_json(json_text("pondělí"_cz)), "\"pondělí\"");
    EXPECT_EQ(zapis_json(json_text("\xE5")), "\"ĺ\"") << "the glyph of a signal";
}

TEST(Json, EscapesQuotesBackslashesAndControlGlyphs) {
    EXPECT_EQ(zapis_json(json_text("a\"b\\c")), R"("a\"b\\c")");
    EXPECT_EQ(zapis_json(json_text("\x08\x0D\x1F\x7F")), R"("\u0008\u000D\u001F\u007F")");
    EXPECT_EQ(zapis_json(json_text("\x81\x98")), R"("\u0081\u0098")")
        << "codes that the code page leaves open";
    EXPECT_EQ(zapis_json(json_text("\xA0")), "\"\xC2\xA0\"");
    EXPECT_EQ(zapis_json(json_text(TextPohled("\0", 1))), R"("\u0000")");
}

TEST(Json, WritesAColourWithEightDigits) {
    EXPECT_EQ(zapis_json(json_barva(0x00FF00)), "\"0x0000FF00\"");
    EXPECT_EQ(zapis_json(json_barva(0xABCDEF)), "\"0x00ABCDEF\"");
    EXPECT_EQ(zapis_json(json_barva(-1)), "\"0xFFFFFFFF\"");
}

TEST(Json, WritesNumbersOfEveryWidthAsNumbers) {
    SeznamJsonu s;
    s.emplace_back(std::uint8_t{255});
    s.emplace_back(std::int16_t{-3});
    s.emplace_back(std::int32_t{-2147483647 - 1});
    s.emplace_back(std::int64_t{9007199254740993});
    EXPECT_EQ(zapis_json(Json(s)), "[255, -3, -2147483648, 9007199254740993]");
}

TEST(Json, FindsAMemberOfARecordOnly) {
    ZaznamJsonu z;
    pridej(z, "a", 1);
    const Json zaznam(z);
    ASSERT_NE(clen(zaznam, "a"), nullptr);
    EXPECT_EQ(*clen(zaznam, "a"), Json(1));
    EXPECT_EQ(clen(zaznam, "b"), nullptr);
    EXPECT_EQ(clen(Json(1), "a"), nullptr);
}

TEST(Json, GivesListsAsAScriptWritesThem) {
    SeznamJsonu s;
    s.emplace_back(1);
    s.emplace_back(true);
    s.push_back(json_text("a b"));
    s.push_back(json_barva(barvy::cervena));
    EXPECT_EQ(hodnota_json(Json(s)), "1,true,a b,0x000000FF");
}
