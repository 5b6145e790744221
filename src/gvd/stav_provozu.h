// gvd/stav_provozu.h - what the traffic remembers between its minutes; all of it is saved.
#pragma once

#include "zaklad/balik.h"

#include <array>
#include <cstdint>

// The nearest announced train of one entry station.
struct DalsiVlak {
    std::int16_t cas = 10; // minutes until its entry
    std::int32_t cislo = 0;
    std::uint8_t druh = 0;
    std::int16_t predpoklad = 0; // expected minute of the entry, delay included
    bool operator==(const DalsiVlak&) const = default;
};

// The fields under their names, in the order of a saved record.
template <class A, ZaznamJe<DalsiVlak> Z> constexpr void popis_poli(A& a, Z& z) {
    a.pole("cas", z.cas);
    a.pole("cislo", z.cislo);
    a.pole("druh", z.druh);
    a.pole("predpoklad", z.predpoklad);
    a.preskoc(2); // always 0
}

struct StavProvozu {
    std::array<DalsiVlak, 39> dalsi_vlaky{}; // by station code
    std::int16_t pocet_zaloh = 0;            // standby locomotives ("ZAL") in the area
    bool zaloha_731_jede = false;            // a standby locomotive of series 731 is in the area
    bool zaloha_731_strana = false;          // the next one comes from side A of the yard (uzel/vstupy.h)
    bool operator==(const StavProvozu&) const = default;
};
extern StavProvozu stav_provozu;
