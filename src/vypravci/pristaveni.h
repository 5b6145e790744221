// vypravci/pristaveni.h - sets that trains are made of: which of them go to a platform, and to which one.
#pragma once

#include "jizda/vlak.h"

#include <cstdint>
#include <optional>

namespace posunovani {

// So long before its departure a set goes to its platform: until then earlier trains have it,
inline constexpr int kNastup_s = 15 * 60;
// and so long before it takes another one when its own is taken.
inline constexpr int kNajdiJinou_s = 7 * 60;

// --- at any time, without change

// The set fits there, and trains leave from there the way that it goes.
bool hodi_se_nastupiste(const Vlak& t, int e);
// Platform for a set that leaves in so many seconds; kZadny: it has to wait. `tlaci`: it stands in the way
// where it is.
int vyber_nastupiste(int v, int odjezd_s, bool tlaci);
// A set that a train of the timetable is made of, on its way to the platform.
bool je_k_nastupu(int v);
// Its train stands at a platform or has left already: the yard has sent a second set, because the first one
// came late.
bool je_navic(int v);
// Minutes until the set comes to the main station that the timetable makes this train of: it is under way, or
// announced as late. Nothing when no such train is known to come.
std::optional<int> souprava_prijede_za_min(std::int32_t cislo);

} // namespace posunovani
