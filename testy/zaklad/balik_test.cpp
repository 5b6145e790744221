// testy/zaklad/balik_test.cpp - packed records: golden bytes, truncations, hostile counts.
#include "zaklad/balik.h"

#include <gtest/gtest.h>

namespace {

struct VzorovyZaznam {
    std::uint8_t b = 0x7F;
    std::int16_t i = -3;
    std::int32_t l = 0x12345678;
    bool f = true;
    Text text = "\xE8"
                "as";
    std::vector<std::uint8_t> bajty{1, 2};
    std::vector<std::int16_t> cisla{-1};
    std::vector<std::int32_t> dlouha;
    std::vector<Text> texty{"a", ""};
    bool operator==(const VzorovyZaznam&) const = default;
};

template <class A, class Z> void popis(A& a, Z& z) {
    a.b(z.b);
    a.i(z.i);
    a.l(z.l);
    a.f(z.f);
    a.text(z.text);
    pole_b(a, z.bajty);
    pole_i(a, z.cisla);
    pole_l(a, z.dlouha);
    pole_textu(a, z.texty);
    a.preskoc(2);
}

Bajty zapsany(const VzorovyZaznam& z) {
    Zapisovac zapisovac;
    popis(zapisovac, z);
    return zapisovac.bajty;
}

const Bajty kVzor = {0x7F, 0xFD, 0xFF, 0x78, 0x56, 0x34, 0x12, 0xFF, 0xFF, 3, 0,    0xE8, 'a', 's',    //
                     1,    0,    2,    0,    0,    0,    0,    0,    0,    0, 1,    2,                 //
                     1,    0,    1,    0,    0,    0,    0,    0,    0,    0, 0xFF, 0xFF,              //
                     0,    0,                                                                          //
                     1,    0,    2,    0,    0,    0,    0,    0,    0,    0, 1,    0,    'a', 0,   0, //
                     0,    0};

TEST(Balik, RecordIsLittleEndianAndPacked) {
    EXPECT_EQ(zapsany(VzorovyZaznam{}), kVzor);
}

TEST(Balik, MeasureAgreesWithWhatIsWritten) {
    Miric m;
    const VzorovyZaznam z;
    popis(m, z);
    EXPECT_EQ(m.misto, kVzor.size());
}

TEST(Balik, ReadsBackWhatItWrote) {
    VzorovyZaznam jiny{0, 0, 0, false, "", {}, {}, {5}, {}};
    Ctenar c{kVzor};
    popis(c, jiny);
    EXPECT_TRUE(c.ok);
    EXPECT_TRUE(c.na_konci());
    EXPECT_EQ(jiny, VzorovyZaznam{});
}

TEST(Balik, RecordCutAtAnyByteIsNotComplete) {
    for (std::size_t delka = 0; delka < kVzor.size(); ++delka) {
        const Bajty kratke(kVzor.begin(), kVzor.begin() + static_cast<std::ptrdiff_t>(delka));
        VzorovyZaznam z;
        Ctenar c{kratke};
        popis(c, z);
        ASSERT_FALSE(c.ok) << delka;
        ASSERT_LE(c.misto, delka);
    }
}

TEST(Balik, FieldBehindTheEndKeepsItsValueAndSoDoLaterOnes) {
    const Bajty kratke = {1, 2};
    Ctenar c{kratke};
    std::int32_t l = 77;
    std::uint8_t b = 88;
    c.l(l);
    EXPECT_FALSE(c.ok);
    c.b(b); // would fit
    EXPECT_EQ(l, 77);
    EXPECT_EQ(b, 88);
}

TEST(Balik, AnyNonZeroFlagIsTrue) {
    const Bajty bajty = {1, 0, 0, 1, 0, 0, 0xFF, 0xFF};
    Ctenar c{bajty};
    bool a = false, b = false, d = true, e = false;
    c.f(a);
    c.f(b);
    c.f(d);
    c.f(e);
    EXPECT_TRUE(a);
    EXPECT_TRUE(b);
    EXPECT_FALSE(d);
    EXPECT_TRUE(e);
}

TEST(Balik, NumbersKeepTheirSigns) {
    const Bajty bajty = {0x00, 0x80, 0x00, 0x00, 0x00, 0x80, 0xFF, 0x7F};
    Ctenar c{bajty};
    std::int16_t i = 0, j = 0;
    std::int32_t l = 0;
    c.i(i);
    c.l(l);
    c.i(j);
    EXPECT_EQ(i, -32768);
    EXPECT_EQ(l, INT32_MIN);
    EXPECT_EQ(j, 32767);
}

TEST(Balik, ArrayNeverAllocatedIsTwoBytes) {
    const Bajty bajty = {0, 0, 9};
    std::vector<std::int16_t> pole{5};
    Ctenar c{bajty};
    pole_i(c, pole);
    EXPECT_TRUE(c.ok);
    EXPECT_TRUE(pole.empty());
    EXPECT_EQ(c.misto, 2u);
}

// Heads of arrays that no program writes: the array keeps what it held, and nothing is allocated.
TEST(Balik, HostileCountIsRefusedBeforeAnythingIsAllocated) {
    const std::vector<Bajty> hlavy = {
        {1, 0, 0xFF, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0, 1, 2}, // 2^31 - 1 elements
        {1, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 1, 2}, // -1
        {1, 0, 2, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3},          // one byte short
        {1, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 2},             // lower bound 1
        {2, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 2},             // two dimensions
        {0xFF, 0xFF, 1, 0, 0, 0, 0, 0, 0, 0, 1, 2},
        {1, 0, 1, 0, 0, 0, 0, 0},
        {1},
    };
    for (std::size_t k = 0; k < hlavy.size(); ++k) {
        std::vector<std::int16_t> pole{5};
        Ctenar c{hlavy[k]};
        pole_i(c, pole);
        EXPECT_FALSE(c.ok) << k;
        EXPECT_EQ(pole, std::vector<std::int16_t>{5}) << k;
    }
    const Bajty texty = {1, 0, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0, 0}; // 65535 texts in two bytes
    std::vector<Text> pole{"x"};
    Ctenar c{texty};
    pole_textu(c, pole);
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(pole, std::vector<Text>{"x"});
}

TEST(Balik, TextLongerThanItsFileIsRefused) {
    const Bajty bajty = {0xFF, 0xFF, 'a', 'b'};
    Text text = "x";
    Ctenar c{bajty};
    c.text(text);
    EXPECT_FALSE(c.ok);
    EXPECT_EQ(text, "x");
}

TEST(Balik, TextIsCutAtTheLengthThatCanBeWritten) {
    Zapisovac z;
    z.text(Text(40000, 'a'));
    EXPECT_EQ(z.bajty.size(), 2u + 0x7FFF);
    EXPECT_EQ(z.bajty[0], 0xFF);
    EXPECT_EQ(z.bajty[1], 0x7F);
}

TEST(Balik, SkippedBytesMustBeThere) {
    const Bajty bajty = {1, 2, 3};
    Ctenar c{bajty};
    c.preskoc(2);
    EXPECT_TRUE(c.ok);
    EXPECT_EQ(c.zbyva(), 1u);
    c.preskoc(2);
    EXPECT_FALSE(c.ok);
}

} // namespace
