// testy/lekce/prochazka_test.cpp - the lessons of the installation, walked by doing what each step shows and
// nothing else.
#include "app/historie.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/navest.h"
#include "cesty/opakovani.h"
#include "desk/stitky.h"
#include "lekce/postup.h"
#include "pomocne/zak.h"

#include <algorithm>

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
        EXPECT_GT(pruvodce->bodu(), 6U) << "moments to come back to";
    }
    // From the start to the step of that name; its index.
    std::size_t ke_kroku(const Text& soubor, const Text& jmeno) {
        novy_svet();
        zacni_lekci(z_instalace(soubor));
        for (int pokusu = 0; pokusu < 5000; ++pokusu) {
            pruvodce->pohled();
            if (pruvodce->popis().jmeno == jmeno)
                break;
            krok_zaka();
        }
        EXPECT_EQ(na_utf8(pruvodce->popis().jmeno), na_utf8(jmeno)) << kde();
        return pruvodce->krok();
    }
    // Does what is shown until that step is done.
    void za_krok(std::size_t krok) {
        for (int pokusu = 0; pokusu < 200 && pruvodce->krok() <= krok; ++pokusu)
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
        EXPECT_EQ(pruvodce->krok(), krok + 1) << kde() << " " << na_utf8(pruvodce->text_potizi());
        EXPECT_EQ(pruvodce->potiz(), lekce::Potiz::zadna);
    }
};

TEST_F(Lekce, FirstTrainIsBroughtHomeByWhatTheStepsShow) {
    projdi("1-prvni-vlak.lekce");
}

TEST_F(Lekce, ExpressGetsItsNewEngineByWhatTheStepsShow) {
    projdi("2-posun-a-lokomotiva.lekce");
}

TEST_F(Lekce, NeighboursTrainsComeInByWhatTheStepsShow) {
    projdi("3-prejezdy-a-souhlasy.lekce");
}

TEST_F(Lekce, WhatWasClosedIsOpenAgainBehindTheTrainThatWasCalledOn) {
    projdi("4-poruchy.lekce");
    EXPECT_TRUE(
        std::all_of(stitky.begin(), stitky.end(), [](const StitekPrvku& s) { return s.vyluka.empty(); }));
    for (int s = 0; s <= relief.navestidlo.nejvyssi(); ++s)
        EXPECT_FALSE(relief.navestidlo.je(s) && je_zablokovano(s)) << s;
}

TEST_F(Lekce, ForgivesTheRouteThatWasConfirmedOntoTheClosedTrack) {
    const std::size_t krok = ke_kroku("4-poruchy.lekce", "odmitnuti");
    skript("klavesa Enter");
    skript("cekej 3s");
    pruvodce->pohled();
    EXPECT_EQ(pruvodce->potiz(), lekce::Potiz::odbocka);
    for (const char* radek : {"klik lblZasobnik_EZ 0", "klik lstZasobnik 0", "klavesa Delete"}) {
        ASSERT_NE(pruvodce->dalsi_ukon(), nullptr) << radek;
        EXPECT_EQ(na_utf8(pruvodce->dalsi_ukon()->radek), radek);
        skript(radek);
        pruvodce->pohled();
    }
    skript("klavesa Esc");
    za_krok(krok);
    EXPECT_FALSE(ceka_nebo_stoji_z(317));
}

TEST_F(Lekce, ForgivesTheTrainRouteWhereTheCallingOnAspectWasAskedFor) {
    const std::size_t krok = ke_kroku("4-poruchy.lekce", "pn");
    skript("klik navestidlo 317");
    skript("klik cislo_koleje 29");
    skript("cekej 10s");
    pruvodce->pohled();
    EXPECT_EQ(pruvodce->potiz(), lekce::Potiz::odbocka);
    for (const char* radek : {"klik lblZasobnik_EZ", "klik lstZasobnik 0", "klavesa Delete", "klavesa Esc"})
        skript(radek); // as the text says
    za_krok(krok);
    EXPECT_TRUE(pn_sviti(317));
}

// Whoever stops in the middle comes back to the save of the step and walks on from there.
class RozdelanaLekce : public Lekce, public testing::WithParamInterface<const char*> {
protected:
    struct Rozdelana {
        std::size_t krok;
        Bajty zaznam;
    };
    // The saves that the desk keeps while the lesson is walked.
    std::vector<Rozdelana> projdi_a_ukladej(const Text& soubor) {
        std::vector<Rozdelana> vse;
        novy_svet();
        zacni_lekci(z_instalace(soubor));
        while (!pruvodce->hotova() && !HasFatalFailure()) {
            const std::size_t bodu = pruvodce->bodu();
            krok_zaka();
            if (pruvodce->bodu() == bodu)
                continue;
            EXPECT_TRUE(lekce::zapis_postup(soubor, pruvodce->krok()));
            EXPECT_EQ(lekce::postup(soubor).krok, pruvodce->krok());
            vse.push_back({pruvodce->krok(), nacti_soubor(lekce::zaznam_postupu(soubor))});
        }
        lekce::zapis_hotovou(soubor);
        EXPECT_TRUE(lekce::postup(soubor).hotova);
        EXPECT_FALSE(lekce::postup(soubor).krok);
        return vse;
    }
};

TEST_P(RozdelanaLekce, IsTakenUpAgainAtTheStepsThatAreKept) {
    const Text soubor = GetParam();
    const std::vector<Rozdelana> rozdelane = projdi_a_ukladej(soubor);
    ASSERT_GT(rozdelane.size(), 6U);
    // each of the short first lesson; of the others a few from the beginning to the end
    const std::size_t krok = soubor.starts_with("1") ? 1 : rozdelane.size() / 3;
    for (std::size_t i = 0; i < rozdelane.size(); i += krok) {
        const Rozdelana& r = rozdelane[i];
        novy_svet();
        zaloz_slozku(simulace.cesta_aplikace + "save\\lekce");
        zapis_soubor(lekce::zaznam_postupu(soubor), r.zaznam);
        skript("nacti save/lekce/" + na_utf8(soubor.substr(0, soubor.find('.'))) + ".sim");
        pruvodce = std::make_unique<lekce::Pruvodce>(z_instalace(soubor), r.krok);
        for (int pokusu = 0; !pruvodce->hotova(); ++pokusu) {
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
            ASSERT_LT(pokusu, 5000) << r.krok << " " << kde() << " " << na_utf8(pruvodce->text_potizi());
        }
        over_stav();
    }
}

INSTANTIATE_TEST_SUITE_P(Lekce, RozdelanaLekce,
                         testing::Values("1-prvni-vlak.lekce", "2-posun-a-lokomotiva.lekce",
                                         "3-prejezdy-a-souhlasy.lekce", "4-poruchy.lekce"));

// A step is tried again from the moment in which it began.
TEST_F(Lekce, TurnsTimeBackToTheBeginningOfAStep) {
    novy_svet();
    zacni_lekci(z_instalace("1-prvni-vlak.lekce"));
    while (pruvodce->krok() < 8)
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    const auto bod = pruvodce->bod_kroku(5);
    ASSERT_TRUE(bod);
    EXPECT_EQ(bod->krok, 5U);
    ASSERT_EQ(vrat_na(bod->sekunda), Navrat::hotovo);
    pruvodce->na_krok(bod->krok);
    EXPECT_TRUE(std::all_of(cesty.begin(), cesty.end(), [](const Cesta& c) { return c.zacatek < 0; }));
    for (int pokusu = 0; !pruvodce->hotova(); ++pokusu) {
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
        ASSERT_EQ(pruvodce->potiz(), lekce::Potiz::zadna) << kde();
        ASSERT_LT(pokusu, 3000) << kde();
    }
}

} // namespace
