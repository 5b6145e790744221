// cesty/cisla_vlaku.h - train numbers on the labels: how they follow the routes.
#pragma once

#include "zaklad/text.h"

// --- by the route machine, the running and the traffic

// Writes a number on the label of an element, or with `mazat` takes it off. On a line the number takes
// the first free label of the sections; taken off, those behind it move up, and the arrow of the line
// goes out with the last number, unless `tise` (the signal is at stop, its route still locked).
void pis_cislo(int prvek, TextPohled text, bool mazat = false, bool tise = false);
// The labels that only repeat another one show again what it shows.
void obnov_zrcadla_stitku();
// Carries the number before the signal of route i to its end, and on over the routes that follow.
void postup_cisla(int i);
// Takes the number off the end of route i and of the routes that follow. `text` empty: the number
// before its signal. `tiche`: the route stays locked.
void vymaz_cislo(int i, bool tiche, TextPohled text);
// The track at the end of a route that is no more shows its name again when it is free: no train is
// announced there now, and its number may be known nowhere else.
void vrat_jmeno_koleje(int prvek);
