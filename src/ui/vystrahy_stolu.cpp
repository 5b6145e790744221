// ui/vystrahy_stolu.cpp - the alarms on the desk.
#include "ui/vystrahy_stolu.h"

#include "desk/info_o_vlaku.h"
#include "ui/brana.h"
#include "ui/pismo.h"
#include "ui/pohled.h"
#include "ui/vzhled.h"
#include "zaklad/cisla.h"

#include <QMenu>
#include <QStringList>
#include <QTimer>
#include <QToolTip>

#include <cmath>
#include <utility>
#include <vector>

namespace {

// The row: right of the panel's buttons, pixels of the desk.
constexpr QRect kMistoRady(338, 617, 682, 19);
constexpr int kObnovaVystrah_ms = 500;
constexpr int kUkazani_ms = 4000, kBliknuti_ms = 300, kTipPo_ms = 250; // of the place that an alarm leads to
constexpr int kOkrajUkazani = 4; // of its frame from it, pixels of the desk
constexpr QRgb kBarvaUkazani = 0xFFFFB030;

} // namespace

VystrahyStolu::VystrahyStolu(QWidget& okno_, ObrazStolu& stul_)
    : okno(okno_), stul(stul_), s_radou(je_rada_vystrah()) {}

void VystrahyStolu::obnov() {
    if (misto_rady() != videne_misto || od_pohledu.elapsed() >= kObnovaVystrah_ms)
        obnov_radu();
    obnov_ukazani();
}

void VystrahyStolu::obnov_radu() {
    od_pohledu.start();
    videne_misto = misto_rady();
    std::vector<Vystraha> vse;
    if (s_radou)
        v_jadre([&] { vse = vystrahy(); });
    if (!v_rade.rozloz(std::move(vse), misto_rady()))
        return;
    okno.update(stul.v_okne(misto_rady()).adjusted(-3, -3, 3, 3));
    QStringList vety;
    for (const Vystraha& v : v_rade.vystrahy())
        vety += na_qstring(v.text);
    okno.setAccessibleDescription(vety.join(QStringLiteral("; ")));
}

void VystrahyStolu::obnov_ukazani() {
    if (!ukazani)
        return;
    const qint64 ms = ukazani->od.elapsed();
    const bool sviti = ms < kUkazani_ms && ms / kBliknuti_ms % 2 == 0;
    if (sviti != ukazani->sviti)
        okno.update(okoli_ukazaneho());
    ukazani->sviti = sviti;
    if (ms >= kUkazani_ms)
        ukazani.reset();
}

void VystrahyStolu::nastav_radu(bool ano) {
    s_radou = ano;
    nastav_radu_vystrah(ano);
    obnov_radu();
}

void VystrahyStolu::ukaz(const Vystraha& v) {
    if (!tabulka(v.prvek).je(v.n))
        return;
    if (ukazani)
        okno.update(okoli_ukazaneho());
    ukazani = Ukazani{misto_prvku(v), {}, true};
    ukazani->od.start();
    stul.ukaz(ukazani->misto.center());
    okno.update(okoli_ukazaneho());
    QString text = na_qstring(v.text);
    v_jadre([&] {
        if (const Text vlak = v.vlak > 0 ? souhrn_cisla(text_cisla(v.vlak)) : Text{}; !vlak.empty())
            text += QStringLiteral("\n") + na_qstring(vlak);
    });
    QTimer::singleShot(kTipPo_ms, &okno, [this, text] { // the end of the click would take it away
        if (ukazani)
            QToolTip::showText(okno.mapToGlobal(stul.v_okne(ukazani->misto).center()), bez_rozvrzeni(text),
                               &okno);
    });
}

void VystrahyStolu::vypis_do(QMenu& nabidka) {
    std::vector<Vystraha> vse;
    v_jadre([&] { vse = vystrahy(); });
    for (const Vystraha& v : vse)
        QObject::connect(nabidka.addAction(na_qstring(v.text)), &QAction::triggered, &okno,
                         [this, v] { ukaz(v); });
    if (vse.empty())
        nabidka.addAction(QStringLiteral("žádná výstraha"))->setEnabled(false);
    nabidka.addSeparator();
    QAction* radek = nabidka.addAction(QStringLiteral("řádek výstrah"));
    radek->setCheckable(true);
    radek->setChecked(s_radou);
    QObject::connect(radek, &QAction::toggled, &okno, [this](bool ano) { nastav_radu(ano); });
}

QRect VystrahyStolu::misto_rady() const {
    return {kMistoRady.x() * kTwipu, kMistoRady.y() * kTwipu,
            kMistoRady.width() * kTwipu + stul.platno().navic_panelu(), kMistoRady.height() * kTwipu};
}

// Of a track without a label its line; twips of the picture.
QRect VystrahyStolu::misto_prvku(const Vystraha& v) const {
    if (v.prvek != Druh::kolej)
        return stul.platno().misto(v.prvek, v.n);
    const Prvek& cara = stul.platno().prvek(v.prvek, v.n);
    return QRect(QPoint(cara.x1, cara.y1), QPoint(cara.x2, cara.y2))
        .normalized()
        .adjusted(0, -kTwipu, 0, kTwipu);
}

// With the frame around it; pixels of the window.
QRect VystrahyStolu::okoli_ukazaneho() const {
    const int okraj = static_cast<int>(std::ceil(kOkrajUkazani * stul.meritko())) + 2;
    return stul.v_okne(ukazani->misto).adjusted(-okraj, -okraj, okraj, okraj);
}

void VystrahyStolu::nakresli(QPainter& p) const {
    const Meritko& m = stul.platno().meritko();
    for (const DilekVystrah& dilek : v_rade.dilky())
        nakresli_prvek(p, m, Druh::lblVolba, 0, dilek.napis);
    if (!ukazani || !ukazani->sviti)
        return;
    const int okraj = m.bodu(kOkrajUkazani);
    if (const QRect cil = stul.platno().v_bodech(ukazani->misto); !cil.isEmpty())
        nakresli_obrys(p, cil.adjusted(-okraj, -okraj, okraj, okraj), m.bodu(2),
                       QColor::fromRgb(kBarvaUkazani));
}
