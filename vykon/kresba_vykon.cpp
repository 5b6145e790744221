// vykon/kresba_vykon.cpp - drawing of the desk: everything anew, one change, nothing.
#ifdef TESK_S_KRESBOU
#include "aplikace_vykon.h"
#include "instalace_vykon.h"
#include "prvky/panel.h"
#include "relief/tvary_vyhybek.h"
#include "ui/pismo.h"
#include "ui/platno.h"
#include "zaklad/cisla.h"

#include <QListWidget>
#include <benchmark/benchmark.h>

namespace {

void zaloz_pismo() {
    zaloz_aplikaci();
    [[maybe_unused]] static const bool pismo = nacti_pismo(QStringLiteral(TESK_INSTALACE "data/kps.fon"));
}

// 3000 elements over the relief of one monitor: 1000 tracks in all colours, 1000 labels with a train number
// in every second one, 700 signals, 200 switches, 100 targets with a note.
Relief plny_relief() {
    constexpr Barva kBarvy[] = {barvy::seda, barvy::cervena, barvy::zelena, barvy::azurova, barvy::bila};
    constexpr int kPrvniRadek = 690, kRadku = 42, kSloupcu = 25;
    Relief r = novy_relief();
    const auto umisti = [&](Prvek& p, int n) {
        p.viditelny = true;
        p.vlevo = n % kSloupcu * 600;
        p.nahore = kPrvniRadek + n / kSloupcu % kRadku * kVyskaZnaku;
        p.sirka = 2 * kSirkaZnaku;
        p.vyska = kVyskaZnaku;
        p.barva = kBarvy[n % 5];
        p.vlastni_velikost = true;
    };
    for (int n = 0; n < 1000; ++n) {
        Prvek& kolej = r.kolej.zaloz(n);
        kolej.viditelny = true;
        kolej.barva = kBarvy[n % 5];
        kolej.x1 = n % kSloupcu * 600;
        kolej.x2 = kolej.x1() + 600;
        kolej.y1 = kPrvniRadek + n / kSloupcu * kVyskaZnaku + kOsaRadku;
        kolej.y2 = kolej.y1() + (n % 7 == 0 ? kVyskaZnaku : 0);
        Prvek& cislo = r.cislo_koleje.zaloz(n);
        umisti(cislo, n);
        nastav_text(cislo, n % 2 == 0 ? TextPohled("12345") : TextPohled("1"));
    }
    for (int n = 0; n < 700; ++n) {
        umisti(r.navestidlo.zaloz(n), n);
        nastav_text(r.navestidlo[n], znak(n % 2 == 0 ? 229 : 230));
    }
    for (int n = 0; n < 200; ++n) {
        umisti(r.imgVyhybka.zaloz(n), n);
        r.imgVyhybka[n].stav = text_cisla(n % 32 + 1 + 50 * (n % 5));
    }
    for (int n = 0; n < 100; ++n) {
        umisti(r.Image1.zaloz(n), n);
        r.Image1[n].obrazek = std::int16_t(101 + n % 3);
    }
    return r;
}

struct StulNaPlatne {
    Platno platno;
    explicit StulNaPlatne(QSize velikost) {
        zaloz_pismo();
        relief = plny_relief();
        platno.nastav_velikost(velikost, kSirkaStolu);
        platno.obnov();
    }
    StulNaPlatne(const StulNaPlatne&) = delete;
    StulNaPlatne& operator=(const StulNaPlatne&) = delete;
    ~StulNaPlatne() { relief = Relief{}; }
};

void cely_stul(benchmark::State& stav) {
    StulNaPlatne stul(QSize(static_cast<int>(stav.range(0)), static_cast<int>(stav.range(1))));
    for (auto _ : stav)
        stul.platno.prekresli();
}
BENCHMARK(cely_stul)
    ->Unit(benchmark::kMillisecond)
    ->Name("full repaint of 3000 elements")
    ->Args({1024, 768})
    ->Args({2048, 1536})
    ->Args({3840, 2160});

// The whole junction as it fills the commonest display: to stay below 8 ms.
void kolejiste_na_displeji(benchmark::State& stav) {
    zaloz_pismo();
    if (!je_v_instalaci(stav, "data\\tesk.rea"))
        return;
    cele_kolejiste();
    Platno platno;
    platno.nastav_velikost(QSize(1920, 1080), kSirkaStolu, true);
    platno.obnov();
    for (auto _ : stav)
        platno.prekresli();
    simulace = Simulace{};
    relief = Relief{};
}
BENCHMARK(kolejiste_na_displeji)
    ->Unit(benchmark::kMillisecond)
    ->Name("full repaint of the junction, 1920 by 1080");

// The bottom panel as full as it can be: 24 rows of the table with their marks, a train of 40 vehicles with
// captions of three lines, four pantographs, and a line about the train that wraps.
Relief plny_panel() {
    Relief r = plny_relief();
    for (int n = 0; n < 24; ++n) {
        Prvek& radek = r.lblTabulka_vlaku[n];
        radek.viditelny = true;
        radek.barva = barvy::bila;
        radek.vlevo = 630 + n / 8 * 4700;
        radek.nahore = 640 * 15 + n % 8 * 205;
        radek.text = "Os  17860  +12 142m, PLH,  80km/h        ";
        for (const int znacka : {n, n + 24}) {
            r.shpblikacka[znacka].viditelny = true;
            r.shpblikacka[znacka].vlevo = radek.vlevo - 500 + znacka / 24 * 200;
            r.shpblikacka[znacka].nahore = radek.nahore + 40;
        }
    }
    r.lblIinfo_o_vlaku[0].viditelny = true;
    r.lblIinfo_o_vlaku[0].barva = barvy::bila;
    r.lblIinfo_o_vlaku[0].text = Text(360, 'm');
    constexpr const char* kObrazky[] = {"modra-362_3_l.ico", "A.ico", "B.ico", "Eas.ico"};
    for (int n = 0; n < 40; ++n) {
        r.imgObrzaek_vlaku[n].viditelny = true;
        r.imgObrzaek_vlaku[n].stav = kObrazky[n % 4];
        r.imgObrzaek_vlaku[n].ramecek = n % 4 == 0;
        r.lblPopis_vozu[n].viditelny = true;
        r.lblPopis_vozu[n].barva = barvy::bila;
        r.lblPopis_vozu[n].text = "UNIPETROL 753 (17861)";
    }
    return r;
}

// Both monitors: there all the 40 vehicles are seen.
void plny_stul(benchmark::State& stav) {
    StulNaPlatne stul(QSize(2048, 768));
    simulace.cesta_aplikace = TESK_INSTALACE;
    relief = plny_panel();
    stul.platno.nastav_velikost(QSize(2048, 768), 2 * kSirkaStolu);
    stul.platno.obnov();
    for (auto _ : stav)
        stul.platno.prekresli();
}
BENCHMARK(plny_stul)
    ->Unit(benchmark::kMillisecond)
    ->Name("full repaint with 40 vehicles and a full train table, two monitors");

// The list as the window shows it: 200 messages, of which a dozen are seen.
void plny_seznam(benchmark::State& stav) {
    zaloz_pismo();
    QListWidget seznam;
    seznam.setUniformItemSizes(true);
    seznam.setFont(pismo_poli(kVyskaBunky));
    seznam.resize(1016, 126);
    for (int i = 0; i < 200; ++i)
        seznam.addItem(QStringLiteral("Vlak %1 bude zpožděn o 25 minut").arg(10000 + i));
    seznam.scrollToBottom();
    QImage obraz(1016, 126, QImage::Format_RGB32);
    for (auto _ : stav)
        seznam.render(&obraz);
}
BENCHMARK(plny_seznam)->Unit(benchmark::kMillisecond)->Name("repaint of a list of 200 messages");

void jedna_zmena(benchmark::State& stav) {
    StulNaPlatne stul(QSize(1024, 768));
    int k = 0;
    for (auto _ : stav) {
        relief.kolej[500].barva = ++k % 2 == 0 ? barvy::cervena : barvy::zelena;
        benchmark::DoNotOptimize(stul.platno.obnov());
    }
}
BENCHMARK(jedna_zmena)->Unit(benchmark::kMicrosecond)->Name("repaint after one track has changed");

void zadna_zmena(benchmark::State& stav) {
    StulNaPlatne stul(QSize(1024, 768));
    for (auto _ : stav)
        benchmark::DoNotOptimize(stul.platno.obnov());
}
BENCHMARK(zadna_zmena)->Unit(benchmark::kNanosecond)->Name("look at an idle desk");

} // namespace
#endif
