// ui/paleta.h - the colours of the screen: those of the core as they are, or in a palette that the operator
// has chosen for his eyes. No attribute of an element changes, only what it looks like.
//
// The ordinary palette shows each colour as it stands in the element. In the one of high contrast every text
// stands out from its ground by 4.5 to 1 at least. In the one for the colour-blind the states of tracks and
// signals tell themselves by their lightness too, whatever the eye makes of the hue, and by their form.
#pragma once

#include "relief/prvek.h"

#include <QColor>
#include <QString>

#include <array>
#include <span>

enum class Paleta : std::uint8_t { obvykla, kontrastni, bez_barev };
inline constexpr std::size_t kPalet = 3;
// As menus and boxes call them.
QString jmeno_palety(Paleta ktera);

// How far the light of two colours stands apart, as the eye sees it: 1 for the same, 21 for black and white.
double kontrast(const QColor& a, const QColor& b);
inline constexpr double kKontrastTextu = 4.5;

// --- at start, and on the operator's choice

void nastav_paletu(Paleta nova);

// --- at any time, without change

Paleta paleta();

// Of a line, a sign or a text.
QColor barva_qt(Barva barva);
// Of the ground under a text.
QColor podklad_qt(Barva barva);
// Of a ground that the view has by itself, as the bars and the maintenance screens.
QColor plocha_qt(QRgb barva);
// Colour for a text that the core gives these two: itself where it can be read there, else white or black.
// In the ordinary palette always itself.
Barva barva_pisma(Barva pismo, Barva podklad);

// Station names and platforms, which have the grey of a free track, tell themselves from tracks.
QColor barva_jmena(Barva barva);
QColor barva_nastupiste(Barva barva);

// --- the windows beside the desk: one look for the start screen, menus, boxes, lists and tips

enum class BarvaOkna : std::uint8_t {
    plocha,   // ground of a window
    pole,     // of fields and lists
    tlacitko, // of buttons
    nabidka,  // of menus
    udaj,     // of lines in a menu that only tell something
    text,
    nadpis,  // titles of groups, what has the focus
    tlumeny, // notes beside
    nelze,   // what cannot be chosen
    vybrane, // ground of what is picked
    text_vyberu,
    cara,  // frames
    start, // ground of the button that starts
    tip,   // ground of tips
    text_tipu,
};
inline constexpr std::size_t kBarevOken = 15;

QColor barva_okna(BarvaOkna ktera);
// A style sheet in which "@pole" and the like have become colours of the palette.
QString obarveny_styl(const QString& styl);

// A text of a window and its ground.
struct DvojiceOkna {
    BarvaOkna pismo, podklad;
};
// All that the windows have.
std::span<const DvojiceOkna> dvojice_oken();
