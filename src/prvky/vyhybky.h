// prvky/vyhybky.h - throwing of switches and their couplings.
//
// The state of switch n is the number in the state text of imgVyhybka n: position + class. A position
// is a shape and an end of it; a class says who holds the switch. The picture is always state + 100.
// A throw runs in two steps: prehod begins it (moving picture, the state text is the new position at
// once), vyhybka_stav ends it. Between the two `vyhybka_pohyb` of stav_vyhybek.h is true.
#pragma once

#include "prvky/stav_vyhybek.h"

#include <cstdint>
#include <functional>

// Class of a state: position = state mod 50, class = state div 50 * 50.
namespace stav_vyhybky {
inline constexpr int volna = 0;       // grey
inline constexpr int vlak = 50;       // green, locked in a train route
inline constexpr int rezervace = 100; // cyan, reserved or locked in a calling-on route
inline constexpr int obsazena = 150;  // red, a train stands on it
inline constexpr int posun = 200;     // white, locked in a shunt route
} // namespace stav_vyhybky

// What the operator can order of a switch. Only a double slip has the end B.
enum class PovelVyhybky : std::uint8_t { plus, minus, plus_b, minus_b };

// The orders that can be given.
struct Moznosti {
    bool plus = false, minus = false, plus_b = false, minus_b = false;
};

// --- at any time, without change

// Position of a state, without its class.
constexpr int poloha_stavu(int stav) {
    return stav % 50;
}
// A position of a double slip, resting or moving.
constexpr bool je_anglicka(int poloha) {
    return poloha >= 25 && poloha < 50;
}
// State number of switch n; a blank state text counts 0.
int stav_vyhybky_cislo(int n);
// n is between the order to throw and its end position.
bool vyhybka_v_pohybu(int n);
// The throw by hand that runs moves n, itself or coupled with the thrown one.
bool hazi_se_rukou(int n);
// Moving picture of a position (a position over 100 is first reduced by 100): 3k+1 of the triple of a
// plain switch, 33 and 34 of the two shapes of a double slip; 0 when there is none.
int vyhybka_obrazek(int p);
// Does `prace` for each switch coupled with n that the relief holds.
void projdi_partnery(int n, const std::function<void(int)>& prace);
// Position in which NOUZ leaves a switch that stands in position p.
int nouz(int p);
// Position to which an order moves a switch in position p; p itself when the order does nothing there.
int cilova_poloha(int p, PovelVyhybky povel);
// The orders that change a switch in that state.
Moznosti moznosti_stavu(int stav);

// --- on the operator's command, by the route machine, by trains

// Begins the throw of n to `poloha`; does nothing when the state is that number already. `vazby`: the
// coupled switches of n move too, one level deep; `vykolejky`: the derailers driven by n go dark.
void prehod(int n, int poloha, bool vazby, bool vykolejky);
// Ends a throw, or gives switch n a state: picture, state text, log. `vazby`: the free coupled switches
// end theirs; `vykolejky`: the derailers driven by n show their new position.
void vyhybka_stav(int n, int stav, bool vazby, bool vykolejky);
// The locking or the train leaves switch n: free in `poloha`, the end it lies in. What a route has left
// running of its derailers comes to rest.
void uvolni_zaver_vyhybky(int n, int poloha);
// A route takes derailer n: one that protects begins to move onto the rail, one that lies there is reserved.
void rezervuj_vykolejku(int n);
// The route is locked: derailer n lies on the rail, white.
void uzavri_vykolejku(int n);

// --- after a load

// The movements that the other tables tell of: of the switches and derailers of a route that has been
// commanded and not locked yet, and of the switch thrown by hand. A switch coupled with one of these looks
// at rest until both stand: no table says whether it had to move.
void obnov_pohyb_vyhybek();
