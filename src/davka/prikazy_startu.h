// davka/prikazy_startu.h - commands of the runner's language that start a simulation, save it and log in.
#pragma once

#include "davka/beh.h"

void prikaz_spust(BehSkriptu& beh, Slova slova);
void prikaz_nacti(BehSkriptu& beh, Slova slova);
// The open command by its button: the dialogue takes the next answer.
void prikaz_otevrit(BehSkriptu& beh);
void prikaz_uloz(BehSkriptu& beh, Slova slova);
void prikaz_prihlas(BehSkriptu& beh, Slova slova);
