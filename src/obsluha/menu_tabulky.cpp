// obsluha/menu_tabulky.cpp - the search of a train by its line, and the menu of the line.
#include "obsluha/menu_tabulky.h"

#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/tabulka_vlaku.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <utility>

namespace {

// The frame of the search stands so far round its label, and closes in for so many half-seconds.
constexpr int kOdstupHledani = 200;
constexpr int kKrokuHledani = 6;

void smaz_radek(int radek) {
    smaz_z_tabulky(cislo_radku(radek));
}

} // namespace

void hledej_cislo(std::int32_t cislo) {
    if (cislo <= 0)
        return;
    for (int n = 0; n <= relief.cislo_koleje.nejvyssi(); ++n) {
        if (!relief.cislo_koleje.je(n) || cele_z_textu(orez(relief.cislo_koleje[n].text())) != cislo)
            continue;
        const Prvek& stitek = relief.cislo_koleje[n];
        Prvek& ramecek = relief.shpVyhledavani[0];
        ramecek.vlevo = stitek.vlevo() - kOdstupHledani;
        ramecek.nahore = stitek.nahore() - kOdstupHledani;
        ramecek.sirka = stitek.sirka() + 2 * kOdstupHledani;
        ramecek.vyska = stitek.vyska() + 2 * kOdstupHledani;
        ramecek.viditelny = true;
        do_popredi(ramecek);
        blikani.ramecek_hledani = kKrokuHledani;
        return;
    }
}

void hledej_radek(int radek) {
    hledej_cislo(cislo_radku(radek));
}

void menu_tabulky(int radek) {
    if (!radek_obsazen(radek))
        return;
    Menu nove{"mnuTabulka", {}, Druh::lblTabulka_vlaku, radek, {}};
    nove.polozky.push_back({"miSmazat", "SMAZ", true, true, smaz_radek, radek});
    otevri_menu(std::move(nove));
}
