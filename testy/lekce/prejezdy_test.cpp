// testy/lekce/prejezdy_test.cpp - the lesson of crossings and consents, by pupils who take their time or do
// something else, and what it asks of a crossing.
#include "pomocne/zak.h"
#include "prvky/stanicni_prejezdy.h"

namespace {

class LekcePrejezdu : public Zak {
protected:
    static bool je(const std::string& slovo) {
        return lekce::plati(lekce::precti_podminku({"prejezd", "0", slovo}), 0);
    }
    void zacni() {
        novy_svet();
        zacni_lekci(z_instalace("3-prejezdy-a-souhlasy.lekce"));
    }
    // Does what is shown, after so long a look at each step, until the step with that heading; to the end of
    // the lesson without one.
    void projdi(const std::string& prodleva, const std::string& nadpis = {}) {
        int pokusu = 0;
        std::size_t krok = pruvodce->krok();
        while (!pruvodce->hotova()) {
            pruvodce->pohled();
            if (pruvodce->hotova() || na_utf8(pruvodce->popis().nadpis) == nadpis)
                return;
            if (pruvodce->krok() != krok) {
                krok = pruvodce->krok();
                pokusu = 0;
                if (!prodleva.empty() && pruvodce->dalsi_ukon() != nullptr)
                    skript("cekej " + prodleva);
            }
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
            over_stav();
            ASSERT_FALSE(!pruvodce->hotova() && pruvodce->trva_dlouho()) << kde();
            ASSERT_LT(++pokusu, 2000) << kde();
        }
        ASSERT_TRUE(nadpis.empty()) << nadpis;
    }
    void udelej_sam(const std::vector<std::string>& radky) {
        for (const std::string& radek : radky)
            skript(radek);
    }
    // That the lesson now shows the step, whatever it was before.
    void over_krok(const std::string& nadpis) {
        skript("cekej 1s");
        pruvodce->pohled();
        pruvodce->pohled();
        ASSERT_FALSE(pruvodce->hotova());
        EXPECT_EQ(na_utf8(pruvodce->popis().nadpis), nadpis) << na_utf8(pruvodce->text_potizi());
    }
};

// A minute and a half at the desk is more than four minutes of the service.
TEST_F(LekcePrejezdu, IsWalkedByAPupilWhoTakesHisTimeToo) {
    zacni();
    ASSERT_NO_FATAL_FAILURE(projdi("90s"));
    EXPECT_TRUE(pruvodce->hotova());
}

TEST_F(LekcePrejezdu, ForgivesARouteCancelledBeforeItsTrain) {
    zacni();
    ASSERT_NO_FATAL_FAILURE(projdi("", "Zavřete silnici"));
    udelej_sam({"pravy navestidlo 2", "menu miRC"});
    ASSERT_NO_FATAL_FAILURE(projdi("", "Vlak dojede k sousedovi"));
    skript("cekej 90s"); // the train stands before it: three minutes
    ASSERT_NO_FATAL_FAILURE(over_krok("Vlak k sousedovi"));
    ASSERT_NO_FATAL_FAILURE(projdi("", "Udělte souhlas"));
    ASSERT_NO_FATAL_FAILURE(projdi("", "Přejezdy na trati"));
    udelej_sam({"pravy navestidlo 203", "menu miRC", "cekej 90s"});
    ASSERT_NO_FATAL_FAILURE(over_krok("Trať se šipkou"));
    ASSERT_NO_FATAL_FAILURE(projdi("", "Čtyřicet sekund"));
    udelej_sam({"cekej 3s", "pravy navestidlo 297", "menu miRC", "cekej 90s"});
    ASSERT_NO_FATAL_FAILURE(over_krok("Cesta přes silnici"));
    ASSERT_NO_FATAL_FAILURE(projdi(""));
    EXPECT_TRUE(pruvodce->hotova());
}

TEST_F(LekcePrejezdu, ForgivesACrossingOpenedTooSoonAndOneThatIsHeldClosed) {
    zacni();
    ASSERT_NO_FATAL_FAILURE(projdi("", "Třicet sekund"));
    udelej_sam({"pravy lblPrejezd 0", "menu miZUZ"});
    ASSERT_NO_FATAL_FAILURE(over_krok("Zavřete silnici"));
    ASSERT_NO_FATAL_FAILURE(projdi("", "Za vlakem se otevře"));
    udelej_sam({"pravy lblPrejezd 0", "menu miUZ"});
    pruvodce->pohled();
    EXPECT_EQ(pruvodce->potiz(), lekce::Potiz::odbocka);
    ASSERT_NO_FATAL_FAILURE(projdi(""));
    EXPECT_TRUE(pruvodce->hotova());
    EXPECT_TRUE(je("otevren"));
}

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
