// gvd/zaplneni.cpp - fills the layout at the start; locomotives and sets out of the depot.
#include "gvd/zaplneni.h"

#include "app/cas.h"
#include "cesty/barvi_prvek.h"
#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/skladba.h"
#include "gvd/stav_provozu.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "relief/topologie.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <span>

namespace {

constexpr int kDen_min = 1440;
constexpr int kLoko731 = 731;
constexpr int kZalohaPriStartu = 509;         // track of the first standby locomotive
constexpr int kDepo538 = 538, kDepo569 = 569; // where sets come out of the depot of the main station
constexpr int kPredPristavenim = 29;          // minutes a set stands at the platform before it leaves
constexpr TextPohled kZaloha = "ZAL";
constexpr TextPohled kPosunova = "210"; // series of the shunting locomotive
constexpr std::array kKolejeDepa = {558, 559, 560, 503, 509, 510};

const GvdVlak& radek(int gvd_index) {
    return gvd_vlaky.at(static_cast<std::size_t>(gvd_index));
}

// 0 fills the rest of a list of tracks; the relief does have an element of that number.
bool volny_prvek(int e) {
    return e != 0 && je_kolej(e) && je_volna(e);
}

template <class Prvky> int prvni_volny(const Prvky& prvky) {
    const auto nalezeny = std::find_if(std::begin(prvky), std::end(prvky), volny_prvek);
    return nalezeny == std::end(prvky) ? -1 : *nalezeny;
}

bool bez_prijezdu(const GvdVlak& r) {
    const int prvni = r.stanice.front();
    return r.prijezdy.front() <= -1 || prvni == 19 || prvni == 20 || prvni == 5;
}

// The text is the number of a train.
bool je_cislo_vlaku(const Text& text, std::int32_t cislo) {
    const auto hodnota = ciselny_text(text);
    return hodnota && *hodnota == cislo;
}

// The train that the row's set goes on as; nothing for rows that keep no set.
std::optional<std::int16_t> predava(const GvdVlak& r) {
    return r.vozy.size() > 1 && r.vozy_vlaky.size() > 1 ? std::optional(r.vozy_vlaky[1]) : std::nullopt;
}

// --- places

// The sense of a train that stands at `stanice` and goes on to `dalsi`.
bool smer_ve_stanici(int stanice, int dalsi) {
    const auto je = [dalsi](std::initializer_list<int> kody) {
        return std::find(kody.begin(), kody.end(), dalsi) != kody.end();
    };
    switch (stanice) {
    case 1: return je({8});
    case 3: return je({32, 8, 24});
    case 7: return je({12, 27, 22, 23, 28, 2, 13});
    case 8: return je({3, 0, 24, 1, 32, 20});
    case 9: return je({7});
    case 10: return true;
    case 11: return je({4});
    case 12: return je({2, 13});
    case 13: return je({21, 6, 14});
    case 14: return je({6, 21});
    case 15: return je({7});
    case 21: return je({6});
    case 22: return je({2, 23});
    case 23: return je({2});
    case 24: return !je({32, 3});
    case 32: return !je({3});
    case 35: return je({13});
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
    case 1: return koleje({86});
    case 3:
        if (druh >= 10)
            return koleje({1});
        if (na({19}))
            return koleje({2});
        if (na({20}))
            return koleje({3});
        return std::nullopt;
    case 7:
        if (na({13}))
            return smer ? Umisteni{{96}, index, true, true} : Umisteni{{93}, index - 1, false, false};
        if (na({22, 2}))
            return smer ? Umisteni{{638}, index, true, true} : Umisteni{{94}, index - 1, false, false};
        if (na({27, 12}))
            return koleje({44, 45});
        return std::nullopt;
    case 8:
        if (druh < 10)
            return na({3, 24, 32}) ? koleje({10, 9, 11}) : koleje({smer ? 12 : 11});
        if (na({3}))
            return koleje({18});
        return na({9}) ? koleje({11, 10}) : koleje({16, 17});
    case 9:
        for (const KolejHlavniStanice& k : kHlavniStanice)
            if (r.kolej == k.kolej)
                return koleje({k.prvky[0], k.prvky[1]});
        return std::nullopt;
    case 11:
        if (druh >= 15)
            return koleje({38, 39});
        return smer ? koleje({36}) : koleje({37, 40});
    case 12: return dalsi == 2 ? koleje({59, 60}) : koleje({50, 51, 54, 52, 53});
    case 13:
        if (druh == 15)
            return koleje({74});
        return smer ? koleje({73, 74}) : koleje({72, 71, 70});
    case 14: return trat(674, 676);
    case 15:
        if (druh == 15)
            return koleje({82, 78});
        return smer ? koleje({79, 78}) : koleje({78, 79});
    case 21: return trat(824, 826);
    case 22: return trat(728, 730);
    case 23: return trat(928, 930);
    case 24: return trat(654, 656);
    case 32: return trat(604, 606);
    case 35: return trat(720, 722);
    default: return std::nullopt;
    }
}

// --- rows of the passes

void umisti_radek(int gvd_index, std::int16_t ted, bool jen_odjinud) {
    const GvdVlak& r = radek(gvd_index);
    if (jen_odjinud == (r.stanice.front() == 9) || !aktivni_dnes(r))
        return;
    int od = r.prijezdy.front();
    if (bez_prijezdu(r))
        od = r.odjezdy.front() - (r.stanice.front() == 9 ? kPredPristavenim : 0);
    int po = r.prijezdy.back() <= -1 ? r.odjezdy.back() : r.prijezdy.back();
    if (od > po)
        po += kDen_min;
    if (ted < od || ted >= po)
        return;
    const auto zastavka =
        std::find_if(r.odjezdy.begin(), r.odjezdy.end(), [ted](std::int16_t t) { return ted < t; });
    if (zastavka == r.odjezdy.end())
        return;
    const auto i = static_cast<std::size_t>(zastavka - r.odjezdy.begin());
    if (i == 1 && ted == od) // the traffic step will see it
        return;
    bool jsou_vozy = false;
    if (kontrola_soupravy(r.cislo, jsou_vozy) != 0)
        return;
    const int predchozi = i > 0 ? r.stanice[i - 1] : 0;
    const int dalsi = i + 1 < r.stanice.size() ? r.stanice[i + 1] : 0;
    umisti_vlak_do_stanice(r.stanice[i], predchozi, dalsi, static_cast<int>(i), gvd_index);
}

// The row's train still calls at the main station.
bool jede_pres_hlavni(const GvdVlak& r, std::int16_t ted) {
    for (std::size_t k = 0; k + 1 < r.stanice.size(); ++k)
        if (r.stanice[k + 1] == 9 && r.odjezdy[k] > ted)
            return true;
    return false;
}

// First row of today with the number that leaves after `ted`; -1 when there is none.
int pozdejsi_radek(double cislo, std::int16_t ted) {
    const auto n = std::find_if(gvd_vlaky.begin(), gvd_vlaky.end(), [=](const GvdVlak& r) {
        return r.cislo == cislo && r.odjezdy.front() > ted && aktivni_dnes(r);
    });
    return n == gvd_vlaky.end() ? -1 : static_cast<int>(n - gvd_vlaky.begin());
}

void lokomotiva_radku(const GvdVlak& r, std::int16_t ted) {
    if ((bez_prijezdu(r) ? r.odjezdy.front() : r.prijezdy.front()) >= ted || !aktivni_dnes(r))
        return;
    const auto navazny = ciselny_text(r.navazny_vlak);
    if (!navazny || *navazny <= 0)
        return;
    const int n = pozdejsi_radek(*navazny, ted);
    if (n < 0)
        return;
    bool jsou_vozy = false;
    kontrola_soupravy(radek(n).cislo, jsou_vozy);
    if (!jsou_vozy && (!souprava_pripravena(n, ted) || jede_pres_hlavni(radek(n), ted)))
        vytvor_lokomotivu(r.loko_rada, 0, false, r.navazny_vlak, true);
}

// --- vehicles

void nasad_posunovou(Vlak& v, std::size_t i) {
    v.vozy[i] = kPosunova;
    v.vozy_urceni[i] = kZaloha;
    v.vozy_obrazek[i] = obrazek_vozu(210);
    ++stav_provozu.pocet_zaloh;
}

// The shunting locomotive takes the place of the vehicle at the side of the depot.
void pripoj_posunovou(Vlak& v, int element) {
    if (v.vozy.empty())
        return;
    if (element == kDepo569) {
        nasad_posunovou(v, 0);
        return;
    }
    for (auto* udaje : {&v.vozy, &v.vozy_urceni, &v.vozy_obrazek})
        std::rotate(udaje->begin(), udaje->begin() + 1, udaje->end());
    nasad_posunovou(v, v.vozy.size() - 1);
}

bool je_jeden_z(int kod, std::initializer_list<int> kody) {
    return std::find(kody.begin(), kody.end(), kod) != kody.end();
}

// First free one of the depot's tracks; -1 none. Without any the locomotive exists, but on no track.
int kolej_depa() {
    return prvni_volny(kKolejeDepa);
}

} // namespace

void zaplneni_kolejiste(std::int16_t ted) {
    vytvor_lokomotivu(kLoko731, kZalohaPriStartu, false, kZaloha, true);
    vlaky_na_trati(ted, false);
    vlaky_na_trati(ted, true);
    soupravy_do_depa(ted);
    krok_provozu();
}

void vlaky_na_trati(std::int16_t ted, bool jen_odjinud) {
    for (std::size_t i = 0; i < gvd_vlaky.size(); ++i)
        umisti_radek(static_cast<int>(i), ted, jen_odjinud);
}

void soupravy_do_depa(std::int16_t ted) {
    for (const GvdVlak& r : gvd_vlaky)
        lokomotiva_radku(r, ted);
}

void umisti_vlak_do_stanice(int stanice, int predchozi, int dalsi, int index, int gvd_index) {
    const auto kde = vyber_koleje(stanice, predchozi, dalsi, index, radek(gvd_index));
    if (!kde)
        return;
    const int element = prvni_volny(kde->koleje);
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
    relief.kolej[element].stav = text_cisla(delka_koleje(element) - 20);
    pis_cislo(element, text_cisla(radek(gvd_index).cislo));
    const int i = vytvor_vlak(smer, element, true, index, gvd_index);
    Vlak& v = vlaky[static_cast<std::size_t>(i)];
    if (element == 96 || element > 600) {
        v.omezeni_ukonceno = true;
        v.rychlost_cesty = 100;
        if (je_jeden_z(element, {638, 654, 606, 96}))
            v.prvky_poloha.front() = 2;
    }
    pridej_do_tabulky(i);
    const auto zastavka = static_cast<std::size_t>(std::max(index, 0));
    if (v.cislo2 > 0 && v.stanice_zmeny != 0 && zastavka < v.stanice.size() &&
        v.stanice_zmeny == v.stanice[zastavka])
        prepni_cislo(i);
    if (index < 1 && v.stanice.size() > 1 && v.stanice[1] == 7 && v.stanice.back() == 4)
        obrat_soupravy(i);
    vlak_v_cili(element, i);
    return i;
}

void cesta_na_trati(int element, int vlak) {
    const CestaNaTrati* vzor = najdi_cestu_na_trati(element);
    if (vzor == nullptr)
        return;
    if (cesty.front().zacatek >= 0)
        cesty.emplace_back();
    Cesta& c = cesty.back();
    c = Cesta{};
    c.zacatek = vzor->zacatek;
    c.konec = vzor->konec;
    const auto prvky = prvky_na_trati(*vzor);
    c.prvky.assign(prvky.begin(), prvky.end());
    c.druhy.assign(prvky.size(), druh_prvku::kolej);
    c.polohy.assign(prvky.size(), 0);
    c.polohy.back() = 2;
    if (element == 638)
        c.polohy.front() = 2;
    c.VC = c.prehozena = c.Postavena = c.Provedena = true;
    c.prejezd = kBezPrejezdu;
    c.ZT = kZTprogramu;
    c.Vlak = na_integer(vlak);

    if (element == 96)
        pis_cislo(632, text_cisla(zobrazene_cislo(vlaky[static_cast<std::size_t>(vlak)])));
    if (!relief.lblSouhlas2.je(vzor->sipka))
        return;
    Prvek& sipka = relief.lblSouhlas2[vzor->sipka];
    nastav_text(sipka, vzor->stoupa ? ">>" : "<<");
    sipka.barva = barvy::azurova;
}

void vytvor_lokomotivu(int rada, int element, bool smer, TextPohled urceni, bool posun) {
    const bool v_depu = element == 0;
    if (v_depu)
        element = std::max(kolej_depa(), 0);
    else if (!je_kolej(element))
        return;
    const auto volny = std::find_if(vlaky.begin(), vlaky.end(), [](const Vlak& v) { return v.cislo < 1; });
    if (volny == vlaky.end())
        return;
    const auto i = static_cast<int>(volny - vlaky.begin());
    Vlak v;
    v.cislo = na_long(74800 + dolu(nahodne() * 200.0));
    v.druh = 16;
    v.max_rychlost = v.rychlost_trati = 80;
    v.delka = 20;
    v.smer = smer;
    v.posun = posun;
    v.muze_jet = true;
    v.loko_rada = na_integer(rada);
    v.vozy = {text_cisla(rada)};
    v.vozy_urceni = {Text(urceni)};
    v.vozy_obrazek = {obrazek_vozu(rada)};
    v.prvky = {na_integer(element)};
    v.prvky_druh = {druh_prvku::kolej};
    v.prvky_poloha = {2};
    v.prvek_konec = 0;
    v.stanice = {34, 9};
    v.prijezd = {kZadny, na_integer(cas_min() + 7)};
    v.odjezd = {cas_min(), kZadny};
    v.odjezd_realny = v.odjezd;
    vlaky[static_cast<std::size_t>(i)] = v;
    if (urceni == kZaloha) {
        ++stav_provozu.pocet_zaloh;
        if (rada == kLoko731)
            stav_provozu.zaloha_731_jede = true;
    }
    if (element == 0)
        return;

    pridej_na_kolej(element, i, smer, -1);
    barvi_prvek(element, barvy::cervena);
    relief.kolej[element].stav = TextPohled("200");
    if (posun) {
        pis_cislo(element, {});
        return;
    }
    pridej_do_tabulky(i);
    pis_cislo(element, text_cisla(v.cislo));
    postav_cesty_z(element);
}

std::int16_t kontrola_soupravy(std::int32_t cislo, bool& jsou_vozy) {
    jsou_vozy = false;
    for (const Vlak& v : vlaky) {
        if (v.cislo < 1)
            continue;
        const bool ma_vozy =
            std::any_of(v.vozy.begin(), v.vozy.end(), [](const Text& vuz) { return !je_loko(vuz); });
        if (v.cislo == cislo && ma_vozy) {
            if (je_cislo_vlaku(v.vozy.front(), v.loko_rada2 > 0 ? v.loko_rada2 : v.loko_rada))
                jsou_vozy = true;
            return -1;
        }
        for (std::size_t i = 0; i < v.vozy.size() && i < v.vozy_urceni.size(); ++i) {
            if (!je_cislo_vlaku(v.vozy_urceni[i], cislo))
                continue;
            if (je_loko(v.vozy[i]))
                return -1;
            jsou_vozy = true;
        }
    }
    std::int16_t vysledek = 0;
    const int ted = minuta_dne(cas_hodin());
    for (const GvdVlak& r : gvd_vlaky) {
        if (!aktivni_dnes(r))
            continue;
        const int m = (r.odjezdy.front() - ted) % kDen_min;
        if (m <= 0 || m >= 45)
            continue;
        if (je_cislo_vlaku(r.navazny_vlak, cislo))
            jsou_vozy = true;
        if (predava(r) == cislo)
            vysledek = -1;
    }
    return vysledek;
}

bool souprava_pripravena(int gvd_index, std::int16_t ted) {
    const std::int32_t cislo = radek(gvd_index).cislo;
    return std::none_of(gvd_vlaky.begin(), gvd_vlaky.end(), [=](const GvdVlak& r) {
        return predava(r) == cislo && r.odjezdy.front() > ted && aktivni_dnes(r);
    });
}

void stanice_start(int gvd_index) {
    const GvdVlak& r = radek(gvd_index);
    bool jsou_vozy = false;
    if (kontrola_soupravy(r.cislo, jsou_vozy) != 0 || (r.vozy.size() == 1 && jsou_vozy))
        return;
    const int element = je_jeden_z(r.stanice.back(), {19, 20, 1}) ? kDepo569 : kDepo538;
    if (!je_kolej(element))
        return;
    if (!je_volna(element)) {
        pridej_cekajici(r.cislo);
        return;
    }
    vyrad_cekajici(gvd_index);
    const int i = vytvor_vlak(true, element, true, kNaVstupu, gvd_index);
    Vlak& v = vlaky[static_cast<std::size_t>(i)];
    v.posun = true;
    pridej_do_tabulky(i);
    barvi_prvek(element, barvy::cervena);
    pridej_na_kolej(element, i, true, -1);
    if (jsou_vozy && v.loko_rada != 560)
        pripoj_posunovou(v, element);
    relief.kolej[element].stav = TextPohled("600");
    posun_po_vytvoreni(i);
    if (element == kDepo538 && !jsou_vozy && stav_provozu.pocet_zaloh < 2)
        pridej_posunovou(i);
}

void posun_po_vytvoreni(int vlak) {
    const Vlak& v = vlaky.at(static_cast<std::size_t>(vlak));
    if (v.vozy.empty() || je_jeden_z(v.loko_rada, {560, 943, 954}) ||
        (v.loko_rada == 843 && v.vozy.back() == "943"))
        return;
    const int druha = v.stanice.size() > 1 ? v.stanice[1] : 0;
    const int treti = v.stanice.size() > 2 ? v.stanice[2] : 0;
    const int posledni = v.stanice.empty() ? 0 : v.stanice.back();
    if (druha == 34 && je_jeden_z(treti, {8, 10, 11})) {
        obrat_soupravy(vlak);
        return;
    }
    // Both may hold, and the order of the vehicles is then as before: this is meant.
    if (posledni == 4 && druha == 7)
        obrat_soupravy(vlak);
    if (je_jeden_z(druha, {5, 8, 1, 3, 20, 19, 10, 11}) || posledni == 4)
        obrat_soupravy(vlak);
}

void pridej_posunovou(int vlak) {
    Vlak& v = vlaky.at(static_cast<std::size_t>(vlak));
    const bool na_konec = !v.vozy.empty() && je_loko(v.vozy.front());
    for (auto* udaje : {&v.vozy, &v.vozy_urceni, &v.vozy_obrazek})
        udaje->insert(na_konec ? udaje->end() : udaje->begin(), Text{});
    nasad_posunovou(v, na_konec ? v.vozy.size() - 1 : 0);
}

void obrat_soupravy(int vlak) {
    Vlak& v = vlaky.at(static_cast<std::size_t>(vlak));
    for (auto* udaje : {&v.vozy, &v.vozy_urceni, &v.vozy_obrazek})
        std::reverse(udaje->begin(), udaje->end());
    v.smer = true;
}
