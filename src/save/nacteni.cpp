// save/nacteni.cpp - starting from a saved simulation.
#include "app/simulace.h"
#include "save/ulozeni.h"
#include "zaklad/platforma.h"

bool nacti_dialog(const MoznostiStartu& moznosti) {
    const auto soubor = platforma.soubor_k_otevreni(simulace.cesta_aplikace + "save", "*.sim");
    if (!soubor)
        return false;
    uloz_volby(moznosti);
    simulace.nacitani_zaznamu = true;
    simulace.soubor_zaznamu = Text(orez(*soubor));
    priprava_simulace();
    return true;
}
