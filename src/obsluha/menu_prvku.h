// obsluha/menu_prvku.h - the menus of signals, switches, consents and station crossings.
#pragma once

#include "obsluha/tlacitko.h"

// --- on the operator's command; an index of a consent or crossing that there is none does nothing

// Opens the menu of signal s, main or shunting.
void menu_navestidla(int s);
// Menu AB: toggles the automatic mode; the operator picks the end of the first run when none stands.
void menu_ab(int s);
// Opens the menu of switch n.
void menu_vyhybky(int n);
// Press on the lamp k: left asks whether to take the train that waits, right opens the menu.
void klik_souhlas(int k, Tlacitko tlacitko);
// Opens the menu of line end k.
void menu_souhlasu(int k);
// US, or Enter on the question: the train that asks may come in. The question of this line, when it
// stands on the command line, is confirmed and makes room for the next message.
void udel_souhlas(int k);
// Opens the menu of crossing k.
void menu_prejezdu(int k);
