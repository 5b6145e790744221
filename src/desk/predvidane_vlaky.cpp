// desk/predvidane_vlaky.cpp - the block of predicted trains in the journal.
#include "desk/predvidane_vlaky.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/hlaseni.h"
#include "gvd/gvd.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr int kPredpoved_min = 60;

// The line: category from 1, number and time right-aligned, delay.
constexpr std::size_t kSirkaRadku = 25;
constexpr std::size_t kKonecCisla = 10, kKonecCasu = 17, kSloupecZpozdeni = 19;

struct Predvidany {
    int poradi; // minute by which the line is sorted
    int cas;    // planned, minute of the day
    int zpozdeni;
    const GvdVlak* radek;
};

void vloz_vpravo(Text& radek, std::size_t konec, TextPohled co) {
    vloz_do(radek, co.size() < konec ? konec - co.size() + 1 : 1, co);
}

Text radek_predpovedi(const Predvidany& p) {
    Text radek(kSirkaRadku, ' ');
    vloz_do(radek, 1, zkratka_druhu(p.radek->druh));
    vloz_vpravo(radek, kKonecCisla, text_cisla(p.radek->cislo));
    vloz_vpravo(radek, kKonecCasu, text_minuty(p.cas));
    if (p.zpozdeni != 0)
        vloz_do(radek, kSloupecZpozdeni, "+" + text_cisla(p.zpozdeni) + Text("´"_cz));
    return radek;
}

// Trains that leave the station in our direction are sorted by the minutes that remain. Those that end
// there are sorted by the minute of the day of their departure from it, so that only in the first hour
// after midnight they come into the block at all: the block is for trains that leave.
std::vector<Predvidany> predvidane(int stanice, int ted) {
    std::vector<Predvidany> vlaky_stanice;
    for (const GvdVlak& r : gvd_vlaky) {
        const ZastavkaGvd &vychozi = r.zastavky.front(), &konecna = r.zastavky.back();
        const bool konci = konecna.stanice == stanice;
        if ((vychozi.stanice != stanice && !konci) || !aktivni_dnes(r))
            continue;
        const int zpozdeni = zpozdeni_vlaku(r.cislo);
        const int prvni = vychozi.prijezd <= -1 ? vychozi.odjezd : vychozi.prijezd;
        const int m = zpozdeni + prvni - ted;
        if (m < 0 || m > kPredpoved_min)
            continue;
        const int posledni = konecna.odjezd >= 0 ? konecna.odjezd : konecna.prijezd;
        if (konci)
            vlaky_stanice.push_back({zpozdeni + konecna.odjezd, posledni, zpozdeni, &r});
        else
            vlaky_stanice.push_back({m, prvni, zpozdeni, &r});
    }
    return vlaky_stanice;
}

} // namespace

bool ma_predpoved(int stanice) {
    return std::find(uzel::kSPredpovedi.begin(), uzel::kSPredpovedi.end(), stanice) !=
           uzel::kSPredpovedi.end();
}

void predvidane_vlaky(int stanice) {
    if (simulace.pauza || !ma_predpoved(stanice))
        return;
    const int ted = minuta_dne(cas_hodin());
    std::vector<Predvidany> vlaky_stanice = predvidane(stanice, ted);
    std::stable_sort(vlaky_stanice.begin(), vlaky_stanice.end(),
                     [](const Predvidany& a, const Predvidany& b) { return a.poradi > b.poradi; });
    std::vector<Text>& denik = relief.lstDenik.radky;
    for (const Predvidany& p : vlaky_stanice)
        if (p.poradi >= 0 && p.poradi <= kPredpoved_min)
            denik.push_back(radek_predpovedi(p));
    Text hlava("Předvídané vlaky v "_cz);
    hlava += kod_stanice(stanice);
    hlava += " " + text_minuty(ted);
    denik.push_back(std::move(hlava));
    ++revize_reliefu;
}
