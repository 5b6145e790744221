// cesty/prehoz_rukou.h - switches thrown by hand, as far as routes and trains let it.
#pragma once

#include "prvky/vyhybky.h"

// --- at any time, without change

// Orders for switch n: those that it is free for, while no coupled one is locked.
Moznosti moznosti_vyhybky(int n);

// --- on the operator's command

// Throws n by hand: 3 simulated seconds, ended by the route machine.
void hod_vyhybku(int n, PovelVyhybky povel);
// NOUZ: ends any movement at once in the emergency position. A route that was cleared over n goes to stop.
void vyhybka_nouz(int n);
