// vykon/gvd_vykon.cpp - the traffic step over timetables of the expected size and far beyond.
#include "app/cas.h"
#include "app/simulace.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/zaplneni.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <benchmark/benchmark.h>

namespace {

// Rows spread over the day and the week, one in seven of them today.
std::vector<GvdVlak> rady(std::int64_t pocet) {
    constexpr std::array<std::uint8_t, 10> kZacatky = {1, 2, 4, 5, 6, 9, 19, 20, 28, 34};
    std::vector<GvdVlak> vysledek;
    for (std::int64_t i = 0; i < pocet; ++i) {
        const auto t = static_cast<std::int16_t>(i * 617 % 1440);
        GvdVlak r;
        r.stanice = {kZacatky[static_cast<std::size_t>(i) % kZacatky.size()], 8, 9};
        r.prijezdy = {-1, static_cast<std::int16_t>(t + 6), static_cast<std::int16_t>(t + 12)};
        r.odjezdy = {t, static_cast<std::int16_t>(t + 7), static_cast<std::int16_t>(t + 15)};
        r.cislo = static_cast<std::int32_t>(i + 1);
        r.vozy = {"754", "Bp", "Bp"};
        r.vozy_vlaky = {0, 0, 0};
        r.dny = static_cast<std::uint8_t>(1 << i / 10 % 7);
        vysledek.push_back(std::move(r));
    }
    return vysledek;
}

// The scan alone: a layout on which no train finds a track, twenty trains late.
void krok(benchmark::State& stav) {
    nova_simulace();
    gvd_vlaky = rady(stav.range(0));
    for (int n = 0; n < 20; ++n)
        relief.lstZpravy.radky.push_back(Text("Zpoždění vlaku "_cz) + text_cisla(900'000 + n) + " +15");
    int minuta = 0;
    for (auto _ : stav) {
        relief.lblcas[0].text = text_casu(minuta++ % 1440 * 60);
        krok_provozu();
    }
    stav.SetItemsProcessed(stav.iterations() * stav.range(0));
    nova_simulace();
}
BENCHMARK(krok)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond)
    ->Name("traffic step of rows");

void zaplneni(benchmark::State& stav) {
    for (auto _ : stav) {
        stav.PauseTiming();
        nova_simulace();
        gvd_vlaky = rady(stav.range(0));
        relief.lblcas[0].text = text_casu(8 * 3600);
        stav.ResumeTiming();
        zaplneni_kolejiste(480);
    }
    nova_simulace();
}
BENCHMARK(zaplneni)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMillisecond)->Name("fill from rows");

} // namespace
