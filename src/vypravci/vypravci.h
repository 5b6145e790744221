// vypravci/vypravci.h - the automatic dispatcher: who has the desk, what he does once a second, and what he
// says of it.
//
// He sees what an operator sees and works through the operator's hands alone. What is remembered here is no
// part of a saved simulation: each step decides anew from what is seen, so that an operator may step in at
// any moment and hand back later.
#pragma once

#include "zaklad/text.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A decision, or a wait: one sentence.
struct Veta {
    int cas_s = 0;         // of the simulated clock, seconds since midnight
    std::int32_t vlak = 0; // number that the operator sees; 0 of no train
    Text text;
    bool ceka = false; // it waits still; else it is done
    bool operator==(const Veta&) const = default;
};

inline constexpr std::size_t kVetVypravciho = 200; // decisions that are kept, the newest last
inline constexpr std::size_t kKoduStanic = 64;

struct StavVypravciho {
    bool zapnut = false;
    bool vse = true;                    // the whole desk; else only `stanice`
    std::bitset<kKoduStanic> stanice{}; // by station code
    std::int64_t povelu = 0;            // commands that he has given
    bool prepnul_pv = false;            // the stack stood at VZ when he took the desk
    std::vector<Veta> vety{};           // decisions, oldest first
    std::vector<Veta> cekani{};         // what waits now, one a train, by its number
    bool operator==(const StavVypravciho&) const = default;
};
extern StavVypravciho stav_vypravciho;

namespace vypravci {

// --- at any time, without change

// The dispatcher has the desk, or a part of it.
bool zapnut();
// The station with that code is his.
bool ma_stanici(int kod);
// The signal is his: his station's three letters begin its name. Signals of stations without letters of their
// own go with the whole desk.
bool ma_navestidlo(int s);
// Code of the station whose tracks bear these three letters; 0 when there is none.
int stanice_kodu(TextPohled kod);
// The three letters of all stations that can be handed over.
std::vector<TextPohled> kody_stanic();

// --- on the operator's command

// Hands over the whole desk, or these stations alone, by their codes.
void predej();
void predej(std::span<const std::uint8_t> stanice);
// Takes the desk back; what stands goes on standing.
void vezmi();

// --- when the tables are not what followed from his last step

// He keeps the desk if he has it, and looks at everything anew: routes, waits and promises of his memory hold
// seconds and records of another state.
void zapomen();

// --- by the dispatcher

// A decision is told.
void rekni(std::int32_t vlak, Text text);
// The train waits, and why; told anew only when the reason changes.
void rekni_cekani(std::int32_t vlak, Text text);
// It waits no more.
void neceka(std::int32_t vlak);
// Nor do those whose number is neither on the desk nor asks for consent.
void uklid_cekani();

// --- once a second of real time, behind the other timers

// Nothing while he is off, in a pause, before the login.
void krok();

} // namespace vypravci
