// nastroje/gvd/plan_dukazu.h - what the rooms of the proof share: the plan, what is found out about it, and
// the questions that they all ask of a row.
#pragma once

#include "gvd/dukaz.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace planovani {

using Texty = std::vector<Text>;

inline constexpr double kDen_s = 24 * 3600;

struct Plan {
    const JizdniRad& rad;
    const Sit& sit;
    const std::map<std::int32_t, std::size_t>& podle_cisla; // the first row of a number
    Dukaz& vysledek;

    const GvdVlak& radek(std::size_t i) const { return rad.vlaky[i]; }
    void hlas(std::size_t i, const std::string& co);
    // Another train of the plan becomes this one.
    bool ma_soupravu(std::size_t i) const;
    // The train of which the coaches of row i become the whole set.
    std::optional<std::size_t> nastupce(std::size_t i) const;
};

// The rules, each over the whole plan: rows by themselves, with the runs of their trains; what trains keep
// from each other; stock.
void over_radky(const Plan& plan);
void over_strety(const Plan& plan);
void over_obehy(const Plan& plan);

// Index of the station's first stop; nothing when the train does not pass it.
std::optional<std::size_t> zastavka_ve(const GvdVlak& r, int stanice);
// Platform track of the main station.
bool je_hlavni(int e);
// A locomotive, and no railcar or unit.
bool je_tazna(const Text& vuz);
bool je_loko_vlak(const GvdVlak& r);
// The train changes its locomotive at stop i.
bool meni_loko(const GvdVlak& r, std::size_t i);
// The set goes on the way that it came: its locomotive stays at the head.
bool otaci_se_sama(const GvdVlak& r, const GvdVlak& cil);
// Days on which a row is held against others: trains of need run on any.
unsigned dny_radku(const GvdVlak& r);

// For the faults.
std::string cislo(std::int32_t n);
std::string jmeno_stanice(int kod);
std::string hodina(double s);
std::string jmeno_dne(int den);

} // namespace planovani
