// jizda/poslusnost.h - how a train obeys: the sense of its route, warnings, the exit.
//
// A train reads no aspect. A set route is what lets it move, and the route's speed class is what limits
// it; running towards a signal at danger only warns the operator.
#pragma once

#include "cesty/cesta.h"

// --- at any time, without change

// Sense of a route, from the facing of its start signal: true towards larger X.
bool smer_cesty(const Cesta& cesta);
// No other train on its track stands in the way of train v towards that sense.
bool muze_vyjet(int v, bool smer);
// Route that starts at the element and has not been entered: on 118 the one that goes on over `dalsi`,
// elsewhere the one against `smer`; -1 when there is none.
int cesta_od_prvku(int prvek, int dalsi, bool smer);

// --- by the movement step

// The route is one for train v at index i: turns the train where it may turn; false refuses the route.
bool srovnej_smer(int cesta, int i, int v);
// The head entered entry i + 1 of the route: warnings at block signals and line ends.
void kontrola_vstupu(int cesta, int i, int v);
// The head moved inside entry i of the route: stops of long sections, warnings, level crossings.
void uvnitr_prvku(int cesta, int i, int v);
// The head stands at the end of its route: does the train leave the area here?
void zpusob_odjezdu(int prvek, int v);
// The train leaves for the station with that code (0: none named); its record goes.
void vlak_opustil(int v, int stanice);
