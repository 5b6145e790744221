// testy/app/planovac_test.cpp - the timers in virtual time.
#include "app/casovace.h"
#include "app/nova_simulace.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "davka/virtualni_svet.h"
#include "prvky/panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

struct PlanovacCasu : ::testing::Test {
    PlanovacCasu() {
        svet = VirtualniSvet{};
        virtualni_hodiny = VirtualniHodiny{};
        planovac = Planovac{};
        platforma = virtualni_platforma();
        nova_simulace();
        panel_navestidla = PanelNavestidla{};
        planovac.po_kroku = [this] { kroky.push_back(virtualni_hodiny.cas_ms); };
    }
    ~PlanovacCasu() override {
        panel_navestidla = PanelNavestidla{};
        planovac = Planovac{};
        platforma = prazdna_platforma();
    }

    // The moments at which the timers of the main screen are due, up to and including a moment.
    static std::vector<std::int64_t> nasobky(std::int64_t od, std::int64_t do_ms) {
        std::vector<std::int64_t> casy;
        for (const Casovac& c : casovace)
            for (std::int64_t t = (od / c.perioda_ms + 1) * c.perioda_ms; t <= do_ms; t += c.perioda_ms)
                casy.push_back(t);
        std::sort(casy.begin(), casy.end());
        return casy;
    }

    std::vector<std::int64_t> kroky;
};

} // namespace

TEST_F(PlanovacCasu, NothingRunsBeforeTheMainScreen) {
    EXPECT_FALSE(plyn_do(60'000));
    EXPECT_EQ(virtualni_hodiny.cas_ms, 60'000);
    EXPECT_TRUE(kroky.empty());
}

TEST_F(PlanovacCasu, EachTimerRunsAtTheMultiplesOfItsPeriod) {
    spust_planovac();
    plyn_do(30'000);
    EXPECT_EQ(kroky, nasobky(0, 30'000));
    EXPECT_EQ(virtualni_hodiny.cas_ms, 30'000);
}

TEST_F(PlanovacCasu, PiecesOfTimeGiveTheSameStepsAsTheWhole) {
    spust_planovac();
    for (int i = 0; i < 300; ++i)
        plyn_do(virtualni_hodiny.cas_ms + 7 + i % 13);
    EXPECT_EQ(kroky, nasobky(0, virtualni_hodiny.cas_ms));
}

TEST_F(PlanovacCasu, TimersOfALaterStartKeepTheSameRaster) {
    plyn_do(1'001);
    spust_planovac();
    plyn_do(5'000);
    EXPECT_EQ(kroky, nasobky(1'001, 5'000));
}

TEST_F(PlanovacCasu, TimeDoesNotGoBack) {
    spust_planovac();
    plyn_do(2'000);
    const std::size_t dosud = kroky.size();
    plyn_do(1'000);
    EXPECT_EQ(virtualni_hodiny.cas_ms, 2'000);
    EXPECT_EQ(kroky.size(), dosud);
}

TEST_F(PlanovacCasu, EnoughIsAskedWhenAllOfAMomentHasRun) {
    spust_planovac();
    EXPECT_TRUE(plyn_do(60'000, [] { return virtualni_hodiny.cas_ms >= 1'500; }));
    EXPECT_EQ(virtualni_hodiny.cas_ms, 1'500);
    EXPECT_EQ(kroky, nasobky(0, 1'500)) << "the clock and the blinking are both due at 1500";
    EXPECT_FALSE(plyn_do(3'000, [] { return false; }));
    EXPECT_EQ(kroky, nasobky(0, 3'000));
}

TEST_F(PlanovacCasu, LampOfThePanelRunsAtItsOwnPeriod) {
    spust_planovac();
    plyn_do(1'010);
    panel_navestidla.blika = 1;
    panel_navestidla.interval = 250;
    kroky.clear();
    plyn_do(2'010);
    std::vector<std::int64_t> ceka = nasobky(1'010, 2'010);
    for (const std::int64_t t : {1'260, 1'510, 1'760, 2'010})
        ceka.push_back(t);
    std::sort(ceka.begin(), ceka.end());
    EXPECT_EQ(kroky, ceka) << "counted from the moment at which the lamp began";

    panel_navestidla.interval = 0;
    kroky.clear();
    plyn_do(3'000);
    EXPECT_EQ(kroky, nasobky(2'010, 3'000));
}

TEST_F(PlanovacCasu, StepByHandLeavesThePeriodsAlone) {
    spust_planovac();
    plyn_do(1'000);
    proved_krok(0);
    kroky.clear();
    plyn_do(2'000);
    EXPECT_EQ(kroky, nasobky(1'000, 2'000));
}
