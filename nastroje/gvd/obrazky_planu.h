// nastroje/gvd/obrazky_planu.h - has every vehicle of a timetable its picture?
#pragma once

#include "gvd/prekladac.h"

#include <set>
#include <vector>

namespace planovani {

// Vehicles and locomotives without a picture among the files, and common ones with a single one; each once,
// at its first train.
std::vector<ChybaZdroje> chybejici_obrazky(const JizdniRad& rad, const std::set<Text>& soubory);

} // namespace planovani
