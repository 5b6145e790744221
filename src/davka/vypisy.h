// davka/vypisy.h - what a script can look at: elements, tables and the parts of the desk.
#pragma once

#include "davka/json.h"
#include "relief/relief.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What a command points at, and how many of its words say so.
struct Cil {
    std::string slovo;        // as written: the kind of an element, or the word of a table
    std::optional<Druh> druh; // set for an element
    int cislo = kZadny;       // element number or row; kZadny: the whole table
    std::string jmeno;        // row by its name instead of a number (entry of a menu)
    std::size_t slov = 0;
};

// Reads the target at the start of `slova`. A kind of the layout needs a number, a part of the desk is
// element 0 without one. An unknown word is an error of the script.
Cil precti_cil(std::span<const std::string> slova);

// A part of the desk, not of the layout. Elements of the layout are many and need a number; of the desk's own
// there is one of each, or the first is meant.
bool je_cast_stolu(Druh druh);

// The record that `vypis` prints for the target. Beeps and boxes are looked at, not taken away.
ZaznamJsonu vypis(const Cil& cil);
// After `vypis pipnuti` and `vypis okna`: what has been printed is forgotten.
void zapomen_vypsane(const Cil& cil);

// The fields of the element alone.
ZaznamJsonu popis_prvku(Druh druh, int cislo);
