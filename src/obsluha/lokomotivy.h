// obsluha/lokomotivy.h - locomotives that the operator calls out of the depots.
//
// The names of the depots on the desk (popis_stanice 28 and 30 of the main depot, 34 of the branch depot)
// open a menu of series; the choice puts a locomotive at the gate. With the gate taken nothing happens.
#pragma once

#include "zaklad/text.h"

// --- on the operator's command

// Click on the name of a place: mnuLOKO or mnuLOKO_VH at a depot. False for every other name.
bool menu_depa(int popis);
// A shunting locomotive of the series at the place 28 (element 112) or 30 (element 119); "2x230" is a pair.
void loko_menu(int misto, TextPohled rada);
// A railcar of the series comes from the branch depot (element 25) as a train to the main station.
void loko_vh_menu(TextPohled rada);
