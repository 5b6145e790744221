// nastroje/gvd/zprava.cpp - counts the trains of a timetable.
#include "gvd/zprava.h"

#include "uzel/dopravny.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>

namespace planovani {

namespace {

// The days of the week, and trains of need.
using PoDnech = std::array<int, 8>;

constexpr std::string_view kHlavickaDnu = " | Po | Út | St | Čt | Pá | So | Ne | PP |\n"
                                          "|---|--:|--:|--:|--:|--:|--:|--:|--:|\n";

void pripocti(PoDnech& dny, const GvdVlak& r) {
    for (std::size_t d = 0; d < 8; ++d)
        dny[d] += (r.dny >> d & 1) != 0 ? 1 : 0;
}

std::string radek(const std::string& jmeno, const PoDnech& dny) {
    std::string text = "| " + jmeno + " |";
    for (const int n : dny)
        text += n == 0 ? " |" : " " + std::to_string(n) + " |";
    return text + "\n";
}

std::string tabulka(const JizdniRad& rad, const std::string& nadpis, const std::string& sloupec,
                    const std::function<int(const GvdVlak&)>& klic,
                    const std::function<std::string(int)>& jmeno) {
    std::map<int, PoDnech> radky;
    for (const GvdVlak& r : rad.vlaky)
        pripocti(radky[klic(r)], r);
    std::string text = "\n## " + nadpis + "\n\n| " + sloupec + std::string(kHlavickaDnu);
    for (const auto& [k, dny] : radky)
        text += radek(jmeno(k), dny);
    return text;
}

} // namespace

std::string tabulka_provozu(const JizdniRad& rad, std::string_view nadpis) {
    std::string text = "# " + std::string(nadpis) + "\n\n" + na_utf8(rad.popis) +
                       ". PP jsou vlaky podle potřeby, které jedou navíc. Sestavil `tesk-gvd`.\n";
    PoDnech celkem{};
    for (const GvdVlak& r : rad.vlaky)
        pripocti(celkem, r);
    text += "\n| vlaků za den" + std::string(kHlavickaDnu) + radek("celkem", celkem);
    text += tabulka(
        rad, "Podle druhu", "druh", [](const GvdVlak& r) { return static_cast<int>(r.druh); },
        [](int druh) { return druh == 9 ? std::string("bez zkratky") : na_utf8(zkratka_druhu(druh)); });
    const auto stanice = [](int kod) {
        return na_utf8(nazev_stanice(kod)) +
               (kod == dopravna::hajovice_sn_2 || kod == dopravna::dkv_2 ? " (východ)" : "");
    };
    text += tabulka(
        rad, "Podle vstupu", "první stanice",
        [](const GvdVlak& r) { return static_cast<int>(r.zastavky.front().stanice); }, stanice);
    text += tabulka(
        rad, "Podle výstupu", "poslední stanice",
        [](const GvdVlak& r) { return static_cast<int>(r.zastavky.back().stanice); }, stanice);
    text += tabulka(
        rad, "Podle hodiny vstupu", "hodina", [](const GvdVlak& r) { return cas_vstupu(r) / 60 % 24; },
        [](int h) { return std::to_string(h) + ":00"; });
    return text;
}

std::string zprava_planu(const JizdniRad& rad, const Dukaz& dukaz, std::string_view nadpis) {
    std::string text = tabulka_provozu(rad, nadpis);
    text += "\n## Nejdelší klid v nejrušnější noci (22:00 až 6:00)\n\n";
    for (const std::string& r : dukaz.klid)
        text += "- " + r + "\n";
    text += "\n## Co plán neslibuje\n\n";
    for (const std::string& r : dukaz.neslibuje)
        text += "- " + r + "\n";
    text += "\n## Co nejde\n\n";
    for (const ChybaZdroje& c : dukaz.chyby)
        text += "- řádek " + std::to_string(c.radek) + ": " + c.zprava + "\n";
    if (dukaz.chyby.empty())
        text += "Nic: plán lze odjet.\n";
    return text;
}

} // namespace planovani
