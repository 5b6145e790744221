// cesty/drzeni.cpp - who holds an element.
#include "cesty/drzeni.h"

#include "jizda/vlak.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"

#include <algorithm>

namespace {

bool je_zaznam(const Cesta& c) {
    return c.zacatek >= 0 && c.prehozena && !c.PN_zaver;
}

// The state of the switch is what the route has made of it.
bool ma_vyhybku(const Cesta& c, std::size_t k) {
    const int stav = stav_vyhybky_cislo(c.prvky[k].prvek);
    const int trida = stav - poloha_stavu(stav);
    if (poloha_stavu(stav) != poloha_na(c, k))
        return false;
    if (trida == zaver_vyhybek(c))
        return true;
    if (!c.Provedena) // it runs, has run, or lay there already
        return trida == stav_vyhybky::volna || trida == stav_vyhybky::rezervace;
    // two coupled switches are shown occupied together, a step before the head comes to the second one
    return trida == stav_vyhybky::obsazena && c.Umazat > 0 && k == std::size_t{c.Umazat} + 1;
}

template <class Co> bool nektery_prvek(const Cesta& c, std::uint8_t druh, int n, Co co) {
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (c.prvky[k].prvek == n && druh_na(c, k) == druh && co(k))
            return true;
    return false;
}

} // namespace

bool drzi(const Cesta& c, std::size_t k) {
    if (!je_zaznam(c))
        return false;
    switch (druh_na(c, k)) {
    case druh_prvku::vyhybka: return (c.PN || k > c.Umazat) && ma_vyhybku(c, k);
    case druh_prvku::kolej: return !c.PN && k > c.Umazat; // on the calling-on aspect a train runs on sight
    default: return c.PN || k > c.Umazat;
    }
}

int zaver_vyhybek(const Cesta& c) {
    return !c.VC ? stav_vyhybky::posun : c.PN ? stav_vyhybky::rezervace : stav_vyhybky::vlak;
}

const Cesta* drzitel(std::uint8_t druh, int n) {
    const Cesta* nalezena = nullptr;
    for (const Cesta& c : cesty)
        if ((nalezena == nullptr || c.Kdy_prehoz >= nalezena->Kdy_prehoz) &&
            nektery_prvek(c, druh, n, [&c](std::size_t k) { return drzi(c, k); }))
            nalezena = &c;
    return nalezena;
}

bool drzi_jina(const Cesta& c, std::size_t k) {
    const Cesta* drzi = drzitel(druh_na(c, k), c.prvky[k].prvek);
    return drzi != nullptr && drzi != &c;
}

int ztracena_vyhybka(const Cesta& c) {
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (druh_na(c, k) == druh_prvku::vyhybka && drzitel(druh_prvku::vyhybka, c.prvky[k].prvek) != &c)
            return c.prvky[k].prvek;
    return kZadny;
}

bool stoji_na_vyhybce(int n) {
    return std::any_of(vlaky.begin(), vlaky.end(), [n](const Vlak& v) {
        if (v.cislo < 1)
            return false;
        for (std::size_t j = static_cast<std::size_t>(std::max<int>(v.prvek_konec, 0)); j < v.prvky.size();
             ++j)
            if (v.prvky[j].prvek == n && v.prvky[j].druh == druh_prvku::vyhybka)
                return true;
        return false;
    });
}

const Cesta* cesta_vlaku_na_vyhybku(int n) {
    const auto cesta = std::find_if(cesty.begin(), cesty.end(), [n](const Cesta& c) {
        if (!je_zaznam(c) || c.Umazat == 0 || c.Vlak < 0 || static_cast<std::size_t>(c.Vlak) >= vlaky.size())
            return false;
        const Vlak& v = vlaky[static_cast<std::size_t>(c.Vlak)];
        return v.cislo > 0 && !v.prvky.empty() && c.Umazat < c.prvky.size() &&
               v.prvky.back().prvek == c.prvky[c.Umazat].prvek &&
               nektery_prvek(c, druh_prvku::vyhybka, n, [&c](std::size_t k) { return k > c.Umazat; });
    });
    return cesta == cesty.end() ? nullptr : &*cesta;
}

bool stavi_se_vyhybka(int n) {
    const Cesta* c = drzitel(druh_prvku::vyhybka, n);
    return c != nullptr && !c->Provedena;
}
