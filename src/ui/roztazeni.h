// ui/roztazeni.h - how a drawing of the relief is taken wider than it was made.
//
// Tracks and spaces grow, signs do not: what belongs together (a throat of switches and slanted lines with
// the signals and names that stand close by, a text alone, the end of a level line) is a body that moves as
// one and keeps its shape, a level line runs from the body of its one end to that of the other. A body wants
// to go where its middle goes when everything is stretched evenly. What stands left of another body in any
// row never moves further than that one, so that nothing comes closer to anything: what did not overlap does
// not, and a place of the drawing has exactly one place in the picture.
#pragma once

#include "relief/relief.h"

#include <array>
#include <vector>

// Copies of all elements by kind and number.
using PrvkyDruhu = std::array<std::vector<Prvek>, kDruhy.size()>;

// The kind stands among the tracks, not in the bars and panels around them.
bool je_v_reliefu(Druh druh);

class Roztazeni {
public:
    // How far the two ends of an element move when the picture is twice as wide, twips: of a line those at
    // x1 and x2, of all others the left and the right edge.
    struct Podil {
        double zacatek = 0, konec = 0;
    };

    // Looks the drawing over. `sirka`: its width in twips.
    void spocti(const PrvkyDruhu& prvky, const std::vector<NapisPozadi>& napisy, int sirka);

    // --- at any time, without change

    // Of an element of the relief that was there when the drawing was looked over.
    Podil podil(Druh druh, int n) const;
    double podil_napisu(std::size_t n) const;
    // From a place of the drawing to that of the picture, and back; `navic`: how much wider the picture is,
    // a part of the drawing's width. The height tells the row, it does not change. Twips.
    int na_obraz(int x, int y, double navic) const;
    int na_stul(int x, int y, double navic) const;

private:
    struct Uzlik { // of the broken line that tells the shift along a row
        double x, podil;
    };

    double podil_mista(double x, int y) const;

    int sirka_kresby = 0;
    std::array<std::vector<Podil>, kDruhy.size()> podily;
    std::vector<double> podily_napisu;
    std::vector<std::vector<Uzlik>> radky;
};
