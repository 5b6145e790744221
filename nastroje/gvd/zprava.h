// nastroje/gvd/zprava.h - what a timetable holds, told in tables, and what its plan leaves to hands.
#pragma once

#include "gvd/dukaz.h"

#include <string>
#include <string_view>

namespace planovani {

// Trains by category, entry, exit and hour, for each day of the week; Markdown in UTF-8.
std::string tabulka_provozu(const JizdniRad& rad, std::string_view nadpis);
// The report of the compiler: the tables, the faults, and what the plan cannot promise.
std::string zprava_planu(const JizdniRad& rad, const Dukaz& dukaz, std::string_view nadpis);

} // namespace planovani
