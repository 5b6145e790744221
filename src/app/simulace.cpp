// app/simulace.cpp - the running of time, the beep, the version.
#include "app/simulace.h"

#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

bool je_ladeni() {
    return platforma.ladeni() || soubor_existuje(simulace.cesta_aplikace + "debug.dat");
}

void spust_hodiny() {
    simulace.tick_hodin = platforma.tik_ms();
    simulace.tick_jizdy = platforma.tik_ms();
    simulace.pauza = false;
    relief.lblPauza[0].viditelny = false;
}

void zastav_hodiny() {
    simulace.pauza = true;
    relief.lblPauza[0].viditelny = true;
}

void pipni(int hz, int ms) {
    if (!simulace.zvuk_vypnut)
        platforma.pipni(hz, ms);
}

Text text_verze() {
    return text_cisla(kVerzeMajor) + "." + text_cisla(kVerzeMinor) + "." + text_cisla(kVerzeRevize);
}
