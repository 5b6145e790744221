// nastroje/kolejiste/plan.h - the junction as its source says it: blocks, elements, demands; nothing is
// placed yet.
//
// The source is drawn on a raster: columns of one glyph (120 twips) and rows of one glyph's height
// (195 twips). Every place is told from the origin of its block, so that a station moves as a whole. A
// block has an origin in each of the two pictures, and on two monitors columns may be let in behind any
// of its columns, which lengthens the lines that cross them and moves the rest.
//
// A number is worth nothing without its kind: 212 may be a track, a label and a signal in three places.
#pragma once

#include "relief/soubor_reliefu.h"
#include "relief/tvary_vyhybek.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kolejiste {

// Where a thing stands in the source.
struct Misto {
    std::string soubor;
    int radek = 0;
};

// What is wrong, as it is printed: "kolejiste/thn.tk:42: kolej 26: ...".
struct Zavada {
    Misto misto;
    std::string prvek; // kind and number; may be empty
    std::string text;
};
std::string veta(const Zavada& zavada);
// The number of an element as it stands in the text of a fault.
inline std::string s(int n) {
    return std::to_string(n);
}

enum class Obraz : std::uint8_t { jeden, dva }; // the picture of one monitor and of two
inline constexpr std::array kObrazy = {Obraz::jeden, Obraz::dva};

inline constexpr int kSloupec = 120;        // width of a column, twips
inline constexpr int kRadek = 195;          // height of a row
inline constexpr int kHorniOkraj = 46 * 15; // the relief begins below the command line
inline constexpr int kRadku = 42;           // rows of the relief
inline constexpr int kSloupcuJeden = 128;   // columns of one monitor

// A place on the raster of a block: the middle of a row or, for diagonals, its upper edge.
struct Bod {
    int sloupec = 0, radek = 0;
    bool roh = false;
    bool operator==(const Bod&) const = default;
};

struct Posun {
    int sloupec = 0, radek = 0;
};

// A station or a line: a part of the picture that moves as a whole.
struct Blok {
    Misto misto;
    std::string kod;   // three letters before the names of its signals and targets
    std::string nazev; // UTF-8
    std::array<Posun, 2> pocatek{};
    std::map<int, int> vsuvky; // two monitors: behind which column, how many columns more
};

enum class Strana : std::uint8_t { vlevo, vpravo };

// What every drawn element has.
struct Zapis {
    Misto misto;
    std::size_t blok = 0;
    int cislo = 0;
};

struct Stitek { // a label `cislo_koleje`
    Text nazev;
    int sirka = 5;          // columns kept free for it: a train number
    std::optional<Bod> kde; // placed freely; otherwise in the gap at the end of its line
};

struct Kolej : Zapis {
    std::array<Bod, 2> konce{};                  // left and right end
    std::optional<std::array<Bod, 2>> dva;       // the same on two monitors, where it differs
    std::optional<int> delka;                    // metres; without one the running takes 60
    std::array<std::optional<Stitek>, 2> stitky; // number n at the left, n + 200 at the right end
    std::optional<Stitek> jediny_vpravo;         // the label n, at the right end
    std::optional<Text> cil;                     // target of routes, and its name
    std::optional<int> vzor; // a second drawing of that track; it takes its colour and is in no route
};

struct Navestidlo : Zapis {
    bool posunove = false;
    Text jmeno;                    // whole: three letters, a blank, its own name
    Strana strana = Strana::vlevo; // that it is valid for, and the end of its track that it stands at
    std::optional<Strana> konec;   // the end, where the drawing is folded and the sense turns
    std::optional<int> kolej;      // where it does not follow from the number
    std::optional<Bod> kde;
    int znak = 0;
    Strana u_konce() const { return konec.value_or(strana); }
};

struct Vyhybka : Zapis {
    Bod kde; // the left end of its row
    int poloha = 0;
    std::string jmeno;
    std::vector<int> vazby;
};

struct Vykolejka : Zapis {
    Bod kde;
    int znak = 23;
};

// Everything that is only drawn: a record of the relief file and the columns and rows that it covers.
struct Kresba : Zapis {
    TypReliefu typ{};
    Bod kde;
    std::optional<Bod> kam; // of a line
    int parametr = 0;
    Text nazev;
    int sirka = 1, vyska = 1; // cells
    int posun_x = 0;          // twips
};

// One end of an element of the graph.
enum class Typ : std::uint8_t { kolej, vyhybka, vykolejka };
struct Konec {
    Typ typ = Typ::kolej;
    int cislo = 0;
    Port port = Port::zadny;
    auto operator<=>(const Konec&) const = default;
};
std::string popis(const Konec& konec); // "kolej 26 vlevo"

struct Spoj { // two ends that are one although the picture parts them
    Misto misto;
    Konec a, b;
};
enum class Zakonceni : std::uint8_t { okraj, zarazedlo }; // the edge of the area; a buffer stop
struct UzavrenyKonec {
    Misto misto;
    Konec konec;
    Zakonceni jak{};
};

struct PrejezdTrati { // record of the crossing file; its index is its number
    Misto misto;
    int cislo = 0, kolej = 0, poloha = 0;
    Text nazev;
};

// What the rules of the running demand of the numbers.
struct Pozadavky {
    std::map<std::string, std::set<int>> povinne, zakazane; // by kind
    std::map<int, int> nejmensi_delka;
    std::map<int, std::set<int>> obrazy; // track and its second drawings
    std::map<int, Text> sipky;           // captions of the arrows
    std::map<int, Text> jmena;           // names of tracks
    std::map<int, int> trojice;          // first position of the shape of a switch
    // Order in the picture: the left ends of `a` lie at or before the right ends of `b` (zleva), or behind
    // them (zprava).
    struct Poradi {
        Misto misto;
        bool zleva = false;
        std::set<int> a, b;
    };
    std::vector<Poradi> poradi;
    std::map<int, int> kolej_prejezdu; // crossing record to its track
    // Where each demanded number stands, by kind; and that of each crossing record.
    std::map<std::pair<std::string, int>, Misto> misto_povinnych;
    std::map<int, Misto> misto_prejezdu;
    // The source says that the junction is whole: what is demanded and is not drawn is a fault.
    bool uplne = false;
};

enum class DruhTrasy : std::uint8_t { vlak, posun }; // tables tesk.zat and tesk.zpc
inline constexpr std::array kDruhyTras = {DruhTrasy::vlak, DruhTrasy::posun};

struct PrvekTrasy { // an element named in a rule about routes
    Typ typ = Typ::kolej;
    int cislo = 0;
    auto operator<=>(const PrvekTrasy&) const = default;
};

// What the author says of the routes beyond what the drawing gives.
struct PravidlaTras {
    struct RucniTrasa { // the way of a route, or a route that runs past signals
        Misto misto;
        DruhTrasy druh{};
        int zacatek = 0, konec = 0;
        std::vector<PrvekTrasy> pres; // elements of the way, in running order
        std::set<int> kolem;          // signals that do not end it
    };
    struct Zakaz { // no such route; an empty set stands for all
        Misto misto;
        std::set<DruhTrasy> druhy;
        std::set<int> zacatky, konce;
    };
    struct Povinna { // the program asks for it by number
        Misto misto;
        int zacatek = 0, konec = 0;
        std::vector<std::set<int>> koleje; // one of each set lies on it
    };
    struct Odjezdy { // a train that stands there can be sent on in that sense
        Misto misto;
        DruhTrasy druh{};
        Strana strana{};
        std::set<int> koleje;
    };
    struct Programova { // a route that the program makes itself
        Misto misto;
        int zacatek = 0, konec = 0;
        std::vector<int> koleje;
    };
    std::vector<RucniTrasa> rucni;
    std::vector<Zakaz> zakazy;
    std::vector<Povinna> povinne;
    std::vector<Povinna> nesmi; // pairs that the table may not hold
    std::vector<Odjezdy> odjezdy;
    std::vector<Programova> programove;
    std::map<int, int> saha;     // end to the track behind it that its routes run on to
    std::set<int> jen_vlak;      // tracks without shunt routes
    std::set<int> slepe;         // tracks that end at the edge for good, though they are no target
    std::set<int> prujezdne;     // targets that routes also run through, where no signal stands at their end
    std::map<int, int> rychlost; // speed class over the branch of a switch, where it is not 40 km/h
};

struct Plan {
    std::vector<Blok> bloky;
    std::vector<Kolej> koleje;
    std::vector<Navestidlo> navestidla;
    std::vector<Vyhybka> vyhybky;
    std::vector<Vykolejka> vykolejky;
    std::vector<Kresba> kresby;
    std::vector<Spoj> spoje;
    std::vector<UzavrenyKonec> konce;
    std::vector<PrejezdTrati> prejezdy;
    Pozadavky pozadavky;
    PravidlaTras pravidla_tras;

    const Kolej* kolej(int cislo) const;
    const Vyhybka* vyhybka(int cislo) const;
    // Track of a signal: as the relief counts it, and for the signals at the right ends of the lines
    // the last section of the line.
    int kolej_navestidla(const Navestidlo& navestidlo) const;
    const Navestidlo* navestidlo(int cislo) const;
    // The signal at that end of the track, who leaves the track there obeys it; none when nothing stands
    // there.
    const Navestidlo* navestidlo_u(int kolej, Strana strana) const;
    // Highest section of the line that the section belongs to.
    int posledni_oddil(int oddil) const;
};

// Reads one source into the plan; everything that is wrong joins `zavady`, and reading goes on with the
// next line.
void precti(std::string_view text, const std::string& soubor, Plan& plan, std::vector<Zavada>& zavady);

} // namespace kolejiste
