// jizda/cesty_na_prvku.cpp - which routes hold an element.
#include "jizda/cesty_na_prvku.h"

#include "cesty/cesta.h"
#include "cesty/dotazy.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace {

// Indices in route order, each once for an element.
struct CestyNaPrvku {
    std::uint32_t odebrano = 0;                    // state of odebrane_cesty() at which it was made
    int pocet = 0;                                 // routes that it knows
    std::array<int, kNejvyssiPrvek + 2> zacatky{}; // of each element in `seznam`
    std::vector<int> seznam;
    std::vector<std::int16_t> zdroj; // what it was made from: of each route how many elements, and these
};
CestyNaPrvku cesty_na_prvku;

bool je_prvek(int n) {
    return n >= 0 && n <= kNejvyssiPrvek;
}

// The record c exists and is a route.
bool je_cesta(int c) {
    return c < static_cast<int>(cesty.size()) && cesta_c(c).zacatek >= 0;
}

// Calls `co(prvek, cesta)` for each element of each route, once for an element that stands there twice.
template <class Co> void pro_kazdy_prvek(int pocet_cest, Co co) {
    std::array<int, kNejvyssiPrvek + 1> naposled;
    naposled.fill(-1);
    for (int c = 0; c < pocet_cest; ++c)
        for (const PrvekCesty& p : cesta_c(c).prvky)
            if (const int n = p.prvek; je_prvek(n) && naposled[static_cast<std::size_t>(n)] != c) {
                naposled[static_cast<std::size_t>(n)] = c;
                co(static_cast<std::size_t>(n), c);
            }
}

// The routes have the elements that the table was made from. To look costs far less than to make it.
bool plati(const CestyNaPrvku& t) {
    auto zdroj = t.zdroj.begin();
    const auto souhlasi = [&](std::int16_t hodnota) { return zdroj != t.zdroj.end() && *zdroj++ == hodnota; };
    for (int c = 0; je_cesta(c); ++c) {
        if (!souhlasi(static_cast<std::int16_t>(cesta_c(c).prvky.size())))
            return false;
        for (const PrvekCesty& p : cesta_c(c).prvky)
            if (!souhlasi(p.prvek))
                return false;
    }
    return zdroj == t.zdroj.end();
}

} // namespace

void sestav_cesty_na_prvku() {
    CestyNaPrvku& t = cesty_na_prvku;
    t.odebrano = odebrane_cesty();
    if (plati(t))
        return;
    t.pocet = 0;
    t.zdroj.clear();
    for (; je_cesta(t.pocet); ++t.pocet) {
        t.zdroj.push_back(static_cast<std::int16_t>(cesta_c(t.pocet).prvky.size()));
        for (const PrvekCesty& p : cesta_c(t.pocet).prvky)
            t.zdroj.push_back(p.prvek);
    }
    t.zacatky.fill(0);
    pro_kazdy_prvek(t.pocet, [&](std::size_t n, int) { ++t.zacatky[n + 1]; });
    std::partial_sum(t.zacatky.begin(), t.zacatky.end(), t.zacatky.begin());
    t.seznam.resize(static_cast<std::size_t>(t.zacatky.back()));
    auto kam = t.zacatky;
    pro_kazdy_prvek(t.pocet, [&](std::size_t n, int c) { t.seznam[static_cast<std::size_t>(kam[n]++)] = c; });
}

int dalsi_cesta_na_prvku(int prvek, int od) {
    const CestyNaPrvku& t = cesty_na_prvku;
    if (t.odebrano != odebrane_cesty())
        sestav_cesty_na_prvku();
    if (je_prvek(prvek)) {
        const auto n = static_cast<std::size_t>(prvek);
        const auto po = t.seznam.begin() + t.zacatky[n + 1];
        const auto c = std::lower_bound(t.seznam.begin() + t.zacatky[n], po, od);
        if (c != po)
            return *c;
    }
    const int pridana = std::max(od, t.pocet);
    return je_cesta(pridana) ? pridana : -1;
}
