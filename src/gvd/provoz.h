// gvd/provoz.h - the traffic: each simulated minute the timetable is turned into trains.
#pragma once

#include <cstdint>

// --- each simulated minute, and at the end of the fill

// One walk over the rows that the minute touches, in file order: who is delayed, announced, asks for consent,
// comes in, or begins its life at the main station.
void krok_provozu();

// --- its parts: row `gvd_index` is due

// Its minute has come: an announced train sets off, others appear at their entry.
void vstup_v_minute(int gvd_index);
// One minute before, from a neighbour with consent: asks for it, or comes in once it was given.
void vstup_se_souhlasem(int gvd_index);
// One or two minutes before: the train stands ready on a track of the neighbouring station.
void ohlaseni(int gvd_index);

// --- by the traffic and the start

// Draws the delay of the row, minutes; 0 for none.
std::int16_t nahodne_zpozdeni(int gvd_index);
// The number joins the list of the trains that may enter, unless it is in it.
void pridej_cekajici(std::int32_t cislo);
// The row's number leaves that list.
void vyrad_cekajici(int gvd_index);
// The train may run. Its index; 0 also when there is no such train.
int spust_vlak(std::int32_t cislo);
// The number on track e runs on over the routes that stand from it.
void postav_cesty_z(int e);
// The route of a train that comes in from line end k: set, and without a train yet.
void pridej_cestu_souhlasu(int k);

// --- at any time, without change

// The number stands in the list of the trains that may enter.
bool je_cekajici(std::int32_t cislo);
