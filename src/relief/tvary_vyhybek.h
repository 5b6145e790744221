// relief/tvary_vyhybek.h - the pictures of switches: the cell, its ports, and what each position joins.
//
// A switch stands in a cell of two glyphs by one: 240 by 195 twips, its top left corner at the place of
// `imgVyhybka`. Track lines run along the middle of a row (97 twips below its top), diagonals through
// the corners of cells. Every picture is made of legs, each a straight line from the middle of the cell
// to one port:
//
//     vlevo_nahore  +--------+  vpravo_nahore
//            vlevo  |   ++   |  vpravo
//      vlevo_dole   +--------+  vpravo_dole
//
// A corner is shared by four cells, so that a leg into vpravo_dole goes on in the cell one to the right
// and one row down as its vlevo_nahore: two switches on rows 195 twips apart make a crossover without
// any line between them, and a line from corner to corner (240 : 195) bridges wider gaps. The middle
// ports of neighbours in a row fall together in the same way.
//
// Which position is plus: the leg to a middle port; minus: the leg to a corner. Two switches joined by a
// diagonal therefore stand in minus together and in plus together, as their coupling demands. The end A
// of a double slip is its left one, the end B its right one, by the same rule.
//
// The view draws from this table, the layout compiler proves by it that the elements of a route touch.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

inline constexpr int kSirkaVyhybky = 240; // width of the cell, twips
inline constexpr int kVyskaVyhybky = 195; // its height: one row of the relief
inline constexpr int kOsaRadku = 97;      // where a track line runs, below the top of its row

enum class Port : std::uint8_t {
    zadny,
    vlevo,
    vpravo,
    vlevo_nahore,
    vpravo_nahore,
    vlevo_dole,
    vpravo_dole,
};

// Place of a port from the top left corner of the cell, twips.
struct MistoPortu {
    int x = 0, y = 0;
    bool operator==(const MistoPortu&) const = default;
};
constexpr MistoPortu misto_portu(Port port) {
    switch (port) {
    case Port::vlevo: return {0, kOsaRadku};
    case Port::vpravo: return {kSirkaVyhybky, kOsaRadku};
    case Port::vlevo_nahore: return {0, 0};
    case Port::vpravo_nahore: return {kSirkaVyhybky, 0};
    case Port::vlevo_dole: return {0, kVyskaVyhybky};
    case Port::vpravo_dole: return {kSirkaVyhybky, kVyskaVyhybky};
    case Port::zadny: break;
    }
    return {kSirkaVyhybky / 2, kOsaRadku}; // the middle
}

enum class DruhObrazku : std::uint8_t {
    zadny,   // no picture of that number
    pohyb,   // the switch is moving: no leg reaches the middle
    koncovy, // an end position: the joined legs run through, the others stop short of the middle
    volny,   // spare pictures of crossings without blades
};

// One picture, by the position (state mod 50).
struct TvarVyhybky {
    DruhObrazku druh = DruhObrazku::zadny;
    std::array<Port, 4> nohy{};            // all legs drawn
    Port a = Port::zadny, b = Port::zadny; // the two ports that the position joins
};

namespace tvary {

inline constexpr int kPocet = 38;      // positions 0 to 37; 0 has no picture
inline constexpr int kPocetTrojic = 8; // plain switches: positions 1 to 24
inline constexpr int kPrvniDKS = 25;   // first double slip: 25 to 28, moving picture 33
inline constexpr int kDruhaDKS = 29;   // second double slip: 29 to 32, moving picture 34

// The plain switches, by triple: the port before the blades, the leg of plus, the leg of minus.
struct Vyhybka {
    Port hrot, plus, minus;
};
inline constexpr std::array<Vyhybka, kPocetTrojic> kVyhybky = {{
    // horizontal tracks that send a diagonal out
    {Port::vlevo, Port::vpravo, Port::vpravo_dole},   // 1 to 3
    {Port::vlevo, Port::vpravo, Port::vpravo_nahore}, // 4 to 6
    {Port::vpravo, Port::vlevo, Port::vlevo_dole},    // 7 to 9
    {Port::vpravo, Port::vlevo, Port::vlevo_nahore},  // 10 to 12
    // diagonals of a ladder that send a horizontal track out
    {Port::vlevo_nahore, Port::vpravo, Port::vpravo_dole}, // 13 to 15
    {Port::vlevo_dole, Port::vpravo, Port::vpravo_nahore}, // 16 to 18
    {Port::vpravo_nahore, Port::vlevo, Port::vlevo_dole},  // 19 to 21
    {Port::vpravo_dole, Port::vlevo, Port::vlevo_nahore},  // 22 to 24
}};

consteval std::array<TvarVyhybky, kPocet> sestav() {
    using enum Port;
    std::array<TvarVyhybky, kPocet> t{};
    for (std::size_t k = 0; k < kVyhybky.size(); ++k) {
        const Vyhybka& v = kVyhybky[k];
        const std::array<Port, 4> nohy{v.hrot, v.plus, v.minus, zadny};
        t[3 * k + 1] = {DruhObrazku::pohyb, nohy};
        t[3 * k + 2] = {DruhObrazku::koncovy, nohy, v.hrot, v.minus};
        t[3 * k + 3] = {DruhObrazku::koncovy, nohy, v.hrot, v.plus};
    }
    // The order within the two slips differs: 27 is minus-plus and 28 plus-minus, but 31 is plus-minus
    // and 32 minus-plus.
    const std::array<Port, 4> klesa{vlevo, vpravo, vlevo_nahore, vpravo_dole};
    t[25] = {DruhObrazku::koncovy, klesa, vlevo, vpravo};
    t[26] = {DruhObrazku::koncovy, klesa, vlevo_nahore, vpravo_dole};
    t[27] = {DruhObrazku::koncovy, klesa, vlevo_nahore, vpravo};
    t[28] = {DruhObrazku::koncovy, klesa, vlevo, vpravo_dole};
    t[33] = {DruhObrazku::pohyb, klesa};
    const std::array<Port, 4> stoupa{vlevo, vpravo, vlevo_dole, vpravo_nahore};
    t[29] = {DruhObrazku::koncovy, stoupa, vlevo, vpravo};
    t[30] = {DruhObrazku::koncovy, stoupa, vlevo_dole, vpravo_nahore};
    t[31] = {DruhObrazku::koncovy, stoupa, vlevo, vpravo_nahore};
    t[32] = {DruhObrazku::koncovy, stoupa, vlevo_dole, vpravo};
    t[34] = {DruhObrazku::pohyb, stoupa};
    t[35] = {DruhObrazku::volny, klesa};
    t[36] = {DruhObrazku::volny, stoupa};
    t[37] = {DruhObrazku::volny, {vlevo_nahore, vpravo_dole, vlevo_dole, vpravo_nahore}};
    return t;
}

} // namespace tvary

inline constexpr std::array<TvarVyhybky, tvary::kPocet> kTvaryVyhybek = tvary::sestav();

// Picture of a position or of a whole state; the empty one for a number that has none.
constexpr const TvarVyhybky& tvar_vyhybky(int stav) {
    const int poloha = stav % 50;
    return kTvaryVyhybek[poloha > 0 && poloha < tvary::kPocet ? static_cast<std::size_t>(poloha) : 0];
}

// The end position of the same switch as `poloha` that joins the ports a and b, in either order; 0 when
// no position of it does.
constexpr int poloha_mezi(int poloha, Port a, Port b) {
    int od = 0, po = -1;
    if (poloha >= 1 && poloha < tvary::kPrvniDKS)
        od = (poloha - 1) / 3 * 3 + 2, po = od + 1;
    else if ((poloha >= tvary::kPrvniDKS && poloha < tvary::kDruhaDKS) || poloha == 33)
        od = tvary::kPrvniDKS, po = od + 3;
    else if ((poloha >= tvary::kDruhaDKS && poloha <= 32) || poloha == 34)
        od = tvary::kDruhaDKS, po = od + 3;
    for (int p = od; p <= po; ++p) {
        const TvarVyhybky& t = tvar_vyhybky(p);
        if ((t.a == a && t.b == b) || (t.a == b && t.b == a))
            return p;
    }
    return 0;
}

// The switch has this leg, whatever its position.
constexpr bool ma_port(int stav, Port port) {
    for (const Port p : tvar_vyhybky(stav).nohy)
        if (p == port && port != Port::zadny)
            return true;
    return false;
}
