// save/zaznam.cpp - the state of the simulation as one record, and its bytes.
#include "save/zaznam.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "prvky/souhlasy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/relief.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

constexpr std::array kBarvyKoleji = {barvy::seda,   barvy::cervena, barvy::azurova,
                                     barvy::zelena, barvy::bila,    barvy::purpurova};
constexpr std::array kBarvyNavestidel = {barvy::seda, barvy::zelena, barvy::bila, barvy::cerna,
                                         barvy::cervena};
constexpr std::array kBarvyVykolejek = {barvy::seda, barvy::zelena, barvy::bila, barvy::cervena};

// Bytes of a file that a record may take: the history of trains grows for as long as they run, but a save
// of the longest simulation has a tenth of it.
constexpr std::size_t kNejdelsiZaznam = 16 * 1024 * 1024;

template <std::size_t N> std::uint8_t poradi_barvy(const std::array<Barva, N>& barvy, Barva barva) {
    const auto misto = std::find(barvy.begin(), barvy.end(), barva);
    return misto == barvy.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(misto - barvy.begin());
}

// `co(prvek)` for each number from `od` to `po`; elements that do not exist leave the value that means none.
template <class T, class Co>
void podle_cisla(std::vector<T>& pole, const TabulkaPrvku& prvky, int od, int po, Co co) {
    pole.resize(static_cast<std::size_t>(std::max(po - od + 1, 0)));
    for (int n = od; n <= po; ++n)
        if (prvky.je(n))
            pole[static_cast<std::size_t>(n - od)] = co(prvky[n]);
        else
            pole[static_cast<std::size_t>(n - od)] = T{};
}

int nejnizsi(const TabulkaPrvku& prvky) {
    int n = 0;
    while (n <= prvky.nejvyssi() && !prvky.je(n))
        ++n;
    return n;
}

std::int16_t priznak(bool ano) {
    return ano ? std::int16_t{-1} : std::int16_t{0};
}

// Only the glyphs of main signals have a twin for the automatic mode.
std::uint8_t kod_navestidla(const Prvek& p) {
    const std::uint8_t kod = poradi_barvy(kBarvyNavestidel, p.barva);
    const int glyf = kod_znaku(orez(p.text()));
    const bool ab = glyf == 8 || glyf == 15 || glyf == 176 || glyf == 183;
    return ab && kod <= 1 ? static_cast<std::uint8_t>(kKodAB + kod) : kod;
}

void zapis_koleje(Zaznam& z) {
    constexpr int kPosledni = kNejvyssiPrvek;
    podle_cisla(z.koleje_barva, relief.kolej, 0, kPosledni,
                [](const Prvek& p) { return kod_barvy(p.barva); });
    podle_cisla(z.koleje_poloha, relief.kolej, 0, kPosledni,
                [](const Prvek& p) { return na_integer(p.stav.cislo()); });
    podle_cisla(z.koleje_popis, relief.cislo_koleje, 0, kPosledni,
                [](const Prvek& p) -> const Text& { return p.text(); });
}

void zapis_navestidla(Zaznam& z) {
    const int nejvyssi = relief.navestidlo.nejvyssi();
    z.navestidla_barva.assign(static_cast<std::size_t>(nejvyssi + 1), 0);
    z.navestidla_pozadi.assign(z.navestidla_barva.size(), 0);
    for (int n = 0; n <= nejvyssi; ++n) {
        const TabulkaPrvku& druh = navestidla(n);
        if (!druh.je(n))
            continue;
        z.navestidla_barva[static_cast<std::size_t>(n)] = kod_navestidla(druh[n]);
        // the highlight of a picked signal is no state of it
        z.navestidla_pozadi[static_cast<std::size_t>(n)] = druh[n].pozadi == barvy::seda;
    }
}

void zapis_souhlasy(Zaznam& z) {
    for (int k = 0; k < 3; ++k) {
        const auto i = static_cast<std::size_t>(k);
        z.souhlas_barva[i] = 1;
        for (Text* text : {&z.souhlas_text[i], &z.souhlas_tag[i], &z.predvidany_odjezd[i]})
            text->clear();
        if (relief.lblSouhlas.je(k)) {
            const Prvek& lampa = relief.lblSouhlas[k];
            z.souhlas_text[i] = lampa.text;
            z.souhlas_barva[i] = lampa.barva != barvy::modra;
            z.souhlas_tag[i] = lampa.popis;
        }
        if (relief.lblPredvidany_odjezd.je(k))
            z.predvidany_odjezd[i] = relief.lblPredvidany_odjezd[k].text;
    }
    const TabulkaPrvku& sipky = relief.lblSouhlas2;
    podle_cisla(z.souhlas2_smer, sipky, nejnizsi(sipky), sipky.nejvyssi(),
                [](const Prvek& p) { return priznak(p.text() == ">>"); });
    podle_cisla(z.souhlas2_barva, sipky, nejnizsi(sipky), sipky.nejvyssi(),
                [](const Prvek& p) { return static_cast<std::uint8_t>(p.barva == barvy::azurova); });
}

void zapis_vyhybky(Zaznam& z) {
    podle_cisla(z.vyhybky, relief.imgVyhybka, 0, relief.imgVyhybka.nejvyssi(),
                [](const Prvek& p) { return na_byte(p.stav.cislo()); });
    const TabulkaPrvku& vykolejky = relief.lblVykolejka;
    podle_cisla(z.vykolejky_znak, vykolejky, 0, vykolejky.nejvyssi(),
                [](const Prvek& p) { return static_cast<std::uint8_t>(kod_znaku(orez(p.text()))); });
    podle_cisla(z.vykolejky_barva, vykolejky, 0, vykolejky.nejvyssi(),
                [](const Prvek& p) { return poradi_barvy(kBarvyVykolejek, p.barva); });
}

} // namespace

std::uint8_t kod_barvy(Barva barva) {
    return poradi_barvy(kBarvyKoleji, barva);
}

Barva barva_kodu(std::uint8_t kod) {
    if (kod >= kBarvyKoleji.size())
        chyba(KodChyby::mimo_meze, text_cisla(kod));
    return kBarvyKoleji[kod];
}

std::optional<Barva> barva_navestidla_kodu(std::uint8_t kod) {
    if (kod >= kKodAB)
        kod = static_cast<std::uint8_t>(kod - kKodAB);
    return kod < kBarvyNavestidel.size() ? std::optional(kBarvyNavestidel[kod]) : std::nullopt;
}

Barva barva_vykolejky_kodu(std::uint8_t kod) {
    if (kod >= kBarvyVykolejek.size())
        chyba(KodChyby::mimo_meze, text_cisla(kod));
    return kBarvyVykolejek[kod];
}

void zaznamenej(Zaznam& z) {
    z.verze_major = kVerzeMajor;
    z.verze_minor = kVerzeMinor;
    z.verze_revize = kVerzeRevize;
    z.cas = text_hodin();
    z.cas_zacatku = simulace.cas_zacatku;
    z.den = simulace.den;
    z.pp_povoleno = simulace.pp_povoleno;
    z.zpozdeni_povoleno = simulace.zpozdeni_povoleno;
    z.minuty_simulace = simulace.minuty_simulace;
    z.gvd = relief.lblGVD[0].text;
    z.rychlost = simulace.rychlost;
    z.zaloha_731_strana = stav_provozu.zaloha_731_strana;
    z.zaloha_731_jede = stav_provozu.zaloha_731_jede;
    z.pocet_zaloh = stav_provozu.pocet_zaloh;
    z.dalsi_vlaky.assign(stav_provozu.dalsi_vlaky.begin(), stav_provozu.dalsi_vlaky.end());
    z.cesty = cesty;
    z.vlaky = vlaky;
    z.stanicni_prejezdy.assign(stanicni_prejezdy.begin(), stanicni_prejezdy.end());
    z.prejezdy = prejezdy;
    z.cekajici_vlaky = souhlasy.cekajici_vlaky;
    z.prehoz_vyhybka = stav_vyhybek.prehoz_vyhybka;
    z.prehoz_cas = stav_vyhybek.prehoz_cas;
    z.stitky = stitky;
    z.koleje_vlaky = koleje_vlaky;
    zapis_souhlasy(z);
    zapis_koleje(z);
    zapis_vyhybky(z);
    zapis_navestidla(z);
    const TabulkaPrvku& radky = relief.lblTabulka_vlaku;
    podle_cisla(z.tabulka, radky, 0, radky.nejvyssi(),
                [](const Prvek& p) -> const Text& { return p.text(); });
    z.tabulka_blikani.resize(blikani.blikani_radku.size());
    std::transform(blikani.blikani_radku.begin(), blikani.blikani_radku.end(), z.tabulka_blikani.begin(),
                   priznak);
    z.zpravy = texty_hlaseni();
}

Zaznam zaznam_simulace() {
    Zaznam z;
    zaznamenej(z);
    return z;
}

Bajty bajty_zaznamu(const Zaznam& zaznam) {
    Zapisovac zapis;
    popis_zaznamu_simulace(zapis, zaznam);
    return std::move(zapis.bajty);
}

Zaznam precti_zaznam(std::span<const std::uint8_t> bajty) {
    Ctenar ctenar{bajty.first(std::min(bajty.size(), kNejdelsiZaznam))};
    Zaznam zaznam;
    popis_zaznamu_simulace(ctenar, zaznam);
    if (!ctenar.ok)
        chyba(KodChyby::cteni_za_koncem);
    return zaznam;
}
