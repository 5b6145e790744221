// davka/prikazy_startu.cpp - commands that start a simulation, save it and log in.
#include "davka/prikazy_startu.h"

#include "app/nacteni.h"
#include "app/parametry.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "app/start.h"
#include "davka/obrazovka_startu.h"
#include "davka/prikazy_smeny.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "desk/menu.h"
#include "obsluha/klavesy.h"
#include "obsluha/povely.h"
#include "obsluha/vstup.h"
#include "save/ulozeni.h"
#include "zaklad/soubory.h"

namespace {

// The start screen has handed over: the ten seconds of the splash screen, and the desk.
void dokonci_start(BehSkriptu& beh) {
    beh.spusteno = true;
    spust_planovac();
    plyn_do(virtualni_hodiny.cas_ms + kUvodniObrazovka_ms);
    start_simulace();
    zacni_smenu_skriptu(beh);
    if (beh.prehrava)
        pise_se_na_disk(false); // the log aside, nothing of a shift that was is written again
}

// A save by its name: one without a folder lies in the folder of saves, as in the dialogue; a path counts
// from where the runner was started, or else from the program's folder.
Text cesta_zaznamu(std::string_view utf8) {
    const Text jmeno = text_slova(utf8);
    if (jmeno.find_first_of("/\\") == Text::npos)
        return simulace.cesta_aplikace + "save\\" + jmeno;
    const Text slozka = jmeno.substr(0, jmeno.find_last_of("/\\") + 1);
    return soubor_existuje(slozka) ? jmeno : simulace.cesta_aplikace + jmeno;
}

// An existing one; the ending may be left out.
Text nalezeny_zaznam(std::string_view utf8) {
    const Text cesta = cesta_zaznamu(utf8);
    for (const Text& moznost : {cesta, cesta + ".sim", text_slova(utf8)})
        if (delka_souboru(moznost))
            return moznost;
    return cesta; // the start tells that there is none
}

bool ceka_prihlaseni() {
    return relief.lblPrikaz[0].viditelny && prihlaseni_bezi();
}

} // namespace

void prikaz_spust(BehSkriptu& beh, Slova slova) {
    otevri_obrazovku_startu();
    vypln_obrazovku_startu(slova);
    if (start_prikaz())
        dokonci_start(beh);
}

void prikaz_nacti(BehSkriptu& beh, Slova slova) {
    otevri_obrazovku_startu();
    vypln_obrazovku_startu(slova.subspan(1));
    zahod_menu();
    if (beh.hra)
        priprav_nacteni(text_slova(slova[0]), moznosti_startu(), beh.hra);
    else
        priprav_nacteni(nalezeny_zaznam(slova[0]), moznosti_startu());
    dokonci_start(beh);
}

void prikaz_otevrit(BehSkriptu& beh) {
    otevri_obrazovku_startu();
    if (otevri_zaznam())
        dokonci_start(beh);
}

// A save ends with a running clock; during the login it goes on standing, for nobody has taken over yet.
void prikaz_uloz(BehSkriptu&, Slova slova) {
    const bool pauza_startu = ceka_prihlaseni() && simulace.pauza;
    const auto rozbeh = zastav_pro_ulozeni();
    uloz_simulaci(cesta_zaznamu(slova[0]), false, rozbeh);
    if (pauza_startu)
        simulace.pauza = true;
}

void prikaz_prihlas(BehSkriptu&, Slova) {
    if (!ceka_prihlaseni())
        chyba_skriptu("přihlášení není na řadě: na příkazovém řádku stojí " +
                      v_uvozovkach(na_utf8(relief.lblPrikaz[0].text())));
    Klavesa enter;
    enter.kod = KodKlavesy::enter;
    for (int i = 0; i < 3 && ceka_prihlaseni(); ++i)
        klavesa(enter);
}
