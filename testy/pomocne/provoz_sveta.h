// testy/pomocne/provoz_sveta.h - a world for tests of the traffic: free tracks by number, rows, a clock.
#pragma once

#include "app/cas.h"
#include "cesty/cesta.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/vlak.h"
#include "pomocne/jizdni_rad.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <initializer_list>
#include <utility>

class SProvozem : public SPlatformou {
protected:
    SProvozem() {
        svet.zapis("data/tesk.top", "5380700");
        simulace.den = 1;
        simulace.cas_zacatku = 600;
        simulace.minuty_simulace = 30;
        simulace.zpozdeni_povoleno = false;
        hodiny("10:30:00");
    }
    ~SProvozem() override {
        relief = Relief{};
        gvd_vlaky = {};
    }

    static void hodiny(TextPohled cas) { nastav_cas(cas); }

    // Free tracks with a label each.
    static void koleje(std::initializer_list<int> cisla) {
        for (const int n : cisla) {
            relief.kolej.zaloz(n).barva = barvy::seda;
            relief.kolej[n].stav = TextPohled("0");
            relief.cislo_koleje.zaloz(n);
        }
    }
    static void souhlasova_lampa(int k) {
        relief.lblSouhlas.zaloz(k).barva = barvy::seda;
        relief.lblPredvidany_odjezd.zaloz(k);
    }
    static void obsad(int n) { relief.kolej[n].barva = barvy::cervena; }
    static TextPohled cislo_na(int n) { return orez(relief.cislo_koleje[n].text()); }
    static Barva barva(int n) { return relief.kolej[n].barva; }

    // A row that runs every day; times of the stops as arrival and departure, -1 none.
    static GvdVlak radek(std::int32_t cislo, std::initializer_list<ZastavkaGvd> zastavky) {
        GvdVlak r;
        r.cislo = cislo;
        r.druh = 7;
        r.rychlost = 90;
        r.delka = 100;
        r.loko_rada = 754;
        r.vozy = {"754", "Bp", "A"};
        r.vozy_vlaky = {0, 0, 0};
        r.dny = 0x7F;
        r.zastavky = zastavky;
        return r;
    }
    static void pridej(GvdVlak r) { pridej_radek_gvd(std::move(r)); }
    // The same, the row as `zmena` leaves it.
    template <class Zmena> static void pridej(GvdVlak r, Zmena zmena) {
        zmena(r);
        pridej(std::move(r));
    }

    static Vlak* najdi(std::int32_t cislo) {
        for (Vlak& v : vlaky)
            if (v.cislo == cislo)
                return &v;
        return nullptr;
    }
    static int pocet_vlaku() {
        int pocet = 0;
        for (const Vlak& v : vlaky)
            pocet += v.cislo >= 1;
        return pocet;
    }

    // The seed whose first draw meets the condition.
    template <class Podminka> static void zasej_aby(Podminka podminka) {
        for (std::uint64_t semeno = 1;; ++semeno) {
            zasej_nahodu(semeno);
            if (podminka(nahodne())) {
                zasej_nahodu(semeno);
                return;
            }
        }
    }
};
