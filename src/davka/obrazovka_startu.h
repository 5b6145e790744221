// davka/obrazovka_startu.h - the start screen in the hands of a script.
//
// The screen opens by itself at the first command that needs it, and set-up commands close it again, so
// that it is always filled from the world as the script has set it up.
#pragma once

#include "davka/json.h"

#include <span>
#include <string>

// Fills the screen, unless it is open already or the simulation has ended. A fault of the installation is
// a box and the end of the simulation.
void otevri_obrazovku_startu();
// Set-up has changed the world: the screen is filled anew when it is next needed.
void zavri_obrazovku_startu();

// The words of `spust` into the fields of the screen. A word that the screen does not know is an error of
// the script.
void vypln_obrazovku_startu(std::span<const std::string> slova);

// The hands on the screen. False when it has no such control; the words are those of `klik`.
bool klik_startu(std::span<const std::string> slova);
// Arrows step the selected field, Tab goes to the next one; Enter is the runner's own. False: no such key.
bool klavesa_startu(const std::string& jmeno);
// Text of the selected field; an error of the script when none is.
void pis_startu(const std::string& utf8);

// Adds its controls to what `vypis obrazovka` prints.
void vypis_obrazovky_startu(ZaznamJsonu& z);
