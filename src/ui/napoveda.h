// ui/napoveda.h - what the pointer tells when it rests: names, notes, and what a sign or a command is for.
#pragma once

#include "desk/menu.h"
#include "ui/platno.h"

#include <QString>

// --- at any time, without change

// Name of the element, the notes on it, or what it is for; empty when there is nothing to tell. Why a route
// waits is asked for apart (cesty/duvod.h).
QString napoveda_prvku(const Nalezeny& kde);
// Of what takes no input and yet needs a word: the caption that holds the place in twips; none is an empty
// text.
QString napoveda_popisku(QPoint twipy);
// Chapter of the manual that tells of an element, of a command of a menu.
namespace kapitoly {
inline constexpr int prvnich_deset_minut = 0; // it has no number
inline constexpr int spusteni = 1, prihlaseni = 2, hodiny = 3, prikazovy_radek = 4, klavesy = 5, panel = 6,
                     znacky = 7, volba = 8, privolavaci = 10, zasobnik = 11, ruseni = 12, vyhybky = 13,
                     prejezdy = 14, souhlasy = 15, automat = 16, makra = 17, vlaky = 18, technologie = 19,
                     nakres = 21, vypravci = 22, smena = 23, hodnoceni = 24, hlaseni = 26;
} // namespace kapitoly
int kapitola_prvku(Druh druh);
int kapitola_povelu(TextPohled povel);
// What a command of a menu does; empty for trains and series.
const char* vyklad_povelu(const PolozkaMenu& polozka);
