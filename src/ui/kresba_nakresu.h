// ui/kresba_nakresu.h - the time-distance diagram on a device: a window, a page of paper.
#pragma once

#include "nakres/obraz.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRegion>

#include <vector>

// Colour of a shape in the operator's palette, on paper as paper has it. `kryti`: how much of its ground it
// hides, 0 to 1. In the palette of high contrast lines and letters hide more, in the one for the colour-blind
// the groups of trains have colours that every eye tells apart.
QColor barva_nakresu(RoleNakresu role, bool papir, double kryti = 1);

// Paints a picture; its pixels are the painter's units. `papir`: in the colours of paper.
void nakresli_obraz(QPainter& p, const ObrazNakresu& obraz, bool papir);

// The picture of a window. Of each new one only what differs from the last one is painted: a train that runs
// on changes some pixels before the present, and a picture that moves over time is moved as it is.
class PlatnoObrazu {
public:
    // Takes the picture over, `pomer` device pixels to one of its own. Answers with what has changed, in
    // device pixels.
    QRegion obnov(ObrazNakresu novy, double pomer);
    const QImage& plocha() const { return plocha_; }
    const ObrazNakresu& obraz() const { return obraz_; }

private:
    QRegion zmeneno(const ObrazNakresu& novy, const std::vector<QRectF>& nove_meze, double posun) const;
    void prekresli(const QRegion& co);
    int posun_casu(const ObrazNakresu& novy) const;

    QImage plocha_;
    ObrazNakresu obraz_;
    std::vector<QRectF> meze_; // of each shape, what it may cover
    double pomer_ = 0;
};
