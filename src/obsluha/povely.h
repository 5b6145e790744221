// obsluha/povely.h - commands of the desk that a key and a picture of the bar give alike.
#pragma once

#include "zaklad/chyba.h"

#include <cstdint>

enum class Technologie : std::uint8_t; // technologie/technologie.h

// --- at any time, without change

// One of the three questions of the login stands on the command line: nobody has taken over yet.
bool prihlaseni_bezi();

// --- by the clock

// The log of the train numbers cannot be written: a message says so. It is part of the shift like an act:
// when the shift is played again, no disk may be full.
void ohlas_vadu_deniku(KodChyby vada);

// --- on the operator's command

// The short beep with which the desk answers a key.
void pipni_klavesou();
// The speed of the clock one step up or down, from 1 to 3; with the debug marker to 8. At the end of the
// scale nothing, nor a beep.
void zrychli();
void zpomal();
// A pause begins or ends. Not before the login, which alone starts the clock.
void prepni_pauzu();
// The window goes to the task bar, the clock standing.
void minimalizuj_okno();
// The save dialogue, the clock standing. Not before the login: the end of a save starts the clock.
void zacni_ulozeni();
// A maintenance screen. Not before the login: the screen ends with a running clock.
void ukaz_technologii(Technologie ktera);
