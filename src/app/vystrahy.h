// app/vystrahy.h - what the operator must not miss: who waits for him, told in words.
//
// The list is made of the state when a host asks for it. What the state itself does not remember is kept
// here: since when a station crossing is closed, and from which delay on a train grows later. Nothing but
// this table is written, so that the simulation, its log and its saves are the same with the watch and
// without it.
//
// A train is watched once its time has come: what stands at a platform before its departure waits for nobody.
// Shunting movements are not: their sets stand in the yard for hours.
#pragma once

#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>
#include <vector>

// In the order in which they are told: what waits for the operator alone comes first.
enum class DruhVystrahy : std::uint8_t {
    souhlas,        // a neighbour asks to send a train
    fronta,         // behind the message on the command line others wait
    vlak_stoji,     // a train could go and is held
    bez_lokomotivy, // the same, and nothing could draw it
    prejezd,        // a station crossing is closed for long
    zpozdeni,       // a train grows later and later
};

struct Vystraha {
    DruhVystrahy druh = DruhVystrahy::souhlas;
    Druh prvek = Druh::kolej; // where it is: an element of this kind, n none below 0
    int n = kZadny;
    std::int32_t vlak = 0; // its number as the operator sees it; 0 none
    Text text;
    bool operator==(const Vystraha&) const = default;
};

// From when on the desk says so.
inline constexpr std::int32_t kDlouheStani_min = 3;    // held beyond the time at which it could go
inline constexpr std::int32_t kDlouheZavreni_min = 10; // of a crossing
inline constexpr int kRustZpozdeni_min = 3;            // by which a delay has grown
inline constexpr std::int32_t kKlidZpozdeni_min = 10;  // without growing: it is told no more

// What was seen of the delay of a record of `vlaky`, minutes.
struct StopaZpozdeni {
    std::int32_t cislo = 0; // 0: free, or a shunting movement
    std::int16_t od = 0, posledni = 0;
    std::int32_t rostlo_min = 0; // running minute at which it grew last
    bool operator==(const StopaZpozdeni&) const = default;
};

struct StavVystrah {
    std::int32_t minuta = kZadny;                                // of the last look at the trains
    std::array<std::int32_t, 2> zavreno_od_s = {kZadny, kZadny}; // absolute seconds; kZadny: open
    std::vector<StopaZpozdeni> stopy;                            // by the index of the train
    bool operator==(const StavVystrah&) const = default;
};
extern StavVystrah stav_vystrah;

// --- each clock step, behind the observer of the traffic

void sleduj_vystrahy();

// --- at any time, without change

std::vector<Vystraha> vystrahy();
