// app/blikani.cpp - the blink step.
#include "app/blikani.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/prejezdy.h"

#include <array>
#include <cstddef>

namespace {

constexpr int kZnacek = 24;             // marks in a column; the second mark of row i is i + 24
constexpr int kPrvniObrazekHodin = 110; // the clock picture runs 110 to 113
constexpr int kPosledniObrazekHodin = 113;
constexpr Barva kModrozelena = 0x808000;
constexpr Barva kOkrajVyluka = barvy::cervena;
constexpr Barva kOkrajBezVyluky = 0x008000;

void znacky_tabulky() {
    TabulkaPrvku& znacky = relief.shpblikacka;
    for (int i = 0; i < kZnacek; ++i) {
        const bool sviti = blikani.blikani_radku[static_cast<std::size_t>(i)];
        const bool druha = sviti && znacky[i].barva != kZnackaVypnuta;
        znacky[i].barva = sviti && !druha ? kZnackaRozsvicena : kZnackaVypnuta;
        znacky[i + kZnacek].barva = druha ? kZnackaRozsvicena : kZnackaVypnuta;
    }
}

void prikazovy_radek() {
    if (!prikaz_radek.blikani_prikazu)
        return;
    Prvek& prikaz = relief.lblPrikaz[0];
    prikaz.viditelny = !prikaz.viditelny();
    if (simulace.dva_monitory && relief.lblPrikaz.je(1))
        relief.lblPrikaz[1].viditelny = prikaz.viditelny;
    if (prikaz.viditelny)
        pipni(450, 200);
}

void obrazek_hodin() {
    Prvek& toc = relief.imgToc[0];
    const int dalsi = toc.obrazek >= kPosledniObrazekHodin ? kPrvniObrazekHodin : toc.obrazek + 1;
    toc.obrazek = static_cast<std::int16_t>(dalsi);
    if (simulace.dva_monitory && relief.imgToc2.je(0))
        relief.imgToc2[0].obrazek = toc.obrazek;
}

// The lamp of a line whose neighbour asks moves by one place to the right and back; the glyph stays the
// last character whatever happens.
void lampy_souhlasu() {
    bool ceka = false;
    for (int k = 0; k < 3; ++k) {
        if (!relief.lblSouhlas.je(k))
            continue;
        Prvek& lampa = relief.lblSouhlas[k];
        const Text& text = lampa.text;
        const bool pta_se = souhlasy.zada[static_cast<std::size_t>(k)].has_value();
        ceka = ceka || pta_se;
        if (pta_se && text.size() == 1)
            nastav_text(lampa, " " + text);
        else if (text.size() > 1)
            nastav_text(lampa, Text(1, text.back()));
    }
    if (ceka && !simulace.ticho_souhlasu)
        pipni(500, 40);
}

void zavri_prejezd_vcas(std::size_t k) {
    StanicniPrejezd& prejezd = stanicni_prejezdy[k];
    if (prejezd.cas <= 0 || ted_s() <= prejezd.cas)
        return;
    prejezd.cas = kZadny;
    if (!prejezd.uzavren)
        gtn_zapis(static_cast<int>(k), gtn::prejezd, 1);
    prejezd.uzavren = true;
}

// Ten glyphs; 16 is a lit lamp, 13 a piece of the barrier line.
constexpr TextPohled kLampyZavreno = "\x10\x0D\x0D\x0D\x0D\x0D\x0D\x0D\x0D\x10",
                     kLampyStridave = "\x0D\x10\x0D\x10\x0D\x10\x0D\x10\x0D\x10",
                     kLampyObracene = "\x10\x0D\x10\x0D\x10\x0D\x10\x0D\x10\x0D";

void ukaz_prejezd(int k) {
    if (!relief.lblPrejezd.je(k))
        return;
    const StanicniPrejezd& prejezd = stanicni_prejezdy[static_cast<std::size_t>(k)];
    Prvek& lampy = relief.lblPrejezd[k];
    const auto nastav = [&](bool ramecek, TextPohled text) {
        lampy.ramecek = ramecek;
        nastav_text(lampy, text);
    };
    if (prejezd.pocet != kBezVlaku || prejezd.uzavren)
        nastav(false, kLampyZavreno);
    else if (prejezd.cas <= -1)
        nastav(true, kLampyStridave);
    else if (lampy.text->size() > 2 && lampy.text()[2] == '\x0D') // warning: the two pictures take turns
        nastav(false, kLampyObracene);
    else
        nastav(true, kLampyZavreno);
}

void ukaz_skupinu(const uzel::SkupinaPrejezdu& s) {
    bool znama = false, zona = false, uvolnen = false, vyluka = false;
    for (const int n : s.prejezdy) {
        if (n < 0 || static_cast<std::size_t>(n) >= prejezdy.size())
            continue;
        const Prejezd& prejezd = prejezdy[static_cast<std::size_t>(n)];
        znama = true;
        zona = zona || prejezd.zona;
        uvolnen = uvolnen || prejezd.uvolnen;
        vyluka = vyluka || prejezd.vyluka;
    }
    if (!znama)
        return;
    if (relief.shpPrejezdy.je(s.napis + uzel::kLampyPrejezdu))
        relief.shpPrejezdy[s.napis + uzel::kLampyPrejezdu].viditelny = zona;
    if (relief.lblPrejezdy.je(s.napis))
        relief.lblPrejezdy[s.napis].barva = uvolnen ? barvy::bila : kModrozelena;
    if (s.vyluka && relief.shpPrejezdy.je(s.napis))
        relief.shpPrejezdy[s.napis].okraj = vyluka ? kOkrajVyluka : kOkrajBezVyluky;
}

void prejezdy_trati() {
    for (const uzel::SkupinaPrejezdu& s : uzel::kSkupinyPrejezdu)
        ukaz_skupinu(s);
}

void nova_zprava() {
    if (!simulace.nova_zprava)
        return;
    relief.cmdZpravy[0].pozadi = barvy::zelena;
    if (!relief.lstZpravy.radky.empty())
        relief.lstZpravy.vybrany = 0;
    ++revize_reliefu;
    pipni(500, 50);
    simulace.nova_zprava = false;
}

// The frame closes in on the element that was looked for.
void ramecek_hledani() {
    if (blikani.ramecek_hledani <= 0)
        return;
    Prvek& p = relief.shpVyhledavani[0];
    p.vlevo = p.vlevo() + 40;
    p.nahore = p.nahore() + 40;
    p.sirka = p.sirka() - 80;
    p.vyska = p.vyska() - 80;
    --blikani.ramecek_hledani;
    p.viditelny = blikani.ramecek_hledani % 2 == 0;
}

} // namespace

void ukaz_prejezdy() {
    for (int k = 0; k < 2; ++k)
        ukaz_prejezd(k);
    prejezdy_trati();
}

void krok_blikani() {
    if (simulace.pauza)
        return;
    znacky_tabulky();
    prikazovy_radek();
    obrazek_hodin();
    lampy_souhlasu();
    for (std::size_t k = 0; k < stanicni_prejezdy.size(); ++k)
        zavri_prejezd_vcas(k);
    ukaz_prejezdy();
    nova_zprava();
    if (simulace.pn_bezi)
        pipni(1200, 30);
    ramecek_hledani();
}
