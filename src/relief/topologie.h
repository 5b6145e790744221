// relief/topologie.h - lengths of track elements, all that the running of trains knows of geometry.
#pragma once

#include <cstdint>

// Length of the element in metres by data\tesk.top: the first record with its number; 60 when there is
// none or when it says 0. The file is read again only when it has changed on disk. A missing file is
// the run-time error 53.
std::int16_t delka_koleje(int kolej);
