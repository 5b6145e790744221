// obsluha/povely.cpp - commands of the desk that a key and a picture of the bar give alike.
#include "obsluha/povely.h"

#include "app/konec.h"
#include "app/simulace.h"
#include "desk/zprava.h"
#include "obsluha/ukony.h"
#include "relief/relief.h"
#include "save/ulozeni.h"
#include "technologie/technologie.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

namespace {

constexpr int kNejvyssiRychlost = 8;
constexpr int kNejvyssiRychlostHry = 3; // without the debug marker

void nastav_rychlost(int rychlost) {
    simulace.rychlost = na_byte(rychlost);
    relief.lblrychlost_simulace[0].text = text_cisla(rychlost);
}

} // namespace

bool prihlaseni_bezi() {
    return je_prihlaseni(prikaz_radek.slovo.druh());
}

void ohlas_vadu_deniku(KodChyby vada) {
    const ZapisUkonu zapis({.co = DruhUkonu::vada_deniku, .n = static_cast<int>(vada)});
    zprava(" POZOR ",
           Text("Deník událostí (GTN) nelze zapsat: "_cz) + Text(text_chyby(vada)) +
               Text(". Simulace pokračuje."_cz),
           barvy::bila, 0, false, barvy::bila, barvy::cervena);
}

void pipni_klavesou() {
    pipni(800, 10);
}

void zrychli() {
    const int mez = je_ladeni() ? kNejvyssiRychlost : kNejvyssiRychlostHry;
    if (simulace.rychlost >= mez)
        return;
    pipni_klavesou();
    nastav_rychlost(simulace.rychlost + 1);
}

void zpomal() {
    if (simulace.rychlost <= 1)
        return;
    pipni_klavesou();
    nastav_rychlost(simulace.rychlost - 1);
}

void prepni_pauzu() {
    if (prihlaseni_bezi())
        return;
    pipni_klavesou();
    if (simulace.pauza)
        spust_hodiny();
    else
        zastav_hodiny();
}

void minimalizuj_okno() {
    pipni_klavesou();
    platforma.minimalizuj();
    minimalizuj();
}

void zacni_ulozeni() {
    if (prihlaseni_bezi())
        return;
    uloz_dialog(zastav_pro_ulozeni());
}

void ukaz_technologii(Technologie ktera) {
    if (!prihlaseni_bezi())
        otevri_technologii(ktera);
}
