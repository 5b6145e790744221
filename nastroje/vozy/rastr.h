// nastroje/vozy/rastr.h - polygons become pixels, pixels become an icon file.
#pragma once

#include "vozy/prekladac.h"
#include "zaklad/balik.h"

#include <cstdint>
#include <vector>

namespace vozy {

struct Rastr {
    int sirka = 0, vyska = 0;
    std::vector<std::uint32_t> body; // 0xAARRGGBB, colours not multiplied by alpha; from the top row
};

// Draws the picture `zvetseni` times as large as on the desk: as wide as the vehicle, kVyskaObrazku
// high, the rail at the bottom edge. What is not drawn is transparent.
Rastr nakresli(const Obrazek& obrazek, int zvetseni);

// Icon file that holds the pictures, at most 255 by 255 pixels each, with 32 bits a pixel.
Bajty ikona(const std::vector<Rastr>& rastry);

} // namespace vozy
