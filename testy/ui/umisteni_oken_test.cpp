// testy/ui/umisteni_oken_test.cpp - windows beside the desk: as large as the screen allows, and beside what
// they tell of.
#include "ui/umisteni_oken.h"

#include <gtest/gtest.h>

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
