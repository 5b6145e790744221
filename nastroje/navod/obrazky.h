// nastroje/navod/obrazky.h - the pictures of the manual: the desk as the program itself draws it, with
// numbers, arrows and frames on it.
//
// They are described by a script of the headless runner (docs/davka.md) with three commands more:
//
//   obraz JMENO X Y SIRKA VYSKA KRAT   begins a picture: that part of the desk, as it stands now, in pixels
//   of
//                                      the desk, so many times larger; it ends at the next line that is no
//                                      `cislo`
//   cislo N DRUH PRVEK DX DY           on it: the number N in a disc, so far from the middle of the element,
//   an
//                                      arrow to the element and a frame around it
//   znacka JMENO KOD ... BARVA         a picture of signs of the relief alone, by their codes
#pragma once

#include <QString>

#include <string>

// Makes all the pictures in the folder; false when the script is wrong, with the reason on the standard
// error.
bool nakresli_obrazky(const QString& skript, const std::string& instalace, const QString& slozka);
