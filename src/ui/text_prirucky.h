// ui/text_prirucky.h - the manual's text laid out: headings with their places, tables, pictures fitted in.
#pragma once

#include <QString>
#include <QStringList>
#include <QTextDocument>

// Text that a picture file carries when it is drawn more densely than the others: by how many times.
inline constexpr const char* kHustotaObrazku = "hustota";

// A heading of the first or second level.
struct NadpisPrirucky {
    QString text;
    int blok = 0; // number of its block in the document
};

// Takes the text in Markdown; false when the file cannot be read. Pictures are named from its folder.
bool nacti_prirucku(QTextDocument& text, const QString& soubor);
// The same with a text that has been read already.
void rozloz_prirucku(QTextDocument& text, QString markdown);
// Tables take the whole width and have hair lines of the colour.
void uprav_tabulky(QTextDocument& text, const QColor& cara);
// Fits the pictures into the width; `pomer` is what a pixel of theirs measures in the document. They are
// scaled for a screen of so many device pixels to one of the document, or left for the printer with 0.
// Answers with the names of those that are missing.
QStringList uprav_obrazky(QTextDocument& text, const QString& slozka, double sirka, double pomer,
                          double bodu);
// The chapters in their order.
QList<NadpisPrirucky> nadpisy_prirucky(const QTextDocument& text);
// Wherever the text names a chapter by its number ("kapitola 7", "chapter 7"), the words become a link to it.
void odkazy_na_kapitoly(QTextDocument& text, const QColor& barva);
// Number of the chapter that such a link leads to; -1 for others.
int kapitola_odkazu(const QString& odkaz);
