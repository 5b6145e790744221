// davka/prikazy_smeny.h - commands of the record of a shift, and of turning time back.
#pragma once

#include "davka/beh.h"

// Set-up that a record holds.
void prikaz_smena(BehSkriptu& beh, Slova slova);
void prikaz_makra(BehSkriptu& beh, Slova slova);
void prikaz_hra(BehSkriptu& beh, Slova slova);
// What the host did for the operator.
void prikaz_okno(BehSkriptu& beh, Slova slova);
void prikaz_pohyb(BehSkriptu& beh, Slova slova);
void prikaz_zahod_menu(BehSkriptu& beh, Slova slova);
void prikaz_prestavka(BehSkriptu& beh, Slova slova);
// Notes in a record: the train-number log could not be written; time was turned back.
void prikaz_vada_deniku(BehSkriptu& beh, Slova slova);
void prikaz_vraceno(BehSkriptu& beh, Slova slova);
// The record so far, and time.
void prikaz_zaznam(BehSkriptu& beh, Slova slova);
void prikaz_hodnoceni(BehSkriptu& beh, Slova slova);
void prikaz_zpet(BehSkriptu& beh, Slova slova);
void prikaz_zpet_na(BehSkriptu& beh, Slova slova);
void prikaz_zpet_zrus(BehSkriptu& beh, Slova slova);

// The simulation has been started by the script: what a record brought holds from now on.
void zacni_smenu_skriptu(BehSkriptu& beh);
