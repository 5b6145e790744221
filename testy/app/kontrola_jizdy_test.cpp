// testy/app/kontrola_jizdy_test.cpp - the checks that remember: each kind of fault is found, and sound
// running is left in peace.
#include "app/kontrola.h"
#include "app/kontrola_jizdy.h"
#include "cesty/smer_trati.h"
#include "jizda/krok_jizdy.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/prvky_cesty.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/topologie.h"

#include <gtest/gtest.h>

namespace {

class KontrolaJizdy : public SVlaky {
protected:
    static std::string nalez() {
        const std::optional<Text> text = kontrola_stavu();
        return text ? na_utf8(*text) : std::string();
    }
    // The head of the train goes on to entry i of route c, as the movement step writes it.
    static void vjed(int v, int c, std::uint8_t i) {
        Cesta& cesta = cesty[static_cast<std::size_t>(c)];
        cesta.Vlak = static_cast<std::int16_t>(v);
        cesta.Umazat = i;
        vlak(v).prvky.push_back(cesta.prvky[i]);
        if (cesta.prvky[i].druh == druh_prvku::kolej)
            relief.kolej[cesta.prvky[i].prvek].barva = barvy::cervena;
    }
    // A train of 100 m on 62, `metry` of 440 and switch 7.
    int vlak_pres_vyhybku(int metry) {
        const int v = vlak_na(62, true, 1234);
        vlak(v).delka = 100;
        vlak(v).prvky = prvky_cesty({62, 440, 7}, {1, 1, 2}, {0, 0, 2});
        barvi_prvek(440, barvy::cervena);
        nastav_metry(62, delka_koleje(62));
        nastav_metry(440, metry);
        return v;
    }
    // 62 - 440 - switch 7 - 63
    static RadekCesty pres_vyhybku() { return {262, 63, {62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, 2, 0}, 0}; }
};

} // namespace

TEST_F(KontrolaJizdy, WholeJourneyIsInOrder) {
    const int v = vlak_na(62, true, 1234);
    cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    for (int i = 0; i < 120; ++i) {
        krok();
        ASSERT_EQ(nalez(), "") << "step " << i;
    }
    EXPECT_EQ(vlak(v).cislo, kZadny) << "it has left by 63";
}

TEST_F(KontrolaJizdy, TrainRouteNeverLeadsOntoATrackWhereAnotherTrainStands) {
    const int v = vlak_na(62, true, 1234);
    const int u = vlak_na(440, true, 5678);
    const int c = cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    vjed(v, c, 1);
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) +
                           ": vlakovou cestou vjel na kolej 440, kterou drží vlak " + std::to_string(u));
}

TEST_F(KontrolaJizdy, OnSightTrainsMeetOnATrack) {
    for (const bool privolavaci : {false, true}) {
        cesty = std::vector<Cesta>(1);
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        zapomen_kontrolu_jizdy();
        cesty = std::vector<Cesta>(1);
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        const int v = vlak_na(62, true, 1234);
        vlak_na(440, true, 5678);
        const int c = cesta(pres_vyhybku(), privolavaci);
        cesta_c(c).PN = privolavaci;
        vlak(v).posun = !privolavaci;
        ASSERT_EQ(nalez(), "");
        vjed(v, c, 1);
        EXPECT_EQ(nalez(), "");
    }
}

TEST_F(KontrolaJizdy, TrainIsMetByTheOneThatCameOnSightIntoItsStandingRoute) {
    const int v = vlak_na(62, true, 1234);
    const int u = vlak_na(63, false, 5678);
    vlak(u).posun = true;
    const int vlakova = cesta(pres_vyhybku());
    const int posunova = cesta({263, 440, {63, 440}, {1, 1}, {2, 0}, 0}, false);
    ASSERT_EQ(nalez(), "");
    vjed(u, posunova, 1);
    ASSERT_EQ(nalez(), "");
    vjed(v, vlakova, 1);
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, TrainMovesOverItsRouteOnly) {
    const int v = vlak_na(62, true, 1234);
    const int c = cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    vjed(v, c, 1);
    cesta_c(c).Vlak = kZadny;
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) + ": na kolej 440 nevede jeho cesta");
}

// Its route may have ended since: a neighbour's one goes as soon as the train stands.
TEST_F(KontrolaJizdy, EntryIsJudgedWithinTheStepInWhichItHappened) {
    const int v = vlak_na(62, true, 1234);
    const int c = cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    vjed(v, c, 1);
    cesta_c(c).Vlak = kZadny;
    kroku_jizdy += 2;
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, HeldEntriesAreNeighbours) {
    const int v = vlak_na(62, true, 1234);
    ASSERT_EQ(nalez(), "");
    vlak(v).prvky = prvky_cesty({62, 440, 7}, {1, 1, 2}, {0, 0, 2});
    barvi_prvek(440, barvy::cervena);
    EXPECT_EQ(nalez(), "");
    vlak(v).prvky = prvky_cesty({62, 7, 63}, {1, 2, 1});
    barvi_prvek(63, barvy::cervena);
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) + ": drží prvky 62 a 7, které spolu nesousedí");
    vlak(v).prvek_konec = 1;
    vlak(v).delka = 20;
    EXPECT_EQ(nalez(), "") << "what lies behind the tail is history";
}

TEST_F(KontrolaJizdy, TailIsReleasedNeitherTooSoonNorTooLate) {
    const int v = vlak_pres_vyhybku(30);
    ASSERT_EQ(nalez(), "");
    vlak(v).prvek_konec = 1; // 30 + 20 m are less than the train
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) + ": drží 50 m, ale je dlouhý 100 m");

    vlak(v).prvek_konec = 0;
    nastav_metry(440, 90); // 110 m without track 62
    ASSERT_EQ(nalez(), "") << "the tail goes with the next step";
    ASSERT_EQ(nalez(), "") << "and no step has been";
    ++kroku_jizdy;
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) + ": drží prvek 62, který už celý opustil");
    vlak(v).muze_jet = false; // a train that waits keeps its tail
    EXPECT_EQ(nalez(), "");
    ++kroku_jizdy;
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, EndOfAPauseIsNoStepOfTheMovement) {
    const int v = vlak_pres_vyhybku(90); // 110 m without track 62: its tail goes with the next step
    ASSERT_EQ(nalez(), "");
    ASSERT_EQ(nalez(), "");
    svet.posun_ms(300);
    zastav_hodiny();
    spust_hodiny();
    EXPECT_EQ(nalez(), "");
    svet.posun_ms(700);
    ++kroku_jizdy;
    EXPECT_EQ(nalez(), "vlaky " + std::to_string(v) + ": drží prvek 62, který už celý opustil");
}

TEST_F(KontrolaJizdy, ShortenedTrainHoldsLessThanItsLength) {
    const int v = vlak_na(62, true, 1234);
    vlak(v).delka = 100;
    vlak(v).prvky = prvky_cesty({62, 440}, {1, 1}, {0, 0});
    barvi_prvek(440, barvy::cervena);
    nastav_metry(62, delka_koleje(62));
    const int c = cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    zkrat_vlak(v);
    vjed(v, c, 2); // and goes on before anybody looks
    EXPECT_EQ(nalez(), "");
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, TrainThatHasSharedATrackFindsItselfSomewhereOnIt) {
    const int v = vlak_na(62, true, 1234);
    vlak(v).delka = 100;
    const int u = vlak_na(62, true, 5678);
    vlak(v).prvky = prvky_cesty({62, 440}, {1, 1}, {0, 0});
    barvi_prvek(440, barvy::cervena);
    nastav_metry(440, 30);
    ASSERT_EQ(nalez(), "");
    vlak(u).cislo = kZadny; // the other one has left
    nastav_metry(62, 150);
    ASSERT_EQ(nalez(), "");
    vlak(v).prvek_konec = 1; // 30 m are less than the train, but who knows where it stood
    EXPECT_EQ(nalez(), "");
    ASSERT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, SignalBeforeAWaitingTrainClearsOnlyBehindAClosedRoad) {
    const auto vycisti = [](bool prejezd_zaver) {
        cesty = std::vector<Cesta>(1);
        const int c = cesta(pres_vyhybku());
        cesta_c(c).prejezd = 0;
        cesta_c(c).prejezd_zaver = prejezd_zaver;
        cesta_c(c).Postavena = cesta_c(c).Provedena = false;
        cesta_c(c).Kdy_prehoz = ted_s();
        stanicni_prejezdy[0] = {};
        return c;
    };
    int c = vycisti(true);
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "") << "what happened before the first look, as before a load, is not known";
    cesty = std::vector<Cesta>(1);
    ASSERT_EQ(nalez(), "");

    c = vycisti(true);
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(),
              "cesta od návěstidla 262 k 63: návěst dovoluje jízdu přes přejezd, který se nezavíral");

    c = vycisti(true);
    stanicni_prejezdy[0].cas = ted_s() + 40;
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(),
              "cesta od návěstidla 262 k 63: návěst dovoluje jízdu přes přejezd, který se teprve zavírá");

    c = vycisti(true);
    stanicni_prejezdy[0].cas = ted_s() + 40;
    ASSERT_EQ(nalez(), "");
    stanicni_prejezdy[0] = {}; // NOT
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "") << "the operator has opened the road himself";

    c = vycisti(false);
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "") << "without a train the crossing is left to its approach";
}

TEST_F(KontrolaJizdy, SignalToALineClearsOnlyInItsDirection) {
    pridej_kolej(604);
    pridej_kolej(654);
    relief.lblSouhlas2.zaloz(604).barva = barvy::azurova;
    nastav_text(relief.lblSouhlas2[604], kSipkaVpravo);
    const auto na_trat = [] {
        cesty = std::vector<Cesta>(1);
        const int c = cesta({263, 604, {63, 604, 654}, {1, 1, 1}, {2, 0, 2}, 0});
        cesta_c(c).Postavena = cesta_c(c).Provedena = false;
        return c;
    };
    int c = na_trat();
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "");

    nastav_text(relief.lblSouhlas2[604], kSipkaVlevo);
    c = na_trat();
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "cesta od návěstidla 263 k 604: návěst dovoluje jízdu na trať, jejíž směr nedrží");

    nastav_text(relief.lblSouhlas2[604], kSipkaVpravo);
    c = na_trat();
    const int proti = cesta({10, 604, {654, 604}, {1, 1}, {0, 2}, 0});
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "cesta od návěstidla 263 k 604: návěst dovoluje jízdu na trať proti jiné cestě");

    c = na_trat();
    (void)proti;
    const int v = vlak_na(654, false, 1234);
    vlak(v).prvky = prvky_cesty({654, 604}, {1, 1}, {0, 0});
    barvi_prvek(604, barvy::cervena);
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "cesta od návěstidla 263 k 604: návěst dovoluje jízdu na trať proti vlaku");
}

TEST_F(KontrolaJizdy, SignalToANeighbourNeverClearsAgainstATrainWithConsent) {
    pridej_kolej(212);
    pridej_kolej(84);
    const int c = cesta({263, 84, {63, 84}, {1, 1}, {2, 0}, 0});
    cesta_c(c).Postavena = cesta_c(c).Provedena = false;
    const int vjezd = cesta({284, 84, {212, 84}, {1, 1}, {0, 0}, 0});
    cesta_c(vjezd).ZT = kZTprogramu;
    ASSERT_EQ(nalez(), "");
    cesta_c(c).Postavena = cesta_c(c).Provedena = true;
    EXPECT_EQ(nalez(), "cesta od návěstidla 263 k 84: návěst dovoluje jízdu proti vlaku, který má souhlas");
}

TEST_F(KontrolaJizdy, DirectionNeverTurnsUnderATrain) {
    pridej_kolej(604);
    relief.lblSouhlas2.zaloz(604).barva = barvy::azurova;
    nastav_text(relief.lblSouhlas2[604], kSipkaVpravo);
    ASSERT_EQ(nalez(), "");
    nastav_text(relief.lblSouhlas2[604], kSipkaVlevo);
    EXPECT_EQ(nalez(), "") << "nobody is on the line";
    barvi_prvek(604, barvy::cervena);
    ASSERT_EQ(nalez(), "");
    nastav_text(relief.lblSouhlas2[604], kSipkaVpravo);
    EXPECT_EQ(nalez(), "lblSouhlas2 604: směr se obrátil pod vlakem");
}

// A train on sight follows another one, or comes to meet it: that is the operator's to answer for.
TEST_F(KontrolaJizdy, ArrowOfTheTrackToDubniceFollowsACallingOnRouteUnderATrain) {
    pridej_kolej(120);
    relief.lblSouhlas2.zaloz(120);
    barvi_prvek(120, barvy::cervena);
    nastav_text(relief.lblSouhlas2[120], kSipkaVpravo);
    const int c = cesta({263, 120, {63, 120}, {1, 1}, {2, 0}, 0});
    ASSERT_EQ(nalez(), "");
    nastav_text(relief.lblSouhlas2[120], kSipkaVlevo);
    EXPECT_EQ(nalez(), "lblSouhlas2 120: směr se obrátil pod vlakem") << "by a train route it never does";
    nastav_text(relief.lblSouhlas2[120], kSipkaVpravo);
    cesta_c(c).PN = true;
    ASSERT_EQ(nalez(), "");
    nastav_text(relief.lblSouhlas2[120], kSipkaVlevo);
    EXPECT_EQ(nalez(), "");
}

TEST_F(KontrolaJizdy, WhatWasSeenBelongsToOneSimulation) {
    const int v = vlak_na(62, true, 1234);
    const int c = cesta(pres_vyhybku());
    ASSERT_EQ(nalez(), "");
    relief.lblcas[0].viditelny = false; // the start screen
    ASSERT_EQ(nalez(), "");
    relief.lblcas[0].viditelny = true;
    vjed(v, c, 1);
    cesta_c(c).Vlak = kZadny;
    EXPECT_EQ(nalez(), "");
}
