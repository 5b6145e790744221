// app/nova_simulace.h - the reset of the whole simulation; its tables stand in app/stav_simulace.h.
#pragma once

#include <cstdint>

// --- at start, and before another simulation in one process

// Every table of the core as in a fresh process. The platform and the random stream stay.
void nova_simulace();

// --- when time is turned back

// The tables are not what followed from the last look.
void stav_byl_vymenen();

// --- at any time, without change

// Which simulation of the process this is, and which state of it that did not follow from the one before:
// whoever remembers something of an earlier one forgets it when the number has changed.
std::uint64_t poradi_simulace();
