// app/rezim.h - the display mode: the simulation's own, and the operator's, kept in the settings.
#pragma once

#include "zaklad/platforma.h"

inline constexpr int kSirkaDesky = 1024, kVyskaDesky = 768;

// --- at start and end, and when the window goes away and comes back

// Stores width, height, frequency and colour depth of the present mode (section "Obrazovka").
void zapamatuj_rezim();
// What is stored; width 0 when nothing is. A value that is no number is the run-time error 13.
RezimObrazovky ulozeny_rezim();
// Deletes the four settings.
void zapomen_rezim();
// Switches to the mode of that size; a frequency or depth of 0 means the present one. A size that the
// display does not list changes nothing; when 1024 by 768 cannot be had, or a switch fails, a box tells
// that the desk may not be seen whole, and the simulation goes on.
void nastav_rezim(int sirka, int vyska, int frekvence, int bpp);
// Switches to the desk's own size (two desks side by side with two monitors), unless the display stands
// at 1024 by 768 or must not be touched.
void nastav_rezim_simulace();

void skryj_listu();
void ukaz_listu();

// --- at any time, without change

// The size of one desk.
inline bool je_rezim_simulace(const RezimObrazovky& rezim) {
    return rezim.sirka == kSirkaDesky && rezim.vyska == kVyskaDesky;
}
