// cesty/prekazky.h - what a route does next, and what stands in its way.
//
// The route machine and "why not?" ask the same questions here, so that the reason told is always the
// reason that holds. Nothing here changes anything.
#pragma once

#include "cesty/cesta.h"

#include <cstddef>
#include <cstdint>

// The walk of the tick counts in one byte: routes behind these are not looked at.
inline constexpr std::size_t kNejvicCest = 256;

// What the tick does with a route; the first one that applies, in this order.
enum class FazeCesty : std::uint8_t {
    zruseni,           // its cancellation is due
    privolavaci,       // its calling-on aspect runs
    konec_privolavaci, // that aspect is over
    odpocet_ruseni,    // its cancellation counts
    staveni,           // its switches are to be commanded
    zaver,             // they run, it is to be locked
    klid               // nothing: no time yet, held by a warning, or standing
};
FazeCesty faze_cesty(const Cesta& cesta, std::int32_t ted);

enum class DruhPrekazky : std::uint8_t {
    zadna,
    navestidlo,    // the start signal is blocked; prvek: signal
    vyhybka,       // a switch is locked; prvek: switch
    pohyb_vyhybky, // it moves
    bocni_vyhybka, // the switch at the flank is locked or moves
    pod_vlakem,    // a train stands on it, or on one that would be thrown with it; prvek: switch
    pred_vlakem,   // a train has it before it on a route that has lost it; prvek: switch
    ztracena,      // it is not the route's any more; prvek: switch
    usek,          // a track is not free; prvek: track
    konec,         // another route holds the end
    vlakova_cesta, // a train route leads to where the shunt route would
    opacny_smer,   // the line is held in the other direction; prvek: its arrow
    souhlas,       // the consent lamp of the line end is lit; prvek: its index
    kolej_118      // the single track 118 is taken; prvek: 118
};

struct Prekazka {
    DruhPrekazky druh = DruhPrekazky::zadna;
    int prvek = kZadny;
    std::size_t dosel = 0; // entry of the route at which the walk ended
    explicit operator bool() const { return druh != DruhPrekazky::zadna; }
};

// First thing that keeps the route from being commanded: signal, elements in running order, end, line.
// The order of the stack is not asked here.
Prekazka prekazka_staveni(const Cesta& cesta);

// First switch that keeps a commanded route, whose switches have had their time, from being locked: NOUZ has
// taken it, or a train has come onto it. Other routes take it meanwhile like any free one.
Prekazka prekazka_zaveru(const Cesta& cesta);

// Seconds until the crossing of a commanded route has had its closing time; 0 when it need not wait.
std::int32_t zbyva_prejezdu(const Cesta& cesta, std::int32_t ted);
