// uzel/vstupy.h - where trains of the junction come in: announced stations, yards, depots, the post.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/dopravny.h"

#include <array>

namespace uzel {

// Stations at which a train is announced some minutes before it may go: the track that it appears on. A train
// that another one overtakes there, and one that works at stations, have a track of their own where that is
// free; otherwise the first free one of the list.
struct StaniceOhlaseni {
    int kod;
    bool predjizdi;            // a late train may be put on the overtaking track
    int predjizdna;            // that track
    int manipulacni;           // track of category Mn
    std::array<int, 5> koleje; // the others in order; 0 none
    bool smer;
};
inline constexpr std::array kOhlasovane = {
    StaniceOhlaseni{dopravna::rokytno, true, 69, 66, {68, 67, 69, 66, 0}, false},
    StaniceOhlaseni{dopravna::lhotin, true, 86, 89, {87, 88, 86, 89, 90}, true},
    StaniceOhlaseni{dopravna::borovec, true, 65, 62, {63, 64, 65, 62, 0}, false},
    StaniceOhlaseni{dopravna::dubnice, false, 0, 43, {42, 41, 43, 0, 0}, false},
};

// Yards and the depot's west gate, whose trains simply appear in their minute, on the first free track.
// Trains of the east gate (dkv_2) never do: their rows stand in the timetable for the sake of their vehicles.
struct VstupZeStanice {
    int stanice;
    std::array<int, 2> koleje; // the second one 0: none
    bool smer;
    bool cil_volny; // only while no route leads to the first track
};
inline constexpr std::array kVstupy = {
    VstupZeStanice{dopravna::dkv, {112, 0}, false, true},
    VstupZeStanice{dopravna::hajovice_sn, {55, 56}, false, false},
    VstupZeStanice{dopravna::hajovice_sn_2, {91, 92}, true, false},
};

// --- gates of the depots, where a locomotive comes out when the operator calls for one

// A gate of the main depot: the name in the picture (popis_stanice) that opens the menu, and the track.
struct Brana {
    int popis;
    int kolej;
    bool smer; // in which the locomotive comes out
};
inline constexpr Brana kBranaZapad = {dopravna::dkv, 112, false};
inline constexpr Brana kBranaVychod = {dopravna::dkv_2, 119, true};
// The same of the depot at Vrbice's side of the main station; trains of its rows come out there, too.
inline constexpr Brana kBranaVh = {dopravna::dkv_vh, 25, true};

// --- the stabling yard left of the main station

// Sets come out of it at two tracks; at `A` those that end at the listed stations. Locomotives stand by turns
// at the two; the one that has gone in by the track at side A comes out at that side next.
inline constexpr int kPristaveniA = 569, kPristaveniB = 538;
inline constexpr std::array kCilePristaveniA = {dopravna::polska_lhota, dopravna::hvozdy, dopravna::lhotin};
inline constexpr int kOdstaveniA = 557;
// Tracks where locomotives wait for their next train, in the order in which they are filled; the first
// standby locomotive of a new simulation stands on one of them.
inline constexpr std::array kOdstavneKoleje = {558, 559, 560, 503, 509, 510};
inline constexpr int kZalohaPriStartu = 509;

} // namespace uzel
