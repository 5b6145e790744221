// desk/hlaseni.h - the message list: which trains come late, and by how much.
//
// The delay of a train that is not yet here stands in no field but in its line of this list, and deleting the
// line makes the train punctual: the operator has told it on. The operator reads the text in lstZpravy; what
// the traffic asks stands beside it, and no operation reads it out of the text again.
#pragma once

#include "zaklad/text.h"

#include <cstdint>
#include <vector>

// One line. A line that tells of no delay has neither number nor minutes.
struct Hlaseni {
    Text text; // as shown and saved
    bool zpozdeni = false;
    std::int32_t cislo = 0; // of the timetable
    std::int16_t minut = 0;
    bool operator==(const Hlaseni&) const = default;
};
extern std::vector<Hlaseni> hlaseni; // in the order of the list, the oldest first

// --- by the traffic

// The train will come so many minutes late: its line joins the list.
void pridej_zpozdeni(std::int32_t cislo, std::int16_t minut);
// A train that runs under these two numbers has left: its lines go. The selection of the operator stays on
// its line when one above goes.
void smaz_zpozdeni(std::int32_t cislo, std::int32_t druhe);

// --- on the operator's command

// Delete on the selected line: the delay of that train is then 0.
void smaz_radek_zprav();

// --- by a load

// The lines of a save join the list. It holds texts only, so this is the one place where a delay is read out
// of its line: the number from the column behind "Zpoždění vlaku ", the minutes from the last three
// characters.
void prevezmi_hlaseni(const std::vector<Text>& radky);

// --- at any time, without change

// Delay of the train in minutes by its first line in the list; 0 without one.
std::int16_t zpozdeni_vlaku(std::int32_t cislo);
// The lines as shown.
std::vector<Text> texty_hlaseni();
