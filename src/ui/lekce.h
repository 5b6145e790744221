// ui/lekce.h - lessons at the desk: the panel that tells the step, the frames round the places to be clicked,
// and the choice of a lesson on the start screen.
//
// The guide (lekce/pruvodce.h) looks on; all that is done here to the simulation are the desk's own means:
// the service stands while a text is read as it does under the manual, and a step is tried again by turning
// time back.
#pragma once

#include <QPainter>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class HlavniOkno;

// --- on the start screen

// The lessons with their length and what has been done of them. `spust` gets the start command of the chosen
// one: true when the simulation has been prepared.
void ukaz_vyber_lekci(QWidget* rodic, const std::function<void(const std::function<bool()>&)>& spust);
// The simulation that is being prepared is a lesson: nobody else takes the desk at its start.
bool chysta_se_lekce();

// --- once the desk is shown

void zacni_chystanou_lekci(HlavniOkno& stul);

// --- by the desk

// After each look at the core.
void obnov_lekci(HlavniOkno& stul);
// The keys go to the panel of the lesson, or back to the desk; without a lesson it is told where they begin.
void klavesa_lekce(HlavniOkno& stul);
// Frames round the places, on the desk's picture; an arrow towards those that the magnifying glass does not
// show. Device pixels.
void nakresli_znacky(QPainter& p, const HlavniOkno& stul);

// --- at any time, without change

// What is pointed at, for a look over the screens.
struct UkazanaLekce {
    int krok = -1;   // -1: no lesson
    int udelano = 0; // acts of it
    QString nadpis, ukon, polozka, potiz;
    bool cte_se = false;
    std::vector<QRect> mista; // that it is the turn of; device pixels of the screen
    QRect dal;                // the button that goes on, likewise; empty when hidden
};
UkazanaLekce ukazana_lekce();
