// prvky/volnost.h - which tracks are free.
#pragma once

#include "relief/relief.h"

#include <bitset>
#include <span>

// Numbered sections that a tail has left: they keep the cyan tint while the train is still on its
// route, but are free for the next one. A section leaves the set when it is painted again.
extern std::bitset<kNejvyssiPrvek + 1> odjete;

// --- at any time, without change

// The track n is free: grey, or left by a tail. Of two tracks that cross on the level both must be.
bool je_volna(int n);
// Of two crossing tracks the one for which je_volna(n) says no: n itself first; n when it is free.
int nevolny_usek(int n);
// The track n exists and is free.
bool je_volna_kolej(int n);
// First one of the tracks that exists and is free; -1 when none is.
int prvni_volna_kolej(std::span<const int> koleje);
