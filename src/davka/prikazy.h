// davka/prikazy.h - the commands of the runner's language.
#pragma once

#include "davka/beh.h"

#include <span>
#include <string>
#include <string_view>

// Does one line of a script. Throws ChybaSkriptu for a line that cannot be understood or done, and
// lets KonecProgramu through when the simulation ends itself. `jen_pohled`: the simulation has ended,
// looking is all that is left; other commands are passed over.
void proved_radek(BehSkriptu& beh, std::string_view radek, bool jen_pohled);

// The folder of the program, as the command `slozka` and the option take it.
void nastav_slozku(const std::string& utf8);

// One line a command: how it is written. For the help.
std::span<const std::string_view> zapisy_prikazu();
