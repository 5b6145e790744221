// save/gtn.cpp - writing of the train-number log.
#include "save/gtn.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "zaklad/balik.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kVyrovnavaci = 64 * 1024; // bytes held back between two writes
// Bytes that wait for a full disk to have room again: a shift of some hours. Events beyond them are lost.
constexpr std::size_t kNejviceCeka = 4 * 1024 * 1024;
constexpr std::size_t kZaznam = 11;

template <class A, class Z> constexpr void popis_zaznamu(A& a, Z& z) {
    a.l(z.cas);
    a.b(z.kod);
    a.i(z.prvek);
    a.l(z.hodnota);
}

constexpr std::size_t velikost_zaznamu() {
    Miric miric;
    const UdalostDeniku zaznam;
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
    RostouciSoubor soubor;
    Zapisovac cekajici;
    std::optional<KodChyby> vada; // of the disk, not told yet
    bool receno = false;          // a fault is told once

    Denik() = default;
    Denik(const Denik&) = delete;
    Denik& operator=(const Denik&) = delete;
    ~Denik() { zavri(); }

    bool otevreny() const { return soubor.popisovac >= 0; }
    void vyprazdni() {
        if (!otevreny() || cekajici.bajty.empty())
            return;
        if (const auto duvod = pripis(soubor, cekajici.bajty)) {
            if (!receno)
                vada = duvod;
            receno = true;
        } else {
            cekajici.bajty.clear();
        }
    }
    void zavri() {
        vyprazdni();
        zavri_rostouci(soubor);
        cekajici.bajty.clear();
        vada.reset();
        receno = false;
    }
};
Denik denik;

// What is asked for while the log is written, since it was opened.
struct Pamet {
    std::vector<PohybVlaku> pohyby;
    std::vector<ZmenaPrejezdu> prejezdy;

    void pridej(const UdalostDeniku& z) {
        if (z.kod == gtn::vlak_na_kolej || z.kod == gtn::vlak_z_koleje)
            pohyby.push_back({z.cas, z.prvek, z.hodnota, z.kod == gtn::vlak_na_kolej});
        else if (z.kod == gtn::prejezd)
            prejezdy.push_back({z.cas, z.prvek, z.hodnota != 0});
    }
};
Pamet pamet;

// The last events, in a ring.
struct Posledni {
    std::array<UdalostDeniku, kPoslednichUdalosti> udalosti{};
    std::size_t pocet = 0; // since the log was opened or cut

    void pridej(const UdalostDeniku& u) { udalosti[pocet++ % udalosti.size()] = u; }
};
Posledni posledni_udalosti;

Text pripona; // of the name of the file
bool do_souboru = true;

} // namespace

void gtn_pripona(TextPohled nova) {
    pripona = nova;
}

void gtn_do_souboru(bool ano) {
    do_souboru = ano;
}

void gtn_otevri() {
    denik.zavri();
    pamet = {};
    posledni_udalosti = {};
    if (!do_souboru)
        return;
    const NastennyCas ted = platforma.nastenny_cas();
    const Text slozka = simulace.cesta_aplikace + "GTN\\";
    const Text cesta = slozka + text_cisla_mist(ted.rok % 100, 2) + text_cisla_mist(ted.mesic, 2) +
                       text_cisla_mist(ted.den, 2) + pripona + ".gtn";
    zaloz_slozku(slozka);
    smaz_soubor(cesta);
    zaloz_rostouci(denik.soubor, cesta);
    Hlavicka h;
    h.datum = text_cisla(ted.den) + "." + text_cisla(ted.mesic) + "." + text_cisla(ted.rok);
    h.cas = ted.sekundy_dne();
    h.den = simulace.den_startu;
    denik.cekajici.bajty.reserve(kVyrovnavaci);
    popis_hlavicky_gtn(denik.cekajici, h);
}

void gtn_zapis(int prvek, std::uint8_t kod, std::int32_t hodnota) {
    const UdalostDeniku zaznam{ted_s(), kod, na_integer(prvek), hodnota};
    pamet.pridej(zaznam);
    posledni_udalosti.pridej(zaznam);
    Bajty& ceka = denik.cekajici.bajty;
    if (!denik.otevreny() || ceka.size() + kZaznam > kNejviceCeka)
        return;
    popis_zaznamu(denik.cekajici, zaznam);
    if (ceka.size() % kVyrovnavaci + kZaznam > kVyrovnavaci)
        denik.vyprazdni();
}

std::optional<KodChyby> gtn_vyprazdni() {
    denik.vyprazdni();
    return std::exchange(denik.vada, std::nullopt);
}

void gtn_zavri() {
    denik.zavri();
}

MistoGtn gtn_misto() {
    const std::int64_t delka =
        denik.otevreny() ? denik.soubor.delka + static_cast<std::int64_t>(denik.cekajici.bajty.size()) : 0;
    return {delka, pamet.pohyby.size(), pamet.prejezdy.size()};
}

namespace {

template <class T> std::vector<T> utrzeny_konec(std::vector<T>& seznam, std::size_t od) {
    const auto odkud = seznam.begin() + static_cast<std::ptrdiff_t>(std::min(od, seznam.size()));
    std::vector<T> konec(odkud, seznam.end());
    seznam.erase(odkud, seznam.end());
    return konec;
}

// What lies behind the first `preskoc` of them.
template <class T> void pripoj_od(std::vector<T>& kam, const std::vector<T>& konec, std::int64_t preskoc) {
    kam.insert(kam.end(), konec.begin() + std::min<std::ptrdiff_t>(preskoc, std::ssize(konec)), konec.end());
}

Bajty odrizni_bajty(std::int64_t delka) {
    if (!denik.otevreny() || delka >= gtn_misto().delka)
        return {};
    Bajty& ceka = denik.cekajici.bajty;
    if (delka >= denik.soubor.delka)
        return utrzeny_konec(ceka, static_cast<std::size_t>(delka - denik.soubor.delka));
    std::optional<Bajty> konec = odrizni(denik.soubor, delka);
    if (!konec)
        return {};
    konec->insert(konec->end(), ceka.begin(), ceka.end());
    ceka.clear();
    return std::move(*konec);
}

} // namespace

KonecGtn gtn_odrizni(const MistoGtn& kde) {
    posledni_udalosti = {};
    return {odrizni_bajty(kde.delka), utrzeny_konec(pamet.pohyby, kde.pohybu),
            utrzeny_konec(pamet.prejezdy, kde.prejezdu)};
}

void gtn_pripoj(const KonecGtn& konec, const MistoGtn& zacatek_konce, const MistoGtn& odkud) {
    if (denik.otevreny())
        pripoj_od(denik.cekajici.bajty, konec.zaznamy, odkud.delka - zacatek_konce.delka);
    pripoj_od(pamet.pohyby, konec.pohyby, static_cast<std::int64_t>(odkud.pohybu - zacatek_konce.pohybu));
    pripoj_od(pamet.prejezdy, konec.prejezdy,
              static_cast<std::int64_t>(odkud.prejezdu - zacatek_konce.prejezdu));
}

std::span<const PohybVlaku> gtn_pohyby() {
    return pamet.pohyby;
}

std::span<const ZmenaPrejezdu> gtn_prejezdy() {
    return pamet.prejezdy;
}

std::vector<UdalostDeniku> gtn_posledni() {
    const std::size_t n = std::min(posledni_udalosti.pocet, posledni_udalosti.udalosti.size());
    std::vector<UdalostDeniku> udalosti;
    for (std::size_t i = posledni_udalosti.pocet - n; i < posledni_udalosti.pocet; ++i)
        udalosti.push_back(posledni_udalosti.udalosti[i % posledni_udalosti.udalosti.size()]);
    return udalosti;
}
