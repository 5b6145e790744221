// ui/ohnisko_stolu.cpp - the focus of the keys.
#include "ui/ohnisko_stolu.h"

#include "ui/paleta.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array kTlacitkaPanelu = {Druh::cmdZpravy, Druh::cmDenik, Druh::cmdTABULKA, Druh::cmdVLAK};

} // namespace

void OhniskoStolu::zaostri(std::optional<Druh> tlacitko) {
    if (na_tlacitku == tlacitko)
        return;
    for (const std::optional<Druh>& co : {na_tlacitku, tlacitko})
        if (co)
            okno.update(stul.misto_prvku({*co, 0}));
    na_tlacitku = tlacitko;
}

void OhniskoStolu::presun(bool dalsi, QWidget* seznam) {
    // the places in order: the desk, the buttons, the list that is open
    constexpr auto kTlacitek = static_cast<int>(kTlacitkaPanelu.size());
    const int mist = 1 + kTlacitek + (seznam != nullptr ? 1 : 0);
    int kde = seznam != nullptr && seznam->hasFocus() ? kTlacitek + 1 : 0;
    if (na_tlacitku)
        kde = 1 + static_cast<int>(std::find(kTlacitkaPanelu.begin(), kTlacitkaPanelu.end(), *na_tlacitku) -
                                   kTlacitkaPanelu.begin());
    kde = (kde + (dalsi ? 1 : mist - 1)) % mist;
    zaostri(kde >= 1 && kde <= kTlacitek ? std::optional(kTlacitkaPanelu[static_cast<std::size_t>(kde) - 1])
                                         : std::nullopt);
    (kde > kTlacitek ? seznam : &okno)->setFocus();
}

void OhniskoStolu::obnov(bool smi) {
    const bool zelene = relief.cmdZpravy[0].pozadi == barvy::zelena;
    const std::size_t radku = relief.lstZpravy.radky.size();
    const bool nova = zelene && (!zpravy_zelene || radku > zprav);
    zpravy_zelene = zelene;
    zprav = radku;
    if (!nova || !smi)
        return;
    okno.setFocus();
    zaostri(Druh::cmdZpravy);
}

void OhniskoStolu::nakresli(QPainter& p) const {
    if (!na_tlacitku || !tabulka(*na_tlacitku).je(0))
        return;
    const Platno& platno = stul.platno();
    const int okraj = platno.meritko().bodu(2);
    const QRect cil = platno.v_bodech(platno.misto(*na_tlacitku, 0));
    p.setPen(QPen(barva_qt(tabulka(*na_tlacitku)[0].barva), platno.meritko().bodu(1), Qt::DotLine));
    p.drawRect(cil.adjusted(okraj, okraj, -okraj - 1, -okraj - 1));
}
