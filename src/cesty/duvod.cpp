// cesty/duvod.cpp - "why not?"
#include "cesty/duvod.h"

#include "app/cas.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/navest.h"
#include "cesty/prekazky.h"
#include "cesty/smer_trati.h"
#include "cesty/tabulky.h"
#include "cesty/zasobnik.h"
#include "prvky/jmena.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

// The switch itself, without those that are thrown with it.
Text jmeno_vyhybky(int n) {
    const ZaznamVazeb* zaznam = najdi_vazby(n);
    const Text nazev = zaznam == nullptr ? Text{} : zaznam->nazev.substr(0, zaznam->nazev.find('/'));
    return orez(nazev).empty() ? text_cisla(n) : Text(orez(nazev));
}

Text jmeno_useku(int n) {
    const Text nazev = jmeno_konce(n);
    return orez(nazev).empty() ? text_cisla(n) : Text(orez(nazev));
}

Text sekundy(std::int32_t s) {
    return text_cisla(s) + " s";
}

// "je pod závěrem cesty VC ...": what keeps a switch from being thrown.
Text stav_slovy(int n) {
    const int stav = stav_vyhybky_cislo(n);
    if (stav / 50 * 50 == stav_vyhybky::obsazena)
        return "je obsazena";
    const Cesta* drzi = drzitel(druh_prvku::vyhybka, n);
    if (stav > 49)
        return drzi == nullptr ? Text("je pod závěrem"_cz)
                               : Text("je pod závěrem cesty "_cz) + popis_cesty(*drzi);
    // thrown by hand, or for a route that is being set
    return drzi == nullptr || drzi->Provedena ? Text("se přestavuje"_cz)
                                              : Text("se přestavuje pro cestu "_cz) + popis_cesty(*drzi);
}

// What becomes of a switch that is not the route's any more.
Text ztracena_slovy(const Cesta& c, int n) {
    if (const Cesta* drzi = drzitel(druh_prvku::vyhybka, n))
        return Text("je pod závěrem cesty "_cz) + popis_cesty(*drzi);
    for (std::size_t k = 1; k < c.prvky.size(); ++k)
        if (c.prvky[k].prvek == n && druh_na(c, k) == druh_prvku::vyhybka &&
            poloha_stavu(stav_vyhybky_cislo(n)) == poloha_na(c, k))
            return Text("není pod závěrem (NOUZ)"_cz);
    return Text("není v poloze cesty (NOUZ)"_cz);
}

Text duvod_useku(int n) {
    const int m = nevolny_usek(n);
    Text veta(m == n ? "úsek "_cz : "křižující úsek "_cz);
    veta += jmeno_useku(m);
    if (relief.kolej[m].barva == barvy::cervena)
        return veta + Text(" je obsazen"_cz);
    if (const Cesta* drzi = drzitel(druh_prvku::kolej, m))
        return veta + Text(" je pod závěrem cesty "_cz) + popis_cesty(*drzi);
    return veta + Text(" není volný"_cz);
}

// The route at which the end is refused, by the condition that refuses it.
template <class Podminka> Text duvod_konce(TextPohled veta, Podminka podminka) {
    const auto drzi = std::find_if(cesty.begin(), cesty.end(), podminka);
    return Text(veta) + (drzi == cesty.end() ? Text{} : popis_cesty(*drzi));
}

Text duvod_smeru(int konec) {
    const Text kolej = jmeno_useku(konec);
    Text veta(je_usek_trati(konec) ? "na traťové koleji "_cz : "na trati za kolejí "_cz);
    return veta + kolej + Text(" platí opačný směr"_cz);
}

Text veta_prekazky(const Cesta& c, const Prekazka& p) {
    switch (p.druh) {
    case DruhPrekazky::zadna: return {};
    case DruhPrekazky::navestidlo:
        return Text("návěstidlo "_cz) + jmeno_navestidla(p.prvek) + Text(" je zablokováno (ZAM)"_cz);
    case DruhPrekazky::vyhybka:
    case DruhPrekazky::pohyb_vyhybky:
        return Text("výhybka "_cz) + jmeno_vyhybky(p.prvek) + " " + stav_slovy(p.prvek);
    case DruhPrekazky::bocni_vyhybka:
        return Text("výhybka "_cz) + jmeno_vyhybky(p.prvek) + Text(" nedává boční ochranu, protože "_cz) +
               stav_slovy(p.prvek);
    case DruhPrekazky::pod_vlakem:
        return Text("výhybka "_cz) + jmeno_vyhybky(p.prvek) + Text(" je pod vlakem"_cz);
    case DruhPrekazky::pred_vlakem: {
        const Cesta* vlaku = cesta_vlaku_na_vyhybku(p.prvek);
        return Text("výhybka "_cz) + jmeno_vyhybky(p.prvek) + Text(" leží před vlakem na cestě "_cz) +
               (vlaku == nullptr ? Text{} : popis_cesty(*vlaku));
    }
    case DruhPrekazky::ztracena:
        return Text("výhybka "_cz) + jmeno_vyhybky(p.prvek) + " " + ztracena_slovy(c, p.prvek);
    case DruhPrekazky::usek: return duvod_useku(p.prvek);
    case DruhPrekazky::konec:
        return duvod_konce("konec cesty drží cesta "_cz, [&](const Cesta& jina) {
            return posledni_prvek(jina) == c.konec && (jina.prehozena || jina.Postavena);
        });
    case DruhPrekazky::vlakova_cesta:
        return duvod_konce("na konec cesty vede cesta "_cz, [&](const Cesta& jina) {
            return posledni_prvek(jina) == posledni_prvek(c) && jina.VC && !jina.PN && jina.prehozena &&
                   jina.Umazat == 0;
        });
    case DruhPrekazky::opacny_smer: return duvod_smeru(c.konec);
    case DruhPrekazky::souhlas:
        return Text("souhlas "_cz) + Text(uzel::kKonceTrati[static_cast<std::size_t>(p.prvek)].nazev) +
               Text(" není volný"_cz);
    case DruhPrekazky::kolej_118:
        return Text("směr na koleji "_cz) + jmeno_useku(uzel::kKamenec) + Text(" není volný"_cz);
    }
    return {};
}

// With VZ in force the first route before this one that is blocked holds it back.
const Cesta* zdrzujici(int i, std::int32_t ted) {
    if (!plati_vz())
        return nullptr;
    for (int j = 0; j < i; ++j) {
        const Cesta& c = cesta_c(j);
        if (c.Vlak == kKopieAB)
            continue;
        const FazeCesty faze = faze_cesty(c, ted);
        if ((faze == FazeCesty::staveni && prekazka_staveni(c)) ||
            (faze == FazeCesty::zaver && ted > c.Kdy_prehoz &&
             (prekazka_zaveru(c) || zbyva_prejezdu(c, ted) > 0)))
            return &c;
    }
    return nullptr;
}

Text duvod_staveni(int i, const Cesta& c, std::int32_t ted) {
    if (const Cesta* pred = zdrzujici(i, ted))
        return Text("před ní čeká cesta "_cz) + popis_cesty(*pred) + Text(" (VZ)"_cz);
    return veta_prekazky(c, prekazka_staveni(c));
}

Text duvod_zaveru(const Cesta& c, std::int32_t ted) {
    if (ted <= c.Kdy_prehoz)
        return Text("přestavují se výhybky, závěr za "_cz) + sekundy(c.Kdy_prehoz - ted + 1);
    if (const Prekazka p = prekazka_zaveru(c))
        return veta_prekazky(c, p);
    if (const std::int32_t zbyva = zbyva_prejezdu(c, ted); zbyva > 0)
        return Text("čeká na uzavření přejezdu "_cz) + Text(uzel::kPrejezdyStanic[c.prejezd].kilometr) +
               Text(", zbývá "_cz) + sekundy(zbyva);
    return {};
}

Text duvod_klidu(const Cesta& c, std::int32_t ted) {
    if (c.Provedena && c.PN && c.PN_do < ted && c.Umazat == 0)
        return c.Postavena ? Text("přivolávací návěst skončila, závěr uvolní RNZ"_cz)
                           : Text("přivolávací návěst nesvítila (ZAM), závěr uvolní RNZ"_cz);
    if (c.Provedena && (c.Postavena || c.Umazat != 0))
        return {};
    if (const int n = c.Provedena ? ztracena_vyhybka(c) : kZadny; n != kZadny)
        return Text("výhybka "_cz) + jmeno_vyhybky(n) + " " + ztracena_slovy(c, n) +
               Text(", cestu lze jen zrušit (RC)"_cz);
    if (c.Provedena)
        return je_zablokovano(c.zacatek) ? veta_prekazky(c, {DruhPrekazky::navestidlo, c.zacatek, 0})
                                         : Text("návěstidlo je na STŮJ, návěst obnoví DN"_cz);
    if (c.varovani != 0)
        return Text("čeká na potvrzení výstrahy"_cz);
    if (c.cas_stavby > ted)
        return Text("čeká na dobu stavění, zbývá "_cz) + sekundy(c.cas_stavby - ted);
    return {};
}

} // namespace

Text duvod_cekani(int i) {
    if (i < 0 || static_cast<std::size_t>(i) >= cesty.size())
        return {};
    const Cesta& c = cesta_c(i);
    if (c.zacatek < 0)
        return {};
    if (static_cast<std::size_t>(i) >= kNejvicCest)
        return Text("je před ní 256 cest, víc jich stavědlo naráz neobslouží"_cz);
    const std::int32_t ted = ted_s();
    switch (faze_cesty(c, ted)) {
    case FazeCesty::zruseni:
    case FazeCesty::odpocet_ruseni:
        return Text("ruší se, závěr se uvolní za "_cz) + sekundy(std::max(c.cas_ruseni - ted, 0));
    case FazeCesty::staveni: return duvod_staveni(i, c, ted);
    case FazeCesty::zaver: return duvod_zaveru(c, ted);
    case FazeCesty::klid: return duvod_klidu(c, ted);
    case FazeCesty::privolavaci:
    case FazeCesty::konec_privolavaci: return {};
    }
    return {};
}

Text duvod_zasobniku() {
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (ceka_na_ni_zasobnik(cesty[i])) // the same pick may stand already and be queued once more
            if (Text duvod = duvod_cekani(static_cast<int>(i)); !duvod.empty())
                return duvod;
    return {};
}

Text duvod_u_navestidla(int s) {
    if (s < 0)
        return {};
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (cesty[i].zacatek == s)
            if (Text duvod = duvod_cekani(static_cast<int>(i)); !duvod.empty())
                return duvod;
    return {};
}
