// jizda/metry.h - metres of the head on a track section: the state of the element.
#pragma once

#include "relief/relief.h"

// Metres run on the section; 0 on a free one and on one that the relief does not hold.
inline double metry(int kolej) {
    return je_kolej(kolej) ? relief.kolej[kolej].stav.cislo() : 0.0;
}
inline void nastav_metry(int kolej, double hodnota) {
    if (je_kolej(kolej))
        relief.kolej[kolej].stav.nastav_cislo(hodnota);
}
