// cesty/tabulky.h - the interlocking tables: which routes exist, and which switches move together.
//
// data\tesk.zat   train and calling-on routes
// data\tesk.zpc   shunt routes
// data\tesk.stg   links and names of the switches
// data\tesk.mak   the operator's macros
//
// Packed records without a header or a count, read to the end of the file; a record cut off there is
// dropped. The rules read the tables anew at each use; zaklad/mezipamet.h gives the same answers: the
// first record that matches wins.
#pragma once

#include "cesty/prvek_cesty.h"
#include "zaklad/balik.h"
#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <cstdint>
#include <vector>

// A route.
struct ZaznamCesty {
    std::int16_t zacatek = kZadny; // start signal
    std::int16_t konec = kZadny;   // end: the mate of a signal, a station track, a block section
    std::vector<PrvekCesty> prvky; // in running order, from the track before the signal
    std::uint8_t rychlost = 0;     // speed class: 0 free, 1, 2, 3 = 40, 60, 80 km/h
    bool operator==(const ZaznamCesty&) const = default;
};

template <class A, class Z> void popis_zaznamu_cesty(A& a, Z& z) {
    a.i(z.zacatek);
    a.i(z.konec);
    popis_prvku(a, z.prvky, "prvky", "druhy", "polohy"); // in a damaged table 0 stands for what is missing
    a.b(z.rychlost);
}

// A switch: its links and its name, two names with "/" between them for a switch with a mate.
struct ZaznamVazeb {
    std::uint8_t cislo = 0;
    std::vector<std::uint8_t> vazby; // linked switches; 255 first: none
    Text nazev;
    bool operator==(const ZaznamVazeb&) const = default;
};
inline constexpr std::uint8_t kBezVazeb = 255;

template <class A, class Z> void popis_zaznamu_vazeb(A& a, Z& z) {
    a.b(z.cislo);
    pole_b(a, z.vazby);
    a.text(z.nazev);
}

// One pick of a macro.
struct KrokMakra {
    std::int16_t zacatek = kZadny; // start signal
    std::int16_t konec = kZadny;   // end element
    std::uint8_t druh = 0;         // 1 train, 2 shunt route
    bool operator==(const KrokMakra&) const = default;
};

// A macro: the picks of an operator under one letter.
struct ZaznamMakra {
    Text pismeno;
    std::vector<KrokMakra> kroky;
    bool operator==(const ZaznamMakra&) const = default;
};

// Of a damaged record only the picks count that all three of its lists have.
template <class A, class Z> void popis_zaznamu_makra(A& a, Z& z) {
    a.text(z.pismeno);
    a.sloupce(z.kroky, Sloupec{"druhy", &KrokMakra::druh}, Sloupec{"zacatky", &KrokMakra::zacatek},
              Sloupec{"konce", &KrokMakra::konec});
    if constexpr (A::cte)
        z.kroky.resize(a.ok ? a.uplnych : 0);
}

// All whole records of a table's bytes, in their order. Damage ends the table where it begins.
std::vector<ZaznamCesty> cti_cesty(const Bajty& bajty);
std::vector<ZaznamVazeb> cti_vazby(const Bajty& bajty);
std::vector<ZaznamMakra> cti_makra(const Bajty& bajty);

enum class TabulkaCest : std::uint8_t { zat, zpc };

struct NalezenaCesta {
    const ZaznamCesty* zaznam = nullptr; // valid until the next look-up; nullptr: no such route
    int radek = 0;                       // its line in the file, counted from 1
    explicit operator bool() const { return zaznam != nullptr; }
};

// --- at any time, without change. A file that was never there is the run-time error 53; one that is taken
// away while the desk runs leaves what it said.

// The first record of the table with this start and end. A record without elements is no route.
NalezenaCesta najdi_v_tabulce(TabulkaCest tabulka, int zacatek, int konec);
// Every switch, in the order of the table. Valid until the next look-up.
const std::vector<ZaznamVazeb>& vazby_vyhybek();
// The first record of switch n; nullptr when it has none. Valid until the next look-up.
const ZaznamVazeb* najdi_vazby(int n);
// Number of the switch whose name up to the first "/" is `nazev`, in any case; -1 when there is none.
int cislo_vyhybky(TextPohled nazev);
