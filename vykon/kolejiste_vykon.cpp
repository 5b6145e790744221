// vykon/kolejiste_vykon.cpp - compilation of the whole junction: its drawing, its routes and their proof.
#ifdef TESK_S_PREKLADACEM
#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

// The build has 3 s for this and the timetables; the proof looks at every pair of routes.
void preklad(benchmark::State& stav) {
    using namespace kolejiste;
    std::vector<std::string> texty;
    for (const auto& polozka : std::filesystem::directory_iterator(TESK_ZDROJE))
        if (polozka.path().extension() == ".tk") {
            std::ifstream f(polozka.path(), std::ios::binary);
            std::ostringstream text;
            text << f.rdbuf();
            texty.push_back(text.str());
        }
    for (auto _ : stav) {
        Plan plan;
        std::vector<Zavada> zavady;
        for (const std::string& text : texty)
            precti(text, "z.tk", plan, zavady);
        const Graf graf = sestav_graf(plan, zavady);
        const auto jeden = nakresli(plan, Obraz::jeden, zavady), dva = nakresli(plan, Obraz::dva, zavady);
        zkontroluj(plan, graf, jeden, dva, zavady);
        const std::vector<Trasa> trasy = odvod_trasy(plan, graf, zavady);
        zkontroluj_trasy(plan, graf, trasy, zavady);
        stav.counters["routes"] = static_cast<double>(trasy.size());
        stav.counters["faults"] = static_cast<double>(zavady.size());
    }
}
BENCHMARK(preklad)->Unit(benchmark::kMillisecond)->Name("the junction compiled and proved");

} // namespace
#endif
