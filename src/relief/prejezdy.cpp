// relief/prejezdy.cpp - the table of line crossings and the flags that a passing train sets.
#include "relief/prejezdy.h"

#include "app/simulace.h"
#include "relief/relief.h"
#include "relief/topologie.h"
#include "zaklad/cisla.h"
#include "zaklad/soubory.h"

#include <utility>

namespace {

constexpr int kPriblizovaciUsek_m = 200; // the lamps flash from here before the road
constexpr int kOpousteciUsek_m = 100;    // until the tail is so far behind it
constexpr int kKonecPrvku_m = 250;       // nearer to the end of the element no clearing is shown

} // namespace

void nacti_prejezdy() {
    nacti_prejezdy(nacti_soubor(simulace.cesta_aplikace + "data\\tesk.pzz"));
}

void nacti_prejezdy(std::span<const std::uint8_t> bajty) {
    Ctenar soubor{bajty};
    prejezdy.clear();
    for (;;) {
        ZaznamPrejezdu zaznam;
        popis_zaznamu_prejezdu(soubor, zaznam);
        if (!soubor.ok)
            return;
        Prejezd prejezd;
        prejezd.kolej = zaznam.kolej;
        prejezd.poloha = zaznam.poloha;
        prejezd.nazev = std::move(zaznam.nazev);
        prejezdy.push_back(std::move(prejezd));
    }
}

void kontrola_prejezdu(int kolej, bool smer, int delka_vlaku) {
    for (Prejezd& prejezd : prejezdy) {
        if (prejezd.kolej != kolej || !relief.kolej.je(kolej))
            continue;
        const double celo = relief.kolej[kolej].stav.cislo(); // metres run on the element
        const int delka = delka_koleje(kolej);
        const int silnice = smer ? prejezd.poloha : delka - prejezd.poloha;
        const int za_silnici = silnice + kOpousteciUsek_m + delka_vlaku;
        prejezd.zona = celo > silnice - kPriblizovaciUsek_m && celo < za_silnici;
        prejezd.uvolnen = celo > za_silnici && celo + kKonecPrvku_m < delka;
    }
}
