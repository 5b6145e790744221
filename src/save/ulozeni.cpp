// save/ulozeni.cpp - writing the simulation to a file.
#include "save/ulozeni.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <new>
#include <optional>

namespace {

constexpr TextPohled kPripona = ".sim";
constexpr std::size_t kNejviceAutosave = 10;

void zapis_stav(TextPohled soubor) {
    prepis_zacatek_souboru(soubor, bajty_zaznamu(zaznam_simulace()));
}

// What went wrong, as the box tells it; nothing when all went well.
std::optional<Text> zkus_zapsat(TextPohled soubor) {
    try {
        zapis_stav(soubor);
    } catch (const BehovaChyba& chyba) {
        return Text(text_chyby(chyba.kod));
    } catch (const std::bad_alloc&) {
        return Text(text_chyby(KodChyby::malo_pameti));
    }
    return std::nullopt;
}

// The name that the operator chose, with its ending; empty for none.
Text jmeno_z_dialogu(TextPohled odpoved) {
    Text jmeno(orez(odpoved));
    std::erase(jmeno, '\0');
    if (!jmeno.empty() &&
        (jmeno.size() < kPripona.size() ||
         !stejne_bez_velikosti(TextPohled(jmeno).substr(jmeno.size() - kPripona.size()), kPripona)))
        jmeno += kPripona;
    return jmeno;
}

// "autosave_260105_130000_122959.sim": a name that only soubor_autosave() gives.
bool je_jmeno_autosave(TextPohled jmeno) {
    constexpr TextPohled kVzor = "autosave_######_######_######.sim";
    return jmeno.size() == kVzor.size() &&
           std::equal(jmeno.begin(), jmeno.end(), kVzor.begin(),
                      [](char a, char b) { return b == '#' ? a >= '0' && a <= '9' : a == b; });
}

// The oldest periodic saves make room: their names run with the wall clock. Whatever else lies in the folder
// is the operator's own.
void promaz_autosave(TextPohled posledni) {
    const Text slozka = simulace.cesta_aplikace + "save\\autosave\\";
    std::vector<Text> jmena = soubory_slozky(slozka, "autosave_*.sim");
    std::erase_if(jmena,
                  [&](const Text& jmeno) { return !je_jmeno_autosave(jmeno) || slozka + jmeno == posledni; });
    for (std::size_t i = 0; i + kNejviceAutosave <= jmena.size(); ++i)
        smaz_soubor(slozka + jmena[i]);
}

} // namespace

void uloz_simulaci(TextPohled soubor, bool tichy) {
    zaloz_slozku(simulace.cesta_aplikace + "save");
    zaloz_slozku(simulace.cesta_aplikace + "save\\autosave");
    std::optional<Text> vada;
    if (je_ladeni())
        zapis_stav(soubor); // a fault stops the program at its place
    else
        vada = zkus_zapsat(soubor);
    if (!tichy) {
        Text zprava;
        if (vada) {
            zprava = "Stav simulace se nepodařilo uložit do souboru "_cz;
            zprava += Text(soubor) + "! (" + *vada + ")";
        } else {
            zprava = "Stav simulace byl uložen do souboru "_cz;
            zprava += Text(soubor) + "!";
        }
        platforma.okno("KPS RVZ TESK", zprava);
    }
    spust_hodiny();
}

void uloz_dialog() {
    const Text slozka = simulace.cesta_aplikace + "save";
    zaloz_slozku(slozka); // where the dialogue opens
    for (;;) {
        const auto odpoved = platforma.soubor_k_ulozeni(slozka, "*.sim");
        const Text soubor = odpoved ? jmeno_z_dialogu(*odpoved) : Text{};
        if (soubor.empty())
            return;
        if (delka_souboru(soubor).value_or(0) > 0 &&
            !platforma.otazka("Uložit záznam"_cz, "Soubor již existuje. Přepsat?"_cz, false))
            continue;
        uloz_simulaci(soubor, false);
        return;
    }
}

void uloz_prubezne() {
    zastav_hodiny();
    const Text soubor = soubor_autosave();
    uloz_simulaci(soubor, true);
    if (soubor_existuje(soubor))
        promaz_autosave(soubor);
}

Text soubor_autosave() {
    const NastennyCas ted = platforma.nastenny_cas();
    const std::int32_t simulovano = sekundy_textu(cas_hodin());
    const auto dve = [](int hodnota) { return text_cisla_mist(hodnota, 2); };
    return simulace.cesta_aplikace + "save\\autosave\\autosave_" + dve(ted.rok % 100) + dve(ted.mesic) +
           dve(ted.den) + "_" + dve(ted.hodina) + dve(ted.minuta) + dve(ted.sekunda) + "_" +
           dve(simulovano / 3600) + dve(simulovano / 60 % 60) + dve(simulovano % 60) + ".sim";
}
