// app/hlaseni_chyby.h - what the program writes of itself: a report of each error that has ended it, and its
// log.
//
// For whoever has to find out what happened. Both lie in the folder "hlaseni" and are UTF-8. A report tells
// the error, the version, where the game and the record of the shift are, and what was done last. A host that
// keeps reports says so; the others write nothing.
#pragma once

#include "app/nouzove.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Reports and lines of the log that are kept; the oldest go first.
inline constexpr std::size_t kNejviceHlaseni = 20;
inline constexpr std::int64_t kNejdelsiLog_B = 200'000;

// --- by the host, at its start and at its end

void pis_hlaseni_chyb(bool ano);

// --- when an error ends the program

enum class Pad : std::uint8_t {
    receny,  // a box tells it
    nereceny // nobody could be told: the next start does
};
// Writes the report and answers with its path; nothing when the host keeps none or the disk takes none. Never
// throws: the error may lie in what it tells of.
std::optional<Text> zapis_hlaseni(std::string_view co, NouzoveUlozeni nouzove, Pad pad) noexcept;

// --- on the start screen

// The newest report that nobody was told of. With it all such reports count as told.
std::optional<Text> vezmi_nereceny_pad();

// --- at any time

// A line of the log, with the time of the wall clock before it. Silent when it cannot be written.
void pis_do_logu(std::string_view radek) noexcept;

// --- at any time, without change

// The report from the state as it is, the error itself aside. UTF-8.
std::string text_hlaseni(std::string_view ulozeny_stav);
// "hlaseni\" and "hlaseni\nove\" in the operator's folder: of those that were told, and of those that were
// not.
Text slozka_hlaseni(Pad pad);
// "chyba_260105_130000_122959.txt"
Text jmeno_hlaseni();
