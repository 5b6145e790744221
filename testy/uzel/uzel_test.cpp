// testy/uzel/uzel_test.cpp - the tables of the junction hold what their headers say of a valid row.
#include "uzel/dopravny.h"
#include "uzel/kresba.h"
#include "uzel/navestidla.h"
#include "uzel/prejezdy.h"
#include "uzel/rychlosti.h"
#include "uzel/trate.h"
#include "uzel/umisteni.h"
#include "uzel/volba.h"
#include "uzel/vstupy.h"
#include "uzel/zastavky.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

// No two ranges of the rows share a number, and none runs backwards.
template <class Radky> void nepretinaji_se(const Radky& radky) {
    std::set<int> cisla;
    for (const auto& r : radky) {
        EXPECT_LE(r.od, r.po);
        for (int n = r.od; n <= r.po; ++n)
            EXPECT_TRUE(cisla.insert(n).second) << n;
    }
}

const uzel::CestaNaTrati* cesta_od(int klic) {
    const auto c = std::find_if(uzel::kCestyNaTrati.begin(), uzel::kCestyNaTrati.end(),
                                [klic](const uzel::CestaNaTrati& r) { return r.klic == klic; });
    return c == uzel::kCestyNaTrati.end() ? nullptr : &*c;
}

TEST(Uzel, KazdaKolejPatriNejvyseJedneStaniciJedneZastavceAJednomuVystupu) {
    nepretinaji_se(uzel::kKolejeStanic);
    nepretinaji_se(uzel::kMistaStopu);
    nepretinaji_se(uzel::kDenik);
    nepretinaji_se(uzel::kVystupy);
    nepretinaji_se(uzel::kMasty);
}

TEST(Uzel, KolejZKterePiseDenikJeZastavkaTezeStanice) {
    for (const uzel::RadekDeniku& r : uzel::kDenik)
        for (int n = r.od; n <= r.po; ++n) {
            const auto misto =
                std::find_if(uzel::kMistaStopu.begin(), uzel::kMistaStopu.end(),
                             [n](const uzel::MistoStopu& m) { return n >= m.od && n <= m.po; });
            ASSERT_NE(misto, uzel::kMistaStopu.end()) << n;
            EXPECT_EQ(misto->stanice, r.stanice) << n;
        }
}

TEST(Uzel, KolejMaVKazdemSmysluNejvyseJednuRychlost) {
    const auto jednou = [](const auto& tabulka) {
        std::set<int> prvky;
        for (const uzel::RychlostPrvku& r : tabulka) {
            EXPECT_TRUE(prvky.insert(r.prvek).second) << r.prvek;
            EXPECT_GT(r.rychlost, 0) << r.prvek;
        }
    };
    jednou(uzel::kRychlostiVpravo);
    jednou(uzel::kRychlostiVlevo);
    EXPECT_EQ(uzel::rychlost_prvku(135, true), 40);
    EXPECT_EQ(uzel::rychlost_prvku(135, false), 60);
    EXPECT_EQ(uzel::rychlost_prvku(134, true), 0);
    EXPECT_EQ(uzel::rychlost_prvku(kZadny, true), 0);
    EXPECT_EQ(uzel::rychlost_prvku(kNejvyssiPrvek + 1, true), 0);
}

TEST(Uzel, DruhaKresbaJeObrazemJedineKolejeASamaZadnouNema) {
    std::set<int> vzory, kopie;
    for (const uzel::Zrcadlo& z : uzel::kZrcadla) {
        EXPECT_TRUE(vzory.insert(z.vzor).second) << z.vzor;
        for (const int k : z.kopie)
            EXPECT_TRUE(k == kZadny || kopie.insert(k).second) << k;
    }
    for (const int k : kopie)
        EXPECT_FALSE(vzory.contains(k)) << k;
}

TEST(Uzel, VlakUmistenyNaTratMaCestuKteraUNejZacina) {
    const auto zacina = [](int kolej) {
        const uzel::CestaNaTrati* c = cesta_od(kolej);
        ASSERT_NE(c, nullptr) << kolej;
        EXPECT_EQ(zaklad_trati(c->sipka), c->sipka) << kolej;
        EXPECT_EQ(c->prvky.front(), kolej);
    };
    for (const uzel::StopNaTrati& s : uzel::kStopyNaTrati) {
        zacina(s.vpravo);
        zacina(s.vlevo);
    }
    for (const uzel::KolejeUmisteni& k : uzel::kKolejeUmisteni)
        if (k.na_trati)
            zacina(k.koleje.front());
}

TEST(Uzel, UmistenyVlakStojiTamKdeJehoStaniceMaZastavku) {
    const auto stanice = [](int n) {
        const auto misto = std::find_if(uzel::kMistaStopu.begin(), uzel::kMistaStopu.end(),
                                        [n](const uzel::MistoStopu& m) { return n >= m.od && n <= m.po; });
        return misto == uzel::kMistaStopu.end() ? dopravna::zadna : misto->stanice;
    };
    for (const uzel::KolejeUmisteni& k : uzel::kKolejeUmisteni)
        for (const int n : k.koleje)
            EXPECT_TRUE(n == 0 || stanice(n) == k.stanice) << n;
    for (const uzel::StopNaTrati& s : uzel::kStopyNaTrati) {
        EXPECT_EQ(stanice(s.vpravo), s.stanice);
        EXPECT_EQ(stanice(s.vlevo), s.stanice);
    }
    for (const uzel::KolejHlavniStanice& k : uzel::kHlavniStanice)
        for (const int n : k.prvky)
            EXPECT_TRUE(uzel::je_kolej_hlavniho(n)) << n;
}

TEST(Uzel, DvojityKonecJeZnamSvymZacatkemAKoncem) {
    std::set<std::pair<int, int>> pary;
    for (const uzel::DvojityKonec& d : uzel::kDvojiteKonce)
        EXPECT_TRUE(pary.emplace(d.zacatek, d.konec).second) << d.zacatek << " " << d.konec;
}

TEST(Uzel, CislaNavestidelUrcujiDruhAKolej) {
    EXPECT_EQ(kolej_navestidla(12), 12);
    EXPECT_EQ(kolej_navestidla(212), 12);
    EXPECT_EQ(kolej_navestidla(511), 135);
    EXPECT_EQ(kolej_navestidla(603), 602);
    EXPECT_EQ(kolej_navestidla(703), 503);
    EXPECT_EQ(kolej_navestidla(998), 998);
    EXPECT_TRUE(je_na_ser(500) && !je_seriovy(500));
    EXPECT_TRUE(je_na_ser(599) && !je_na_ser(600) && !je_na_ser(699) && je_na_ser(700));
    EXPECT_TRUE(!je_na_ser(998) && je_seriovy(999));
}

TEST(Uzel, OhlasenyVlakStojiNaKolejiSousedniStanice) {
    for (const uzel::StaniceOhlaseni& s : uzel::kOhlasovane)
        for (const int n : s.koleje)
            EXPECT_TRUE(n == 0 || uzel::je_kolej_souseda(n)) << n;
    for (const int n : {40, 44, 55, 61, 70, 85, 91, 212, 574})
        EXPECT_FALSE(uzel::je_kolej_souseda(n)) << n;
}

} // namespace
