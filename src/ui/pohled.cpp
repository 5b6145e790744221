// ui/pohled.cpp - how the desk is shown.
#include "ui/pohled.h"

#include "zaklad/platforma.h"

namespace {

constexpr TextPohled kSekce = "Pohled", kVernyPomer = "VernyPomer", kVystrahy = "Vystrahy";

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
