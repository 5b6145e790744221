// ui/uvod.h - the splash screen: what the operator sees while the simulation is being prepared.
#pragma once

#include "ui/kresba.h"

#include <QPolygon>
#include <QTimer>
#include <QWidget>

class UvodniObrazovka : public QWidget {
public:
    UvodniObrazovka();

protected:
    void paintEvent(QPaintEvent* udalost) override;

private:
    double krat;      // how many times larger than on the desk's own screen
    QTimer sledovani; // of the caption that the loading steps write
    QString popisek;
};

// A station throat with a route set through it, as the desk would show it: the program's sign. The corner
// of its first cell is the corner of the measure.
void nakresli_zhlavi(QPainter& p, const Meritko& m);

// Outline of the window: 30 corners.
QPolygon obrys_uvodu();
