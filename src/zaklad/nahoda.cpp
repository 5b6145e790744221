// zaklad/nahoda.cpp - splitmix64, 24 high bits a draw.
#include "zaklad/nahoda.h"

Nahoda nahoda;

void zasej_nahodu(std::uint64_t semeno) {
    nahoda.stav = semeno;
}

float nahodne() {
    return nahodne(nahoda);
}

float nahodne(Nahoda& zdroj) {
    zdroj.stav += 0x9E3779B97F4A7C15u;
    std::uint64_t z = zdroj.stav;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    z ^= z >> 31;
    return static_cast<float>(z >> 40) * 0x1p-24f;
}
