// uzel/navestidla.h - signals of the junction that their numbers and glyphs do not tell everything of.
#pragma once

#include "uzel/cislovani.h"

#include <array>
#include <cstdint>

// Mast of a signal: three heights of main signals, one without speed bars, the dwarf.
enum class TvarPanelu : std::uint8_t {
    kratky,      // platform tracks and small stations
    bez_zluteho, // without the upper yellow lamp
    dlouhy,      // entry and exit of the larger stations
    bez_pruhu,   // long, without speed bars
    serizovaci,  // shunting signal: white and blue
};

namespace uzel {

// Signals that face right whatever their glyph: three main ones at line ends and repeaters, four shunt ones.
inline constexpr std::array kVzdyVpravo = {317, 225, 318, 519, 520, 576, 577};
// A signal on the fold of its picture: its glyph of automatic mode does not face right.
inline constexpr int kNaOhybu = 18;
// Main signals that face right although their numbers are those of left-facing ones: the drawing is folded
// between them and their line.
inline constexpr std::array kVpravoProtiCislu = {115, 116};

// Repeaters stand in front of a signal that the driver cannot see in time; their white lamp says so. Those of
// the first kind show what the signal behind them shows, so that the one before them looks through.
constexpr bool je_pruhledne(int s) {
    return s >= 221 && s <= 224;
}
constexpr bool je_opakovaci(int s) {
    return je_pruhledne(s) || je_v(s, {609, 611});
}

// Exits of the junction: what lies behind them is not the desk's business, so that the signal in front
// announces nothing. 41 is an exit like 64, 67 and 88 and is not among them: there the signal
// in front announces stop, which errs on the safe side.
inline constexpr std::array kBezPredzvesti = {212, 213, 219, 120, 123, 118, 64, 67, 88};

// Mast of a main signal by ranges of numbers, both included; ranges do not overlap, and every other main
// signal has the long mast.
struct RozsahMastu {
    TvarPanelu tvar;
    int od, po;
};
inline constexpr std::array kMasty = {
    RozsahMastu{TvarPanelu::bez_zluteho, 221, 221}, RozsahMastu{TvarPanelu::bez_zluteho, 225, 225},
    RozsahMastu{TvarPanelu::bez_zluteho, 345, 345}, RozsahMastu{TvarPanelu::bez_pruhu, 93, 93},
    RozsahMastu{TvarPanelu::bez_pruhu, 96, 96},     RozsahMastu{TvarPanelu::bez_pruhu, 613, 613},
    RozsahMastu{TvarPanelu::bez_pruhu, 615, 615},   RozsahMastu{TvarPanelu::kratky, 22, 35},
    RozsahMastu{TvarPanelu::kratky, 41, 43},        RozsahMastu{TvarPanelu::kratky, 200, 203},
    RozsahMastu{TvarPanelu::kratky, 222, 224},      RozsahMastu{TvarPanelu::kratky, 226, 235},
    RozsahMastu{TvarPanelu::kratky, 277, 277},      RozsahMastu{TvarPanelu::kratky, 284, 285},
    RozsahMastu{TvarPanelu::kratky, 315, 316},      RozsahMastu{TvarPanelu::kratky, 609, 609},
    RozsahMastu{TvarPanelu::kratky, 611, 611},      RozsahMastu{TvarPanelu::kratky, 634, 634},
    RozsahMastu{TvarPanelu::kratky, 636, 637},      RozsahMastu{TvarPanelu::kratky, 639, 639},
    RozsahMastu{TvarPanelu::kratky, 998, 998},
};

// The junction's fixed exercise: a main signal whose lamp has failed from the start, and how far to the right
// the desk draws its mark, twips.
inline constexpr int kZhasleNavestidlo = 305;
inline constexpr int kPosunZhasleho = 120;

} // namespace uzel
