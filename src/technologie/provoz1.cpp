// technologie/provoz1.cpp - PROVOZ 1: faults and drivers.
#include "technologie/provoz1.h"

#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/duvod.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "prvky/jmena.h"
#include "prvky/vyhybky.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>

namespace {

constexpr TextPohled kZnacky = "\\|/-";   // the mark turns in this order
constexpr std::size_t kSirkaDriveru = 16; // a line of the panel, the mark behind it

// Drivers of the panel itself, for the look of the real one.
constexpr std::array<TextPohled, 3> kPevneDrivery = {"PN  |L1", "VC  |L1", "S+  |13"};

constexpr std::array<SeznamTechnologie, 4> kSeznamyProvoz1 = {{
    {"lstporuchy_volby", "Poruchy volby", &provoz1.lstporuchy_volby, 12},
    {"lblDrivery", "Drivery", &provoz1.lblDrivery, 74},
    {"lstporuchy", "Poruchy technologie", &provoz1.lstporuchy, 12},
    {"lstnevratne", "Nevratné poruchy tech."_cz, &provoz1.lstnevratne, 8},
}};

// --- drivers

// A slash is a position of the mark and cannot stand in a name.
Text jmeno_driveru(Text jmeno) {
    std::replace(jmeno.begin(), jmeno.end(), '/', '_');
    return jmeno;
}

void pridej_driver(TextPohled povel, const Text& jmeno) {
    Text radek(povel);
    radek.resize(4, ' ');
    radek += "|" + jmeno_driveru(jmeno) + " ";
    if (radek.size() < kSirkaDriveru)
        radek.resize(kSirkaDriveru, ' ');
    provoz1.lblDrivery.radky.push_back(radek + kZnacky.front());
}

// The order that keeps a switch where it is: S- when it stands in the position that S- brings, else S+.
TextPohled povel_vyhybky(int n) {
    if (!relief.imgVyhybka.je(n))
        return "S+";
    const int poloha = poloha_stavu(stav_vyhybky_cislo(n));
    const bool v_minus = cilova_poloha(poloha, PovelVyhybky::minus) == poloha &&
                         cilova_poloha(poloha, PovelVyhybky::plus) != poloha;
    return v_minus ? "S-" : "S+";
}

// The routes whose switches are commanded, then every switch of the interlocking.
void napln_drivery() {
    for (const TextPohled pevny : kPevneDrivery)
        pridej_driver(orez(pevny.substr(0, 4)), Text(pevny.substr(5)));
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && c.prehozena)
            pridej_driver(!c.VC ? "PC" : c.PN ? "PN" : "VC", jmeno_navestidla(c.zacatek));
    for (const ZaznamVazeb& v : vazby_vyhybek())
        pridej_driver(povel_vyhybky(v.cislo), v.nazev);
}

// --- faults

void napln_poruchy_volby() {
    for (const int i : radky_zasobniku())
        if (const Text duvod = duvod_cekani(i); !duvod.empty())
            provoz1.lstporuchy_volby.radky.push_back(popis_cesty(i) + ": " + duvod);
}

bool je_vazana(int s_kym, int n) {
    const ZaznamVazeb* zaznam = najdi_vazby(s_kym);
    return zaznam != nullptr &&
           std::find(zaznam->vazby.begin(), zaznam->vazby.end(), n) != zaznam->vazby.end();
}

// Something will end the movement of switch n: the throw by hand, or a route whose switches are commanded.
bool dobehne(int n) {
    const int rucne = stav_vyhybek.prehoz_vyhybka;
    if (rucne >= 0 && (rucne == n || je_vazana(rucne, n)))
        return true;
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.prehozena || c.Provedena)
            continue;
        for (std::size_t k = 1; k < c.prvky.size(); ++k)
            if (druh_na(c, k) == druh_prvku::vyhybka &&
                (c.prvky[k].prvek == n || je_vazana(c.prvky[k].prvek, n)))
                return true;
    }
    return false;
}

// A second throw by hand overwrites the first: that switch stays without supervision until NOUZ.
void napln_nevratne() {
    const auto pocet = static_cast<int>(stav_vyhybek.vyhybka_pohyb.size());
    for (int n = 0; n < pocet; ++n) {
        if (!vyhybka_v_pohybu(n) || dobehne(n))
            continue;
        const ZaznamVazeb* zaznam = najdi_vazby(n);
        const Text jmeno = zaznam != nullptr ? zaznam->nazev : text_cisla(n);
        provoz1.lstnevratne.radky.push_back(Text("Výhybka "_cz) + jmeno_driveru(jmeno) +
                                            Text(" nemá dohled: NOUZ"_cz));
    }
}

// A table that the installation lacks leaves its lines out; the screen opens all the same.
void bez_tabulky(void (*napln)()) {
    try {
        napln();
    } catch (const BehovaChyba& chyba) {
        if (chyba.kod != KodChyby::soubor_nenalezen)
            throw;
    }
}

} // namespace

void napln_provoz1() {
    provoz1 = Provoz1{};
    bez_tabulky(napln_poruchy_volby);
    bez_tabulky(napln_drivery);
    provoz1.lstporuchy.radky = simulace.poruchy;
    bez_tabulky(napln_nevratne);
}

void zapomen_provoz1() {
    provoz1 = Provoz1{};
}

std::span<const SeznamTechnologie> seznamy_provozu1() {
    return kSeznamyProvoz1;
}

void pootoc_znacky() {
    for (Text& radek : provoz1.lblDrivery.radky) {
        const std::size_t ted = kZnacky.find(radek.back());
        radek.back() = kZnacky[(ted + 1) % kZnacky.size()];
    }
}
