// testy/pomocne/prvky_cesty.h - entries of a route or a train as lists of numbers, kinds and positions.
#pragma once

#include "cesty/prvek_cesty.h"

#include <cstdint>
#include <vector>

// Kinds and positions that are not given are 0.
inline std::vector<PrvekCesty> prvky_cesty(const std::vector<std::int16_t>& cisla,
                                           const std::vector<std::uint8_t>& druhy = {},
                                           const std::vector<std::uint8_t>& polohy = {}) {
    std::vector<PrvekCesty> prvky;
    for (std::size_t k = 0; k < cisla.size(); ++k)
        prvky.push_back({cisla[k], k < druhy.size() ? druhy[k] : std::uint8_t{0},
                         k < polohy.size() ? polohy[k] : std::uint8_t{0}});
    return prvky;
}

inline std::vector<std::int16_t> cisla_prvku(const std::vector<PrvekCesty>& prvky) {
    std::vector<std::int16_t> cisla;
    for (const PrvekCesty& p : prvky)
        cisla.push_back(p.prvek);
    return cisla;
}
inline std::vector<std::uint8_t> druhy_prvku(const std::vector<PrvekCesty>& prvky) {
    std::vector<std::uint8_t> druhy;
    for (const PrvekCesty& p : prvky)
        druhy.push_back(p.druh);
    return druhy;
}
inline std::vector<std::uint8_t> polohy_prvku(const std::vector<PrvekCesty>& prvky) {
    std::vector<std::uint8_t> polohy;
    for (const PrvekCesty& p : prvky)
        polohy.push_back(p.poloha);
    return polohy;
}
