// testy/cesty/staveni_nahodne_test.cpp - whatever the operator orders while the switches of a route run, the
// station comes to rest again: nothing runs for ever, and every route can be set afterwards.
#include "app/cas.h"
#include "app/kontrola.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/navest.h"
#include "cesty/nova_cesta.h"
#include "cesty/prehoz_rukou.h"
#include "cesty/tabulky.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "gvd/prekladac.h"
#include "obsluha/volba.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/semena.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/vyhybky.h"

#include <random>
#include <set>

namespace {

struct Poradi {
    const ZaznamCesty* zaznam;
    int druh;
};

class PriStaveni : public testing::TestWithParam<unsigned> {
protected:
    VirtualniPlatforma svet;
    std::mt19937 los;
    std::vector<ZaznamCesty> vlakove, posunove;
    std::vector<Poradi> cesty_stanice;
    std::vector<std::string> ruce; // what was done, and when
    bool nouz_byl = false, zam_byl = false;

    std::size_t z_kolika(std::size_t n) { return los() % n; }

    void zapis(const std::string& co, int n) {
        ruce.push_back(na_utf8(text_hodin()) + " " + co + " " + std::to_string(n));
    }
    std::string co_bylo() const {
        std::string text;
        for (const std::string& r : ruce)
            text += "\n  " + r;
        return text;
    }

    // The main station, whose switches hang together more than anywhere else, without a train.
    void zacni(unsigned semeno) {
        los.seed(semeno);
        VolbyStartu volby;
        volby.hodina = 8;
        volby.zpozdeni = volby.pp = false;
        spust_cele_kolejiste(svet, zapis_jizdni_rad({}), volby);
        vlakove = cti_cesty(data_kolejiste().zat);
        posunove = cti_cesty(data_kolejiste().zpc);
        pridej_cesty(vlakove, {druh_volby::vlak, druh_volby::pn});
        pridej_cesty(posunove, {druh_volby::posun});
        prepni_pv_vz(false);
    }
    void pridej_cesty(const std::vector<ZaznamCesty>& tabulka, std::initializer_list<int> druhy) {
        for (const ZaznamCesty& z : tabulka)
            if (TextPohled(jmeno_navestidla(z.zacatek)).substr(0, 3) == "THN")
                for (const int druh : druhy)
                    cesty_stanice.push_back({&z, druh});
    }

    // The timers for one second; the state holds together after it.
    void sekund(int kolik) {
        for (int s = 0; s < kolik; ++s) {
            sekunda(svet);
            const auto nalez = kontrola_stavu();
            ASSERT_FALSE(nalez) << na_utf8(*nalez) << co_bylo();
        }
    }

    static std::vector<int> vyhybky(const ZaznamCesty& z) {
        std::vector<int> v;
        for (std::size_t k = 1; k < z.prvky.size(); ++k)
            if (z.prvky[k].druh == druh_prvku::vyhybka) {
                v.push_back(z.prvky[k].prvek);
                projdi_partnery(z.prvky[k].prvek, [&](int b) { v.push_back(b); });
            }
        return v;
    }

    void objednej(const Poradi& p) {
        zapis(p.druh == druh_volby::vlak ? "VC" : p.druh == druh_volby::pn ? "PN" : "PC", p.zaznam->zacatek);
        ruce.back() += " " + std::to_string(p.zaznam->konec);
        najdi_cestu(p.zaznam->zacatek, p.zaznam->konec, p.druh, false);
        while (!cesty.empty() &&
               std::any_of(cesty.begin(), cesty.end(), [](const Cesta& c) { return c.varovani != 0; }))
            klavesa({KodKlavesy::enter});
        klavesa({KodKlavesy::esc});
    }
    // Another route over one of the switches.
    const Poradi* soused(const std::vector<int>& v) {
        std::vector<const Poradi*> mozne;
        for (const Poradi& p : cesty_stanice) {
            const auto jeji = vyhybky(*p.zaznam);
            if (std::any_of(v.begin(), v.end(),
                            [&](int n) { return std::find(jeji.begin(), jeji.end(), n) != jeji.end(); }))
                mozne.push_back(&p);
        }
        return mozne.empty() ? nullptr : mozne[z_kolika(mozne.size())];
    }
    int nektery_zacatek() {
        std::vector<int> z;
        for (const Cesta& c : cesty)
            if (c.zacatek >= 0)
                z.push_back(c.zacatek);
        return z.empty() ? kZadny : z[z_kolika(z.size())];
    }

    void povel(const std::vector<int>& v) {
        const int s = nektery_zacatek();
        const std::size_t co = z_kolika(12);
        if (co <= 3 && s >= 0) {
            zapis("RC", s);
            zrus_cestu(s);
        } else if (co == 4 && !v.empty()) {
            const int n = v[z_kolika(v.size())];
            zapis("NOUZ", n);
            nouz_byl = true;
            vyhybka_nouz(n);
        } else if (co == 5 && s >= 0) {
            zapis("STUJ", s);
            navestidlo_stuj(s);
        } else if (co == 6 && s >= 0) {
            zapis("DN", s);
            obnov_cestu(s);
        } else if (co == 7 && s >= 0) {
            zapis("RNZ", s);
            rnz(s);
        } else if (co == 8 && s >= 0) {
            zapis("ZAM", s);
            zam_byl = true;
            zam(s);
        } else if (co == 9 && !v.empty() && stav_vyhybek.prehoz_cas == kZadny) {
            const int n = v[z_kolika(v.size())];
            constexpr std::array kPovely = {PovelVyhybky::plus, PovelVyhybky::minus, PovelVyhybky::plus_b,
                                            PovelVyhybky::minus_b};
            zapis("throw", n);
            hod_vyhybku(n, kPovely[z_kolika(4)]);
        } else if (const Poradi* p = soused(v)) {
            objednej(*p);
        }
    }

    void zrus_vse() {
        for (int pokus = 0; pokus < 4 && cesty.front().zacatek >= 0; ++pokus) {
            std::set<int> zacatky;
            for (const Cesta& c : cesty)
                if (c.zacatek >= 0)
                    zacatky.insert(c.zacatek);
            for (const int s : zacatky) {
                if (je_zablokovano(s))
                    zam(s);
                rnz(s);
                zrus_cestu(s);
                zrus_cestu(s);
            }
            for (std::size_t i = cesty.size(); i-- > 0;)
                odeber_ze_zasobniku(static_cast<int>(i));
            sekund(40);
        }
    }

    void over_klid() {
        EXPECT_LT(cesty.front().zacatek, 0) << na_utf8(popis_cesty(0)) << co_bylo();
        for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n)
            if (relief.imgVyhybka.je(n)) {
                EXPECT_FALSE(vyhybka_v_pohybu(n)) << "switch " << n << " runs for ever" << co_bylo();
                EXPECT_LT(stav_vyhybky_cislo(n), 50) << "switch " << n << " is locked" << co_bylo();
            }
    }
};

} // namespace

TEST_P(PriStaveni, StationComesToRestWhateverIsOrdered) {
    zacni(GetParam());
    std::vector<int> stavy(static_cast<std::size_t>(relief.imgVyhybka.nejvyssi() + 1), 0);
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n)
        if (relief.imgVyhybka.je(n))
            stavy[static_cast<std::size_t>(n)] = stav_vyhybky_cislo(n);
    for (int pokus = 0; pokus < 40 && !HasFailure(); ++pokus) {
        ruce.clear();
        nouz_byl = zam_byl = false;
        const Poradi& prvni = cesty_stanice[z_kolika(cesty_stanice.size())];
        std::vector<int> v = vyhybky(*prvni.zaznam);
        objednej(prvni);
        sekund(static_cast<int>(z_kolika(5)));
        for (std::size_t i = 0, kolik = 2 + z_kolika(7); i < kolik && !HasFailure(); ++i) {
            povel(v);
            sekund(static_cast<int>(z_kolika(4)));
        }
        sekund(30);
        // Without NOUZ nothing keeps a commanded route from being locked.
        for (const Cesta& c : cesty) {
            if (!nouz_byl) {
                EXPECT_TRUE(c.zacatek < 0 || !c.prehozena || c.Provedena)
                    << na_utf8(popis_cesty(static_cast<int>(&c - cesty.data()))) << co_bylo();
            }
        }
        zrus_vse();
        over_klid();
        // what NOUZ has given the shape of another switch lies as before
        for (int n = 0; n <= relief.imgVyhybka.nejvyssi() && nouz_byl; ++n)
            if (relief.imgVyhybka.je(n) &&
                vyhybka_obrazek(stav_vyhybky_cislo(n)) != vyhybka_obrazek(stavy[static_cast<std::size_t>(n)]))
                vyhybka_stav(n, stavy[static_cast<std::size_t>(n)], false, false);
    }
}

INSTANTIATE_TEST_SUITE_P(Semena, PriStaveni, semena(1, 4));
