// desk/zprava.h - the command line: the one way to speak to the operator.
//
// lblPrikaz 0 shows the short code, lblVolba 0 the text. One message stands at a time; others wait in
// `fronta_zprav`, one for each Enter, first come first shown. What stands there is known by the kind of the
// message; both labels only show it.
#pragma once

#include "relief/prvek.h"
#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <vector>

// What a message is, as far as the desk has to know it while it stands. Kinds of one sort are neighbours.
enum class DruhZpravy : std::uint8_t {
    sdeleni, // tells something; Enter takes note of it
    init,
    tpc,
    archiv, // the three questions of the login
    vc,
    pc,
    pn,      // prompt of a selection: train, shunting, calling-on route
    souhlas, // a neighbour asks to send a train
    stitek,
    nvl,
    vyluka,
    sviti_pn,    // warnings of a route
    cislo_vlaku, // asks for the number of a train
};

// The word with which a message begins. Each kind has its own; messages that only tell something have one or
// another, which nobody asks for.
class SlovoZpravy {
public:
    SlovoZpravy() = default;
    SlovoZpravy(DruhZpravy d) : druh_zpravy(d) {}
    // By its text: the word of a kind makes a message of that kind.
    template <std::convertible_to<TextPohled> T> SlovoZpravy(const T& slovo) { precti(slovo); }
    DruhZpravy druh() const { return druh_zpravy; }
    TextPohled text() const;
    bool operator==(const SlovoZpravy&) const = default;

private:
    void precti(TextPohled slovo);

    DruhZpravy druh_zpravy = DruhZpravy::sdeleni;
    Text sdeleni; // the word of a message that only tells something
};

struct ZpravaFronty {
    SlovoZpravy slovo;
    Text volba;
    std::int32_t pozadi = 0, pozadi_volby = 0, popredi = 0;
    bool vstup = false;
    bool operator==(const ZpravaFronty&) const = default;
};

struct Prikaz {
    SlovoZpravy slovo;                         // of the message that stands; empty when none does
    std::vector<ZpravaFronty> fronta_zprav{1}; // the waiting messages, then one empty spare
    std::int16_t kod_zpravy = 0;        // what an Enter answers: 1 to 3 consent of a line, 9 train number
    std::int16_t rezim_zadani = 0;      // what the input field is for; 0 nothing
    std::int16_t zadany_prvek = kZadny; // the element or train that the input belongs to
    bool obsazen = false;               // the line is occupied; the dark half of a blinking does not count
    bool blikani_prikazu = false;       // lblPrikaz flashes
    bool operator==(const Prikaz&) const = default;
};
extern Prikaz prikaz_radek;

// --- at any time

// Says a message on the command line. `pozadi` is the background of the code, `pozadi_volby` of the
// text, `popredi` the colour of the code's text; `vstup` opens the input field; `do_fronty` puts the
// message that now stands back into the queue. The same text is not said twice in a row; a prompt
// " VC ", " PC ", " PN " gives way to anything and never waits; " CIV " takes the line at once.
void zprava(const SlovoZpravy& slovo, TextPohled volba, Barva pozadi, int kod = 0, bool vstup = false,
            Barva pozadi_volby = 0xFFFFFF, Barva popredi = 0, bool do_fronty = false);
// Hides the line and its twin, ends the blinking; without a beep and without the queue.
void skryj_prikaz();
// Hides the line as an answered message goes: kod 0, beep of 400 Hz for 150 ms.
void potvrd_prikaz();
// The first waiting message comes to the line.
void dalsi_zprava();
// A warning of a route: until it is confirmed, the route machine leaves the route alone.
bool je_varovani(DruhZpravy druh);
// A prompt of a selection: it asks for the end of the route.
bool je_vyzva_cesty(DruhZpravy druh);
// A question of the login.
bool je_prihlaseni(DruhZpravy druh);
// Kind of the message that holds the line; nothing of an empty line.
std::optional<DruhZpravy> stojici_zprava();
// Warnings that stand or wait go unconfirmed: no route waits for them any more.
void odvolej_varovani();
// Writes the line without the rules of zprava, as the selection of a route does: word and text in
// `popredi` on `pozadi`.
void zobraz_prikaz(const SlovoZpravy& slovo, TextPohled volba, Barva popredi, Barva pozadi);

// --- on the operator's command

// Sound on or off: flag, tooltip and picture of imgSound.
void prepni_zvuk();
// Tooltip and picture of imgSound as the flag tells; at start.
void ukaz_zvuk();
// Which of the four buttons of the bottom panel is pressed.
enum class Panel : std::uint8_t { zpravy, denik, tabulka, vlak };
void prepni_panel(Panel panel);
