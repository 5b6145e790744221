// prvky/barvi_prvek.h - the painter of track elements.
#pragma once

#include "relief/relief.h"

// --- by everybody who changes a track

// Paints the track n, logs it, and keeps in step: arrows of 118, 120 and 123, labels, twins drawn
// elsewhere, consent lamps, crossings of the lines. `uvolni`: a tail has left it; the section is free
// from now on. `posledni`: it is the last element of a route; when its label is there only for a
// number (blank tag), the label turns white and the section stays as it is.
void barvi_prvek(int n, Barva barva, bool uvolni = false, bool posledni = false);
// The lamp of the line end to which n belongs: grey, or ready for the consented train, once both of
// its sections are free.
void obnov_lampu_souhlasu(int n);

// --- at any time, without change

// Labels of station tracks wear the colour of their track; those of line ends and single tracks never do.
bool stitek_ma_barvu_koleje(int n);
// Flank check of two consecutive switches of a route: the switch at the fourth corner of their rectangle
// when it is locked or moves; kZadny when there is no such switch.
int bocni_vyhybka(int a, int b);
bool sousedni_volne(int a, int b);
// The track whose colour n repeats in another picture of it; kZadny when n is no such picture.
int vzor_zrcadla(int n);
