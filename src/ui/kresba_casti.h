// ui/kresba_casti.h - what the painters of the elements share, and what each paints. Of no use to others:
// an element is drawn by nakresli_prvek() of ui/kresba.h.
#pragma once

#include "ui/kresba.h"
#include "ui/pismo.h"

#include <cstddef>
#include <cstdint>

// How the elements of a kind are drawn.
enum class Zpusob : std::uint8_t {
    nic,
    kolej,
    most,
    napis,    // one line
    odstavec, // wrapped lines
    radky,    // lines parted by character 13
    nastupiste,
    vyhybka,
    cil,
    lampa,
    znacka,
    stanoviste,
    ikona,
    tlacitko,
    svetlo,
    pruh,
    ramec,
    vuz,
    popis_vozu,
    sberac,
};

struct Styl {
    Druh druh;
    Zpusob zpusob = Zpusob::nic;
    Znaky znaky = Znaky::pismena;
    bool kryje = false; // clears what lies under its characters, also without a frame
    bool vstup = false; // takes the operator's input
    int vrstva = 1;
};
const Styl& styl(Druh druh);

inline constexpr QRgb kLinka = 0xFF3C4550; // frames of the bars, the buttons and the lamps

inline QColor odstin(QRgb barva) {
    return QColor::fromRgb(barva);
}

// Place of an element in device pixels.
inline QRect v_bodech(const Meritko& m, const Prvek& p) {
    return QRect(QPoint(m.x(p.vlevo), m.y(p.nahore)),
                 QPoint(m.x(p.vlevo + p.sirka) - 1, m.y(p.nahore + p.vyska) - 1));
}

// --- tracks (ui/kresba_koleji.cpp)

void nakresli_kolej(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli);
void nakresli_most(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli);
void nakresli_nastupiste(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli);

// --- texts (ui/kresba_napisu.cpp)

// By how much the characters of the element are larger than those of the desk.
int nasobek(const Styl& s, const Prvek& prvek);
// Lines that a text of many takes: parted at character 13, and where `zalamovat` at the width of its element.
std::size_t radku_odstavce(const Prvek& prvek, bool zalamovat);
// Ground of a text that has a frame.
QRect ramec_textu(const Meritko& m, const Styl& s, const Prvek& prvek);
void nakresli_napis(QPainter& p, const Meritko& m, const Styl& s, const Prvek& prvek);
void nakresli_odstavec(QPainter& p, const Meritko& m, const Prvek& prvek, bool zalamovat);
void nakresli_popis_vozu(QPainter& p, const Meritko& m, const Prvek& prvek);

// --- pictures (ui/kresba_obrazku.cpp)

void nakresli_ikonu(QPainter& p, const Meritko& m, Druh druh, const Prvek& prvek);
void nakresli_cil(QPainter& p, const Meritko& m, const Prvek& prvek, const OkoliCary& okoli);
void nakresli_lampu(QPainter& p, const Meritko& m, int n, const Prvek& prvek);
void nakresli_svetlo(QPainter& p, const Meritko& m, int n, const Prvek& prvek);
void nakresli_pruh(QPainter& p, const Meritko& m, int n, const Prvek& prvek);
void nakresli_stanoviste(QPainter& p, const Meritko& m, const Prvek& prvek);
void nakresli_tlacitko(QPainter& p, const Meritko& m, const Styl& s, const Prvek& prvek);
void nakresli_ramec(QPainter& p, const Meritko& m, const Prvek& prvek);
void nakresli_vuz(QPainter& p, const Meritko& m, const Prvek& prvek);
void nakresli_sberac(QPainter& p, const Meritko& m, const Prvek& prvek);
