// cesty/opakovani.h - the automatic mode (AB): a train route repeats itself behind each train.
//
// When a train passes the start of its route, a copy of the route is queued behind all others and waits
// for its turn. Such a copy carries kKopieAB in place of a train.
#pragma once

// --- at any time, without change

// A route from s stands or waits, and no train has entered it.
bool ceka_nebo_stoji_z(int s);

// --- on the operator's command, and by RC and STUJ

// Toggles the automatic mode of s; switching it off drops its copies that wait for their turn. More than one
// waits when several routes from the signal have been run over.
void prepni_ab(int s);

// --- when a train passes the start of route i

// Queues a copy of route i when its signal is in automatic mode.
void kopie_ab(int i);
