// prvky/prejezdy_stanice.h - what the operator does with the two station crossings.
#pragma once

#include "prvky/stanicni_prejezdy.h"

// --- at any time, without change

// Nothing runs over crossing k and nothing closes it: no train counted, no closing pending, no UZ.
bool prejezd_v_klidu(int k);

// --- on the operator's command; an index that is no crossing does nothing

// UZ: closed by the operator, in 30 s unless it is closed already.
void prejezd_uz(int k);
// NOT and ZUZ: the emergency opening, and the end of the operator's closure. Both clear everything,
// the counter too: so a counter held by a train that was taken away is set right.
void prejezd_not(int k);
