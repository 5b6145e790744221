// prvky/aspekty.cpp - what a signal announces: derived from its route and from the next signal.
#include "cesty/cesta.h"
#include "prvky/navestidla.h"
#include "relief/relief.h"
#include "uzel/navestidla.h"
#include "uzel/trate.h"

#include <algorithm>
#include <array>

namespace {

// Aspects in words: row the speed class of the route, column what the next signal announces: free, 40,
// 60, 80, stop.
constexpr std::array<std::array<TextPohled, 5>, 4> kZnaky = {{
    {"VOLNO", "MAX/40", "MAX/60", "MAX/80", "VYSTR."},
    {"40/MAX", "40/40", "40/60", "40/80", "40/VYS"},
    {"60/MAX", "60/40", "60/60", "60/80", "60/VYS"},
    {"80/MAX", "80/40", "80/60", "80/80", "80/VYS"},
}};

// First section of the line that a train leaving over `e`, the far end of its route on the line, runs
// on to. A route is extended over the whole line, so the section next to the signal is at the other end
// of the group.
bool trat_volna(int e) {
    int usek = zaklad_trati(e);
    if (e <= uzel::kDruheUseky) {
        usek = e;
        for (int n = e; n <= kNejvyssiPrvek; n += kKrokTrati)
            if (je_kolej(n))
                usek = n;
    }
    return je_kolej(usek) && relief.kolej[usek].barva() == barvy::seda;
}

bool bez_predzvesti(int e) { // exits of the junction: what lies behind is not the desk's business
    return je_v(e, uzel::kBezPredzvesti);
}

} // namespace

int dalsi_navest(int prvek) {
    if (prvek < 0)
        return kNavestStuj;
    int e = prvek;
    // a ring of repeaters must end
    for (std::size_t kolo = 0; kolo <= cesty.size(); ++kolo) {
        if (bez_predzvesti(e))
            return 0;
        if (je_usek_trati(e))
            return trat_volna(e) ? 0 : kNavestStuj;
        const auto c = std::find_if(cesty.begin(), cesty.end(), [&](const Cesta& x) {
            return prvni_prvek(x) == e && x.Postavena && x.cas_ruseni < 0 && x.VC;
        });
        if (c == cesty.end())
            return kNavestStuj;
        if (!uzel::je_pruhledne(c->zacatek))
            return c->rychlost;
        e = c->konec; // the repeater shows what the signal behind it shows
    }
    return kNavestStuj;
}

TextPohled aspekt_text(int i) {
    if (i < 0 || static_cast<std::size_t>(i) >= cesty.size())
        return {};
    const Cesta& c = cesta_c(i);
    if (!navestidla(c.zacatek).je(c.zacatek))
        return {};
    if (c.PN)
        return c.PN_do >= 0 ? "OP" : TextPohled();
    const Barva barva = navestidla(c.zacatek)[c.zacatek].barva;
    if (barva == barvy::bila)
        return "POS.DOV";
    if (barva != barvy::zelena)
        return {};
    const int pristi = dalsi_navest(posledni_prvek(c));
    const std::size_t radek = c.rychlost < kZnaky.size() ? c.rychlost : 1; // an unknown class: slowest
    return kZnaky[radek][pristi >= 0 && pristi < 4 ? static_cast<std::size_t>(pristi) : 4];
}
