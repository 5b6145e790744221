// obsluha/zadani.h - the input field of the command line: notes, the search of a unit, a train's number.
//
// There is one field, so there is one question: a newer one takes the place of the one that stands or
// waits. What the answer belongs to stands in prikaz_radek: rezim_zadani and zadany_prvek.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

// What the field is for; prikaz_radek.rezim_zadani.
namespace rezim_zadani {
inline constexpr std::int16_t zadny = 0;
inline constexpr std::int16_t stitek = 1, nvl = 2, vyluka = 3; // text of a note on an element
inline constexpr std::int16_t jednotka = 4;                    // name of a unit to be found
inline constexpr std::int16_t cislo_vlaku = 5;                 // new number of a train
} // namespace rezim_zadani

// Kinds of a note on an element, in the order of the record.
enum class DruhStitku : std::uint8_t { stitek, nvl, vyluka };

// --- on the operator's command

// STIT, NVL, VYL of the track menu: asks for the text of that note, with the present one in the field.
void otevri_stitek(int prvek, DruhStitku druh);
// F2 on the empty desk: asks for the name of a unit.
void otevri_hledani();
// Drops the question that stands or waits, without an answer. After a train's number the clock goes on:
// that question had stopped it.
void zahod_zadani();
// Enter in the field: the text does what the field was opened for.
void zpracuj_zadani(TextPohled text);

// The search: the pointer goes to the first element of that name, whatever the case of its letters, and
// its menu opens. Signals have their names, stations their names or captions, tracks the code of the
// station, a blank and the name; switches the part of their name before "/". Without a match nothing.
void pridej_prvek_podle_jmena(TextPohled text);

// --- after a change of the notes

// Picture of the target and background of the label, as the notes on the element tell.
void obnov_stitek(int prvek);

// --- at any time, without change

// Three-letter code of the station in which a track lies; empty outside of them.
TextPohled kod_stanice_prvku(int prvek);
