// gvd/stav_provozu.cpp - the traffic's memory.
#include "gvd/stav_provozu.h"

StavProvozu stav_provozu;
