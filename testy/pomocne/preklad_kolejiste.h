// testy/pomocne/preklad_kolejiste.h - the whole chain of the layout compiler, from sources in memory.
#pragma once

#include "kolejiste/kontrola_tras.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "pomocne/zdroj_kolejiste.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

// A source: its name and its text.
using ZdrojKolejiste = std::pair<std::string, std::string>;

// All sources of the junction, by name.
inline std::vector<ZdrojKolejiste> zdroje_tesku() {
    std::vector<ZdrojKolejiste> zdroje;
    for (const auto& polozka : std::filesystem::directory_iterator(kZdrojeKolejiste))
        if (polozka.path().extension() == ".tk")
            zdroje.emplace_back(polozka.path().filename().string(), obsah_souboru(polozka.path()));
    std::sort(zdroje.begin(), zdroje.end());
    return zdroje;
}

// Everything that the compiler does before it writes: what it finds wrong.
struct CelyPreklad {
    kolejiste::Plan plan;
    std::vector<kolejiste::Zavada> zavady;
    kolejiste::Graf graf;
    std::vector<ZaznamReliefu> jeden, dva;
    std::vector<kolejiste::Trasa> trasy;

    explicit CelyPreklad(const std::vector<ZdrojKolejiste>& zdroje) {
        using namespace kolejiste;
        for (const auto& [jmeno, text] : zdroje)
            precti(text, jmeno, plan, zavady);
        graf = sestav_graf(plan, zavady);
        jeden = nakresli(plan, Obraz::jeden, zavady);
        dva = nakresli(plan, Obraz::dva, zavady);
        zkontroluj(plan, graf, jeden, dva, zavady);
        trasy = odvod_trasy(plan, graf, zavady);
        zkontroluj_trasy(plan, graf, trasy, zavady);
    }
    std::string vsechny() const {
        std::string s;
        for (const kolejiste::Zavada& z : zavady)
            s += veta(z) + "\n";
        return s;
    }
    bool hlasi(std::string_view cast) const { return vsechny().find(cast) != std::string::npos; }
};
