// cesty/tik_volby.h - the route machine: tmrVolby, every 1100 ms.
#pragma once

// One walk over `cesty`; each route gets at most one action. It is the only place where a queued route
// becomes thrown switches, locked elements and a cleared signal. Nothing in a pause.
void tik_volby();
