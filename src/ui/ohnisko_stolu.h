// ui/ohnisko_stolu.h - the focus of the keys: the desk as a whole, one of the panel's buttons, or the list
// below them.
#pragma once

#include "ui/obraz_stolu.h"

#include <QPainter>
#include <QWidget>

#include <cstddef>
#include <optional>

class OhniskoStolu {
public:
    OhniskoStolu(QWidget& okno_, const ObrazStolu& stul_) : okno(okno_), stul(stul_) {}

    // --- on the operator's command

    void zaostri(std::optional<Druh> tlacitko);
    // To the next place or the one before; `seznam`: the list that is open, null when none is.
    void presun(bool dalsi, QWidget* seznam);

    // --- after each look at the core

    // A new delay brings the keys to the button of the messages, unless `smi` says that they stay.
    void obnov(bool smi);

    // --- at any time, without change

    // The panel's button that the space bar presses.
    const std::optional<Druh>& tlacitko() const { return na_tlacitku; }
    // Device pixels.
    void nakresli(QPainter& p) const;

private:
    QWidget& okno;
    const ObrazStolu& stul;
    std::optional<Druh> na_tlacitku;
    bool zpravy_zelene = false; // as they were at the last look, and how many
    std::size_t zprav = 0;
};
