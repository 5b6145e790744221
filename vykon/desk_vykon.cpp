// vykon/desk_vykon.cpp - what the desk tells of trains: table, information, prediction.
#include "app/cas.h"
#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/predvidane_vlaky.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "pomocne/zastavky.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <utility>

namespace {

void postav_vlak(std::size_t i, std::size_t vozu) {
    Vlak& v = vlaky[i];
    v = Vlak{};
    v.cislo = static_cast<std::int32_t>(1000 + i);
    v.druh = 5;
    v.nazev = "Skalak";
    v.delka = 220;
    v.max_rychlost = 120;
    v.zastavky = zastavky_vlaku({1, 8, 9, 5}, {kZadny, 606, 610, 625}, {600, 607, 612, kZadny});
    v.pokyn = "5k";
    v.vozy.assign(vozu, {"OBB Bmpz", "1500", "B.ico"});
    v.vozy.front().rada = "363";
}

// All 24 lines, then as many trains more: each moves the whole table down.
void tabulka_vlaku(benchmark::State& stav) {
    nova_simulace();
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        postav_vlak(i, 1);
    for (auto _ : stav) {
        for (int i = 0; i < kRadkuTabulky; ++i)
            prevezmi_radek_tabulky(i, {});
        for (int i = 0; i < 2 * kRadkuTabulky; ++i)
            pridej_do_tabulky(i);
    }
    stav.SetItemsProcessed(stav.iterations() * 2 * kRadkuTabulky);
    nova_simulace();
}
BENCHMARK(tabulka_vlaku)->Unit(benchmark::kMicrosecond)->Name("train table, 48 trains");

void informace(benchmark::State& stav) {
    nova_simulace();
    const auto vozu = static_cast<std::size_t>(stav.range(0));
    postav_vlak(0, vozu);
    postav_vlak(1, vozu);
    vlaky[1].posun = true;
    for (auto _ : stav) {
        info_o_vlaku({}, 0);
        info_o_vlaku({}, 1);
    }
    stav.SetItemsProcessed(stav.iterations() * 2);
    nova_simulace();
}
BENCHMARK(informace)->Arg(1)->Arg(40)->Unit(benchmark::kMicrosecond)->Name("train information, vehicles");

// Every row calls at the station, two in each minute are due, twenty trains are late.
void predpoved(benchmark::State& stav) {
    nova_simulace();
    std::vector<GvdVlak> radky;
    for (std::int64_t i = 0; i < stav.range(0); ++i) {
        GvdVlak r;
        const auto t = static_cast<std::int16_t>(i * 617 % 1440);
        r.zastavky = zastavky_radku({1, 9}, {-1, static_cast<std::int16_t>(t + 12)}, {t, -1});
        r.cislo = static_cast<std::int32_t>(i + 1);
        r.druh = 7;
        r.dny = 0x7F;
        radky.push_back(std::move(r));
    }
    gvd_vlaky = TabulkaGvd(std::move(radky));
    for (int n = 0; n < 20; ++n)
        prevezmi_hlaseni({Text("Zpoždění vlaku "_cz) + text_cisla(900'000 + n) + " +15"});
    simulace.pauza = false;
    nastav_cas("10:00:00");
    for (auto _ : stav) {
        relief.lstDenik.radky.clear();
        predvidane_vlaky(1);
    }
    stav.SetItemsProcessed(stav.iterations() * stav.range(0));
    nova_simulace();
}
BENCHMARK(predpoved)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMicrosecond)->Name("prediction over rows");

} // namespace
