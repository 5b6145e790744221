// davka/porovnani.cpp - what a check finds in a record, and whether it is what it should be.
#include "davka/porovnani.h"

#include "davka/skript.h"

#include <algorithm>
#include <cstdint>

bool ma_jmeno(const Json& radek, std::string_view jmeno) {
    const Json* hodnota = clen(radek, "jmeno");
    return hodnota != nullptr && hodnota_json(*hodnota) == jmeno;
}

std::optional<Json> najdi_pole(const Json& koren, std::string_view cesta) {
    const auto zbytek_za = [&](std::size_t delka) {
        return delka < cesta.size() ? std::optional(cesta.substr(delka + 1)) : std::nullopt;
    };
    const auto dal = [&](const Json& hodnota, std::size_t delka) -> std::optional<Json> {
        const auto zbytek = zbytek_za(delka);
        return zbytek ? najdi_pole(hodnota, *zbytek) : std::optional(hodnota);
    };
    const std::string_view prvni = cesta.substr(0, cesta.find('.'));
    if (const Json* hodnota = clen(koren, prvni))
        return dal(*hodnota, prvni.size());
    const auto* seznam = std::get_if<SeznamJsonu>(&koren.hodnota);
    if (seznam == nullptr)
        return std::nullopt;
    if (cesta == "pocet")
        return Json(seznam->size());
    if (const auto i = cele_cislo(prvni, 0, 99'999))
        return static_cast<std::size_t>(*i) < seznam->size()
                   ? dal((*seznam)[static_cast<std::size_t>(*i)], prvni.size())
                   : std::nullopt;
    // a row by its name; the name itself may hold a point
    for (const Json& radek : *seznam)
        for (std::size_t konec = cesta.find('.');; konec = cesta.find('.', konec + 1)) {
            const std::size_t delka = std::min(konec, cesta.size());
            if (ma_jmeno(radek, cesta.substr(0, delka)))
                return dal(radek, delka);
            if (konec == std::string_view::npos)
                break;
        }
    return std::nullopt;
}

Json chtena_hodnota(const Json& nalezeno, std::string_view chteno) {
    if (std::holds_alternative<bool>(nalezeno.hodnota)) {
        if (const auto priznak = priznak_textu(chteno))
            return Json(*priznak);
    } else if (std::holds_alternative<std::int64_t>(nalezeno.hodnota)) {
        if (const auto cislo = cele_cislo(chteno, INT64_MIN, INT64_MAX))
            return Json(*cislo);
    } else if (std::holds_alternative<BarvaJsonu>(nalezeno.hodnota)) {
        if (const auto barva = barva_textu(chteno))
            return json_barva(static_cast<Barva>(*barva));
    } else if (std::holds_alternative<std::monostate>(nalezeno.hodnota) && chteno == "null") {
        return Json();
    }
    return json_utf8(chteno);
}

namespace {

// A list written with commas: every member as it would be written alone, so that flags may be ano and ne.
bool odpovida_po_prvcich(const SeznamJsonu& seznam, std::string_view chteno) {
    for (std::size_t i = 0; i < seznam.size(); ++i) {
        const std::size_t konec = i + 1 < seznam.size() ? chteno.find(',') : chteno.size();
        if (konec == std::string_view::npos || !odpovida(seznam[i], chteno.substr(0, konec)))
            return false;
        chteno.remove_prefix(std::min(konec + 1, chteno.size()));
    }
    return !seznam.empty();
}

} // namespace

bool odpovida(const Json& nalezeno, std::string_view chteno) {
    if (const auto* seznam = std::get_if<SeznamJsonu>(&nalezeno.hodnota))
        return hodnota_json(nalezeno) == chteno || zapis_json(nalezeno) == chteno ||
               odpovida_po_prvcich(*seznam, chteno);
    return chtena_hodnota(nalezeno, chteno) == nalezeno;
}
