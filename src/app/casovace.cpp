// app/casovace.cpp - the clock step, the minute step, and the table of the timers.
#include "app/casovace.h"

#include "app/blikani.h"
#include "app/cas.h"
#include "app/nouzove.h"
#include "app/simulace.h"
#include "app/sledovani_provozu.h"
#include "app/vystrahy.h"
#include "cesty/cesta.h"
#include "cesty/tik_volby.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "gvd/provoz.h"
#include "jizda/krok_jizdy.h"
#include "jizda/zastavky.h"
#include "obsluha/povely.h"
#include "obsluha/volba.h"
#include "prvky/panel.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "save/ulozeni.h"
#include "vypravci/vypravci.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/odpovedi.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

namespace {

constexpr double K = 1000.0;            // milliseconds to a second
constexpr double kNejvyssiPrenos = 6.0; // ms that a clock step may carry into the next one
// Played minutes and the minute of the start have 16 bits together.
constexpr std::int32_t kPosledniMinuta = std::numeric_limits<std::int16_t>::max();
constexpr double kPrah_s = 1.3; // how long the pointer rests before the panel shows the signal

// Milliseconds since a mark of the tick counter, which may have wrapped in between.
std::int32_t od_tiku(std::int32_t znacka) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(platforma.tik_ms()) -
                                     static_cast<std::uint32_t>(znacka));
}

// The signal on which the pointer rests comes to the panel.
void ukaz_najety_prvek() {
    const double ted = platforma.nastenny_cas().cas_dne();
    if (ted < simulace.posledni_pohyb) // midnight of the wall clock: the rest begins anew
        simulace.posledni_pohyb = static_cast<std::int32_t>(ted);
    const int s = simulace.najety_prvek;
    if (ted - simulace.posledni_pohyb > kPrah_s && s > -1 && s != simulace.detail_navestidlo)
        obnov_panel(s);
}

// Midnight: the next day of the week, and its label.
void dalsi_den() {
    if (!std::has_single_bit(simulace.den) || simulace.den > 64)
        return;
    const int den = (std::countr_zero(simulace.den) + 1) % 7;
    simulace.den = static_cast<std::uint8_t>(1 << den);
    relief.lblDEN[0].text = nazev_dne(den);
}

// A start at 0:00 begins two seconds before its day, and at that midnight the absolute seconds fall by a day.
// What was ordered in the two seconds keeps its term.
void vrat_lhuty_o_den() {
    constexpr std::int32_t kDen_s = 86400;
    const auto vrat = [](std::int32_t& lhuta) {
        if (lhuta > 0)
            lhuta = std::max(lhuta - kDen_s, std::int32_t{1}); // 0 and below mean none
    };
    for (Cesta& c : cesty) {
        vrat(c.cas_stavby);
        vrat(c.Kdy_prehoz);
        vrat(c.PN_do);
        vrat(c.cas_ruseni);
    }
    for (StanicniPrejezd& p : stanicni_prejezdy)
        vrat(p.cas);
    vrat(stav_vyhybek.prehoz_cas);
}

// The log of the shift is lost as little as a disk allows; that it is, the operator is told once.
void vyprazdni_denik() {
    if (const auto vada = gtn_vyprazdni())
        ohlas_vadu_deniku(*vada);
}

// The clock stands at the last minute that there is; an operator who ends the pause gets no further.
void ukonci_sluzbu() {
    zastav_hodiny();
    if (!zeptej_se("KPS RVZ TESK"_cz,
                   "Služba dosáhla nejdelší doby, po kterou čas simulace běží, a hodiny stojí. "
                   "Chcete stav simulace uložit?"_cz,
                   true))
        return;
    uloz_dialog();
    zastav_hodiny(); // the end of a save starts the clock
}

constexpr std::array kCasovace = {
    Casovac{"tmrHodiny", "hodiny", 150, &krok_hodin},
    Casovac{"tmrJizdy", "jizdy", 1000, &krok_jizdy},
    Casovac{"tmrVolby", "volby", 1100, &krok_volby},
    Casovac{"tmrBlikani", "blikani", 500, &krok_blikani},
    Casovac{"tmrVypravci", "vypravci", 1000, &vypravci::krok, true},
};

} // namespace

const std::span<const Casovac> casovace{kCasovace};

// Whole seconds are added and at most 6 ms are carried over, so that the clock runs a little slow, and at
// speed 8 a step of 150 ms gives one second: a clock that runs ahead of the trains would be worse.
void krok_hodin() {
    if (simulace.pauza)
        return;
    ukaz_najety_prvek();
    if (simulace.rychlost == 0)
        return;
    const double na_sekundu = K / simulace.rychlost;
    if (na_sekundu > od_tiku(simulace.tick_hodin))
        return;
    const auto prenos = static_cast<std::int32_t>(
        std::min(zaokrouhli(od_tiku(simulace.tick_hodin) - na_sekundu), kNejvyssiPrenos));
    const std::int16_t minuta = minuta_dne(cas_hodin());
    const std::int32_t sekund = na_long(od_tiku(simulace.tick_hodin) / K * simulace.rychlost);
    const std::int32_t cas = sekundy_dne(cas_hodin() + sekund);
    if (minuta_dne(cas) != minuta && minut_do_konce_sluzby() <= 0) {
        ukonci_sluzbu();
        return;
    }
    nastav_cas(cas);
    simulace.tick_hodin = static_cast<std::int32_t>(static_cast<std::uint32_t>(platforma.tik_ms()) -
                                                    static_cast<std::uint32_t>(prenos));
    if (minuta_dne(cas_hodin()) != minuta)
        krok_minuty();
    sleduj_provoz();
    sleduj_vystrahy();
}

void krok_minuty() {
    simulace.minuty_simulace = na_integer(simulace.minuty_simulace + 1);
    relief.lblcas_od_zacatku[0].text = text_cisla(simulace.minuty_simulace);
    if (simulace.cas_zacatku < 0 && simulace.minuty_simulace == 1)
        vrat_lhuty_o_den();
    krok_provozu();
    aktualizuj_cekani();
    if (minuta_dne(cas_hodin()) == 0)
        dalsi_den();
    vyprazdni_denik(); // a crash of the machine costs the log one minute at most
    if (je_cas_ulozit())
        uloz_prubezne();
    zapamatuj_stav();
    if (const std::int32_t zbyva = minut_do_konce_sluzby(); zbyva <= 0)
        ukonci_sluzbu();
    else if (zbyva == kDen_min)
        pripomen_konec_sluzby();
}

std::int32_t minut_do_konce_sluzby() {
    return kPosledniMinuta - (simulace.cas_zacatku + 1) - simulace.minuty_simulace;
}

void pripomen_konec_sluzby() {
    if (minut_do_konce_sluzby() > kDen_min)
        return;
    zprava(" POZOR ",
           "Služba musí nejpozději za den skončit, déle čas simulace neběží. Uložte ji nebo ji ukončete."_cz,
           barvy::bila, 0, false, barvy::bila, barvy::cervena);
}

void krok_volby() {
    if (simulace.pauza)
        return;
    hlidej_cas_volby(); // the operator took too long for the end
    tik_volby();
}

bool je_cas_ulozit() {
    return simulace.autosave && simulace.autosave_minut > 0 &&
           simulace.minuty_simulace % simulace.autosave_minut == 0;
}
