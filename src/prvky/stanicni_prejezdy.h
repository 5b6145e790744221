// prvky/stanicni_prejezdy.h - the two station crossings, tied to routes and worked by the operator.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/cisla.h"

#include <array>
#include <cstdint>

// Count of an area without trains, so that a lost train does not underflow it.
inline constexpr std::uint8_t kBezVlaku = 128;

struct StanicniPrejezd {
    bool uzavren = false;      // closed by a train or a route
    bool UZ = false;           // closed by the operator
    std::int16_t rezerva1 = 0; // kept in saves, read by nobody
    std::int16_t rezerva2 = 0;
    std::int32_t cas = kZadny;      // second at which it begins to close; kZadny none pending
    std::uint8_t pocet = kBezVlaku; // trains in its area, counted from kBezVlaku
    bool operator==(const StanicniPrejezd&) const = default;
};

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<StanicniPrejezd> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("uzavren", z.uzavren);
    a.pole("UZ", z.UZ);
    a.pole("rezerva1", z.rezerva1);
    a.pole("rezerva2", z.rezerva2);
    a.pole("cas", z.cas);
    a.pole("pocet", z.pocet);
}
extern std::array<StanicniPrejezd, 2> stanicni_prejezdy;
