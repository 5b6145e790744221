// prvky/panel.h - the signal panel: one signal at a time, drawn large, lamp by lamp.
//
// What is lit stands in the relief store: lamps `svetlo` 0 to 5 and speed bars `pruh` 0 and 1 are
// visible exactly when lit. Which signal is shown is simulace.detail_navestidlo; the rest is here.
#pragma once

#include "uzel/navestidla.h"
#include "zaklad/text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace svetla {
inline constexpr int horni_zlute = 0;
inline constexpr int zelene = 1;
inline constexpr int cervene = 2;
inline constexpr int bile = 3;
inline constexpr int dolni_zlute = 4;
inline constexpr int modre = 5;
} // namespace svetla

// What stands on a mast even when dark. A lamp or bar that is lit is drawn on any mast, so that no
// aspect is ever hidden from the operator.
struct PopisPanelu {
    TvarPanelu tvar;
    std::array<bool, 6> svetla;
    std::array<bool, 2> pruhy;
    int vyska; // height of the mast: 0 dwarf, 1, 2, 3
};

struct PanelNavestidla {
    TvarPanelu tvar = TvarPanelu::dlouhy;
    std::int8_t blika = -1;    // lamp that flashes; -1 none
    std::int16_t interval = 0; // half period of the flashing, ms: 500 or 250; 0 while nothing flashes
    bool operator==(const PanelNavestidla&) const = default;
};
extern PanelNavestidla panel_navestidla;

// --- at any time, without change

TvarPanelu tvar_panelu(int navestidlo);
const PopisPanelu& popis_panelu(TvarPanelu tvar);

// --- after each change of a signal, and when the pointer or a click chooses one

// Shows signal s in the panel, with the aspect that its route gives it.
void obnov_panel(int s);
// The same, only when the panel shows s already.
void obnov_panel_kdyz_ukazuje(int s);

// --- by a timer of its own

// The flashing lamp of the signal panel; it has no period of its own and does not look at the pause.
void krok_blikani_diag();
// 0 while nothing in the panel flashes, else 250 or 500 ms.
int perioda_blikani_diag();
