// uzel/prejezdy.h - the level crossings of the junction: two in stations, tied to routes, and those of the
// lines.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/trate.h"
#include "zaklad/text.h"

#include <array>
#include <cstddef>
#include <span>

namespace uzel {

// --- the two station crossings

// Tracks around them. A route that runs over the road holds exactly one track that closes it and exactly one
// that opens it again, which may be the same; a route that does not, none of either.
inline constexpr std::array kZaviraHrabov = {107, 108, 427};
inline constexpr std::array kOtviraHrabov = {4, 100, 106, 427, 543, 544};
inline constexpr std::array kPresMokrinu = {279, 280};
// Further tracks from which a route over the road may go on, beside those of the station.
inline constexpr std::array kPredHrabovem = {97, 650, 652};
inline constexpr std::array kPredMokrinou = {666, 668};

struct PrejezdStanice {
    TextPohled kilometr; // its name on the desk
    TextPohled stitek;   // on the supervision screen: another office has measured it, ten metres off
    std::span<const int> zavira, otvira;
    int stanice_od, stanice_po; // tracks of the station at the road
    std::span<const int> pred;  // and others from which a route may run over it
};
// The row's place is the number of the crossing in routes, lamps and saves.
inline constexpr std::array<PrejezdStanice, 2> kPrejezdyStanic = {{
    {"140,310", "TVH 140,310", kZaviraHrabov, kOtviraHrabov, 9, 17, kPredHrabovem},
    {"5,910", "TMK 5,911", kPresMokrinu, kPresMokrinu, 36, 40, kPredMokrinou},
}};

constexpr bool je_mezi(std::span<const int> koleje, int n) {
    for (const int kolej : koleje)
        if (kolej == n)
            return true;
    return false;
}
// Crossing that a route over the track closes; -1 none.
constexpr int prejezd_nad(int kolej) {
    for (std::size_t k = 0; k < kPrejezdyStanic.size(); ++k)
        if (je_mezi(kPrejezdyStanic[k].zavira, kolej))
            return static_cast<int>(k);
    return -1;
}
// Crossing that a tail has left with the track; -1 none.
constexpr int prejezd_za(int kolej) {
    for (std::size_t k = 0; k < kPrejezdyStanic.size(); ++k)
        if (je_mezi(kPrejezdyStanic[k].otvira, kolej))
            return static_cast<int>(k);
    return -1;
}
// Crossing that may lie before a train that comes to the track as its end; -1 none.
constexpr int prejezd_pred(int kolej) {
    for (std::size_t k = 0; k < kPrejezdyStanic.size(); ++k) {
        const PrejezdStanice& p = kPrejezdyStanic[k];
        if ((kolej >= p.stanice_od && kolej <= p.stanice_po) || je_mezi(p.pred, kolej))
            return static_cast<int>(k);
    }
    return -1;
}

// --- crossings of the lines; their places are in the crossing file

// Tracks that carry one: a train inside tells it to them at every step.
inline constexpr std::array kKolejeSPrejezdem = {kTratDubnice[0], kTratDubnice[1], 213, 600, 602, 654, 656};

// Crossings that a possession of their section closes for good.
struct PrejezdVyluky {
    int usek;
    std::size_t prejezd; // record of the crossing file
};
inline constexpr std::array<PrejezdVyluky, 2> kPrejezdyVyluky = {{{602, 9}, {600, 10}}};
// The crossing on the section; `jinak` for others.
constexpr std::size_t prejezd_vyluky(int usek, std::size_t jinak) {
    for (const PrejezdVyluky& p : kPrejezdyVyluky)
        if (p.usek == usek)
            return p.prejezd;
    return jinak;
}

// Crossings behind one number of the desk. The number is that of its label (lblPrejezdy) and of the lamp of a
// possession (shpPrejezdy); the lamp of its approach zone has one higher by ten.
struct SkupinaPrejezdu {
    int napis;
    std::array<int, 3> prejezdy; // records of the crossing file; kZadny: none
    bool vyluka;                 // its lamp shows a possession
};
inline constexpr std::array<SkupinaPrejezdu, 7> kSkupinyPrejezdu = {{
    {0, {0, 2, 4}, false},
    {1, {1, 3, 5}, false},
    {2, {6, kZadny, kZadny}, true},
    {3, {7, kZadny, kZadny}, true},
    {4, {8, kZadny, kZadny}, true},
    {6, {9, kZadny, kZadny}, true},
    {7, {10, kZadny, kZadny}, true},
}};
inline constexpr int kLampyPrejezdu = 10; // from the number to the lamp of the approach zone

} // namespace uzel
