// zaklad/text.cpp - conversions and cuts of texts in code page 1250.
#include "zaklad/text.h"

#include <algorithm>

std::string na_utf8(TextPohled text) {
    std::string utf8;
    utf8.reserve(text.size() + text.size() / 4);
    for (const char c : text) {
        const char32_t u = cp1250::na_unicode(static_cast<unsigned char>(c));
        if (u < 0x80) {
            utf8 += static_cast<char>(u);
        } else if (u < 0x800) {
            utf8 += static_cast<char>(0xC0 | (u >> 6));
            utf8 += static_cast<char>(0x80 | (u & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (u >> 12));
            utf8 += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (u & 0x3F));
        }
    }
    return utf8;
}

Text z_utf8(std::string_view utf8) {
    Text text;
    text.reserve(utf8.size());
    for (std::size_t misto = 0; misto < utf8.size();) {
        const int bajt = cp1250::z_unicode(cp1250::dalsi_znak_utf8(utf8, misto));
        text += bajt < 0 ? '?' : static_cast<char>(bajt);
    }
    return text;
}

TextPohled orez(TextPohled text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

namespace {

// Pairs of capital and small letters in the upper half of the page.
constexpr std::string_view kVelka = "\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC"
                                    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
                                    "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
constexpr std::string_view kMala = "\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE"
                                   "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
                                   "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
static_assert(kVelka.size() == kMala.size());

Text zamen(TextPohled text, std::string_view co, std::string_view cim, char prvni, int posun) {
    Text vysledek(text);
    for (char& c : vysledek) {
        if (c >= prvni && c <= prvni + 25)
            c = static_cast<char>(c + posun);
        else if (const std::size_t i = co.find(c); i != std::string_view::npos)
            c = cim[i];
    }
    return vysledek;
}

} // namespace

Text mala_pismena(TextPohled text) {
    return zamen(text, kVelka, kMala, 'A', 'a' - 'A');
}

Text velka_pismena(TextPohled text) {
    return zamen(text, kMala, kVelka, 'a', 'A' - 'a');
}

bool stejne_bez_velikosti(TextPohled a, TextPohled b) {
    return a.size() == b.size() && mala_pismena(a) == mala_pismena(b);
}

TextPohled vyrez(TextPohled text, std::size_t od, std::size_t delka) {
    if (od == 0 || od > text.size())
        return {};
    return text.substr(od - 1, delka);
}

void vloz_do(Text& text, std::size_t od, TextPohled co) {
    if (od == 0 || od > text.size())
        return;
    const std::size_t delka = std::min(co.size(), text.size() - (od - 1));
    text.replace(od - 1, delka, co.substr(0, delka));
}

Text nahrad_v_textu(Text text, TextPohled co, TextPohled cim) {
    for (std::size_t misto = text.find(co); misto != Text::npos; misto = text.find(co, misto + cim.size()))
        text.replace(misto, co.size(), cim);
    return text;
}
