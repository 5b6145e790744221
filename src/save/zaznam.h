// save/zaznam.h - the saved simulation as it stands in a .sim file: one record of 42 fields.
//
// One description serves writing, reading and measuring. The tables of the simulation go in as they are; the
// state that lives in the colours and captions of the relief goes in as small codes, in arrays whose index
// is the element's number. The file holds nothing but this record; what an older and longer file left behind
// it is no part of the save.
#pragma once

#include "cesty/cesta.h"
#include "desk/stitky.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/prejezdy.h"
#include "zaklad/balik.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// Codes of a signal in automatic mode: this and its colour's code.
inline constexpr std::uint8_t kKodAB = 10;

struct Zaznam {
    Text podpis = "123"; // not tested when read
    std::uint8_t verze_major = 0;
    std::int16_t verze_minor = 0, verze_revize = 0;
    Text cas;                     // clock text
    std::int32_t cas_zacatku = 0; // widened
    std::uint8_t den = 0;         // day bit
    bool pp_povoleno = false, zpozdeni_povoleno = false;
    std::int16_t minuty_simulace = 0;
    Text gvd; // the timetable's name without folder and ".dat"
    std::uint8_t rychlost = 0;
    bool zaloha_731_strana = false, zaloha_731_jede = false;
    std::int16_t nepouzito = 0; // written as 0
    std::int16_t pocet_zaloh = 0;
    std::vector<DalsiVlak> dalsi_vlaky;
    std::vector<Cesta> cesty;
    std::vector<Vlak> vlaky;
    std::vector<StanicniPrejezd> stanicni_prejezdy;
    std::vector<Prejezd> prejezdy;
    std::vector<std::int32_t> cekajici_vlaky;
    std::int16_t prehoz_vyhybka = kZadny;
    std::int32_t prehoz_cas = kZadny;
    std::vector<StitekPrvku> stitky;
    std::vector<KolejVlaky> koleje_vlaky;
    std::array<Text, 3> souhlas_text;
    std::array<std::uint8_t, 3> souhlas_barva{}; // 0 blue, 1 any other
    std::array<Text, 3> souhlas_tag;
    std::array<Text, 3> predvidany_odjezd;
    std::vector<std::int16_t> souhlas2_smer;     // from the lowest lblSouhlas2: -1 for ">>"
    std::vector<std::uint8_t> souhlas2_barva;    // 0 grey, 1 cyan
    std::vector<std::uint8_t> koleje_barva;      // 0 to 999
    std::vector<std::int16_t> koleje_poloha;     // metres of the head
    std::vector<std::uint8_t> vyhybky;           // states; 0 a blank one
    std::vector<Text> koleje_popis;              // captions of the labels, 0 to 999
    std::vector<std::uint8_t> navestidla_barva;  // main and shunting signals in one
    std::vector<std::uint8_t> navestidla_pozadi; // 0 black, 1 grey of a failed lamp
    std::vector<std::uint8_t> vykolejky_znak;    // glyph codes
    std::vector<std::uint8_t> vykolejky_barva;   // 0 grey or black, 1 green, 2 white, 3 red
    std::vector<Text> tabulka;                   // rows of the train table
    std::vector<std::int16_t> tabulka_blikani;   // -1 for a row that flashes
    std::vector<Text> zpravy;                    // delay list, from its first line

    bool operator==(const Zaznam&) const = default;
};

#ifndef __clang__ // clang 14 makes no std::string in a constant expression
static_assert(nejkratsi_zaznam<DalsiVlak>() == 11 && nejkratsi_zaznam<Cesta>() == 57 &&
              nejkratsi_zaznam<Vlak>() == 75 && nejkratsi_zaznam<StanicniPrejezd>() == 13 &&
              nejkratsi_zaznam<Prejezd>() == 12 && nejkratsi_zaznam<StitekPrvku>() == 8 &&
              nejkratsi_zaznam<KolejVlaky>() == 4);
#endif

// A route, or a train that moves, whose lists differ in length is no record: the run-time error 9. What a
// free record holds is read by nobody.
template <class A> void over_seznamy(A& a, TextPohled tabulka, std::size_t i, bool volny) {
    if constexpr (A::cte) {
        if (a.ok && !volny && !a.nestejny.empty())
            chyba(KodChyby::mimo_meze,
                  Text(tabulka) + " " + text_cisla(static_cast<std::int64_t>(i)) + ": " + Text(a.nestejny));
        a.nestejny = {};
    }
}

template <class A, class P> void tri_texty(A& a, P& texty) {
    for (auto& text : texty)
        a.text(text);
}

template <class A, class Z> void popis_zaznamu_simulace(A& a, Z& z) {
    a.text(z.podpis);
    a.b(z.verze_major);
    a.i(z.verze_minor);
    a.i(z.verze_revize);
    a.text(z.cas);
    a.l(z.cas_zacatku);
    a.b(z.den);
    a.f(z.pp_povoleno);
    a.f(z.zpozdeni_povoleno);
    a.i(z.minuty_simulace);
    a.text(z.gvd);
    a.b(z.rychlost);
    a.f(z.zaloha_731_strana);
    a.f(z.zaloha_731_jede);
    a.i(z.nepouzito);
    a.i(z.pocet_zaloh);
    a.pole("dalsi_vlaky", z.dalsi_vlaky);
    a.pole(z.cesty, nejkratsi<Cesta>(), [i = std::size_t{0}](auto& ar, auto& x) mutable {
        popis_poli(ar, x);
        over_seznamy(ar, "cesty", i++, false);
    });
    a.pole(z.vlaky, nejkratsi<Vlak>(), [i = std::size_t{0}](auto& ar, auto& x) mutable {
        popis_poli(ar, x);
        over_seznamy(ar, "vlaky", i++, x.cislo < 1);
    });
    a.pole("stanicni_prejezdy", z.stanicni_prejezdy);
    a.pole("prejezdy", z.prejezdy);
    pole_l(a, z.cekajici_vlaky);
    a.i(z.prehoz_vyhybka);
    a.l(z.prehoz_cas);
    a.pole("stitky", z.stitky);
    a.pole("koleje_vlaky", z.koleje_vlaky);
    tri_texty(a, z.souhlas_text);
    for (auto& kod : z.souhlas_barva)
        a.b(kod);
    tri_texty(a, z.souhlas_tag);
    tri_texty(a, z.predvidany_odjezd);
    pole_i(a, z.souhlas2_smer);
    pole_b(a, z.souhlas2_barva);
    pole_b(a, z.koleje_barva);
    pole_i(a, z.koleje_poloha);
    pole_b(a, z.vyhybky);
    pole_textu(a, z.koleje_popis);
    pole_b(a, z.navestidla_barva);
    pole_b(a, z.navestidla_pozadi);
    pole_b(a, z.vykolejky_znak);
    pole_b(a, z.vykolejky_barva);
    pole_textu(a, z.tabulka);
    pole_i(a, z.tabulka_blikani);
    pole_textu(a, z.zpravy);
}

// --- colours and their codes

// Code of the colour of a track; a colour that is no state of a track has the code 0, and comes back grey.
std::uint8_t kod_barvy(Barva barva);
// Colour of a code 0 to 5; any other is the run-time error 9.
Barva barva_kodu(std::uint8_t kod);
// Of a signal, automatic mode or not; nothing for an unknown code.
std::optional<Barva> barva_navestidla_kodu(std::uint8_t kod);
// Of a derailer: code 0 to 3; any other is the run-time error 9.
Barva barva_vykolejky_kodu(std::uint8_t kod);

// --- the record

// The whole state of the simulation as a record. A metre text beyond 16 bits is the run-time error 6.
Zaznam zaznam_simulace();
// The same into a record that was used before: it keeps its room, so that nothing is taken each minute.
void zaznamenej(Zaznam& zaznam);
// The record's bytes, as they stand in the file.
Bajty bajty_zaznamu(const Zaznam& zaznam);
// The record at the start of the bytes; whatever follows it is left. Run-time error 62 when they end before
// it does or hold no such record.
Zaznam precti_zaznam(std::span<const std::uint8_t> bajty);
