// ui/uvod.h - the splash screen: what the operator sees while the simulation is being prepared.
#pragma once

#include <QPolygon>
#include <QTimer>
#include <QWidget>

class UvodniObrazovka : public QWidget {
public:
    UvodniObrazovka();

protected:
    void paintEvent(QPaintEvent* udalost) override;

private:
    QTimer sledovani; // of the caption that the loading steps write
    QString popisek;
};

// Outline of the window: 30 corners.
QPolygon obrys_uvodu();
