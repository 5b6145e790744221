// lekce/rada_ukonu.cpp - acts that come one after another, and how far the operator is in them.
#include "lekce/rada_ukonu.h"

#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/vyber.h"
#include "technologie/technologie.h"

#include <algorithm>
#include <utility>

namespace lekce {

namespace {

bool otvira_zasobnik(const Ukon& u) {
    return u.co == DruhUkonu::klik && u.druh == Druh::lblZasobnik_EZ;
}

bool je_zasobnik(const UkonLekce& u) {
    return !u.predani && otvira_zasobnik(u.ukon);
}

bool je_otevren_zasobnik() {
    return technologie_kryje_stul() && otevrena_technologie() == Technologie::provoz2;
}

bool ukazuje_misto(const UkonLekce& u) {
    return !u.predani && (je_klik(u.ukon) || u.ukon.co == DruhUkonu::najeti);
}

// The end of a route may be picked there.
bool je_konec_volby(const Ukon& u) {
    return je_klik(u) && (je_navestidlo(u.druh) || u.druh == Druh::Image1 || u.druh == Druh::cislo_koleje);
}

} // namespace

bool je_navestidlo(Druh druh) {
    return druh == Druh::navestidlo || druh == Druh::navestidlo_ser;
}

bool je_klik(const Ukon& u) {
    return u.co == DruhUkonu::klik || u.co == DruhUkonu::dvojklik;
}

bool je_volba_zacatku(const Ukon& u) {
    return u.co == DruhUkonu::klik && u.tlacitko == Tlacitko::leve && je_navestidlo(u.druh);
}

bool otvira_nabidku(const Ukon& u) {
    return u.co == DruhUkonu::klik && u.tlacitko == Tlacitko::prave;
}

RadaUkonu::RadaUkonu(std::vector<UkonLekce> ukony, std::vector<Podminka> cil_)
    : rada(std::move(ukony)), cil(std::move(cil_)), od(ukony_smeny.ukony.size()), videno(od) {
    preskoc_hotove();
}

// The route that is asked for waits or stands from that signal: neither it nor its end need be picked.
bool RadaUkonu::je_cesta(const UkonLekce& u) const {
    return !u.predani && je_volba_zacatku(u.ukon) && std::any_of(cil.begin(), cil.end(), [&](Podminka p) {
        if ((p.fakt != Fakt::cesta && p.fakt != Fakt::postavena) || p.ne || p.a != u.ukon.n)
            return false;
        p.fakt = Fakt::cesta;
        return plati(p, od);
    });
}

// The effect of act i stands on the desk.
bool RadaUkonu::je_hotov(std::size_t i) const {
    const UkonLekce& u = rada[i];
    if (u.predani)
        return false;
    const int n = static_cast<int>(u.ukon.n);
    if (je_volba_zacatku(u.ukon)) { // it may end the route that was begun before it, too
        const bool konci = i > 0 && je_volba_zacatku(rada[i - 1].ukon) && !je_cesta(rada[i - 1]);
        return vyber.volba_zacatek == n || (!konci && je_cesta(u));
    }
    if (otvira_nabidku(u.ukon))
        return !menu.jmeno.empty() && menu.druh == u.ukon.druh && menu.prvek == n;
    if (otvira_zasobnik(u.ukon))
        return je_otevren_zasobnik();
    if (u.ukon.co == DruhUkonu::radek) {
        const Seznam* seznam = seznam_podle_jmena(u.ukon.text);
        return seznam != nullptr && seznam->vybrany >= 0;
    }
    return i > 0 && je_klik(u.ukon) && (u.ukon.druh == Druh::Image1 || u.ukon.druh == Druh::cislo_koleje) &&
           je_cesta(rada[i - 1]);
}

void RadaUkonu::preskoc_hotove() {
    while (udelano < rada.size() && je_hotov(udelano))
        ++udelano;
}

// What was begun and lost is to be begun again: a menu that closed without its entry, a screen that was left,
// a selection that ran out.
void RadaUkonu::vrat_ztracene() {
    if (udelano == 0 || vse_hotovo())
        return;
    const UkonLekce& pred = rada[udelano - 1];
    if (pred.predani)
        return;
    const Ukon &posledni = pred.ukon, &pristi = rada[udelano].ukon;
    if (otvira_nabidku(posledni) && menu.jmeno.empty()) {
        --udelano;
        return;
    }
    if (pristi.co == DruhUkonu::psani && prikaz_radek.rezim_zadani == 0) { // the field was answered otherwise
        udelano = 0;
        preskoc_hotove();
        return;
    }
    const auto zasobnik = std::find_if(rada.begin(), rada.end(), je_zasobnik);
    if (zasobnik != rada.end() && !je_otevren_zasobnik()) {
        udelano = std::min(udelano, static_cast<std::size_t>(zasobnik - rada.begin()));
        return;
    }
    const bool zacalo_se = je_volba_zacatku(posledni) || posledni.co == DruhUkonu::polozka_menu;
    if (!zacalo_se || vyber.volba_zacatek >= 0 || !menu.jmeno.empty() || je_cesta(pred) ||
        !je_konec_volby(pristi))
        return;
    udelano = 0;
    preskoc_hotove();
}

bool RadaUkonu::cti() {
    const std::size_t bylo = udelano, vse = ukony_smeny.ukony.size();
    for (videno = std::min(videno, vse); videno < vse; ++videno) {
        const Ukon& u = ukony_smeny.ukony[videno];
        if (!je_cin(u) && u.co != DruhUkonu::najeti)
            continue;
        if (!vse_hotovo() && !rada[udelano].predani && stejny_ukon(u, rada[udelano].ukon))
            ++udelano;
    }
    preskoc_hotove();
    vrat_ztracene();
    return udelano != bylo;
}

bool RadaUkonu::vede_na_obrazovku() const {
    return std::any_of(rada.begin(), rada.end(), je_zasobnik);
}

std::vector<Misto> RadaUkonu::mista() const {
    std::vector<Misto> vse;
    const bool vic = std::count_if(rada.begin(), rada.end(), ukazuje_misto) > 1;
    for (std::size_t i = udelano; i < rada.size() && ukazuje_misto(rada[i]); ++i)
        vse.push_back({rada[i].ukon.druh, static_cast<int>(rada[i].ukon.n), vic ? static_cast<int>(i) + 1 : 0,
                       i == udelano});
    return vse;
}

} // namespace lekce
