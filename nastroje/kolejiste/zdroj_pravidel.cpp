// nastroje/kolejiste/zdroj_pravidel.cpp - reads the statements that demand something of the drawing and its
// routes.
#include "kolejiste/veta.h"
#include "relief/relief.h"

#include <algorithm>
#include <array>

namespace kolejiste {

namespace {

void jen_jednou(bool novy, int n) {
    if (!novy)
        nesrozumitelne("o čísle " + std::to_string(n) + " to už řečeno je");
}

} // namespace

bool Veta::cti_pozadavek(std::string_view co) {
    Pozadavky& p = plan.pozadavky;
    if (co == "povinne" || co == "zakazane") {
        const std::string druh = slovo("druh prvku").text;
        if (!druh_podle_jmena(druh))
            nesrozumitelne("druh \"" + druh + "\" není");
        (co == "povinne" ? p.povinne : p.zakazane)[druh].merge(rada());
    } else if (co == "nejmene") {
        const int n = cislo("kolej");
        p.nejmensi_delka[n] = cislo("délka");
    } else if (co == "obrazy") {
        const int n = cislo("kolej");
        p.obrazy[n] = rada();
    } else if (co == "smer") {
        const Text smer = text("směr");
        for (const int n : rada())
            p.sipky[n] = smer;
    } else if (co == "jmeno_koleje") {
        const int n = cislo("kolej");
        p.jmena[n] = text("jméno");
    } else if (co == "trojice") {
        const int n = cislo("výhybka");
        p.trojice[n] = cislo("první poloha");
    } else if (co == "zleva" || co == "zprava") {
        Pozadavky::Poradi o{misto, co == "zleva", rada(), {}};
        if (!klic(o.zleva ? "pred" : "za"))
            nesrozumitelne(o.zleva ? "chybí pred" : "chybí za");
        o.b = rada();
        p.poradi.push_back(std::move(o));
    } else if (co == "prejezd_na") {
        const int n = cislo("kolej");
        for (const int k : rada())
            p.kolej_prejezdu[k] = n;
    } else {
        return false;
    }
    return true;
}

// --- routes

DruhTrasy Veta::druh_trasy() {
    if (klic("vlak"))
        return DruhTrasy::vlak;
    if (!klic("posun"))
        nesrozumitelne("chybí druh cesty: vlak nebo posun");
    return DruhTrasy::posun;
}

// Rules about routes say why they are there; the reason stands at the end.
void Veta::duvod() {
    if (!je_text() || slova[dalsi].text.empty())
        nesrozumitelne("chybí důvod v uvozovkách");
    ++dalsi;
}

void Veta::zacatek_a_konec(int& zacatek, int& konec_trasy) {
    zacatek = cislo("návěstidlo");
    konec_trasy = cislo("konec");
    prvek = slova[0].text + " " + std::to_string(zacatek) + " " + std::to_string(konec_trasy);
}

void Veta::cti_trasu() {
    PravidlaTras::RucniTrasa t{misto, druh_trasy(), 0, 0, {}, {}};
    zacatek_a_konec(t.zacatek, t.konec);
    while (!konec() && !je_text()) {
        if (klic("pres"))
            while (!konec() && !je_text() && slova[dalsi].text != "kolem")
                t.pres.push_back(prvek_cesty());
        else if (klic("kolem"))
            t.kolem.merge(rada());
        else
            nezname();
    }
    std::vector<PravidlaTras::RucniTrasa>& rucni = plan.pravidla_tras.rucni;
    for (const PravidlaTras::RucniTrasa& jina : rucni)
        if (jina.druh == t.druh && jina.zacatek == t.zacatek && jina.konec == t.konec)
            uz_stoji(jina.misto);
    rucni.push_back(std::move(t));
}

void Veta::cti_zakaz() {
    PravidlaTras::Zakaz z{misto, {}, {}, {}};
    if (klic("cesty"))
        z.druhy = {DruhTrasy::vlak, DruhTrasy::posun};
    else
        z.druhy = {druh_trasy()};
    if (klic("od"))
        z.zacatky = rada();
    if (klic("do"))
        z.konce = rada();
    if (z.zacatky.empty() && z.konce.empty())
        nesrozumitelne("chybí od nebo do a čísla");
    plan.pravidla_tras.zakazy.push_back(std::move(z));
}

void Veta::cti_povinnou() {
    PravidlaTras::Povinna c{misto, 0, 0, {}};
    zacatek_a_konec(c.zacatek, c.konec);
    while (!konec() && !je_text()) {
        if (klic("pres"))
            while (je_cislo())
                c.koleje.push_back({cislo("kolej")});
        else if (klic("jedna_z"))
            c.koleje.push_back(rada());
        else
            nezname();
    }
    plan.pravidla_tras.povinne.push_back(std::move(c));
}

void Veta::cti_nesmi() {
    PravidlaTras::Povinna c{misto, 0, 0, {}};
    zacatek_a_konec(c.zacatek, c.konec);
    plan.pravidla_tras.nesmi.push_back(std::move(c));
}

void Veta::cti_odjezdy() {
    PravidlaTras::Odjezdy o{misto, druh_trasy(), strana(), {}};
    o.koleje = rada();
    plan.pravidla_tras.odjezdy.push_back(std::move(o));
}

void Veta::cti_programovou() {
    PravidlaTras::Programova c{misto, 0, 0, {}};
    zacatek_a_konec(c.zacatek, c.konec);
    while (je_cislo())
        c.koleje.push_back(cislo("kolej"));
    if (c.koleje.empty())
        nesrozumitelne("chybí koleje cesty");
    plan.pravidla_tras.programove.push_back(std::move(c));
}

void Veta::cti_saha() {
    const int n = cislo("konec");
    jen_jednou(plan.pravidla_tras.saha.try_emplace(n, cislo("kolej za ním")).second, n);
}

void Veta::cti_rychlost() {
    const int trida = cislo("třída rychlosti");
    if (trida < 0 || trida > 3)
        nesrozumitelne("třídy rychlosti jsou 0 až 3");
    for (const int n : rada())
        jen_jednou(plan.pravidla_tras.rychlost.try_emplace(n, trida).second, n);
}

bool Veta::cti_pravidlo_tras(std::string_view co) {
    struct Pravidlo {
        std::string_view slovo;
        void (Veta::*cti)();
    };
    constexpr std::array kPravidla = {
        Pravidlo{"trasa", &Veta::cti_trasu},
        Pravidlo{"nechci", &Veta::cti_zakaz},
        Pravidlo{"povinna", &Veta::cti_povinnou},
        Pravidlo{"nesmi", &Veta::cti_nesmi},
        Pravidlo{"odjezdy", &Veta::cti_odjezdy},
        Pravidlo{"programova", &Veta::cti_programovou},
        Pravidlo{"saha", &Veta::cti_saha},
        Pravidlo{"jen_vlak", &Veta::cti_mnozinu<&PravidlaTras::jen_vlak>},
        Pravidlo{"slepa", &Veta::cti_mnozinu<&PravidlaTras::slepe>},
        Pravidlo{"prujezdna", &Veta::cti_mnozinu<&PravidlaTras::prujezdne>},
        Pravidlo{"rychlost", &Veta::cti_rychlost},
    };
    const auto pravidlo =
        std::find_if(kPravidla.begin(), kPravidla.end(), [co](const Pravidlo& p) { return p.slovo == co; });
    if (pravidlo == kPravidla.end())
        return false;
    (this->*pravidlo->cti)();
    duvod();
    return true;
}

} // namespace kolejiste
