// lekce/lekce.h - a lesson on the desk as it is written down: its start, its steps, and what each one shows,
// asks for and forgives.
//
// Data of the installation and no code: lekce\*.lekce, a text that docs/lekce.md tells of. What a step asks
// for is written in the language of the runner's hands, so that a test can do exactly what the lesson shows.
#pragma once

#include "lekce/podminky.h"
#include "obsluha/ukony.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lekce {

// Where the simulation begins: what the start screen would be told.
struct Zacatek {
    std::uint8_t hodina = 0, minuta = 0;
    std::uint8_t den = 0;      // 0 Monday
    std::uint8_t rychlost = 1; // 1 to 4
    Text gvd;
    std::uint64_t semeno = 1;
};

// A place on the desk that is pointed at. Several in a row are numbered from 1.
struct Misto {
    Druh druh = Druh::kolej;
    int n = kZadny;
    int poradi = 0;  // 0: not one of several
    bool ted = true; // it is its turn; else it comes later
    bool operator==(const Misto&) const = default;
};

// What the operator is to do: an act of the hands. F6 is the desk's own key and no act of the core.
struct UkonLekce {
    Ukon ukon{};
    bool predani = false; // F6: the desk to the automatic dispatcher, and back
    Text radek;           // as it is written
};

// Something went another way: what is said then, what is to be done about it, and which step comes next once
// it is put right.
struct Odbocka {
    std::vector<Podminka> kdyz; // all of them
    Text text;
    std::vector<UkonLekce> naprava;
    std::size_t jdi = 0; // index of a step
};

struct Krok {
    Text jmeno;               // for `jdi`; may be empty
    Text nadpis;              // what it is about
    std::vector<Text> text;   // paragraphs; **...** stands out
    std::vector<Misto> mista; // pointed at all the time
    std::vector<UkonLekce> ukony;
    std::vector<Podminka> hotovo; // all of them; a step without is only read
    Text rekni;                   // said when it is done; may be empty
    std::vector<Odbocka> odbocky;
    std::int32_t mez_s = 0; // of simulated time, after which the lesson offers to try again; 0 none
    // The service stands while it is read: a step without anything to do.
    bool jen_cteni() const { return hotovo.empty(); }
};

struct Lekce {
    Text nazev;
    Text popis; // one sentence
    int minut = 0;
    Zacatek zacatek;
    std::vector<Krok> kroky;
};

// --- at any time, without change

inline constexpr std::size_t kNejvetsiLekce_B = 256 * 1024;
inline constexpr std::size_t kKrokuLekce = 200;

// The text of a file, UTF-8. What cannot be understood is told in `zavady`, a sentence a fault with its line;
// a lesson with a fault is not played.
Lekce precti_lekci(std::span<const std::uint8_t> bajty, std::vector<Text>& zavady);
// What an act is, as an operator is told: "klepněte na LHO S1", "zvolte RC".
Text popis_ukonu(const UkonLekce& ukon);
// Names of the lessons of the installation, without folder, in their order.
std::vector<Text> soubory_lekci();
// Whole path of a lesson of the installation.
Text cesta_lekce(TextPohled soubor);

} // namespace lekce
