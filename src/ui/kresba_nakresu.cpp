// ui/kresba_nakresu.cpp - painting of the shapes of a time-distance diagram.
#include "ui/kresba_nakresu.h"

#include "ui/pismo.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

QColor barva(RoleNakresu role, bool papir, double kryti = 1) {
    QColor c = QColor::fromRgb(barva_role(role, papir));
    c.setAlphaF(static_cast<float>(kryti));
    return c;
}

void nakresli_text(QPainter& p, const TvarNakresu& t, bool papir) {
    QFont pismo = p.font();
    pismo.setPixelSize(std::max(1, qRound(t.tloustka)));
    pismo.setBold(t.tucne);
    p.setFont(pismo);
    const QString text = na_qstring(t.text);
    const QFontMetricsF metriky(pismo, p.device());
    const double sirka = metriky.horizontalAdvance(text);
    const double vlevo = t.zarovnani == Zarovnani::vlevo    ? 0
                         : t.zarovnani == Zarovnani::vpravo ? -sirka
                                                            : -sirka / 2;
    p.save();
    p.translate(t.body.front().x, t.body.front().y);
    if (t.uhel != 0)
        p.rotate(t.uhel);
    if (t.podklad)
        p.fillRect(QRectF(vlevo - 1.5, -0.52 * t.tloustka, sirka + 3, 1.04 * t.tloustka),
                   barva(RoleNakresu::papir, papir, 0.85));
    if (sleduj_radek != nullptr && t.uhel == 0)
        sleduj_radek(p, QRectF(vlevo, -t.tloustka / 2, sirka, t.tloustka), t.text);
    p.setPen(barva(t.role, papir, t.kryti));
    p.drawText(QPointF(vlevo, 0.36 * t.tloustka), text);
    p.restore();
}

void nakresli_caru(QPainter& p, const TvarNakresu& t, bool papir) {
    QPen pero(barva(t.role, papir, t.kryti), t.tloustka);
    pero.setJoinStyle(Qt::RoundJoin);
    pero.setCapStyle(Qt::FlatCap);
    if (t.styl != StylCary::plna)
        pero.setDashPattern(t.styl == StylCary::carkovana ? QList<qreal>{5, 3} : QList<qreal>{1.5, 2.5});
    p.setPen(pero);
    QPolygonF body;
    body.reserve(static_cast<qsizetype>(t.body.size()));
    for (const BodObrazu& b : t.body)
        body.append(QPointF(b.x, b.y));
    // lines of the grid lie on whole pixels
    const bool rovna =
        t.body.size() == 2 && (t.body[0].x == t.body[1].x || t.body[0].y == t.body[1].y) && t.cislo == 0;
    p.setRenderHint(QPainter::Antialiasing, !rovna || papir);
    p.drawPolyline(body);
}

} // namespace

void nakresli_obraz(QPainter& p, const ObrazNakresu& obraz, bool papir) {
    const PlochaNakresu& a = obraz.plocha;
    const QRectF plocha(a.vlevo, a.nahore, a.sirka(), a.vyska());
    bool orez = false;
    for (const TvarNakresu& t : obraz.tvary) {
        if (t.v_plose != orez) {
            orez = t.v_plose;
            if (orez)
                p.setClipRect(plocha);
            p.setClipping(orez);
        }
        switch (t.druh) {
        case DruhTvaru::cara: nakresli_caru(p, t, papir); break;
        case DruhTvaru::plocha:
            p.fillRect(QRectF(QPointF(t.body[0].x, t.body[0].y), QPointF(t.body[1].x, t.body[1].y)),
                       barva(t.role, papir, t.kryti));
            break;
        case DruhTvaru::kruh:
            p.setRenderHint(QPainter::Antialiasing, true);
            p.setPen(QPen(barva(RoleNakresu::papir, papir), 1));
            p.setBrush(barva(t.role, papir));
            p.drawEllipse(QPointF(t.body.front().x, t.body.front().y), t.tloustka, t.tloustka);
            p.setBrush(Qt::NoBrush);
            break;
        case DruhTvaru::text: nakresli_text(p, t, papir); break;
        }
    }
    p.setClipping(false);
}
