// ui/kresba_koleji.cpp - draws tracks: lines, bridges, platforms and switches.
#include "relief/tvary_vyhybek.h"
#include "ui/kresba_casti.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kTloustkaKoleje = 3; // of a track line, pixels of the desk
constexpr double kMezeraUseku = 1;    // by which a level track stops short of its ends: sections part there
constexpr double kOdsazeniNohy = 0.6; // part of a leg that the switch leaves out on the side not set
constexpr double kOdsazeniPohybu = 0.4;

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

} // namespace

void nakresli_kolej(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli) {
    nakresli_caru(p, m, prvek, barva_qt(prvek.barva), tloustka_stavu(m, prvek.barva), m.bodu(kMezeraUseku),
                  okoli, vzor_stavu(m, prvek.barva));
}

void nakresli_most(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli) {
    const QColor barva = prvek.barva == barvy::cerna ? QColor(Qt::black) : barva_qt(prvek.barva);
    nakresli_caru(p, m, prvek, barva, tloustka(m, prvek.barva == barvy::cerna ? kTloustkaKoleje + 2 : 1), 0,
                  okoli);
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
