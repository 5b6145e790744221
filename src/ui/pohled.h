// ui/pohled.h - how the desk is shown: what the operator chooses for his eyes and no simulation knows.
#pragma once

#include "ui/paleta.h"

// The desk keeps the proportions of a display of 1024 by 768 and leaves the rest of the screen black;
// otherwise it fills the screen. Kept in the settings, off at first.
bool je_verny_pomer();
void nastav_verny_pomer(bool ano);

// The row of alarms is shown. Kept in the settings, on at first.
bool je_rada_vystrah();
void nastav_radu_vystrah(bool ano);

// The palette that was chosen last; the ordinary one at first.
Paleta ulozena_paleta();
// Shows the windows in it from now on and keeps it. What is painted already is not painted anew.
void zvol_paletu(Paleta nova);
