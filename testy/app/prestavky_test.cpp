// testy/app/prestavky_test.cpp - the service behind an open box and after a stall of the machine.
#include "app/casovace.h"
#include "app/prestavky.h"
#include "jizda/svet_vlaku.h"

#include <array>
#include <tuple>

namespace {

// The timers of a host with a real clock: after a stall each has its event once, and then at its period.
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
        for (std::size_t i = 0; i < casovace.size(); ++i)
            splatno[i] = ms_hostitele + casovace[i].perioda_ms;
        return v;
    }
    void udalosti() {
        for (std::size_t i = 0; i < casovace.size(); ++i)
            if (ms_hostitele >= splatno[i]) {
                udalost_casovace(znacky, i, ms_hostitele);
                casovace[i].telo();
                splatno[i] = ms_hostitele + casovace[i].perioda_ms;
            }
    }
    // The computer works.
    void bez(int ms) {
        for (int i = 0; i < ms; i += 50) {
            svet.posun_ms(50);
            ms_hostitele += 50;
            udalosti();
        }
    }
    // It stands, and its timers have their events at the end. A computer that sleeps does not count the
    // ticks.
    void stuj(int ms, bool pocita_tiky = true) {
        ms_hostitele += ms;
        if (pocita_tiky)
            svet.posun_ms(ms);
        udalosti();
    }
    static std::int32_t cas_s() { return ted_s(); }
    // The lines of the diary that tell of stalls.
    static std::vector<Text> denik() {
        std::vector<Text> radky = relief.lstDenik.radky;
        std::erase_if(radky, [](const Text& r) { return !r.starts_with("Počítač stál "_cz); });
        return radky;
    }

    ZnackyCasovacu znacky;
    std::int64_t ms_hostitele = 7'000'000'000;
    std::array<std::int64_t, 4> splatno{};
};

constexpr int kMinuta_ms = 60'000;

// Speed, length of the stall in ms, and whether the ticks go on meanwhile.
class Stani : public Prestavky, public testing::WithParamInterface<std::tuple<int, int, bool>> {};

TEST_P(Stani, MovesNeitherTheClockNorTheTrains) {
    const auto [rychlost, stani, pocita_tiky] = GetParam();
    simulace.rychlost = static_cast<std::uint8_t>(rychlost);
    const int v = rozjed();
    bez(900); // the timers have begun, the train waits for its first step
    const std::int32_t pred = cas_s();
    ASSERT_EQ(metry(62), 0);
    stuj(stani, pocita_tiky);
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
                                                          12 * 60 * kMinuta_ms),
                                          testing::Bool()));

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
    const int metry_pred = metry(62);
    const bool bezel = zacni_okno();
    EXPECT_TRUE(bezel);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    bez(180'000);
    EXPECT_EQ(cas_s(), pred);
    ukonci_okno(bezel);
    EXPECT_FALSE(relief.lblPauza[0].viditelny);
    EXPECT_FALSE(simulace.pauza);
    bez(100);
    EXPECT_EQ(cas_s(), pred);
    EXPECT_LE(metry(62), metry_pred + 5); // what a tenth of a second makes
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
