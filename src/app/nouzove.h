// app/nouzove.h - the emergency save: what is left of a game that a run-time error has ended.
//
// An error may have come in the midst of a step, so the present state is saved only if a load would take it,
// else the one of the last minute that was whole. The file waits in save\nouzove until a start screen has
// offered it; then it moves among the operator's own saves.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>

enum class NouzoveUlozeni : std::uint8_t { neni_co, ulozeno, selhalo };

// --- by the minute step, once it is whole

// Keeps the state to fall back on.
void zapamatuj_stav();

// --- by the boundary of run-time errors

// Saves the game that runs, in silence; `neni_co` when none does. Never throws: the error may lie in the
// save itself.
NouzoveUlozeni uloz_nouzove() noexcept;
// The file of the last one that was written.
const Text& posledni_nouzovy();

// --- when the system ends the process

// The machine is switched off, or the program is told to end: nobody answers a question. The game is saved in
// silence for the next start, and the program ends as by the end key.
void konec_od_systemu();

// --- at any time, without change

// The state of the last minute that was whole, as the bytes of a save; stays empty when no game runs.
void nouzovy_zaznam(Bajty& bajty);
// The file that an emergency save of this moment gets, and its folder.
Text novy_nouzovy();
Text slozka_nouzovych();

// --- on the start screen

// The newest emergency save that was not offered yet, as a path.
std::optional<Text> cekajici_nouzovy();
// The operator was asked: every waiting save moves into the folder of saves. Answers with the new path of
// `soubor`; the old one when it cannot be moved.
Text odloz_nouzove(TextPohled soubor);

// --- when the tables are filled anew

void zapomen_nouzovy_stav();
