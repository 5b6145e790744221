// jizda/vlak.h - the record of everything that moves, and the trains on each numbered track.
//
// The index in `vlaky` is the train's identity inside the program: routes, menus and `koleje_vlaky` hold
// indices, the operator sees numbers. A record whose cislo is below 1 is free and is used again; the
// table grows by one when no record is free and never shrinks. A train's place is told by three things
// together: the entries of `prvky` from `prvek_konec` to the last one (the head), the metres kept in the
// state text of the element under the head, and the order of `koleje_vlaky`.
#pragma once

#include "cesty/prvek_cesty.h"
#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// What the composition of a train demands.
namespace priznak_vlaku {
inline constexpr std::uint8_t druhe_loko = 1; // a second locomotive at the front
inline constexpr std::uint8_t pripraz = 2;    // an assisting one at the end
} // namespace priznak_vlaku

struct Vuz {
    Text rada;    // series
    Text urceni;  // next work: a number, "ZAL", "DKV", "VH", empty
    Text obrazek; // picture file

    bool operator==(const Vuz&) const = default;
};

// A stop of a train, or a point that it passes. Times are running minutes: minute of the day + 1440 a day
// since the first; kZadny none.
struct Zastavka {
    std::uint8_t stanice = 0; // station code
    std::int16_t prijezd = kZadny;
    std::int16_t odjezd = kZadny;        // by the timetable
    std::int16_t odjezd_realny = kZadny; // working departure; kNaPovel only on the operator's order

    bool operator==(const Zastavka&) const = default;
};

struct Vlak {
    std::vector<Zastavka> zastavky; // by the timetable, in running order
    std::uint8_t druh = 0;          // category
    std::int32_t cislo = 0;         // train number; below 1: free record
    std::uint8_t druh2 = 0;         // category and number after the change
    std::int32_t cislo2 = 0;        // 0 or kZadny none
    std::uint8_t stanice_zmeny = 0; // station where cislo2 takes over; 0 none
    bool posun = false;             // runs as a shunting movement
    Text nazev;
    std::uint8_t max_rychlost = 0; // km/h, of this consist
    std::int16_t delka = 0;        // metres
    std::int16_t gvd_hodnota = 0;  // from the timetable, not used by the running
    std::int16_t loko_rada = 0;    // series of the locomotive
    std::int16_t loko_rada2 = 0;   // series of the one that takes over; 0 no change
    std::int16_t hodnota_2 = 0;    // from the timetable, not used
    std::vector<Vuz> vozy;         // from the head to the tail
    Text poznamka;
    Text pokyn;                        // working instruction: the planned track
    std::uint8_t dny = 0;              // days of running, bit 7 holidays
    std::uint8_t priznaky = 0;         // bits of priznak_vlaku
    std::int16_t stanice_index = 0;    // stop now or last served; negative: none yet
    bool muze_jet = false;             // may run; else it waits at a stop
    std::vector<PrvekCesty> prvky;     // entered, oldest first; the last one is the head
    std::int16_t prvek_konec = kZadny; // index of the rearmost entry still held
    bool smer = false;                 // true: towards larger numbers of a line and larger X
    std::uint8_t rychlost = 0;         // km/h
    std::uint8_t rychlost_trati = 0;   // line speed in force
    std::uint8_t rychlost_cesty = 0;   // limit of the route entered last; 0 none
    std::int16_t konec_omezeni = 0;    // switch whose clearing by the tail ends that limit
    bool omezeni_ukonceno = false;     // that limit no longer binds
    std::int16_t rezerva = kZadny;     // kZadny in new records, never read
    bool cislo2_platne = false;        // runs under cislo2 and druh2
    std::int16_t zpozdeni_vstup = 0;   // delay carried in, minutes
    std::int16_t zpozdeni = 0;         // present delay, minutes

    // Derived, not saved: length of `prvky` when the stop handling last ran at the end of a route. It runs
    // once for an arrival, else a station that stands twice in the timetable would hold the train twice.
    std::size_t obslouzeno = 0;

    bool operator==(const Vlak&) const = default;
};

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<Vlak> Z> constexpr void popis_poli(A& a, Z& z) {
    a.sloupce(z.zastavky, Sloupec{"stanice", &Zastavka::stanice}, Sloupec{"prijezd", &Zastavka::prijezd},
              Sloupec{"odjezd", &Zastavka::odjezd}, Sloupec{"odjezd_realny", &Zastavka::odjezd_realny});
    a.pole("druh", z.druh);
    a.pole("cislo", z.cislo);
    a.pole("druh2", z.druh2);
    a.pole("cislo2", z.cislo2);
    a.pole("stanice_zmeny", z.stanice_zmeny);
    a.pole("posun", z.posun);
    a.pole("nazev", z.nazev);
    a.pole("max_rychlost", z.max_rychlost);
    a.pole("delka", z.delka);
    a.pole("gvd_hodnota", z.gvd_hodnota);
    a.pole("loko_rada", z.loko_rada);
    a.pole("loko_rada2", z.loko_rada2);
    a.pole("hodnota_2", z.hodnota_2);
    a.sloupce(z.vozy, Sloupec{"vozy", &Vuz::rada}, Sloupec{"vozy_urceni", &Vuz::urceni},
              Sloupec{"vozy_obrazek", &Vuz::obrazek});
    a.pole("poznamka", z.poznamka);
    a.pole("pokyn", z.pokyn);
    a.pole("dny", z.dny);
    a.pole("priznaky", z.priznaky);
    a.pole("stanice_index", z.stanice_index);
    a.pole("muze_jet", z.muze_jet);
    popis_prvku(a, z.prvky, "prvky", "prvky_druh", "prvky_poloha");
    a.pole("prvek_konec", z.prvek_konec);
    a.pole("smer", z.smer);
    a.pole("rychlost", z.rychlost);
    a.pole("rychlost_trati", z.rychlost_trati);
    a.pole("rychlost_cesty", z.rychlost_cesty);
    a.pole("konec_omezeni", z.konec_omezeni);
    a.pole("omezeni_ukonceno", z.omezeni_ukonceno);
    a.pole("rezerva", z.rezerva);
    a.pole("cislo2_platne", z.cislo2_platne);
    a.pole("zpozdeni_vstup", z.zpozdeni_vstup);
    a.pole("zpozdeni", z.zpozdeni);
}

// Trains on one element, in their order along the track; one entry kZadny: none.
struct KolejVlaky {
    std::int16_t prvek = 0;
    std::vector<std::int16_t> vlaky{kZadny};
    bool operator==(const KolejVlaky&) const = default;
};

template <class A, ZaznamJe<KolejVlaky> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("prvek", z.prvek);
    a.pole("vlaky", z.vlaky);
}

inline constexpr std::size_t kPrvnichVlaku = 51; // records of a new simulation
inline constexpr std::int16_t kNaPovel = -10;    // working departure of a stop that ends only by order

extern std::vector<Vlak> vlaky;
extern std::vector<KolejVlaky> koleje_vlaky; // grows by appending; the first record is a dummy

// --- at start

// The first 51 free records; and the one dummy record of koleje_vlaky.
std::vector<Vlak> prvni_vlaky();
std::vector<KolejVlaky> prvni_koleje_vlaky();

// --- at any time, without change

// Train number v of the table. An index that is none is the run-time error 9.
inline Vlak& vlak_c(int v) {
    return vlaky.at(static_cast<std::size_t>(v));
}
// The same of koleje_vlaky.
inline KolejVlaky& kolej_vlaky_c(int zaznam) {
    return koleje_vlaky.at(static_cast<std::size_t>(zaznam));
}
// The train holds the track: one of its entries from the tail to the head.
bool drzi_prvek(const Vlak& v, int kolej);
// Another train than v holds the track.
bool drzi_jiny(int kolej, int v);

// The stop of the train in a station, the first of several; the end of its stops when it has none there.
inline auto zastavka_ve_stanici(const Vlak& v, int stanice) {
    return std::find_if(v.zastavky.begin(), v.zastavky.end(),
                        [stanice](const Zastavka& z) { return z.stanice == stanice; });
}
// The number that the operator sees: cislo2 when it is in force, else cislo.
inline std::int32_t zobrazene_cislo(const Vlak& v) {
    return v.cislo2_platne ? v.cislo2 : v.cislo;
}
// It stands at the last stop of its timetable.
bool stoji_na_posledni(const Vlak& v);
