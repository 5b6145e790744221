// kolejiste/graf.h - the graph of the tracks: which end meets which, and where a switch leads.
//
// Two ends are joined when they lie on the same point of their block, and when the source says so by
// name: between blocks, and where the drawing is folded or shown twice. Every end meets exactly one
// other, unless it is the edge of the area or a buffer stop. Second drawings of a track are no part of
// the graph.
#pragma once

#include "kolejiste/plan.h"

#include <map>
#include <vector>

namespace kolejiste {

// A way through an element: out by `kam`, the switch standing in `poloha` (0 for a track).
struct Pruchod {
    Konec kam;
    int poloha = 0;
};

struct Graf {
    std::map<Konec, Konec> spoje; // both ways round

    // The end that meets this one; nothing at the edge and at a buffer stop.
    std::optional<Konec> soused(const Konec& konec) const;
};

// Joins all ends of the plan; ends that hang free, meet more than one other, or are closed although
// something is joined there are faults.
Graf sestav_graf(const Plan& plan, std::vector<Zavada>& zavady);
// The ways on for one that enters the element by `vstup`, in the order of the switch's positions.
std::vector<Pruchod> pruchody(const Plan& plan, const Konec& vstup);
// All ends of an element.
std::vector<Konec> konce_prvku(const Plan& plan, Typ typ, int cislo);
// What stands around one element, a line an end; for the eye.
std::string okoli(const Plan& plan, const Graf& graf, Typ typ, int cislo);

} // namespace kolejiste
