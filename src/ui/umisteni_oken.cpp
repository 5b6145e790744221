// ui/umisteni_oken.cpp - how large the windows beside the desk are and where they stand.
#include "ui/umisteni_oken.h"

#include <algorithm>
#include <cmath>

double meritko_pro_obrazovku(QSize obrazovka) {
    constexpr double kSirka = 1152, kVyska = 864, kKroku = 4; // of 1: some room is left around a window
    return std::max(
        1.0, std::floor(kKroku * std::min(obrazovka.width() / kSirka, obrazovka.height() / kVyska)) / kKroku);
}

QPoint misto_stranou(const QRect& okno, const QRect& plocha, const QRect& cil) {
    if (!okno.intersects(cil))
        return okno.topLeft();
    const int okraj = std::max(0, std::min(okno.left() - plocha.left(), plocha.right() - okno.right()));
    const int dole = std::max(plocha.top(), plocha.bottom() + 1 - okno.height());
    const int y = std::clamp(okno.top(), plocha.top(), dole); // what stands above the area stays in sight
    for (const int x : {plocha.right() + 1 - okraj - okno.width(), plocha.left() + okraj})
        if (const QRect jinde(QPoint(x, y), okno.size()); !jinde.intersects(cil))
            return jinde.topLeft();
    return okno.topLeft(); // too wide for either side
}
