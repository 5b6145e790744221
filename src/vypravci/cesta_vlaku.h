// vypravci/cesta_vlaku.h - where each train is on its way: the frontier up to which routes stand for it, the
// way that is still before it, and what it will need.
#pragma once

#include "cesty/cesta.h"
#include "jizda/vlak.h"
#include "vypravci/sit.h"
#include "zaklad/cisla.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vypravovani {

inline constexpr int kNikdy_s = 1'000'000;
inline constexpr int kHledani_s = 60; // between two searches for another way

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

// By the index in `vlaky`.
extern std::vector<Jizda> jizdy;
Jizda& jizda_vlaku(int v);

// A route that he has ordered, and for whom. Whoever takes the desk over finds it by what is set.
struct Objednana {
    std::int16_t zacatek = kZadny, konec = kZadny;
    std::int32_t vlak = 0; // number of the record
    std::int32_t cas_s = 0;
};
extern std::vector<Objednana> objednane;

// --- when the desk is handed over

void zapomen_cesty_vlaku();

// --- by the dispatcher

// Routes that lead over a possession or from a blocked signal do not exist for him: they are looked for anew.
void obnov_vyluky();
// The record as it is in this second: its frontier, and its way when that is wanting.
void obnov_jizdu(int v);
// All trains as they are in this second.
void obnov_vsechny();
// A way for the train; `obsazene`: one around what stands in the way, else the way that there is stays.
void najdi_cestu_vlaku(int v, Jizda& j, bool obsazene);
// Its points for the search of a way, of these stops.
void udelej_body(Jizda& j, const std::vector<Zastavka>& zastavky);
// It waits no longer; what was said of its wait is taken back.
void prestan_cekat(Jizda& j);

// --- by the promises

// What each train will need as the desk stands, some seconds ago at most.
void obnov_sliby_jizd();

// --- at any time, without change

const planovani::Sit& sit();
const planovani::Trasa& trasa_c(std::size_t i);
// Routes that do not exist now: a flag each.
const std::vector<std::uint8_t>& bez_tras();
// A possession has come or gone since the routes were looked at.
bool vyluky_se_zmenily();
// Another number after every change of a frontier or a way.
std::uint32_t zmena_cest();

// It turns by itself for its first route.
bool otoci_se_sam(const Vlak& v);
// Commanded, and a switch of it taken since, by NOUZ or a train. One that was locked is never cleared again:
// it can only be cancelled.
bool je_ztracena(const Cesta& c);
// What is set for the train leads over the route.
bool vede_pres(int v, const Cesta& hledana);

} // namespace vypravovani
