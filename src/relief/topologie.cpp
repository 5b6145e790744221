// relief/topologie.cpp - the table of lengths behind the file tesk.top.
#include "relief/topologie.h"

#include "app/simulace.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <array>

namespace {

constexpr std::size_t kZaznam = 7;     // bytes of a record
constexpr std::size_t kPoleKoleje = 3; // of which the number of the element
constexpr std::int32_t kNeznama = -1;  // no record tells the length
constexpr std::int16_t kVychoziDelka_m = 60;

struct Topologie {
    Text cesta;
    std::uint64_t otisk = 0;
    std::array<std::int32_t, kNejvyssiPrvek + 1> delky{};
};
Topologie topologie;

// The first record of a number wins, whatever it says; a short last record is dropped.
void nacti(const Text& cesta, std::uint64_t otisk) {
    topologie.otisk = 0; // a fault below leaves no table behind
    const Bajty bajty = nacti_soubor(cesta);
    const TextPohled text(reinterpret_cast<const char*>(bajty.data()), bajty.size());
    topologie.delky.fill(kNeznama);
    for (std::size_t misto = 0; misto + kZaznam <= text.size(); misto += kZaznam) {
        const std::int32_t kolej = cele_z_textu(text.substr(misto, kPoleKoleje));
        std::int32_t& delka = topologie.delky.at(static_cast<std::size_t>(kolej));
        if (delka == kNeznama)
            delka = cele_z_textu(text.substr(misto + kPoleKoleje, kZaznam - kPoleKoleje));
    }
    topologie.cesta = cesta;
    topologie.otisk = otisk;
}

} // namespace

std::int16_t delka_koleje(int kolej) {
    const Text cesta = simulace.cesta_aplikace + "data\\tesk.top";
    const std::uint64_t otisk = otisk_souboru(cesta);
    if (otisk == 0 || otisk != topologie.otisk || cesta != topologie.cesta)
        nacti(cesta, otisk);
    if (kolej < 0 || kolej > kNejvyssiPrvek)
        return kVychoziDelka_m;
    const std::int32_t delka = topologie.delky[static_cast<std::size_t>(kolej)];
    return delka > 0 ? na_integer(delka) : kVychoziDelka_m;
}
