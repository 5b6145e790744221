// cesty/navest.cpp - colours of a route's start signal.
#include "cesty/navest.h"

#include "prvky/navestidla.h"
#include "relief/relief.h"
#include "save/gtn.h"

void nastav_navest(int s, Barva barva) {
    TabulkaPrvku& druh = navestidla(s);
    if (!druh.je(s))
        return;
    druh[s].barva = barva;
    gtn_zapis(s, gtn::barva_navestidla, barva);
    obnov_panel_kdyz_ukazuje(s);
}

Barva volnoznak(const Cesta& cesta) {
    return cesta.VC && !cesta.PN && !je_na_ser(cesta.zacatek) ? barvy::zelena : barvy::bila;
}

bool je_zablokovano(int s) {
    const TabulkaPrvku& druh = navestidla(s);
    return druh.je(s) && druh[s].barva == blokovana_barva(s);
}

bool je_vjezd_z_trati(const Cesta& cesta) {
    return je_vstup_z_trati(prvni_prvek(cesta));
}
