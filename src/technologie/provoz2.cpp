// technologie/provoz2.cpp - PROVOZ 2: the stack of routes, the possessions, the macros.
#include "technologie/provoz2.h"

#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/duvod.h"
#include "cesty/tabulky.h"
#include "cesty/ulozena_makra.h"
#include "cesty/zasobnik.h"
#include "desk/stitky.h"
#include "prvky/jmena.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <array>
#include <utility>

namespace {

// The computers that the real workstation reports; nothing of the simulation hangs on them.
constexpr std::array kPocitace = {
    "TPC A   RVZ Tesk   hlavní"_cz, "TPC B   RVZ Tesk   záloha"_cz, "ZPC 1   zadávací 1"_cz,
    "ZPC 2   zadávací 2"_cz,        "ARCHIV  záznam událostí"_cz,   "GTN     čísla vlaků"_cz,
};

constexpr std::array<SeznamTechnologie, 4> kSeznamyProvoz2 = {{
    {"lstZasobnik", "Zásobník jízdních cest"_cz, &provoz2.lstZasobnik, 20},
    {"lstVYL_UPO", "VYL+UPO", &provoz2.lstVYL_UPO, 10},
    {"lstmakra", "Seznam maker", &provoz2.lstmakra, 12},
    {"lstPocitace", "Zapojené počítače"_cz, &provoz2.lstPocitace, 9},
}};

// Index in `cesty` of the selected route; -1 when the line no longer tells what the stack holds.
int vybrana_cesta() {
    const auto radek = static_cast<std::size_t>(provoz2.lstZasobnik.vybrany);
    const std::vector<int> indexy = radky_zasobniku();
    if (provoz2.lstZasobnik.vybrany < 0 || radek >= indexy.size() ||
        popis_cesty(indexy[radek]) != provoz2.lstZasobnik.radky[radek])
        return -1;
    return indexy[radek];
}

// --- lines

void napln_zasobnik() {
    provoz2.lstZasobnik.radky.clear();
    for (const int i : radky_zasobniku())
        provoz2.lstZasobnik.radky.push_back(popis_cesty(i));
}

void napln_vyluky() {
    for (const StitekPrvku& stitek : stitky) {
        if (stitek.vyluka.empty())
            continue;
        const Text jmeno = jmeno_konce(stitek.prvek);
        const Text prvek = orez(jmeno).empty() ? text_cisla(stitek.prvek) : Text(orez(jmeno));
        provoz2.lstVYL_UPO.radky.push_back(prvek + " " + stitek.vyluka + " " +
                                           text_cisla(delka_koleje(stitek.prvek)) + "m VYL");
    }
}

// A file that nobody has written yet holds no macro: the screen opens all the same.
void napln_makra() {
    SeznamMaker makra;
    try {
        makra = nacti_makra();
    } catch (const BehovaChyba& chyba) {
        if (chyba.kod != KodChyby::soubor_nenalezen)
            throw;
    }
    provoz2.lstmakra.radky = std::move(makra.radky);
    provoz2.pismena_maker = std::move(makra.pismena);
    provoz2.lblKlavesy_maker = std::move(makra.klavesy);
}

// --- details of a route

Text rychlost_tridy(int trida) {
    constexpr std::array<int, 4> kRychlosti = {0, 40, 60, 80};
    return trida >= 1 && trida <= 3 ? text_cisla(kRychlosti[static_cast<std::size_t>(trida)]) + " km/h"
                                    : Text("bez omezení"_cz);
}

Text jmeno_prvku_cesty(int prvek, int druh) {
    if (druh == druh_prvku::vyhybka)
        if (const ZaznamVazeb* vazby = najdi_vazby(prvek); vazby != nullptr && !vazby->nazev.empty())
            return vazby->nazev;
    const Text jmeno = druh == druh_prvku::kolej ? jmeno_konce(prvek) : Text{};
    return orez(jmeno).empty() ? text_cisla(prvek) : Text(orez(jmeno));
}

// Elements of one kind in running order; the track before the signal is no part of the route.
Text prvky_druhu(const Cesta& c, int druh) {
    Text jmena;
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (druh_na(c, k) == druh)
            jmena += (jmena.empty() ? "" : ", ") + jmeno_prvku_cesty(c.prvky[k].prvek, druh);
    return jmena.empty() ? Text("-") : jmena;
}

std::vector<Text> podrobnosti_cesty(int i) {
    const Cesta& c = cesta_c(i);
    const Text duvod = duvod_cekani(i);
    return {popis_cesty(i),
            Text("Záznam závěrové tabulky: "_cz) + text_cisla(c.ZT),
            Text("Rychlost: "_cz) + rychlost_tridy(c.rychlost),
            Text("Úseky: "_cz) + prvky_druhu(c, druh_prvku::kolej),
            Text("Výhybky: "_cz) + prvky_druhu(c, druh_prvku::vyhybka),
            Text("Stav: "_cz) + Text(c.prehozena ? "staví se"_cz : "v zásobníku"_cz),
            Text("Čeká: "_cz) + (duvod.empty() ? Text("na nic"_cz) : duvod)};
}

} // namespace

// --- for the screen

void napln_provoz2() {
    provoz2 = Provoz2{};
    napln_zasobnik();
    napln_vyluky();
    napln_makra();
    provoz2.lstPocitace.radky.assign(kPocitace.begin(), kPocitace.end());
}

void zapomen_provoz2() {
    provoz2 = Provoz2{};
}

std::span<const SeznamTechnologie> seznamy_provozu2() {
    return kSeznamyProvoz2;
}

void vybran_v_provozu2() {
    const int makro = provoz2.lstmakra.vybrany;
    provoz2.lblKlavesy_maker.clear();
    for (std::size_t i = 0; i < provoz2.pismena_maker.size(); ++i) {
        if (makro >= 0 && static_cast<std::size_t>(makro) != i)
            continue;
        if (!provoz2.lblKlavesy_maker.empty())
            provoz2.lblKlavesy_maker += '\x0D';
        provoz2.lblKlavesy_maker += (makro >= 0 ? "Alt+" : "") + provoz2.pismena_maker[i];
    }
    const int cesta = vybrana_cesta();
    provoz2.podrobnosti = cesta < 0 ? std::vector<Text>{} : podrobnosti_cesty(cesta);
}

void smaz_v_provozu2(const Seznam& seznam) {
    if (&seznam == &provoz2.lstZasobnik)
        odeber_ze_zasobniku(vybrana_cesta());
    else if (&seznam == &provoz2.lstmakra)
        smaz_makro(provoz2.pismena_maker[static_cast<std::size_t>(seznam.vybrany)]);
}
