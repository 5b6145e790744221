// nastroje/kolejiste/nahled.cpp - the picture as SVG, to look at while drawing.
#include "kolejiste/kresba.h"

#include <cstdlib>

namespace kolejiste {

namespace {

std::string cislo(double x) {
    std::string s = std::to_string(x);
    s.erase(s.find_last_not_of('0') + 1);
    if (s.ends_with('.'))
        s.pop_back();
    return s;
}

double px(int twipy) {
    return twipy / 15.0;
}

std::string cara(double x1, double y1, double x2, double y2, const char* barva, double sirka) {
    return "<line x1='" + cislo(x1) + "' y1='" + cislo(y1) + "' x2='" + cislo(x2) + "' y2='" + cislo(y2) +
           "' stroke='" + barva + "' stroke-width='" + cislo(sirka) + "'/>\n";
}

std::string napis(double x, double y, std::string_view text, const char* barva) {
    std::string uprava;
    for (const char c : text)
        uprava += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
    // text clears what lies under it
    return "<rect x='" + cislo(x - 2) + "' y='" + cislo(y) + "' width='" +
           cislo(text.empty() ? 0 : 7.3 * static_cast<double>(text.size()) + 4) +
           "' height='13' fill='black'/><text x='" + cislo(x) + "' y='" + cislo(y + 10.5) + "' fill='" +
           barva + "' font-family='DejaVu Sans Mono' font-size='12' xml:space='preserve'>" + uprava +
           "</text>\n";
}

std::string trojuhelnik(double x, double y, bool vpravo, const char* barva, double velikost) {
    const double s = y + 6.5, od = vpravo ? x : x + 8, po = vpravo ? x + 8 : x;
    return "<rect x='" + cislo(x) + "' y='" + cislo(y) +
           "' width='8' height='13' fill='black'/><polygon points='" + cislo(od) + "," + cislo(s - velikost) +
           " " + cislo(od) + "," + cislo(s + velikost) + " " + cislo(po) + "," + cislo(s) + "' fill='" +
           barva + "'/>\n";
}

} // namespace

std::string nahled(const std::vector<ZaznamReliefu>& zaznamy, Obraz obraz) {
    const int sirka = obraz == Obraz::jeden ? 1024 : 2048;
    std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='" + std::to_string(sirka) +
                      "' height='640' viewBox='0 0 " + std::to_string(sirka) +
                      " 640'>\n<rect width='100%' height='100%' fill='black'/>\n"
                      "<rect x='928' y='46' width='92' height='140' fill='#202040'/>\n";
    for (const ZaznamReliefu& z : zaznamy) {
        const double x = px(z.a), y = px(z.c);
        switch (static_cast<TypReliefu>(z.typ)) {
        case TypReliefu::kolej: svg += cara(x, y, px(z.b), px(z.d), "#a0a0a0", 3); break;
        case TypReliefu::most: svg += cara(x, y, px(z.b), px(z.d), "#606060", 1); break;
        case TypReliefu::vyhybka: {
            const int stav = std::atoi(z.nazev.c_str());
            const TvarVyhybky& t = tvar_vyhybky(stav);
            for (const Port p : t.nohy)
                if (p != Port::zadny) {
                    const MistoPortu m = misto_portu(p), s = misto_portu(Port::zadny);
                    const bool sjizdna = p == t.a || p == t.b;
                    const double od = sjizdna ? 0 : 0.45; // the other legs stop short of the middle
                    svg += cara(x + px(s.x) + od * px(m.x - s.x), y + px(s.y) + od * px(m.y - s.y),
                                x + px(m.x), y + px(m.y), sjizdna ? "#d0d0d0" : "#a0a0a0", 3);
                }
            break;
        }
        case TypReliefu::cislo_koleje: svg += napis(x, y, na_utf8(z.nazev), "#a0a0a0"); break;
        case TypReliefu::navestidlo: svg += trojuhelnik(x, y, z.parametr != 230, "#e04040", 5); break;
        case TypReliefu::navestidlo_ser:
            svg += trojuhelnik(x, y, z.parametr == 240 || z.parametr == 242, "#6080ff", 4);
            break;
        case TypReliefu::nastupiste:
            svg += "<rect x='" + cislo(x) + "' y='" + cislo(y) + "' width='" + cislo(px(z.b)) +
                   "' height='7' fill='#404040'/>\n";
            break;
        case TypReliefu::popis_stanice: svg += napis(x, y, na_utf8(z.nazev), "#e0e0e0"); break;
        case TypReliefu::stanoviste:
            svg += "<rect x='" + cislo(x) + "' y='" + cislo(y) +
                   "' width='21' height='21' fill='none' stroke='#808080'/>\n" +
                   napis(x + 3, y + 4, std::to_string(z.cislo), "#808080");
            break;
        case TypReliefu::smer_trati: svg += napis(x, y, na_utf8(z.nazev), "#c0c040"); break;
        case TypReliefu::souhlas: svg += trojuhelnik(x, y, true, "#4060ff", 5); break;
        case TypReliefu::vykolejka:
            svg += "<rect x='" + cislo(x + 1) + "' y='" + cislo(y + 3) +
                   "' width='6' height='7' fill='none' stroke='#e0a040'/>\n";
            break;
        case TypReliefu::prejezd_stanice:
            for (int i = 0; i < z.parametr; ++i)
                svg += napis(x + 8 * i, y, i % 2 == 0 ? "|" : ":", "#40c0c0");
            break;
        case TypReliefu::prejezd_trati: svg += napis(x, y, std::to_string(z.parametr), "#40c0c0"); break;
        case TypReliefu::napis_zarazedla: {
            const double k = z.parametr == 60 ? x : x + 1;
            svg += cara(k, y + 4, k, y + 13, "#a0a0a0", 3);
            break;
        }
        case TypReliefu::cil:
        case TypReliefu::napis_navestidla: break;
        }
    }
    return svg + "</svg>\n";
}

} // namespace kolejiste
