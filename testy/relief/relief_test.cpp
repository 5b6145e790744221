// testy/relief/relief_test.cpp - the store, its tests on element numbers, its painting aids.
#include "pomocne/male_kolejiste.h"
#include "relief/relief.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace {

class ReliefTest : public testing::Test {
protected:
    ReliefTest() { relief = Relief{}; }
    ~ReliefTest() override { relief = Relief{}; }
};

KodChyby kod_chyby(const std::function<void()>& co) {
    try {
        co();
    } catch (const BehovaChyba& e) {
        return e.kod;
    }
    return KodChyby{};
}

TEST(KolejNavestidla, FollowsTheNumbering) {
    const std::vector<std::pair<int, int>> tabulka = {
        {511, 135}, // the one exception
        {0, 0},     {84, 84},   {199, 199}, {200, 0},   {250, 50},  {399, 199}, {510, 310},
        {512, 312}, {599, 399}, {600, 600}, {601, 600}, {604, 604}, {605, 604}, {639, 638},
        {698, 698}, {699, 698}, {700, 500}, {720, 520}, {997, 797}, {998, 998}, {999, 799},
    };
    for (const auto& [navestidlo, kolej] : tabulka)
        EXPECT_EQ(kolej_navestidla(navestidlo), kolej) << navestidlo;
}

TEST(Navestidlo, IsKeptByItsNumber) {
    for (const int n : {0, 62, 262, 499, 600, 699, 998})
        EXPECT_FALSE(je_na_ser(n)) << n;
    for (const int n : {500, 501, 599, 700, 997, 999})
        EXPECT_TRUE(je_na_ser(n)) << n;
    EXPECT_EQ(&navestidla(998), &relief.navestidlo);
    EXPECT_EQ(&navestidla(511), &relief.navestidlo_ser);
}

TEST(Navestidlo, IsShuntOnlyByTheRouteTablesRule) {
    for (const int n : {501, 599, 700, 999})
        EXPECT_TRUE(je_seriovy(n)) << n;
    for (const int n : {-3, 0, 499, 500, 600, 699, 998}) // 500 is meant
        EXPECT_FALSE(je_seriovy(n)) << n;
}

TEST_F(ReliefTest, LineEndsAreTargetsWithoutAnImage) {
    for (const int n : {212, 213, 219})
        EXPECT_TRUE(je_cil(n)) << n;
    for (const int n : {84, 85, 117})
        EXPECT_FALSE(je_cil(n)) << n;
    relief.Image1.zaloz(84);
    EXPECT_TRUE(je_cil(84));
}

TEST_F(ReliefTest, TestsNeverFailWhateverTheNumber) {
    for (const int n : {-32768, -10, -3, -1, 1000, 32767}) {
        EXPECT_FALSE(je_kolej(n));
        EXPECT_FALSE(je_cislo_koleje(n));
        EXPECT_FALSE(je_cil(n));
        EXPECT_EQ(jmeno(n), "");
    }
}

TEST_F(ReliefTest, OneNumberInThreeKindsIsThreeElements) {
    relief.kolej.zaloz(212).barva = barvy::cervena;
    relief.cislo_koleje.zaloz(212).barva = barvy::bila;
    relief.navestidlo.zaloz(212).barva = barvy::zelena;
    EXPECT_EQ(relief.kolej[212].barva(), barvy::cervena);
    EXPECT_EQ(relief.cislo_koleje[212].barva(), barvy::bila);
    EXPECT_EQ(relief.navestidlo[212].barva(), barvy::zelena);
}

TEST_F(ReliefTest, ReadingAMissingElementIsError340) {
    relief.kolej.zaloz(5);
    const Relief& pevny = relief;
    for (const int n : {-3, -1, 4, 6, 999, 1000, 32767}) {
        EXPECT_EQ(kod_chyby([&] { relief.kolej[n]; }), KodChyby::prvek_neexistuje) << n;
        EXPECT_EQ(kod_chyby([&] { pevny.kolej[n]; }), KodChyby::prvek_neexistuje) << n;
    }
    EXPECT_EQ(kod_chyby([] { relief.kolej[5]; }), KodChyby{});
    EXPECT_EQ(static_cast<int>(KodChyby::prvek_neexistuje), 340);
}

TEST_F(ReliefTest, ElementsHaveNumbersFrom0To999) {
    for (const int n : {-1, 1000, 32767})
        EXPECT_EQ(kod_chyby([&] { relief.kolej.zaloz(n); }), KodChyby::prvek_neexistuje) << n;
    EXPECT_EQ(relief.kolej.nejvyssi(), -1);
    relief.kolej.zaloz(0);
    relief.kolej.zaloz(999);
    EXPECT_EQ(relief.kolej.nejvyssi(), 999);
    relief.kolej.zaloz(3);
    EXPECT_EQ(relief.kolej.nejvyssi(), 999);
}

TEST_F(ReliefTest, MakingAnElementAgainKeepsIt) {
    relief.kolej.zaloz(5).barva = barvy::cervena;
    EXPECT_EQ(relief.kolej.zaloz(5).barva(), barvy::cervena);
}

TEST_F(ReliefTest, RevisionCountsRealChangesOnly) {
    Prvek& kolej = relief.kolej.zaloz(5);
    std::uint64_t revize = revize_reliefu;
    const auto zmen = [&] {
        const std::uint64_t rozdil = revize_reliefu - revize;
        revize = revize_reliefu;
        return rozdil;
    };
    kolej.barva = barvy::zelena;
    EXPECT_EQ(zmen(), 1u);
    kolej.barva = barvy::zelena;
    EXPECT_EQ(zmen(), 0u);
    kolej.stav = "12";
    EXPECT_EQ(zmen(), 1u);
    kolej.stav = Text("12");
    kolej.stav = TextPohled("12");
    EXPECT_EQ(zmen(), 0u);
    kolej.viditelny = false;
    EXPECT_EQ(zmen(), 0u);
    Prvek& druha = relief.kolej.zaloz(6);
    EXPECT_EQ(zmen(), 1u);
    druha.barva = relief.kolej[5].barva; // from attribute to attribute
    EXPECT_EQ(zmen(), 1u);
    druha.barva = relief.kolej[5].barva;
    EXPECT_EQ(zmen(), 0u);
    relief.kolej.zaloz(6);
    EXPECT_EQ(zmen(), 0u);
}

TEST_F(ReliefTest, RevisionOfTheStateRisesWithColoursAndStatesAlone) {
    Prvek& kolej = relief.kolej.zaloz(5);
    std::uint64_t revize = revize_stavu;
    const auto zmenila_se = [&] { return std::exchange(revize, revize_stavu) != revize_stavu; };
    kolej.text = Text("popis");
    kolej.viditelny = true;
    kolej.obrazek = std::int16_t{3};
    EXPECT_FALSE(zmenila_se());
    kolej.barva = barvy::zelena;
    EXPECT_TRUE(zmenila_se());
    kolej.barva = barvy::zelena;
    EXPECT_FALSE(zmenila_se());
    kolej.stav = "12";
    EXPECT_TRUE(zmenila_se());
    kolej.stav.nastav_cislo(12);
    EXPECT_FALSE(zmenila_se());
    kolej.stav.nastav_cislo(13);
    EXPECT_TRUE(zmenila_se());
    kolej.stav = StavPrvku{};
    EXPECT_TRUE(zmenila_se());
    relief.kolej.zaloz(6);
    EXPECT_TRUE(zmenila_se());
}

TEST_F(ReliefTest, StateIsANumberAndItsTextWhicheverWasWritten) {
    StavPrvku& stav = relief.kolej.zaloz(5).stav;
    EXPECT_EQ(stav(), "");
    EXPECT_EQ(stav.cislo(), 0);
    for (const double metry : {400.0, 12.5, -20.0, 0.1, -0.0, 0.0}) {
        stav.nastav_cislo(metry);
        EXPECT_EQ(stav.cislo(), metry);
        EXPECT_EQ(stav(), text_cisla(metry));
        EXPECT_EQ(stav.cislo(), metry);
    }
    const std::pair<TextPohled, double> texty[] = {{"7", 7}, {"007", 7}, {" 12.5 m", 12.5}, {"daleko", 0}};
    for (const auto& [text, cislo] : texty) {
        stav = text;
        EXPECT_EQ(stav(), text);
        EXPECT_EQ(stav.cislo(), cislo) << text;
        EXPECT_EQ(stav(), text);
    }
}

TEST_F(ReliefTest, NumberThatTheTextAlreadyTellsWritesItAsItselfAndChangesNothingElse) {
    StavPrvku& stav = relief.kolej.zaloz(5).stav;
    stav = "007";
    const std::uint64_t revize = revize_reliefu;
    stav.nastav_cislo(7);
    EXPECT_EQ(revize_reliefu, revize + 1); // "7" is another text
    stav.nastav_cislo(7);
    EXPECT_EQ(stav(), "7");
    stav.nastav_cislo(7);
    stav = "7";
    EXPECT_EQ(revize_reliefu, revize + 1);
    stav.nastav_cislo(8);
    stav.nastav_cislo(8);
    EXPECT_EQ(revize_reliefu, revize + 2);
}

TEST_F(ReliefTest, StatesAreEqualWhenTheirTextsAre) {
    StavPrvku cislem, textem;
    cislem.nastav_cislo(12.5);
    textem = "12.5";
    EXPECT_EQ(cislem, textem);
    textem = "12.50";
    EXPECT_NE(cislem, textem);
    StavPrvku jine;
    jine.nastav_cislo(12.5);
    EXPECT_EQ(cislem, jine);
    jine.nastav_cislo(13);
    EXPECT_NE(cislem, jine);
    jine = cislem;
    EXPECT_EQ(jine(), "12.5");
    EXPECT_EQ(StavPrvku(cislem).cislo(), 12.5);
}

TEST_F(ReliefTest, NameIsTheSignalsTagThenTheTargetThenTheTrack) {
    EXPECT_EQ(jmeno(62), "");
    relief.cislo_koleje.zaloz(62).popis = "K62";
    EXPECT_EQ(jmeno(62), "K62");
    relief.Image1.zaloz(62);
    EXPECT_EQ(jmeno(62), "K62"); // a target without a name
    relief.Image1[62].stav = "1. kolej";
    EXPECT_EQ(jmeno(62), "1. kolej");
    relief.navestidlo.zaloz(62).popis = "BOR S62";
    EXPECT_EQ(jmeno(62), "BOR S62");
    relief.navestidlo_ser.zaloz(540).popis = "BOR S540";
    EXPECT_EQ(jmeno(540), "BOR S540");
}

TEST_F(ReliefTest, KindsAreFoundByTheirNames) {
    for (const PopisDruhu& druh : kDruhy) {
        EXPECT_EQ(druh_podle_jmena(druh.jmeno), druh.druh);
        EXPECT_EQ(jmeno_druhu(druh.druh), druh.jmeno);
        EXPECT_EQ(&tabulka(druh.druh), &(relief.*druh.tabulka));
    }
    EXPECT_EQ(druh_podle_jmena("Kolej"), std::nullopt);
    EXPECT_EQ(druh_podle_jmena(""), std::nullopt);
}

TEST_F(ReliefTest, LastMovedLiesOnTopOrBehind) {
    Prvek a, b, c;
    do_popredi(a);
    do_popredi(b);
    EXPECT_LT(a.poradi(), b.poradi());
    do_popredi(a);
    EXPECT_GT(a.poradi(), b.poradi());
    do_pozadi(a);
    EXPECT_LT(a.poradi(), c.poradi());
    do_pozadi(b);
    EXPECT_LT(b.poradi(), a.poradi());
}

TEST_F(ReliefTest, OnlySelfSizingLabelsFollowTheirCaption) {
    Prvek napis;
    napis.sirka = 500;
    nastav_text(napis, "12345");
    EXPECT_EQ(napis.sirka(), 500);
    napis.vlastni_velikost = true;
    nastav_text(napis, "123");
    EXPECT_EQ(napis.sirka(), 3 * kSirkaZnaku);
    EXPECT_EQ(napis.vyska(), kVyskaZnaku);
    nastav_text(napis, "");
    EXPECT_EQ(napis.sirka(), 0);
}

TEST_F(ReliefTest, HighlightGoesButAFailedSignalKeepsItsBackground) {
    Prvek dobre, zhasle;
    dobre.ramecek = true;
    dobre.pozadi = barvy::zelena;
    zrus_zvyrazneni(dobre);
    EXPECT_FALSE(dobre.ramecek());
    EXPECT_EQ(dobre.pozadi(), barvy::cerna);
    zhasle.ramecek = true;
    zhasle.pozadi = barvy::seda;
    zrus_zvyrazneni(zhasle);
    EXPECT_TRUE(zhasle.ramecek());
    EXPECT_EQ(zhasle.pozadi(), barvy::seda);
}

} // namespace
