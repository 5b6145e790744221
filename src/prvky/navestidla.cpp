// prvky/navestidla.cpp - the signal menu, blocking, calling-on, automatic mode.
#include "prvky/navestidla.h"

#include "cesty/dotazy.h"
#include "cesty/uvolneni.h"
#include "desk/menu.h"
#include "obsluha/volba.h"
#include "relief/relief.h"
#include "save/gtn.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int kProdlouzeniPN_s = 30;

// What ZAM shows: a main signal stays at stop, over a shunting one nobody may shunt.
Barva blokovana_barva(int s) {
    return je_na_ser(s) ? barvy::modra : barvy::cervena;
}

// The letter of the glyph alone changes: the blanks around it, and with them the label's place, stay.
void zamen_znak(Prvek& prvek, int z, int na) {
    Text text = prvek.text();
    const std::size_t misto = text.find(znak(z));
    if (misto == Text::npos)
        return;
    text[misto] = static_cast<char>(static_cast<unsigned char>(na));
    prvek.text = text;
}

// The copy of a route from s that waits for its next run.
int cekajici_kopie(int s) {
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (c.Vlak == kKopieAB && c.Umazat == 0 && !c.prehozena && !c.Postavena && c.zacatek == s && c.VC)
            return static_cast<int>(i);
    }
    return -1;
}

bool ceka_nebo_stoji_z(int s) {
    return std::any_of(cesty.begin(), cesty.end(), [&](const Cesta& c) {
        return c.zacatek == s && (c.cas_stavby >= 0 || c.Postavena) && c.Umazat == 0;
    });
}

// --- what the entries of the menus do

void akce_vc(int s) {
    klik_navestidlo(s, Tlacitko::leve, false);
}
void akce_pc(int s) {
    if (je_na_ser(s))
        klik_navestidlo_ser(s, Tlacitko::leve);
    else
        klik_navestidlo(s, Tlacitko::leve, true);
}

} // namespace

bool ab_zapnuto(int s) {
    const int kod = glyf_navestidla(s);
    return kod > 0 && kod < 200;
}

void zam(int s) {
    Prvek& prvek = navestidla(s)[s];
    const Barva blokovano = blokovana_barva(s);
    if (prvek.barva == blokovano)
        prvek.barva = barvy::seda;
    else if (prvek.barva == barvy::seda)
        prvek.barva = blokovano;
}

void ppn(int s) {
    const auto c = std::find_if(cesty.begin(), cesty.end(),
                                [&](const Cesta& x) { return x.zacatek == s && x.PN && x.PN_do > 0; });
    if (c != cesty.end())
        c->PN_do += kProdlouzeniPN_s;
}

void prepni_ab(int s) {
    Prvek& prvek = navestidla(s)[s];
    if (glyf_navestidla(s) > 200) {
        for (const DvojiceZnaku& d : kZnakyAB)
            zamen_znak(prvek, d.vypnuto, d.zapnuto);
    } else {
        for (const DvojiceZnaku& d : kZnakyAB)
            zamen_znak(prvek, d.zapnuto, d.vypnuto);
        if (const int i = cekajici_kopie(s); i >= 0)
            smaz_cestu(i);
    }
    gtn_zapis(s, gtn::ab, 0);
}

// Without a standing or waiting route there is nothing to repeat yet: the operator picks the end of the
// first run. So it is when the mode goes off, too; this is meant.
void menu_ab(int s) {
    prepni_ab(s);
    if (!ceka_nebo_stoji_z(s))
        akce_vc(s);
}

// Routes that the program made for trains coming from the line (ZT 999) are never repeated: the signal
// at their start stands on the line and is not set by the operator.
void kopie_ab(int i) {
    const Cesta& vzor = cesta_c(i);
    if (!vzor.VC || vzor.PN || vzor.ZT == kZTprogramu || !ab_zapnuto(vzor.zacatek))
        return;
    Cesta kopie = vzor;
    // The locking has added the whole line to a route that leads out. The table's own route ends on the
    // first section of the line, so that one stays; index 0 is where an entry route begins.
    for (std::size_t k = 1; k < kopie.prvky.size(); ++k)
        if (je_usek_trati(kopie.prvky[k].prvek)) {
            kopie.prvky.resize(k + 1);
            break;
        }
    kopie.Provedena = false;
    kopie.Postavena = false;
    kopie.prehozena = false;
    kopie.Kdy_prehoz = -3;
    kopie.cas_ruseni = -3;
    kopie.Umazat = 0;
    kopie.Vlak = kKopieAB;
    cesty.push_back(std::move(kopie));
}

// --- menu

void menu_navestidla(int s) {
    const bool ser = je_na_ser(s);
    const Prvek& prvek = navestidla(s)[s];
    const Barva barva = prvek.barva;
    const bool sviti = pn_sviti(s);
    const bool skoncila = pn_skoncila(s);
    const bool bez_pn = !sviti && !skoncila;
    const bool stuj = sviti || barva == barvy::zelena || barva == barvy::bila;
    const bool lze_zam = bez_pn && (barva == blokovana_barva(s) || barva == barvy::seda);

    const PolozkaMenu miSTUJ{"miSTUJ", "STUJ", stuj, true, navestidlo_stuj, s};
    const PolozkaMenu miDN{"miDN", "DN", dn_mozne(s) && !skoncila, true, obnov_cestu, s};
    const PolozkaMenu miRC{"miRC", "RC", rc_mozne(s) && bez_pn, true, zrus_cestu, s};
    const PolozkaMenu miZAM{"miZAM", "ZAM", lze_zam, true, zam, s};
    const PolozkaMenu miPC{"miPC", "PC", bez_pn, true, akce_pc, s};
    const Text hlava = "= " + prvek.popis() + " =";

    if (ser) {
        otevri_menu({"mnuSe_navestidlo", hlava, Druh::navestidlo_ser, s, {miSTUJ, miDN, miRC, miZAM, miPC}});
        return;
    }
    otevri_menu({"mnuNAVESTIDLO",
                 hlava,
                 Druh::navestidlo,
                 s,
                 {miSTUJ,
                  miDN,
                  {"miAB", "AB", bez_pn && barva != barvy::bila, true, menu_ab, s},
                  miRC,
                  miZAM,
                  {"miVC", "VC", bez_pn, true, akce_vc, s},
                  miPC,
                  {"miPN", "PN", !sviti && barva == barvy::seda, true, volba_pn, s},
                  {"miPPN", "PPN", sviti, true, ppn, s},
                  {"miRNZ", "RNZ", skoncila, true, rnz, s}}});
}
