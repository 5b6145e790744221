// cesty/dotazy.h - what the other rooms ask about routes, and the removal of a route.
//
// Plain walks over `cesty` in index order. A route that a train has entered has Umazat other than 0.
#pragma once

#include "cesty/cesta.h"
#include "relief/relief.h"
#include "zaklad/text.h"

#include <cstdint>

// --- at any time, without change

// No other route holds n as its end; for a line section also: no train stands on it.
bool cil_volny(int n);
// A route stands from track n, and no train has entered it.
bool je_nastaveno_z(int n);
// The same for a shunt route.
bool je_nastaveno_posun_z(int n);
// A shunt route with the last element n stands, and no train has run it to its end.
bool je_posun_do(int n);
// A train route with the last element n has its switches commanded, and no train has entered it.
bool je_vlak_do(int n);

// The calling-on aspect of signal s runs; it has run out and its route waits for RNZ.
bool pn_sviti(int s);
bool pn_skoncila(int s);
// DN can give signal s back; RC can cancel its route.
bool dn_mozne(int s);
bool rc_mozne(int s);

// Text of route i: "VC THN S1 THN L3", without a target at the end "VC THN S1 12 450m".
Text popis_cesty(int i);
Text popis_cesty(const Cesta& cesta);

// --- when a route ends

// Takes record i out; the later ones move down by one. Without the last route the empty record stands.
void smaz_cestu(int i);
// How many routes have been taken out so far: whoever keeps places in `cesty` for a while asks it.
std::uint32_t odebrane_cesty();

// --- by the route machine and after a load

// Paints grey what a tail has left and no train's route holds any more.
void uklid_odjete();
// After a load: every cyan section that no commanded route holds ahead of its train was left by a tail.
void obnov_odjete();
