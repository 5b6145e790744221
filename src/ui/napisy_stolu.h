// ui/napisy_stolu.h - labels that the view lays over the picture of the desk, and that are no elements of it:
// the prompt that has no room on the command line, the sign of the automatic dispatcher, why the train on the
// bottom panel waits, how many times the tracks are enlarged.
#pragma once

#include "obsluha/volba.h"
#include "ui/obraz_stolu.h"

#include <QPainter>
#include <QWidget>

#include <array>
#include <optional>

class NapisyStolu {
public:
    NapisyStolu(QWidget& okno_, const ObrazStolu& stul_) : okno(okno_), stul(stul_) {}

    // After each look at the core.
    void obnov();

    // --- at any time, without change

    bool je_nad_znackou_vypravciho(QPointF misto) const;
    // Device pixels.
    void nakresli(QPainter& p) const;

private:
    QWidget& okno;
    const ObrazStolu& stul;
    std::optional<Vyzva> vyzva;
    std::array<Prvek, 2> vypravciho; // his sign, and why the shown train waits
};
