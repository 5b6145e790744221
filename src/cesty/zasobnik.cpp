// cesty/zasobnik.cpp - the stack of routes as the operator sees it.
#include "cesty/zasobnik.h"

#include "cesty/dotazy.h"
#include "cesty/zvyrazneni.h"
#include "obsluha/vyber.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <algorithm>

bool plati_vz() {
    return relief.lblZasobnik_VZ[0].barva == barvy::bila;
}

bool je_v_zasobniku(const Cesta& cesta) {
    return cesta.zacatek >= 0 && !cesta.Postavena && cesta.Vlak != kKopieAB;
}

std::vector<int> radky_zasobniku() {
    std::vector<int> radky;
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (je_v_zasobniku(cesty[i]))
            radky.push_back(static_cast<int>(i));
    return radky;
}

bool ceka_na_ni_zasobnik(const Cesta& cesta) {
    return stav_zasobniku.ceka == std::int32_t{cesta.ZT};
}

void zmena_zasobniku() {
    const auto pocet = std::count_if(cesty.begin(), cesty.end(), je_v_zasobniku);
    nastav_text(relief.lblZasobnik_pocet[0], text_cisla_mist(pocet, 2));
}

void ohlas_cekani(const Cesta& cesta) {
    if (stav_zasobniku.ceka || cesta.Vlak == kKopieAB)
        return;
    stav_zasobniku.ceka = cesta.ZT;
    Prvek& blokv = relief.lblZasobnik_blokv[0];
    nastav_text(blokv, popis_cesty(cesta));
    blokv.popis = text_cisla(cesta.ZT);
    blokv.viditelny = true;
}

void uvolni_cekani(const Cesta& cesta, TextPohled znacka) {
    if (!ceka_na_ni_zasobnik(cesta))
        return;
    stav_zasobniku.ceka.reset();
    Prvek& blokv = relief.lblZasobnik_blokv[0];
    nastav_text(blokv, {});
    blokv.popis = znacka;
    blokv.viditelny = false;
}

void prepni_pv_vz(bool vz) {
    relief.lblZasobnik_VZ[0].barva = vz ? barvy::bila : barvy::seda;
    relief.lblZasobnik_PV[0].barva = vz ? barvy::seda : barvy::bila;
}

void odeber_ze_zasobniku(int i) {
    if (i < 0 || static_cast<std::size_t>(i) >= cesty.size())
        return;
    const Cesta& cesta = cesta_c(i);
    if (cesta.zacatek < 0 || cesta.prehozena)
        return;
    uvolni_cekani(cesta, "0");
    if (cesta.zacatek != vyber.volba_zacatek)
        odznac_navestidlo(cesta.zacatek);
    vrat_barvu_konce(cesta);
    smaz_cestu(i);
    zmena_zasobniku();
}
