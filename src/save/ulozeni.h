// save/ulozeni.h - saved simulations: writing the whole state to a file.
//
// A save is one record of 42 fields (save/zaznam.h). It is written in a pause, and its end always starts the
// clock again: a save made by hand in a pause leaves the simulation running, for every save ends in the same
// way, the periodic one too. It costs no simulated time: where the clock ran, it goes on within its second as
// if there had been no save.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <optional>

// What of their step the clock and the trains had run when the pause of a save began, ms.
struct Rozbeh {
    std::int32_t hodiny = 0, jizda = 0;
};

// --- on the operator's command

// Begins the pause of a save. Nothing when the clock stood already: then the save ends a pause like any
// other.
std::optional<Rozbeh> zastav_pro_ulozeni();
// Ctrl+S and imgUloz, the clock standing: asks for a file, asks once more before an old one is overwritten,
// and writes it. A cancelled dialogue leaves the pause.
void uloz_dialog(std::optional<Rozbeh> rozbeh = {});

// --- by the minute step and the dialogue

// Writes the state to the file and starts the clock. `tichy` suppresses the boxes that tell how it went. An
// old longer file keeps its end behind the record, where no reader looks. Whatever happens while it is
// written, the old file stays readable. What went wrong, for those that keep silence; nothing when all went
// well.
std::optional<Text> uloz_simulaci(TextPohled soubor, bool tichy, std::optional<Rozbeh> rozbeh = {});
// The periodic save: without a box, under the name of this moment; a failed one is told on the command line.
// The newest ten of a game are kept.
void uloz_prubezne();

// --- at any time, without change

// File of the periodic save of this moment: wall-clock date and time, and the simulated time.
Text soubor_autosave();
// "260105_130000_122959.sim": the end of that name.
Text jmeno_okamziku();
