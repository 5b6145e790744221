// davka/hodnoceni.h - a recorded shift, and what the automatic dispatcher makes of the same hours.
#pragma once

#include "davka/davka.h"

#include <iosfwd>
#include <string>

// Plays the record, lets the dispatcher serve from the same start to the same time, and writes the page that
// assesses both. Nothing else is written, so that a desk may run in the folder. Answers with the exit status;
// what is wrong goes to `chyby`.
int napis_hodnoceni(const VolbyDavky& volby, const std::string& soubor, std::ostream& vystup,
                    std::ostream& chyby);
