// testy/lekce/prochazka_test.cpp - the lessons of the installation, walked by doing what each step shows and
// nothing else.
#include "pomocne/zak.h"

namespace {

class Lekce : public Zak {
protected:
    void projdi(const Text& soubor) {
        novy_svet();
        zacni_lekci(z_instalace(soubor));
        int pokusu = 0;
        std::size_t krok = 0;
        while (!pruvodce->hotova()) {
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
            if (pruvodce->hotova())
                break;
            ASSERT_EQ(pruvodce->potiz(), lekce::Potiz::zadna)
                << kde() << ": " << na_utf8(pruvodce->text_potizi());
            ASSERT_FALSE(pruvodce->trva_dlouho()) << kde();
            if (pruvodce->krok() != krok) {
                over_stav();
                ASSERT_GT(pruvodce->krok(), krok) << kde();
                krok = pruvodce->krok();
                pokusu = 0;
            }
            ASSERT_LT(++pokusu, 2000) << kde();
        }
        over_stav();
        EXPECT_GT(pruvodce->bodu(), 5U) << "moments to come back to";
    }
};

TEST_F(Lekce, FirstTrainIsBroughtHomeByWhatTheStepsShow) {
    projdi("1-prvni-vlak.lekce");
}

} // namespace
