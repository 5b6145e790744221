// ui/ukazatel_stolu.h - the pointer over the desk: where it is, what it is on, and where the core puts it.
#pragma once

#include "ui/obraz_stolu.h"
#include "zaklad/platforma.h"

#include <QPainter>
#include <QWidget>

#include <optional>

class UkazatelStolu {
public:
    UkazatelStolu(QWidget& okno_, ObrazStolu& stul_) : okno(okno_), stul(stul_) {}

    // --- when it has moved, or something under it

    // Tells the core what lies under the place of the window.
    void najed(QPointF misto);
    // What lay under the pointer of the one whose shift is watched.
    void ukaz_ruku_zaznamu();

    // --- in place of a hand

    // Twips of the picture.
    void presun(QPoint kam);
    // To the next element that takes input, if there is one that way.
    void presun_k_sousedovi(QPoint smer);
    // Pixels of the desk.
    void nastav_na_stole(Bod kam);
    Bod na_stole();

    // --- at any time, without change

    // In the window, the middle of its pixel.
    QPointF misto() const;
    // The element that the core was told of.
    const std::optional<Nalezeny>& nad() const { return najety; }
    // The outline of what it is on; device pixels.
    void nakresli(QPainter& p) const;

private:
    void zmen_najety(const std::optional<Nalezeny>& kde);

    QWidget& okno;
    ObrazStolu& stul;
    std::optional<Nalezeny> najety;
    // The place that was read last, on the desk and in the picture: a step from it is a step on the screen.
    struct Cteni {
        Bod stul;
        QPoint obraz;
    };
    std::optional<Cteni> cteni;
};
