// save/nacteni.cpp - starting from a saved simulation.
//
// A file may hold anything. It is read into a record of its own, every count, index and code in it is held
// against the relief and against the others, and only then does it take the place of the present state; what
// turns out wrong even later puts the present state back.
#include "app/blikani.h"
#include "app/cas.h"
#include "app/kontrola.h"
#include "app/simulace.h"
#include "cesty/dotazy.h"
#include "cesty/odpocet_pn.h"
#include "cesty/prekazky.h"
#include "cesty/zasobnik.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/krok_jizdy.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <bitset>
#include <cstdlib>
#include <new>
#include <utility>

namespace {

constexpr int kDen_min = 1440;
constexpr int kHledanyRozdil_min = 100;        // a time mark further off than this is one of another day
constexpr int kNejvyssiPoloha = 49;            // position of a switch
constexpr std::size_t kNejviceZaznamu = 32768; // indices have 16 bits

[[noreturn]] void vada(Text co) {
    chyba(KodChyby::mimo_meze, std::move(co));
}

void musi(bool plati, TextPohled co) {
    if (!plati)
        vada(Text(co));
}

void musi(bool plati, TextPohled tabulka, std::size_t i, TextPohled co) {
    if (plati)
        return;
    Text text(tabulka);
    text += " " + text_cisla(static_cast<std::int64_t>(i)) + ": ";
    text += co;
    vada(std::move(text));
}

// --- checks

// Minutes since the start by the clock, as near to the saved ones as a whole number of days allows. A mark
// that no day fits runs over the 16 bits.
std::int16_t casova_znacka(const Zaznam& z) {
    const std::int32_t minuta = sekundy_textu(z.cas) / 60;
    std::int16_t m = na_integer(static_cast<std::int64_t>(minuta) - z.cas_zacatku);
    while (std::abs(m - z.minuty_simulace) > kHledanyRozdil_min)
        m = na_integer(m + kDen_min);
    return m;
}

void over_hlavicku(const Zaznam& z) {
    if (!je_text_casu(z.cas))
        chyba(KodChyby::neshoda_typu, z.cas);
    na_integer(static_cast<std::int64_t>(z.cas_zacatku));
    musi(z.cas_zacatku >= -1 && z.cas_zacatku < kDen_min, "cas_zacatku");
    musi(std::has_single_bit(z.den) && z.den <= 64, "den");
    musi(z.rychlost <= 8, "rychlost");
    musi(z.minuty_simulace >= 0, "minuty_simulace");
    musi(z.gvd.find_first_of(TextPohled("/\\\0", 3)) == Text::npos, "gvd");
    musi(z.dalsi_vlaky.size() == stav_provozu.dalsi_vlaky.size(), "dalsi_vlaky");
    musi(z.stanicni_prejezdy.size() == stanicni_prejezdy.size(), "stanicni_prejezdy");
    musi(z.prejezdy.size() <= kNejviceZaznamu, "prejezdy");
    musi(!z.cekajici_vlaky.empty(), "cekajici_vlaky");
    musi(!z.stitky.empty() && z.stitky.size() <= kNejviceZaznamu, "stitky");
}

// Positions that are demanded of switches, of a route or under a train.
bool jsou_polohy(const std::vector<std::uint8_t>& druhy, const std::vector<std::uint8_t>& polohy,
                 std::size_t od) {
    for (std::size_t k = od; k < druhy.size(); ++k)
        if (druhy[k] == druh_prvku::vyhybka && (polohy[k] < 1 || polohy[k] > kNejvyssiPoloha))
            return false;
    return true;
}

void over_cesty(const Zaznam& z) {
    musi(!z.cesty.empty() && z.cesty.size() <= kNejviceZaznamu, "cesty");
    for (std::size_t i = 0; i < z.cesty.size(); ++i) {
        const Cesta& c = z.cesty[i];
        musi(!c.prvky.empty() && c.druhy.size() == c.prvky.size() && c.polohy.size() == c.prvky.size(),
             "cesty", i, "prvky");
        if (c.zacatek < 0)
            continue;
        musi(c.zacatek <= kNejvyssiPrvek && c.konec >= 0 && c.konec <= kNejvyssiPrvek, "cesty", i, "konec");
        musi(c.Provedena || navestidla(c.zacatek).je(c.zacatek), "cesty", i, "zacatek");
        musi(c.druhy.front() == druh_prvku::kolej, "cesty", i, "druhy");
        musi(jsou_polohy(c.druhy, c.polohy, 0), "cesty", i, "polohy");
    }
}

void over_vlaky(const Zaznam& z) {
    musi(!z.vlaky.empty() && z.vlaky.size() <= kNejviceZaznamu, "vlaky");
    for (std::size_t i = 0; i < z.vlaky.size(); ++i) {
        const Vlak& v = z.vlaky[i];
        if (v.cislo < 1)
            continue;
        musi(v.prijezd.size() == v.stanice.size() && v.odjezd.size() == v.stanice.size() &&
                 v.odjezd_realny.size() == v.stanice.size(),
             "vlaky", i, "stanice");
        musi(v.vozy_urceni.size() == v.vozy.size() && v.vozy_obrazek.size() == v.vozy.size(), "vlaky", i,
             "vozy");
        musi(v.prvky_druh.size() == v.prvky.size() && v.prvky_poloha.size() == v.prvky.size(), "vlaky", i,
             "prvky");
        if (v.prvky.empty())
            continue;
        musi(v.prvek_konec >= 0 && static_cast<std::size_t>(v.prvek_konec) < v.prvky.size(), "vlaky", i,
             "prvek_konec");
        musi(jsou_polohy(v.prvky_druh, v.prvky_poloha, static_cast<std::size_t>(v.prvek_konec)), "vlaky", i,
             "prvky_poloha");
    }
    musi(!z.koleje_vlaky.empty() && z.koleje_vlaky.size() <= kNejviceZaznamu, "koleje_vlaky");
    for (std::size_t i = 0; i < z.koleje_vlaky.size(); ++i) {
        const KolejVlaky& k = z.koleje_vlaky[i];
        musi(k.prvek >= 0 && k.prvek <= kNejvyssiPrvek && !k.vlaky.empty(), "koleje_vlaky", i, "prvek");
        for (const std::int16_t v : k.vlaky)
            musi(v == kZadny || (v >= 0 && static_cast<std::size_t>(v) < z.vlaky.size()), "koleje_vlaky", i,
                 "vlaky");
    }
}

// An array of the snapshot that is shorter than the relief would be read past its end.
void over_relief(const Zaznam& z) {
    const auto pokryva = [](std::size_t delka, const TabulkaPrvku& prvky) {
        return delka >= static_cast<std::size_t>(prvky.nejvyssi() + 1);
    };
    musi(pokryva(z.koleje_barva.size(), relief.kolej), "koleje_barva");
    musi(pokryva(z.koleje_poloha.size(), relief.kolej), "koleje_poloha");
    musi(pokryva(z.koleje_popis.size(), relief.cislo_koleje), "koleje_popis");
    musi(pokryva(z.vyhybky.size(), relief.imgVyhybka), "vyhybky");
    musi(pokryva(z.vykolejky_znak.size(), relief.lblVykolejka), "vykolejky_znak");
    musi(pokryva(z.vykolejky_barva.size(), relief.lblVykolejka), "vykolejky_barva");
    musi(z.tabulka.size() == static_cast<std::size_t>(relief.lblTabulka_vlaku.nejvyssi() + 1), "tabulka");
    musi(z.tabulka_blikani.size() == blikani.blikani_radku.size(), "tabulka_blikani");
    for (const std::uint8_t kod : z.koleje_barva)
        barva_kodu(kod);
    for (const std::uint8_t kod : z.vykolejky_barva)
        barva_vykolejky_kodu(kod);
}

// --- the state that a failed load gives back

struct Stav {
    Simulace simulace_ = simulace;
    Relief relief_ = relief;
    std::vector<Cesta> cesty_ = cesty;
    std::vector<Vlak> vlaky_ = vlaky;
    std::vector<KolejVlaky> koleje_vlaky_ = koleje_vlaky;
    std::array<StanicniPrejezd, 2> stanicni_prejezdy_ = stanicni_prejezdy;
    std::vector<Prejezd> prejezdy_ = prejezdy;
    Souhlasy souhlasy_ = souhlasy;
    StavProvozu stav_provozu_ = stav_provozu;
    StavVyhybek stav_vyhybek_ = stav_vyhybek;
    std::vector<StitekPrvku> stitky_ = stitky;
    Blikani blikani_ = blikani;
    std::bitset<kNejvyssiPrvek + 1> odjete_ = odjete;

    void vrat() {
        simulace = std::move(simulace_);
        relief = std::move(relief_);
        ++revize_reliefu;
        cesty = std::move(cesty_);
        vlaky = std::move(vlaky_);
        koleje_vlaky = std::move(koleje_vlaky_);
        stanicni_prejezdy = stanicni_prejezdy_;
        prejezdy = std::move(prejezdy_);
        souhlasy = std::move(souhlasy_);
        stav_provozu = stav_provozu_;
        stav_vyhybek = std::move(stav_vyhybek_);
        stitky = std::move(stitky_);
        blikani = blikani_;
        odjete = odjete_;
    }
};

// --- the relief

void obnov_koleje(const Zaznam& z) {
    for (int n = 0; n <= relief.kolej.nejvyssi(); ++n)
        if (relief.kolej.je(n)) {
            relief.kolej[n].barva = barva_kodu(z.koleje_barva[static_cast<std::size_t>(n)]);
            relief.kolej[n].stav = text_cisla(z.koleje_poloha[static_cast<std::size_t>(n)]);
        }
}

// Tracks of the line ends and the single tracks: their labels never wear their colour.
constexpr std::array kBezBarvyStitku = {84, 85, 117, 118, 120, 123, 212, 213, 219};

bool ma_barvu_koleje(int n) {
    return (n < 200 || (n >= 401 && n <= 599) || n == 638) &&
           std::find(kBezBarvyStitku.begin(), kBezBarvyStitku.end(), n) == kBezBarvyStitku.end();
}

// A label that stands there for train numbers only is white while its track is free.
void obarvi_stitek(int n, Barva barva) {
    if (!relief.cislo_koleje.je(n))
        return;
    Prvek& stitek = relief.cislo_koleje[n];
    if (stitek.barva != barvy::bila || barva != barvy::seda)
        stitek.barva = barva;
}

void obnov_stitky_koleji(const Zaznam& z) {
    TabulkaPrvku& stitky_koleji = relief.cislo_koleje;
    for (int n = 0; n <= stitky_koleji.nejvyssi(); ++n) {
        if (!stitky_koleji.je(n))
            continue;
        Prvek& stitek = stitky_koleji[n];
        nastav_text(stitek, z.koleje_popis[static_cast<std::size_t>(n)]);
        do_popredi(stitek);
        stitek.viditelny = !orez(stitek.text()).empty();
    }
    for (int n = 0; n <= stitky_koleji.nejvyssi(); ++n) {
        if (!stitky_koleji.je(n))
            continue;
        if (ma_barvu_koleje(n) && je_kolej(n)) {
            const Barva barva = relief.kolej[n].barva;
            obarvi_stitek(n, barva);
            if (n < 200 && n != 12 && n != 13 && n != 19) // 212, 213 and 219 are labels of line ends
                obarvi_stitek(n + 200, barva);
        }
        Prvek& stitek = stitky_koleji[n];
        const bool bez_vyznamu = n >= 500 && n <= 599 && orez(stitek.popis()).empty();
        const bool pod_vlakem = n < 200 && stitek.barva == barvy::cervena && stitek.text() == stitek.popis();
        if (bez_vyznamu || pod_vlakem)
            stitek.viditelny = false;
    }
}

// Glyphs of main signals, and what they are in automatic mode.
constexpr std::array<std::array<int, 2>, 4> kGlyfyAB = {{{229, 8}, {230, 15}, {228, 176}, {226, 183}}};

// Numbers beyond the saved ones, and unknown codes, leave the signal at rest.
void obnov_navestidla(const Zaznam& z) {
    for (std::size_t i = 0; i < z.navestidla_barva.size() && i <= kNejvyssiPrvek; ++i) {
        const int n = static_cast<int>(i);
        TabulkaPrvku& druh = navestidla(n);
        if (!druh.je(n))
            continue;
        Prvek& p = druh[n];
        const std::uint8_t kod = z.navestidla_barva[i];
        if (kod >= kKodAB)
            for (const auto& [bez, s] : kGlyfyAB)
                if (kod_znaku(orez(p.text())) == bez) {
                    nastav_text(p, znak(s));
                    break;
                }
        if (const auto barva = barva_navestidla_kodu(kod))
            p.barva = *barva;
        const bool zhasle = i < z.navestidla_pozadi.size() && z.navestidla_pozadi[i] == 1;
        p.pozadi = zhasle ? barvy::seda : barvy::cerna;
        p.ramecek = zhasle;
    }
}

// A switch without a state has none after the load either.
void obnov_vyhybky(const Zaznam& z) {
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n) {
        if (!relief.imgVyhybka.je(n))
            continue;
        Prvek& p = relief.imgVyhybka[n];
        const std::uint8_t stav = z.vyhybky[static_cast<std::size_t>(n)];
        p.stav = stav == 0 ? Text{} : text_cisla(stav);
        if (stav != 0)
            p.obrazek = static_cast<std::int16_t>(stav + 100);
    }
    for (int n = 0; n <= relief.lblVykolejka.nejvyssi(); ++n) {
        if (!relief.lblVykolejka.je(n))
            continue;
        const int glyf = z.vykolejky_znak[static_cast<std::size_t>(n)];
        nastav_text(relief.lblVykolejka[n], glyf == 0 ? Text{} : znak(glyf));
        relief.lblVykolejka[n].barva = barva_vykolejky_kodu(z.vykolejky_barva[static_cast<std::size_t>(n)]);
    }
}

void obnov_smery(const Zaznam& z) {
    TabulkaPrvku& sipky = relief.lblSouhlas2;
    int prvni = 0;
    while (prvni <= sipky.nejvyssi() && !sipky.je(prvni))
        ++prvni;
    for (int n = prvni; n <= sipky.nejvyssi(); ++n) {
        const auto i = static_cast<std::size_t>(n - prvni);
        if (!sipky.je(n) || i >= z.souhlas2_barva.size() || i >= z.souhlas2_smer.size() ||
            sipky[n].text->empty())
            continue;
        if (z.souhlas2_barva[i] <= 1)
            sipky[n].barva = z.souhlas2_barva[i] == 1 ? barvy::azurova : barvy::seda;
        nastav_text(sipky[n], z.souhlas2_smer[i] != 0 ? ">>" : "<<");
    }
    for (int k = 0; k < 3; ++k) {
        const auto i = static_cast<std::size_t>(k);
        if (relief.lblSouhlas.je(k)) {
            Prvek& lampa = relief.lblSouhlas[k];
            lampa.barva = z.souhlas_barva[i] == 0 ? barvy::modra : barvy::seda;
            nastav_text(lampa, z.souhlas_text[i]);
            lampa.popis = z.souhlas_tag[i];
        }
        if (relief.lblPredvidany_odjezd.je(k)) {
            Prvek& odjezd = relief.lblPredvidany_odjezd[k];
            if (odjezd.text() != z.predvidany_odjezd[i])
                nastav_text(odjezd, z.predvidany_odjezd[i]);
            if (!odjezd.text->empty())
                odjezd.viditelny = true;
        }
    }
}

// Notes on the labels of their tracks and on the targets.
void obnov_stitky() {
    for (const StitekPrvku& stitek : stitky) {
        const auto pozadi = pozadi_stitku(stitek);
        if (!pozadi)
            continue;
        if (relief.cislo_koleje.je(stitek.prvek)) {
            relief.cislo_koleje[stitek.prvek].ramecek = true;
            relief.cislo_koleje[stitek.prvek].pozadi = *pozadi;
        }
        if (relief.Image1.je(stitek.prvek))
            relief.Image1[stitek.prvek].obrazek = obrazek_stitku(stitek);
    }
}

// --- the tables and the clock

void prevezmi_tabulky(Zaznam& z) {
    cesty = std::move(z.cesty);
    std::copy(z.stanicni_prejezdy.begin(), z.stanicni_prejezdy.end(), stanicni_prejezdy.begin());
    prejezdy = std::move(z.prejezdy);
    stitky = std::move(z.stitky);
    vlaky = std::move(z.vlaky);
    for (Vlak& v : vlaky)
        if (v.cislo < 1)
            v.muze_jet = false;
    koleje_vlaky = std::move(z.koleje_vlaky);
    souhlasy.cekajici_vlaky = std::move(z.cekajici_vlaky);
    stav_vyhybek.prehoz_vyhybka = z.prehoz_vyhybka;
    stav_vyhybek.prehoz_cas = z.prehoz_cas;
}

void prevezmi_cas(const Zaznam& z, std::int16_t minuty) {
    for (int n = 0; n <= relief.lblcas.nejvyssi(); ++n)
        if (relief.lblcas.je(n))
            relief.lblcas[n].text = z.cas;
    simulace.cas_zacatku = static_cast<std::int16_t>(z.cas_zacatku);
    if (minuty != z.minuty_simulace)
        platforma.okno("KPS RVZ TESK", "V záznamu se neshoduje časová značka! Značka bude opravena."_cz);
    simulace.minuty_simulace = minuty;
    relief.lblcas_od_zacatku[0].text = text_cisla(minuty);
    simulace.den = z.den;
    simulace.den_startu = static_cast<std::uint8_t>(std::countr_zero(z.den));
    relief.lblDEN[0].text = nazev_dne(simulace.den_startu);
}

void prevezmi_provoz(const Zaznam& z) {
    std::copy(z.dalsi_vlaky.begin(), z.dalsi_vlaky.end(), stav_provozu.dalsi_vlaky.begin());
    relief.lblGVD[0].text = z.gvd;
    simulace.soubor_gvd = simulace.cesta_aplikace + "GVD\\" + z.gvd + ".dat";
    simulace.pp_povoleno = z.pp_povoleno;
    simulace.zpozdeni_povoleno = z.zpozdeni_povoleno;
    simulace.rychlost = z.rychlost;
    stav_provozu.pocet_zaloh = z.pocet_zaloh;
    stav_provozu.zaloha_731_strana = z.zaloha_731_strana;
    stav_provozu.zaloha_731_jede = z.zaloha_731_jede;
}

void prevezmi_seznamy(Zaznam& z) {
    for (std::size_t i = 0; i < z.tabulka.size(); ++i)
        if (relief.lblTabulka_vlaku.je(static_cast<int>(i)))
            relief.lblTabulka_vlaku[static_cast<int>(i)].text = z.tabulka[i];
    relief.lstZpravy.radky.insert(relief.lstZpravy.radky.end(), std::make_move_iterator(z.zpravy.begin()),
                                  std::make_move_iterator(z.zpravy.end()));
    ++revize_reliefu;
}

// --- what no field holds, and the others tell

// Fail-safe: a track under a train is occupied, whatever the file says of it. A train that is announced at a
// neighbouring station stands there on green.
void obsad_koleje_pod_vlaky() {
    for (const Vlak& v : vlaky) {
        const bool ohlaseny = !v.muze_jet && !v.posun && v.stanice_index < 0;
        if (v.cislo < 1 || v.prvky.empty() || ohlaseny)
            continue;
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j)
            if (v.prvky_druh[j] == druh_prvku::kolej && je_kolej(v.prvky[j]))
                relief.kolej[v.prvky[j]].barva = barvy::cervena;
    }
}

// The countdowns of the calling-on aspects, the first to end first, and the time-measuring.
void obnov_odpocty() {
    std::vector<const Cesta*> privolavaci;
    const std::int32_t ted = ted_s();
    for (const Cesta& c : cesty)
        switch (faze_cesty(c, ted)) {
        case FazeCesty::privolavaci: privolavaci.push_back(&c); break;
        case FazeCesty::odpocet_ruseni: relief.lblMereni_casu[0].viditelny = true; break;
        default: break;
        }
    std::stable_sort(privolavaci.begin(), privolavaci.end(),
                     [](const Cesta* a, const Cesta* b) { return a->PN_do < b->PN_do; });
    for (const Cesta* c : privolavaci) {
        pridej_odpocet_pn(c->zacatek);
        obnov_odpocet_pn(c->zacatek, c->PN_do - ted);
    }
}

// The kilometres of a crossing that the operator keeps closed are white.
void obnov_uz() {
    for (std::size_t k = 0; k < stanicni_prejezdy.size(); ++k)
        if (const int n = static_cast<int>(k); stanicni_prejezdy[k].UZ && relief.lblPrejezd.je(n))
            relief.lblPrejezd[n].barva = barvy::bila;
}

void dopocti() {
    obsad_koleje_pod_vlaky();
    obnov_pohyb_vyhybek();
    obnov_odjete();
    obnov_obslouzene();
    obnov_odpocty();
    obnov_uz();
    ukaz_prejezdy();
    aktualizuj_cekani();
    zmena_zasobniku();
}

// What cannot stand together is no state that the simulation can go on from.
void over_stav() {
    relief.lblcas[0].viditelny = true; // the start shows it next
    if (const auto nalez = kontrola_stavu())
        vada(*nalez);
}

// --- the load

void varuj_pred_verzi(const Zaznam& z) {
    if (z.verze_major == kVerzeMajor && z.verze_minor == kVerzeMinor && z.verze_revize == kVerzeRevize)
        return;
    Text text("Načítaný záznam byl vytvořen ve starší verzi ("_cz);
    text += text_cisla(z.verze_major) + "." + text_cisla(z.verze_minor) + "." + text_cisla(z.verze_revize);
    text += "), než je současná verze simulace ("_cz;
    text += text_verze();
    text += "). Mohou nastat problémy s kompatibilitou."_cz;
    platforma.okno("KPS RVZ TESK", text);
}

void prevezmi(Zaznam& z, std::int16_t minuty) {
    std::transform(z.tabulka_blikani.begin(), z.tabulka_blikani.end(), blikani.blikani_radku.begin(),
                   [](std::int16_t priznak) { return priznak != 0; });
    simulace.tick_hodin = platforma.tik_ms();
    obnov_koleje(z);
    obnov_stitky_koleji(z);
    obnov_navestidla(z);
    obnov_vyhybky(z);
    prevezmi_tabulky(z);
    prevezmi_cas(z, minuty);
    prevezmi_provoz(z);
    obnov_smery(z);
    prevezmi_seznamy(z);
    obnov_stitky();
    dopocti();
}

} // namespace

void nacti_simulaci_z(std::span<const std::uint8_t> bajty) {
    Zaznam z = precti_zaznam(bajty);
    varuj_pred_verzi(z);
    over_hlavicku(z);
    const std::int16_t minuty = casova_znacka(z);
    over_cesty(z);
    over_vlaky(z);
    over_relief(z);
    Stav predchozi;
    try {
        prevezmi(z, minuty);
        over_stav();
    } catch (...) {
        predchozi.vrat();
        throw;
    }
}

namespace {

bool ukonci_nenactene(TextPohled soubor, const BehovaChyba& chyba) {
    Text text("Stav simulace ze soboru "_cz); // the word has always been spelt so
    text += soubor;
    text += " se nepodařilo načíst! ("_cz;
    text += text_chyby(chyba.kod);
    if (chyba.kod == KodChyby::mimo_meze && !chyba.co.empty())
        text += ": " + chyba.co;
    text += ")";
    platforma.okno("KPS RVZ TESK", text);
    gtn_zavri();
    platforma.ukonci(1);
    return false;
}

// First station of a train that comes from line end k.
constexpr std::array<std::uint8_t, 3> kStaniceKoncu = {19, 20, 5};

} // namespace

bool nacti_simulaci(TextPohled jmeno) {
    const Text soubor(jmeno); // the name may stand in the very state that the file replaces
    if (je_ladeni()) {
        nacti_simulaci_z(nacti_soubor(soubor)); // a fault stops the program at its place
    } else {
        try {
            nacti_simulaci_z(nacti_soubor(soubor));
        } catch (const BehovaChyba& chyba) {
            return ukonci_nenactene(soubor, chyba);
        } catch (const std::bad_alloc&) {
            return ukonci_nenactene(soubor, {KodChyby::malo_pameti, {}});
        }
    }
    Text text("Stav simulace načten ze souboru "_cz);
    text += soubor;
    text += "!";
    platforma.okno("KPS RVZ TESK", text);
    return true;
}

void obnov_souhlasy() {
    souhlasy.souhlas = {};
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky) {
        if (cislo == 0)
            continue;
        for (const GvdVlak& radek : gvd_vlaky)
            for (std::size_t k = 0; k < kStaniceKoncu.size(); ++k)
                if (radek.cislo == cislo && radek.stanice.front() == kStaniceKoncu[k])
                    souhlasy.souhlas[k] = true;
    }
    // The minute of a train that has gone in is out, although its text stays until the next consent ends.
    for (std::size_t k = 0; k < kStaniceKoncu.size(); ++k) {
        const auto je_sedy = [](int n) { return !je_kolej(n) || relief.kolej[n].barva == barvy::seda; };
        if (souhlasy.souhlas[k] && je_sedy(kKonceTrati[k].usek) && je_sedy(kKonceTrati[k].navestidlo) &&
            relief.lblPredvidany_odjezd.je(static_cast<int>(k)))
            relief.lblPredvidany_odjezd[static_cast<int>(k)].viditelny = false;
    }
}

void priprav_nacteni(TextPohled soubor, const MoznostiStartu& moznosti) {
    uloz_volby(moznosti);
    simulace.nacitani_zaznamu = true;
    simulace.soubor_zaznamu = Text(soubor);
    priprava_simulace();
}

bool nacti_dialog(const MoznostiStartu& moznosti) {
    const Text slozka = simulace.cesta_aplikace + "save";
    zaloz_slozku(slozka); // where the dialogue opens
    const auto odpoved = platforma.soubor_k_otevreni(slozka, "*.sim");
    const TextPohled soubor = odpoved ? orez(*odpoved) : TextPohled{};
    if (soubor.empty())
        return false;
    priprav_nacteni(soubor, moznosti);
    return true;
}
