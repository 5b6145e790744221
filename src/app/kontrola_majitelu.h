// app/kontrola_majitelu.h - nothing is locked, occupied, numbered or shown at proceed without its owner.
//
// Every colour of the relief belongs to a route or to a train. A colour that nobody owns is a track lost
// for ever; a lock that two own is a collision to come. Only what comes about by itself is judged: a save
// may bring, and a hand may set, whatever it likes.
#pragma once

#include "zaklad/text.h"

#include <optional>

// --- at any time, without change; the headless runner asks after each tick

// The first element without its one owner; nothing when all is well.
std::optional<Text> kontrola_majitelu();

// --- when the tables are filled anew, or something is set by hand

// What stands at the next look is taken as it is; it is judged again when it has changed.
void prijmi_majitele();
