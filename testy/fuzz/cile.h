// testy/fuzz/cile.h - every reader of a file, ready to be fed with any bytes.
//
// A target reads the bytes and then checks what must hold whatever they were; it ends the process when
// that fails. fuzz.cpp makes a libFuzzer program of each, poskozene_soubory_test.cpp an ordinary test.
#pragma once

#include "gvd/gvd.h"
#include "pomocne/male_kolejiste.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace fuzz {

using Vstup = std::span<const std::uint8_t>;

inline void musi(bool plati, const char* co) {
    if (plati)
        return;
    std::fprintf(stderr, "does not hold: %s\n", co);
    std::abort();
}

// Records one behind another: what was read is written and read again unchanged.
template <class Zaznam, class Popis> void zaznamy(Vstup vstup, Popis popis) {
    if (vstup.size() > 0x7FFF) // a longer text would be cut when written
        return;
    Ctenar soubor{vstup};
    for (;;) {
        const std::size_t od = soubor.misto;
        Zaznam zaznam;
        popis(soubor, zaznam);
        if (!soubor.ok)
            return;
        musi(soubor.misto > od, "a record takes bytes");
        Zapisovac zapis;
        const Zaznam& precteny = zaznam;
        popis(zapis, precteny);
        Zaznam znovu;
        Ctenar zpet{zapis.bajty};
        popis(zpet, znovu);
        musi(zpet.ok && zpet.na_konci() && znovu == zaznam, "a record reads back as it was");
    }
}

inline void zkus_relief(Vstup vstup) {
    zaznamy<ZaznamReliefu>(vstup, [](auto& a, auto& z) { popis_reliefu(a, z); });
    relief = novy_relief();
    nacti_relief(vstup);
    for (const PopisDruhu& druh : kDruhy)
        musi((relief.*druh.tabulka).nejvyssi() <= kNejvyssiPrvek, "no element beyond 999");
}
inline Bajty vzor_reliefu() {
    return soubor_reliefu(relief_maleho_kolejiste());
}

inline void zkus_topologii(Vstup vstup) {
    for (const std::int16_t delka : delky_kolejiste(vstup))
        musi(delka > 0 && delka <= 9999, "a length has one to four digits");
}
inline Bajty vzor_topologie() {
    return soubor_topologie(kMaleDelky);
}

inline void zkus_prejezdy(Vstup vstup) {
    zaznamy<ZaznamPrejezdu>(vstup, [](auto& a, auto& z) { popis_zaznamu_prejezdu(a, z); });
    nacti_prejezdy(vstup);
    musi(prejezdy.size() <= vstup.size() / 7, "a crossing takes seven bytes at least");
    for (const Prejezd& prejezd : prejezdy)
        musi(!prejezd.zona && !prejezd.vyluka && !prejezd.uvolnen, "no crossing has a train at the start");
}
inline Bajty vzor_prejezdu() {
    return soubor_prejezdu({{0, "BOR 1", 640, 500}, {1, "", 690, -1}, {2, "pole", 640, 900}});
}

inline void zkus_gvd(Vstup vstup) {
    zaznamy<GvdVlak>(vstup, [](auto& a, auto& z) { popis_gvd_vlaku(a, z); });
}
inline Bajty vzor_gvd() {
    GvdVlak vlak;
    vlak.stanice = {2, 9, 12};
    vlak.prijezdy = {-1, 600, 620};
    vlak.odjezdy = {590, 605, -1};
    vlak.vozy = {"560", "Bp"};
    vlak.vozy_vlaky = {0, 4701};
    vlak.nazev = "Tesk";
    Zapisovac soubor;
    popis_gvd_vlaku(soubor, vlak);
    popis_gvd_vlaku(soubor, vlak);
    return soubor.bajty;
}

// Texts from files: conversions of characters and numbers.
inline void zkus_texty(Vstup vstup) {
    const TextPohled text(reinterpret_cast<const char*>(vstup.data()), vstup.size());
    musi(z_utf8(na_utf8(text)) == text, "the code page goes to Unicode and back");
    musi(z_utf8(text).size() <= text.size(), "UTF-8 has no more characters than bytes");
    musi(stejne_bez_velikosti(mala_pismena(text), velka_pismena(text)), "case folds both ways");
    const double cislo = cislo_z_textu(text);
    musi(cislo == cislo, "a lenient number is a number");
    musi(cele_z_textu(text) >= 0, "digits have no sign");
    if (const auto prisne = ciselny_text(text))
        musi(*prisne == cislo, "a numeric text is the same number leniently");
    try {
        const std::int16_t cele = na_integer(cislo);
        musi(cislo_z_textu(text_cisla(cele)) == cele, "a number is written and read back");
    } catch (const BehovaChyba& e) {
        musi(e.kod == KodChyby::preteceni, "what does not fit overflows");
    }
}
inline Bajty vzor_textu() {
    return bajty_textu(" +12.50\xB4 Zpo\x9E"
                       "d\xECn\xED \xC5\xA1 99999999999");
}

struct Cil {
    std::string_view jmeno;
    void (*zkus)(Vstup);
    Bajty (*vzor)(); // a valid file
};
inline constexpr std::array kCile = {
    Cil{"relief", zkus_relief, vzor_reliefu},      Cil{"topologie", zkus_topologii, vzor_topologie},
    Cil{"prejezdy", zkus_prejezdy, vzor_prejezdu}, Cil{"gvd", zkus_gvd, vzor_gvd},
    Cil{"texty", zkus_texty, vzor_textu},
};

} // namespace fuzz
