// save/obnova.h - a saved record takes the place of the present state.
#pragma once

#include "save/zaznam.h"

#include <cstdint>

// --- by the load, with a record that has been checked

// Tables, clock, options, colours and captions of the relief as the record has them; `minuty` are the played
// minutes that belong to its clock, and a box tells when they are not the saved ones. What no field holds is
// worked out from the others. An error on the way leaves the state half changed: the caller gives it back.
void obnov_stav(Zaznam z, std::int16_t minuty);
