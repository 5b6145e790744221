// app/smena.h - the record of the shift: a script of the runner that plays it again.
//
// The script is whole by itself: seed, wall clock, settings, macros, the loaded save if there was one, the
// start with its options, and every act of the hands at its millisecond. tesk-davka plays it to the same
// train-number log, byte for byte. When time is turned back, the record ends there and goes on with what is
// done then; a note in it says from which moment.
//
// The desk keeps a record of each shift in smeny\ beside the saves. It grows once a simulated minute, by
// whole lines, so that a crash costs what was done in the last minute.
#pragma once

#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Records that are kept beside the present one, and what they take together at most; the oldest go first.
inline constexpr std::size_t kNejviceSmen = 50;
inline constexpr std::int64_t kNejviceSmen_B = 50'000'000;

// --- by the start

// The world as it is before the simulation is prepared, and the seed with which it will be.
void zacatek_smeny(std::uint64_t semeno);

// --- by the host, when the desk stands and the login waits

// The record begins, and with it the history. `do_souboru`: it is kept on the disk too.
void zacni_smenu(bool do_souboru);
// A record that began without one gets its file, with all that is in it already.
void zaloz_soubor_smeny();
// What is not on the disk yet; at the end of the program.
void dopis_smenu();

// --- when the tables are filled anew

void zapomen_smenu();

// --- at any time, without change

// The record so far, UTF-8, up to this very millisecond.
std::string zaznam_smeny();
// File of the record that is kept; empty for none, as while the disk takes none.
Text soubor_smeny();
// The record cannot be written: why, for a box. Answered once a shift: what the disk does not take waits, and
// is tried again each minute.
std::optional<Text> vada_smeny();

// The beginning of a record, up to the start of its simulation; empty when there is none.
std::string_view zacatek_zaznamu(std::string_view zaznam);

// Bytes as letters of a script, and back; nothing when the text is none.
std::string na_base64(const Bajty& bajty);
std::optional<Bajty> z_base64(std::string_view text);
