// testy/app/historie_test.cpp - time is turned back and forth, and the state is the one that was there.
#include "app/historie.h"
#include "pomocne/semena.h"
#include "pomocne/smena_ruky.h"
#include "vypravci/vypravci.h"

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
        return {ubehlo_s(), virtualni_hodiny.cas_ms, gtn_misto().delka, cas_hodin(), nahoda, stav_simulace()};
    }
    static void over(const Okamzik& o) {
        EXPECT_EQ(rozdil(stav_simulace(), o.stav), "");
        EXPECT_EQ(nahoda, o.zdroj);
        EXPECT_EQ(virtualni_hodiny.cas_ms, o.cas_ms);
        EXPECT_EQ(ubehlo_s(), o.ubehlo);
        EXPECT_EQ(gtn_misto().delka, o.gtn);
    }
    // The record as it would be if time had never been turned back: the notes of that are left out, and waits
    // that they part stand in one.
    static std::string bez_poznamek(const std::string& zaznam) {
        std::string text;
        std::int64_t ceka = 0;
        std::istringstream radky(zaznam);
        for (std::string radek; std::getline(radky, radek);) {
            if (radek.starts_with("vraceno "))
                continue;
            if (radek.starts_with("cekej ")) {
                ceka += std::stoll(radek.substr(6));
                continue;
            }
            text += std::to_string(std::exchange(ceka, 0)) + "\n" + radek + "\n";
        }
        return text + std::to_string(ceka);
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
    EXPECT_EQ(bez_poznamek(zaznam_smeny()), bez_poznamek(zaznam));
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
    if (po > pred + 1'000'000) { // elsewhere nobody tells what the heap holds
        EXPECT_LE(bajtu_historie(), 2 * (po - pred));
        EXPECT_LE(po - pred, 2 * bajtu_historie()) << "the estimate is near what is taken";
    }
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

TEST_F(Historie, WhatIsRefusedChangesNothing) {
    zacni(35);
    skript("cekej 30min");
    ASSERT_EQ(vrat_o(10 * 60), Navrat::hotovo);
    const Okamzik o = ted();
    const std::string zaznam = zaznam_smeny();
    EXPECT_EQ(vrat_o(99 * 3600), Navrat::pred_pameti);
    over(o);
    EXPECT_TRUE(je_co_vratit());
    EXPECT_EQ(zaznam_smeny(), zaznam);
}

TEST_F(Historie, WhoHasTheDeskNowHasItThen) {
    zacni(36);
    skript("cekej 5min");
    ASSERT_EQ(vrat_o(60), Navrat::hotovo);
    vypravci::predej();
    ASSERT_EQ(zrus_navrat(), Navrat::hotovo);
    EXPECT_TRUE(vypravci::zapnut());
    ASSERT_EQ(vrat_o(60), Navrat::hotovo);
    EXPECT_TRUE(vypravci::zapnut());
    vypravci::vezmi();
    ASSERT_EQ(zrus_navrat(), Navrat::hotovo);
    EXPECT_FALSE(vypravci::zapnut());
}

TEST_F(Historie, GoesOnWithMacrosThatCannotBeRead) {
    zacni(37);
    nahraj_makro();
    skript("cekej 5min");
    std::filesystem::resize_file(koren / "data" / "tesk.mak", 70'000'000);
    skript("cekej 65min"); // a state is kept
    EXPECT_EQ(vrat_o(10 * 60), Navrat::hotovo);
    EXPECT_EQ(zrus_navrat(), Navrat::hotovo);
}

// The dispatcher keeps what he has said himself, and with it the sentences in the report.
void bez_vypravciho(StavSimulace& stav) {
    stav.stav_vypravciho = {};
    stav.sledovani.s_vypravcim = false;
    for (JizdaVlaku& j : stav.sledovani.jizdy)
        j.nyni.veta = j.nejdelsi.veta = Text{};
}

TEST_F(Historie, ComesToTheSameStateWhenTheDispatcherHadTheDesk) {
    zacni(38);
    vypravci::predej();
    sleduj(90);
    skript("cekej 25min");
    ASSERT_GT(okamziky.size(), 8u);
    kazdy_okamzik = 0;
    for (int i = 0; i < 12 && !HasFailure(); ++i) {
        Okamzik o = okamziky[los() % okamziky.size()];
        ASSERT_EQ(vrat_na(o.cas), Navrat::hotovo);
        StavSimulace stav = stav_simulace();
        bez_vypravciho(stav);
        bez_vypravciho(o.stav);
        EXPECT_EQ(rozdil(stav, o.stav), "");
        EXPECT_EQ(nahoda, o.zdroj);
        EXPECT_EQ(gtn_misto().delka, o.gtn);
        over_stav();
    }
}

} // namespace
