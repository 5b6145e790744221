// ui/nabidka.h - the pop-up menu of the desk as a window.
#pragma once

#include "desk/menu.h"

#include <QFont>
#include <QMenu>

#include <functional>

// Builds the window of an open menu: its head, lines that only tell something, and the entries, with
// the commands of a train in a submenu of its own. `meritko` is how many times larger than 1024 by 768 the
// desk stands on the screen; `zvoleno` gets the name of the chosen entry.
QMenu* postav_nabidku(QWidget* rodic, const Menu& co, const QFont& pismo, double meritko,
                      std::function<void(const Text& jmeno)> zvoleno);
// One without entries that looks the same, for what the view itself offers.
QMenu* prazdna_nabidka(QWidget* rodic, const QFont& pismo, double meritko);
// The first entry that can be chosen is picked, as for a hand on the keys.
void vyber_prvni(QMenu& nabidka);
