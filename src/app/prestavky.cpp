// app/prestavky.cpp - times in which the service stands without a pause of the operator.
#include "app/prestavky.h"

#include "app/cas.h"
#include "app/hlidac_tiku.h"
#include "app/planovac.h"
#include "app/simulace.h"
#include "obsluha/ukony.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/virtualni_hodiny.h"

#include <algorithm>
#include <utility>

namespace {

// "15 s", "10 min 5 s", "12 h 0 min"
Text delka_prestavky(std::int64_t ms) {
    const std::int64_t sekund = ms / 1000, minut = sekund / 60, hodin = minut / 60;
    const auto cislo = [](std::int64_t n) { return text_cisla(static_cast<std::int32_t>(n)); };
    if (minut == 0)
        return cislo(sekund) + " s";
    if (hodin == 0)
        return cislo(minut) + " min " + cislo(sekund % 60) + " s";
    return cislo(hodin) + " h " + cislo(minut % 60) + " min";
}

void pis_do_deniku(std::int64_t ms) {
    Text text("Počítač stál "_cz);
    text += delka_prestavky(ms);
    text += ", služba pokračuje v "_cz;
    text += text_minuty(minuta_dne(cas_hodin()));
    relief.lstDenik.radky.push_back(std::move(text));
    ++revize_reliefu;
}

} // namespace

bool zacni_okno() {
    tik_ceka();
    if (simulace.pauza)
        return false;
    zastav_hodiny();
    return true;
}

void ukonci_okno(bool bezel_cas) {
    if (!bezel_cas)
        return;
    simulace.pauza = false; // the host's clock stood as well: the marks of time are as they were
    relief.lblPauza[0].viditelny = false;
}

void dozen_hodiny(ChodHostitele& chod, std::int64_t ted_ms) {
    const std::int64_t chybi = ted_ms - chod.nula_ms - virtualni_hodiny.cas_ms;
    const bool stal = std::exchange(chod.stal, false);
    if (chybi <= 0)
        return;
    if (planovac.bezi && (stal || chybi > kNejdelsiZpozdeni_ms))
        prestavka(chybi, !stal);
    else
        plyn_do(virtualni_hodiny.cas_ms + chybi);
}

void prestavka(std::int64_t ms, bool pocitac) {
    const ZapisUkonu zapis({.co = pocitac ? DruhUkonu::pocitac_stal : DruhUkonu::okno_stalo, .n = ms});
    preskoc(ms);
    if (simulace.pauza)
        return; // there was no time to lose
    if (pocitac) {
        spust_hodiny();
        pis_do_deniku(ms);
        return;
    }
    for (std::int32_t* znacka : {&simulace.tick_hodin, &simulace.tick_jizdy})
        *znacka =
            static_cast<std::int32_t>(static_cast<std::uint32_t>(*znacka) + static_cast<std::uint32_t>(ms));
}
