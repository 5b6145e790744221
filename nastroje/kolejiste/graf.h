// nastroje/kolejiste/graf.h - the graph of the tracks: which end meets which, and where a switch leads.
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
// The ways on for one that enters the element by `vstup`; plus comes before minus.
std::vector<Pruchod> pruchody(const Plan& plan, const Konec& vstup);
// Shortest way out of the track `od` by its right end (`vpravo`) or its left one, into the track `do_`,
// never turning back: its elements, each with the position of a switch, `od` first; empty when there is
// none. Of equally short ways the first switch that stands in plus decides.
struct Krok {
    Typ typ = Typ::kolej;
    int cislo = 0, poloha = 0;
    bool operator==(const Krok&) const = default;
};
std::vector<Krok> nejkratsi_cesta(const Plan& plan, const Graf& graf, int od, bool vpravo, int do_);
// All ends of an element.
std::vector<Konec> konce_prvku(const Plan& plan, Typ typ, int cislo);
// What stands around one element, a line an end; for the eye.
std::string okoli(const Plan& plan, const Graf& graf, Typ typ, int cislo);

} // namespace kolejiste
