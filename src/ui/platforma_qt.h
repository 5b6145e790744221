// ui/platforma_qt.h - the world outside, as the window system gives it.
#pragma once

#include "zaklad/text.h"

#include <QString>

#include <functional>

class QDialog;
class QIODevice;
class QWidget;

// Fills `platforma`. Called once, when the application object stands.
void zapln_platformu();

// The folder that the program writes into, as the core names it; what came with the program lies there or
// behind it.
Text slozka_programu();

// The display cannot be reached: what to do about it, in Czech, for the terminal.
const char* rada_bez_obrazovky();

// --- by the windows beside the desk, outside the core

// Time stands while the dialogue is open. True when it was accepted.
bool proved_dialog(QDialog& dialog);
// A box with that text.
void ukaz_zpravu(const QString& text);

// Asks for a file of one kind in a folder: its title, the kind as the window system writes it and as the list
// of files calls it. Empty when none was chosen.
struct DotazNaSoubor {
    QString titul, slozka, druh, nazev_druhu;
};
QString vyber_soubor(QWidget* nad, const DotazNaSoubor& dotaz);

// How a dialogue for saving begins: its title, the name that it proposes, the kinds of files in the window
// system's own way of writing them, the first one first.
struct NavrhSouboru {
    QString titul, jmeno, druhy;
};
// Asks where to and writes there with `zapis`, which is told the ending of the name in small letters and
// answers whether it could. A file of that name is replaced by a whole new one or stays; a disk that does not
// take it is told.
void uloz_jako(const NavrhSouboru& navrh,
               const std::function<bool(QIODevice& soubor, const QString& pripona)>& zapis);
