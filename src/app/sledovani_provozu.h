// app/sledovani_provozu.h - the observer of the traffic: what has become of each train of the timetable.
//
// It looks once a clock step at what moves and writes nothing but its own table, so that the simulation runs
// the same with it and without it. A run is one row of the timetable on one day. It begins when its time
// comes, or earlier when something appears under its number; it ends at home, or with nothing left that has
// the number. docs/davka.md says what each word means; app/zprava_o_provozu.h makes the report.
//
// A record of `vlaky` belongs to a run by its number: a set that comes out of the yard, a locomotive that is
// split off and the train itself all have it. The one that is no shunting movement is the train.
#pragma once

#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <cstdint>
#include <vector>

enum class StavJizdy : std::uint8_t { jede, doma, ztracena };

// What keeps a train that stands.
enum class DuvodStani : std::uint8_t {
    zadny,
    bez_cesty,      // no route stands or waits from its place
    ceka_cesta,     // a route from there waits in the stack
    stoji_cesta,    // a route stands, and the track before the train is occupied
    na_povel,       // it goes by order only: a locomotive has to be changed or coupled
    bez_lokomotivy, // nothing that could draw it
    posun,          // it is a shunting movement and has no route
};

// A stand at one place beyond the time at which the train could have gone.
struct Stani {
    std::int32_t od_s = 0; // from when it counts, absolute seconds
    std::int32_t trva_s = 0;
    int prvek = kZadny; // where its head stands
    DuvodStani duvod = DuvodStani::zadny;
    Text veta; // what the automatic dispatcher said of it when it had grown long; empty: nothing
    bool operator==(const Stani&) const = default;
};

struct JizdaVlaku {
    int radek = 0;         // of gvd_vlaky
    std::int32_t cas = 0;  // running minute of its entry by the timetable
    bool mela_jet = false; // that minute has come within the run, or it was on its way at the beginning
    bool objevena = false; // something has had its number
    StavJizdy stav = StavJizdy::jede;
    int vlak = kZadny;             // index of its record
    int prvek = kZadny;            // where its head was seen last
    std::uint8_t vystup = 0;       // station where it ended
    bool spravny_vystup = false;   // the one that its timetable names
    bool jina_kolej = false;       // it used a track of the main station that was not planned
    std::int32_t prevzal = 0;      // lost: the number that its record took instead, 0 none
    bool posunem = false;          // lost: it left as a shunting movement
    int zpozdeni_vstup = 0;        // minutes that it carried in
    int zpozdeni_konec = 0;        // minutes at its end
    std::int32_t konec_s = 0;      // when it ended
    Stani nyni, nejdelsi;          // the present wait, trva_s 0 none; and the longest one
    std::int32_t posledni_min = 0; // running minute by which it is at its last stop
    bool operator==(const JizdaVlaku&) const = default;
};

// What was seen of a record of `vlaky`.
struct StopaVlaku {
    std::int32_t cislo = 0; // 0: it was free
    int jizda = kZadny;     // index in `jizdy`
    std::size_t prvku = 0;  // entries that it had
    int stanice_index = kZadny;
    bool posun = false;
    bool smer = false;
    int kolej = kZadny; // the last track that its head has reached
    double metry = 0;   // of the head there
    std::int32_t pohyb_s = 0;
    bool operator==(const StopaVlaku&) const = default;
};

struct SledovaniProvozu {
    bool bezi = false;
    bool s_vypravcim = false;                // the automatic dispatcher has had the desk, or a part of it
    bool licha = false;                      // which half of the records the next step looks at
    std::int32_t od_s = 0;                   // first look, absolute seconds
    std::int32_t minuta = 0;                 // running minute of the last look
    std::int32_t povelu_od = 0, cest_od = 0; // the counters at the first look
    std::vector<StopaVlaku> stopy;           // by the index of the train
    std::vector<JizdaVlaku> jizdy;           // in the order in which they came
    std::vector<int> posledni;               // by row: its latest run; kZadny none
    bool operator==(const SledovaniProvozu&) const = default;
};
extern SledovaniProvozu sledovani;

// --- each clock step, behind the traffic

void sleduj_provoz();

// --- at any time, without change

// What the automatic dispatcher says of the train that waits; empty: nothing.
TextPohled veta_vypravciho(std::int32_t cislo);
// The station at which a train that comes to a stand on the track in that sense leaves the area; 0 none.
int stanice_vystupu(int kolej, bool smer);
