// prvky/panel.cpp - the signal panel, and the flashing of its lamp.
#include "prvky/panel.h"

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "prvky/navestidla.h"
#include "relief/relief.h"

#include <algorithm>

namespace {

constexpr std::array<PopisPanelu, 5> kMasty = {{
    {TvarPanelu::kratky, {true, true, true, true, true, false}, {true, true}, 1},
    {TvarPanelu::bez_zluteho, {false, true, true, true, true, false}, {true, true}, 2},
    {TvarPanelu::dlouhy, {true, true, true, true, true, false}, {true, true}, 3},
    {TvarPanelu::bez_pruhu, {true, true, true, true, true, false}, {false, false}, 3},
    {TvarPanelu::serizovaci, {false, false, false, true, false, true}, {false, false}, 0},
}};

void rozsvit(int svetlo) {
    if (relief.svetlo.je(svetlo))
        relief.svetlo[svetlo].viditelny = true;
}
void rozsvit_pruh(int pruh) {
    if (relief.pruh.je(pruh))
        relief.pruh[pruh].viditelny = true;
}

void rozsvit_blikave(int svetlo, int interval) {
    rozsvit(svetlo);
    panel_navestidla.blika = static_cast<std::int8_t>(svetlo);
    panel_navestidla.interval = static_cast<std::int16_t>(interval);
}

void zhasni_vse() {
    for (int i = 0; i < 6; ++i)
        if (relief.svetlo.je(i))
            relief.svetlo[i].viditelny = false;
    for (int i = 0; i < 2; ++i)
        if (relief.pruh.je(i))
            relief.pruh[i].viditelny = false;
    panel_navestidla.blika = -1;
    panel_navestidla.interval = 0;
}

// Route that the signal stands for: commanded, no program-made one, and its train not further than the
// first section of the line.
const Cesta* cesta_panelu(int s) {
    for (const Cesta& c : cesty) {
        if (c.zacatek != s || !c.prehozena || c.ZT == kZTprogramu)
            continue;
        if (c.Umazat == 0 || (c.Umazat < c.prvky.size() && je_usek_trati(c.prvky[c.Umazat].prvek)))
            return &c;
    }
    return nullptr;
}

// The lower yellow and the bars say how fast the route may be run, the upper lamps what the next signal
// announces.
void rozsvit_znak(int rychlost, int pristi) {
    if (rychlost > 0)
        rozsvit(svetla::dolni_zlute);
    if (rychlost == 2)
        rozsvit_pruh(0);
    if (rychlost == 3)
        rozsvit_pruh(1);
    switch (pristi) {
    case 0: rozsvit(svetla::zelene); break;
    case 1: rozsvit_blikave(svetla::horni_zlute, 500); break;
    case 2: rozsvit_blikave(svetla::horni_zlute, 250); break;
    case 3: rozsvit_blikave(svetla::zelene, 500); break;
    default: rozsvit(svetla::horni_zlute); break; // stop
    }
}

void nastav_popisek(TabulkaPrvku& popisky, TextPohled text) {
    if (popisky.je(0))
        nastav_text(popisky[0], text);
}

} // namespace

TvarPanelu tvar_panelu(int navestidlo) {
    if (je_na_ser(navestidlo))
        return TvarPanelu::serizovaci;
    const auto rozsah =
        std::find_if(uzel::kMasty.begin(), uzel::kMasty.end(),
                     [&](const uzel::RozsahMastu& r) { return r.od <= navestidlo && navestidlo <= r.po; });
    return rozsah == uzel::kMasty.end() ? TvarPanelu::dlouhy : rozsah->tvar;
}

const PopisPanelu& popis_panelu(TvarPanelu tvar) {
    return *std::find_if(kMasty.begin(), kMasty.end(), [&](const PopisPanelu& p) { return p.tvar == tvar; });
}

void obnov_panel(int s) {
    const TabulkaPrvku& tabulka_s = navestidla(s);
    if (!tabulka_s.je(s))
        return;
    zhasni_vse();
    simulace.detail_navestidlo = s;
    panel_navestidla.tvar = tvar_panelu(s);

    const Text& nazev = tabulka_s[s].popis();
    const std::size_t mezera = nazev.find(' ');
    nastav_popisek(relief.lblnavestidlo, mezera == Text::npos ? TextPohled() : vyrez(nazev, mezera + 2));
    nastav_popisek(relief.lblNavestidlo_stanice, vyrez(nazev, 1, 3));

    const int klidove = je_na_ser(s) ? svetla::modre : svetla::cervene;
    const Barva barva = tabulka_s[s].barva;
    const Cesta* c = cesta_panelu(s);
    if (c == nullptr)
        rozsvit(klidove);
    else if (c->PN)
        rozsvit(svetla::cervene); // the white lamp is flashed by the route machine
    else if (c->VC && barva == barvy::zelena) {
        rozsvit_znak(c->rychlost, dalsi_navest(c->prvky.empty() ? kZadny : c->prvky.back().prvek));
        if (uzel::je_opakovaci(s))
            rozsvit(svetla::bile);
    } else if (c->VC)
        rozsvit(svetla::cervene);
    else
        rozsvit(barva == barvy::bila ? svetla::bile : klidove);
}

void obnov_panel_kdyz_ukazuje(int s) {
    if (simulace.detail_navestidlo == s)
        obnov_panel(s);
}

int perioda_blikani_diag() {
    return panel_navestidla.interval;
}

void krok_blikani_diag() {
    const int svetlo = panel_navestidla.blika;
    if (relief.svetlo.je(svetlo))
        relief.svetlo[svetlo].viditelny = !relief.svetlo[svetlo].viditelny();
}
