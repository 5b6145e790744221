// obsluha/vyber.h - what the operator has picked so far, and the macro that is being recorded.
//
// Idle, start picked (the ten seconds run), end picked (the lookup runs at once), or a warning pending.
// kZadny means none.
#pragma once

#include "cesty/tabulky.h"
#include "relief/relief.h"
#include "zaklad/text.h"

#include <cstdint>
#include <vector>

struct Vyber {
    std::int16_t volba_zacatek = kZadny;    // chosen start signal
    std::int16_t volba_konec = kZadny;      // chosen end; while it is 0 or more no new end is accepted
    std::uint8_t volba_druh = 0;            // 0 none, 1 train, 2 shunt, 3 calling-on route
    std::int32_t volba_cas = kZadny;        // wall-clock second of the start pick
    std::int16_t volba_navestidlo = kZadny; // signal highlighted now
    bool volba_svetla =
        false; // it already showed proceed of this kind: its highlight outlives a failed lookup
    bool volba_posun = false; // the highlighted start belongs to a shunt selection

    bool makro_zaznam = false; // a macro is being recorded
    Text makro_pismeno;        // the letter that will play it, as lblMakro_pismeno shows; empty without one
    std::vector<KrokMakra> makro_kroky{KrokMakra{}}; // its picks so far; an empty one before the first

    // the element under the pointer, for the keys that act as a click
    bool mys_nad_prvkem = false;
    Druh mys_druh = Druh::kolej;
    int mys_prvek = kZadny;
    std::int32_t mys_cislo_vlaku = 0; // the train whose row of the train table is highlighted; 0 none

    bool operator==(const Vyber&) const = default;
};
extern Vyber vyber;
