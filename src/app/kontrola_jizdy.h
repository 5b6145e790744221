// app/kontrola_jizdy.h - the state checks that need to know what was before: trains that moved, signals
// that cleared, directions that turned.
#pragma once

#include "zaklad/text.h"

#include <optional>

// --- by kontrola_stavu(), after each step of the simulation

// The first thing that the running may not have done since the last look; nothing when all is well.
std::optional<Text> kontrola_jizdy();

// --- when the tables are filled anew

// What was seen so far belongs to another simulation.
void zapomen_kontrolu_jizdy();
