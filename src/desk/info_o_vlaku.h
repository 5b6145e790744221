// desk/info_o_vlaku.h - what a dispatcher's paper says about one train, and the row of its vehicles.
//
// The bar lblIinfo_o_vlaku 0 shows the text, and its state text the index of the train on display, by which
// the pictures find their train. Vehicle i of the train is imgObrzaek_vlaku i with lblPopis_vozu i: the
// picture's state text is the file, its tag the series or type, its frame the drawing with a locomotive's
// frame, and it takes input as long as it stands for a vehicle.
#pragma once

#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <cstdint>

struct Vlak; // jizda/vlak.h

struct StrankaVlaku {
    int vlak = kZadny; // index of the train that the page was filled with
    bool operator==(const StrankaVlaku&) const = default;
};
extern StrankaVlaku stranka_vlaku;

// --- on the operator's command

// Shows the train on the train page: `text` and behind it the composed line, and its vehicles. An index
// below 0 changes nothing.
void info_o_vlaku(TextPohled text, int vlak);
// The same of a number that no train runs under: what the timetable says, of today's row before that of
// another day. No vehicles are shown, there is nothing to detach. Unknown number: nothing changes.
void info_podle_gvd(std::int32_t cislo);
// The page is open and the train is the one on it.
bool info_ukazuje(int vlak);
// The train page opens: the line of the train on display as it is now, and its vehicles from the left. On one
// monitor those that do not fit are hidden, and lblPokracuje says that the set goes
// on.
void ukaz_stranku_vlaku();

// --- after each movement step, and after a command that may have changed a train

// The open page tells of its train as it is now: the line and the vehicles in their order.
void obnov_stranku_vlaku();

// --- when a train is no more

// The train is no longer on display: its pictures take no clicks, since its index will be another train's.
void zapomen_info(int vlak);

// --- at any time, without change

// Index of the train on display; kZadny when there is none.
int vlak_na_panelu();
// How many vehicles the pictures stand for.
int vozu_na_panelu();
// The pictures stand for the vehicles of the train, in the order in which they run.
bool vozy_na_panelu_jsou(const Vlak& v);
// The composed line of a train or a shunting movement.
Text text_vlaku(int vlak);
// What a train number on the relief stands for, a line each: category, number and name; from where to where;
// its delay; its planned track. Of the train that runs under it, else of its row of the timetable; empty for
// a text that is no number of either.
Text souhrn_cisla(TextPohled cislo);
// Next work of a set, by the text of a train number: the train that brings its vehicles today, or that
// train itself, with its arrival at the main station. Empty for 0, an unknown number and no number.
Text navazny_spoj(TextPohled cislo);
// Caption of a vehicle: its series with the name of its operator, and the train that it goes on with.
Text popis_vozu(TextPohled vuz, TextPohled urceni);
