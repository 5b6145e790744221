// ui/pismo.h - the screen font: its glyphs as pictures, placed cell by cell.
//
// Captions of the relief are glyph codes of the font "KPS Core Font" (data\kps.fon): such a caption takes
// the characters U+E000 + code. All other texts are letters and take their Unicode. The same bytes can
// mean either, so whoever draws a text says which (Znaky).
//
// The font's cell is 8 by 13 pixels of the desk. Each glyph is drawn once for every size and colour and
// kept as a small picture; a text is then a row of copies.
#pragma once

#include "relief/prvek.h"
#include "ui/paleta.h"
#include "zaklad/text.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QString>

inline constexpr int kSirkaBunky = 8, kVyskaBunky = 13; // pixels of the desk

enum class Znaky : std::uint8_t {
    pismena, // code page 1250
    znacky,  // glyph codes of the relief
};

// --- at start

// Takes the font from the file. Without it captions are drawn with a monospaced font of the system, the
// signs of the relief stay blank; false then.
bool nacti_pismo(const QString& soubor);

// --- at any time

// Told where the letters of each line come that kresli_radek draws: for a look over the screens that measures
// them. Nobody is told in service.
extern void (*sleduj_radek)(const QPainter& p, const QRectF& kde, TextPohled text);

QString na_qstring(TextPohled text);
Text z_qstring(const QString& text);

// Font for fields and lists, `vyska` device pixels high.
QFont pismo_poli(double vyska);

// Draws one line, the cell at (x, y) and each next `sirka` further; `vyska` is the height of the cell.
// All in pixels of the painter, which may be fractions: cells are put on whole pixels.
void kresli_radek(QPainter& p, double x, double y, double sirka, double vyska, TextPohled text,
                  const QColor& barva, Znaky znaky);
// The same in a colour of the core, as the palette shows it.
void kresli_radek(QPainter& p, double x, double y, double sirka, double vyska, TextPohled text, Barva barva,
                  Znaky znaky);
