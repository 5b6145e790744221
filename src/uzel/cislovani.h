// uzel/cislovani.h - how the elements of the junction are numbered: what a number tells of its element.
//
// This room holds what is particular to Tesk, as constants that need nothing of the program but zaklad. The
// rest of the core knows the rules of a railway; which tracks, signals and switches of this one they single
// out stands here, each table with what it is on the railway and what a valid row is. The compiler of the
// layout reads the same tables. Elsewhere in the core no element is called by its number.
//
// A number tells nothing without its kind: 212 is a track, a label and a signal, in three places.
//
//   number       track              main signal                        label
//   below 200    station tracks     looks left, on track n             the first one of track n
//   200 to 399   further pieces     looks right, on track n - 200      the second one of track n - 200
//   400 to 499   further pieces     none                               none
//   500 to 599   sidings, edges     (shunt signal) looks left          names at the edge of the area
//   600 to 649   a line: its first  even: at its left end; odd, by     the first one of the line
//                (leftmost) section one higher: at its right end
//   650 and on   its further ones,  (shunt signal, from 700) looks     the further ones of the line
//                every 50 numbers   right, on track n - 200
#pragma once

#include "zaklad/cisla.h"

inline constexpr int kNejvyssiPrvek = 999; // element numbers are 0 to 999
inline constexpr int kDruhyStitek = 200;   // from a track to its second label and to its signal at that end
inline constexpr int kPrvniOdstavna = 500; // sidings and edges; labels from here on show no trains in lists
inline constexpr int kPrvniTrat = 600;     // sections of the lines are numbered from here on,
inline constexpr int kKrokTrati = 50;      // those of one line every 50 numbers
inline constexpr int kPosledniTrat = 698;  // the highest even number below those of the shunt signals

namespace uzel {

// Signals off the rule of their numbers. 511 stands on a track of the main station between the throats; 513
// and 998 at the second drawing of the single track over Kamenec, one for shunting and one for trains.
inline constexpr int kPosunoveNaKoleji = 511, kKolejPosunoveho = 135;
inline constexpr int kPosunoveKamence = 513;
inline constexpr int kObrazKamence = 998; // a main signal and a label, above all shunt signals

// Tracks of the line ends that a train from a neighbour with consent comes in on first (see trate.h). Their
// labels stand for themselves and are no second labels of 12, 13 and 19.
inline constexpr std::array kVstupyZTrati = {212, 213, 219};

} // namespace uzel

// The number n is one of a section of a line.
constexpr bool je_usek_trati(int n) {
    return n >= kPrvniTrat;
}
// First number of the line of section n.
constexpr int zaklad_trati(int n) {
    return kPrvniTrat + n % kKrokTrati;
}
// The element n is one of the three line ends where trains come in from a neighbour with consent.
constexpr bool je_vstup_z_trati(int n) {
    return je_v(n, uzel::kVstupyZTrati);
}
// The label n can be no first label of a station track: it is the second one of track n - 200, at its right
// end.
constexpr bool je_pravy_stitek(int n) {
    return n >= kDruhyStitek && n < 2 * kDruhyStitek && !je_vstup_z_trati(n);
}
// The track n has room for a second label, at its right end: n + 200.
constexpr bool muze_mit_pravy_stitek(int n) {
    return n < kDruhyStitek && !je_vstup_z_trati(n + kDruhyStitek);
}
// The track or label n is a siding, or lies at the edge of the area.
constexpr bool je_odstavna(int n) {
    return n >= kPrvniOdstavna && n < kPrvniTrat;
}

// Track of the signal x.
constexpr int kolej_navestidla(int x) {
    if (x == uzel::kPosunoveNaKoleji)
        return uzel::kKolejPosunoveho;
    if (x < kDruhyStitek)
        return x;
    if (x < kPrvniTrat)
        return x - kDruhyStitek;
    if (x <= kPosledniTrat + 1 || x == uzel::kObrazKamence)
        return x - x % 2; // each pair of section signals shares the even-numbered section
    return x - kDruhyStitek;
}
// The signal n is kept in navestidlo_ser (500 to 599, and 700 and above but for 998).
constexpr bool je_na_ser(int n) {
    return je_odstavna(n) || (n > kPosledniTrat + 1 && n != uzel::kObrazKamence);
}
// Shunt-only signal by the rule of the route tables. The number 500 is none here although it would be kept in
// navestidlo_ser; no layout uses it.
constexpr bool je_seriovy(int n) {
    return je_na_ser(n) && n != kPrvniOdstavna;
}
