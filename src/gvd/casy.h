// gvd/casy.h - what a train takes over from its row of the timetable, its times as running minutes of this
// operating day.
#pragma once

#include "gvd/gvd.h"
#include "jizda/vlak.h"

#include <cstdint>
#include <vector>

// --- at any time, without change

// What lifts a time of the timetable into running minutes: the days since the first one, in minutes, and
// one more when the time lies so far behind that tomorrow is meant. 0 for 0 and below: no time.
std::int16_t korekce(std::int16_t minuta);
// The stops of a timetable row with their times lifted into running minutes.
std::vector<Zastavka> dnesni_zastavky(const GvdVlak& radek);

// --- when a train becomes that of a row

// Kind, numbers and name, what its locomotives do, when it runs and where it goes to; not its stops.
void prevezmi_udaje(Vlak& vlak, const GvdVlak& radek);
