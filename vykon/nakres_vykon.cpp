// vykon/nakres_vykon.cpp - the time-distance diagram with a whole day of the full week: its shapes, and
// painting them.
#ifdef TESK_S_KRESBOU
#include "aplikace_vykon.h"
#include "app/cas.h"
#include "gvd/gvd.h"
#include "instalace_vykon.h"
#include "nakres/obraz.h"
#include "ui/kresba_nakresu.h"

#include <QImage>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

// Every train of a Monday on the longest line, as it shall run and, some minutes later, as it ran.
struct CelyDen {
    Koridory k;
    OsaKoridoru osa;
    std::vector<CaraVlaku> cary;
    PohledNakresu pohled;

    explicit CelyDen(benchmark::State& stav) {
        zaloz_aplikaci();
        nova_simulace();
        simulace.cesta_aplikace = TESK_INSTALACE;
        simulace.soubor_gvd = simulace.cesta_aplikace + "gvd\\GVD_plny.dat";
        if (!je_v_instalaci(stav, "gvd\\GVD_plny.dat") || !je_v_instalaci(stav, "data\\tesk.kor"))
            return;
        nacti_gvd();
        k = koridory();
        osa = osa_koridoru(k, k.trate.at(1));
        cary = planovane_cary(k, osa, 0, kDen_s - 1);
        const std::vector<CaraVlaku> plan = cary;
        for (CaraVlaku c : plan) {
            c.plan = false;
            for (BodCary& b : c.body)
                b.s += 180;
            cary.push_back(c);
        }
        pohled.sirka = static_cast<double>(stav.range(0));
        pohled.vyska = static_cast<double>(stav.range(1));
        pohled.po = kDen_s;
        pohled.ted = kDen_s / 2;
    }
    CelyDen(const CelyDen&) = delete;
    CelyDen& operator=(const CelyDen&) = delete;
    ~CelyDen() { nova_simulace(); }
};

// The movements of 22 days, the longest game that the clock can count: each train of the full week as it
// calls.
std::vector<PohybVlaku> pohyby_hry(const Koridory& k) {
    std::vector<PohybVlaku> pohyby;
    for (std::int32_t den = 0; den < 22; ++den)
        for (const GvdVlak& r : gvd_vlaky)
            for (const ZastavkaGvd& z : r.zastavky)
                if (const int misto = misto_stanice(k, z.stanice);
                    misto != kZadny && !k.mista[static_cast<std::size_t>(misto)].koleje.empty()) {
                    const auto kolej =
                        static_cast<std::int16_t>(k.mista[static_cast<std::size_t>(misto)].koleje.front());
                    const std::int32_t cas = den * kDen_s + std::max(z.prijezd, z.odjezd) * 60;
                    pohyby.push_back({cas, kolej, r.cislo, true});
                    pohyby.push_back({cas + 30, kolej, r.cislo, false});
                }
    std::stable_sort(pohyby.begin(), pohyby.end(),
                     [](const PohybVlaku& a, const PohybVlaku& b) { return a.cas < b.cas; });
    return pohyby;
}

// What the open diagram does five times a second when the game has run that long; MB: movements and runs.
void cary_dlouhe_hry(benchmark::State& stav) {
    const CelyDen den(stav);
    const std::vector<PohybVlaku> pohyby = pohyby_hry(den.k);
    SkladJizd sklad(den.k);
    for (const PohybVlaku& p : pohyby)
        sklad.pridej(p);
    std::size_t bajtu = pohyby.size() * sizeof(PohybVlaku);
    for (const JizdaNakresu& j : sklad.jizdy())
        bajtu += sizeof j + j.body.capacity() * sizeof(BodJizdy);
    const std::int32_t ted = 21 * kDen_s + kDen_s / 2;
    for (auto _ : stav)
        benchmark::DoNotOptimize(
            jete_cary(den.k, den.osa, sklad.jizdy(), ted, ted - 8 * 3600, ted + 4 * 3600));
    stav.counters["MB"] = static_cast<double>(bajtu) / 1e6;
    stav.counters["runs"] = static_cast<double>(sklad.jizdy().size());
}
BENCHMARK(cary_dlouhe_hry)
    ->Unit(benchmark::kMillisecond)
    ->Name("lines of half a day after a game of 22 days")
    ->Args({1920, 1080});

void tvary_dne(benchmark::State& stav) {
    const CelyDen den(stav);
    for (auto _ : stav)
        benchmark::DoNotOptimize(nakresli_nakres(den.pohled, den.k, den.osa, den.cary));
    stav.SetItemsProcessed(stav.iterations() * static_cast<std::int64_t>(den.cary.size()));
}
BENCHMARK(tvary_dne)
    ->Unit(benchmark::kMillisecond)
    ->Name("shapes of a diagram of a whole day")
    ->Args({1024, 560})
    ->Args({1920, 1080});

void obraz_dne(benchmark::State& stav) {
    const CelyDen den(stav);
    const ObrazNakresu obraz = nakresli_nakres(den.pohled, den.k, den.osa, den.cary);
    QImage plocha(static_cast<int>(stav.range(0)), static_cast<int>(stav.range(1)), QImage::Format_RGB32);
    for (auto _ : stav) {
        QPainter p(&plocha);
        nakresli_obraz(p, obraz, false);
    }
}
BENCHMARK(obraz_dne)
    ->Unit(benchmark::kMillisecond)
    ->Name("painting a diagram of a whole day")
    ->Args({1024, 560})
    ->Args({1920, 1080});

// The window's repaint while the service runs: the shapes anew, and what has changed of them.
void zivy_den(benchmark::State& stav) {
    const CelyDen den(stav);
    PohledNakresu pohled = den.pohled;
    constexpr int kKroku = 60, kKrok_s = 20;
    std::vector<std::vector<CaraVlaku>> okamziky;
    for (int i = 0; i < kKroku; ++i) {
        const double ted = pohled.ted + i * kKrok_s;
        std::vector<CaraVlaku> cary;
        for (CaraVlaku c : den.cary) {
            if (!c.plan) { // up to the present, and then on the desk
                const std::size_t bodu = c.body.size();
                std::erase_if(c.body, [&](const BodCary& b) { return b.s > ted; });
                if (c.body.empty())
                    continue;
                if (c.body.size() < bodu) {
                    c.na_stole = true;
                    c.body.push_back({ted, c.body.back().m});
                }
            }
            cary.push_back(std::move(c));
        }
        okamziky.push_back(std::move(cary));
    }
    PlatnoObrazu platno;
    platno.obnov(nakresli_nakres(pohled, den.k, den.osa, okamziky[0]), 1);
    std::size_t i = 0;
    for (auto _ : stav) {
        i = (i + 1) % okamziky.size();
        pohled.ted = den.pohled.ted + static_cast<double>(i) * kKrok_s;
        benchmark::DoNotOptimize(platno.obnov(nakresli_nakres(pohled, den.k, den.osa, okamziky[i]), 1));
    }
}
BENCHMARK(zivy_den)
    ->Unit(benchmark::kMillisecond)
    ->Name("repaint of a diagram of a whole day while trains run")
    ->Args({1024, 560})
    ->Args({1920, 1080})
    ->Args({3840, 2160});

} // namespace
#endif
