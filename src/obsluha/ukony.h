// obsluha/ukony.h - the acts of the shift: what the operator's hands have done, each at its millisecond.
//
// Whoever works the desk - a hand, a script, the automatic dispatcher - does it through the operations of
// obsluha, and each of them writes itself down here. An act that another act brings about is not written: it
// comes by itself when the first is done again. A click on what is not there
// is none. What the host does for the operator counts as an act too: the window goes away, a box holds the
// time, the computer sleeps.
#pragma once

#include "obsluha/klavesy.h"
#include "obsluha/tlacitko.h"
#include "relief/relief.h"
#include "technologie/technologie.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

enum class DruhUkonu : std::uint8_t {
    klik,
    dvojklik,
    najeti,
    odjeti,
    pohyb, // of the pointer, over what it rested on
    plocha,
    ukazani, // of the train with the number `n`, away from the desk
    radek,
    zalozka,
    polozka_menu,
    zahozeni_menu,
    klavesa,
    psani,
    okno_dolu,
    okno_nahoru,
    okno_zavrit,
    sluzba_stoji,
    sluzba_bezi,
    okno_stalo,    // a box was open: the host's clock goes on by `n` ms, the service does not
    pocitac_stal,  // likewise, and nobody knows why: the diary tells it
    radek_skriptu, // a command of a script that is no hand: `text`
    vada_deniku,   // a disk did not take the train-number log: the fault `n` was told
    vraceno, // time was turned back to here: `text`, "8:35:10 8:30:10", with " zruseno" behind it undone
};

struct Ukon {
    std::int64_t cas_ms = 0; // of the host's clock
    std::int32_t cas = 0;    // what the clock of the desk showed
    DruhUkonu co = DruhUkonu::klik;
    Druh druh = Druh::kolej;
    std::int64_t n = 0; // element, line of a list, tab, or ms
    Tlacitko tlacitko = Tlacitko::leve;
    bool ctrl = false;
    Klavesa klavesa{};
    Text text{};              // of a field, an entry, a list's name, a line of a script
    std::size_t odpovedi = 0; // how many answers the operator had given when the act was over
};

struct UkonySmeny {
    std::vector<Ukon> ukony;
    int uvnitr = 0;                                // acts that are being done: only the outermost is written
    std::function<void(const Text&)> proved_radek; // of the host that knows lines of a script; unset: none
};
extern UkonySmeny ukony_smeny;

// --- by the operations of the hands

// Writes the act down for as long as it is being done, unless another act is about it.
class ZapisUkonu {
public:
    explicit ZapisUkonu(Ukon ukon);
    ZapisUkonu(const ZapisUkonu&) = delete;
    ZapisUkonu& operator=(const ZapisUkonu&) = delete;
    ~ZapisUkonu();

private:
    std::size_t kde = 0; // of the act, from 1; 0: not written
};

// --- by the history

// Notes that time was turned back to this moment, or that this was undone here. A note is no act: nothing
// changes when it is done again. `text` as in Ukon.
void zapis_vraceni(Text text);

// --- when acts are done again

// Nothing is written while one of these lives.
class BezZapisuUkonu {
public:
    BezZapisuUkonu() { ++ukony_smeny.uvnitr; }
    BezZapisuUkonu(const BezZapisuUkonu&) = delete;
    BezZapisuUkonu& operator=(const BezZapisuUkonu&) = delete;
    ~BezZapisuUkonu() { --ukony_smeny.uvnitr; }
};

// Does an act of the hands again. Those that move the host's clock, and lines of a script, are their hosts'
// own: false.
bool proved_ukon(const Ukon& ukon);

// --- at any time, without change

// The act as a line of the runner's language, UTF-8.
std::string radek_ukonu(const Ukon& ukon);
// The act that the words of such a line tell of; nothing when they tell of none.
std::optional<Ukon> ukon_ze_slov(std::span<const std::string> slova);
// It only moves the pointer: nothing of the service hangs on it.
bool je_pohyb_ukazatele(const Ukon& ukon);
// The operator has done something: neither has the pointer moved, nor is it told what befell him.
bool je_cin(const Ukon& ukon);
// Time was turned back, and that was not undone.
bool je_platny_navrat(const Ukon& ukon);
// A list on which a line can be clicked; none of that name: nullptr.
Seznam* seznam_podle_jmena(TextPohled jmeno);
Text jmeno_seznamu(const Seznam& seznam);
