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

// --- at any time

// Next speed of train v. Braking takes no distance: there is no braking curve, which is meant.
void uprav_rychlost(int v);
// Line speed that entering the element puts in force, if it is one of those that set it.
void rychlost_trati_prvek(int prvek, int v);
