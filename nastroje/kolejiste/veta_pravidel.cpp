// nastroje/kolejiste/veta_pravidel.cpp - statements about routes, and the demands that the rules of the
// running make of the numbers.
#include "kolejiste/veta.h"

#include <algorithm>

namespace kolejiste {

namespace {

// --- routes; every statement ends with its reason in quotes

void cti_duvod(Veta& v) {
    if (!v.je_text() || v.text("důvod").empty())
        nesrozumitelne("chybí důvod v uvozovkách");
}

// Start and end of a route.
void cti_dvojici(Veta& v, std::int32_t& zacatek, std::int32_t& konec) {
    zacatek = v.cislo("návěstidlo");
    konec = v.cislo("konec");
    v.prvek += " " + std::to_string(zacatek) + " " + std::to_string(konec);
}

void cti_trasu(Veta& v) {
    PravidlaTras::RucniTrasa t{v.misto, v.druh_trasy(), 0, 0, {}, {}};
    cti_dvojici(v, t.zacatek, t.konec);
    while (!v.konec() && !v.je_text()) {
        if (v.klic("pres"))
            while (!v.konec() && !v.je_text() && !v.je_klic("kolem"))
                t.pres.push_back(v.prvek_trasy());
        else if (v.klic("kolem"))
            t.kolem.merge(v.rada());
        else
            v.nezname();
    }
    v.pridej(v.plan.pravidla_tras.rucni, std::move(t),
             [](const PravidlaTras::RucniTrasa& a, const PravidlaTras::RucniTrasa& b) {
                 return a.druh == b.druh && a.zacatek == b.zacatek && a.konec == b.konec;
             });
    cti_duvod(v);
}

void cti_nechci(Veta& v) {
    PravidlaTras::Zakaz z{v.misto, {}, {}, {}};
    if (v.klic("cesty"))
        z.druhy = {kDruhyTras.begin(), kDruhyTras.end()};
    else
        z.druhy = {v.druh_trasy()};
    if (v.klic("od"))
        z.zacatky = v.rada();
    if (v.klic("do"))
        z.konce = v.rada();
    if (z.zacatky.empty() && z.konce.empty())
        nesrozumitelne("chybí od nebo do a čísla");
    v.plan.pravidla_tras.zakazy.push_back(std::move(z));
    cti_duvod(v);
}

void cti_povinnou(Veta& v) {
    PravidlaTras::Povinna c{v.misto, 0, 0, {}};
    cti_dvojici(v, c.zacatek, c.konec);
    while (!v.konec() && !v.je_text()) {
        if (v.klic("pres"))
            while (v.je_cislo())
                c.koleje.push_back({v.cislo("kolej")});
        else if (v.klic("jedna_z"))
            c.koleje.push_back(v.rada());
        else
            v.nezname();
    }
    v.plan.pravidla_tras.povinne.push_back(std::move(c));
    cti_duvod(v);
}

void cti_nesmi(Veta& v) {
    PravidlaTras::Povinna c{v.misto, 0, 0, {}};
    cti_dvojici(v, c.zacatek, c.konec);
    v.plan.pravidla_tras.nesmi.push_back(std::move(c));
    cti_duvod(v);
}

void cti_odjezdy(Veta& v) {
    PravidlaTras::Odjezdy o{v.misto, v.druh_trasy(), v.strana(), {}};
    o.koleje = v.rada();
    v.plan.pravidla_tras.odjezdy.push_back(std::move(o));
    cti_duvod(v);
}

void cti_programovou(Veta& v) {
    PravidlaTras::Programova c{v.misto, 0, 0, {}};
    cti_dvojici(v, c.zacatek, c.konec);
    while (v.je_cislo())
        c.koleje.push_back(v.cislo("kolej"));
    if (c.koleje.empty())
        nesrozumitelne("chybí koleje cesty");
    v.plan.pravidla_tras.programove.push_back(std::move(c));
    cti_duvod(v);
}

void rekni_jednou(std::map<int, int>& o_cem, int n, int hodnota) {
    if (!o_cem.try_emplace(n, hodnota).second)
        nesrozumitelne("o čísle " + std::to_string(n) + " to už řečeno je");
}

void cti_saha(Veta& v) {
    const int n = v.cislo("konec");
    rekni_jednou(v.plan.pravidla_tras.saha, n, v.cislo("kolej za ním"));
    cti_duvod(v);
}

void cti_rychlost(Veta& v) {
    const int trida = v.cislo("třída rychlosti");
    if (trida < 0 || trida > 3)
        nesrozumitelne("třídy rychlosti jsou 0 až 3");
    if (trida == 1)
        nesrozumitelne("40 km/h platí i bez tohoto pravidla");
    for (const int n : v.rada())
        rekni_jednou(v.plan.pravidla_tras.rychlost, n, trida);
    cti_duvod(v);
}

template <std::set<int> PravidlaTras::*Mnozina> void cti_mnozinu(Veta& v) {
    (v.plan.pravidla_tras.*Mnozina).merge(v.rada());
    cti_duvod(v);
}

constexpr Druh kVetyTras[] = {
    {"trasa", &cti_trasu},
    {"nechci", &cti_nechci},
    {"povinna", &cti_povinnou},
    {"nesmi", &cti_nesmi},
    {"odjezdy", &cti_odjezdy},
    {"programova", &cti_programovou},
    {"saha", &cti_saha},
    {"rychlost", &cti_rychlost},
    {"jen_vlak", &cti_mnozinu<&PravidlaTras::jen_vlak>},
    {"slepa", &cti_mnozinu<&PravidlaTras::slepe>},
    {"prujezdna", &cti_mnozinu<&PravidlaTras::prujezdne>},
};

// --- demands

template <std::map<std::string, std::set<int>> Pozadavky::*Seznam> void cti_cisla_druhu(Veta& v) {
    const std::string druh = v.slovo("druh prvku").text;
    if (!druh_podle_jmena(druh))
        nesrozumitelne("druh \"" + druh + "\" není");
    const std::set<int> cisla = v.rada();
    for (const int n : cisla)
        v.plan.pozadavky.misto_povinnych.try_emplace({druh, n}, v.misto);
    (v.plan.pozadavky.*Seznam)[druh].insert(cisla.begin(), cisla.end());
}

void cti_uplne(Veta& v) {
    v.plan.pozadavky.uplne = true;
}

void cti_nejmene(Veta& v) {
    const int n = v.cislo("kolej");
    v.plan.pozadavky.nejmensi_delka[n] = v.cislo("délka");
}

void cti_obrazy(Veta& v) {
    const int n = v.cislo("kolej");
    v.plan.pozadavky.obrazy[n] = v.rada();
}

void cti_smer(Veta& v) {
    const Text smer = v.text("směr");
    for (const int n : v.rada())
        v.plan.pozadavky.sipky[n] = smer;
}

void cti_jmeno_koleje(Veta& v) {
    const int n = v.cislo("kolej");
    v.plan.pozadavky.jmena[n] = v.text("jméno");
}

void cti_trojici(Veta& v) {
    const int n = v.cislo("výhybka");
    v.plan.pozadavky.trojice[n] = v.cislo("první poloha");
}

void cti_poradi(Veta& v, bool zleva) {
    Pozadavky::Poradi o{v.misto, zleva, v.rada(), {}};
    if (!v.klic(zleva ? "pred" : "za"))
        nesrozumitelne(zleva ? "chybí pred" : "chybí za");
    o.b = v.rada();
    v.plan.pozadavky.poradi.push_back(std::move(o));
}
void cti_zleva(Veta& v) {
    cti_poradi(v, true);
}
void cti_zprava(Veta& v) {
    cti_poradi(v, false);
}

void cti_prejezd_na(Veta& v) {
    const int n = v.cislo("kolej");
    for (const int k : v.rada()) {
        v.plan.pozadavky.kolej_prejezdu[k] = n;
        v.plan.pozadavky.misto_prejezdu[k] = v.misto;
    }
}

constexpr Druh kVetyPozadavku[] = {
    {"povinne", &cti_cisla_druhu<&Pozadavky::povinne>},
    {"zakazane", &cti_cisla_druhu<&Pozadavky::zakazane>},
    {"nejmene", &cti_nejmene},
    {"obrazy", &cti_obrazy},
    {"smer", &cti_smer},
    {"jmeno_koleje", &cti_jmeno_koleje},
    {"trojice", &cti_trojici},
    {"zleva", &cti_zleva},
    {"zprava", &cti_zprava},
    {"prejezd_na", &cti_prejezd_na},
    {"uplne", &cti_uplne},
};

} // namespace

std::span<const Druh> vety_tras() {
    return kVetyTras;
}

std::span<const Druh> vety_pozadavku() {
    return kVetyPozadavku;
}

} // namespace kolejiste
