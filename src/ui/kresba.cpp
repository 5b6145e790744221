// ui/kresba.cpp - draws the elements of the relief store, one at a time, as vectors at any scale.
#include "ui/kresba.h"

#include "prvky/panel.h"
#include "relief/tvary_vyhybek.h"
#include "ui/obrazky_vozu.h"
#include "ui/pismo.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr double kTloustkaKoleje = 3; // of a track line, pixels of the desk
constexpr double kMezeraUseku = 1;    // by which a level track stops short of its ends: sections part there
constexpr double kOdsazeniNohy = 0.6; // part of a leg that the switch leaves out on the side not set
constexpr double kOdsazeniPohybu = 0.4;
constexpr double kNejmensiKontrast = 3;
constexpr int kNejmensiCil = 13 * kTwipu; // no target for the pointer is smaller
constexpr int kPresahRadku = 2;           // of the command line above and below its text, pixels of the desk
constexpr int kPresahCisla = 2;           // what a label clears beside its text, pixels of the desk

constexpr int kStupenStozaru =
    7; // by which each of the masts is higher than the one before, pixels of the desk

constexpr QRgb kSvetla[] = {0xFFFFD21E, 0xFF19E64B, 0xFFFF2D1E, 0xFFFFFFFF, 0xFFFFD21E, 0xFF4678FF};
constexpr QRgb kPruhy[] = {0xFFFFD21E, 0xFF19E64B};
constexpr QRgb kTmavaPlocha = 0xFF15191E;
constexpr QRgb kLinka = 0xFF3C4550;
constexpr QRgb kKolejnice = 0xFF5A626A;
constexpr QRgb kIkona = 0xFFC8D2DC;
constexpr QRgb kIkonaStanoviste = 0xFF808C98;

// How the elements of a kind are drawn.
enum class Zpusob : std::uint8_t {
    nic,
    kolej,
    most,
    napis,    // one line
    odstavec, // wrapped lines
    radky,    // lines parted by character 13
    nastupiste,
    vyhybka,
    cil,
    lampa,
    znacka,
    stanoviste,
    ikona,
    tlacitko,
    svetlo,
    pruh,
    ramec,
    vuz,
    popis_vozu,
    sberac,
};

struct Styl {
    Druh druh;
    Zpusob zpusob = Zpusob::nic;
    Znaky znaky = Znaky::pismena;
    bool kryje = false; // clears what lies under its characters, also without a frame
    bool vstup = false; // takes the operator's input
    int vrstva = 1;
};

constexpr Styl kStyly[] = {
    {Druh::kolej, Zpusob::kolej, {}, false, false, 0},
    {Druh::most, Zpusob::most, {}, false, false, 0},
    {Druh::cislo_koleje, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::navestidlo, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::navestidlo_ser, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::imgVyhybka, Zpusob::vyhybka, {}, false, true, 2},
    {Druh::Image1, Zpusob::cil, {}, false, true, 0},
    {Druh::lblSouhlas, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::lblSouhlas2, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::lblPrejezd, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::lblPrejezdy, Zpusob::napis, Znaky::znacky, true, true, 3},
    {Druh::shpPrejezdy, Zpusob::lampa, {}, false, true, 3},
    {Druh::lblnastupiste, Zpusob::nastupiste, Znaky::znacky, false, false, 0},
    {Druh::lblVykolejka, Zpusob::napis, Znaky::znacky, true, true, 4},
    {Druh::popis_stanice, Zpusob::napis, Znaky::pismena, false, true, 2},
    {Druh::imgStanoviste, Zpusob::stanoviste, {}, false, true, 2},
    {Druh::imgSberac, Zpusob::sberac, {}, false, true, 3},
    {Druh::lblPredvidany_odjezd, Zpusob::napis, {}, false, true, 3},
    {Druh::lblTabulka_vlaku, Zpusob::napis, {}, false, true, 2},
    {Druh::shpblikacka, Zpusob::znacka, {}, false, false, 3},
    {Druh::lblPN, Zpusob::radky, {}, false, true, 3},
    {Druh::lblPrikaz, Zpusob::napis, {}, false, true, 5},
    {Druh::lblVolba, Zpusob::napis, {}, false, true, 5},
    {Druh::txtZadav_pole, Zpusob::nic, {}, false, false, 6},
    {Druh::lblMakro_pismeno, Zpusob::napis, {}, false, true, 5},
    {Druh::lblcas, Zpusob::napis, {}, false, false, 3},
    {Druh::lblcas_od_zacatku, Zpusob::napis, {}, false, false, 3},
    {Druh::lblDEN, Zpusob::napis, {}, false, false, 3},
    {Druh::lblGVD, Zpusob::napis, {}, false, false, 3},
    {Druh::lblrychlost_simulace, Zpusob::napis, {}, false, true, 3},
    {Druh::lblPauza, Zpusob::napis, {}, false, true, 5},
    {Druh::lblVerze, Zpusob::radky, {}, false, false, 3},
    {Druh::lblPrava, Zpusob::napis, {}, false, true, 3},
    {Druh::lblMereni_casu, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_pocet, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_blokv, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_EZ, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_PV, Zpusob::napis, {}, false, true, 3},
    {Druh::lblZasobnik_VZ, Zpusob::napis, {}, false, true, 3},
    {Druh::lblnavestidlo, Zpusob::napis, {}, false, false, 5},
    {Druh::lblNavestidlo_stanice, Zpusob::napis, {}, false, false, 5},
    {Druh::svetlo, Zpusob::svetlo, {}, false, false, 5},
    {Druh::pruh, Zpusob::pruh, {}, false, false, 5},
    {Druh::imgToc, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgToc2, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgSound, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgUloz, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgKONEC, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgDEBUG, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgPauza, Zpusob::ikona, {}, false, true, 3},
    {Druh::imgMinimalizuj, Zpusob::ikona, {}, false, true, 3},
    {Druh::imglista_horni, Zpusob::nic, {}, false, false, 0},
    {Druh::imgV1, Zpusob::ikona, {}, false, false, 2},
    {Druh::cmdZpravy, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmDenik, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmdTABULKA, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::cmdVLAK, Zpusob::tlacitko, {}, false, true, 3},
    {Druh::lblIinfo_o_vlaku, Zpusob::odstavec, {}, false, true, 3},
    {Druh::imgObrzaek_vlaku, Zpusob::vuz, {}, false, true, 3},
    {Druh::lblPopis_vozu, Zpusob::popis_vozu, {}, false, true, 3},
    {Druh::lblPokracuje, Zpusob::napis, {}, false, false, 3},
    {Druh::shpVyhledavani, Zpusob::ramec, {}, false, false, 7},
};
static_assert(std::size(kStyly) == kDruhy.size());
consteval bool styly_v_poradi_druhu() {
    for (std::size_t i = 0; i < std::size(kStyly); ++i)
        if (kStyly[i].druh != static_cast<Druh>(i))
            return false;
    return true;
}
static_assert(styly_v_poradi_druhu());

const Styl& styl(Druh druh) {
    return kStyly[static_cast<std::size_t>(druh)];
}

QColor odstin(QRgb barva) {
    return QColor::fromRgb(barva);
}

// Place of an element in device pixels.
QRect v_bodech(const Meritko& m, const Prvek& p) {
    return QRect(QPoint(m.x(p.vlevo), m.y(p.nahore)),
                 QPoint(m.x(p.vlevo + p.sirka) - 1, m.y(p.nahore + p.vyska) - 1));
}

// --- lines

int tloustka(const Meritko& m, double bodu = kTloustkaKoleje) {
    return m.bodu(bodu);
}

// Middle of a track line that runs at `twipy`, so that its edges fall on whole pixels.
double osa(double twipy, double pocatek, double k, int tl) {
    return std::lround(pocatek + twipy * k - tl / 2.0) + tl / 2.0;
}

constexpr int kPrvniRadek = 690; // top of the first row of the relief, twips

// Does this height lie on the line of a row? Slanted lines end there or in a corner between two rows.
bool je_na_ose(int y) {
    return (y - kPrvniRadek - kOsaRadku) % kVyskaZnaku == 0;
}

void vypln(QPainter& p, const QRect& plocha, const QColor& barva, const QRegion& mimo) {
    if (!mimo.intersects(plocha)) {
        p.fillRect(plocha, barva);
        return;
    }
    for (const QRect& kus : QRegion(plocha).subtracted(mimo))
        p.fillRect(kus, barva);
}

// Rounds off the corner between a slanted line and a level one.
void nakresli_ohyb(QPainter& p, QPointF kde, int tl, const QColor& barva) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(barva);
    p.drawEllipse(kde, tl / 2.0, tl / 2.0);
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing, false);
}

// How a line is broken: drawn for `cara`, left out for `mezera`, device pixels; whole without a gap.
struct VzorCary {
    int cara = 0, mezera = 0;
};
// For an eye that does not tell the colours, a track that is locked for shunting is dashed, one whose route
// is being set is dotted.
VzorCary vzor_stavu(const Meritko& m, Barva stav) {
    if (paleta() != Paleta::bez_barev || (stav != barvy::bila && stav != barvy::azurova))
        return {};
    return stav == barvy::bila ? VzorCary{m.bodu(9), m.bodu(4)} : VzorCary{m.bodu(3), m.bodu(3)};
}
// And an occupied one is thick.
int tloustka_stavu(const Meritko& m, Barva stav) {
    const bool silna = paleta() == Paleta::bez_barev && stav == barvy::cervena;
    return tloustka(m, silna ? kTloustkaKoleje + 2 : kTloustkaKoleje);
}

void nakresli_sikmou(QPainter& p, const Meritko& m, const Prvek& c, const QColor& barva, int tl) {
    const auto konec = [&](int x, int y) {
        return QPointF(m.x0 + x * m.k, je_na_ose(y) ? osa(y, m.y0, m.k, tl) : m.y0 + y * m.k);
    };
    const QPointF od = konec(c.x1, c.y1), po = konec(c.x2, c.y2);
    // Lines that meet end to end overlap by a hair, or their antialiased ends would leave a seam.
    const QPointF smer = (po - od) / std::hypot(po.x() - od.x(), po.y() - od.y()) * 0.5;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(barva, tl, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(od - smer, po + smer);
    p.setRenderHint(QPainter::Antialiasing, false);
    if (je_na_ose(c.y1))
        nakresli_ohyb(p, od, tl, barva);
    if (je_na_ose(c.y2))
        nakresli_ohyb(p, po, tl, barva);
}

void nakresli_caru(QPainter& p, const Meritko& m, const Prvek& c, const QColor& barva, int tl, int mezera,
                   const OkoliCary& okoli, VzorCary vzor = {}) {
    if (c.y1 == c.y2) {
        const bool zleva = c.x1 <= c.x2;
        const int a = m.x(zleva ? c.x1 : c.x2) + ((zleva ? okoli.dal_od : okoli.dal_po) ? 0 : mezera);
        const int b = m.x(zleva ? c.x2 : c.x1) - ((zleva ? okoli.dal_po : okoli.dal_od) ? 0 : mezera);
        const int y = static_cast<int>(osa(c.y1, m.y0, m.k, tl) - tl / 2.0);
        if (vzor.mezera == 0)
            vypln(p, QRect(a, y, std::max(1, b - a), tl), barva, okoli.texty);
        for (int x = a; vzor.mezera > 0 && x < b; x += vzor.cara + vzor.mezera)
            vypln(p, QRect(x, y, std::min(vzor.cara, b - x), tl), barva, okoli.texty);
    } else if (c.x1 == c.x2) {
        const int x = static_cast<int>(osa(c.x1, m.x0, m.k, tl) - tl / 2.0);
        const int a = m.y(std::min<int>(c.y1, c.y2)), b = m.y(std::max<int>(c.y1, c.y2));
        vypln(p, QRect(x, a, tl, std::max(1, b - a)), barva, okoli.texty);
    } else {
        nakresli_sikmou(p, m, c, barva, tl);
    }
}

void nakresli_most(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli) {
    const QColor barva = prvek.barva == barvy::cerna ? QColor(Qt::black) : barva_qt(prvek.barva);
    nakresli_caru(p, m, prvek, barva, tloustka(m, prvek.barva == barvy::cerna ? kTloustkaKoleje + 2 : 1), 0,
                  okoli);
}

// --- switches

QPointF bod_portu(const Meritko& m, int x, int y, Port port, int tl) {
    const MistoPortu misto = misto_portu(port);
    if (misto.y == kOsaRadku) // on the very line of the tracks beside
        return {port == Port::zadny ? m.x0 + (x + misto.x) * m.k : m.x(x + misto.x),
                osa(y + misto.y, m.y0, m.k, tl)};
    return {m.x0 + (x + misto.x) * m.k, m.y0 + (y + misto.y) * m.k};
}

// A straight line from the middle of a switch or a bend: level and sharp, or slanted and on into the next
// cell.
void nakresli_rameno(QPainter& p, QPointF stred, QPointF konec, double od, const QColor& barva, int tl,
                     const OkoliCary& okoli) {
    const QPointF zacatek = stred + (konec - stred) * od;
    if (stred.y() == konec.y()) {
        const int a = static_cast<int>(std::lround(std::min(zacatek.x(), konec.x())));
        const int b = static_cast<int>(std::lround(std::max(zacatek.x(), konec.x())));
        vypln(p, QRect(a, static_cast<int>(stred.y() - tl / 2.0), b - a, tl), barva, okoli.texty);
        return;
    }
    const QPointF presah = (konec - stred) / std::hypot(konec.x() - stred.x(), konec.y() - stred.y()) * 0.5;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(barva, tl, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(zacatek, konec + presah);
    p.setRenderHint(QPainter::Antialiasing, false);
}

// The way that the switch joins, in one stroke.
void nakresli_jizdu(QPainter& p, const Meritko& m, int x, int y, Port a, Port b, const QColor& barva, int tl,
                    const OkoliCary& okoli) {
    const QPointF od = bod_portu(m, x, y, a, tl), po = bod_portu(m, x, y, b, tl);
    if (od.y() == po.y()) {
        nakresli_rameno(p, od, po, 0, barva, tl, okoli);
        return;
    }
    const QPointF stred = bod_portu(m, x, y, Port::zadny, tl);
    nakresli_rameno(p, stred, od, 0, barva, tl, okoli);
    nakresli_rameno(p, stred, po, 0, barva, tl, okoli);
    nakresli_ohyb(p, stred, tl, barva);
}

constexpr std::array kBarvyTrid = {barvy::seda, barvy::zelena, barvy::azurova, barvy::cervena, barvy::bila};

// --- texts

int nasobek(const Styl& s, const Prvek& prvek) { // station names grow with their rectangle
    return s.druh == Druh::popis_stanice ? std::clamp(prvek.vyska / kVyskaZnaku, 1, 3) : 1;
}

// Of two colours of the core, roughly: whether letters on a ground need a shadow.
double kontrast(Barva a, Barva b) {
    const auto jas = [](Barva barva) {
        const QColor c = barva_qt(barva);
        const auto slozka = [](double v) { return v * v * (0.3 + 0.7 * v * v); }; // near enough to the eye
        return 0.2126 * slozka(c.redF()) + 0.7152 * slozka(c.greenF()) + 0.0722 * slozka(c.blueF());
    };
    const double x = jas(a) + 0.05, y = jas(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

// First column of a line of `delka` characters in the width of the element, pixels of the picture.
double zacatek_radku(const Meritko& m, const Prvek& prvek, double delka_px) {
    const double vlevo = m.x(prvek.vlevo), volno = prvek.sirka * m.k - delka_px;
    if (prvek.sirka <= 0 || prvek.zarovnani == 0)
        return vlevo;
    return vlevo + (prvek.zarovnani == 1 ? volno : volno / 2);
}

// Where the characters of a line of text stand, device pixels.
struct MistoRadku {
    double x, y, sirka, vyska; // of the first cell
};

MistoRadku misto_radku(const Meritko& m, const Styl& s, const Prvek& prvek) {
    const int krat = nasobek(s, prvek);
    const double sirka = kSirkaBunky * m.bod() * krat, vyska = kVyskaBunky * m.bod() * krat;
    return {zacatek_radku(m, prvek, sirka * static_cast<double>(prvek.text->size())),
            m.y(prvek.nahore) +
                (prvek.vyska > kVyskaZnaku ? std::max(0.0, (prvek.vyska * m.k - vyska) / 2) : 0.0),
            sirka, vyska};
}

// Ground of a text that has a frame.
QRect ramec_textu(const Meritko& m, const Styl& s, const Prvek& prvek) {
    const MistoRadku r = misto_radku(m, s, prvek);
    QRect plocha = v_bodech(m, prvek);
    if (prvek.sirka <= 0)
        plocha = QRect(QPointF(r.x, r.y).toPoint(),
                       QSizeF(r.sirka * static_cast<double>(prvek.text->size()), r.vyska).toSize());
    if (s.druh == Druh::lblPrikaz || s.druh == Druh::lblVolba) // the band is higher than its text
        plocha.adjust(0, -m.bodu(kPresahRadku), 0, m.bodu(kPresahRadku));
    return plocha;
}

// What a signal says, for an eye that does not tell its colours: a train may go with a bar above the sign, a
// shunting movement with one below, and a blocked signal is struck through.
void oznac_navest(QPainter& p, const Meritko& m, const MistoRadku& r, Barva barva) {
    const int tl = m.bodu(2);
    const QRect bunka(qRound(r.x), qRound(r.y), qRound(r.sirka), qRound(r.vyska));
    if (barva == barvy::zelena) {
        p.fillRect(bunka.x(), bunka.y(), bunka.width(), tl, barva_qt(barva));
    } else if (barva == barvy::bila) {
        p.fillRect(bunka.x(), bunka.bottom() - tl + 1, bunka.width(), tl, barva_qt(barva));
    } else if (barva == barvy::cervena || barva == barvy::modra) {
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(Qt::white, m.bodu(1)));
        p.drawLine(QPointF(bunka.left(), bunka.bottom()), QPointF(bunka.right(), bunka.top()));
        p.setRenderHint(QPainter::Antialiasing, false);
    }
}

void nakresli_napis(QPainter& p, const Meritko& m, const Styl& s, const Prvek& prvek) {
    const MistoRadku r = misto_radku(m, s, prvek);
    if (prvek.ramecek && !s.kryje)
        p.fillRect(ramec_textu(m, s, prvek), podklad_qt(prvek.pozadi));
    // black on the dark bar: a light ground makes it readable
    if (!s.kryje && !prvek.ramecek && prvek.barva == barvy::cerna)
        p.fillRect(ramec_textu(m, s, prvek), barva_qt(barvy::seda));
    // The colours are given; where they are too near to each other, a shadow parts the letters from the
    // ground. The number of a track on the ground of its note is white: grey drowns in it even so.
    Barva pismo = prvek.barva;
    if (paleta() != Paleta::obvykla) {
        if (prvek.ramecek && prvek.barva != prvek.pozadi)
            pismo = barva_pisma(prvek.barva, prvek.pozadi);
    } else if (prvek.ramecek && prvek.barva != prvek.pozadi &&
               kontrast(prvek.barva, prvek.pozadi) < kNejmensiKontrast) {
        if (s.druh == Druh::cislo_koleje && kontrast(barvy::bila, prvek.pozadi) >= kNejmensiKontrast)
            pismo = barvy::bila;
        else
            kresli_radek(p, r.x + m.bodu(1), r.y + m.bodu(1), r.sirka, r.vyska, prvek.text(), barvy::cerna,
                         s.znaky);
    }
    const bool jmeno = s.druh == Druh::popis_stanice && !prvek.ramecek;
    kresli_radek(p, r.x, r.y, r.sirka, r.vyska, prvek.text(), jmeno ? barva_jmena(pismo) : barva_qt(pismo),
                 s.znaky);
    if (paleta() == Paleta::bez_barev && (s.druh == Druh::navestidlo || s.druh == Druh::navestidlo_ser))
        oznac_navest(p, m, r, prvek.barva);
}

// Lines of a text: at character 13, and with `sirka` columns at the blank before the line would be full.
std::vector<TextPohled> radky_textu(TextPohled text, std::size_t sirka) {
    std::vector<TextPohled> radky;
    while (!text.empty()) {
        std::size_t konec = std::min(text.find('\r'), text.size());
        std::size_t dalsi = konec + 1;
        if (konec > sirka) {
            const std::size_t mezera = text.rfind(' ', sirka);
            konec = mezera == TextPohled::npos || mezera == 0 ? sirka : mezera;
            dalsi = mezera == TextPohled::npos || mezera == 0 ? sirka : mezera + 1;
        }
        radky.push_back(text.substr(0, konec));
        text.remove_prefix(std::min(dalsi, text.size()));
        if (!text.empty() && text.front() == '\n')
            text.remove_prefix(1);
    }
    return radky;
}

std::size_t sloupcu_odstavce(const Prvek& prvek, bool zalamovat) {
    return zalamovat && prvek.sirka > kSirkaZnaku ? static_cast<std::size_t>(prvek.sirka / kSirkaZnaku)
                                                  : TextPohled::npos - 1;
}

void nakresli_odstavec(QPainter& p, const Meritko& m, const Prvek& prvek, bool zalamovat) {
    if (prvek.ramecek)
        p.fillRect(v_bodech(m, prvek), podklad_qt(prvek.pozadi));
    const Barva pismo = prvek.ramecek ? barva_pisma(prvek.barva, prvek.pozadi) : prvek.barva();
    const double sirka = kSirkaBunky * m.bod(), vyska = kVyskaBunky * m.bod();
    const std::size_t sloupcu = sloupcu_odstavce(prvek, zalamovat);
    double y = m.y(prvek.nahore);
    for (const TextPohled radek : radky_textu(prvek.text(), sloupcu)) {
        const double x = zacatek_radku(m, prvek, sirka * static_cast<double>(radek.size()));
        kresli_radek(p, x, y, sirka, vyska, radek, pismo, Znaky::pismena);
        y += vyska;
    }
}

// Lines under a vehicle's picture: what it is, and in brackets the train that it goes on with. The next
// vehicle stands close by, so that no line may be wider than the picture.
std::vector<TextPohled> radky_popisu(const Prvek& prvek) {
    const auto sloupcu = static_cast<std::size_t>(std::max(1, prvek.sirka / kSirkaZnaku));
    const TextPohled text = prvek.text();
    const std::size_t zavorka = text.rfind(" (");
    std::vector<TextPohled> radky = radky_textu(text.substr(0, zavorka), sloupcu);
    if (zavorka != TextPohled::npos)
        for (const TextPohled radek : radky_textu(text.substr(zavorka + 1), sloupcu))
            radky.push_back(radek);
    return radky;
}

void nakresli_popis_vozu(QPainter& p, const Meritko& m, const Prvek& prvek) {
    const double sirka = kSirkaBunky * m.bod(), vyska = kVyskaBunky * m.bod();
    double y = m.y(prvek.nahore);
    for (const TextPohled radek : radky_popisu(prvek)) {
        kresli_radek(p, zacatek_radku(m, prvek, sirka * static_cast<double>(radek.size())), y, sirka, vyska,
                     radek, prvek.barva, Znaky::pismena);
        y += vyska;
    }
}

// A platform edge: the bar of its glyph, in one piece over the whole width.
void nakresli_nastupiste(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli) {
    constexpr int kOdshora = 4, kTloustkaHrany = 5; // of the bar in the cell, pixels of the desk
    if (prvek.text->empty())
        return;
    const QRect plocha = v_bodech(m, prvek);
    vypln(p, QRect(plocha.x(), m.y(prvek.nahore + kOdshora * kTwipu), plocha.width(), m.bodu(kTloustkaHrany)),
          barva_nastupiste(prvek.barva), okoli.texty);
}

// --- pictures

// Painter of a square picture drawn on a lattice of 16 by 16.
class Ikona {
public:
    Ikona(QPainter& painter, const QRect& kam, QRgb barva) : p(painter) {
        p.save();
        p.setRenderHint(QPainter::Antialiasing);
        p.translate(kam.x(), kam.y());
        p.scale(kam.width() / 16.0, kam.height() / 16.0);
        p.setPen(QPen(odstin(barva), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
    }
    Ikona(const Ikona&) = delete;
    Ikona& operator=(const Ikona&) = delete;
    ~Ikona() { p.restore(); }

    void cara(std::initializer_list<QPointF> body) { p.drawPolyline(QPolygonF(QList<QPointF>(body))); }
    void plocha(std::initializer_list<QPointF> body, QRgb barva) {
        p.setBrush(odstin(barva));
        p.drawPolygon(QPolygonF(QList<QPointF>(body)));
        p.setBrush(Qt::NoBrush);
    }
    void kruh(double x, double y, double r) { p.drawEllipse(QPointF(x, y), r, r); }
    void oblouk(double x, double y, double r, int od, int kolik) {
        p.drawArc(QRectF(x - r, y - r, 2 * r, 2 * r), od * 16, kolik * 16);
    }
    void obdelnik(double x, double y, double s, double v) { p.drawRect(QRectF(x, y, s, v)); }
    void vypln(double x, double y, double s, double v, QRgb barva) {
        p.fillRect(QRectF(x, y, s, v), odstin(barva));
    }

private:
    QPainter& p;
};

void nakresli_ikonu(QPainter& p, const Meritko& m, Druh druh, const Prvek& prvek) {
    Ikona i(p, v_bodech(m, prvek), kIkona);
    switch (druh) {
    case Druh::imgToc:
    case Druh::imgToc2: { // the hand turns by a quarter with each of the pictures 110 to 113
        constexpr std::array<QPointF, 4> kRucka = {{{8, 3.5}, {12.5, 8}, {8, 12.5}, {3.5, 8}}};
        i.kruh(8, 8, 6.5);
        i.cara({{8, 8}, kRucka[static_cast<std::size_t>(std::max(0, prvek.obrazek - 110)) % 4]});
        return;
    }
    case Druh::imgSound:
        i.plocha({{2, 6}, {5, 6}, {8.5, 3}, {8.5, 13}, {5, 10}, {2, 10}}, kIkona);
        if (prvek.obrazek == kObrazekZvukVypnut) {
            i.cara({{10.5, 6}, {14.5, 10}});
            i.cara({{14.5, 6}, {10.5, 10}});
        } else {
            i.oblouk(8.5, 8, 3, -50, 100);
            i.oblouk(8.5, 8, 5.8, -50, 100);
        }
        return;
    case Druh::imgUloz:
        i.plocha({{2.5, 2.5}, {11.5, 2.5}, {13.5, 4.5}, {13.5, 13.5}, {2.5, 13.5}}, 0xFF2B5C9E);
        i.vypln(5, 2.5, 5, 4, kIkona);
        i.vypln(4.5, 9, 7, 4.5, kIkona);
        return;
    case Druh::imgDEBUG:
        i.obdelnik(3, 2, 10, 12);
        i.cara({{5.5, 5.5}, {10.5, 5.5}});
        i.cara({{5.5, 8}, {10.5, 8}});
        i.cara({{5.5, 10.5}, {8.5, 10.5}});
        return;
    case Druh::imgPauza:
        i.vypln(4, 3, 3, 10, kIkona);
        i.vypln(9, 3, 3, 10, kIkona);
        return;
    case Druh::imgMinimalizuj: i.vypln(3, 11, 10, 2, kIkona); return;
    case Druh::imgKONEC:
        i.vypln(1, 1, 14, 14, 0xFFA02020);
        i.cara({{5, 5}, {11, 11}});
        i.cara({{11, 5}, {5, 11}});
        return;
    case Druh::imgV1: // the post office siding
        i.plocha({{1.5, 3.5}, {14.5, 3.5}, {14.5, 12.5}, {1.5, 12.5}}, 0xFF000000);
        i.cara({{1.5, 3.5}, {8, 9}, {14.5, 3.5}});
        return;
    default: return;
    }
}

// Left edge of the sign of a note within its target, twips: where the labels of the track leave room for
// it, beside a train's number if there is so much, else beside their names.
int misto_znacky(const std::array<const Prvek*, 2>& popisky, const Prvek& cil, int sirka) {
    constexpr int kMezera = 2 * kTwipu, kCisloVlaku = 5;
    for (const int nejmene : {kCisloVlaku, 0}) {
        std::array<std::pair<int, int>, 2> obsazeno{}; // by the labels, from the left
        std::size_t pocet = 0;
        for (const Prvek* popisek : popisky) {
            if (popisek == nullptr)
                continue;
            const Prvek& p = *popisek;
            const int znaku = std::max(nejmene, static_cast<int>(p.popis->size()));
            if (p.nahore < cil.nahore + cil.vyska && p.nahore + kVyskaZnaku > cil.nahore)
                obsazeno[pocet++] = {p.vlevo - kMezera, p.vlevo + znaku * kSirkaZnaku + kMezera};
        }
        std::sort(obsazeno.begin(), obsazeno.begin() + static_cast<std::ptrdiff_t>(pocet));
        int od = cil.vlevo, nejlepsi = 0, kde = 0;
        for (std::size_t i = 0; i <= pocet; ++i) {
            const int po = i < pocet ? obsazeno[i].first : cil.vlevo + cil.sirka;
            if (po - od > nejlepsi) {
                nejlepsi = po - od;
                kde = nejmene > 0 || pocet == 0 ? od + (nejlepsi - sirka) / 2 : po - sirka;
            }
            if (i < pocet)
                od = std::max(od, obsazeno[i].second);
        }
        if (nejlepsi >= sirka)
            return kde;
    }
    return cil.vlevo + (cil.sirka - sirka) / 2;
}

// Target of a track's end: nothing at rest, else the sign of the note on the track.
void nakresli_cil(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli) {
    constexpr int kSirkaZnacky = 10 * kTwipu;
    const QRect plocha = v_bodech(m, prvek);
    struct Stitek {
        int obrazek;
        QRgb barva;
        TextPohled pismeno;
    };
    constexpr Stitek kStitky[] = {{101, 0xFF008080, "i"}, {102, 0xFF0000FF, "N"}, {103, 0xFF800000, "V"}};
    for (const Stitek& s : kStitky)
        if (prvek.obrazek == s.obrazek) {
            QRect deska(0, 0, m.bodu(10), m.bodu(13));
            deska.moveTo(m.x(misto_znacky(okoli.popisky, prvek, kSirkaZnacky)),
                         plocha.y() + (plocha.height() - deska.height()) / 2);
            p.fillRect(deska, odstin(s.barva));
            kresli_radek(p, deska.x() + m.bod(), deska.y(), kSirkaBunky * m.bod(), kVyskaBunky * m.bod(),
                         s.pismeno, barvy::bila, Znaky::pismena);
            return;
        }
}

void nakresli_lampu(QPainter& p, const Meritko& m, int n, const Prvek& prvek) {
    const double tl = std::max(1.0, m.bod());
    const QRectF kruh = QRectF(v_bodech(m, prvek)).adjusted(tl / 2, tl / 2, -tl / 2, -tl / 2);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(barva_qt(prvek.okraj), tl));
    // The second lamp shows a train in the zone: it is lit whenever it is seen.
    p.setBrush(n >= 10 ? barva_qt(prvek.okraj) : QColor(Qt::black));
    p.drawEllipse(kruh);
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing, false);
}

void nakresli_svetlo(QPainter& p, const Meritko& m, int n, const Prvek& prvek) {
    const QRectF kruh = v_bodech(m, prvek);
    const QColor barva = odstin(kSvetla[static_cast<std::size_t>(n) % std::size(kSvetla)]);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(barva);
    p.drawEllipse(kruh.adjusted(m.bod(), m.bod(), -m.bod(), -m.bod()));
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing, false);
}

void nakresli_stanoviste(QPainter& p, const Meritko& m, const Prvek& prvek) {
    Ikona i(p, v_bodech(m, prvek), kIkonaStanoviste);
    i.obdelnik(1.5, 1.5, 13, 13);
    i.cara({{4.5, 12}, {4.5, 8}, {11.5, 8}, {11.5, 12}});
    i.kruh(8, 5, 1.8);
}

void nakresli_tlacitko(QPainter& p, const Meritko& m, const Styl& s, const Prvek& prvek) {
    const QRect plocha = v_bodech(m, prvek);
    nakresli_napis(p, m, s, prvek);
    nakresli_obrys(p, plocha, m.bodu(1), odstin(kLinka));
}

void nakresli_ramec(QPainter& p, const Meritko& m, const Prvek& prvek) {
    const QRect plocha = v_bodech(m, prvek);
    const int tl = m.bodu(2);
    if (plocha.width() <= 2 * tl || plocha.height() <= 2 * tl)
        return;
    nakresli_obrys(p, plocha, tl, odstin(0xFFFFD21E));
}

// A vehicle stands in the middle of its place on a rail that runs on to the next one. The state names the
// picture; without it the place stays empty, as for a train that is not drawn.
void nakresli_vuz(QPainter& p, const Meritko& m, const Prvek& prvek) {
    const QPixmap& o =
        obrazek(prvek.stav(), m.bod() * (prvek.sirka / static_cast<double>(kSirkaObrazkuVozu * kTwipu)));
    if (o.isNull())
        return;
    const QRect r = v_bodech(m, prvek);
    const int kolejnice = m.bodu(1);
    const int dole = r.bottom() + 1 - kolejnice;
    p.fillRect(r.x(), dole, r.width(), kolejnice, odstin(kKolejnice));
    p.drawPixmap(r.x() + (r.width() - o.width()) / 2, dole - o.height(), o);
    if (prvek.ramecek) {
        nakresli_obrys(p, r, kolejnice, odstin(kLinka));
    }
}

void nakresli_sberac(QPainter& p, const Meritko& m, const Prvek& prvek) {
    Ikona i(p, v_bodech(m, prvek), kIkona);
    i.cara({{1, 4}, {15, 4}});
    i.cara({{8, 4}, {3.5, 9}, {8, 14}, {12.5, 9}, {8, 4}});
}

} // namespace

void nakresli_obrys(QPainter& p, const QRect& kde, int tl, const QColor& barva) {
    p.fillRect(kde.x(), kde.y(), kde.width(), tl, barva);
    p.fillRect(kde.x(), kde.bottom() - tl + 1, kde.width(), tl, barva);
    p.fillRect(kde.x(), kde.y(), tl, kde.height(), barva);
    p.fillRect(kde.right() - tl + 1, kde.y(), tl, kde.height(), barva);
}

int stav_vyhybky(const Prvek& prvek) {
    // The picture is what the logic shows: a moving switch has the state of its end already.
    if (prvek.obrazek >= 100)
        return prvek.obrazek - 100;
    return cele_z_textu(prvek.stav());
}

bool bere_vstup(Druh druh) {
    return styl(druh).vstup;
}

bool je_v_panelu(Druh druh) {
    return druh == Druh::svetlo || druh == Druh::pruh || druh == Druh::lblnavestidlo ||
           druh == Druh::lblNavestidlo_stanice;
}

int vrstva(Druh druh) {
    return styl(druh).vrstva;
}

QRect misto_kresby(Druh druh, int, const Prvek& prvek) {
    constexpr int kRezerva = 3 * kTwipu; // thick lines, antialiasing and what labels clear beside them
    QRect r;
    switch (styl(druh).zpusob) {
    case Zpusob::kolej:
    case Zpusob::most:
        r = QRect(QPoint(std::min<int>(prvek.x1, prvek.x2), std::min<int>(prvek.y1, prvek.y2)),
                  QPoint(std::max<int>(prvek.x1, prvek.x2), std::max<int>(prvek.y1, prvek.y2)));
        break;
    case Zpusob::vyhybka: r = QRect(prvek.vlevo, prvek.nahore, kSirkaVyhybky, kVyskaVyhybky); break;
    case Zpusob::napis:
    case Zpusob::tlacitko: {
        // the text of a label may be longer than its rectangle, to either side by its alignment
        const int delka = static_cast<int>(prvek.text->size()) * kSirkaZnaku * nasobek(styl(druh), prvek);
        r = QRect(prvek.vlevo, prvek.nahore, std::max<int>(prvek.sirka, 1),
                  std::max<int>(prvek.vyska, kVyskaZnaku));
        if (delka > prvek.sirka) {
            const int navic = delka - std::max<int>(prvek.sirka, 0);
            r.adjust(prvek.zarovnani != 0 && prvek.sirka > 0 ? -navic : 0, 0, navic, 0);
        }
        break;
    }
    case Zpusob::odstavec:
    case Zpusob::radky:
    case Zpusob::popis_vozu: { // the text may run on below its rectangle
        const bool popis = styl(druh).zpusob == Zpusob::popis_vozu;
        const std::size_t sloupcu = sloupcu_odstavce(prvek, styl(druh).zpusob == Zpusob::odstavec);
        const auto radku =
            static_cast<int>((popis ? radky_popisu(prvek) : radky_textu(prvek.text(), sloupcu)).size());
        r = QRect(prvek.vlevo, prvek.nahore, prvek.sirka, std::max<int>(prvek.vyska, radku * kVyskaZnaku));
        break;
    }
    default: r = QRect(prvek.vlevo, prvek.nahore, prvek.sirka, prvek.vyska); break;
    }
    return r.adjusted(-kRezerva, -kRezerva, kRezerva, kRezerva);
}

QRect misto_vstupu(Druh druh, const Prvek& prvek) {
    QRect r(prvek.vlevo, prvek.nahore, prvek.sirka, prvek.vyska);
    if (styl(druh).zpusob == Zpusob::vyhybka)
        r.setSize({kSirkaVyhybky, kVyskaVyhybky});
    else if (r.isEmpty() && styl(druh).zpusob == Zpusob::napis)
        r.setSize({static_cast<int>(prvek.text->size()) * kSirkaZnaku, kVyskaZnaku});
    if (r.width() < kNejmensiCil)
        r.adjust(-(kNejmensiCil - r.width() + 1) / 2, 0, (kNejmensiCil - r.width() + 1) / 2, 0);
    if (r.height() < kNejmensiCil)
        r.adjust(0, -(kNejmensiCil - r.height() + 1) / 2, 0, (kNejmensiCil - r.height() + 1) / 2);
    return r;
}

int radku_popisu(const Prvek& prvek) {
    return static_cast<int>(radky_popisu(prvek).size());
}

QRect misto_textu(const Meritko& m, Druh druh, const Prvek& prvek) {
    const Styl& s = styl(druh);
    if (!s.kryje || !prvek.viditelny)
        return {};
    if (prvek.ramecek)
        return ramec_textu(m, s, prvek);
    const TextPohled text = prvek.text();
    const std::size_t prvni = text.find_first_not_of(' ');
    if (prvni == TextPohled::npos)
        return {};
    const MistoRadku r = misto_radku(m, s, prvek);
    const int presah = druh == Druh::cislo_koleje ? m.bodu(kPresahCisla) : 0;
    const auto kraj = [&](std::size_t znak) {
        return static_cast<int>(std::lround(r.x + static_cast<double>(znak) * r.sirka));
    };
    const int a = kraj(prvni) - presah, b = kraj(text.find_last_not_of(' ') + 1) + presah;
    return QRect(a, static_cast<int>(std::lround(r.y)), b - a, static_cast<int>(std::lround(r.vyska)));
}

void nakresli_pozadi_textu(QPainter& p, const Meritko& m, Druh druh, const Prvek& prvek) {
    if (styl(druh).kryje && prvek.viditelny && prvek.ramecek)
        p.fillRect(ramec_textu(m, styl(druh), prvek), podklad_qt(prvek.pozadi));
}

void nakresli_prvek(QPainter& p, const Meritko& m, Druh druh, int n, const Prvek& prvek,
                    const OkoliCary& okoli) {
    if (!prvek.viditelny)
        return;
    const Styl& s = styl(druh);
    switch (s.zpusob) {
    case Zpusob::nic: return;
    case Zpusob::kolej:
        nakresli_caru(p, m, prvek, barva_qt(prvek.barva), tloustka_stavu(m, prvek.barva),
                      m.bodu(kMezeraUseku), okoli, vzor_stavu(m, prvek.barva));
        return;
    case Zpusob::most: nakresli_most(p, m, prvek, okoli); return;
    case Zpusob::napis: nakresli_napis(p, m, s, prvek); return;
    case Zpusob::odstavec: nakresli_odstavec(p, m, prvek, true); return;
    case Zpusob::radky: nakresli_odstavec(p, m, prvek, false); return;
    case Zpusob::nastupiste: nakresli_nastupiste(p, m, prvek, okoli); return;
    case Zpusob::vyhybka:
        nakresli_vyhybku(p, m, prvek.vlevo, prvek.nahore, stav_vyhybky(prvek), okoli);
        return;
    case Zpusob::cil: nakresli_cil(p, m, prvek, okoli); return;
    case Zpusob::lampa: nakresli_lampu(p, m, n, prvek); return;
    case Zpusob::znacka: p.fillRect(v_bodech(m, prvek), podklad_qt(prvek.barva)); return;
    case Zpusob::stanoviste: nakresli_stanoviste(p, m, prvek); return;
    case Zpusob::ikona: nakresli_ikonu(p, m, druh, prvek); return;
    case Zpusob::tlacitko: nakresli_tlacitko(p, m, s, prvek); return;
    case Zpusob::svetlo: nakresli_svetlo(p, m, n, prvek); return;
    case Zpusob::pruh:
        p.fillRect(v_bodech(m, prvek), odstin(kPruhy[static_cast<std::size_t>(n) % std::size(kPruhy)]));
        return;
    case Zpusob::ramec: nakresli_ramec(p, m, prvek); return;
    case Zpusob::vuz: nakresli_vuz(p, m, prvek); return;
    case Zpusob::popis_vozu: nakresli_popis_vozu(p, m, prvek); return;
    case Zpusob::sberac: nakresli_sberac(p, m, prvek); return;
    }
}

void nakresli_napis_pozadi(QPainter& p, const Meritko& m, const NapisPozadi& napis) {
    kresli_radek(p, m.x(napis.vlevo), m.y(napis.nahore), kSirkaBunky * m.bod(), kVyskaBunky * m.bod(),
                 napis.znaky, barvy::seda, Znaky::znacky);
}

void nakresli_podklad(QPainter& p, const Meritko& m, const QRect& plocha) {
    const int tl = m.bodu(1);
    const auto pas = [&](int od, int po) {
        const int a = m.y(od * kTwipu), b = m.y(po * kTwipu);
        p.fillRect(QRect(plocha.x(), a, plocha.width(), b - a) & plocha, plocha_qt(kTmavaPlocha));
    };
    const auto linka = [&](int kde) {
        p.fillRect(QRect(plocha.x(), m.y(kde * kTwipu), plocha.width(), tl) & plocha, odstin(kLinka));
    };
    pas(0, 20);
    linka(20);
    linka(42);
    pas(597, 615);
    linka(597);
    linka(615);
}

void nakresli_predel(QPainter& p, const Meritko& m, int x, int od, int po) {
    p.fillRect(QRect(QPoint(m.x(x), m.y(od)), QSize(m.bodu(1), m.y(po) - m.y(od))), odstin(kLinka));
}

// The casing of the signal panel: a mast of its height on its foot, with the sockets of the lamps that it
// carries. A dwarf stands on the ground.
void nakresli_panel(QPainter& p, const Meritko& m, int posun) {
    if (!relief.lblnavestidlo.je(0) || !relief.lblnavestidlo[0].viditelny ||
        relief.lblnavestidlo[0].text->empty())
        return;
    const PopisPanelu& popis = popis_panelu(panel_navestidla.tvar);
    const auto misto = [&](const Prvek& prvek) {
        return QRect(QPoint(m.x(prvek.vlevo + posun), m.y(prvek.nahore)),
                     QPoint(m.x(prvek.vlevo + prvek.sirka + posun) - 1, m.y(prvek.nahore + prvek.vyska) - 1));
    };
    QRect telo;
    for (int n = 0; n < static_cast<int>(popis.svetla.size()); ++n)
        if (popis.svetla[static_cast<std::size_t>(n)] && relief.svetlo.je(n))
            telo |= misto(relief.svetlo[n]);
    for (int n = 0; n < static_cast<int>(popis.pruhy.size()); ++n)
        if (popis.pruhy[static_cast<std::size_t>(n)] && relief.pruh.je(n))
            telo |= misto(relief.pruh[n]);
    if (telo.isEmpty())
        return;
    const int okraj = m.bodu(3), stozar = m.bodu(4), pata = m.bodu(2), sirka_paty = m.bodu(18);
    const int dole = telo.bottom() + okraj + m.bodu(kStupenStozaru) * popis.vyska + pata;
    const QColor barva_stozaru = odstin(0xFF8A939C);
    p.fillRect(telo.center().x() - stozar / 2, telo.bottom(), stozar, dole - telo.bottom(), barva_stozaru);
    p.fillRect(telo.center().x() - sirka_paty / 2, dole - pata, sirka_paty, pata, barva_stozaru);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(odstin(0xFF8A939C), std::max(1.0, m.bod())));
    p.setBrush(odstin(0xFF0B0D10));
    p.drawRoundedRect(QRectF(telo.adjusted(-okraj, -okraj, okraj, okraj)), okraj, okraj);
    p.setPen(QPen(odstin(kLinka), std::max(1.0, m.bod())));
    p.setBrush(odstin(0xFF1A1F25));
    for (int n = 0; n < static_cast<int>(popis.svetla.size()); ++n)
        if (popis.svetla[static_cast<std::size_t>(n)] && relief.svetlo.je(n))
            p.drawEllipse(QRectF(misto(relief.svetlo[n])).adjusted(m.bod(), m.bod(), -m.bod(), -m.bod()));
    for (int n = 0; n < static_cast<int>(popis.pruhy.size()); ++n)
        if (popis.pruhy[static_cast<std::size_t>(n)] && relief.pruh.je(n))
            p.drawRect(QRectF(misto(relief.pruh[n])));
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing, false);
}

void nakresli_vyhybku(QPainter& p, const Meritko& m, int x, int y, int stav, const OkoliCary& okoli) {
    const TvarVyhybky& tvar = tvar_vyhybky(stav);
    const QColor seda = barva_qt(barvy::seda);
    const auto trida = static_cast<std::size_t>(std::max(0, stav) / 50);
    const Barva stav_cesty = kBarvyTrid[std::min(trida, kBarvyTrid.size() - 1)];
    const QColor barva = barva_qt(stav_cesty);
    const int tl = tloustka_stavu(m, stav_cesty);
    const QPointF stred = bod_portu(m, x, y, Port::zadny, tl);
    const auto noha = [&](Port port, double od, const QColor& cim) {
        nakresli_rameno(p, stred, bod_portu(m, x, y, port, tl), od, cim, tl, okoli);
    };
    switch (tvar.druh) {
    case DruhObrazku::zadny: return;
    case DruhObrazku::pohyb:
        for (const Port port : tvar.nohy)
            if (port != Port::zadny)
                noha(port, kOdsazeniPohybu, seda);
        return;
    case DruhObrazku::koncovy:
        for (const Port port : tvar.nohy)
            if (port != Port::zadny && port != tvar.a && port != tvar.b)
                noha(port, kOdsazeniNohy, seda);
        nakresli_jizdu(p, m, x, y, tvar.a, tvar.b, barva, tl, okoli);
        return;
    case DruhObrazku::volny:
        for (const Port port : tvar.nohy)
            noha(port, 0, barva);
        return;
    }
}
