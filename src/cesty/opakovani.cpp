// cesty/opakovani.cpp - the automatic mode (AB).
#include "cesty/opakovani.h"

#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/nova_cesta.h"
#include "prvky/navestidla.h"
#include "relief/relief.h"
#include "save/gtn.h"

#include <algorithm>
#include <utility>

namespace {

// The first copy of a route from s that waits for its next run; -1 none.
int cekajici_kopie(int s) {
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (c.Vlak == kKopieAB && c.Umazat == 0 && !c.prehozena && !c.Postavena && c.zacatek == s && c.VC)
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

bool ceka_nebo_stoji_z(int s) {
    return std::any_of(cesty.begin(), cesty.end(), [&](const Cesta& c) {
        return c.zacatek == s && (c.cas_stavby >= 0 || c.Postavena) && c.Umazat == 0;
    });
}

void prepni_ab(int s) {
    if (!prepni_znak_ab(s))
        for (int i = cekajici_kopie(s); i >= 0; i = cekajici_kopie(s))
            smaz_cestu(i);
    gtn_zapis(s, gtn::ab, 0);
}

// Routes that the program made for trains coming from the line (ZT 999) are never repeated: the signal
// at their start stands on the line and is not set by the operator.
void kopie_ab(int i) {
    const Cesta& vzor = cesta_c(i);
    if (!vzor.VC || vzor.PN || vzor.ZT == kZTprogramu || !ab_zapnuto(vzor.zacatek))
        return;
    Cesta kopie = vzor;
    // The locking has added the whole line to a route that leads out. The table's own route ends on the
    // first section of the line, so that one stays; index 0 is where an entry route begins.
    for (std::size_t k = 1; k < kopie.prvky.size(); ++k)
        if (je_usek_trati(kopie.prvky[k].prvek)) {
            kopie.prvky.resize(k + 1);
            break;
        }
    kopie.Provedena = false;
    kopie.Postavena = false;
    kopie.prehozena = false;
    kopie.Kdy_prehoz = kZadny;
    kopie.cas_ruseni = kZadny;
    kopie.Umazat = 0;
    kopie.Vlak = kKopieAB;
    pridej_cestu(std::move(kopie));
}
