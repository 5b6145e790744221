// technologie/provoz2.h - the maintenance screen PROVOZ 2: the stack of routes, possessions, macros.
//
// It stands over the desk and stops the simulation for as long as it is open, so that nothing moves
// under the operator's hands while he looks into the interlocking. The lists are filled once, when it
// opens, and anew after what he deletes here; only the date follows a timer. At most one line of all
// four lists is selected: the keys act on it.
#pragma once

#include "relief/relief.h"

#include <array>
#include <cstdint>
#include <vector>

struct Provoz2 {
    Seznam lstZasobnik;              // routes that wait, in the order of the stack
    Seznam lstVYL_UPO;               // possessions
    Seznam lstmakra;                 // macros
    Seznam lstPocitace;              // computers of the workstation, fixed
    std::vector<Text> pismena_maker; // name of each macro, line by line
    Text lblKlavesy_maker;           // letters of all macros, or the keys of the one selected
    std::vector<Text> podrobnosti;   // lines about the route selected
    Text lblDatum;                   // wall clock, " 01.01.05 12:38:39"
    // numbers beside the rows of the four lists, each line ended by a carriage return and line feed
    Text lblcisla, lblcisla1, lblCisla2, lblCisla3;

    bool operator==(const Provoz2&) const = default;
};
extern Provoz2 provoz2;

// How many rows each list shows at once, in the order of Provoz2.
inline constexpr std::array<int, 4> kRadkuProvozu2 = {20, 10, 12, 9};

inline constexpr TextPohled kObrazovkaProvoz2 = "frmTechnologie2";
inline constexpr TextPohled kTitulProvoz2 = "PROVOZ 2";

// --- on the operator's command

// Click on lblZasobnik_EZ: stops the clock, shows the screen.
void otevri_provoz2();
// Back to the desk, and the clock runs again; nothing when the screen is not open.
void zavri_provoz2();
// A line was selected in one of the four lists: the other lists lose theirs, a route shows its details, a
// macro its keys.
void vybran_radek_provozu2(Seznam& seznam);
// Arrow keys: the selection moves by that many lines, within its list. Without a selection the first line
// that there is.
void posun_vyber_provozu2(int o_kolik);
// Tab: the selection goes to the next list that has a line, or back to the one before.
void dalsi_seznam_provozu2(bool zpet);
// Delete: takes the selected route out of the stack, or the macros of the selected name out of their file.
// A route whose switches are commanded stays, RC cancels it.
void smaz_v_provozu2();

// --- by its timer, also in a pause

// The date anew, while the screen is open.
void tik_provozu2();
// 0 while the screen is closed, else 500 ms.
int perioda_provozu2();

// --- at any time, without change

bool provoz2_otevren();
// " RVZ     Tesk     t0049 f0230      ver 2.0": the first line of every maintenance screen.
Text hlava_technologie();
// Numbers of rows from 1, those of one digit with a leading blank, each row ended by character 13 and 10.
Text cisla_radku(int pocet);
