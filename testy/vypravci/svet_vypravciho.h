// testy/vypravci/svet_vypravciho.h - the whole junction with a small timetable, and the dispatcher at its
// desk.
#pragma once

#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "gvd/prekladac.h"
#include "jizda/vlak.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
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
