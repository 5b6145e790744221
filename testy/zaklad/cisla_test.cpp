// testy/zaklad/cisla_test.cpp - roundings, narrowing, numbers in texts.
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

template <class Co> bool pretece(Co co) {
    try {
        co();
    } catch (const BehovaChyba& e) {
        return e.kod == KodChyby::preteceni;
    }
    return false;
}

TEST(Zaokrouhleni, HalfGoesToTheEvenNumber) {
    const std::pair<double, double> tabulka[] = {
        {0, 0},    {0.485, 0},  {0.5, 0},   {0.97, 1},  {1.49, 1},  {1.5, 2},         {1.94, 2},
        {2.5, 2},  {2.51, 3},   {2.91, 3},  {3.5, 4},   {10.5, 10}, {11.5, 12},       {-0.4, 0},
        {-0.5, 0}, {-0.51, -1}, {-1.5, -2}, {-2.5, -2}, {-3.5, -4}, {32766.5, 32766}, {1e12 + 0.5, 1e12},
    };
    for (const auto& [co, kolik] : tabulka)
        EXPECT_EQ(zaokrouhli(co), kolik) << co;
}

TEST(Dolu, GoesTowardMinusInfinity) {
    EXPECT_EQ(dolu(1.9), 1);
    EXPECT_EQ(dolu(-0.1), -1);
    EXPECT_EQ(dolu(-1), -1);
    EXPECT_EQ(dolu(0.999), 0);
}

TEST(Zuzeni, WhatDoesNotFitIsOverflowAndNeverWraps) {
    EXPECT_EQ(na_integer(32767), 32767);
    EXPECT_EQ(na_integer(-32768), -32768);
    EXPECT_TRUE(pretece([] { na_integer(32768); }));
    EXPECT_TRUE(pretece([] { na_integer(-32769); }));
    EXPECT_EQ(na_byte(255), 255);
    EXPECT_EQ(na_byte(0), 0);
    EXPECT_TRUE(pretece([] { na_byte(256); }));
    EXPECT_TRUE(pretece([] { na_byte(-1); }));
    EXPECT_EQ(na_long(std::int64_t{2147483647}), 2147483647);
    EXPECT_TRUE(pretece([] { na_long(std::int64_t{2147483648}); }));
    EXPECT_TRUE(pretece([] { na_long(std::int64_t{-2147483649}); }));
}

TEST(Zuzeni, RealNumberIsRoundedBeforeItIsChecked) {
    EXPECT_EQ(na_integer(32767.4), 32767);
    EXPECT_TRUE(pretece([] { na_integer(32767.5); })); // half to the even 32768
    EXPECT_EQ(na_integer(-32768.5), -32768);
    EXPECT_EQ(na_byte(254.5), 254);
    EXPECT_EQ(na_byte(255.49), 255);
    EXPECT_TRUE(pretece([] { na_byte(255.5); }));
    EXPECT_EQ(na_byte(-0.5), 0);
    EXPECT_EQ(na_long(2147483647.25), 2147483647);
    EXPECT_EQ(na_integer(10.5F), 10);
}

TEST(Zuzeni, NoNumberAtAllIsOverflow) {
    for (const double x : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300, -1e300}) {
        EXPECT_TRUE(pretece([&] { na_integer(x); })) << x;
        EXPECT_TRUE(pretece([&] { na_long(x); })) << x;
        EXPECT_TRUE(pretece([&] { na_byte(x); })) << x;
    }
}

TEST(CisloZTextu, EndsAtTheFirstOtherCharacter) {
    const std::pair<const char*, double> tabulka[] = {
        {"", 0},    {"   ", 0},       {"12", 12},     {"  12", 12},   {"12 34", 12}, {"12a", 12},
        {"a12", 0}, {"+5\xB4", 5},    {" +5\xB4", 5}, {"15\xB4", 15}, {"-7", -7},    {"- 7", 0},
        {"+-7", 0}, {"7.5", 7.5},     {"7.5.5", 7.5}, {"7,5", 7},     {".5", 0.5},   {"-.5", -0.5},
        {"5.", 5},  {".", 0},         {"-", 0},       {"+", 0},       {"-.", 0},     {"9:30", 9},
        {"1e3", 1}, {"0x10", 0},      {"\t5", 0},     {"00012", 12},  {"560p", 560}, {"inf", 0},
        {"nan", 0}, {"000.25", 0.25},
    };
    for (const auto& [text, kolik] : tabulka)
        EXPECT_EQ(cislo_z_textu(text), kolik) << text;
}

TEST(CisloZTextu, MoreDigitsThanARealNumberHoldsOverflowWhenNarrowed) {
    const Text dlouhe(400, '9');
    EXPECT_TRUE(pretece([&] { na_integer(cislo_z_textu(dlouhe)); }));
    EXPECT_TRUE(pretece([&] { na_integer(cislo_z_textu("-" + dlouhe)); }));
    EXPECT_EQ(cislo_z_textu("0." + Text(400, '0') + "1"), 0);
    EXPECT_EQ(cislo_z_textu(Text(400, '0') + "12"), 12);
}

TEST(CeleZTextu, ReadsWholeDigitsOnly) {
    const std::pair<const char*, std::int32_t> tabulka[] = {
        {"", 0},
        {"    ", 0},
        {" 12", 12},
        {"12 ", 12},
        {"1 2", 1},
        {"+5", 0},
        {"-5", 0},
        {"7.5", 7},
        {"a", 0},
        {"0099", 99},
        {"2147483647", 2147483647},
        {"2147483648", 2147483647},
        {"99999999999999999999999", 2147483647},
    };
    for (const auto& [text, kolik] : tabulka)
        EXPECT_EQ(cele_z_textu(text), kolik) << text;
}

TEST(CiselnyText, IsTheWholeTextOrNothing) {
    for (const char* text : {"12", " 12 ", "7.5", "-3", "+3", ".5", "5.", "0", "00"})
        EXPECT_TRUE(je_ciselny(text)) << text;
    for (const char* text :
         {"", "  ", "ZAL", "560p", "1 2", ".", "-", "+", "1.2.3", "--1", "12\xB4", "1e5", "0x1", "\t1"})
        EXPECT_FALSE(je_ciselny(text)) << text;
    EXPECT_EQ(ciselny_text(" 7.5 "), 7.5);
    EXPECT_EQ(ciselny_text("-3"), -3);
    EXPECT_EQ(ciselny_text("+943"), 943);
    EXPECT_EQ(ciselny_text("560p"), std::nullopt);
    for (const char* text : {"847", " 847 ", "+847", "0847", "847.0", "000000000847"})
        EXPECT_TRUE(je_cislo(text, 847)) << text;
    for (const char* text : {"", " ", "-847", "8470", "847p", "ZAL", "84", "847.5"})
        EXPECT_FALSE(je_cislo(text, 847)) << text;
    EXPECT_FALSE(je_cislo("", 0));
    EXPECT_FALSE(je_cislo("ZAL", 0));
    EXPECT_TRUE(je_cislo("-3", -3));
}

TEST(TextCisla, IsShortestAndHasAPoint) {
    EXPECT_EQ(text_cisla(0), "0");
    EXPECT_EQ(text_cisla(-12), "-12");
    EXPECT_EQ(text_cisla(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(text_cisla(12.5), "12.5");
    EXPECT_EQ(text_cisla(7.0), "7");
    EXPECT_EQ(text_cisla(-0.0), "0");
    EXPECT_EQ(text_cisla(0.1), "0.1");
    EXPECT_EQ(text_cisla(1e10), "10000000000");
}

TEST(TextCisla, HasAtLeastTheAskedDigits) {
    EXPECT_EQ(text_cisla_mist(5, 2), "05");
    EXPECT_EQ(text_cisla_mist(0, 2), "00");
    EXPECT_EQ(text_cisla_mist(123, 2), "123");
    EXPECT_EQ(text_cisla_mist(-5, 3), "-005");
    EXPECT_EQ(text_cisla_mist(7, 0), "7");
    EXPECT_EQ(text_cisla_mist(std::numeric_limits<std::int64_t>::min(), 2), "-9223372036854775808");
}

TEST(TextCisla, ReadsBackAsItWas) {
    for (const double x : {0.1, 12.5, 1234.0625, 99999.75, 1e15, -3.3})
        EXPECT_EQ(cislo_z_textu(text_cisla(x)), x);
}

} // namespace
