// relief/topologie.cpp - the table of lengths behind the file tesk.top.
#include "relief/topologie.h"

#include "app/simulace.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <bitset>

namespace {

constexpr std::size_t kZaznam = 7;     // bytes of a record
constexpr std::size_t kPoleKoleje = 3; // of which the number of the element
constexpr std::int16_t kVychoziDelka_m = 60;
constexpr std::uint32_t kDotazDisku_ms = 10'000; // how long a look at the disk holds

struct Topologie {
    Text slozka; // the program's folder whose file this is
    std::uint64_t otisk = 0;
    std::int32_t tik = 0; // when the disk was asked last
    std::uint64_t zmeny = 0;
    Delky delky{};
};
Topologie topologie;

void obnov() {
    const std::int32_t tik = platforma.tik_ms();
    const std::uint64_t zmeny = vlastni_zmeny();
    const bool stejna_slozka = topologie.slozka == simulace.cesta_aplikace;
    const bool nedavno =
        static_cast<std::uint32_t>(tik) - static_cast<std::uint32_t>(topologie.tik) < kDotazDisku_ms;
    if (topologie.otisk != 0 && stejna_slozka && nedavno && topologie.zmeny == zmeny)
        return;
    const Text cesta = simulace.cesta_aplikace + "data\\tesk.top";
    const std::uint64_t otisk = otisk_souboru(cesta);
    const bool odebran = otisk == 0 && topologie.otisk != 0 && stejna_slozka; // what it said still holds
    if (!odebran && (otisk == 0 || otisk != topologie.otisk || !stejna_slozka)) {
        topologie.otisk = 0; // a fault below leaves no table behind
        topologie.delky = delky_kolejiste(nacti_soubor(cesta));
    }
    topologie.slozka = simulace.cesta_aplikace;
    if (!odebran)
        topologie.otisk = otisk;
    topologie.tik = tik;
    topologie.zmeny = zmeny;
}

} // namespace

Delky delky_kolejiste(std::span<const std::uint8_t> bajty) {
    const TextPohled text(reinterpret_cast<const char*>(bajty.data()), bajty.size());
    Delky delky;
    delky.fill(kVychoziDelka_m);
    // The first record of a number wins, also when it says nothing; a short last record is dropped.
    std::bitset<kNejvyssiPrvek + 1> receno;
    for (std::size_t misto = 0; misto + kZaznam <= text.size(); misto += kZaznam) {
        const auto kolej = static_cast<std::size_t>(cele_z_textu(text.substr(misto, kPoleKoleje)));
        const std::int32_t delka = cele_z_textu(text.substr(misto + kPoleKoleje, kZaznam - kPoleKoleje));
        if (!receno[kolej] && delka != 0)
            delky[kolej] = na_integer(delka);
        receno.set(kolej);
    }
    return delky;
}

std::int16_t delka_koleje(int kolej) {
    obnov();
    if (kolej < 0 || kolej > kNejvyssiPrvek)
        return kVychoziDelka_m;
    return topologie.delky[static_cast<std::size_t>(kolej)];
}
