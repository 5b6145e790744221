// vykon/kolejiste_vykon.cpp - compilation of the whole junction, its drawing, its routes and their proof, and
// of the timetables.
#ifdef TESK_S_PREKLADACEM
#include "gvd/dukaz.h"
#include "gvd/prekladac.h"
#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "zaklad/soubory.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

std::vector<std::string> zdroje(const std::filesystem::path& slozka, const char* pripona) {
    std::vector<std::string> texty;
    for (const auto& polozka : std::filesystem::directory_iterator(slozka))
        if (polozka.path().extension() == pripona) {
            std::ifstream f(polozka.path(), std::ios::binary);
            std::ostringstream text;
            text << f.rdbuf();
            texty.push_back(text.str());
        }
    return texty;
}

// The build has 3 s for this and the timetables; the proof looks at every pair of routes.
void preklad(benchmark::State& stav) {
    using namespace kolejiste;
    const std::vector<std::string> texty = zdroje(TESK_ZDROJE, ".tk");
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

// All that are shipped, each proved on the compiled junction.
void jizdni_rady(benchmark::State& stav) {
    const std::vector<std::string> texty = zdroje(TESK_ZDROJE "/gvd", ".gvd");
    const auto data = [](const char* co) { return nacti_soubor(Text(TESK_INSTALACE) + "data/" + co); };
    for (auto _ : stav) {
        std::size_t vlaku = 0, vad = 0;
        for (const std::string& text : texty) {
            std::vector<ChybaZdroje> chyby;
            const JizdniRad rad = preloz_jizdni_rad(text, chyby);
            const planovani::Dukaz dukaz =
                planovani::dokaz(rad, planovani::sestav_sit(data("tesk.top"), data("tesk.zat")));
            vlaku += rad.vlaky.size();
            vad += chyby.size() + dukaz.chyby.size();
        }
        stav.counters["trains"] = static_cast<double>(vlaku);
        stav.counters["faults"] = static_cast<double>(vad);
    }
}
BENCHMARK(jizdni_rady)->Unit(benchmark::kMillisecond)->Name("the timetables compiled and proved");

} // namespace
#endif
