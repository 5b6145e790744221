// vypravci/jizdy.h - train movements of the automatic dispatcher: entries, consents, tracks, order, routes.
//
// How he decides is told in docs/vypravci.md.
#pragma once

#include "vypravci/sit.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Where the last route ends that stands or waits for a train: there it goes on, in that sense, with so many
// of its points served.
struct Hranice {
    int prvek = kZadny;
    bool smer = false;
    std::size_t bodu = 0;
    bool operator==(const Hranice&) const = default;
};

// A hop of a train to a place (misto_prvku), in that sense on it: when it begins and ends, seconds from now.
struct Usek {
    int misto = 0;
    bool smer = false;
    std::int32_t od_s = 0, do_s = 0;
};

// What the dispatcher has thought of a train; all of it is made again of what is seen when it is wanting.
struct Jizda {
    std::int32_t cislo = 0;  // of the record: another one begins anew
    std::int32_t receno = 0; // the number under which it was said to wait; 0 none
    bool jede = false;       // a train that goes on by train routes
    bool doma = false;       // the frontier is the end of its timetable, or nothing is known of its way
    bool stoji = false;      // it stands at its frontier
    Hranice hranice;
    std::int32_t do_hranice_s = 0; // at least so long until it may go on from there
    std::vector<planovani::Bod> body;
    std::size_t zastavek = 0;                // of which the points are made
    std::vector<planovani::KrokTrasy> cesta; // from the frontier to the end
    Hranice cesta_od;                        // the frontier of that way
    std::vector<Usek> useky;                 // its next hops, as they were when promises were made last
    std::int32_t podivat_s = 0;              // looked at not before
    std::int32_t nahrada_s = 0;              // no other track before
    std::int32_t hledat_s = 0;               // no other way is looked for before
    std::int32_t ceka_od_s = kZadny;         // since it waits
};

// --- when the desk is handed over

void zacni_jizdy();

// --- once a step

void krok_jizd();

// --- by the promises

// What each train will need as the desk stands, some seconds ago at most.
void obnov_sliby_jizd();
