// davka/beh.h - one run of a script: what its commands share.
#pragma once

#include "davka/json.h"
#include "zaklad/balik.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// One run of a script. The tables of the simulation are global, so there is one at a time.
struct BehSkriptu {
    std::function<void(const Json&)> vypis; // one object of the output
    int radek = 0;                          // line of the script, from 1
    bool spusteno = false;                  // the start screen has been left
    bool over_selhal = false;               // a check has failed
    bool prehrava = false;                  // the script is the record of a shift
    std::optional<Bajty> makra, hra;        // that it brings: stored macros, the game from which it starts
};

// The words of a line behind its command.
using Slova = std::span<const std::string>;

// The check of the state failed: thrown out of a timer by --kontrola.
struct ChybaStavu {
    std::string co; // UTF-8
};

// An error of the script: the command needs a simulation that has been started.
[[noreturn]] void chyba_pred_startem(std::string_view prikaz);
