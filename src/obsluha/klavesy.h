// obsluha/klavesy.h - the keys of the main screen.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

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

// --- on the operator's command

// A key of the main screen. Answers whether the screen knows the key at all.
bool klavesa(const Klavesa& k);
// Text of the input field in place of what it holds; nothing while the field is closed.
void pis_do_pole(TextPohled text);

// --- at any time, without change

// Name of a key as the headless runner and the manual write it: "Enter", "F2", "Ctrl+S", "Num/",
// "Alt+Shift+A"; kod jina for a key that the desk has no use for, zadna when no keyboard has it.
Klavesa klavesa_podle_jmena(TextPohled jmeno);
// The key that ends the program at once.
bool je_klavesa_konce(const Klavesa& k);
// The first of the names of a key; of one without a use on the desk any that has none.
Text jmeno_klavesy(const Klavesa& k);
