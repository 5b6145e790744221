// cesty/zvyrazneni.cpp - highlights of the selection.
#include "cesty/zvyrazneni.h"

#include "relief/relief.h"

namespace {

void nastav_pozadi(Prvek& stitek, Barva barva) {
    stitek.pozadi = barva;
    stitek.ramecek = barva != barvy::cerna;
}

} // namespace

void zvyrazni_navestidlo(int s, Barva barva) {
    TabulkaPrvku& druh = navestidla(s);
    if (druh.je(s) && druh[s].pozadi != barvy::seda)
        nastav_pozadi(druh[s], barva);
}

void odznac_navestidlo(int s) {
    TabulkaPrvku& druh = navestidla(s);
    if (druh.je(s))
        zrus_zvyrazneni(druh[s]);
}

void zvyrazni_konec(int konec, Barva barva) {
    if (!je_usek_trati(konec) && relief.cislo_koleje.je(konec))
        nastav_pozadi(relief.cislo_koleje[konec], barva);
}

void vrat_barvu_konce(const Cesta& cesta) {
    if (!relief.cislo_koleje.je(cesta.konec))
        return;
    Prvek& stitek = relief.cislo_koleje[cesta.konec];
    if (je_barva_vyberu(stitek.pozadi))
        nastav_pozadi(stitek, cesta.barva_cisla);
}

void odznac_konec(int konec) {
    if (relief.cislo_koleje.je(konec) && je_barva_vyberu(relief.cislo_koleje[konec].pozadi))
        nastav_pozadi(relief.cislo_koleje[konec], barvy::cerna);
}

bool je_barva_vyberu(Barva barva) {
    return barva == barvy::zelena || barva == barvy::bila || barva == barvy::azurova;
}
