// relief/soubor_reliefu.h - one record of the relief file, as it stands on disk.
//
// Header: 4 bytes that no one reads and a text. Then records of 14 bytes and the length of the name,
// one behind another to the end of the file. The reader and the layout compiler share this
// description.
#pragma once

#include "zaklad/balik.h"

#include <cstdint>

enum class TypReliefu : std::uint8_t { // stored in files
    kolej = 1,
    navestidlo = 2,
    cislo_koleje = 3,
    cil = 4,
    navestidlo_ser = 5,
    prejezd_stanice = 6,
    prejezd_trati = 7,
    most = 8,
    nastupiste = 9,
    stanoviste = 10,
    popis_stanice = 11,
    vyhybka = 12,
    souhlas = 13,
    smer_trati = 14,
    napis_zarazedla = 15,
    napis_navestidla = 16,
    vykolejka = 17,
};

struct ZaznamReliefu {
    std::uint8_t typ = 0;
    std::int16_t cislo = 0;
    std::uint8_t parametr = 0; // glyph code, picture number, count or alignment, by typ
    Text nazev;
    std::int16_t a = 0, b = 0; // horizontal values, twips; b may be a width
    std::int16_t c = 0, d = 0; // vertical values, twips; d may be a height
    bool operator==(const ZaznamReliefu&) const = default;
};

template <class A, class Z> constexpr void popis_reliefu(A& a, Z& z) {
    a.b(z.typ);
    a.i(z.cislo);
    a.b(z.parametr);
    a.text(z.nazev);
    a.i(z.a);
    a.i(z.b);
    a.i(z.c);
    a.i(z.d);
}

struct HlavickaReliefu {
    std::int32_t znacka = 0; // not read
    Text popis;              // not read
};

template <class A, class Z> constexpr void popis_hlavicky(A& a, Z& z) {
    a.l(z.znacka);
    a.text(z.popis);
}
