// prvky/navestidla.h - signals: aspects, blocking, the glyph of the automatic mode.
//
// The state of a signal is the colour of its glyph: grey stop, green proceed, white shunting permitted
// or the calling-on lamp, red a main and blue a shunting signal blocked by ZAM. Which proceed aspect a
// green signal shows is not kept anywhere: it follows from the route and from the next signal.
// The glyph tells the facing and whether the automatic mode is on.
#pragma once

#include "prvky/panel.h"
#include "relief/relief.h"
#include "zaklad/text.h"

#include <array>

// dalsi_navest: the next signal shows stop.
inline constexpr int kNavestStuj = 255;

// A glyph of a main signal with the automatic mode off, and its twin with the mode on.
struct DvojiceZnaku {
    int vypnuto, zapnuto;
};
inline constexpr std::array<DvojiceZnaku, 4> kZnakyAB = {{{229, 8}, {230, 15}, {228, 176}, {226, 183}}};

// --- at any time, without change

// Speed class that the next signal behind a route ending on `prvek` announces: 255 stop, 0 free, 1, 2,
// 3 = 40, 60, 80 km/h.
int dalsi_navest(int prvek);
// Word of the aspect of route i: "VOLNO", "40/VYS", "POS.DOV"; empty when its signal shows no aspect.
TextPohled aspekt_text(int i);
// The automatic mode of signal s is on: its glyph's code is below 200.
bool ab_zapnuto(int s);

// What ZAM shows: a main signal stays at stop, over a shunting one nobody may shunt.
Barva blokovana_barva(int s);

// --- on the operator's command

// ZAM: blocks signal s, or ends its blocking.
void zam(int s);

// --- by cesty/opakovani.h

// The glyph of s tells the other mode, automatic or not. True when the mode is on then.
bool prepni_znak_ab(int s);
