// testy/nastroje/trasy_provoz_test.cpp - the derived routes set by the route machine itself, on the whole
// junction: each by itself, and pairs of them.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "cesty/cesta.h"
#include "cesty/uvolneni.h"
#include "kolejiste/trasy.h"
#include "obsluha/volba.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/semena.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "uzel/trate.h"
#include "uzel/vyhybky.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <random>
#include <set>

namespace {

bool je_vlak(const kolejiste::Trasa& t) {
    return t.druh == kolejiste::DruhTrasy::vlak;
}

std::string jmeno(const kolejiste::Trasa& t) {
    return std::string(je_vlak(t) ? "cesta " : "posun ") + std::to_string(t.zaznam.zacatek) + " " +
           std::to_string(t.zaznam.konec);
}

class ProvozTras : public testing::Test {
protected:
    VirtualniPlatforma svet;
    Relief klid; // the rest state

    void SetUp() override {
        spust_cele_kolejiste(svet, Bajty{0, 0, 0, 0, 0, 0}, {});
        ASSERT_FALSE(simulace.pauza);
        klid = relief;
    }
    void do_klidu() {
        relief = klid;
        nastav_cas("12:00:00"); // hundreds of routes take days, and no waiting may reach over midnight
        cesty.assign(1, Cesta{});
        std::fill(stav_vyhybek.vyhybka_pohyb.begin(), stav_vyhybek.vyhybka_pohyb.end(), false);
    }
    static void cekej(int s) {
        for (int i = 0; i < s; ++i)
            preskoc(1);
    }
    // So many seconds at once, with one tick behind them.
    static void preskoc(int s) {
        nastav_cas(cas_hodin() + s);
        krok_volby();
    }
    static bool zarad(const kolejiste::Trasa& t) {
        return najdi_cestu(t.zaznam.zacatek, t.zaznam.konec,
                           je_vlak(t) ? druh_volby::vlak : druh_volby::posun, false);
    }
    // The switches of the route lie as it needs them, and are locked for it.
    static std::string vyhybky(const kolejiste::Trasa& t, bool pn = false) {
        const ZaznamCesty& z = t.zaznam;
        const int zaver = pn ? 100 : je_vlak(t) ? 50 : 200;
        for (std::size_t k = 1; k < z.prvky.size(); ++k)
            if (z.prvky[k].druh == 2 && stav_vyhybky_cislo(z.prvky[k].prvek) != z.prvky[k].poloha + zaver)
                return "switch " + std::to_string(z.prvky[k].prvek) + " is in state " +
                       std::to_string(stav_vyhybky_cislo(z.prvky[k].prvek));
        return {};
    }
    static bool stoji(int zacatek) {
        return std::any_of(cesty.begin(), cesty.end(),
                           [&](const Cesta& c) { return c.zacatek == zacatek && c.Postavena; });
    }
};

// What an operator sees at rest: names on labels, colours of tracks, switches, arrows and lamps. A blank
// label is a blank label, shown or not.
std::vector<std::string> obraz_klidu() {
    std::vector<std::string> obraz;
    const auto pridej = [&](const TabulkaPrvku& druh, auto co) {
        for (int n = 0; n <= druh.nejvyssi(); ++n)
            if (druh.je(n))
                obraz.push_back(std::to_string(n) + " " + co(druh[n]));
    };
    const auto barva = [](const Prvek& p) { return std::to_string(p.barva()); };
    pridej(relief.cislo_koleje,
           [](const Prvek& p) { return std::string(orez(p.text())) + " " + std::to_string(p.pozadi()); });
    pridej(relief.kolej, barva);
    pridej(relief.navestidlo, barva);
    pridej(relief.lblSouhlas, barva);
    pridej(relief.lblSouhlas2, barva);
    pridej(relief.lblVykolejka, barva);
    pridej(relief.imgVyhybka, [](const Prvek& p) { return std::to_string(cele_z_textu(p.stav()) / 50); });
    return obraz;
}

// Elements that only one of two routes can have.
std::set<std::pair<int, int>> prvky(const ZaznamCesty& z) {
    std::set<std::pair<int, int>> p;
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        int n = z.prvky[k].prvek;
        for (const uzel::Krizeni& x : uzel::kKrizeni)
            if (z.prvky[k].druh == 1 && n == x.b)
                n = x.a;
        if (z.prvky[k].druh != 4)
            p.insert({z.prvky[k].druh, n});
    }
    return p;
}

} // namespace

TEST_F(ProvozTras, EveryRouteCanBeSet) {
    for (const kolejiste::Trasa& t : data_kolejiste().trasy) {
        do_klidu();
        ASSERT_TRUE(zarad(t)) << jmeno(t);
        cekej(10);
        ASSERT_EQ(cesty.size(), 1u);
        EXPECT_TRUE(cesty[0].Postavena) << jmeno(t);
        EXPECT_EQ(vyhybky(t), "") << jmeno(t);
        EXPECT_EQ(navestidla(t.zaznam.zacatek)[t.zaznam.zacatek].barva,
                  je_vlak(t) ? barvy::zelena : barvy::bila)
            << jmeno(t);
        const auto potiz = kontrola_stavu();
        EXPECT_FALSE(potiz) << jmeno(t) << ": " << potiz.value_or(Text());
    }
}

TEST_F(ProvozTras, EveryTrainRouteCanBeRunOnTheCallingOnSignal) {
    for (const kolejiste::Trasa& t : data_kolejiste().trasy) {
        if (!je_vlak(t))
            continue;
        do_klidu();
        ASSERT_TRUE(najdi_cestu(t.zaznam.zacatek, t.zaznam.konec, druh_volby::pn, false)) << jmeno(t);
        cekej(10);
        EXPECT_TRUE(cesty[0].Postavena) << jmeno(t);
        EXPECT_EQ(vyhybky(t, true), "") << jmeno(t);
    }
}

// With a train before the signal, whose number runs ahead and has to come back.
TEST_F(ProvozTras, TrainRouteThatIsTakenBackLeavesNothingBehind) {
    unsigned kolikata = 0;
    for (const kolejiste::Trasa& t : data_kolejiste().trasy) {
        if (!je_vlak(t) || kolikata++ % TESK_DIL_ZKOUSEK != 0)
            continue;
        for (const bool pn : {false, true}) {
            do_klidu();
            stanicni_prejezdy = {};
            const int kolej = t.zaznam.prvky.front().prvek;
            const int s = t.zaznam.zacatek;
            const int stitek = s == uzel::kNavestidloNaKonciTrati ? uzel::kStitekPredNim
                               : kolej < 600                      ? kolej
                                                                  : 600 + kolej % 50;
            relief.kolej[kolej].barva = barvy::cervena;
            relief.cislo_koleje[stitek].text = TextPohled("77601");
            for (const uzel::ObrazStitku& obraz : uzel::kObrazyStitku)
                if (obraz.vzor == stitek)
                    relief.cislo_koleje[obraz.kopie].text = TextPohled("77601");
            const auto pred = obraz_klidu();
            ASSERT_TRUE(najdi_cestu(s, t.zaznam.konec, pn ? druh_volby::pn : druh_volby::vlak, false));
            for (int i = 0; i < 60 && !cesty[0].Postavena; ++i) // a crossing takes its time
                cekej(1);
            ASSERT_TRUE(cesty[0].Postavena) << jmeno(t);
            EXPECT_NE(obraz_klidu(), pred) << jmeno(t);
            if (pn) {
                preskoc(31);
                rnz(s);
            } else {
                zrus_cestu(s);
                preskoc(181);
            }
            EXPECT_EQ(cesty[0].zacatek, -3) << jmeno(t);
            EXPECT_EQ(obraz_klidu(), pred) << jmeno(t) << (pn ? " PN" : "");
        }
    }
}

// Of two thousand pairs: those without a common element stand together, and whenever two stand, each
// has its switches.
TEST_F(ProvozTras, TwoRoutesStandTogetherExactlyWhenTheyShareNothing) {
    const std::vector<kolejiste::Trasa>& trasy = data_kolejiste().trasy;
    std::mt19937 zdroj(7);
    int spolu = 0, ne = 0;
    for (int i = 0; i < 2000; ++i) {
        // near ones meet more often than far ones
        const std::size_t prvni = zdroj() % trasy.size();
        const std::size_t druha = i % 2 ? zdroj() % trasy.size() : (prvni + 1 + zdroj() % 60) % trasy.size();
        const kolejiste::Trasa &a = trasy[prvni], &b = trasy[druha];
        if (a.zaznam.zacatek == b.zaznam.zacatek)
            continue;
        do_klidu();
        ASSERT_TRUE(zarad(a));
        cekej(10);
        ASSERT_TRUE(zarad(b));
        cekej(10);
        ASSERT_TRUE(stoji(a.zaznam.zacatek)) << jmeno(a);
        const auto pa = prvky(a.zaznam), pb = prvky(b.zaznam);
        const bool spolecne =
            std::any_of(pa.begin(), pa.end(), [&](const auto& p) { return pb.contains(p); });
        EXPECT_EQ(vyhybky(a), "") << jmeno(a) << ", " << jmeno(b);
        if (stoji(b.zaznam.zacatek)) {
            ++spolu;
            EXPECT_EQ(vyhybky(b), "") << jmeno(a) << ", " << jmeno(b);
        } else {
            ++ne;
        }
        // two trains that run into one line from its ends share no section yet, but its direction
        if (a.zaznam.konec != b.zaznam.konec) {
            EXPECT_EQ(stoji(b.zaznam.zacatek), !spolecne) << jmeno(a) << ", " << jmeno(b);
        }
    }
    EXPECT_GT(spolu, 100);
    EXPECT_GT(ne, 100);
}
