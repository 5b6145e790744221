// nastroje/vozy/obrysy.h - the drawings as polygons, for a desk that is larger than any of the pictures.
#pragma once

#include "vozy/prekladac.h"
#include "zaklad/balik.h"

#include <string>

namespace vozy {

// Lines about one picture: "obrazek HASH LENGTH NAME", HASH that of the picture's file, then for each polygon
// "RRGGBB x y x y ...". Lengths are pixels of the desk, y up.
std::string obrysy(const Obrazek& obrazek, const Bajty& soubor);

} // namespace vozy
