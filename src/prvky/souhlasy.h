// prvky/souhlasy.h - consents of the three line ends of uzel/trate.h.
#pragma once

#include "obsluha/tlacitko.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <vector>

struct Souhlasy {
    std::array<bool, 3> souhlas{};               // given, and the train has not come in yet
    std::vector<std::int32_t> cekajici_vlaky{0}; // numbers of trains that may enter; one entry 0: none
    bool operator==(const Souhlasy&) const = default;
};
extern Souhlasy souhlasy;

// --- on the operator's command; an index that is no line end does nothing

// Press on the lamp k: left asks whether to take the train that waits, right opens the menu.
void klik_souhlas(int k, Tlacitko tlacitko);
// Opens the menu of line end k.
void menu_souhlasu(int k);
// US, or Enter on the question: the train that asks may come in. Nothing when nobody asks. The question
// of this line, when it stands on the command line, is confirmed and makes room for the next message.
void souhlas_us(int k);
