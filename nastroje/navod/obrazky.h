// nastroje/navod/obrazky.h - the pictures of the manual: the desk as the program itself draws it, with
// numbers, arrows and frames on it.
//
// They are described by a script of the headless runner (docs/davka.md) with eight commands more:
//
//   obraz JMENO X Y SIRKA VYSKA KRAT   begins a picture: that part of the desk, as it stands now, in pixels
//                                      of the desk, so many times larger; it ends at the next line that is
//                                      no `cislo`
//   okenko FILM X Y SIRKA VYSKA KRAT   the same as the next frame of a film strip, written at the end
//   detail JMENO DRUH PRVEK X Y        a picture of one element and so much around it to the sides and above
//                                      and below, pixels of the desk
//   formular JMENO                     the start screen as it stands; before the start
//   nabidka JMENO                      the menu that is open; it is closed
//   okno JMENO KTERE [X Y S V]         the desk as a window (stul), or one beside it: the dispatcher's
//                                      (vypravci), that of the shift (smena), the assessment (hodnoceni);
//                                      all of it or that part, in pixels of the window
//   nakres JMENO TRAT OD DO S V        the time-distance diagram of that line (data/tesk.kor), from so many
//   minutes
//                                      before now to so many after it, on so many pixels
//   cislo N DRUH PRVEK DX DY           on it: the number N in a disc, so far from the middle of the element,
//                                      an arrow to the element and a frame around it
#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <string>

// Takes a picture under its name; answers with what went wrong, empty when nothing did.
using ObrazekHotov = std::function<std::string(const QString& jmeno, const QImage& obraz)>;

// Draws all the pictures; false when the script is wrong or a picture is not taken, with the reason on the
// standard error.
bool nakresli_obrazky(const QString& skript, const std::string& instalace, const ObrazekHotov& hotov);
