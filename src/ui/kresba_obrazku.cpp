// ui/kresba_obrazku.cpp - draws pictures: icons, lamps, vehicles, the signal panel, and the ground of the
// desk.
#include "prvky/panel.h"
#include "ui/kresba_casti.h"
#include "ui/obrazky_vozu.h"
#include "ui/paleta.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int kStupenStozaru =
    7; // by which each of the masts is higher than the one before, pixels of the desk

constexpr QRgb kSvetla[] = {0xFFFFD21E, 0xFF19E64B, 0xFFFF2D1E, 0xFFFFFFFF, 0xFFFFD21E, 0xFF4678FF};
constexpr QRgb kPruhy[] = {0xFFFFD21E, 0xFF19E64B};
constexpr QRgb kTmavaPlocha = 0xFF15191E;
constexpr QRgb kKolejnice = 0xFF5A626A;
constexpr QRgb kIkona = 0xFFC8D2DC;
constexpr QRgb kIkonaStanoviste = 0xFF808C98;

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
        if (pocet == obsazeno.size() && obsazeno[1] < obsazeno[0])
            std::swap(obsazeno[0], obsazeno[1]);
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

} // namespace

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

void nakresli_pruh(QPainter& p, const Meritko& m, int n, const Prvek& prvek) {
    p.fillRect(v_bodech(m, prvek), odstin(kPruhy[static_cast<std::size_t>(n) % std::size(kPruhy)]));
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

void nakresli_obrys(QPainter& p, const QRect& kde, int tl, const QColor& barva) {
    p.fillRect(kde.x(), kde.y(), kde.width(), tl, barva);
    p.fillRect(kde.x(), kde.bottom() - tl + 1, kde.width(), tl, barva);
    p.fillRect(kde.x(), kde.y(), tl, kde.height(), barva);
    p.fillRect(kde.right() - tl + 1, kde.y(), tl, kde.height(), barva);
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
