// ui/platno_panelu.cpp - where the bottom panel stands in the picture, and what it shows there.
#include "ui/doplnek_tabulky.h"
#include "ui/platno.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Where the lists of the bottom panel stand on the desk as it was drawn, pixels of the desk.
constexpr QRect kSeznam(4, 640, 1016, 126);
constexpr int kRadkuSloupce = 8, kSloupcuTabulky = 3; // of the train table
constexpr std::size_t kSloupcuRadku = 32;             // characters of its lines on the desk as it was drawn
constexpr std::size_t kMistRadku = 34;                // up to the marks of the next column there
constexpr int kNejvyssiMezera = kVyskaZnaku / 2;      // between its lines on a high display
constexpr double kNejvetsiVuz = 1.5;
constexpr int kSirkaZprav = 264, kSirkaSeznamuVedle = 700; // on its second half, of both lists
// Tops of the panel and of what is written above its second half, pixels of the desk.
constexpr int kPanel_od = 615, kNadpis_y = 620;

// Where a line of the train table may go on: in a column of its own, or behind a text that reaches into it.
std::size_t sloupec_doplnku(TextPohled radek) {
    const std::size_t posledni = radek.find_last_not_of(' ');
    return posledni == TextPohled::npos ? kSloupcuRadku : std::max(kSloupcuRadku, posledni + 2);
}

// Right end of the train on display, on the desk as it was drawn; 0 without one.
int konec_vlaku() {
    int konec = 0;
    for (int n = 0; n <= relief.imgObrzaek_vlaku.nejvyssi(); ++n)
        if (relief.imgObrzaek_vlaku.je(n) && relief.imgObrzaek_vlaku[n].viditelny())
            konec = std::max(konec, relief.imgObrzaek_vlaku[n].vlevo() + relief.imgObrzaek_vlaku[n].sirka());
    return konec;
}

Prvek nadpis(TextPohled text, int vlevo, int nahore = kNadpis_y * kTwipu) {
    Prvek p;
    p.viditelny = true;
    p.text = text;
    p.barva = barvy::seda;
    p.vlevo = vlevo;
    p.nahore = nahore;
    p.sirka = static_cast<int>(text.size()) * kSirkaZnaku;
    p.vyska = kVyskaZnaku;
    return p;
}

} // namespace

QRect Platno::misto_seznamu() const {
    return {kSeznam.x() * kTwipu, kSeznam.y() * kTwipu, kSeznam.width() * kTwipu + navic_panelu(),
            kSeznam.height() * kTwipu + vyssi};
}

// The lines of the messages are short, the diary has the rest.
QRect Platno::misto_seznamu_vedle(int ktery) const {
    const int mezera = kSeznam.x() * kTwipu, od = konec_prvni_pulky() + mezera;
    const int predel = od + kSirkaZprav * kTwipu;
    const QRect cele = misto_seznamu();
    return ktery == 0
               ? QRect(od, cele.y(), predel - od, cele.height())
               : QRect(predel + mezera, cele.y(), sirka_stolu + sirsi - predel - 2 * mezera, cele.height());
}

// Two screens part the panel in the middle. On one the table of trains has what the lists beside it do not
// need.
int Platno::konec_prvni_pulky() const {
    const int pulka = kSirkaStolu + posun_praveho_okraje();
    return pres_oba && druha == DruhaStranka::seznamy
               ? std::max(pulka, sirka_stolu + sirsi - kSirkaSeznamuVedle * kTwipu)
               : pulka;
}

QRect Platno::misto_panelu() const {
    return {0, kPanel_od * kTwipu, sirka_stolu + sirsi, kVyskaStolu + vyssi - kPanel_od * kTwipu};
}

DruhaStranka Platno::spocti_druhou() const {
    if (!dve_pulky)
        return DruhaStranka::zadna;
    if (relief.lblTabulka_vlaku.je(0) && relief.lblTabulka_vlaku[0].viditelny())
        return DruhaStranka::seznamy;
    return konec_vlaku() > kSirkaStolu ? DruhaStranka::zadna : DruhaStranka::tabulka;
}

void Platno::umisti_tabulku() {
    for (const Druh druh : {Druh::lblTabulka_vlaku, Druh::shpblikacka}) {
        std::vector<Prvek>& radky = umistene[static_cast<std::size_t>(druh)];
        for (std::size_t n = 0; n < radky.size(); ++n)
            radky[n] = umisti(druh, static_cast<int>(n));
    }
}

// An element of the panel: from its place on the desk as it was drawn to that in the picture.
void Platno::umisti_na_panelu(Druh druh, int n, Prvek& p) const {
    const int navic = navic_panelu();
    switch (druh) {
    case Druh::lblPokracuje: p.vlevo = p.vlevo + navic; break;
    case Druh::lblIinfo_o_vlaku: p.sirka = p.sirka + navic; break;
    case Druh::lblTabulka_vlaku:
    case Druh::shpblikacka: {
        const int sloupec = n % kRadkuTabulky / kRadkuSloupce;
        const bool vedle = druha == DruhaStranka::tabulka;
        p.vlevo = p.vlevo + sloupec * navic / kSloupcuTabulky + (vedle ? konec_prvni_pulky() : 0);
        p.nahore =
            p.nahore + n % kRadkuTabulky % kRadkuSloupce * std::min(vyssi / kRadkuSloupce, kNejvyssiMezera);
        p.viditelny = p.viditelny || (vedle && p.existuje);
        if (druh == Druh::shpblikacka)
            break;
        p.sirka = p.sirka + navic / kSloupcuTabulky;
        if (const Text& doplnek = doplnky[static_cast<std::size_t>(n)]; !doplnek.empty()) {
            Text radek(p.text().substr(0, sloupec_doplnku(p.text())));
            radek.resize(sloupec_doplnku(p.text()), ' ');
            p.text = radek + doplnek;
        }
        break;
    }
    case Druh::imgObrzaek_vlaku:
    case Druh::lblPopis_vozu:
    case Druh::imgSberac: {
        const double stred = p.vlevo + p.sirka / 2.0;
        const double krat = druh == Druh::imgSberac ? 1 : vozy.krat;
        p.sirka = static_cast<int>(std::lround(p.sirka * krat));
        p.vlevo = static_cast<int>(
            std::lround(kSeznam.x() * kTwipu + (stred - kSeznam.x() * kTwipu) * vozy.krat - p.sirka / 2.0));
        p.nahore = p.nahore + (druh == Druh::lblPopis_vozu ? vozy.dolu : -vozy.nahoru);
        p.vyska = p.vyska + (druh == Druh::imgObrzaek_vlaku ? vozy.nahoru + vozy.dolu : 0);
        break;
    }
    default: break;
    }
}

// A train is drawn as large as the breadth of the panel and the lines above and below it allow. On two
// monitors it may be longer than the half that it begins in: then it goes on into the second one.
Platno::Vozy Platno::spocti_vozy() const {
    double do_sirky = 1 + static_cast<double>(navic_panelu()) / kSirkaStolu;
    if (dve_pulky)
        if (const int konec = konec_vlaku() - kSeznam.x() * kTwipu; konec > 0) {
            const int sirka = druha == DruhaStranka::zadna ? sirka_stolu + sirsi : konec_prvni_pulky();
            do_sirky = static_cast<double>(sirka - 2 * kSeznam.x() * kTwipu) / konec;
        }
    if (do_sirky <= 1)
        return {};
    constexpr int kVyskaMista = 40 * kTwipu, kRadkuPopisu = 3;
    constexpr double kKrokVozu = 0.02;
    const auto prvky = [this](Druh druh) -> const std::vector<Prvek>& {
        return nakreslene[static_cast<std::size_t>(druh)];
    };
    const bool jeden_radek = prvky(Druh::lblIinfo_o_vlaku).empty() ||
                             static_cast<int>(prvky(Druh::lblIinfo_o_vlaku)[0].text->size()) * kSirkaZnaku <
                                 misto_seznamu().width();
    const int nahore = jeden_radek ? kVyskaZnaku : 0; // the pantographs stay clear of the text
    for (double krat = std::min(do_sirky, kNejvetsiVuz); krat > 1; krat -= kKrokVozu) {
        int radku = 1;
        for (Prvek popis : prvky(Druh::lblPopis_vozu))
            if (popis.viditelny) {
                popis.sirka = static_cast<int>(popis.sirka * krat);
                radku = std::max(radku, radku_popisu(popis));
            }
        const int dole =
            std::max(0, kRadkuPopisu - 1 - radku) * kVyskaZnaku + vyssi; // the last line stays free
        const int potreba = static_cast<int>((krat - 1) * kVyskaMista);
        if (potreba <= nahore + dole) {
            // the room of a high display first, then that of the line above, then that of the captions
            const int nahoru = std::min(nahore, potreba - std::min(vyssi, potreba));
            return {krat, nahoru, potreba - nahoru};
        }
    }
    return {};
}

// Of the lines of the train table, as far as the breadth of a column goes.
std::array<Text, kRadkuTabulky> Platno::spocti_doplnky() const {
    std::array<Text, kRadkuTabulky> nove;
    const std::size_t navic = static_cast<std::size_t>(navic_panelu() / kSloupcuTabulky / kSirkaZnaku);
    const std::size_t sloupcu = kMistRadku + navic;
    for (std::size_t n = 0; n < nove.size() && navic > 0; ++n)
        if (const Prvek& radek = relief.lblTabulka_vlaku[static_cast<int>(n)];
            radek.viditelny || druha == DruhaStranka::tabulka)
            if (const std::size_t od = sloupec_doplnku(radek.text()); od < sloupcu)
                nove[n] = doplnek_radku(static_cast<int>(n), sloupcu - od);
    return nove;
}

// What the second half of the bottom panel shows is written above it: its buttons stand on the first.
void Platno::kresli_druhou_pulku(QPainter& p) const {
    nakresli_predel(p, m, konec_prvni_pulky(), kPanel_od * kTwipu, kVyskaStolu + vyssi);
    const int od = misto_seznamu_vedle(0).x();
    if (druha == DruhaStranka::tabulka) {
        nakresli_prvek(p, m, Druh::lblGVD, 0, nadpis("TABULKA"_cz, od));
        return;
    }
    nakresli_prvek(p, m, Druh::lblGVD, 0, nadpis("ZPRÁVY"_cz, od));
    nakresli_prvek(p, m, Druh::lblGVD, 0, nadpis("DENÍK"_cz, misto_seznamu_vedle(1).x()));
}

// The page of the train, before one was asked for, says how that is done.
void Platno::kresli_bez_vlaku(QPainter& p) const {
    for (const Prvek& radek : umistene[static_cast<std::size_t>(Druh::lblIinfo_o_vlaku)])
        if (radek.existuje && radek.viditelny && radek.text->empty())
            nakresli_prvek(p, m, Druh::lblGVD, 0,
                           nadpis("Poklepejte na číslo vlaku, nebo na ně ukažte a stiskněte F8."_cz,
                                  radek.vlevo, radek.nahore));
}
