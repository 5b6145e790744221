// relief/relief.h - the relief store: every element of the screen, by kind and number.
//
// An element exists only if the relief file or the screen itself placed it. Elements are made once and
// never destroyed. Two kinds may use the same number: 212 is a track, a label and a signal, in three
// places. Element 0 of every kind of the relief exists from the start, invisible and blank, so 0 is a
// number like any other and kZadny is the one that means none. uzel/cislovani.h tells what the numbers mean.
#pragma once

#include "relief/prvek.h"
#include "uzel/cislovani.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

inline constexpr int kSirkaZnaku = 120;     // width of a glyph of the screen font, twips
inline constexpr int kVyskaZnaku = 195;     // its height, and the row raster of the relief
inline constexpr int kDruhyMonitor = 15400; // how far right of its twin a second-monitor element stands

// The kinds. Those of the layout first, in the order of the groups of the desk behind them.
#define TESK_DRUHY(X)                                                                                        \
    X(kolej)                                                                                                 \
    X(most)                                                                                                  \
    X(cislo_koleje)                                                                                          \
    X(navestidlo)                                                                                            \
    X(navestidlo_ser)                                                                                        \
    X(imgVyhybka)                                                                                            \
    X(Image1)                                                                                                \
    X(lblSouhlas)                                                                                            \
    X(lblSouhlas2)                                                                                           \
    X(lblPrejezd)                                                                                            \
    X(lblPrejezdy)                                                                                           \
    X(shpPrejezdy)                                                                                           \
    X(lblnastupiste)                                                                                         \
    X(lblVykolejka)                                                                                          \
    X(popis_stanice)                                                                                         \
    X(imgStanoviste)                                                                                         \
    X(imgSberac)                                                                                             \
    X(lblPredvidany_odjezd)                                                                                  \
    X(lblTabulka_vlaku)                                                                                      \
    X(shpblikacka)                                                                                           \
    X(lblPN)                                                                                                 \
    /* the command line; index 1 is the twin on the second monitor */                                        \
    X(lblPrikaz)                                                                                             \
    X(lblVolba)                                                                                              \
    X(txtZadav_pole)                                                                                         \
    X(lblMakro_pismeno)                                                                                      \
    /* clock and run state */                                                                                \
    X(lblcas)                                                                                                \
    X(lblcas_od_zacatku)                                                                                     \
    X(lblDEN)                                                                                                \
    X(lblGVD)                                                                                                \
    X(lblrychlost_simulace)                                                                                  \
    X(lblPauza)                                                                                              \
    X(lblVerze)                                                                                              \
    X(lblPrava)                                                                                              \
    X(lblMereni_casu)                                                                                        \
    /* the stack */                                                                                          \
    X(lblZasobnik_pocet)                                                                                     \
    X(lblZasobnik_blokv)                                                                                     \
    X(lblZasobnik_EZ)                                                                                        \
    X(lblZasobnik_PV)                                                                                        \
    X(lblZasobnik_VZ)                                                                                        \
    /* the signal panel */                                                                                   \
    X(lblnavestidlo)                                                                                         \
    X(lblNavestidlo_stanice)                                                                                 \
    X(svetlo)                                                                                                \
    X(pruh)                                                                                                  \
    /* keys and pictures of the bar */                                                                       \
    X(imgToc)                                                                                                \
    X(imgToc2)                                                                                               \
    X(imgSound)                                                                                              \
    X(imgUloz)                                                                                               \
    X(imgKONEC)                                                                                              \
    X(imgDEBUG)                                                                                              \
    X(imgPauza)                                                                                              \
    X(imgMinimalizuj)                                                                                        \
    X(imglista_horni)                                                                                        \
    X(imgV1)                                                                                                 \
    /* the bottom panel */                                                                                   \
    X(cmdZpravy)                                                                                             \
    X(cmDenik)                                                                                               \
    X(cmdTABULKA)                                                                                            \
    X(cmdVLAK)                                                                                               \
    X(lblIinfo_o_vlaku)                                                                                      \
    X(imgObrzaek_vlaku)                                                                                      \
    X(lblPopis_vozu)                                                                                         \
    X(lblPokracuje)                                                                                          \
    X(shpVyhledavani)

enum class Druh : std::uint8_t {
#define X(jmeno) jmeno,
    TESK_DRUHY(X)
#undef X
};

// Text painted on the background of the relief: it belongs to no element.
struct NapisPozadi {
    std::int32_t vlevo = 0, nahore = 0; // twips
    Text znaky;
    bool operator==(const NapisPozadi&) const = default;
};

// A list of text lines with one selected.
struct Seznam {
    std::vector<Text> radky;
    int vybrany = -1; // -1: no line
    bool viditelny = false;
    bool operator==(const Seznam&) const = default;
};

struct Relief {
#define X(jmeno) TabulkaPrvku jmeno;
    TESK_DRUHY(X)
#undef X
    std::vector<NapisPozadi> napisy; // painted texts, in the order of the file
    Seznam lstZpravy;                // delays
    Seznam lstDenik;                 // departures, predicted trains
    std::int32_t nejvyssi_poradi = 0, nejnizsi_poradi = 0;

    bool operator==(const Relief&) const = default;
};
extern Relief relief;

inline constexpr int kObrazekVyhybky = 100; // picture of a switch in state 0; behind it those of its states

// Pictures of imgSound.
inline constexpr std::int16_t kObrazekZvukZapnut = 1;
inline constexpr std::int16_t kObrazekZvukVypnut = 2;

// One row a kind: its name and its table.
struct PopisDruhu {
    Druh druh;
    std::string_view jmeno;
    TabulkaPrvku Relief::*tabulka;
};
inline constexpr std::array kDruhy = {
#define X(jmeno) PopisDruhu{Druh::jmeno, #jmeno, &Relief::jmeno},
    TESK_DRUHY(X)
#undef X
};

// --- at start

// The whole store as it stands before any file is read: element 0 of each kind of the layout, and the
// elements of the screen's own (command line, clock, stack, panel, keys) at their places.
Relief novy_relief();

// --- at any time, without change

TabulkaPrvku& tabulka(Druh druh);
std::string_view jmeno_druhu(Druh druh);
std::optional<Druh> druh_podle_jmena(std::string_view jmeno);

// The track n exists.
bool je_kolej(int n);
// The label n exists.
bool je_cislo_koleje(int n);
// n can end a route: it is a line end, or it has a target `Image1`.
bool je_cil(int n);
// The kind's table of the signal n, as je_na_ser tells.
TabulkaPrvku& navestidla(int n);
// Name of the element n for texts: of a signal its tag, else the target's name, else the track's label
// name; empty when none exists.
Text jmeno(int n);

// --- painting

// Brings an element before or behind all others.
void do_popredi(Prvek& prvek);
void do_pozadi(Prvek& prvek);
// Caption of a self-sizing label: the size follows the number of glyphs.
void nastav_text(Prvek& prvek, TextPohled text);
// Removes a highlight: frame off, background black; a failed signal (grey background) keeps its own.
void zrus_zvyrazneni(Prvek& prvek);
