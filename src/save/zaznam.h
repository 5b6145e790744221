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
    std::int16_t prehoz_vyhybka = -3;
    std::int32_t prehoz_cas = -3;
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

// Shortest forms of the records in arrays, bytes: a count that the rest of the file cannot hold is refused
// before anything is allocated.
namespace delka_zaznamu {
inline constexpr std::size_t dalsi_vlak = 11;
inline constexpr std::size_t stanicni_prejezd = 13;
inline constexpr std::size_t prejezd = 12;
inline constexpr std::size_t cesta = 57;
inline constexpr std::size_t vlak = 75;
inline constexpr std::size_t stitek = 8;
inline constexpr std::size_t kolej_vlaky = 4;
} // namespace delka_zaznamu

template <class A, class Z> void popis_dalsiho_vlaku(A& a, Z& z) {
    a.i(z.cas);
    a.l(z.cislo);
    a.b(z.druh);
    a.i(z.predpoklad);
    a.preskoc(2); // always 0
}

template <class A, class Z> void popis_cesty_zaznamu(A& a, Z& z) {
    a.i(z.zacatek);
    a.i(z.konec);
    pole_i(a, z.prvky);
    pole_b(a, z.druhy);
    pole_b(a, z.polohy);
    a.l(z.Kdy_prehoz);
    a.b(z.rychlost);
    a.f(z.VC);
    a.f(z.PN);
    a.l(z.PN_do);
    a.f(z.PN_zaver);
    a.l(z.cas_stavby);
    a.f(z.prehozena);
    a.f(z.Postavena);
    a.f(z.Provedena);
    a.l(z.cas_ruseni);
    a.l(z.barva_cisla);
    a.i(z.Vlak);
    a.b(z.Umazat);
    a.i(z.vyhybka);
    a.i(z.varovani);
    a.preskoc(2); // always 0
    a.b(z.prejezd);
    a.f(z.prejezd_zaver);
    a.i(z.ZT);
}

template <class A, class Z> void popis_vlaku(A& a, Z& z) {
    pole_b(a, z.stanice);
    pole_i(a, z.prijezd);
    pole_i(a, z.odjezd);
    pole_i(a, z.odjezd_realny);
    a.b(z.druh);
    a.l(z.cislo);
    a.b(z.druh2);
    a.l(z.cislo2);
    a.b(z.stanice_zmeny);
    a.f(z.posun);
    a.text(z.nazev);
    a.b(z.max_rychlost);
    a.i(z.delka);
    a.i(z.gvd_hodnota);
    a.i(z.loko_rada);
    a.i(z.loko_rada2);
    a.i(z.hodnota_2);
    pole_textu(a, z.vozy);
    pole_textu(a, z.vozy_urceni);
    pole_textu(a, z.vozy_obrazek);
    a.text(z.poznamka);
    a.text(z.pokyn);
    a.b(z.dny);
    a.b(z.priznaky);
    a.i(z.stanice_index);
    a.f(z.muze_jet);
    pole_i(a, z.prvky);
    pole_b(a, z.prvky_druh);
    pole_b(a, z.prvky_poloha);
    a.i(z.prvek_konec);
    a.f(z.smer);
    a.b(z.rychlost);
    a.b(z.rychlost_trati);
    a.b(z.rychlost_cesty);
    a.i(z.konec_omezeni);
    a.f(z.omezeni_ukonceno);
    a.i(z.rezerva);
    a.f(z.cislo2_platne);
    a.i(z.zpozdeni_vstup);
    a.i(z.zpozdeni);
}

template <class A, class Z> void popis_stanicniho_prejezdu(A& a, Z& z) {
    a.f(z.uzavren);
    a.f(z.UZ);
    a.i(z.rezerva1);
    a.i(z.rezerva2);
    a.l(z.cas);
    a.b(z.pocet);
}

template <class A, class Z> void popis_prejezdu(A& a, Z& z) {
    a.f(z.zona);
    a.f(z.vyluka);
    a.f(z.uvolnen);
    a.i(z.kolej);
    a.i(z.poloha);
    a.text(z.nazev);
}

template <class A, class Z> void popis_stitku(A& a, Z& z) {
    a.i(z.prvek);
    a.text(z.stitek);
    a.text(z.nvl);
    a.text(z.vyluka);
}

template <class A, class Z> void popis_koleje_vlaku(A& a, Z& z) {
    a.i(z.prvek);
    pole_i(a, z.vlaky);
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
    a.pole(z.dalsi_vlaky, delka_zaznamu::dalsi_vlak, [](auto& ar, auto& x) { popis_dalsiho_vlaku(ar, x); });
    a.pole(z.cesty, delka_zaznamu::cesta, [](auto& ar, auto& x) { popis_cesty_zaznamu(ar, x); });
    a.pole(z.vlaky, delka_zaznamu::vlak, [](auto& ar, auto& x) { popis_vlaku(ar, x); });
    a.pole(z.stanicni_prejezdy, delka_zaznamu::stanicni_prejezd,
           [](auto& ar, auto& x) { popis_stanicniho_prejezdu(ar, x); });
    a.pole(z.prejezdy, delka_zaznamu::prejezd, [](auto& ar, auto& x) { popis_prejezdu(ar, x); });
    pole_l(a, z.cekajici_vlaky);
    a.i(z.prehoz_vyhybka);
    a.l(z.prehoz_cas);
    a.pole(z.stitky, delka_zaznamu::stitek, [](auto& ar, auto& x) { popis_stitku(ar, x); });
    a.pole(z.koleje_vlaky, delka_zaznamu::kolej_vlaky, [](auto& ar, auto& x) { popis_koleje_vlaku(ar, x); });
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
// The record's bytes, as they stand in the file.
Bajty bajty_zaznamu(const Zaznam& zaznam);
// The record at the start of the bytes; whatever follows it is left. Run-time error 62 when they end before
// it does or hold no such record.
Zaznam precti_zaznam(std::span<const std::uint8_t> bajty);
