// app/nastaveni.h - typed reading of the settings store.
#pragma once

#include "zaklad/text.h"

// Number stored under a key, `vychozi` when there is none. The store is written by the program alone:
// a text that is no number is the run-time error 13.
int nastaveni_cislo(TextPohled sekce, TextPohled klic, int vychozi);
