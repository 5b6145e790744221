// davka/json.cpp - writes JSON values.
#include "davka/json.h"

#include <algorithm>
#include <charconv>

Json::Json() = default;
Json::Json(const Json&) = default;
Json::Json(Json&&) noexcept = default;
Json& Json::operator=(const Json&) = default;
Json& Json::operator=(Json&&) noexcept = default;
Json::~Json() = default;

Json::Json(bool x) : hodnota(x) {}

Json::Json(std::int64_t x, Cislo) : hodnota(x) {}

Json::Json(SeznamJsonu x) : hodnota(std::move(x)) {}

Json::Json(ZaznamJsonu x) : hodnota(std::move(x)) {}

bool Json::operator==(const Json& jiny) const {
    return hodnota == jiny.hodnota;
}

namespace {

constexpr char kHex[] = "0123456789ABCDEF";

void zapis_text(std::string& vystup, std::string_view text) {
    vystup += '"';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto bajt = static_cast<unsigned char>(text[i]);
        // U+0080 to U+009F, in UTF-8 C2 80 to C2 9F: what code page 1250 leaves open
        const bool horni_ridici = bajt == 0xC2 && i + 1 < text.size() &&
                                  static_cast<unsigned char>(text[i + 1]) >= 0x80 &&
                                  static_cast<unsigned char>(text[i + 1]) < 0xA0;
        if (bajt == '"' || bajt == '\\') {
            vystup += '\\';
            vystup += text[i];
        } else if (bajt < 0x20 || bajt == 0x7F || horni_ridici) {
            const unsigned kod = horni_ridici ? static_cast<unsigned char>(text[++i]) : bajt;
            vystup += "\\u00";
            vystup += kHex[kod / 16];
            vystup += kHex[kod % 16];
        } else {
            vystup += text[i];
        }
    }
    vystup += '"';
}

void zapis_cislo(std::string& vystup, std::int64_t x) {
    char misto[24];
    const auto konec = std::to_chars(misto, misto + sizeof misto, x);
    vystup.append(misto, konec.ptr);
}

std::string text_barvy(BarvaJsonu barva) {
    std::string text = "0x";
    for (int posun = 28; posun >= 0; posun -= 4)
        text += kHex[(barva.hodnota >> posun) & 0xF];
    return text;
}

struct Zapis {
    std::string& vystup;

    void operator()(std::monostate) const { vystup += "null"; }
    void operator()(bool x) const { vystup += x ? "true" : "false"; }
    void operator()(std::int64_t x) const { zapis_cislo(vystup, x); }
    void operator()(const std::string& x) const { zapis_text(vystup, x); }
    void operator()(BarvaJsonu x) const { zapis_text(vystup, text_barvy(x)); }
    void operator()(const SeznamJsonu& x) const {
        vystup += '[';
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (i > 0)
                vystup += ", ";
            zapis_json(vystup, x[i]);
        }
        vystup += ']';
    }
    void operator()(const ZaznamJsonu& x) const {
        vystup += '{';
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (i > 0)
                vystup += ", ";
            zapis_text(vystup, x[i].klic);
            vystup += ": ";
            zapis_json(vystup, x[i].hodnota);
        }
        vystup += '}';
    }
};

} // namespace

Json json_text(TextPohled text) {
    return json_utf8(na_utf8(text));
}

Json json_utf8(std::string_view utf8) {
    Json json;
    json.hodnota = std::string(utf8);
    return json;
}

Json json_barva(Barva barva) {
    Json json;
    json.hodnota = BarvaJsonu{static_cast<std::uint32_t>(barva)};
    return json;
}

void pridej(ZaznamJsonu& zaznam, std::string_view klic, Json hodnota) {
    zaznam.push_back({std::string(klic), std::move(hodnota)});
}

const Json* clen(const Json& zaznam, std::string_view klic) {
    const auto* cleny = std::get_if<ZaznamJsonu>(&zaznam.hodnota);
    if (cleny == nullptr)
        return nullptr;
    const auto nalezeny =
        std::find_if(cleny->begin(), cleny->end(), [&](const ClenJsonu& c) { return c.klic == klic; });
    return nalezeny == cleny->end() ? nullptr : &nalezeny->hodnota;
}

void zapis_json(std::string& vystup, const Json& json) {
    std::visit(Zapis{vystup}, json.hodnota);
}

std::string zapis_json(const Json& json) {
    std::string vystup;
    zapis_json(vystup, json);
    return vystup;
}

std::string hodnota_json(const Json& json) {
    if (const auto* text = std::get_if<std::string>(&json.hodnota))
        return *text;
    if (const auto* barva = std::get_if<BarvaJsonu>(&json.hodnota))
        return text_barvy(*barva);
    if (const auto* seznam = std::get_if<SeznamJsonu>(&json.hodnota)) {
        std::string spojene;
        for (std::size_t i = 0; i < seznam->size(); ++i) {
            if (i > 0)
                spojene += ',';
            spojene += hodnota_json((*seznam)[i]);
        }
        return spojene;
    }
    return zapis_json(json);
}
