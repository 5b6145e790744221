// technologie/sekvence.h - the confirmation sequence of a risky function.
//
// RNZ, NOT and ZUZ take away what the interlocking has guarded. The screen tells which function ran and
// what the interlocking found of its conditions just before; it asks for nothing and changes nothing.
#pragma once

#include "relief/relief.h"
#include "technologie/technologie.h"

#include <optional>
#include <span>
#include <vector>

// A risky function that is about to run, with its conditions as they stand: "text ANO", "text NE".
struct RizikovaFunkce {
    Text nazev; // "RNZ TVH L1", "NOT 140,310"
    std::vector<Text> podminky;
    bool operator==(const RizikovaFunkce&) const = default;
};

struct Sekvence {
    RizikovaFunkce funkce; // the one that ran last; blank when the screen was opened by its tab
    Seznam List1;          // rows under " S  F P1 P2 P3", figures from 1 to 99
    Seznam lstPodminky;

    bool operator==(const Sekvence&) const = default;
};
extern Sekvence sekvence;

inline constexpr TextPohled kHlavaSekvence = " S  F P1 P2 P3";
inline constexpr TextPohled kRizikovaFunkce = "!!! PROBÍHÁ RIZIKOVÁ FUNKCE !!!"_cz;

// --- by the operator's choice in a menu

// The function of a menu entry, before it runs; nothing when the entry is no risky one.
std::optional<RizikovaFunkce> rizikova_funkce(TextPohled polozka, int cil);
// It has run: the view of the sequence opens.
void ohlas_rizikovou_funkci(RizikovaFunkce funkce);

// --- by technologie.cpp, for the screen

void napln_sekvenci();
void zapomen_sekvenci();
std::span<const SeznamTechnologie> seznamy_sekvence();
