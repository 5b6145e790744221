// ui/umisteni_oken.h - how large the windows beside the desk are and where they stand.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// How many times larger than on the desk's own screen a window may be on one of this size, so that it can be
// read from as far away: 1, 1.25, 1.5, ... A window that fits the screen of the desk fits this one.
double meritko_pro_obrazovku(QSize obrazovka);

// Where a window stands that tells of a place of the desk: where it is, or at the other side of the area,
// when it would cover the place there. Its left upper corner.
QPoint misto_stranou(const QRect& okno, const QRect& plocha, const QRect& cil);
