// jizda/na_koleji.h - the trains on each numbered track, and their numbers on its labels.
#pragma once

#include "jizda/vlak.h"
#include "relief/prvek.h"

#include <cstdint>

// --- by everything that moves, makes or takes away a train

// Puts a train into the list of an element: without `vedle` (-1) at the low end for `smer` true, at the
// high end for false; with it beside that train, behind it for `smer` true and before it for false.
// On 118 the sense of travel turns, so `smer` counts the other way there. The labels follow.
void pridej_na_kolej(int prvek, int vlak, bool smer, int vedle);
// Takes a train out of the list of an element; nothing when it is not in it. The labels follow, but not
// when it was the only one: whoever takes it away says what the label shows then, the number of the next
// train or the name of the track.
void uber_z_koleje(int prvek, int vlak);
// The labels of one record of koleje_vlaky. A track with two labels shows its lowest train on the left
// one and its highest on the right one; a single train stands on the left, the track's name on the
// right. Shunting movements show no number.
void zobraz_kolej(int zaznam);
// Colours of one label from one train (-1: nothing changes).
void zobraz_cislo(int stitek, int prvek, int vlak);
// Background of a label; black is none, and takes the frame off.
void nastav_pozadi_stitku(int stitek, Barva pozadi);
// Takes a train out of the lists of all tracks that it does not hold: its tail was pulled up by hand, and
// its number stayed there until now.
void uber_z_opustenych(int vlak);
// Out of every list: the train leaves the area.
void uber_ze_vsech(int vlak);
// A track with two labels shows its name again where it still shows this number; nothing stands there now.
void smaz_cislo_z_dvou(int prvek, std::int32_t cislo);
// Every label that shows the number `stare` shows `nove`: the train has got another number.
void prepis_cislo_na_stitcich(std::int32_t stare, std::int32_t nove);

// --- at any time, without change

// A train is in the list of the element.
bool vlak_na_koleji(int prvek);
// Index of the element's record in koleje_vlaky; -1 when it has none.
int zaznam_koleje(int prvek);
