// app/simulace.h - the run state of the one simulation of the process.
//
// What the operator chose on the start screen, whether the clock runs, and the marks from which elapsed
// time is counted.
#pragma once

#include "relief/relief.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <vector>

// Version of the simulator: shown joined by ".", written into saves and logs.
inline constexpr std::uint8_t kVerzeMajor = 2;
inline constexpr std::int16_t kVerzeMinor = 0;
inline constexpr std::int16_t kVerzeRevize = 1;

struct Simulace {
    // from the start screen, or from a saved simulation
    Text cesta_aplikace;           // the program's folder with a trailing backslash
    Text soubor_gvd;               // full path of the timetable
    Text soubor_zaznamu;           // the saved simulation to load
    bool nacitani_zaznamu = false; // this start loads a saved simulation
    std::uint8_t rychlost = 1;     // speed factor, 1 to 8
    std::int16_t cas_zacatku = 0;  // minute of the day of the start, less one: -1 for a start at 0:00
    std::uint8_t den = 1;          // day of the week as a bit: 1 Monday to 64 Sunday
    std::uint8_t den_startu = 0;   // index of the day chosen on the start screen: 0 Monday to 6 Sunday
    bool pp_povoleno = true;       // trains of category PP run
    bool zpozdeni_povoleno = true; // trains may enter late
    bool zvuk_vypnut = false;      // no beep of the whole program sounds
    bool dva_monitory = false;
    bool noresize = false; // never change the display mode
    bool autosave = false;
    std::int16_t autosave_minut = 60; // period in played minutes

    // running
    bool pauza = true;                // stops the clock, the trains, the route machine and the blinking
    std::int16_t minuty_simulace = 0; // played minutes; lblcas_od_zacatku shows them
    std::int32_t tick_hodin = 0;      // tick counter at the last clock step, ms
    std::int32_t tick_jizdy = 0;      // tick counter at the last movement step, ms
    std::int32_t posledni_pohyb = 0;  // wall-clock second of the day of the last mouse movement
    int najety_prvek = kZadny;        // signal under the mouse
    int detail_navestidlo = kZadny;   // signal shown in the panel
    bool ticho_souhlasu = false;      // the consent beep is silenced
    bool nova_zprava = false;         // a delay message has come, the next blink step shows it
    bool nova_pipnuti = false;        // a new train has beeped in this traffic step
    bool upozorneni_minuty = false;   // a departure has sounded in this simulated minute
    bool pn_bezi = false;             // a calling-on aspect runs, the blink step beeps
    Text obrazovka = "frmParametry";  // screen that is open: frmParametry, frmUvod (splash), frmMain, ...
    bool minimalizovano = false;      // the main screen is minimised
    bool polozky_ladeni = false;      // the debug entries of the track and crossing menus are shown
    Text popisek_nacitani;            // caption of the splash screen
    std::vector<Text> poruchy;        // unacknowledged failures, for the technology screen
    std::vector<Text> prubezne;       // periodic saves of this game that are kept, the oldest first

    bool operator==(const Simulace&) const = default;
};
extern Simulace simulace;

// --- at any time

// The marker of debug mode: debug.dat lies in the program's folder, or the host plays that it does.
// Whatever fails means no.
bool je_ladeni();
// Ends a pause: fresh marks of time, so that a pause costs no simulated time, and the pause label off.
void spust_hodiny();
// Begins a pause and shows its label.
void zastav_hodiny();
// A beep, unless the sound is off. Hz and ms.
void pipni(int hz, int ms);
// "0.0.0": the version numbers joined by ".".
Text text_verze();
