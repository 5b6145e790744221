// app/casovace.h - the timers of the main screen, and their order.
//
// Five timers run from the creation of the main screen to the end of the process, on one thread, so
// that their bodies never overlap. A host calls each body at its period; when several are due at once,
// in the order of this table. Each body does nothing in a pause.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <span>
#include <string_view>

// State changes only in these bodies and in the operator's commands.
struct Casovac {
    std::string_view jmeno; // of the timer
    std::string_view krok;  // as the headless runner calls it
    int perioda_ms;
    void (*telo)();
    bool obsluha = false; // works the desk as an operator does, when all else of its moment is done
};

// The clock step: adds the simulated seconds that have passed, and runs the minute step.
void krok_hodin();
// One played minute: the traffic, the waiting trains, the day at midnight, the periodic save. The last one
// that there is stops the clock in a pause, with a question that offers the save.
void krok_minuty();
// Played minutes until then; the minute of the start counts with them.
std::int32_t minut_do_konce_sluzby();
// Says on the command line that the service must end within a day; nothing while there is more time. Once
// by the minute step, and when a game is loaded.
void pripomen_konec_sluzby();

// The selection's ten seconds, then the route machine.
void krok_volby();

// The played minutes have come to a multiple of the period, and the periodic save is on.
bool je_cas_ulozit();

// The timers in the order in which they run when due at the same time: clock, movement, route machine,
// blinking; and behind them all, as the operator whose place he takes, the automatic dispatcher. The bodies
// stand with their owners.
extern const std::span<const Casovac> casovace;
