// desk/tabulka_vlaku.h - the train table: one line of 41 characters a train, lines 0 to 23.
//
// Category from character 1, number from 5, then delay, length, last station and speed from 12. The flag
// of a line that flashes (blikani_radku) goes with its line.
#pragma once

#include <cstdint>

inline constexpr int kRadkuTabulky = 24;

// --- by everything that makes a train, or gives it a number

// The train's line goes into the first empty line; without one all move down and it takes the top.
void pridej_do_tabulky(int vlak);
// Takes out the line of a number; those below move up.
void smaz_z_tabulky(std::int32_t cislo);
// The line of the number `cislo` takes the category and the number that the train has now.
void prepis_v_tabulce(std::int32_t cislo, int vlak);
// The line of the number flashes, or no longer: its train is about to depart.
void blikej_v_tabulce(std::int32_t cislo, bool blika);

// --- at any time, without change

// Line of a number: it stands from the fifth character on; -1 when there is none.
int radek_tabulky(std::int32_t cislo);
// Number in a line; 0 in an empty one.
std::int32_t cislo_radku(int radek);
