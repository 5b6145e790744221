// nakres/koridory.h - the lines of the junction as time-distance diagrams draw them.
//
// Data of the installation and no code: data\tesk.kor, the text of kolejiste/koridory.txt that the reader of
// the train-number log and the planner's tools take too. A place is known by its index in `mista`.
#pragma once

#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// A station, or a point of the timetable.
struct MistoNakresu {
    Text zkratka, nazev;
    std::vector<std::uint8_t> kody; // of the timetable: two ends of one yard are one place
    bool zastavka = false;          // a stop on the open line
    bool jen_jmeno = false;         // a name without a track
    std::vector<int> koleje;        // here a train stands in the station
    bool operator==(const MistoNakresu&) const = default;
};

// Tracks beside each other, one at least, and how much of them lies between the two places: a stop divides
// its section. The length of the first one counts.
struct DilUseku {
    std::vector<int> prvky;
    double cast = 1;
    bool operator==(const DilUseku&) const = default;
};
// What lies between two neighbours, from a to b.
struct UsekNakresu {
    int a = kZadny, b = kZadny;
    std::vector<DilUseku> dily;
    bool operator==(const UsekNakresu&) const = default;
};

// A line from the top of its diagram down. Places of one row lie at the same height, as the two ends of a
// branch do.
struct Koridor {
    Text jmeno, nadpis;
    std::vector<std::vector<int>> rady;
    bool operator==(const Koridor&) const = default;
};

struct Koridory {
    std::vector<MistoNakresu> mista;
    std::vector<UsekNakresu> useky;
    std::vector<Koridor> trate;
    bool operator==(const Koridory&) const = default;
};

// Where the rows and the tracks of one line lie, metres from its first row.
struct RadaOsy {
    std::vector<int> mista;
    double metry = 0;
    bool zastavka = false;
};
struct PrvekOsy {
    int prvek = kZadny;
    double od = 0, po = 0;
};
struct OsaKoridoru {
    Text jmeno, nadpis;
    std::vector<RadaOsy> rady;
    std::vector<PrvekOsy> prvky; // of the open line, between the rows
    double delka() const { return rady.empty() ? 0 : rady.back().metry; }
};

// --- at any time, without change

// A file of more bytes is none of ours: what a line of it says takes more room than the line.
inline constexpr std::size_t kNejvetsiKoridory = 256 * 1024;

// The text of the file. A line that cannot be understood is left out and told in `zavady`; so is the whole of
// a file that is too large.
Koridory precti_koridory(std::span<const std::uint8_t> bajty, std::vector<Text>& zavady);
// Those of the installation; none when it has no file.
const Koridory& koridory();

// Place of a code of the timetable, of a track of a station; kZadny when there is none.
int misto_stanice(const Koridory& k, int kod);
int misto_koleje(const Koridory& k, int prvek);
// The element lies between two places, on whichever line.
bool je_v_useku(const Koridory& k, int prvek);

// The line with its distances, by the lengths of the compiled tracks. Neighbours between which no section is
// told lie at one height.
OsaKoridoru osa_koridoru(const Koridory& k, const Koridor& trat);
// Metres of a place on the line; nothing when it lies off it.
std::optional<double> metry_mista(const OsaKoridoru& osa, int misto);
