// ui/lekce.h - a lesson at the desk: the guide, its panel and its frames together.
//
// The guide (lekce/pruvodce.h) looks on; all that is done here to the simulation are the desk's own means:
// the service stands while a text is read as it does under the manual, and a step is tried again by turning
// time back.
#pragma once

#include "ui/panel_lekce.h"

#include <QPainter>
#include <QRect>
#include <QString>

#include <vector>

class HlavniOkno;

// --- once the desk is shown

// The one that was chosen on the start screen, if any.
void zacni_chystanou_lekci(HlavniOkno& stul);

// --- by the desk

// After each look at the core.
void obnov_lekci(HlavniOkno& stul);
// The keys go to the panel of the lesson, or back to the desk. One that was left can be gone on with; without
// any it is told where they begin.
void klavesa_lekce(HlavniOkno& stul);
// Frames round the places, on the desk's picture. Device pixels.
void nakresli_znacky(QPainter& p, const HlavniOkno& stul);

// --- at any time, without change

// What is pointed at, for a look over the screens.
struct UkazanaLekce {
    int krok = -1;   // -1: no lesson
    int udelano = 0; // acts of it
    QString nadpis, ukon, polozka, potiz, receno;
    bool cte_se = false;
    std::vector<QRect> mista;            // that it is the turn of; device pixels of the screen
    QRect panel;                         // likewise
    std::vector<TlacitkoLekce> tlacitka; // that can be pressed, likewise
};
UkazanaLekce ukazana_lekce();
