// jizda/krok_jizdy.h - the movement of all trains: tmrJizdy, every 1000 ms.
#pragma once

#include <cstdint>

// Steps made since the program began; a pause makes none. Only compared with an earlier reading.
extern std::uint32_t kroku_jizdy;

// One step: every head advances at most once, every tail releases what it has left, used routes go.
// Nothing in a pause.
void krok_jizdy();

// --- after a load

// Trains that wait at the end of their element have been looked after there: their departure is no new
// arrival.
void obnov_obslouzene();
