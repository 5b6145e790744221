// testy/app/klid_test.cpp - a tick in which nothing happens takes no memory.
#include "app/casovace.h"
#include "app/sledovani_provozu.h"
#include "app/vystrahy.h"
#include "gvd/gvd.h"
#include "gvd/provoz.h"
#include "gvd/stav_provozu.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/zastavky.h"

#include <cstdlib>
#include <new>
#include <vector>

namespace {

std::size_t alokaci = 0; // of the whole test program

} // namespace

void* operator new(std::size_t bajtu) {
    ++alokaci;
    if (void* pamet = std::malloc(bajtu == 0 ? 1 : bajtu))
        return pamet;
    throw std::bad_alloc();
}
void operator delete(void* pamet) noexcept {
    std::free(pamet);
}
void operator delete(void* pamet, std::size_t) noexcept {
    std::free(pamet);
}

namespace {

class Klid : public SVlaky {
protected:
    // A train that waits, one that has nowhere to go, a route that stands, and one that is occupied further
    // on.
    Klid() {
        vlak(vlak_na(62, true, 11)).muze_jet = false;
        pridej_kolej(90);
        vlak_na(90, true, 12);
        cesta(radek(0));
        sleduj_provoz(); // the first looks make room
        sleduj_vystrahy();
    }

    // Takings of memory in `kolikrat` runs of the step, behind one that may warm up.
    template <class Co> std::size_t alokaci_kroku(Co co, int kolikrat) {
        svet.posun_ms(100);
        co();
        const std::size_t pred = alokaci;
        for (int i = 0; i < kolikrat; ++i) {
            svet.posun_ms(100);
            co();
        }
        return alokaci - pred;
    }
};

TEST_F(Klid, CounterSeesWhatIsTaken) {
    EXPECT_GT(alokaci_kroku([] { const std::vector<int> neco(5); }, 3), 2u);
}

TEST_F(Klid, StepsOfTheTimersTakeNothing) {
    for (const Casovac& c : casovace)
        EXPECT_EQ(alokaci_kroku(c.telo, 40), 0u) << c.jmeno;
    EXPECT_EQ(relief.lblcas[0].text().size(), 7u);
}

TEST_F(Klid, TrafficStepWithoutATrainThatIsDueTakesNothing) {
    std::vector<GvdVlak> radky;
    for (int i = 0; i < 1000; ++i) {
        GvdVlak r;
        r.cislo = 1000 + i;
        r.zastavky = zastavky_radku({1, 9}, {-1, static_cast<std::int16_t>(i % 300)},
                                    {static_cast<std::int16_t>(i % 300), -1});
        r.vozy = {"754"};
        r.vozy_vlaky = {0};
        r.dny = 0x7F;
        radky.push_back(r);
    }
    gvd_vlaky = TabulkaGvd(std::move(radky));
    stav_provozu.zaloha_731_jede = true;
    EXPECT_EQ(alokaci_kroku(krok_provozu, 5), 0u);
    gvd_vlaky = {};
}

// Minutes and their record of the state among them. The first ones make room and bring the standby
// locomotive.
TEST(KlidCelehoKolejiste, TimersTakeNothingWhileNobodyComes) {
    VirtualniPlatforma svet;
    spust_cele_kolejiste(svet, Bajty(6, 0), {});
    ASSERT_FALSE(simulace.pauza);
    std::vector<std::size_t> vzato(casovace.size());
    const auto bez = [&](int sekund) {
        std::fill(vzato.begin(), vzato.end(), 0u);
        for (int ms = 50; ms <= sekund * 1000; ms += 50) {
            svet.posun_ms(50);
            for (std::size_t k = 0; k < casovace.size(); ++k) {
                if (ms % casovace[k].perioda_ms != 0)
                    continue;
                const std::size_t pred = alokaci;
                casovace[k].telo();
                vzato[k] += alokaci - pred;
            }
        }
    };
    bez(300);
    const int minut = simulace.minuty_simulace;
    bez(600);
    EXPECT_GE(simulace.minuty_simulace, minut + 9);
    for (std::size_t k = 0; k < casovace.size(); ++k)
        EXPECT_EQ(vzato[k], 0u) << casovace[k].jmeno;
}

} // namespace
