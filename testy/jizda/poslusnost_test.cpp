// testy/jizda/poslusnost_test.cpp - sense of routes, warnings, the exits.
#include "gvd/stav_provozu.h"
#include "jizda/poslusnost.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/vozy_vlaku.h"

#include <algorithm>

namespace {

class Poslusnost : public SVlaky {};

// --- sense and starting

TEST_F(Poslusnost, LocomotiveHauledTrainNeverTurnsAtTheStartByItself) {
    const int v = vlak_na(62, false, 11);
    cesta(radek(0)); // to the right
    for (int i = 0; i < 20; ++i)
        krok();
    EXPECT_EQ(metry(62), 0);
    EXPECT_FALSE(vlak(v).smer);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Poslusnost, TrainWithACabOrALocomotiveAtTheFarEndTurns) {
    for (const auto& vozy : std::vector<std::vector<Text>>{{"943", "843"}, {"560", "060"}, {"B", "754"}}) {
        const int v = vlak_na(62, false, 11, vozy);
        const int c = cesta(radek(0));
        EXPECT_TRUE(srovnej_smer(c, 0, v));
        EXPECT_TRUE(vlak(v).smer);
        EXPECT_EQ(vlak(v).vozy.front().rada, vozy.back());
    }
    const int v = vlak_na(62, false, 11);
    vlak(v).druh = 16;
    EXPECT_TRUE(srovnej_smer(0, 0, v));
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (std::vector<Text>{"B", "754"}));
    EXPECT_TRUE(vlak(v).smer);
    const int w = vlak_na(62, false, 12);
    EXPECT_TRUE(srovnej_smer(0, 2, w)); // further on the senses are not compared
    EXPECT_FALSE(vlak(w).smer);
    EXPECT_FALSE(srovnej_smer(0, 1, w));
}

TEST_F(Poslusnost, BoxedInTrainStartsOnlyTowardsTheFreeEnd) {
    const int a = vlak_na(62, false, 11);
    EXPECT_TRUE(muze_vyjet(a, true));
    const int b = vlak_na(62, false, 22);
    const int c = vlak_na(62, false, 33);
    EXPECT_FALSE(muze_vyjet(a, true));
    EXPECT_TRUE(muze_vyjet(a, false));
    EXPECT_FALSE(muze_vyjet(b, false));
    EXPECT_FALSE(muze_vyjet(b, true));
    EXPECT_TRUE(muze_vyjet(c, true));
    EXPECT_FALSE(muze_vyjet(c, false));
}

TEST_F(Poslusnost, GlyphOfTheSignalTellsTheSenseOfTheRoute) {
    Cesta c;
    EXPECT_FALSE(smer_cesty(c));
    c.zacatek = 262;
    for (const auto& [glyf, smer] : std::vector<std::pair<int, bool>>{{8, true},
                                                                      {229, true},
                                                                      {227, true},
                                                                      {228, true},
                                                                      {176, true},
                                                                      {15, false},
                                                                      {230, false},
                                                                      {226, false},
                                                                      {183, false}}) {
        relief.navestidlo[262].text = " " + znak(glyf) + " ";
        EXPECT_EQ(smer_cesty(c), smer) << glyf;
    }
    c.zacatek = 540;
    EXPECT_TRUE(smer_cesty(c));
    relief.navestidlo_ser[540].text = znak(241);
    EXPECT_FALSE(smer_cesty(c));
    relief.navestidlo.zaloz(18).text = znak(228);
    c.zacatek = 18;
    EXPECT_FALSE(smer_cesty(c));
    c.zacatek = 576;
    EXPECT_TRUE(smer_cesty(c));
}

// --- warnings and exits

TEST_F(Poslusnost, BlockSignalAtDangerIsToldAfterTheFirstMinutes) {
    const int v = vlak_na(63, true, 11);
    cesta(radek(4));
    simulace.minuty_simulace = 5;
    vlak(v).rychlost = 60;
    nastav_metry(63, 600);
    krok();
    ASSERT_EQ(vlak(v).prvky.back().prvek, 640);
    EXPECT_FALSE(prikaz_radek.obsazen); // the signal is at stop, but the simulation has just begun
    vlak_opustil(v, 0);
    krok();
    const int w = vlak_na(63, true, 22);
    cesta(radek(4));
    simulace.minuty_simulace = 6;
    vlak(w).rychlost = 60;
    nastav_metry(63, 600);
    krok();
    ASSERT_EQ(vlak(w).prvky.back().prvek, 640);
    EXPECT_EQ(relief.lblVolba[0].text(), " Vlak 22 projel na BOR S641 okolo navesti VYSTRAHA!");
    EXPECT_NE(std::find(svet.pipnuti.begin(), svet.pipnuti.end(), VirtualniPlatforma::Pipnuti{100, 200}),
              svet.pipnuti.end());
}

TEST_F(Poslusnost, EndOfTheLongSectionIsToldOnceInItsWindow) {
    pridej_kolej(118);
    relief.kolej[118].stav = TextPohled("0");
    zapis_soubor(simulace.cesta_aplikace + "data\\tesk.top", soubor_topologie({{118, 6000}}));
    const int v = vlak_na(118, true, 11);
    const int c = cesta({262, 118, {62, 118}, {1, 1}, {0, 0}, 0});
    simulace.minuty_simulace = 6;
    const auto varuje = [&](double zbyva) {
        skryj_prikaz();
        nastav_metry(118, 6000 - zbyva);
        uvnitr_prvku(c, 1, v);
        return prikaz_radek.obsazen;
    };
    EXPECT_FALSE(varuje(700));
    EXPECT_FALSE(varuje(600));
    EXPECT_TRUE(varuje(699.5));
    EXPECT_EQ(relief.lblVolba[0].text(), " Vlak 11 projel na TK THN-MOK okolo navesti VYSTRAHA!");
    const std::size_t pipnuti = svet.pipnuti.size();
    uvnitr_prvku(c, 1, v);
    EXPECT_EQ(svet.pipnuti.size(), pipnuti); // while it stands on the line
    skryj_prikaz();
    uvnitr_prvku(c, 1, v);
    EXPECT_TRUE(prikaz_radek.obsazen);
}

TEST_F(Poslusnost, WarningThatWaitsBehindAnotherMessageIsNotToldAgain) {
    pridej_kolej(118);
    zapis_soubor(simulace.cesta_aplikace + "data\\tesk.top", soubor_topologie({{118, 6000}}));
    const int v = vlak_na(118, true, 11);
    const int c = cesta({262, 118, {62, 118}, {1, 1}, {0, 0}, 0});
    simulace.minuty_simulace = 6;
    nastav_metry(118, 6000 - 650);
    zprava(" OK ", "jina", barvy::zelena);
    const auto ceka = [] { return prikaz_radek.fronta_zprav.size() - 1; };
    for (int krok = 0; krok < 5; ++krok)
        uvnitr_prvku(c, 1, v);
    EXPECT_EQ(ceka(), 1u);
    EXPECT_EQ(svet.pipnuti.size(), 1u);
    potvrd_prikaz();
    dalsi_zprava(); // it stands on the line
    uvnitr_prvku(c, 1, v);
    EXPECT_EQ(ceka(), 0u);
    potvrd_prikaz();
    uvnitr_prvku(c, 1, v);
    EXPECT_TRUE(prikaz_radek.obsazen) << "the operator has answered it, and the train is still there";
}

TEST_F(Poslusnost, WrongSenseAtAnExitStaysAtTheEndOfTheRoute) {
    pridej_kolej(213);
    const int v = vlak_na(213, true, 11);
    zpusob_odjezdu(213, v);
    EXPECT_EQ(vlak(v).cislo, 11);
    vlak(v).smer = false;
    zpusob_odjezdu(213, v);
    EXPECT_EQ(vlak(v).cislo, -3);
}

TEST_F(Poslusnost, StandbyLocomotiveThatLeavesIsCountedOut) {
    pridej_kolej(557);
    const int v = vlak_na(557, false, 74801, {"731"});
    nastav_urceni(vlak(v).vozy, {"ZAL"});
    stav_provozu.pocet_zaloh = 2;
    stav_provozu.zaloha_731_jede = true;
    zpusob_odjezdu(557, v);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    EXPECT_FALSE(stav_provozu.zaloha_731_jede);
    EXPECT_TRUE(stav_provozu.zaloha_731_strana);
}

} // namespace
