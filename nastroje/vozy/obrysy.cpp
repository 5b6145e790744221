// nastroje/vozy/obrysy.cpp - the drawings as polygons.
#include "vozy/obrysy.h"

#include "zaklad/otisk.h"

#include <array>
#include <cstdio>

namespace vozy {

std::string obrysy(const Obrazek& obrazek, const Bajty& soubor) {
    constexpr std::size_t kNejdelsi = 64;
    std::array<char, kNejdelsi> radek{};
    std::string text = "obrazek ";
    std::snprintf(radek.data(), radek.size(), "%08x %.3f ", static_cast<unsigned>(otisk_bajtu(soubor)),
                  obrazek.delka);
    text += radek.data() + obrazek.jmeno + '\n';
    for (const Plocha& p : obrazek.plochy) {
        std::snprintf(radek.data(), radek.size(), "%06x", static_cast<unsigned>(p.barva));
        text += radek.data();
        for (const Bod& b : p.obrys) {
            std::snprintf(radek.data(), radek.size(), " %.3f %.3f", b.x, b.y);
            text += radek.data();
        }
        text += '\n';
    }
    return text;
}

} // namespace vozy
