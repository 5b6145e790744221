// technologie/penet.h - PE-NET: fixed rows of line signals with figures that mean nothing.
//
// The real workstation shows the traffic of its bus here; the simulator draws the figures by chance, for
// the look only, from the screens' own source.
#pragma once

#include "relief/relief.h"
#include "technologie/technologie.h"

#include <span>

struct PeNet {
    Seznam lstIndikace; // "Indikace st: 31": bytes of the station's telegrams
    Seznam lstStav_PP;  // "Stav PP podle SS": counters

    bool operator==(const PeNet&) const = default;
};
extern PeNet penet;

// --- by technologie.cpp, for the screen

void napln_penet();
void zapomen_penet();
std::span<const SeznamTechnologie> seznamy_penetu();
// New figures in the same places.
void prekresli_penet();
