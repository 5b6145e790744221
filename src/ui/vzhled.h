// ui/vzhled.h - the look of the windows beside the desk: the start screen, boxes, dialogues, menus, tips.
//
// Their lengths are written for a screen of the desk's own size and are multiplied: those of the start screen
// by the measure of the screen, those over the desk by the desk's own, so that a tip is as large as the
// captions that it explains.
#pragma once

#include <QRect>
#include <QString>

class QPainter;

// --- at start, and when another palette is chosen

// Colours and style of all windows.
void nastav_vzhled();

// --- when the desk has got another size

// Letters and paddings of boxes, dialogues and tips, from now on; below 1 they stay at 1.
void nastav_meritko_oken(double krat);

// --- at any time

// How many times larger than on the desk's own screen a window may be on this one.
double meritko_obrazovky();
// A small triangle at the right edge of what opens a list; `krat`: the scale of the window.
void nakresli_sipku(QPainter& p, const QRect& kde, double krat);
// A style sheet with all its lengths but hair lines multiplied, and its colours from the palette.
QString zvetseny_styl(const char* styl, double krat);
// Text of a tip: a note may hold signs that would be taken for a layout.
QString bez_rozvrzeni(const QString& text);
