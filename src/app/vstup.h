// app/vstup.h - the operator's hands: clicks, keys, choices of menus.
//
// The screen and the headless runner work the simulation only through these operations; whatever a
// hand can do passes here. An element or entry that takes no input ignores it.
#pragma once

#include "relief/relief.h"
#include "zaklad/text.h"

#include <cstdint>

enum class Technologie : std::uint8_t; // technologie/technologie.h

enum class Tlacitko : std::uint8_t { leve, prave, prostredni };

enum class KodKlavesy : std::uint8_t {
    zadna,
    enter,
    esc,
    f2,
    f3,
    f8,
    f9,
    f10,
    f11,
    num_lomeno,
    num_plus,
    num_minus,
    print_screen,
    sipka_vlevo,
    sipka_vpravo,
    sipka_nahoru,
    sipka_dolu,
    delete_,
    tab,
    pismeno, // with Klavesa::pismeno, upper case
    jina,    // of the keyboard, but without a use on the desk
};

struct Klavesa {
    KodKlavesy kod = KodKlavesy::zadna;
    char pismeno = 0; // 'A' to 'Z' with KodKlavesy::pismeno
    bool ctrl = false, alt = false, shift = false;
};

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

// Click on a tab of an open maintenance screen.
void klik_na_zalozku(Technologie ktera);

// A key of the main screen. Answers whether the screen knows the key at all.
bool klavesa(const Klavesa& k);
// Text of the input field in place of what it holds.
void pis_do_pole(TextPohled text);

// The entry of the open menu that is called `jmeno`: false when there is none such, or when it is
// hidden or disabled.
bool zvol_v_menu(TextPohled jmeno);

// Name of a key as the headless runner and the manual write it: "Enter", "F2", "Ctrl+S", "Num/",
// "Alt+Shift+A"; kod jina for a key that the desk has no use for, zadna when no keyboard has it.
Klavesa klavesa_podle_jmena(TextPohled jmeno);
