// davka/prikazy_rukou.h - commands of the runner's language that are a hand on the desk.
#pragma once

#include "davka/beh.h"

void prikaz_klik(BehSkriptu& beh, Slova slova);
void prikaz_ukaz_vlak(BehSkriptu& beh, Slova slova);
void prikaz_pravy(BehSkriptu& beh, Slova slova);
void prikaz_prostredni(BehSkriptu& beh, Slova slova);
void prikaz_dvojklik(BehSkriptu& beh, Slova slova);
void prikaz_najed(BehSkriptu& beh, Slova slova);
void prikaz_menu(BehSkriptu& beh, Slova slova);
void prikaz_klavesa(BehSkriptu& beh, Slova slova);
void prikaz_pis(BehSkriptu& beh, Slova slova);
void prikaz_odpovez(BehSkriptu& beh, Slova slova);
