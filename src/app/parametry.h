// app/parametry.h - the start screen: what is to be simulated, and the start command.
//
// The one entry to the simulation. nacti_start checks the installation and fills the screen, the operator
// changes its fields, start_prikaz or otevri_zaznam hand over to the start. The screen's record stands for
// it whole, its fields called as its controls: the desk shows it, the headless runner works it, and both
// reach the simulation through the operations below only.
#pragma once

#include "app/start.h"
#include "relief/relief.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <vector>

// Field that takes typing; the one that is selected has all its text selected with it.
enum class PoleStartu : std::uint8_t { zadne, txtHodiny, txtMinuty, txtAutosave };

struct Parametry {
    bool nactena = false; // nacti_start has gone through
    Text lblVerze;
    std::vector<Text> lblInfo_verze; // versions of the data files, a line each
    Text txtHodiny, txtMinuty, txtAutosave;
    PoleStartu vybrane = PoleStartu::zadne;
    int cboDen = 0;                                   // 0 Monday to 6 Sunday
    int cboRychlost = 0;                              // 0 is the speed 1
    std::vector<Text> miGVD;                          // timetables on offer, names without ".dat"
    Text lblAktualni_GVD, lblGVD_popis_aktualni;      // the one selected, and what its header says
    std::vector<Text> miOblibena;                     // favourite start times, "h:mm"
    bool chkZpozdeni = true, chkPP = true;            // trains may be late; category PP runs
    bool chkZvuk = false;                             // no sound
    bool chkAutosave = false;                         // periodic save, every txtAutosave played minutes
    bool chkVypravci = false;                         // the automatic dispatcher has the desk
    bool chkNoresize = false, chkDualMonitor = false; // leave the display alone; no second monitor
    Text lblMonitor;
    int vlevo = kZadny; // left edge of the screen in twips; kZadny: centred
    int stranka = 0;    // page that is shown, an index of kStrankyStartu

    bool operator==(const Parametry&) const = default;
};
extern Parametry parametry;

inline constexpr TextPohled kObrazovkaStartu = "frmParametry";
extern const std::array<TextPohled, 3> kStrankyStartu; // captions of the pages, the main one blank
extern const std::array<TextPohled, 7> kDnyStartu;     // entries of cboDen
inline constexpr int kRychlostiStartu = 4;             // entries of cboRychlost: 1 to 4
// Boxes that the screen carries though nothing hangs on them: shown, never to be ticked.
extern const std::array<TextPohled, 5> kVolbyBezUcinku;

// --- at start

// Checks the installation in the program's folder and fills the screen from the wall clock, the disk, the
// display and the settings. False after the box that tells what is wrong: the program has ended then, no
// state of a simulation exists. A stored setting that is no number is the run-time error 13.
bool nacti_start(TextPohled slozka);

// By the screen's load, and when the display has changed while it is open: one monitor or two.
void rozpoznej_monitory();

// --- on the operator's command

// Entry of the menu of timetables: its name, its file, its description. An index that is none: nothing.
void vyber_gvd(int index);
// The menu itself, for the view that shows menus of the core.
void otevri_nabidku_gvd();

// A field was selected, and all its text with it.
void vyber_pole(PoleStartu pole);
// Text of a field in place of what it holds; anything can be typed, the start command looks at it.
void pis_do_pole_startu(PoleStartu pole, TextPohled text);
// Arrow up (1) and down (-1) in the field of the hours or minutes: one step, round at the end.
void krok_casu(PoleStartu pole, int smer);
// A time by chance. The hour 23 and the minute 59 are never drawn: a night shift that begins an hour before
// midnight is chosen by hand.
void nahodny_cas();

// Stores the time of the screen as a favourite, unless it is no time.
void pridej_oblibeny();
// Opens the menu of the favourites; with none a box says how to make one.
void otevri_oblibene();
// Takes the time of a favourite. An index that is none: nothing.
void vyber_oblibeny(int index);

// The lists of days (0 Monday) and of speeds (0 is the speed 1). An index that is none: nothing.
void vyber_den(int den);
void vyber_rychlost(int index);
// A box of the screen that only counts with the start: chkZpozdeni, chkPP, chkAutosave, chkVypravci,
// chkNoresize, chkDualMonitor.
void zaskrtni(bool Parametry::*policko, bool zapnuto);
// The box "Zvuk vypnut": it counts at once.
void nastav_zvuk(bool vypnut);
// One of the two page images, 1 or 2: to its page, and from there back to the main one.
void prepni_stranku(int stranka);
// The manual in the system's viewer.
void otevri_navod();
// The end image.
void konec_startu();

// Start, also by Enter. False when the time is none (after a box) or the start is on its way already; true
// when the simulation is prepared: the splash screen stands, start_simulace follows after its ten seconds.
bool start_prikaz();
// The same with these choices in place of those of the screen, and with a seed of its own: a lesson. What the
// operator has stored of his choices stays.
bool start_s_volbami(const VolbyStartu& volby, std::uint64_t semeno);
// Open: asks for a saved simulation. True as above; false when the dialogue was cancelled.
bool otevri_zaznam();
// The same with a file that is chosen already, as a click on it in the system's folders does. True as above.
bool otevri_soubor(TextPohled soubor);
// By the desk when its start screen is seen: asks whether the game that an error ended is to go on from its
// emergency save, and tells of the report of an end of which nobody could be told. Each game is offered once
// and stays among the saves. True as above.
bool nabidni_nouzovy();

// --- at any time, without change

// The options of the second page as uloz_volby takes them.
MoznostiStartu moznosti_startu();
