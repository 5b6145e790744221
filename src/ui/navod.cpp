// ui/navod.cpp - the manual of the start screen: makes a PDF of a text in Markdown.
//
//   tesk-navod TEXT.md NAVOD.pdf
//
// Run by the build; a fault is told on the standard error, and the code is 1.
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRozliseni = 96; // of the layout, points to the inch; letters and lines stay curves
constexpr double kOkraj_mm = 20,
                 kVelikostPisma = 9.5; // the margin is the one that the text prints itself with
constexpr double kSirkaStrany = (210 - 2 * kOkraj_mm) / 25.4 * kRozliseni;

// Tables have hair lines and take the width of the page; pictures are fitted into it.
void uprav_tabulky(const QTextFrame& ramec) {
    for (QTextFrame* dite : ramec.childFrames()) {
        if (auto* t = qobject_cast<QTextTable*>(dite)) {
            QTextTableFormat f = t->format();
            f.setBorder(1);
            f.setHeaderRowCount(1);
            f.setBorderCollapse(true);
            f.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            f.setBorderBrush(QColor(150, 158, 166));
            f.setCellPadding(4);
            f.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            t->setFormat(f);
        }
        uprav_tabulky(*dite);
    }
}

void uprav_obrazky(QTextDocument& text, const QString& slozka) {
    std::vector<QTextFragment> obrazky;
    for (QTextBlock b = text.begin(); b.isValid(); b = b.next())
        for (auto i = b.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().isImageFormat())
                obrazky.push_back(i.fragment());
    for (const QTextFragment& kus : obrazky) {
        QTextImageFormat f = kus.charFormat().toImageFormat();
        const QImage obrazek(slozka + u'/' + f.name());
        if (obrazek.isNull())
            continue;
        text.addResource(QTextDocument::ImageResource, QUrl(f.name()), obrazek);
        f.setWidth(std::min<double>(obrazek.width(), kSirkaStrany - 8));
        f.setHeight(f.width() * obrazek.height() / obrazek.width());
        QTextCursor kam(&text);
        kam.setPosition(kus.position());
        kam.setPosition(kus.position() + kus.length(), QTextCursor::KeepAnchor);
        kam.setCharFormat(f);
    }
}

} // namespace

int main(int pocet, char** slova) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplikace(pocet, slova);
    const QStringList argumenty = QCoreApplication::arguments();
    if (argumenty.size() != 3) {
        std::fputs("použití: tesk-navod TEXT.md NAVOD.pdf\n", stderr);
        return 1;
    }
    QFile zdroj(argumenty[1]);
    if (!zdroj.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde přečíst\n", qPrintable(argumenty[1]));
        return 1;
    }
    QTextDocument text;
    QFont pismo(QStringLiteral("DejaVu Sans"));
    pismo.setPointSizeF(kVelikostPisma);
    text.setDefaultFont(pismo);
    text.setMarkdown(QString::fromUtf8(zdroj.readAll()), QTextDocument::MarkdownDialectGitHub);
    uprav_tabulky(*text.rootFrame());
    uprav_obrazky(text, QFileInfo(zdroj).absolutePath());

    QFile vystup(argumenty[2]);
    if (!vystup.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde zapsat\n", qPrintable(argumenty[2]));
        return 1;
    }
    QPdfWriter pdf(&vystup);
    pdf.setTitle(QStringLiteral("KPS RVZ TESK: příručka výpravčího"));
    pdf.setCreator(QStringLiteral("KPS RVZ TESK"));
    pdf.setResolution(kRozliseni);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF());
    text.print(&pdf); // with the number of each page below it
    return 0;
}
