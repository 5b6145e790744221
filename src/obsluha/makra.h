// obsluha/makra.h - macros: a list of picks under a letter, recorded once and set by two keys.
//
// They stand in data\tesk.mak in the order of recording; a letter may stand there more than once, and
// all its records run.
#pragma once

#include "zaklad/text.h"

#include <vector>

// What the maintenance screen shows of the macros.
struct SeznamMaker {
    std::vector<Text> radky;   // one macro a line
    Text klavesy;              // their letters, separated by character 13
    std::vector<Text> pismena; // the letter of each line, as its record holds it
};

// --- at any time, without change

// A macro is being recorded: its letter shows.
bool makro_se_zaznamenava();
// The list of the stored macros. A missing file is the run-time error 53.
SeznamMaker nacti_makra();

// --- on the operator's command

// Shift+Alt+letter: begins the recording.
void zacni_makro(char pismeno);
// Enter: stores the recorded picks behind the last byte of the file; without any pick nothing is stored.
void uloz_makro();
// Esc: drops the recording.
void zrus_makro();
// Alt+letter: picks all routes of the letter, as an operator would in quick succession. Not in a pause.
void prehraj_makro(char pismeno);
// Delete in the list: the file without the records of that name.
void smaz_makro(TextPohled pismeno);

// --- by the look-up of routes while a macro is recorded

// Adds a pick of a train or shunt route; calling-on routes do not go into macros.
void krok_makra(int zacatek, int konec, int druh);
