// app/kontrola.h - what must always hold in the tables, whatever the operator and the traffic do.
#pragma once

#include "zaklad/text.h"

#include <optional>

// --- at any time, without change; the headless runner asks after each tick

// The first thing that does not hold, with its table, index and element; nothing when all is well.
// Between the start screen and the login dialogue the tables are only being filled, and nothing of
// them is looked at.
std::optional<Text> kontrola_stavu();
