// ui/vypravci.h - the automatic dispatcher at the desk: the key that hands over and takes over, his sign, and
// the window that tells what he does and what waits.
#pragma once

#include "relief/prvek.h"

#include <QWidget>

// --- on the operator's command

// Hands over what he had last or the window's boxes say, at first the whole desk; takes it back when he has
// it. When no box is ticked, the window is opened instead.
void prepni_vypravciho();
// Opens the window "Automatický výpravčí", or closes it.
void prepni_okno_vypravciho(QWidget* stul);

// --- at any time, without change

// His sign in the top bar, while he has the desk or a part of it; hidden otherwise.
Prvek znacka_vypravciho();
// Why the train on the bottom panel waits, when he has it; hidden otherwise. The desk gives it its height.
Prvek radek_cekani_na_panelu();
