// nastroje/kolejiste/vystup.h - the binary files of the junction.
#pragma once

#include "kolejiste/plan.h"

#include <vector>

namespace kolejiste {

Bajty soubor_reliefu(const std::vector<ZaznamReliefu>& zaznamy, TextPohled popis);
Bajty soubor_delek(const Plan& plan);    // tesk.top, by rising number
Bajty soubor_prejezdu(const Plan& plan); // tesk.pzz, by index
Bajty soubor_vazeb(const Plan& plan);    // tesk.stg, by rising number

} // namespace kolejiste
