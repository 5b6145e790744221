// testy/ui/rada_vystrah_test.cpp - the row of alarms keeps to its room.
#include "ui/kresba.h"
#include "ui/rada_vystrah.h"

#include <gtest/gtest.h>

namespace {

constexpr QRect kMisto(5070, 9255, 85 * kSirkaZnaku, 285);

Vystraha vystraha(std::size_t delka) {
    Vystraha v;
    v.text = Text(delka, 'x');
    return v;
}

std::vector<Vystraha> ruzne(std::initializer_list<std::size_t> delky) {
    std::vector<Vystraha> vse;
    for (const std::size_t delka : delky)
        vse.push_back(vystraha(delka));
    return vse;
}

void ocekavej_v_mistech(const RadaVystrah& rada) {
    int po = kMisto.x();
    for (const DilekVystrah& d : rada.dilky()) {
        const QRect kde(d.napis.vlevo, d.napis.nahore, d.napis.sirka, d.napis.vyska);
        EXPECT_TRUE(kMisto.contains(kde)) << kde.x() << " " << kde.width();
        EXPECT_GE(kde.x(), po);
        po = kde.x() + kde.width() + 1;
        EXPECT_EQ(static_cast<std::size_t>(d.napis.sirka() / kSirkaZnaku), d.napis.text->size());
    }
}

} // namespace

TEST(RadaVystrah, IsEmptyWithoutAlarms) {
    RadaVystrah rada;
    EXPECT_FALSE(rada.rozloz({}, kMisto));
    EXPECT_TRUE(rada.dilky().empty());
}

TEST(RadaVystrah, ShowsAsManyAsItHasRoomForAndCountsTheRest) {
    RadaVystrah rada;
    EXPECT_TRUE(rada.rozloz(ruzne({30, 30, 30, 30}), kMisto));
    ASSERT_EQ(rada.dilky().size(), 3u);
    EXPECT_EQ(rada.dilky()[2].napis.text(), " +2 ");
    EXPECT_EQ(rada.dilky()[2].prvni, 2u);
    EXPECT_EQ(rada.dilky()[2].kolik, 2u);
    ocekavej_v_mistech(rada);
    EXPECT_FALSE(rada.rozloz(ruzne({30, 30, 30, 30}), kMisto)) << "nothing has changed";
}

TEST(RadaVystrah, KeepsWithinItsRoomWhateverTheTextsAre) {
    RadaVystrah rada;
    for (std::size_t a = 1; a < 120; a += 7)
        for (std::size_t b = 1; b < 120; b += 11) {
            rada.rozloz(ruzne({a, b, a, b, 3}), kMisto);
            ASSERT_FALSE(rada.dilky().empty());
            ocekavej_v_mistech(rada);
            const DilekVystrah& posledni = rada.dilky().back();
            EXPECT_EQ(posledni.prvni + posledni.kolik, 5u) << "each alarm is told or counted";
        }
    rada.rozloz(ruzne({200}), kMisto);
    ocekavej_v_mistech(rada);
}

TEST(RadaVystrah, PointerFindsEachOfThemAndNothingBeside) {
    RadaVystrah rada;
    rada.rozloz(ruzne({10, 10}), kMisto);
    for (const DilekVystrah& d : rada.dilky())
        EXPECT_EQ(rada.na_miste({d.napis.vlevo + 10, d.napis.nahore + 10}), &d);
    EXPECT_EQ(rada.na_miste({kMisto.right() - 10, kMisto.center().y()}), nullptr);
    EXPECT_EQ(rada.na_miste({kMisto.x() + 20, kMisto.y() - 60}), nullptr);
}
