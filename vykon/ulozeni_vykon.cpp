// vykon/ulozeni_vykon.cpp - saving and starting from a save, with a hundred trains on the whole junction.
#include "app/cas.h"
#include "app/nacteni.h"
#include "instalace_vykon.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "zaklad/platforma.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

namespace {

// A hundred trains with the history of a long day, each on a track of its own.
struct Kolejiste {
    std::filesystem::path slozka;

    Kolejiste() {
        std::string vzor = (std::filesystem::temp_directory_path() / "tesk-vykon-XXXXXX").string();
        if (mkdtemp(vzor.data()) == nullptr)
            std::abort();
        slozka = vzor;
        platforma = prazdna_platforma();
        cele_kolejiste();
        simulace.cesta_aplikace = vzor + "/";
        nastav_cas("11:59:58");
        simulace.cas_zacatku = 719;
        for (int i = 0, kolej = 0; i < 100; ++i) {
            do
                ++kolej;
            while (!je_kolej(kolej));
            Vlak& v = vlaky[static_cast<std::size_t>(novy_vlak())];
            v.cislo = 1000 + i;
            v.muze_jet = true;
            v.zastavky.assign(12, {9, 700, 700, 700});
            v.vozy.assign(8, {"Bp", "4701", "Bp_1.ico"});
            v.prvky.assign(300, {static_cast<std::int16_t>(kolej), druh_prvku::kolej, 0});
            v.prvek_konec = 299;
            relief.kolej[kolej].barva = barvy::cervena;
        }
    }
    ~Kolejiste() {
        std::error_code kod;
        std::filesystem::remove_all(slozka, kod);
        nova_simulace();
    }
    Text soubor() const { return (slozka / "hra.sim").string(); }
};

void ulozeni_na_disk(benchmark::State& stav) {
    const Kolejiste kolejiste;
    for (auto _ : stav)
        uloz_simulaci(kolejiste.soubor(), true);
    stav.counters["bajtu"] = static_cast<double>(bajty_zaznamu(zaznam_simulace()).size());
}
BENCHMARK(ulozeni_na_disk)->Unit(benchmark::kMillisecond);

void nacteni_z_disku(benchmark::State& stav) {
    const Kolejiste kolejiste;
    uloz_simulaci(kolejiste.soubor(), true);
    for (auto _ : stav)
        if (!nacti_simulaci(kolejiste.soubor()))
            std::abort();
}
BENCHMARK(nacteni_z_disku)->Unit(benchmark::kMillisecond);

} // namespace
