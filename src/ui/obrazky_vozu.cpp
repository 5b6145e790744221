// ui/obrazky_vozu.cpp - the pictures of vehicles from DATA\VOZY, at the size of the desk.
#include "ui/obrazky_vozu.h"

#include "app/simulace.h"
#include "ui/pismo.h"
#include "zaklad/chyba.h"
#include "zaklad/otisk.h"
#include "zaklad/soubory.h"

#include <QBuffer>
#include <QByteArray>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype kNejviceObrazku = 512;       // in each of the tables
constexpr std::int64_t kNejdelsiIkona = 1 << 20; // bytes
constexpr int kNejviceVelikosti = 16;            // of one icon
constexpr int kNejvetsiStrana = 256;             // no icon has more
constexpr qreal kNejvetsiMeritko = 64;

constexpr std::int64_t kNejdelsiObrysy = 1 << 24; // bytes
constexpr double kNejdelsiVuz = 256;              // pixels of the desk
constexpr int kJemneji = 4;                       // the grid on which polygons are filled, times finer

// A picture as its drawing tells it: polygons in pixels of the desk, y up.
struct Obrys {
    quint32 otisk = 0; // of the file that shows the same
    double delka = 0;
    QList<std::pair<QRgb, QPolygonF>> plochy;
};
struct Ikona {
    quint32 otisk = 0;
    QList<QImage> velikosti;
};

// Never destroyed: pictures must not be given back after the application object has gone.
QHash<QByteArray, Ikona>& ikony = *new QHash<QByteArray, Ikona>;
QHash<QByteArray, Obrys>& obrysy = *new QHash<QByteArray, Obrys>;
bool obrysy_nactene = false;
QHash<std::pair<QByteArray, int>, QPixmap>& hotove = *new QHash<std::pair<QByteArray, int>, QPixmap>;

// A name comes from a saved file too: it must not lead out of the folder.
bool je_jmeno_souboru(TextPohled jmeno) {
    return !jmeno.empty() && jmeno.find_first_of(Text("/\\:\0", 4)) == TextPohled::npos;
}

// The directory in front of the pictures points into the file only.
bool je_ikona(const Bajty& b) {
    constexpr std::size_t kHlava = 6, kZaznam = 16;
    const auto cislo = [&b](std::size_t kde, std::size_t bajtu) {
        std::size_t hodnota = 0;
        for (std::size_t i = bajtu; i-- > 0;)
            hodnota = hodnota << 8 | b[kde + i];
        return hodnota;
    };
    if (b.size() < kHlava || cislo(0, 2) != 0 || cislo(2, 2) != 1)
        return false;
    const std::size_t pocet = cislo(4, 2), data = kHlava + pocet * kZaznam;
    if (data > b.size())
        return false;
    for (std::size_t i = 0; i < pocet; ++i) {
        const std::size_t delka = cislo(kHlava + i * kZaznam + 8, 4),
                          kde = cislo(kHlava + i * kZaznam + 12, 4);
        if (kde < data || kde > b.size() || delka > b.size() - kde)
            return false;
    }
    return true;
}

// All the sizes that the file holds. What Qt cannot read is left out.
Ikona nacti_ikonu(TextPohled jmeno) {
    const Text cesta = simulace.cesta_aplikace + "DATA\\VOZY\\" + Text(jmeno);
    const auto delka = delka_souboru(cesta);
    if (!delka || *delka > kNejdelsiIkona)
        return {};
    QByteArray bajty;
    Ikona vysledek;
    try {
        const Bajty obsah = nacti_soubor(cesta);
        vysledek.otisk = otisk_bajtu(obsah);
        if (!je_ikona(obsah))
            return {};
        bajty = QByteArray(reinterpret_cast<const char*>(obsah.data()), static_cast<qsizetype>(obsah.size()));
    } catch (const BehovaChyba&) { // has gone in the meantime, or may not be read
        return {};
    }
    QBuffer zdroj(&bajty);
    QImageReader ctecka(&zdroj, "ico");
    const int pocet = std::min<int>(ctecka.imageCount(), kNejviceVelikosti);
    for (int i = 0; i < pocet; ++i) {
        if (!ctecka.jumpToImage(i))
            break;
        const QImage o = ctecka.read();
        if (!o.isNull() && o.width() <= kNejvetsiStrana && o.height() <= kNejvetsiStrana)
            vysledek.velikosti.push_back(o.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    return vysledek;
}

// Lines "obrazek HASH LENGTH NAME", and behind each its polygons "RRGGBB x y x y ...". What is no such line
// is left out.
void nacti_obrysy() {
    obrysy_nactene = true;
    const Text cesta = simulace.cesta_aplikace + "DATA\\VOZY\\obrysy.txt";
    const auto delka = delka_souboru(cesta);
    if (!delka || *delka > kNejdelsiObrysy)
        return;
    QByteArray text;
    try {
        const Bajty obsah = nacti_soubor(cesta);
        text = QByteArray(reinterpret_cast<const char*>(obsah.data()), static_cast<qsizetype>(obsah.size()));
    } catch (const BehovaChyba&) {
        return;
    }
    Obrys* obrys = nullptr;
    for (const QByteArray& radek : text.split('\n')) {
        const QList<QByteArray> slova = radek.split(' ');
        if (slova[0] == "obrazek" && slova.size() >= 4) {
            const QString jmeno = QString::fromUtf8(slova.mid(3).join(' '));
            const Text klic = z_qstring(jmeno);
            obrys = &obrysy[QByteArray(klic.data(), static_cast<qsizetype>(klic.size()))];
            *obrys = {slova[1].toUInt(nullptr, 16), slova[2].toDouble(), {}};
            continue;
        }
        QPolygonF plocha;
        for (qsizetype i = 1; i + 1 < slova.size(); i += 2) {
            const QPointF bod(slova[i].toDouble(), slova[i + 1].toDouble());
            if (std::abs(bod.x()) <= kNejdelsiVuz && std::abs(bod.y()) <= kNejdelsiVuz)
                plocha << bod;
        }
        if (obrys != nullptr && plocha.size() >= 3)
            obrys->plochy.emplace_back(slova[0].toUInt(nullptr, 16) | 0xFF000000, plocha);
    }
}

// First painted on a fine grid without smoothing and only then averaged: two polygons that share an edge
// leave no seam between them.
QImage nakresli(const Obrys& obrys, QSize rozmer) {
    QImage jemny(rozmer * kJemneji, QImage::Format_ARGB32_Premultiplied);
    jemny.fill(Qt::transparent);
    QPainter p(&jemny);
    const double sirka = std::ceil(obrys.delka - 1e-6); // of the picture, the vehicle in its middle
    p.scale(jemny.width() / sirka, -jemny.height() / double(kVyskaObrazkuVozu));
    p.translate((sirka - obrys.delka) / 2, -kVyskaObrazkuVozu);
    p.setPen(Qt::NoPen);
    for (const auto& [barva, plocha] : obrys.plochy) {
        p.setBrush(QColor::fromRgb(barva));
        p.drawPolygon(plocha, Qt::OddEvenFill);
    }
    p.end();
    return jemny.scaled(rozmer, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

const Ikona& ikona(const QByteArray& klic, TextPohled jmeno) {
    auto kde = ikony.constFind(klic);
    if (kde == ikony.constEnd()) {
        if (ikony.size() >= kNejviceObrazku)
            ikony.clear();
        kde = ikony.insert(klic, nacti_ikonu(jmeno));
    }
    return *kde;
}

// The smallest size that need not be enlarged, else the largest one.
const QImage* nejblizsi(const QList<QImage>& velikosti, qreal meritko) {
    const auto zvetseni = [meritko](const QImage& o) {
        return std::min(kSirkaObrazkuVozu * meritko / o.width(), kVyskaObrazkuVozu * meritko / o.height());
    };
    const QImage* nejlepsi = nullptr;
    for (const QImage& o : velikosti) {
        if (!nejlepsi) {
            nejlepsi = &o;
            continue;
        }
        const qreal z = zvetseni(o), dosud = zvetseni(*nejlepsi);
        const bool staci = z <= 1, dosud_staci = dosud <= 1;
        if (staci != dosud_staci ? staci : (staci ? z > dosud : z < dosud))
            nejlepsi = &o;
    }
    return nejlepsi;
}

QSize velikost(const QImage& o, qreal meritko) {
    const qreal z =
        std::min(kSirkaObrazkuVozu * meritko / o.width(), kVyskaObrazkuVozu * meritko / o.height());
    return {std::max(1, static_cast<int>(std::lround(o.width() * z))),
            std::max(1, static_cast<int>(std::lround(o.height() * z)))};
}

} // namespace

const QPixmap& obrazek(TextPohled jmeno, qreal meritko) {
    static const QPixmap& zadny = *new QPixmap;
    if (!je_jmeno_souboru(jmeno) || !(meritko > 0) || meritko > kNejvetsiMeritko)
        return zadny;
    const QByteArray klic(jmeno.data(), static_cast<qsizetype>(jmeno.size()));
    const Ikona& soubor = ikona(klic, jmeno);
    const QImage* zdroj = nejblizsi(soubor.velikosti, meritko);
    if (!zdroj)
        return zadny;
    const QSize rozmer = velikost(*zdroj, meritko);
    const std::pair klic_rozmeru(klic, rozmer.height() << 16 | rozmer.width());
    const auto kde = hotove.constFind(klic_rozmeru);
    if (kde != hotove.constEnd())
        return *kde;
    if (hotove.size() >= kNejviceObrazku)
        hotove.clear(); // a window that is being resized passes through many sizes
    if (!obrysy_nactene)
        nacti_obrysy();
    // Between the sizes of the file the drawing itself is sharper; another picture of the name goes before
    // it.
    if (const auto obrys = obrysy.constFind(klic); zdroj->size() != rozmer && obrys != obrysy.constEnd() &&
                                                   obrys->otisk == soubor.otisk && obrys->delka > 0 &&
                                                   obrys->delka <= kNejdelsiVuz)
        return *hotove.insert(klic_rozmeru, QPixmap::fromImage(nakresli(*obrys, rozmer)));
    return *hotove.insert(klic_rozmeru, QPixmap::fromImage(zdroj->size() == rozmer
                                                               ? *zdroj
                                                               : zdroj->scaled(rozmer, Qt::IgnoreAspectRatio,
                                                                               Qt::SmoothTransformation)));
}

void zapomen_obrazky() {
    ikony.clear();
    hotove.clear();
    obrysy.clear();
    obrysy_nactene = false;
}
