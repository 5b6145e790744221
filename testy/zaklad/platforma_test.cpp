// testy/zaklad/platforma_test.cpp - the world of a host that has nothing, and the calendar.
#include "zaklad/chyba.h"
#include "zaklad/platforma.h"

#include <gtest/gtest.h>

namespace {

TEST(DenTydne, IsZeroOnMonday) {
    const auto den = [](int rok, int mesic, int d) {
        NastennyCas cas;
        cas.rok = rok;
        cas.mesic = mesic;
        cas.den = d;
        return cas.den_tydne();
    };
    EXPECT_EQ(den(2026, 1, 5), 0);
    EXPECT_EQ(den(2026, 1, 11), 6);
    EXPECT_EQ(den(1970, 1, 1), 3);
    EXPECT_EQ(den(2000, 2, 29), 1);
    EXPECT_EQ(den(2000, 3, 1), 2);
    EXPECT_EQ(den(1900, 2, 28), 2); // 1900 was no leap year
    EXPECT_EQ(den(1900, 3, 1), 3);
    EXPECT_EQ(den(2024, 12, 31), 1);
    EXPECT_EQ(den(1969, 12, 31), 2);
}

TEST(DenTydne, RunsOnFromDayToDay) {
    static constexpr int kDny[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int ocekavany = 3; // 2026-01-01, a Thursday
    NastennyCas cas;
    for (cas.mesic = 1; cas.mesic <= 12; ++cas.mesic)
        for (cas.den = 1; cas.den <= kDny[cas.mesic - 1]; ++cas.den) {
            ASSERT_EQ(cas.den_tydne(), ocekavany) << cas.den << "." << cas.mesic;
            ocekavany = (ocekavany + 1) % 7;
        }
}

TEST(NastennyCas, CountsSecondsOfTheDay) {
    NastennyCas cas;
    cas.hodina = 23;
    cas.minuta = 59;
    cas.sekunda = 58;
    cas.milisekunda = 250;
    EXPECT_EQ(cas.sekundy_dne(), 86398);
    EXPECT_EQ(cas.cas_dne(), 86398.25);
}

TEST(PrazdnaPlatforma, AnswersEveryServiceAndDoesNothing) {
    const Platforma p = prazdna_platforma();
    EXPECT_EQ(p.tik_ms(), 0);
    EXPECT_EQ(p.nastenny_cas().den_tydne(), 0);
    EXPECT_EQ(p.semeno(), 1u);
    p.nech_bezet_ui();
    p.cekej(3.5);
    p.pipni(500, 40);
    p.okno("a", "b");
    EXPECT_TRUE(p.otazka("a", "b", true));
    EXPECT_FALSE(p.otazka("a", "b", false));
    EXPECT_EQ(p.soubor_k_otevreni("a", "b"), std::nullopt);
    EXPECT_EQ(p.soubor_k_ulozeni("a", "b", ""), std::nullopt);
    p.nastaveni_pis("a", "b", "c");
    EXPECT_EQ(p.nastaveni_cti("a", "b"), std::nullopt);
    p.nastaveni_smaz("a", "b");
    EXPECT_TRUE(p.nastaveni_klice("a").empty());
    EXPECT_EQ(p.rezim(), (RezimObrazovky{1024, 768, 60, 32}));
    EXPECT_TRUE(p.rezimy().empty());
    EXPECT_FALSE(p.nastav_rezim({}));
    p.lista(true);
    p.nastav_kurzor({1, 2});
    EXPECT_EQ(p.kurzor().x, 0);
    p.kurzor_viditelny(false);
    p.minimalizuj();
    EXPECT_FALSE(p.okno_do_popredi("a"));
    EXPECT_FALSE(p.spust_program("a"));
    EXPECT_FALSE(p.otevri_dokument("a"));
    EXPECT_FALSE(p.bezi_jina_instance());
}

TEST(PrazdnaPlatforma, EndOfTheProcessUnwinds) {
    try {
        prazdna_platforma().ukonci(4);
        FAIL();
    } catch (const KonecProgramu& k) {
        EXPECT_EQ(k.navratovy_kod, 4);
    }
}

} // namespace
