// gvd/zaplneni.h - the start of traffic: a layout that is already busy at the start minute.
//
// Also what the traffic needs later on: single locomotives, and the start of a train whose set comes out
// of the depot of the main station. A train for which no track is free is left out without a word.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

// --- at the start of a new simulation

// Fills the layout as the timetable has it at the minute `ted` of the day.
void zaplneni_kolejiste(std::int16_t ted);
// The trains on their way: those that begin elsewhere, or those that begin at the main station.
void vlaky_na_trati(std::int16_t ted, bool jen_odjinud);
// Locomotives that wait at the depot for the trains whose sets are still to come.
void soupravy_do_depa(std::int16_t ted);
// Places the train of a row that stands at stop `index` of its route; the codes of the stop, the one before
// and the one behind it (0 none) choose the track and the direction.
void umisti_vlak_do_stanice(int stanice, int predchozi, int dalsi, int index, int gvd_index);
// Places it on the element; its index in `vlaky`.
int umisti_vlak(int element, bool smer, int index, int gvd_index);
// The route on which a train placed on a line runs, and the direction of that line.
void cesta_na_trati(int element, int vlak);

// --- by the start and the traffic

// A lone locomotive on the element, 0: on the first free track of the depot. `urceni` is its next work: a
// train number or "ZAL".
void vytvor_lokomotivu(int rada, int element, bool smer, TextPohled urceni, bool posun);
// -1: train `cislo` cannot be formed, its set or locomotive still runs. `jsou_vozy`: its vehicles are, or
// will be, at hand without a new set.
std::int16_t kontrola_soupravy(std::int32_t cislo, bool& jsou_vozy);
// No later train brings the vehicles of the row.
bool souprava_pripravena(int gvd_index, std::int16_t ted);
// Brings the set of a train that begins at the main station out of the depot.
void stanice_start(int gvd_index);
// Sets of the trains that leave backwards are turned.
void posun_po_vytvoreni(int vlak);
// A shunting locomotive joins the end of the train that has none.
void pridej_posunovou(int vlak);
// Turns the order of the vehicles; the train then runs towards larger numbers.
void obrat_soupravy(int vlak);
