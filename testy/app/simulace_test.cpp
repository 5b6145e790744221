// testy/app/simulace_test.cpp - the reset of every table, the debug marker, the error boundary.
#include "app/bezpecne.h"
#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "app/stav_simulace.h"
#include "cesty/cesta.h"
#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vyber.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "zaklad/chyba.h"

#include <new>

namespace {

class NovaSimulace : public SPlatformou {};

TEST_F(NovaSimulace, LeavesNothingOfTheOldOne) {
    nova_simulace();
    const StavSimulace cista = stav_simulace();
    simulace.rychlost = 7;
    relief.kolej.zaloz(12).barva = barvy::cervena;
    relief.lstDenik.radky.emplace_back("radek");
    prejezdy.resize(3);
    cesty.resize(4);
    vyber.volba_zacatek = 5;
    souhlasy.souhlas[1] = true;
    stanicni_prejezdy[1].uzavren = true;
    stav_vyhybek.vyhybka_pohyb.assign(9, true);
    stitky.resize(2);
    prikaz_radek.kod_zpravy = 3;
    menu.jmeno = "mnuVYHYBKA";
    blikani.blikani_radku[2] = true;
    vlaky.resize(60);
    koleje_vlaky.resize(5);
    GvdVlak radek;
    radek.zastavky = {{9, 600, 600}};
    gvd_vlaky = TabulkaGvd({radek});
    parametry.vlevo = 7;
    technologie.jen_pohled = true;
    ASSERT_NE(stav_simulace(), cista);
    nova_simulace();
    EXPECT_EQ(stav_simulace(), cista);
}

TEST_F(NovaSimulace, StateThatWasTakenCanBeGivenBack) {
    nova_simulace();
    relief.kolej.zaloz(12).barva = barvy::cervena;
    cesty.resize(4);
    const StavSimulace drive = stav_simulace();
    const auto revize = revize_reliefu;
    nova_simulace();
    ASSERT_NE(stav_simulace(), drive);
    vrat_stav(drive);
    EXPECT_EQ(stav_simulace(), drive);
    EXPECT_EQ(cesty.size(), 4u);
    EXPECT_GT(revize_reliefu, revize) << "the view paints what was given back";
}

TEST_F(NovaSimulace, RaisesTheRevisionOfTheStore) {
    const auto pred = revize_reliefu;
    nova_simulace();
    EXPECT_GT(revize_reliefu, pred);
}

TEST_F(NovaSimulace, BeginsInAPauseWithOneEmptyRouteAndNoTrain) {
    EXPECT_TRUE(simulace.pauza);
    ASSERT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(cesty[0].prejezd, 0);
    EXPECT_EQ(vlaky.size(), 51u);
    EXPECT_EQ(stanicni_prejezdy[0].pocet, 128);
    EXPECT_EQ(stanicni_prejezdy[0].cas, -3);
}

TEST_F(NovaSimulace, DebugMarkerIsAnyFileOfThatName) {
    EXPECT_FALSE(je_ladeni());
    svet.zapis("debug.dat", "");
    EXPECT_TRUE(je_ladeni());
    simulace.cesta_aplikace = "/no/such/folder\\";
    EXPECT_FALSE(je_ladeni());
}

TEST_F(NovaSimulace, VersionIsJoinedByPoints) {
    EXPECT_EQ(text_verze(), "2.0.1");
}

class VlastniPrvkyObrazovky : public SPlatformou {};

TEST_F(VlastniPrvkyObrazovky, ElementZeroOfEveryKindOfTheLayoutIsThereInvisibleAndBlank) {
    for (const PopisDruhu& d : kDruhy) {
        if (d.druh >= Druh::imgSberac)
            continue;
        const Prvek& p = (relief.*d.tabulka)[0];
        EXPECT_FALSE(p.viditelny) << d.jmeno;
        EXPECT_EQ(p.text(), "") << d.jmeno;
        EXPECT_EQ(p.popis(), "") << d.jmeno;
    }
}

TEST_F(VlastniPrvkyObrazovky, EveryKindHasItsElements) {
    const std::pair<Druh, int> nejvyssi[] = {
        {Druh::lblTabulka_vlaku, 23},
        {Druh::shpblikacka, 47},
        {Druh::svetlo, 5},
        {Druh::pruh, 1},
        {Druh::imgObrzaek_vlaku, 39},
        {Druh::lblPopis_vozu, 39},
        {Druh::lblPN, 1},
        {Druh::lblPredvidany_odjezd, 2},
        {Druh::lblcas, 0},
        {Druh::imgSberac, 0},
        {Druh::lblPrikaz, 0},
    };
    for (const auto& [druh, n] : nejvyssi)
        EXPECT_EQ(tabulka(druh).nejvyssi(), n) << jmeno_druhu(druh);
    for (const PopisDruhu& d : kDruhy)
        if (d.druh != Druh::imgToc2) { // the second monitor's
            EXPECT_GE((relief.*d.tabulka).nejvyssi(), 0) << d.jmeno;
        }
}

TEST_F(VlastniPrvkyObrazovky, EveryPlaceLiesOnTheDesk) {
    for (const PopisDruhu& d : kDruhy)
        for (int n = 0; n <= (relief.*d.tabulka).nejvyssi(); ++n) {
            if (!(relief.*d.tabulka).je(n))
                continue;
            const Prvek& p = (relief.*d.tabulka)[n];
            const bool vozidlo = d.druh == Druh::imgObrzaek_vlaku || d.druh == Druh::lblPopis_vozu;
            EXPECT_GE(p.vlevo, 0) << d.jmeno << n;
            EXPECT_LE(p.nahore() + p.vyska(), 768 * 15) << d.jmeno << n;
            if (!vozidlo) { // a long train goes on to the second monitor
                EXPECT_LE(p.vlevo() + p.sirka(), 1024 * 15) << d.jmeno << n;
            }
        }
}

TEST_F(VlastniPrvkyObrazovky, AllTrainsOfTheStackWaitForTheFirstAtFirst) {
    EXPECT_EQ(relief.lblZasobnik_VZ[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblZasobnik_PV[0].barva, barvy::seda);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "00");
}

TEST_F(VlastniPrvkyObrazovky, ForeseenDeparturesAreHiddenUntilATrainComes) {
    for (int k = 0; k < 3; ++k)
        EXPECT_FALSE(relief.lblPredvidany_odjezd[k].viditelny) << k;
}

class MezChyb : public SPlatformou {};

TEST_F(MezChyb, RunTimeErrorEndsTheProcessWithABox) {
    EXPECT_FALSE(bezpecne([] { chyba(KodChyby::preteceni); }));
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_NE(svet.okna[0].text.find("6"), Text::npos);
    EXPECT_NE(svet.okna[0].text.find(text_chyby(KodChyby::preteceni)), Text::npos);
    EXPECT_EQ(svet.konec, 1);
}

TEST_F(MezChyb, MissingElementEndsTheProcessToo) {
    EXPECT_FALSE(bezpecne([] { relief.kolej[999].barva = 0; }));
    EXPECT_NE(svet.okna.at(0).text.find("340"), Text::npos);
    EXPECT_EQ(svet.konec, 1);
}

TEST_F(MezChyb, LackOfMemoryIsTheErrorSeven) {
    EXPECT_FALSE(bezpecne([] { throw std::bad_alloc(); }));
    EXPECT_NE(svet.okna.at(0).text.find("7"), Text::npos);
}

TEST_F(MezChyb, EndOfTheProcessPassesThrough) {
    EXPECT_THROW(bezpecne([] { throw KonecProgramu{3}; }), KonecProgramu);
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(MezChyb, OrdinaryOperationPasses) {
    bool bezela = false;
    EXPECT_TRUE(bezpecne([&] { bezela = true; }));
    EXPECT_TRUE(bezela);
    EXPECT_TRUE(svet.okna.empty());
    EXPECT_FALSE(svet.konec);
}

} // namespace
