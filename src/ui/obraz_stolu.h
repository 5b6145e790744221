// ui/obraz_stolu.h - the picture of the desk in its window: where things stand there, and the magnifying
// glass.
//
// The picture itself (ui/platno.h) measures in device pixels. Whoever lays something over it, or asks what
// lies under a place of the window, asks here: places are pixels of the window, twips are those of the
// picture.
#pragma once

#include "ui/platno.h"

#include <QFont>
#include <QPainter>
#include <QWidget>

#include <optional>

class ObrazStolu {
public:
    explicit ObrazStolu(QWidget& okno_) : okno(okno_) {}

    const Platno& platno() const { return obraz; }

    // --- when the window, the drawing or the palette is another one

    // The picture takes the size of the window; `sirka`: of the drawing, twips.
    void umisti(int sirka);
    // All of it is drawn anew.
    void prekresli();

    // --- after each look at the core

    // Draws what has changed and has it shown.
    void obnov();
    // What was found comes into sight when it is first framed.
    void ukaz_hledane();

    // --- the magnifying glass

    void zvetsi(double krat, QPointF misto);
    // Device pixels.
    void posun_lupu(QPoint o_kolik);
    // Brings the place into sight; twips.
    void ukaz(QPoint twipy);

    // --- at any time, without change

    QPoint na_twipy(QPointF misto) const;
    QRect v_okne(const QRect& twipy) const;
    // Middle of the twip, for the pointer.
    QPoint bod_v_okne(QPoint twipy) const;
    QRect misto_prvku(const Nalezeny& kde) const;
    std::optional<Nalezeny> prvek_pod(QPointF misto) const { return obraz.prvek_pod(na_twipy(misto)); }
    // Where the tracks are shown: between the command line and the line of the stack.
    QRect plocha_kolejiste() const;
    // Of the frame around what was searched for; empty when there is none.
    QRect misto_nalezeneho() const;
    // Pixels of the window to a pixel of the desk.
    double meritko() const;
    // Of fields, lists and menus.
    QFont pismo() const;

    // In device pixels; `kde` in those of the window.
    void nakresli(QPainter& p, const QRegion& kde) const;

private:
    QWidget& okno;
    Platno obraz;
    bool hleda_se = false; // the frame of the search is shown
};
