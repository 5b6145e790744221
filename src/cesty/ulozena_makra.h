// cesty/ulozena_makra.h - the stored macros, data\tesk.mak, in the order of recording.
#pragma once

#include "cesty/tabulky.h"
#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <optional>
#include <vector>

// What the maintenance screen shows of the macros.
struct SeznamMaker {
    std::vector<Text> radky;   // one macro a line
    Text klavesy;              // their letters, separated by character 13
    std::vector<Text> pismena; // the letter of each line, as its record holds it
};

// --- at any time, without change. A missing file is the run-time error 53.

// All records of the file.
std::vector<ZaznamMakra> ulozena_makra();
// The list for the maintenance screen.
SeznamMaker nacti_makra();

// --- on the operator's command

// The record goes behind the last byte of the file.
void pridej_ulozene_makro(const ZaznamMakra& makro);
// Delete in the list: the file without the records of that name.
void smaz_makro(TextPohled pismeno);

// --- when a shift is played again, or time is turned back

// The macros stand in these bytes instead of the file, until they stand in others or, without any, in the
// file again. Answers with the bytes in which they stood before; nothing when that was the file.
std::optional<Bajty> podloz_makra(std::optional<Bajty> obsah);
// What the file holds, or those bytes; nothing when there is no file.
Bajty obsah_maker();
// The file holds these bytes; nothing happens when it does already.
void obnov_makra(const Bajty& obsah);
