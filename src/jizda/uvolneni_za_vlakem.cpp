// jizda/uvolneni_za_vlakem.cpp - what a train leaves behind its tail.
#include "jizda/uvolneni_za_vlakem.h"

#include "cesty/cisla_vlaku.h"
#include "cesty/drzeni.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/poslusnost.h"
#include "jizda/vlak.h"
#include "prvky/barvi_prvek.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

constexpr int kPodruhemVlaku_m = 150; // where a train finds itself when the one before it has left the track

// The train holds the element with an entry in front of j: it has come back over it.
bool drzi_znovu(const Vlak& vlak, std::size_t j) {
    for (std::size_t i = std::max(j + 1, static_cast<std::size_t>(vlak.prvek_konec)); i < vlak.prvky.size();
         ++i)
        if (vlak.prvky[i].prvek == vlak.prvky[j].prvek && vlak.prvky[i].druh == vlak.prvky[j].druh)
            return true;
    return false;
}

// A train stands on track j, this one or another. One that was shortened is in the list of the track, and not
// there.
bool stoji_na_koleji(int v, std::size_t j) {
    return drzi_jiny(vlak_c(v).prvky[j].prvek, v) || drzi_znovu(vlak_c(v), j);
}

void uvolni_kolej(int v, std::size_t j) {
    const int e = vlak_c(v).prvky[j].prvek;
    const bool popsana = vlak_c(v).prvky[j].poloha == 2;
    const bool cislovana = je_cislo_koleje(e) && !je_usek_trati(e);
    if (cislovana) {
        uber_z_koleje(e, v);
        // The number ran ahead over a route against the train's sense: it is taken back.
        const int protismerna = cesta_od_prvku(e, vlak_c(v).prvky[j + 1].prvek, vlak_c(v).smer);
        if (protismerna >= 0)
            vymaz_cislo(protismerna, true, {});
    }
    const Text cislo = vlak_c(v).posun ? Text{} : text_cisla(zobrazene_cislo(vlak_c(v)));
    // The number that stays on the label of a track with two of them goes with its train.
    if (cislovana && !vlak_na_koleji(e))
        smaz_cislo_z_dvou(e, zobrazene_cislo(vlak_c(v)));
    if (stoji_na_koleji(v, j)) {
        nastav_metry(e, kPodruhemVlaku_m);
        return;
    }
    if (cislovana) {
        barvi_prvek(e, barvy::azurova, true);
        pis_cislo(e, cislo, true);
    } else {
        barvi_prvek(e, barvy::seda);
        if (popsana)
            pis_cislo(e, cislo, true);
    }
    nastav_metry(e, 0);
}

void uvolni_zkracenou_kolej(int v, std::size_t j) {
    if (stoji_na_koleji(v, j))
        return;
    const int e = vlak_c(v).prvky[j].prvek;
    barvi_prvek(e, barvy::seda);
    nastav_metry(e, 0);
}

void uvolni_vyhybku(int v, std::size_t j) {
    Vlak& vlak = vlak_c(v);
    const int n = vlak.prvky[j].prvek;
    if (n == vlak.konec_omezeni)
        vlak.omezeni_ukonceno = true; // the whole train has cleared the last switch of its route
    const int stav = stav_vyhybky_cislo(n);
    // Reserved or locked since by another route it stays, and so does a calling-on route's own until RNZ.
    if ((stav < 100 || stav > 150) && !drzi_znovu(vlak, j) && drzitel(druh_prvku::vyhybka, n) == nullptr)
        uvolni_zaver_vyhybky(n, vlak.prvky[j].poloha);
}

void uvolni_vykolejku(int v, std::size_t j) {
    const int n = vlak_c(v).prvky[j].prvek;
    const Cesta* drzi = drzitel(druh_prvku::vykolejka, n);
    if (relief.lblVykolejka.je(n) && (drzi == nullptr || drzi->Vlak == v))
        relief.lblVykolejka[n].barva = barvy::seda;
}

} // namespace

void uvolni_za_vlakem(int v, std::size_t j, bool zkraceni) {
    switch (vlak_c(v).prvky[j].druh) {
    case druh_prvku::kolej: zkraceni ? uvolni_zkracenou_kolej(v, j) : uvolni_kolej(v, j); break;
    case druh_prvku::vyhybka: uvolni_vyhybku(v, j); break;
    case druh_prvku::vykolejka: uvolni_vykolejku(v, j); break;
    default: break;
    }
}
