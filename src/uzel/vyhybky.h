// uzel/vyhybky.h - switches and crossings of the junction that are more than a switch: with a derailer, with
// a track that follows them, without flank protection.
#pragma once

#include "uzel/cislovani.h"

#include <array>

namespace uzel {

// Track that is nothing but the leg of a switch: while the switch lies in that position, the track takes its
// colour.
inline constexpr int kVyhybkaSKoleji = 14, kPolohaSKoleji = 8, kKolejVyhybky = 4;

// Derailers go with a switch. The first stands on the track while its switch lies in one position only; of
// the other two, one of which is always on the track, two switches throw the one that is not needed. The
// positions are those of the switch picture.
inline constexpr int kVykolejka0 = 0, kVykolejka1 = 1, kVykolejka2 = 2;
inline constexpr int kVyhybkaVykolejky0 = 202, kPolohaNaKoleji0 = 24;
inline constexpr int kVyhybkaVykolejek = 190, kPolohaBezVykolejek = 6;     // in that position they stay
inline constexpr int kDruhaVyhybkaVykolejek = 206, kPolohaVykolejky2 = 14; // in that one the second is thrown

// Switches whose run over the next row needs no flank protection. Elsewhere the switch at the fourth corner
// of two that follow one another protects them; its number is near that of the first.
constexpr bool bez_bocni_ochrany(int vyhybka) {
    return vyhybka >= 53 && vyhybka <= 55;
}
inline constexpr int kDosahBocni = 3;

// Tracks that cross on the level without a switch: the one is free only while the other is. No route holds
// both of a row.
struct Krizeni {
    int a, b;
};
inline constexpr std::array<Krizeni, 4> kKrizeni = {{{309, 328}, {177, 178}, {316, 369}, {106, 543}}};

} // namespace uzel
