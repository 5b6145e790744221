// gvd/gvd.cpp - reads the timetable and names stations and categories.
#include "gvd/gvd.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "prvky/souhlasy.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace {

constexpr std::array<TextPohled, 19> kDruhyVlaku = {{{},
                                                     "EC"_cz,
                                                     "IC"_cz,
                                                     "SC"_cz,
                                                     "Ex"_cz,
                                                     "R"_cz,
                                                     "Sp"_cz,
                                                     "Os"_cz,
                                                     "Zvl"_cz,
                                                     {},
                                                     "Nex"_cz,
                                                     "Rn"_cz,
                                                     "Sv"_cz,
                                                     "Vn"_cz,
                                                     "Pn"_cz,
                                                     "Mn"_cz,
                                                     "Lv"_cz,
                                                     "Slu"_cz,
                                                     "Vle"_cz}};

// The users of a row ask for the last element of these lists without testing that there is one.
bool pouzitelny(const GvdVlak& radek) {
    return !radek.zastavky.empty() && !radek.vozy.empty() && !radek.vozy_vlaky.empty();
}

void cti_hlavicku(Ctenar& c, Text& popis) {
    c.preskoc(4); // read by nobody
    c.text(popis);
}

// Minute of the day of the row's entry; a file may hold any number.
std::size_t minuta_vstupu(const GvdVlak& radek) {
    return static_cast<std::size_t>((cas_vstupu(radek) % kDen_min + kDen_min) % kDen_min);
}

// The number as a key; nothing for one that no train can have.
std::optional<std::int32_t> klic_cisla(double cislo) {
    const bool cele = cislo >= std::numeric_limits<std::int32_t>::min() &&
                      cislo <= std::numeric_limits<std::int32_t>::max() && dolu(cislo) == cislo;
    return cele ? std::optional(static_cast<std::int32_t>(cislo)) : std::nullopt;
}

} // namespace

TabulkaGvd::TabulkaGvd(std::vector<GvdVlak> nove) : radky(std::move(nove)), podle_minut(radky.size()) {
    for (std::size_t i = 0; i < radky.size(); ++i) {
        const GvdVlak& r = radky[i];
        const int radek = static_cast<int>(i);
        ++zacatky[minuta_vstupu(r) + 1];
        cisla.push_back({r.cislo, radek});
        if (const auto navazny = ciselny_text(r.navazny_vlak))
            if (const auto klic = klic_cisla(*navazny))
                navazne.push_back({*klic, radek});
        if (r.vozy.size() > 1 && r.vozy_vlaky.size() > 1)
            predane.push_back({r.vozy_vlaky[1], radek});
    }
    std::partial_sum(zacatky.begin(), zacatky.end(), zacatky.begin());
    auto kam = zacatky;
    for (std::size_t i = 0; i < radky.size(); ++i)
        podle_minut[kam[minuta_vstupu(radky[i])]++] = static_cast<int>(i);
    for (auto* rejstrik : {&cisla, &navazne, &predane})
        std::sort(rejstrik->begin(), rejstrik->end());
}

std::span<const int> TabulkaGvd::v_minute(int minuta) const {
    const auto m = static_cast<std::size_t>(minuta);
    return std::span(podle_minut).subspan(zacatky[m], zacatky[m + 1] - zacatky[m]);
}

TabulkaGvd::Zapisy TabulkaGvd::najdi(const std::vector<Zapis>& rejstrik, double klic) {
    const auto hledany = klic_cisla(klic);
    if (!hledany)
        return {};
    const auto od = std::lower_bound(rejstrik.begin(), rejstrik.end(), Zapis{*hledany, 0});
    const auto po = std::find_if(od, rejstrik.end(), [=](const Zapis& z) { return z.klic != *hledany; });
    return {od, po};
}

void nacti_gvd() {
    nacti_gvd_z(nacti_soubor(simulace.soubor_gvd));
}

void nacti_gvd_z(std::span<const std::uint8_t> bajty) {
    Ctenar c{bajty};
    Text popis;
    cti_hlavicku(c, popis);
    std::vector<GvdVlak> nove;
    while (c.ok && !c.na_konci()) {
        GvdVlak radek;
        c.nestejny = {};
        popis_poli(c, radek);
        if (c.ok && c.nestejny.empty() && pouzitelny(radek))
            nove.push_back(std::move(radek));
    }
    gvd_vlaky = TabulkaGvd(std::move(nove));
}

Text popis_gvd(TextPohled soubor) {
    Text popis;
    try {
        const Bajty bajty = nacti_soubor(soubor);
        Ctenar c{bajty};
        cti_hlavicku(c, popis);
    } catch (const BehovaChyba&) {
        popis.clear();
    }
    return popis;
}

bool aktivni_dnes(const GvdVlak& radek) {
    return ((radek.dny & 128) != 0 && simulace.pp_povoleno) || (radek.dny & simulace.den) != 0;
}

bool bez_prijezdu(const GvdVlak& radek) {
    const ZastavkaGvd& prvni = radek.zastavky.front();
    return prvni.prijezd <= -1 || uzel::konec_ke_stanici(prvni.stanice) >= 0;
}

std::int16_t cas_vstupu(const GvdVlak& radek) {
    return bez_prijezdu(radek) ? radek.zastavky.front().odjezd : radek.zastavky.front().prijezd;
}

TextPohled nazev_stanice(int kod) {
    if (kod == kZadny)
        kod = dopravna::tesk;
    return kod >= 0 && kod < static_cast<int>(uzel::kStanice.size())
               ? uzel::kStanice[static_cast<std::size_t>(kod)].nazev
               : TextPohled{};
}

TextPohled kod_stanice(int kod) {
    return kod >= 0 && kod < static_cast<int>(uzel::kStanice.size())
               ? uzel::kStanice[static_cast<std::size_t>(kod)].kod
               : TextPohled{};
}

TextPohled zkratka_druhu(int druh) {
    return druh >= 0 && druh < static_cast<int>(kDruhyVlaku.size())
               ? kDruhyVlaku[static_cast<std::size_t>(druh)]
               : TextPohled{};
}

Text druh_a_cislo(int druh, std::int32_t cislo) {
    const TextPohled zkratka = zkratka_druhu(druh);
    return (zkratka.empty() ? Text{} : Text(zkratka) + " ") + text_cisla(cislo);
}
