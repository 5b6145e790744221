// obsluha/volba.h - the operator's selection: a start signal, an end, and the look-up of the route.
#pragma once

#include "cesty/nova_cesta.h"
#include "desk/zprava.h"
#include "obsluha/tlacitko.h"
#include "obsluha/vyber.h"
#include "relief/prvek.h"

#include <optional>

// What the command line says of a selection: the word of its kind and the name of its start.
struct Vyzva {
    SlovoZpravy slovo;
    Text text;
    Barva popredi = 0, pozadi = 0;
    bool operator==(const Vyzva&) const = default;
};

// --- at any time, without change

// The prompt of the open selection while another message holds the command line: the operator has to see
// what he chooses.
std::optional<Vyzva> vyzva_mimo_radek();

// --- on the operator's command

// Press on a main signal: right opens its menu, middle and Ctrl pick a shunt route, left a train route.
// A click on a signal of the same facing also ends the selection before, so that chains of routes are
// picked signal by signal.
void klik_navestidlo(int s, Tlacitko tlacitko, bool ctrl);
// Press on a shunting signal.
void klik_navestidlo_ser(int s, Tlacitko tlacitko);
// Menu PN: start of a calling-on route.
void volba_pn(int s);
// Pick of the end: a target, a track by KC.
void klik_cil(int e);
// Esc: drops the macro being recorded, the prompt, the newest route when it was just picked, the start.
void zrus_volbu();
// Click on the empty desk.
void klik_plocha();
// Enter on " POZOR STITEK ", " POZOR NVL ", " POZOR VYLUKA ", " POZOR PN ": releases all routes that a
// warning holds.
void potvrd_varovani();

// --- by the selection, AH and macros

// Looks the route up in the table of its kind and queues it; while a macro is recorded, adds a step
// instead. `automaticky`: called by AH. False when the table holds no such route.
bool najdi_cestu(int zacatek, int konec, int druh, bool automaticky);

// --- before each tick of the route machine

// The ten seconds of the selection, in wall-clock time.
void hlidej_cas_volby();
