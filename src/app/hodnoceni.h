// app/hodnoceni.h - the assessment of the shift: what became of the trains, where delay arose, and what the
// hands needed for it.
//
// Made of what the observer of the traffic has seen (zprava_o_provozu.h), of the movements in the
// train-number log, and of the acts of the shift; nothing is counted twice or kept for it.
//
// Delay is counted where it arose: a train is late at a departure by what it is later than its timetable, and
// what that is more than at the departure before belongs to the way between the two. What it has carried in
// is nobody's here, and time before the timetable makes nothing good.
#pragma once

#include "app/zprava_o_provozu.h"
#include "nakres/jizdy.h"
#include "save/gtn.h"
#include "zaklad/text.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// From the departure at one place to that at the next, or to the arrival where the train ends.
struct UsekZpozdeni {
    Text odkud, kam;
    int vlaku = 0;                // that lost or gained time here
    int pridano = 0, nahnano = 0; // minutes
    bool operator==(const UsekZpozdeni&) const = default;
};
// A train on one day.
struct VlakSmeny {
    std::int32_t cislo = 0;
    std::uint8_t druh = 0;
    std::int32_t vstup_s = 0;                // of its entry by the timetable, absolute second
    int prevzal = 0, pridal = 0, nahnal = 0; // minutes
    Text kde;                                // where it lost most; empty: nowhere
    bool operator==(const VlakSmeny&) const = default;
};
struct PrejezdSmeny {
    TextPohled jmeno;
    int zavreni = 0;
    std::int32_t celkem_s = 0, nejdele_s = 0, nejdele_od_s = 0;
};
struct PocetUkonu {
    TextPohled nazev;
    int kolik = 0;
};

struct HodnoceniSmeny {
    Text den, gvd; // as the desk shows them
    ZpravaOProvozu zprava;
    int vcas = 0;                               // brought home at most five minutes late
    int prevzato = 0, pridano = 0, nahnano = 0; // minutes of all trains
    int ceka_dosud = 0; // minutes that those who stand now have stood: no departure has made a delay of them
    std::vector<UsekZpozdeni> useky;    // where most arose first
    std::vector<VlakSmeny> vlaky;       // that lost time, the most first
    std::vector<JizdaNakresu> jizdy;    // as the log has them, for the diagrams
    std::vector<PocetUkonu> ukony;      // what is done beyond the ordinary
    std::vector<PrejezdSmeny> prejezdy; // of the stations
};

// --- at any time, without change

HodnoceniSmeny hodnoceni_smeny();
// Closings of the station crossings by their changes, up to the second `ted`.
std::vector<PrejezdSmeny> zavreni_prejezdu(std::span<const ZmenaPrejezdu> zmeny, std::int32_t ted);
// The diagrams of the lines on which trains ran, as a part of a page for a browser, UTF-8.
std::string nakresy_hodnoceni(const HodnoceniSmeny& h);
// A page of HTML, UTF-8. `vypravci`: what the automatic dispatcher made of the same hours, for a column
// beside it; nullptr none. `nakresy`: diagrams to stand at its end.
std::string html_hodnoceni(const HodnoceniSmeny& h, const HodnoceniSmeny* vypravci = nullptr,
                           std::string_view nakresy = {});
// A page without its diagrams.
std::string bez_nakresu(std::string_view html);
