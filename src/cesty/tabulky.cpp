// cesty/tabulky.cpp - the interlocking tables, read once for each state of their files.
#include "cesty/tabulky.h"

#include "app/simulace.h"
#include "zaklad/mezipamet.h"

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>

namespace {

template <class Zaznam, class Popis> std::vector<Zaznam> cti_zaznamy(const Bajty& bajty, Popis popis) {
    std::vector<Zaznam> zaznamy;
    Ctenar ctenar{bajty};
    while (!ctenar.na_konci()) {
        Zaznam zaznam;
        popis(ctenar, zaznam);
        if (!ctenar.ok)
            break;
        zaznamy.push_back(std::move(zaznam));
    }
    return zaznamy;
}

struct ObsahCest {
    std::vector<ZaznamCesty> zaznamy;
    std::unordered_map<std::uint32_t, std::uint32_t> podle_dvojice; // start and end: first such record
};

std::uint32_t klic(int zacatek, int konec) {
    return static_cast<std::uint32_t>(static_cast<std::uint16_t>(zacatek)) << 16 |
           static_cast<std::uint16_t>(konec);
}

ObsahCest cti_obsah_cest(const Bajty& bajty) {
    ObsahCest obsah{cti_cesty(bajty), {}};
    obsah.podle_dvojice.reserve(obsah.zaznamy.size());
    for (std::size_t i = 0; i < obsah.zaznamy.size(); ++i)
        if (const ZaznamCesty& z = obsah.zaznamy[i]; !z.prvky.empty())
            obsah.podle_dvojice.emplace(klic(z.zacatek, z.konec), static_cast<std::uint32_t>(i));
    return obsah;
}

struct ObsahVazeb {
    std::vector<ZaznamVazeb> zaznamy;
    std::array<std::int32_t, 256> podle_cisla{}; // first record of the switch; -1 none
};

ObsahVazeb cti_obsah_vazeb(const Bajty& bajty) {
    ObsahVazeb obsah{cti_vazby(bajty), {}};
    obsah.podle_cisla.fill(-1);
    for (std::size_t i = obsah.zaznamy.size(); i-- > 0;)
        obsah.podle_cisla[obsah.zaznamy[i].cislo] = static_cast<std::int32_t>(i);
    return obsah;
}

const ObsahVazeb& obsah_vazeb() {
    static Mezipamet<ObsahVazeb> mezipamet;
    return mezipamet.vezmi(simulace.cesta_aplikace, "data\\tesk.stg", cti_obsah_vazeb);
}

} // namespace

std::vector<ZaznamCesty> cti_cesty(const Bajty& bajty) {
    return cti_zaznamy<ZaznamCesty>(bajty, [](auto& a, auto& z) { popis_zaznamu_cesty(a, z); });
}

std::vector<ZaznamVazeb> cti_vazby(const Bajty& bajty) {
    return cti_zaznamy<ZaznamVazeb>(bajty, [](auto& a, auto& z) { popis_zaznamu_vazeb(a, z); });
}

std::vector<ZaznamMakra> cti_makra(const Bajty& bajty) {
    return cti_zaznamy<ZaznamMakra>(bajty, [](auto& a, auto& z) { popis_zaznamu_makra(a, z); });
}

NalezenaCesta najdi_v_tabulce(TabulkaCest tabulka, int zacatek, int konec) {
    static std::array<Mezipamet<ObsahCest>, 2> mezipameti;
    const bool vlakova = tabulka == TabulkaCest::zat;
    const ObsahCest& obsah = mezipameti[vlakova ? 0 : 1].vezmi(
        simulace.cesta_aplikace, vlakova ? "data\\tesk.zat" : "data\\tesk.zpc", cti_obsah_cest);
    const auto nalezena = obsah.podle_dvojice.find(klic(zacatek, konec));
    if (nalezena == obsah.podle_dvojice.end())
        return {};
    return {&obsah.zaznamy[nalezena->second], static_cast<int>(nalezena->second) + 1};
}

const std::vector<ZaznamVazeb>& vazby_vyhybek() {
    return obsah_vazeb().zaznamy;
}

const ZaznamVazeb* najdi_vazby(int n) {
    const ObsahVazeb& obsah = obsah_vazeb();
    if (n < 0 || n > std::numeric_limits<std::uint8_t>::max())
        return nullptr;
    const std::int32_t i = obsah.podle_cisla[static_cast<std::size_t>(n)];
    return i < 0 ? nullptr : &obsah.zaznamy[static_cast<std::size_t>(i)];
}

int cislo_vyhybky(TextPohled nazev) {
    for (const ZaznamVazeb& z : obsah_vazeb().zaznamy) {
        const TextPohled cely = z.nazev;
        if (stejne_bez_velikosti(cely.substr(0, cely.find('/')), nazev))
            return z.cislo;
    }
    return -1;
}
