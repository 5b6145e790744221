// davka/prikazy_rukou.cpp - commands that are a hand on the desk.
#include "davka/prikazy_rukou.h"

#include "davka/obrazovka_startu.h"
#include "davka/prikazy_startu.h"
#include "davka/skript.h"
#include "davka/virtualni_svet.h"
#include "davka/vypisy.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/klavesy.h"
#include "obsluha/ukony.h"
#include "obsluha/vstup.h"
#include "technologie/technologie.h"

#include <limits>

namespace {

struct CilRuky {
    Druh druh = Druh::kolej;
    int cislo = 0;
};

// The element that the words name, and nothing behind it.
CilRuky prvek_ruky(Slova slova) {
    const Cil cil = precti_cil(slova);
    if (!cil.druh)
        chyba_skriptu(v_uvozovkach(cil.slovo) + " je tabulka, ne prvek");
    if (slova.size() > cil.slov)
        chyba_skriptu("přebývá " + v_uvozovkach(slova[cil.slov]));
    if (!tabulka(*cil.druh).je(cil.cislo))
        chyba_skriptu("prvek " + cil.slovo + " " + std::to_string(cil.cislo) + " neexistuje");
    return {*cil.druh, cil.cislo};
}

// The word of a message stands in its place in the dark half of its flashing too.
bool je_videt(const CilRuky& cil) {
    if (!je_cast_stolu(cil.druh))
        return true;
    return cil.druh == Druh::lblPrikaz ? prikaz_radek.obsazen : tabulka(cil.druh)[cil.cislo].viditelny();
}

// The element that a button is pressed on. A part of the desk that is hidden takes no button; in a record the
// automatic dispatcher, too, has reached for the pictures of a train that is longer than the panel.
CilRuky stisknuty_prvek(const BehSkriptu& beh, Slova slova) {
    const CilRuky cil = prvek_ruky(slova);
    if (!beh.prehrava && !je_videt(cil))
        chyba_skriptu("prvek " + slova[0] + " " + std::to_string(cil.cislo) + " není vidět");
    return cil;
}

// --- left clicks

void klik_pred_startem(BehSkriptu& beh, Slova slova) {
    if (slova[0] == "cmdStart")
        prikaz_spust(beh, slova.subspan(1));
    else if (slova[0] == "cmdOtevrit")
        prikaz_otevrit(beh);
    else if (!klik_startu(slova))
        chyba_pred_startem("klik " + slova[0]);
}

void bez_dalsich_slov(Slova slova) {
    if (slova.size() > 1)
        chyba_skriptu("klik " + slova[0] + " nemá další slova");
}

void klik_zalozky(Slova slova, Technologie zalozka) {
    bez_dalsich_slov(slova);
    if (!technologie_kryje_stul())
        chyba_skriptu("záložka " + slova[0] + " není vidět: žádná obrazovka technologie není otevřená");
    klik_na_zalozku(zalozka);
}

void klik_radku(Slova slova, Seznam& seznam) {
    if (slova.size() != 2)
        chyba_skriptu("píše se klik " + slova[0] + " RADEK");
    const auto radku = static_cast<std::int64_t>(seznam.radky.size());
    if (radku == 0)
        chyba_skriptu("seznam " + slova[0] + " je prázdný");
    klik_na_radek(seznam, static_cast<int>(cislo_slova(slova[1], 0, radku - 1, "řádek seznamu")));
}

void klik_prvku(const BehSkriptu& beh, Slova slova) {
    const bool ctrl = slova.size() > 1 && slova.back() == "ctrl";
    const CilRuky cil = stisknuty_prvek(beh, ctrl ? slova.first(slova.size() - 1) : slova);
    klik(cil.druh, cil.cislo, Tlacitko::leve, ctrl);
}

} // namespace

void prikaz_klik(BehSkriptu& beh, Slova slova) {
    if (!beh.spusteno) {
        klik_pred_startem(beh, slova);
    } else if (slova[0] == "plocha") {
        bez_dalsich_slov(slova);
        klik_na_plochu();
    } else if (const auto zalozka = technologie_podle_jmena(slova[0])) {
        klik_zalozky(slova, *zalozka);
    } else if (Seznam* seznam = seznam_podle_jmena(slova[0])) {
        klik_radku(slova, *seznam);
    } else {
        klik_prvku(beh, slova);
    }
}

void prikaz_pravy(BehSkriptu& beh, Slova slova) {
    const CilRuky cil = stisknuty_prvek(beh, slova);
    klik(cil.druh, cil.cislo, Tlacitko::prave, false);
}

void prikaz_prostredni(BehSkriptu& beh, Slova slova) {
    const CilRuky cil = stisknuty_prvek(beh, slova);
    klik(cil.druh, cil.cislo, Tlacitko::prostredni, false);
}

void prikaz_dvojklik(BehSkriptu& beh, Slova slova) {
    const CilRuky cil = stisknuty_prvek(beh, slova);
    dvojklik(cil.druh, cil.cislo);
}

void prikaz_najed(BehSkriptu&, Slova slova) {
    if (slova[0] == "plocha") {
        pohyb_mysi();
        odjeti();
        return;
    }
    const CilRuky cil = prvek_ruky(slova);
    pohyb_mysi();
    najeti(cil.druh, cil.cislo);
}

void prikaz_ukaz_vlak(BehSkriptu&, Slova slova) {
    ukaz_vlak(static_cast<std::int32_t>(
        cislo_slova(slova[0], 1, std::numeric_limits<std::int32_t>::max(), "číslo vlaku")));
}

void prikaz_menu(BehSkriptu&, Slova slova) {
    const Text jmeno = text_slova(slova[0]);
    if (menu.jmeno.empty())
        chyba_skriptu("žádné menu není otevřené");
    if (zvol_v_menu(jmeno))
        return;
    const std::string hlava = na_utf8(menu.jmeno); // a refusal leaves the menu open
    std::string nabidka;
    for (const PolozkaMenu& p : menu.polozky) {
        if (p.jmeno == jmeno)
            chyba_skriptu("položka " + v_uvozovkach(slova[0]) + " menu " + hlava +
                          (!p.viditelna  ? " je skrytá"
                           : !p.povolena ? " je zakázaná"
                                         : " nejde zvolit"));
        nabidka += (nabidka.empty() ? "" : ", ") + na_utf8(p.jmeno);
    }
    chyba_skriptu("menu " + hlava + " nemá položku " + v_uvozovkach(slova[0]) + "; má: " + nabidka);
}

void prikaz_klavesa(BehSkriptu& beh, Slova slova) {
    if (!beh.spusteno) {
        if (slova[0] == "Enter")
            prikaz_spust(beh, {});
        else if (!klavesa_startu(slova[0]))
            chyba_pred_startem("klavesa " + slova[0]);
        return;
    }
    const Klavesa k = klavesa_podle_jmena(text_slova(slova[0]));
    if (k.kod == KodKlavesy::zadna)
        chyba_skriptu("klávesu " + v_uvozovkach(slova[0]) + " pult nezná");
    klavesa(k);
}

void prikaz_pis(BehSkriptu& beh, Slova slova) {
    if (!beh.spusteno)
        pis_startu(slova[0]);
    else
        pis_do_pole(text_slova(slova[0]));
}

void prikaz_odpovez(BehSkriptu&, Slova slova) {
    svet.odpovedi.push_back(text_slova(slova[0]));
}
