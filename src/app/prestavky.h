// app/prestavky.h - times in which the service stands without a pause of the operator: a box that waits for
// its answer, a computer that slept, a process that was stopped.
//
// For a host that moves its clock after that of the computer. Where time moves only when told there is
// nothing to hold, but the times in which a shift stood are there when it is played again.
#pragma once

#include <cstdint>

inline constexpr std::int64_t kNejdelsiZpozdeni_ms = 10'000; // a longer gap is no delay but a stall

// The host's clock beside the computer's.
struct ChodHostitele {
    std::int64_t nula_ms = 0; // of the computer's clock, at millisecond 0 of the host's
    bool stal = false;        // a box was open, or the service was being made ready
};

// --- when a box or dialogue opens and closes

// The time of the service stands, as in a pause. Answers whether it ran: that goes to ukonci_okno().
bool zacni_okno();
// Time runs on from here, within its second, if it ran before; a pause that was on stays on.
void ukonci_okno(bool bezel_cas);

// --- at each event of the host, before what it brings

// The computer's clock shows `ted_ms`; it has to count the sleep of the computer too. The host's clock comes
// up to it, and the timers that fall due on the way run at their moments. A gap of more than ten seconds is a
// stall: no timer runs then.
void dozen_hodiny(ChodHostitele& chod, std::int64_t ted_ms);

// --- by the host, and when a shift is played again

// The host's clock goes on by so many ms in which the service stood. `pocitac`: nobody stopped it, so that
// the diary says how long it was; the clock of the service then begins a new second.
void prestavka(std::int64_t ms, bool pocitac);
