// cesty/drzeni.h - who holds an element: the one question of the machine, the release, the trains, the hands
// and the reasons.
//
// A commanded route holds what lies before its train; a calling-on route holds its switches, before and
// behind it, until RNZ. A switch is held only while its state says so as well: NOUZ takes it out of the
// route, and so does a train that runs over it on another one, though the record goes on naming it.
#pragma once

#include "cesty/cesta.h"

// --- at any time, without change

// Entry k of route c is held by it: the record names it and its state agrees. Two routes may both think so of
// a switch; whose it is, tells drzitel.
bool drzi(const Cesta& c, std::size_t k);
// Class in which route c locks its switches, of stav_vyhybky.
int zaver_vyhybek(const Cesta& c);
// The route that holds element n of the kind; nullptr when none does. Where two records name a switch, the
// one that was commanded last, or has locked it since the other lost it.
const Cesta* drzitel(std::uint8_t druh, int n);
// Another route than c holds its entry k.
bool drzi_jina(const Cesta& c, std::size_t k);
// First switch that the set route c, which no train has entered, does not lock in its position: NOUZ has
// taken it. kZadny when it has them all.
int ztracena_vyhybka(const Cesta& c);
// A train stands on switch n: nobody throws it until the tail has left it.
bool stoji_na_vyhybce(int n);
// The route on which a train stands and has switch n, which the route has lost, still before it: it cannot be
// stopped any more. nullptr when there is none.
const Cesta* cesta_vlaku_na_vyhybku(int n);
// Switch n belongs to a route that is commanded and not locked yet: a throw by hand would part it from its
// route, or from the switches coupled with it.
bool stavi_se_vyhybka(int n);
