// cesty/duvod.h - "why not?": one sentence on what a route waits for.
#pragma once

#include "zaklad/text.h"

// --- at any time, without change

// Why route i waits now, element and condition: "výhybka 14 je pod závěrem cesty VC ...". Empty when
// it waits for nothing. The answer comes from the very checks of the route machine.
Text duvod_cekani(int i);
