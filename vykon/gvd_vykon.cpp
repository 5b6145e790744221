// vykon/gvd_vykon.cpp - the traffic step over timetables of the expected size and far beyond.
#include "app/cas.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/zaplneni.h"
#include "instalace_vykon.h"
#include "pomocne/zastavky.h"
#include "zaklad/cisla.h"

#include <benchmark/benchmark.h>

namespace {

// Rows spread over the day and the week, one in seven of them today; a set comes from another row, and it is
// handed on.
std::vector<GvdVlak> rady(std::int64_t pocet) {
    constexpr std::array<std::uint8_t, 10> kZacatky = {1, 2, 4, 5, 6, 9, 19, 20, 28, 34};
    std::vector<GvdVlak> vysledek;
    for (std::int64_t i = 0; i < pocet; ++i) {
        const auto t = static_cast<std::int16_t>(i * 617 % 1440);
        GvdVlak r;
        r.zastavky = zastavky_radku({kZacatky[static_cast<std::size_t>(i) % kZacatky.size()], 8, 9},
                                    {-1, static_cast<std::int16_t>(t + 6), static_cast<std::int16_t>(t + 12)},
                                    {t, static_cast<std::int16_t>(t + 7), static_cast<std::int16_t>(t + 15)});
        r.cislo = static_cast<std::int32_t>(i + 1);
        r.vozy = {"754", "Bp", "Bp"};
        r.vozy_vlaky = {0, static_cast<std::int16_t>(i * 31 % 32000 + 1), 0};
        r.navazny_vlak = text_cisla(i * 17 % pocet + 1);
        r.dny = static_cast<std::uint8_t>(1 << i / 10 % 7);
        vysledek.push_back(std::move(r));
    }
    return vysledek;
}

// The scan alone: a layout on which no train finds a track, twenty trains late.
void krok(benchmark::State& stav) {
    nova_simulace();
    gvd_vlaky = TabulkaGvd(rady(stav.range(0)));
    for (int n = 0; n < 20; ++n)
        prevezmi_hlaseni({Text("Zpoždění vlaku "_cz) + text_cisla(900'000 + n) + " +15"});
    int minuta = 0;
    for (auto _ : stav) {
        nastav_cas(minuta++ % 1440 * 60);
        krok_provozu();
    }
    stav.SetComplexityN(stav.range(0));
    nova_simulace();
}
BENCHMARK(krok)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond)
    ->Name("traffic step of rows");

void zaplneni(benchmark::State& stav) {
    for (auto _ : stav) {
        stav.PauseTiming();
        nova_simulace();
        gvd_vlaky = TabulkaGvd(rady(stav.range(0)));
        nastav_cas(8 * 3600);
        stav.ResumeTiming();
        zaplneni_kolejiste(480);
    }
    nova_simulace();
    stav.SetComplexityN(stav.range(0));
}
BENCHMARK(zaplneni)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Complexity(benchmark::oNLogN)
    ->Unit(benchmark::kMillisecond)
    ->Name("fill from rows");

// From the bytes of the timetable to the last train placed: what the operator waits for.
void start(benchmark::State& stav) {
    Zapisovac soubor;
    soubor.l(0);
    soubor.text({});
    for (const GvdVlak& r : rady(stav.range(0)))
        popis_poli(soubor, r);
    for (auto _ : stav) {
        stav.PauseTiming();
        cele_kolejiste();
        nastav_cas(8 * 3600);
        stav.ResumeTiming();
        nacti_gvd_z(soubor.bajty);
        zaplneni_kolejiste(480);
    }
    nova_simulace();
    stav.SetComplexityN(stav.range(0));
}
BENCHMARK(start)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Complexity(benchmark::oNLogN)
    ->Unit(benchmark::kMillisecond)
    ->Name("start with rows");

// Half an hour of traffic steps behind that start, trains and delays as they come; nobody lets them go on.
void pul_hodiny(benchmark::State& stav) {
    const TabulkaGvd jizdni_rad(rady(stav.range(0)));
    for (auto _ : stav) {
        stav.PauseTiming();
        cele_kolejiste();
        gvd_vlaky = jizdni_rad;
        nastav_cas(8 * 3600);
        zaplneni_kolejiste(480);
        stav.ResumeTiming();
        for (int minuta = 481; minuta <= 510; ++minuta) {
            nastav_cas(minuta * 60);
            krok_provozu();
        }
    }
    nova_simulace();
    stav.SetComplexityN(stav.range(0));
}
BENCHMARK(pul_hodiny)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond)
    ->Name("half an hour of traffic with rows");

} // namespace
