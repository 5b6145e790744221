// obsluha/menu_tabulky.h - clicks on the train table.
#pragma once

#include <cstdint>

// --- on the operator's command

// The search frame closes in on the label that shows the number; nothing when none does.
void hledej_cislo(std::int32_t cislo);
// Left click on a line: the search for its train.
void hledej_radek(int radek);
// Right click: the menu of a line that is not empty. SMAZ takes out the line; the train goes on.
void menu_tabulky(int radek);
