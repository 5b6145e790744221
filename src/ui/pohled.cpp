// ui/pohled.cpp - how the desk is shown.
#include "ui/pohled.h"

#include "ui/vzhled.h"
#include "zaklad/platforma.h"

#include <array>

namespace {

constexpr TextPohled kSekce = "Pohled", kVernyPomer = "VernyPomer", kVystrahy = "Vystrahy",
                     kPaleta = "Paleta";
constexpr std::array<TextPohled, kPalet> kSlovaPalet = {"obvykla", "kontrast", "bez_barev"};

} // namespace

bool je_verny_pomer() {
    return platforma.nastaveni_cti(kSekce, kVernyPomer) == "1";
}

void nastav_verny_pomer(bool ano) {
    platforma.nastaveni_pis(kSekce, kVernyPomer, ano ? "1" : "0");
}

bool je_rada_vystrah() {
    return platforma.nastaveni_cti(kSekce, kVystrahy) != "0";
}

void nastav_radu_vystrah(bool ano) {
    platforma.nastaveni_pis(kSekce, kVystrahy, ano ? "1" : "0");
}

Paleta ulozena_paleta() {
    const auto slovo = platforma.nastaveni_cti(kSekce, kPaleta);
    for (std::size_t i = 0; i < kPalet; ++i)
        if (slovo == kSlovaPalet[i])
            return static_cast<Paleta>(i);
    return Paleta::obvykla;
}

void zvol_paletu(Paleta nova) {
    platforma.nastaveni_pis(kSekce, kPaleta, kSlovaPalet[static_cast<std::size_t>(nova)]);
    nastav_paletu(nova);
    nastav_vzhled();
}
