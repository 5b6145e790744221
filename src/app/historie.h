// app/historie.h - the shift so far as something to go back in: states of some moments, and the acts between.
//
// A state is kept whole, with all that a save leaves out - the random source, the marks of the timers, a
// half-made selection - every kSnimekPo_s simulated seconds for the last hours. Between two of them the shift
// is played again from its acts: that takes milliseconds, and comes to the very state that was there, field
// by field.
//
// The present moves on the line of the shift. Going back lays aside what came after; until the operator's
// next act it can be had again, and times that lie on it can be gone to. Moving the pointer is no act, and
// time that passes by itself is none either. The acts that remain tell of it: a note stands where time was
// turned back to, and one where that was undone.
#pragma once

#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>

// Simulated seconds between two kept states: an hour of busy traffic is played again in some hundredths of a
// second. An act after so many milliseconds of a pause keeps one too.
inline constexpr std::int64_t kSnimekPo_s = 3600;
inline constexpr std::int64_t kSnimekPo_ms = 4 * 3600 * 1000;
// Time that can be gone back, and how many bytes the kept states take at most: with more, the oldest goes.
inline constexpr std::int64_t kPametHistorie_s = 6 * 3600;
inline constexpr std::size_t kPametHistorie_B = 64'000'000;

enum class Navrat : std::uint8_t {
    hotovo,
    pred_pameti, // the time lies before what is kept
    neni_kam,    // nothing is laid aside, or the time has not come yet
    selhal,      // the shift could not be played again; nothing has changed
};

// --- by the host, when the desk stands and the login waits

void zacni_historii();

// --- on the operator's command

// Goes to the moment at which the clock first showed the time so many simulated seconds ago.
Navrat vrat_o(std::int64_t sekund);
// Goes to the last such moment at which it showed that second of the day; when what was laid aside holds it
// ahead of the present, to that one.
Navrat vrat_na(std::int32_t sekunda_dne);
// Takes the going back itself back: the present is where it was before.
Navrat zrus_navrat();

// --- when the tables are filled anew

void zapomen_historii();

// --- at any time, without change

// Something is laid aside that zrus_navrat() would bring back.
bool je_co_vratit();
// The earliest second of the day that can be gone to, and how many simulated seconds ago it was.
std::int32_t zacatek_pameti();
std::int64_t delka_pameti_s();
// Where the present was when time was turned back; the clock's when nothing is laid aside.
std::int32_t konec_pameti();
// Kept states, and what they take.
std::size_t snimku_historie();
std::size_t bajtu_historie();
// Simulated seconds since the history began.
std::int64_t ubehlo_s();
// What the answers and the acts of the shift were counted from: both lists only grow while this stays.
std::uint64_t vetev_historie();
