// vypravci/posudek.h - may a train take its next route now, or come in from a neighbour? Nothing is commanded
// here.
#pragma once

#include "vypravci/sit.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vypravovani {

// cizi: the signal is the operator's; neni: the route does not exist now; zatim_ne: something stands in the
// way; nebezpecne: trains would block one another; kolej: only its last track is not to be had.
enum class Verdikt : std::uint8_t { lze, cizi, neni, zatim_ne, nebezpecne, kolej };
struct Posudek {
    Verdikt co = Verdikt::lze;
    Text proc;
};

// --- at any time, without change

// May the train take route `trasa` now, with that rest of its way behind it?
Posudek posud(int v, std::size_t trasa, std::span<const planovani::KrokTrasy> zbytek);
// So many seconds before the train comes to it a route is ordered.
int predstih_s(std::size_t trasa, bool stoji);
// The train of the number that asks at line end k may come onto the line: nobody is stuck by it.
bool je_bezpecny_vjezd(int k, std::int32_t cislo);

} // namespace vypravovani
