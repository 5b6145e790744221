// app/kontrola_jizdy.h - the state checks that need to know what was before: trains that moved, signals
// that cleared, directions that turned.
#pragma once

#include "zaklad/text.h"

#include <optional>

// --- by kontrola_stavu(), after each step of the simulation

// The first thing that the running may not have done since the last look; nothing when all is well.
std::optional<Text> kontrola_jizdy();

// --- at the end of a pause

// The mark of time of the movement is a fresh one, and no step has been made.
void prijmi_konec_pauzy();

// --- when the tables are filled anew

// What was seen so far belongs to another simulation.
void zapomen_kontrolu_jizdy();
