// save/ulozeni.h - saved simulations: writing the whole state to a file, and starting from one.
//
// A save is one record of 42 fields (save/zaznam.h). It is written in a pause, and its end always starts the
// clock again: a save made by hand in a pause leaves the simulation running, which is meant. A load stands
// between the two stages of the start, so that the login follows it as after a fresh start.
#pragma once

#include "app/start.h"
#include "zaklad/text.h"

#include <cstdint>
#include <span>

// --- on the operator's command

// Ctrl+S and imgUloz, the clock standing: asks for a file, asks once more before an old one is overwritten,
// and writes it. A cancelled dialogue leaves the pause.
void uloz_dialog();
// The start screen's open command: asks for a file; with one takes and stores the options, prepares the
// simulation and answers true: the splash screen goes on as after a start. False: the start screen stays.
bool nacti_dialog(const MoznostiStartu& moznosti);
// The same without the dialogue.
void priprav_nacteni(TextPohled soubor, const MoznostiStartu& moznosti);

// --- by the minute step and the dialogue

// Writes the state to the file and starts the clock. `tichy` suppresses the boxes that tell how it went. An
// old longer file keeps its end behind the record, where no reader looks. Whatever happens while it is
// written, the old file stays readable.
void uloz_simulaci(TextPohled soubor, bool tichy);
// The periodic save: in silence, under the name of this moment. The newest ten are kept.
void uloz_prubezne();

// --- by start_simulace, in the pause

// Reads the file and puts the whole state in place of the present one, or changes nothing: then a box, and
// the process ends. True when the simulation goes on.
bool nacti_simulaci(TextPohled soubor);
// The same from the bytes of a file, without the boxes that tell how it went; a run-time error when the
// state is refused and nothing has changed.
void nacti_simulaci_z(std::span<const std::uint8_t> bajty);
// Once the timetable has been read too: the consents that stand, by the trains that were given one. The file
// does not say.
void obnov_souhlasy();

// --- at any time, without change

// File of the periodic save of this moment: wall-clock date and time, and the simulated time.
Text soubor_autosave();
