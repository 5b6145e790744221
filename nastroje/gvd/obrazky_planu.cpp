// nastroje/gvd/obrazky_planu.cpp - finds the pictures by the rules of the desk.
#include "gvd/obrazky_planu.h"

#include "gvd/obrazky_vozu.h"
#include "jizda/souprava.h"
#include "uzel/vozidla.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <bit>
#include <map>

namespace planovani {

namespace {

constexpr int kBezny = 100; // runs in a week from which a series is a common one

struct Pouziti {
    std::size_t prvni = 0; // row
    int jizd = 0;          // of the week
};

bool je_rada(TextPohled vuz) {
    return !vuz.empty() && std::all_of(vuz.begin(), vuz.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Pictures that the desk draws by lot for the series.
std::ptrdiff_t variant(TextPohled rada, const std::set<Text>& soubory) {
    const Text hledana = Text(rada) + "_";
    return std::count_if(soubory.begin(), soubory.end(),
                         [&](const Text& s) { return s.find(hledana) != Text::npos; });
}

std::string co_chybi(TextPohled vuz, int jizd, const std::set<Text>& soubory) {
    const std::string jmeno = na_utf8(vuz);
    if (!je_rada(vuz))
        return soubory.contains(obrazek_vozu_textem(vuz)) ? "" : "vůz " + jmeno + " nemá obrázek";
    const auto n = variant(vuz, soubory);
    if (n == 0)
        return "řada " + jmeno + " nemá obrázek";
    if (je_ridici_vuz(vuz) && !soubory.contains(Text(vuz) + "p.ico"))
        return "řada " + jmeno + " nemá obrázek s kabinou vpravo";
    if (vuz == uzel::kVuzJednotky && variant(uzel::kCelniVuzJednotky, soubory) == 0)
        return "jednotka " + jmeno + " nemá obrázek s kabinou vpravo";
    if (jizd >= kBezny && n < 2)
        return "řada " + jmeno + " jede za týden " + std::to_string(jizd) + "krát a má jen jednu podobu";
    return "";
}

} // namespace

std::vector<ChybaZdroje> chybejici_obrazky(const JizdniRad& rad, const std::set<Text>& soubory) {
    std::map<Text, Pouziti> vozidla;
    for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
        const GvdVlak& r = rad.vlaky[i];
        std::set<Text> zde(r.vozy.begin(), r.vozy.end());
        for (const int rada : {r.loko_rada, r.loko_rada2})
            if (rada != 0)
                zde.insert(text_cisla(rada));
        for (const Text& v : zde)
            vozidla.try_emplace(v, Pouziti{i, 0}).first->second.jizd +=
                std::popcount(static_cast<unsigned>(r.dny & 0x7F));
    }
    std::vector<ChybaZdroje> chyby;
    for (const auto& [vuz, p] : vozidla)
        if (std::string co = co_chybi(vuz, p.jizd, soubory); !co.empty())
            chyby.push_back(
                {rad.radky[p.prvni], "vlak " + std::to_string(rad.vlaky[p.prvni].cislo) + ": " + co});
    return chyby;
}

} // namespace planovani
