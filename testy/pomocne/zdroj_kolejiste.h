// testy/pomocne/zdroj_kolejiste.h - the sources of the junction itself, read as its compiler reads them.
#pragma once

#include "kolejiste/plan.h"
#include "pomocne/zdroje.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

inline std::string obsah_souboru(const std::filesystem::path& cesta) {
    std::ifstream f(cesta, std::ios::binary);
    std::ostringstream text;
    text << f.rdbuf();
    return text.str();
}

// All of them, in the order of their names.
inline void precti_kolejiste(kolejiste::Plan& plan, std::vector<kolejiste::Zavada>& zavady) {
    std::vector<std::filesystem::path> zdroje;
    for (const auto& polozka : std::filesystem::directory_iterator(kZdrojeKolejiste))
        if (polozka.path().extension() == ".tk")
            zdroje.push_back(polozka.path());
    std::sort(zdroje.begin(), zdroje.end());
    for (const auto& zdroj : zdroje)
        kolejiste::precti(obsah_souboru(zdroj), zdroj.filename().string(), plan, zavady);
}
