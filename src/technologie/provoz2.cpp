// technologie/provoz2.cpp - the maintenance screen PROVOZ 2.
#include "technologie/provoz2.h"

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/duvod.h"
#include "cesty/makra.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <utility>

Provoz2 provoz2;

namespace {

constexpr int kPeriodaData_ms = 500;

// The computers that the real workstation reports; nothing of the simulation hangs on them.
constexpr std::array kPocitace = {
    "TPC A   RVZ Tesk   hlavní"_cz, "TPC B   RVZ Tesk   záloha"_cz, "ZPC 1   zadávací 1"_cz,
    "ZPC 2   zadávací 2"_cz,        "ARCHIV  záznam událostí"_cz,   "GTN     čísla vlaků"_cz,
};

constexpr std::array kSeznamy = {&Provoz2::lstZasobnik, &Provoz2::lstVYL_UPO, &Provoz2::lstmakra,
                                 &Provoz2::lstPocitace};

// Which of the lists holds the selected line; as many as there are lists when none does.
std::size_t vybrany_seznam() {
    const auto ma_vyber = [](Seznam Provoz2::*s) { return (provoz2.*s).vybrany >= 0; };
    return static_cast<std::size_t>(std::find_if(kSeznamy.begin(), kSeznamy.end(), ma_vyber) -
                                    kSeznamy.begin());
}

void vyber_radek(Seznam& seznam, int radek) {
    seznam.vybrany = std::clamp(radek, -1, static_cast<int>(seznam.radky.size()) - 1);
    vybran_radek_provozu2(seznam);
}

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

void napln_cisla() {
    Text* const sloupce[] = {&provoz2.lblcisla, &provoz2.lblcisla1, &provoz2.lblCisla2, &provoz2.lblCisla3};
    for (std::size_t i = 0; i < kSeznamy.size(); ++i) {
        const auto radku = static_cast<int>((provoz2.*kSeznamy[i]).radky.size());
        *sloupce[i] = cisla_radku(std::max(radku, kRadkuProvozu2[i]));
    }
}

void napln_provoz2() {
    provoz2 = Provoz2{};
    for (Seznam Provoz2::*seznam : kSeznamy)
        (provoz2.*seznam).viditelny = true;
    napln_zasobnik();
    napln_vyluky();
    napln_makra();
    provoz2.lstPocitace.radky.assign(kPocitace.begin(), kPocitace.end());
    napln_cisla();
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
            jmena += (jmena.empty() ? "" : ", ") + jmeno_prvku_cesty(c.prvky[k], druh);
    return jmena.empty() ? Text("-") : jmena;
}

std::vector<Text> podrobnosti_cesty(int i) {
    const Cesta& c = cesty[static_cast<std::size_t>(i)];
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

// --- on the operator's command

void otevri_provoz2() {
    zastav_hodiny();
    zavri_menu();
    simulace.obrazovka = kObrazovkaProvoz2;
    napln_provoz2();
    tik_provozu2();
}

void zavri_provoz2() {
    if (!provoz2_otevren())
        return;
    simulace.obrazovka = "frmMain";
    provoz2 = Provoz2{};
    spust_hodiny();
}

void vybran_radek_provozu2(Seznam& seznam) {
    for (Seznam Provoz2::*jiny : kSeznamy)
        if (&(provoz2.*jiny) != &seznam)
            (provoz2.*jiny).vybrany = -1;
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

void posun_vyber_provozu2(int o_kolik) {
    const std::size_t s = vybrany_seznam();
    if (s == kSeznamy.size()) {
        dalsi_seznam_provozu2(false);
        return;
    }
    Seznam& seznam = provoz2.*kSeznamy[s];
    vyber_radek(seznam, std::max(0, seznam.vybrany + o_kolik));
}

void dalsi_seznam_provozu2(bool zpet) {
    const std::size_t pocet = kSeznamy.size(), ted = vybrany_seznam();
    for (std::size_t krok = 1; krok <= pocet; ++krok) {
        // without a selection the first list comes next, and the last one before
        const std::size_t s =
            zpet ? (ted + pocet - krok) % pocet : ((ted == pocet ? pocet - 1 : ted) + krok) % pocet;
        if (Seznam& seznam = provoz2.*kSeznamy[s]; !seznam.radky.empty()) {
            vyber_radek(seznam, 0);
            return;
        }
    }
}

void smaz_v_provozu2() {
    const std::size_t s = vybrany_seznam();
    if (s == kSeznamy.size())
        return;
    const int radek = (provoz2.*kSeznamy[s]).vybrany;
    if (&(provoz2.*kSeznamy[s]) == &provoz2.lstZasobnik)
        odeber_ze_zasobniku(vybrana_cesta());
    else if (&(provoz2.*kSeznamy[s]) == &provoz2.lstmakra)
        smaz_makro(provoz2.pismena_maker[static_cast<std::size_t>(radek)]);
    else
        return;
    napln_provoz2();
    tik_provozu2();
    vyber_radek(provoz2.*kSeznamy[s], radek);
}

// --- by its timer

void tik_provozu2() {
    if (!provoz2_otevren())
        return;
    const NastennyCas ted = platforma.nastenny_cas();
    const auto dve = [](int cislo) { return text_cisla_mist(cislo, 2); };
    provoz2.lblDatum = " " + dve(ted.den) + "." + dve(ted.mesic) + "." + dve(ted.rok % 100) + " " +
                       dve(ted.hodina) + ":" + dve(ted.minuta) + ":" + dve(ted.sekunda);
}

int perioda_provozu2() {
    return provoz2_otevren() ? kPeriodaData_ms : 0;
}

// --- at any time

bool provoz2_otevren() {
    return simulace.obrazovka == kObrazovkaProvoz2;
}

Text hlava_technologie() {
    return " RVZ     Tesk     t0049 f0230      ver " + text_cisla(kVerzeMajor) + "." +
           text_cisla(kVerzeMinor);
}

Text cisla_radku(int pocet) {
    Text text;
    for (int i = 1; i <= pocet; ++i)
        text += (i < 10 ? " " : "") + text_cisla(i) + "\x0D\x0A";
    return text;
}
