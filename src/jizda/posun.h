// jizda/posun.h - a record changes between a train and a shunting movement.
#pragma once

#include <cstdint>

// --- on the operator's command, and by stops

// Flips record v, whose head stands on the element, between train and shunt; a refusal goes to the
// command line. `tise`: by the program; the train page follows only when it shows the train.
void zmena_posun(int v, int prvek, bool tise);
// A light engine becomes a train: a number from 70000 on, and a timetable of two stops.
void vlak_na_posun_cislo(int v);
