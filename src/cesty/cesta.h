// cesty/cesta.h - the record of a route, and the table of routes in index order: the stack.
//
// A route is queued, being set, standing, or run over. `cesty` is never empty: without any route it
// holds one record whose zacatek is below 0. An index changes whenever an earlier route goes, so no
// other table keeps one across a tick. kZadny means none in every field.
#pragma once

#include "cesty/prvek_cesty.h"
#include "relief/prvek.h"
#include "zaklad/cisla.h"

#include <cstddef>
#include <cstdint>
#include <vector>

struct Cesta {
    std::int16_t zacatek = kZadny;     // start signal; below 0: empty record
    std::int16_t konec = kZadny;       // end element
    std::vector<PrvekCesty> prvky{{}}; // in running order; entry 0 is the track before the signal
    std::int32_t Kdy_prehoz = kZadny;  // second after which the switches count as thrown
    std::uint8_t rychlost = 0;         // speed class: 0 free, 1, 2, 3 = 40, 60, 80 km/h
    bool VC = false;                   // train or calling-on route; else a shunt route
    bool PN = false;                   // calling-on route
    std::int32_t PN_do = kZadny;       // second at which the calling-on aspect ends
    bool PN_zaver = false;             // the calling-on locking was released by hand
    std::int32_t cas_stavby = kZadny;  // second from which the route machine may work
    bool prehozena = false;            // the switches have been commanded
    bool Postavena = false;            // stands with the signal cleared
    bool Provedena = false;            // has reached the end of setting
    std::int32_t cas_ruseni = kZadny;  // second at which the cancellation takes effect
    std::int32_t barva_cisla = 0;      // background of the end's label before the highlight
    std::int16_t Vlak = kZadny; // train that has taken it; -4 waiting automatic copy; -10 to be removed
    std::uint8_t Umazat = 0;    // index of the element that the head has reached; 0: no train yet
    std::int16_t vyhybka = 0;   // switch whose clearing ends the route's speed limit
    std::int16_t varovani = 0;  // a warning is pending, the machine must not touch the route
    std::int16_t rezerva = 0;   // written as 0
    std::uint8_t prejezd = 0;   // station crossing on the route; 255 none
    bool prejezd_zaver = false; // the crossing needs its closing time
    std::int16_t ZT = 0;        // line of the table record; 999 made by a train from the line

    bool operator==(const Cesta&) const = default;
};

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<Cesta> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("zacatek", z.zacatek);
    a.pole("konec", z.konec);
    popis_prvku(a, z.prvky, "prvky", "druhy", "polohy");
    a.pole("Kdy_prehoz", z.Kdy_prehoz);
    a.pole("rychlost", z.rychlost);
    a.pole("VC", z.VC);
    a.pole("PN", z.PN);
    a.pole("PN_do", z.PN_do);
    a.pole("PN_zaver", z.PN_zaver);
    a.pole("cas_stavby", z.cas_stavby);
    a.pole("prehozena", z.prehozena);
    a.pole("Postavena", z.Postavena);
    a.pole("Provedena", z.Provedena);
    a.pole("cas_ruseni", z.cas_ruseni);
    a.barva("barva_cisla", z.barva_cisla);
    a.pole("Vlak", z.Vlak);
    a.pole("Umazat", z.Umazat);
    a.pole("vyhybka", z.vyhybka);
    a.pole("varovani", z.varovani);
    a.rezerva("rezerva", z.rezerva);
    a.pole("prejezd", z.prejezd);
    a.pole("prejezd_zaver", z.prejezd_zaver);
    a.pole("ZT", z.ZT);
}

// Index of the last entry.
inline std::size_t posledni_index(const Cesta& c) {
    return c.prvky.empty() ? 0 : c.prvky.size() - 1;
}
inline int prvni_prvek(const Cesta& c) {
    return c.prvky.empty() ? kZadny : c.prvky.front().prvek;
}
inline int posledni_prvek(const Cesta& c) {
    return c.prvky.empty() ? kZadny : c.prvky.back().prvek;
}
// Kind and position of entry k; behind the end there is nothing: 0.
inline std::uint8_t druh_na(const Cesta& c, std::size_t k) {
    return k < c.prvky.size() ? c.prvky[k].druh : std::uint8_t{0};
}
inline std::uint8_t poloha_na(const Cesta& c, std::size_t k) {
    return k < c.prvky.size() ? c.prvky[k].poloha : std::uint8_t{0};
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
