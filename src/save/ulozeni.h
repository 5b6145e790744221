// save/ulozeni.h - saved simulations: writing the whole state to a file, and starting from one.
//
// A save is one record of 42 fields (save/zaznam.h). It is written in a pause, and its end always starts the
// clock again: a save made by hand in a pause leaves the simulation running, which is meant. It costs no
// simulated time: where the clock ran, it goes on within its second as if there had been no save. A load
// stands between the two stages of the start, so that the login follows it as after a fresh start.
#pragma once

#include "app/start.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>
#include <span>

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
// The start screen's open command: asks for a file; with one takes and stores the options, prepares the
// simulation and answers true: the splash screen goes on as after a start. False: the start screen stays.
bool nacti_dialog(const MoznostiStartu& moznosti);
// The same without the dialogue.
void priprav_nacteni(TextPohled soubor, const MoznostiStartu& moznosti);

// --- by the minute step and the dialogue

// Writes the state to the file and starts the clock. `tichy` suppresses the boxes that tell how it went. An
// old longer file keeps its end behind the record, where no reader looks. Whatever happens while it is
// written, the old file stays readable. What went wrong, for those that keep silence; nothing when all went
// well.
std::optional<Text> uloz_simulaci(TextPohled soubor, bool tichy, std::optional<Rozbeh> rozbeh = {});
// The periodic save: without a box, under the name of this moment; a failed one is told on the command line.
// The newest ten of a game are kept.
void uloz_prubezne();

// --- by start_simulace, in the pause

// Reads the file and puts the whole state in place of the present one, or changes nothing: then a box, and
// the process ends. True when the simulation goes on.
bool nacti_simulaci(TextPohled soubor);
// The same from the bytes of a file, without the boxes that tell how it went; a run-time error when the
// state is refused and nothing has changed.
void nacti_simulaci_z(std::span<const std::uint8_t> bajty);
// Would these bytes be taken? The state stays as it is, and no box is shown.
bool da_se_nacist(std::span<const std::uint8_t> bajty);
// Once the timetable has been read too: the consents that stand, by the trains that were given one. The file
// does not say.
void obnov_souhlasy();

// --- at any time, without change

// File of the periodic save of this moment: wall-clock date and time, and the simulated time.
Text soubor_autosave();
// "260105_130000_122959.sim": the end of that name.
Text jmeno_okamziku();
