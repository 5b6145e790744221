// testy/pomocne/jizdni_rad.h - rows of the timetable as tests lay and change them.
#pragma once

#include "gvd/gvd.h"

#include <cstddef>
#include <utility>
#include <vector>

inline std::vector<GvdVlak> radky_gvd() {
    return {gvd_vlaky.begin(), gvd_vlaky.end()};
}

// The row comes behind the others.
inline void pridej_radek_gvd(GvdVlak r) {
    std::vector<GvdVlak> radky = radky_gvd();
    radky.push_back(std::move(r));
    gvd_vlaky = TabulkaGvd(std::move(radky));
}

// The row i as `zmena` leaves it.
template <class Zmena> void zmen_radek_gvd(std::size_t i, Zmena zmena) {
    std::vector<GvdVlak> radky = radky_gvd();
    zmena(radky.at(i));
    gvd_vlaky = TabulkaGvd(std::move(radky));
}
