// vypravci/ruce.h - the hands of the automatic dispatcher: every command that he gives, through the
// operations of an operator.
//
// Each answers whether the command could be given; whether the railway obeys is seen afterwards. A hand that
// finds another hand's work half done (a selection, a menu, a field) does nothing.
#pragma once

#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/text.h"

#include <cstdint>

// --- at any time, without change

// The desk is free for a command: no pause, no login, no maintenance screen, no open menu or field, no
// selection that waits for its end, no macro that is being recorded.
bool lze_jednat();
// Label or target by which the menu of track e opens, and by which it is picked as an end.
bool ma_menu_koleje(int e);

// --- commands

// Picks the route of the table from start signal to end; `druh` of cesty/nova_cesta.h: train or shunting.
// False when the desk took no such route. What the desk then warns of is confirmed.
bool zvol_cestu(int zacatek, int konec, int druh);
// A route that waits in the stack, its switches not commanded, is taken out of it on the screen of the stack.
bool odeber_cestu(int zacatek, int konec);
// An entry of the menu of signal s: "miRC", "miDN", "miSTUJ", "miZAM", ...
bool povel_navestidla(int s, TextPohled polozka);
// An entry of the menu of track e about train v that stands on it: "miPosun", "miOtoc", "miOdjezd",
// "miZkratit", ..., without its number. False when v is not among the four trains of the menu.
bool povel_vlaku(int e, int v, TextPohled polozka);
// SPOJIT: train v on track e with its neighbour w, whichever of them stands first.
bool spoj_na_koleji(int e, int v, int w);
// Detaches the vehicles 0 to i of train v on track e by a click on the picture of vehicle i, or the last one
// alone; the panel that the operator had open comes back.
bool odves_vuz(int e, int v, int i);
// CIV: train v on track e gets another number.
bool zmen_cislo_vlaku(int e, int v, std::int32_t cislo);
// A locomotive of the series is called out of the depot whose name is that place of the desk
// (popis_stanice): 28 west gate, 30 east gate, 34 branch depot.
bool zavolej_lokomotivu(int misto, TextPohled rada);
// US: the train that asks at line end k may come.
bool dej_souhlas(int k);
// Delete on that line of the message list, counted from 0: its train is not late any more. The panel that was
// open comes back.
bool smaz_radek_zpozdeni(int radek);
// Each route is tried by itself.
void zapni_pv();
// Messages that only tell something are taken note of, and warnings of routes confirmed. Questions of the
// neighbours are no such messages: a consent answers them.
void odpovez_na_zpravy();
