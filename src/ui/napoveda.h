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
// What a command of a menu does; empty for trains and series.
const char* vyklad_povelu(const PolozkaMenu& polozka);
