// ui/doplnek_tabulky.h - what a wide train table tells behind the line of the core.
#pragma once

#include "zaklad/text.h"

#include <cstddef>

// --- at any time, without change

// Where the train of the line is, and when it is to depart from there or to arrive at its next stop by the
// timetable; of both what `mist` characters hold. Empty for an empty line.
Text doplnek_radku(int radek, std::size_t mist);
