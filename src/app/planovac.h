// app/planovac.h - runs the timers of the main screen by the host's clock: one planner for both hosts.
//
// Each timer is due at the multiples of its period, counted from millisecond 0, and runs with the host's
// clock standing at that moment. When several are due at once they run in the order of the table of
// app/casovace.h: clock, movement, route machine, blinking; then the flashing lamp of the signal panel and
// the date and the marks of an open maintenance screen; last of all a timer that works the desk as an
// operator does. So the state is a function of the start and of the acts at their milliseconds: the clock of
// the computer only says how far the desk has come, never what happens there.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

struct Planovac {
    bool bezi = false;                   // the main screen exists
    bool bez_obsluhy = false;            // timers that work the desk stand: their acts are done again
    std::vector<std::int64_t> splatno;   // millisecond at which each timer is due next
    std::vector<int> periody_promennych; // of the timers that come and go, as last seen; 0 does not run
    std::vector<std::int64_t> splatno_promennych;
    std::function<void()> po_kroku;    // after each body: the check of the state
    std::function<void()> po_okamziku; // after all that fell due at one moment
};
extern Planovac planovac;

// The main screen has been made: its timers run from now on.
void spust_planovac();

// Lets time pass to the moment `do_ms` and runs what falls due on the way, that moment included. `dost` is
// asked after each moment at which something ran; its True stops the passing there, with the clock at that
// moment. Answers whether it did.
bool plyn_do(std::int64_t do_ms, const std::function<bool()>& dost = {});

// The host's clock goes on by so many milliseconds, and no timer runs.
void preskoc(std::int64_t ms);

// Runs the body of one timer once, at this very moment and apart from its period. `poradi` as in the
// table of timers.
void proved_krok(std::size_t poradi);
