// jizda/rychlost.cpp - line speed, limit of the route, and how a train comes to them.
#include "jizda/rychlost.h"

#include "app/simulace.h"
#include "gvd/druhy_vlaku.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "uzel/rychlosti.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int kRychlostTlaceni = 30; // km/h of a train pushed from behind
constexpr int kRychlostPosunu = 30;  // km/h over a shunt or calling-on route
constexpr int kRychlostVstupu = 100; // km/h over a route made for a train that enters the area

// km/h that a step adds: the fewer, the longer a goods train is.
float zrychleni(const Vlak& vlak) {
    float d = 1;
    if (vlak.druh >= druh_vlaku::prvni_nakladni && vlak.druh != druh_vlaku::lv)
        d = static_cast<float>(vlak.delka) / 350.0f + 1.0f;
    if (vlak.druh == druh_vlaku::vn)
        d = d / 2.0f + 1.0f;
    return 3.0f * static_cast<float>(simulace.rychlost) / d;
}

} // namespace

void rychlost_trati_prvek(int prvek, int v) {
    if (const int rychlost = uzel::rychlost_prvku(prvek, vlak_c(v).smer); rychlost != 0)
        vlak_c(v).rychlost_trati = na_byte(rychlost);
}

void omez_rychlost(const Cesta& c, int v) {
    Vlak& vlak = vlak_c(v);
    if (c.ZT == kZTprogramu) {
        vlak.rychlost_cesty = kRychlostVstupu;
        vlak.omezeni_ukonceno = true;
        return;
    }
    constexpr std::array<std::uint8_t, 4> kTridy = {0, 40, 60, 80};
    if (!c.VC || c.PN)
        vlak.rychlost_cesty = kRychlostPosunu;
    else if (c.rychlost == 0)
        vlak.rychlost_cesty = vlak.rychlost_trati;
    else if (c.rychlost < kTridy.size())
        vlak.rychlost_cesty = kTridy[c.rychlost];
    vlak.omezeni_ukonceno = false;
    vlak.konec_omezeni = c.vyhybka;
}

// Acceleration is per step, not per unit of time, and depends on the consist.
void uprav_rychlost(int v) {
    Vlak& vlak = vlak_c(v);
    if (!vlak.muze_jet)
        return;
    if (vlak.vozy.empty() || (!je_loko(vlak.vozy[0].rada) && !je_ridici_vuz(vlak.vozy[0].rada))) {
        // Pushed from behind: exactly 30 km/h, from a stand too, above any limit: whoever walks ahead of it
        // sets the pace.
        vlak.rychlost = kRychlostTlaceni;
        return;
    }
    const int cil =
        vlak.rychlost_cesty != 0 && !vlak.omezeni_ukonceno ? vlak.rychlost_cesty : vlak.rychlost_trati;
    const int r = cil - vlak.rychlost;
    const float a = zrychleni(vlak);
    if (r < 0 || a > static_cast<float>(std::abs(r)))
        vlak.rychlost = na_byte(cil);
    else
        vlak.rychlost = na_byte(static_cast<double>(static_cast<float>(vlak.rychlost) + a));
    vlak.rychlost = std::min(vlak.rychlost, vlak.max_rychlost);
}
