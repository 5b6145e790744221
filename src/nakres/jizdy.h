// nakres/jizdy.h - how a train-number log becomes the runs of trains, and the lines that they shall run.
//
// The reader of the log (nastroje/vypis_gtn.py) keeps the same rule; testy/nakres/jizdy.txt holds both to it.
#pragma once

#include "nakres/koridory.h"
#include "save/gtn.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

// A train was at a place: it came there, or left it.
struct BodJizdy {
    std::int32_t cas = 0; // absolute simulated second
    int misto = kZadny;
    bool operator==(const BodJizdy&) const = default;
};
// One number through the log, in order of time, from where its train begins to where it ends.
struct JizdaNakresu {
    std::int32_t cislo = 0;
    std::vector<BodJizdy> body;
    bool skoncila = false; // the number has come again since, with another day's train
    bool operator==(const JizdaNakresu&) const = default;
};

// The runs so far. An arrival is the head that comes onto a track of a station, a departure the tail that
// leaves it. A train that leaves a track under a number that never came there is the one that came last and
// is still there: it has got its next number, and a run of that number begins where the old one ended.
//
// A number runs once a day. A train moves on within the hour, or it stands on a track of a station; at its
// end it leaves its last track, and nothing has its number until the next day's train comes. So a number that
// has been on the move nowhere for half a day begins a run anew, unless it leaves the track on which it
// stands.
//
// At the midnight of a service that began two seconds before it the seconds fall by a day: what was before
// falls with them. Seconds that fall by less say that the service was turned back: what lies later has not
// happened.
//
// A week of the full timetable makes some 3000 runs with 24 000 points, 0.3 MB beside the 0.5 MB of the
// movements; the longest game that the clock can count, three times as much.
class SkladJizd {
public:
    // The places of the junction are looked up once: another junction needs another store.
    explicit SkladJizd(const Koridory& k);
    // The next movement of the log.
    void pridej(const PohybVlaku& pohyb);
    const std::vector<JizdaNakresu>& jizdy() const { return vsechny; }

private:
    struct Posledni {
        std::size_t jizda = 0;
        std::int32_t cas = 0; // of its last movement, on whichever track
    };

    void vrat_cas(std::int32_t kam);
    std::size_t jizda_pohybu(const PohybVlaku& pohyb);

    std::array<int, 1000> mista{}; // of each track; kZadny is none
    std::vector<JizdaNakresu> vsechny;
    std::unordered_map<std::int32_t, Posledni> podle_cisla; // the run of each number that goes on
    std::array<std::vector<std::size_t>, 1000> na_koleji;
    std::int32_t posledni_cas = 0;
    bool neco = false;
};

// --- lines over time and distance

struct BodCary {
    double s = 0, m = 0; // absolute simulated second, metres on the line
    bool operator==(const BodCary&) const = default;
};
// A train between two ends of its stay on the line.
struct CaraVlaku {
    std::int32_t cislo = 0;
    std::uint8_t druh = 0; // category; 0 unknown
    bool plan = false;     // as it shall run, not as it ran
    bool navic = false;    // runs only when needed
    bool na_stole = false; // the line goes on: its last point is where the train is
    std::vector<BodCary> body;
    bool operator==(const CaraVlaku&) const = default;
};

// As the trains shall run on the line: all that have a minute between the two seconds, by the timetable. A
// train leaves the line where it calls at a place off it; its change of number ends one line and begins the
// next.
std::vector<CaraVlaku> planovane_cary(const Koridory& k, const OsaKoridoru& osa, std::int32_t od,
                                      std::int32_t po);
// As they ran: the runs of the log, and those who are on the desk up to where they are at the second `ted`.
// Of runs that lie before `od` or after `po` there is nothing.
std::vector<CaraVlaku> jete_cary(const Koridory& k, const OsaKoridoru& osa,
                                 const std::vector<JizdaNakresu>& jizdy, std::int32_t ted,
                                 std::int32_t od = std::numeric_limits<std::int32_t>::min(),
                                 std::int32_t po = std::numeric_limits<std::int32_t>::max());
