// testy/app/historie_test.cpp - time is turned back and forth, and the state is the one that was there.
#include "app/historie.h"
#include "pomocne/semena.h"
#include "pomocne/smena_ruky.h"

#include <cstdlib>
#include <malloc.h>

namespace {

// What the recording was like when the clock first showed a second.
struct Okamzik {
    std::int64_t ubehlo = 0, cas_ms = 0, gtn = 0;
    std::int32_t cas = 0;
    Nahoda zdroj;
    StavSimulace stav;
};

int skoku() {
    const char* text = std::getenv("TESK_SKOKU");
    return text != nullptr ? std::atoi(text) : static_cast<int>(dil_zkousek(60));
}

class Historie : public SmenaRuky {
protected:
    // Keeps one moment of `kazdy` seconds.
    void sleduj(unsigned kazdy) {
        kazdy_okamzik = kazdy;
        planovac.po_okamziku = [this, dal = planovac.po_okamziku] {
            dal();
            if (kazdy_okamzik > 0 && ubehlo_s() != videno && los_okamziku() % kazdy_okamzik == 0)
                okamziky.push_back(ted());
            videno = ubehlo_s();
        };
    }
    static Okamzik ted() {
        return {ubehlo_s(), virtualni_hodiny.cas_ms, gtn_delka(), cas_hodin(), nahoda, stav_simulace()};
    }
    static void over(const Okamzik& o) {
        EXPECT_EQ(rozdil(stav_simulace(), o.stav), "");
        EXPECT_EQ(nahoda, o.zdroj);
        EXPECT_EQ(virtualni_hodiny.cas_ms, o.cas_ms);
        EXPECT_EQ(ubehlo_s(), o.ubehlo);
        EXPECT_EQ(gtn_delka(), o.gtn);
    }
    void pracuj_minut(std::int64_t kolik) {
        while (ubehlo_s() < kolik * 60)
            pracuj(5000);
    }

    std::vector<Okamzik> okamziky;
    std::int64_t videno = -1;
    unsigned kazdy_okamzik = 0; // none
    std::mt19937 los_okamziku{4};
};

class NahodnyNavrat : public Historie, public testing::WithParamInterface<unsigned> {};

TEST_P(NahodnyNavrat, ComesToTheStateThatWasThereFieldByField) {
    zacni(GetParam());
    sleduj(40);
    pracuj_minut(50);
    const Okamzik konec = ted();
    const Bajty log = denik();
    const std::string zaznam = zaznam_smeny();
    kazdy_okamzik = 0;
    ASSERT_GT(okamziky.size(), 20u);
    for (int i = 0; i < skoku() && !HasFailure(); ++i) {
        const Okamzik& o = okamziky[los() % okamziky.size()];
        ASSERT_EQ(o.ubehlo <= ubehlo_s() && los() % 2 == 0 ? vrat_o(ubehlo_s() - o.ubehlo) : vrat_na(o.cas),
                  Navrat::hotovo);
        over(o);
        over_stav();
        if (los() % 3 == 0)
            plyn_do(virtualni_hodiny.cas_ms + static_cast<std::int64_t>(los() % 10'000));
        if (los() % 5 == 0)
            odjeti();
        if (los() % 7 == 0 && zrus_navrat() == Navrat::hotovo) {
            over(konec);
            over_stav();
        }
    }
    if (je_co_vratit())
        zrus_navrat();
    over(konec);
    EXPECT_TRUE(denik() == log);
    EXPECT_EQ(zaznam_smeny(), zaznam);
}

INSTANTIATE_TEST_SUITE_P(Semena, NahodnyNavrat, semena(21, 22));

TEST_F(Historie, KeepsSixHoursInItsMemory) {
    zacni(30);
    skript("cekej 1ms");
    simulace.rychlost = 8;
    const auto pred = mallinfo2().uordblks + mallinfo2().hblkhd;
    pracuj_minut(7 * 60);
    const auto po = mallinfo2().uordblks + mallinfo2().hblkhd;
    RecordProperty("snimku", static_cast<int>(snimku_historie()));
    RecordProperty("kB", static_cast<int>(bajtu_historie() / 1000));
    RecordProperty("kB_hromady", static_cast<int>((po - pred) / 1000));
    EXPECT_GE(delka_pameti_s(), kPametHistorie_s);
    EXPECT_LE(bajtu_historie(), kPametHistorie_B);
    EXPECT_EQ(vrat_o(kPametHistorie_s), Navrat::hotovo);
    EXPECT_EQ(zrus_navrat(), Navrat::hotovo);
    EXPECT_EQ(vrat_o(delka_pameti_s() + 1), Navrat::pred_pameti);
}

TEST_F(Historie, GoesNoFurtherBackThanTheBeginningOfTheShift) {
    zacni(31);
    const Okamzik zacatek = ted();
    skript("cekej 5min");
    const Okamzik konec = ted();
    EXPECT_EQ(vrat_o(ubehlo_s() + 1), Navrat::pred_pameti);
    over(konec);
    EXPECT_EQ(vrat_o(ubehlo_s()), Navrat::hotovo);
    EXPECT_EQ(ubehlo_s(), 0);
    EXPECT_LE(virtualni_hodiny.cas_ms, zacatek.cas_ms);
}

TEST_F(Historie, IsGivenUpByTheNextActAndNotByThePointer) {
    zacni(32);
    skript("cekej 10min");
    ASSERT_EQ(vrat_o(300), Navrat::hotovo);
    najeti(Druh::navestidlo, 287);
    skript("cekej 1min");
    EXPECT_TRUE(je_co_vratit());
    skript("klik navestidlo 287");
    EXPECT_FALSE(je_co_vratit());
    EXPECT_EQ(zrus_navrat(), Navrat::neni_kam);
}

TEST_F(Historie, TakesBackMacrosThatWereStoredSince) {
    zacni(33);
    const Bajty pred = obsah_maker();
    skript("cekej 2min");
    const std::int64_t tehdy = ubehlo_s();
    nahraj_makro();
    const Bajty makra = obsah_maker();
    ASSERT_NE(makra, pred);
    skript("cekej 2min");
    ASSERT_EQ(vrat_o(ubehlo_s() - tehdy), Navrat::hotovo);
    EXPECT_EQ(obsah_maker(), pred);
    ASSERT_EQ(zrus_navrat(), Navrat::hotovo);
    EXPECT_EQ(obsah_maker(), makra);
}

TEST_F(Historie, DoesAgainWhatOnlyAScriptCan) {
    zacni(34);
    skript("cekej 1min");
    skript("nastav kolej 73 barva=0x000000FF");
    skript("krok jizdy");
    skript("cekej 1min");
    sleduj(1);
    skript("cekej 10s");
    const Okamzik o = okamziky.front();
    skript("cekej 1min");
    ASSERT_EQ(vrat_o(ubehlo_s() - o.ubehlo), Navrat::hotovo);
    over(o);
}

} // namespace
