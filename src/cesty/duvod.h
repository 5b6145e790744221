// cesty/duvod.h - "why not?": one sentence on what a route waits for.
#pragma once

#include "zaklad/text.h"

// --- at any time, without change

// Why route i waits now, element and condition: "výhybka 14 je pod závěrem cesty VC ...". Empty when
// it waits for nothing. The answer comes from the very checks of the route machine.
Text duvod_cekani(int i);
// The same of the route that stands on the waiting line of the stack; empty when none does.
Text duvod_zasobniku();
// The same of the first route from signal s that waits for something.
Text duvod_u_navestidla(int s);
