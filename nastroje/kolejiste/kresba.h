// nastroje/kolejiste/kresba.h - the two pictures: records of the relief files, in twips.
#pragma once

#include "kolejiste/plan.h"

#include <vector>

namespace kolejiste {

struct BodKresby { // twips of the desk
    int x = 0, y = 0;
    auto operator<=>(const BodKresby&) const = default;
};

// Where a place of a block comes to lie.
BodKresby na_plochu(const Blok& blok, const Bod& bod, Obraz obraz);
// Both ends of a track.
std::array<BodKresby, 2> konce_koleje(const Plan& plan, const Kolej& kolej, Obraz obraz);
// The records of a picture in the order of the file: later ones lie on top. Things outside the picture,
// under the signal panel, on top of each other, and lines off the raster are faults.
std::vector<ZaznamReliefu> nakresli(const Plan& plan, Obraz obraz, std::vector<Zavada>& zavady);
// The picture as SVG, switches in the position of the file.
std::string nahled(const std::vector<ZaznamReliefu>& zaznamy, Obraz obraz);

} // namespace kolejiste
