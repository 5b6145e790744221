// obsluha/vstup.h - the operator's hands: clicks and choices of menus here, keys in obsluha/klavesy.h.
//
// The screen and the headless runner work the simulation only through these operations; whatever a
// hand can do passes here. An element or entry that takes no input ignores it.
#pragma once

#include "obsluha/klavesy.h"
#include "obsluha/tlacitko.h"
#include "relief/relief.h"
#include "zaklad/text.h"

#include <cstdint>

enum class Technologie : std::uint8_t; // technologie/technologie.h

// --- on the operator's command

// Press of a button on the element n of a kind.
void klik(Druh druh, int n, Tlacitko tlacitko, bool ctrl);
void dvojklik(Druh druh, int n);
// The pointer came over an element; over the empty desk with odjeti().
void najeti(Druh druh, int n);
void odjeti();
// The pointer moved, anywhere.
void pohyb_mysi();
// Click on the empty desk.
void klik_na_plochu();
// Click on a line of a list.
void klik_na_radek(Seznam& seznam, int radek);

// A train picked by its number beside the desk: the search for its label, and its page on the bottom panel,
// by the timetable when it is not here.
void ukaz_vlak(std::int32_t cislo);

// Click on a tab of an open maintenance screen.
void klik_na_zalozku(Technologie ktera);

// The entry of the open menu that is called `jmeno`: false when there is none such, or when it is
// hidden or disabled.
bool zvol_v_menu(TextPohled jmeno);
// The open menu goes without a choice.
void zahod_menu();

// --- when the window system says so

// The window of the desk went away, and came back.
void okno_zmizelo();
void okno_se_vratilo();
// A window that is no box, as the manual, stops the service while it is open, and lets it run on.
void zastav_sluzbu();
void spust_sluzbu();
// The window is to be closed: asks whether the simulation is to end.
void zavri_okno();
