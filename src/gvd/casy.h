// gvd/casy.h - times of the timetable as running minutes: those of this operating day, not of any day.
#pragma once

#include <cstdint>
#include <vector>

// --- at any time, without change

// What lifts a time of the timetable into running minutes: the days since the first one, in minutes, and
// one more when the time lies so far behind that tomorrow is meant. 0 for 0 and below: no time.
std::int16_t korekce(std::int16_t minuta);
// Times of a timetable row, each lifted into running minutes.
std::vector<std::int16_t> dnesni_casy(const std::vector<std::int16_t>& casy);
