// testy/jizda/svet_vlaku.h - the little junction with trains: standing routes, steps of the movement.
#pragma once

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/drzeni.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "jizda/krok_jizdy.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/vyhybky.h"

class SVlaky : public SPlatformou {
protected:
    SVlaky() {
        zapis_male_kolejiste(simulace.cesta_aplikace);
        postav_male_kolejiste();
        relief.imgVyhybka[7].stav = "2"_cz;
        nastav_cas("8:00:00");
        relief.lblcas[0].viditelny = true;
        simulace.cas_zacatku = 480;
        spust_hodiny();
    }

    // A track that the little junction does not have: its length is 60 m.
    static void pridej_kolej(int n, bool se_stitkem = true) {
        relief.kolej.zaloz(n).barva = barvy::seda;
        relief.kolej[n].stav = TextPohled("0");
        if (se_stitkem)
            relief.cislo_koleje.zaloz(n).popis = "K" + text_cisla(n);
    }

    // A train that stands wholly on a track, its head `celo` metres in.
    static int vlak_na(int kolej, bool smer, std::int32_t cislo,
                       const std::vector<Text>& vozy = {"754", "B"}) {
        const int i = novy_vlak();
        Vlak& v = vlaky[static_cast<std::size_t>(i)];
        v.cislo = cislo;
        v.druh = 7;
        v.delka = 40;
        v.max_rychlost = 100;
        v.rychlost_trati = 60;
        v.smer = smer;
        v.muze_jet = true;
        v.vozy = vozy_vlaku(vozy);
        v.prvky = prvky_cesty({static_cast<std::int16_t>(kolej)}, {druh_prvku::kolej}, {0});
        barvi_prvek(kolej, barvy::cervena);
        if (je_cislo_koleje(kolej) && kolej < 600)
            pridej_na_kolej(kolej, i, smer, -1);
        return i;
    }
    static Vlak& vlak(int i) { return vlaky[static_cast<std::size_t>(i)]; }

    static void zastavky(int i, const std::vector<std::uint8_t>& stanice,
                         const std::vector<std::int16_t>& prijezd, const std::vector<std::int16_t>& odjezd) {
        vlak(i).zastavky = zastavky_vlaku(stanice, prijezd, odjezd);
        vlak(i).stanice_index = -1;
    }

    // A standing route with its switches locked and its signal at proceed.
    static int cesta(const RadekCesty& radek, bool vlakova = true) {
        Cesta c;
        c.zacatek = radek.zacatek;
        c.konec = radek.konec;
        c.prvky = prvky_cesty(radek.prvky, radek.druhy, radek.polohy);
        c.rychlost = radek.rychlost;
        c.VC = vlakova;
        c.prehozena = c.Postavena = c.Provedena = true;
        c.prejezd = kBezPrejezdu;
        c.ZT = 1;
        if (navestidla(c.zacatek).je(c.zacatek))
            navestidla(c.zacatek)[c.zacatek].barva = vlakova ? barvy::zelena : barvy::bila;
        for (std::size_t k = 0; k < c.prvky.size(); ++k)
            if (c.prvky[k].druh == druh_prvku::vyhybka) {
                c.vyhybka = c.prvky[k].prvek;
                vyhybka_stav(c.prvky[k].prvek, c.prvky[k].poloha + zaver_vyhybek(c), false, false);
            }
        if (cesty.front().zacatek < 0)
            cesty.clear();
        cesty.push_back(c);
        return static_cast<int>(cesty.size()) - 1;
    }
    static RadekCesty radek(std::size_t i) { return vlakove_cesty_maleho_kolejiste()[i]; }

    void krok(int ms = 1000) {
        svet.posun_ms(ms);
        krok_jizdy();
    }
    // Steps until the condition holds; false when it never does.
    template <class Podminka> bool jed_dokud(Podminka podminka, int kroku = 400) {
        for (int i = 0; i < kroku; ++i) {
            if (podminka())
                return true;
            krok();
        }
        return podminka();
    }
    static Text stitek(int n) { return Text(orez(relief.cislo_koleje[n].text())); }
    static void minuta(int kolik = 1) {
        for (int i = 0; i < kolik; ++i) {
            ++simulace.minuty_simulace;
            aktualizuj_cekani();
        }
    }
};
