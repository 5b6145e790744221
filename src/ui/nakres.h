// ui/nakres.h - the time-distance diagram in a window of its own: on the other monitor, or over the desk.
//
// The core computes the picture (nakres/obraz.h); this window says what is looked at and hands a picked train
// to the desk. The simulation goes on while it is open.
#pragma once

#include <QWidget>

// --- on the operator's command

// Opens the diagram beside the desk, or closes it.
void prepni_nakres(QWidget* stul);
