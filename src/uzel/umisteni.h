// uzel/umisteni.h - where the start of the traffic puts a train that is on its way in the junction.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "zaklad/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace uzel {

// A few station codes.
struct SeznamStanic {
    std::array<int, 7> kody{};
    std::size_t pocet = 0;
    constexpr SeznamStanic() = default;
    constexpr SeznamStanic(std::initializer_list<int> seznam) {
        for (const int kod : seznam)
            kody[pocet++] = kod;
    }
    constexpr bool ma(int kod) const {
        for (std::size_t i = 0; i < pocet; ++i)
            if (kody[i] == kod)
                return true;
        return false;
    }
};

// The sense of a train that stands at a station: `obvykly`, unless its next stop is one of the list, which
// gives the other one. Where a station is missing the sense is to the left. Vyšní Hrabov faces the wrong way,
// unless the train is bound for the main station or the lower one: a train with a cab or a locomotive at both
// ends turns for its first route, and the others are for the operator to turn.
struct SmerVeStanici {
    int stanice;
    bool obvykly;
    SeznamStanic opacny;
};
inline constexpr std::array kSmeryVeStanici = {
    SmerVeStanici{dopravna::lhotin, false, {dopravna::vysni_hrabov}},
    SmerVeStanici{
        dopravna::javorin, false, {dopravna::javorin_dolni, dopravna::vysni_hrabov, dopravna::podoli}},
    SmerVeStanici{dopravna::rybnice,
                  false,
                  {dopravna::hajovice, dopravna::hajovice_sn, dopravna::jivova, dopravna::javorna,
                   dopravna::dkv, dopravna::borovec, dopravna::knizeci_luka}},
    SmerVeStanici{dopravna::vysni_hrabov,
                  false,
                  {dopravna::javorin, dopravna::zadna, dopravna::podoli, dopravna::lhotin,
                   dopravna::javorin_dolni, dopravna::hvozdy}},
    SmerVeStanici{dopravna::tesk, false, {dopravna::rybnice}},
    SmerVeStanici{dopravna::kamenec, true, {}},
    SmerVeStanici{dopravna::mokrina, false, {dopravna::dubnice}},
    SmerVeStanici{dopravna::hajovice, false, {dopravna::borovec, dopravna::knizeci_luka}},
    SmerVeStanici{dopravna::knizeci_luka, false, {dopravna::zlata, dopravna::rokytno, dopravna::olsany}},
    SmerVeStanici{dopravna::olsany, false, {dopravna::rokytno, dopravna::zlata}},
    SmerVeStanici{dopravna::dolni, false, {dopravna::rybnice}},
    SmerVeStanici{dopravna::zlata, false, {dopravna::rokytno}},
    SmerVeStanici{dopravna::jivova, false, {dopravna::borovec, dopravna::javorna}},
    SmerVeStanici{dopravna::javorna, false, {dopravna::borovec}},
    SmerVeStanici{dopravna::podoli, true, {dopravna::javorin_dolni, dopravna::javorin}},
    SmerVeStanici{dopravna::javorin_dolni, true, {dopravna::javorin}},
    SmerVeStanici{dopravna::lipina, false, {dopravna::knizeci_luka}},
};

// Tracks that come into question for a train at a station, in their order. The first row of the station whose
// conditions hold counts; where none does the train is not put down.
enum class ProVlaky : std::uint8_t { vsechny, osobni, nakladni, mn, mn_a_lokomotivni };
enum class ProSmer : std::uint8_t { oba, vpravo, vlevo };
struct KolejeUmisteni {
    int stanice;
    std::array<int, 5> koleje; // 0 none
    ProVlaky vlaky = ProVlaky::vsechny;
    ProSmer smer = ProSmer::oba;
    SeznamStanic sousedni{};         // the stop before or the next one is one of these; empty: any
    int dalsi = dopravna::zadna;     // the next stop is this one; zadna: any
    bool na_trati = false;           // runs on over the line, by the row of kCestyNaTrati
    bool predchozi_zastavka = false; // counted as not yet at this stop
};
inline constexpr std::array kKolejeUmisteni = {
    KolejeUmisteni{.stanice = dopravna::lhotin, .koleje = {86}},
    KolejeUmisteni{.stanice = dopravna::javorin, .koleje = {1}, .vlaky = ProVlaky::nakladni},
    KolejeUmisteni{.stanice = dopravna::javorin, .koleje = {2}, .sousedni = {dopravna::polska_lhota}},
    KolejeUmisteni{.stanice = dopravna::javorin, .koleje = {3}, .sousedni = {dopravna::hvozdy}},
    KolejeUmisteni{.stanice = dopravna::rybnice,
                   .koleje = {kKolejStopuPredTrati},
                   .smer = ProSmer::vpravo,
                   .sousedni = {dopravna::knizeci_luka},
                   .na_trati = true},
    KolejeUmisteni{.stanice = dopravna::rybnice,
                   .koleje = {93},
                   .smer = ProSmer::vlevo,
                   .sousedni = {dopravna::knizeci_luka},
                   .predchozi_zastavka = true},
    KolejeUmisteni{.stanice = dopravna::rybnice,
                   .koleje = {kT2},
                   .smer = ProSmer::vpravo,
                   .sousedni = {dopravna::jivova, dopravna::borovec},
                   .na_trati = true},
    KolejeUmisteni{.stanice = dopravna::rybnice,
                   .koleje = {94},
                   .smer = ProSmer::vlevo,
                   .sousedni = {dopravna::jivova, dopravna::borovec},
                   .predchozi_zastavka = true},
    KolejeUmisteni{.stanice = dopravna::rybnice,
                   .koleje = {44, 45},
                   .sousedni = {dopravna::hajovice_sn, dopravna::hajovice}},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov,
                   .koleje = {10, 9, 11},
                   .vlaky = ProVlaky::osobni,
                   .sousedni = {dopravna::javorin, dopravna::podoli, dopravna::javorin_dolni}},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov,
                   .koleje = {12},
                   .vlaky = ProVlaky::osobni,
                   .smer = ProSmer::vpravo},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov, .koleje = {11}, .vlaky = ProVlaky::osobni},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov, .koleje = {18}, .sousedni = {dopravna::javorin}},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov, .koleje = {11, 10}, .sousedni = {dopravna::tesk}},
    KolejeUmisteni{.stanice = dopravna::vysni_hrabov, .koleje = {16, 17}},
    KolejeUmisteni{.stanice = dopravna::mokrina, .koleje = {38, 39}, .vlaky = ProVlaky::mn_a_lokomotivni},
    KolejeUmisteni{.stanice = dopravna::mokrina, .koleje = {36}, .smer = ProSmer::vpravo},
    KolejeUmisteni{.stanice = dopravna::mokrina, .koleje = {37, 40}},
    KolejeUmisteni{.stanice = dopravna::hajovice, .koleje = {59, 60}, .dalsi = dopravna::borovec},
    KolejeUmisteni{.stanice = dopravna::hajovice, .koleje = {50, 51, 54, 52, 53}},
    KolejeUmisteni{.stanice = dopravna::knizeci_luka, .koleje = {74}, .vlaky = ProVlaky::mn},
    KolejeUmisteni{.stanice = dopravna::knizeci_luka, .koleje = {73, 74}, .smer = ProSmer::vpravo},
    KolejeUmisteni{.stanice = dopravna::knizeci_luka, .koleje = {72, 71, 70}},
    KolejeUmisteni{.stanice = dopravna::dolni, .koleje = {82, 78}, .vlaky = ProVlaky::mn},
    KolejeUmisteni{.stanice = dopravna::dolni, .koleje = {79, 78}, .smer = ProSmer::vpravo},
    KolejeUmisteni{.stanice = dopravna::dolni, .koleje = {78, 79}},
};
// Stops on a line, one section for each sense; the train runs on by the row of kCestyNaTrati.
struct StopNaTrati {
    int stanice;
    int vpravo, vlevo;
};
inline constexpr std::array kStopyNaTrati = {
    StopNaTrati{dopravna::olsany, 674, 676}, StopNaTrati{dopravna::zlata, 824, 826},
    StopNaTrati{dopravna::jivova, 728, 730}, StopNaTrati{dopravna::javorna, 928, 930},
    StopNaTrati{dopravna::podoli, 654, 656}, StopNaTrati{dopravna::javorin_dolni, 604, 606},
    StopNaTrati{dopravna::lipina, 720, 722},
};

// Tracks of the main station, by the planned one of the timetable row: the first free of the two.
struct KolejHlavniStanice {
    TextPohled kolej;
    std::array<int, 2> prvky;
};
inline constexpr std::array kHlavniStanice = {
    KolejHlavniStanice{"1", {26, 27}},   KolejHlavniStanice{"2", {27, 28}},
    KolejHlavniStanice{"3", {28, 29}},   KolejHlavniStanice{"4", {29, 30}},
    KolejHlavniStanice{"5", {30, 31}},   KolejHlavniStanice{"6", {31, 30}},
    KolejHlavniStanice{"5k", {32, 33}},  KolejHlavniStanice{"9k", {33, 34}},
    KolejHlavniStanice{"11k", {34, 35}}, KolejHlavniStanice{"13k", {35, 35}},
};

// Sections of a line that a train placed on one of them still has before it, and the route on which it runs
// there, as if it had been picked by its signal and end. The train stands on the first one.
struct CestaNaTrati {
    std::int16_t klic, zacatek, konec;
    std::array<std::int16_t, 7> prvky; // 0 none
    std::int16_t sipka;                // arrow of the line
    bool stoupa;                       // towards larger numbers: ">>"
};
inline constexpr std::array<CestaNaTrati, 16> kCestyNaTrati = {{
    {96, 613, 96, {96, 632, 682}, 632, true},
    {604, 202, 604, {604, 654}, 604, true},
    {606, 10, 606, {606}, 606, false},
    {638, 613, 638, {638, 688, 738}, 638, true},
    {654, 202, 604, {654}, 604, true},
    {656, 10, 606, {656, 606}, 606, false},
    {674, 273, 624, {674, 724, 774, 824, 874}, 624, true},
    {676, 68, 626, {676, 626}, 626, false},
    {720, 633, 620, {720, 770}, 620, true},
    {722, 72, 622, {722, 672, 622}, 622, false},
    {728, 639, 628, {728, 778, 828, 878, 928, 978}, 628, true},
    {730, 63, 630, {730, 680, 630}, 630, false},
    {824, 273, 624, {824, 874}, 624, true},
    {826, 68, 626, {826, 776, 726, 676, 626}, 626, false},
    {928, 639, 628, {928, 978}, 628, true},
    {930, 63, 630, {930, 880, 830, 780, 730, 680, 630}, 630, false},
}};
// Places of them that end the route over which the train has come.
inline constexpr std::array kKonceCestyNaTrat = {kT2, 654, 606, kKolejStopuPredTrati};

} // namespace uzel
