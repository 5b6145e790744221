// cesty/programova_cesta.h - routes that the program sets by itself, for trains that are on a line already.
#pragma once

#include "cesty/cesta.h"

#include <cstdint>
#include <span>

// --- by the traffic and the start

// A train route over the tracks, standing, without a train yet; the operator neither sees it in the stack nor
// repeats it. `prvky` begins with the track before the signal. Valid until the next change of `cesty`.
Cesta& pridej_programovou_cestu(int zacatek, int konec, std::span<const std::int16_t> prvky);
