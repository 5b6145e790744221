// ui/platforma_qt.h - the world outside, as the window system gives it.
#pragma once

#include "zaklad/text.h"

// Fills `platforma`. Called once, when the application object stands.
void zapln_platformu();

// The folder of the program in code page 1250. A folder whose name the page cannot hold becomes the working
// folder, and is written ".".
Text slozka_programu();

// The display cannot be reached: what to do about it, in Czech, for the terminal.
const char* rada_bez_obrazovky();
