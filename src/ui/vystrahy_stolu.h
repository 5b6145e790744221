// ui/vystrahy_stolu.h - the alarms on the desk: their row, the place that one leads to, and the menu that
// tells them to those who have no mouse. The view alone: nothing of it is an act of the operator's hands.
#pragma once

#include "ui/obraz_stolu.h"
#include "ui/rada_vystrah.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QWidget>

#include <optional>

class QMenu;

class VystrahyStolu {
public:
    VystrahyStolu(QWidget& okno, ObrazStolu& stul);

    // --- after each look at the core

    void obnov();

    // --- on the operator's command

    // The row, or nothing, from now on and at the next start.
    void nastav_radu(bool ano);
    // The place of the alarm comes into sight and flashes for a moment, and what is told of it stands there.
    void ukaz(const Vystraha& v);
    // Entries that lead to the alarms, and one for the row.
    void vypis_do(QMenu& nabidka);

    // --- at any time, without change

    const RadaVystrah& rada() const { return v_rade; }
    QRect misto_rady() const; // twips of the picture
    // Device pixels.
    void nakresli(QPainter& p) const;

private:
    struct Ukazani {
        QRect misto; // as it was when it was led to; twips of the picture
        QElapsedTimer od;
        bool sviti = true;
    };

    void obnov_radu();
    void obnov_ukazani();
    QRect misto_prvku(const Vystraha& v) const;
    QRect okoli_ukazaneho() const;

    QWidget& okno;
    ObrazStolu& stul;
    RadaVystrah v_rade;
    QRect videne_misto; // of the row, at the last look
    bool s_radou;
    QElapsedTimer od_pohledu; // since they were looked at
    std::optional<Ukazani> ukazani;
};
