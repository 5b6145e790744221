// app/cas.h - the clock of the simulation, and the arithmetic of its time.
//
// The simulated time is a number of seconds and nothing else; lblcas shows it as "h:mm:ss". Every deadline of
// the program is held in the absolute seconds that sekundy_simulace makes of it.
#pragma once

#include "zaklad/text.h"

#include <cstdint>

inline constexpr std::int32_t kDen_s = 86400, kDen_min = 1440; // a day

struct StavHodin {
    std::int32_t sekundy = 0; // since midnight
    bool operator==(const StavHodin&) const = default;
};
extern StavHodin stav_hodin;

// --- by the start, the load and the clock step

// The clock stands at so many seconds since midnight, taken modulo a day, and shows it on both monitors.
void nastav_cas(std::int32_t sekundy);
// The clock stands at the time of a text, read as sekundy_textu does, and shows the text as it is.
void nastav_cas(TextPohled cas);

// --- at any time, without change

// The text is a reading of the clock: "8:05:30", the hour with one digit or two.
bool je_text_casu(TextPohled cas);
// Seconds since midnight of a text "h:mm:ss" or "h:mm"; what cannot be read counts 0.
std::int32_t sekundy_textu(TextPohled cas);
// Seconds taken modulo a day.
std::int32_t sekundy_dne(std::int32_t sekundy);
// "h:mm:ss" of seconds since midnight, taken modulo a day: the hour without a leading zero.
Text text_casu(std::int32_t sekundy);
// "h:mm" of a minute of the day, taken modulo a day.
Text text_minuty(std::int32_t minuta);

// Name of a day as its label shows it: 0 "pondělí" to 6 "neděle".
TextPohled nazev_dne(int den);

// The time of the clock, seconds since midnight.
inline std::int32_t cas_hodin() {
    return stav_hodin.sekundy;
}
// The time as the clock shows it.
const Text& text_hodin();
// Absolute simulated second of a time of the clock: its seconds plus a day for each whole day in
// (cas_zacatku + minuty_simulace) / 1440. The day count steps with the played minutes, so that around
// midnight it is as exact as the start minute; a start at 0:00 counts the two seconds before midnight
// and the first day alike. So no term that was ordered ever lies a day off.
std::int32_t sekundy_simulace(std::int32_t cas);
inline std::int32_t ted_s() {
    return sekundy_simulace(cas_hodin());
}
// Whole minutes since midnight of a time of the clock.
std::int16_t minuta_dne(std::int32_t cas);
