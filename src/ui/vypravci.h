// ui/vypravci.h - the automatic dispatcher at the desk: the key that hands over and takes over, and the
// window that tells what he does and what waits.
#pragma once

#include <QWidget>

// --- on the operator's command

// Hands over what he had last or the window's boxes say, at first the whole desk; takes it back when he has
// it. When no box is ticked, the window is opened instead.
void prepni_vypravciho();
// Opens the window "Automatický výpravčí", or closes it.
void prepni_okno_vypravciho(QWidget* stul);
