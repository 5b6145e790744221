// gvd/gvd.cpp - reads the timetable and names stations and categories.
#include "gvd/gvd.h"

#include "app/simulace.h"
#include "gvd/dopravny.h"
#include "prvky/souhlasy.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <array>

std::vector<GvdVlak> gvd_vlaky;

namespace {

struct Stanice {
    TextPohled nazev, kod;
};

// By station code. 27 and 31 are the two ends of one yard, 28 and 30 of one depot.
constexpr std::array<Stanice, 39> kStanice = {{
    {},
    {"Lhotín"_cz, "LHO"_cz},
    {"Borovec"_cz, "BOR"_cz},
    {"Javořín"_cz, "JAV"_cz},
    {"Dubnice"_cz, "DUB"_cz},
    {"Vrbice"_cz, "VRB"_cz},
    {"Rokytno"_cz, "ROK"_cz},
    {"Rybnice"_cz, {}},
    {"Vyšní Hrabov"_cz, "TVH"_cz},
    {"Tesk hl. n."_cz, "THN"_cz},
    {"Kamenec"_cz, {}}, // 10
    {"Mokřina"_cz, {}},
    {"Hájovice"_cz, "THJ"_cz},
    {"Knížecí Luka"_cz, "TKL"_cz},
    {"Olšany"_cz, {}},
    {"dolní n."_cz, {}},
    {"PVS"_cz, {}},
    {"ONA"_cz, "ONA"_cz},
    {"ONB"_cz, "ONB"_cz},
    {"Pol. Lhota"_cz, "PLH"_cz},
    {"Hvozdy"_cz, "HVO"_cz}, // 20
    {"Zlatá"_cz, {}},
    {"Jívová/Bystrou"_cz, {}},
    {"Javorná/Bystrou"_cz, {}},
    {"Podolí"_cz, {}},
    {},
    {},
    {"Hájovice s.n."_cz, "THS"_cz},
    {"DKV"_cz, "DKV"_cz},
    {},
    {"DKV"_cz, "DKV"_cz}, // 30
    {"Hájovice s.n."_cz, "THS"_cz},
    {"Javořín dolní"_cz, {}},
    {"Pošta"_cz, "PST"_cz},
    {"DKV VH"_cz, "DVH"_cz},
    {"Tesk Lipina"_cz, {}},
    {"Veselá"_cz, {}},
    {"Skalka"_cz, {}},
    {"Ořechov"_cz, {}},
}};

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

// The users of a row ask for the last element of these arrays without testing that there is one, and
// use one index for all three times.
bool pouzitelny(const GvdVlak& radek) {
    return !radek.stanice.empty() && radek.prijezdy.size() == radek.stanice.size() &&
           radek.odjezdy.size() == radek.stanice.size() && !radek.vozy.empty() && !radek.vozy_vlaky.empty();
}

void cti_hlavicku(Ctenar& c, Text& popis) {
    c.preskoc(4); // read by nobody
    c.text(popis);
}

} // namespace

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
        popis_gvd_vlaku(c, radek);
        if (c.ok && pouzitelny(radek))
            nove.push_back(std::move(radek));
    }
    gvd_vlaky = std::move(nove);
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
    return radek.prijezdy.front() <= -1 || konec_ke_stanici(radek.stanice.front()) >= 0;
}

std::int16_t cas_vstupu(const GvdVlak& radek) {
    return bez_prijezdu(radek) ? radek.odjezdy.front() : radek.prijezdy.front();
}

TextPohled nazev_stanice(int kod) {
    if (kod == kZadny)
        kod = dopravna::tesk;
    return kod >= 0 && kod < static_cast<int>(kStanice.size()) ? kStanice[static_cast<std::size_t>(kod)].nazev
                                                               : TextPohled{};
}

TextPohled kod_stanice(int kod) {
    return kod >= 0 && kod < static_cast<int>(kStanice.size()) ? kStanice[static_cast<std::size_t>(kod)].kod
                                                               : TextPohled{};
}

TextPohled zkratka_druhu(int druh) {
    return druh >= 0 && druh < static_cast<int>(kDruhyVlaku.size())
               ? kDruhyVlaku[static_cast<std::size_t>(druh)]
               : TextPohled{};
}
