// vypravci/posun_jizda.h - a shunting movement gets its way, and routes that nobody takes go back.
#pragma once

#include "vypravci/posun_sit.h"

#include <cstdint>

namespace posunovani {

inline constexpr int kZnovu_s = 6;       // before a way that is blocked is looked for again
inline constexpr int kNaleha_s = 8 * 60; // who has waited so long goes before trains that are only expected

// What is kept of a record between two looks: reasons and clocks only.
struct Pamet {
    std::int32_t cislo = 0;      // of the record, else it is another one
    std::int32_t od_s = 0;       // since when it stands with nothing done
    std::int32_t zadatel = 0;    // number of the train for which the locomotive goes
    std::int32_t znovu_s = 0;    // a way is not looked for before that second
    std::int32_t prirazen_s = 0; // when the locomotive was chosen for that train
};
// What is kept of record v; begins anew with another number.
Pamet& pamet_c(int v);

// The search of a way for record v: it leaves its track at the ends where nobody stands before it.
UkolPosunu ukol_posunu(int v, int kam, Strana strana);

enum class Posun : std::uint8_t { jede, na_miste, ceka, bez_cesty };

// --- when the desk is handed over

void zapomen_pohyby();

// --- by the dispatcher

// The movement goes on to the track `kam`; `ke` stands there already and is to be met, kZadny nobody. It
// starts only when it can run up to where it turns, or to its end, in one go. `naleha`: trains that are only
// expected do not keep it.
Posun posun_na(int v, int kam, Strana strana, int ke, bool naleha);
// A route of ours whose movement has gone another way would hold the throat for ever.
void zrus_opustene_cesty();
// A movement stands between a train and its signal: the route of the train waits until it has gone.
void pust_posun_pred_vlakem(int v);

} // namespace posunovani
