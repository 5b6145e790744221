// lekce/postup.h - how far the operator has come in each lesson: kept in his settings, with a save of the
// moment from which he can go on.
#pragma once

#include "zaklad/text.h"

#include <cstddef>
#include <optional>

namespace lekce {

struct Postup {
    bool hotova = false;             // was walked to its end once
    std::optional<std::size_t> krok; // begun and left in this step; the save is there
};

// --- at any time, without change

// By the name of the lesson's file.
Postup postup(TextPohled soubor);
// The save from which the lesson goes on.
Text zaznam_postupu(TextPohled soubor);

// --- by the host, the desk at a moment that can be gone back to

// The lesson is in that step: the state is saved beside it. False when the disk does not take it; the lesson
// goes on all the same.
bool zapis_postup(TextPohled soubor, std::size_t krok);
// It has been walked to its end; there is nothing to go on from.
void zapis_hotovou(TextPohled soubor);
// What was begun is given up.
void zapomen_postup(TextPohled soubor);

} // namespace lekce
