// app/stav_simulace.h - all tables of the simulation in one list, which defines, resets, copies and compares.
//
// A header declares its table with `extern`; the table itself is made by its line here. So a table that is
// missing in the list does not link, and one that is in it is never forgotten by a new simulation, by a load
// that fails and gives the old state back, or by a test that compares two states.
#pragma once

#include "app/cas.h"
#include "app/parametry.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "app/sledovani_provozu.h"
#include "app/vystrahy.h"
#include "cesty/cesta.h"
#include "cesty/zasobnik.h"
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/menu.h"
#include "desk/stav_blikani.h"
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "jizda/zkraceni.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/vyber.h"
#include "prvky/panel.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/volnost.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "technologie/dohled.h"
#include "technologie/penet.h"
#include "technologie/provoz1.h"
#include "technologie/provoz2.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"
#include "vypravci/vypravci.h"

// TABULKA(name, value in a fresh process), in the order in which a reset goes.
#define TABULKY_SIMULACE(TABULKA)                                                                            \
    TABULKA(simulace, {})                                                                                    \
    TABULKA(stav_hodin, {})                                                                                  \
    TABULKA(pocty_provozu, {})                                                                               \
    TABULKA(relief, novy_relief())                                                                           \
    TABULKA(prejezdy, {})                                                                                    \
    TABULKA(stav_provozu, {})                                                                                \
    TABULKA(gvd_vlaky, {})                                                                                   \
    TABULKA(vlaky, prvni_vlaky())                                                                            \
    TABULKA(koleje_vlaky, prvni_koleje_vlaky())                                                              \
    TABULKA(zkracene_vlaky, {})                                                                              \
    TABULKA(cesty, std::vector<Cesta>(1))                                                                    \
    TABULKA(stav_zasobniku, {})                                                                              \
    TABULKA(odjete, {})                                                                                      \
    TABULKA(vyber, {})                                                                                       \
    TABULKA(souhlasy, {})                                                                                    \
    TABULKA(stanicni_prejezdy, {})                                                                           \
    TABULKA(stav_vyhybek, {})                                                                                \
    TABULKA(panel_navestidla, {})                                                                            \
    TABULKA(stitky, std::vector<StitekPrvku>(1))                                                             \
    TABULKA(hlaseni, {})                                                                                     \
    TABULKA(prikaz_radek, {})                                                                                \
    TABULKA(tabulka_vlaku, {})                                                                               \
    TABULKA(stranka_vlaku, {})                                                                               \
    TABULKA(menu, {})                                                                                        \
    TABULKA(stav_menu_koleje, {})                                                                            \
    TABULKA(blikani, {})                                                                                     \
    TABULKA(technologie, {})                                                                                 \
    TABULKA(provoz1, {})                                                                                     \
    TABULKA(provoz2, {})                                                                                     \
    TABULKA(penet, {})                                                                                       \
    TABULKA(dohled, {})                                                                                      \
    TABULKA(sekvence, {})                                                                                    \
    TABULKA(stav_vypravciho, {})                                                                             \
    TABULKA(sledovani, {})                                                                                   \
    TABULKA(stav_vystrah, {})                                                                                \
    TABULKA(parametry, {})

// The whole simulation as a value.
struct StavSimulace {
#define TABULKA(jmeno, cerstva) decltype(::jmeno) jmeno = cerstva;
    TABULKY_SIMULACE(TABULKA)
#undef TABULKA
    bool operator==(const StavSimulace&) const = default;
};

// --- by the load and the tests

// The tables as they are.
StavSimulace stav_simulace();
// The tables become what they were.
void vrat_stav(StavSimulace stav);
