// app/blikani.h - the blink step: whatever flashes, and the small logic that half a second drives.
#pragma once

#include <array>

struct Blikani {
    std::array<bool, 24> blikani_radku{}; // rows of the train table that flash
    int ramecek_hledani = 0;              // half-seconds that the search frame still closes in
    bool operator==(const Blikani&) const = default;
};
extern Blikani blikani;

inline constexpr int kZnackaVypnuta = 0x404040;    // mark of the train table, dark
inline constexpr int kZnackaRozsvicena = 0x78D5F8; // and lit

// --- every 500 ms

// Flashes the marks, the command line, the clock picture, the consents, the crossings and the search
// frame; closes a station crossing whose time has come. Nothing in a pause: phases are kept.
void krok_blikani();

// --- after a load

// The lamps of all crossings as their tables tell.
void ukaz_prejezdy();
