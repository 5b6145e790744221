// obsluha/menu_koleje.cpp - the menu of a track, and the clicks on its number labels.
#include "obsluha/menu_koleje.h"

#include "app/simulace.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "jizda/na_koleji.h"
#include "jizda/posun.h"
#include "jizda/souprava.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "obsluha/volba.h"
#include "obsluha/vyber.h"
#include "obsluha/zadani.h"
#include "prvky/jmena.h"
#include "relief/topologie.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <array>
#include <utility>

namespace {

constexpr int kOdstupMenu = 20; // twips below the label

constexpr std::int16_t kOtazkaCislaVlaku = 9; // what an Enter answers

constexpr Barva kZvyraznenyRadek = 0xFF00FF;

bool je_vlak(int v) {
    return v >= 0 && static_cast<std::size_t>(v) < vlaky.size() && vlak_c(v).cislo > 0;
}

// --- the trains of the menu

// The train of entry `poradi`; kZadny when the entry is empty or its train has gone meanwhile.
int vlak_polozky(int poradi) {
    if (poradi < 0 || poradi >= kVlakuVMenu)
        return kZadny;
    const auto i = static_cast<std::size_t>(poradi);
    const int v = stav_menu_koleje.vlak[i];
    return je_vlak(v) && vlak_c(v).cislo == stav_menu_koleje.cislo[i] ? v : kZadny;
}

void vyber_vlaky(int e) {
    stav_menu_koleje = MenuKoleje{};
    stav_menu_koleje.prvek = e;
    const int zaznam = zaznam_koleje(e);
    if (zaznam < 0)
        return;
    std::size_t i = 0;
    for (const std::int16_t v : kolej_vlaky_c(zaznam).vlaky) {
        if (!je_vlak(v) || i == kVlakuVMenu)
            continue;
        stav_menu_koleje.vlak[i] = v;
        stav_menu_koleje.cislo[i] = vlak_c(v).cislo;
        ++i;
    }
}

// A train by its number; a shunting movement by the next work of its first vehicle.
Text popis_vlaku(const Vlak& vlak) {
    if (!vlak.posun)
        return text_cisla(zobrazene_cislo(vlak));
    const Text urceni = vlak.vozy.empty() ? Text{} : vlak.vozy.front().urceni;
    if (jen_loko(vlak))
        return urceni.empty() ? Text("x?????"_cz) : urceni + "x";
    return urceni.empty() || urceni == "ZAL" ? text_cisla(vlak.cislo) + "#" : urceni + "#";
}

// --- the entries of one train

void akce_info(int poradi) {
    if (const int v = vlak_polozky(poradi); v >= 0)
        info_o_vlaku({}, v);
}

void akce_spojit(int poradi) {
    const int a = vlak_polozky(poradi), b = vlak_polozky(poradi + 1);
    if (a >= 0 && b >= 0)
        spoj(a, b);
}

void akce_otocit(int poradi) {
    const int v = vlak_polozky(poradi);
    if (v < 0)
        return;
    otoc_vlak(v);
    info_o_vlaku({}, v);
}

void akce_posun(int poradi) {
    if (const int v = vlak_polozky(poradi); v >= 0)
        zmena_posun(v, stav_menu_koleje.prvek, false);
}

void akce_civ(int poradi) {
    if (const int v = vlak_polozky(poradi); v >= 0)
        volej_civ(v);
}

void akce_odjezd(int poradi) {
    if (const int v = vlak_polozky(poradi); v >= 0)
        odjezd_povel(v);
}

void akce_zkratit(int poradi) {
    if (const int v = vlak_polozky(poradi); v >= 0)
        zkrat_vlak(v);
}

void akce_otoc_nouzove(int poradi) {
    const int v = vlak_polozky(poradi);
    if (v < 0)
        return;
    otoc_nouzove(v);
    info_o_vlaku({}, v);
}

struct PovelVlaku {
    TextPohled jmeno; // the number of the entry follows
    TextPohled text;
    void (*akce)(int poradi);
    std::array<bool, kVlakuVMenu> ma; // which entries have the command: as the real desk has them
};
constexpr std::array kPovely = {
    PovelVlaku{"miInfo", "INFO", akce_info, {true, true, true, true}},
    PovelVlaku{"miSpojit", "SPOJIT", akce_spojit, {true, true, true, false}},
    PovelVlaku{"miOtoc", "OTOCIT", akce_otocit, {true, true, true, false}},
    PovelVlaku{"miPosun", "POSUN/VLAK", akce_posun, {true, true, true, true}},
    PovelVlaku{"miCIV", "CIV", akce_civ, {true, true, true, false}},
    PovelVlaku{"miOdjezd", "ODJEZD", akce_odjezd, {true, true, false, false}},
    PovelVlaku{"miZkratit", "ZKRATIT", akce_zkratit, {true, true, false, false}},
    PovelVlaku{"miOtocN", "OTOC NOUZOVE", akce_otoc_nouzove, {true, true, false, false}}};

void pridej_vlak(Menu& nove, int poradi) {
    const int v = vlak_polozky(poradi);
    const bool je = v >= 0;
    const Text i = text_cisla(poradi);
    nove.polozky.push_back(
        {"miVlak_kolej" + i, je ? popis_vlaku(vlak_c(v)) : Text{}, true, je, nullptr, poradi});
    for (const PovelVlaku& povel : kPovely) {
        if (!povel.ma[static_cast<std::size_t>(poradi)])
            continue;
        // Coupling needs the train of the next entry.
        const bool povolena = povel.akce != akce_spojit || vlak_polozky(poradi + 1) >= 0;
        nove.polozky.push_back({Text(povel.jmeno) + i, Text(povel.text), povolena, je, povel.akce, poradi});
        nove.polozky.back().podmenu = true;
    }
}

// --- the head of the menu, and the entries of the track

Text radek_nazvu(int e) {
    const Text popis = je_cislo_koleje(e) ? Text(orez(relief.cislo_koleje[e].popis())) : Text{};
    if (!popis.empty())
        return "= " + Text(kod_stanice_prvku(e)) + " " + popis + "K =";
    return "= " + jmeno_cile(e) + " =";
}

// Length of the track; of a line that of all its sections.
int delka_mista(int e) {
    if (!je_usek_trati(e) || e == uzel::kObrazKamence)
        return delka_koleje(e);
    int delka = 0;
    for (int n = zaklad_trati(e); n <= kNejvyssiPrvek; n += kKrokTrati)
        if (je_kolej(n))
            delka += delka_koleje(n);
    return delka;
}

void akce_kc(int e) {
    klik_cil(e);
}
void akce_stit(int e) {
    otevri_stitek(e, DruhStitku::stitek);
}
void akce_nvl(int e) {
    otevri_stitek(e, DruhStitku::nvl);
}
void akce_vyl(int e) {
    otevri_stitek(e, DruhStitku::vyluka);
}

// --- labels

// The train number that the label shows; 0 when it shows the name of its track, or nothing.
std::int32_t cislo_na_stitku(int stitek) {
    const Prvek& p = relief.cislo_koleje[stitek];
    const TextPohled text = orez(p.text());
    if (text == orez(p.popis()) || !je_ciselny(text))
        return 0;
    return cele_z_textu(text);
}

// The only train in the list of the track; kZadny when there is none or more than one.
int jediny_vlak(int e) {
    const int zaznam = zaznam_koleje(e);
    if (zaznam < 0)
        return kZadny;
    const auto& seznam = kolej_vlaky_c(zaznam).vlaky;
    return seznam.size() == 1 ? seznam.front() : kZadny;
}

// The train of that number in the list of the track.
int vlak_s_cislem(int e, std::int32_t cislo) {
    const int zaznam = zaznam_koleje(e);
    if (zaznam < 0)
        return kZadny;
    for (const std::int16_t v : kolej_vlaky_c(zaznam).vlaky)
        if (je_vlak(v) && !vlak_c(v).posun && zobrazene_cislo(vlak_c(v)) == cislo)
            return v;
    return kZadny;
}

// A number that runs ahead of its train, stands on a line, or is known from the timetable only.
void info_podle_cisla(std::int32_t cislo) {
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (vlaky[v].cislo > 0 && !vlaky[v].posun && zobrazene_cislo(vlaky[v]) == cislo) {
            info_o_vlaku({}, static_cast<int>(v));
            return;
        }
    info_podle_gvd(cislo);
}

} // namespace

int prvek_popisku(int stitek) {
    if (stitek > kPrvniTrat && stitek % 2 != 0)
        return stitek - 1;
    if (je_pravy_stitek(stitek))
        return stitek - kDruhyStitek;
    return stitek;
}

void menu_koleje(int stitek) {
    const int e = prvek_popisku(stitek);
    if (e > uzel::kNejvyssiStitekTrati)
        return;
    vyber_vlaky(e);
    const Text nazev = radek_nazvu(e);
    const Text metry = je_kolej(e) ? relief.kolej[e].stav() : Text{};
    const Text delka = "  " + text_cisla(delka_mista(e)) + " m";
    Menu nove{"mnuKolej", nazev, Druh::cislo_koleje, e, {}};
    nove.polozky = {{"miNazev_kolej", nazev, true, true, nullptr, e},
                    {"miDelka_kolej", delka, true, true, nullptr, e},
                    {"mikolej_debug", metry, true, simulace.polozky_ladeni, nullptr, e}};
    for (int i = 0; i < kVlakuVMenu; ++i)
        pridej_vlak(nove, i);
    nove.polozky.push_back({"miSTIT_kolej", "STIT", true, true, akce_stit, e});
    nove.polozky.push_back({"miNVL", "NVL", true, true, akce_nvl, e});
    nove.polozky.push_back({"miVYL", "VYL", true, true, akce_vyl, e});
    nove.polozky.push_back({"miKC", "KC", true, true, akce_kc, e});
    if (je_cislo_koleje(stitek)) {
        const Prvek& p = relief.cislo_koleje[stitek];
        nove.misto = MistoMenu{p.vlevo(), p.nahore() + p.vyska() + kOdstupMenu};
    }
    otevri_menu(std::move(nove));
}

void klik_cisla(int stitek) {
    if (const int e = prvek_popisku(stitek); e <= uzel::kNejvyssiStitekTrati)
        klik_cil(e);
}

void dvojklik_cisla(int stitek) {
    if (!je_cislo_koleje(stitek))
        return;
    const int e = prvek_popisku(stitek);
    const std::int32_t cislo = cislo_na_stitku(stitek);
    if (cislo > 0) {
        if (const int v = vlak_s_cislem(e, cislo); v >= 0)
            info_o_vlaku({}, v);
        else
            info_podle_cisla(cislo);
        return;
    }
    if (const int v = jediny_vlak(e); v >= 0)
        info_o_vlaku({}, v);
    else if (!vlak_na_koleji(e))
        klik_cisla(stitek);
}

void najeti_cisla(int stitek) {
    const std::int32_t cislo = je_cislo_koleje(stitek) ? cislo_na_stitku(stitek) : 0;
    if (cislo <= 0 || cislo == vyber.mys_cislo_vlaku)
        return;
    vyber.mys_cislo_vlaku = cislo;
    const int radek = radek_tabulky(cislo);
    for (int i = 0; i < kRadkuTabulky; ++i)
        relief.lblTabulka_vlaku[i].barva = i == radek ? kZvyraznenyRadek : barvy::bila;
}

void volej_civ(int v) {
    zahod_zadani(); // there is one field, so there is one question
    zastav_hodiny();
    prikaz_radek.zadany_prvek = na_integer(v);
    prikaz_radek.rezim_zadani = rezim_zadani::cislo_vlaku;
    zprava(DruhZpravy::cislo_vlaku, {}, barvy::azurova, kOtazkaCislaVlaku, true);
    relief.txtZadav_pole[0].text = text_cisla(vlak_c(v).cislo);
}
