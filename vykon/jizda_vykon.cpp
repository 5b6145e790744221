// vykon/jizda_vykon.cpp - the movement step with many trains under way.
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "jizda/krok_jizdy.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "pomocne/male_kolejiste.h"
#include "zaklad/platforma.h"

#include <benchmark/benchmark.h>

namespace {

std::int32_t tik = 1000;

// As many trains as asked, each on a track of its own with a standing route over the next two.
struct Koleje {
    DocasnaSlozka slozka;

    explicit Koleje(int pocet) {
        nova_simulace();
        platforma = prazdna_platforma();
        platforma.tik_ms = [] { return tik; };
        simulace.cesta_aplikace = slozka.cesta;
        relief.lblcas[0].text = TextPohled("8:00:00");
        zaloz_slozku(slozka.cesta + "data");
        zapis_soubor(slozka.cesta + "data\\tesk.top", {});
        for (int n = 1; n <= 3 * pocet; ++n) {
            relief.kolej.zaloz(n).barva = barvy::seda;
            relief.kolej[n].stav = TextPohled("0");
            relief.cislo_koleje.zaloz(n).popis = "K" + text_cisla(n);
            relief.navestidlo.zaloz(n).text = znak(229);
        }
        spust_hodiny();
        cesty.clear();
        for (int i = 0; i < pocet; ++i)
            pridej(i);
    }
    ~Koleje() {
        nova_simulace();
        platforma = prazdna_platforma();
    }

    static void pridej(int i) {
        const auto n = static_cast<std::int16_t>(3 * i + 1);
        Cesta c;
        c.zacatek = n;
        c.konec = static_cast<std::int16_t>(n + 2);
        c.prvky = {n, static_cast<std::int16_t>(n + 1), c.konec};
        c.druhy = {1, 1, 1};
        c.polohy = {0, 0, 0};
        c.VC = c.prehozena = c.Postavena = c.Provedena = true;
        c.prejezd = kBezPrejezdu;
        cesty.push_back(c);
        const int v = novy_vlak();
        Vlak& vlak = vlaky[static_cast<std::size_t>(v)];
        vlak.cislo = 1000 + i;
        vlak.delka = 200;
        vlak.max_rychlost = vlak.rychlost_trati = 100;
        vlak.smer = vlak.muze_jet = true;
        vlak.vozy = {"754", "B", "B"};
        vlak.vozy_urceni.resize(3);
        vlak.vozy_obrazek.resize(3);
        vlak.prvky = {n};
        vlak.prvky_druh = {1};
        vlak.prvky_poloha = {0};
        relief.kolej[n].barva = barvy::cervena;
        pridej_na_kolej(n, v, true, -1);
    }
};

// Every train moves on within its track.
void krok_vlaku(benchmark::State& stav) {
    const int pocet = static_cast<int>(stav.range(0));
    const Koleje koleje(pocet);
    for (auto _ : stav) {
        tik += 1000;
        for (int i = 0; i < pocet; ++i)
            nastav_metry(3 * i + 1, 0);
        krok_jizdy();
    }
}
BENCHMARK(krok_vlaku)->Arg(10)->Arg(100);

// Every train waits at a stop: the pass of each simulated minute.
void cekajici_vlaky(benchmark::State& stav) {
    const int pocet = static_cast<int>(stav.range(0));
    const Koleje koleje(pocet);
    for (int v = 0; v < pocet; ++v) {
        Vlak& vlak = vlaky[static_cast<std::size_t>(v)];
        vlak.stanice = {9, 12};
        vlak.prijezd = {-3, 900};
        vlak.odjezd = vlak.odjezd_realny = {800, -3};
    }
    for (auto _ : stav) {
        for (int v = 0; v < pocet; ++v)
            vlaky[static_cast<std::size_t>(v)].muze_jet = false;
        aktualizuj_cekani();
    }
}
BENCHMARK(cekajici_vlaky)->Arg(100);

} // namespace
