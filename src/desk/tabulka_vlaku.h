// desk/tabulka_vlaku.h - the train table: one line of 41 characters a train, lines 0 to 23.
#pragma once

#include <cstdint>

inline constexpr int kRadkuTabulky = 24;

// --- by everything that makes a train, or gives it a number

// The train's line goes into the first empty line; without one all move down and it takes the top.
void pridej_do_tabulky(int vlak);
// Takes out the line of a number; those below move up.
void smaz_z_tabulky(std::int32_t cislo);
// Line of a number: it stands from the fifth character on; -1 when there is none.
int radek_tabulky(std::int32_t cislo);
