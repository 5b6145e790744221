// uzel/trate.h - the open lines of the junction: ends towards neighbours, single tracks, the track before the
// junction lines, and where the drawing is folded.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/dopravny.h"
#include "zaklad/text.h"

#include <array>

namespace uzel {

// --- the line ends with consent

// A line end towards a neighbouring station whose trains come in with a consent: the two elements that route
// logic treats as one, its names, and the glyphs of its lamp. A row's place is the number of the lamp
// (lblSouhlas), of the predicted departure beside it and of the consent in a save.
struct KonecTrati {
    int navestidlo; // number of the signal and of the section outside: the last element of a route out
    int usek;       // section inside: the end that such a route is picked by
    int vjezd;      // first signal of a train that comes in
    int stanice;    // the neighbour
    TextPohled nazev;
    TextPohled vyzva; // beginning of the question "... Přijmete vlak "
    int znak_dovnitr; // glyph at rest, with a consent given, behind a train that came in
    int znak_ven;     // glyph while a route leads out
};
inline constexpr std::array<KonecTrati, 3> kKonceTrati = {{
    {kVstupyZTrati[0], 84, 284, dopravna::polska_lhota, "PLH-JAV", " PLH: Přijmete vlak "_cz, 8, 15},
    {kVstupyZTrati[1], 85, 285, dopravna::hvozdy, "HVO-JAV", " HVO: Přijmete vlak "_cz, 8, 15},
    {kVstupyZTrati[2], 117, 317, dopravna::vrbice, "VRB-THN", " VRB: Přijmete vlak "_cz, 176, 183},
}};

// Line end to which element n belongs, by either of its two numbers; -1 when to none.
constexpr int konec_trati(int n) {
    for (int k = 0; k < 3; ++k)
        if (n == kKonceTrati[static_cast<unsigned>(k)].navestidlo ||
            n == kKonceTrati[static_cast<unsigned>(k)].usek)
            return k;
    return -1;
}
// Line end towards a station; -1 when trains from there need no consent.
constexpr int konec_ke_stanici(int stanice) {
    for (int k = 0; k < 3; ++k)
        if (stanice == kKonceTrati[static_cast<unsigned>(k)].stanice)
            return k;
    return -1;
}
// Section inside of the line end; kZadny when n is no section outside.
constexpr int usek_za_vstupem(int n) {
    for (const KonecTrati& konec : kKonceTrati)
        if (n == konec.navestidlo)
            return konec.usek;
    return kZadny;
}
// n is a section inside of a line end.
constexpr bool je_usek_konce(int n) {
    for (const KonecTrati& konec : kKonceTrati)
        if (n == konec.usek)
            return true;
    return false;
}

// --- single tracks that are no numbered lines

// The single track over Kamenec, between the main station and Mokřina: one element, which both stations'
// routes end on. It is drawn apart from the line that it leads to. Which side a route comes from its last
// element but one tells.
inline constexpr int kKamenec = 118;
inline constexpr int kKeKamenciOdTesku = 187, kKeKamenciOdMokriny = 303;
// Its platform, from metre to metre behind either end.
struct Nastupiste {
    int od_m, po_m;
};
inline constexpr Nastupiste kKamenecOdTesku = {5200, 5350}, kKamenecOdMokriny = {700, 850};

// The two tracks between Mokřina and Dubnice, one element each, where no routes but those of their ends run.
inline constexpr std::array kTratDubnice = {120, 123};
constexpr bool je_trat_dubnice(int n) {
    return je_v(n, kTratDubnice);
}
// A track of these has an arrow of its own, which its colour lights and puts out.
constexpr bool ma_vlastni_sipku(int n) {
    return n == kKamenec || je_trat_dubnice(n);
}
// Tracks of the line ends and the single track over Kamenec: routes only lock them by their lamps and arrows.
constexpr bool je_hranicni(int n) {
    return n == kKamenec || konec_trati(n) >= 0;
}

// --- Rybnice and the junction behind it

// Track T2 of Rybnice: a station track, and the first section of its line as well. At rest its label shows
// its name.
inline constexpr int kT2 = 638;
inline constexpr TextPohled kNazevT2 = "T2";

// Tracks of Rybnice before the lines of the junction, whose ends share number and arrow with a section of the
// line behind them.
struct KolejPredTrati {
    int kolej;
    int usek; // the section
    // A number that goes off the line while it runs towards the junction goes off the track as well.
    bool cislo_s_trati;
    // The arrow, once lit, goes out with a route only while it points to the right.
    bool zhasne_jen_vpravo;
};
inline constexpr std::array<KolejPredTrati, 3> kKolejePredTrati = {{
    {93, 634, true, false},
    {94, 636, false, true},
    {96, 632, true, false},
}};
// The row of a track, or of the line behind it; nullptr for other numbers.
constexpr const KolejPredTrati* kolej_pred_trati(int kolej) {
    for (const KolejPredTrati& k : kKolejePredTrati)
        if (k.kolej == kolej)
            return &k;
    return nullptr;
}
constexpr const KolejPredTrati* kolej_pred_usekem(int usek) {
    for (const KolejPredTrati& k : kKolejePredTrati)
        if (k.usek == usek)
            return &k;
    return nullptr;
}
// The track of them where trains stop as on a line, with all their length on it.
inline constexpr int kKolejStopuPredTrati = 96;
// The section behind it: a route over it is locked even while a train ahead is still on it.
inline constexpr int kUsekIObsazeny = 632;
// The start signal there of which the track, as an end, has another number than its signal says.
inline constexpr int kNavestidloZaKoleji = 633;
// A signal at the far end of its line: the number before it is that of the second section.
inline constexpr int kNavestidloNaKonciTrati = 639, kStitekPredNim = 688;

// Station tracks by their numbers, T2 among them. 200 to 400 are pieces of throats.
constexpr bool je_stanicni(int n) {
    return n < kDruhyStitek || (n > 2 * kDruhyStitek && n < kPrvniTrat) || n == kT2;
}

// --- the fold of the line from Mokřina to Rybnice

// Its two tracks are drawn in two pieces each, whose numbers are those of two tracks: {piece, first piece}.
struct KusTrati {
    int kus, prvni;
};
inline constexpr std::array<KusTrati, 2> kOhybMokriny = {{{114, 113}, {116, 115}}};

// --- the usual direction

// Lines whose usual direction is to the left; the others run to the right. Their numbers are those of the
// first section.
inline constexpr std::array kTrateVlevo = {602, 606, 610, 614, 618, 622, 626, 630, 634, 636, 120, 19};
// Lines without a usual direction: single tracks, and what both directions share.
inline constexpr std::array kTrateObousmerne = {kKamenec, 84, 85, 117, 76, 77, 113, 115};

// --- labels of lines

// Labels that only repeat another one, at a second drawing or a second end of its line.
struct ObrazStitku {
    int vzor, kopie;
};
inline constexpr std::array<ObrazStitku, 3> kObrazyStitku = {
    {{614, 615}, {608, 609}, {kKamenec, kObrazKamence}}};
// Behind these, labels of lines take no click, and those of no line count minutes.
inline constexpr int kNejvyssiStitekTrati = 650, kNejvyssiStitekMinut = 950;
// Sections from here on are second or further ones of their line.
inline constexpr int kDruheUseky = kPrvniTrat + kKrokTrati;

// --- warnings to a train whose way is not set

// Long sections at whose end a train is warned of a signal at caution, by the sense in which it comes to it,
// and how many metres before the end the warning stops to make sense.
struct DlouhyUsek {
    int usek;
    bool vpravo, vlevo;
    int nejmene_m;
};
inline constexpr std::array<DlouhyUsek, 7> kDlouheUseky = {{
    {kKamenec, true, true, 600},
    {kTratDubnice[0], true, true, 500},
    {kTratDubnice[1], true, true, 500},
    {604, false, true, 500},
    {606, false, true, 500},
    {654, true, false, 500},
    {656, true, false, 500},
}};
constexpr const DlouhyUsek* dlouhy_usek(int n, bool smer) {
    for (const DlouhyUsek& u : kDlouheUseky)
        if (u.usek == n && (smer ? u.vpravo : u.vlevo))
            return &u;
    return nullptr;
}
// The line of Podolí: its sections warn at their ends, not at the entry.
inline constexpr std::array kTratPodoli = {604, 606, 654, 656};

// --- the folded drawing

// Tracks on which the sense of travel turns, because the picture of a line goes on in another one: when
// entered from a track, or from a switch or derailer.
inline constexpr std::array kOhybyZKoleje = {115, 116, kKamenec};
inline constexpr std::array kOhybyZVyhybky = {kKamenec, 335, 336};

} // namespace uzel
