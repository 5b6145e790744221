// prvky/souhlasy.cpp - consents of the three line ends.
#include "prvky/souhlasy.h"

#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

namespace {

bool je_lampa(int k) {
    return k >= 0 && static_cast<std::size_t>(k) < uzel::kKonceTrati.size() && relief.lblSouhlas.je(k);
}

const uzel::KonecTrati& konec(int k) {
    return uzel::kKonceTrati[static_cast<std::size_t>(k)];
}

} // namespace

void souhlas_us(int k) {
    if (!je_lampa(k))
        return;
    Prvek& lampa = relief.lblSouhlas[k];
    if (lampa.popis->empty())
        return;
    if (lampa.barva != barvy::modra) // else a route leads out here, and the lamp goes on saying so
        nastav_text(lampa, znak(konec(k).znak_dovnitr));
    lampa.barva = barvy::modra;

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
