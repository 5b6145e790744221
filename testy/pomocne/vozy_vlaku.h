// testy/pomocne/vozy_vlaku.h - the vehicles of a train as the lists of their series, next works and pictures.
#pragma once

#include "jizda/vlak.h"

#include <vector>

// Next works and pictures that are not given are empty.
inline std::vector<Vuz> vozy_vlaku(const std::vector<Text>& rady, const std::vector<Text>& urceni = {},
                                   const std::vector<Text>& obrazky = {}) {
    std::vector<Vuz> vozy;
    for (std::size_t k = 0; k < rady.size(); ++k)
        vozy.push_back(
            {rady[k], k < urceni.size() ? urceni[k] : Text{}, k < obrazky.size() ? obrazky[k] : Text{}});
    return vozy;
}
inline void nastav_urceni(std::vector<Vuz>& vozy, const std::vector<Text>& urceni) {
    for (std::size_t k = 0; k < vozy.size(); ++k)
        vozy[k].urceni = k < urceni.size() ? urceni[k] : Text{};
}

inline std::vector<Text> rady_vozu(const std::vector<Vuz>& vozy) {
    std::vector<Text> rady;
    for (const Vuz& vuz : vozy)
        rady.push_back(vuz.rada);
    return rady;
}
inline std::vector<Text> urceni_vozu(const std::vector<Vuz>& vozy) {
    std::vector<Text> urceni;
    for (const Vuz& vuz : vozy)
        urceni.push_back(vuz.urceni);
    return urceni;
}
inline std::vector<Text> obrazky_vozu(const std::vector<Vuz>& vozy) {
    std::vector<Text> obrazky;
    for (const Vuz& vuz : vozy)
        obrazky.push_back(vuz.obrazek);
    return obrazky;
}
