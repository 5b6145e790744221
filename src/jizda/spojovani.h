// jizda/spojovani.h - consists change: coupling, splitting, turning, the end of a record.
#pragma once

#include <cstdint>

// --- at any time

// Index of a free record: the first one that is free, else a new one at the end. The record is blank but
// for prvek_konec 0; it counts as free until it gets a number.
int novy_vlak();
// Frees the record; its elements have been released by the caller. Its row of the train table goes, but
// not when another record has the same number and this one consists of locomotives only.
void zrus_vlak(int v);
// Turns the train: several vehicles change their order, the sense of travel turns.
void otoc_vlak(int v);

// --- on the operator's command, and by stops

// The operator's emergency turn: only the sense, the head stays where it was.
void otoc_nouzove(int v);
// Couples two records that stand wholly on one element; else a refusal on the command line.
void spoj(int a, int b);
// Splits off the vehicles 0 to i (the last one alone when i is the last); index of the new record, kZadny
// when nothing was done. `zobraz`: the train is shown on the train page; else only when it stands there.
int odvesit(int v, int i, bool zobraz);
// Click on the picture of vehicle i of the train on the train page: it comes off with those before it. A
// train on its way is refused on the command line; pictures that do not fit the train are drawn anew.
void odvesit_klik(int i);
// The tail is pulled up onto the head's element: the way out of a stuck tail. Numbers stay on the tracks
// behind until the train moves.
void zkrat_vlak(int v);
// A finished set takes on the timetable of its next train.
void navazny_vlak(int v);
