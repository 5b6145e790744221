// ui/zvuk.h - the beeps: tones of a frequency and a length, one after another.
#pragma once

// At start and end of the process. Without a sound device every tone is silent.
void zapni_zvuk();
void vypni_zvuk();
// Puts a tone behind those that wait, Hz and ms; never waits itself. When too many wait it is dropped.
void zahraj_ton(int hz, int ms);
