// davka/planovac.h - runs the timers of the main screen in virtual time.
//
// Each timer is due at the multiples of its period, counted from virtual millisecond 0, and runs with
// the virtual clock standing at that moment. When several are due at once they run in the order of the
// table of app/casovace.h: clock, movement, route machine, blinking, automatic dispatcher; the flashing lamp
// of the signal panel and the date and the marks of an open maintenance screen come last.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

struct Planovac {
    bool bezi = false;                   // the main screen exists
    std::vector<std::int64_t> splatno;   // virtual millisecond at which each timer is due next
    std::vector<int> periody_promennych; // of the timers that come and go, as last seen; 0 does not run
    std::vector<std::int64_t> splatno_promennych;
    std::function<void()> po_kroku; // after each body: the check of the state
};
extern Planovac planovac;

// The main screen has been made: its timers run from now on.
void spust_planovac();

// Lets virtual time pass to the moment `do_ms` and runs what falls due on the way, that moment
// included. `dost` is asked after each moment at which something ran; its True stops the passing
// there, with the clock at that moment. Answers whether it did.
bool plyn_do(std::int64_t do_ms, const std::function<bool()>& dost = {});

// Runs the body of one timer once, at this very moment and apart from its period. `poradi` as in the
// table of timers.
void proved_krok(std::size_t poradi);
