// ui/klavesy_qt.h - the keys and buttons of the window system as the desk knows them.
#pragma once

#include "obsluha/klavesy.h"
#include "obsluha/tlacitko.h"

#include <QKeyEvent>
#include <QPoint>

// The desk's name of a key; kod zadna for one that it does not know. The keys of the numeric block are taken
// from the main block too: portable keyboards have no other.
Klavesa klavesa_qt(const QKeyEvent& k);
Tlacitko tlacitko_mysi(Qt::MouseButton tlacitko);

bool je_tabulator(const QKeyEvent& k);
bool je_enter(const QKeyEvent& k);
// F1 to F12.
bool je_klavesa_f(const QKeyEvent& k);
bool je_sipka(const QKeyEvent& k);
// One step in the direction of an arrow, to the right and down.
QPoint smer_sipky(const QKeyEvent& k);
