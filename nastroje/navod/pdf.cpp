// nastroje/navod/pdf.cpp - a text in Markdown as a PDF.
#include "navod/pdf.h"

#include "ui/text_prirucky.h"

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdio>

namespace {

constexpr int kRozliseni = 96; // of the layout, points to the inch; letters and lines stay curves
constexpr double kOkraj_mm = 20,
                 kVelikostPisma = 9.5; // the margin is the one that the text prints itself with
constexpr double kSirkaStrany = (210 - 2 * kOkraj_mm) / 25.4 * kRozliseni;
constexpr double kBodObrazku = 0.6; // of the pictures, which are drawn larger than they are printed

} // namespace

bool vytvor_pdf(const QString& markdown, const QString& pdf_soubor) {
    QTextDocument text;
    QFont pismo(QStringLiteral("DejaVu Sans"));
    pismo.setPointSizeF(kVelikostPisma);
    text.setDefaultFont(pismo);
    if (!nacti_prirucku(text, markdown)) {
        std::fprintf(stderr, "tesk-navod: %s nejde přečíst\n", qPrintable(markdown));
        return false;
    }
    uprav_tabulky(text, QColor(150, 158, 166));
    const QStringList chybi =
        uprav_obrazky(text, QFileInfo(markdown).absolutePath(), kSirkaStrany - 8, kBodObrazku, 0);
    if (!chybi.isEmpty()) {
        std::fprintf(stderr, "tesk-navod: chybí obrázky %s\n", qPrintable(chybi.join(u' ')));
        return false;
    }

    QFile vystup(pdf_soubor);
    if (!vystup.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde zapsat\n", qPrintable(pdf_soubor));
        return false;
    }
    QPdfWriter pdf(&vystup);
    pdf.setTitle(QStringLiteral("KPS RVZ TESK: příručka výpravčího"));
    pdf.setCreator(QStringLiteral("KPS RVZ TESK"));
    pdf.setResolution(kRozliseni);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF());
    text.print(&pdf); // with the number of each page below it
    return true;
}
