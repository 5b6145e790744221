// zaklad/virtualni_hodiny.h - the clock of a host whose time is a number: it stands until it is moved.
//
// Both hosts run the simulation by it. The runner moves it as its script says; the desk moves it after the
// clock of the computer. So what the simulation does depends on the start and on the acts at their
// milliseconds, and on nothing else.
#pragma once

#include "zaklad/platforma.h"

#include <cstdint>

struct VirtualniHodiny {
    std::int64_t cas_ms = 0; // since the host's beginning
    NastennyCas pocatek;     // wall clock at millisecond 0
};
extern VirtualniHodiny virtualni_hodiny;

// --- at any time, without change

// What a platform tells of that clock: the tick counter, which wraps after 24 days as a real one does, and
// the wall clock.
std::int32_t tik_virtualnich_hodin();
NastennyCas cas_virtualnich_hodin();

// The wall clock `ms` milliseconds after a moment, the calendar included.
NastennyCas posun_cas(const NastennyCas& od, std::int64_t ms);
