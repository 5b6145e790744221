// app/start.h - from the start command to the login dialogue.
//
// Two stages with ten seconds between them: priprava_simulace loads and sizes everything under the
// splash screen, start_simulace shows the main screen, paints the rest state and asks for the login.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

// What the start screen hands over. The start time has been checked by its screen.
struct VolbyStartu {
    std::uint8_t hodina = 12, minuta = 0; // start time
    std::uint8_t den = 0;                 // index of the day: 0 Monday to 6 Sunday
    std::uint8_t rychlost = 1;            // 1 to 4 as the screen offers them
    Text gvd;                             // name of the timetable without ".dat"
    bool pp = true, zpozdeni = true;
};

// What the start screen hands over for a start and for an open alike: the options of its second page,
// and the day of its list.
struct MoznostiStartu {
    bool noresize = false;          // never change the display mode
    bool bez_dvou_monitoru = false; // box "Zakázat podporu dvou monitorů"
    bool zvuk_vypnut = false;
    bool autosave = false;
    Text autosaved = "60"; // period of the periodic save in played minutes, as typed
    bool vypravci = false; // the automatic dispatcher has the desk from the start: the host hands it over
    std::uint8_t den = 0;  // day chosen in the list, 0 Monday: the log is filed under it
};

// Takes the options into the run state and stores them; a period that is no number is not stored. Two
// monitors are given up with the box, and are otherwise as the start screen found them.
void uloz_volby(const MoznostiStartu& moznosti);

// Takes the choices into the run state: the day (the one before for a start at 0:00, since the clock
// is set two seconds early and crosses into the chosen day), the start minute, the speed, the timetable;
// and stores the settings.
void prevezmi_volby(const VolbyStartu& volby);
// After priprava_simulace: the clock two seconds before the start time, the day label, the timetable.
void nastav_hodiny(const VolbyStartu& volby);

// Stage one. An error 340 is silently skipped, any other shows a box with the step's number; both go
// on with the next step, so that a failed start leaves magenta or missing elements but never stops.
void priprava_simulace();
// Stage two, ten seconds later. A missing timetable, and a saved simulation that cannot be read, are fatal.
void start_simulace();
// How long the splash screen stays, whatever the loading took, ms.
inline constexpr int kUvodniObrazovka_ms = 10000;
