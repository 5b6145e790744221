// ui/pismo.cpp - the screen font: its glyphs as pictures, placed cell by cell.
#include "ui/pismo.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QImage>
#include <QPaintEngine>
#include <QPainterPath>
#include <QRawFont>

#include <cmath>

namespace {

constexpr char32_t kZnakyReliefu = 0xE000;
constexpr double kVelikostObrysu = 208; // outlines are taken at this size and scaled from it, pixels
constexpr qsizetype kNejviceObrazku = 4096;

struct Pismo {
    QRawFont obrysy;
    QString rodina;
    bool nactene = false;
};
// Never destroyed: fonts and pictures must not be given back after the application object has gone.
Pismo& pismo = *new Pismo;

struct Klic {
    char32_t znak = 0;
    QRgb barva = 0;
    std::uint32_t velikost = 0; // width and height in 64ths of a pixel
    bool operator==(const Klic&) const = default;
};
size_t qHash(const Klic& k, size_t seminko = 0) noexcept {
    return qHashMulti(seminko, static_cast<quint32>(k.znak), k.barva, k.velikost);
}
QHash<Klic, QImage>& obrazky = *new QHash<Klic, QImage>;

void zajisti_nahradu() {
    if (!pismo.rodina.isEmpty())
        return;
    QFont nahrada(QStringLiteral("DejaVu Sans Mono"));
    nahrada.setStyleHint(QFont::Monospace);
    nahrada.setPixelSize(static_cast<int>(kVelikostObrysu));
    pismo.rodina = QFontInfo(nahrada).family();
    pismo.obrysy = QRawFont::fromFont(nahrada);
}

// The outline of a glyph and how it is stretched to a cell: the advance gives the width, ascent and descent
// the height. Empty for a blank and for what the font lacks.
struct ObrysZnaku {
    QPainterPath obrys;
    double krat_x = 1, krat_y = 1;

    void kresli(QPainter& p, QRgb barva) const {
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(krat_x, krat_y);
        p.translate(0, pismo.obrysy.ascent());
        p.fillPath(obrys, QColor::fromRgba(barva));
    }
};

ObrysZnaku obrys_znaku(char32_t znak, double sirka, double vyska) {
    const QVector<quint32> indexy = pismo.obrysy.glyphIndexesForString(QString::fromUcs4(&znak, 1));
    if (indexy.size() != 1 || indexy.front() == 0)
        return {};
    const double sirka_znaku = pismo.obrysy.advancesForGlyphIndexes(indexy).front().x();
    const double vyska_znaku = pismo.obrysy.ascent() + pismo.obrysy.descent();
    if (sirka_znaku <= 0 || vyska_znaku <= 0)
        return {};
    return {pismo.obrysy.pathForGlyph(indexy.front()), sirka / sirka_znaku, vyska / vyska_znaku};
}

QImage nakresli_znak(const Klic& klic, double sirka, double vyska) {
    const ObrysZnaku znak = obrys_znaku(klic.znak, sirka, vyska);
    if (znak.obrys.isEmpty())
        return {};
    // one pixel more: a fraction of the width may fall behind the whole ones
    QImage obrazek(static_cast<int>(std::ceil(sirka)) + 1, static_cast<int>(std::ceil(vyska)) + 1,
                   QImage::Format_ARGB32_Premultiplied);
    obrazek.fill(Qt::transparent);
    QPainter p(&obrazek);
    znak.kresli(p, klic.barva);
    return obrazek;
}

const QImage& obrazek_znaku(char32_t znak, QRgb barva, double sirka, double vyska) {
    const Klic klic{znak, barva,
                    static_cast<std::uint32_t>(std::lround(sirka * 64)) << 16 |
                        static_cast<std::uint32_t>(std::lround(vyska * 64))};
    auto nalezeny = obrazky.constFind(klic);
    if (nalezeny == obrazky.constEnd()) {
        if (obrazky.size() >= kNejviceObrazku)
            obrazky.clear(); // a window that is being resized passes through many sizes
        nalezeny = obrazky.insert(klic, nakresli_znak(klic, sirka, vyska));
    }
    return *nalezeny;
}

} // namespace

bool nacti_pismo(const QString& soubor) {
    QFile f(soubor);
    if (f.open(QIODevice::ReadOnly)) {
        const QByteArray obsah = f.readAll();
        QRawFont nove(obsah, kVelikostObrysu, QFont::PreferNoHinting);
        const int id = QFontDatabase::addApplicationFontFromData(obsah);
        const QStringList rodiny = QFontDatabase::applicationFontFamilies(id);
        if (nove.isValid() && !rodiny.isEmpty()) {
            pismo = {nove, rodiny.front(), true};
            obrazky.clear();
            return true;
        }
    }
    zajisti_nahradu();
    return false;
}

void (*sleduj_radek)(const QPainter& p, const QRectF& kde, TextPohled text) = nullptr;

QString na_qstring(TextPohled text) {
    QString vysledek;
    vysledek.reserve(static_cast<qsizetype>(text.size()));
    for (const char c : text)
        vysledek += QChar(static_cast<char16_t>(cp1250::na_unicode(static_cast<unsigned char>(c))));
    return vysledek;
}

Text z_qstring(const QString& text) {
    return z_utf8(text.toStdString());
}

QFont pismo_poli(double vyska) {
    zajisti_nahradu();
    QFont f(pismo.rodina);
    f.setPixelSize(std::max(6, static_cast<int>(std::lround(pismo.nactene ? vyska : vyska * 0.8))));
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

void kresli_radek(QPainter& p, double x, double y, double sirka, double vyska, TextPohled text, Barva barva,
                  Znaky znaky) {
    kresli_radek(p, x, y, sirka, vyska, text, barva_qt(barva), znaky);
}

void kresli_radek(QPainter& p, double x, double y, double sirka, double vyska, TextPohled text,
                  const QColor& barva, Znaky znaky) {
    zajisti_nahradu();
    if (const std::size_t prvni = text.find_first_not_of(' ');
        sleduj_radek != nullptr && prvni != TextPohled::npos) {
        const double znaku = static_cast<double>(text.find_last_not_of(' ') + 1 - prvni);
        sleduj_radek(p, {x + static_cast<double>(prvni) * sirka, y, znaku * sirka, vyska}, text);
    }
    const QRgb odstin = barva.rgb();
    const int radek = static_cast<int>(std::lround(y));
    // a screen gets ready-made images, a file of lines the outlines themselves
    const bool obrysy = p.paintEngine()->type() != QPaintEngine::Raster;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto bajt = static_cast<unsigned char>(text[i]);
        if (bajt == ' ')
            continue;
        const char32_t kod = cp1250::na_unicode(bajt);
        const char32_t znak = znaky == Znaky::znacky && pismo.nactene ? kZnakyReliefu + bajt : kod;
        const QPoint kde(static_cast<int>(std::lround(x + static_cast<double>(i) * sirka)), radek);
        if (obrysy) {
            p.save();
            p.translate(kde);
            obrys_znaku(znak, sirka, vyska).kresli(p, odstin);
            p.restore();
            continue;
        }
        const QImage& obrazek = obrazek_znaku(znak, odstin, sirka, vyska);
        if (!obrazek.isNull())
            p.drawImage(kde, obrazek);
    }
}
