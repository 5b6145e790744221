// desk/zprava.cpp - the command line, its queue, and the buttons of the bottom panel.
#include "desk/zprava.h"

#include "app/simulace.h"
#include "desk/info_o_vlaku.h"
#include "relief/relief.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int kSirkaPrikazu = 14700; // width of the command line, twips; behind it stands the macro letter
constexpr int kOdstupVpravo = 5;

constexpr Barva kPozadiTlacitka = 0xE0E0E0;
constexpr Barva kStisknutePozadi = 0x800000;

// By kind; what only tells something has no word of its own.
constexpr std::array kSlova = {TextPohled(),        " INIT "_cz,      " TPC "_cz,          " ARCHIV "_cz,
                               " VC "_cz,           " PC "_cz,        " PN "_cz,           " ZPRÁVA "_cz,
                               " POZOR STITEK "_cz, " POZOR NVL "_cz, " POZOR VYLUKA "_cz, " POZOR PN "_cz,
                               " CIV "_cz};
static_assert(kSlova.size() == static_cast<std::size_t>(DruhZpravy::cislo_vlaku) + 1);

// Opens or closes the input field over the text of the line. While the operator types, the pointer is
// out of the way.
void nastav_vstup(bool otevrit) {
    Prvek& pole = relief.txtZadav_pole[0];
    if (otevrit) {
        pole.vlevo = relief.lblVolba[0].vlevo();
        do_popredi(pole);
    }
    if (otevrit || pole.povoleny)
        platforma.kurzor_viditelny(!otevrit);
    pole.povoleny = otevrit;
    pole.viditelny = otevrit;
}

// The copy of an element of the line on the second monitor.
void dvojce(TabulkaPrvku& prvky) {
    if (!simulace.dva_monitory || !prvky.je(1))
        return;
    const Prvek& vzor = prvky[0];
    Prvek& kopie = prvky[1];
    kopie.text = vzor.text;
    kopie.barva = vzor.barva;
    kopie.pozadi = vzor.pozadi;
    kopie.viditelny = vzor.viditelny;
    kopie.vlevo = vzor.vlevo() + kDruhyMonitor;
    kopie.nahore = vzor.nahore;
    kopie.sirka = vzor.sirka;
    kopie.vyska = vzor.vyska;
}

// Captions and places of both labels, and their copies.
void vypis_radek(const SlovoZpravy& slovo, TextPohled text) {
    Prvek& prikaz = relief.lblPrikaz[0];
    Prvek& volba = relief.lblVolba[0];
    prikaz_radek.slovo = slovo;
    nastav_text(prikaz, slovo.text());
    prikaz.viditelny = true;
    volba.text = text;
    volba.viditelny = true;
    volba.vlevo = prikaz.vlevo() + prikaz.sirka();
    volba.sirka = kSirkaPrikazu - volba.vlevo() - kOdstupVpravo;
    dvojce(relief.lblPrikaz);
    dvojce(relief.lblVolba);
    prikaz_radek.obsazen = true;
    // these flash until they are answered
    prikaz_radek.blikani_prikazu = je_varovani(slovo.druh()) || slovo.druh() == DruhZpravy::souhlas;
}

void zobraz(const ZpravaFronty& z, int kod) {
    Prvek& prikaz = relief.lblPrikaz[0];
    Prvek& volba = relief.lblVolba[0];
    const bool varovani = z.pozadi == barvy::oranzova;
    prikaz.pozadi = z.pozadi;
    prikaz.barva = varovani ? barvy::bila : z.popredi;
    volba.pozadi = z.pozadi_volby;
    volba.barva = varovani ? barvy::bila : barvy::cerna;
    vypis_radek(z.slovo, z.volba);
    prikaz_radek.kod_zpravy = static_cast<std::int16_t>(kod);
    nastav_vstup(z.vstup);
}

// The queue keeps one empty record at its end: a message fills it and leaves a new one behind.
void zarad(ZpravaFronty z) {
    prikaz_radek.fronta_zprav.back() = std::move(z);
    prikaz_radek.fronta_zprav.emplace_back();
}

ZpravaFronty zprava_na_radku() {
    return {prikaz_radek.slovo,        relief.lblVolba[0].text,   relief.lblPrikaz[0].pozadi,
            relief.lblVolba[0].pozadi, relief.lblPrikaz[0].barva, relief.txtZadav_pole[0].povoleny};
}

// --- the bottom panel

void stiskni_tlacitko(Panel panel) {
    struct Tlacitko {
        Panel panel;
        Prvek& prvek;
    };
    const std::array tlacitka = {
        Tlacitko{Panel::zpravy, relief.cmdZpravy[0]}, Tlacitko{Panel::denik, relief.cmDenik[0]},
        Tlacitko{Panel::tabulka, relief.cmdTABULKA[0]}, Tlacitko{Panel::vlak, relief.cmdVLAK[0]}};
    for (const Tlacitko& t : tlacitka) {
        const bool stisknute = t.panel == panel;
        // An unread delay stays marked until the messages are opened.
        if (!stisknute && t.panel == Panel::zpravy && t.prvek.pozadi == barvy::zelena)
            continue;
        t.prvek.barva = stisknute ? barvy::bila : barvy::cerna;
        t.prvek.pozadi = stisknute ? kStisknutePozadi : kPozadiTlacitka;
    }
}

void ukaz_vse(TabulkaPrvku& prvky, bool viditelne) {
    for (int n = 0; n <= prvky.nejvyssi(); ++n)
        if (prvky.je(n))
            prvky[n].viditelny = viditelne;
}

void ukaz_obsah(Panel panel) {
    relief.lstZpravy.viditelny = panel == Panel::zpravy;
    relief.lstDenik.viditelny = panel == Panel::denik;
    ukaz_vse(relief.lblTabulka_vlaku, panel == Panel::tabulka);
    ukaz_vse(relief.shpblikacka, panel == Panel::tabulka);
    relief.lblIinfo_o_vlaku[0].viditelny = panel == Panel::vlak;
    if (panel == Panel::tabulka)
        relief.lblIinfo_o_vlaku[0].text = Text{};
    if (panel == Panel::vlak) {
        ukaz_stranku_vlaku();
        return;
    }
    ukaz_vse(relief.imgObrzaek_vlaku, false);
    ukaz_vse(relief.lblPopis_vozu, false);
    ukaz_vse(relief.imgSberac, false);
    relief.lblPokracuje[0].viditelny = false;
}

} // namespace

TextPohled SlovoZpravy::text() const {
    return druh_zpravy == DruhZpravy::sdeleni ? TextPohled(sdeleni)
                                              : kSlova[static_cast<std::size_t>(druh_zpravy)];
}

void SlovoZpravy::precti(TextPohled slovo) {
    const auto misto = std::find(kSlova.begin() + 1, kSlova.end(), slovo);
    if (misto != kSlova.end())
        druh_zpravy = static_cast<DruhZpravy>(misto - kSlova.begin());
    else
        sdeleni = slovo;
}

bool je_varovani(DruhZpravy druh) {
    return druh >= DruhZpravy::stitek && druh <= DruhZpravy::sviti_pn;
}

bool je_vyzva_cesty(DruhZpravy druh) {
    return druh >= DruhZpravy::vc && druh <= DruhZpravy::pn;
}

bool je_prihlaseni(DruhZpravy druh) {
    return druh >= DruhZpravy::init && druh <= DruhZpravy::archiv;
}

std::optional<DruhZpravy> stojici_zprava() {
    return prikaz_radek.obsazen ? std::optional(prikaz_radek.slovo.druh()) : std::nullopt;
}

void zprava(const SlovoZpravy& slovo, TextPohled volba, Barva pozadi, int kod, bool vstup, Barva pozadi_volby,
            Barva popredi, bool do_fronty) {
    ZpravaFronty nova{slovo, Text(volba), pozadi, pozadi_volby, popredi, vstup};
    if (slovo.druh() == DruhZpravy::cislo_vlaku || !prikaz_radek.obsazen) {
        zobraz(nova, kod);
    } else if (relief.lblVolba[0].text() == volba) {
        return; // the same is not said twice in a row
    } else if (je_vyzva_cesty(prikaz_radek.slovo.druh())) {
        zobraz(nova, kod);
    } else if (do_fronty) {
        zarad(zprava_na_radku());
        zobraz(nova, kod);
    } else if (!je_vyzva_cesty(slovo.druh())) {
        zarad(std::move(nova));
    } // a prompt never waits
}

void skryj_prikaz() {
    prikaz_radek.slovo = {};
    nastav_text(relief.lblPrikaz[0], {});
    relief.lblPrikaz[0].viditelny = false;
    relief.lblVolba[0].viditelny = false;
    dvojce(relief.lblPrikaz);
    dvojce(relief.lblVolba);
    nastav_vstup(false);
    prikaz_radek.obsazen = false;
    prikaz_radek.blikani_prikazu = false;
}

void potvrd_prikaz() {
    skryj_prikaz();
    prikaz_radek.kod_zpravy = 0;
    pipni(400, 150);
}

void dalsi_zprava() {
    std::vector<ZpravaFronty>& fronta = prikaz_radek.fronta_zprav;
    const bool volno = !prikaz_radek.obsazen || je_vyzva_cesty(prikaz_radek.slovo.druh());
    // Into an occupied line the message would only go to the end of the queue: it keeps its turn.
    if (fronta.size() < 2 || !volno)
        return;
    const ZpravaFronty z = std::move(fronta.front());
    fronta.erase(fronta.begin());
    zprava(z.slovo, z.volba, z.pozadi, 0, z.vstup, z.pozadi_volby, z.popredi);
}

void odvolej_varovani() {
    std::vector<ZpravaFronty>& fronta = prikaz_radek.fronta_zprav;
    fronta.erase(std::remove_if(fronta.begin(), fronta.end(),
                                [](const ZpravaFronty& z) { return je_varovani(z.slovo.druh()); }),
                 fronta.end());
    if (!prikaz_radek.obsazen || !je_varovani(prikaz_radek.slovo.druh()))
        return;
    skryj_prikaz();
    prikaz_radek.kod_zpravy = 0;
    dalsi_zprava();
}

void zobraz_prikaz(const SlovoZpravy& slovo, TextPohled volba, Barva popredi, Barva pozadi) {
    for (Prvek* p : {&relief.lblPrikaz[0], &relief.lblVolba[0]}) {
        p->barva = popredi;
        p->pozadi = pozadi;
    }
    vypis_radek(slovo, volba);
    prikaz_radek.kod_zpravy = 0;
    nastav_vstup(false);
}

void prepni_zvuk() {
    simulace.zvuk_vypnut = !simulace.zvuk_vypnut;
    ukaz_zvuk();
}

void ukaz_zvuk() {
    Prvek& znacka = relief.imgSound[0];
    znacka.obrazek = simulace.zvuk_vypnut ? kObrazekZvukVypnut : kObrazekZvukZapnut;
    znacka.popis = simulace.zvuk_vypnut ? "Zvuk vypnut"_cz : "Zvuk zapnut"_cz;
}

void prepni_panel(Panel panel) {
    stiskni_tlacitko(panel);
    ukaz_obsah(panel);
    ++revize_reliefu;
}
