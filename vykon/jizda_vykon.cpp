// vykon/jizda_vykon.cpp - the movement step with many trains under way.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "davka/davka.h"
#include "davka/virtualni_svet.h"
#include "jizda/krok_jizdy.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/zastavky.h"
#include "save/gtn.h"
#include "zaklad/platforma.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <sstream>

namespace {

std::int32_t tik = 1000;

// As many trains as asked, at most one on each element that there can be: a line of sections in a row, on
// each a train with its own standing route to the next section.
struct Koleje {
    DocasnaSlozka slozka;

    // `useku` sections to a train: with two of them the next one is free.
    explicit Koleje(int pocet, int useku = 1) {
        nova_simulace();
        platforma = prazdna_platforma();
        platforma.tik_ms = [] { return tik; };
        simulace.cesta_aplikace = slozka.cesta;
        nastav_cas("8:00:00");
        zaloz_slozku(slozka.cesta + "data");
        zapis_soubor(slozka.cesta + "data\\tesk.top", {});
        for (int n = 0; n < pocet * useku; ++n) {
            relief.kolej.zaloz(n).barva = n % useku == 0 ? barvy::cervena : barvy::zelena;
            relief.kolej[n].stav = TextPohled("0");
            relief.cislo_koleje.zaloz(n).popis = "K" + text_cisla(n);
            relief.navestidlo.zaloz(n).text = znak(229);
        }
        spust_hodiny();
        cesty.clear();
        for (int i = 0; i < pocet; ++i)
            pridej(i * useku, (i * useku + 1) % (pocet * useku));
    }
    ~Koleje() {
        nova_simulace();
        platforma = prazdna_platforma();
    }

    static void pridej(int misto, int dalsi) {
        const auto n = static_cast<std::int16_t>(misto);
        Cesta c;
        c.zacatek = n;
        c.konec = static_cast<std::int16_t>(dalsi);
        c.prvky = {{n, druh_prvku::kolej, 0}, {c.konec, druh_prvku::kolej, 0}};
        c.VC = c.prehozena = c.Postavena = c.Provedena = true;
        c.prejezd = kBezPrejezdu;
        cesty.push_back(c);
        const int v = novy_vlak();
        Vlak& vlak = vlaky[static_cast<std::size_t>(v)];
        vlak.cislo = 1000 + misto;
        vlak.delka = 200;
        vlak.max_rychlost = vlak.rychlost_trati = 100;
        vlak.smer = vlak.muze_jet = true;
        vlak.vozy = {{"754", {}, {}}, {"B", {}, {}}, {"B", {}, {}}};
        vlak.prvky = {{n, druh_prvku::kolej, 0}};
        pridej_na_kolej(n, v, true, -1);
    }
};

benchmark::Counter na_vlak(int pocet) {
    return {static_cast<double>(pocet),
            benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert};
}

// Every train moves on within its section.
void krok_vlaku(benchmark::State& stav) {
    const int pocet = static_cast<int>(stav.range(0));
    const Koleje koleje(pocet);
    for (auto _ : stav) {
        tik += 1000;
        for (int n = 0; n < pocet; ++n)
            nastav_metry(n, 0);
        krok_jizdy();
    }
    stav.SetComplexityN(stav.range(0));
    stav.counters["na vlak"] = na_vlak(pocet);
}
BENCHMARK(krok_vlaku)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);

// Every train runs into the next section: labels, lists of trains on tracks, colours, the log.
void vjezd_vlaku(benchmark::State& stav) {
    const int pocet = static_cast<int>(stav.range(0));
    const Koleje koleje(pocet, 2);
    for (int n = 0; n < 2 * pocet; n += 2)
        nastav_metry(n, 5000);
    const auto cesty_na_zacatku = cesty;
    const auto vlaky_na_zacatku = vlaky;
    const auto koleje_na_zacatku = koleje_vlaky;
    const Relief relief_na_zacatku = relief;
    for (auto _ : stav) {
        stav.PauseTiming();
        cesty = cesty_na_zacatku;
        vlaky = vlaky_na_zacatku;
        koleje_vlaky = koleje_na_zacatku;
        relief = relief_na_zacatku;
        tik += 1000;
        stav.ResumeTiming();
        krok_jizdy();
    }
    if (relief.kolej[1].barva != barvy::cervena)
        stav.SkipWithError("no train has moved");
    stav.SetComplexityN(stav.range(0));
    stav.counters["na vlak"] = na_vlak(pocet);
}
BENCHMARK(vjezd_vlaku)
    ->Arg(10)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(300)
    ->Arg(500)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

// An hour at speed 1 with all four timers at their periods; the trains run up and down their sections.
void simulovana_hodina(benchmark::State& stav) {
    const Koleje koleje(static_cast<int>(stav.range(0)));
    std::vector<std::int32_t> splatno(casovace.size());
    for (auto _ : stav) {
        const std::int32_t zacatek = tik;
        for (std::size_t k = 0; k < casovace.size(); ++k)
            splatno[k] = tik + casovace[k].perioda_ms;
        while (tik - zacatek < 3'600'000) {
            tik = *std::min_element(splatno.begin(), splatno.end());
            for (std::size_t k = 0; k < casovace.size(); ++k)
                if (splatno[k] == tik) {
                    casovace[k].telo();
                    splatno[k] += casovace[k].perioda_ms;
                }
            if ((tik - zacatek) % 5000 == 0)
                for (int n = 0; n < stav.range(0); ++n)
                    nastav_metry(n, 0);
        }
    }
    if (relief.lblcas[0].text() == "8:00:00")
        stav.SkipWithError("the clock has not moved");
}
BENCHMARK(simulovana_hodina)->Arg(30)->Unit(benchmark::kMillisecond)->Iterations(1);

// The script on the staged installation, the start included, as the runner plays it.
void sehraj(benchmark::State& stav, const char* text) {
    for (auto _ : stav) {
        std::istringstream skript(text);
        std::ostringstream vystup, chyby;
        if (spust_davku({.slozka = TESK_INSTALACE}, skript, vystup, chyby) != navrat::v_poradku)
            stav.SkipWithError(chyby.str().c_str());
    }
    nova_simulace();
    platforma = prazdna_platforma();
}

// An hour of the week for learning on the whole junction.
void hodina_cvicneho_tydne(benchmark::State& stav) {
    sehraj(stav, "semeno 3\npc 2026-01-05 08:00:00\n"
                 "spust cas=6:00 den=0 rychlost=1 gvd=GVD_cvicny zpozdeni=0\n"
                 "prihlas\ncekej_do 7:00:00\n");
}
BENCHMARK(hodina_cvicneho_tydne)->Unit(benchmark::kMillisecond)->Iterations(1);

// A working day of the full week without the hands of a dispatcher.
void den_plneho_tydne(benchmark::State& stav) {
    sehraj(stav, "semeno 3\npc 2026-01-05 08:00:00\n"
                 "spust cas=0:15 den=0 rychlost=8 gvd=GVD_plny zpozdeni=1\n"
                 "prihlas\ncekej_do 23:59:00\n");
}
BENCHMARK(den_plneho_tydne)->Unit(benchmark::kMillisecond)->Iterations(1);

// All seven days, every second of them.
void tyden_plneho_tydne(benchmark::State& stav) {
    sehraj(stav, "semeno 3\npc 2026-01-05 08:00:00\n"
                 "spust cas=0:15 den=0 rychlost=1 gvd=GVD_plny zpozdeni=1\n"
                 "prihlas\ncekej 10065min\n");
}
BENCHMARK(tyden_plneho_tydne)->Unit(benchmark::kMillisecond)->Iterations(1);

// The same with the automatic dispatcher at the desk.
void tyden_s_vypravcim(benchmark::State& stav) {
    sehraj(stav, "semeno 3\npc 2026-01-05 08:00:00\n"
                 "spust cas=0:15 den=0 rychlost=1 gvd=GVD_plny zpozdeni=1\n"
                 "prihlas\nvypravci ano\ncekej 10065min\n");
}
BENCHMARK(tyden_s_vypravcim)->Unit(benchmark::kMillisecond)->Iterations(1);

// The cost of a tick of each timer, the dispatcher at work: all of them run through an hour of the morning,
// and one is measured.
void tik_casovace(benchmark::State& stav, std::size_t ktery) {
    std::istringstream skript("semeno 3\npc 2026-01-05 08:00:00\n"
                              "spust cas=6:00 den=0 rychlost=1 gvd=GVD_plny zpozdeni=1\n"
                              "prihlas\nvypravci ano\ncekej 30min\n");
    std::ostringstream vystup, chyby;
    if (spust_davku({.slozka = TESK_INSTALACE}, skript, vystup, chyby) != navrat::v_poradku)
        stav.SkipWithError(chyby.str().c_str());
    constexpr std::int64_t kHodina_ms = 3'600'000;
    for (auto _ : stav) {
        // of the processor: what others do on the machine is not the timer's
        std::clock_t celkem = 0, nejdelsi = 0;
        std::int64_t tiku = 0;
        const std::int64_t konec = virtualni_hodiny.cas_ms + kHodina_ms;
        while (virtualni_hodiny.cas_ms < konec) {
            virtualni_hodiny.cas_ms += 50; // every period is a multiple
            for (std::size_t k = 0; k < casovace.size(); ++k) {
                if (virtualni_hodiny.cas_ms % casovace[k].perioda_ms != 0)
                    continue;
                const std::clock_t zacatek = std::clock();
                casovace[k].telo();
                if (k != ktery)
                    continue;
                const std::clock_t trvalo = std::clock() - zacatek;
                celkem += trvalo;
                nejdelsi = std::max(nejdelsi, trvalo);
                ++tiku;
            }
        }
        const auto sekund = [](std::clock_t cas) {
            return static_cast<double>(cas) / static_cast<double>(CLOCKS_PER_SEC);
        };
        stav.SetIterationTime(sekund(celkem));
        stav.counters["tick"] = sekund(celkem) / static_cast<double>(std::max<std::int64_t>(tiku, 1));
        stav.counters["longest"] = sekund(nejdelsi);
    }
    gtn_zavri();
    nova_simulace();
    platforma = prazdna_platforma();
}
[[maybe_unused]] const bool casovace_zapsany = [] {
    for (std::size_t k = 0; k < casovace.size(); ++k)
        benchmark::RegisterBenchmark(("an hour of " + std::string(casovace[k].jmeno)).c_str(),
                                     [k](benchmark::State& stav) { tik_casovace(stav, k); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseManualTime();
    return true;
}();

// Every train waits at a stop: the pass of each simulated minute.
void cekajici_vlaky(benchmark::State& stav) {
    const int pocet = static_cast<int>(stav.range(0));
    const Koleje koleje(pocet);
    for (int v = 0; v < pocet; ++v) {
        Vlak& vlak = vlaky[static_cast<std::size_t>(v)];
        vlak.zastavky = zastavky_vlaku({9, 12}, {kZadny, 900}, {800, kZadny});
    }
    for (auto _ : stav) {
        for (int v = 0; v < pocet; ++v)
            vlaky[static_cast<std::size_t>(v)].muze_jet = false;
        aktualizuj_cekani();
    }
}
BENCHMARK(cekajici_vlaky)->Arg(100);

} // namespace
