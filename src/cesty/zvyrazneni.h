// cesty/zvyrazneni.h - highlights of the selection: the picked signal and the label of the end.
#pragma once

#include "cesty/cesta.h"
#include "relief/prvek.h"

// --- by the selection, macros and the route machine. An element that does not exist is skipped.

// Background of a picked signal. A failed signal keeps its own.
void zvyrazni_navestidlo(int s, Barva barva);
void odznac_navestidlo(int s);
// Background of the label of an end below 600: tracks of the lines have none.
void zvyrazni_konec(int konec, Barva barva);
// The label of the end takes back what it showed before the highlight: nothing, or the colour of a note.
void vrat_barvu_konce(const Cesta& cesta);
// The label of an end no longer shows any highlight; notes stay.
void odznac_konec(int konec);
// Green, white and cyan are highlights; every other background of a label is its own.
bool je_barva_vyberu(Barva barva);
