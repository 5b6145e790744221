// app/rezim.cpp - the display mode.
#include "app/rezim.h"

#include "app/nastaveni.h"
#include "app/simulace.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

constexpr TextPohled kSekce = "Obrazovka";
constexpr TextPohled kSirka = "X", kVyska = "y", kFrekvence = "f", kBpp = "bpp";

} // namespace

void zapamatuj_rezim() {
    const RezimObrazovky rezim = platforma.rezim();
    platforma.nastaveni_pis(kSekce, kSirka, text_cisla(rezim.sirka));
    platforma.nastaveni_pis(kSekce, kVyska, text_cisla(rezim.vyska));
    platforma.nastaveni_pis(kSekce, kFrekvence, text_cisla(rezim.frekvence));
    platforma.nastaveni_pis(kSekce, kBpp, text_cisla(rezim.bpp));
}

RezimObrazovky ulozeny_rezim() {
    return {nastaveni_cislo(kSekce, kSirka, 0), nastaveni_cislo(kSekce, kVyska, 0),
            nastaveni_cislo(kSekce, kFrekvence, 0), nastaveni_cislo(kSekce, kBpp, 0)};
}

void zapomen_rezim() {
    for (const TextPohled klic : {kSirka, kVyska, kFrekvence, kBpp})
        platforma.nastaveni_smaz(kSekce, klic);
}

void nastav_rezim(int sirka, int vyska, int frekvence, int bpp) {
    const std::vector<RezimObrazovky> rezimy = platforma.rezimy();
    const bool nalezen = std::any_of(rezimy.begin(), rezimy.end(), [&](const RezimObrazovky& r) {
        return r.sirka == sirka && r.vyska == vyska;
    });
    const RezimObrazovky nyni = platforma.rezim();
    const bool prepnut =
        nalezen && platforma.nastav_rezim({sirka, vyska, frekvence != 0 ? frekvence : nyni.frekvence,
                                           bpp != 0 ? bpp : nyni.bpp});
    const bool nutny = sirka == kSirkaDesky && vyska == kVyskaDesky;
    if (!prepnut && (nalezen || nutny))
        platforma.okno(
            "KPS RVZ TESK"_cz,
            "Vaše grafická karta/monitor/ovladače zřejmě nepodporují rozlišení 1024*768 pixelů nutné "
            "pro korektní zobrazení simulace! Simulátor bude pokračovat, ale zřejmě nebude viditelné "
            "celé okno simulace!"_cz);
}

void nastav_rezim_simulace() {
    if (!simulace.noresize && !je_rezim_simulace(platforma.rezim()))
        nastav_rezim(simulace.dva_monitory ? 2 * kSirkaDesky : kSirkaDesky, kVyskaDesky, 0, 0);
}

void skryj_listu() {
    platforma.lista(false);
}

void ukaz_listu() {
    platforma.lista(true);
}
