// testy/app/prestavky_test.cpp - the service behind an open box and after a stall of the machine.
#include "app/planovac.h"
#include "app/prestavky.h"
#include "jizda/svet_vlaku.h"
#include "obsluha/ukony.h"
#include "zaklad/virtualni_hodiny.h"

#include <tuple>

namespace {

// A host whose clock goes after the computer's, looked at some times a second.
class Prestavky : public SVlaky {
protected:
    static constexpr int kRozjety = 160; // km/h

    int rozjed() {
        const int v = vlak_na(62, true, 1234);
        vlak(v).max_rychlost = vlak(v).rychlost_trati = kRozjety;
        vlak(v).rychlost = kRozjety;
        cesta(radek(0));
        cesty.front().rychlost = kRozjety;
        spust_hodiny();
        return v;
    }
    // The computer works.
    void bez(int ms) {
        for (int i = 0; i < ms; i += 50) {
            ms_pocitace += 50;
            dozen_hodiny(chod, ms_pocitace);
        }
    }
    // It stands, and the host has its next event at the end.
    void stuj(int ms) {
        ms_pocitace += ms;
        dozen_hodiny(chod, ms_pocitace);
    }
    static std::int32_t cas_s() { return ted_s(); }
    // The lines of the diary that tell of stalls.
    static std::vector<Text> denik() {
        std::vector<Text> radky = relief.lstDenik.radky;
        std::erase_if(radky, [](const Text& r) { return !r.starts_with("Počítač stál "_cz); });
        return radky;
    }

    void SetUp() override {
        SVlaky::SetUp();
        virtualni_hodiny = VirtualniHodiny{};
        planovac = Planovac{};
        platforma.tik_ms = tik_virtualnich_hodin;
        spust_planovac();
        chod.nula_ms = ms_pocitace;
    }
    void TearDown() override {
        planovac = Planovac{};
        virtualni_hodiny = VirtualniHodiny{};
        ukony_smeny.ukony.clear();
        SVlaky::TearDown();
    }

    ChodHostitele chod;
    std::int64_t ms_pocitace = 7'000'000'000;
};

constexpr int kMinuta_ms = 60'000;

// Speed, and length of the stall in ms.
class Stani : public Prestavky, public testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(Stani, MovesNeitherTheClockNorTheTrains) {
    const auto [rychlost, stani] = GetParam();
    simulace.rychlost = static_cast<std::uint8_t>(rychlost);
    const int v = rozjed();
    bez(900); // the timers have begun, the train waits for its first step
    const std::int32_t pred = cas_s();
    ASSERT_EQ(metry(62), 0);
    stuj(stani);
    EXPECT_EQ(cas_s(), pred);
    EXPECT_EQ(metry(62), 0);
    EXPECT_EQ(vlak(v).prvky.size(), 1u);
    ASSERT_EQ(denik().size(), 1u);
    bez(3000); // and on it goes, at its own pace
    EXPECT_GT(cas_s(), pred);
    EXPECT_LE(cas_s(), pred + 3 * rychlost);
    EXPECT_EQ(simulace.minuty_simulace, 0);
    EXPECT_TRUE(metry(62) > 0 || vlak(v).prvky.size() > 1);
    EXPECT_EQ(denik().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Prestavky, Stani,
                         testing::Combine(testing::Values(1, 3, 8),
                                          testing::Values(15'000, kMinuta_ms, 10 * kMinuta_ms,
                                                          12 * 60 * kMinuta_ms)));

TEST_F(Prestavky, DiarySaysHowLongTheComputerStood) {
    rozjed();
    bez(2000);
    const auto po_stani = [&](int ms) {
        const std::size_t radku = denik().size();
        stuj(ms);
        return denik().size() > radku ? denik().back() : Text{};
    };
    EXPECT_EQ(po_stani(15'000), "Počítač stál 15 s, služba pokračuje v 8:00"_cz);
    bez(2000);
    EXPECT_EQ(po_stani(605'000), "Počítač stál 10 min 5 s, služba pokračuje v 8:00"_cz);
    bez(2000);
    EXPECT_EQ(po_stani(43'200'000), "Počítač stál 12 h 0 min, služba pokračuje v 8:00"_cz);
}

TEST_F(Prestavky, ShorterDelayIsMadeUpByTheClock) {
    rozjed();
    bez(2000);
    const std::int32_t pred = cas_s();
    stuj(8'000);
    EXPECT_GE(cas_s(), pred + 8);
    EXPECT_TRUE(denik().empty());
}

TEST_F(Prestavky, StallInAPauseIsNobodysBusiness) {
    rozjed();
    bez(2000);
    zastav_hodiny();
    stuj(60'000);
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    EXPECT_TRUE(denik().empty());
    spust_hodiny();
    const std::int32_t pred = cas_s();
    bez(1000);
    EXPECT_LE(cas_s(), pred + 1);
    EXPECT_TRUE(denik().empty());
}

TEST_F(Prestavky, OpenBoxHoldsTheTimeAndGivesItBackAsItWas) {
    const int v = rozjed();
    bez(900);
    const std::int32_t pred = cas_s();
    const double metry_pred = metry(62);
    const bool bezel = zacni_okno();
    EXPECT_TRUE(bezel);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    ms_pocitace += 180'000; // the core takes no event behind a box
    chod.stal = true;
    ukonci_okno(bezel);
    EXPECT_FALSE(relief.lblPauza[0].viditelny);
    EXPECT_FALSE(simulace.pauza);
    bez(100);
    EXPECT_EQ(cas_s(), pred);
    EXPECT_LE(metry(62), metry_pred + 50);       // what a step of the train makes
    EXPECT_GE(virtualni_hodiny.cas_ms, 180'000); // the wall clock has gone on
    EXPECT_EQ(vlak(v).prvky.size(), 1u);
    EXPECT_TRUE(denik().empty());
}

TEST_F(Prestavky, PauseThatWasOnBeforeTheBoxStaysOn) {
    rozjed();
    zastav_hodiny();
    const bool bezel = zacni_okno();
    EXPECT_FALSE(bezel);
    ukonci_okno(bezel);
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
}

} // namespace
