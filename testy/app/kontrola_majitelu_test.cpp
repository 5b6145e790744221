// testy/app/kontrola_majitelu_test.cpp - each colour without its owner is found, and sound running is left in
// peace.
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "app/nova_simulace.h"
#include "app/stav_simulace.h"
#include "cesty/prehoz_rukou.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/prvky_cesty.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/volnost.h"
#include "relief/topologie.h"

#include <gtest/gtest.h>

namespace {

class KontrolaMajitelu : public SVlaky {
protected:
    KontrolaMajitelu() {
        prijmi_majitele();
        kontrola_majitelu();
    }
    static std::string nalez() {
        const std::optional<Text> text = kontrola_majitelu();
        return text ? na_utf8(*text) : std::string();
    }
    static Cesta& cesta_c(int c) { return cesty[static_cast<std::size_t>(c)]; }
    // 62 - 440 - switch 7 - 63, all of it locked
    static RadekCesty pres_vyhybku() { return {262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0}; }
    static int uzavrena_cesta(bool vlakova = true) {
        const int c = cesta(pres_vyhybku(), vlakova);
        barvi_prvek(440, vlakova ? barvy::zelena : barvy::bila);
        return c;
    }
};

} // namespace

TEST_F(KontrolaMajitelu, WholeJourneyHasItsOwners) {
    vlak_na(62, true, 1234);
    uzavrena_cesta();
    ASSERT_EQ(nalez(), "");
    for (int i = 0; i < 120; ++i) {
        krok();
        ASSERT_EQ(nalez(), "") << "step " << i;
    }
    EXPECT_EQ(stav_vyhybky_cislo(7), 2) << "its tail has released the switch";
}

TEST_F(KontrolaMajitelu, OccupiedTrackHasATrain) {
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "kolej 440: je obsazená a žádný vlak na ní není");
    EXPECT_EQ(nalez(), "") << "it has been told";
}

TEST_F(KontrolaMajitelu, LockedTrackHasARoute) {
    for (const Barva barva : {barvy::zelena, barvy::bila, barvy::azurova}) {
        barvi_prvek(440, barva);
        EXPECT_EQ(nalez(), "kolej 440: je pod závěrem a žádná cesta ji nedrží");
        barvi_prvek(440, barvy::seda);
        EXPECT_EQ(nalez(), "");
    }
    odjete.set(440);
    relief.kolej[440].barva = barvy::azurova;
    EXPECT_EQ(nalez(), "") << "a tail has just left it";
}

TEST_F(KontrolaMajitelu, LockedSwitchHasARouteAndLiesAsItDemands) {
    vyhybka_stav(7, 52, false, false);
    EXPECT_EQ(nalez(), "výhybka 7: je pod závěrem a žádná cesta ji nedrží");
    vyhybka_stav(7, 152, false, false);
    EXPECT_EQ(nalez(), "výhybka 7: je obsazená a žádný vlak na ní není");
    vyhybka_stav(7, 2, false, false);
    EXPECT_EQ(nalez(), "");
    uzavrena_cesta();
    EXPECT_EQ(nalez(), "");
    vyhybka_stav(7, 53, false, false);
    EXPECT_EQ(nalez(), "výhybka 7: neleží, jak žádá její cesta");
    vyhybka_stav(7, 52, false, false);
    stav_vyhybek.vyhybka_pohyb.assign(8, true);
    EXPECT_EQ(nalez(), "výhybka 7: přestavuje se pod závěrem");
}

TEST_F(KontrolaMajitelu, TrainThatIsTooLongForTheTrackByWhichItLeavesKeepsTheSwitchesBehindIt) {
    const int v = vlak_na(62, true, 1234);
    vlak(v).delka = static_cast<std::int16_t>(delka_koleje(63) + 30);
    uzavrena_cesta();
    for (int i = 0; i < 120 && vlak(v).cislo > 0; ++i) {
        ASSERT_EQ(nalez(), "") << "step " << i;
        krok();
    }
    ASSERT_EQ(vlak(v).cislo, kZadny);
    EXPECT_EQ(stav_vyhybky_cislo(7), 152);
    EXPECT_EQ(nalez(), "");
    EXPECT_EQ(nalez(), "");
    vyhybka_nouz(7);
    EXPECT_EQ(nalez(), "");
    vyhybka_stav(7, 152, false, false);
    EXPECT_EQ(nalez(), "výhybka 7: je obsazená a žádný vlak na ní není");
}

TEST_F(KontrolaMajitelu, ShortenedTrainStaysInTheListsBehindItUntilItMoves) {
    const int v = vlak_na(62, true, 1234);
    pridej_na_kolej(63, v, true, -1);
    barvi_prvek(63, barvy::cervena);
    vlak(v).prvky = prvky_cesty({63, 7, 62}, {1, 2, 1}, {0, 2, 0});
    vyhybka_stav(7, 152, false, false);
    ASSERT_EQ(nalez(), "");
    vlak(v).prvek_konec = 2;
    barvi_prvek(63, barvy::seda);
    vyhybka_stav(7, 2, false, false);
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaMajitelu, CallingOnRouteReleasedByHandHoldsNoSwitch) {
    const int c = cesta(pres_vyhybku());
    cesta_c(c).PN = true;
    cesta_c(c).Umazat = 3;
    vyhybka_stav(7, 102, false, false);
    EXPECT_EQ(nalez(), "") << "it stays locked behind the train";
    cesta_c(c).PN_zaver = true;
    EXPECT_EQ(nalez(), "výhybka 7: je pod závěrem a žádná cesta ji nedrží");
}

// The record goes on naming it, but its signal has gone to stop.
TEST_F(KontrolaMajitelu, SwitchThatNouzTookOutOfItsRouteMayServeAnotherOne) {
    const auto navesti = [] {
        const std::optional<Text> text = kontrola_stavu();
        return text ? na_utf8(*text) : std::string();
    };
    const int c = uzavrena_cesta();
    ASSERT_EQ(nalez(), "");
    vyhybka_nouz(7);
    EXPECT_EQ(nalez(), "");
    EXPECT_EQ(navesti(), "");
    const int jina = cesta({263, 62, {63, 7, 62}, {1, 2, 1}, {2, 3, 2}, 0}, false);
    cesta_c(jina).Kdy_prehoz = 1;
    EXPECT_EQ(nalez(), "");
    EXPECT_EQ(navesti(), "");
    cesta_c(c).Postavena = true;
    EXPECT_EQ(navesti(), "cesty 0: návěst dovoluje jízdu přes výhybku 7, která neleží nebo není pod závěrem");
}

TEST_F(KontrolaMajitelu, SignalShowsProceedOnlyForARoute) {
    relief.navestidlo[262].barva = barvy::zelena;
    EXPECT_EQ(nalez(), "návěstidlo 262: dovoluje jízdu a žádná cesta od něj nevede");
    relief.navestidlo[262].barva = barvy::seda;
    const int c = uzavrena_cesta();
    EXPECT_EQ(nalez(), "");
    cesta_c(c).cas_ruseni = 1;
    EXPECT_EQ(nalez(), "návěstidlo 262: dovoluje jízdu a žádná cesta od něj nevede");
}

TEST_F(KontrolaMajitelu, TrackBelongsToOneTrainRoute) {
    uzavrena_cesta();
    ASSERT_EQ(nalez(), "");
    cesta({263, 62, {63, 7, 440, 62}, {1, 2, 1, 1}, {2, 2, 0, 2}, 0});
    EXPECT_EQ(nalez(), "kolej 440: drží ji dvě vlakové cesty");
    cesty.back().VC = false;
    EXPECT_EQ(nalez(), "") << "a shunt route gives way in other ways";
}

TEST_F(KontrolaMajitelu, ListOfATrackKnowsWhoStandsThere) {
    const int v = vlak_na(62, true, 1234);
    ASSERT_EQ(nalez(), "");
    pridej_na_kolej(63, v, true, -1);
    EXPECT_EQ(nalez(), "kolej 63: seznam vlaků neodpovídá tomu, kdo na ní je");
}

TEST_F(KontrolaMajitelu, WhatANewSimulationBeginsWithIsTakenAsItIs) {
    EXPECT_EQ(nalez(), "");
    const StavSimulace stav = stav_simulace();
    nova_simulace();
    vrat_stav(stav);
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "");
    barvi_prvek(440, barvy::seda);
    EXPECT_EQ(nalez(), "");
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "kolej 440: je obsazená a žádný vlak na ní není");
}

TEST_F(KontrolaMajitelu, WhatAHandOrASaveHasBroughtIsTakenAsItIs) {
    prijmi_majitele();
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "");
    EXPECT_EQ(nalez(), "");
    barvi_prvek(440, barvy::seda);
    EXPECT_EQ(nalez(), "");
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "kolej 440: je obsazená a žádný vlak na ní není") << "now it came by itself";
}
