// app/simulace.cpp - the tables of the simulation, their reset, and the running of time.
#include "app/simulace.h"

#include "app/blikani.h"
#include "app/kontrola_jizdy.h"
#include "app/kontrola_majitelu.h"
#include "app/parametry.h"
#include "cesty/cesta.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "obsluha/menu_koleje.h"
#include "obsluha/vyber.h"
#include "prvky/panel.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/volnost.h"
#include "relief/prejezdy.h"
#include "save/gtn.h"
#include "save/nouzove.h"
#include "technologie/technologie.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

Simulace simulace;

// Tables that several rooms read and write alike have their place here, beside their reset.
std::vector<Cesta> cesty{1};
Vyber vyber;
Souhlasy souhlasy;
std::array<StanicniPrejezd, 2> stanicni_prejezdy;
StavVyhybek stav_vyhybek;

void nova_simulace() {
    gtn_zavri();
    simulace = Simulace{};
    relief = novy_relief();
    ++revize_reliefu;
    prejezdy.clear();
    stav_provozu = StavProvozu{};
    gvd_vlaky = {};
    vlaky = prvni_vlaky();
    koleje_vlaky = prvni_koleje_vlaky();
    cesty = std::vector<Cesta>(1);
    odjete.reset();
    vyber = Vyber{};
    souhlasy = Souhlasy{};
    stanicni_prejezdy = {};
    stav_vyhybek = StavVyhybek{};
    panel_navestidla = PanelNavestidla{};
    stitky = std::vector<StitekPrvku>(1);
    prikaz_radek = Prikaz{};
    menu = Menu{};
    stav_menu_koleje = MenuKoleje{};
    blikani = Blikani{};
    zapomen_technologii();
    zapomen_kontrolu_jizdy();
    prijmi_majitele();
    parametry = Parametry{};
    zapomen_nouzovy_stav();
}

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
