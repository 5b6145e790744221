// ui/znacky_lekce.h - what a lesson points at: frames round the places on the desk's picture, an arrow
// towards those that the magnifying glass does not show, a frame round the entry of an open menu.
//
// A frame comes and goes a few times a second, so what is kept here is only what was drawn last.
#pragma once

#include "lekce/pruvodce.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QRect>
#include <QRegion>

#include <vector>

class HlavniOkno;

class ZnackyLekce {
public:
    ZnackyLekce() { od.start(); }

    // --- with each picture of the desk

    // These places from now on, those that the desk has not left out; has the desk drawn anew where something
    // differs.
    void obnov(HlavniOkno& stul, std::vector<lekce::Misto> nove);
    void nakresli(QPainter& p, const HlavniOkno& stul) const; // device pixels

    // --- at any time, without change

    // Where what is shown of the places stands, pixels of the window.
    std::vector<QRect> v_okne(const HlavniOkno& stul) const;
    // Likewise of those whose turn it is, device pixels of the window; empty ones are beyond the glass.
    std::vector<QRect> ted(const HlavniOkno& stul) const;

private:
    std::vector<lekce::Misto> mista;
    QRegion oblast; // as it was drawn; device pixels
    bool silne = false;
    QElapsedTimer od;
};

// Pixels of the window from those of the device.
QRect v_bodech_okna(const HlavniOkno& stul, const QRect& body);
// The band of the tracks; device pixels of the picture.
QRect pas_kolejiste(const HlavniOkno& stul);
// The entry of that name is framed in the open menu; of a submenu that is not open the one that opens it.
// Empty: none.
void obnov_ramecek_polozky(const Text& jmeno);
