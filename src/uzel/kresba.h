// uzel/kresba.h - what of the junction is drawn in an unusual way: twice, hidden, with a mark of its own.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/trate.h"

#include <array>

namespace uzel {

// Tracks drawn in more than one picture: the colour of the first one holds for all. A copy stands in no
// route; a track has at most three.
struct Zrcadlo {
    int vzor;
    std::array<int, 3> kopie; // kZadny: none
};
inline constexpr std::array<Zrcadlo, 12> kZrcadla = {{{686, {687, kZadny, kZadny}},
                                                      {738, {739, kZadny, kZadny}},
                                                      {76, {289, kZadny, kZadny}},
                                                      {77, {290, kZadny, kZadny}},
                                                      {kKamenec, {306, kZadny, kZadny}},
                                                      {576, {498, 590, kZadny}},
                                                      {97, {426, 225, 226}},
                                                      {18, {190, 189, kZadny}},
                                                      {114, {325, 585, kZadny}},
                                                      {113, {437, 584, kZadny}},
                                                      {115, {336, 320, kZadny}},
                                                      {116, {335, 554, kZadny}}}};

// A track whose blank label is not for the number of a train only, unlike those of the other tracks.
inline constexpr int kBezStitkuCisla = 116;

// Tracks below 200 that have one label only, beside those whose second one would be that of a line end.
inline constexpr std::array kBezPravehoStitku = {84, 85};

// Pieces of track that exist for the logic only.
inline constexpr std::array kSkryteKoleje = {678, 680, 450, 454};
// Tracks that leave the picture, with three dots behind their right or left end.
inline constexpr std::array kPokracujiVpravo = {574, 112};
inline constexpr std::array kPokracujiVlevo = {105, 557, 569, 119};
// The track at whose end the picture imgV1 stands.
inline constexpr int kKolejObrazkuV1 = 574;
// The line that lies over whatever else is drawn there.
inline constexpr int kKolejNavrchu = 189;

} // namespace uzel
