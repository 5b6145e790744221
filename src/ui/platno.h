// ui/platno.h - the desk as a picture that follows the relief store.
//
// The picture keeps a copy of every element as it was drawn last. When the store's revision has moved,
// obnov() compares element by element and redraws only where something differs; an idle desk costs one
// comparison of two numbers.
#pragma once

#include "prvky/panel.h"
#include "relief/relief.h"
#include "ui/kresba.h"

#include <QImage>
#include <QRegion>

#include <array>
#include <optional>
#include <set>
#include <utility>
#include <vector>

struct Nalezeny {
    Druh druh = Druh::kolej;
    int n = kZadny;
    bool operator==(const Nalezeny&) const = default;
};

class Platno {
public:
    // Size of the picture in device pixels and the width of the desk in twips; the desk keeps its
    // proportions and stands in the middle. Everything is drawn anew at the next obnov().
    void nastav_velikost(QSize velikost, int sirka_stolu);
    // Draws what has changed; answers where, in device pixels.
    QRegion obnov();
    // Draws everything, changed or not.
    void prekresli();

    const QImage& obraz() const { return platno; }
    // Draws the desk, as it was looked at last, on another device of the same measure: a file of lines.
    void nakresli_na(QPainter& p) const { kresli(p, platno.rect()); }
    const Meritko& meritko() const { return m; }
    QPoint na_twipy(QPointF bod) const;       // from device pixels of the picture
    QRect v_bodech(const QRect& twipy) const; // the other way
    // Element under the place in twips that takes input: the topmost one that holds it, among elements
    // that overlap in one layer the nearest one.
    std::optional<Nalezeny> prvek_pod(QPoint twipy) const;
    // Middle of the next element that takes input, from a place in twips on to the left, right, up or
    // down; what lies aside of that way counts as further off.
    std::optional<QPoint> soused(QPoint odkud, QPoint smer) const;

private:
    struct Polozka { // one element in drawing order
        Druh druh;
        int n;
        QRect misto; // twips
    };

    void serad();
    void najdi_spoje();
    bool navazuje(int x, int y) const { return spoje.contains({x, y}); }
    void kresli(QPainter& p, const QRegion& kde) const;

    QImage platno;
    Meritko m;
    int sirka_stolu = kSirkaStolu;
    std::array<std::vector<Prvek>, kDruhy.size()> nakreslene; // as drawn last
    std::vector<Polozka> poradi;
    std::set<std::pair<int, int>> spoje; // where switches and slanted lines begin and end, twips
    std::vector<NapisPozadi> nakreslene_napisy;
    PanelNavestidla nakresleny_panel;
    std::uint64_t nakreslena_revize = 0;
    bool vse = true; // nothing drawn yet
};
