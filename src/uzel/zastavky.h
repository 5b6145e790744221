// uzel/zastavky.h - where the trains of the junction stop, turn, write themselves into the journal, and
// leave.
#pragma once

#include "uzel/cislovani.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "zaklad/text.h"

#include <array>
#include <cstdint>

namespace uzel {

// What a stop brings with it beside the wait: the turn of kObraty, or what is particular to three stations.
enum class PoStopu : std::uint8_t { nic, otocit, tesk, hajovice, dolni };

// Tracks where trains stop, by ranges of numbers, both included; ranges do not overlap. On a line a train
// stops once all of it is on the section.
struct MistoStopu {
    int od, po;
    int stanice;
    int pobyt = 1; // least dwell, minutes
    PoStopu potom = PoStopu::nic;
    int od_metru = -1; // on a line against the sense: only so far in; -1 anywhere
};
inline constexpr std::array kMistaStopu = {
    MistoStopu{26, 35, dopravna::tesk, 1, PoStopu::tesk},
    MistoStopu{9, 18, dopravna::vysni_hrabov},
    MistoStopu{44, 46, dopravna::rybnice, 1, PoStopu::otocit},
    MistoStopu{93, 94, dopravna::rybnice, 1, PoStopu::otocit},
    MistoStopu{96, 96, dopravna::rybnice, 1, PoStopu::otocit},
    MistoStopu{kT2, kT2, dopravna::rybnice, 1, PoStopu::otocit},
    MistoStopu{86, 90, dopravna::lhotin},
    MistoStopu{70, 75, dopravna::knizeci_luka},
    MistoStopu{66, 69, dopravna::rokytno},
    MistoStopu{62, 65, dopravna::borovec},
    MistoStopu{41, 43, dopravna::dubnice},
    MistoStopu{36, 40, dopravna::mokrina},
    MistoStopu{0, 3, dopravna::javorin, 1, PoStopu::otocit},
    MistoStopu{78, 83, dopravna::dolni, 1, PoStopu::dolni},
    MistoStopu{47, 54, dopravna::hajovice, 4, PoStopu::hajovice}, // 55 and 56 are exits
    MistoStopu{57, 61, dopravna::hajovice, 4, PoStopu::hajovice},
    MistoStopu{kKamenec, kKamenec, dopravna::kamenec},
    MistoStopu{604, 604, dopravna::javorin_dolni, 1, PoStopu::nic, 2500},
    MistoStopu{606, 606, dopravna::javorin_dolni, 1, PoStopu::nic, 2500},
    MistoStopu{654, 654, dopravna::podoli, 1, PoStopu::nic, 5000},
    MistoStopu{656, 656, dopravna::podoli, 1, PoStopu::nic, 5000},
    MistoStopu{674, 674, dopravna::olsany},
    MistoStopu{676, 676, dopravna::olsany},
    MistoStopu{720, 720, dopravna::lipina},
    MistoStopu{722, 722, dopravna::lipina},
    MistoStopu{728, 728, dopravna::jivova},
    MistoStopu{730, 730, dopravna::jivova},
    MistoStopu{824, 824, dopravna::zlata},
    MistoStopu{826, 826, dopravna::zlata},
    MistoStopu{928, 928, dopravna::javorna},
    MistoStopu{930, 930, dopravna::javorna}};

// Departures that the journal tells, by the track that the train leaves. Hájovice and the last track of Vyšní
// Hrabov are not told: their offices keep journals of their own.
struct RadekDeniku {
    int od, po;
    TextPohled text;
    int stanice;
    // The train goes by its first number even after the change: the number changes there, and the journal of
    // the station has it as it came.
    bool prvnim_cislem = false;
};
inline constexpr std::array kDenik = {
    RadekDeniku{86, 90, " odjel z Lhotína v "_cz, dopravna::lhotin},
    RadekDeniku{62, 65, " odjel z Borovce v "_cz, dopravna::borovec},
    RadekDeniku{66, 69, " odjel z Rokytna v "_cz, dopravna::rokytno},
    RadekDeniku{26, 35, " odjel z Teska hl. n. v "_cz, dopravna::tesk},
    RadekDeniku{9, 17, " odjel z Teska Vyšního Hrabova v "_cz, dopravna::vysni_hrabov},
    RadekDeniku{44, 46, " odjel z Teska Rybnic v "_cz, dopravna::rybnice},
    RadekDeniku{93, 94, " odjel z Teska Rybnic v "_cz, dopravna::rybnice},
    RadekDeniku{96, 96, " odjel z Teska Rybnic v "_cz, dopravna::rybnice},
    RadekDeniku{kT2, kT2, " odjel z Teska Rybnic v "_cz, dopravna::rybnice},
    RadekDeniku{70, 75, " odjel z Teska Knížecích Luk v "_cz, dopravna::knizeci_luka},
    RadekDeniku{36, 40, " odjel z Teska Mokřiny v "_cz, dopravna::mokrina},
    RadekDeniku{41, 43, " odjel z Dubnice v "_cz, dopravna::dubnice},
    RadekDeniku{78, 83, " odjel z Teska dolního n. v "_cz, dopravna::dolni},
    RadekDeniku{0, 3, " odjel z Javořína v "_cz, dopravna::javorin, true}};

// Stations where a train goes on the other way round: bound for `kam` next, when it has come in that sense.
struct Obrat {
    int odkud, kam;
    bool smer;
};
inline constexpr std::array kObraty = {Obrat{dopravna::tesk, dopravna::javorin, true},
                                       Obrat{dopravna::tesk, dopravna::vrbice, true},
                                       Obrat{dopravna::tesk, dopravna::vysni_hrabov, true},
                                       Obrat{dopravna::tesk, dopravna::kamenec, true},
                                       Obrat{dopravna::tesk, dopravna::mokrina, true},
                                       Obrat{dopravna::tesk, dopravna::dkv_vh, true},
                                       Obrat{dopravna::tesk, dopravna::rybnice, false},
                                       Obrat{dopravna::tesk, dopravna::hajovice, false},
                                       Obrat{dopravna::tesk, dopravna::hajovice_sn, false},
                                       Obrat{dopravna::tesk, dopravna::dkv, false},
                                       Obrat{dopravna::javorin, dopravna::polska_lhota, true},
                                       Obrat{dopravna::javorin, dopravna::hvozdy, true},
                                       Obrat{dopravna::hajovice, dopravna::rybnice, true},
                                       Obrat{dopravna::hajovice, dopravna::mokrina, true},
                                       Obrat{dopravna::hajovice, dopravna::dolni, true},
                                       Obrat{dopravna::hajovice, dopravna::borovec, false},
                                       Obrat{dopravna::hajovice, dopravna::knizeci_luka, false},
                                       Obrat{dopravna::rybnice, dopravna::mokrina, true},
                                       Obrat{dopravna::dolni, dopravna::vysni_hrabov, true},
                                       Obrat{dopravna::dolni, dopravna::rybnice, false}};

// Tracks at which a train that comes to a stand in that sense leaves the area; ranges with both ends. A
// station is that of the neighbour, against which the train's last stop is held; zadna: none is.
struct Vystup {
    int od, po;
    bool smer;
    int stanice;
};
inline constexpr std::array kVystupy = {
    Vystup{86, 90, false, dopravna::lhotin},   Vystup{62, 65, true, dopravna::borovec},
    Vystup{66, 69, true, dopravna::rokytno},   Vystup{41, 43, true, dopravna::dubnice},
    Vystup{213, 213, false, dopravna::hvozdy}, Vystup{212, 212, false, dopravna::polska_lhota},
    Vystup{219, 219, false, dopravna::vrbice}, Vystup{25, 25, false, dopravna::zadna},
    Vystup{91, 92, false, dopravna::zadna},    Vystup{119, 119, false, dopravna::zadna},
    Vystup{557, 557, false, dopravna::zadna},  Vystup{595, 595, false, dopravna::zadna},
    Vystup{55, 56, true, dopravna::zadna},     Vystup{112, 112, true, dopravna::zadna},
    Vystup{574, 574, true, dopravna::zadna}};
// Neighbours that lie in one direction: either's train may leave at the other.
inline constexpr std::array kVJednomSmeru = {dopravna::vrbice, dopravna::dubnice};

// Track of a neighbouring station whose trains are announced on it, without a consent.
constexpr bool je_kolej_souseda(int n) {
    for (const Vystup& v : kVystupy)
        if (n >= v.od && n <= v.po && v.stanice != dopravna::zadna)
            return !je_vstup_z_trati(n);
    return false;
}

} // namespace uzel
