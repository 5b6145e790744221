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

void zadej_souhlas(int k, std::int32_t cislo) {
    zadej_souhlas(k, TextPohled(text_cisla(cislo)));
}

void zadej_souhlas(int k, TextPohled cislo) {
    if (!je_lampa(k))
        return;
    relief.lblSouhlas[k].popis = cislo;
    souhlasy.zada[static_cast<std::size_t>(k)] =
        cislo.empty() ? std::nullopt : std::optional(cele_z_textu(cislo));
}

void souhlas_us(int k) {
    if (!je_lampa(k) || !souhlasy.zada[static_cast<std::size_t>(k)])
        return;
    Prvek& lampa = relief.lblSouhlas[k];
    if (lampa.barva != barvy::modra) // else a route leads out here, and the lamp goes on saying so
        nastav_text(lampa, znak(konec(k).znak_dovnitr));
    lampa.barva = barvy::modra;

    const std::int32_t cislo = *souhlasy.zada[static_cast<std::size_t>(k)];
    std::vector<std::int32_t>& cekajici = souhlasy.cekajici_vlaky;
    if (cekajici.size() == 1 && cekajici.front() == 0)
        cekajici.front() = cislo;
    else
        cekajici.push_back(cislo);
    souhlasy.souhlas[static_cast<std::size_t>(k)] = true;
    zadej_souhlas(k, TextPohled());
    gtn_zapis(k, gtn::souhlas, 0);
}
