// app/konec.cpp - the end of the program, and its window going away and coming back.
#include "app/konec.h"

#include "app/rezim.h"
#include "app/simulace.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"

namespace {

// The mode that zapamatuj_rezim stored, when it is not the simulation's own.
void vrat_rezim_obsluhy() {
    const RezimObrazovky ulozeny = ulozeny_rezim();
    if (!simulace.noresize && ulozeny.sirka != 0 && !je_rezim_simulace(ulozeny))
        nastav_rezim(ulozeny.sirka, ulozeny.vyska, ulozeny.frekvence, ulozeny.bpp);
}

} // namespace

void konec_programu(bool ptat_se) {
    if (ptat_se && !zeptej_se("KPS RVZ TESK"_cz, "Opravdu chcete ukončit simulaci?"_cz, false))
        return;
    ukaz_listu();
    gtn_zavri();
    try {
        vrat_rezim_obsluhy();
        zapomen_rezim();
    } catch (const BehovaChyba&) { // a damaged setting must not keep the program from ending
    }
    platforma.ukonci(0);
}

void konec_ihned() {
    konec_programu(false);
}

void minimalizuj() {
    if (simulace.minimalizovano)
        return;
    simulace.minimalizovano = true;
    zastav_hodiny();
    vrat_rezim_obsluhy();
    ukaz_listu();
}

void obnov_okno() {
    simulace.minimalizovano = false;
    nastav_rezim_simulace();
    if (je_rezim_simulace(platforma.rezim()))
        skryj_listu();
}
