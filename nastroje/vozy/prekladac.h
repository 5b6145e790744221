// nastroje/vozy/prekladac.h - the drawings of vehicles: readable text into coloured polygons.
//
// The source is UTF-8, one statement a line, `#` starts a comment. Lengths are decimetres of the real
// vehicle, x from its left end, y up from the top of the rail. docs/vozy.md tells the language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vozy {

// A picture is drawn shortened: three pixels of the desk to a metre of length, five to a metre of
// height. A coach of 26.4 m fills the eighty pixels that the desk has for a vehicle, and is still high
// enough to be known by its windows.
inline constexpr double kBoduNaDelku = 0.3, kBoduNaVysku = 0.5; // pixels per decimetre
inline constexpr int kVyskaObrazku = 32;                        // pixels
inline constexpr int kNejdelsiVuz_dm = 266;

struct Bod {
    double x = 0, y = 0; // pixels of the desk, y up
};

struct Plocha {
    std::uint32_t barva = 0; // 0xRRGGBB
    std::vector<Bod> obrys;  // closed by itself; inside by the even-odd rule
};

struct Obrazek {
    std::string jmeno;          // file name, UTF-8
    double delka = 0;           // pixels of the desk
    std::vector<Plocha> plochy; // in the order in which they are painted
};

struct Zdroj {
    std::string jmeno, text;
};

struct Chyba {
    std::string soubor;
    int radek = 0; // from 1
    std::string zprava;
};

// Compiles all the sources together: a shape may be used in any of them. Every fault is collected, in
// the order of files and lines; with any fault the result is not to be used.
std::vector<Obrazek> preloz(const std::vector<Zdroj>& zdroje, std::vector<Chyba>& chyby);

} // namespace vozy
