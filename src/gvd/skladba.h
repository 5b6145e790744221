// gvd/skladba.h - a timetable row becomes a running train: its record and vehicles.
#pragma once

#include "zaklad/cisla.h"

#include <cstdint>

// `index` of vytvor_vlak for a train that has just come to its entry: it stands at no stop yet.
inline constexpr int kNaVstupu = kZadny;

// --- by the traffic and the start

// Makes the train of a timetable row on an element and returns its index in `vlaky`. `muze_jet`: it may
// run at once. `index`: the stop of its route at which it stands, kNaVstupu for a train at its entry. A
// new train beeps, once a minute at most.
std::int16_t vytvor_vlak(bool smer, int element, bool muze_jet, int index, int gvd_index);

// --- at any time, without change

// Number of the train whose set comes from this one with the same locomotive and that runs today; 0 none.
std::int32_t cislo_vlaku_pred(int vlak);
