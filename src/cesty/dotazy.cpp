// cesty/dotazy.cpp - questions about tracks and routes.
#include "cesty/dotazy.h"

#include "app/cas.h"
#include "prvky/barvi_prvek.h"
#include "prvky/jmena.h"
#include "prvky/volnost.h"
#include "relief/topologie.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

std::uint32_t odebrano = 0; // routes taken out, for caches only: no part of a simulation

bool nevjel(const Cesta& c) {
    return c.Umazat == 0;
}

template <class Podminka> bool nektera(Podminka podminka) {
    return std::any_of(cesty.begin(), cesty.end(), podminka);
}

} // namespace

bool cil_volny(int n) {
    if (cesty.front().zacatek < 0)
        return true;
    if (!je_usek_trati(n))
        return !nektera(
            [n](const Cesta& c) { return posledni_prvek(c) == n && (c.prehozena || c.Postavena); });
    if (je_kolej(n) && relief.kolej[n].barva == barvy::cervena)
        return false;
    return !nektera([n](const Cesta& c) {
        return posledni_prvek(c) == n && (c.Postavena || c.Provedena) && c.Umazat != posledni_index(c);
    });
}

bool je_nastaveno_z(int n) {
    return nektera([n](const Cesta& c) { return prvni_prvek(c) == n && c.Postavena && nevjel(c); });
}

bool je_nastaveno_posun_z(int n) {
    return nektera([n](const Cesta& c) { return prvni_prvek(c) == n && !c.VC && c.Postavena && nevjel(c); });
}

bool je_posun_do(int n) {
    return nektera([n](const Cesta& c) {
        return posledni_prvek(c) == n && !c.VC && c.Postavena && c.Umazat < posledni_index(c);
    });
}

bool je_vlak_do(int n) {
    return nektera(
        [n](const Cesta& c) { return posledni_prvek(c) == n && c.VC && !c.PN && c.prehozena && nevjel(c); });
}

bool pn_sviti(int s) {
    const std::int32_t ted = ted_s();
    return nektera([=](const Cesta& c) { return c.zacatek == s && c.Provedena && c.PN && ted < c.PN_do; });
}

bool pn_skoncila(int s) {
    const std::int32_t ted = ted_s();
    return nektera([=](const Cesta& c) { return c.zacatek == s && c.Provedena && c.PN && ted > c.PN_do; });
}

// A running cancellation does not matter: DN is what stops it.
bool dn_mozne(int s) {
    return nektera([s](const Cesta& c) { return c.zacatek == s && c.Provedena && nevjel(c); });
}

bool rc_mozne(int s) {
    return nektera([s](const Cesta& c) { return c.zacatek == s && c.prehozena && nevjel(c); });
}

Text popis_cesty(const Cesta& c) {
    Text popis(!c.VC ? "PC" : c.PN ? "PN" : "VC");
    popis += " " + jmeno_navestidla(c.zacatek) + " " + jmeno_konce(c.konec);
    if (jmeno_cile(c.konec).empty())
        popis += " " + text_cisla(delka_koleje(c.konec)) + "m";
    return popis;
}

Text popis_cesty(int i) {
    return popis_cesty(cesta_c(i));
}

void smaz_cestu(int i) {
    cesty.erase(cesty.begin() + i);
    ++odebrano;
    if (cesty.empty())
        cesty.emplace_back();
}

std::uint32_t odebrane_cesty() {
    return odebrano;
}

void uklid_odjete() {
    if (odjete.none())
        return;
    std::bitset<kNejvyssiPrvek + 1> drzene;
    for (const Cesta& c : cesty)
        if (c.Vlak >= 0)
            for (std::size_t k = 0; k < c.Umazat && k < c.prvky.size(); ++k)
                if (c.prvky[k].prvek >= 0 && c.prvky[k].prvek <= kNejvyssiPrvek)
                    drzene.set(static_cast<std::size_t>(c.prvky[k].prvek));
    const auto volne = odjete & ~drzene;
    for (std::size_t n = 0; volne.any() && n < volne.size(); ++n)
        if (volne.test(n))
            barvi_prvek(static_cast<int>(n), barvy::seda);
}

void obnov_odjete() {
    odjete.reset();
    // Nothing is reserved behind a train on its route, nor is the track before the start signal.
    std::bitset<kNejvyssiPrvek + 1> drzene;
    const auto drzi = [&drzene](int n) {
        if (n >= 0 && n <= kNejvyssiPrvek)
            drzene.set(static_cast<std::size_t>(n));
    };
    for (const Cesta& c : cesty) {
        // a calling-on route paints no track: what is cyan under it before its train comes is not its own
        if (!c.prehozena || (c.PN && nevjel(c)))
            continue;
        if (nevjel(c))
            drzi(c.konec);
        // a calling-on route keeps its tracks reserved before the train that runs on it
        for (std::size_t k = std::size_t{c.Umazat} + 1; k < c.prvky.size(); ++k)
            if (druh_na(c, k) == druh_prvku::kolej)
                drzi(c.prvky[k].prvek);
    }
    for (int n = 0; n < kPrvniTrat; ++n) {
        if (!je_kolej(n) || relief.kolej[n].barva != barvy::azurova)
            continue;
        // A picture that only repeats the colour of another track goes with that one.
        const int vzor = vzor_zrcadla(n);
        const bool kopie = je_kolej(vzor) && relief.kolej[vzor].barva == barvy::azurova;
        odjete.set(static_cast<std::size_t>(n), !kopie && !drzene.test(static_cast<std::size_t>(n)));
    }
}
