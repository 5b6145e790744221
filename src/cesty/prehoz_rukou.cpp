// cesty/prehoz_rukou.cpp - switches thrown by hand.
#include "cesty/prehoz_rukou.h"

#include "app/cas.h"
#include "cesty/drzeni.h"
#include "cesty/uvolneni.h"
#include "zaklad/cisla.h"

namespace {

constexpr int kDobaPrehozeni_s = 3; // simulated seconds

// Nobody throws n: a train stands on it, or a route waits for it to arrive.
bool nesmi_se_hodit(int n) {
    return stavi_se_vyhybka(n) || stoji_na_vyhybce(n);
}

} // namespace

Moznosti moznosti_vyhybky(int n) {
    if (nesmi_se_hodit(n))
        return {};
    Moznosti m = moznosti_stavu(stav_vyhybky_cislo(n));
    projdi_partnery(n, [&](int b) {
        if (stav_vyhybky_cislo(b) > 49 || nesmi_se_hodit(b))
            m = {};
    });
    return m;
}

// An order that the menu offered is tested again: a route may have locked the switch while the menu was
// open. A second throw takes the place of the pending one, and the first switch stays moving until NOUZ:
// one throw by hand is remembered.
void hod_vyhybku(int n, PovelVyhybky povel) {
    const Moznosti m = moznosti_vyhybky(n);
    const bool smi = povel == PovelVyhybky::plus     ? m.plus
                     : povel == PovelVyhybky::minus  ? m.minus
                     : povel == PovelVyhybky::plus_b ? m.plus_b
                                                     : m.minus_b;
    if (!smi)
        return;
    const int stav = stav_vyhybky_cislo(n);
    stav_vyhybek.prehoz_vyhybka = na_integer(n);
    stav_vyhybek.prehoz_cas = ted_s() + kDobaPrehozeni_s;
    // of the four orders of a double slip only S- moves derailers
    prehod(n, cilova_poloha(stav, povel), true, !je_anglicka(stav) || povel == PovelVyhybky::minus);
}

void vyhybka_nouz(int n) {
    vyhybka_stav(n, nouz(poloha_stavu(stav_vyhybky_cislo(n))), false, false);
    stuj_bez_vyhybky(n);
}
