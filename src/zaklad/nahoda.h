// zaklad/nahoda.h - the seeded random source of the simulation.
//
// One stream belongs to the simulation: delays, compositions, made-up numbers. Nothing that is only
// seen or heard draws from it, so that the same seed and the same operator give the same log.
#pragma once

#include <cstdint>

struct Nahoda {
    std::uint64_t stav = 1;
    bool operator==(const Nahoda&) const = default;
};
extern Nahoda nahoda;

// Starts the stream anew.
void zasej_nahodu(std::uint64_t semeno);
// Next number, 0 <= x < 1, in single precision: draws are compared with constants, and the width shows.
float nahodne();
// The same from a stream of somebody's own: what is only seen draws from one.
float nahodne(Nahoda& zdroj);
