// nastroje/navod/navod.cpp - makes the manuals of an installation: their pictures, their texts, and each as a
// PDF.
//
//   tesk-navod OBRAZKY.txt PRIRUCKA.md MANUAL.md INSTALACE
//   tesk-navod --obrazky OBRAZKY.txt INSTALACE SLOZKA
//   tesk-navod --zkouska OBRAZKY.txt INSTALACE SLOZKA
//
// INSTALACE/navod holds the texts and the pictures, which the desk shows itself; INSTALACE/navod.pdf and
// INSTALACE/manual-en.pdf are for printing. --obrazky draws pictures alone into a folder; --zkouska looks
// whether those that lie there still show what the program draws. Run by the build; a fault is told on the
// standard error, and the code is 1.
#include "app/simulace.h"
#include "navod/obrazky.h"
#include "navod/pdf.h"
#include "ui/hodiny_stolu.h"
#include "ui/pismo.h"
#include "ui/vzhled.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

// Of the pixels of two pictures so many may differ, of a thousand, and a channel of one by so much: edges are
// smoothed by the toolkit, and not by each version of it in the same way.
constexpr int kSmiSeLisit = 2, kOdchylka = 40;

QString cesta(const QString& slozka, const QString& jmeno) {
    return slozka + u'/' + jmeno + QStringLiteral(".png");
}

ObrazekHotov do_slozky(const QString& slozka) {
    return [slozka](const QString& jmeno, const QImage& obraz) {
        const QString soubor = cesta(slozka, jmeno);
        return obraz.save(soubor) ? std::string() : soubor.toStdString() + " nejde zapsat";
    };
}

int jinych_bodu(const QImage& a, const QImage& b) {
    int jinych = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            jinych += std::abs(qRed(p) - qRed(q)) > kOdchylka ||
                      std::abs(qGreen(p) - qGreen(q)) > kOdchylka ||
                      std::abs(qBlue(p) - qBlue(q)) > kOdchylka;
        }
    return jinych;
}

ObrazekHotov jako_ve_slozce(const QString& slozka) {
    return [slozka](const QString& jmeno, const QImage& obraz) -> std::string {
        const QImage tam(cesta(slozka, jmeno));
        const std::string soubor = cesta(slozka, jmeno).toStdString();
        if (tam.isNull())
            return soubor + " chybí";
        if (tam.size() != obraz.size())
            return soubor + " má jiný rozměr, než program kreslí";
        const int jinych = jinych_bodu(tam, obraz);
        if (jinych > obraz.width() * obraz.height() / 1000 * kSmiSeLisit)
            return soubor + " neukazuje, co program kreslí: jiných bodů " + std::to_string(jinych);
        return {};
    };
}

bool sestav(const QString& markdown, const QString& slozka, const QString& pdf, const JazykPdf& jazyk) {
    const QString text = slozka + u'/' + QFileInfo(markdown).fileName();
    QFile::remove(text);
    if (!QFile::copy(markdown, text)) {
        std::fprintf(stderr, "tesk-navod: %s nejde zapsat\n", qPrintable(text));
        return false;
    }
    return vytvor_pdf(text, pdf, jazyk);
}

int navod(const QStringList& slova) {
    const QString& instalace = slova[3];
    const QString slozka = instalace + QStringLiteral("/navod");
    const QString verze = na_qstring(text_verze());
    return QDir().mkpath(slozka + QStringLiteral("/obrazky")) &&
                   nakresli_obrazky(slova[0], instalace.toStdString(),
                                    do_slozky(slozka + QStringLiteral("/obrazky"))) &&
                   sestav(slova[1], slozka, instalace + QStringLiteral("/navod.pdf"),
                          {QStringLiteral("příručka výpravčího"), QStringLiteral("Obsah"),
                           QStringLiteral("verze ") + verze, QStringLiteral("strana")}) &&
                   sestav(slova[2], slozka, instalace + QStringLiteral("/manual-en.pdf"),
                          {QStringLiteral("a short manual"), QStringLiteral("Contents"),
                           QStringLiteral("version ") + verze, QStringLiteral("page")})
               ? 0
               : 1;
}

} // namespace

int main(int pocet, char** slova) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplikace(pocet, slova);
    nastav_vzhled();
    drz_hodiny_stolu(); // time is the script's
    const QStringList argumenty = QCoreApplication::arguments().mid(1);
    const bool zkouska = argumenty.value(0) == QLatin1String("--zkouska");
    const bool kresleni = argumenty.value(0) == QLatin1String("--obrazky");
    if (argumenty.size() != 4 || (argumenty[0].startsWith(QLatin1String("--")) && !zkouska && !kresleni)) {
        std::fputs("použití: tesk-navod OBRAZKY.txt PRIRUCKA.md MANUAL.md INSTALACE\n"
                   "         tesk-navod --obrazky|--zkouska OBRAZKY.txt INSTALACE SLOZKA\n",
                   stderr);
        return 1;
    }
    if (!zkouska && !kresleni)
        return navod(argumenty);
    return nakresli_obrazky(argumenty[1], argumenty[2].toStdString(),
                            zkouska ? jako_ve_slozce(argumenty[3]) : do_slozky(argumenty[3]))
               ? 0
               : 1;
}
