// nastroje/kolejiste/vystup.cpp - writes the binary files of the junction.
#include "kolejiste/vystup.h"

#include "relief/prejezdy.h"

#include <algorithm>

namespace kolejiste {

Bajty soubor_reliefu(const std::vector<ZaznamReliefu>& zaznamy, TextPohled popis) {
    Zapisovac a;
    const HlavickaReliefu h{0, Text(popis)};
    popis_hlavicky(a, h);
    for (const ZaznamReliefu& z : zaznamy)
        popis_reliefu(a, z);
    return a.bajty;
}

Bajty soubor_delek(const Plan& plan) {
    std::map<int, int> delky;
    for (const Kolej& k : plan.koleje)
        if (k.delka)
            delky[k.cislo] = *k.delka;
    Bajty bajty;
    const auto pole = [&](int hodnota, std::size_t mist) {
        std::string s = std::to_string(hodnota);
        s.insert(0, mist - std::min(mist, s.size()), ' ');
        bajty.insert(bajty.end(), s.begin(), s.end());
    };
    for (const auto& [kolej, delka] : delky) {
        pole(kolej, 3);
        pole(delka, 4);
    }
    return bajty;
}

Bajty soubor_prejezdu(const Plan& plan) {
    std::vector<const PrejezdTrati*> podle_cisla;
    for (const PrejezdTrati& p : plan.prejezdy)
        podle_cisla.push_back(&p);
    std::sort(podle_cisla.begin(), podle_cisla.end(), [](auto a, auto b) { return a->cislo < b->cislo; });
    Zapisovac a;
    for (const PrejezdTrati* p : podle_cisla) {
        const ZaznamPrejezdu z{0, p->nazev, static_cast<std::int16_t>(p->kolej),
                               static_cast<std::int16_t>(p->poloha)};
        popis_zaznamu_prejezdu(a, z);
    }
    return a.bajty;
}

Bajty soubor_vazeb(const Plan& plan) {
    std::vector<const Vyhybka*> podle_cisla;
    for (const Vyhybka& v : plan.vyhybky)
        podle_cisla.push_back(&v);
    std::sort(podle_cisla.begin(), podle_cisla.end(), [](auto a, auto b) { return a->cislo < b->cislo; });
    Zapisovac a;
    for (const Vyhybka* v : podle_cisla) {
        // the name in the head of the menu is the switch's own and, behind a slash, those of its mates
        std::string jmeno = v->jmeno;
        std::vector<std::uint8_t> vazby;
        for (const int n : v->vazby) {
            vazby.push_back(static_cast<std::uint8_t>(n));
            if (const Vyhybka* druha = plan.vyhybka(n))
                jmeno += "/" + druha->jmeno;
        }
        if (vazby.empty())
            vazby.push_back(255); // no links
        a.b(static_cast<std::uint8_t>(v->cislo));
        pole_b(a, vazby);
        a.text(z_utf8(jmeno));
    }
    return a.bajty;
}

} // namespace kolejiste
