// zaklad/platforma.h - everything that the core needs from the world outside, data files aside.
//
// One record of functions. The desk fills it with Qt, the headless runner and the tests with virtual
// ones: a clock that moves only when told, settings in memory, dialogues answered from the script,
// beeps collected in a list. A function that a host does not set does nothing and answers with the
// value named here.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

// A moment of the wall clock, local time.
struct NastennyCas {
    int rok = 2026, mesic = 1, den = 5; // month and day from 1
    int hodina = 8, minuta = 0, sekunda = 0, milisekunda = 0;

    // Seconds since midnight; whole ones, and with the fraction.
    std::int32_t sekundy_dne() const { return hodina * 3600 + minuta * 60 + sekunda; }
    double cas_dne() const { return sekundy_dne() + milisekunda / 1000.0; }
    // Day of the week: 0 Monday to 6 Sunday.
    int den_tydne() const;
};

// A mode of the display; frequency in Hz, colour depth in bits per pixel.
struct RezimObrazovky {
    int sirka = 1024, vyska = 768, frekvence = 60, bpp = 32;
    bool operator==(const RezimObrazovky&) const = default;
};

struct Bod {
    int x = 0, y = 0; // pixels of the desk
};

struct Platforma {
    // Time. The tick counter counts milliseconds and may wrap.
    std::function<std::int32_t()> tik_ms;
    std::function<NastennyCas()> nastenny_cas;
    std::function<std::uint64_t()> semeno; // seed of the random source for a new simulation
    std::function<void()> nech_bezet_ui;   // lets the user interface run once
    std::function<void(double)> cekej;     // waits that many seconds of the wall clock, the UI running
    std::function<bool()> ladeni;          // debug mode whatever the folder holds; unset: false

    // Sound: frequency in Hz, length in ms. Muting is the core's business.
    std::function<void(int, int)> pipni;

    // Boxes and dialogues.
    std::function<void(TextPohled titul, TextPohled text)> okno;
    std::function<bool(TextPohled titul, TextPohled text, bool vychozi)> otazka; // unset: the default
    std::function<std::optional<Text>(TextPohled slozka, TextPohled vzor)> soubor_k_otevreni;
    std::function<std::optional<Text>(TextPohled slozka, TextPohled vzor, TextPohled navrh)>
        soubor_k_ulozeni; // `navrh`: the name that the dialogue proposes

    // Settings store under the root "KPS TESK"; section and key are compared without case.
    std::function<std::optional<Text>(TextPohled sekce, TextPohled klic)> nastaveni_cti;
    std::function<void(TextPohled sekce, TextPohled klic, TextPohled hodnota)> nastaveni_pis;
    std::function<void(TextPohled sekce, TextPohled klic)> nastaveni_smaz;
    std::function<std::vector<Text>(TextPohled sekce)> nastaveni_klice; // keys of a section, in order

    // Screen font, registered until the process ends; false: it cannot be.
    std::function<bool(TextPohled soubor)> registruj_pismo;

    // Display modes and the task bar.
    std::function<RezimObrazovky()> rezim;
    std::function<std::vector<RezimObrazovky>()> rezimy;
    std::function<bool(const RezimObrazovky&)> nastav_rezim; // unset: refused
    std::function<void(bool viditelna)> lista;

    // Pointer.
    std::function<Bod()> kurzor;
    std::function<void(Bod)> nastav_kurzor;
    std::function<void(bool)> kurzor_viditelny;

    // Windows, programs and documents.
    std::function<void()> minimalizuj;
    std::function<bool(TextPohled titul)> okno_do_popredi;  // false: no such window
    std::function<bool(TextPohled program)> spust_program;  // false: cannot be started
    std::function<bool(TextPohled soubor)> otevri_dokument; // false: cannot be opened
    std::function<bool()> bezi_jina_instance;               // unset: false

    // Ends the process with an exit code; the host closes what is open. May return: the caller then
    // returns as well, and the host takes no further input.
    std::function<void(int)> ukonci;
};
extern Platforma platforma;

// The services of a host that has nothing: a fixed wall clock, tick 0, no sound, no settings.
Platforma prazdna_platforma();
