// prvky/souhlasy.cpp - consents of the three line ends.
#include "prvky/souhlasy.h"

#include "desk/menu.h"
#include "desk/zprava.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

namespace {

constexpr TextPohled kSlovoZpravy = " ZPRÁVA "_cz;

bool je_lampa(int k) {
    return k >= 0 && static_cast<std::size_t>(k) < uzel::kKonceTrati.size() && relief.lblSouhlas.je(k);
}

const uzel::KonecTrati& konec(int k) {
    return uzel::kKonceTrati[static_cast<std::size_t>(k)];
}

Text otazka(int k) {
    return Text(konec(k).vyzva) + relief.lblSouhlas[k].popis() + " ?";
}

// The question of line k stands on the command line, asked at once or brought by the queue. That of
// another line is not answered by this consent.
bool stoji_otazka(int k) {
    return prikaz_radek.obsazen && relief.lblPrikaz[0].text() == kSlovoZpravy &&
           relief.lblVolba[0].text() == otazka(k);
}

} // namespace

void klik_souhlas(int k, Tlacitko tlacitko) {
    if (!je_lampa(k))
        return;
    if (tlacitko == Tlacitko::prave) {
        menu_souhlasu(k);
        return;
    }
    if (tlacitko == Tlacitko::leve && !relief.lblSouhlas[k].popis->empty())
        zprava(kSlovoZpravy, otazka(k), barvy::azurova, k + 1);
}

void menu_souhlasu(int k) {
    if (!je_lampa(k))
        return;
    otevri_menu({"mnuSouhlas",
                 Text(konec(k).nazev),
                 Druh::lblSouhlas,
                 k,
                 {{"miUS", "US", true, true, souhlas_us, k}}});
}

void souhlas_us(int k) {
    if (!je_lampa(k))
        return;
    Prvek& lampa = relief.lblSouhlas[k];
    if (lampa.popis->empty())
        return;
    if (lampa.barva != barvy::modra) // else a route leads out here, and the lamp goes on saying so
        nastav_text(lampa, znak(konec(k).znak_dovnitr));
    lampa.barva = barvy::modra;
    if (stoji_otazka(k)) {
        potvrd_prikaz();
        dalsi_zprava();
    }

    const std::int32_t cislo = cele_z_textu(lampa.popis());
    std::vector<std::int32_t>& cekajici = souhlasy.cekajici_vlaky;
    if (cekajici.size() == 1 && cekajici.front() == 0)
        cekajici.front() = cislo;
    else
        cekajici.push_back(cislo);
    souhlasy.souhlas[static_cast<std::size_t>(k)] = true;
    lampa.popis = Text();
    gtn_zapis(k, gtn::souhlas, 0);
}
