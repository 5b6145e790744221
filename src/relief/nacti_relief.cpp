// relief/nacti_relief.cpp - from the records of the relief file to the elements of the store.
#include "relief/nacti_relief.h"

#include "app/simulace.h"
#include "relief/relief.h"
#include "relief/soubor_reliefu.h"
#include "relief/tvary_vyhybek.h"
#include "uzel/kresba.h"
#include "uzel/prejezdy.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>

namespace {

constexpr int kOdsazeniLampy1 = -100; // of the lamps of a line crossing from its number, twips
constexpr int kOdsazeniLampy2 = 150;
constexpr int kPrumerLampy = 100;
constexpr Barva kOkrajLampy1 = 0x008000; // no possession
constexpr Barva kOkrajLampy2 = 0xC0C0C0;
constexpr int kStranaStanoviste = 320;

Text glyfy(std::initializer_list<int> kody) {
    Text text;
    for (const int kod : kody)
        text += znak(kod);
    return text;
}

// The element n of a kind, visible and on top of those before it; none for a number outside the table.
Prvek* zaloz_prvek(TabulkaPrvku& kam, int n) {
    if (n < 0 || n > kNejvyssiPrvek)
        return nullptr;
    Prvek& prvek = kam.zaloz(n);
    prvek.viditelny = true;
    do_popredi(prvek);
    return &prvek;
}

void umisti_caru(TabulkaPrvku& kam, const ZaznamReliefu& z) {
    Prvek* cara = zaloz_prvek(kam, z.cislo);
    if (cara == nullptr)
        return;
    cara->x1 = z.a;
    cara->x2 = z.b;
    cara->y1 = z.c;
    cara->y2 = z.d;
    cara->barva = barvy::seda;
}

// An element at the record's corner.
Prvek* umisti(TabulkaPrvku& kam, const ZaznamReliefu& z) {
    Prvek* prvek = zaloz_prvek(kam, z.cislo);
    if (prvek != nullptr) {
        prvek->vlevo = z.a;
        prvek->nahore = z.c;
    }
    return prvek;
}

// The same with the record's width and height.
Prvek* umisti_obdelnik(TabulkaPrvku& kam, const ZaznamReliefu& z) {
    Prvek* prvek = umisti(kam, z);
    if (prvek != nullptr) {
        prvek->sirka = z.b;
        prvek->vyska = z.d;
    }
    return prvek;
}

// A label as large as its caption, grey until the logic paints it.
Prvek* umisti_napis(TabulkaPrvku& kam, const ZaznamReliefu& z, TextPohled text) {
    Prvek* prvek = umisti(kam, z);
    if (prvek != nullptr) {
        prvek->vlastni_velikost = true;
        prvek->barva = barvy::seda;
        nastav_text(*prvek, text);
    }
    return prvek;
}

void napis_pozadi(int vlevo, int nahore, std::initializer_list<int> kody) {
    relief.napisy.push_back({vlevo, nahore, glyfy(kody)});
}

// Pieces of track with a mark of their own, by number: exceptions of this junction.
void umisti_kolej(const ZaznamReliefu& z) {
    umisti_caru(relief.kolej, z);
    if (je_v(z.cislo, uzel::kSkryteKoleje))
        relief.kolej[z.cislo].viditelny = false;
    if (je_v(z.cislo, uzel::kPokracujiVpravo))
        napis_pozadi(z.b, z.d - 70, {20, 20, 20});
    if (je_v(z.cislo, uzel::kPokracujiVlevo))
        napis_pozadi(z.a - 400, z.c - 70, {20, 20, 20});
    if (z.cislo == uzel::kKolejObrazkuV1 && relief.imgV1.je(0)) {
        relief.imgV1[0].vlevo = z.b + 100;
        relief.imgV1[0].nahore = z.d - 180;
        relief.imgV1[0].viditelny = true;
    }
}

void umisti_navestidlo(const ZaznamReliefu& z) {
    const Text glyf = znak(z.parametr);
    const bool siroky = je_v(z.parametr, {227, 229, 230});
    if (Prvek* p = umisti_napis(relief.navestidlo, z, siroky ? " " + glyf + " " : glyf))
        p->popis = z.nazev;
}

void umisti_navestidlo_ser(const ZaznamReliefu& z) {
    if (Prvek* p = umisti_napis(relief.navestidlo_ser, z, znak(z.parametr)))
        p->popis = z.nazev;
}

void umisti_cislo_koleje(const ZaznamReliefu& z) {
    if (Prvek* p = umisti_napis(relief.cislo_koleje, z, z.nazev)) {
        p->popis = z.nazev;
        if (z.parametr <= 2)
            p->zarovnani = z.parametr;
    }
}

void umisti_cil(const ZaznamReliefu& z) {
    if (Prvek* p = umisti_obdelnik(relief.Image1, z)) {
        p->stav = z.nazev;
        do_pozadi(*p);
    }
}

// The lamps of a station crossing: each new glyph is put in front of those before it.
void umisti_prejezd_stanice(const ZaznamReliefu& z) {
    Text lampy;
    for (int i = 1; i <= z.parametr; ++i)
        lampy.insert(0, znak(i % 2 == 1 ? 16 : 13));
    umisti_napis(relief.lblPrejezd, z, lampy);
}

void umisti_lampu(int n, int vlevo, int nahore, Barva okraj) {
    if (Prvek* p = zaloz_prvek(relief.shpPrejezdy, n)) {
        p->vlevo = vlevo;
        p->nahore = nahore;
        p->sirka = kPrumerLampy;
        p->vyska = kPrumerLampy;
        p->okraj = okraj;
    }
}

void umisti_prejezd_trati(const ZaznamReliefu& z) {
    umisti_napis(relief.lblPrejezdy, z, text_cisla(z.parametr));
    umisti_lampu(z.cislo, z.a + kOdsazeniLampy1, z.c, kOkrajLampy1);
    umisti_lampu(z.cislo + uzel::kLampyPrejezdu, z.a + kOdsazeniLampy2, z.c, kOkrajLampy2);
}

void umisti_nastupiste(const ZaznamReliefu& z) {
    if (Prvek* p = umisti_obdelnik(relief.lblnastupiste, z)) {
        p->nahore = z.c - 50;
        p->barva = barvy::seda;
        nastav_text(*p, Text(12, '\xEE'));
    }
}

void umisti_stanoviste(const ZaznamReliefu& z) {
    if (Prvek* p = umisti(relief.imgStanoviste, z)) {
        p->sirka = kStranaStanoviste;
        p->vyska = kStranaStanoviste;
        p->obrazek = z.parametr;
        p->stav = z.nazev;
    }
}

void umisti_popis_stanice(const ZaznamReliefu& z) {
    if (Prvek* p = umisti_obdelnik(relief.popis_stanice, z)) {
        p->barva = barvy::seda;
        nastav_text(*p, z.nazev);
    }
}

void umisti_vyhybku(const ZaznamReliefu& z) {
    if (Prvek* p = umisti(relief.imgVyhybka, z)) {
        p->sirka = kSirkaVyhybky;
        p->vyska = kVyskaVyhybky;
        p->stav = z.nazev;
        const double obrazek = cislo_z_textu(z.nazev) + kObrazekVyhybky;
        if (obrazek >= 0 && obrazek <= INT16_MAX)
            p->obrazek = na_integer(obrazek);
    }
}

void umisti_zaznam(const ZaznamReliefu& z) {
    switch (static_cast<TypReliefu>(z.typ)) {
    case TypReliefu::kolej: umisti_kolej(z); return;
    case TypReliefu::navestidlo: umisti_navestidlo(z); return;
    case TypReliefu::cislo_koleje: umisti_cislo_koleje(z); return;
    case TypReliefu::cil: umisti_cil(z); return;
    case TypReliefu::navestidlo_ser: umisti_navestidlo_ser(z); return;
    case TypReliefu::prejezd_stanice: umisti_prejezd_stanice(z); return;
    case TypReliefu::prejezd_trati: umisti_prejezd_trati(z); return;
    case TypReliefu::most: umisti_caru(relief.most, z); return;
    case TypReliefu::nastupiste: umisti_nastupiste(z); return;
    case TypReliefu::stanoviste: umisti_stanoviste(z); return;
    case TypReliefu::popis_stanice: umisti_popis_stanice(z); return;
    case TypReliefu::vyhybka: umisti_vyhybku(z); return;
    case TypReliefu::souhlas: umisti_napis(relief.lblSouhlas, z, z.nazev); return;
    case TypReliefu::smer_trati: umisti_napis(relief.lblSouhlas2, z, z.nazev); return;
    case TypReliefu::napis_zarazedla:
        if (z.parametr == 60)
            napis_pozadi(z.a - 150, z.c + 25, {20, 18});
        else
            napis_pozadi(z.a - 30, z.c + 25, {19, 20});
        return;
    case TypReliefu::napis_navestidla: napis_pozadi(z.a, z.c, {229, 20, 18}); return;
    case TypReliefu::vykolejka: umisti_napis(relief.lblVykolejka, z, znak(z.parametr)); return;
    }
    // A type that this version does not know is skipped.
}

// Every element of a kind that a record has placed, by rising number.
template <class Co> void pro_umistene(TabulkaPrvku& prvky, Co co) {
    for (int n = 0; n <= prvky.nejvyssi(); ++n)
        if (prvky.je(n) && prvky[n].viditelny)
            co(prvky[n]);
}

} // namespace

void nacti_relief() {
    nacti_relief(nacti_soubor(simulace.cesta_aplikace +
                              (simulace.dva_monitory ? "data\\tesk.reb" : "data\\tesk.rea")));
}

void nacti_relief(std::span<const std::uint8_t> bajty) {
    relief.napisy.clear();
    Ctenar soubor{bajty};
    HlavickaReliefu hlavicka;
    popis_hlavicky(soubor, hlavicka);
    for (;;) {
        ZaznamReliefu zaznam;
        popis_reliefu(soubor, zaznam);
        if (!soubor.ok)
            break;
        umisti_zaznam(zaznam);
    }
    // One line and the bridges lie over whatever follows them in the file, platforms under all.
    if (relief.kolej.je(uzel::kKolejNavrchu))
        do_popredi(relief.kolej[uzel::kKolejNavrchu]);
    pro_umistene(relief.most, [](Prvek& most) { do_popredi(most); });
    pro_umistene(relief.lblnastupiste, [](Prvek& nastupiste) { do_pozadi(nastupiste); });
}
