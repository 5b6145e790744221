// technologie/penet.cpp - PE-NET.
#include "technologie/penet.h"

#include "zaklad/cisla.h"

#include <array>

namespace {

constexpr std::array<TextPohled, 13> kStavy = {"PP", "RC", "VL", "JC",  "KO",  "S1", "S2",
                                               "S3", "S4", "S5", "BI1", "BI2", "BI3"};
constexpr std::array<TextPohled, 19> kIndikace = {"IN2", "DFL", "DFH", "B1L", "B1H", "B2L", "B2H",
                                                  "B3L", "B3H", "B4L", "B4H", "B5L", "B5H", "I1",
                                                  "I2",  "I3",  "I4",  "I5",  "I6"};
constexpr int kCitacu = 6; // counters a row

constexpr std::array<SeznamTechnologie, 2> kSeznamyPenet = {{
    {"lstIndikace", "Indikace st: 31", &penet.lstIndikace, 19},
    {"lstStav_PP", "Stav PP podle SS", &penet.lstStav_PP, 13},
}};

// Whole number below `mez`, from the source of the ornaments.
int losuj(int mez) {
    return static_cast<int>(nahodne(technologie.zdroj) * static_cast<float>(mez));
}

Text jmeno_radku(TextPohled jmeno) {
    Text radek(jmeno);
    radek.resize(6, ' ');
    return radek;
}

// "IN2   3F   00111111"
Text radek_indikace(TextPohled jmeno) {
    constexpr TextPohled kSestnactkove = "0123456789ABCDEF";
    const auto bajt = static_cast<unsigned>(losuj(256));
    Text radek = jmeno_radku(jmeno);
    radek += kSestnactkove[bajt >> 4];
    radek += kSestnactkove[bajt & 15u];
    radek += "   ";
    for (int bit = 7; bit >= 0; --bit)
        radek += (bajt >> bit & 1u) != 0 ? '1' : '0';
    return radek;
}

// "PP      12   7 255 ..."
Text radek_stavu(TextPohled jmeno) {
    Text radek = jmeno_radku(jmeno);
    for (int i = 0; i < kCitacu; ++i) {
        const Text cislo = text_cisla(losuj(256));
        radek += Text(5 - cislo.size(), ' ') + cislo;
    }
    return radek;
}

template <std::size_t N>
void vypln(Seznam& seznam, const std::array<TextPohled, N>& jmena, Text (*radek)(TextPohled)) {
    seznam.radky.resize(N);
    for (std::size_t i = 0; i < N; ++i)
        seznam.radky[i] = radek(jmena[i]);
}

} // namespace

void napln_penet() {
    penet = PeNet{};
    prekresli_penet();
}

void zapomen_penet() {
    penet = PeNet{};
}

std::span<const SeznamTechnologie> seznamy_penetu() {
    return kSeznamyPenet;
}

void prekresli_penet() {
    vypln(penet.lstIndikace, kIndikace, radek_indikace);
    vypln(penet.lstStav_PP, kStavy, radek_stavu);
}
