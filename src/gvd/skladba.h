// gvd/skladba.h - the make-up of trains from the rows of the timetable.
#pragma once

#include "app/simulace.h"
#include "zaklad/cisla.h"

#include <cstdint>

// --- at any time, without change

// What lifts a time of the timetable into running minutes: the days played so far, and one day more for a
// time that lies far behind the present minute. 0 for no time (0 and below).
inline std::int16_t korekce(std::int16_t minuta) {
    constexpr int kDen = 1440;
    if (minuta <= 0)
        return 0;
    const int ted = simulace.minuty_simulace + simulace.cas_zacatku;
    const bool zitra = static_cast<double>(ted % kDen) / minuta > 1.5;
    return na_integer(ted / kDen * kDen + (zitra ? kDen : 0));
}
