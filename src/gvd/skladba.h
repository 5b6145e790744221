// gvd/skladba.h - a timetable row becomes a running train: its record and vehicles.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <vector>

// Where `index` of vytvor_vlak says that the train has just come to its entry.
inline constexpr int kNaVstupu = -3;

// --- by the traffic and the start

// Makes the train of a timetable row on an element and returns its index in `vlaky`. `muze_jet`: it may
// run at once. `index`: the stop of its route at which it stands, kNaVstupu for a train at its entry. A
// new train beeps, once a minute at most.
std::int16_t vytvor_vlak(bool smer, int element, bool muze_jet, int index, int gvd_index);

// --- at any time, without change

// What lifts a time of the timetable into running minutes: the days since the first one, in minutes, and
// one more when the time lies so far behind that tomorrow is meant. 0 for 0 and below: no time.
std::int16_t korekce(std::int16_t minuta);
// Times of a timetable row, each lifted into running minutes.
std::vector<std::int16_t> dnesni_casy(const std::vector<std::int16_t>& casy);
// Number of the train whose set comes from this one with the same locomotive and that runs today; 0 none.
std::int32_t cislo_vlaku_pred(int vlak);
