// save/kontrola_zaznamu.h - may a saved record take the place of the present state?
//
// A file may hold anything: every count, index and code in it is held against the relief that is loaded and
// against the others, before any of it is taken. A refusal is the run-time error 9 with the table, the
// record and the field that is wrong.
#pragma once

#include "save/zaznam.h"

#include <cstdint>

// --- by the load, in this order; nothing changes

// The clock, the day, the options, the lists of a fixed length. A clock text that is none is the error 13.
void over_hlavicku(const Zaznam& z);
// Minutes since the start by the clock, as near to the saved ones as a whole number of days allows. A mark
// that no day fits runs over the 16 bits: error 6.
std::int16_t casova_znacka(const Zaznam& z);
// Routes, trains, the trains on tracks, the snapshot of the relief.
void over_tabulky(const Zaznam& z);
