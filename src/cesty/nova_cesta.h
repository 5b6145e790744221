// cesty/nova_cesta.h - the entrances of the stack: a picked route, and one that the program sets by itself.
#pragma once

#include "cesty/cesta.h"
#include "cesty/tabulky.h"

#include <cstdint>
#include <span>

// Kinds of a picked route.
namespace druh_volby {
inline constexpr int zadny = 0;
inline constexpr int vlak = 1;  // VC
inline constexpr int posun = 2; // PC
inline constexpr int pn = 3;    // PN
} // namespace druh_volby

// --- by a new route of any origin

// Puts the record into the stack: the empty one is used again, else the table grows. Valid until the next
// change of `cesty`.
Cesta& pridej_cestu(Cesta nova);

// --- on the operator's command

// The route of the table goes into the stack; the notes on its end, and calling-on aspects near its start,
// are told, and the route waits until that is confirmed. `automaticky`: set by AH. Valid until the next
// change of `cesty`.
Cesta& zarad_cestu(const NalezenaCesta& nalezena, int druh, bool automaticky);

// --- by the traffic and the start

// A train route over the tracks, standing, without a train yet, for a train that is on a line already; the
// operator neither sees it in the stack nor repeats it. `prvky` begins with the track before the signal.
// Valid until the next change of `cesty`.
Cesta& pridej_programovou_cestu(int zacatek, int konec, std::span<const std::int16_t> prvky);

// --- after a load

// The warnings that routes still wait for are told again; a route whose reason is gone waits no longer.
void pripomen_varovani();
