// testy/lekce/prejezdy_test.cpp - what a lesson sees of a crossing.
#include "pomocne/zak.h"
#include "prvky/stanicni_prejezdy.h"

namespace {

class LekcePrejezdu : public Zak {
protected:
    static bool je(const std::string& slovo) {
        return lekce::plati(lekce::precti_podminku({"prejezd", "0", slovo}), 0);
    }
};

TEST_F(LekcePrejezdu, CrossingIsClosedWhileATrainRunsOverItThoughNothingElseHoldsIt) {
    novy_svet();
    StanicniPrejezd& p = stanicni_prejezdy[0];
    p = {};
    EXPECT_TRUE(je("otevren"));
    EXPECT_FALSE(je("uzavren"));
    p.cas = 100;
    EXPECT_TRUE(je("vystraha"));
    p.pocet = kBezVlaku + 1;
    EXPECT_TRUE(je("uzavren"));
    EXPECT_FALSE(je("otevren"));
    EXPECT_FALSE(je("vystraha"));
    p = {};
}

} // namespace
