// obsluha/menu_tabulky.h - clicks on the train table.
#pragma once

// --- on the operator's command

// Left click on a line: the search frame closes in on the label that shows the train's number.
void hledej_radek(int radek);
// Right click: the menu of a line that is not empty. SMAZ takes out the line; the train goes on.
void menu_tabulky(int radek);
