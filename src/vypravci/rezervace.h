// vypravci/rezervace.h - what trains and shunting movements will need, and when: promises of tracks and
// throats.
//
// A promise binds nobody but the dispatcher himself. It belongs to a record of `vlaky` by its index and its
// number, and goes with it. Times are seconds of ted_s() (app/cas.h).
#pragma once

#include "cesty/prvek_cesty.h"
#include "zaklad/cisla.h"

#include <cstdint>
#include <span>
#include <vector>

// One element that somebody will need, from a second to another.
struct Potreba {
    std::int16_t prvek = 0;
    std::uint8_t druh = druh_prvku::kolej;
    std::int32_t od_s = 0, do_s = 0;
};

struct Slib {
    std::int16_t vlak = kZadny;   // index in `vlaky`
    std::int32_t cislo = 0;       // its number then: the promise dies with it
    int kolej = kZadny;           // the track that it goes to, and will stand on; kZadny none
    bool posun = false;           // of a shunting movement
    std::vector<Potreba> potreby; // of its way before it
};

// --- by the dispatcher

// All promises are forgotten: the desk was handed over anew.
void zapomen_rezervace();
// Those of records that are no more go. Once a step.
void uklid_rezervace();
// Train v will need these elements, and stand on `kolej`; in place of what it was promised before.
void slib_jizde(int v, int kolej, std::vector<Potreba> potreby);
// The same of a shunting movement. What it runs over is the business of its route alone.
void slib_posunu(int v, int kolej);
// Movement v is bound for `kam`: another track that was kept for it is free for others.
void uvolni_jinou_kolej(int v, int kam);
// Record v needs nothing any more.
void zrus_slib(int v);

// --- at any time
// What the trains need is worked out anew when somebody asks.

// For a shunting movement over the elements from now on: no train comes over them for `trva_s` seconds. One
// that stands where the movement begins or ends is the one for which it goes, and waits.
bool volno_pro_posun(std::span<const PrvekCesty> prvky, int trva_s, int odkud, int kam);
// To whom the track is promised: index of a train or shunting movement, kZadny nobody.
int slibena(int kolej);
// Seconds until the first train other than v needs the track; a large number when none does.
int volna_jeste_s(int kolej, int v);
// All promises, in the order in which they were made.
const std::vector<Slib>& sliby();
