// vypravci/lokomotivy.h - locomotives for trains: who needs one at which end, which one comes, and what
// happens when none does.
#pragma once

#include "jizda/vlak.h"
#include "vypravci/posun_sit.h"
#include "zaklad/cisla.h"

#include <vector>

namespace posunovani {

// So long before the departure of its next train a locomotive stays for it.
inline constexpr int kStrojDrzen_min = 120;
// So late a train gives up a change of locomotives that was begun away from its platform;
inline constexpr int kPretahKonec_s = 12 * 60;
// and so long a section before the station is free for the set that changes there.
inline constexpr int kPretah_s = 4 * 60;

// A train that needs a locomotive at one of its ends.
struct Zadost {
    int vlak = kZadny;
    int kolej = 0;
    Strana strana = Strana::libovolna;
    int rada = 0;         // wanted series
    bool dvojice = false; // two of them
    int odjezd_s = 0;     // until its departure by the timetable; negative: late
    int stroj = kZadny;   // record that comes
    bool hledano = false; // one was looked for in this look, and not only among those that go already
};

// --- when the desk is handed over

void zapomen_zadosti();

// --- at each look

// All trains are asked what they need, and each gets the locomotive that suits best.
void obnov_zadosti();
// Each request: couple it, let it come nearer, call one from a depot, give up.
void obsluz_zadosti();
// A train route from the track of a train that is not to leave now goes back. False: there is none.
bool zrus_odjezd(int vlak, int kolej);

// --- behind obnov_zadosti(), without change

const std::vector<Zadost>& zadosti_o_stroj();

} // namespace posunovani
