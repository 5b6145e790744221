// technologie/provoz1.h - PROVOZ 1: faults of the selection and of the technology, states of the drivers.
#pragma once

#include "relief/relief.h"
#include "technologie/technologie.h"

#include <span>

struct Provoz1 {
    Seznam lstporuchy_volby; // routes of the stack that cannot be set, each with its obstacle
    Seznam lblDrivery;       // a line a driver, with a spinning mark as its last sign
    Seznam lstporuchy;       // unacknowledged faults of the technology
    Seznam lstnevratne;      // what only NOUZ ends: switches left without supervision

    bool operator==(const Provoz1&) const = default;
};
extern Provoz1 provoz1;

// --- by technologie.cpp, for the screen

void napln_provoz1();
void zapomen_provoz1();
std::span<const SeznamTechnologie> seznamy_provozu1();
// The spinning mark of every driver goes on: back slash, "|", "/", "-", and again.
void pootoc_znacky();
