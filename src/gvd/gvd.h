// gvd/gvd.h - the weekly timetable: every train that may run through the junction.
//
// Read once when a simulation starts and never written. Rows stay in file order, and the order matters:
// of two trains that want the same entry track at the same minute the first one gets it.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstdint>
#include <span>
#include <vector>

struct GvdVlak {
    std::vector<std::uint8_t> stanice;  // stops and passing points, station codes
    std::vector<std::int16_t> prijezdy; // minutes after midnight; -1 or below: starts there
    std::vector<std::int16_t> odjezdy;
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

// The record as it stands in the file.
template <class A, class Z> void popis_gvd_vlaku(A& a, Z& z) {
    pole_b(a, z.stanice);
    pole_i(a, z.prijezdy);
    pole_i(a, z.odjezdy);
    a.b(z.druh);
    a.l(z.cislo);
    a.b(z.druh2);
    a.l(z.cislo2);
    a.b(z.stanice_zmeny);
    a.text(z.nazev);
    a.b(z.rychlost);
    a.i(z.delka);
    a.i(z.gvd_hodnota);
    a.i(z.loko_rada);
    a.i(z.loko_rada2);
    a.i(z.hodnota_2);
    pole_textu(a, z.vozy);
    pole_i(a, z.vozy_vlaky);
    a.text(z.poznamka);
    a.text(z.text_2);
    a.text(z.text_3);
    a.text(z.kolej);
    a.text(z.navazny_vlak);
    a.b(z.dny);
    a.b(z.priznaky);
}

extern std::vector<GvdVlak> gvd_vlaky;

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

// Full name of a station or point, empty for an unknown code. -3 is the main station.
TextPohled nazev_stanice(int kod);
// Three-letter code; empty for points and stations that have none.
TextPohled kod_stanice(int kod);
// Short form of a train category; empty for 9 and for unknown ones.
TextPohled zkratka_druhu(int druh);
