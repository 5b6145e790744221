// obsluha/lokomotivy.cpp - locomotives called out of the depots.
#include "obsluha/lokomotivy.h"

#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "desk/menu.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/obrazky_vozu.h"
#include "gvd/provoz.h"
#include "gvd/skladba.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr std::uint8_t kRychlost = 80;
constexpr int kKolejVh = uzel::kBranaVh.kolej;

void akce_zapadni_brany(int i) {
    loko_menu(uzel::kBranaZapad.popis, uzel::kRadyDepa.at(static_cast<std::size_t>(i)));
}
void akce_vychodni_brany(int i) {
    loko_menu(uzel::kBranaVychod.popis, uzel::kRadyDepa.at(static_cast<std::size_t>(i)));
}
void akce_vh(int i) {
    loko_vh_menu(uzel::kRadyDepaVh.at(static_cast<std::size_t>(i)));
}

const uzel::Brana* najdi_branu(int popis) {
    return popis == uzel::kBranaZapad.popis    ? &uzel::kBranaZapad
           : popis == uzel::kBranaVychod.popis ? &uzel::kBranaVychod
                                               : nullptr;
}

bool je_volno(int kolej) {
    return je_volna_kolej(kolej) && cil_volny(kolej);
}

// A record of vehicles of one series, standing on the track, for a run of some minutes between two places.
int nova_lokomotiva(TextPohled rada, std::size_t pocet, int kolej, bool smer,
                    std::array<std::uint8_t, 2> odkud_kam, int jizda_min) {
    const int v = novy_vlak();
    Vlak& vlak = vlak_c(v);
    vlak.cislo = na_long(dolu(static_cast<double>(nahodne()) * 200.0 + 74'800.0));
    vlak.druh = druh_vlaku::lv;
    vlak.smer = smer;
    vlak.muze_jet = true;
    vlak.max_rychlost = vlak.rychlost_trati = kRychlost;
    vlak.loko_rada = na_integer(cele_z_textu(rada));
    for (std::size_t i = 0; i < pocet; ++i)
        vlak.vozy.push_back({Text(rada), {}, obrazek_vozu(vlak.loko_rada)});
    vlak.prvky = {{na_integer(kolej), druh_prvku::kolej, 2}};
    vlak.zastavky = {{odkud_kam[0], kZadny, cas_min(), cas_min()},
                     {odkud_kam[1], na_integer(cas_min() + jizda_min), kZadny, kZadny}};
    return v;
}

Menu nove_menu(TextPohled jmeno, int popis) {
    const Text hlava =
        relief.popis_stanice.je(popis) ? Text(orez(relief.popis_stanice[popis].text())) : Text{};
    return {Text(jmeno), hlava, Druh::popis_stanice, popis, {}};
}

// Entries are known by their caption, and by their place in the array of the menu.
void pridej_radu(Menu& nove, TextPohled pole, TextPohled rada, std::size_t i, void (*akce)(int)) {
    nove.polozky.push_back({"mi" + Text(rada), Text(rada), true, true, akce, static_cast<int>(i)});
    nove.polozky.back().druhe_jmeno = Text(pole) + text_cisla(static_cast<std::int64_t>(i));
}

} // namespace

bool menu_depa(int popis) {
    if (popis == uzel::kBranaVh.popis) {
        Menu nove = nove_menu("mnuLOKO_VH", popis);
        for (std::size_t i = 0; i < uzel::kRadyDepaVh.size(); ++i)
            pridej_radu(nove, "miLOKO_VH", uzel::kRadyDepaVh[i], i, akce_vh);
        otevri_menu(std::move(nove));
        return true;
    }
    const uzel::Brana* brana = najdi_branu(popis);
    if (brana == nullptr)
        return false;
    Menu nove = nove_menu("mnuLOKO", popis);
    for (std::size_t i = 0; i < uzel::kRadyDepa.size(); ++i)
        pridej_radu(nove, "miLoko", uzel::kRadyDepa[i], i,
                    brana == &uzel::kBranaZapad ? akce_zapadni_brany : akce_vychodni_brany);
    otevri_menu(std::move(nove));
    return true;
}

void loko_menu(int misto, TextPohled rada) {
    const uzel::Brana* brana = najdi_branu(misto);
    if (brana == nullptr ||
        std::find(uzel::kRadyDepa.begin(), uzel::kRadyDepa.end(), rada) == uzel::kRadyDepa.end() ||
        !je_volno(brana->kolej))
        return;
    const bool dvojice = rada == uzel::kDvojice;
    const int v = nova_lokomotiva(dvojice ? uzel::kVuzDvojice : rada, dvojice ? 2 : 1, brana->kolej,
                                  brana->smer, {dopravna::hajovice_sn, dopravna::hajovice}, 2);
    vlak_c(v).delka = dvojice ? 36 : 18;
    vlak_c(v).posun = true;
    pridej_na_kolej(brana->kolej, v, brana->smer, -1);
    barvi_prvek(brana->kolej, barvy::cervena);
    nastav_metry(brana->kolej, 500);
}

void loko_vh_menu(TextPohled rada) {
    if (std::find(uzel::kRadyDepaVh.begin(), uzel::kRadyDepaVh.end(), rada) == uzel::kRadyDepaVh.end() ||
        !je_volno(kKolejVh))
        return;
    const int v = nova_lokomotiva(rada, 1, kKolejVh, true, {dopravna::dkv_vh, dopravna::tesk}, 7);
    vlak_c(v).delka = 20;
    pridej_na_kolej(kKolejVh, v, true, -1);
    barvi_prvek(kKolejVh, barvy::cervena);
    nastav_metry(kKolejVh, 200);
    pridej_do_tabulky(v);
    pis_cislo(kKolejVh, text_cisla(vlak_c(v).cislo));
    postav_cesty_z(kKolejVh);
}
