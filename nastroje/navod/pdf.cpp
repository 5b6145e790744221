// nastroje/navod/pdf.cpp - a text in Markdown as a PDF.
//
// Each chapter is a document of its own that begins where the one before it has ended: what is moved in it is
// laid out anew without the others.
#include "navod/pdf.h"

#include "ui/text_prirucky.h"

#include <QAbstractTextDocumentLayout>
#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int kRozliseni = 96; // of the layout, points to the inch; letters and lines stay curves
constexpr double kOkraj_mm = 20, kVelikostPisma = 9.5;
constexpr double kBodu_mm = kRozliseni / 25.4;
constexpr double kOkraj = kOkraj_mm * kBodu_mm;
constexpr double kSirkaStrany = (210 - 2 * kOkraj_mm) * kBodu_mm,
                 kVyskaStrany = (297 - 2 * kOkraj_mm) * kBodu_mm;
constexpr double kBodObrazku = 0.6; // of the pictures, which are drawn larger than they are printed
constexpr double kNaRadky = 2.5;    // lines of text that a heading needs below it on its page
constexpr double kMezeraKapitol = 16, kPodKapitolu = 60; // above a chapter, and room for its beginning
constexpr double kSloupecCisla = 8;                      // of the contents, hundredths of the width
const QColor kTenka(150, 158, 166);

int strana(double y) {
    return static_cast<int>(y / kVyskaStrany);
}

// One chapter laid out, and the page on which it begins.
struct Kapitola {
    std::unique_ptr<QTextDocument> text;
    int prvni_strana = 0;
};

// What all of the pages have in common.
struct Sazba {
    QPdfWriter& pdf;
    QString slozka; // of the pictures
    QStringList chybi;
};

// Upper edge of the first line of a block.
double zacatek(const QTextDocument& text, const QTextBlock& blok) {
    const double y = text.documentLayout()->blockBoundingRect(blok).top();
    return blok.layout()->lineCount() > 0 ? y + blok.layout()->lineAt(0).y() : y;
}
double konec_radku(const QTextDocument& text, const QTextBlock& blok) {
    return zacatek(text, blok) + (blok.layout()->lineCount() > 0 ? blok.layout()->lineAt(0).height() : 0);
}
double konec_bloku(const QTextDocument& text, const QTextBlock& blok) {
    if (const int radku = blok.layout()->lineCount(); radku > 0) {
        const QTextLine posledni = blok.layout()->lineAt(radku - 1);
        return text.documentLayout()->blockBoundingRect(blok).top() + posledni.y() + posledni.height();
    }
    return text.documentLayout()->blockBoundingRect(blok).bottom();
}

// The layout does not draw all of what stands behind a change at its new place.
void rozloz_znovu(QTextDocument& text) {
    text.markContentsDirty(0, text.characterCount());
}

void na_novou_stranu(const QTextBlock& blok) {
    QTextBlockFormat f;
    f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(blok).mergeBlockFormat(f);
}

bool je_nadpis(const QTextBlock& blok) {
    return blok.isValid() && blok.blockFormat().headingLevel() > 0;
}

// Where a row of a table begins and ends.
struct MistoRadku {
    double od = 1e9, po = 0;
    bool je_cely() const { return strana(od) == strana(po - 1); }
};
MistoRadku misto_radku(const QTextDocument& text, const QTextTable& tabulka, int radek) {
    MistoRadku misto;
    for (int sloupec = 0; sloupec < tabulka.columns(); ++sloupec) {
        const QTextTableCell bunka = tabulka.cellAt(radek, sloupec);
        misto.od = std::min(misto.od, zacatek(text, bunka.firstCursorPosition().block()));
        misto.po = std::max(misto.po, konec_bloku(text, bunka.lastCursorPosition().block()));
    }
    return misto;
}

// The row goes to the next page, whole.
void odsun_radek(const QTextTable& tabulka, int radek, double od) {
    const double zbyva = (strana(od) + 1) * kVyskaStrany - od;
    for (int sloupec = 0; sloupec < tabulka.columns(); ++sloupec) {
        QTextTableCell bunka = tabulka.cellAt(radek, sloupec);
        QTextTableCellFormat f = bunka.format().toTableCellFormat();
        f.setTopPadding(zbyva + tabulka.format().cellPadding());
        bunka.setFormat(f);
    }
}

// No row is parted.
void drz_radky(QTextDocument& text, const QTextTable& tabulka) {
    for (int radek = 0; radek < tabulka.rows(); ++radek) {
        const MistoRadku misto = misto_radku(text, tabulka, radek);
        if (misto.je_cely() || misto.po - misto.od > kVyskaStrany / 2)
            continue;
        odsun_radek(tabulka, radek, misto.od);
        rozloz_znovu(text);
    }
}

// A heading stays with what it is the heading of, and what leads to a table with the table's first row.
void drz_s_dalsim(QTextDocument& text, const QTextBlock& blok) {
    QTextBlock pod = blok.next();
    while (je_nadpis(pod))
        pod = pod.next();
    if (!pod.isValid())
        return;
    const auto* tabulka = QTextCursor(pod).currentTable();
    if (!je_nadpis(blok) && tabulka == nullptr)
        return;
    const double potreba =
        tabulka != nullptr && tabulka->rows() > 1
            ? misto_radku(text, *tabulka, 1).po
            : std::max(konec_radku(text, pod),
                       zacatek(text, pod) + kNaRadky * QFontMetricsF(text.defaultFont()).height());
    if (strana(konec_bloku(text, blok) - 1) == strana(potreba - 1))
        return;
    QTextBlock prvni = blok; // with its headings
    while (je_nadpis(prvni.previous()))
        prvni = prvni.previous();
    na_novou_stranu(prvni);
    rozloz_znovu(text);
}

// A picture that would be parted goes to the next page, whole.
void drz_obrazek(QTextDocument& text, const QTextBlock& blok) {
    if (!blok.text().contains(QChar::ObjectReplacementCharacter) ||
        strana(zacatek(text, blok)) == strana(konec_radku(text, blok) - 1))
        return;
    na_novou_stranu(blok);
    rozloz_znovu(text);
}

// Each thing that moves moves what lies behind it, so that they are looked at from the first to the last.
void drz_pohromade(QTextDocument& text) {
    const QTextTable* posledni = nullptr;
    for (QTextBlock b = text.begin().next(); b.isValid(); b = b.next()) {
        const QTextTable* tabulka = QTextCursor(b).currentTable();
        if (tabulka == nullptr) {
            drz_obrazek(text, b);
            drz_s_dalsim(text, b);
        } else if (tabulka != posledni) {
            posledni = tabulka;
            drz_radky(text, *tabulka);
        }
    }
}

std::unique_ptr<QTextDocument> prazdny_text(QPdfWriter& pdf) {
    auto text = std::make_unique<QTextDocument>();
    QFont pismo(QStringLiteral("DejaVu Sans"));
    pismo.setPointSizeF(kVelikostPisma);
    text->setDefaultFont(pismo);
    text->setUndoRedoEnabled(false);
    text->documentLayout()->setPaintDevice(&pdf);
    text->setDocumentMargin(0);
    return text;
}

void dej_na_strany(QTextDocument& text, Sazba& sazba) {
    sazba.chybi += uprav_obrazky(text, sazba.slozka, kSirkaStrany - 8, kBodObrazku, 0);
    text.setPageSize({kSirkaStrany, kVyskaStrany});
}

// The text from one chapter heading to the next one; the first part stands before all chapters.
QStringList po_kapitolach(const QString& markdown) {
    QStringList casti(QString{});
    for (const QString& radek : markdown.split(u'\n')) {
        if (radek.startsWith(QStringLiteral("## ")))
            casti += QString();
        casti.back() += radek + u'\n';
    }
    return casti;
}

// `od`: where the chapter before it has ended, from the top of its page.
std::unique_ptr<QTextDocument> vysaz(const QString& markdown, double od, Sazba& sazba) {
    auto text = prazdny_text(sazba.pdf);
    rozloz_prirucku(*text, markdown);
    uprav_tabulky(*text, kTenka);
    QTextCursor kam(text.get());
    kam.insertBlock();
    kam.movePosition(QTextCursor::Start);
    QTextBlockFormat misto;
    misto.setLineHeight(std::max(1.0, od), QTextBlockFormat::FixedHeight);
    kam.setBlockFormat(misto);
    QTextBlockFormat bez_mezery = text->begin().next().blockFormat();
    bez_mezery.setTopMargin(0);
    QTextCursor(text->begin().next()).setBlockFormat(bez_mezery);
    dej_na_strany(*text, sazba);
    drz_pohromade(*text);
    return text;
}

// --- title page and contents

struct PolozkaObsahu {
    QString text;
    int strana;
};

void pridej_odstavec(QTextCursor& kam, const QString& co, double velikost, double nahore) {
    QTextBlockFormat mezera;
    mezera.setLineHeight(nahore, QTextBlockFormat::FixedHeight);
    kam.setBlockFormat(mezera);
    kam.insertBlock();
    QTextBlockFormat f;
    f.setAlignment(Qt::AlignHCenter);
    QTextCharFormat pismo;
    pismo.setFontPointSize(velikost);
    pismo.setFontWeight(velikost > 20 ? QFont::Bold : QFont::Normal);
    kam.setBlockFormat(f);
    kam.insertText(co, pismo);
    kam.insertBlock();
}

std::unique_ptr<QTextDocument> titul_a_obsah(const JazykPdf& jazyk, const std::vector<PolozkaObsahu>& obsah,
                                             Sazba& sazba) {
    auto text = prazdny_text(sazba.pdf);
    QTextCursor kam(text.get());
    pridej_odstavec(kam, QStringLiteral("KPS RVZ TESK"), 34, kVyskaStrany / 6);
    pridej_odstavec(kam, jazyk.titul, 18, 8);
    pridej_odstavec(kam, {}, kVelikostPisma, kVyskaStrany / 12);
    QTextBlockFormat stred;
    stred.setAlignment(Qt::AlignHCenter);
    kam.setBlockFormat(stred);
    QTextImageFormat obrazek;
    obrazek.setName(QStringLiteral("obrazky/titul.png"));
    kam.insertImage(obrazek);
    kam.insertBlock();
    pridej_odstavec(kam, jazyk.verze, 11, kVyskaStrany / 12);
    QTextBlockFormat f;
    f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    f.setBottomMargin(12);
    QTextCharFormat pismo;
    pismo.setFontPointSize(16);
    pismo.setFontWeight(QFont::Bold);
    kam.setBlockFormat(f);
    kam.insertText(jazyk.obsah, pismo);
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellPadding(2.5);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 100 - kSloupecCisla),
                                      QTextLength(QTextLength::PercentageLength, kSloupecCisla)});
    const QTextTable* tabulka = kam.insertTable(static_cast<int>(obsah.size()), 2, format);
    for (int i = 0; i < tabulka->rows(); ++i) {
        const PolozkaObsahu& polozka = obsah[static_cast<std::size_t>(i)];
        tabulka->cellAt(i, 0).firstCursorPosition().insertText(polozka.text);
        QTextCursor cislo = tabulka->cellAt(i, 1).firstCursorPosition();
        QTextBlockFormat vpravo;
        vpravo.setAlignment(Qt::AlignRight);
        cislo.setBlockFormat(vpravo);
        cislo.insertText(QString::number(polozka.strana));
    }
    dej_na_strany(*text, sazba);
    return text;
}

// --- the pages

// Every chapter behind the one before it, from page `prvni` on; the contents with them.
std::vector<Kapitola> vysaz_vse(const QString& markdown, int prvni, std::vector<PolozkaObsahu>& obsah,
                                Sazba& sazba) {
    std::vector<Kapitola> kapitoly;
    double od = 0;
    int stranka = prvni;
    for (const QString& cast : po_kapitolach(markdown)) {
        if (cast.trimmed().isEmpty())
            continue;
        if (od > kVyskaStrany - kPodKapitolu) {
            od = 0;
            ++stranka;
        }
        kapitoly.push_back({vysaz(cast, od, sazba), stranka});
        const QTextDocument& text = *kapitoly.back().text;
        for (const NadpisPrirucky& n : nadpisy_prirucky(text))
            obsah.push_back({n.text, stranka + strana(zacatek(text, text.findBlockByNumber(n.blok))) + 1});
        const double konec = konec_bloku(text, text.lastBlock());
        od = std::fmod(konec, kVyskaStrany) + kMezeraKapitol;
        stranka += strana(konec);
    }
    return kapitoly;
}

void kresli_stranu(QPainter& p, const Kapitola& kapitola, int kolikata) {
    const int i = kolikata - kapitola.prvni_strana;
    if (i < 0 || i >= kapitola.text->pageCount())
        return;
    p.save();
    p.translate(kOkraj, kOkraj - i * kVyskaStrany);
    QAbstractTextDocumentLayout::PaintContext jak;
    jak.palette.setColor(QPalette::Text, Qt::black);
    jak.clip = QRectF(0, i * kVyskaStrany, kSirkaStrany, kVyskaStrany);
    // what begins on the next page may be rounded into this one
    p.setClipRect(jak.clip.adjusted(0, 0, 0, -1));
    kapitola.text->documentLayout()->draw(&p, jak);
    p.restore();
}

void kresli_patu(QPainter& p, const Kapitola& kapitola, const JazykPdf& jazyk, int kolikata) {
    QFont pismo = kapitola.text->defaultFont();
    pismo.setPointSizeF(kVelikostPisma - 1.5);
    p.setFont(pismo);
    p.setPen(kTenka.darker(140));
    const QRectF pata(kOkraj, kOkraj + kVyskaStrany + kOkraj / 4, kSirkaStrany, kOkraj / 2);
    p.drawText(pata, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("KPS RVZ TESK: ") + jazyk.titul);
    p.drawText(pata, Qt::AlignRight | Qt::AlignVCenter, jazyk.strana + u' ' + QString::number(kolikata + 1));
}

} // namespace

bool vytvor_pdf(const QString& markdown, const QString& pdf_soubor, const JazykPdf& jazyk) {
    QFile zdroj(markdown), vystup(pdf_soubor);
    if (!zdroj.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde přečíst\n", qPrintable(markdown));
        return false;
    }
    if (!vystup.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde zapsat\n", qPrintable(pdf_soubor));
        return false;
    }
    QPdfWriter pdf(&vystup);
    pdf.setTitle(QStringLiteral("KPS RVZ TESK: ") + jazyk.titul);
    pdf.setCreator(QStringLiteral("KPS RVZ TESK"));
    pdf.setResolution(kRozliseni);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF());
    Sazba sazba{pdf, QFileInfo(markdown).absolutePath(), {}};
    constexpr int kStranPredTextem = 2; // the title and the contents
    std::vector<PolozkaObsahu> obsah;
    std::vector<Kapitola> kapitoly =
        vysaz_vse(QString::fromUtf8(zdroj.readAll()), kStranPredTextem, obsah, sazba);
    kapitoly.insert(kapitoly.begin(), {titul_a_obsah(jazyk, obsah, sazba), 0});
    if (kapitoly.front().text->pageCount() > kStranPredTextem) {
        std::fprintf(stderr, "tesk-navod: obsah se nevejde na jednu stranu\n");
        return false;
    }
    if (!sazba.chybi.isEmpty()) {
        std::fprintf(stderr, "tesk-navod: chybí obrázky %s\n", qPrintable(sazba.chybi.join(u' ')));
        return false;
    }
    const int stran = kapitoly.back().prvni_strana + kapitoly.back().text->pageCount();
    QPainter p(&pdf);
    p.setRenderHint(QPainter::LosslessImageRendering); // few colours and sharp edges
    for (int i = 0; i < stran; ++i) {
        if (i > 0)
            pdf.newPage();
        for (const Kapitola& k : kapitoly)
            kresli_stranu(p, k, i);
        if (i > 0) // the title has no number
            kresli_patu(p, kapitoly.front(), jazyk, i);
    }
    return true;
}
