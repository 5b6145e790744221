// gvd/gvd.h - the weekly timetable: every train that may run through the junction.
//
// Read once when a simulation starts and never written: a timetable is replaced as a whole. Rows stay in file
// order, and the order matters: of two trains that want the same entry track at the same minute the first one
// gets it.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A stop or a point that is passed. Times are minutes after midnight; -1 or below none.
struct ZastavkaGvd {
    std::uint8_t stanice = 0;  // station code
    std::int16_t prijezd = -1; // none: the train starts there
    std::int16_t odjezd = -1;

    bool operator==(const ZastavkaGvd&) const = default;
};

struct GvdVlak {
    std::vector<ZastavkaGvd> zastavky;
    std::uint8_t druh = 0; // category, 1 to 18
    std::int32_t cislo = 0;
    std::uint8_t druh2 = 0;
    std::int32_t cislo2 = 0;        // above 0: the number changes on the way
    std::uint8_t stanice_zmeny = 0; // station of the change
    Text nazev;
    std::uint8_t rychlost = 0; // km/h
    std::int16_t delka = 0;    // metres
    std::int16_t gvd_hodnota = 0;
    std::int16_t loko_rada = 0;  // series of the locomotive, 0 none
    std::int16_t loko_rada2 = 0; // second, banking or assisting locomotive, 0 none
    std::int16_t hodnota_2 = 0;
    std::vector<Text> vozy;               // vehicles: series or type names
    std::vector<std::int16_t> vozy_vlaky; // next trains; element 1 is the one that is read
    Text poznamka, text_2, text_3;
    Text kolej;                // planned track
    Text navazny_vlak;         // number of the train whose set becomes this one
    std::uint8_t dny = 0;      // bit 0 Monday to bit 6 Sunday, bit 7 holidays
    std::uint8_t priznaky = 0; // 1: second locomotive at the front, 2: assisting one behind

    bool operator==(const GvdVlak&) const = default;
};

// The fields under their names, in the order of the file.
template <class A, ZaznamJe<GvdVlak> Z> constexpr void popis_poli(A& a, Z& z) {
    a.sloupce(z.zastavky, Sloupec{"stanice", &ZastavkaGvd::stanice},
              Sloupec{"prijezdy", &ZastavkaGvd::prijezd}, Sloupec{"odjezdy", &ZastavkaGvd::odjezd});
    a.pole("druh", z.druh);
    a.pole("cislo", z.cislo);
    a.pole("druh2", z.druh2);
    a.pole("cislo2", z.cislo2);
    a.pole("stanice_zmeny", z.stanice_zmeny);
    a.pole("nazev", z.nazev);
    a.pole("rychlost", z.rychlost);
    a.pole("delka", z.delka);
    a.pole("gvd_hodnota", z.gvd_hodnota);
    a.pole("loko_rada", z.loko_rada);
    a.pole("loko_rada2", z.loko_rada2);
    a.pole("hodnota_2", z.hodnota_2);
    a.pole("vozy", z.vozy);
    a.pole("vozy_vlaky", z.vozy_vlaky);
    a.pole("poznamka", z.poznamka);
    a.pole("text_2", z.text_2);
    a.pole("text_3", z.text_3);
    a.pole("kolej", z.kolej);
    a.pole("navazny_vlak", z.navazny_vlak);
    a.pole("dny", z.dny);
    a.pole("priznaky", z.priznaky);
}

// The rows and beside them the registers that find them: made when a timetable comes in, so that a look-up
// costs by the rows that it finds, however many there are. Every register gives its rows in file order.
class TabulkaGvd {
public:
    struct Zapis {
        std::int32_t klic;
        int radek;
        auto operator<=>(const Zapis&) const = default;
    };
    using Zapisy = std::span<const Zapis>;

    TabulkaGvd() = default;
    // Every row has a stop at least.
    explicit TabulkaGvd(std::vector<GvdVlak> nove);

    std::size_t size() const { return radky.size(); }
    bool empty() const { return radky.empty(); }
    auto begin() const { return radky.begin(); }
    auto end() const { return radky.end(); }
    const GvdVlak& at(std::size_t i) const { return radky.at(i); }
    const GvdVlak& operator[](std::size_t i) const { return radky[i]; }

    // Rows whose minute of entry is this one of the day, 0 to 1439.
    std::span<const int> v_minute(int minuta) const;
    // Rows with the number.
    Zapisy s_cislem(double cislo) const { return najdi(cisla, cislo); }
    // Rows whose navazny_vlak is the number.
    Zapisy s_navaznym(double cislo) const { return najdi(navazne, cislo); }
    // Rows whose set goes on as the number: its second vehicle tells. Rows of one vehicle keep no set.
    Zapisy s_predanou_soupravou(double cislo) const { return najdi(predane, cislo); }

    bool operator==(const TabulkaGvd&) const = default;

private:
    static Zapisy najdi(const std::vector<Zapis>& rejstrik, double klic);

    std::vector<GvdVlak> radky;
    std::vector<int> podle_minut;            // rows by minute of entry;
    std::array<std::size_t, 1441> zacatky{}; // those of minute m begin here
    std::vector<Zapis> cisla, navazne, predane;
};
extern TabulkaGvd gvd_vlaky;

// --- at start

// Reads the chosen timetable (simulace.soubor_gvd). A record whose arrays are missing or of different
// lengths would be read past its end later on and is left out; a cut record ends the reading. A missing
// file is the run-time error 53.
void nacti_gvd();
// The same from the bytes of a file.
void nacti_gvd_z(std::span<const std::uint8_t> bajty);
// Description in the header of a timetable; empty when the file is missing or damaged.
Text popis_gvd(TextPohled soubor);

// --- at any time, without change

// Row of the timetable. An index that is none is the run-time error 9.
inline const GvdVlak& radek_gvd(int gvd_index) {
    return gvd_vlaky.at(static_cast<std::size_t>(gvd_index));
}
// The row runs today: on its weekday, or as a train of category PP when those are allowed. The day is
// the one that stood at the last midnight step.
bool aktivni_dnes(const GvdVlak& radek);

// The row is counted from its first departure: it begins there, or comes from a neighbour with consent.
bool bez_prijezdu(const GvdVlak& radek);
// Minute of its entry: of that departure, else of its first arrival.
std::int16_t cas_vstupu(const GvdVlak& radek);

// Full name of a station or point, empty for an unknown code. kZadny is the main station.
TextPohled nazev_stanice(int kod);
// Three-letter code; empty for points and stations that have none.
TextPohled kod_stanice(int kod);
// Short form of a train category; empty for 9 and for unknown ones.
TextPohled zkratka_druhu(int druh);
// "R 851"; the number alone when the category has no short form.
Text druh_a_cislo(int druh, std::int32_t cislo);
