// relief/obrazovka.cpp - the elements of the screen's own: which there are, where they stand.
//
// The desk, in pixels of one monitor (1024 by 768): the top bar 0 to 20, the command line 22 to 40,
// the relief 46 to 596, the status strip 598 to 614, the bottom panel 616 to 768. The signal panel lies
// in the right upper corner of the relief. With two monitors the relief goes over both.
#include "relief/relief.h"

namespace {

constexpr int kBod = 15; // twips to a pixel

constexpr Barva kPozadiTlacitka = 0xE0E0E0;
constexpr Barva kStisknuteTlacitko = 0x800000;
constexpr Barva kZnackaTabulky = 0x404040;

struct Obdelnik {
    int x, y, sirka, vyska; // pixels
};

enum class Zarovnani : std::uint8_t { vlevo, vpravo, na_stred };

// One element of the screen, or a row of elements alike.
struct Misto {
    Druh druh;
    int od;
    Obdelnik kde;
    TextPohled text_{};
    Barva barva_ = barvy::bila;
    Barva pozadi_ = barvy::cerna;
    bool ramecek = false;
    bool viditelny = true;
    bool povoleny = true;
    bool podle_textu = false;
    Zarovnani zarovnani = Zarovnani::vlevo;
    int obrazek_ = 0;
    TextPohled tip_{};
    int pocet = 1, krok_x = 0, krok_y = 0;

    // Further ones behind it, each so many pixels from the one before.
    consteval Misto rada(int kolik, int dx, int dy) const {
        Misto m = *this;
        m.pocet = kolik, m.krok_x = dx, m.krok_y = dy;
        return m;
    }
    consteval Misto barva(Barva co) const {
        Misto m = *this;
        m.barva_ = co;
        return m;
    }
    consteval Misto pozadi(Barva co) const { // drawn
        Misto m = *this;
        m.pozadi_ = co, m.ramecek = true;
        return m;
    }
    consteval Misto obrazek(int cislo) const {
        Misto m = *this;
        m.obrazek_ = cislo;
        return m;
    }
    consteval Misto tip(TextPohled co) const {
        Misto m = *this;
        m.tip_ = co;
        return m;
    }
    consteval Misto skryty() const {
        Misto m = *this;
        m.viditelny = false;
        return m;
    }
    consteval Misto nepovoleny() const {
        Misto m = *this;
        m.povoleny = false;
        return m;
    }
    consteval Misto velikost_podle_textu() const {
        Misto m = *this;
        m.podle_textu = true;
        return m;
    }
    consteval Misto vpravo() const {
        Misto m = *this;
        m.zarovnani = Zarovnani::vpravo;
        return m;
    }
    consteval Misto na_stred() const {
        Misto m = *this;
        m.zarovnani = Zarovnani::na_stred;
        return m;
    }
};

consteval Misto prvek(Druh druh, Obdelnik kde, TextPohled text = {}) {
    return {druh, 0, kde, text};
}
consteval Misto prvek_c(Druh druh, int cislo, Obdelnik kde, TextPohled text = {}) {
    return {druh, cislo, kde, text};
}
consteval Misto tlacitko(Druh druh, Obdelnik kde, TextPohled text) {
    return prvek(druh, kde, text).barva(barvy::cerna).pozadi(kPozadiTlacitka).na_stred();
}

constexpr Misto kMista[] = {
    // --- top bar
    prvek(Druh::imglista_horni, {0, 0, 1024, 20}),
    prvek(Druh::imgToc, {2, 2, 16, 16}).obrazek(110),
    prvek(Druh::lblcas, {22, 3, 72, 14}, "0:00:00"_cz).skryty(),
    prvek(Druh::lblDEN, {98, 3, 64, 14}),
    prvek(Druh::lblGVD, {166, 3, 120, 14}).barva(barvy::seda),
    prvek(Druh::lblcas_od_zacatku, {290, 3, 48, 14}, "0"_cz).barva(barvy::seda).vpravo(),
    prvek(Druh::lblrychlost_simulace, {344, 3, 24, 14}).na_stred(),
    prvek(Druh::lblPauza, {376, 3, 56, 14}, "PAUZA"_cz).pozadi(barvy::cervena).na_stred().skryty(),
    prvek(Druh::lblPrava, {440, 3, 130, 14}, "B - DISPEČER"_cz),
    prvek(Druh::lblVerze, {576, 3, 290, 14}).barva(barvy::seda),
    prvek(Druh::imgSound, {902, 2, 16, 16}).obrazek(kObrazekZvukZapnut),
    prvek(Druh::imgUloz, {922, 2, 16, 16}),
    prvek(Druh::imgDEBUG, {942, 2, 16, 16}).tip("Ladící výpis"_cz),
    prvek(Druh::imgPauza, {962, 2, 16, 16}).tip("Pauza [F10]"_cz),
    prvek(Druh::imgMinimalizuj, {982, 2, 16, 16}).tip("Minimalizovat okno simulace [F11]"_cz),
    prvek(Druh::imgKONEC, {1002, 2, 16, 16}),
    prvek(Druh::imgV1, {0, 0, 16, 16}).skryty(), // the relief tells its place

    // --- command line
    prvek(Druh::lblPrikaz, {0, 25, 0, 13}).pozadi(barvy::cerna).velikost_podle_textu().skryty(),
    prvek(Druh::lblVolba, {0, 25, 1024, 13}).barva(barvy::cerna).pozadi(barvy::bila).skryty(),
    prvek(Druh::txtZadav_pole, {0, 23, 400, 17})
        .barva(barvy::cerna)
        .pozadi(barvy::bila)
        .skryty()
        .nepovoleny(),
    prvek(Druh::lblMakro_pismeno, {984, 25, 40, 13}).barva(barvy::oranzova).na_stred(),

    // --- signal panel
    prvek(Druh::lblNavestidlo_stanice, {930, 48, 88, 13}).na_stred(),
    prvek(Druh::lblnavestidlo, {930, 63, 88, 13}).na_stred(),
    // lamps: upper yellow, green, red, white, lower yellow, blue
    prvek(Druh::svetlo, {966, 82, 14, 14}).rada(6, 0, 15).skryty(),
    prvek(Druh::pruh, {958, 161, 30, 4}).rada(2, 0, 6).skryty(),

    // --- status strip
    prvek(Druh::lblZasobnik_pocet, {4, 599, 24, 14}, "00"_cz),
    prvek(Druh::lblZasobnik_EZ, {32, 599, 24, 14}, "EZ"_cz),
    prvek(Druh::lblZasobnik_PV, {60, 599, 24, 14}, "PV"_cz).barva(barvy::seda),
    prvek(Druh::lblZasobnik_VZ, {88, 599, 24, 14}, "VZ"_cz).barva(barvy::bila),
    prvek(Druh::lblZasobnik_blokv, {120, 599, 400, 14}).skryty(),
    prvek(Druh::lblMereni_casu, {540, 599, 80, 14}, " MĚŘ.Č."_cz)
        .barva(barvy::cerna)
        .pozadi(barvy::azurova)
        .skryty(),
    prvek_c(Druh::lblPN, 1, {640, 599, 380, 14}).vpravo().skryty(),

    // --- bottom panel: its four buttons, then what they show; the train table is open at first
    tlacitko(Druh::cmdZpravy, {4, 617, 80, 19}, "ZPRÁVY"_cz),
    tlacitko(Druh::cmDenik, {86, 617, 80, 19}, "DENÍK"_cz),
    tlacitko(Druh::cmdTABULKA, {168, 617, 80, 19}, "TABULKA"_cz)
        .barva(barvy::bila)
        .pozadi(kStisknuteTlacitko),
    tlacitko(Druh::cmdVLAK, {250, 617, 80, 19}, "VLAK"_cz),
    prvek(Druh::lblIinfo_o_vlaku, {4, 640, 1016, 26}).skryty(),

    // Row 0 is where it stays; the start lays the others out under it, in three columns.
    prvek(Druh::lblTabulka_vlaku, {42, 640, 270, 13}).rada(24, 0, 0),
    prvek(Druh::shpblikacka, {8, 643, 11, 8}).barva(kZnackaTabulky).rada(48, 0, 0),

    // Vehicles of the train on display: the panel moves them side by side.
    prvek(Druh::imgObrzaek_vlaku, {4, 686, 80, 40}).rada(40, 80, 0).skryty().nepovoleny(),
    prvek(Druh::imgSberac, {4, 670, 24, 14}).skryty(),
    prvek(Druh::lblPopis_vozu, {4, 728, 80, 13}).rada(40, 80, 0).na_stred().skryty(),
    prvek(Druh::lblPokracuje, {980, 700, 40, 14}, ">>>"_cz).skryty(),

    // --- in the relief
    // Minute of the announced departure; the start puts each beside its consent lamp.
    prvek(Druh::lblPredvidany_odjezd, {4, 50, 24, 13}).rada(3, 0, 13).velikost_podle_textu().skryty(),
    prvek(Druh::shpVyhledavani, {0, 0, 0, 0}).skryty(),
};

// Kinds of the layout: their element 0 exists before any file is read, invisible and blank.
constexpr Druh kDruhyKolejiste[] = {
    Druh::kolej,          Druh::most,         Druh::cislo_koleje,  Druh::navestidlo,
    Druh::navestidlo_ser, Druh::imgVyhybka,   Druh::Image1,        Druh::lblSouhlas,
    Druh::lblSouhlas2,    Druh::lblPrejezd,   Druh::lblPrejezdy,   Druh::shpPrejezdy,
    Druh::lblnastupiste,  Druh::lblVykolejka, Druh::popis_stanice, Druh::imgStanoviste,
};

TabulkaPrvku& tabulka_v(Relief& r, Druh druh) {
    return r.*kDruhy[static_cast<std::size_t>(druh)].tabulka;
}

void umisti(Relief& r, const Misto& m) {
    for (int k = 0; k < m.pocet; ++k) {
        Prvek& p = tabulka_v(r, m.druh).zaloz(m.od + k);
        p.vlastni_velikost = m.podle_textu;
        p.zarovnani = static_cast<std::uint8_t>(m.zarovnani);
        p.vlevo = (m.kde.x + k * m.krok_x) * kBod;
        p.nahore = (m.kde.y + k * m.krok_y) * kBod;
        p.sirka = m.kde.sirka * kBod;
        p.vyska = m.kde.vyska * kBod;
        p.text = m.text_;
        p.popis = m.tip_;
        p.barva = m.barva_;
        p.pozadi = m.pozadi_;
        p.viditelny = m.viditelny;
        p.ramecek = m.ramecek;
        p.povoleny = m.povoleny;
        p.obrazek = static_cast<std::int16_t>(m.obrazek_);
    }
}

} // namespace

Relief novy_relief() {
    Relief r;
    for (const Druh druh : kDruhyKolejiste)
        tabulka_v(r, druh).zaloz(0);
    for (const Misto& m : kMista)
        umisti(r, m);
    return r;
}
