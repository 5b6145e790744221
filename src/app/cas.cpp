// app/cas.cpp - the clock and the arithmetic of its time.
#include "app/cas.h"

#include "app/simulace.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <array>

namespace {

std::int32_t v_mezich(std::int32_t hodnota, std::int32_t delka) {
    const std::int32_t zbytek = hodnota % delka;
    return zbytek < 0 ? zbytek + delka : zbytek;
}

void ukaz_cas(TextPohled cas) {
    for (int n = 0; n <= relief.lblcas.nejvyssi(); ++n)
        if (relief.lblcas.je(n))
            relief.lblcas[n].text = cas;
}

} // namespace

void nastav_cas(std::int32_t sekundy) {
    stav_hodin.sekundy = sekundy_dne(sekundy);
    ukaz_cas(text_casu(stav_hodin.sekundy));
}

void nastav_cas(TextPohled cas) {
    stav_hodin.sekundy = sekundy_textu(cas);
    ukaz_cas(cas);
}

bool je_text_casu(TextPohled cas) {
    const std::size_t prvni = cas.find(':');
    if (prvni == TextPohled::npos || prvni < 1 || prvni > 2 || cas.size() != prvni + 6 ||
        cas[prvni + 3] != ':')
        return false;
    const auto cislice = [&](std::size_t i) { return cas[i] >= '0' && cas[i] <= '9'; };
    for (std::size_t i = 0; i < cas.size(); ++i)
        if (i != prvni && i != prvni + 3 && !cislice(i))
            return false;
    const int hodina = prvni == 1 ? cas[0] - '0' : (cas[0] - '0') * 10 + (cas[1] - '0');
    return hodina < 24 && cas[prvni + 1] < '6' && cas[prvni + 4] < '6';
}

std::int32_t sekundy_textu(TextPohled cas) {
    std::array<std::int64_t, 3> casti{};
    for (std::int64_t& cast : casti) {
        const std::size_t konec = cas.find(':');
        cast = cele_z_textu(cas.substr(0, konec));
        if (konec == TextPohled::npos)
            break;
        cas.remove_prefix(konec + 1);
    }
    return na_long(casti[0] * 3600 + casti[1] * 60 + casti[2]);
}

std::int32_t sekundy_dne(std::int32_t sekundy) {
    return v_mezich(sekundy, kDen_s);
}

Text text_casu(std::int32_t sekundy) {
    const std::int32_t s = sekundy_dne(sekundy);
    return text_cisla(s / 3600) + ":" + text_cisla_mist(s / 60 % 60, 2) + ":" + text_cisla_mist(s % 60, 2);
}

Text text_minuty(std::int32_t minuta) {
    const std::int32_t m = v_mezich(minuta, kDen_min);
    return text_cisla(m / 60) + ":" + text_cisla_mist(m % 60, 2);
}

TextPohled nazev_dne(int den) {
    constexpr std::array kDny = {"pondělí"_cz, "úterý"_cz,  "středa"_cz, "čtvrtek"_cz,
                                 "pátek"_cz,   "sobota"_cz, "neděle"_cz};
    return kDny.at(static_cast<std::size_t>(den));
}

const Text& text_hodin() {
    return relief.lblcas[0].text;
}

std::int32_t sekundy_simulace(std::int32_t cas) {
    const std::int32_t dny = (simulace.cas_zacatku + simulace.minuty_simulace) / kDen_min;
    return cas + dny * kDen_s;
}

std::int16_t minuta_dne(std::int32_t cas) {
    return na_integer(cas / 60);
}
