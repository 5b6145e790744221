// ui/hodnoceni.h - the assessment of the shift on a page of its own.
#pragma once

#include <QWidget>

// --- on the operator's command

// Opens the page beside the desk, with the shift as it stands at this moment.
void ukaz_hodnoceni(QWidget* stul);

// --- at the end of the program

// Writes the page, with the diagrams, beside the record of the shift; nothing when there was no shift.
void zapis_hodnoceni_na_konci();
