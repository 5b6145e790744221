// testy/zaklad/chyba_test.cpp - run-time errors.
#include "zaklad/chyba.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(Chyba, CarriesItsNumberAndWhatItConcerns) {
    try {
        chyba(KodChyby::preteceni, "krok");
    } catch (const BehovaChyba& e) {
        EXPECT_EQ(static_cast<int>(e.kod), 6);
        EXPECT_EQ(e.co, "krok");
        return;
    }
    FAIL();
}

TEST(Chyba, EveryNumberHasItsOwnText) {
    std::set<TextPohled> texty;
    for (const int kod : {5, 6, 7, 9, 11, 13, 53, 57, 61, 62, 70, 76, 340}) {
        const TextPohled text = text_chyby(static_cast<KodChyby>(kod));
        EXPECT_NE(text, "Neznámá chyba"_cz) << kod;
        EXPECT_TRUE(texty.insert(text).second) << kod;
    }
    EXPECT_EQ(text_chyby(static_cast<KodChyby>(1)), "Neznámá chyba"_cz);
}

} // namespace
