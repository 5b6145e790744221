// testy/nastroje/trasy_test.cpp - the derivation of the routes and their proof.
#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/zdroj_kolejiste.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace kolejiste;

namespace {

struct PrekladTras {
    Plan plan;
    std::vector<Zavada> zavady;
    Graf graf;
    std::vector<Trasa> trasy;

    explicit PrekladTras(const std::string& zdroj) {
        precti(zdroj, "zkouska.tk", plan, zavady);
        dokonci();
    }
    PrekladTras() = default;
    void dokonci() {
        graf = sestav_graf(plan, zavady);
        const auto jeden = nakresli(plan, Obraz::jeden, zavady), dva = nakresli(plan, Obraz::dva, zavady);
        zkontroluj(plan, graf, jeden, dva, zavady);
        trasy = odvod_trasy(plan, graf, zavady);
        zkontroluj_trasy(plan, graf, trasy, zavady);
    }
    std::string vsechny() const { return vypis(zavady); }
    static std::string vypis(const std::vector<Zavada>& zavady) {
        std::string s;
        for (const Zavada& z : zavady)
            s += veta(z) + "\n";
        return s;
    }
    const Trasa* najdi(DruhTrasy druh, int zacatek, int konec) const {
        for (const Trasa& t : trasy)
            if (t.druh == druh && t.zaznam.zacatek == zacatek && t.zaznam.konec == konec)
                return &t;
        return nullptr;
    }
    // "71 v1+ 401 v3++ 11"; empty when there is no such route.
    std::string cesta(DruhTrasy druh, int zacatek, int konec) const {
        std::string s;
        if (const Trasa* t = najdi(druh, zacatek, konec))
            for (std::size_t k = 0; k < t->zaznam.prvky.size(); ++k)
                s += (k ? " " : "") + popis_prvku_trasy(t->zaznam, k);
        return s;
    }
    std::string vlak(int zacatek, int konec) const { return cesta(DruhTrasy::vlak, zacatek, konec); }
    std::string posun(int zacatek, int konec) const { return cesta(DruhTrasy::posun, zacatek, konec); }
    std::set<int> konce(DruhTrasy druh, int zacatek) const {
        std::set<int> konce;
        for (const Trasa& t : trasy)
            if (t.druh == druh && t.zaznam.zacatek == zacatek)
                konce.insert(t.zaznam.konec);
        return konce;
    }
    // The faults after one route has been changed.
    template <class Zmena> std::string po_zmene(DruhTrasy druh, int zacatek, int konec, Zmena zmena) const {
        std::vector<Trasa> jine = trasy;
        for (Trasa& t : jine)
            if (t.druh == druh && t.zaznam.zacatek == zacatek && t.zaznam.konec == konec)
                zmena(t);
        std::vector<Zavada> nove;
        zkontroluj_trasy(plan, graf, jine, nove);
        return vypis(nove);
    }
};

// Two lines from the left, one to the right. 11 is the straight track, 12 lies above and is reached over a
// double slip, 13 below is a bay; before them a crossover. The stub 503 joins 12 behind a derailer.
const std::string kVyhybna = R"(
stanice BOR "Borovec"
jeden 10,5
dva   10,5
kolej  71  -6,1   4,1 400m stitek K1 cil
kolej  72  -6,2   6,2 400m stitek K2 cil
okraj 71:vlevo 72:vlevo
vyhybka 1   4,1 hrot vlevo dole    spojka 2
vyhybka 2   6,2 hrot vpravo nahore spojka 1
vyhybka 4   8,2 hrot vlevo nahore  spojka 3
kolej 401   6,1  10,1  90m
dks     3  10,1 stoupa             spojka 4 5
vyhybka 5  12,0 hrot vpravo dole   spojka 3
kolej 503   0,0  11,0 200m stitek 503 cil
zarazedlo 503:vlevo
vykolejka 0 11,0
kolej  12  14,0  28,0 500m stitek 2 cil
kolej  11  12,1  29,1 500m stitek 1 cil
kolej  13  10,2  28,2 300m stitek 3 cil
zarazedlo 13:vpravo
kolej 403  28,0  29,1^ 60m
vyhybka 6  29,1 hrot vpravo nahore
kolej  74  31,1  40,1 400m stitek K4 cil
okraj 74:vpravo
navestidlo 271 S1 vpravo
navestidlo 272 S2 vpravo
navestidlo 211 S3 vpravo
navestidlo 212 S4 vpravo
navestidlo  11 L1 vlevo
navestidlo  12 L2 vlevo
navestidlo  13 L3 vlevo
navestidlo  74 L4 vlevo
posunove   703 Se1 vpravo
)";

std::string vyhybna_s_radkem(const std::string& radek) {
    return kVyhybna + radek + "\n";
}

// The junction itself.
const PrekladTras& trasy_tesku() {
    static const PrekladTras preklad = [] {
        PrekladTras p;
        precti_kolejiste(p.plan, p.zavady);
        p.dokonci();
        return p;
    }();
    return preklad;
}

#define HLASI(text, cast) EXPECT_NE(std::string(text).find(cast), std::string::npos) << "faults:\n" << (text)

} // namespace

// --- derivation

TEST(OdvozeniTras, LoopHasARouteFromEverySignalToEveryEnd) {
    const PrekladTras p(kVyhybna);
    ASSERT_EQ(p.vsechny(), "");
    using S = std::set<int>;
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 271), (S{11, 12, 13}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 272), (S{11, 12, 13}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 211), (S{74}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 212), (S{74}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 74), (S{11, 12}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 11), (S{71, 72}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 12), (S{71, 72})) << "no train goes onto the stub";
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 13), (S{71, 72}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 703), (S{})) << "a shunting signal lets no train go";
}

TEST(OdvozeniTras, RouteRunsFromTheTrackBeforeTheSignal) {
    const PrekladTras p(kVyhybna);
    EXPECT_EQ(p.vlak(271, 11), "71 v1+ 401 v3++ 11");
    EXPECT_EQ(p.vlak(272, 12), "72 v2+ v4- v3-- v5- 12");
    EXPECT_EQ(p.vlak(11, 72), "11 v3-+ v4- v2+ 72");
    EXPECT_EQ(p.vlak(212, 74), "12 403 v6- 74");
    const Trasa* t = p.najdi(DruhTrasy::vlak, 271, 12);
    ASSERT_TRUE(t);
    EXPECT_EQ(cisla_prvku(t->zaznam.prvky), (std::vector<std::int16_t>{71, 1, 401, 3, 5, 12}));
    EXPECT_EQ(druhy_prvku(t->zaznam.prvky), (std::vector<std::uint8_t>{1, 2, 1, 2, 2, 1}));
    EXPECT_EQ(polohy_prvku(t->zaznam.prvky), (std::vector<std::uint8_t>{2, 3, 0, 31, 8, 2}));
}

TEST(OdvozeniTras, OfTwoWaysTheStraightestIsTaken) {
    const PrekladTras p(kVyhybna);
    // over both crossovers one would come to 11 as well, with four ends in minus
    EXPECT_EQ(p.vlak(271, 11), "71 v1+ 401 v3++ 11");
    EXPECT_EQ(p.vlak(271, 12), "71 v1+ 401 v3+- v5- 12");
    for (const Trasa& a : p.trasy)
        for (const Trasa& b : p.trasy)
            EXPECT_TRUE(&a == &b || a.druh != b.druh || a.zaznam.zacatek != b.zaznam.zacatek ||
                        a.zaznam.konec != b.zaznam.konec);
}

TEST(OdvozeniTras, RoutesOfAStartAreInTheOrderOfTheirBranches) {
    const PrekladTras p(kVyhybna);
    std::vector<int> konce;
    for (const Trasa& t : p.trasy)
        if (t.druh == DruhTrasy::vlak && t.zaznam.zacatek == 271)
            konce.push_back(t.zaznam.konec);
    EXPECT_EQ(konce, (std::vector<int>{11, 13, 12}));
}

TEST(OdvozeniTras, ShuntingGoesOntoTheStubOverTheDerailer) {
    const PrekladTras p(kVyhybna);
    EXPECT_EQ(p.posun(12, 503), "12 v5+ d0 503");
    EXPECT_EQ(p.posun(703, 12), "503 d0 v5+ 12");
    const Trasa* t = p.najdi(DruhTrasy::posun, 12, 503);
    ASSERT_TRUE(t);
    EXPECT_EQ(druhy_prvku(t->zaznam.prvky), (std::vector<std::uint8_t>{1, 2, 4, 1}));
    EXPECT_EQ(t->zaznam.rychlost, 0);
}

TEST(OdvozeniTras, BranchCostsSpeed) {
    const PrekladTras p(
        vyhybna_s_radkem("rychlost 2 4 3 5 \"štíhlé výhybky\"\nrychlost 0 6 \"odbočka bez omezení\""));
    ASSERT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 271, 11)->zaznam.rychlost, 0);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 271, 13)->zaznam.rychlost, 1) << "40 km/h unless the source says more";
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 272, 12)->zaznam.rychlost, 2);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 212, 74)->zaznam.rychlost, 0);
}

TEST(OdvozeniTras, SlowestBranchCounts) {
    const PrekladTras p(vyhybna_s_radkem("rychlost 3 2 \"štíhlá výhybka\""));
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 271, 13)->zaznam.rychlost, 1);
}

TEST(OdvozeniTras, SignalOfTheOtherFacingEndsNothing) {
    const PrekladTras p(kVyhybna);
    // a train to the right passes the left-facing signal 11 and stops before 211
    EXPECT_EQ(p.vlak(271, 74), "");
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 271, 11)->zaznam.prvky.back().prvek, 11);
}

TEST(OdvozeniTras, TargetWithoutASignalStopsTrainsUnlessTheyRunThrough) {
    std::string bez = kVyhybna;
    bez.erase(bez.find("navestidlo 211 S3 vpravo\n"), 25);
    const PrekladTras p(bez);
    EXPECT_EQ(p.vlak(271, 11), "") << "nothing tells the train to stop there";
    EXPECT_EQ(p.vlak(271, 74), "");
    EXPECT_EQ(p.posun(271, 11), "71 v1+ 401 v3++ 11");
    const PrekladTras skrz(bez + "prujezdna 11 \"nemá odjezdové návěstidlo\"\n");
    EXPECT_EQ(skrz.vsechny(), "");
    EXPECT_EQ(skrz.vlak(271, 74), "71 v1+ 401 v3++ 11 v6+ 74");
    EXPECT_EQ(skrz.posun(271, 74), "71 v1+ 401 v3++ 11 v6+ 74");
    EXPECT_EQ(polohy_prvku(skrz.najdi(DruhTrasy::vlak, 271, 74)->zaznam.prvky),
              (std::vector<std::uint8_t>{2, 3, 0, 29, 2, 12, 2}))
        << "the number is written on every target";
}

TEST(OdvozeniTras, TrackOfTrainsOnlyHasNoShunting) {
    const PrekladTras p(vyhybna_s_radkem("jen_vlak 71 72 74 \"za vjezdovým návěstidlem\""));
    ASSERT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.konce(DruhTrasy::posun, 271), (std::set<int>{}));
    EXPECT_EQ(p.konce(DruhTrasy::posun, 12), (std::set<int>{503}));
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 271), (std::set<int>{11, 12, 13}));
}

TEST(OdvozeniTras, SignalOnATrackThatIsNoTargetIsAFault) {
    std::string bez = kVyhybna;
    bez.replace(bez.find("500m stitek 1 cil"), 17, "500m stitek 1    ");
    HLASI(PrekladTras(bez).vsechny(), "kolej 11: cesty k návěstidlu na jejím konci by nebylo kam zadat");
}

// --- rules by hand

TEST(PravidlaTras, ForbiddenRouteIsNotThere) {
    const PrekladTras p(
        vyhybna_s_radkem("nechci vlak od 272 do 12 \"zkouška\"\nnechci cesty od 13 \"zkouška\""));
    ASSERT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.vlak(272, 12), "");
    EXPECT_NE(p.posun(272, 12), "");
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 13), (std::set<int>{}));
    EXPECT_EQ(p.konce(DruhTrasy::posun, 13), (std::set<int>{}));
}

TEST(PravidlaTras, WayByHandWins) {
    const PrekladTras p(vyhybna_s_radkem("trasa vlak 271 11 pres v2 v4 \"zkouška\""));
    ASSERT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.vlak(271, 11), "71 v1- v2- v4- v3-+ 11");
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 271, 11)->misto.radek, p.plan.pravidla_tras.rucni[0].misto.radek)
        << "faults of this route name the rule";
    EXPECT_EQ(p.posun(271, 11), "71 v1+ 401 v3++ 11");
}

TEST(PravidlaTras, RouteCanBeAddedPastASignal) {
    const PrekladTras p(vyhybna_s_radkem("trasa vlak 271 74 kolem 211 pres 11 \"zkouška\""));
    EXPECT_EQ(p.vlak(271, 74), "") << "11 is a target all the same";
    const PrekladTras q(
        vyhybna_s_radkem("prujezdna 11 \"zkouška\"\ntrasa vlak 271 74 kolem 211 pres 11 \"zkouška\""));
    ASSERT_EQ(q.vsechny(), "");
    EXPECT_EQ(q.vlak(271, 74), "71 v1+ 401 v3++ 11 v6+ 74");
    EXPECT_EQ(q.vlak(271, 11), "71 v1+ 401 v3++ 11");
}

TEST(PravidlaTras, RuleThatChangesNothingIsAFault) {
    HLASI(PrekladTras(vyhybna_s_radkem("nechci vlak od 271 do 74 \"zkouška\"")).vsechny(),
          "žádná taková cesta by nebyla");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa vlak 271 11 pres 401 \"zkouška\"")).vsechny(),
          "trasa 271 11: tudy vede i bez tohoto pravidla");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa vlak 271 11 pres v6 \"zkouška\"")).vsechny(),
          "trasa 271 11: takovou cestu nelze projet");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa vlak 703 12 \"zkouška\"")).vsechny(), "nezačíná vlaková cesta");
    HLASI(PrekladTras(vyhybna_s_radkem("rychlost 1 4 \"zkouška\"")).vsechny(),
          "40 km/h platí i bez tohoto pravidla");
}

TEST(PravidlaTras, RuleAboutWhatIsNotDrawnWaits) {
    const PrekladTras p(
        vyhybna_s_radkem("nechci vlak od 245 do 46 \"zkouška\"\ntrasa vlak 245 46 \"zkouška\"\n"
                         "povinna 245 46 \"zkouška\"\nodjezdy vlak vlevo 46 \"zkouška\"\n"
                         "programova 245 46 46 \"zkouška\""));
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(cekajici_povinne(p.plan, p.trasy), 1);
}

TEST(PravidlaTras, EveryRuleSaysWhy) {
    HLASI(PrekladTras(vyhybna_s_radkem("nechci vlak od 271 do 11")).vsechny(), "chybí důvod v uvozovkách");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa vlak 271 11 pres v2")).vsechny(), "chybí důvod v uvozovkách");
    HLASI(PrekladTras(vyhybna_s_radkem("jen_vlak 71")).vsechny(), "chybí důvod v uvozovkách");
    HLASI(PrekladTras(vyhybna_s_radkem("rychlost 4 1 \"x\"")).vsechny(), "třídy rychlosti jsou 0 až 3");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa 271 11 \"x\"")).vsechny(), "chybí druh cesty");
    HLASI(PrekladTras(vyhybna_s_radkem("nechci vlak \"x\"")).vsechny(), "chybí od nebo do");
    HLASI(PrekladTras(vyhybna_s_radkem("trasa vlak 271 11 pres v2 \"x\"\ntrasa vlak 271 11 \"x\"")).vsechny(),
          "už stojí v");
}

TEST(PravidlaTras, WhatTheProgramAsksForMustBeThere) {
    const PrekladTras dobre(
        vyhybna_s_radkem("povinna 271 11 pres 401 jedna_z 9 11 \"x\"\nodjezdy vlak vpravo 11 12 \"x\"\n"
                         "programova 271 11 71 401 11 \"x\"\nnesmi 271 74 \"x\""));
    EXPECT_EQ(dobre.vsechny(), "");
    HLASI(PrekladTras(vyhybna_s_radkem("povinna 271 74 \"x\"")).vsechny(),
          "cesta 271 74: program ji potřebuje");
    HLASI(PrekladTras(vyhybna_s_radkem("povinna 271 11 pres 403 \"x\"")).vsechny(), "má vést přes kolej 403");
    HLASI(PrekladTras(vyhybna_s_radkem("nesmi 271 11 \"x\"")).vsechny(), "cesta 271 11: v tabulce nesmí být");
    HLASI(PrekladTras(vyhybna_s_radkem("odjezdy vlak vpravo 13 \"x\"")).vsechny(),
          "kolej 13: nevede z ní žádná cesta vpravo");
    HLASI(PrekladTras(vyhybna_s_radkem("programova 271 13 71 403 \"x\"")).vsechny(),
          "z koleje 403 nevede žádná cesta dál");
}

TEST(PravidlaTras, WayToTheEdgeOfTheDrawingExcusesAMissingRoute) {
    std::string bez = kVyhybna; // 74 is no target: what lies behind it is not drawn
    bez.replace(bez.find("400m stitek K4 cil"), 18, "400m              ");
    bez.erase(bez.find("navestidlo  74 L4 vlevo\n"), 24);
    const PrekladTras p(bez + "odjezdy vlak vpravo 11 \"x\"\npovinna 211 72 \"x\"\n");
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.konce(DruhTrasy::vlak, 211), (std::set<int>{}));
    const PrekladTras natrvalo(bez + "slepa 74 \"dál nic nepovede\"\nodjezdy vlak vpravo 11 \"x\"\n");
    HLASI(natrvalo.vsechny(), "kolej 11: nevede z ní žádná cesta vpravo");
}

// --- the proof

TEST(KontrolaTras, BrokenRecordIsFound) {
    const PrekladTras p(kVyhybna);
    const auto po = [&](auto zmena) { return p.po_zmene(DruhTrasy::vlak, 271, 12, zmena); };
    EXPECT_EQ(po([](Trasa&) {}), "");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[2].prvek = 403; }), "prvek 403 nenavazuje na v1+");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[2].prvek = 999; }), "prvek 999 druhu 1 není nakreslen");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[3].druh = 7; }), "prvek 3 druhu 7 není nakreslen");
    HLASI(po([](Trasa& t) { t.zaznam.prvky.resize(1); }), "nemá ani dva prvky");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[1].poloha = 2; }), "nenavazuje na v1-");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[1].poloha = 1; }), "výhybka 1 v poloze 1 tudy nevede");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[1].poloha = 6; }), "výhybka 1 v poloze 6 tudy nevede");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[3].poloha = 30; }), "výhybka 3 v poloze 30 tudy nevede");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[4].prvek = 3, t.zaznam.prvky[4].poloha = 31; }),
          "prvek v3+- v ní je dvakrát");
    HLASI(po([](Trasa& t) { t.zaznam.prvky[0].prvek = 72; }), "nezačíná kolejí 71");
    HLASI(po([](Trasa& t) { t.zaznam.zacatek = 299; }), "návěstidlo 299 není nakresleno");
    HLASI(po([](Trasa& t) { t.zaznam.konec = 11; }), "končí kolejí 12, ne 11");
    HLASI(po([](Trasa& t) { t.zaznam.konec = 401; }), "kolej 401 není cílem");
    HLASI(po([](Trasa& t) { t.zaznam.prvky.pop_back(); }), "nekončí na koleji");
    HLASI(po([&](Trasa& t) { t.zaznam = p.najdi(DruhTrasy::vlak, 271, 11)->zaznam; }),
          "je v tabulce dvakrát");
}

TEST(KontrolaTras, TrainRouteFromAShuntingSignalIsFound) {
    const PrekladTras p(kVyhybna);
    HLASI(p.po_zmene(DruhTrasy::posun, 703, 12, [](Trasa& t) { t.druh = DruhTrasy::vlak; }),
          "vlaková cesta nezačíná u posunového návěstidla");
}

TEST(KontrolaTras, RoutePastASignalIsFound) {
    const PrekladTras p(kVyhybna);
    const auto text = p.po_zmene(DruhTrasy::vlak, 271, 11, [](Trasa& t) {
        for (const auto& [n, druh, poloha] : {std::tuple{6, 2, 12}, {74, 1, 2}}) {
            t.zaznam.prvky.push_back({static_cast<std::int16_t>(n), static_cast<std::uint8_t>(druh),
                                      static_cast<std::uint8_t>(poloha)});
        }
        t.zaznam.konec = 74;
    });
    HLASI(text, "cesta 271 74: míjí návěstidlo 211");
    HLASI(text, "cesta 271 74: projíždí kolejí 11, která je cílem");
}

TEST(KontrolaTras, CoupledSwitchesOfARouteMustAgree) {
    std::string jinak = kVyhybna; // 1 drags 6, which is passed in plus by nobody who needs 1 in minus
    jinak.replace(jinak.find("hrot vlevo dole    spojka 2\n"), 28, "hrot vlevo dole    spojka 2 6\n");
    jinak.replace(jinak.find("29,1 hrot vpravo nahore\n"), 24, "29,1 hrot vpravo nahore spojka 1\n");
    const std::string text = PrekladTras(jinak).vsechny();
    // 71 to 13 throws 1 to minus and so 6; from 11 to 74 needs 6 in plus, and both could stand together
    HLASI(text, "cesta 271 13: může stát zároveň s cesta 211 74, která má ležet výhybka 1 opačně");
    HLASI(text, "cesta 271 13: může stát zároveň s cesta 211 74, která má ležet výhybka 6 opačně");
    HLASI(text, "posun 271 13: může stát zároveň s");
    EXPECT_EQ(text.find("cesta 271 11: může stát zároveň s cesta 211 74"), std::string::npos);
}

TEST(KontrolaTras, RouteAgainstItsOwnCouplingIsFound) {
    std::string jinak = kVyhybna; // 2 and 4 follow each other, coupled they could not be passed differently
    jinak.replace(jinak.find("hrot vpravo nahore spojka 1\n"), 28, "hrot vpravo nahore spojka 1 4\n");
    jinak.replace(jinak.find("hrot vlevo nahore  spojka 3\n"), 28, "hrot vlevo nahore  spojka 3 2\n");
    const std::string text = PrekladTras(jinak).vsechny();
    HLASI(text, "cesta 271 13: potřebuje, aby výhybka 4 ležela v plusu i v mínusu");
    HLASI(text, "cesta 272 12: potřebuje, aby výhybka 2 ležela v plusu i v mínusu");
    EXPECT_EQ(text.find("cesta 272 13: potřebuje"), std::string::npos);
}

TEST(KontrolaTras, EndOfASlipFollowsTheCoupledSwitchOnItsSide) {
    std::string jinak = kVyhybna; // 6 stands right of the slip and drags its end B
    jinak.replace(jinak.find("spojka 4 5\n"), 11, "spojka 4 5 6\n");
    jinak.replace(jinak.find("29,1 hrot vpravo nahore\n"), 24, "29,1 hrot vpravo nahore spojka 3\n");
    const std::string text = PrekladTras(jinak).vsechny();
    HLASI(text, "cesta 211 74: může stát zároveň s cesta 12 72, která má ležet výhybka 3 koncem B opačně");
    EXPECT_EQ(text.find("cesta 211 74: může stát zároveň s cesta 11 72"), std::string::npos)
        << "from 11 to 72 only the end A lies in minus";
}

TEST(KontrolaTras, SwitchAtTheSideOfARouteMustBeExcludedByIt) {
    // 7 stands at the fourth corner of 4 and 3, where a stub joins 13
    std::string jinak = kVyhybna;
    jinak.replace(jinak.find("kolej  13  10,2  28,2 300m"), 26, "kolej  13  12,2  28,2 300m");
    jinak += "vyhybka 7 10,2 hrot vpravo dole\nkolej 505 5,4 9,4 100m stitek 505 cil\nzarazedlo 505:vlevo\n"
             "kolej 410 9,4 10,3^ 60m\nposunove 705 Se2 vpravo\n";
    HLASI(PrekladTras(jinak).vsechny(),
          "výhybka 7 ji chrání z boku, ale posun 705 13 po ní může stát zároveň");
}

TEST(KontrolaTras, LineIsEnteredByItsNearestSection) {
    const PrekladTras& p = trasy_tesku();
    ASSERT_TRUE(p.najdi(DruhTrasy::vlak, 12, 600));
    HLASI(p.po_zmene(DruhTrasy::vlak, 12, 600,
                     [](Trasa& t) {
                         t.zaznam.prvky.push_back({600, 1, 2});
                     }),
          "do trati vjíždí oddílem 600, má být 650");
    HLASI(p.po_zmene(DruhTrasy::vlak, 12, 600,
                     [](Trasa& t) {
                         t.zaznam.prvky.push_back({600, 1, 2});
                     }),
          "oddíl 650 trati by v ní byl dvakrát");
    HLASI(p.po_zmene(DruhTrasy::vlak, 12, 600, [](Trasa& t) { t.druh = DruhTrasy::posun; }),
          "posun na trať 650 by neměl její směr");
    HLASI(p.po_zmene(DruhTrasy::vlak, 12, 600, [](Trasa& t) { t.zaznam.konec = 602; }),
          "končí kolejí 650, ne 602");
}

TEST(KontrolaTras, CrossingThatIsClosedIsOpenedAgain) {
    const PrekladTras& p = trasy_tesku();
    HLASI(p.po_zmene(DruhTrasy::vlak, 601, 12,
                     [](Trasa& t) {
                         for (PrvekCesty& prvek : t.zaznam.prvky)
                             if (prvek.prvek == 100)
                                 prvek.prvek = 101;
                     }),
          "přejezd 0 uzavře 1krát a otevře 0krát");
}

TEST(KontrolaTras, TrackOfANeighbourStandsNeverBehindTheSignal) {
    const PrekladTras& p = trasy_tesku();
    HLASI(p.po_zmene(DruhTrasy::vlak, 26, 117,
                     [](Trasa& t) {
                         const auto posledni = t.zaznam.prvky.size() - 2;
                         t.zaznam.prvky[1].prvek = t.zaznam.prvky[posledni].prvek;
                         t.zaznam.prvky[1].druh = 1;
                     }),
          "kolej 117 nesmí být hned za návěstidlem");
}

// A line drawn left of the station that it leaves to the right: the picture would lay the wrong direction.
TEST(KontrolaTras, DirectionOfALineFollowsThePicture) {
    const std::string zdroj = R"(
stanice BOR "Borovec"
jeden 10,5
dva   10,5
kolej  87  40,1  50,1 700m stitek 1 cil
okraj 87:vlevo
navestidlo 287 S1 vpravo
kolej 600   0,1  10,1 2500m stitek "" cil "BOR 1TK"
spoj 87:vpravo 600:vlevo
okraj 600:vpravo
navestidlo 600 L vlevo
navestidlo 601 S vpravo
)";
    const std::string text = PrekladTras(zdroj).vsechny();
    HLASI(text, "cesta 287 600: směr trati by podle obrazu vyšel opačně (jeden monitor)");
    HLASI(text, "cesta 287 600: směr trati by podle obrazu vyšel opačně (dva monitory)");
    std::string dobry = zdroj;
    dobry.replace(dobry.find("40,1  50,1"), 10, "-9,1  -1,1");
    EXPECT_EQ(PrekladTras(dobry).vsechny().find("směr trati"), std::string::npos);
}

// The drawing is folded where two left ends meet: who comes from the left goes on to the right.
TEST(KontrolaTras, SenseTurnsOnlyWhereTheRunningTurnsIt) {
    const std::string zdroj = R"(
stanice BOR "Borovec"
jeden 10,5
dva   10,5
kolej  71  20,1  30,1 400m stitek K1 cil
kolej 187   9,1  20,1 100m
okraj 71:vpravo
navestidlo 71 L1 vlevo
kolej N     0,3  20,3 6050m stitek K2 cil
spoj 187:vlevo N:vlevo
okraj N:vpravo
)";
    const auto s_koleji = [&](const std::string& n, const std::string& dalsi) {
        std::string text = zdroj;
        for (std::size_t i; (i = text.find(" N:")) != std::string::npos;)
            text.replace(i, 3, " " + n + ":");
        text.replace(text.find("kolej N  "), 9, "kolej " + n);
        return PrekladTras(text + dalsi).vsechny();
    };
    HLASI(s_koleji("72", "navestidlo 272 S2 vpravo\n"),
          "cesta 71 72: přijíždí k návěstidlu 272, které platí pro opačný smysl");
    const std::string pres_118 = s_koleji("118", "navestidlo 318 S2 vpravo\n");
    EXPECT_EQ(pres_118.find("cesta"), std::string::npos) << pres_118;
    // the train leaves the area on 41 to the right only, but it still runs to the left
    HLASI(s_koleji("41", ""), "vlak by na koleji 41 oblast neopustil: jede opačným smyslem");
    EXPECT_EQ(s_koleji("25", "").find("oblast neopustil"), std::string::npos);
}

TEST(KontrolaTras, LongTrackToMokrinaIsReachedOverItsOwnSections) {
    const auto s_pred = [](const std::string& pred) {
        return PrekladTras(
                   "stanice BOR \"Borovec\"\njeden 10,5\ndva 10,5\n"
                   "kolej 71 20,1 30,1 400m stitek K1 cil\nokraj 71:vpravo\nnavestidlo 71 L1 vlevo\n" +
                   pred + "kolej 118 -9,1 9,1 6050m stitek K2 cil\nokraj 118:vlevo\n")
            .vsechny();
    };
    EXPECT_EQ(s_pred("kolej 303 9,1 20,1 90m\n").find("cesta 71 118"), std::string::npos);
    HLASI(s_pred("kolej 304 9,1 20,1 90m\n"), "cesta 71 118: před kolejí 118 má být 187 nebo 303");
    HLASI(s_pred("spoj 71:vlevo 118:vpravo\n"), "cesta 71 118: kolej 118 nesmí být hned za návěstidlem");
}

TEST(KontrolaTras, TwoTracksThatCrossAreNotInOneRoute) {
    std::string jinak = kVyhybna;
    jinak.replace(jinak.find("kolej 401   6,1  10,1"), 21, "kolej 106 6,1 8,1\nkolej 543 8,1 10,1");
    HLASI(PrekladTras(jinak).vsechny(), "cesta 271 11: koleje 106 a 543 se kříží");
}

TEST(KontrolaTras, FoldBehindASwitchDoesNotTurnTheSense) {
    std::string jinak = kVyhybna;
    jinak.replace(jinak.find("kolej 401   6,1"), 15, "kolej 115   6,1");
    HLASI(PrekladTras(jinak).vsechny(), "na kolej 115 se vjíždí z výhybky, smysl jízdy by se neobrátil");
}

TEST(KontrolaTras, TrainCannotCountBeyondAByte) {
    const auto rada = [](int kolik) {
        std::string zdroj =
            "stanice BOR \"Borovec\"\njeden 10,5\ndva 10,5\n"
            "kolej 71 -5,1 0,1 400m stitek K1 cil\nokraj 71:vlevo\nnavestidlo 271 S1 vpravo\n";
        for (int i = 0; i < kolik; ++i)
            zdroj += "kolej " + std::to_string(i < 198 ? 301 + i : 501 + i - 198) + " " + std::to_string(i) +
                     ",1 " + std::to_string(i + 1) + ",1 60m\n";
        return PrekladTras(zdroj + "kolej 72 " + std::to_string(kolik) + ",1 " + std::to_string(kolik + 9) +
                           ",1 400m stitek K2 cil\nokraj 72:vpravo\n")
            .vsechny();
    };
    EXPECT_EQ(rada(254).find("256 prvků"), std::string::npos);
    HLASI(rada(255), "cesta 271 72: má víc než 256 prvků");
}

// --- the tables

TEST(TabulkyTras, FileHoldsTheRoutesOfItsKind) {
    const PrekladTras p(kVyhybna);
    const std::vector<ZaznamCesty> zat = cti_cesty(soubor_tras(p.trasy, DruhTrasy::vlak));
    const std::vector<ZaznamCesty> zpc = cti_cesty(soubor_tras(p.trasy, DruhTrasy::posun));
    ASSERT_EQ(zat.size() + zpc.size(), p.trasy.size());
    std::size_t i = 0;
    for (const Trasa& t : p.trasy)
        if (t.druh == DruhTrasy::vlak) {
            EXPECT_EQ(zat[i++], t.zaznam);
        }
    EXPECT_EQ(i, zat.size());
    EXPECT_TRUE(std::none_of(zpc.begin(), zpc.end(),
                             [](const ZaznamCesty& z) { return z.zacatek == 13 && z.konec == 503; }));
}

TEST(TabulkyTras, LineOfTheRoutesOfTheProgramStaysEmpty) {
    std::vector<Trasa> mnoho(1500, *PrekladTras(kVyhybna).najdi(DruhTrasy::vlak, 271, 11));
    const std::vector<ZaznamCesty> zat = cti_cesty(soubor_tras(mnoho, DruhTrasy::vlak));
    ASSERT_EQ(zat.size(), 1501u);
    EXPECT_EQ(zat[997].zacatek, 271);
    EXPECT_LT(zat[998].zacatek, 0) << "record 999 would be taken for a route of a train from the line";
    EXPECT_EQ(zat[999].zacatek, 271);
}

TEST(TabulkyTras, TableShowsElementsAndConflicts) {
    const PrekladTras p(kVyhybna);
    const std::string text = tabulka_tras(p.plan, p.trasy);
    HLASI(text, "BOR Borovec: 16 vlakových cest, nejvýš 6 prvků");
    HLASI(text, "71 v1+ 401 v3+- v5- 12");
    HLASI(text, "vlakových 16; dvojic, které nemohou stát spolu, ");
}

// --- the junction

TEST(TrasyTesku, JunctionHasNoFault) {
    EXPECT_EQ(trasy_tesku().vsechny(), "");
}

TEST(TrasyTesku, LinesAreEnteredAndLeft) {
    const PrekladTras& p = trasy_tesku();
    EXPECT_EQ(p.vlak(287, 600), "87 v33+ 404 v36+ v37+ 600");
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 601, 12)->zaznam.prvky[0].prvek, 650);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 12, 600)->zaznam.prvky.back().prvek, 650);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 287, 600)->zaznam.prvky.back().poloha, 0)
        << "the number stays until the train has left the whole line";
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 601, 12)->zaznam.prvky.front().poloha, 2);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 2, 84)->zaznam.prvky.back().poloha, 2);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 287, 600)->zaznam.rychlost, 0);
    EXPECT_EQ(p.najdi(DruhTrasy::vlak, 286, 600)->zaznam.rychlost, 1);
}

TEST(TrasyTesku, NumberStaysOnALineUntilItsLastSection) {
    const auto znacka_konce = [](int od, int kam) {
        return trasy_tesku().najdi(DruhTrasy::vlak, od, kam)->zaznam.prvky.back().poloha;
    };
    for (const auto& [od, kam] : {std::pair{287, 600}, {202, 604}, {12, 600}, {10, 606}})
        EXPECT_EQ(znacka_konce(od, kam), 0) << od << " - " << kam << ": the locking marks the last section";
    EXPECT_EQ(znacka_konce(601, 12), 2);
    EXPECT_EQ(znacka_konce(2, 84), 2) << "the line end of a neighbour is no line of sections";
}

TEST(TrasyTesku, RouteToVrbiceRunsOnToTheEdge) {
    const Trasa* t = trasy_tesku().najdi(DruhTrasy::vlak, 26, 117);
    ASSERT_TRUE(t);
    EXPECT_EQ(t->zaznam.prvky.back().prvek, 219);
    EXPECT_EQ(t->zaznam.prvky[t->zaznam.prvky.size() - 2].prvek, 117);
    EXPECT_FALSE(trasy_tesku().najdi(DruhTrasy::posun, 26, 117))
        << "no shunting onto the line of a neighbour";
}

TEST(TrasyTesku, FailedLampStartsNothing) {
    EXPECT_TRUE(trasy_tesku().konce(DruhTrasy::vlak, 305).empty());
    EXPECT_TRUE(trasy_tesku().konce(DruhTrasy::posun, 305).empty());
}
