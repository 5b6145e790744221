// nastroje/gvd/dukaz.h - the proof of a timetable: that it can be run on the junction as it is drawn.
//
// Trains are run over the compiled routes at the speeds of the lines; from that follow the times that a train
// needs, how long it keeps a line, a throat and a track, and whether another one is in its way. Nothing is
// proved of what hands do: shunting and changes of locomotives get the time that the rules below give them.
// docs/jizdni-rad.md tells the rules.
#pragma once

#include "gvd/prekladac.h"
#include "vypravci/sit.h"

#include <cstdint>
#include <string>
#include <vector>

namespace planovani {

// A train of the plan on its way, from second to second after midnight of its day.
struct Jizda {
    bool jede = false; // a way was found; shunts out of the depots have none
    Ukol ukol;
    Pruchod pruchod;
    Prujezd prujezd;
    int kolej = 0; // platform track at the main station
};

struct Dukaz {
    std::vector<Jizda> jizdy;           // by row
    std::vector<ChybaZdroje> chyby;     // what cannot be run, in the order of the source
    std::vector<std::string> klid;      // by line, the longest time without a train in its busiest night
    std::vector<std::string> neslibuje; // what hands have to do, and other things without a proof
};
Dukaz dokaz(const JizdniRad& rad, const Sit& sit);

// The row leads to another train of the day with all of its set or a part of it; 0 none.
std::int32_t dalsi_vlak(const GvdVlak& r, std::size_t vuz);
// A set that goes either way without its locomotive running round.
bool je_vratna(const std::vector<Text>& vozy);
// The row is run as a shunt of the depots.
bool je_posun(const GvdVlak& r);

} // namespace planovani
