// obsluha/menu_koleje.h - the operator reaches a train through the number label of its track.
//
// A right click on a label opens mnuKolej with up to four trains of the track; each entry acts on the
// train that stood in the menu when it was opened. The labels of the left and of the right end of a track
// share one menu.
#pragma once

#include "relief/relief.h"

#include <array>
#include <cstdint>

inline constexpr int kVlakuVMenu = 4;

// What mnuKolej was opened with. A train that is no longer the one of that number is left alone.
struct MenuKoleje {
    int prvek = kZadny;
    std::array<int, kVlakuVMenu> vlak{kZadny, kZadny, kZadny, kZadny}; // index in `vlaky`
    std::array<std::int32_t, kVlakuVMenu> cislo{};                     // its number then
    bool operator==(const MenuKoleje&) const = default;
};
extern MenuKoleje stav_menu_koleje;

// --- on the operator's command

// Right click: opens the menu. Labels from 651 on have none.
void menu_koleje(int stitek);
// Left click: an end pick of the track. Labels from 651 on take none.
void klik_cisla(int stitek);
// Double click: information on the train that the label shows, or on the only one that stands there
// unseen; without any the pick of the track.
void dvojklik_cisla(int stitek);
// The pointer came over the label: the row of its train in the train table is highlighted, once for each
// change of the number.
void najeti_cisla(int stitek);
// CIV: the clock stops and the line asks for a new number of the train.
void volej_civ(int v);

// --- at any time, without change

// The element that a number label stands for: the two labels of a track are one, and so are those of a
// line section. 212, 213 and 219 are line ends of their own, no second labels.
int prvek_popisku(int stitek);
