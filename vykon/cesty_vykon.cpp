// vykon/cesty_vykon.cpp - the route machine's tick and the look-ups in the interlocking tables.
#include "app/cas.h"
#include "app/nova_simulace.h"
#include "cesty/duvod.h"
#include "cesty/tabulky.h"
#include "cesty/tik_volby.h"
#include "cesty/zasobnik.h"
#include "pomocne/male_kolejiste.h"

#include <benchmark/benchmark.h>

namespace {

// A junction of 60 tracks with a signal and a switch each, and a table of `pocet` routes.
struct Stul {
    DocasnaSlozka slozka;

    explicit Stul(int pocet = 60) {
        nova_simulace();
        simulace.cesta_aplikace = slozka.cesta;
        simulace.pauza = false;
        nastav_cas("8:00:00");
        for (int n = 1; n <= 120; ++n) {
            relief.kolej.zaloz(n).barva = barvy::seda;
            relief.cislo_koleje.zaloz(n).popis = "K" + text_cisla(n);
            relief.navestidlo.zaloz(n).text = znak(229);
            relief.navestidlo[n].barva = barvy::seda;
            relief.navestidlo[n].popis = "TST S" + text_cisla(n);
            relief.imgVyhybka.zaloz(n).stav = TextPohled("2");
        }
        Zapisovac tabulka;
        for (int i = 0; i < pocet; ++i)
            popis_zaznamu_cesty(tabulka, zaznam(i));
        zaloz_slozku(slozka.cesta + "data");
        zapis_soubor(slozka.cesta + "data\\tesk.zat", tabulka.bajty);
        zapis_soubor(slozka.cesta + "data\\tesk.stg", {});
        zapis_soubor(slozka.cesta + "data\\tesk.top", {});
    }
    ~Stul() { nova_simulace(); }

    static const ZaznamCesty& zaznam(int i) {
        static ZaznamCesty z;
        const auto n = static_cast<std::int16_t>(i % 60 + 1);
        z = {n,
             static_cast<std::int16_t>(i < 60 ? n + 60 : 200 + i),
             {{n, druh_prvku::kolej, 2},
              {n, druh_prvku::vyhybka, 2},
              {static_cast<std::int16_t>(n + 60), druh_prvku::kolej, 0}},
             0};
        return z;
    }

    // Routes 0 to pocet - 1 in the stack.
    static void zarad(int pocet, bool stojici) {
        cesty.clear();
        for (int i = 0; i < pocet; ++i) {
            const ZaznamCesty& z = zaznam(i);
            Cesta c;
            c.zacatek = z.zacatek;
            c.konec = z.konec;
            c.prvky = z.prvky;
            c.VC = true;
            c.cas_stavby = 0;
            c.ZT = static_cast<std::int16_t>(i + 1);
            c.prehozena = c.Postavena = c.Provedena = stojici;
            cesty.push_back(c);
        }
    }
};

void tik_stojicich(benchmark::State& stav) {
    const Stul stul;
    Stul::zarad(static_cast<int>(stav.range(0)), true);
    for (auto _ : stav)
        tik_volby();
    stav.SetComplexityN(stav.range(0));
}
BENCHMARK(tik_stojicich)
    ->Arg(15)
    ->Arg(30)
    ->Arg(60)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN)
    ->Name("tick over standing routes");

void tik_cekajicich(benchmark::State& stav) {
    const Stul stul;
    Stul::zarad(static_cast<int>(stav.range(0)), false);
    prepni_pv_vz(false);
    for (int n = 61; n <= 120; ++n)
        relief.kolej[n].barva = barvy::cervena; // every end is occupied
    for (auto _ : stav)
        tik_volby();
    stav.SetComplexityN(stav.range(0));
}
BENCHMARK(tik_cekajicich)
    ->Arg(15)
    ->Arg(30)
    ->Arg(60)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN)
    ->Name("tick over blocked routes");

void hledani_cesty(benchmark::State& stav) {
    const Stul stul(4000);
    int i = 0;
    for (auto _ : stav) {
        const ZaznamCesty& z = Stul::zaznam(i++ % 4000);
        benchmark::DoNotOptimize(najdi_v_tabulce(TabulkaCest::zat, z.zacatek, z.konec).radek);
    }
}
BENCHMARK(hledani_cesty)->Unit(benchmark::kMicrosecond)->Name("look-up among 4000 routes");

void duvod(benchmark::State& stav) {
    const Stul stul;
    Stul::zarad(60, false);
    relief.kolej[61].barva = barvy::cervena;
    for (auto _ : stav)
        benchmark::DoNotOptimize(duvod_cekani(59).size());
}
BENCHMARK(duvod)->Unit(benchmark::kMicrosecond)->Name("reason of the last of 60 routes");

} // namespace
