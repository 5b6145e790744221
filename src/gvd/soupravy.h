// gvd/soupravy.h - locomotives and sets out of the depots: what a train of the timetable is formed from.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

// --- by the start and the traffic

// A lone locomotive on the element, 0: on the first free track of the depot. `urceni` is its next work: a
// train number or "ZAL".
void vytvor_lokomotivu(int rada, int element, bool smer, TextPohled urceni, bool posun);
// Brings the set of a train that begins at the main station out of the depot.
void stanice_start(int gvd_index);
// Sets of the trains that leave backwards are turned.
void posun_po_vytvoreni(int vlak);
// A shunting locomotive joins the end of the train that has none.
void pridej_posunovou(int vlak);
// Turns the order of the vehicles; the train then runs towards larger numbers.
void obrat_soupravy(int vlak);

// --- at any time, without change

// -1: train `cislo` cannot be formed, its set or locomotive still runs. `jsou_vozy`: its vehicles are, or
// will be, at hand without a new set.
std::int16_t kontrola_soupravy(std::int32_t cislo, bool& jsou_vozy);
// No later train brings the vehicles of the row.
bool souprava_pripravena(int gvd_index, std::int16_t ted);
