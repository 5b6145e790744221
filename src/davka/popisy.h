// davka/popisy.h - the fields of each record by their own names.
//
// One list a record serves printing, checking and setting, and for what is saved the file as well. It is a
// function template `popis_poli(a, z)` with Z the record or a const record; it stands beside the record when
// that is saved or read from a file, else here. Two archives walk it: DoJsonu prints every field, NastavPole
// changes the one that is named. A new table needs its list and its row in vypisy.cpp.
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

#include <array>
#include <concepts>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

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

template <class A, ZaznamJe<Vyber> Z> void popis_poli(A& a, Z& z) {
    a.pole("volba_zacatek", z.volba_zacatek);
    a.pole("volba_konec", z.volba_konec);
    a.pole("volba_druh", z.volba_druh);
    a.pole("volba_cas", z.volba_cas);
    a.pole("volba_navestidlo", z.volba_navestidlo);
    a.pole("volba_svetla", z.volba_svetla);
    a.pole("volba_posun", z.volba_posun);
    a.pole("makro_zaznam", z.makro_zaznam);
    a.sloupce(z.makro_kroky, Sloupec{"makro_zacatky", &KrokMakra::zacatek},
              Sloupec{"makro_konce", &KrokMakra::konec}, Sloupec{"makro_druhy", &KrokMakra::druh});
}

template <class A, ZaznamJe<ZpravaFronty> Z> void popis_poli(A& a, Z& z) {
    a.pole("prikaz", Text(z.slovo.text()));
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
// The error of the script that lists of one length would differ in it.
[[noreturn]] void chyba_seznamu(std::span<const std::string_view> jmena);

// --- archives

struct DoJsonu {
    ZaznamJsonu& cil;
    template <class T> void pole(std::string_view jmeno, const T& x) { pridej(cil, jmeno, json_hodnota(x)); }
    void barva(std::string_view jmeno, Barva x) { pridej(cil, jmeno, json_barva(x)); }
    template <class T> void rezerva(std::string_view jmeno, const T& x) { pole(jmeno, x); }
    void preskoc(std::size_t) {}
    template <class T, class... S> void sloupce(const std::vector<T>& x, Sloupec<T, S>... sloupec) {
        const auto seznam = [&](const auto& s) {
            SeznamJsonu hodnoty;
            hodnoty.reserve(x.size());
            for (const T& polozka : x)
                hodnoty.push_back(json_hodnota(polozka.*s.clen));
            pridej(cil, s.jmeno, Json(std::move(hodnoty)));
        };
        (seznam(sloupec), ...);
    }
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
    template <class T> void rezerva(std::string_view j, T& x) { pole(j, x); }
    void preskoc(std::size_t) {}
    // Lists that belong together change together, at the end of the command: NastavSeznamy.
    template <class T, class... S> void sloupce(std::vector<T>&, Sloupec<T, S>... sloupec) {
        nalezeno = nalezeno || ((sloupec.jmeno == jmeno) || ...);
    }
};

// The first list of the group tells how many records there are, and the others may end sooner: their records
// are complete without them. So a train is given its vehicles, of which many have no next work.
template <class T> inline constexpr bool vede_prvni_seznam = std::is_same_v<T, Vuz>;

// The lists of small records that a command names: each of their fields is a list of its own there.
struct NastavSeznamy {
    std::span<const Prirazeni> prirazeni;
    template <class T> void pole(std::string_view, T&) {}
    void barva(std::string_view, Barva&) {}
    template <class T> void rezerva(std::string_view, T&) {}
    void preskoc(std::size_t) {}
    template <class T, class... S> void sloupce(std::vector<T>& x, Sloupec<T, S>... sloupec) {
        std::vector<T> nove = x;
        std::size_t poradi = 0, nastaveno = 0;
        bool stejne = true;
        const auto nastav = [&]<class P>(Sloupec<T, P> s) {
            const bool prvni = poradi++ == 0;
            for (const Prirazeni& p : prirazeni) {
                if (p.pole != s.jmeno)
                    continue;
                std::vector<P> hodnoty;
                precti_hodnotu(p.hodnota, p.pole, hodnoty);
                if (vede_prvni_seznam<T> ? prvni : nastaveno == 0)
                    nove.resize(hodnoty.size());
                ++nastaveno;
                if (vede_prvni_seznam<T> && hodnoty.size() < nove.size())
                    hodnoty.resize(nove.size());
                stejne = stejne && hodnoty.size() == nove.size();
                for (std::size_t k = 0; stejne && k < hodnoty.size(); ++k)
                    nove[k].*s.clen = std::move(hodnoty[k]);
            }
        };
        (nastav(sloupec), ...);
        const bool uplne = vede_prvni_seznam<T> || nastaveno == sizeof...(S) || nove.size() == x.size();
        if (!stejne || !uplne)
            chyba_seznamu(std::array{sloupec.jmeno...});
        x = std::move(nove);
    }
};

// All fields of a record, behind what `zaznam` already holds.
template <class Z> void pridej_pole(ZaznamJsonu& zaznam, const Z& z) {
    DoJsonu archiv{zaznam};
    popis_poli(archiv, z);
}
// Changes the field `jmeno`; false when the record has no such field. A field that is one of several lists
// of one length is left to nastav_seznamy.
template <class Z> bool nastav_pole(Z& z, std::string_view jmeno, std::string_view hodnota) {
    NastavPole archiv{jmeno, hodnota};
    popis_poli(archiv, z);
    return archiv.nalezeno;
}
// Changes the lists of one length; an error of the script when they would differ in it.
template <class Z> void nastav_seznamy(Z& z, std::span<const Prirazeni> prirazeni) {
    NastavSeznamy archiv{prirazeni};
    popis_poli(archiv, z);
}
