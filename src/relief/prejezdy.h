// relief/prejezdy.h - level crossings of the lines, each a point on a track element.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstdint>
#include <span>
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

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<Prejezd> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("zona", z.zona);
    a.pole("vyluka", z.vyluka);
    a.pole("uvolnen", z.uvolnen);
    a.pole("kolej", z.kolej);
    a.pole("poloha", z.poloha);
    a.pole("nazev", z.nazev);
}
extern std::vector<Prejezd> prejezdy; // index: the record's place in the file

// One record of the crossing file, as it stands on disk: 7 bytes and the length of the name, no header.
// The reader and the layout compiler share this description.
struct ZaznamPrejezdu {
    std::uint8_t typ = 0; // not read
    Text nazev;
    std::int16_t kolej = 0, poloha = 0;
    bool operator==(const ZaznamPrejezdu&) const = default;
};

template <class A, class Z> constexpr void popis_zaznamu_prejezdu(A& a, Z& z) {
    a.b(z.typ);
    a.text(z.nazev);
    a.i(z.kolej);
    a.i(z.poloha);
}

// Reads data\tesk.pzz into the table; a short last record is dropped.
void nacti_prejezdy();
// The same from the bytes of a file.
void nacti_prejezdy(std::span<const std::uint8_t> bajty);
// Flags of the crossings on `kolej` for a train of `delka_vlaku` metres whose head stands there;
// `smer` True runs from the start of the element.
void kontrola_prejezdu(int kolej, bool smer, int delka_vlaku);
