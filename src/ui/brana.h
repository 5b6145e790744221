// ui/brana.h - the gate between the window system and the core.
//
// Every key, click and choice enters the core through v_jadre(), once the timers that are due by then have
// run. A run-time error that comes out is shown in a box and ends the process; so does the end of the
// program. While the core runs, a box or a dialogue of its own may turn the event loop: what comes in then
// waits outside, so that two bodies never overlap.
#pragma once

#include <functional>

// Runs the body and answers true; false, and nothing is run, while the core runs or after its end.
bool v_jadre(const std::function<void()>& telo);
// The same for a hand at the desk, which does nothing while a recorded shift is watched.
bool rukou(const std::function<void()>& telo);
// The same for an end that comes from outside, and may come while the core waits behind a box: the body runs
// at once, and the box goes with the program.
void ukonci_zvenci(const std::function<void()>& telo);
// The program has ended: no input any more.
bool je_konec();
// Ends the event loop with the exit code.
void skonci(int kod);
// What the process answers at the end.
int navratovy_kod();
