// app/cas.h - arithmetic of the clock's text.
//
// The simulated time is the text "h:mm:ss" of lblcas 0 and nothing else; every deadline of the program
// is held in the absolute seconds that sekundy_simulace makes of it.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

inline constexpr std::int32_t kDen_s = 86400, kDen_min = 1440; // a day

// The text is a reading of the clock: "8:05:30", the hour with one digit or two.
bool je_text_casu(TextPohled cas);
// Seconds since midnight of a text "h:mm:ss" or "h:mm"; what cannot be read counts 0.
std::int32_t sekundy_textu(TextPohled cas);
// "h:mm:ss" of seconds since midnight, taken modulo a day: the hour without a leading zero.
Text text_casu(std::int32_t sekundy);
// "h:mm" of a minute of the day, taken modulo a day.
Text text_minuty(std::int32_t minuta);

// Name of a day as its label shows it: 0 "pondělí" to 6 "neděle".
TextPohled nazev_dne(int den);

// The text of the clock.
const Text& cas_hodin();
// Absolute simulated second of a clock text: its seconds plus a day for each whole day in
// (cas_zacatku + minuty_simulace) / 1440. The day count steps with the played minutes, so that around
// midnight it is as exact as the start minute; a start at 0:00 counts the two seconds before midnight
// and the first day alike. So no term that was ordered ever lies a day off.
std::int32_t sekundy_simulace(TextPohled cas);
inline std::int32_t ted_s() {
    return sekundy_simulace(cas_hodin());
}
// Whole minutes since midnight of a clock text.
std::int16_t minuta_dne(TextPohled cas);
