// davka/skript.h - one line of an operator's script: its words.
//
// zaklad/slova.h tells how it is parted.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// A line that cannot be understood; the runner adds the number of the line.
struct ChybaSkriptu {
    std::string proc;
};
[[noreturn]] void chyba_skriptu(std::string proc);
// A text as such a message quotes it.
std::string v_uvozovkach(std::string_view text);

// The words of a line, UTF-8. A text without its closing quote is an error of the script.
std::vector<std::string> slova_radku(std::string_view radek);

// A whole decimal number, an optional sign before it: nothing else in the text. Nothing when it is
// none or lies outside the bounds.
std::optional<std::int64_t> cele_cislo(std::string_view text, std::int64_t nejmene, std::int64_t nejvice);
// The same, but an error of the script that says what the number should be.
std::int64_t cislo_slova(std::string_view slovo, std::int64_t nejmene, std::int64_t nejvice,
                         std::string_view co);
// "ano", "true", "1" and "-1" or "ne", "false" and "0".
std::optional<bool> priznak_textu(std::string_view text);
// "0x00BBGGRR" with up to eight digits of any case, or a decimal number.
std::optional<std::uint32_t> barva_textu(std::string_view text);

// "30s", "1500ms", "10min", "2h": milliseconds.
std::int64_t doba_slova(std::string_view slovo);
// "H:MM:SS" or "H:MM": seconds since midnight.
std::int32_t cas_slova(std::string_view slovo);

// A word "POLE=HODNOTA". An error of the script when there is no "=".
struct Prirazeni {
    std::string_view pole, hodnota;
};
Prirazeni prirazeni(std::string_view slovo);

// Bytes of code page 1250; a character that the page does not hold is an error of the script.
std::string text_slova(std::string_view utf8);

// "; nemělo to být „...“?" when one of the known words is like the unknown one, else nothing.
std::string napoveda(std::string_view slovo, std::span<const std::string_view> znama);
