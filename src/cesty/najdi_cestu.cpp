// cesty/najdi_cestu.cpp - the look-up of a picked route and its place in the stack.
#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/dotazy.h"
#include "cesty/tabulky.h"
#include "cesty/zvyrazneni.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "obsluha/makra.h"
#include "obsluha/volba.h"

#include <array>

namespace {

constexpr std::array kSlova = {""_cz, " VC "_cz, " PC "_cz, " PN "_cz}; // by kind
constexpr std::array kBarvy = {barvy::cerna, barvy::zelena, barvy::bila, barvy::azurova};

void varuj(TextPohled slovo, TextPohled text, int ms) {
    zprava(slovo, text, barvy::cervena, 0, false, barvy::bila, barvy::bila);
    pipni(800, ms);
}

void ohlas_nenalezenou(int druh, bool automaticky) {
    pipni(100, 200);
    zprava(kSlova[static_cast<std::size_t>(druh)], " Cesta nenalezena v závěrové tabulce ! "_cz,
           barvy::cervena, 0, false, barvy::bila, barvy::bila);
    if (!vyber.volba_svetla && !automaticky)
        odznac_navestidlo(vyber.volba_navestidlo);
    vyber.volba_navestidlo = -3;
    vyber.volba_zacatek = -3;
    vyber.volba_konec = -3;
}

// The new record; the empty one is used again, and nothing of what it held before stays.
Cesta& nova_cesta() {
    if (cesty.front().zacatek < 0) {
        cesty.front() = Cesta{};
        return cesty.front();
    }
    Cesta& c = cesty.emplace_back();
    c.prejezd = kBezPrejezdu;
    return c;
}

Cesta& zarad_cestu(const NalezenaCesta& nalezena, int druh, bool automaticky) {
    const ZaznamCesty& z = *nalezena.zaznam;
    Cesta& c = nova_cesta();
    c.ZT = static_cast<std::int16_t>(nalezena.radek);
    c.konec = z.konec;
    c.prvky = z.prvky;
    c.prvky.front().poloha = 2;
    c.zacatek = z.zacatek;
    c.rychlost = z.rychlost;
    c.VC = druh != druh_volby::posun;
    c.PN = druh == druh_volby::pn;
    c.cas_stavby = ted_s() + (automaticky ? 1 : 2 * simulace.rychlost);
    if (je_cislo_koleje(c.konec))
        c.barva_cisla = relief.cislo_koleje[c.konec].pozadi;
    return c;
}

void varuj_pred_stitky(Cesta& c, int prvek) {
    const int i = stitek_prvku(prvek);
    if (i < 0)
        return;
    const StitekPrvku& stitek = stitky[static_cast<std::size_t>(i)];
    const std::array<std::array<TextPohled, 2>, 3> varovani = {{{" POZOR VYLUKA "_cz, stitek.vyluka},
                                                                {" POZOR NVL "_cz, stitek.nvl},
                                                                {" POZOR STITEK "_cz, stitek.stitek}}};
    for (const auto& [slovo, text] : varovani) {
        if (text.empty())
            continue;
        c.varovani = -1;
        varuj(slovo, " " + Text(text), 100);
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
        varuj(" POZOR PN "_cz,
              jmeno_navestidla(jina.zacatek) + Text(" Svítí přivolávací návěst "_cz) + Text(" !"_cz), 300);
        return;
    }
}

} // namespace

bool najdi_cestu(int zacatek, int konec, int druh, bool automaticky) {
    if (zacatek < 0 || druh < druh_volby::vlak || druh > druh_volby::pn)
        return false;
    const NalezenaCesta nalezena =
        najdi_v_tabulce(druh == druh_volby::posun ? TabulkaCest::zpc : TabulkaCest::zat, zacatek, konec);
    if (!nalezena) {
        ohlas_nenalezenou(druh, automaticky);
    } else if (makro_se_zaznamenava()) {
        krok_makra(zacatek, konec, druh);
    } else {
        Cesta& c = zarad_cestu(nalezena, druh, automaticky);
        zmena_zasobniku();
        varuj_pred_stitky(c);
        varuj_pred_pn(c);
        zvyrazni_konec(c.konec, kBarvy[static_cast<std::size_t>(druh)]);
        vyber.volba_navestidlo = -3;
    }
    vyber.volba_druh = druh_volby::zadny;
    return static_cast<bool>(nalezena);
}

void pripomen_varovani() {
    for (Cesta& c : cesty)
        if (c.zacatek >= 0 && c.varovani != 0 && !c.prehozena) {
            c.varovani = 0; // what it was about may be over
            varuj_pred_stitky(c);
            varuj_pred_pn(c);
        }
}
