// davka/json.h - what the headless runner prints: a JSON value, kept in the order in which it was built.
//
// Keys stand where they were added, so that the same state prints the same bytes. Texts are held in
// UTF-8; a text of the core (code page 1250) is converted when it comes in.
#pragma once

#include "relief/prvek.h"
#include "zaklad/text.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

struct ClenJsonu;
struct Json;

// A colour prints as "0x00BBGGRR" and is compared as a number.
struct BarvaJsonu {
    std::uint32_t hodnota = 0;
    bool operator==(const BarvaJsonu&) const = default;
};

using SeznamJsonu = std::vector<Json>;
using ZaznamJsonu = std::vector<ClenJsonu>;

struct Json {
    // nothing (null), a flag, a number, a text, a colour, a list, a record
    std::variant<std::monostate, bool, std::int64_t, std::string, BarvaJsonu, SeznamJsonu, ZaznamJsonu>
        hodnota;

    // The members that hold a list or a record need ClenJsonu whole: all of them stand in the source.
    Json();
    Json(const Json&);
    Json(Json&&) noexcept;
    Json& operator=(const Json&);
    Json& operator=(Json&&) noexcept;
    ~Json();
    Json(bool x);
    template <std::integral T>
    requires(!std::same_as<T, bool>) Json(T x) : Json(static_cast<std::int64_t>(x), Cislo{}) {}
    Json(SeznamJsonu x);
    Json(ZaznamJsonu x);

    bool operator==(const Json&) const;

private:
    struct Cislo {};
    Json(std::int64_t x, Cislo);
};

struct ClenJsonu {
    std::string klic;
    Json hodnota;
    bool operator==(const ClenJsonu&) const = default;
};

// A text of the core, a text in UTF-8, a colour.
Json json_text(TextPohled text);
Json json_utf8(std::string_view utf8);
Json json_barva(Barva barva);

// Adds a member behind the others.
void pridej(ZaznamJsonu& zaznam, std::string_view klic, Json hodnota);
// The member of a record, nullptr when there is none (or when it is no record).
const Json* clen(const Json& zaznam, std::string_view klic);

// One line of JSON, UTF-8, without line end. Control characters are written as \u00XX.
std::string zapis_json(const Json& json);
void zapis_json(std::string& vystup, const Json& json);

// The value as a check of a script writes it: the text itself, a number, "true", "0x00808080", a list
// joined by commas; a record as JSON.
std::string hodnota_json(const Json& json);
