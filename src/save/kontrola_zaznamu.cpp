// save/kontrola_zaznamu.cpp - a saved record held against the relief and against itself.
#include "save/kontrola_zaznamu.h"

#include "app/cas.h"
#include "desk/stav_blikani.h"
#include "gvd/stav_provozu.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/relief.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kHledanyRozdil_min = 100;        // a time mark further off than this is one of another day
constexpr int kNejvyssiPoloha = 49;            // position of a switch
constexpr std::size_t kNejviceZaznamu = 32768; // indices have 16 bits

[[noreturn]] void vada(Text co) {
    chyba(KodChyby::mimo_meze, std::move(co));
}

void musi(bool plati, TextPohled co) {
    if (!plati)
        vada(Text(co));
}

void musi(bool plati, TextPohled tabulka, std::size_t i, TextPohled co) {
    if (plati)
        return;
    Text text(tabulka);
    text += " " + text_cisla(static_cast<std::int64_t>(i)) + ": ";
    text += co;
    vada(std::move(text));
}

// Positions that are demanded of switches, of a route or under a train.
bool jsou_polohy(const std::vector<PrvekCesty>& prvky, std::size_t od) {
    return std::all_of(prvky.begin() + static_cast<std::ptrdiff_t>(od), prvky.end(), [](const PrvekCesty& p) {
        return p.druh != druh_prvku::vyhybka || (p.poloha >= 1 && p.poloha <= kNejvyssiPoloha);
    });
}

void over_cesty(const Zaznam& z) {
    musi(!z.cesty.empty() && z.cesty.size() <= kNejviceZaznamu, "cesty");
    for (std::size_t i = 0; i < z.cesty.size(); ++i) {
        const Cesta& c = z.cesty[i];
        musi(!c.prvky.empty(), "cesty", i, "prvky");
        if (c.zacatek < 0)
            continue;
        musi(c.zacatek <= kNejvyssiPrvek && c.konec >= 0 && c.konec <= kNejvyssiPrvek, "cesty", i, "konec");
        musi(c.Provedena || navestidla(c.zacatek).je(c.zacatek), "cesty", i, "zacatek");
        // cleared is locked, locked is commanded, and what is commanded is locked at its second
        musi((!c.Postavena || c.Provedena) && (!c.Provedena || c.prehozena), "cesty", i, "Postavena");
        musi(!c.prehozena || c.Provedena || c.Kdy_prehoz >= 0, "cesty", i, "Kdy_prehoz");
        musi(c.prvky.front().druh == druh_prvku::kolej, "cesty", i, "druhy");
        musi(jsou_polohy(c.prvky, 0), "cesty", i, "polohy");
    }
}

void over_vlaky(const Zaznam& z) {
    musi(!z.vlaky.empty() && z.vlaky.size() <= kNejviceZaznamu, "vlaky");
    for (std::size_t i = 0; i < z.vlaky.size(); ++i) {
        const Vlak& v = z.vlaky[i];
        if (v.cislo < 1)
            continue;
        if (v.prvky.empty())
            continue;
        musi(v.prvek_konec >= 0 && static_cast<std::size_t>(v.prvek_konec) < v.prvky.size(), "vlaky", i,
             "prvek_konec");
        musi(jsou_polohy(v.prvky, static_cast<std::size_t>(v.prvek_konec)), "vlaky", i, "prvky_poloha");
    }
    musi(!z.koleje_vlaky.empty() && z.koleje_vlaky.size() <= kNejviceZaznamu, "koleje_vlaky");
    for (std::size_t i = 0; i < z.koleje_vlaky.size(); ++i) {
        const KolejVlaky& k = z.koleje_vlaky[i];
        musi(k.prvek >= 0 && k.prvek <= kNejvyssiPrvek && !k.vlaky.empty(), "koleje_vlaky", i, "prvek");
        for (const std::int16_t v : k.vlaky)
            musi(v == kZadny || (v >= 0 && static_cast<std::size_t>(v) < z.vlaky.size()), "koleje_vlaky", i,
                 "vlaky");
    }
}

// An array of the snapshot that is shorter than the relief would be read past its end.
void over_relief(const Zaznam& z) {
    const auto pokryva = [](std::size_t delka, const TabulkaPrvku& prvky) {
        return delka >= static_cast<std::size_t>(prvky.nejvyssi() + 1);
    };
    musi(pokryva(z.koleje_barva.size(), relief.kolej), "koleje_barva");
    musi(pokryva(z.koleje_poloha.size(), relief.kolej), "koleje_poloha");
    musi(pokryva(z.koleje_popis.size(), relief.cislo_koleje), "koleje_popis");
    musi(pokryva(z.vyhybky.size(), relief.imgVyhybka), "vyhybky");
    musi(pokryva(z.vykolejky_znak.size(), relief.lblVykolejka), "vykolejky_znak");
    musi(pokryva(z.vykolejky_barva.size(), relief.lblVykolejka), "vykolejky_barva");
    musi(z.tabulka.size() == static_cast<std::size_t>(relief.lblTabulka_vlaku.nejvyssi() + 1), "tabulka");
    musi(z.tabulka_blikani.size() == blikani.blikani_radku.size(), "tabulka_blikani");
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n)
        if (relief.imgVyhybka.je(n)) // a switch that can be thrown has a state for ever
            musi((z.vyhybky[static_cast<std::size_t>(n)] == 0) == relief.imgVyhybka[n].stav->empty(),
                 "vyhybky", static_cast<std::size_t>(n), "stav");
    for (const std::uint8_t kod : z.koleje_barva)
        barva_kodu(kod);
    for (const std::uint8_t kod : z.vykolejky_barva)
        barva_vykolejky_kodu(kod);
}

} // namespace

void over_hlavicku(const Zaznam& z) {
    if (!je_text_casu(z.cas))
        chyba(KodChyby::neshoda_typu, z.cas);
    na_integer(static_cast<std::int64_t>(z.cas_zacatku));
    musi(z.cas_zacatku >= -1 && z.cas_zacatku < kDen_min, "cas_zacatku");
    musi(std::has_single_bit(z.den) && z.den <= 64, "den");
    musi(z.rychlost <= 8, "rychlost");
    musi(z.minuty_simulace >= 0, "minuty_simulace");
    musi(z.gvd.find_first_of(TextPohled("/\\\0", 3)) == Text::npos, "gvd");
    musi(z.dalsi_vlaky.size() == stav_provozu.dalsi_vlaky.size(), "dalsi_vlaky");
    musi(z.stanicni_prejezdy.size() == stanicni_prejezdy.size(), "stanicni_prejezdy");
    musi(z.prejezdy.size() <= kNejviceZaznamu, "prejezdy");
    musi(!z.cekajici_vlaky.empty(), "cekajici_vlaky");
    musi(!z.stitky.empty() && z.stitky.size() <= kNejviceZaznamu, "stitky");
}

std::int16_t casova_znacka(const Zaznam& z) {
    const std::int32_t minuta = sekundy_textu(z.cas) / 60;
    std::int16_t m = na_integer(static_cast<std::int64_t>(minuta) - z.cas_zacatku);
    while (std::abs(m - z.minuty_simulace) > kHledanyRozdil_min)
        m = na_integer(m + kDen_min);
    return m;
}

void over_tabulky(const Zaznam& z) {
    over_cesty(z);
    over_vlaky(z);
    over_relief(z);
}
