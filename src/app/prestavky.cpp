// app/prestavky.cpp - times in which the service stands without a pause of the operator.
#include "app/prestavky.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

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
    if (simulace.pauza)
        return false;
    zastav_hodiny();
    return true;
}

void ukonci_okno(bool bezel_cas) {
    if (bezel_cas)
        spust_hodiny();
}

void udalost_casovace(ZnackyCasovacu& znacky, std::size_t casovac, std::int64_t ted_ms) {
    std::int64_t prestavka = 0; // the first timer after the stall speaks for those that come later
    for (const std::int64_t posledni : znacky.posledni)
        if (posledni >= 0)
            prestavka = std::max(prestavka, ted_ms - posledni);
    znacky.posledni[casovac] = ted_ms;
    if (prestavka <= kNejdelsiZpozdeni_ms)
        return;
    std::fill(znacky.posledni.begin(), znacky.posledni.end(), ted_ms);
    if (simulace.pauza)
        return; // there was no time to lose
    spust_hodiny();
    pis_do_deniku(prestavka);
}
