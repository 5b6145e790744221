// jizda/souprava.h - what a consist is made of: locomotives, sets, units.
//
// Asked at any time, changes nothing. Vehicles are texts. 100 and below and 900 and above are no
// locomotives: 943 and 954 are driving trailers, which do not draw; 560 is a unit, which does.
#pragma once

#include "jizda/vlak.h"
#include "zaklad/text.h"

inline constexpr int kPrvniMotorovyVuz = 800; // series from which on a vehicle runs without a locomotive

// Series of a vehicle as a number; 0 of one that is given by its type.
double rada_vozu(TextPohled vuz);
// A driving trailer: 943 or 954.
bool je_ridici_vuz(TextPohled vuz);
// The series is a number strictly between 100 and 900.
bool je_loko(TextPohled vuz);
// Every vehicle is a locomotive: a light engine or a group of them. False for a record without vehicles.
bool jen_loko(const Vlak& v);
// At least one vehicle is a locomotive: only then the record can move.
bool ma_loko(const Vlak& v);
// A locomotive that may draw the train: not one that only stands by ("ZAL"), unless it is alone.
bool ma_tazne_loko(const Vlak& v);
// An assisting locomotive at the end: the last of several vehicles is numeric and above 100. Driving
// trailers count here, other than in je_loko: from one the train can be driven the other way.
bool posledni_je_loko(const Vlak& v);
// A second locomotive at the front: of at least three vehicles the second one is a locomotive.
bool druhy_je_loko(const Vlak& v);
