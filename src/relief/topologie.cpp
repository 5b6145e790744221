// relief/topologie.cpp - the table of lengths behind the file tesk.top.
#include "relief/topologie.h"

#include "app/simulace.h"
#include "zaklad/cisla.h"
#include "zaklad/mezipamet.h"

#include <bitset>

namespace {

constexpr std::size_t kZaznam = 7;     // bytes of a record
constexpr std::size_t kPoleKoleje = 3; // of which the number of the element
constexpr std::int16_t kVychoziDelka_m = 60;

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
    static Mezipamet<Delky> delky;
    const Delky& platne = delky.vezmi(simulace.cesta_aplikace, "data\\tesk.top", delky_kolejiste);
    if (kolej < 0 || kolej > kNejvyssiPrvek)
        return kVychoziDelka_m;
    return platne[static_cast<std::size_t>(kolej)];
}
