// prvky/navestidla.h - signals: aspects, menu, blocking, calling-on, automatic mode.
//
// The state of a signal is the colour of its glyph: grey stop, green proceed, white shunting permitted
// or the calling-on lamp, red a main and blue a shunting signal blocked by ZAM. Which proceed aspect a
// green signal shows is not kept anywhere: it follows from the route and from the next signal.
// The glyph tells the facing and whether the automatic mode is on.
#pragma once

#include "prvky/panel.h"
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

// --- on the operator's command

// Opens the menu of signal s, main or shunting.
void menu_navestidla(int s);
// ZAM: blocks signal s, or ends its blocking.
void zam(int s);
// PPN: the running calling-on aspect of s lasts 30 s longer.
void ppn(int s);
// Menu AB: toggles the automatic mode; the operator picks the end of the first run when none stands.
void menu_ab(int s);

// --- by AB, RC, STUJ, AH

// Toggles the automatic mode of s; switching it off drops the copy that waits for its turn.
void prepni_ab(int s);

// --- when a train passes the start of route i

// Queues a copy of route i when its signal is in automatic mode.
void kopie_ab(int i);
