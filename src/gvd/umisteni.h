// gvd/umisteni.h - where the train of a timetable row stands when it is on its way already.
//
// In a station it stands on a free one of the tracks that its kind and direction use, on a line with the
// route on which it runs there. A train for which no track is free is left out without a word.
#pragma once

// --- by the start of traffic

// Places the train of a row that stands at stop `index` of its route; the codes of the stop, the one before
// and the one behind it (0 none) choose the track and the direction.
void umisti_vlak_do_stanice(int stanice, int predchozi, int dalsi, int index, int gvd_index);
// Places it on the element; its index in `vlaky`.
int umisti_vlak(int element, bool smer, int index, int gvd_index);
// The route on which a train placed on a line runs, and the direction of that line.
void cesta_na_trati(int element, int vlak);
