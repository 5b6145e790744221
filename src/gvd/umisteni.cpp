// gvd/umisteni.cpp - places the train of a timetable row where it is on its way.
#include "gvd/umisteni.h"

#include "cesty/barvi_prvek.h"
#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/programova_cesta.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "gvd/soupravy.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <span>

namespace {

// The sense of a train that stands at `stanice` and goes on to `dalsi`.
bool smer_ve_stanici(int stanice, int dalsi) {
    const auto je = [dalsi](std::initializer_list<int> kody) {
        return std::find(kody.begin(), kody.end(), dalsi) != kody.end();
    };
    switch (stanice) {
    case dopravna::lhotin: return je({dopravna::vysni_hrabov});
    case dopravna::javorin: return je({dopravna::javorin_dolni, dopravna::vysni_hrabov, dopravna::podoli});
    case dopravna::rybnice:
        return je({dopravna::hajovice, dopravna::hajovice_sn, dopravna::jivova, dopravna::javorna,
                   dopravna::dkv, dopravna::borovec, dopravna::knizeci_luka});
    case dopravna::vysni_hrabov:
        return je({dopravna::javorin, dopravna::zadna, dopravna::podoli, dopravna::lhotin,
                   dopravna::javorin_dolni, dopravna::hvozdy});
    case dopravna::tesk: return je({dopravna::rybnice});
    case dopravna::kamenec: return true;
    case dopravna::mokrina: return je({dopravna::dubnice});
    case dopravna::hajovice: return je({dopravna::borovec, dopravna::knizeci_luka});
    case dopravna::knizeci_luka: return je({dopravna::zlata, dopravna::rokytno, dopravna::olsany});
    case dopravna::olsany: return je({dopravna::rokytno, dopravna::zlata});
    case dopravna::dolni: return je({dopravna::rybnice});
    case dopravna::zlata: return je({dopravna::rokytno});
    case dopravna::jivova: return je({dopravna::borovec, dopravna::javorna});
    case dopravna::javorna: return je({dopravna::borovec});
    case dopravna::podoli: return !je({dopravna::javorin_dolni, dopravna::javorin});
    case dopravna::javorin_dolni: return !je({dopravna::javorin});
    case dopravna::lipina: return je({dopravna::knizeci_luka});
    default: return false;
    }
}

// Tracks of the main station, by the planned one.
struct KolejHlavniStanice {
    TextPohled kolej;
    std::array<int, 2> prvky; // the first free one
};
constexpr std::array kHlavniStanice = {
    KolejHlavniStanice{"1", {26, 27}},   KolejHlavniStanice{"2", {27, 28}},
    KolejHlavniStanice{"3", {28, 29}},   KolejHlavniStanice{"4", {29, 30}},
    KolejHlavniStanice{"5", {30, 31}},   KolejHlavniStanice{"6", {31, 30}},
    KolejHlavniStanice{"5k", {32, 33}},  KolejHlavniStanice{"9k", {33, 34}},
    KolejHlavniStanice{"11k", {34, 35}}, KolejHlavniStanice{"13k", {35, 35}},
};

// Sections of a line that a placed train still has before it, and the route on which it runs there.
struct CestaNaTrati {
    std::int16_t klic, zacatek, konec;
    std::array<std::int16_t, 7> prvky; // 0 none
    std::int16_t sipka;                // arrow of the line
    bool stoupa;                       // towards larger numbers: ">>"
};
constexpr std::array<CestaNaTrati, 16> kCestyNaTrati = {{
    {96, 613, 96, {96, 632, 682}, 632, true},
    {604, 202, 604, {604, 654}, 604, true},
    {606, 10, 606, {606}, 606, false},
    {638, 613, 638, {638, 688, 738}, 638, true},
    {654, 202, 604, {654}, 604, true},
    {656, 10, 606, {656, 606}, 606, false},
    {674, 273, 624, {674, 724, 774, 824, 874}, 624, true},
    {676, 68, 626, {676, 626}, 626, false},
    {720, 633, 620, {720, 770}, 620, true},
    {722, 72, 622, {722, 672, 622}, 622, false},
    {728, 639, 628, {728, 778, 828, 878, 928, 978}, 628, true},
    {730, 63, 630, {730, 680, 630}, 630, false},
    {824, 273, 624, {824, 874}, 624, true},
    {826, 68, 626, {826, 776, 726, 676, 626}, 626, false},
    {928, 639, 628, {928, 978}, 628, true},
    {930, 63, 630, {930, 880, 830, 780, 730, 680, 630}, 630, false},
}};

std::span<const std::int16_t> prvky_na_trati(const CestaNaTrati& c) {
    return {c.prvky.begin(), std::find(c.prvky.begin(), c.prvky.end(), 0)};
}

const CestaNaTrati* najdi_cestu_na_trati(int element) {
    const auto c = std::find_if(kCestyNaTrati.begin(), kCestyNaTrati.end(),
                                [element](const CestaNaTrati& t) { return t.klic == element; });
    return c == kCestyNaTrati.end() ? nullptr : &*c;
}

bool je_cela_nakreslena(const CestaNaTrati& c) {
    const auto prvky = prvky_na_trati(c);
    return std::all_of(prvky.begin(), prvky.end(), [](int e) { return je_kolej(e); });
}

// Element for a row at a stop: the tracks that come into question in their order.
struct Umisteni {
    std::array<int, 5> koleje{}; // 0 none
    int index = 0;
    bool smer = false;
    bool na_trati = false; // with the route of a line
};

std::span<const int> koleje_umisteni(const Umisteni& u) {
    return {u.koleje.begin(), std::find(u.koleje.begin(), u.koleje.end(), 0)};
}

// The tracks of a station for a train that comes from `predchozi` and goes to `dalsi`.
std::optional<Umisteni> vyber_koleje(int stanice, int predchozi, int dalsi, int index, const GvdVlak& r) {
    const bool smer = smer_ve_stanici(stanice, dalsi);
    const int druh = r.druh;
    const auto na = [&](std::initializer_list<int> kody) {
        return std::any_of(kody.begin(), kody.end(), [&](int k) { return k == predchozi || k == dalsi; });
    };
    const auto koleje = [&](std::array<int, 5> k) { return Umisteni{k, index, smer, false}; };
    const auto trat = [&](int tam, int zpet) { return Umisteni{{smer ? tam : zpet}, index, smer, true}; };
    switch (stanice) {
    case dopravna::lhotin: return koleje({86});
    case dopravna::javorin:
        if (druh >= druh_vlaku::prvni_nakladni)
            return koleje({1});
        if (na({dopravna::polska_lhota}))
            return koleje({2});
        if (na({dopravna::hvozdy}))
            return koleje({3});
        return std::nullopt;
    case dopravna::rybnice:
        if (na({dopravna::knizeci_luka}))
            return smer ? Umisteni{{96}, index, true, true} : Umisteni{{93}, index - 1, false, false};
        if (na({dopravna::jivova, dopravna::borovec}))
            return smer ? Umisteni{{638}, index, true, true} : Umisteni{{94}, index - 1, false, false};
        if (na({dopravna::hajovice_sn, dopravna::hajovice}))
            return koleje({44, 45});
        return std::nullopt;
    case dopravna::vysni_hrabov:
        if (druh < druh_vlaku::prvni_nakladni)
            return na({dopravna::javorin, dopravna::podoli, dopravna::javorin_dolni})
                       ? koleje({10, 9, 11})
                       : koleje({smer ? 12 : 11});
        if (na({dopravna::javorin}))
            return koleje({18});
        return na({dopravna::tesk}) ? koleje({11, 10}) : koleje({16, 17});
    case dopravna::tesk:
        for (const KolejHlavniStanice& k : kHlavniStanice)
            if (r.kolej == k.kolej)
                return koleje({k.prvky[0], k.prvky[1]});
        return std::nullopt;
    case dopravna::mokrina:
        if (druh >= druh_vlaku::mn)
            return koleje({38, 39});
        return smer ? koleje({36}) : koleje({37, 40});
    case dopravna::hajovice:
        return dalsi == dopravna::borovec ? koleje({59, 60}) : koleje({50, 51, 54, 52, 53});
    case dopravna::knizeci_luka:
        if (druh == druh_vlaku::mn)
            return koleje({74});
        return smer ? koleje({73, 74}) : koleje({72, 71, 70});
    case dopravna::olsany: return trat(674, 676);
    case dopravna::dolni:
        if (druh == druh_vlaku::mn)
            return koleje({82, 78});
        return smer ? koleje({79, 78}) : koleje({78, 79});
    case dopravna::zlata: return trat(824, 826);
    case dopravna::jivova: return trat(728, 730);
    case dopravna::javorna: return trat(928, 930);
    case dopravna::podoli: return trat(654, 656);
    case dopravna::javorin_dolni: return trat(604, 606);
    case dopravna::lipina: return trat(720, 722);
    default: return std::nullopt;
    }
}

} // namespace

void umisti_vlak_do_stanice(int stanice, int predchozi, int dalsi, int index, int gvd_index) {
    const auto kde = vyber_koleje(stanice, predchozi, dalsi, index, radek_gvd(gvd_index));
    if (!kde)
        return;
    const int element = prvni_volna_kolej(koleje_umisteni(*kde));
    if (element < 0)
        return;
    if (const CestaNaTrati* trat = kde->na_trati ? najdi_cestu_na_trati(element) : nullptr;
        trat != nullptr && !je_cela_nakreslena(*trat))
        return;
    const int v = umisti_vlak(element, kde->smer, kde->index, gvd_index);
    if (kde->na_trati)
        cesta_na_trati(element, v);
}

int umisti_vlak(int element, bool smer, int index, int gvd_index) {
    barvi_prvek(element, barvy::cervena);
    relief.kolej[element].stav.nastav_cislo(delka_koleje(element) - 20);
    pis_cislo(element, text_cisla(radek_gvd(gvd_index).cislo));
    const int i = vytvor_vlak(smer, element, true, index, gvd_index);
    Vlak& v = vlak_c(i);
    if (element == 96 || element > kPrvniTrat) {
        v.omezeni_ukonceno = true;
        v.rychlost_cesty = 100;
        if (je_v(element, {638, 654, 606, 96}))
            v.prvky_poloha.front() = 2;
    }
    pridej_do_tabulky(i);
    const auto zastavka = static_cast<std::size_t>(std::max(index, 0));
    if (v.cislo2 > 0 && v.stanice_zmeny != 0 && zastavka < v.stanice.size() &&
        v.stanice_zmeny == v.stanice[zastavka])
        prepni_cislo(i);
    if (index < 1 && v.stanice.size() > 1 && v.stanice[1] == dopravna::rybnice &&
        v.stanice.back() == dopravna::dubnice)
        obrat_soupravy(i);
    vlak_v_cili(element, i);
    return i;
}

void cesta_na_trati(int element, int vlak) {
    const CestaNaTrati* vzor = najdi_cestu_na_trati(element);
    if (vzor == nullptr)
        return;
    Cesta& c = pridej_programovou_cestu(vzor->zacatek, vzor->konec, prvky_na_trati(*vzor));
    c.polohy.back() = 2;
    if (element == 638)
        c.polohy.front() = 2;
    c.Vlak = na_integer(vlak);

    if (element == 96)
        pis_cislo(632, text_cisla(zobrazene_cislo(vlak_c(vlak))));
    if (!relief.lblSouhlas2.je(vzor->sipka))
        return;
    Prvek& sipka = relief.lblSouhlas2[vzor->sipka];
    nastav_text(sipka, vzor->stoupa ? ">>" : "<<");
    sipka.barva = barvy::azurova;
}
