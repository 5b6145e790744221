// cesty/cesta.h - the record of a route, and the table of routes in index order: the stack.
//
// A route is queued, being set, standing, or run over. `cesty` is never empty: without any route it
// holds one record whose zacatek is below 0. An index changes whenever an earlier route goes, so no
// other table keeps one across a tick. -3 means none in every field.
#pragma once

#include "relief/prvek.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Kinds of the entries of a route.
namespace druh_prvku {
inline constexpr std::uint8_t kolej = 1;
inline constexpr std::uint8_t vyhybka = 2;
inline constexpr std::uint8_t vykolejka = 4;
} // namespace druh_prvku

struct Cesta {
    std::int16_t zacatek = -3;           // start signal; below 0: empty record
    std::int16_t konec = -3;             // end element
    std::vector<std::int16_t> prvky{-3}; // elements in running order; entry 0 is the track before the signal
    std::vector<std::uint8_t> druhy{0};  // kind of each entry
    std::vector<std::uint8_t> polohy{0}; // demanded position of a switch; 2 on a track: labelled at release
    std::int32_t Kdy_prehoz = -3;        // second after which the switches count as thrown
    std::uint8_t rychlost = 0;           // speed class: 0 free, 1, 2, 3 = 40, 60, 80 km/h
    bool VC = false;                     // train or calling-on route; else a shunt route
    bool PN = false;                     // calling-on route
    std::int32_t PN_do = -3;             // second at which the calling-on aspect ends
    bool PN_zaver = false;               // the calling-on locking was released by hand
    std::int32_t cas_stavby = -3;        // second from which the route machine may work
    bool prehozena = false;              // the switches have been commanded
    bool Postavena = false;              // stands with the signal cleared
    bool Provedena = false;              // has reached the end of setting
    std::int32_t cas_ruseni = -3;        // second at which the cancellation takes effect
    std::int32_t barva_cisla = 0;        // background of the end's label before the highlight
    std::int16_t Vlak = -3;     // train that has taken it; -4 waiting automatic copy; -10 to be removed
    std::uint8_t Umazat = 0;    // index of the element that the head has reached; 0: no train yet
    std::int16_t vyhybka = 0;   // switch whose clearing ends the route's speed limit
    std::int16_t varovani = 0;  // a warning is pending, the machine must not touch the route
    std::int16_t rezerva = 0;   // written as 0
    std::uint8_t prejezd = 0;   // station crossing on the route; 255 none
    bool prejezd_zaver = false; // the crossing needs its closing time
    std::int16_t ZT = 0;        // line of the table record; 999 made by a train from the line

    bool operator==(const Cesta&) const = default;
};

// Index of the last entry.
inline std::size_t posledni_index(const Cesta& c) {
    return c.prvky.empty() ? 0 : c.prvky.size() - 1;
}
inline int prvni_prvek(const Cesta& c) {
    return c.prvky.empty() ? -3 : c.prvky.front();
}
inline int posledni_prvek(const Cesta& c) {
    return c.prvky.empty() ? -3 : c.prvky.back();
}
// Kind and position of entry k; behind the end there is nothing: 0.
inline std::uint8_t druh_na(const Cesta& c, std::size_t k) {
    return k < c.druhy.size() ? c.druhy[k] : std::uint8_t{0};
}
inline std::uint8_t poloha_na(const Cesta& c, std::size_t k) {
    return k < c.polohy.size() ? c.polohy[k] : std::uint8_t{0};
}

inline constexpr std::uint8_t kBezPrejezdu = 255;
inline constexpr std::int16_t kZTprogramu = 999;
inline constexpr std::int16_t kKopieAB = -4;
inline constexpr std::int16_t kKOdstraneni = -10;

extern std::vector<Cesta> cesty;

// Record c of the table. An index that is none is the run-time error 9.
inline Cesta& cesta_c(int c) {
    return cesty.at(static_cast<std::size_t>(c));
}
