// zaklad/cisla.h - exact arithmetic of the system: roundings, narrow integers, numbers in texts.
//
// The running of trains and the clock hang on the exact rule of each conversion, so none is left to
// the language: every narrowing goes through one of these operations, and what does not fit is the
// run-time error 6, never a wrapped value.
#pragma once

#include "zaklad/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>

inline constexpr int kZadny = -3; // no element, no index, no time

// To the nearest whole number, a half to the even one: 0.5 -> 0, 1.5 -> 2, 2.5 -> 2.
double zaokrouhli(double hodnota);
// Toward minus infinity: -0.1 -> -1.
double dolu(double hodnota);

// Narrowing with the check for overflow; from a real number with the rounding of zaokrouhli.
std::int16_t na_integer(double hodnota);
std::int32_t na_long(double hodnota);
std::uint8_t na_byte(double hodnota);
std::int16_t na_integer(std::int64_t hodnota);
std::int32_t na_long(std::int64_t hodnota);
std::uint8_t na_byte(std::int64_t hodnota);
inline std::int16_t na_integer(int hodnota) {
    return na_integer(static_cast<std::int64_t>(hodnota));
}
inline std::uint8_t na_byte(int hodnota) {
    return na_byte(static_cast<std::int64_t>(hodnota));
}
inline std::int32_t na_long(int hodnota) {
    return hodnota;
}

// Lenient: leading blanks are skipped, then a sign, digits and one decimal point are read; the first
// other character ends the number; no digits give 0.
double cislo_z_textu(TextPohled text);
// The same cut to whole digits (no sign, no point), saturated at 2^31-1: the fields of the track lengths.
std::int32_t cele_z_textu(TextPohled text);
// Strict: the whole text is one decimal number, blanks around it allowed. Else nothing.
std::optional<double> ciselny_text(TextPohled text);
inline bool je_ciselny(TextPohled text) {
    return ciselny_text(text).has_value();
}
// The text is this whole number, read as strictly.
bool je_cislo(TextPohled text, std::int32_t cislo);

// Decimal text of a whole number.
Text text_cisla(std::int64_t hodnota);
// Decimal text of a real number with a point, shortest form: "12.5", "7".
Text text_cisla(double hodnota);
inline Text text_cisla(int hodnota) {
    return text_cisla(static_cast<std::int64_t>(hodnota));
}
// At least `mist` digits, leading zeros: the formats "0#" and "00".
Text text_cisla_mist(std::int64_t hodnota, int mist);

// n is one of the numbers.
constexpr bool je_v(int n, std::initializer_list<int> cisla) {
    for (const int cislo : cisla)
        if (cislo == n)
            return true;
    return false;
}
template <std::size_t N> constexpr bool je_v(int n, const std::array<int, N>& cisla) {
    for (const int cislo : cisla)
        if (cislo == n)
            return true;
    return false;
}
