// uzel/volba.h - how routes of the junction are picked: ends in two stages, signals that always begin a route
// of their own, through routes of the posts.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/trate.h"

#include <array>

namespace uzel {

// A click on a second signal, while one is picked, ends the route at the one and begins the next there. At
// these places of Mokřina and the main station the signal `s`, picked after `po`, begins a route of its own.
struct VyjimkaRetezeni {
    int s, po;
};
inline constexpr std::array<VyjimkaRetezeni, 6> kVyjimkyRetezeni = {
    {{316, 113}, {315, 114}, {314, 618}, {313, 618}, {314, 616}, {313, 616}}};

// Track at which a route ends when the main signal s is its end; kZadny: the signal ends none.
constexpr int konec_u_navestidla(int s) {
    if (s < kDruhyStitek)
        return s;
    if (s < kPrvniOdstavna)
        return s - kDruhyStitek;
    if (s < kPrvniTrat)
        return kZadny;
    return s == kNavestidloZaKoleji ? kKolejStopuPredTrati : s - s % 2;
}
// The same of a shunt signal.
constexpr int konec_u_ser(int s) {
    return s > kPosledniTrat + 1 ? s - kDruhyStitek : s > kPrvniOdstavna ? s : kZadny;
}
// Element at which a route ends that is picked by a click on the label or target e.
constexpr int konec_u_stitku(int e) {
    if (e >= kDruhyStitek && e < 2 * kDruhyStitek)
        return e - kDruhyStitek;
    if (e == kPosunoveKamence)
        return kKamenec;
    return e > kPrvniTrat && e % 2 == 1 ? e - 1 : e;
}

// One click that runs over a short connecting section: two routes, one to `pres`, one from `dal`. A row is
// known by its start and end; both routes stand in the tables.
struct DvojityKonec {
    int konec, zacatek;
    int pres; // the first route ends here
    int dal;  // the second one starts here
    int jiny; // its end when the tables hold no route to `konec` itself
};
inline constexpr std::array<DvojityKonec, 17> kDvojiteKonce = {{{604, 284, 2, 202, 604},
                                                                {606, 285, 3, 203, 606},
                                                                {84, 604, 2, 2, 84},
                                                                {85, 606, 3, 3, 85},
                                                                {20, 601, 12, 212, 20},
                                                                {19, 603, 11, 211, 19},
                                                                {21, 297, 10, 210, 21},
                                                                {600, 20, 12, 12, 600},
                                                                {602, 19, 11, 11, 602},
                                                                {624, 621, 73, 273, 624},
                                                                {626, 623, 72, 272, 626},
                                                                {620, 624, 73, 73, 20},
                                                                {622, 626, 72, 72, 19},
                                                                {120, 619, 37, 237, 120},
                                                                {123, 617, 36, 236, 123},
                                                                {618, 120, 37, 37, 618},
                                                                {616, 123, 36, 36, 616}}};
// Signal from which such a click made a route from `dal` to `konec` its second one; kZadny when none does.
constexpr int zacatek_dvojite_volby(int dal, int konec) {
    for (const DvojityKonec& d : kDvojiteKonce)
        if (d.dal == dal && (d.konec == konec || d.jiny == konec))
            return d.zacatek;
    return kZadny;
}

// Through routes of a station that the post of its dispatcher sets all at once (AH): the post has the code of
// the station, each row a route of the train table.
struct PrujezdnaCesta {
    int post;
    int zacatek, konec;
};
inline constexpr std::array<PrujezdnaCesta, 16> kPrujezdneCesty = {{
    {dopravna::lhotin, 287, 600},
    {dopravna::lhotin, 602, 88},
    {dopravna::borovec, 629, 64},
    {dopravna::borovec, 63, 630},
    {dopravna::dubnice, 323, 41},
    {dopravna::dubnice, 42, 120},
    {dopravna::rokytno, 625, 67},
    {dopravna::rokytno, 68, 626},
    {dopravna::mokrina, 617, 36},
    {dopravna::mokrina, 236, 123},
    {dopravna::mokrina, 120, 37},
    {dopravna::mokrina, 37, 618},
    {dopravna::knizeci_luka, 621, 73},
    {dopravna::knizeci_luka, 273, 624},
    {dopravna::knizeci_luka, 626, 72},
    {dopravna::knizeci_luka, 72, 622},
}};

} // namespace uzel
