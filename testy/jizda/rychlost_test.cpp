// testy/jizda/rychlost_test.cpp - speeds: of the line, of the route, and how a train comes to them.
#include "jizda/rychlost.h"
#include "jizda/svet_vlaku.h"

#include <array>

namespace {

class RychlostVlaku : public SVlaky {};

TEST_F(RychlostVlaku, PushedTrainRunsThirtyWhateverItsLimit) {
    const int v = vlak_na(62, true, 11, {"B", "754"});
    vlak(v).max_rychlost = 20;
    uprav_rychlost(v);
    EXPECT_EQ(vlak(v).rychlost, 30);
    vlak(v).muze_jet = false;
    vlak(v).rychlost = 0;
    uprav_rychlost(v);
    EXPECT_EQ(vlak(v).rychlost, 0);
}

TEST_F(RychlostVlaku, HeavyGoodsTrainGathersSpeedSlowly) {
    const int v = vlak_na(62, true, 11);
    Vlak& t = vlak(v);
    t.druh = 14;
    t.delka = 700;
    uprav_rychlost(v);
    EXPECT_EQ(t.rychlost, 1);
    t.druh = 13; // 3 / 2 + 1 = 2.5: 1.2 km/h a step
    t.rychlost = 10;
    uprav_rychlost(v);
    EXPECT_EQ(t.rychlost, 11);
    t.druh = 16;
    uprav_rychlost(v);
    EXPECT_EQ(t.rychlost, 14);
    t.delka = 1750; // 3 / 6 = 0.5 km/h: a half goes to the even number
    t.druh = 14;
    t.rychlost = 10;
    uprav_rychlost(v);
    EXPECT_EQ(t.rychlost, 10);
    t.rychlost = 11;
    uprav_rychlost(v);
    EXPECT_EQ(t.rychlost, 12);
}

TEST_F(RychlostVlaku, BrakingTakesNoDistance) {
    const int v = vlak_na(62, true, 11);
    vlak(v).rychlost = 100;
    uprav_rychlost(v);
    EXPECT_EQ(vlak(v).rychlost, 60);
    vlak(v).max_rychlost = 50;
    uprav_rychlost(v);
    EXPECT_EQ(vlak(v).rychlost, 50);
}

TEST_F(RychlostVlaku, LimitOfTheRouteBindsUntilItsSwitchIsCleared) {
    const int v = vlak_na(62, true, 11);
    vlak(v).rychlost_trati = 40;
    RadekCesty r = radek(0);
    r.rychlost = 2;
    cesta(r);
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).rychlost == 60; })); // above the line speed: meant
    ASSERT_TRUE(jed_dokud([&] { return vlak(v).omezeni_ukonceno; }));
    krok();
    krok();
    EXPECT_EQ(vlak(v).rychlost, 40);
}

TEST_F(RychlostVlaku, SpeedClassesAndProgramRoutesLimitTheTrain) {
    const int v = vlak_na(62, true, 11);
    const int c = cesta(radek(0));
    Cesta& r = cesty[static_cast<std::size_t>(c)];
    const std::array<int, 5> limity = {60, 40, 60, 80, 80}; // above 3: as it was
    for (std::uint8_t trida = 0; trida < 5; ++trida) {
        r.rychlost = trida;
        omez_rychlost(r, v);
        EXPECT_EQ(vlak(v).rychlost_cesty, limity[trida]);
        EXPECT_FALSE(vlak(v).omezeni_ukonceno);
    }
    EXPECT_EQ(vlak(v).konec_omezeni, 7);
    r.ZT = kZTprogramu;
    omez_rychlost(r, v);
    EXPECT_EQ(vlak(v).rychlost_cesty, 100);
    EXPECT_TRUE(vlak(v).omezeni_ukonceno);
}

TEST_F(RychlostVlaku, ElementsSetTheLineSpeedByTheSense) {
    const int v = vlak_na(62, true, 11);
    rychlost_trati_prvek(135, v);
    EXPECT_EQ(vlak(v).rychlost_trati, 40);
    rychlost_trati_prvek(19, v);
    EXPECT_EQ(vlak(v).rychlost_trati, 40);
    vlak(v).smer = false;
    rychlost_trati_prvek(135, v);
    EXPECT_EQ(vlak(v).rychlost_trati, 60);
    rychlost_trati_prvek(19, v);
    EXPECT_EQ(vlak(v).rychlost_trati, 100);
    rychlost_trati_prvek(774, v);
    EXPECT_EQ(vlak(v).rychlost_trati, 90);
}

} // namespace
