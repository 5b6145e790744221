// cesty/ulozena_makra.cpp - the stored macros.
#include "cesty/ulozena_makra.h"

#include "app/simulace.h"
#include "cesty/nova_cesta.h"
#include "prvky/jmena.h"
#include "zaklad/soubory.h"

#include <utility>

namespace {

Text soubor_maker() {
    return simulace.cesta_aplikace + "data\\tesk.mak";
}

std::optional<Bajty> podlozena;

void zapis_makra(const Bajty& obsah) {
    if (podlozena)
        podlozena = obsah;
    else
        zapis_soubor(soubor_maker(), obsah);
}

} // namespace

std::vector<ZaznamMakra> ulozena_makra() {
    return cti_makra(podlozena ? *podlozena : nacti_soubor(soubor_maker()));
}

void pridej_ulozene_makro(const ZaznamMakra& makro) {
    Zapisovac soubor;
    soubor.bajty = obsah_maker();
    popis_zaznamu_makra(soubor, makro);
    zapis_makra(soubor.bajty);
}

void smaz_makro(TextPohled pismeno) {
    Zapisovac soubor;
    for (const ZaznamMakra& makro : ulozena_makra())
        if (makro.pismeno != pismeno)
            popis_zaznamu_makra(soubor, makro);
    zapis_makra(soubor.bajty);
}

SeznamMaker nacti_makra() {
    SeznamMaker seznam;
    for (const ZaznamMakra& makro : ulozena_makra()) {
        Text radek = makro.pismeno;
        for (const KrokMakra& krok : makro.kroky) {
            radek += krok.druh == druh_volby::posun ? " PC " : " VC ";
            radek += jmeno_navestidla(krok.zacatek) + " " + jmeno_konce(krok.konec);
        }
        if (!seznam.klavesy.empty())
            seznam.klavesy += '\x0D';
        seznam.klavesy += makro.pismeno;
        seznam.pismena.push_back(makro.pismeno);
        seznam.radky.push_back(std::move(radek));
    }
    return seznam;
}

std::optional<Bajty> podloz_makra(std::optional<Bajty> obsah) {
    return std::exchange(podlozena, std::move(obsah));
}

Bajty obsah_maker() {
    if (podlozena)
        return *podlozena;
    return soubor_existuje(soubor_maker()) ? nacti_soubor(soubor_maker()) : Bajty{};
}

void obnov_makra(const Bajty& obsah) {
    if (obsah_maker() != obsah)
        zapis_makra(obsah);
}
