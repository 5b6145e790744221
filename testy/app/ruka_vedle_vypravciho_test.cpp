// testy/app/ruka_vedle_vypravciho_test.cpp - a random hand beside the automatic dispatcher.
#include "pomocne/smena_ruky.h"
#include "vypravci/vypravci.h"

namespace {

class RukaVedleVypravciho : public SmenaRuky {};

} // namespace

TEST_F(RukaVedleVypravciho, BreaksNoRuleWhateverItDoes) {
    zacni(51);
    vypravci::predej();
    for (int i = 0; i < 120 && !HasFailure(); ++i) {
        pracuj(5'000);
        over_stav();
    }
    EXPECT_TRUE(vypravci::zapnut());
    EXPECT_GT(stav_vypravciho.povelu, 20);
    EXPECT_GT(ruka.pouzito().size(), 20u);
    vypravci::vezmi();
}
