// testy/davka/virtualni_svet_test.cpp - the world that the headless runner plays.
#include "davka/virtualni_svet.h"
#include "zaklad/chyba.h"

#include <gtest/gtest.h>

namespace {

struct Svet : ::testing::Test {
    Svet() {
        svet = VirtualniSvet{};
        virtualni_hodiny = VirtualniHodiny{};
        platforma = virtualni_platforma();
    }
    ~Svet() override { platforma = prazdna_platforma(); }
};

std::string popis(const NastennyCas& c) {
    return std::to_string(c.rok) + "-" + std::to_string(c.mesic) + "-" + std::to_string(c.den) + " " +
           std::to_string(c.hodina) + ":" + std::to_string(c.minuta) + ":" + std::to_string(c.sekunda) + "." +
           std::to_string(c.milisekunda);
}

} // namespace

TEST_F(Svet, ClockStandsUntilItIsMoved) {
    EXPECT_EQ(platforma.tik_ms(), 0);
    EXPECT_EQ(popis(platforma.nastenny_cas()), "2026-1-5 8:0:0.0");
    virtualni_hodiny.cas_ms = 90'061'500;
    EXPECT_EQ(platforma.tik_ms(), 90'061'500);
    EXPECT_EQ(popis(platforma.nastenny_cas()), "2026-1-6 9:1:1.500");
}

TEST_F(Svet, WallClockCrossesMonthsAndYears) {
    const NastennyCas silvestr{2027, 12, 31, 23, 59, 59, 999};
    EXPECT_EQ(popis(posun_cas(silvestr, 1)), "2028-1-1 0:0:0.0");
    const NastennyCas unor{2028, 2, 28, 23, 0, 0, 0};
    EXPECT_EQ(popis(posun_cas(unor, 3'600'000)), "2028-2-29 0:0:0.0");
    EXPECT_EQ(posun_cas(unor, 3'600'000).den_tydne(), 1);
}

TEST_F(Svet, TickCounterWrapsAfterTwentyFourDays) {
    virtualni_hodiny.cas_ms = 2'147'483'648;
    EXPECT_EQ(platforma.tik_ms(), -2'147'483'647 - 1);
}

TEST_F(Svet, SettingsKnowNoCase) {
    EXPECT_EQ(platforma.nastaveni_cti("Obrazovka", "x"), std::nullopt);
    platforma.nastaveni_pis("Obrazovka", "X", "1024");
    platforma.nastaveni_pis("obrazovka", "y", "768");
    platforma.nastaveni_pis("OBRAZOVKA", "x", "2048");
    EXPECT_EQ(platforma.nastaveni_cti("obrazovka", "X"), "2048");
    EXPECT_EQ(platforma.nastaveni_klice("Obrazovka"), (std::vector<Text>{"X", "y"}));
    platforma.nastaveni_smaz("obrazovka", "x");
    platforma.nastaveni_smaz("obrazovka", "x");
    EXPECT_EQ(platforma.nastaveni_klice("Obrazovka"), std::vector<Text>{"y"});
}

TEST_F(Svet, QuestionTakesOneAnswerOrItsDefault) {
    svet.odpovedi = {"ano", "ne", "zrus"};
    EXPECT_TRUE(platforma.otazka("T", "A?", false));
    EXPECT_FALSE(platforma.otazka("T", "B?", true));
    EXPECT_TRUE(platforma.otazka("T", "C?", true));
    EXPECT_FALSE(platforma.otazka("T", "D?", false));
    ASSERT_EQ(svet.okna.size(), 4u);
    EXPECT_EQ(svet.okna[2].text, "C?");
    EXPECT_EQ(svet.okna[2].odpoved, true);
}

TEST_F(Svet, FileDialogueIsCancelledWithoutAnAnswer) {
    EXPECT_EQ(platforma.soubor_k_ulozeni("C:\\tesk\\save", "*.sim", {}), std::nullopt);
    svet.odpovedi = {"zrus", "pokus", "pokus.sim", "/tmp/a.b/pokus", "C:\\x.sim"};
    EXPECT_EQ(platforma.soubor_k_otevreni("C:\\tesk\\save", "*.sim"), std::nullopt);
    EXPECT_EQ(platforma.soubor_k_otevreni("C:\\tesk\\save", "*.sim"), "C:\\tesk\\save\\pokus.sim");
    EXPECT_EQ(platforma.soubor_k_otevreni("C:\\tesk\\save\\", "*.sim"), "C:\\tesk\\save\\pokus.sim");
    EXPECT_EQ(platforma.soubor_k_ulozeni("C:\\tesk\\save", "*.sim", {}), "/tmp/a.b/pokus.sim");
    EXPECT_EQ(platforma.soubor_k_ulozeni("C:\\tesk\\save", "*.sim", {}), "C:\\x.sim");
}

TEST_F(Svet, BeepsRememberTheirMoment) {
    virtualni_hodiny.cas_ms = 1234;
    platforma.pipni(400, 150);
    ASSERT_EQ(svet.pipnuti.size(), 1u);
    EXPECT_EQ(svet.pipnuti[0].hz, 400);
    EXPECT_EQ(svet.pipnuti[0].ms, 150);
    EXPECT_EQ(svet.pipnuti[0].cas_ms, 1234);
}

TEST_F(Svet, EndOfTheProcessIsNotedAndUnwinds) {
    EXPECT_THROW(platforma.ukonci(1), KonecProgramu);
    EXPECT_EQ(svet.konec, 1);
}
