// nastroje/slova.h - words of a line of a readable source: the same in the layout, the timetables and the
// vehicles.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

struct Slovo {
    std::string text;
    bool v_uvozovkach = false;
};

// Words are separated by blanks, a text in quotes is one word, `#` begins a comment. A text without its
// closing quote ends the line: the words before it are answered, and `neuzavrene` becomes true.
inline std::vector<Slovo> slova_radku(std::string_view radek, bool& neuzavrene) {
    std::vector<Slovo> slova;
    std::size_t i = 0;
    neuzavrene = false;
    while (i < radek.size() && radek[i] != '#') {
        if (radek[i] == ' ' || radek[i] == '\t' || radek[i] == '\r') {
            ++i;
            continue;
        }
        const bool v_uvozovkach = radek[i] == '"';
        std::size_t konec = radek.find_first_of(v_uvozovkach ? "\"" : " \t\r#\"", i + v_uvozovkach);
        if (konec == std::string_view::npos) {
            if (v_uvozovkach) {
                neuzavrene = true;
                break;
            }
            konec = radek.size();
        }
        const std::size_t zacatek = i + v_uvozovkach;
        slova.push_back({std::string(radek.substr(zacatek, konec - zacatek)), v_uvozovkach});
        i = konec + v_uvozovkach;
    }
    return slova;
}
