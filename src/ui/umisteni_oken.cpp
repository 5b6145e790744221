// ui/umisteni_oken.cpp - how large the windows beside the desk are and where they stand.
#include "ui/umisteni_oken.h"

#include <algorithm>
#include <cmath>
#include <utility>

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

int zakryje_mist(const QRect& panel, const std::vector<QRect>& mista) {
    return static_cast<int>(
        std::count_if(mista.begin(), mista.end(), [&](const QRect& m) { return m.intersects(panel); }));
}

QPoint misto_panelu(QSize panel, const QRect& plocha, const std::vector<QRect>& mista,
                    const std::vector<QPoint>& znacky) {
    constexpr int kPoliNaSirku = 24, kPoliNaVysku = 16;
    const int volna_sirka = std::max(0, plocha.width() - panel.width());
    const int volna_vyska = std::max(0, plocha.height() - panel.height());
    QPoint nejlepsi = plocha.topLeft();
    std::pair<long, long> nejmene(-1, -1);
    for (int i = 0; i <= kPoliNaSirku; ++i)
        for (int j = 0; j <= kPoliNaVysku; ++j) {
            const QRect kde(QPoint(plocha.left() + volna_sirka * i / kPoliNaSirku,
                                   plocha.top() + volna_vyska * j / kPoliNaVysku),
                            panel);
            const std::pair<long, long> cena(zakryje_mist(kde, mista),
                                             std::count_if(znacky.begin(), znacky.end(),
                                                           [&](const QPoint& z) { return kde.contains(z); }));
            if (nejmene.first < 0 || cena < nejmene) {
                nejlepsi = kde.topLeft();
                nejmene = cena;
            }
        }
    return nejlepsi;
}
