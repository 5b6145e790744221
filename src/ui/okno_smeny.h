// ui/okno_smeny.h - the window of the shift: going back in time, and watching a recorded shift.
#pragma once

class HlavniOkno;

// --- on the operator's command

// Opens the window over the desk, or brings it forward. It stops nothing.
void ukaz_okno_smeny(HlavniOkno& stul);
// Likewise; one that is open is closed.
void prepni_okno_smeny(HlavniOkno& stul);

// --- with each picture of the desk

// What the window says, anew; nothing when it is closed.
void obnov_okno_smeny();

// --- while a shift is watched

// F10: the watching stops and goes on, with the window or without.
void prepni_prehravani();
