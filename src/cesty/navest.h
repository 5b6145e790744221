// cesty/navest.h - colours of a route's start signal, with their log and panel.
#pragma once

#include "cesty/cesta.h"
#include "relief/prvek.h"

// --- by the route machine and the release

// The signal takes the colour; logged, and shown in the panel when it stands there. A signal that does
// not exist is skipped.
void nastav_navest(int s, Barva barva);
// Proceed of a standing route: green for a train route on a main signal, else white.
Barva volnoznak(const Cesta& cesta);
// The signal is blocked by ZAM.
bool je_zablokovano(int s);
// The route starts at a line end or was made for a train from the line: its signal is not the desk's.
bool je_vjezd_z_trati(const Cesta& cesta);
