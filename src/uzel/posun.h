// uzel/posun.h - where is shunted in the junction, and which locomotives stand in for others.
#pragma once

#include "uzel/dopravny.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"

#include <array>
#include <cstddef>

namespace uzel {

inline constexpr std::size_t kKolejiPosunu = 600; // tracks with a lower number only
// The neck of the main station's yard, where its movements turn or run through.
inline constexpr int kZhlaviOdstavu = 145;

// Tracks between which movements shunt, ranges with both ends, and whose hands work there: the main station
// with its yard, depot and post; the lower station with its head tracks; both parts of Hajovice with their
// gates. Lines are left to trains.
struct RozsahPosunu {
    int od, po;
    int stanice;
};
inline constexpr std::array kKolejePosunu = {
    RozsahPosunu{22, 35, dopravna::tesk},       RozsahPosunu{kZhlaviOdstavu, kZhlaviOdstavu, dopravna::tesk},
    RozsahPosunu{503, 503, dopravna::tesk},     RozsahPosunu{509, 510, dopravna::tesk},
    RozsahPosunu{538, 538, dopravna::tesk},     RozsahPosunu{557, 560, dopravna::tesk},
    RozsahPosunu{569, 569, dopravna::tesk},     RozsahPosunu{574, 574, dopravna::tesk},
    RozsahPosunu{595, 595, dopravna::tesk},     RozsahPosunu{78, 83, dopravna::dolni},
    RozsahPosunu{134, 134, dopravna::dolni},    RozsahPosunu{137, 137, dopravna::dolni},
    RozsahPosunu{536, 536, dopravna::dolni},    RozsahPosunu{47, 61, dopravna::hajovice},
    RozsahPosunu{91, 92, dopravna::hajovice},   RozsahPosunu{112, 112, dopravna::hajovice},
    RozsahPosunu{119, 119, dopravna::hajovice}, RozsahPosunu{576, 576, dopravna::hajovice}};
// Station of the hands that shunt on the track; zadna where nobody does.
constexpr int stanice_posunu(int n) {
    for (const RozsahPosunu& r : kKolejePosunu)
        if (n >= r.od && n <= r.po)
            return r.stanice;
    return dopravna::zadna;
}
constexpr bool je_kolej_posunu(int n) {
    return stanice_posunu(n) != dopravna::zadna;
}
// Eastern Hajovice, which no shunt route joins to the western part.
constexpr bool jsou_hajovice_vychod(int n) {
    return (n >= 57 && n <= 61) || n == 91 || n == 92 || n == kBranaVychod.kolej;
}
// Of these the ones on which trains run in and out: a movement turns there only for want of another place.
constexpr bool je_prujezdna_posunu(int n) {
    return (n >= 22 && n <= 24) || n == 134 || n == 137;
}

// Platform tracks of the main station in the order in which a set takes another one than planned: those from
// which trains leave both ways first; for vans of the post and sets of the branch depot the bays.
inline constexpr std::array kNastupiste = {26, 27, 28, 29, 30, 31, 32, 33, 34, 35};
inline constexpr std::array kNastupisteZprava = {32, 33, 34, 35, 26, 27, 28, 29, 30, 31};

// Sections before the main station to which the set of a through train goes for a change of locomotives at
// its right end, in the order in which they are taken: the third track to Hrabov has the fewest trains.
inline constexpr std::array kPretah = {24, 22, 23};

// Tracks on which movements leave that have nothing more to do, in the order in which they are taken: the
// yard of the main station; the depot and the marshalling yard of Hajovice, on both sides.
inline constexpr std::array kOdchodyTesk = {595, 557};
inline constexpr std::array kOdchodyZapad = {kBranaZapad.kolej, 56, 55};
inline constexpr std::array kOdchodyVychod = {kBranaVychod.kolej, 92, 91};
constexpr bool je_pristaveni(int n) {
    return n == kPristaveniA || n == kPristaveniB;
}
constexpr bool je_odstavna_kolej(int n) {
    for (const int k : kOdstavneKoleje)
        if (k == n)
            return true;
    return false;
}

// Series that need the wire. Where the one that is planned is not to be had, another of them goes, or one
// that needs none; under no wire only the others.
inline constexpr std::array kPodDratem = {162, 163, 230, 240, 242, 350, 362, 363};
constexpr bool zastoupi(int rada, int planovanou) {
    return !je_v(rada, kPodDratem) || je_v(planovanou, kPodDratem);
}

} // namespace uzel
