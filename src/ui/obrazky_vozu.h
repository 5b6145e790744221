// ui/obrazky_vozu.h - the pictures of vehicles from DATA\VOZY, at the size of the desk.
#pragma once

#include "zaklad/text.h"

#include <QPixmap>

// Place that the desk has for the picture of a vehicle; a picture of another shape is fitted into it.
inline constexpr int kSirkaObrazkuVozu = 80, kVyskaObrazkuVozu = 32; // pixels of the desk

// The picture of a file name, `meritko` device pixels to a pixel of the desk. Null for a missing or
// faulty file, or a name that is none. Files are read once; the reference holds until the next call.
const QPixmap& obrazek(TextPohled jmeno, qreal meritko);
// Forgets all that was read, so that the files are read anew.
void zapomen_obrazky();
