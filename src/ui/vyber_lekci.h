// ui/vyber_lekci.h - the lessons on the start screen: what there is, what has been done of it, and where it
// goes on.
#pragma once

#include "lekce/lekce.h"
#include "zaklad/text.h"

#include <QWidget>

#include <cstddef>
#include <functional>
#include <optional>

// A lesson that was chosen.
struct ChystanaLekce {
    lekce::Lekce lekce;
    Text soubor;
    std::size_t krok = 0; // from its save; 0: from the beginning
};

// --- on the start screen

// The lessons with their length and what has been done of them. `spust` gets the start command of the chosen
// one: true when the simulation has been prepared.
void ukaz_vyber_lekci(QWidget* rodic, const std::function<void(const std::function<bool()>&)>& spust);

// --- while the simulation is being prepared

// It is a lesson: nobody else takes the desk at its start.
bool chysta_se_lekce();
// The chosen lesson, once: by the desk that shows it.
std::optional<ChystanaLekce> prevezmi_lekci();
