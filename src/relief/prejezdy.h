// relief/prejezdy.h - level crossings of the lines, each a point on a track element.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <vector>

struct Prejezd {
    bool zona = false;    // a train is in the approach zone
    bool vyluka = false;  // a possession lies on the line (crossings 9 and 10)
    bool uvolnen = false; // a train has cleared it and is still on the element
    std::int16_t kolej = 0;
    std::int16_t poloha = 0; // metres from the start of the element
    Text nazev;
    bool operator==(const Prejezd&) const = default;
};
extern std::vector<Prejezd> prejezdy; // index: the record's place in the file

// Reads data\tesk.pzz into the table; a short last record is dropped.
void nacti_prejezdy();
// Flags of the crossings on `kolej` for a train of `delka_vlaku` metres whose head stands there;
// `smer` True runs from the start of the element.
void kontrola_prejezdu(int kolej, bool smer, int delka_vlaku);
