// jizda/krok_jizdy.cpp - the movement step: head pass, tail pass, route pass.
//
// There is no graph of tracks in the running. A train moves along a set route only: its next element is
// the next entry of the route on whose list its head stands.
#include "jizda/krok_jizdy.h"

#include "app/cas.h"
#include "app/nouzove.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/opakovani.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "desk/info_o_vlaku.h"
#include "jizda/cesty_na_prvku.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/poslusnost.h"
#include "jizda/rychlost.h"
#include "jizda/souprava.h"
#include "jizda/uvolneni_za_vlakem.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/navestidla.h"
#include "prvky/panel.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "relief/topologie.h"
#include "save/gtn.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>

namespace {

constexpr int kKonecUseku_m = 9;    // the last metres of a section are never run: the head jumps to the end
constexpr int kDelkaVyhybky_m = 20; // of train length that a switch or a derailer takes

int pocet_cest() {
    return static_cast<int>(cesty.size());
}
int posledni(const Cesta& cesta) {
    return static_cast<int>(cesta.prvky.size()) - 1;
}
std::int16_t prvek_c(const Cesta& cesta, int i) {
    return cesta.prvky[static_cast<std::size_t>(i)].prvek;
}
std::uint8_t druh_c(const Cesta& cesta, int i) {
    return druh_na(cesta, static_cast<std::size_t>(i));
}
std::uint8_t poloha_c(const Cesta& cesta, int i) {
    return poloha_na(cesta, static_cast<std::size_t>(i));
}

// --- the route under the head

// Index at which the head of v stands on route c; -1 when it does not stand on it, or when the route may
// not be entered (signal at stop, cancellation running).
int misto_na_ceste(const Cesta& cesta, const Vlak& vlak) {
    if (!cesta.Postavena || cesta.cas_ruseni >= 0)
        return -1;
    const int po = std::min<int>(cesta.Umazat, posledni(cesta));
    for (int i = 0; i <= po; ++i)
        if (prvek_c(cesta, i) == vlak.prvky.back().prvek && druh_c(cesta, i) == vlak.prvky.back().druh)
            return i;
    return -1;
}

// An older route of v that is fully run goes; a calling-on route only when its locking was released.
void oznac_stare_cesty(int nova, int v) {
    for (int c = 0; c < pocet_cest(); ++c) {
        Cesta& stara = cesta_c(c);
        if (c == nova || stara.Vlak != v || stara.Umazat != posledni(stara))
            continue;
        if (!stara.PN || stara.PN_zaver)
            stara.Vlak = kKOdstraneni;
        return;
    }
}

// The gates before a route that the head of v stands on at index i.
bool vezmi_cestu(int c, int i, int v) {
    if (cesta_c(c).Vlak == kKOdstraneni)
        return false; // run over already, its locking is gone: nobody else may follow on it
    if (cesta_c(c).Umazat == 0 && cesta_c(c).PN && cesta_c(c).PN_do < ted_s())
        return false; // the calling-on aspect is over
    if (cesta_c(c).VC == vlak_c(v).posun)
        return false; // a train takes train routes, a shunt takes shunt routes
    if (cesta_c(c).Vlak >= 0 && cesta_c(c).Vlak != v)
        return false; // asked before the sense: a route that is another train's turns nobody who runs across
                      // it
    if (!srovnej_smer(c, i, v))
        return false;
    if (i == 0 && !muze_vyjet(v, vlak_c(v).smer))
        return false;
    if (cesta_c(c).Vlak < 0) {
        cesta_c(c).Vlak = static_cast<std::int16_t>(v);
        oznac_stare_cesty(c, v);
    }
    if (i == 0)
        omez_rychlost(cesta_c(c), v);
    return true;
}

// --- passing the start of a route

void zhasni_navestidlo(const Cesta& cesta) {
    const int s = cesta.zacatek;
    if (navestidla(s).je(s))
        navestidla(s)[s].barva = barvy::seda;
    if (simulace.detail_navestidlo == s)
        obnov_panel(s);
    gtn_zapis(s, gtn::barva_navestidla, barvy::seda);
}

void zapocti_prejezd(int k) {
    StanicniPrejezd& prejezd = stanicni_prejezdy[static_cast<std::size_t>(k)];
    if (prejezd.pocet < 255) // a counter never wraps
        ++prejezd.pocet;
    gtn_zapis(k, gtn::prejezd, 1);
    if (!prejezd.UZ) {
        prejezd.uzavren = false;
        prejezd.cas = kZadny;
    }
    if (prejezd.pocet != kBezVlaku)
        gtn_zapis(k, gtn::barva_navestidla, 2); // the log tells a crossing's counter by this code
}

void opust_zacatek(int c) {
    if (cesta_c(c).Umazat != 0)
        return; // the work was done when the next section was still occupied
    if (cesta_c(c).VC && !cesta_c(c).PN && ab_zapnuto(cesta_c(c).zacatek))
        kopie_ab(c);
    const Cesta& cesta = cesta_c(c);
    if (!je_vstup_z_trati(prvek_c(cesta, 0)) && !cesta.PN)
        zhasni_navestidlo(cesta);
    cesta_c(c).Umazat = 1;
    if (cesta_c(c).prejezd < stanicni_prejezdy.size())
        zapocti_prejezd(cesta_c(c).prejezd);
}

// --- entering the next entry

// A train comes to an end from which a route over a station crossing stands: the crossing closes in 30 s.
void prejezd_za_cestou(int n, int c) {
    const int prejezd = uzel::prejezd_pred(n);
    if (prejezd < 0)
        return;
    for (int k = 0; k < pocet_cest(); ++k) {
        const Cesta& dalsi = cesta_c(k);
        if (k != c && prvek_c(dalsi, 0) == n && dalsi.Postavena && dalsi.Umazat == 0 &&
            dalsi.cas_ruseni < 0 && dalsi.prejezd != kBezPrejezdu) {
            stanicni_prejezdy[static_cast<std::size_t>(prejezd)].cas = ted_s() + 30;
            return;
        }
    }
}

void obsad_vyhybku(const Cesta& cesta, int i) {
    vyhybka_stav(prvek_c(cesta, i), poloha_c(cesta, i) + stav_vyhybky::obsazena, false, false);
}

// The head enters track `n`, entry i + 1, from kind `odkud`. False: an occupied section stops it.
bool vstup_na_kolej(int c, int i, int v, std::uint8_t odkud) {
    const Cesta& cesta = cesta_c(c);
    const int n = prvek_c(cesta, i + 1);
    const bool obsazena = je_kolej(n) && relief.kolej[n].barva == barvy::cervena;
    // The only stop for a train in front; shunts and calling-on routes run up to what stands there. Out of
    // a switch the test is not made: nothing may stop with its head across the points.
    if (odkud == druh_prvku::kolej && obsazena && cesta.VC && !cesta.PN) {
        vlak_c(v).rychlost = 0;
        return false;
    }
    if (i + 1 == posledni(cesta))
        prejezd_za_cestou(n, c);
    if (je_cislo_koleje(n) && !je_usek_trati(n))
        pridej_na_kolej(n, v, vlak_c(v).smer, -1);
    rychlost_trati_prvek(n, v);
    // The drawing is folded: on these tracks the sense of travel turns.
    const bool obrat =
        odkud == druh_prvku::kolej ? je_v(n, uzel::kOhybyZKoleje) : je_v(n, uzel::kOhybyZVyhybky);
    if (obrat)
        vlak_c(v).smer = !vlak_c(v).smer;
    if (!obsazena)
        nastav_metry(n, 0);
    barvi_prvek(n, barvy::cervena);
    return true;
}

// A switch that NOUZ has taken from the route is its train's all the same: another route that was cleared
// over it meanwhile goes to stop. Routes may go in this: the indices of others move.
void prevezmi_vyhybky(int c, int i) {
    const int n = prvek_c(cesta_c(c), i);
    const int druha = druh_c(cesta_c(c), i + 1) == druh_prvku::vyhybka ? prvek_c(cesta_c(c), i + 1) : kZadny;
    stuj_bez_vyhybky(n);
    if (druha != kZadny)
        stuj_bez_vyhybky(druha);
}

// The head goes on from entry i to entry i + 1 of route c; false when it stays before an occupied section.
bool vstup(int c, int i, int v, std::uint8_t odkud) {
    const std::uint8_t kam = druh_c(cesta_c(c), i + 1);
    const int n = prvek_c(cesta_c(c), i + 1);
    const bool pn = cesta_c(c).PN;
    if (kam == druh_prvku::kolej) {
        if (!vstup_na_kolej(c, i, v, odkud))
            return false;
    } else if (kam == druh_prvku::vyhybka && !pn && odkud != druh_prvku::vykolejka) {
        const Cesta& cesta = cesta_c(c);
        obsad_vyhybku(cesta, i + 1);
        if (druh_c(cesta, i + 2) == druh_prvku::vyhybka)
            obsad_vyhybku(cesta, i + 2); // two coupled switches are shown occupied together
    } else if (kam == druh_prvku::vykolejka && !pn && odkud == druh_prvku::kolej &&
               relief.lblVykolejka.je(n)) {
        relief.lblVykolejka[n].barva = barvy::cervena;
    }
    // Under the wheels no switch moves on, whoever throws it.
    if (kam == druh_prvku::vyhybka && vyhybka_v_pohybu(n))
        vyhybka_stav(n, stav_vyhybky_cislo(n), false, false);
    if (odkud == druh_prvku::kolej) {
        const int opustena = prvek_c(cesta_c(c), i);
        nastav_metry(opustena, delka_koleje(opustena));
    }
    Cesta& cesta = cesta_c(c);
    Vlak& vlak = vlak_c(v);
    cesta.Umazat = na_byte(i + 1);
    vlak.prvky.push_back(cesta.prvky[static_cast<std::size_t>(i) + 1]);
    uber_z_opustenych(v);
    if (kam == druh_prvku::kolej)
        kontrola_vstupu(c, i, v);
    else if (kam == druh_prvku::vyhybka)
        prevezmi_vyhybky(c, i + 1);
    return true;
}

// --- end of a route

// True: the train is done for this step; false: the search goes on with the next route.
bool konec_cesty(int c, int v) {
    const int e = vlak_c(v).prvky.back().prvek;
    const int delka = delka_koleje(e);
    if (metry(e) < delka) {
        nastav_metry(e, delka);
        return true;
    }
    if (!je_nastaveno_z(e))
        vlak_c(v).rychlost = 0;
    if (vlak_c(v).obslouzeno != vlak_c(v).prvky.size()) {
        vlak_c(v).obslouzeno = vlak_c(v).prvky.size();
        vlak_v_cili(e, v);
    }
    if (!vlak_c(v).muze_jet)
        return true;
    zpusob_odjezdu(e, v);
    if (!cesta_c(c).PN || cesta_c(c).PN_zaver) {
        smaz_cestu(c);
        zmena_zasobniku();
        return true;
    }
    return vlak_c(v).cislo < 1;
}

// --- head pass

std::int16_t delka_kroku(std::uint8_t rychlost, std::int32_t dt) {
    const double cele = dolu(static_cast<double>(rychlost) * dt / 3600.0);
    return na_integer(cele * simulace.rychlost * 0.97);
}

[[noreturn]] void vadna_cesta() {
    uloz_nouzove();
    platforma.okno("KPS RVZ TESK"_cz, "Chyba: cesta bez koncového úseku"_cz);
    gtn_zavri();
    platforma.ukonci(1);
    throw KonecProgramu{1};
}

// One advance of v along route c from index i; true when the train is done for this step.
bool jed(int c, int i, int v, std::int32_t dt) {
    const std::int16_t krok = delka_kroku(vlak_c(v).rychlost, dt);
    uprav_rychlost(v);
    const int e = vlak_c(v).prvky.back().prvek;
    const std::uint8_t druh = vlak_c(v).prvky.back().druh;
    const bool na_konci_seznamu = i == posledni(cesta_c(c));
    if (druh != druh_prvku::kolej) {
        if (na_konci_seznamu)
            vadna_cesta();
        vstup(c, i, v, druh); // crossed in one step, whatever the speed
        return true;
    }
    const double celo = metry(e);
    if (celo + krok <= delka_koleje(e) - kKonecUseku_m) {
        nastav_metry(e, celo + krok);
        uvnitr_prvku(c, i, v);
        return true;
    }
    if (na_konci_seznamu)
        return konec_cesty(c, v);
    if (i == 0)
        opust_zacatek(c);
    vstup(c, i, v, druh);
    return true;
}

void krok_cela(int v, std::int32_t dt) {
    const Vlak& vlak = vlak_c(v);
    if (vlak.cislo <= 0 || !(vlak.posun || vlak.muze_jet) || vlak.prvky.empty())
        return;
    const auto dalsi = [v](int od) { return dalsi_cesta_na_prvku(vlak_c(v).prvky.back().prvek, od); };
    int c = dalsi(0);
    if (c < 0 || !ma_loko(vlak)) // most trains of a quiet desk have no route: that is asked first
        return;
    for (; c >= 0; c = dalsi(c + 1)) {
        const int i = misto_na_ceste(cesta_c(c), vlak_c(v));
        if (i >= 0 && vezmi_cestu(c, i, v) && jed(c, i, v, dt))
            return;
    }
}

// --- tail pass

// Length that v takes from its rearmost entry to its head: metres of the tracks, 20 m a switch; derailers
// do not count.
std::int32_t obsazena_delka(const Vlak& vlak) {
    double delka = 0;
    for (std::size_t j = static_cast<std::size_t>(vlak.prvek_konec); j < vlak.prvky.size(); ++j) {
        if (vlak.prvky[j].druh == druh_prvku::kolej)
            delka = zaokrouhli(delka + metry(vlak.prvky[j].prvek));
        else if (vlak.prvky[j].druh == druh_prvku::vyhybka)
            delka += kDelkaVyhybky_m;
    }
    return na_long(delka);
}

void krok_konce(int v) {
    if (vlak_c(v).cislo <= 0 || !vlak_c(v).muze_jet || vlak_c(v).prvky.empty() || vlak_c(v).prvek_konec < 0)
        return;
    std::int32_t delka = obsazena_delka(vlak_c(v));
    // The head is never released.
    for (int j = vlak_c(v).prvek_konec; j + 1 < static_cast<int>(vlak_c(v).prvky.size()); ++j) {
        const std::uint8_t druh = vlak_c(v).prvky[static_cast<std::size_t>(j)].druh;
        const int e = vlak_c(v).prvky[static_cast<std::size_t>(j)].prvek;
        if (druh == druh_prvku::kolej) {
            const int useku = delka_koleje(e);
            if (delka - useku < vlak_c(v).delka)
                return;
            uvolni_za_vlakem(v, static_cast<std::size_t>(j), false);
            delka -= useku;
            ohlas_odjezd(v, j);
        } else if (druh == druh_prvku::vyhybka || druh == druh_prvku::vykolejka) {
            // Derailers are no part of the sum but are taken out of it: what lies behind one is released
            // 20 m later: it has no length of its own, but its distance to the next element counts.
            if (delka - kDelkaVyhybky_m < vlak_c(v).delka)
                return;
            delka -= kDelkaVyhybky_m;
            uvolni_za_vlakem(v, static_cast<std::size_t>(j), false);
        } else {
            continue;
        }
        ++vlak_c(v).prvek_konec;
    }
}

// --- route pass

// A route that a removal moves down waits for the next step: every route is looked at once a step, in the
// order of the stack as it stands.
void uklid_cesty() {
    bool zmena = false;
    for (int c = 0; c < pocet_cest(); ++c) {
        const int v = cesta_c(c).Vlak;
        const bool osirela = v >= 0 && (v >= static_cast<int>(vlaky.size()) || vlak_c(v).cislo < 1);
        if (cesta_c(c).zacatek >= 0 && (osirela || v == kKOdstraneni)) {
            ukonci_bez_vlaku(c);
            zmena = true;
        }
    }
    if (zmena)
        zmena_zasobniku();
}

} // namespace

void obnov_obslouzene() {
    for (Vlak& vlak : vlaky)
        if (vlak.cislo > 0 && !vlak.muze_jet && !vlak.posun && !vlak.prvky.empty() &&
            vlak.prvky.back().druh == druh_prvku::kolej &&
            metry(vlak.prvky.back().prvek) >= delka_koleje(vlak.prvky.back().prvek))
            vlak.obslouzeno = vlak.prvky.size();
}

std::uint32_t kroku_jizdy = 0;

void krok_jizdy() {
    if (simulace.pauza || cesty.empty())
        return;
    ++kroku_jizdy;
    const auto dt = static_cast<std::int32_t>(static_cast<std::uint32_t>(platforma.tik_ms()) -
                                              static_cast<std::uint32_t>(simulace.tick_jizdy));
    const int pocet = static_cast<int>(vlaky.size()); // trains made on the way move from the next step on
    sestav_cesty_na_prvku();
    for (int v = 0; v < pocet; ++v)
        krok_cela(v, dt);
    for (int v = 0; v < pocet; ++v)
        krok_konce(v);
    uklid_cesty();
    obnov_stranku_vlaku();
    simulace.tick_jizdy = platforma.tik_ms();
}
