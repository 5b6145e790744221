// desk/stav_blikani.h - what of the desk flashes, or is still on its way.
#pragma once

#include <array>

struct Blikani {
    std::array<bool, 24> blikani_radku{}; // rows of the train table that flash
    int ramecek_hledani = 0;              // half-seconds that the search frame still closes in
    bool operator==(const Blikani&) const = default;
};
extern Blikani blikani;
