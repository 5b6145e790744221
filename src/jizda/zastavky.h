// jizda/zastavky.h - stops by the timetable, departures and delays.
//
// A stop happens when the head reaches the end of a route, or a marked point of a line, at an element of a
// station of the train's timetable. While it stops, muze_jet is false and its label counts the minutes.
#pragma once

#include <cstdint>

// --- by the running, the traffic and the start

// The head of train v has reached a stopping place on the element.
void vlak_v_cili(int prvek, int v);
// The tail of train v has left entry j of its elements: journal, delay, counters of the crossings.
void ohlas_odjezd(int v, int j);

// --- each simulated minute, and after a load

// Every waiting train is looked at anew.
void aktualizuj_cekani();

// --- at any time

// Holds train v at the station if the rest of its timetable has it. `doba`: least dwell, minutes.
void stanice_stop(int kod, int v, int doba);
// Sets the working departure of stop i.
void zastav_vlak(int v, int doba, int i);
// Works out the waiting state of one train, and colours its label.
void zobraz_cekani(int v);
// No locomotive change that its flags demand is still due.
bool muze_tahnout(int v);
// Delay on departure from the station with that code.
void spocti_zpozdeni(int v, int kod);
// The second number takes over, on every label and in the train table.
void prepni_cislo(int v);
// Turns the train when its way on from the station runs back.
void otoc_podle_stanic(int v);

// --- on the operator's command

// Orders the departure for the next minute.
void odjezd_povel(int v);

// The running minute: played minutes from the start minute on.
std::int16_t cas_min();
// Station of a stopping place, as its code; 0 when the element is none.
int stanice_prvku(int prvek);
