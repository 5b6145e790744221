// app/blikani.h - the blink step: whatever flashes, and the small logic that half a second drives.
#pragma once

inline constexpr int kZnackaVypnuta = 0x404040;    // mark of the train table, dark
inline constexpr int kZnackaRozsvicena = 0x78D5F8; // and lit

// --- every 500 ms

// Flashes the marks, the command line, the clock picture, the consents, the crossings and the search
// frame; closes a station crossing whose time has come. Nothing in a pause: phases are kept.
void krok_blikani();

// --- after a load

// The lamps of all crossings as their tables tell.
void ukaz_prejezdy();
