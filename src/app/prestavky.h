// app/prestavky.h - times in which the service stands without a pause of the operator: a box that waits for
// its answer, a computer that slept, a process that was stopped.
//
// For a host whose timers run by a real clock. Where time moves only when told there is nothing to hold.
#pragma once

#include <array>
#include <cstdint>

// When each timer of `casovace` had its last event, ms of the host's clock; below 0: never yet. The clock
// has to count the sleep of the computer too.
struct ZnackyCasovacu {
    std::array<std::int64_t, 5> posledni{-1, -1, -1, -1, -1};
};

inline constexpr std::int64_t kNejdelsiZpozdeni_ms = 10'000; // a longer gap is no delay but a stall

// --- when a box or dialogue opens and closes

// The time of the service stands, as in a pause. Answers whether it ran: that goes to ukonci_okno().
bool zacni_okno();
// Time runs on from here if it ran before; a pause that was on stays on.
void ukonci_okno(bool bezel_cas);

// --- at each event of a timer, before its body

// The timer `casovac` has its event at `ted_ms`. When some timer has waited for more than ten seconds, all
// of that time is taken for a pause: the marks of time are set anew and the diary says how long it was. A
// shorter delay is left to the clock, which makes it up.
void udalost_casovace(ZnackyCasovacu& znacky, std::size_t casovac, std::int64_t ted_ms);
