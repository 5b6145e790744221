// vypravci/posun_sit.h - ways of shunting movements: a search over the shunt routes.
//
// A movement runs over one route after another; where the next one leads back, it turns, and then the whole
// of it has to stand on that track. At some tracks at the edge of the area it leaves, so it turns there
// never.
#pragma once

#include "zaklad/cisla.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// End of a track at which a movement comes to stand: `leva` that of the smaller X.
enum class Strana : std::uint8_t { libovolna, leva, prava };

struct UkolPosunu {
    int odkud = 0;                     // track of its head
    int delka_m = 0;                   // of the movement
    bool smi_vlevo = true;             // nothing stands before it on that track to the left,
    bool smi_vpravo = true;            // and to the right
    int kam = 0;                       // track
    Strana strana = Strana::libovolna; // of that track, when something stands there already
    int kdo = kZadny;                  // index in `vlaky`: what it was promised itself is free for it
};

struct CestaPosunu {
    std::vector<std::size_t> trasy; // index in sit_posunu().trasy, in running order
    double cena_m = 0;              // metres, with what turns and detours are avoided by
    bool operator==(const CestaPosunu&) const = default;
};

// --- when the desk is handed over

void nacti_posunovou_sit();

// --- at any time, without change

// The cheapest way over free tracks; routes that cannot be set now are avoided, but not left out. Nothing
// when no way leads there.
std::optional<CestaPosunu> najdi_posun(const UkolPosunu& ukol);
// How many of the routes, from `od` on, a movement runs over without turning.
std::size_t bez_obratu(const CestaPosunu& cesta, std::size_t od);
// A shunting movement that comes to this track in that sense leaves the area.
bool je_odchod(int kolej, bool smer);
