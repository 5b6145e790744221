// ui/text_prirucky.cpp - the manual's text laid out.
#include "ui/text_prirucky.h"

#include <QColor>
#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

const QString kOdkaz = QStringLiteral("kapitola:");

constexpr qsizetype kNejvetsiVaha = 70; // of a column, characters
constexpr double kZnakuNaSirku = 46;    // of the narrowest window that the text is read in

qsizetype nejdelsi_slovo(const QString& text) {
    qsizetype nejdelsi = 0;
    for (const QString& slovo : text.split(u' '))
        nejdelsi = std::max(nejdelsi, slovo.size());
    return nejdelsi;
}

// Columns share the width by their longest texts, but no word is parted; where pictures stand, the toolkit
// has to see how broad they are.
QList<QTextLength> sirky_sloupcu(const QTextTable& tabulka) {
    struct Sloupec {
        qsizetype vaha = 1, slovo = 1;
        double nejmene = 0, dil = 0; // hundredths of the width
    };
    QList<Sloupec> sloupce(tabulka.columns());
    for (int radek = 0; radek < tabulka.rows(); ++radek)
        for (int i = 0; i < tabulka.columns(); ++i) {
            const QString text = tabulka.cellAt(radek, i).firstCursorPosition().block().text();
            if (text.contains(QChar::ObjectReplacementCharacter))
                return {};
            sloupce[i].vaha = std::max(sloupce[i].vaha, std::min(text.size(), kNejvetsiVaha));
            sloupce[i].slovo = std::max(sloupce[i].slovo, nejdelsi_slovo(text) + 2);
        }
    const auto soucet = [&](auto co) {
        return std::accumulate(sloupce.begin(), sloupce.end(), 0.0,
                               [&](double s, const Sloupec& x) { return s + co(x); });
    };
    const double vahy = soucet([](const Sloupec& x) { return static_cast<double>(x.vaha); });
    for (Sloupec& x : sloupce) {
        x.nejmene = std::min(100 * static_cast<double>(x.slovo) / kZnakuNaSirku, 60.0);
        x.dil = std::max(100 * static_cast<double>(x.vaha) / vahy, x.nejmene);
    }
    // what the narrow ones have got too much, the others give of what they have to spare
    const double dluh = soucet([](const Sloupec& x) { return x.dil; }) - 100;
    const double zbyva = soucet([](const Sloupec& x) { return x.dil - x.nejmene; });
    for (Sloupec& x : sloupce)
        x.dil -= zbyva > dluh ? dluh * (x.dil - x.nejmene) / zbyva : dluh * x.dil / (100 + dluh);
    QList<QTextLength> sirky;
    for (const Sloupec& x : sloupce)
        sirky.push_back(QTextLength(QTextLength::PercentageLength, x.dil));
    return sirky;
}

void uprav_ramec(const QTextFrame& ramec, const QColor& cara) {
    for (QTextFrame* dite : ramec.childFrames()) {
        if (auto* t = qobject_cast<QTextTable*>(dite)) {
            QTextTableFormat f = t->format();
            f.setBorder(1);
            f.setHeaderRowCount(1);
            f.setBorderCollapse(true);
            f.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            f.setBorderBrush(cara);
            f.setCellPadding(4);
            f.setWidth(QTextLength(QTextLength::PercentageLength, 99)); // its frame stands outside
            if (const QList<QTextLength> sirky = sirky_sloupcu(*t); !sirky.isEmpty())
                f.setColumnWidthConstraints(sirky);
            t->setFormat(f);
        }
        uprav_ramec(*dite, cara);
    }
}

// Paragraphs stand apart; those in the cells of tables have their padding.
void uprav_odstavce(QTextDocument& text) {
    const double radek = QFontMetricsF(text.defaultFont()).height();
    for (QTextBlock b = text.begin(); b.isValid(); b = b.next()) {
        QTextCursor kam(b);
        if (kam.currentTable() != nullptr)
            continue;
        QTextBlockFormat f = b.blockFormat();
        const int uroven = f.headingLevel();
        f.setTopMargin(uroven == 0 ? 0 : uroven <= 2 ? 1.2 * radek : 0.6 * radek);
        f.setBottomMargin(0.45 * radek);
        kam.setBlockFormat(f);
    }
}

// Read once: the document keeps it as it was drawn beside what is shown of it.
QImage nacteny_obrazek(QTextDocument& text, const QString& slozka, const QString& jmeno) {
    const QUrl puvodni(QStringLiteral("puvodni:") + jmeno);
    QImage obrazek = text.resource(QTextDocument::UserResource, puvodni).value<QImage>();
    if (obrazek.isNull()) {
        obrazek.load(slozka + u'/' + jmeno);
        text.addResource(QTextDocument::UserResource, puvodni, obrazek);
    }
    return obrazek;
}

} // namespace

bool nacti_prirucku(QTextDocument& text, const QString& soubor) {
    QFile zdroj(soubor);
    if (!zdroj.open(QIODevice::ReadOnly))
        return false;
    rozloz_prirucku(text, QString::fromUtf8(zdroj.readAll()));
    return true;
}

void rozloz_prirucku(QTextDocument& text, QString markdown) {
    // the toolkit passes over a picture that has no words of its own
    markdown.replace(QStringLiteral("![]("), QStringLiteral("![obraz]("));
    text.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    uprav_odstavce(text);
}

void uprav_tabulky(QTextDocument& text, const QColor& cara) {
    uprav_ramec(*text.rootFrame(), cara);
}

QStringList uprav_obrazky(QTextDocument& text, const QString& slozka, double sirka, double pomer,
                          double bodu) {
    std::vector<QTextFragment> obrazky;
    for (QTextBlock b = text.begin(); b.isValid(); b = b.next())
        for (auto i = b.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().isImageFormat())
                obrazky.push_back(i.fragment());
    QStringList chybi;
    for (const QTextFragment& kus : obrazky) {
        QTextImageFormat f = kus.charFormat().toImageFormat();
        const QImage obrazek = nacteny_obrazek(text, slozka, f.name());
        if (obrazek.isNull()) {
            chybi += f.name();
            continue;
        }
        const double hustota = std::max(1.0, obrazek.text(QLatin1String(kHustotaObrazku)).toDouble());
        const double nova = std::min(obrazek.width() * pomer / hustota, sirka);
        if (f.width() == nova)
            continue;
        f.setWidth(nova);
        f.setHeight(f.width() * obrazek.height() / obrazek.width());
        text.addResource(QTextDocument::ImageResource, QUrl(f.name()),
                         bodu > 0 ? obrazek.scaled(QSizeF(f.width() * bodu, f.height() * bodu).toSize(),
                                                   Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                  : obrazek);
        QTextCursor kam(&text);
        kam.setPosition(kus.position());
        kam.setPosition(kus.position() + kus.length(), QTextCursor::KeepAnchor);
        kam.setCharFormat(f);
    }
    return chybi;
}

QList<NadpisPrirucky> nadpisy_prirucky(const QTextDocument& text) {
    QList<NadpisPrirucky> nadpisy;
    for (QTextBlock b = text.begin(); b.isValid(); b = b.next())
        if (const int uroven = b.blockFormat().headingLevel(); uroven == 1 || uroven == 2)
            nadpisy.push_back({b.text(), b.blockNumber()});
    return nadpisy;
}

void odkazy_na_kapitoly(QTextDocument& text, const QColor& barva) {
    static const QRegularExpression kZminka(QStringLiteral("(?:kapitol\\w*|chapter) (\\d+)"));
    for (QTextCursor kde = text.find(kZminka); !kde.isNull(); kde = text.find(kZminka, kde)) {
        QTextCharFormat f;
        f.setAnchor(true);
        f.setAnchorHref(kOdkaz + kZminka.match(kde.selectedText()).captured(1));
        f.setForeground(barva);
        f.setFontUnderline(true);
        kde.mergeCharFormat(f);
    }
}

int kapitola_odkazu(const QString& odkaz) {
    bool cislo = false;
    const int kapitola = odkaz.startsWith(kOdkaz) ? odkaz.mid(kOdkaz.size()).toInt(&cislo) : -1;
    return cislo ? kapitola : -1;
}
