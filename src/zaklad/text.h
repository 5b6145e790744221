// zaklad/text.h - text of the core: bytes of code page 1250, one byte a character.
//
// Positions, lengths and glyph codes of the desk are counted in characters, and in code page 1250 a
// character is a byte. Source literals are UTF-8 and are converted while compiling: "pondělí"_cz.
// The view and the headless runner convert to Unicode when they show a text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using Text = std::string;            // bytes of code page 1250
using TextPohled = std::string_view; // the same, not owned

namespace cp1250 {

// Unicode of the upper half; the five codes that the page leaves open stand for themselves.
inline constexpr std::array<char16_t, 128> kHorni = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

// Unicode of one byte of the page.
constexpr char32_t na_unicode(unsigned char bajt) {
    return bajt < 0x80 ? bajt : kHorni[bajt - 0x80u];
}

// Byte of one Unicode character; -1 when the page does not hold it.
constexpr int z_unicode(char32_t znak) {
    if (znak < 0x80)
        return static_cast<int>(znak);
    for (std::size_t i = 0; i < kHorni.size(); ++i)
        if (kHorni[i] == znak)
            return static_cast<int>(i + 0x80);
    return -1;
}

// Decodes one UTF-8 character at `misto` and moves `misto` behind it; a damaged or overlong sequence gives
// U+FFFD and moves by one byte.
constexpr char32_t dalsi_znak_utf8(std::string_view utf8, std::size_t& misto) {
    const auto bajt = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned prvni = bajt(misto);
    const int delka = prvni < 0x80    ? 1
                      : prvni >= 0xF5 ? 0
                      : prvni >= 0xF0 ? 4
                      : prvni >= 0xE0 ? 3
                      : prvni >= 0xC2 ? 2
                                      : 0;
    if (delka == 0 || misto + static_cast<std::size_t>(delka) > utf8.size()) {
        ++misto;
        return 0xFFFD;
    }
    char32_t znak = delka == 1 ? prvni : prvni & (0x7Fu >> delka);
    for (int i = 1; i < delka; ++i) {
        const unsigned dalsi = bajt(misto + static_cast<std::size_t>(i));
        if ((dalsi & 0xC0u) != 0x80u) {
            ++misto;
            return 0xFFFD;
        }
        znak = (znak << 6) | (dalsi & 0x3Fu);
    }
    if ((delka == 3 && znak < 0x800) || (delka == 4 && znak < 0x10000)) {
        ++misto;
        return 0xFFFD;
    }
    misto += static_cast<std::size_t>(delka);
    return znak;
}

// A source literal, converted to code page 1250 while compiling. A character outside the page stops
// the build.
template <std::size_t N> struct Literal {
    std::array<char, N> bajty{};
    std::size_t delka = 0;

    consteval Literal(const char (&utf8)[N]) {
        const std::string_view vstup(utf8, N - 1);
        for (std::size_t misto = 0; misto < vstup.size();) {
            const int bajt = z_unicode(dalsi_znak_utf8(vstup, misto));
            if (bajt < 0)
                throw "character is not in code page 1250";
            bajty[delka++] = static_cast<char>(bajt);
        }
    }
};

} // namespace cp1250

template <cp1250::Literal L> inline constexpr TextPohled kLiteral{L.bajty.data(), L.delka};

// "pondělí"_cz: the literal in code page 1250, static storage. A reference, because clang 14 crashes over a
// temporary that comes from such an operator.
template <cp1250::Literal L> constexpr const TextPohled& operator""_cz() {
    return kLiteral<L>;
}

// Unicode text (UTF-8) of a text of the core.
std::string na_utf8(TextPohled text);
// Text of the core from UTF-8; what the page does not hold becomes "?".
Text z_utf8(std::string_view utf8);

// One glyph of the screen font as a text.
inline Text znak(int kod) {
    return Text(1, static_cast<char>(static_cast<unsigned char>(kod)));
}
// Code of the first character, 0 of an empty text.
inline int kod_znaku(TextPohled text) {
    return text.empty() ? 0 : static_cast<unsigned char>(text.front());
}

// Without blanks at both ends. Only the blank counts: the glyph 8 or 13 is a character like any other.
TextPohled orez(TextPohled text);
// Lower case by code page 1250 (Czech letters included).
Text mala_pismena(TextPohled text);
Text velka_pismena(TextPohled text);
// Equal but for the case of letters.
bool stejne_bez_velikosti(TextPohled a, TextPohled b);
// `delka` characters from position `od`, counted from 1; what lies beyond the end is left out.
TextPohled vyrez(TextPohled text, std::size_t od, std::size_t delka = TextPohled::npos);
// Writes `co` over `text` from position `od`, counted from 1; the length of `text` stays.
void vloz_do(Text& text, std::size_t od, TextPohled co);
// `text` with every `co` replaced by `cim`.
Text nahrad_v_textu(Text text, TextPohled co, TextPohled cim);
