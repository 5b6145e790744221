// save/ulozeni.cpp - writing the simulation to a file.
#include "save/ulozeni.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "desk/zprava.h"
#include "relief/relief.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <exception>
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
    } catch (const std::exception&) {
        return Text(text_chyby(KodChyby::neplatne_volani));
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

// The oldest periodic saves of this game make room. Those of other games, and whatever else lies in the
// folder, are the operator's own.
void promaz_prubezne() {
    while (simulace.prubezne.size() > kNejviceAutosave) {
        smaz_soubor(simulace.prubezne.front());
        simulace.prubezne.erase(simulace.prubezne.begin());
    }
}

// Milliseconds from a mark of the tick counter, and the mark that lies so far back: the counter may wrap.
std::int32_t ms_od(std::int32_t znacka) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(platforma.tik_ms()) -
                                     static_cast<std::uint32_t>(znacka));
}
std::int32_t znacka_pred(std::int32_t ms) {
    return ms_od(ms);
}

void dobehni(const Rozbeh& rozbeh) {
    simulace.tick_hodin = znacka_pred(rozbeh.hodiny);
    simulace.tick_jizdy = znacka_pred(rozbeh.jizda);
}

// "Tesk pondělí 8-05-30.sim": what the operator sees on the clock.
Text navrzene_jmeno() {
    Text cas = text_hodin();
    std::replace(cas.begin(), cas.end(), ':', '-');
    return "Tesk " + relief.lblDEN[0].text() + " " + cas + Text(kPripona);
}

} // namespace

std::optional<Rozbeh> zastav_pro_ulozeni() {
    std::optional<Rozbeh> rozbeh;
    if (!simulace.pauza)
        rozbeh = Rozbeh{ms_od(simulace.tick_hodin), ms_od(simulace.tick_jizdy)};
    zastav_hodiny();
    return rozbeh;
}

std::optional<Text> uloz_simulaci(TextPohled soubor, bool tichy, std::optional<Rozbeh> rozbeh) {
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
    if (rozbeh)
        dobehni(*rozbeh);
    return vada;
}

void uloz_dialog(std::optional<Rozbeh> rozbeh) {
    const Text slozka = simulace.cesta_aplikace + "save";
    zaloz_slozku(slozka); // where the dialogue opens
    for (;;) {
        const auto odpoved = platforma.soubor_k_ulozeni(slozka, "*.sim", navrzene_jmeno());
        const Text soubor = odpoved ? jmeno_z_dialogu(*odpoved) : Text{};
        const bool prepise = !soubor.empty() && pise_se_na_disk() && delka_souboru(soubor).value_or(0) > 0;
        if (prepise && !platforma.otazka("Uložit záznam"_cz, "Soubor již existuje. Přepsat?"_cz, false))
            continue;
        zapis_odpoved_dialogu(soubor); // what counts of the dialogue is how it ended
        if (soubor.empty())
            return;
        uloz_simulaci(soubor, false, rozbeh);
        return;
    }
}

void uloz_prubezne() {
    const std::optional<Rozbeh> rozbeh = zastav_pro_ulozeni();
    Text soubor = soubor_autosave();
    if (const auto vada = uloz_simulaci(soubor, true, rozbeh)) {
        zprava(" POZOR ", Text("Průběžné uložení se nepodařilo: "_cz) + *vada, barvy::bila, 0, false,
               barvy::bila, barvy::cervena);
        return;
    }
    std::erase(simulace.prubezne, soubor);
    simulace.prubezne.push_back(std::move(soubor));
    promaz_prubezne();
}

Text soubor_autosave() {
    return simulace.cesta_aplikace + "save\\autosave\\autosave_" + jmeno_okamziku();
}

Text jmeno_okamziku() {
    const NastennyCas ted = platforma.nastenny_cas();
    const std::int32_t simulovano = cas_hodin();
    const auto dve = [](int hodnota) { return text_cisla_mist(hodnota, 2); };
    return dve(ted.rok % 100) + dve(ted.mesic) + dve(ted.den) + "_" + dve(ted.hodina) + dve(ted.minuta) +
           dve(ted.sekunda) + "_" + dve(simulovano / 3600) + dve(simulovano / 60 % 60) +
           dve(simulovano % 60) + Text(kPripona);
}
