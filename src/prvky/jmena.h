// prvky/jmena.h - names of signals and ends, and which way a signal looks.
#pragma once

#include "zaklad/text.h"

// --- at any time, without change

// Name of signal s; empty when there is none.
Text jmeno_navestidla(int s);
// Name of the target of an end; empty when it has none.
Text jmeno_cile(int e);
// Name of an end: of its target, else of its track.
Text jmeno_konce(int e);
// The signal faces the even sense, by its glyph; a few signals do whatever their glyph.
bool sude_navestidlo(int s);
// Code of the glyph of signal s: the first character but for blanks; 0 when there is none.
int glyf_navestidla(int s);
