// ui/ukazatel_stolu.cpp - the pointer over the desk.
#include "ui/ukazatel_stolu.h"

#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "ui/brana.h"

#include <QCursor>

#include <utility>

namespace {

constexpr QRgb kNajetiPrvku = 0xFF5A6A7C;

// The element is outlined under the pointer. Empty rows of the train table and the command line are not.
bool zvyraznuje_se(const Platno& platno, const Nalezeny& kde) {
    if (!tabulka(kde.druh).je(kde.n) || kde.druh == Druh::lblPrikaz || kde.druh == Druh::lblVolba)
        return false;
    const Prvek& p = platno.prvek(kde.druh, kde.n);
    return p.viditelny && (kde.druh != Druh::lblTabulka_vlaku || !orez(p.text()).empty());
}

} // namespace

void UkazatelStolu::najed(QPointF misto) {
    const std::optional<Nalezeny> kde = stul.prvek_pod(misto);
    if (kde == najety)
        return;
    const bool hotovo = rukou([&] {
        if (kde)
            najeti(kde->druh, kde->n);
        else
            odjeti();
    });
    if (hotovo)
        zmen_najety(kde);
}

void UkazatelStolu::ukaz_ruku_zaznamu() {
    zmen_najety(vyber.mys_nad_prvkem ? std::optional(Nalezeny{vyber.mys_druh, vyber.mys_prvek})
                                     : std::nullopt);
}

void UkazatelStolu::zmen_najety(const std::optional<Nalezeny>& kde) {
    if (kde == najety)
        return;
    for (const std::optional<Nalezeny>& co : {najety, kde})
        if (co && tabulka(co->druh).je(co->n))
            okno.update(stul.misto_prvku(*co).adjusted(-2, -2, 2, 2));
    najety = kde;
}

void UkazatelStolu::presun(QPoint kam) {
    stul.ukaz(kam);
    const QPoint kde = stul.bod_v_okne(kam);
    QCursor::setPos(okno.mapToGlobal(kde));
    najed(kde);
}

void UkazatelStolu::presun_k_sousedovi(QPoint smer) {
    if (const std::optional<QPoint> kam = stul.platno().soused(stul.na_twipy(misto()), smer))
        presun({kam->x() / kTwipu * kTwipu + kTwipu / 2, kam->y() / kTwipu * kTwipu + kTwipu / 2});
}

void UkazatelStolu::nastav_na_stole(Bod kam) {
    // the middle of the desk's pixel, cut to a pixel of the screen: reading the place back gives it again
    QPoint obraz(kam.x * kTwipu + kTwipu / 2, kam.y * kTwipu + kTwipu / 2);
    if (!stul.platno().je_beze_zmeny()) {
        const auto odkud = std::exchange(cteni, std::nullopt);
        obraz = odkud ? odkud->obraz + QPoint(kam.x - odkud->stul.x, kam.y - odkud->stul.y) * kTwipu
                      : stul.platno().ze_stolu(obraz);
    }
    presun(obraz);
}

Bod UkazatelStolu::na_stole() {
    const QPoint obraz = stul.na_twipy(misto());
    const QPoint t = stul.platno().na_stul(obraz);
    const Bod kde{t.x() / kTwipu, t.y() / kTwipu};
    cteni = Cteni{kde, obraz};
    return kde;
}

QPointF UkazatelStolu::misto() const {
    return QPointF(okno.mapFromGlobal(QCursor::pos())) + QPointF(0.5, 0.5);
}

void UkazatelStolu::nakresli(QPainter& p) const {
    const Platno& platno = stul.platno();
    if (!najety || !zvyraznuje_se(platno, *najety))
        return;
    nakresli_obrys(p, platno.v_bodech(platno.misto(najety->druh, najety->n)), platno.meritko().bodu(1),
                   QColor::fromRgb(kNajetiPrvku));
}
