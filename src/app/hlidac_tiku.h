// app/hlidac_tiku.h - the watch on ticks that take too long.
//
// A desk whose tick takes longer than the eye forgives stands for that while: neither keys nor trains move.
// The watch tells it in the log of the program and nowhere else: it looks at a clock of the computer, and
// nothing of the simulation hangs on that. A tick behind which a box waited for the operator does not count.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

inline constexpr std::int64_t kDlouhyTik_ms = 200;

struct HlidacTiku {
    std::function<std::int64_t()> ms; // a clock that nobody sets; unset: nothing is watched
    std::int64_t tiku = 0;
    std::int64_t dlouhych = 0;
    std::int64_t nejdelsi_ms = 0;
    bool cekalo_se = false; // in the tick that runs
};
extern HlidacTiku hlidac_tiku;

// --- by the host, at its start

// Begins the watch; without a clock it ends.
void hlidej_tiky(std::function<std::int64_t()> ms);

// --- by the planner

// Runs the body of a timer under the watch.
void proved_tik(std::string_view jmeno, void (*telo)());

// --- when a box opens, and when the core waits for a while of its own

void tik_ceka();

// --- at the end of the program

// What was seen, as a line for the log; empty when nothing was too long.
std::string souhrn_tiku();
