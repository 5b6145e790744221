// nastroje/kolejiste/trasy.h - the routes of the junction, derived from its graph.
//
// A train route leads from a main signal to the next main signal of its facing, to a track that ends in a
// buffer stop or at the edge of the area, or into a line. A shunt route starts at a main or a shunting
// signal and ends at every track with a target that it comes to. Routes run on through a target only where
// the source says so. Lines belong to trains only, targets from 501 to 599 to shunting only.
//
// Between a start and an end there is one route, the straightest way: the fewest ends of switches in
// minus, then the fewest elements. Where another one is wanted the source says so.
#pragma once

#include "cesty/tabulky.h"
#include "kolejiste/graf.h"

#include <string>
#include <vector>

namespace kolejiste {

struct Trasa {
    DruhTrasy druh{};
    Misto misto; // of the start signal, or of the rule that asks for this way
    ZaznamCesty zaznam;
    std::set<int> kolem; // signals that it runs past
};

// Kinds of the elements of a route record.
enum class DruhPrvku : std::uint8_t { kolej = 1, vyhybka = 2, vykolejka = 4 };

// Ends of a switch that stand in minus in this position: 0 or 1, at a double slip up to 2.
int minusu(int poloha);
// End position that puts the ends A and B in minus or plus; B counts for double slips only.
bool konec_a_minus(int poloha);
bool konec_b_minus(int poloha);

// All routes, in the order of their start signals in the source, of one start the straightest first. Rules
// about elements that are not drawn yet wait; a rule that changes nothing is a fault.
std::vector<Trasa> odvod_trasy(const Plan& plan, const Graf& graf, std::vector<Zavada>& zavady);

// Could a train that leaves the track by that side still come to an end of a route when the rest is drawn?
// That is so when the way leads to the edge of what is drawn, apart from any target.
bool ceka_na_dokresleni(const Plan& plan, const Graf& graf, int kolej, Strana strana);

// Line of the tables that no route may have: the program gives this number to the routes that it makes
// itself. The writer puts an empty record there.
inline constexpr std::size_t kRadekProgramovych = 999;
Bajty soubor_tras(const std::vector<Trasa>& trasy, DruhTrasy druh);

// The routes cannot stand at once: they hold an element in common, the track before a start apart.
bool vylucuji_se(const Trasa& a, const Trasa& b);

// How many routes there are, how many pairs of them, and how many of the pairs cannot stand at once.
struct PoctyTras {
    std::size_t vlakovych = 0, posunovych = 0, dvojic = 0, vylucuje_se = 0;
};
PoctyTras spocti_trasy(const std::vector<Trasa>& trasy);

// A table for the eye: every station with its routes, their elements, and with how many others each cannot
// stand at once.
std::string tabulka_tras(const Plan& plan, const std::vector<Trasa>& trasy);
// "v26-" a switch in minus, "v79+-" a slip with end A in plus and B in minus, "d0" a derailer, "26" a track.
std::string popis_prvku_trasy(const ZaznamCesty& zaznam, std::size_t k);

} // namespace kolejiste
