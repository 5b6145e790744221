// ui/znacky_lekce.cpp - what a lesson points at.
#include "ui/znacky_lekce.h"

#include "ui/hlavni_okno.h"
#include "ui/pismo.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kPulz_ms = 450;
constexpr int kOkrajZnacky = 4, kTloustkaZnacky = 2; // pixels of the desk
constexpr int kKolemZnacky = 22;                     // frame, number and pulse
constexpr int kNejmensiMisto = 10;                   // of what is framed
constexpr int kDoOkraje = 16;                        // of an arrow from the edge of the tracks
constexpr QRgb kBarvaZnacky = 0xFFFFB030, kBarvaPozdejsi = 0xFFA07430, kPodkladCisla = 0xFF000000;

bool je_na_stole(const lekce::Misto& m) {
    return tabulka(m.druh).je(m.n);
}

// Twips of the picture.
QRect misto_na_obraze(const Platno& platno, const lekce::Misto& m) {
    if (m.druh == Druh::lblPrikaz) { // the whole line, whatever stands on it
        const Prvek &slovo = platno.prvek(Druh::lblPrikaz, m.n), &text = platno.prvek(Druh::lblVolba, 0);
        return {slovo.vlevo, slovo.nahore, text.vlevo + text.sirka - slovo.vlevo, kVyskaZnaku};
    }
    if (m.druh != Druh::kolej) {
        QRect r = platno.misto(m.druh, m.n);
        const int nejmensi = kNejmensiMisto * kTwipu;
        if (r.width() < nejmensi)
            r.adjust(-(nejmensi - r.width()) / 2, 0, (nejmensi - r.width()) / 2, 0);
        return r;
    }
    const Prvek& cara = platno.prvek(m.druh, m.n);
    return QRect(QPoint(cara.x1, cara.y1), QPoint(cara.x2, cara.y2))
        .normalized()
        .adjusted(0, -3 * kTwipu, 0, 3 * kTwipu);
}

QRect misto_v_bodech(const Platno& platno, const lekce::Misto& m) {
    return platno.v_bodech(misto_na_obraze(platno, m));
}

QRegion oblast_znacek(const HlavniOkno& stul, const std::vector<lekce::Misto>& mista) {
    QRegion oblast;
    const Platno& platno = stul.obraz();
    const int kolem = platno.meritko().bodu(kKolemZnacky);
    for (const lekce::Misto& m : mista) {
        const QRect misto = misto_v_bodech(platno, m);
        if (!misto.isEmpty())
            oblast += misto.adjusted(-kolem, -kolem, kolem, kolem);
        else
            oblast += pas_kolejiste(stul); // the arrow stands at its edge
    }
    return oblast;
}

// Towards a place beyond the edge of what the glass shows.
void nakresli_sipku_lekce(QPainter& p, const HlavniOkno& stul, const lekce::Misto& misto, const QColor& barva,
                          bool silne) {
    const Platno& platno = stul.obraz();
    const Meritko& m = platno.meritko();
    const int okraj = m.bodu(kDoOkraje);
    const QRect pas = pas_kolejiste(stul).adjusted(okraj, okraj, -okraj, -okraj);
    const QPoint stred = misto_na_obraze(platno, misto).center();
    const Meritko& lupy = platno.meritko_mista(stred);
    const QPoint cil(lupy.x(stred.x()), lupy.y(stred.y()));
    const QPointF hrot(std::clamp(cil.x(), pas.left(), pas.right()),
                       std::clamp(cil.y(), pas.top(), pas.bottom()));
    const QPointF smer = QPointF(cil) - hrot;
    const double uhel = std::atan2(smer.y(), smer.x());
    const double delka = (silne ? 18 : 14) * m.bod();
    const auto roh = [&](double o) { return hrot - QPointF(std::cos(uhel + o), std::sin(uhel + o)) * delka; };
    p.setPen(Qt::NoPen);
    p.setBrush(barva);
    p.drawPolygon(QPolygonF{hrot, roh(0.45), roh(-0.45)});
}

void nakresli_ramec(QPainter& p, const Platno& platno, const QRect& misto, const lekce::Misto& co,
                    const QColor& barva, bool silne) {
    const Meritko& m = platno.meritko();
    const double bod = m.bod();
    const int okraj = m.bodu(co.ted && silne ? kOkrajZnacky + 3 : kOkrajZnacky);
    const int pero = m.bodu(co.ted ? kTloustkaZnacky + 1 : kTloustkaZnacky);
    const QRect obraz = platno.obraz().rect().adjusted(pero, pero, -pero, -pero);
    const QRect kolem = misto.adjusted(-okraj, -okraj, okraj, okraj) & obraz; // at an edge it stays closed
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(barva, pero));
    p.drawRoundedRect(kolem, 3 * bod, 3 * bod);
    if (co.poradi == 0)
        return;
    // at the left upper corner, or at the right one of what begins at the edge
    const bool vlevo = kolem.left() >= 9 * bod;
    const QRectF kruh(vlevo ? kolem.left() - 9 * bod : kolem.right() - 5 * bod,
                      std::max<double>(kolem.top() - 11 * bod, 0), 14 * bod, 14 * bod);
    p.setPen(QPen(barva, std::max(1.0, bod)));
    p.setBrush(QColor::fromRgb(kPodkladCisla));
    p.drawEllipse(kruh);
    kresli_radek(p, kruh.center().x() - 4 * bod, kruh.center().y() - 6.5 * bod, 8 * bod, 13 * bod,
                 text_cisla(co.poradi), barva, Znaky::pismena);
}

// --- the entry of an open menu

class RamecekPolozky : public QWidget {
public:
    explicit RamecekPolozky(QWidget* rodic) : QWidget(rodic) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setPen(QPen(QColor::fromRgb(kBarvaZnacky), 2));
        p.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};
QPointer<RamecekPolozky> ramecek_polozky;

// The entry of that name, in the menu that shows it; of a submenu that is not open the one that opens it.
QAction* najdi_polozku(QMenu& m, const QString& jmeno, QMenu*& kde) {
    for (QAction* a : m.actions()) {
        if (a->data().toString() == jmeno) {
            kde = &m;
            return a;
        }
        if (a->menu() != nullptr)
            if (QAction* uvnitr = najdi_polozku(*a->menu(), jmeno, kde)) {
                if (a->menu()->isVisible())
                    return uvnitr;
                kde = &m;
                return a;
            }
    }
    return nullptr;
}

QMenu* otevrena_nabidka() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* m = qobject_cast<QMenu*>(w);
            m != nullptr && m->isVisible() && qobject_cast<QMenu*>(m->parentWidget()) == nullptr)
            return m;
    return nullptr;
}

} // namespace

QRect v_bodech_okna(const HlavniOkno& stul, const QRect& body) {
    const double pomer = stul.devicePixelRatioF();
    return QRectF(body.x() / pomer, body.y() / pomer, body.width() / pomer, body.height() / pomer)
        .toAlignedRect();
}

QRect pas_kolejiste(const HlavniOkno& stul) {
    const QRect obrazovka = stul.plocha_kolejiste();
    const double pomer = stul.devicePixelRatioF();
    const QPoint roh = stul.mapFromGlobal(obrazovka.topLeft());
    return {QPoint(qRound(roh.x() * pomer), qRound(roh.y() * pomer)), obrazovka.size() * pomer};
}

void ZnackyLekce::obnov(HlavniOkno& stul, std::vector<lekce::Misto> nove) {
    std::erase_if(nove, [](const lekce::Misto& m) { return !je_na_stole(m); });
    const bool ted_silne = od.elapsed() / kPulz_ms % 2 == 0;
    const QRegion nova_oblast = oblast_znacek(stul, nove);
    if (nove == mista && ted_silne == silne && nova_oblast == oblast)
        return;
    for (const QRect& r : oblast + nova_oblast)
        stul.update(v_bodech_okna(stul, r));
    mista = std::move(nove);
    silne = ted_silne;
    oblast = nova_oblast;
}

void ZnackyLekce::nakresli(QPainter& p, const HlavniOkno& stul) const {
    const Platno& platno = stul.obraz();
    p.setRenderHint(QPainter::Antialiasing);
    for (const bool ted : {false, true}) // what it is the turn of lies on top
        for (const lekce::Misto& m : mista) {
            if (m.ted != ted || !je_na_stole(m))
                continue;
            const QColor barva = QColor::fromRgb(ted ? kBarvaZnacky : kBarvaPozdejsi);
            if (const QRect r = misto_v_bodech(platno, m); r.isEmpty())
                nakresli_sipku_lekce(p, stul, m, barva, silne);
            else
                nakresli_ramec(p, platno, r, m, barva, silne);
        }
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
}

std::vector<QRect> ZnackyLekce::v_okne(const HlavniOkno& stul) const {
    std::vector<QRect> kde;
    for (const lekce::Misto& m : mista)
        if (je_na_stole(m))
            if (const QRect r = misto_v_bodech(stul.obraz(), m); !r.isEmpty())
                kde.push_back(v_bodech_okna(stul, r));
    return kde;
}

std::vector<QRect> ZnackyLekce::ted(const HlavniOkno& stul) const {
    std::vector<QRect> kde;
    for (const lekce::Misto& m : mista)
        if (m.ted && je_na_stole(m))
            kde.push_back(misto_v_bodech(stul.obraz(), m));
    return kde;
}

void obnov_ramecek_polozky(const Text& jmeno) {
    QMenu* kde = nullptr;
    QAction* akce = nullptr;
    if (QMenu* m = jmeno.empty() ? nullptr : otevrena_nabidka())
        akce = najdi_polozku(*m, na_qstring(jmeno), kde);
    if (akce == nullptr) {
        delete ramecek_polozky;
        return;
    }
    if (ramecek_polozky && ramecek_polozky->parentWidget() != kde)
        delete ramecek_polozky;
    if (!ramecek_polozky)
        ramecek_polozky = new RamecekPolozky(kde);
    ramecek_polozky->setGeometry(kde->actionGeometry(akce));
    if (!ramecek_polozky->isVisible()) {
        ramecek_polozky->show();
        ramecek_polozky->raise();
    }
}
