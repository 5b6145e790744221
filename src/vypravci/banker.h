// vypravci/banker.h - is there an order in which all trains reach their ends?
//
// The railway as places of which each holds one train: tracks, and lines. A train stands on one place and has
// a chain of places before it. When one train after the other can run to its end over places that are free,
// nobody is stuck; a train that ends among the places, and everything that does not move by itself, keeps its
// place.
#pragma once

#include "vypravci/sit.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// The place to which an element belongs: all sections of a line are one.
int misto_prvku(int prvek);
inline constexpr std::size_t kMist = 1100;

// Where a train can go instead: other tracks on which it may end its next route and go on as planned.
struct Nahrada {
    std::size_t trasa = 0; // to the other track
    std::size_t dalsi = 0; // and on from there, planovani::kBezTrasy at the end of the way
    int prvek = 0;
    double cena = 0; // metres, as the search of a way counts
};
// For two routes that follow each other, or for the last one alone (`dalsi` kBezTrasy). Kept from call to
// call.
const std::vector<Nahrada>& nahrady(const planovani::Sit& sit, std::size_t trasa, std::size_t dalsi);
void zapomen_nahrady();

struct UcastnikBankere {
    int misto = 0;                               // where it stands, or its last set route ends
    std::int32_t poradi = 0;                     // of several on one place the one with the lowest goes first
    std::span<const planovani::KrokTrasy> cesta; // before it
};

// Which of them cannot reach their ends, where each leaves the junction or frees its place soon: one flag
// each. `obsazena`: places that something else keeps.
// `bez_tras`: routes that do not exist now.
void uvazli(const planovani::Sit& sit, std::span<const UcastnikBankere> vsichni,
            const std::vector<std::uint8_t>& obsazena, std::span<const std::uint8_t> bez_tras,
            std::vector<std::uint8_t>& vysledek);
