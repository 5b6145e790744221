// ui/prirucka.h - the manual in a window of the program, from everywhere under F1.
#pragma once

#include <QApplication>

// --- at start

// F1 opens the manual whatever window has the keys, at the chapter of what is under the pointer.
void zapni_f1(QApplication& aplikace);

// --- at any time

// Opens the manual, or brings it forward, at the chapter of that number (ui/napoveda.h). A clock that runs
// stops as for every other window that takes the desk away, and goes on when the manual is closed; F10 starts
// it before. False when the installation has no manual.
bool ukaz_prirucku(int kapitola);
