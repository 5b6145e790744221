// nastroje/kolejiste/kontroly.h - what the rules of the running demand of the numbers, checked on the plan.
#pragma once

#include "kolejiste/graf.h"

#include <vector>

namespace kolejiste {

// Names, families, labels, second drawings, lengths, crossings, shapes and links of what is drawn.
void zkontroluj(const Plan& plan, const Graf& graf, const std::vector<ZaznamReliefu>& jeden,
                const std::vector<ZaznamReliefu>& dva, std::vector<Zavada>& zavady);
// Demanded numbers that are not drawn, by kind.
std::map<std::string, std::vector<int>> chybejici(const Plan& plan, const std::vector<ZaznamReliefu>& jeden);

} // namespace kolejiste
