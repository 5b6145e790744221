// testy/ui/umisteni_oken_test.cpp - windows beside the desk: as large as the screen allows, and beside what
// they tell of.
#include "ui/umisteni_oken.h"

#include <gtest/gtest.h>

#include <vector>

TEST(UmisteniOken, WindowsGrowWithTheScreenAndNeverBeyondIt) {
    constexpr QSize kFormular(820, 640); // no window is larger on the screen of the desk
    double minule = 1;
    for (const QSize s : {QSize(1024, 768), QSize(1366, 768), QSize(1280, 1024), QSize(1920, 1080),
                          QSize(2560, 1440), QSize(3440, 1440), QSize(3840, 2160)}) {
        const double krat = meritko_pro_obrazovku(s);
        EXPECT_GE(krat, minule) << s.width();
        EXPECT_LE(kFormular.width() * krat, s.width());
        EXPECT_LE(kFormular.height() * krat, s.height());
        minule = krat;
    }
    EXPECT_EQ(meritko_pro_obrazovku({1024, 768}), 1);
    EXPECT_EQ(meritko_pro_obrazovku({1920, 1080}), 1.25);
    EXPECT_EQ(meritko_pro_obrazovku({3840, 2160}), 2.5);
    EXPECT_EQ(meritko_pro_obrazovku({800, 600}), 1);
}

TEST(UmisteniOken, WindowThatWouldCoverTheFoundTrainGivesWayToTheOtherSide) {
    constexpr QRect plocha(0, 50, 1024, 550), vpravo(502, 50, 512, 550);
    EXPECT_EQ(misto_stranou(vpravo, plocha, {100, 200, 60, 20}), vpravo.topLeft());
    EXPECT_EQ(misto_stranou(vpravo, plocha, {800, 200, 60, 20}), QPoint(10, 50));
    const QRect vlevo(QPoint(10, 50), vpravo.size());
    EXPECT_EQ(misto_stranou(vlevo, plocha, {100, 200, 60, 20}), vpravo.topLeft());
    EXPECT_EQ(misto_stranou(vlevo, plocha, {800, 200, 60, 20}), vlevo.topLeft());
    EXPECT_EQ(misto_stranou(vlevo.translated(0, -30), plocha, {100, 200, 60, 20}), vpravo.topLeft());
}

TEST(UmisteniOken, WindowTooWideForEitherSideStaysWhereItIs) {
    constexpr QRect plocha(0, 50, 1024, 550), siroke(100, 50, 824, 550);
    EXPECT_EQ(misto_stranou(siroke, plocha, {500, 200, 60, 20}), siroke.topLeft());
}

TEST(UmisteniOken, PanelStandsBesideThePlacesThatItTellsOf) {
    constexpr QRect plocha(0, 50, 1024, 550);
    constexpr QSize panel(372, 250);
    const std::vector<QRect> mista = {{100, 100, 30, 30}, {480, 300, 30, 30}, {900, 500, 30, 30}};
    const QRect kde(misto_panelu(panel, plocha, mista, {}), panel);
    EXPECT_TRUE(plocha.contains(kde));
    EXPECT_EQ(zakryje_mist(kde, mista), 0);
    // among free rooms the one with fewer signs
    std::vector<QPoint> znacky;
    for (int x = 5; x < 1024; x += 10)
        for (int y = 55; y < 600; y += 10)
            if (x < 640)
                znacky.emplace_back(x, y);
    EXPECT_GE(misto_panelu(panel, plocha, {}, znacky).x(), 630);
}

TEST(UmisteniOken, PanelThatMustCoverAPlaceCoversAsFewAsCanBeAndStaysInSight) {
    constexpr QRect plocha(0, 50, 600, 300);
    constexpr QSize panel(400, 280);
    const std::vector<QRect> mista = {
        {10, 60, 30, 30}, {60, 60, 30, 30}, {560, 60, 30, 30}, {300, 200, 30, 30}};
    const QRect kde(misto_panelu(panel, plocha, mista, {}), panel);
    EXPECT_TRUE(plocha.contains(kde));
    EXPECT_EQ(zakryje_mist(kde, mista), 1);
    EXPECT_EQ(misto_panelu({700, 400}, plocha, mista, {}), plocha.topLeft());
}
