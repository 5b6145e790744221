// prvky/souhlasy.h - consents of the three line ends.
#pragma once

#include "gvd/dopravny.h"
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

// A line end towards a neighbouring station: the two elements that route logic treats as one, its
// names, and the glyphs of its lamp.
struct KonecTrati {
    int navestidlo; // number of the signal and of the section outside
    int usek;       // section inside, where routes from here end
    int vjezd;      // first signal of a train that comes in
    int stanice;    // the neighbour, gvd/dopravny.h
    TextPohled nazev;
    TextPohled vyzva; // beginning of the question "... Přijmete vlak "
    int znak_dovnitr; // glyph at rest, with a consent given, behind a train that came in
    int znak_ven;     // glyph while a route leads out
};
inline constexpr std::array<KonecTrati, 3> kKonceTrati = {{
    {212, 84, 284, dopravna::polska_lhota, "PLH-JAV", " PLH: Přijmete vlak "_cz, 8, 15},
    {213, 85, 285, dopravna::hvozdy, "HVO-JAV", " HVO: Přijmete vlak "_cz, 8, 15},
    {219, 117, 317, dopravna::vrbice, "VRB-THN", " VRB: Přijmete vlak "_cz, 176, 183},
}};

// --- at any time, without change

// Line end to which element n belongs, by either of its two numbers; -1 when to none.
constexpr int konec_trati(int n) {
    for (int k = 0; k < 3; ++k)
        if (n == kKonceTrati[static_cast<unsigned>(k)].navestidlo ||
            n == kKonceTrati[static_cast<unsigned>(k)].usek)
            return k;
    return -1;
}

// Line end towards a station; -1 when trains from there need no consent.
constexpr int konec_ke_stanici(int stanice) {
    for (int k = 0; k < 3; ++k)
        if (stanice == kKonceTrati[static_cast<unsigned>(k)].stanice)
            return k;
    return -1;
}

// --- on the operator's command; an index that is no line end does nothing

// Press on the lamp k: left asks whether to take the train that waits, right opens the menu.
void klik_souhlas(int k, Tlacitko tlacitko);
// Opens the menu of line end k.
void menu_souhlasu(int k);
// US, or Enter on the question: the train that asks may come in. Nothing when nobody asks. The question
// of this line, when it stands on the command line, is confirmed and makes room for the next message.
void souhlas_us(int k);
