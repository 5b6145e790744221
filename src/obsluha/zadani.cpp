// obsluha/zadani.cpp - what the typed texts do.
#include "obsluha/zadani.h"

#include "app/simulace.h"
#include "cesty/tabulky.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/casy.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "jizda/na_koleji.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "obsluha/stanoviste.h"
#include "obsluha/vstup.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/prejezdy.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace {

constexpr int kTwipsuNaPixel = 15;
constexpr std::int32_t kZaCislyVlaku = 399'999; // numbers of trains lie below

// --- notes

struct PopisStitku {
    TextPohled slovo;
    Text StitekPrvku::*text;
};
constexpr std::array<PopisStitku, 3> kStitky = {{{" STIT ", &StitekPrvku::stitek},
                                                 {" NVL ", &StitekPrvku::nvl},
                                                 {" VYL ", &StitekPrvku::vyluka}}}; // by DruhStitku

StitekPrvku& zaloz_stitek(int prvek) {
    const int i = stitek_prvku(prvek);
    if (i >= 0)
        return stitky[static_cast<std::size_t>(i)];
    StitekPrvku& novy = stitky.emplace_back();
    novy.prvek = static_cast<std::int16_t>(prvek);
    return novy;
}

// A possession of the line closes the crossing on it for good: it shows its own border.
void oznac_prejezd(int prvek, bool vyluka) {
    const std::size_t prejezd = uzel::prejezd_vyluky(prvek, prejezdy.size());
    if (prejezd < prejezdy.size())
        prejezdy[prejezd].vyluka = vyluka;
}

void napis_stitek(int prvek, DruhStitku druh, TextPohled text) {
    zaloz_stitek(prvek).*kStitky[static_cast<std::size_t>(druh)].text = text;
    if (druh == DruhStitku::vyluka)
        oznac_prejezd(prvek, !text.empty());
    obnov_stitek(prvek);
}

// The right label of a track takes the background of the note with its number: without the note it must
// not keep it.
void zhasni_pravy_stitek(int prvek) {
    const int pravy = prvek + kDruhyStitek;
    if (!je_cislo_koleje(pravy) || !je_cislo_koleje(prvek) ||
        relief.cislo_koleje[pravy].popis() != relief.cislo_koleje[prvek].popis())
        return;
    if (je_pozadi_stitku(relief.cislo_koleje[pravy].pozadi))
        nastav_pozadi_stitku(pravy, barvy::cerna);
}

// --- the number of a train

// What may be a number of a train; letters, 0 and what lies above the range are not.
std::optional<std::int32_t> cislo_vlaku_z_textu(TextPohled text) {
    const auto hodnota = ciselny_text(text);
    if (!hodnota || !(*hodnota > 0 && *hodnota < kZaCislyVlaku))
        return std::nullopt;
    const std::int32_t cislo = na_long(*hodnota);
    return cislo > 0 && cislo < kZaCislyVlaku ? std::optional(cislo) : std::nullopt;
}

void prevezmi_radek(Vlak& vlak, const GvdVlak& radek) {
    vlak.druh = radek.druh;
    vlak.pokyn = radek.kolej;
    vlak.poznamka = radek.poznamka;
    vlak.zastavky = dnesni_zastavky(radek);
    vlak.stanice_index = -1;
}

// The labels of the tracks on which the train stands, and of those with another part of its old set.
void obnov_popisky(int v, std::int32_t stare) {
    for (std::size_t i = 0; i < koleje_vlaky.size(); ++i) {
        const std::vector<std::int16_t> seznam = koleje_vlaky[i].vlaky;
        const bool tyka_se = std::any_of(seznam.begin(), seznam.end(), [&](std::int16_t x) {
            return x == v || (x >= 0 && zobrazene_cislo(vlak_c(x)) == stare);
        });
        if (tyka_se && koleje_vlaky[i].prvek < kPrvniOdstavna)
            zobraz_kolej(static_cast<int>(i));
    }
}

void precisluj(int v, std::int32_t cislo) {
    Vlak& vlak = vlak_c(v);
    const std::int32_t stare = zobrazene_cislo(vlak);
    smaz_z_tabulky(stare);
    vlak.cislo = cislo;
    vlak.cislo2_platne = false;
    if (!vlak.posun)
        prepis_cislo_na_stitcich(stare, cislo);
    if (const auto radky = gvd_vlaky.s_cislem(cislo); !radky.empty()) {
        prevezmi_radek(vlak, radek_gvd(radky.front().radek));
        if (!vlak.prvky.empty()) { // as if it had just arrived there
            vlak.obslouzeno = vlak.prvky.size();
            vlak_v_cili(vlak.prvky.back().prvek, v);
        }
    }
    pridej_do_tabulky(v);
    obnov_popisky(v, stare);
}

void odpovez_na_civ(int v, TextPohled text) {
    const auto cislo = cislo_vlaku_z_textu(text);
    const bool je_vlak = v >= 0 && static_cast<std::size_t>(v) < vlaky.size() && vlak_c(v).cislo > 0;
    if (cislo && je_vlak)
        precisluj(v, *cislo);
    spust_hodiny();
}

// --- the search

// The pointer goes to the middle of the element and its menu opens, as by a right click there.
void najdi_prvek(Druh druh, int n) {
    const Prvek& p = tabulka(druh)[n];
    platforma.nastav_kurzor(
        {(p.vlevo() + p.sirka() / 2) / kTwipsuNaPixel, (p.nahore() + p.vyska() / 2) / kTwipsuNaPixel});
    najeti(druh, n);
    klik(druh, n, Tlacitko::prave, false);
    // The name of a station has the menu of its post, also where the desk shows no post, unless the depots
    // give it one of their own.
    if (druh == Druh::popis_stanice && menu.jmeno.empty() && !nazev_stanice(n).empty()) {
        menu_stanoviste(n);
        menu.druh = druh;
    }
}

// The first element of the kind that meets the condition; false when there is none.
template <class Podminka> bool hledej(Druh druh, Podminka podminka) {
    const TabulkaPrvku& prvky = tabulka(druh);
    for (int n = 0; n <= prvky.nejvyssi(); ++n)
        if (prvky.je(n) && podminka(n, prvky[n])) {
            najdi_prvek(druh, n);
            return true;
        }
    return false;
}

// --- the question

void zeptej_se(TextPohled slovo, std::int16_t rezim, int prvek, TextPohled text, Barva popredi) {
    relief.txtZadav_pole[0].text = text;
    prikaz_radek.rezim_zadani = rezim;
    prikaz_radek.zadany_prvek = static_cast<std::int16_t>(prvek);
    zprava(slovo, {}, barvy::azurova, 0, true, barvy::bila, popredi);
}

} // namespace

void otevri_stitek(int prvek, DruhStitku druh) {
    zahod_zadani();
    const auto k = static_cast<std::size_t>(druh);
    const int i = stitek_prvku(prvek);
    const Text text = i < 0 ? Text{} : stitky[static_cast<std::size_t>(i)].*kStitky[k].text;
    zeptej_se(kStitky[k].slovo, static_cast<std::int16_t>(rezim_zadani::stitek + static_cast<int>(k)), prvek,
              text, barvy::bila);
}

void otevri_hledani() {
    zahod_zadani();
    zeptej_se(" JEDNOTKA? ", rezim_zadani::jednotka, kZadny, {}, barvy::cerna);
}

void zahod_zadani() {
    std::vector<ZpravaFronty>& fronta = prikaz_radek.fronta_zprav;
    fronta.erase(std::remove_if(fronta.begin(), fronta.end(), [](const ZpravaFronty& z) { return z.vstup; }),
                 fronta.end());
    const bool cislo_vlaku =
        std::exchange(prikaz_radek.rezim_zadani, rezim_zadani::zadny) == rezim_zadani::cislo_vlaku;
    prikaz_radek.zadany_prvek = kZadny;
    if (!relief.txtZadav_pole[0].povoleny)
        return;
    relief.txtZadav_pole[0].text = Text{};
    prikaz_radek.kod_zpravy = 0;
    skryj_prikaz();
    if (cislo_vlaku)
        spust_hodiny();
}

void zpracuj_zadani(TextPohled text) {
    const Text zadano(text); // the field is emptied below
    const std::int16_t rezim = std::exchange(prikaz_radek.rezim_zadani, rezim_zadani::zadny);
    const int prvek = std::exchange(prikaz_radek.zadany_prvek, static_cast<std::int16_t>(kZadny));
    relief.txtZadav_pole[0].text = Text{};
    switch (rezim) {
    case rezim_zadani::stitek:
    case rezim_zadani::nvl:
    case rezim_zadani::vyluka:
        napis_stitek(prvek, static_cast<DruhStitku>(rezim - rezim_zadani::stitek), zadano);
        break;
    case rezim_zadani::jednotka: pridej_prvek_podle_jmena(zadano); break;
    case rezim_zadani::cislo_vlaku: odpovez_na_civ(prvek, zadano); break;
    default: break;
    }
}

void pridej_prvek_podle_jmena(TextPohled text) {
    text = orez(text);
    if (text.empty())
        return;
    const auto podle_jmena = [&](int, const Prvek& p) { return stejne_bez_velikosti(p.popis(), text); };
    const auto podle_napisu = [&](int, const Prvek& p) {
        return stejne_bez_velikosti(p.text(), text) || stejne_bez_velikosti(p.popis(), text);
    };
    const auto podle_koleje = [&](int n, const Prvek& p) {
        const TextPohled stanice = kod_stanice_prvku(n);
        if (stanice.empty())
            return false;
        Text jmeno(stanice);
        jmeno += " ";
        jmeno += orez(p.popis());
        return stejne_bez_velikosti(jmeno, text);
    };
    if (hledej(Druh::navestidlo, podle_jmena) || hledej(Druh::navestidlo_ser, podle_jmena) ||
        hledej(Druh::popis_stanice, podle_napisu) || hledej(Druh::cislo_koleje, podle_koleje))
        return;
    if (const int vyhybka = cislo_vyhybky(text); relief.imgVyhybka.je(vyhybka))
        najdi_prvek(Druh::imgVyhybka, vyhybka);
}

void obnov_stitek(int prvek) {
    const int i = stitek_prvku(prvek);
    if (i < 0)
        return;
    const StitekPrvku& stitek = stitky[static_cast<std::size_t>(i)];
    if (relief.Image1.je(prvek))
        relief.Image1[prvek].obrazek = obrazek_stitku(stitek);
    const auto pozadi = pozadi_stitku(stitek);
    if (je_cislo_koleje(prvek))
        nastav_pozadi_stitku(prvek, pozadi.value_or(barvy::cerna));
    if (pozadi)
        return;
    zhasni_pravy_stitek(prvek);
    if (vlak_na_koleji(prvek))
        zobraz_kolej(zaznam_koleje(prvek));
}

TextPohled kod_stanice_prvku(int prvek) {
    const uzel::KolejeStanice* stanice = uzel::stanice_koleje(prvek);
    return stanice == nullptr ? TextPohled() : stanice->kod;
}
