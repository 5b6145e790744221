// technologie/dohled.cpp - ES DOHLED.
#include "technologie/dohled.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "uzel/prejezdy.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<SeznamTechnologie, 2> kSeznamyDohled = {{
    {"lstJC", "Jízdní cesty"_cz, &dohled.lstJC, 23},
    {"lblStav_prejezdu", kHlavaPrejezdu, &dohled.lblStav_prejezdu, 2},
}};

// Columns, counted from 1.
namespace radek_cesty {
constexpr std::size_t sirka = 77, cislo = 1, druh = 6, jmeno = 11, navest = 42;
}
namespace radek_prejezdu {
constexpr std::size_t sirka = 80, jmeno = 1, podminka = 20, cas = 60, data = 79;
}

// --- routes

// A route on which a train has come out to the line is the line's business.
bool je_v_dohledu(const Cesta& c) {
    if (c.konec < 0 || !c.prehozena || c.ZT == kZTprogramu)
        return false;
    return c.Umazat == 0 || (c.Umazat < c.prvky.size() && !je_usek_trati(c.prvky[c.Umazat].prvek));
}

// Name of the end, or of the signal that stands there.
Text jmeno_konce_cesty(const Cesta& c) {
    const Text konec = jmeno_konce(c.konec);
    return orez(konec).empty() ? jmeno_navestidla(c.konec) : konec;
}

Text radek(int i) {
    const Cesta& c = cesta_c(i);
    Text text(radek_cesty::sirka, ' ');
    vloz_do(text, radek_cesty::cislo, text_cisla(c.ZT) + ".");
    vloz_do(text, radek_cesty::druh, !c.VC ? "PC" : c.PN ? "PN" : "VC");
    vloz_do(text, radek_cesty::jmeno, jmeno_navestidla(c.zacatek) + " " + jmeno_konce_cesty(c));
    vloz_do(text, radek_cesty::navest, aspekt_text(i));
    return text;
}

// --- crossings

// What closes the crossing, or holds it closed: the operator, a route, trains.
Text podminka(std::size_t k) {
    const StanicniPrejezd& p = stanicni_prejezdy[k];
    if (p.UZ)
        return "UZ";
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (cesty[i].zacatek >= 0 && cesty[i].prehozena && cesty[i].prejezd == k)
            return popis_cesty(static_cast<int>(i));
    if (p.pocet != kBezVlaku)
        return Text("vlak v obvodu, počet "_cz) + text_cisla(p.pocet - kBezVlaku);
    if (p.cas >= 0)
        return Text("přiblížení vlaku"_cz);
    return "-";
}

// The time until it closes, or its state. A train has run in and the demand of its route is over: the
// warning is annulled, the train itself keeps the road closed.
Text cas_nebo_stav(const StanicniPrejezd& p) {
    if (p.cas >= 0 && !p.uzavren) {
        const std::int32_t zbyva = std::max(0, p.cas - ted_s());
        return text_cisla(zbyva / 60) + ":" + text_cisla_mist(zbyva % 60, 2);
    }
    if (p.UZ)
        return Text("UZAVŘENO VÝPRAVČÍM"_cz);
    if (p.uzavren)
        return Text("UZAVŘEN"_cz);
    return Text(p.pocet != kBezVlaku ? "ANULACE"_cz : "OTEVŘEN"_cz);
}

Text radek_prejezdu_k(std::size_t k) {
    Text text(radek_prejezdu::sirka, ' ');
    vloz_do(text, radek_prejezdu::jmeno, uzel::kPrejezdyStanic[k].stitek);
    vloz_do(text, radek_prejezdu::podminka,
            vyrez(podminka(k), 1, radek_prejezdu::cas - radek_prejezdu::podminka - 1));
    vloz_do(text, radek_prejezdu::cas, cas_nebo_stav(stanicni_prejezdy[k]));
    vloz_do(text, radek_prejezdu::data, "OK");
    return text;
}

} // namespace

void napln_dohled() {
    dohled = Dohled{};
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (je_v_dohledu(cesty[i]))
            dohled.lstJC.radky.push_back(radek(static_cast<int>(i)));
    for (std::size_t k = 0; k < stanicni_prejezdy.size(); ++k)
        dohled.lblStav_prejezdu.radky.push_back(radek_prejezdu_k(k));
}

void zapomen_dohled() {
    dohled = Dohled{};
}

std::span<const SeznamTechnologie> seznamy_dohledu() {
    return kSeznamyDohled;
}
