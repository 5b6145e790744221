// nastroje/kolejiste/tabulka_tras.cpp - the table of the routes for the eye.
#include "kolejiste/trasy.h"
#include "relief/relief.h"
#include "uzel/vyhybky.h"

#include <algorithm>
#include <bitset>

namespace kolejiste {

namespace {

// Elements that a route holds against all others: its switches, and its tracks but for the one in front
// of the signal.
using Drzene = std::bitset<2 * (kNejvyssiPrvek + 1)>;

Drzene drzene(const ZaznamCesty& z) {
    Drzene d;
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        const auto druh = static_cast<DruhPrvku>(z.prvky[k].druh);
        if (druh == DruhPrvku::vykolejka)
            continue;
        const bool vyhybka = druh == DruhPrvku::vyhybka;
        int n = z.prvky[k].prvek;
        for (const uzel::Krizeni& x : uzel::kKrizeni)
            if (!vyhybka && n == x.b)
                n = x.a;
        d.set(static_cast<std::size_t>(2 * n + vyhybka));
    }
    return d;
}

// Which routes exclude each other.
struct Vylucovani {
    std::vector<int> s_kolika; // by route
    std::size_t dvojic = 0;
};

Vylucovani spocti_vylucovani(const std::vector<Trasa>& trasy) {
    std::vector<Drzene> drzi;
    for (const Trasa& t : trasy)
        drzi.push_back(drzene(t.zaznam));
    Vylucovani v{std::vector<int>(trasy.size()), 0};
    for (std::size_t a = 0; a < trasy.size(); ++a)
        for (std::size_t b = a + 1; b < trasy.size(); ++b)
            if ((drzi[a] & drzi[b]).any()) {
                ++v.s_kolika[a], ++v.s_kolika[b];
                ++v.dvojic;
            }
    return v;
}

// Fills up with blanks; counts characters, not bytes.
std::string sloupec(std::string co, std::size_t sirka) {
    std::size_t znaku = 0;
    for (const char c : co)
        znaku += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    co.append(sirka - std::min(sirka, znaku), ' ');
    return co;
}

std::string rychlost(const Trasa& t) {
    constexpr std::array kRychlosti = {"MAX", "40", "60", "80"};
    return t.druh == DruhTrasy::vlak ? kRychlosti.at(t.zaznam.rychlost) : "PC";
}

std::string radek(const Plan& plan, const Trasa& t, const Navestidlo& od, int vylucuje) {
    const ZaznamCesty& z = t.zaznam;
    const Kolej* cil = plan.kolej(z.konec);
    std::string kam = std::to_string(z.konec);
    if (cil && cil->cil)
        kam += " " + na_utf8(*cil->cil);
    std::string text = "  " + sloupec(std::to_string(z.zacatek) + " " + na_utf8(od.jmeno), 14) +
                       sloupec(kam, 16) + sloupec(rychlost(t), 4) + sloupec(std::to_string(vylucuje), 5);
    for (std::size_t k = 0; k < z.prvky.size(); ++k)
        text += " " + popis_prvku_trasy(z, k);
    return text + "\n";
}

// Routes of one kind from the signals of one block; empty when it has none.
std::string oddil(const Plan& plan, std::size_t blok, DruhTrasy druh, const std::vector<Trasa>& trasy,
                  const Vylucovani& vylucovani) {
    std::string radky;
    int pocet = 0;
    std::size_t nejdelsi = 0;
    for (std::size_t i = 0; i < trasy.size(); ++i) {
        const Trasa& t = trasy[i];
        const Navestidlo* od = plan.navestidlo(t.zaznam.zacatek);
        if (t.druh != druh || !od || od->blok != blok)
            continue;
        ++pocet;
        nejdelsi = std::max(nejdelsi, t.zaznam.prvky.size());
        radky += radek(plan, t, *od, vylucovani.s_kolika[i]);
    }
    if (pocet == 0)
        return {};
    return plan.bloky[blok].kod + " " + plan.bloky[blok].nazev + ": " + std::to_string(pocet) +
           (druh == DruhTrasy::vlak ? " vlakových" : " posunových") + " cest, nejvýš " +
           std::to_string(nejdelsi) + " prvků\n" + radky;
}

} // namespace

std::string popis_prvku_trasy(const ZaznamCesty& z, std::size_t k) {
    const std::string n = std::to_string(z.prvky[k].prvek);
    switch (static_cast<DruhPrvku>(z.prvky[k].druh)) {
    case DruhPrvku::vyhybka: {
        const int p = z.prvky[k].poloha;
        std::string text = "v" + n + (konec_a_minus(p) ? "-" : "+");
        if (p >= tvary::kPrvniDKS)
            text += konec_b_minus(p) ? "-" : "+";
        return text;
    }
    case DruhPrvku::vykolejka: return "d" + n;
    case DruhPrvku::kolej: break;
    }
    return n;
}

bool vylucuji_se(const Trasa& a, const Trasa& b) {
    return (drzene(a.zaznam) & drzene(b.zaznam)).any();
}

PoctyTras spocti_trasy(const std::vector<Trasa>& trasy) {
    PoctyTras p;
    for (const Trasa& t : trasy)
        ++(t.druh == DruhTrasy::vlak ? p.vlakovych : p.posunovych);
    p.dvojic = trasy.empty() ? 0 : trasy.size() * (trasy.size() - 1) / 2;
    p.vylucuje_se = spocti_vylucovani(trasy).dvojic;
    return p;
}

std::string tabulka_tras(const Plan& plan, const std::vector<Trasa>& trasy) {
    const Vylucovani vylucovani = spocti_vylucovani(trasy);
    std::string text;
    for (std::size_t b = 0; b < plan.bloky.size(); ++b)
        for (const DruhTrasy druh : kDruhyTras)
            text += oddil(plan, b, druh, trasy, vylucovani);
    const PoctyTras p = spocti_trasy(trasy);
    return text + "cest " + std::to_string(trasy.size()) + ", z toho vlakových " +
           std::to_string(p.vlakovych) + "; dvojic, které nemohou stát spolu, " +
           std::to_string(p.vylucuje_se) + "\n";
}

} // namespace kolejiste
