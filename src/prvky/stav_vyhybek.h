// prvky/stav_vyhybek.h - movement of switches and the one pending manual throw.
#pragma once

#include "zaklad/cisla.h"

#include <cstdint>
#include <vector>

struct StavVyhybek {
    std::vector<bool> vyhybka_pohyb;      // by switch number: between the order to throw and the end position
    std::int16_t prehoz_vyhybka = kZadny; // switch thrown by hand; a second throw overwrites the first, which
                                          // then stays moving until NOUZ: one throw is remembered
    std::int32_t prehoz_cas = kZadny;     // second at which that throw ends
    bool operator==(const StavVyhybek&) const = default;
};
extern StavVyhybek stav_vyhybek;
