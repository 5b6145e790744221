// ui/obrazky_vozu.cpp - the pictures of vehicles from DATA\VOZY, at the size of the desk.
#include "ui/obrazky_vozu.h"

#include "app/simulace.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <QBuffer>
#include <QByteArray>
#include <QHash>
#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype kNejviceObrazku = 512;       // in each of the tables
constexpr std::int64_t kNejdelsiIkona = 1 << 20; // bytes
constexpr int kNejviceVelikosti = 16;            // of one icon
constexpr int kNejvetsiStrana = 256;             // no icon has more
constexpr qreal kNejvetsiMeritko = 64;

// Never destroyed: pictures must not be given back after the application object has gone.
QHash<QByteArray, QList<QImage>>& ikony = *new QHash<QByteArray, QList<QImage>>;
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
QList<QImage> nacti_ikonu(TextPohled jmeno) {
    const Text cesta = simulace.cesta_aplikace + "DATA\\VOZY\\" + Text(jmeno);
    const auto delka = delka_souboru(cesta);
    if (!delka || *delka > kNejdelsiIkona)
        return {};
    QByteArray bajty;
    try {
        const Bajty obsah = nacti_soubor(cesta);
        if (!je_ikona(obsah))
            return {};
        bajty = QByteArray(reinterpret_cast<const char*>(obsah.data()), static_cast<qsizetype>(obsah.size()));
    } catch (const BehovaChyba&) { // has gone in the meantime, or may not be read
        return {};
    }
    QBuffer zdroj(&bajty);
    QImageReader ctecka(&zdroj, "ico");
    QList<QImage> velikosti;
    const int pocet = std::min<int>(ctecka.imageCount(), kNejviceVelikosti);
    for (int i = 0; i < pocet; ++i) {
        if (!ctecka.jumpToImage(i))
            break;
        const QImage o = ctecka.read();
        if (!o.isNull() && o.width() <= kNejvetsiStrana && o.height() <= kNejvetsiStrana)
            velikosti.push_back(o.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    return velikosti;
}

const QList<QImage>& ikona(const QByteArray& klic, TextPohled jmeno) {
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
    const QImage* zdroj = nejblizsi(ikona(klic, jmeno), meritko);
    if (!zdroj)
        return zadny;
    const QSize rozmer = velikost(*zdroj, meritko);
    const std::pair klic_rozmeru(klic, rozmer.height() << 16 | rozmer.width());
    const auto kde = hotove.constFind(klic_rozmeru);
    if (kde != hotove.constEnd())
        return *kde;
    if (hotove.size() >= kNejviceObrazku)
        hotove.clear(); // a window that is being resized passes through many sizes
    return *hotove.insert(klic_rozmeru, QPixmap::fromImage(zdroj->size() == rozmer
                                                               ? *zdroj
                                                               : zdroj->scaled(rozmer, Qt::IgnoreAspectRatio,
                                                                               Qt::SmoothTransformation)));
}

void zapomen_obrazky() {
    ikony.clear();
    hotove.clear();
}
