// ui/platforma_qt.h - the world outside, as the window system gives it.
#pragma once

#include <QString>

// Fills `platforma`. Called once, when the application object stands.
void zapln_platformu();

// The folder of the program as the core writes paths: with a trailing backslash, in code page 1250. A
// folder whose name the page cannot hold becomes the working folder, and is written ".\".
void nastav_cestu_aplikace();
// Path of a file of the installation for this system; empty when there is none.
QString soubor_aplikace(const char* jmeno);

// The display cannot be reached: what to do about it, in Czech, for the terminal.
const char* rada_bez_obrazovky();
