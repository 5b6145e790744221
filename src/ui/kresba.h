// ui/kresba.h - draws the elements of the relief store, one at a time, as vectors at any scale.
//
// The desk is measured in twips, 15 to a pixel of the 1024 by 768 desk. Level and upright edges are put
// on whole device pixels and drawn without antialiasing; slanted and round ones are antialiased.
#pragma once

#include "relief/relief.h"

#include <QPainter>
#include <QRect>
#include <QRegion>

#include <array>
#include <cstdint>

inline constexpr int kTwipu = 15;                 // twips to a pixel of the desk
inline constexpr int kSirkaStolu = 1024 * kTwipu; // one monitor
inline constexpr int kVyskaStolu = 768 * kTwipu;

// From twips of the desk to device pixels of the picture.
struct Meritko {
    double k = 1.0 / kTwipu; // device pixels to a twip
    int x0 = 0, y0 = 0;      // where the desk's corner lies

    int x(int twipy) const { return x0 + zaokrouhli_px(twipy * k); }
    int y(int twipy) const { return y0 + zaokrouhli_px(twipy * k); }
    double bod() const { return k * kTwipu; } // device pixels to a pixel of the desk
    int bodu(double kolik) const { return std::max(1, zaokrouhli_px(kolik * bod())); }

private:
    static int zaokrouhli_px(double v) { return static_cast<int>(v < 0 ? v - 0.5 : v + 0.5); }
};

// Does the kind take the operator's input? Only such elements are found by the pointer first.
bool bere_vstup(Druh druh);
// State of a switch as its picture shows it.
int stav_vyhybky(const Prvek& prvek);
// Layer of the kind under elements of the same drawing order.
int vrstva(Druh druh);

// Rectangle of the element in twips, what it draws outside its own place included.
QRect misto_kresby(Druh druh, int n, const Prvek& prvek);
// Rectangle in twips that the pointer hits.
QRect misto_vstupu(Druh druh, const Prvek& prvek);

// Lines that the caption under a vehicle takes.
int radku_popisu(const Prvek& prvek);

// What surrounds a line: the places of the texts that stand on it, which level lines leave free, and whether
// it goes on into a switch or a bend past its first and its second end. Sections that lie in one line part by
// a small gap; a way over switches and bends is one stroke.
struct OkoliCary {
    QRegion texty; // device pixels
    bool dal_od = false, dal_po = false;
    std::array<const Prvek*, 2> popisky{}; // of a target: the labels of its track, where there are such
};
// Place that the text of a sign or label takes from the lines under it, device pixels; empty for other kinds
// and for blank texts.
QRect misto_textu(const Meritko& m, Druh druh, const Prvek& prvek);
// The ground of such a text, where it has one of its own colour.
void nakresli_pozadi_textu(QPainter& p, const Meritko& m, Druh druh, const Prvek& prvek);
// Draws the element; nothing when it is not visible. The ground of a text on a line is drawn apart: it lies
// under the slanted lines, which may touch the corners of its cell.
void nakresli_prvek(QPainter& p, const Meritko& m, Druh druh, int n, const Prvek& prvek,
                    const OkoliCary& okoli = {});
// Text painted on the background.
void nakresli_napis_pozadi(QPainter& p, const Meritko& m, const NapisPozadi& napis);
// The signal panel's place: its casing follows the signal that is shown, not single elements. Twips.
inline constexpr QRect kMistoPanelu(928 * kTwipu, 46 * kTwipu, 92 * kTwipu, 156 * kTwipu);
// The element is drawn in the signal panel.
bool je_v_panelu(Druh druh);
// Ground of the desk, on black: the bars and panels that no element stands for.
void nakresli_podklad(QPainter& p, const Meritko& m, const QRect& plocha);
// A line between two halves of a bar, upright; twips.
void nakresli_predel(QPainter& p, const Meritko& m, int x, int od, int po);
// The casing of the signal panel, so far right of its place; twips.
void nakresli_panel(QPainter& p, const Meritko& m, int posun);
// Outline within the rectangle, `tl` device pixels thick.
void nakresli_obrys(QPainter& p, const QRect& kde, int tl, const QColor& barva);
// A picture of a switch alone, its cell's corner at (x, y) twips: for the manual and for tests.
void nakresli_vyhybku(QPainter& p, const Meritko& m, int x, int y, int stav, const OkoliCary& okoli = {});
