// cesty/uvolneni.h - how a route ends other than under a train: RC, DN, STUJ, PPN, RNZ.
//
// RC puts the signal to stop at once and takes the route back when its time is over; until then DN
// gives the signal again. STUJ only puts the signal to stop. PPN makes a running calling-on aspect
// last 30 s longer, RNZ releases its route.
#pragma once

struct Cesta; // cesty/cesta.h

// --- on the operator's command; refused without a word when the rules do not allow it

void zrus_cestu(int s);      // RC
void obnov_cestu(int s);     // DN
void navestidlo_stuj(int s); // STUJ
void ppn(int s);             // PPN
void rnz(int s);             // RNZ

// --- when a switch is taken out of its route: by NOUZ, or by a train on another route

// The routes that are cleared over switch n and have lost it go to stop, as by STUJ. DN does not give them
// again.
void stuj_bez_vyhybky(int n);

// --- by the route machine

// The cancellation of route i is due: everything back to rest, the record goes.
void proved_zruseni(int i);
// The calling-on aspect of the route ends: signal, countdown, log.
void ukonci_privolavaci(Cesta& c);

// --- when the train of a route is gone

// Route i ends under its train, which has left the junction, was coupled to another one or was made up into
// one. What lies before its head goes back to rest, and so does a calling-on route that nobody has released:
// with the record RC and RNZ go too, and it would stay locked for ever. A switch on which somebody stands
// turns occupied and goes with his tail. The record goes.
void ukonci_bez_vlaku(int i);
