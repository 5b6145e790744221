// app/nouzove.cpp - the emergency save, and what the start screen needs of it.
#include "app/nouzove.h"

#include "app/konec.h"
#include "app/nacteni.h"
#include "app/simulace.h"
#include "relief/relief.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"
#include "zaklad/soubory.h"

#include <utility>
#include <vector>

namespace {

std::optional<Zaznam> zapamatovany;
Zaznam zapamatovavany; // the one before: its room is taken again
Text zapsany_naposled; // file that was written

Text slozka_zaznamu() {
    return simulace.cesta_aplikace + "save\\";
}
// Before its first minute there is nothing to lose that a new start would not bring, and a shift that is only
// watched has its record.
bool hra_bezi() {
    const bool na_pultu = relief.lblcas.je(0) && relief.lblcas[0].viditelny;
    return na_pultu && simulace.minuty_simulace > 0 && pise_se_na_disk();
}

// Sorted by name, that is by time.
std::vector<Text> cekajici() {
    return soubory_slozky(slozka_nouzovych(), "nouzove_*.sim");
}

// Writes the record when a load would take it.
bool zapis_zaznam(const Zaznam& zaznam) {
    const Bajty bajty = bajty_zaznamu(zaznam);
    if (!da_se_nacist(bajty))
        return false;
    const Text soubor = novy_nouzovy();
    zapis_soubor(soubor, bajty);
    zapsany_naposled = soubor;
    return true;
}

bool zapis_pritomny() {
    try {
        return zapis_zaznam(zaznam_simulace());
    } catch (...) { // the state that made the error may make one here as well
        return false;
    }
}

bool zapis_zapamatovany() {
    try {
        return zapamatovany && zapis_zaznam(*zapamatovany);
    } catch (...) { // a disk that takes nothing
        return false;
    }
}

} // namespace

void zapamatuj_stav() {
    try {
        zaznamenej(zapamatovavany);
        if (!zapamatovany)
            zapamatovany.emplace();
        std::swap(*zapamatovany, zapamatovavany);
    } catch (const BehovaChyba&) { // a state that no file can hold: the one before is kept
    }
}

NouzoveUlozeni uloz_nouzove() noexcept {
    try {
        if (!hra_bezi())
            return NouzoveUlozeni::neni_co;
        zaloz_slozku(slozka_nouzovych());
        return zapis_pritomny() || zapis_zapamatovany() ? NouzoveUlozeni::ulozeno : NouzoveUlozeni::selhalo;
    } catch (...) {
        return NouzoveUlozeni::selhalo;
    }
}

const Text& posledni_nouzovy() {
    return zapsany_naposled;
}

void nouzovy_zaznam(Bajty& bajty) {
    if (hra_bezi() && zapamatovany)
        bajty = bajty_zaznamu(*zapamatovany);
}

Text slozka_nouzovych() {
    return slozka_zaznamu() + "nouzove\\";
}

Text novy_nouzovy() {
    return slozka_nouzovych() + "nouzove_" + jmeno_okamziku();
}

void konec_od_systemu() {
    uloz_nouzove();
    konec_ihned();
}

std::optional<Text> cekajici_nouzovy() {
    const std::vector<Text> jmena = cekajici();
    if (jmena.empty())
        return std::nullopt;
    return slozka_nouzovych() + jmena.back();
}

Text odloz_nouzove(TextPohled soubor) {
    Text novy(soubor);
    for (const Text& jmeno : cekajici()) {
        const Text odkud = slozka_nouzovych() + jmeno, kam = slozka_zaznamu() + jmeno;
        if (presun_soubor(odkud, kam) && odkud == soubor)
            novy = kam;
    }
    return novy;
}

void zapomen_nouzovy_stav() {
    zapamatovany.reset();
}
