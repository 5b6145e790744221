// davka/skript.cpp - takes a line of a script apart.
#include "davka/skript.h"

#include "zaklad/slova.h"
#include "zaklad/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>
#include <utility>

void chyba_skriptu(std::string proc) {
    throw ChybaSkriptu{std::move(proc)};
}

std::string v_uvozovkach(std::string_view text) {
    return "„" + std::string(text) + "“";
}

std::vector<std::string> slova_radku(std::string_view radek) {
    std::optional<std::vector<std::string>> slova = rozdel_na_slova(radek);
    if (!slova)
        chyba_skriptu("text v uvozovkách nemá konec");
    return std::move(*slova);
}

std::optional<std::int64_t> cele_cislo(std::string_view text, std::int64_t nejmene, std::int64_t nejvice) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::int64_t x = 0;
    const auto konec = std::from_chars(text.data(), text.data() + text.size(), x);
    if (konec.ec != std::errc{} || konec.ptr != text.data() + text.size() || x < nejmene || x > nejvice)
        return std::nullopt;
    return x;
}

std::int64_t cislo_slova(std::string_view slovo, std::int64_t nejmene, std::int64_t nejvice,
                         std::string_view co) {
    if (const auto x = cele_cislo(slovo, nejmene, nejvice))
        return *x;
    chyba_skriptu(std::string(co) + ": čeká se celé číslo od " + std::to_string(nejmene) + " do " +
                  std::to_string(nejvice) + ", ne " + v_uvozovkach(slovo));
}

std::optional<bool> priznak_textu(std::string_view text) {
    if (text == "ano" || text == "true" || text == "1" || text == "-1")
        return true;
    if (text == "ne" || text == "false" || text == "0")
        return false;
    return std::nullopt;
}

std::optional<std::uint32_t> barva_textu(std::string_view text) {
    int zaklad = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        zaklad = 16;
    }
    std::uint32_t x = 0;
    const auto konec = std::from_chars(text.data(), text.data() + text.size(), x, zaklad);
    if (konec.ec != std::errc{} || konec.ptr != text.data() + text.size())
        return std::nullopt;
    return x;
}

std::int64_t doba_slova(std::string_view slovo) {
    constexpr std::int64_t kRok_ms = 366LL * 24 * 3600 * 1000;
    struct Jednotka {
        std::string_view pripona;
        std::int64_t ms;
    };
    // "ms" and "min" before "s" and "h": the longer ending wins
    constexpr std::array kJednotky = {Jednotka{"ms", 1}, Jednotka{"min", 60'000}, Jednotka{"s", 1000},
                                      Jednotka{"h", 3'600'000}};
    for (const Jednotka& j : kJednotky) {
        if (!slovo.ends_with(j.pripona))
            continue;
        const std::string_view cislice = slovo.substr(0, slovo.size() - j.pripona.size());
        if (const auto x = cele_cislo(cislice, 0, kRok_ms / j.ms))
            return *x * j.ms;
        break;
    }
    chyba_skriptu("doba se píše jako 30s, 1500ms nebo 10min (nejvýše rok), ne " + v_uvozovkach(slovo));
}

std::int32_t cas_slova(std::string_view slovo) {
    constexpr std::array<std::int64_t, 3> kMeze = {23, 59, 59};
    std::array<std::int32_t, 3> casti{};
    std::size_t pocet = 0;
    std::string_view zbytek = slovo;
    bool dobre = true;
    while (dobre && pocet < casti.size()) {
        const std::size_t dvojtecka = zbytek.find(':');
        const std::string_view cast = zbytek.substr(0, dvojtecka);
        const auto x = cele_cislo(cast, 0, kMeze[pocet]);
        dobre = x.has_value() && !cast.empty() && cast.front() != '+' && cast.size() <= 2;
        if (dobre)
            casti[pocet++] = static_cast<std::int32_t>(*x);
        if (dvojtecka == std::string_view::npos)
            break;
        zbytek.remove_prefix(dvojtecka + 1);
        dobre = dobre && pocet < casti.size();
    }
    if (!dobre || pocet < 2)
        chyba_skriptu("čas se píše jako 8:05:30, ne " + v_uvozovkach(slovo));
    return casti[0] * 3600 + casti[1] * 60 + casti[2];
}

Prirazeni prirazeni(std::string_view slovo) {
    const std::size_t rovna_se = slovo.find('=');
    if (rovna_se == std::string_view::npos || rovna_se == 0)
        chyba_skriptu("čeká se POLE=HODNOTA, ne " + v_uvozovkach(slovo));
    return {slovo.substr(0, rovna_se), slovo.substr(rovna_se + 1)};
}

std::string text_slova(std::string_view utf8) {
    for (std::size_t misto = 0; misto < utf8.size();) {
        const std::size_t od = misto;
        if (cp1250::z_unicode(cp1250::dalsi_znak_utf8(utf8, misto)) < 0)
            chyba_skriptu("znak " + v_uvozovkach(utf8.substr(od, misto - od)) +
                          " není v kódové stránce 1250");
    }
    return z_utf8(utf8);
}

namespace {

// Number of changed, added and left out bytes between two words.
std::size_t vzdalenost(std::string_view a, std::string_view b) {
    std::vector<std::size_t> radek(b.size() + 1);
    std::iota(radek.begin(), radek.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t sikmo = radek[0];
        radek[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t nad = radek[j];
            radek[j] = std::min({nad + 1, radek[j - 1] + 1, sikmo + (a[i - 1] == b[j - 1] ? 0u : 1u)});
            sikmo = nad;
        }
    }
    return radek[b.size()];
}

} // namespace

std::string napoveda(std::string_view slovo, std::span<const std::string_view> znama) {
    std::string_view nejlepsi;
    std::size_t nejmene = slovo.size() < 5 ? 2 : 3; // as many changes are too many
    for (const std::string_view zname : znama)
        if (const std::size_t d = vzdalenost(slovo, zname); d < nejmene) {
            nejmene = d;
            nejlepsi = zname;
        }
    return nejlepsi.empty() ? std::string() : "; nemělo to být " + v_uvozovkach(nejlepsi) + "?";
}
