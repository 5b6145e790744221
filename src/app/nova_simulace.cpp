// app/nova_simulace.cpp - the tables of the simulation, and their reset.
#include "app/nova_simulace.h"

#include "app/nouzove.h"
#include "app/prehravani.h"
#include "app/smena.h"
#include "app/stav_simulace.h"
#include "save/gtn.h"
#include "vypravci/vypravci.h"

#include <utility>

#define TABULKA(jmeno, cerstva) decltype(jmeno) jmeno = cerstva;
TABULKY_SIMULACE(TABULKA)
#undef TABULKA

namespace {

std::uint64_t kolikata = 0;

} // namespace

void nova_simulace() {
    stav_byl_vymenen();
    gtn_zavri();
    zapomen_smenu();
    zapomen_prehravani();
    vrat_stav(StavSimulace{});
    zapomen_nouzovy_stav();
}

void stav_byl_vymenen() {
    ++kolikata;
    vypravci::zapomen();
}

std::uint64_t poradi_simulace() {
    return kolikata;
}

StavSimulace stav_simulace() {
    StavSimulace stav{
#define TABULKA(jmeno, cerstva) ::jmeno,
        TABULKY_SIMULACE(TABULKA)
#undef TABULKA
    };
    return stav;
}

void vrat_stav(StavSimulace stav) {
#define TABULKA(jmeno, cerstva) jmeno = std::move(stav.jmeno);
    TABULKY_SIMULACE(TABULKA)
#undef TABULKA
    ++revize_reliefu;
    ++revize_stavu;
}
