// gvd/obrazky_vozu.cpp - pictures of vehicles: by the series from the folder, by the type from rules.
#include "gvd/obrazky_vozu.h"

#include "app/simulace.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace {

// --- by the series

struct SlozkaObrazku {
    Text cesta;
    std::uint64_t otisk = 0;
    std::vector<Text> jmena;
};
SlozkaObrazku slozka_obrazku; // listed anew when the folder has changed

const std::vector<Text>& obrazky() {
    const Text cesta = simulace.cesta_aplikace + "DATA\\VOZY\\";
    const std::uint64_t otisk = otisk_souboru(cesta);
    if (cesta != slozka_obrazku.cesta || otisk != slozka_obrazku.otisk || otisk == 0)
        slozka_obrazku = {cesta, otisk, soubory_slozky(cesta, "*_*.*")};
    return slozka_obrazku.jmena;
}

// The name ends, in front of one of its "_", with the series, and has a suffix behind it.
bool patri_k_rade(TextPohled jmeno, TextPohled rada_s_podtrzitkem) {
    const std::size_t misto = jmeno.find(rada_s_podtrzitkem);
    return misto != TextPohled::npos &&
           jmeno.find('.', misto + rada_s_podtrzitkem.size()) != TextPohled::npos;
}

int vaha(TextPohled jmeno) {
    const std::size_t podtrzitko = jmeno.find('_');
    if (podtrzitko + 1 >= jmeno.size() || jmeno[podtrzitko + 1] == ' ')
        return 0;
    return cele_z_textu(jmeno.substr(podtrzitko + 1));
}

// --- by the type

struct Pravidlo {
    TextPohled text, obrazek;
};
// Coaches that their owner marks, then those of one class, then types of any owner.
constexpr std::array kZnacene = {
    Pravidlo{"DB B", "DB B.ico"},
    Pravidlo{"DB A", "DB A.ico"},
    Pravidlo{"DB W", "DB Wrmz.ico"},
    Pravidlo{"ZSSK B", "ZSSK B.ico"},
};
constexpr std::array kDalsi = {
    Pravidlo{"MÁV Bcmz"_cz, "MÁV Bcmz.ico"_cz},
    Pravidlo{"MÁV B"_cz, "MÁV B.ico"_cz},
    Pravidlo{"MÁV A"_cz, "MÁV A.ico"_cz},
    Pravidlo{"ZSSK Apeer", "ZSSK A.ico"},
};
constexpr std::array kObecne = {
    Pravidlo{"BDs", "BDs.ico"},
    Pravidlo{"BR", "BR.ico"},
    Pravidlo{"Post", "Post.ico"},
};
// By the beginning: coaches by their class, wagons by the letters of their kind.
constexpr std::array kPodleZacatku = {
    Pravidlo{"A", "A.ico"},
    Pravidlo{"B", "B.ico"},
    Pravidlo{"ÖBB A"_cz, "ÖBB A.ico"_cz},
    Pravidlo{"ÖBB B"_cz, "ÖBB Bmz61.ico"_cz},
    Pravidlo{"WL", "WL.ico"},      // sleeping car
    Pravidlo{"D", "Ds.ico"},       // luggage van
    Pravidlo{"Ea", "Eas.ico"},     // open
    Pravidlo{"Fa", "Falls.ico"},   // hopper
    Pravidlo{"Fc", "Falls.ico"},   //
    Pravidlo{"Ga", "Gbs.ico"},     // covered
    Pravidlo{"Gb", "Gbs.ico"},     //
    Pravidlo{"Ha", "Habbins.ico"}, // with sliding walls
    Pravidlo{"Hb", "Habbins.ico"}, //
    Pravidlo{"Kb", "Kbs.ico"},     // flat, two axles
    Pravidlo{"Ki", "Kbs.ico"},     //
    Pravidlo{"La", "Laaers.ico"},  // for cars
    Pravidlo{"Re", "Res.ico"},     // flat
    Pravidlo{"Rg", "Res.ico"},     //
    Pravidlo{"Ri", "Rils.ico"},    // flat under a tarpaulin
    Pravidlo{"Sg", "Sgnss.ico"},   // for containers
    Pravidlo{"Sh", "Shimmns.ico"}, // for coils
    Pravidlo{"Ta", "Tads.ico"},    // with an opening roof
    Pravidlo{"Td", "Tads.ico"},    //
    Pravidlo{"Ua", "Uacs.ico"},    // for powder
    Pravidlo{"Uc", "Uacs.ico"},    //
    Pravidlo{"Za", "Zaes.ico"},    // tank
};

bool obsahuje(TextPohled typ, TextPohled co) {
    return typ.find(co) != TextPohled::npos;
}

bool obsahuje_neco(TextPohled typ, std::initializer_list<TextPohled> co) {
    return std::any_of(co.begin(), co.end(), [typ](TextPohled c) { return obsahuje(typ, c); });
}

// Picture of the first rule whose text stands in the type; empty when none does.
template <class Pravidla> TextPohled podle_obsahu(const Pravidla& pravidla, TextPohled typ) {
    for (const Pravidlo& p : pravidla)
        if (obsahuje(typ, p.text))
            return p.obrazek;
    return {};
}

TextPohled podle_zacatku(TextPohled typ) {
    for (const Pravidlo& p : kPodleZacatku)
        if (typ.starts_with(p.text))
            return p.obrazek;
    return {};
}

} // namespace

Text obrazek_vozu(int rada) {
    return obrazek_vozu(text_cisla(rada));
}

// Sorted names, so that the same draw gives the same picture on every machine; the first one whose
// running sum of weights reaches the draw.
Text obrazek_vozu(TextPohled rada) {
    const Text hledana = Text(rada) + "_";
    const std::vector<Text>& jmena = obrazky();
    std::int64_t soucet = 0;
    for (const Text& jmeno : jmena)
        if (patri_k_rade(jmeno, hledana))
            soucet += vaha(jmeno);
    if (soucet == 0)
        return {};
    const auto x = static_cast<std::int64_t>(dolu(nahodne() * static_cast<double>(soucet)));
    std::int64_t dosud = 0;
    for (const Text& jmeno : jmena)
        if (patri_k_rade(jmeno, hledana)) {
            dosud += vaha(jmeno);
            if (dosud >= x)
                return jmeno;
        }
    return {};
}

// The rules in their order; the first one that holds names the picture.
Text obrazek_vozu_textem(TextPohled text) {
    const Text typ = nahrad_v_textu(Text(text), "OBB", "ÖBB"_cz);
    if (const TextPohled obrazek = podle_obsahu(kZnacene, typ); !obrazek.empty())
        return Text(obrazek);
    if (typ == "ÖBB Bmpz"_cz || typ == "ÖBB Bmpz61"_cz)
        return Text("ÖBB Bmz61.ico"_cz);
    if (const TextPohled obrazek = podle_obsahu(kDalsi, typ); !obrazek.empty())
        return Text(obrazek);
    if (obsahuje(mala_pismena(typ), "wr")) // dining cars: WR, WRm, wrm
        return "wrm.ico";
    if (obsahuje_neco(typ, {"Bee", "Bpee", "Bmee"}))
        return "Bee.ico";
    if (obsahuje_neco(typ, {"Bp", "Bdt", "Bg", "Bt", "Btee"}))
        return "B.ico";
    if (const TextPohled obrazek = podle_obsahu(kObecne, typ); !obrazek.empty())
        return Text(obrazek);
    return Text(podle_zacatku(typ));
}
