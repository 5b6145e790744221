// lekce/podminky.h - what a lesson waits for: facts that an operator sees on the desk.
//
// A condition only looks. What it names is held against the tables at the moment when it is asked, so that a
// step is done by whatever way the operator has come there.
#pragma once

#include "obsluha/ukony.h"
#include "relief/prvek.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lekce {

enum class Fakt : std::uint8_t {
    prihlaseno,      // the login has ended
    cas,             // the clock shows that time of the day or a later one
    cesta,           // a train or shunt route from a to b waits, is set, stands or is run over
    postavena,       // it stands, or a train is on it
    bez_cesty,       // no route from a
    rusi_se,         // a route from a is being cancelled
    navest,          // signal a shows: text
    zacatek,         // signal a is picked as the start of a route
    vlak_na,         // train a holds element b
    vlak_stoji,      // likewise, all of it, and it does not run
    vlak_jede,       // train a runs
    vlak_neni,       // no record bears the number a
    vlak_posun,      // train a is a shunting movement
    vlak_celo,       // the first vehicle of train a is of the series: text
    vlak_lokomotiva, // an engine alone, of the series: text, stands on a
    kolej,           // element a is free, or occupied: text
    nabidka,         // the menu of that element is open
    hlaseni,         // the command line holds a message with that text
    souhlas,         // at line end a: asks, given, rest: text
    prejezd,         // station crossing a: text
    vyhybka,         // switch a lies: text
    poznamka,        // element a bears a note: text
    panel,           // what the bottom panel shows: text
    info,            // the bottom panel tells of train a
    vypravci,        // the automatic dispatcher has the desk
    stoji,           // the service stands
    rychlost,        // speed of the clock is a
    denik,           // a line of the diary holds that text
    ukon,            // the operator has done this since the step began
};

struct Podminka {
    Fakt fakt = Fakt::prihlaseno;
    bool ne = false; // the contrary
    Druh druh = Druh::kolej;
    std::int32_t a = kZadny, b = kZadny;
    Text text;
    std::optional<Ukon> ukon{};
};

// A condition that cannot be understood: why.
struct VadaPodminky {
    Text proc;
};

// --- at any time, without change

// From its words, UTF-8; throws VadaPodminky.
Podminka precti_podminku(const std::vector<std::string>& slova);
// It holds now. `od`: the first act of `ukony_smeny` that belongs to the step.
bool plati(const Podminka& podminka, std::size_t od);
bool plati_vse(const std::vector<Podminka>& podminky, std::size_t od);
// The command line holds a message with that text.
bool je_hlaseni(TextPohled text);
// Two acts are the same for one who looks: the number of a track and its target are one place, and which line
// of a list is picked no lesson can know beforehand.
bool stejny_ukon(const Ukon& a, const Ukon& b);
// Number of a track's label or target as the place where a route ends.
int misto_volby(Druh druh, int n);

} // namespace lekce
