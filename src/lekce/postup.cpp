// lekce/postup.cpp - how far the operator has come in each lesson.
#include "lekce/postup.h"

#include "app/simulace.h"
#include "lekce/lekce.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

namespace lekce {

namespace {

constexpr TextPohled kSekceLekci = "Lekce", kHotova = " hotova";

// The name without the ending, as the settings and the save have it.
Text kratke_jmeno(TextPohled soubor) {
    constexpr TextPohled kPripona = ".lekce";
    return Text(soubor.ends_with(kPripona) ? soubor.substr(0, soubor.size() - kPripona.size()) : soubor);
}

Text slozka_postupu() {
    return simulace.cesta_aplikace + "save\\lekce\\";
}

} // namespace

Text zaznam_postupu(TextPohled soubor) {
    return slozka_postupu() + kratke_jmeno(soubor) + ".sim";
}

// What somebody has written into the settings by hand is no reason to end: it counts as nothing.
Postup postup(TextPohled soubor) {
    Postup p;
    const Text klic = kratke_jmeno(soubor);
    p.hotova = platforma.nastaveni_cti(kSekceLekci, klic + Text(kHotova)) == "1";
    const auto text = platforma.nastaveni_cti(kSekceLekci, klic);
    const auto cislo = text ? ciselny_text(*text) : std::nullopt;
    if (cislo && *cislo >= 0 && *cislo < static_cast<double>(kKrokuLekce) &&
        soubor_existuje(zaznam_postupu(soubor)))
        p.krok = static_cast<std::size_t>(*cislo);
    return p;
}

bool zapis_postup(TextPohled soubor, std::size_t krok) {
    try {
        zaloz_slozku(simulace.cesta_aplikace + "save");
        zaloz_slozku(slozka_postupu());
        zapis_soubor(zaznam_postupu(soubor), bajty_zaznamu(zaznam_simulace()));
    } catch (const BehovaChyba&) { // a full disk
        return false;
    }
    platforma.nastaveni_pis(kSekceLekci, kratke_jmeno(soubor), text_cisla(static_cast<std::int64_t>(krok)));
    return true;
}

void zapis_hotovou(TextPohled soubor) {
    platforma.nastaveni_pis(kSekceLekci, kratke_jmeno(soubor) + Text(kHotova), "1");
    zapomen_postup(soubor);
}

void zapomen_postup(TextPohled soubor) {
    platforma.nastaveni_smaz(kSekceLekci, kratke_jmeno(soubor));
    smaz_soubor(zaznam_postupu(soubor));
}

} // namespace lekce
