// nastroje/navod/navod.cpp - makes the manual of an installation: its pictures, its text, and all as a PDF.
//
//   tesk-navod PRIRUCKA.md OBRAZKY.txt INSTALACE
//
// INSTALACE/navod holds the text and the pictures, which the desk shows itself; INSTALACE/navod.pdf is for
// printing. Run by the build; a fault is told on the standard error, and the code is 1.
#include "navod/obrazky.h"
#include "navod/pdf.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

int main(int pocet, char** slova) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplikace(pocet, slova);
    const QStringList argumenty = QCoreApplication::arguments();
    if (argumenty.size() != 4) {
        std::fputs("použití: tesk-navod PRIRUCKA.md OBRAZKY.txt INSTALACE\n", stderr);
        return 1;
    }
    const QString prirucka = argumenty[1], instalace = argumenty[3],
                  slozka = instalace + QStringLiteral("/navod");
    const QString text = slozka + QStringLiteral("/prirucka.md");
    if (!QDir().mkpath(slozka + QStringLiteral("/obrazky")) ||
        !nakresli_obrazky(argumenty[2], instalace.toStdString(), slozka + QStringLiteral("/obrazky")))
        return 1;
    QFile::remove(text);
    if (!QFile::copy(prirucka, text)) {
        std::fprintf(stderr, "tesk-navod: %s nejde zapsat\n", qPrintable(text));
        return 1;
    }
    return vytvor_pdf(text, instalace + QStringLiteral("/navod.pdf")) ? 0 : 1;
}
