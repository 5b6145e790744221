// ui/rada_vystrah.h - the row of alarms right of the panel's buttons: what the core tells (app/vystrahy.h),
// laid out in the room that the desk has there.
//
// It is no element of the desk: a click on it is no act of the operator's hands. Places are twips of the
// picture.
#pragma once

#include "app/vystrahy.h"

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

// An alarm as it is drawn. The last one may stand for all that had no room.
struct DilekVystrah {
    Prvek napis;
    std::size_t prvni = 0, kolik = 1; // of the list of alarms
    bool operator==(const DilekVystrah&) const = default;
};

class RadaVystrah {
public:
    // What the core tells, within these bounds; true when the row looks otherwise now.
    bool rozloz(std::vector<Vystraha> vse, const QRect& misto);

    const std::vector<Vystraha>& vystrahy() const { return co; }
    const std::vector<DilekVystrah>& dilky() const { return radek; }
    const DilekVystrah* na_miste(QPoint misto) const;

private:
    std::vector<Vystraha> co;
    std::vector<DilekVystrah> radek;
};
