// app/kontrola_majitelu.cpp - who owns what the relief shows.
#include "app/kontrola_majitelu.h"

#include "app/nova_simulace.h"
#include "cesty/cesta.h"
#include "cesty/drzeni.h"
#include "jizda/vlak.h"
#include "prvky/barvi_prvek.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <vector>

namespace {

constexpr std::size_t kPrvku = kNejvyssiPrvek + 1;
using Mnozina = std::bitset<kPrvku>;

enum class Pravidlo : std::uint8_t {
    volna_obsazena, // a track is red and no train holds it
    volna_uzavrena, // a track is locked and no route holds it
    dve_cesty,      // two train routes hold one track
    zaver_vyhybky,  // a switch is locked and no route holds it
    obsazeni_vyhybky,
    poloha_vyhybky, // a locked switch does not lie as its route demands
    pohyb_vyhybky,  // a locked switch moves
    navest,         // a signal shows proceed and no route leads from it
    seznam_koleje,  // the trains of a track are not those that hold it
};

struct Prestupek {
    Pravidlo pravidlo;
    std::int16_t cislo;
    bool operator==(const Prestupek&) const = default;
};
using Prestupky = std::vector<Prestupek>;

Prestupky prijate;               // what stood there before anybody looked
bool prijmout_vse = true;        // the next look takes everything as it is
std::uint64_t videne_poradi = 0; // of the simulation at the last look

// --- the owners

struct Majitele {
    Mnozina vlak_kolej, vlak_vyhybka; // held by trains, and the switch that the next step enters
    Mnozina cesta_kolej, cesta_vyhybka;
    Mnozina dve_cesty;
    Mnozina navest;         // start signals of routes that may be shown
    Mnozina zadana_vyhybka; // named by a route that does not hold it
};
Majitele majitele;

// Trains on the switches at the last look.
using VlakyNaVyhybkach = std::array<std::int16_t, kPrvku>;
constexpr VlakyNaVyhybkach kZadneVlaky = [] {
    VlakyNaVyhybkach zadne{};
    zadne.fill(kZadny);
    return zadne;
}();
VlakyNaVyhybkach drive_na_vyhybce{};

// A train that leaves the junction before its tail has left a switch leaves it occupied, and NOUZ is the
// operator's way.
bool odjel_z_vyhybky(int n) {
    if (n < 0 || n > kNejvyssiPrvek)
        return false;
    const int v = drive_na_vyhybce[static_cast<std::size_t>(n)];
    return v >= 0 && static_cast<std::size_t>(v) < vlaky.size() &&
           vlaky[static_cast<std::size_t>(v)].cislo < 1;
}

template <class Co> void projdi_drzene(const Vlak& v, Co co) {
    if (v.cislo < 1)
        return;
    for (std::size_t j = static_cast<std::size_t>(std::max<int>(v.prvek_konec, 0)); j < v.prvky.size(); ++j)
        co(v.prvky[j].prvek, v.prvky[j].druh == druh_prvku::vyhybka);
}

void zapamatuj_vyhybky() {
    drive_na_vyhybce = kZadneVlaky;
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        projdi_drzene(vlaky[i], [i](int n, bool vyhybka) {
            if (vyhybka && n >= 0 && n <= kNejvyssiPrvek)
                drive_na_vyhybce[static_cast<std::size_t>(n)] = static_cast<std::int16_t>(i);
        });
}

void pridej(Mnozina& mnozina, int n) {
    if (n >= 0 && n <= kNejvyssiPrvek)
        mnozina.set(static_cast<std::size_t>(n));
}
bool je(const Mnozina& mnozina, int n) {
    return n >= 0 && n <= kNejvyssiPrvek && mnozina.test(static_cast<std::size_t>(n));
}

void zapis_vlak(const Vlak& v) {
    projdi_drzene(
        v, [](int n, bool vyhybka) { pridej(vyhybka ? majitele.vlak_vyhybka : majitele.vlak_kolej, n); });
}

// Tracks that no route paints: they may be shared.
bool jen_sipkou(int n) {
    return je_usek_trati(n) || uzel::je_hranicni(n);
}

void zapis_zaver(const Cesta& c, std::size_t k, Mnozina& vlakove) {
    const int n = c.prvky[k].prvek;
    const bool pred_celem = k > c.Umazat;
    switch (druh_na(c, k)) {
    case druh_prvku::kolej:
        pridej(majitele.cesta_kolej, n);
        if (c.VC && !c.PN && pred_celem && !jen_sipkou(n)) {
            if (je(vlakove, n))
                pridej(majitele.dve_cesty, n);
            pridej(vlakove, n);
        }
        break;
    case druh_prvku::vyhybka:
        // two coupled switches are occupied together, a step before the head comes to the second one
        if (k == std::size_t{c.Umazat} + 1 && c.Vlak >= 0 && !c.PN_zaver)
            pridej(majitele.vlak_vyhybka, n);
        if (drzi(c, k))
            pridej(majitele.cesta_vyhybka, n);
        else if (pred_celem && !c.PN_zaver)
            pridej(majitele.zadana_vyhybka, n);
        break;
    default: break;
    }
}

void zapis_cestu(const Cesta& c, Mnozina& vlakove) {
    if (c.zacatek < 0)
        return;
    if (c.Postavena && c.cas_ruseni < 0 && (c.Umazat == 0 || c.PN || prvni_prvek(c) >= kDruhyStitek))
        pridej(majitele.navest, c.zacatek);
    if (!c.prehozena)
        return;
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        zapis_zaver(c, k, vlakove);
    pridej(majitele.cesta_kolej, c.konec);
}

void zjisti_majitele() {
    majitele = Majitele{};
    for (const Vlak& v : vlaky)
        zapis_vlak(v);
    Mnozina vlakove;
    for (const Cesta& c : cesty)
        zapis_cestu(c, vlakove);
}

// --- what has none

// The short piece of track 4 wears the colour of switch 14; twins wear that of their track.
bool je_jen_obraz(int n) {
    return n == 4 || vzor_zrcadla(n) >= 0;
}

// The elements that somebody must own: tracks that are coloured, switches occupied or locked, signals at
// proceed. They are few, and are looked up among all when one of them changes.
struct NeniVKlidu {
    std::optional<std::uint64_t> revize;
    std::vector<int> koleje, vyhybky, navestidla;
};
NeniVKlidu neni_v_klidu;

void pridej_navestidla(const TabulkaPrvku& tabulka_navestidel) {
    for (int n = 1; n <= tabulka_navestidel.nejvyssi(); ++n) {
        if (!tabulka_navestidel.je(n))
            continue;
        const Barva barva = tabulka_navestidel[n].barva;
        if (barva == barvy::zelena || barva == barvy::bila)
            neni_v_klidu.navestidla.push_back(n);
    }
}

void najdi_co_neni_v_klidu() {
    if (neni_v_klidu.revize == revize_stavu)
        return;
    neni_v_klidu = {revize_stavu, {}, {}, {}};
    for (int n = 1; n <= relief.kolej.nejvyssi(); ++n) {
        if (!relief.kolej.je(n))
            continue;
        const Barva barva = relief.kolej[n].barva;
        if (barva != barvy::seda && barva != barvy::purpurova && !je_jen_obraz(n))
            neni_v_klidu.koleje.push_back(n);
    }
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n)
        if (relief.imgVyhybka.je(n) && !relief.imgVyhybka[n].stav->empty() &&
            stav_vyhybky_cislo(n) >= stav_vyhybky::vlak)
            neni_v_klidu.vyhybky.push_back(n);
    pridej_navestidla(relief.navestidlo);
    pridej_navestidla(relief.navestidlo_ser);
}

void over_kolej(int n, Prestupky& nalezy) {
    if (je(majitele.vlak_kolej, n))
        return;
    const auto cislo = static_cast<std::int16_t>(n);
    if (relief.kolej[n].barva == barvy::cervena)
        nalezy.push_back({Pravidlo::volna_obsazena, cislo});
    else if (!je(majitele.cesta_kolej, n) && !odjete.test(static_cast<std::size_t>(n)))
        nalezy.push_back({Pravidlo::volna_uzavrena, cislo});
}

void over_vyhybku(int n, Prestupky& nalezy) {
    const int stav = stav_vyhybky_cislo(n);
    const auto cislo = static_cast<std::int16_t>(n);
    if (vyhybka_v_pohybu(n))
        nalezy.push_back({Pravidlo::pohyb_vyhybky, cislo});
    const bool obsazena = stav >= stav_vyhybky::obsazena && stav < stav_vyhybky::posun;
    if (obsazena && !je(majitele.vlak_vyhybka, n) && odjel_z_vyhybky(n))
        prijate.push_back({Pravidlo::obsazeni_vyhybky, cislo});
    if (obsazena && !je(majitele.vlak_vyhybka, n))
        nalezy.push_back({Pravidlo::obsazeni_vyhybky, cislo});
    // out of a derailer a switch is entered without being shown occupied
    if (!obsazena && !je(majitele.cesta_vyhybka, n) && !je(majitele.vlak_vyhybka, n))
        nalezy.push_back(
            {je(majitele.zadana_vyhybka, n) ? Pravidlo::poloha_vyhybky : Pravidlo::zaver_vyhybky, cislo});
}

// A train that was shortened stays in the lists of the tracks behind it until it moves.
bool je_nebo_byl(const Vlak& v, int kolej) {
    return v.cislo > 0 && obsahuje(v.prvky, kolej);
}

// The list of a numbered track holds each train on it once, and no other.
void over_seznam(const KolejVlaky& k, Prestupky& nalezy) {
    for (auto v = k.vlaky.begin(); v != k.vlaky.end(); ++v)
        if (*v >= 0 && (static_cast<std::size_t>(*v) >= vlaky.size() ||
                        !je_nebo_byl(vlaky[static_cast<std::size_t>(*v)], k.prvek) ||
                        std::find(k.vlaky.begin(), v, *v) != v)) {
            nalezy.push_back({Pravidlo::seznam_koleje, k.prvek});
            return;
        }
}

Prestupky prestupky() {
    Prestupky nalezy;
    zjisti_majitele();
    najdi_co_neni_v_klidu();
    for (const int n : neni_v_klidu.koleje)
        over_kolej(n, nalezy);
    for (const int n : neni_v_klidu.vyhybky)
        over_vyhybku(n, nalezy);
    for (int n = 1; n <= kNejvyssiPrvek && majitele.dve_cesty.any(); ++n)
        if (je(majitele.dve_cesty, n))
            nalezy.push_back({Pravidlo::dve_cesty, static_cast<std::int16_t>(n)});
    for (const int n : neni_v_klidu.navestidla)
        if (!je(majitele.navest, n))
            nalezy.push_back({Pravidlo::navest, static_cast<std::int16_t>(n)});
    for (const KolejVlaky& k : koleje_vlaky)
        over_seznam(k, nalezy);
    return nalezy;
}

Text veta(const Prestupek& p) {
    struct Veta {
        TextPohled druh, co;
    };
    constexpr auto kolej = "kolej "_cz, vyhybka = "výhybka "_cz, navestidlo = "návěstidlo "_cz;
    const auto slozena = [&p](TextPohled druh, TextPohled co) {
        Text text(druh);
        text += text_cisla(p.cislo);
        text += ": ";
        text += co;
        return text;
    };
    switch (p.pravidlo) {
    case Pravidlo::volna_obsazena: return slozena(kolej, "je obsazená a žádný vlak na ní není"_cz);
    case Pravidlo::volna_uzavrena: return slozena(kolej, "je pod závěrem a žádná cesta ji nedrží"_cz);
    case Pravidlo::dve_cesty: return slozena(kolej, "drží ji dvě vlakové cesty"_cz);
    case Pravidlo::zaver_vyhybky: return slozena(vyhybka, "je pod závěrem a žádná cesta ji nedrží"_cz);
    case Pravidlo::obsazeni_vyhybky: return slozena(vyhybka, "je obsazená a žádný vlak na ní není"_cz);
    case Pravidlo::poloha_vyhybky: return slozena(vyhybka, "neleží, jak žádá její cesta"_cz);
    case Pravidlo::pohyb_vyhybky: return slozena(vyhybka, "přestavuje se pod závěrem"_cz);
    case Pravidlo::navest: return slozena(navestidlo, "dovoluje jízdu a žádná cesta od něj nevede"_cz);
    case Pravidlo::seznam_koleje: return slozena(kolej, "seznam vlaků neodpovídá tomu, kdo na ní je"_cz);
    }
    return {};
}

} // namespace

std::optional<Text> kontrola_majitelu() {
    if (!relief.lblcas.je(0) || !relief.lblcas[0].viditelny) {
        prijmi_majitele();
        return std::nullopt;
    }
    if (const std::uint64_t poradi = poradi_simulace(); poradi != videne_poradi) {
        prijmi_majitele();
        videne_poradi = poradi;
    }
    Prestupky nalezy = prestupky();
    const auto novy = std::find_if(nalezy.begin(), nalezy.end(), [](const Prestupek& p) {
        return std::find(prijate.begin(), prijate.end(), p) == prijate.end();
    });
    std::optional<Text> nalez;
    if (!prijmout_vse && novy != nalezy.end())
        nalez = veta(*novy);
    prijmout_vse = false;
    prijate = std::move(nalezy);
    zapamatuj_vyhybky();
    return nalez;
}

void prijmi_majitele() {
    prijmout_vse = true;
    prijate.clear();
    drive_na_vyhybce = kZadneVlaky;
}
