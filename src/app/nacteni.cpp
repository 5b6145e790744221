// app/nacteni.cpp - starting from a saved simulation.
//
// A file is read into a record of its own, which is checked (save/kontrola_zaznamu.h) and only then takes the
// place of the present state (save/obnova.h); what turns out wrong even later puts the present state back.
#include "app/nacteni.h"

#include "app/blikani.h"
#include "app/kontrola.h"
#include "app/simulace.h"
#include "app/stav_simulace.h"
#include "desk/stav_blikani.h"
#include "gvd/gvd.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "save/kontrola_zaznamu.h"
#include "save/obnova.h"
#include "uzel/trate.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"
#include "zaklad/soubory.h"

#include <new>
#include <utility>

namespace {

// What cannot stand together is no state that the simulation can go on from.
void over_stav() {
    relief.lblcas[0].viditelny = true; // the start shows it next
    if (const auto nalez = kontrola_stavu())
        chyba(KodChyby::mimo_meze, *nalez);
}

// --- the load

std::optional<Bajty> vlozena_hra; // in place of the file
Bajty hra;                        // as read last

const Bajty& cti_hru(TextPohled soubor) {
    hra = vlozena_hra ? std::move(*vlozena_hra) : nacti_soubor(soubor);
    vlozena_hra.reset();
    return hra;
}

void varuj_pred_verzi(const Zaznam& z) {
    if (z.verze_major == kVerzeMajor && z.verze_minor == kVerzeMinor && z.verze_revize == kVerzeRevize)
        return;
    Text text("Načítaný záznam byl vytvořen ve starší verzi ("_cz);
    text += text_cisla(z.verze_major) + "." + text_cisla(z.verze_minor) + "." + text_cisla(z.verze_revize);
    text += "), než je současná verze simulace ("_cz;
    text += text_verze();
    text += "). Mohou nastat problémy s kompatibilitou."_cz;
    platforma.okno("KPS RVZ TESK", text);
}

bool ukonci_nenactene(TextPohled soubor, const BehovaChyba& chyba) {
    Text text("Stav simulace ze soboru "_cz); // spelt so on the desk
    text += soubor;
    text += " se nepodařilo načíst! ("_cz;
    text += text_chyby(chyba.kod);
    if (chyba.kod == KodChyby::mimo_meze && !chyba.co.empty())
        text += ": " + chyba.co;
    text += ")";
    platforma.okno("KPS RVZ TESK", text);
    gtn_zavri();
    platforma.ukonci(1);
    return false;
}

} // namespace

void nacti_simulaci_z(std::span<const std::uint8_t> bajty) {
    Zaznam z = precti_zaznam(bajty);
    varuj_pred_verzi(z);
    over_hlavicku(z);
    const std::int16_t minuty = casova_znacka(z);
    over_tabulky(z);
    StavSimulace predchozi = stav_simulace();
    try {
        obnov_stav(std::move(z), minuty);
        ukaz_prejezdy();
        over_stav();
    } catch (...) {
        vrat_stav(std::move(predchozi));
        throw;
    }
}

bool da_se_nacist(std::span<const std::uint8_t> bajty) {
    StavSimulace predchozi = stav_simulace();
    const auto okno = std::exchange(platforma.okno, [](TextPohled, TextPohled) {});
    bool da = true;
    try {
        nacti_simulaci_z(bajty);
    } catch (...) { // whatever it is, the bytes are of no use
        da = false;
    }
    platforma.okno = okno;
    vrat_stav(std::move(predchozi));
    return da;
}

bool nacti_simulaci(TextPohled jmeno) {
    const Text soubor(jmeno); // the name may stand in the very state that the file replaces
    if (je_ladeni()) {
        nacti_simulaci_z(cti_hru(soubor)); // a fault stops the program at its place
    } else {
        try {
            nacti_simulaci_z(cti_hru(soubor));
        } catch (const BehovaChyba& chyba) {
            return ukonci_nenactene(soubor, chyba);
        } catch (const std::bad_alloc&) {
            return ukonci_nenactene(soubor, {KodChyby::malo_pameti, {}});
        }
    }
    Text text("Stav simulace načten ze souboru "_cz);
    text += soubor;
    text += "!";
    platforma.okno("KPS RVZ TESK", text);
    return true;
}

const Bajty& nactena_hra() {
    static const Bajty zadna;
    return simulace.nacitani_zaznamu ? hra : zadna;
}

void obnov_souhlasy() {
    souhlasy.souhlas = {};
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky) {
        if (cislo == 0)
            continue;
        for (const auto& [klic, n] : gvd_vlaky.s_cislem(cislo))
            if (const int k = uzel::konec_ke_stanici(radek_gvd(n).zastavky.front().stanice); k >= 0)
                souhlasy.souhlas[static_cast<std::size_t>(k)] = true;
    }
    // The minute of a train that has gone in is out, although its text stays until the next consent ends.
    for (std::size_t k = 0; k < uzel::kKonceTrati.size(); ++k) {
        const auto je_sedy = [](int n) { return !je_kolej(n) || relief.kolej[n].barva == barvy::seda; };
        if (souhlasy.souhlas[k] && je_sedy(uzel::kKonceTrati[k].usek) &&
            je_sedy(uzel::kKonceTrati[k].navestidlo) && relief.lblPredvidany_odjezd.je(static_cast<int>(k)))
            relief.lblPredvidany_odjezd[static_cast<int>(k)].viditelny = false;
    }
}

void priprav_nacteni(TextPohled soubor, const MoznostiStartu& moznosti, std::optional<Bajty> obsah) {
    vlozena_hra = std::move(obsah);
    uloz_volby(moznosti);
    simulace.nacitani_zaznamu = true;
    simulace.soubor_zaznamu = Text(soubor);
    priprava_simulace();
}

bool nacti_dialog(const MoznostiStartu& moznosti) {
    const Text slozka = simulace.cesta_aplikace + "save";
    zaloz_slozku(slozka); // where the dialogue opens
    const auto odpoved = platforma.soubor_k_otevreni(slozka, "*.sim");
    const TextPohled soubor = odpoved ? orez(*odpoved) : TextPohled{};
    if (soubor.empty())
        return false;
    priprav_nacteni(soubor, moznosti);
    return true;
}
