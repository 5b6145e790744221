// vykon/hlavni.cpp - runs the benchmarks, holds those that have a limit against it, says how the cost grows
// with what there is to do, and how much memory the process needed at most.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

// Processor time that something may take on one core of a usual machine.
struct Mez {
    std::vector<std::string> mereni; // names of benchmarks; their times are added
    const char* co;
    double ms;
};
const std::vector<Mez>& meze() {
    static const std::vector<Mez> vse = {
        {{"the junction compiled and proved", "the timetables compiled and proved"},
         "překlad a důkaz kolejiště a jízdních řádů",
         3000},
        {{"data files at the start"}, "načtení dat při startu", 50},
        {{"full repaint of the junction, 1920 by 1080"}, "překreslení celého stolu, 1920 na 1080", 8},
        {{"repaint of a diagram of a whole day while trains run/1920/1080"},
         "překreslení nákresu celého dne za jízdy vlaků, 1920 na 1080",
         8},
        {{"start with rows/100000"}, "start se 100 000 řádky jízdního řádu", 1000},
        {{"den_plneho_tydne/iterations:1"}, "den plného týdne bez rukou, rychlost 8", 1000},
        {{"tyden_plneho_tydne/iterations:1"}, "plný týden bez rukou, rychlost 1", 4000},
        {{"tyden_s_vypravcim/iterations:1"}, "plný týden s automatickým výpravčím, rychlost 1", 10000},
    };
    return vse;
}

// How much longer something takes when there is more of it.
struct Rust {
    std::string mensi, vetsi; // names of benchmarks
    double kolikrat;          // more of it
    const char* co;
};
const std::vector<Rust>& rust() {
    static const std::vector<Rust> vse = {
        {"krok_vlaku/10", "krok_vlaku/100", 10, "krok jízdy, vlaky 10 a 100"},
        {"krok_vlaku/100", "krok_vlaku/1000", 10, "krok jízdy, vlaky 100 a 1000"},
        {"tick over standing routes/15", "tick over standing routes/60", 4,
         "automat cest, stojící cesty 15 a 60"},
        {"tick over blocked routes/15", "tick over blocked routes/60", 4,
         "automat cest, čekající cesty 15 a 60"},
        {"traffic step of rows/1000", "traffic step of rows/100000", 100,
         "krok provozu, řádky 1000 a 100 000"},
        {"half an hour of traffic with rows/1000", "half an hour of traffic with rows/100000", 100,
         "půl hodiny provozu, řádky 1000 a 100 000"},
        {"start with rows/1000", "start with rows/100000", 100, "start, řádky 1000 a 100 000"},
    };
    return vse;
}

// The usual table, and what it said.
class Tabulka : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& behy) override {
        for (const Run& b : behy)
            if (b.run_type == Run::RT_Iteration && !b.error_occurred)
                casy_ms[b.benchmark_name()] =
                    b.GetAdjustedCPUTime() * 1000 / benchmark::GetTimeUnitMultiplier(b.time_unit);
        ConsoleReporter::ReportRuns(behy);
    }
    void vypis_meze() const {
        std::printf("\nProcesorový čas            naměřeno        mez\n");
        for (const Mez& m : meze()) {
            double ms = 0;
            if (std::any_of(m.mereni.begin(), m.mereni.end(),
                            [&](const std::string& jmeno) { return !casy_ms.contains(jmeno); }))
                continue; // not run, by the choice of the caller
            for (const std::string& jmeno : m.mereni)
                ms += casy_ms.at(jmeno);
            std::printf("%24s%8.1f ms %7.0f ms  %s\n", ms <= m.ms ? "v mezi" : "NAD MEZÍ", ms, m.ms, m.co);
        }
    }

    void vypis_rust() const {
        std::printf("\nRůst nákladů            více práce   déle trvá\n");
        for (const Rust& r : rust())
            if (casy_ms.contains(r.mensi) && casy_ms.contains(r.vetsi)) // run, by the choice of the caller
                std::printf("%28.0fkrát %8.1fkrát  %s\n", r.kolikrat,
                            casy_ms.at(r.vetsi) / std::max(casy_ms.at(r.mensi), 1e-9), r.co);
    }

private:
    std::map<std::string, double> casy_ms;
};

} // namespace

int main(int pocet, char** slova) {
    benchmark::Initialize(&pocet, slova);
    if (benchmark::ReportUnrecognizedArguments(pocet, slova))
        return 2;
    Tabulka tabulka;
    benchmark::RunSpecifiedBenchmarks(&tabulka);
    benchmark::Shutdown();
    tabulka.vypis_meze();
    tabulka.vypis_rust();
    std::ifstream stav("/proc/self/status");
    for (std::string radek; std::getline(stav, radek);)
        if (radek.starts_with("VmHWM:"))
            std::printf("%s\n", radek.c_str());
}
