// nastroje/kolejiste/makra.h - the macros that the desk comes with: read, proved against the routes, staged.
//
// The file of the macros belongs to the operator, who records his own behind ours and deletes what he does
// not want. So a compiler may write it only as long as nobody has touched what it wrote before.
#pragma once

#include "cesty/tabulky.h"
#include "kolejiste/trasy.h"

#include <filesystem>

namespace kolejiste {

struct KrokVychozihoMakra {
    Misto misto;
    DruhTrasy druh{};
    int zacatek = 0, konec = 0;
};
struct VychoziMakro {
    Misto misto;
    char pismeno = 'A';
    std::vector<KrokVychozihoMakra> kroky;
};

// Reads one source behind the macros read before; everything that is wrong joins `zavady`.
void precti_makra(std::string_view text, const std::string& soubor, std::vector<VychoziMakro>& makra,
                  std::vector<Zavada>& zavady);

// A letter has one macro, a macro steps, a step its route; and the routes of a macro can all stand at once,
// or the last of them would wait until the first are run.
void zkontroluj_makra(const std::vector<VychoziMakro>& makra, const std::vector<Trasa>& trasy,
                      std::vector<Zavada>& zavady);

Bajty soubor_maker(const std::vector<VychoziMakro>& makra); // tesk.mak, in the order of the source

// Stages the macros: `vychozi.mak` in the folder always holds the default, `tesk.mak` takes it when it is not
// there, or holds what vychozi.mak held before (nothing, where there was none). False when a file cannot be
// read or written, which has been told.
bool uloz_makra(const std::filesystem::path& slozka, const Bajty& vychozi);

} // namespace kolejiste
