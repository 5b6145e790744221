// vykon/kresba_vykon.cpp - drawing of the desk: everything anew, one change, nothing.
#ifdef TESK_S_KRESBOU
#include "prvky/panel.h"
#include "relief/relief.h"
#include "relief/tvary_vyhybek.h"
#include "ui/pismo.h"
#include "ui/platno.h"
#include "zaklad/cisla.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

namespace {

// Fonts need an application object, though no window is ever opened.
void zaloz_aplikaci() {
    static int pocet = 1;
    static char jmeno[] = "tesk-vykon";
    static char* slova[] = {jmeno, nullptr};
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        new QGuiApplication(pocet, slova); // lives as long as the process
        nacti_pismo(QStringLiteral(TESK_INSTALACE "data/kps.fon"));
    }
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

struct Stul {
    Platno platno;
    explicit Stul(QSize velikost) {
        zaloz_aplikaci();
        relief = plny_relief();
        platno.nastav_velikost(velikost, kSirkaStolu);
        platno.obnov();
    }
    Stul(const Stul&) = delete;
    Stul& operator=(const Stul&) = delete;
    ~Stul() { relief = Relief{}; }
};

void cely_stul(benchmark::State& stav) {
    Stul stul(QSize(static_cast<int>(stav.range(0)), static_cast<int>(stav.range(1))));
    for (auto _ : stav)
        stul.platno.prekresli();
}
BENCHMARK(cely_stul)
    ->Unit(benchmark::kMillisecond)
    ->Name("full repaint of 3000 elements")
    ->Args({1024, 768})
    ->Args({2048, 1536})
    ->Args({3840, 2160});

void jedna_zmena(benchmark::State& stav) {
    Stul stul(QSize(1024, 768));
    int k = 0;
    for (auto _ : stav) {
        relief.kolej[500].barva = ++k % 2 == 0 ? barvy::cervena : barvy::zelena;
        benchmark::DoNotOptimize(stul.platno.obnov());
    }
}
BENCHMARK(jedna_zmena)->Unit(benchmark::kMicrosecond)->Name("repaint after one track has changed");

void zadna_zmena(benchmark::State& stav) {
    Stul stul(QSize(1024, 768));
    for (auto _ : stav)
        benchmark::DoNotOptimize(stul.platno.obnov());
}
BENCHMARK(zadna_zmena)->Unit(benchmark::kNanosecond)->Name("look at an idle desk");

} // namespace
#endif
