// obsluha/makra.cpp - macros.
#include "obsluha/makra.h"

#include "app/simulace.h"
#include "cesty/ulozena_makra.h"
#include "cesty/zvyrazneni.h"
#include "desk/zprava.h"
#include "obsluha/volba.h"

namespace {

bool ma_pismeno(const ZaznamMakra& makro, char pismeno) {
    const TextPohled text = orez(makro.pismeno);
    return !text.empty() && text.front() == pismeno;
}

void odznac_kroky() {
    for (const KrokMakra& krok : vyber.makro_kroky) {
        if (krok.zacatek < 0)
            continue;
        odznac_navestidlo(krok.zacatek);
        odznac_konec(krok.konec);
    }
}

void ukonci_zaznam() {
    vyber.makro_zaznam = false;
    vyber.makro_pismeno.clear();
    nastav_text(relief.lblMakro_pismeno[0], {});
}

void vyber_krok(const KrokMakra& krok) {
    const int zacatek = krok.zacatek, konec = krok.konec, druh = krok.druh;
    if (zacatek < 0 || (druh != druh_volby::vlak && druh != druh_volby::posun))
        return;
    const bool vlak = druh == druh_volby::vlak;
    vyber.volba_zacatek = static_cast<std::int16_t>(zacatek);
    vyber.volba_navestidlo = static_cast<std::int16_t>(zacatek);
    const TabulkaPrvku& navest = navestidla(zacatek);
    vyber.volba_svetla = navest.je(zacatek) && navest[zacatek].barva == (vlak ? barvy::zelena : barvy::bila);
    zvyrazni_navestidlo(zacatek, vlak ? barvy::zelena : barvy::bila);
    vyber.volba_konec = static_cast<std::int16_t>(konec);
    vyber.volba_druh = static_cast<std::uint8_t>(druh);
    vyber.volba_cas = kZadny;
    najdi_cestu(zacatek, konec, druh, false);
}

} // namespace

bool makro_se_zaznamenava() {
    return !vyber.makro_pismeno.empty();
}

void zacni_makro(char pismeno) {
    if (makro_se_zaznamenava())
        odznac_kroky(); // the recording that this one takes the place of
    vyber.makro_zaznam = true;
    vyber.makro_pismeno = orez(TextPohled(&pismeno, 1)); // the blank is no letter: such a macro is never kept
    vyber.makro_kroky = {KrokMakra{}};
    nastav_text(relief.lblMakro_pismeno[0], " " + Text(1, pismeno) + " ");
    pipni(800, 10);
}

void krok_makra(int zacatek, int konec, int druh) {
    if (druh != druh_volby::vlak && druh != druh_volby::posun)
        return;
    // The prompt turns orange; another message on the line stays as it is.
    const DruhZpravy slovo = druh == druh_volby::vlak ? DruhZpravy::vc : DruhZpravy::pc;
    if (stojici_zprava() == slovo)
        zobraz_prikaz(slovo, Text(relief.lblVolba[0].text), barvy::oranzova, relief.lblPrikaz[0].pozadi);
    if (vyber.makro_kroky.front().zacatek >= 0)
        vyber.makro_kroky.emplace_back();
    vyber.makro_kroky.back() = {static_cast<std::int16_t>(zacatek), static_cast<std::int16_t>(konec),
                                static_cast<std::uint8_t>(druh)};
    vyber.volba_navestidlo = kZadny; // the highlight of the start stays as a picture of the macro
}

void uloz_makro() {
    odznac_kroky();
    if (vyber.makro_kroky.front().zacatek >= 0)
        pridej_ulozene_makro({vyber.makro_pismeno, vyber.makro_kroky});
    ukonci_zaznam();
    skryj_prikaz();
}

void zrus_makro() {
    odznac_kroky();
    ukonci_zaznam();
}

void prehraj_makro(char pismeno) {
    if (simulace.pauza)
        return;
    for (const ZaznamMakra& makro : ulozena_makra()) {
        if (!ma_pismeno(makro, pismeno))
            continue;
        for (const KrokMakra& krok : makro.kroky)
            vyber_krok(krok);
    }
}
