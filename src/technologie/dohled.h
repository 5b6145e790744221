// technologie/dohled.h - ES DOHLED: the routes in use and the station crossings.
#pragma once

#include "relief/relief.h"
#include "technologie/technologie.h"

#include <span>

struct Dohled {
    Seznam lstJC;            // routes: table number, kind, name, aspect
    Seznam lblStav_prejezdu; // station crossings: name, condition, time or state, data

    bool operator==(const Dohled&) const = default;
};
extern Dohled dohled;

// Head row of the crossings.
inline constexpr TextPohled kHlavaPrejezdu =
    " č.přejezdu        PODMÍNKA VÝSTRAHY                     čas    stav PZZ      DATA"_cz;

// --- by technologie.cpp, for the screen

void napln_dohled();
void zapomen_dohled();
std::span<const SeznamTechnologie> seznamy_dohledu();
