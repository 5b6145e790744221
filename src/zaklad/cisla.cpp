// zaklad/cisla.cpp - roundings, narrowing and numbers in texts.
#include "zaklad/cisla.h"

#include "zaklad/chyba.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

double zaokrouhli(double hodnota) {
    const double cela = std::floor(hodnota);
    const double zbytek = hodnota - cela;
    if (zbytek > 0.5)
        return cela + 1;
    if (zbytek < 0.5)
        return cela;
    return std::fmod(cela, 2) == 0 ? cela : cela + 1;
}

double dolu(double hodnota) {
    return std::floor(hodnota);
}

namespace {

template <class Cislo> Cislo zuz(std::int64_t hodnota) {
    if (hodnota < std::numeric_limits<Cislo>::min() || hodnota > std::numeric_limits<Cislo>::max())
        chyba(KodChyby::preteceni);
    return static_cast<Cislo>(hodnota);
}

template <class Cislo> Cislo zuz_realne(double hodnota) {
    if (!(hodnota > -1e15 && hodnota < 1e15))
        chyba(KodChyby::preteceni);
    return zuz<Cislo>(static_cast<std::int64_t>(zaokrouhli(hodnota)));
}

bool je_cislice(char c) {
    return c >= '0' && c <= '9';
}

// End of the number that begins at `od` (sign, digits, one point); `cislic` counts its digits.
std::size_t konec_cisla(TextPohled text, std::size_t od, int& cislic) {
    std::size_t i = od;
    cislic = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    bool tecka = false;
    for (; i < text.size(); ++i) {
        if (je_cislice(text[i]))
            ++cislic;
        else if (text[i] == '.' && !tecka)
            tecka = true;
        else
            break;
    }
    return i;
}

// The value of digits alone, as nearly all numbers in texts are; so many of them a real number holds exactly.
std::optional<double> hodnota_cislic(TextPohled text) {
    constexpr std::size_t kPresnychCislic = 15;
    if (text.empty() || text.size() > kPresnychCislic)
        return std::nullopt;
    std::int64_t hodnota = 0;
    for (const char c : text) {
        if (!je_cislice(c))
            return std::nullopt;
        hodnota = hodnota * 10 + (c - '0');
    }
    return static_cast<double>(hodnota);
}

// The value of a text that konec_cisla has measured. More whole digits than a real number can hold are
// infinity, so that narrowing it is an overflow.
double hodnota_textu(TextPohled text) {
    if (const auto hodnota = hodnota_cislic(text))
        return *hodnota;
    const bool zaporna = text.front() == '-';
    if (zaporna || text.front() == '+')
        text.remove_prefix(1);
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    double hodnota = 0;
    const auto [konec, kod] = std::from_chars(text.data(), text.data() + text.size(), hodnota);
    if (kod == std::errc::result_out_of_range && text.front() != '.')
        hodnota = std::numeric_limits<double>::infinity();
    return zaporna ? -hodnota : hodnota;
}

} // namespace

std::int16_t na_integer(double hodnota) {
    return zuz_realne<std::int16_t>(hodnota);
}
std::int32_t na_long(double hodnota) {
    return zuz_realne<std::int32_t>(hodnota);
}
std::uint8_t na_byte(double hodnota) {
    return zuz_realne<std::uint8_t>(hodnota);
}
std::int16_t na_integer(std::int64_t hodnota) {
    return zuz<std::int16_t>(hodnota);
}
std::int32_t na_long(std::int64_t hodnota) {
    return zuz<std::int32_t>(hodnota);
}
std::uint8_t na_byte(std::int64_t hodnota) {
    return zuz<std::uint8_t>(hodnota);
}

double cislo_z_textu(TextPohled text) {
    std::size_t od = 0;
    while (od < text.size() && text[od] == ' ')
        ++od;
    int cislic = 0;
    const std::size_t konec = konec_cisla(text, od, cislic);
    return cislic == 0 ? 0 : hodnota_textu(text.substr(od, konec - od));
}

std::int32_t cele_z_textu(TextPohled text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    std::int64_t hodnota = 0;
    for (; i < text.size() && je_cislice(text[i]); ++i)
        hodnota =
            std::min<std::int64_t>(hodnota * 10 + (text[i] - '0'), std::numeric_limits<std::int32_t>::max());
    return static_cast<std::int32_t>(hodnota);
}

std::optional<double> ciselny_text(TextPohled text) {
    if (const auto hodnota = hodnota_cislic(text))
        return hodnota;
    text = orez(text);
    int cislic = 0;
    const std::size_t konec = konec_cisla(text, 0, cislic);
    if (cislic == 0 || konec != text.size())
        return std::nullopt;
    return hodnota_textu(text);
}

bool je_cislo(TextPohled text, std::int32_t cislo) {
    constexpr std::size_t kCislicVeSlove = 9;
    std::int32_t hodnota = 0;
    bool jen_cislice = text.size() <= kCislicVeSlove;
    for (std::size_t i = 0; i < text.size() && jen_cislice; ++i) {
        jen_cislice = je_cislice(text[i]);
        hodnota = hodnota * 10 + (text[i] - '0');
    }
    if (!jen_cislice)
        return ciselny_text(text) == static_cast<double>(cislo);
    return hodnota == cislo && !text.empty();
}

Text text_cisla(std::int64_t hodnota) {
    return std::to_string(hodnota);
}

Text text_cisla(double hodnota) {
    constexpr double kPresneCele = 1e15; // whole numbers below it are printed faster as such
    if (hodnota > -kPresneCele && hodnota < kPresneCele &&
        hodnota == static_cast<double>(static_cast<std::int64_t>(hodnota)))
        return text_cisla(static_cast<std::int64_t>(hodnota));
    char bajty[64];
    const auto [konec, kod] = std::to_chars(bajty, bajty + sizeof bajty, hodnota, std::chars_format::fixed);
    if (kod != std::errc{})
        chyba(KodChyby::preteceni);
    return Text(bajty, konec);
}

Text text_cisla_mist(std::int64_t hodnota, int mist) {
    Text cislice = std::to_string(hodnota);
    const std::size_t znamenko = hodnota < 0 ? 1 : 0;
    const std::size_t potreba = znamenko + static_cast<std::size_t>(std::max(mist, 0));
    if (cislice.size() < potreba)
        cislice.insert(znamenko, potreba - cislice.size(), '0');
    return cislice;
}
