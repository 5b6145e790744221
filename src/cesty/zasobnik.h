// cesty/zasobnik.h - the stack of routes as the operator sees it.
//
// The stack is `cesty` in index order. The desk shows how many routes wait, the one at which the stack
// stands now (lblZasobnik_blokv, its tag the line of the route's table record), and which of two orders
// is in force: VZ, a blocked route holds back all behind it, or PV, each is tried by itself.
#pragma once

#include "cesty/cesta.h"

#include <cstdint>
#include <optional>
#include <vector>

struct StavZasobniku {
    std::optional<std::int32_t> ceka; // line of the table record at whose route the stack stands now
    bool operator==(const StavZasobniku&) const = default;
};
extern StavZasobniku stav_zasobniku;

// --- at any time, without change

// VZ is in force: its word is white.
bool plati_vz();
// The record counts as waiting: no empty one, not standing, no automatic copy.
bool je_v_zasobniku(const Cesta& cesta);
// Indices of the records that wait, in order: the lines of the stack list.
std::vector<int> radky_zasobniku();
// The waiting line shows this route.
bool ceka_na_ni_zasobnik(const Cesta& cesta);

// --- after each change of a route

// The count of the desk anew.
void zmena_zasobniku();
// The stack stands at this route, unless it stands already: the waiting line shows it. An automatic copy
// waits in the background and is not told.
void ohlas_cekani(const Cesta& cesta);
// The waiting line is cleared, hidden, its tag `znacka`, when it shows this route.
void uvolni_cekani(const Cesta& cesta, TextPohled znacka = "-3");

// --- on the operator's command

// Click on PV (`vz` False) or VZ: the word becomes white, the other grey.
void prepni_pv_vz(bool vz);
// Delete in the stack list on record i. A route whose switches are commanded stays: RC cancels it.
void odeber_ze_zasobniku(int i);
