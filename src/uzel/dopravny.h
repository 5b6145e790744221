// uzel/dopravny.h - the stations and points of the junction: their codes and names, and which tracks are
// whose.
#pragma once

#include "zaklad/text.h"

#include <array>

// Codes as the timetable and the trains have them.
namespace dopravna {
inline constexpr int zadna = 0;
inline constexpr int lhotin = 1;
inline constexpr int borovec = 2;
inline constexpr int javorin = 3;
inline constexpr int dubnice = 4;
inline constexpr int vrbice = 5;
inline constexpr int rokytno = 6;
inline constexpr int rybnice = 7;
inline constexpr int vysni_hrabov = 8;
inline constexpr int tesk = 9; // the main station
inline constexpr int kamenec = 10;
inline constexpr int mokrina = 11;
inline constexpr int hajovice = 12;
inline constexpr int knizeci_luka = 13;
inline constexpr int olsany = 14;
inline constexpr int dolni = 15;
inline constexpr int pvs = 16;
inline constexpr int ona = 17, onb = 18; // two branches of the line
inline constexpr int polska_lhota = 19;
inline constexpr int hvozdy = 20;
inline constexpr int zlata = 21;
inline constexpr int jivova = 22;
inline constexpr int javorna = 23;
inline constexpr int podoli = 24;
inline constexpr int hajovice_sn = 27, hajovice_sn_2 = 31; // the two ends of one yard
inline constexpr int dkv = 28, dkv_2 = 30;                 // of one depot
inline constexpr int javorin_dolni = 32;
inline constexpr int posta = 33;
inline constexpr int dkv_vh = 34;
inline constexpr int lipina = 35;
} // namespace dopravna

namespace uzel {

struct Stanice {
    TextPohled nazev, kod;
};
// Names by station code. 27 and 31 are the two ends of one yard, 28 and 30 of one depot; 36 to 38 are names
// of timetable rows only. A row without a name is no station; only some have a code of three letters.
inline constexpr std::array<Stanice, 39> kStanice = {{
    {},
    {"Lhotín"_cz, "LHO"_cz},
    {"Borovec"_cz, "BOR"_cz},
    {"Javořín"_cz, "JAV"_cz},
    {"Dubnice"_cz, "DUB"_cz},
    {"Vrbice"_cz, "VRB"_cz},
    {"Rokytno"_cz, "ROK"_cz},
    {"Rybnice"_cz, {}},
    {"Vyšní Hrabov"_cz, "TVH"_cz},
    {"Tesk hl. n."_cz, "THN"_cz},
    {"Kamenec"_cz, {}}, // 10
    {"Mokřina"_cz, {}},
    {"Hájovice"_cz, "THJ"_cz},
    {"Knížecí Luka"_cz, "TKL"_cz},
    {"Olšany"_cz, {}},
    {"dolní n."_cz, {}},
    {"PVS"_cz, {}},
    {"ONA"_cz, "ONA"_cz},
    {"ONB"_cz, "ONB"_cz},
    {"Pol. Lhota"_cz, "PLH"_cz},
    {"Hvozdy"_cz, "HVO"_cz}, // 20
    {"Zlatá"_cz, {}},
    {"Jívová/Bystrou"_cz, {}},
    {"Javorná/Bystrou"_cz, {}},
    {"Podolí"_cz, {}},
    {},
    {},
    {"Hájovice s.n."_cz, "THS"_cz},
    {"DKV"_cz, "DKV"_cz},
    {},
    {"DKV"_cz, "DKV"_cz}, // 30
    {"Hájovice s.n."_cz, "THS"_cz},
    {"Javořín dolní"_cz, {}},
    {"Pošta"_cz, "PST"_cz},
    {"DKV VH"_cz, "DVH"_cz},
    {"Tesk Lipina"_cz, {}},
    {"Veselá"_cz, {}},
    {"Skalka"_cz, {}},
    {"Ořechov"_cz, {}},
}};

// Neighbours whose trains the desk foretells, by station code: the ends of the lines, and the two branches
// behind the main station's yard.
inline constexpr std::array kSPredpovedi = {dopravna::lhotin, dopravna::borovec,      dopravna::dubnice,
                                            dopravna::vrbice, dopravna::rokytno,      dopravna::ona,
                                            dopravna::onb,    dopravna::polska_lhota, dopravna::hvozdy};

// Tracks of the stations, under the names by which the operator looks for one ("TVH 3"): first and last
// element of each run of numbers. Runs do not overlap; a station may have several.
struct KolejeStanice {
    int od, po;
    TextPohled kod;
    int stanice;
};
inline constexpr std::array<KolejeStanice, 16> kKolejeStanic = {{{0, 3, "JAV", dopravna::javorin},
                                                                 {9, 18, "TVH", dopravna::vysni_hrabov},
                                                                 {97, 97, "TVH", dopravna::vysni_hrabov},
                                                                 {22, 35, "THN", dopravna::tesk},
                                                                 {36, 40, "TMK", dopravna::mokrina},
                                                                 {41, 43, "DUB", dopravna::dubnice},
                                                                 {44, 46, "TRY", dopravna::rybnice},
                                                                 {93, 94, "TRY", dopravna::rybnice},
                                                                 {96, 96, "TRY", dopravna::rybnice},
                                                                 {47, 61, "THJ", dopravna::hajovice},
                                                                 {76, 77, "THJ", dopravna::hajovice},
                                                                 {62, 65, "BOR", dopravna::borovec},
                                                                 {66, 69, "ROK", dopravna::rokytno},
                                                                 {70, 75, "TKL", dopravna::knizeci_luka},
                                                                 {78, 83, "TDN", dopravna::dolni},
                                                                 {86, 90, "LHO", dopravna::lhotin}}};
// The row of the track; nullptr between the stations.
constexpr const KolejeStanice* stanice_koleje(int n) {
    for (const KolejeStanice& k : kKolejeStanic)
        if (n >= k.od && n <= k.po)
            return &k;
    return nullptr;
}

// The platform tracks of the main station: sets for its trains are put there, locomotives change there.
constexpr bool je_kolej_hlavniho(int n) {
    return n >= 26 && n <= 35;
}

// The stub of the locomotives at the main station, which is also where the post's shunts come from, and the
// platform track beside it: a locomotive that comes off there clears the platform by the stub at once.
inline constexpr int kKusaKolej = 574, kKolejVedleKuse = 32;

} // namespace uzel
