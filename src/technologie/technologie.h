// technologie/technologie.h - the maintenance screens: which one is open, its head, its lists, its keys.
//
// Beside the desk the workstation has five screens that look into the interlocking. One is open at a
// time; it stands over the desk and stops the simulation for as long as it is open, so that nothing
// moves under the operator's hands while he looks. Its lists are filled once, when it opens, and anew
// after what he deletes there; only the date and the ornaments follow timers. At most one line of all
// lists of the screen is selected: the keys act on it.
//
// The confirmation sequence has a second form: after a risky function it appears as a mere view over a
// corner of the desk. That one stops nothing and covers nothing; whatever the operator does next on the
// desk takes it away.
#pragma once

#include "relief/relief.h"
#include "zaklad/nahoda.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

// In the order of their tabs.
enum class Technologie : std::uint8_t { provoz1, provoz2, penet, dohled, sekvence };

struct PopisTechnologie {
    TextPohled formular; // as Simulace::obrazovka calls it
    TextPohled titul;
    TextPohled zalozka;
};
inline constexpr std::array<PopisTechnologie, 5> kTechnologie = {{
    {"frmTechnologie", "PROVOZ 1", "PROVOZ 1"},
    {"frmTechnologie2", "PROVOZ 2", "PROVOZ 2"},
    {"frmTechnologie3", "PE-NET", "PE-NET"},
    {"frmTechnologie4", "ES DOHLED", "ES DOHLED"},
    {"frmSekvence", "Potvrzovací sekvence:"_cz, "Potvrzovací sekvence"_cz},
}};

// What all five have in common.
struct StavTechnologie {
    Text lblDatum; // wall clock, " 01.01.05 12:38:39"
    // numbers beside the rows of the screen's lists, in their order; each line ended by character 13 and 10
    Text lblcisla, lblcisla1, lblCisla2, lblCisla3;
    bool jen_pohled = false; // the confirmation sequence as a view that stops nothing
    Nahoda zdroj{0x7e57};    // of the ornaments: the stream of the simulation stays untouched

    bool operator==(const StavTechnologie&) const = default;
};
extern StavTechnologie technologie;

// A list of a screen: how it is called, its heading, and how many rows it shows at once.
struct SeznamTechnologie {
    TextPohled jmeno;
    TextPohled nadpis;
    Seznam* seznam;
    int radku;
};

// --- on the operator's command

// Stops the clock and shows the screen, filled anew; a tab of an open screen does the same.
void otevri_technologii(Technologie ktera);
// Back to the desk, and the clock runs again; nothing when no screen is open.
void zavri_technologii();
// The screen so many tabs further, round at the ends.
void dalsi_technologie(int o_kolik);
// A line was selected in one of the lists of the open screen: the others lose theirs, and the screen
// shows what belongs to it.
void vybran_radek_technologie(Seznam& seznam);
// Arrow keys: the selection moves by that many lines, within its list. Without a selection the first line
// that there is.
void posun_vyber_technologie(int o_kolik);
// Tab: the selection goes to the next list that has a line, or back to the one before.
void dalsi_seznam_technologie(bool zpet);
// Delete: takes away what the selected line stands for, where the screen lets it.
void smaz_v_technologii();

// The view of the confirmation sequence, after a risky function; not over an open screen.
void ukaz_pohled_sekvence();
// Whatever the operator does on the desk: the view goes. True when there was one.
bool zavri_pohled_sekvence();

// --- by its timers, also in a pause

// The date anew, and the figures of PE-NET, while a screen is open.
void tik_technologie();
// 0 while no screen is open, else 500 ms.
int perioda_technologie();
// The spinning marks of PROVOZ 1.
void tik_driveru();
// 0 while PROVOZ 1 is closed, else 250 ms.
int perioda_driveru();

// --- at any time, without change

// The screen that is open, the view of the confirmation sequence included.
std::optional<Technologie> otevrena_technologie();
// A screen covers the desk: clicks and keys are its own.
bool technologie_kryje_stul();
// The screen of that form's name.
std::optional<Technologie> technologie_podle_jmena(TextPohled formular);
// The lists of a screen, in the order of Tab.
std::span<const SeznamTechnologie> seznamy_technologie(Technologie ktera);
// The column of numbers of list i of the open screen; the first four have one.
const Text& cisla_seznamu(std::size_t i);
// " RVZ     Tesk     t0049 f0230      ver 2.0": the first line of every screen.
Text hlava_technologie();
// Numbers of rows from 1, those of one digit with a leading blank, each row ended by character 13 and 10.
Text cisla_radku(int pocet);
