// save/gtn.cpp - writing of the train-number log.
#include "save/gtn.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "zaklad/balik.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <cerrno>
#include <cstdio>

namespace {

constexpr std::size_t kVyrovnavaci = 64 * 1024; // bytes held back between two writes
constexpr std::size_t kZaznam = 11;

struct Zaznam {
    std::int32_t cas = 0;
    std::uint8_t kod = 0;
    std::int16_t prvek = 0;
    std::int32_t hodnota = 0;
};

template <class A, class Z> constexpr void popis_zaznamu(A& a, Z& z) {
    a.l(z.cas);
    a.b(z.kod);
    a.i(z.prvek);
    a.l(z.hodnota);
}

constexpr std::size_t velikost_zaznamu() {
    Miric miric;
    const Zaznam zaznam;
    popis_zaznamu(miric, zaznam);
    return miric.misto;
}
static_assert(velikost_zaznamu() == kZaznam);

struct Hlavicka {
    Text datum;
    std::int32_t cas = 0;
    Text nazev = "KPS RVZ TESK2";
    std::uint8_t den = 0;
    std::int16_t revize = kVerzeRevize, major = kVerzeMajor, minor = kVerzeMinor;
};

template <class A, class Z> void popis_hlavicky_gtn(A& a, Z& z) {
    a.text(z.datum);
    a.l(z.cas);
    a.text(z.nazev);
    a.b(z.den);
    a.i(z.revize);
    a.i(z.major);
    a.i(z.minor);
}

// The open log; its end writes out what is held back, so that no way out of the process loses events.
struct Denik {
    std::FILE* soubor = nullptr;
    Zapisovac cekajici;

    ~Denik() { zavri(); }

    bool vyprazdni() {
        const Bajty& bajty = cekajici.bajty;
        const bool dobre =
            soubor == nullptr ||
            (std::fwrite(bajty.data(), 1, bajty.size(), soubor) == bajty.size() && std::fflush(soubor) == 0);
        cekajici.bajty.clear();
        return dobre;
    }
    void zavri() {
        if (soubor == nullptr)
            return;
        vyprazdni();
        std::fclose(soubor);
        soubor = nullptr;
    }
};
Denik denik;

} // namespace

void gtn_otevri() {
    denik.zavri();
    const NastennyCas ted = platforma.nastenny_cas();
    const Text slozka = simulace.cesta_aplikace + "GTN\\";
    const Text cesta = slozka + text_cisla_mist(ted.rok % 100, 2) + text_cisla_mist(ted.mesic, 2) +
                       text_cisla_mist(ted.den, 2) + ".gtn";
    zaloz_slozku(slozka);
    smaz_soubor(cesta);
    denik.soubor = std::fopen(cesta_k_zapisu(cesta).c_str(), "wb");
    if (denik.soubor == nullptr)
        chyba(errno == ENOENT || errno == ENOTDIR ? KodChyby::cesta_nenalezena : KodChyby::pristup_odepren,
              cesta);
    Hlavicka h;
    h.datum = text_cisla(ted.den) + "." + text_cisla(ted.mesic) + "." + text_cisla(ted.rok);
    h.cas = ted.sekundy_dne();
    h.den = simulace.den_startu;
    denik.cekajici.bajty.reserve(kVyrovnavaci);
    popis_hlavicky_gtn(denik.cekajici, h);
}

void gtn_zapis(int prvek, std::uint8_t kod, std::int32_t hodnota) {
    if (denik.soubor == nullptr)
        return;
    const Zaznam zaznam{ted_s(), kod, na_integer(prvek), hodnota};
    popis_zaznamu(denik.cekajici, zaznam);
    if (denik.cekajici.bajty.size() + kZaznam > kVyrovnavaci)
        gtn_vyprazdni();
}

void gtn_vyprazdni() {
    if (!denik.vyprazdni())
        chyba(KodChyby::disk_plny);
}

void gtn_zavri() {
    denik.zavri();
}
