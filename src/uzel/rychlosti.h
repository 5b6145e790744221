// uzel/rychlosti.h - line speeds of the junction: where they change, and with which a train begins.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/dopravny.h"

#include <array>
#include <cstdint>

namespace uzel {

// Tracks that set the line speed when a head enters them, by the sense of travel. A track may stand in both
// tables, in each once; km/h. Other tracks leave the speed as it is.
struct RychlostPrvku {
    std::int16_t prvek;
    std::uint8_t rychlost;
};
inline constexpr RychlostPrvku kRychlostiVpravo[] = {
    {135, 40}, {136, 40},  {140, 40},  {141, 40},  {145, 40},  {552, 40},  {131, 60}, {132, 60},
    {133, 60}, {197, 60},  {198, 60},  {311, 60},  {312, 60},  {84, 65},   {85, 65},  {118, 70},
    {306, 70}, {296, 75},  {298, 75},  {295, 80},  {300, 80},  {413, 80},  {414, 80}, {531, 85},
    {532, 85}, {600, 100}, {602, 100}, {720, 100}, {722, 100}, {774, 100}, {776, 100}};
inline constexpr RychlostPrvku kRychlostiVlevo[] = {
    {531, 40}, {532, 40}, {135, 60},  {136, 60},  {141, 60},  {145, 60}, {295, 60}, {300, 60},
    {311, 60}, {312, 60}, {84, 65},   {85, 65},   {413, 65},  {414, 65}, {118, 70}, {306, 70},
    {117, 75}, {978, 75}, {980, 75},  {270, 80},  {271, 80},  {418, 80}, {419, 80}, {686, 80},
    {720, 80}, {722, 80}, {738, 80},  {323, 85},  {326, 85},  {774, 90}, {776, 90}, {19, 100},
    {20, 100}, {21, 100}, {107, 100}, {108, 100}, {234, 100}, {235, 100}};

// The two tables by element, 0 where the speed stays.
using RychlostiPodlePrvku = std::array<std::uint8_t, kNejvyssiPrvek + 1>;
template <std::size_t N> constexpr RychlostiPodlePrvku podle_prvku(const RychlostPrvku (&tabulka)[N]) {
    RychlostiPodlePrvku rychlosti{};
    for (const RychlostPrvku& r : tabulka)
        rychlosti[static_cast<std::size_t>(r.prvek)] = r.rychlost;
    return rychlosti;
}
inline constexpr std::array<RychlostiPodlePrvku, 2> kRychlosti = {podle_prvku(kRychlostiVlevo),
                                                                  podle_prvku(kRychlostiVpravo)};
// Line speed that a head takes up on the element, in that sense; 0: it keeps its own.
constexpr int rychlost_prvku(int prvek, bool smer) {
    return prvek >= 0 && prvek <= kNejvyssiPrvek ? kRychlosti[smer ? 1 : 0][static_cast<std::size_t>(prvek)]
                                                 : 0;
}

// Line speed of a train that is made at a station, km/h. `strop`: where the train's own speed is lower, that
// one. Elsewhere it begins with kRychlostJinde.
struct PrvniRychlost {
    int stanice;
    std::uint8_t rychlost;
    bool strop = false;
};
inline constexpr std::array kPrvniRychlosti = {
    PrvniRychlost{dopravna::lhotin, 100, true},
    PrvniRychlost{dopravna::rokytno, 100, true},
    PrvniRychlost{dopravna::borovec, 70},
    PrvniRychlost{dopravna::vrbice, 70},
    PrvniRychlost{dopravna::kamenec, 70},
    PrvniRychlost{dopravna::mokrina, 70},
    PrvniRychlost{dopravna::hajovice, 70},
    PrvniRychlost{dopravna::tesk, 40},
    PrvniRychlost{dopravna::pvs, 40},
    PrvniRychlost{dopravna::ona, 40},
    PrvniRychlost{dopravna::onb, 40},
    PrvniRychlost{dopravna::knizeci_luka, 100},
    PrvniRychlost{dopravna::polska_lhota, 65, true},
    PrvniRychlost{dopravna::hvozdy, 65, true},
    PrvniRychlost{dopravna::hajovice_sn, 60},
    PrvniRychlost{dopravna::hajovice_sn_2, 60},
    PrvniRychlost{dopravna::dkv, 60},
    PrvniRychlost{dopravna::dkv_2, 60},
};
inline constexpr std::uint8_t kRychlostJinde = 80;

} // namespace uzel
