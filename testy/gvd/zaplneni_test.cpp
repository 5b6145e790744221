// testy/gvd/zaplneni_test.cpp - the layout at the start minute.
#include "fuzz/cile.h"
#include "gvd/provoz.h"
#include "gvd/zaplneni.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"

#include <gtest/gtest.h>

namespace {

using Texty = std::vector<Text>;
using Prvky = std::vector<std::int16_t>;

class Zaplneni : public SProvozem {
protected:
    Zaplneni() { simulace.minuty_simulace = 0; }

    static void depo() { koleje({503, 509, 510, 558, 559, 560}); }
    static void do_tesku() {
        koleje({10, 9, 11, 12, 26, 27, 28});
        GvdVlak r = radek(1701, {{1, -1, 600}, {8, 620, 640}, {9, 660, -1}});
        r.kolej = "1";
        pridej(r);
    }
};

// --- the passes

TEST_F(Zaplneni, TrainStandsAtTheFirstStopThatItHasNotLeft) {
    do_tesku();
    vlaky_na_trati(630, true);
    const Vlak* v = najdi(1701);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(cisla_prvku(v->prvky), Prvky{11}); // TVH, from LHO towards THN
    EXPECT_FALSE(v->smer);
    EXPECT_EQ(v->stanice_index, 1); // the stop has begun
    EXPECT_EQ(barva(11), barvy::cervena);
    EXPECT_EQ(relief.kolej[11].stav, "40"); // 60 m of an unknown length, less 20
}

TEST_F(Zaplneni, TrainBeforeItsRunAndBehindItIsNotPlaced) {
    do_tesku();
    koleje({86});
    for (const std::int16_t ted : {599, 660, 661, 0, 1439})
        vlaky_na_trati(ted, true);
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Zaplneni, TrainAtItsFirstStopInTheStartMinuteIsLeftToTheTrafficStep) {
    do_tesku();
    koleje({86, 87});
    vlaky_na_trati(600, true);
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(601, true);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Zaplneni, RowOfTheMainStationStandsAtThePlatformFrom29MinutesBefore) {
    koleje({26, 27});
    GvdVlak r = radek(1702, {{9, -1, 640}, {8, 660, -1}});
    r.kolej = "1";
    pridej(r);
    vlaky_na_trati(610, false);
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(611, true); // that pass is for the others
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(611, false);
    ASSERT_NE(najdi(1702), nullptr);
    EXPECT_EQ(cisla_prvku(najdi(1702)->prvky), Prvky{26});
    EXPECT_EQ(najdi(1702)->stanice_index, 0);
    EXPECT_FALSE(najdi(1702)->muze_jet);
}

TEST_F(Zaplneni, TrainOverMidnightIsOnTheWay) {
    koleje({10, 9, 11, 12});
    pridej(radek(1, {{1, -1, 1430}, {8, 1438, 1439}, {9, 10, -1}}));
    vlaky_na_trati(1438, true);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Zaplneni, TakenTracksLeaveTheTrainOut) {
    do_tesku();
    obsad(11);
    vlaky_na_trati(630, true);
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Zaplneni, TrainOfAnotherDayAndOneWhoseSetRunsAreLeftOut) {
    do_tesku();
    zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 2; });
    vlaky_na_trati(630, true);
    EXPECT_EQ(pocet_vlaku(), 0);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 1; });
    vlaky[5].cislo = 99;
    vlaky[5].vozy = vozy_vlaku({"754"}, {"1701"});
    vlaky_na_trati(630, true);
    EXPECT_EQ(najdi(1701), nullptr);
}

TEST_F(Zaplneni, NumberChangesAtTheStopOfTheTrain) {
    do_tesku();
    zmen_radek_gvd(0, [](GvdVlak& g) {
        g.cislo2 = 1801;
        g.stanice_zmeny = 8;
    });
    vlaky_na_trati(630, true);
    EXPECT_TRUE(najdi(1701)->cislo2_platne);
}

TEST_F(Zaplneni, WholeFillBeginsWithTheStandbyLocomotive) {
    depo();
    do_tesku();
    zaplneni_kolejiste(630);
    EXPECT_EQ(cisla_prvku(vlaky[0].prvky), Prvky{509});
    EXPECT_EQ(rady_vozu(vlaky[0].vozy), Texty{"731"});
    EXPECT_EQ(urceni_vozu(vlaky[0].vozy), Texty{"ZAL"});
    EXPECT_FALSE(vlaky[0].smer);
    EXPECT_TRUE(vlaky[0].posun);
    EXPECT_GE(vlaky[0].cislo, 74800);
    EXPECT_LE(vlaky[0].cislo, 74999);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
    EXPECT_NE(najdi(1701), nullptr);
}

TEST_F(Zaplneni, EmptyLayoutAndEmptyTimetableAreHarmless) {
    EXPECT_NO_THROW(zaplneni_kolejiste(600));
    EXPECT_EQ(pocet_vlaku(), 0);
    for (std::uint8_t kod = 0; kod < 40; ++kod)
        pridej(radek(1000 + kod, {{1, -1, 590}, {kod, 620, 640}, {9, 660, -1}}));
    for (std::uint8_t kod = 0; kod < 40; ++kod)
        pridej(radek(2000 + kod, {{kod, -1, 640}, {9, 660, -1}}), [](GvdVlak& g) { g.kolej = "13k"; });
    EXPECT_NO_THROW(zaplneni_kolejiste(630));
    EXPECT_EQ(pocet_vlaku(), 0);
}

// What the damaged timetables are made from is no idle example.
TEST_F(Zaplneni, ExampleOfTheDamagedTimetablesFillsTheLayout) {
    fuzz::postav_pro_provoz();
    nacti_gvd_z(fuzz::vzor_provozu());
    ASSERT_EQ(gvd_vlaky.size(), 8u);
    hodiny("9:59:00");
    zaplneni_kolejiste(599);
    EXPECT_NE(najdi(20), nullptr); // at the platform
    EXPECT_NE(najdi(8), nullptr);  // in Rybnice
    EXPECT_NE(najdi(10), nullptr); // on its way to Javořín
    EXPECT_EQ(cesty.back().ZT, 999);
    hodiny("10:06:00");
    krok_provozu();
    EXPECT_NE(najdi(2), nullptr); // announced
    hodiny("10:25:00");
    krok_provozu();
    EXPECT_NE(najdi(22), nullptr); // out of the depot
}

} // namespace
