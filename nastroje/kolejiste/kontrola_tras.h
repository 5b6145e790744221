// nastroje/kolejiste/kontrola_tras.h - proves that the derived routes are safe and that the running can
// use them.
//
// Of one route: its elements follow one another in the graph with the switches so set, none twice; it
// starts before its signal and ends on a track, passes no signal, and keeps what the running demands of
// ends, lines, folds, diamonds and level crossings. Of any two routes: when one needs an end of a switch in
// plus, itself or through a coupled switch, and the other in minus, they share an element that the locking
// gives to one of them only; so they never stand at once. Of all: what the program asks for by number is
// there, and from where a train can stand there is a way on.
#pragma once

#include "kolejiste/trasy.h"

#include <vector>

namespace kolejiste {

void zkontroluj_trasy(const Plan& plan, const Graf& graf, const std::vector<Trasa>& trasy,
                      std::vector<Zavada>& zavady);
// Routes that the program asks for and whose elements are not all drawn yet.
int cekajici_povinne(const Plan& plan, const std::vector<Trasa>& trasy);

} // namespace kolejiste
