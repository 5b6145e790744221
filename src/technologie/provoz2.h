// technologie/provoz2.h - PROVOZ 2: the stack of routes, the possessions, the macros.
#pragma once

#include "relief/relief.h"
#include "technologie/technologie.h"

#include <span>
#include <vector>

struct Provoz2 {
    Seznam lstZasobnik;              // routes that wait, in the order of the stack
    Seznam lstVYL_UPO;               // possessions
    Seznam lstmakra;                 // macros
    Seznam lstPocitace;              // computers of the workstation, fixed
    std::vector<Text> pismena_maker; // name of each macro, line by line
    Text lblKlavesy_maker;           // letters of all macros, or the keys of the one selected
    std::vector<Text> podrobnosti;   // lines about the route selected

    bool operator==(const Provoz2&) const = default;
};
extern Provoz2 provoz2;

// --- by technologie.cpp, for the screen

void napln_provoz2();
void zapomen_provoz2();
std::span<const SeznamTechnologie> seznamy_provozu2();
// A route shows its details, a macro its keys.
void vybran_v_provozu2();
// Takes the selected route out of the stack, or the macros of the selected name out of their file. A
// route whose switches are commanded stays, RC cancels it.
void smaz_v_provozu2(const Seznam& seznam);
