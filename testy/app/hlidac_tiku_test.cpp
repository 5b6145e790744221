// testy/app/hlidac_tiku_test.cpp - a tick that holds the desk up is told, in the log of the program alone.
#include "app/casovace.h"
#include "app/hlaseni_chyby.h"
#include "app/hlidac_tiku.h"
#include "app/planovac.h"
#include "app/prestavky.h"
#include "pomocne/virtualni_platforma.h"

namespace {

std::int64_t hodiny_hlidace = 0, bude_trvat = 0;

void telo_tiku() {
    hodiny_hlidace += bude_trvat;
}
void tik_s_oknem() {
    telo_tiku();
    ukonci_okno(zacni_okno());
}

class HlidaniTiku : public SPlatformou {
protected:
    void SetUp() override {
        pis_hlaseni_chyb(true);
        hlidej_tiky([] { return hodiny_hlidace; });
    }
    void TearDown() override {
        hlidej_tiky({});
        pis_hlaseni_chyb(false);
    }
    std::string log() const {
        const Bajty bajty = svet.precti("hlaseni/program.log");
        return std::string(bajty.begin(), bajty.end());
    }
    static void tik(std::int64_t ms, void (*co)() = telo_tiku) {
        bude_trvat = ms;
        proved_tik("jizdy", co);
    }
};

} // namespace

TEST_F(HlidaniTiku, TickOverTheLimitIsCountedAndTold) {
    tik(kDlouhyTik_ms);
    EXPECT_EQ(hlidac_tiku.dlouhych, 0);
    EXPECT_EQ(souhrn_tiku(), "");
    tik(350);
    tik(201);
    EXPECT_EQ(hlidac_tiku.tiku, 3);
    EXPECT_EQ(hlidac_tiku.dlouhych, 2);
    EXPECT_NE(log().find("dlouhý tik: jizdy 350 ms"), std::string::npos) << log();
    EXPECT_EQ(souhrn_tiku(), "dlouhých tiků (nad 200 ms): 2 z 3, nejdelší 350 ms");
}

TEST_F(HlidaniTiku, TickThatWaitedForTheOperatorIsNotLong) {
    tik(60'000, tik_s_oknem);
    EXPECT_EQ(hlidac_tiku.tiku, 0);
    tik(1); // and the next one is watched again
    EXPECT_EQ(hlidac_tiku.tiku, 1);
}

TEST_F(HlidaniTiku, SlowComputerDoesNotFillTheDisk) {
    for (int i = 0; i < 1000; ++i)
        tik(300);
    const std::string text = log();
    EXPECT_EQ(hlidac_tiku.dlouhych, 1000);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 50);
}

TEST_F(HlidaniTiku, PlannerRunsItsTimersUnderTheWatch) {
    proved_krok(3);
    EXPECT_EQ(hlidac_tiku.tiku, 1);
}

TEST_F(HlidaniTiku, LogThatHasGrownLongBeginsAnew) {
    pis_do_logu(std::string(static_cast<std::size_t>(kNejdelsiLog_B), 'x'));
    pis_do_logu("druhy");
    EXPECT_LT(log().size(), 100u);
    EXPECT_NE(log().find("  druhy\n"), std::string::npos);
    EXPECT_GT(svet.precti("hlaseni/program.log.stary").size(), static_cast<std::size_t>(kNejdelsiLog_B));
}

TEST_F(HlidaniTiku, HostThatKeepsNoReportsWritesNoLog) {
    pis_hlaseni_chyb(false);
    tik(350);
    EXPECT_FALSE(soubor_existuje(svet.cesta() + "hlaseni"));
}
