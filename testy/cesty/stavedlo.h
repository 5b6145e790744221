// testy/cesty/stavedlo.h - a small junction for the tests of routes, built in the store by hand.
//
//        219 -- 117                                                       (line 604 654 704, ">>")
//                 \            5 ==< 41 >-- 6 ==---- 604 ---- 654 ---- 704
//   84 -- 40 >(240)-----------/     \ 42 >--/
//                            |
//        107 (crossing 0) -- 43      44: siding behind derailer 1, shunt signal 540 at 45
//
// Signals named like their tracks + 200 face the even sense (glyph 229) and stand at the right end;
// signals 41 and 42 face back. Switch positions: 5 by the triple 1 to 3, 6 by 4 to 6, 7 by 25 to 28.
#pragma once

#include "app/cas.h"
#include "app/casovace.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "obsluha/volba.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "zaklad/balik.h"
#include "zaklad/cisla.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

inline Bajty bajty_cest(const std::vector<ZaznamCesty>& zaznamy) {
    Zapisovac z;
    for (const ZaznamCesty& zaznam : zaznamy)
        popis_zaznamu_cesty(z, zaznam);
    return z.bajty;
}

inline Bajty bajty_vazeb(const std::vector<ZaznamVazeb>& zaznamy) {
    Zapisovac z;
    for (const ZaznamVazeb& zaznam : zaznamy)
        popis_zaznamu_vazeb(z, zaznam);
    return z.bajty;
}

struct Stavedlo : testing::Test {
    VirtualniPlatforma svet;

    std::vector<ZaznamCesty> zat = {
        {240, 41, prvky_cesty({40, 5, 41}, {1, 2, 1}, {0, 2, 0}), 0},
        {240, 42, prvky_cesty({40, 5, 42}, {1, 2, 1}, {0, 3, 0}), 1},
        {241, 604, prvky_cesty({41, 6, 604}, {1, 2, 1}, {0, 5, 0}), 0},
        {242, 604, prvky_cesty({42, 6, 604}, {1, 2, 1}, {0, 6, 0}), 2},
        {41, 40, prvky_cesty({41, 5, 40}, {1, 2, 1}, {0, 2, 0}), 0},
        {42, 40, prvky_cesty({42, 5, 40}, {1, 2, 1}, {0, 3, 0}), 1},
        {604, 41, prvky_cesty({604, 6, 41}, {1, 2, 1}, {0, 5, 0}), 0},
        {240, 43, prvky_cesty({40, 107, 43}, {1, 1, 1}, {0, 0, 0}), 0},
        {40, 84, prvky_cesty({40, 84}, {1, 1}, {0, 0}), 0},
        {40, 117, prvky_cesty({40, 117}, {1, 1}, {0, 0}), 0},
        {43, 46, prvky_cesty({43, 118, 46}, {1, 1, 1}, {0, 0, 0}), 0},
        {46, 118, prvky_cesty({46, 303, 118}, {1, 1, 1}, {0, 0, 0}), 0},
        {48, 118, prvky_cesty({48, 187, 118}, {1, 1, 1}, {0, 0, 0}), 0},
        {240, 47, prvky_cesty({40, 7, 47}, {1, 2, 1}, {0, 27, 0}), 0},
        {246, 120, prvky_cesty({46, 120}, {1, 1}, {0, 0}), 0},
    };
    std::vector<ZaznamCesty> zpc = {
        {240, 41, prvky_cesty({40, 5, 41}, {1, 2, 1}, {0, 2, 0}), 0},
        {240, 42, prvky_cesty({40, 5, 42}, {1, 2, 1}, {0, 3, 0}), 0},
        {545, 44, prvky_cesty({45, 1, 44}, {1, 4, 1}, {0, 0, 0}), 0},
        {41, 40, prvky_cesty({41, 5, 40}, {1, 2, 1}, {0, 2, 0}), 0},
    };

    Stavedlo() {
        postav_tabulky();
        postav_relief();
        simulace.pauza = false;
        simulace.cas_zacatku = 479;
        nastav_cas("8:00:00");
        gtn_otevri();
    }

    void postav_tabulky() {
        svet.zapis("data/tesk.zat", bajty_cest(zat));
        svet.zapis("data/tesk.zpc", bajty_cest(zpc));
        svet.zapis("data/tesk.stg", bajty_vazeb({{5, {255}, "5"}, {6, {255}, "6"}, {7, {255}, "7a/7b"}}));
        svet.zapis("data/tesk.top", "0400300041040004204000430250");
        svet.zapis("data/tesk.mak", "");
    }

    // --- the junction

    static void kolej(int n, int x1, int x2, int y) {
        Prvek& k = relief.kolej.zaloz(n);
        k.x1 = x1;
        k.x2 = x2;
        k.y1 = y;
        k.y2 = y;
        k.barva = barvy::seda;
        k.stav = TextPohled("0");
    }
    static void stitek(int n, TextPohled nazev) {
        Prvek& s = relief.cislo_koleje.zaloz(n);
        s.text = nazev;
        s.popis = nazev;
        s.barva = barvy::seda;
        s.viditelny = !nazev.empty();
    }
    static void cil(int n, TextPohled nazev) { relief.Image1.zaloz(n).stav = nazev; }
    static void navest(int n, int glyf, TextPohled nazev) {
        Prvek& s = navestidla(n).zaloz(n);
        s.text = znak(glyf);
        s.popis = nazev;
        s.barva = barvy::seda;
    }
    static void vyhybka(int n, int vlevo, int nahore, int stav) {
        Prvek& v = relief.imgVyhybka.zaloz(n);
        v.vlevo = vlevo;
        v.nahore = nahore;
        v.stav = text_cisla(stav);
        v.obrazek = static_cast<std::int16_t>(stav + 100);
    }
    static void sipka(int n) { relief.lblSouhlas2.zaloz(n).barva = barvy::seda; }

    void postav_relief() {
        kolej(40, 1000, 2000, 4000);
        kolej(41, 3000, 4000, 4000);
        kolej(42, 3000, 4000, 4195);
        kolej(43, 3000, 4000, 4390);
        kolej(44, 3000, 4000, 4585);
        kolej(45, 1000, 2000, 4585);
        kolej(46, 5000, 6000, 4390);
        kolej(47, 3000, 4000, 4780);
        kolej(48, 1000, 2000, 4780);
        for (const int n : {107, 118, 303, 187, 306, 120})
            kolej(n, 4000, 5000, 4390);
        for (const int n : {84, 212, 117, 219})
            kolej(n, 0, 1000, 4000);
        kolej(604, 5000, 6000, 4000);
        kolej(654, 6000, 7000, 4000);
        kolej(704, 7000, 8000, 4000);
        for (const int n : {40, 41, 42, 43, 44, 45, 46, 47, 48})
            stitek(n, "K" + text_cisla(n));
        for (const int n : {604, 654, 704, 84, 212, 117, 219})
            stitek(n, "");
        cil(41, "TST L41");
        cil(40, "TST L40");
        cil(604, "TRT");
        for (const int n : {240, 241, 242, 243, 246})
            navest(n, 229, "TST S" + text_cisla(n));
        for (const int n : {40, 41, 42, 43, 46, 48})
            navest(n, 230, "TST L" + text_cisla(n));
        navest(604, 230, "TST L604");
        navest(605, 229, "TRT S605");
        navest(545, 240, "TST Se45");
        vyhybka(5, 2000, 4000, 2);
        vyhybka(6, 4000, 4000, 5);
        vyhybka(7, 2200, 4390, 25);
        Prvek& vykolejka = relief.lblVykolejka.zaloz(1);
        vykolejka.text = znak(23);
        vykolejka.barva = barvy::seda;
        for (const int n : {604, 118, 120, 123, 632, 634, 636})
            sipka(n);
        for (const int k : {0, 1, 2}) {
            relief.lblSouhlas.zaloz(k).barva = barvy::seda;
            relief.lblSouhlas.zaloz(k).text = znak(k == 2 ? 176 : 8);
            relief.lblPredvidany_odjezd.zaloz(k);
        }
    }

    // --- time

    static void nastav_cas(TextPohled cas) { ::nastav_cas(cas); }
    static void posun_cas(int s) { ::nastav_cas(cas_hodin() + s); }
    // Lets seconds of the simulation pass, a tick of the route machine after each.
    static void cekej(int s) {
        for (int i = 0; i < s; ++i) {
            posun_cas(1);
            krok_volby();
        }
    }

    // --- hands

    static void klik(int s, bool ctrl = false) { klik_navestidlo(s, Tlacitko::leve, ctrl); }
    // A route of the kind, queued, without the clicks.
    static Cesta& zarad(int zacatek, int konec, int druh = druh_volby::vlak) {
        EXPECT_TRUE(najdi_cestu(zacatek, konec, druh, false));
        return cesty.back();
    }
    // A route, set and cleared.
    static void postav(int zacatek, int konec, int druh = druh_volby::vlak) {
        zarad(zacatek, konec, druh);
        cekej(12);
        EXPECT_TRUE(cesty.back().Provedena) << zacatek << " to " << konec;
    }

    // --- looking

    static Barva barva(int n) { return relief.kolej[n].barva; }
    static Barva navestni(int s) { return navestidla(s)[s].barva; }
    static int stav(int n) { return stav_vyhybky_cislo(n); }
    static Text prikaz() { return prikaz_radek.obsazen ? relief.lblPrikaz[0].text() : Text{}; }
    static Text volba() { return prikaz_radek.obsazen ? relief.lblVolba[0].text() : Text{}; }

    // Events of the log so far.
    std::vector<Udalost> zaznamy() const {
        gtn_vyprazdni();
        const Bajty bajty = svet.precti("GTN/" + jmeno_zaznamu());
        Ctenar c{bajty};
        Text text;
        std::int32_t l = 0;
        std::int16_t i = 0;
        std::uint8_t b = 0;
        c.text(text);
        c.l(l);
        c.text(text);
        c.b(b);
        c.i(i);
        c.i(i);
        c.i(i);
        std::vector<Udalost> udalosti;
        while (c.ok && !c.na_konci()) {
            Udalost u{};
            c.l(l);
            c.b(b);
            c.i(i);
            u.kod = b;
            u.prvek = i;
            c.l(l);
            u.hodnota = l;
            if (c.ok)
                udalosti.push_back(u);
        }
        return udalosti;
    }
    std::size_t zapsano(Udalost u) const {
        const auto vse = zaznamy();
        return static_cast<std::size_t>(std::count(vse.begin(), vse.end(), u));
    }
    std::size_t zapsano_kodu(int kod) const {
        const auto vse = zaznamy();
        return static_cast<std::size_t>(
            std::count_if(vse.begin(), vse.end(), [kod](const Udalost& u) { return u.kod == kod; }));
    }
    std::size_t pipnuto(int hz, int ms) const {
        return static_cast<std::size_t>(
            std::count(svet.pipnuti.begin(), svet.pipnuti.end(), VirtualniPlatforma::Pipnuti{hz, ms}));
    }

private:
    std::string jmeno_zaznamu() const {
        for (const auto& soubor : std::filesystem::directory_iterator(svet.koren / "GTN"))
            return soubor.path().filename().string();
        return {};
    }
};
