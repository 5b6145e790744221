// app/prehravani.h - a recorded shift is watched: its acts are done again at their milliseconds.
//
// The desk shows what the operator of that shift saw and did; the watcher's own hands do nothing. Time runs
// as fast as he likes, and back as well. At any moment he may take the shift over: from there on the hands
// are his, and the record goes on with them in a file of its own.
#pragma once

#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

// No shift makes a longer record; a longer file is none.
inline constexpr std::size_t kNejdelsiZaznamSmeny_B = 64'000'000;

// --- on the start screen

// Reads a record, UTF-8. Why it cannot be watched, for a box; nothing when it can.
std::optional<Text> cti_smenu(std::string_view zaznam);
// Prepares and starts the simulation of the record that was read, up to its login. The host's clock is that
// of the record from now on.
void spust_prehravani();

// --- while it is watched

// Time passes to that millisecond and the recorded acts are done on the way; no further than the record goes.
// `dost` is asked after each moment at which something ran and after each act: its True stops there, and is
// the answer.
bool prehravej_do(std::int64_t do_ms, const std::function<bool()>& dost = {});
// To the moment at which the clock shows so many simulated seconds more, or less; what the record and the
// memory do not hold is not reached: false.
bool prehraj_o(std::int64_t sekund);
// To the next moment, or to the last one, at which the clock shows that second of the day, whichever is
// nearer.
bool prehraj_na(std::int32_t sekunda_dne);
// The hands are the watcher's from here.
void prevezmi_smenu();

// --- when the tables are filled anew

void zapomen_prehravani();

// --- at any time, without change

bool prehrava_se();
// Nothing more is recorded.
bool prehravani_skoncilo();
// Milliseconds of the record that have passed, and those that there are.
std::int64_t prehrano_ms();
std::int64_t delka_zaznamu_ms();
