// vykon/hlavni.cpp - runs the benchmarks and says how much memory the process needed at most.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <string>

int main(int pocet, char** slova) {
    benchmark::Initialize(&pocet, slova);
    if (benchmark::ReportUnrecognizedArguments(pocet, slova))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::ifstream stav("/proc/self/status");
    for (std::string radek; std::getline(stav, radek);)
        if (radek.starts_with("VmHWM:"))
            std::printf("%s\n", radek.c_str());
}
