// testy/prvky/svety.h - a few signals, switches, consents and crossings, for their tests and those of their
// menus.
#pragma once

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/prehoz_rukou.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "prvky/vyhybky.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

// A train route over tracks that stands with its signal cleared.
inline Cesta& stojici_cesta(int zacatek, const std::vector<std::int16_t>& prvky) {
    Cesta c;
    c.zacatek = static_cast<std::int16_t>(zacatek);
    c.konec = prvky.back();
    for (PrvekCesty& p : c.prvky = prvky_cesty(prvky))
        p.druh = druh_prvku::kolej;
    c.cas_stavby = 0;
    c.VC = c.prehozena = c.Postavena = c.Provedena = true;
    if (cesty.front().zacatek < 0)
        cesty.front() = c;
    else
        cesty.push_back(c);
    return cesty.back();
}

// Signals 20 (facing 229), 60 (230), 61 (228), 62 (226), shunting signal 540.
struct ObsluhaNavestidla : testing::Test {
    VirtualniPlatforma svet;

    ObsluhaNavestidla() {
        navestidlo(20, 229, "THN S20").text = " " + znak(229) + " ";
        navestidlo(60, 230, "THN L60");
        navestidlo(61, 228, "THN L61");
        navestidlo(62, 226, "THN L62");
        navestidlo(540, 240, "THN Se40");
        nastav_cas("12:00:00");
        simulace.pauza = false;
        gtn_otevri();
        zacatek_logu = bajty_logu(svet).size();
    }
    static Prvek& navestidlo(int n, int glyf, TextPohled nazev) {
        Prvek& prvek = navestidla(n).zaloz(n);
        prvek.popis = Text(nazev);
        prvek.text = znak(glyf);
        prvek.barva = barvy::seda;
        return prvek;
    }
    static int glyf(int s) { return glyf_navestidla(s); }
    static Cesta& cesta(int zacatek, const std::vector<std::int16_t>& prvky) {
        return stojici_cesta(zacatek, prvky);
    }
    // A calling-on route whose aspect runs `zbyva` seconds more.
    static Cesta& pn_cesta(int zacatek, int zbyva) {
        Cesta& c = cesta(zacatek, {20, 40});
        c.PN = true;
        c.PN_do = ted_s() + zbyva;
        return c;
    }
    std::vector<Udalost> udalosti() const { return udalosti_logu(svet, zacatek_logu); }
    std::size_t zacatek_logu = 0;
};

// Switches: 1 stands in the middle, 2 left of it, 3 right of it; 5 has no partner though its list has an
// entry; 6 is not in the table at all. Each of 1 to 3 drags the two others.
struct Vyhybka : testing::Test {
    VirtualniPlatforma svet;

    Vyhybka() {
        svet.zapis(
            "data/tesk.stg",
            soubor_vazeb(
                {{1, {2, 3}, "1/3"}, {2, {1}, "2"}, {3, {1}, "3"}, {5, {255}, "5ab"}, {8, {99, 5}, "8"}}));
        for (const auto& [n, x] : std::map<int, int>{{1, 1000}, {2, 500}, {3, 1500}, {5, 0}, {6, 0}, {8, 0}})
            relief.imgVyhybka.zaloz(n).vlevo = x;
        for (const int n : {1, 2, 3, 5, 6, 8})
            stav(n, 2);
        nastav_cas("12:00:00");
        simulace.pauza = false;
        gtn_otevri();
        zacatek_logu = bajty_logu(svet).size();
    }
    static void stav(int n, int s) {
        relief.imgVyhybka[n].stav = text_cisla(s);
        relief.imgVyhybka[n].obrazek = static_cast<std::int16_t>(s + 100);
    }
    static int stav(int n) { return stav_vyhybky_cislo(n); }
    std::vector<Udalost> udalosti() const { return udalosti_logu(svet, zacatek_logu); }
    // Which of S+, S-, S+ b, S- b switch n is free for.
    static std::string nabidka(int n) {
        const Moznosti m = moznosti_vyhybky(n);
        std::string vse;
        for (const bool lze : {m.plus, m.minus, m.plus_b, m.minus_b})
            vse += lze ? '1' : '0';
        return vse;
    }
    std::size_t zacatek_logu = 0;
};

// Derailers on the rail, and the switches that move them.
struct Vykolejky : Vyhybka {
    Vykolejky() {
        for (const int n : {190, 202, 206, 14})
            relief.imgVyhybka.zaloz(n).stav = Text("2");
        for (int d = 0; d < 3; ++d) {
            relief.lblVykolejka.zaloz(d).text = znak(21);
            relief.lblVykolejka[d].barva = barvy::seda;
        }
    }
    static void znaky(int a, int b, int c) {
        relief.lblVykolejka[0].text = znak(a);
        relief.lblVykolejka[1].text = znak(b);
        relief.lblVykolejka[2].text = znak(c);
        for (int d = 0; d < 3; ++d) {
            relief.lblVykolejka[d].barva = barvy::seda;
            relief.lblVykolejka[d].pozadi = barvy::cerna;
        }
    }
    static bool jede(int d) {
        return relief.lblVykolejka[d].barva() == barvy::cerna &&
               relief.lblVykolejka[d].pozadi() == barvy::seda;
    }
    static std::vector<int> jedou() {
        std::vector<int> vse;
        for (int d = 0; d < 3; ++d)
            if (jede(d))
                vse.push_back(d);
        return vse;
    }
    static std::vector<int> znaky() {
        std::vector<int> vse;
        for (int d = 0; d < 3; ++d)
            vse.push_back(kod_znaku(relief.lblVykolejka[d].text()));
        return vse;
    }
};

// The three lamps at rest, nobody asks.
struct Souhlas : testing::Test {
    VirtualniPlatforma svet;
    Souhlas() {
        for (int k = 0; k < 3; ++k) {
            Prvek& lampa = relief.lblSouhlas.zaloz(k);
            lampa.barva = barvy::seda;
            lampa.text = znak(uzel::kKonceTrati[static_cast<std::size_t>(k)].znak_dovnitr);
        }
        nastav_cas("12:00:00");
        simulace.pauza = false;
        gtn_otevri();
        zapsano = bajty_logu(svet).size();
    }
    using Udalosti = std::vector<std::pair<int, int>>;
    // Records of the log since the test began: code and element.
    Udalosti udalosti() const {
        Udalosti vse;
        for (const Udalost& u : udalosti_logu(svet, zapsano))
            vse.emplace_back(u.kod, u.prvek);
        return vse;
    }
    std::size_t zapsano = 0;
};

// Both crossings at rest.
struct PrejezdStanice : testing::Test {
    VirtualniPlatforma svet;
    PrejezdStanice() {
        relief.lblPrejezd.zaloz(0).barva = barvy::seda;
        relief.lblPrejezd.zaloz(1).barva = barvy::seda;
        nastav_cas("12:00:00");
        simulace.pauza = false;
    }
    static Text pruh(std::initializer_list<int> glyfy) {
        Text text;
        for (const int g : glyfy)
            text += znak(g);
        return text;
    }
};
