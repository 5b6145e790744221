// davka/popisy.h - the fields of each record by their own names.
//
// One list a record serves printing, checking and setting. It is a function template `popis_poli(a, z)`
// with Z the record or a const record, and two archives walk it: DoJsonu prints every field, NastavPole
// changes the one that is named. A new table needs its list here and its row in vypisy.cpp.
#pragma once

#include "app/parametry.h"
#include "cesty/cesta.h"
#include "davka/json.h"
#include "davka/skript.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "obsluha/vyber.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/prejezdy.h"

#include <concepts>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

template <class Z, class Zaznam>
concept ZaznamJe = std::same_as<std::remove_const_t<Z>, Zaznam>;

// Without the selected field, which is printed by its name.
template <class A, ZaznamJe<Parametry> Z> void popis_poli(A& a, Z& z) {
    a.pole("lblVerze", z.lblVerze);
    a.pole("lblInfo_verze", z.lblInfo_verze);
    a.pole("txtHodiny", z.txtHodiny);
    a.pole("txtMinuty", z.txtMinuty);
    a.pole("cboDen", z.cboDen);
    a.pole("cboRychlost", z.cboRychlost);
    a.pole("lblAktualni_GVD", z.lblAktualni_GVD);
    a.pole("lblGVD_popis_aktualni", z.lblGVD_popis_aktualni);
    a.pole("miGVD", z.miGVD);
    a.pole("miOblibena", z.miOblibena);
    a.pole("chkZpozdeni", z.chkZpozdeni);
    a.pole("chkPP", z.chkPP);
    a.pole("chkZvuk", z.chkZvuk);
    a.pole("chkAutosave", z.chkAutosave);
    a.pole("txtAutosave", z.txtAutosave);
    a.pole("chkNoresize", z.chkNoresize);
    a.pole("chkDualMonitor", z.chkDualMonitor);
    a.pole("lblMonitor", z.lblMonitor);
    a.pole("vlevo", z.vlevo);
    a.pole("stranka", z.stranka);
}

template <class A, ZaznamJe<Cesta> Z> void popis_poli(A& a, Z& z) {
    a.pole("zacatek", z.zacatek);
    a.pole("konec", z.konec);
    a.pole("prvky", z.prvky);
    a.pole("druhy", z.druhy);
    a.pole("polohy", z.polohy);
    a.pole("Kdy_prehoz", z.Kdy_prehoz);
    a.pole("rychlost", z.rychlost);
    a.pole("VC", z.VC);
    a.pole("PN", z.PN);
    a.pole("PN_do", z.PN_do);
    a.pole("PN_zaver", z.PN_zaver);
    a.pole("cas_stavby", z.cas_stavby);
    a.pole("prehozena", z.prehozena);
    a.pole("Postavena", z.Postavena);
    a.pole("Provedena", z.Provedena);
    a.pole("cas_ruseni", z.cas_ruseni);
    a.barva("barva_cisla", z.barva_cisla);
    a.pole("Vlak", z.Vlak);
    a.pole("Umazat", z.Umazat);
    a.pole("vyhybka", z.vyhybka);
    a.pole("varovani", z.varovani);
    a.pole("rezerva", z.rezerva);
    a.pole("prejezd", z.prejezd);
    a.pole("prejezd_zaver", z.prejezd_zaver);
    a.pole("ZT", z.ZT);
}

template <class A, ZaznamJe<Vlak> Z> void popis_poli(A& a, Z& z) {
    a.pole("stanice", z.stanice);
    a.pole("prijezd", z.prijezd);
    a.pole("odjezd", z.odjezd);
    a.pole("odjezd_realny", z.odjezd_realny);
    a.pole("druh", z.druh);
    a.pole("cislo", z.cislo);
    a.pole("druh2", z.druh2);
    a.pole("cislo2", z.cislo2);
    a.pole("stanice_zmeny", z.stanice_zmeny);
    a.pole("posun", z.posun);
    a.pole("nazev", z.nazev);
    a.pole("max_rychlost", z.max_rychlost);
    a.pole("delka", z.delka);
    a.pole("gvd_hodnota", z.gvd_hodnota);
    a.pole("loko_rada", z.loko_rada);
    a.pole("loko_rada2", z.loko_rada2);
    a.pole("hodnota_2", z.hodnota_2);
    a.pole("vozy", z.vozy);
    a.pole("vozy_urceni", z.vozy_urceni);
    a.pole("vozy_obrazek", z.vozy_obrazek);
    a.pole("poznamka", z.poznamka);
    a.pole("pokyn", z.pokyn);
    a.pole("dny", z.dny);
    a.pole("priznaky", z.priznaky);
    a.pole("stanice_index", z.stanice_index);
    a.pole("muze_jet", z.muze_jet);
    a.pole("prvky", z.prvky);
    a.pole("prvky_druh", z.prvky_druh);
    a.pole("prvky_poloha", z.prvky_poloha);
    a.pole("prvek_konec", z.prvek_konec);
    a.pole("smer", z.smer);
    a.pole("rychlost", z.rychlost);
    a.pole("rychlost_trati", z.rychlost_trati);
    a.pole("rychlost_cesty", z.rychlost_cesty);
    a.pole("konec_omezeni", z.konec_omezeni);
    a.pole("omezeni_ukonceno", z.omezeni_ukonceno);
    a.pole("rezerva", z.rezerva);
    a.pole("cislo2_platne", z.cislo2_platne);
    a.pole("zpozdeni_vstup", z.zpozdeni_vstup);
    a.pole("zpozdeni", z.zpozdeni);
}

template <class A, ZaznamJe<KolejVlaky> Z> void popis_poli(A& a, Z& z) {
    a.pole("prvek", z.prvek);
    a.pole("vlaky", z.vlaky);
}

template <class A, ZaznamJe<GvdVlak> Z> void popis_poli(A& a, Z& z) {
    a.pole("stanice", z.stanice);
    a.pole("prijezdy", z.prijezdy);
    a.pole("odjezdy", z.odjezdy);
    a.pole("druh", z.druh);
    a.pole("cislo", z.cislo);
    a.pole("druh2", z.druh2);
    a.pole("cislo2", z.cislo2);
    a.pole("stanice_zmeny", z.stanice_zmeny);
    a.pole("nazev", z.nazev);
    a.pole("rychlost", z.rychlost);
    a.pole("delka", z.delka);
    a.pole("gvd_hodnota", z.gvd_hodnota);
    a.pole("loko_rada", z.loko_rada);
    a.pole("loko_rada2", z.loko_rada2);
    a.pole("hodnota_2", z.hodnota_2);
    a.pole("vozy", z.vozy);
    a.pole("vozy_vlaky", z.vozy_vlaky);
    a.pole("poznamka", z.poznamka);
    a.pole("text_2", z.text_2);
    a.pole("text_3", z.text_3);
    a.pole("kolej", z.kolej);
    a.pole("navazny_vlak", z.navazny_vlak);
    a.pole("dny", z.dny);
    a.pole("priznaky", z.priznaky);
}

template <class A, ZaznamJe<DalsiVlak> Z> void popis_poli(A& a, Z& z) {
    a.pole("cas", z.cas);
    a.pole("cislo", z.cislo);
    a.pole("druh", z.druh);
    a.pole("predpoklad", z.predpoklad);
}

template <class A, ZaznamJe<Vyber> Z> void popis_poli(A& a, Z& z) {
    a.pole("volba_zacatek", z.volba_zacatek);
    a.pole("volba_konec", z.volba_konec);
    a.pole("volba_druh", z.volba_druh);
    a.pole("volba_cas", z.volba_cas);
    a.pole("volba_navestidlo", z.volba_navestidlo);
    a.pole("volba_svetla", z.volba_svetla);
    a.pole("volba_posun", z.volba_posun);
    a.pole("makro_zaznam", z.makro_zaznam);
    a.pole("makro_zacatky", z.makro_zacatky);
    a.pole("makro_konce", z.makro_konce);
    a.pole("makro_druhy", z.makro_druhy);
}

template <class A, ZaznamJe<StanicniPrejezd> Z> void popis_poli(A& a, Z& z) {
    a.pole("uzavren", z.uzavren);
    a.pole("UZ", z.UZ);
    a.pole("rezerva1", z.rezerva1);
    a.pole("rezerva2", z.rezerva2);
    a.pole("cas", z.cas);
    a.pole("pocet", z.pocet);
}

template <class A, ZaznamJe<Prejezd> Z> void popis_poli(A& a, Z& z) {
    a.pole("zona", z.zona);
    a.pole("vyluka", z.vyluka);
    a.pole("uvolnen", z.uvolnen);
    a.pole("kolej", z.kolej);
    a.pole("poloha", z.poloha);
    a.pole("nazev", z.nazev);
}

template <class A, ZaznamJe<StitekPrvku> Z> void popis_poli(A& a, Z& z) {
    a.pole("prvek", z.prvek);
    a.pole("stitek", z.stitek);
    a.pole("nvl", z.nvl);
    a.pole("vyluka", z.vyluka);
}

template <class A, ZaznamJe<ZpravaFronty> Z> void popis_poli(A& a, Z& z) {
    a.pole("prikaz", z.prikaz);
    a.pole("volba", z.volba);
    a.barva("pozadi", z.pozadi);
    a.barva("pozadi_volby", z.pozadi_volby);
    a.barva("popredi", z.popredi);
    a.pole("vstup", z.vstup);
}

template <class A, ZaznamJe<PolozkaMenu> Z> void popis_poli(A& a, Z& z) {
    a.pole("jmeno", z.jmeno);
    a.pole("text", z.text);
    a.pole("povolena", z.povolena);
    a.pole("viditelna", z.viditelna);
}

// --- values

inline Json json_hodnota(bool x) {
    return Json(x);
}
template <std::integral T> Json json_hodnota(T x) {
    return Json(x);
}
inline Json json_hodnota(const Text& x) {
    return json_text(x);
}
template <class T> Json json_hodnota(const std::vector<T>& x) {
    SeznamJsonu seznam;
    seznam.reserve(x.size());
    for (const T& polozka : x)
        seznam.push_back(json_hodnota(polozka));
    return Json(std::move(seznam));
}

// A value of a script into a field: an error of the script when it does not fit.
inline void precti_hodnotu(std::string_view hodnota, std::string_view pole, bool& x) {
    const auto priznak = priznak_textu(hodnota);
    if (!priznak)
        chyba_skriptu(std::string(pole) + ": čeká se ano nebo ne, ne " + v_uvozovkach(hodnota));
    x = *priznak;
}
template <std::integral T> void precti_hodnotu(std::string_view hodnota, std::string_view pole, T& x) {
    x = static_cast<T>(
        cislo_slova(hodnota, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), pole));
}
inline void precti_hodnotu(std::string_view hodnota, std::string_view, Text& x) {
    x = text_slova(hodnota);
}
// Items parted by commas; an empty text is an empty list.
template <class T> void precti_hodnotu(std::string_view hodnota, std::string_view pole, std::vector<T>& x) {
    std::vector<T> nove;
    while (!hodnota.empty()) {
        const std::size_t carka = hodnota.find(',');
        precti_hodnotu(hodnota.substr(0, carka), pole, nove.emplace_back());
        hodnota = carka == std::string_view::npos ? std::string_view() : hodnota.substr(carka + 1);
    }
    x = std::move(nove);
}
void precti_barvu(std::string_view hodnota, std::string_view pole, Barva& x);

// --- archives

struct DoJsonu {
    ZaznamJsonu& cil;
    template <class T> void pole(std::string_view jmeno, const T& x) { pridej(cil, jmeno, json_hodnota(x)); }
    void barva(std::string_view jmeno, Barva x) { pridej(cil, jmeno, json_barva(x)); }
};

struct NastavPole {
    std::string_view jmeno, hodnota;
    bool nalezeno = false;
    template <class T> void pole(std::string_view j, T& x) {
        if (j == jmeno) {
            precti_hodnotu(hodnota, jmeno, x);
            nalezeno = true;
        }
    }
    void barva(std::string_view j, Barva& x) {
        if (j == jmeno) {
            precti_barvu(hodnota, jmeno, x);
            nalezeno = true;
        }
    }
};

// All fields of a record, behind what `zaznam` already holds.
template <class Z> void pridej_pole(ZaznamJsonu& zaznam, const Z& z) {
    DoJsonu archiv{zaznam};
    popis_poli(archiv, z);
}
// Changes the field `jmeno`; false when the record has no such field.
template <class Z> bool nastav_pole(Z& z, std::string_view jmeno, std::string_view hodnota) {
    NastavPole archiv{jmeno, hodnota};
    popis_poli(archiv, z);
    return archiv.nalezeno;
}
