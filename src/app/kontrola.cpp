// app/kontrola.cpp - the state checks, room by room.
//
// Each room has one function here that answers with the first fault of its tables. A new table adds
// its function to the list at the end of the file.
#include "app/kontrola.h"

#include "app/cas.h"
#include "app/kontrola_jizdy.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/drzeni.h"
#include "desk/hlaseni.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/vyber.h"
#include "prvky/souhlasy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "uzel/zastavky.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>

namespace {

using Nalez = std::optional<Text>;

// The pieces of a report, one behind another.
Text veta(std::initializer_list<TextPohled> kusy) {
    Text text;
    for (const TextPohled kus : kusy)
        text += kus;
    return text;
}

Text na_miste(TextPohled tabulka, std::size_t index, TextPohled co) {
    return veta({tabulka, " ", text_cisla(static_cast<std::int64_t>(index)), ": ", co});
}

Text prvek_textem(TextPohled druh, int n, TextPohled co) {
    return veta({druh, " ", text_cisla(n), ": ", co});
}

Nalez hodiny() {
    const Text cas = relief.lblcas[0].text;
    if (!je_text_casu(cas))
        return veta({"hodiny: čas „"_cz, cas, "“ není čas"_cz});
    if (sekundy_textu(cas) != cas_hodin())
        return veta({"hodiny: ukazují „"_cz, cas, "“, a je "_cz, text_casu(cas_hodin())});
    if (simulace.dva_monitory && relief.lblcas.je(1) && relief.lblcas[1].text() != cas)
        return Text("hodiny: druhý monitor ukazuje jiný čas"_cz);
    if (simulace.den == 0 || simulace.den > 64 || (simulace.den & (simulace.den - 1)) != 0)
        return veta({"hodiny: den "_cz, text_cisla(simulace.den), " není jeden den týdne"_cz});
    if (simulace.rychlost > 8)
        return veta({"hodiny: rychlost "_cz, text_cisla(simulace.rychlost), " je nad 8"_cz});
    return std::nullopt;
}

// The colour of a track is its state: a colour that means nothing would be a track in no state.
Nalez koleje() {
    constexpr std::array kStavy = {barvy::seda,   barvy::cervena, barvy::azurova,
                                   barvy::zelena, barvy::bila,    barvy::purpurova};
    for (int n = 0; n <= relief.kolej.nejvyssi(); ++n) {
        if (!relief.kolej.je(n))
            continue;
        const Prvek& kolej = relief.kolej[n];
        if (n > 0 && std::find(kStavy.begin(), kStavy.end(), kolej.barva()) == kStavy.end())
            return prvek_textem("kolej", n, "barva není stavem koleje"_cz);
        if (!kolej.stav->empty() && !je_ciselny(kolej.stav()))
            return prvek_textem("kolej", n, "poloha vlaku není číslo"_cz);
    }
    return std::nullopt;
}

// 1 to 49 is the shape, and fifty more for each colour: grey, green, cyan, red, white.
Nalez vyhybky() {
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n) {
        if (!relief.imgVyhybka.je(n) || relief.imgVyhybka[n].stav->empty())
            continue;
        const std::optional<double> stav = ciselny_text(relief.imgVyhybka[n].stav());
        if (!stav || *stav < 1 || *stav > 249 || dolu(*stav) != *stav || static_cast<int>(*stav) % 50 == 0)
            return prvek_textem("imgVyhybka", n, "stav není obrazem výhybky"_cz);
    }
    return std::nullopt;
}

// There are hundreds of tracks and switches, and a look comes after each step: as they were without a fault,
// they are without one until one of them changes.
Nalez koleje_a_vyhybky() {
    static std::optional<std::uint64_t> bez_vady;
    if (bez_vady == revize_stavu)
        return std::nullopt;
    Nalez nalez = koleje();
    if (!nalez)
        nalez = vyhybky();
    if (!nalez)
        bez_vady = revize_stavu;
    return nalez;
}

Nalez prehoz() {
    const StavVyhybek& s = stav_vyhybek;
    if (s.prehoz_vyhybka >= 0 && !relief.imgVyhybka.je(s.prehoz_vyhybka))
        return prvek_textem("prehoz_vyhybka", s.prehoz_vyhybka, "taková výhybka není"_cz);
    return std::nullopt;
}

bool je_prvek_cesty(int n, std::uint8_t druh) {
    switch (druh) {
    case druh_prvku::kolej: return relief.kolej.je(n);
    case druh_prvku::vyhybka: return relief.imgVyhybka.je(n);
    case druh_prvku::vykolejka: return relief.lblVykolejka.je(n);
    default: return false;
    }
}

bool je_index_vlaku(int i) {
    return i >= 0 && static_cast<std::size_t>(i) < vlaky.size();
}

Nalez zaznamy_cest() {
    if (cesty.empty())
        return Text("cesty: tabulka je prázdná, musí zbýt jeden volný záznam"_cz);
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (c.prvky.empty())
            return na_miste("cesty", i, "nemá žádný prvek"_cz);
        if (c.zacatek < 0)
            continue;
        for (std::size_t k = 0; k < c.prvky.size(); ++k)
            if (!je_prvek_cesty(c.prvky[k].prvek, c.prvky[k].druh))
                return na_miste("cesty", i,
                                veta({"prvek "_cz, text_cisla(c.prvky[k].prvek), " druhu "_cz,
                                      text_cisla(c.prvky[k].druh), " neexistuje"_cz}));
        if (c.Umazat >= c.prvky.size())
            return na_miste("cesty", i, "Umazat ukazuje za poslední prvek"_cz);
        if (c.Vlak != kZadny && c.Vlak != kKopieAB && c.Vlak != kKOdstraneni && !je_index_vlaku(c.Vlak))
            return na_miste("cesty", i, veta({"vlak "_cz, text_cisla(c.Vlak), " neexistuje"_cz}));
        if (c.prejezd > 1 && c.prejezd != kBezPrejezdu)
            return na_miste("cesty", i, veta({"přejezd "_cz, text_cisla(c.prejezd), " neexistuje"_cz}));
    }
    return std::nullopt;
}

// A train may enter the route: its signal shows proceed, or the calling-on aspect runs.
bool je_dovolena(const Cesta& c) {
    return c.zacatek >= 0 && c.Postavena && c.cas_ruseni < 0 &&
           (c.PN ? !c.PN_zaver && c.PN_do > ted_s() : c.Umazat == 0);
}

// Over each of its switches, right and locked, and over none that another such route has too.
Nalez vyhybky_pod_navestmi() {
    std::vector<int> drzi_cesta(static_cast<std::size_t>(relief.imgVyhybka.nejvyssi() + 1), kZadny);
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (!je_dovolena(c))
            continue;
        for (std::size_t k = 1; k < c.prvky.size(); ++k) {
            const int n = c.prvky[k].prvek;
            if (druh_na(c, k) != druh_prvku::vyhybka)
                continue;
            if (stav_vyhybky_cislo(n) != poloha_na(c, k) + zaver_vyhybek(c) || vyhybka_v_pohybu(n))
                return na_miste("cesty", i,
                                veta({"návěst dovoluje jízdu přes výhybku "_cz, text_cisla(n),
                                      ", která neleží nebo není pod závěrem"_cz}));
            int& kdo = drzi_cesta[static_cast<std::size_t>(n)];
            if (kdo != kZadny)
                return na_miste("cesty", i,
                                veta({"návěst dovoluje jízdu přes výhybku "_cz, text_cisla(n),
                                      " jako cesta "_cz, text_cisla(kdo)}));
            kdo = static_cast<int>(i);
        }
    }
    return std::nullopt;
}

Nalez volba() {
    if (vyber.volba_druh > 3)
        return veta({"volba: druh "_cz, text_cisla(vyber.volba_druh), " není druhem cesty"_cz});
    return std::nullopt;
}

Nalez pult() {
    const Prikaz& p = prikaz_radek;
    if (p.fronta_zprav.empty() || !p.fronta_zprav.back().slovo.text().empty() ||
        !p.fronta_zprav.back().volba.empty())
        return Text("fronta_zprav: na konci chybí prázdný záznam"_cz);
    if (relief.lblPrikaz[0].text() != p.slovo.text())
        return Text("příkazový řádek: ukazuje jiné slovo, než je jeho zpráva"_cz);
    if (relief.lblPrikaz[0].viditelny && !p.obsazen)
        return Text("příkazový řádek: ukazuje zprávu, ale není obsazen"_cz);
    if (p.blikani_prikazu && !p.obsazen)
        return Text("příkazový řádek: bliká, ale není obsazen"_cz);
    if (menu.jmeno.empty() && !menu.polozky.empty())
        return Text("menu: položky bez otevřeného menu"_cz);
    if (!menu.jmeno.empty() && menu.prvek >= 0 && !tabulka(menu.druh).je(menu.prvek))
        return veta({"menu: prvek "_cz, text_cisla(menu.prvek), " neexistuje"_cz});
    if (relief.lstZpravy.radky != texty_hlaseni())
        return Text("lstZpravy: ukazuje něco jiného, než co hlásí"_cz);
    if (stitky.empty())
        return Text("stitky: tabulka je prázdná"_cz);
    return std::nullopt;
}

Nalez souhlasy_trati() {
    const auto& cekajici = souhlasy.cekajici_vlaky;
    if (cekajici.empty())
        return Text("cekajici_vlaky: tabulka je prázdná"_cz);
    if (cekajici.size() > 1)
        for (std::size_t i = 0; i < cekajici.size(); ++i)
            if (cekajici[i] == 0)
                return na_miste("cekajici_vlaky", i, "číslo 0 mezi čísly vlaků"_cz);
    return std::nullopt;
}

// A locomotive behind the gate of a full depot: its only entry is no element.
bool je_bez_koleje(const Vlak& v) {
    return v.prvky.size() == 1 && v.prvky.front() == PrvekCesty{0, 0, 0};
}

// What stands below the tail is history; what a train holds runs without a gap from the tail to the head.
Nalez zaznamy_vlaku() {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo < 1)
            continue;
        if (v.stanice_index >= 0 && !v.zastavky.empty() &&
            static_cast<std::size_t>(v.stanice_index) >= v.zastavky.size())
            return na_miste("vlaky", i, "stanice_index ukazuje za poslední stanici"_cz);
        if (v.prvky.empty() || je_bez_koleje(v))
            continue;
        if (v.prvek_konec < 0 || static_cast<std::size_t>(v.prvek_konec) >= v.prvky.size())
            return na_miste("vlaky", i, "prvek_konec neukazuje na držený prvek"_cz);
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j)
            if (!je_prvek_cesty(v.prvky[j].prvek, v.prvky[j].druh))
                return na_miste("vlaky", i,
                                veta({"prvek "_cz, text_cisla(v.prvky[j].prvek), " druhu "_cz,
                                      text_cisla(v.prvky[j].druh), " neexistuje"_cz}));
    }
    return std::nullopt;
}

// A train that is announced at a neighbouring station appears there on green. The operator may work with it
// before its minute comes: make it a shunting movement, split it, send it off.
bool stoji_tu_ohlaseny(int n) {
    return uzel::je_kolej_souseda(n) && relief.kolej[n].barva == barvy::zelena &&
           std::any_of(vlaky.begin(), vlaky.end(), [n](const Vlak& v) {
               return v.cislo > 0 && v.prvek_konec == 0 && !v.prvky.empty() && v.prvky.front().prvek == n;
           });
}

// Under a train every track is occupied.
Nalez drzene_koleje() {
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo < 1 || v.prvky.empty())
            continue;
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j) {
            const int n = v.prvky[j].prvek;
            if (v.prvky[j].druh == druh_prvku::kolej && relief.kolej[n].barva != barvy::cervena &&
                !stoji_tu_ohlaseny(n))
                return na_miste("vlaky", i,
                                veta({"drží kolej "_cz, text_cisla(n), ", která není obsazená"_cz}));
        }
    }
    return std::nullopt;
}

Nalez vlaky_na_kolejich() {
    for (std::size_t i = 0; i < koleje_vlaky.size(); ++i) {
        if (koleje_vlaky[i].vlaky.empty())
            return na_miste("koleje_vlaky", i, "seznam vlaků je prázdný"_cz);
        for (const std::int16_t v : koleje_vlaky[i].vlaky)
            if (v != kZadny && !je_index_vlaku(v))
                return na_miste("koleje_vlaky", i, veta({"vlak "_cz, text_cisla(v), " neexistuje"_cz}));
        if (koleje_vlaky[i].vlaky.size() > 1 &&
            std::count(koleje_vlaky[i].vlaky.begin(), koleje_vlaky[i].vlaky.end(), kZadny) > 0)
            return na_miste("koleje_vlaky", i, "prázdné místo mezi vlaky"_cz);
    }
    return std::nullopt;
}

} // namespace

std::optional<Text> kontrola_stavu() {
    if (!relief.lblcas.je(0) || !relief.lblcas[0].viditelny) {
        zapomen_kontrolu_jizdy();
        return std::nullopt;
    }
    constexpr std::array<Nalez (*)(), 12> kKontroly = {
        hodiny,         koleje_a_vyhybky,  prehoz,        zaznamy_cest,  vyhybky_pod_navestmi, volba, pult,
        souhlasy_trati, vlaky_na_kolejich, zaznamy_vlaku, drzene_koleje, kontrola_jizdy};
    for (const auto kontrola : kKontroly)
        if (Nalez nalez = kontrola())
            return nalez;
    return std::nullopt;
}
