// app/zprava_o_provozu.h - the report of the run, made of what the observer has seen (sledovani_provozu.h).
//
// docs/davka.md says what each word of it means.
#pragma once

#include "app/sledovani_provozu.h"
#include "zaklad/text.h"

#include <cstdint>
#include <vector>

// Of a number of trains, minutes: the smallest that half of them, and 95 of 100, do not exceed, and the
// largest.
struct Rozdeleni {
    int pocet = 0;
    int median = 0, p95 = 0, nejvic = 0;
};

struct RadekZpravy {
    std::int32_t cislo = 0;
    std::uint8_t druh = 0;
    TextPohled stav;
    Text kde;
    std::int32_t od_s = 0;
    Text duvod;
};

struct KategorieZpravy {
    std::uint8_t druh = 0;
    int melo_jet = 0, dojelo = 0;
    Rozdeleni vstup, konec, pridane;
};

struct CekaniZpravy {
    std::int32_t cislo = 0;
    Text kde;
    std::int32_t od_s = 0, trva_s = 0;
    Text duvod;
};

struct ZpravaOProvozu {
    std::int32_t od_s = 0, do_s = 0;
    int melo_jet = 0, dojelo = 0, spravnym_vyjezdem = 0, spravnou_koleji = 0;
    int na_ceste = 0, nevyjelo = 0, ztraceno = 0, uvazlo = 0;
    int cest = 0, povelu = 0;
    Rozdeleni vstup, pridane;
    std::vector<RadekZpravy> radky;
    std::vector<KategorieZpravy> kategorie; // by category
    std::vector<CekaniZpravy> cekani;       // the longest first
};

// --- at any time, without change

// The run so far.
ZpravaOProvozu zprava_o_provozu();
// The same to be read: lines of Czech text, parted by CR LF.
Text text_zpravy_o_provozu();
// Why a train stood, or stands: what the dispatcher said of it, else what was seen.
Text duvod_stani(const Stani& stani);
// Name of the place of an element: "THN 5", or what its end is called.
Text jmeno_mista(int prvek);

// --- on command

// Writes that text. Run-time error 61, 70 or 76 on a fault.
void zapis_zpravu_o_provozu(TextPohled soubor);

// --- at the end of a service, by the host

// The report of a service that the automatic dispatcher had a part in lies beside the log, under the wall
// clock's day: GTN\yymmdd.txt. Other services leave none. A disk that does not take it stops nobody.
void zapis_zpravu_sluzby();
