// cesty/uvolneni.cpp - RC, DN, STUJ, RNZ, and the cancellation itself.
#include "cesty/uvolneni.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/navest.h"
#include "cesty/odpocet_pn.h"
#include "cesty/opakovani.h"
#include "cesty/smer_trati.h"
#include "cesty/zasobnik.h"
#include "cesty/zvyrazneni.h"
#include "jizda/vlak.h"
#include "prvky/barvi_prvek.h"
#include "prvky/navestidla.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/trate.h"

#include <algorithm>

namespace {

constexpr std::int32_t kPredPrehozem_s = 5; // RC may come this long before the switches have run

// How long a cancellation runs, seconds.
constexpr std::int32_t kRuseniBezNavesti = 0;
constexpr std::int32_t kRuseniBezVlaku = 5;
constexpr std::int32_t kRuseniVlak = 180; // a train before the signal may have started
constexpr std::int32_t kRuseniPosun = 60;

constexpr std::int32_t kProdlouzeniPN_s = 30;

template <class Podminka> Cesta* prvni_cesta(Podminka podminka) {
    const auto c = std::find_if(cesty.begin(), cesty.end(), podminka);
    return c == cesty.end() ? nullptr : &*c;
}

int index_cesty(const Cesta& c) {
    return static_cast<int>(&c - cesty.data());
}

// Elements that no route ever paints, and the end of a route where something may stand, tell nothing
// about the locking.
bool bez_barvy_zaveru(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    if (je_usek_trati(n) || uzel::je_hranicni(n))
        return true;
    if (k != posledni_index(c))
        return false;
    return !c.VC || (je_cislo_koleje(n) && orez(relief.cislo_koleje[n].popis()).empty());
}

bool prvek_je_uzavren(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    switch (druh_na(c, k)) {
    case druh_prvku::vyhybka: return poloha_stavu(stav_vyhybky_cislo(n)) == poloha_na(c, k);
    case druh_prvku::kolej:
        return bez_barvy_zaveru(c, k) ||
               (relief.kolej[n].barva != barvy::cervena && relief.kolej[n].barva != barvy::seda);
    default: return true;
    }
}

// `ztracene`: switches that are not the route's any more do not matter, once they have had their time to run.
// So even a calling-on route can be taken back that will not be locked any more, and never gets to its RNZ.
bool lze_zrusit(const Cesta& c, int s, std::int32_t ted, bool ztracene) {
    if (c.zacatek != s || c.prvky.size() < 2 || c.Umazat != 0 || !c.prehozena || je_vjezd_z_trati(c) ||
        ted < c.Kdy_prehoz - kPredPrehozem_s)
        return false;
    if (c.PN)
        return ztracene && !c.Provedena && ted > c.Kdy_prehoz && ztracena_vyhybka(c) != kZadny;
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (!prvek_je_uzavren(c, k) &&
            !(ztracene && ted > c.Kdy_prehoz && druh_na(c, k) == druh_prvku::vyhybka))
            return false;
    return true;
}

// The newest route from the signal first: the older ones may already be under a train. One that has lost a
// switch comes last, but it can be taken back: no other way leads out of it.
int cesta_ke_zruseni(int s, std::int32_t ted) {
    for (const bool ztracene : {false, true})
        for (std::size_t i = cesty.size(); i-- > 0;)
            if (lze_zrusit(cesty[i], s, ted, ztracene))
                return static_cast<int>(i);
    return kZadny;
}

std::int32_t doba_ruseni(const Cesta& c) {
    if (!c.Provedena)
        return kRuseniBezNavesti;
    if (relief.kolej[prvni_prvek(c)].barva != barvy::cervena)
        return kRuseniBezVlaku;
    return c.VC ? kRuseniVlak : kRuseniPosun;
}

void uvolni_prvek(int n) {
    if (relief.kolej[n].barva != barvy::cervena)
        barvi_prvek(n, barvy::seda);
}

// The route has lost switch k: others may have it, run over it, or throw it now.
bool ztratila_vyhybku(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    return poloha_stavu(stav_vyhybky_cislo(n)) != poloha_na(c, k) || drzi_jina(c, k) || stoji_na_vyhybce(n);
}

void uvolni_prvky(const Cesta& c) {
    for (std::size_t k = 1; k < c.prvky.size(); ++k) {
        const int n = c.prvky[k].prvek;
        switch (druh_na(c, k)) {
        case druh_prvku::vyhybka:
            if (!ztratila_vyhybku(c, k))
                uvolni_zaver_vyhybky(n, poloha_na(c, k));
            break;
        case druh_prvku::vykolejka: relief.lblVykolejka[n].barva = barvy::seda; break;
        case druh_prvku::kolej:
            // Sections of a line are only ever painted by shunt routes, and none by a calling-on route.
            if (c.PN)
                break;
            if (!je_usek_trati(n) || n == uzel::kT2 || (!c.VC && relief.kolej[n].barva == barvy::bila))
                uvolni_prvek(n);
            break;
        }
    }
    // T2 of Rybnice is painted at the command already; as a section of its line it comes into the route only
    // when that is locked.
    if (!c.PN && c.konec == uzel::kT2 && je_kolej(c.konec) && !obsahuje(c.prvky, c.konec) &&
        relief.kolej[c.konec].barva == barvy::azurova)
        uvolni_prvek(c.konec);
}

// Another route that is being set runs switch n: its own, or one that goes over with one of its own.
bool bezi_pro_jinou(const Cesta& c, int n) {
    return std::any_of(cesty.begin(), cesty.end(), [&c, n](const Cesta& x) {
        if (&x == &c || x.zacatek < 0 || !x.prehozena || x.Provedena)
            return false;
        bool bezi = false;
        for (std::size_t k = 1; k < x.prvky.size(); ++k)
            if (druh_na(x, k) == druh_prvku::vyhybka && drzi(x, k)) {
                bezi = bezi || x.prvky[k].prvek == n;
                projdi_partnery(x.prvky[k].prvek, [&](int b) { bezi = bezi || b == n; });
            }
        return bezi;
    });
}

// Of a route that was not locked yet nothing goes on running: neither a switch that it has lost, nor one that
// goes over with a switch of it. Its locking would have brought them all to rest.
void zastav_rozjete(const Cesta& c) {
    const auto zastav = [&c](int n) {
        const int stav = stav_vyhybky_cislo(n);
        if (stav < stav_vyhybky::vlak && vyhybka_v_pohybu(n) && !hazi_se_rukou(n) && !bezi_pro_jinou(c, n))
            vyhybka_stav(n, stav, false, false);
    };
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (druh_na(c, k) == druh_prvku::vyhybka) {
            zastav(c.prvky[k].prvek);
            projdi_partnery(c.prvky[k].prvek, zastav);
        }
}

// The head stands at the end of the route's list, and the whole train too.
bool vlak_stoji_v_cili(const Cesta& c) {
    if (c.Vlak < 0 || static_cast<std::size_t>(c.Vlak) >= vlaky.size())
        return false;
    const Vlak& v = vlak_c(c.Vlak);
    return !v.prvky.empty() && v.prvky.back().prvek == posledni_prvek(c) &&
           v.prvek_konec == static_cast<int>(v.prvky.size()) - 1;
}

void uvolni_vyhybku_bez_vlaku(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek, poloha = poloha_na(c, k);
    const int zaver = zaver_vyhybek(c);
    const int stav = stav_vyhybky_cislo(n);
    const bool stoji = stoji_na_vyhybce(n);
    // two coupled switches are shown occupied before the head comes to the second one
    if (stav != poloha + zaver && (stav != poloha + stav_vyhybky::obsazena || stoji))
        return;
    if (stoji)
        vyhybka_stav(n, poloha + stav_vyhybky::obsazena, false, false);
    else
        uvolni_zaver_vyhybky(n, poloha);
}

void uvolni_prvek_bez_vlaku(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    switch (druh_na(c, k)) {
    case druh_prvku::vyhybka: uvolni_vyhybku_bez_vlaku(c, k); break;
    case druh_prvku::vykolejka:
        if (relief.lblVykolejka.je(n))
            relief.lblVykolejka[n].barva = barvy::seda;
        break;
    case druh_prvku::kolej:
        if (!c.PN && relief.kolej[n].barva == (c.VC ? barvy::zelena : barvy::bila))
            uvolni_prvek(n);
        break;
    }
}

// Another route has ordered the same crossing for a train before its signal, and that train has not come yet.
bool objednal_jiny(const Cesta& c) {
    return std::any_of(cesty.begin(), cesty.end(), [&c](const Cesta& x) {
        return &x != &c && x.zacatek >= 0 && x.prehozena && x.prejezd == c.prejezd && x.prejezd_zaver &&
               x.Umazat == 0;
    });
}

void vypni_automat(int s) {
    if (!je_na_ser(s) && relief.navestidlo.je(s) && ab_zapnuto(s))
        prepni_ab(s);
}

// The signal goes to stop, and the number that ran ahead comes back; the route stays locked.
void zastav_cestu(Cesta& c) {
    if (!c.PN)
        c.Postavena = false;
    if (c.PN_do > 0)
        c.PN_do = ted_s();
    nastav_navest(c.zacatek, barvy::seda);
    zmena_zasobniku();
    if (c.Umazat == 0)
        vymaz_cislo(index_cesty(c), true, {});
}

// Another route than i from the signal s stands before its train, with the signal at proceed: the first one.
Cesta* jina_stojici(int s, int i) {
    return prvni_cesta([&](const Cesta& x) {
        return index_cesty(x) != i && x.zacatek == s && x.Postavena && x.Provedena && x.Umazat == 0 &&
               !x.PN && x.cas_ruseni < 0 && !je_vjezd_z_trati(x);
    });
}

// RNZ gives every switch of its route the state at rest: not one that another route has taken since, and not
// one that would move under a train.
bool uvolni_rnz(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    return !drzi_jina(c, k) &&
           (poloha_stavu(stav_vyhybky_cislo(n)) == poloha_na(c, k) || !stoji_na_vyhybce(n));
}

} // namespace

void zrus_cestu(int s) {
    if (je_zablokovano(s))
        return;
    vypni_automat(s);
    const std::int32_t ted = ted_s();
    const int i = cesta_ke_zruseni(s, ted);
    if (i < 0)
        return;
    Cesta& c = cesta_c(i);
    c.cas_ruseni = ted + doba_ruseni(c);
    // Several routes stand from a signal where they lead straight out to the line. It goes to stop for all of
    // them: no train may leave past a signal at stop.
    while (Cesta* jina = jina_stojici(s, i))
        zastav_cestu(*jina);
    nastav_navest(s, barvy::seda);
    gtn_zapis(s, gtn::ruseni, 0);
    vymaz_cislo(i, false, {});
    zmena_zasobniku();
}

void proved_zruseni(int i) {
    Cesta& c = cesta_c(i);
    const int konec = c.konec;
    // DN may have given the signal for an older route meanwhile.
    if (navestidla(c.zacatek).je(c.zacatek) && !je_zablokovano(c.zacatek) &&
        jina_stojici(c.zacatek, i) == nullptr)
        navestidla(c.zacatek)[c.zacatek].barva = barvy::seda;
    gtn_zapis(c.zacatek, gtn::zrusena, 0);
    uvolni_prvky(c);
    if (!c.Provedena)
        zastav_rozjete(c);
    vymaz_cislo(i, false, {});
    // Called off only when nobody else waits for it: that one's signal would clear over an open road.
    if (c.prejezd < stanicni_prejezdy.size() && c.prejezd_zaver && !stanicni_prejezdy[c.prejezd].UZ &&
        !objednal_jiny(c))
        stanicni_prejezdy[c.prejezd].cas = kZadny;
    if (!je_usek_trati(konec) && c.VC && !c.PN && je_kolej(konec))
        uvolni_prvek(konec);
    vrat_jmeno_koleje(konec);
    if (!c.Postavena) {
        odznac_navestidlo(c.zacatek);
        vrat_barvu_konce(c);
    }
    uvolni_cekani(c);
    obnov_panel_kdyz_ukazuje(c.zacatek);
    smaz_cestu(i);
    uvolni_smer(konec);
    zmena_zasobniku();
    relief.lblMereni_casu[0].viditelny = false;
}

void ukonci_privolavaci(Cesta& c) {
    c.PN_do = kZadny;
    nastav_navest(c.zacatek, barvy::seda);
    gtn_zapis(c.zacatek, gtn::konec_pn, c.konec);
    odeber_odpocet_pn(c.zacatek);
    if (simulace.detail_navestidlo == c.zacatek && relief.svetlo.je(svetla::bile))
        relief.svetlo[svetla::bile].viditelny = false;
}

void obnov_cestu(int s) {
    const std::int32_t ted = ted_s();
    Cesta* c = prvni_cesta([&](const Cesta& x) {
        return x.zacatek == s && ted > x.Kdy_prehoz && !je_vjezd_z_trati(x) && !x.PN && x.Provedena &&
               x.Umazat == 0 && ztracena_vyhybka(x) == kZadny;
    });
    if (c == nullptr || je_zablokovano(s))
        return;
    if (c->prvky.size() > 1 && druh_na(*c, 1) == druh_prvku::kolej &&
        relief.kolej[c->prvky[1].prvek].barva == barvy::cervena)
        return;
    c->Postavena = true;
    if (c->cas_ruseni > 0) {
        c->cas_ruseni = kZadny;
        gtn_zapis(s, gtn::zrusena, 0);
    }
    nastav_navest(s, volnoznak(*c));
    relief.lblMereni_casu[0].viditelny = false;
    zmena_zasobniku();
    postup_cisla(index_cesty(*c));
}

void navestidlo_stuj(int s) {
    const auto stoji = [s](const Cesta& x) {
        return x.zacatek == s && !je_vjezd_z_trati(x) && x.Umazat == 0 && x.Postavena && x.Provedena;
    };
    Cesta* c = prvni_cesta(stoji);
    if (c == nullptr || !navestidla(s).je(s))
        return;
    if (navestidla(s)[s].barva == barvy::seda && !c->PN)
        return;
    vypni_automat(s); // takes a waiting copy out of the table: indices move
    zastav_cestu(*prvni_cesta(stoji));
}

void stuj_bez_vyhybky(int n) {
    const auto ztraci = [n, ted = ted_s()](const Cesta& x) {
        if (!x.Postavena || !x.Provedena || x.cas_ruseni >= 0 || (x.PN ? x.PN_do <= ted : x.Umazat != 0))
            return false;
        for (std::size_t k = 1; k < x.prvky.size(); ++k)
            if (x.prvky[k].prvek == n && druh_na(x, k) == druh_prvku::vyhybka)
                return drzitel(druh_prvku::vyhybka, n) != &x;
        return false;
    };
    while (const Cesta* c = prvni_cesta(ztraci)) {
        vypni_automat(c->zacatek);
        zastav_cestu(*prvni_cesta(ztraci));
    }
}

void ppn(int s) {
    // What has run out, or was put to stop since the menu was opened, is not lit again.
    const std::int32_t ted = ted_s();
    if (Cesta* c = prvni_cesta([&](const Cesta& x) { return x.zacatek == s && x.PN && x.PN_do > ted; }))
        c->PN_do += kProdlouzeniPN_s;
}

void rnz(int s) {
    const std::int32_t ted = ted_s();
    const auto skoncila = [&](const Cesta& x) {
        return x.zacatek == s && x.PN && x.Provedena && ted > x.PN_do;
    };
    Cesta* c = prvni_cesta([&](const Cesta& x) { return skoncila(x) && !x.PN_zaver; });
    if (c == nullptr)
        c = prvni_cesta(skoncila);
    if (c == nullptr)
        return;
    // A second RNZ, while the train still stands across the route, touches no switch: they are free for
    // other routes since the first one.
    for (std::size_t k = 1; k < c->prvky.size() && !c->PN_zaver; ++k) {
        const int n = c->prvky[k].prvek;
        if (druh_na(*c, k) == druh_prvku::vyhybka && uvolni_rnz(*c, k))
            uvolni_zaver_vyhybky(n, poloha_na(*c, k));
        if (druh_na(*c, k) == druh_prvku::vykolejka)
            relief.lblVykolejka[n].barva = barvy::seda;
    }
    if (c->PN_do > 0)
        ukonci_privolavaci(*c); // the tick that would do it has not come yet
    c->PN_zaver = true;
    gtn_zapis(s, gtn::rnz, 0);
    const int konec = c->konec;
    if (c->Umazat == 0) {
        vymaz_cislo(index_cesty(*c), false, {}); // the train has not come
        vrat_jmeno_koleje(konec);
        smaz_cestu(index_cesty(*c));
        obnov_lampu_souhlasu(konec);
        uvolni_smer(konec);
    } else if (vlak_stoji_v_cili(*c)) {
        smaz_cestu(index_cesty(*c));
    }
    zmena_zasobniku();
    obnov_panel_kdyz_ukazuje(s);
}

void ukonci_bez_vlaku(int i) {
    const Cesta& c = cesty.at(static_cast<std::size_t>(i));
    const int konec = c.konec;
    const bool neprojeta = c.Umazat < posledni_index(c);
    if (c.PN && c.PN_do > 0) { // the aspect that was still shown ends, too
        nastav_navest(c.zacatek, barvy::seda);
        odeber_odpocet_pn(c.zacatek);
    }
    if (c.Provedena && !c.PN_zaver)
        for (std::size_t k = c.PN ? 1 : std::size_t{c.Umazat} + 1; k < c.prvky.size(); ++k)
            if (!drzi_jina(c, k))
                uvolni_prvek_bez_vlaku(c, k);
    smaz_cestu(i);
    if (!neprojeta)
        return;
    obnov_lampu_souhlasu(konec);
    uvolni_smer(konec);
}
