// app/hlaseni_chyby.cpp - writes the report of an error, and the log of the program.
#include "app/hlaseni_chyby.h"

#include "app/cas.h"
#include "app/hlidac_tiku.h"
#include "app/simulace.h"
#include "app/smena.h"
#include "obsluha/ukony.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "save/ulozeni.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <vector>

namespace {

constexpr std::size_t kUkonu = 30; // acts of the operator that a report tells

bool pise_hlaseni = false;

// A shift that is only watched writes nothing of its own; what the program says of itself is no part of it.
struct SeZapisem {
    bool predtim = pise_se_na_disk(true);
    SeZapisem() = default;
    SeZapisem(const SeZapisem&) = delete;
    SeZapisem& operator=(const SeZapisem&) = delete;
    ~SeZapisem() { pise_se_na_disk(predtim); }
};

Text soubor_logu() {
    return slozka_hlaseni(Pad::receny) + "program.log";
}

std::string dvojmistne(int cislo) {
    return (cislo < 10 ? "0" : "") + std::to_string(cislo);
}

// "2026-01-05 08:00:00"
std::string ted_na_pocitaci() {
    const NastennyCas ted = platforma.nastenny_cas();
    return std::to_string(ted.rok) + "-" + dvojmistne(ted.mesic) + "-" + dvojmistne(ted.den) + " " +
           dvojmistne(ted.hodina) + ":" + dvojmistne(ted.minuta) + ":" + dvojmistne(ted.sekunda);
}

std::string v_utf8(TextPohled text) {
    return na_utf8(text);
}
std::string cas_v_utf8(std::int32_t sekundy) {
    return na_utf8(text_casu(sekundy));
}

void pis_beh(std::string& text) {
    text += "Program:          KPS RVZ TESK " + v_utf8(text_verze()) + "\n";
    text += "Na počítači je:   " + ted_na_pocitaci() + "\n";
    text += "Složka:           " + v_utf8(simulace.cesta_aplikace) + "\n";
    text += "Obrazovka:        " + v_utf8(simulace.obrazovka) + "\n";
    text += "Čas simulace:     " + v_utf8(text_hodin());
    if (std::has_single_bit(simulace.den))
        text += ", " + v_utf8(nazev_dne(std::countr_zero(simulace.den)));
    text += ", odehráno minut " + std::to_string(simulace.minuty_simulace) + ", rychlost " +
            std::to_string(simulace.rychlost) + (simulace.pauza ? ", pauza" : "") + "\n";
    text += "Jízdní řád:       " + v_utf8(simulace.soubor_gvd) + "\n";
    if (relief.lblPrikaz.je(0))
        text += "Příkazový řádek:  " + v_utf8(relief.lblPrikaz[0].text()) + "\n";
}

void pis_tiky(std::string& text) {
    const HlidacTiku& h = hlidac_tiku;
    if (!h.ms)
        return;
    text += "Tiky:             " + std::to_string(h.tiku) + ", nad " + std::to_string(kDlouhyTik_ms) +
            " ms " + std::to_string(h.dlouhych) + ", nejdelší " + std::to_string(h.nejdelsi_ms) + " ms\n";
}

void pis_ukony(std::string& text) {
    const std::vector<Ukon>& ukony = ukony_smeny.ukony;
    text += "\nPoslední úkony obsluhy (čas simulace a řádek jazyka skriptů):\n";
    for (std::size_t i = ukony.size() - std::min(ukony.size(), kUkonu); i < ukony.size(); ++i)
        text += cas_v_utf8(ukony[i].cas) + "  " + radek_ukonu(ukony[i]) + "\n";
}

// docs/gtn.md tells the codes.
void pis_denik(std::string& text) {
    text += "\nPoslední záznamy deníku (čas simulace, kód, prvek, hodnota):\n";
    for (const UdalostDeniku& u : gtn_posledni())
        text += cas_v_utf8(u.cas) + "  " + std::to_string(u.kod) + " " + std::to_string(u.prvek) + " " +
                std::to_string(u.hodnota) + "\n";
}

void promaz(const Text& slozka) {
    const std::vector<Text> jmena = soubory_slozky(slozka, "chyba_*.txt");
    for (std::size_t i = 0; i + kNejviceHlaseni <= jmena.size(); ++i) // one is about to be added
        smaz_soubor(slozka + jmena[i]);
}

// What was done since the last minute is what matters.
void dokonci_zaznam_smeny() {
    try {
        dopis_smenu();
    } catch (...) { // the acts may be what is wrong
    }
}

std::string ulozeni_slovy(NouzoveUlozeni nouzove) {
    switch (nouzove) {
    case NouzoveUlozeni::neni_co: return "nic nebylo rozehráno";
    case NouzoveUlozeni::ulozeno: return v_utf8(posledni_nouzovy());
    case NouzoveUlozeni::selhalo: return "nepodařilo se uložit";
    }
    return {};
}

} // namespace

void pis_hlaseni_chyb(bool ano) {
    pise_hlaseni = ano;
}

Text slozka_hlaseni(Pad pad) {
    return simulace.cesta_aplikace + (pad == Pad::receny ? "hlaseni\\" : "hlaseni\\nove\\");
}

Text jmeno_hlaseni() {
    const Text okamzik = jmeno_okamziku();
    return "chyba_" + okamzik.substr(0, okamzik.rfind('.')) + ".txt";
}

std::string text_hlaseni(std::string_view ulozeny_stav) {
    std::string text;
    pis_beh(text);
    text += "Nouzový záznam:   " + std::string(ulozeny_stav) + "\n";
    text += "Záznam směny:     " + (soubor_smeny().empty() ? "není" : v_utf8(soubor_smeny())) + "\n";
    pis_tiky(text);
    pis_ukony(text);
    pis_denik(text);
    return text;
}

std::optional<Text> zapis_hlaseni(std::string_view co, NouzoveUlozeni nouzove, Pad pad) noexcept {
    if (!pise_hlaseni)
        return std::nullopt;
    try {
        pis_do_logu(co);
        dokonci_zaznam_smeny();
        const SeZapisem zapis;
        const std::string text = std::string(co) + "\n\n" + text_hlaseni(ulozeni_slovy(nouzove));
        const Text slozka = slozka_hlaseni(pad), soubor = slozka + jmeno_hlaseni();
        zaloz_slozku(slozka);
        promaz(slozka);
        zapis_soubor(soubor, Bajty(text.begin(), text.end()));
        return soubor;
    } catch (...) { // a disk that takes nothing, or a state of which nothing can be told
        return std::nullopt;
    }
}

std::optional<Text> vezmi_nereceny_pad() {
    const Text odkud = slozka_hlaseni(Pad::nereceny), kam = slozka_hlaseni(Pad::receny);
    std::optional<Text> posledni;
    for (const Text& jmeno : soubory_slozky(odkud, "chyba_*.txt")) {
        promaz(kam);
        posledni = presun_soubor(odkud + jmeno, kam + jmeno) ? kam + jmeno : odkud + jmeno;
    }
    return posledni;
}

void pis_do_logu(std::string_view radek) noexcept {
    if (!pise_hlaseni)
        return;
    try {
        const SeZapisem zapis;
        const Text soubor = soubor_logu();
        zaloz_slozku(slozka_hlaseni(Pad::receny));
        if (delka_souboru(soubor).value_or(0) > kNejdelsiLog_B)
            presun_soubor(soubor, soubor + ".stary");
        std::FILE* log = std::fopen(cesta_k_zapisu(soubor).c_str(), "a");
        if (log == nullptr)
            return;
        const std::string cely = ted_na_pocitaci() + "  " + std::string(radek) + "\n";
        std::fputs(cely.c_str(), log);
        std::fclose(log);
    } catch (...) { // the log is a help and no more
    }
}
