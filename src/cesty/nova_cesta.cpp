// cesty/nova_cesta.cpp - a new route takes its place in the stack.
#include "cesty/nova_cesta.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/zasobnik.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "prvky/jmena.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <array>
#include <utility>

namespace {

void varuj(DruhZpravy druh, TextPohled text, int ms) {
    zprava(druh, text, barvy::cervena, 0, false, barvy::bila, barvy::bila);
    pipni(800, ms);
}

void varuj_pred_stitky(Cesta& c, int prvek) {
    const int i = stitek_prvku(prvek);
    if (i < 0)
        return;
    const StitekPrvku& stitek = stitky[static_cast<std::size_t>(i)];
    const std::array<std::pair<DruhZpravy, TextPohled>, 3> varovani = {{{DruhZpravy::vyluka, stitek.vyluka},
                                                                        {DruhZpravy::nvl, stitek.nvl},
                                                                        {DruhZpravy::stitek, stitek.stitek}}};
    for (const auto& [druh, text] : varovani) {
        if (text.empty())
            continue;
        c.varovani = -1;
        varuj(druh, " " + Text(text), 100);
    }
}

// Notes on the track where the route ends, from the gravest: each is told, one confirmation frees all.
// A route to a line ends on the section next to it, the note hangs on the line's own label.
void varuj_pred_stitky(Cesta& c) {
    const int posledni = posledni_prvek(c);
    varuj_pred_stitky(c, posledni);
    if (c.konec != posledni)
        varuj_pred_stitky(c, c.konec);
}

// Stations are the first three letters of the signals' names.
void varuj_pred_pn(Cesta& c) {
    if (!c.VC)
        return;
    const Text stanice = jmeno_navestidla(c.zacatek).substr(0, 3);
    for (const Cesta& jina : cesty) {
        if (&jina == &c || !jina.PN || jmeno_navestidla(jina.zacatek).substr(0, 3) != stanice)
            continue;
        c.varovani = -1;
        varuj(DruhZpravy::sviti_pn,
              jmeno_navestidla(jina.zacatek) + Text(" Svítí přivolávací návěst "_cz) + Text(" !"_cz), 300);
        return;
    }
}

} // namespace

Cesta& pridej_cestu(Cesta nova) {
    if (cesty.front().zacatek >= 0)
        return cesty.emplace_back(std::move(nova));
    return cesty.front() = std::move(nova);
}

Cesta& zarad_cestu(const NalezenaCesta& nalezena, int druh, bool automaticky) {
    const ZaznamCesty& z = *nalezena.zaznam;
    Cesta nova;
    if (cesty.front().zacatek >= 0) // the first record of the stack is taken as it is when empty
        nova.prejezd = kBezPrejezdu;
    nova.ZT = static_cast<std::int16_t>(nalezena.radek);
    nova.konec = z.konec;
    nova.prvky = z.prvky;
    nova.prvky.front().poloha = 2;
    nova.zacatek = z.zacatek;
    nova.rychlost = z.rychlost;
    nova.VC = druh != druh_volby::posun;
    nova.PN = druh == druh_volby::pn;
    nova.cas_stavby = ted_s() + (automaticky ? 1 : 2 * simulace.rychlost);
    if (je_cislo_koleje(nova.konec))
        nova.barva_cisla = relief.cislo_koleje[nova.konec].pozadi;
    Cesta& c = pridej_cestu(std::move(nova));
    zmena_zasobniku();
    varuj_pred_stitky(c);
    varuj_pred_pn(c);
    return c;
}

Cesta& pridej_programovou_cestu(int zacatek, int konec, std::span<const std::int16_t> prvky) {
    Cesta nova;
    nova.zacatek = na_integer(zacatek);
    nova.konec = na_integer(konec);
    nova.prvky.clear();
    for (const std::int16_t n : prvky)
        nova.prvky.push_back({n, druh_prvku::kolej, 0});
    nova.VC = nova.prehozena = nova.Postavena = nova.Provedena = true;
    nova.prejezd = kBezPrejezdu;
    nova.ZT = kZTprogramu;
    return pridej_cestu(std::move(nova));
}

void pripomen_varovani() {
    for (Cesta& c : cesty)
        if (c.zacatek >= 0 && c.varovani != 0 && !c.prehozena) {
            c.varovani = 0; // what it was about may be over
            varuj_pred_stitky(c);
            varuj_pred_pn(c);
        }
}
