// testy/vypravci/svet_vypravciho.h - the whole junction with a small timetable, and the dispatcher at its
// desk.
#pragma once

#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "gvd/prekladac.h"
#include "jizda/metry.h"
#include "jizda/na_koleji.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "vypravci/vypravci.h"

class SVypravcim : public testing::Test {
protected:
    VirtualniPlatforma svet;
    JizdniRad rad;

    // A railcar set with a cab at both ends: it turns where it has to.
    GvdVlak& motorak(std::int32_t cislo, const std::vector<std::uint8_t>& stanice,
                     const std::vector<std::int16_t>& prijezdy, const std::vector<std::int16_t>& odjezdy) {
        GvdVlak r;
        r.druh = 7;
        r.cislo = cislo;
        r.rychlost = 90;
        r.delka = 71;
        r.loko_rada = 843;
        r.vozy = {"843", "054", "943"};
        r.vozy_vlaky = {0, 0, 0};
        r.dny = 0x7F;
        r.zastavky = zastavky_radku(stanice, prijezdy, odjezdy);
        rad.radky.push_back(0);
        return rad.vlaky.emplace_back(std::move(r));
    }

    // Monday at that time, the clock running.
    void zacni(int hodina, int minuta) {
        VolbyStartu volby;
        volby.hodina = static_cast<std::uint8_t>(hodina);
        volby.minuta = static_cast<std::uint8_t>(minuta);
        volby.den = 0;
        volby.zpozdeni = volby.pp = false;
        spust_cele_kolejiste(svet, zapis_jizdni_rad(rad), volby);
        ASSERT_FALSE(simulace.pauza);
    }

    // The timers for so many seconds; after each of them `po`.
    template <class Po> void sekund(int kolik, Po po) {
        for (int s = 0; s < kolik; ++s) {
            sekunda(svet);
            const auto nalez = kontrola_stavu();
            ASSERT_FALSE(nalez) << na_utf8(text_hodin()) << " " << na_utf8(nalez.value_or(""));
            po();
        }
    }
    void sekund(int kolik) {
        sekund(kolik, [] {});
    }

    // A record that stands on the track, the last of those that stand there already.
    static int postav(int kolej, bool smer, std::int32_t cislo, const std::vector<const char*>& vozy,
                      std::vector<Zastavka> zastavky, int delka) {
        const int v = novy_vlak();
        Vlak& t = vlak_c(v);
        t.cislo = cislo;
        t.druh = 7;
        t.max_rychlost = 80;
        t.rychlost_trati = 40;
        t.delka = static_cast<std::int16_t>(delka);
        t.smer = smer;
        t.zastavky = std::move(zastavky);
        t.stanice_index = 0;
        for (const char* rada : vozy)
            t.vozy.push_back({rada, {}, {}});
        t.prvky = {{static_cast<std::int16_t>(kolej), druh_prvku::kolej, 2}};
        t.prvek_konec = 0;
        if (!vlak_na_koleji(kolej))
            nastav_metry(kolej, delka_koleje(kolej));
        pridej_na_kolej(kolej, v, smer, -1);
        barvi_prvek(kolej, barvy::cervena);
        return v;
    }
    // A locomotive as a shunting movement, at that end of the track.
    static int lokomotiva(int kolej, bool vpravo, std::int32_t cislo) {
        const int v = postav(kolej, !vpravo, cislo, {"742"}, {}, 18);
        vlak_c(v).posun = vlak_c(v).muze_jet = true;
        vlak_c(v).loko_rada = 742;
        return v;
    }
    static void odstran(int kolej, int v) {
        uber_z_koleje(kolej, v);
        zrus_vlak(v);
    }
    static bool rekl(const char* cast) {
        const Text hledany = z_utf8(cast);
        return std::any_of(stav_vypravciho.vety.begin(), stav_vypravciho.vety.end(),
                           [&](const Veta& v) { return v.text.find(hledany) != Text::npos; });
    }

    static const Vlak* najdi(std::int32_t cislo) {
        const auto v =
            std::find_if(vlaky.begin(), vlaky.end(), [=](const Vlak& x) { return x.cislo == cislo; });
        return v == vlaky.end() ? nullptr : &*v;
    }
    static std::string ceka(std::int32_t cislo) {
        for (const Veta& v : stav_vypravciho.cekani)
            if (v.vlak == cislo)
                return na_utf8(v.text);
        return {};
    }
};
