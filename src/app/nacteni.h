// app/nacteni.h - starting from a saved simulation.
//
// A load stands between the two stages of the start, so that the login follows it as after a fresh start.
#pragma once

#include "app/start.h"
#include "zaklad/balik.h"
#include "zaklad/text.h"

#include <cstdint>
#include <optional>
#include <span>

// --- on the operator's command

// The start screen's open command: asks for a file; with one takes and stores the options, prepares the
// simulation and answers true: the splash screen goes on as after a start. False: the start screen stays.
bool nacti_dialog(const MoznostiStartu& moznosti);
// The same without the dialogue. A record of a shift holds the bytes of its file: they are then read in its
// place.
void priprav_nacteni(TextPohled soubor, const MoznostiStartu& moznosti, std::optional<Bajty> obsah = {});

// --- by start_simulace, in the pause

// Reads the file and puts the whole state in place of the present one, or changes nothing: then a box, and
// the process ends. True when the simulation goes on.
bool nacti_simulaci(TextPohled soubor);
// The same from the bytes of a file, without the boxes that tell how it went; a run-time error when the
// state is refused and nothing has changed.
void nacti_simulaci_z(std::span<const std::uint8_t> bajty);
// Would these bytes be taken? The state stays as it is, and no box is shown.
bool da_se_nacist(std::span<const std::uint8_t> bajty);
// The bytes from which this simulation was loaded; empty when it began anew.
const Bajty& nactena_hra();
// Once the timetable has been read too: the consents that stand, by the trains that were given one. The file
// does not say.
void obnov_souhlasy();
