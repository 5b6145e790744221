// desk/tabulka_vlaku.h - the train table: one line of 41 characters a train, lines 0 to 23.
//
// Category from character 1, number from 5, then delay, length, last station and speed from 12. The flag
// of a line that flashes (blikani_radku) goes with its line.
#pragma once

#include "zaklad/text.h"

#include <array>
#include <cstdint>

inline constexpr int kRadkuTabulky = 24;

// What is known of a line; lblTabulka_vlaku shows its text.
struct RadekTabulky {
    bool obsazen = false;
    std::int32_t cislo = 0; // of its train
    bool operator==(const RadekTabulky&) const = default;
};
extern std::array<RadekTabulky, kRadkuTabulky> tabulka_vlaku;

// --- by everything that makes a train, or gives it a number

// The train's line goes into the first empty line; without one all move down and it takes the top.
void pridej_do_tabulky(int vlak);
// Takes out the line of a number; those below move up.
void smaz_z_tabulky(std::int32_t cislo);
// The line of the number `cislo` takes the category and the number that the train has now.
void prepis_v_tabulce(std::int32_t cislo, int vlak);
// The line of the number flashes, or no longer: its train is about to depart.
void blikej_v_tabulce(std::int32_t cislo, bool blika);

// --- by a load

// The line is the one of a save, as it is. It holds texts only, so this is the one place where a number is
// read out of its line.
void prevezmi_radek_tabulky(int radek, TextPohled text);

// --- at any time, without change

// A train stands in the line.
bool radek_obsazen(int radek);

// Line of a number; -1 when there is none.
int radek_tabulky(std::int32_t cislo);
// Number in a line; 0 in an empty one.
std::int32_t cislo_radku(int radek);
