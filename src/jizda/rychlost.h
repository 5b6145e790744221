// jizda/rychlost.h - how fast a train may run, and how it comes to that speed.
//
// Two limits hold a train: the speed of the line, set by the elements that its head enters, and the limit
// of its route, from the start of the route until the whole train has cleared the route's last switch.
#pragma once

#include "cesty/cesta.h"

// --- by the movement step

// Line speed that entering the element puts in force, if it is one of those that set it.
void rychlost_trati_prvek(int prvek, int v);
// The head stands on the start of the route: its limit is in force, by its speed class; 30 km/h over a
// shunt or calling-on route.
void omez_rychlost(const Cesta& cesta, int v);
// Next speed of train v. Braking takes no distance: what the driver does before a signal or a stop
// is not the desk's, and the moment at which the train clears a section is the same.
void uprav_rychlost(int v);
