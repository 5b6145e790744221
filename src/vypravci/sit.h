// vypravci/sit.h - the junction as a planned train finds it: which routes follow each other, and how long
// a train takes over them.
//
// Read from the compiled data, not from their source: what the plan is held against is what the trains will
// run on.
#pragma once

#include "cesty/tabulky.h"
#include "relief/topologie.h"

#include <bitset>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace planovani {

// A route, with all sections of the line that it leads into: they are locked with it.
struct Trasa {
    ZaznamCesty zaznam;
    bool smer = false;
    std::size_t tabulkovych = 0;      // elements that the table names; the sections behind them follow
    std::size_t posledni_vyhybka = 0; // index behind which its speed limit ends; 0 none
    int konec = 0;                    // its last track,
    bool konec_smer = false;          // and the sense of a train on it
};

struct Sit {
    Delky delky{};
    std::bitset<kNejvyssiPrvek + 1> koleje; // those that are drawn
    std::vector<Trasa> trasy;
    std::vector<std::vector<std::size_t>> odkud; // by misto() of the first track and the sense

    static std::size_t misto(int prvek, bool smer) {
        return static_cast<std::size_t>(prvek) * 2 + (smer ? 1u : 0u);
    }
    // Routes that go on from the track in that sense.
    const std::vector<std::size_t>& z_mista(int prvek, bool smer) const {
        return odkud.at(misto(prvek, smer));
    }
};
// From the bytes of tesk.top and tesk.zat.
Sit sestav_sit(const Bajty& top, const Bajty& zat);

// A point of a run.
struct Bod {
    int stanice = 0;
    bool stavi = false;
    std::vector<int> koleje{}; // the tracks on which it may be met; empty: any of the station
    double odjezd_s = 0;       // from a stop, seconds after midnight
    bool muze_otocit = false;  // it stands long enough for its locomotive to run round
};
// Where a train stands that is on its way: its track, its sense, how many of its points are served.
struct Pocatek {
    int prvek = 0;
    bool smer = false;
    std::size_t bodu = 0;
    bool vratny = false; // it may set off the other way as well
};
struct Ukol {
    std::vector<Bod> body;   // names without a track stand here too: a train is turned by the next name
    int delka = 0;           // metres
    int druh = 0;            // category
    std::vector<int> mimo{}; // elements that the way must not touch, switches as 1000 + number
    std::optional<Pocatek> pocatek{};         // none: it begins at its first point
    std::span<const float> prirazky{};        // metres by which a track is avoided, by element; empty: none
    std::span<const std::uint8_t> bez_tras{}; // 1 for each route that does not exist now; empty: all do
};

// One element of a way.
struct Krok {
    PrvekCesty prvek;
    std::size_t trasa = 0; // index in Sit::trasy, kBezTrasy before the first route
    bool smer = false;     // of a train on it
    bool zacatek = false;  // the first element behind the start signal of its route
};
inline constexpr std::size_t kBezTrasy = static_cast<std::size_t>(-1);
// The way of a train through the junction. `mista` is the step of each point; of names that of the point
// before.
struct Pruchod {
    std::vector<Krok> kroky;
    std::vector<std::size_t> mista;
    bool kratka_kolej = false; // it stands on a track that is too short for it, for want of a longer one
    bool protismer = false;    // it uses a line against its usual direction, for want of another way
};
// The way on the usual tracks that a train of these points takes; nothing when there is none. `kam_az`: how
// many of the points can be reached.
std::optional<Pruchod> najdi_pruchod(const Sit& sit, const Ukol& ukol, std::size_t& kam_az);

// The same as routes: each with the track on which it ends, the sense in which the train goes on from there,
// and how many points are served then. Nothing when there is no way; an empty list when it is there.
struct KrokTrasy {
    std::size_t trasa = 0;
    int prvek = 0;
    bool smer = false;
    std::size_t bodu = 0;
    bool operator==(const KrokTrasy&) const = default;
};
std::optional<std::vector<KrokTrasy>> najdi_trasy(const Sit& sit, const Ukol& ukol);

// The first point from number k on that has a track.
std::size_t preskoc_jmena(const std::vector<Bod>& body, std::size_t k);
// The point k is served on the track; `konec`: a route ends there.
bool slouzi(const Bod& bod, int prvek, bool konec);
// Sense in which a train goes on from a stop: turned where the junction turns it.
bool smer_po_obratu(int odkud, int kam, bool smer);
// The sense behind entry i of the elements of a route: it turns where the drawing is folded.
bool smer_za_prvkem(const std::vector<PrvekCesty>& prvky, std::size_t i, bool smer);

// How a train runs.
struct Vlastnosti {
    int druh = 0, rychlost = 0, delka = 0;
};
// When the head enters each step of the way, when it comes to stand there (-1: it does not), and when the
// tail has left it, in seconds after midnight. The train leaves each stop at its time, however late it came.
struct Prujezd {
    std::vector<double> vstup, stani, uvolneni;
};
Prujezd projed(const Sit& sit, const Pruchod& pruchod, const Ukol& ukol, const Vlastnosti& vlak);

// Station of an element: a stop, or a neighbour behind an exit; 0 none.
int stanice_elementu(int prvek);
// The element belongs to a line between stations; there one train at a time has all of the line.
bool je_tratovy(int prvek);
// Number by which a line is known: one for all of its sections.
int trat_elementu(int prvek);

} // namespace planovani
