// desk/stitky.cpp - the table of notes.
#include "desk/stitky.h"

#include <algorithm>

std::vector<StitekPrvku> stitky{1};

int stitek_prvku(int prvek) {
    const auto nalezeny =
        std::find_if(stitky.begin(), stitky.end(), [&](const StitekPrvku& s) { return s.prvek == prvek; });
    return nalezeny == stitky.end() ? -1 : static_cast<int>(nalezeny - stitky.begin());
}

std::optional<Barva> pozadi_stitku(const StitekPrvku& stitek) {
    if (!stitek.vyluka.empty())
        return 0x000080;
    if (!stitek.nvl.empty())
        return 0xFF0000;
    if (!stitek.stitek.empty())
        return 0x808000;
    return std::nullopt;
}
