// desk/stitky.cpp - the table of notes.
#include "desk/stitky.h"

#include <algorithm>

namespace {

constexpr Barva kPozadiVyluky = 0x000080;
constexpr Barva kPozadiNvl = 0xFF0000;
constexpr Barva kPozadiStitku = 0x808000;
constexpr std::int16_t kObrazekVyluky = 103, kObrazekNvl = 102, kObrazekStitku = 101;

} // namespace

int stitek_prvku(int prvek) {
    const auto nalezeny =
        std::find_if(stitky.begin(), stitky.end(), [&](const StitekPrvku& s) { return s.prvek == prvek; });
    return nalezeny == stitky.end() ? -1 : static_cast<int>(nalezeny - stitky.begin());
}

std::optional<Barva> pozadi_stitku(const StitekPrvku& stitek) {
    if (!stitek.vyluka.empty())
        return kPozadiVyluky;
    if (!stitek.nvl.empty())
        return kPozadiNvl;
    if (!stitek.stitek.empty())
        return kPozadiStitku;
    return std::nullopt;
}

std::int16_t obrazek_stitku(const StitekPrvku& stitek) {
    if (!stitek.vyluka.empty())
        return kObrazekVyluky;
    if (!stitek.nvl.empty())
        return kObrazekNvl;
    return stitek.stitek.empty() ? std::int16_t{0} : kObrazekStitku;
}

bool je_pozadi_stitku(Barva pozadi) {
    return pozadi == kPozadiVyluky || pozadi == kPozadiNvl || pozadi == kPozadiStitku;
}
