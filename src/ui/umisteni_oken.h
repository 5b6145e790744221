// ui/umisteni_oken.h - how large the windows beside the desk are and where they stand.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

// How many times larger than on the desk's own screen a window may be on one of this size, so that it can be
// read from as far away: 1, 1.25, 1.5, ... A window that fits the screen of the desk fits this one.
double meritko_pro_obrazovku(QSize obrazovka);

// Where a window stands that tells of a place of the desk: where it is, or at the other side of the area,
// when it would cover the place there. Its left upper corner.
QPoint misto_stranou(const QRect& okno, const QRect& plocha, const QRect& cil);

// Where a panel that tells of places stands within the area: over none of them, else over as few as may be,
// and over as few of the signs as may be. Its left upper corner; a panel larger than the area stands at its
// beginning.
QPoint misto_panelu(QSize panel, const QRect& plocha, const std::vector<QRect>& mista,
                    const std::vector<QPoint>& znacky);
// How many of the places the panel covers.
int zakryje_mist(const QRect& panel, const std::vector<QRect>& mista);
