// vykon/relief_vykon.cpp - loading of the layout and the queries that the running of trains makes.
#include "gvd/gvd.h"
#include "instalace_vykon.h"
#include "pomocne/male_kolejiste.h"
#include "relief/topologie.h"

#include <benchmark/benchmark.h>

namespace {

// A layout of the expected size: 1000 tracks, 1000 labels, 700 main signals, 300 targets.
std::vector<ZaznamReliefu> velky_relief() {
    std::vector<ZaznamReliefu> zaznamy;
    for (int n = 0; n < 1000; ++n) {
        const int x = n % 50 * 300, y = n / 50 * kVyskaZnaku;
        zaznamy.push_back(zaznam_reliefu(TypReliefu::kolej, n, 0, "", x, x + 300, y, y));
        zaznamy.push_back(zaznam_reliefu(TypReliefu::cislo_koleje, n, 0, "K" + text_cisla(n), x, 0, y, 0));
        zaznamy.push_back(n < 700 ? zaznam_reliefu(TypReliefu::navestidlo, n, 229, "THN S", x, 0, y, 0)
                                  : zaznam_reliefu(TypReliefu::cil, n, 0, "kolej", x, 300, y, 195));
    }
    return zaznamy;
}

void cteni_reliefu(benchmark::State& stav) {
    const Bajty bajty = soubor_reliefu(velky_relief());
    for (auto _ : stav) {
        relief = novy_relief();
        nacti_relief(bajty);
        benchmark::DoNotOptimize(relief.kolej.nejvyssi());
    }
    relief = Relief{};
}
BENCHMARK(cteni_reliefu)->Unit(benchmark::kMicrosecond)->Name("relief of 3000 records");

void tisic_delek(benchmark::State& stav) {
    const DocasnaSlozka slozka;
    simulace.cesta_aplikace = slozka.cesta;
    zaloz_slozku(slozka.cesta + "data");
    std::vector<std::pair<int, int>> delky;
    for (int n = 0; n < 1000; ++n)
        delky.emplace_back(n, n % 900 + 50);
    zapis_soubor(slozka.cesta + "data\\tesk.top", soubor_topologie(delky));
    for (auto _ : stav)
        for (int n = 0; n < 1000; ++n)
            benchmark::DoNotOptimize(delka_koleje(n));
    simulace = Simulace{};
}
BENCHMARK(tisic_delek)->Unit(benchmark::kMicrosecond)->Name("1000 lengths of elements");

void barvy_prvku(benchmark::State& stav) {
    relief = novy_relief();
    nacti_relief(soubor_reliefu(velky_relief()));
    for (auto _ : stav)
        for (int n = 0; n < 1000; ++n)
            if (je_kolej(n))
                relief.kolej[n].barva = relief.kolej[n].barva == barvy::seda ? barvy::cervena : barvy::seda;
    relief = Relief{};
}
BENCHMARK(barvy_prvku)->Unit(benchmark::kMicrosecond)->Name("1000 tracks painted");

// Everything that the start reads, from the staged installation: to stay below 50 ms.
void soubory_startu(benchmark::State& stav) {
    constexpr const char* kJizdniRad = "gvd\\GVD_plny.dat";
    if (!je_v_instalaci(stav, "data\\tesk.rea") || !je_v_instalaci(stav, kJizdniRad))
        return;
    simulace.cesta_aplikace = TESK_INSTALACE;
    simulace.soubor_gvd = simulace.cesta_aplikace + kJizdniRad;
    for (auto _ : stav) {
        relief = novy_relief();
        nacti_relief();
        nacti_prejezdy();
        nacti_gvd();
        for (const char* tabulka : {"tesk.zat", "tesk.zpc", "tesk.stg", "tesk.top"})
            benchmark::DoNotOptimize(nacti_soubor(simulace.cesta_aplikace + "data\\" + tabulka));
    }
    simulace = Simulace{};
    relief = Relief{};
}
BENCHMARK(soubory_startu)->Unit(benchmark::kMillisecond)->Name("data files at the start");

} // namespace
