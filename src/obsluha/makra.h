// obsluha/makra.h - macros: a list of picks under a letter, recorded once and set by two keys.
//
// A letter may be stored more than once (cesty/ulozena_makra.h): all its records run.
#pragma once

// --- at any time, without change

// A macro is being recorded: its letter shows.
bool makro_se_zaznamenava();

// --- on the operator's command

// Shift+Alt+letter: begins the recording.
void zacni_makro(char pismeno);
// Enter: stores the recorded picks behind the last byte of the file; without any pick nothing is stored.
void uloz_makro();
// Esc: drops the recording.
void zrus_makro();
// Alt+letter: picks all routes of the letter, as an operator would in quick succession. Not in a pause.
void prehraj_makro(char pismeno);

// --- by the look-up of routes while a macro is recorded

// Adds a pick of a train or shunt route; calling-on routes do not go into macros.
void krok_makra(int zacatek, int konec, int druh);
