// ui/obraz_stolu.cpp - the picture of the desk in its window.
#include "ui/obraz_stolu.h"

#include "ui/pismo.h"
#include "ui/pohled.h"

#include <QGuiApplication>

#include <cmath>

namespace {

constexpr int kPodRadkem = 43 * kTwipu, kNadZasobnikem = 597 * kTwipu; // the tracks stand between them

} // namespace

void ObrazStolu::umisti(int sirka) {
    obraz.nastav_velikost((QSizeF(okno.size()) * okno.devicePixelRatioF()).toSize(), sirka, !je_verny_pomer(),
                          QGuiApplication::screens().size() == 1);
}

void ObrazStolu::prekresli() {
    obraz.prekresli();
    okno.update();
}

void ObrazStolu::obnov() {
    const QRegion zmenene = obraz.obnov();
    const double pomer = okno.devicePixelRatioF();
    for (const QRect& r : zmenene)
        okno.update(
            QRectF(r.x() / pomer, r.y() / pomer, r.width() / pomer, r.height() / pomer).toAlignedRect());
}

void ObrazStolu::ukaz_hledane() {
    const Prvek& ramec = relief.shpVyhledavani[0];
    if (hleda_se == ramec.viditelny)
        return;
    hleda_se = ramec.viditelny;
    if (hleda_se)
        ukaz(QRect(obraz.prvek(Druh::shpVyhledavani, 0).vlevo, ramec.nahore, ramec.sirka, ramec.vyska)
                 .center());
}

void ObrazStolu::zvetsi(double krat, QPointF misto) {
    obraz.nastav_lupu(krat, misto * okno.devicePixelRatioF());
    prekresli();
}

void ObrazStolu::posun_lupu(QPoint o_kolik) {
    obraz.posun_lupu(o_kolik);
    prekresli();
}

void ObrazStolu::ukaz(QPoint twipy) {
    if (obraz.ukaz(twipy))
        prekresli();
}

QPoint ObrazStolu::na_twipy(QPointF misto) const {
    return obraz.na_twipy(misto * okno.devicePixelRatioF());
}

QRect ObrazStolu::v_okne(const QRect& twipy) const {
    const QRect body = obraz.v_bodech(twipy);
    const double pomer = okno.devicePixelRatioF();
    return QRectF(body.x() / pomer, body.y() / pomer, body.width() / pomer, body.height() / pomer)
        .toAlignedRect();
}

QPoint ObrazStolu::bod_v_okne(QPoint twipy) const {
    const Meritko& m = obraz.meritko_mista(twipy);
    const QPointF misto =
        QPointF(m.x0 + (twipy.x() + 0.5) * m.k, m.y0 + (twipy.y() + 0.5) * m.k) / okno.devicePixelRatioF();
    return {static_cast<int>(std::floor(misto.x())), static_cast<int>(std::floor(misto.y()))};
}

QRect ObrazStolu::misto_prvku(const Nalezeny& kde) const {
    return v_okne(obraz.misto(kde.druh, kde.n));
}

QRect ObrazStolu::plocha_kolejiste() const {
    const Meritko& m = obraz.meritko();
    const double pomer = okno.devicePixelRatioF();
    const QPoint roh((QPointF(m.x0, m.y(kPodRadkem)) / pomer).toPoint());
    const int dole = qRound(m.y(kNadZasobnikem) / pomer);
    return {roh, QSize(okno.width() - 2 * roh.x(), dole - roh.y())};
}

QRect ObrazStolu::misto_nalezeneho() const {
    return relief.shpVyhledavani[0].viditelny ? misto_prvku({Druh::shpVyhledavani, 0}) : QRect();
}

double ObrazStolu::meritko() const {
    return obraz.meritko().bod() / okno.devicePixelRatioF();
}

QFont ObrazStolu::pismo() const {
    return pismo_poli(kVyskaBunky * meritko());
}

void ObrazStolu::nakresli(QPainter& p, const QRegion& kde) const {
    const double pomer = okno.devicePixelRatioF();
    for (const QRect& r : kde) {
        const QRect body = QRectF(r.x() * pomer, r.y() * pomer, r.width() * pomer, r.height() * pomer)
                               .toAlignedRect()
                               .intersected(obraz.obraz().rect());
        p.drawImage(body.topLeft(), obraz.obraz(), body);
    }
}
