// vykon/instalace_vykon.h - the staged installation as the benchmarks take it.
#pragma once

#include "app/nova_simulace.h"
#include "app/simulace.h"
#include "relief/nacti_relief.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "zaklad/soubory.h"

#include <benchmark/benchmark.h>

// Is `soubor` (below the installation) staged? When it is not, the benchmark is left out and says so.
inline bool je_v_instalaci(benchmark::State& stav, TextPohled soubor) {
    if (soubor_existuje(Text(TESK_INSTALACE) + Text(soubor)))
        return true;
    stav.SkipWithError("the installation is not staged");
    return false;
}

// The whole junction as it is drawn, everything at rest.
inline void cele_kolejiste() {
    nova_simulace();
    simulace.cesta_aplikace = TESK_INSTALACE;
    nacti_relief();
    nacti_prejezdy();
    for (int n = 0; n <= kNejvyssiPrvek; ++n)
        if (je_kolej(n)) {
            relief.kolej[n].barva = barvy::seda;
            relief.kolej[n].stav = TextPohled("0");
        }
}
