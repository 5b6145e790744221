// testy/app/cas_test.cpp - the clock and the arithmetic of its time.
#include "app/cas.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"

namespace {

class Cas : public SPlatformou {};

TEST_F(Cas, HourIsWrittenWithoutLeadingZero) {
    EXPECT_EQ(text_casu(0), "0:00:00");
    EXPECT_EQ(text_casu(8 * 3600 + 5 * 60 + 9), "8:05:09");
    EXPECT_EQ(text_casu(86399), "23:59:59");
}

TEST_F(Cas, MidnightCarriesNoDate) {
    EXPECT_EQ(text_casu(86400), "0:00:00");
    EXPECT_EQ(text_casu(-2), "23:59:58");
    EXPECT_EQ(text_minuty(1440 + 61), "1:01");
    EXPECT_EQ(text_minuty(-1), "23:59");
}

TEST_F(Cas, TextIsReadWithAndWithoutSeconds) {
    EXPECT_EQ(sekundy_textu("8:05:09"), 8 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(sekundy_textu("23:59"), 86340);
    EXPECT_EQ(sekundy_textu(""), 0);
    EXPECT_EQ(minuta_dne(sekundy_textu("12:34:56")), 754);
}

TEST_F(Cas, SimulatedSecondsGrowByADayWithThePlayedMinutes) {
    simulace.cas_zacatku = 1438; // 23:58
    simulace.minuty_simulace = 1;
    EXPECT_EQ(sekundy_simulace(sekundy_textu("23:59:30")), 86370);
    simulace.minuty_simulace = 2;
    EXPECT_EQ(sekundy_simulace(sekundy_textu("0:00:00")), 86400);
    simulace.minuty_simulace = 2 + 1440;
    EXPECT_EQ(sekundy_simulace(sekundy_textu("0:00:01")), 2 * 86400 + 1);
}

TEST_F(Cas, StartAtMidnightCountsBothSidesOfItAsTheFirstDay) {
    simulace.cas_zacatku = -1;
    EXPECT_EQ(sekundy_simulace(sekundy_textu("23:59:58")), 86398);
    simulace.minuty_simulace = 1;
    EXPECT_EQ(sekundy_simulace(sekundy_textu("0:00:00")), 0);
}

TEST_F(Cas, ClockShowsItsSecondsOnBothMonitors) {
    relief.lblcas.zaloz(1);
    nastav_cas(8 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(cas_hodin(), 8 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(text_hodin(), "8:05:09");
    EXPECT_EQ(relief.lblcas[1].text(), "8:05:09");
}

TEST_F(Cas, ClockGoesOverMidnightWithItsText) {
    nastav_cas(86'399);
    nastav_cas(cas_hodin() + 2);
    EXPECT_EQ(cas_hodin(), 1);
    EXPECT_EQ(text_hodin(), "0:00:01");
    nastav_cas(-2); // the two seconds before a start at 0:00
    EXPECT_EQ(cas_hodin(), 86'398);
    EXPECT_EQ(text_hodin(), "23:59:58");
}

TEST_F(Cas, TimeOfASaveIsShownAsItWasWritten) {
    nastav_cas("08:05:09");
    EXPECT_EQ(cas_hodin(), 8 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(text_hodin(), "08:05:09");
}

TEST_F(Cas, TermsDoNotHangOnWhatTheClockShows) {
    nastav_cas("12:00:00");
    relief.lblcas[0].text = Text("13:00:00");
    EXPECT_EQ(ted_s(), 12 * 3600);
}

} // namespace
