// cesty/prvek_cesty.h - one entry of a route, of a route table and of what a train has entered.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

// Kinds of the entries of a route.
namespace druh_prvku {
inline constexpr std::uint8_t kolej = 1;
inline constexpr std::uint8_t vyhybka = 2;
inline constexpr std::uint8_t vykolejka = 4;
} // namespace druh_prvku

struct PrvekCesty {
    std::int16_t prvek = kZadny; // element number within its kind
    std::uint8_t druh = 0;       // one of druh_prvku; 0 in an empty record
    std::uint8_t poloha = 0;     // demanded position of a switch; 2 on a track: labelled at release

    bool operator==(const PrvekCesty&) const = default;
};

// The entries as they stand in the files, as three lists of these names.
template <class A, class P>
constexpr void popis_prvku(A& a, P& prvky, std::string_view prvek, std::string_view druh,
                           std::string_view poloha) {
    a.sloupce(prvky, Sloupec{prvek, &PrvekCesty::prvek}, Sloupec{druh, &PrvekCesty::druh},
              Sloupec{poloha, &PrvekCesty::poloha});
}

// An entry of any kind has the number n.
inline bool obsahuje(const std::vector<PrvekCesty>& prvky, int n) {
    return std::any_of(prvky.begin(), prvky.end(), [n](const PrvekCesty& p) { return p.prvek == n; });
}
