// ui/uvod.cpp - the splash screen: what the operator sees while the simulation is being prepared.
#include "ui/uvod.h"

#include "app/simulace.h"
#include "relief/tvary_vyhybek.h"
#include "ui/kresba.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <array>

namespace {

constexpr QSize kVelikost(560, 372); // pixels of the desk
constexpr int kSledovani_ms = 50;
constexpr int kKonecZhlavi = 32; // columns of the throat that is drawn

// What a newcomer has to know to set his first route, while he waits.
constexpr std::array kPrvniKroky = {
    "Přihlášení potvrďte třikrát klávesou Enter."_cz,
    "Cesta: klepněte na návěstidlo a potom na kolej, kam vede."_cz,
    "Pravé tlačítko otevře nabídku prvku, Esc ruší volbu."_cz,
    "Co je co, řekne ukazatel myši, když se na chvíli zastaví."_cz,
    "Příručku otevře F1; F6 předá stůl automatickému výpravčímu."_cz,
};

} // namespace

void nakresli_zhlavi(QPainter& p, const Meritko& m) {
    QRegion navestidla; // their places on the lines
    const auto navestidlo = [&](int sloupec, int v_radku, int kod, Barva barva) {
        Prvek n;
        n.viditelny = true;
        n.barva = barva;
        n.text = znak(kod);
        n.vlevo = sloupec * kSirkaZnaku;
        n.nahore = v_radku * kVyskaVyhybky;
        navestidla += misto_textu(m, Druh::navestidlo, n);
        nakresli_prvek(p, m, Druh::navestidlo, 1, n);
    };
    const auto kolej = [&](int odkud, int kam, int v_radku, Barva barva) {
        Prvek k;
        k.viditelny = true;
        k.barva = barva;
        k.x1 = odkud * kSirkaZnaku;
        k.x2 = kam * kSirkaZnaku;
        k.y1 = k.y2 = v_radku * kVyskaVyhybky + kOsaRadku;
        OkoliCary okoli;
        okoli.texty = navestidla;
        okoli.dal_od = odkud > 0;
        okoli.dal_po = kam < kKonecZhlavi;
        nakresli_prvek(p, m, Druh::kolej, 1, k, okoli);
    };
    const auto vyhybka = [&](int sloupec, int v_radku, int stav) {
        nakresli_vyhybku(p, m, sloupec * kSirkaZnaku, v_radku * kVyskaVyhybky, stav);
    };
    navestidlo(3, 0, 229, barvy::zelena), navestidlo(19, 0, 230, barvy::seda);
    navestidlo(20, 1, 230, barvy::seda), navestidlo(21, 2, 230, barvy::seda);
    kolej(0, 8, 0, barvy::zelena), vyhybka(8, 0, 52), kolej(10, kKonecZhlavi, 0, barvy::seda);
    kolej(0, 10, 1, barvy::seda), vyhybka(10, 1, 61), kolej(12, 14, 1, barvy::zelena);
    vyhybka(14, 1, 53), kolej(16, kKonecZhlavi, 1, barvy::zelena);
    vyhybka(16, 2, 11), kolej(18, kKonecZhlavi, 2, barvy::cervena);
}

QPolygon obrys_uvodu() {
    constexpr int s = kVelikost.width(), v = kVelikost.height(), z = 12; // z: the step of a corner
    constexpr std::array kRohy = {
        // left upper corner, notch above, right upper corner, right side
        QPoint(0, 2 * z),
        QPoint(z, 2 * z),
        QPoint(z, z),
        QPoint(2 * z, z),
        QPoint(2 * z, 0),
        QPoint(s / 2 - 5 * z, 0),
        QPoint(s / 2 - 4 * z, z),
        QPoint(s / 2 + 4 * z, z),
        QPoint(s / 2 + 5 * z, 0),
        QPoint(s - 2 * z, 0),
        QPoint(s - 2 * z, z),
        QPoint(s - z, z),
        QPoint(s - z, 2 * z),
        QPoint(s, 2 * z),
        QPoint(s - z / 2, v / 2),
        // right lower corner, notch below, left lower corner, left side
        QPoint(s, v - 2 * z),
        QPoint(s - z, v - 2 * z),
        QPoint(s - z, v - z),
        QPoint(s - 2 * z, v - z),
        QPoint(s - 2 * z, v),
        QPoint(s / 2 + 5 * z, v),
        QPoint(s / 2 + 4 * z, v - z),
        QPoint(s / 2 - 4 * z, v - z),
        QPoint(s / 2 - 5 * z, v),
        QPoint(2 * z, v),
        QPoint(2 * z, v - z),
        QPoint(z, v - z),
        QPoint(z, v - 2 * z),
        QPoint(0, v - 2 * z),
        QPoint(z / 2, v / 2),
    };
    static_assert(kRohy.size() == 30);
    return QPolygon(QList<QPoint>(kRohy.begin(), kRohy.end()));
}

UvodniObrazovka::UvodniObrazovka()
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::SplashScreen), krat(meritko_obrazovky()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(QStringLiteral("KPS RVZ TESK"));
    setFixedSize((QSizeF(kVelikost) * krat).toSize());
    setMask(QRegion(QTransform::fromScale(krat, krat).map(obrys_uvodu())));
    if (const QScreen* obrazovka = QGuiApplication::primaryScreen()) {
        QRect plocha = obrazovka->geometry();
        if (plocha.width() > 2.5 * plocha.height())
            plocha.setWidth(plocha.width() / 2); // two monitors: not on the seam between them
        move(plocha.center() - QPoint(width() / 2, height() / 2));
    }
    connect(&sledovani, &QTimer::timeout, this, [this] {
        const QString novy = na_qstring(simulace.popisek_nacitani);
        if (novy != popisek) {
            popisek = novy;
            update();
        }
    });
    sledovani.start(kSledovani_ms);
}

// On the pixels of the screen, as everything of the desk.
void UvodniObrazovka::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const double pomer = devicePixelRatioF(), k = krat * pomer;
    p.scale(1 / pomer, 1 / pomer);
    const auto radek = [&](int x, int y, double nasobek, TextPohled text, Barva barva) {
        kresli_radek(p, x * k, y * k, kSirkaBunky * nasobek * k, kVyskaBunky * nasobek * k, text, barva,
                     Znaky::pismena);
    };
    const auto linka = [&](int y) {
        p.fillRect(qRound(40 * k), qRound(y * k), qRound((kVelikost.width() - 80) * k),
                   std::max(1, qRound(k)), QColor(60, 69, 80));
    };
    p.fillRect(QRectF(QPointF(0, 0), QSizeF(size()) * pomer), Qt::black);
    p.setPen(QPen(QColor(96, 112, 128), 3 * k));
    p.drawPolygon(QTransform::fromScale(k, k).map(QPolygonF(obrys_uvodu())));
    radek(40, 34, 3, "KPS RVZ TESK", barvy::bila);
    radek(42, 80, 1, "Simulátor stanoviště dispečera železničního uzlu"_cz, 0xB8B0A8);
    Meritko m;
    m.k = 2.0 * k / kTwipu;
    m.x0 = qRound(24 * k), m.y0 = qRound(122 * k);
    nakresli_zhlavi(p, m);
    linka(212);
    for (std::size_t i = 0; i < kPrvniKroky.size(); ++i)
        radek(40, 219 + static_cast<int>(i) * 17, 1, kPrvniKroky[i], 0xD8D0C8);
    linka(307);
    radek(40, 316, 1, z_qstring(popisek), barvy::azurova);
    radek(40, 336, 1, Text("verze "_cz) + text_verze(), barvy::seda);
}
