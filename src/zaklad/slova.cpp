// zaklad/slova.cpp - a line of a script as words.
#include "zaklad/slova.h"

std::optional<std::vector<std::string>> rozdel_na_slova(std::string_view radek) {
    constexpr std::string_view kBom = "\xEF\xBB\xBF";
    if (radek.starts_with(kBom))
        radek.remove_prefix(kBom.size());

    std::vector<std::string> slova;
    bool ve_slove = false, uvnitr_uvozovek = false;
    for (std::size_t i = 0; i < radek.size(); ++i) {
        const char znak = radek[i];
        if (uvnitr_uvozovek) {
            if (znak != '"') {
                slova.back() += znak;
            } else if (i + 1 < radek.size() && radek[i + 1] == '"') {
                slova.back() += '"';
                ++i;
            } else {
                uvnitr_uvozovek = false;
            }
            continue;
        }
        if (znak == '#')
            break;
        if (znak == ' ' || znak == '\t' || znak == '\r') {
            ve_slove = false;
            continue;
        }
        if (!ve_slove) {
            slova.emplace_back();
            ve_slove = true;
        }
        if (znak == '"')
            uvnitr_uvozovek = true;
        else
            slova.back() += znak;
    }
    if (uvnitr_uvozovek)
        return std::nullopt;
    return slova;
}

std::string jako_slovo(std::string_view text) {
    if (!text.empty() && text.find_first_of(" \t\r\n\"#") == std::string_view::npos)
        return std::string(text);
    std::string slovo = "\"";
    for (const char znak : text)
        slovo += znak == '"' ? "\"\"" : std::string(1, znak == '\n' || znak == '\r' ? ' ' : znak);
    return slovo + '"';
}
