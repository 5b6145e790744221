// vypravci/pohled.cpp - what is seen on the desk.
#include "vypravci/pohled.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/navest.h"
#include "desk/hlaseni.h"
#include "desk/stitky.h"
#include "gvd/gvd.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "prvky/navestidla.h"
#include "relief/relief.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "uzel/zastavky.h"
#include "zaklad/soubory.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kCerstvaCesta_s = 30; // a route that nothing hinders is commanded by then

planovani::Sit vlakova, posunova;

bool je_na_stole(std::int32_t cislo) {
    return std::any_of(vlaky.begin(), vlaky.end(), [cislo](const Vlak& v) { return v.cislo == cislo; });
}

} // namespace

const planovani::Sit& sit_vlaku() {
    return vlakova;
}

const planovani::Sit& sit_posunu() {
    return posunova;
}

void nacti_site() {
    const Bajty top = nacti_soubor(simulace.cesta_aplikace + "data\\tesk.top");
    vlakova = planovani::sestav_sit(top, nacti_soubor(simulace.cesta_aplikace + "data\\tesk.zat"));
    posunova = planovani::sestav_sit(top, nacti_soubor(simulace.cesta_aplikace + "data\\tesk.zpc"));
}

int kolej_cela(const Vlak& v) {
    for (auto p = v.prvky.rbegin(); p != v.prvky.rend(); ++p)
        if (p->druh == druh_prvku::kolej)
            return p->prvek;
    return kZadny;
}

bool cely_na_koleji(const Vlak& v) {
    return !v.prvky.empty() && v.prvky.back().druh == druh_prvku::kolej &&
           static_cast<std::size_t>(v.prvek_konec) + 1 == v.prvky.size();
}

int do_odjezdu_s(const Vlak& v) {
    constexpr int kNikdy = std::numeric_limits<int>::max() / 2;
    if (v.muze_jet || v.posun || v.zastavky.empty())
        return 0;
    const auto i = static_cast<std::size_t>(std::max<int>(v.stanice_index, 0));
    if (i >= v.zastavky.size())
        return 0;
    const Zastavka& z = v.zastavky[i];
    // A train that is announced at a neighbouring station sets off there by its time and its delay.
    const bool ohlasen = v.stanice_index < 0 && z.stanice != dopravna::tesk;
    const int odjezd = ohlasen ? z.odjezd + v.zpozdeni_vstup : z.odjezd_realny;
    if (odjezd == kNaPovel)
        return kNikdy;
    if (odjezd < 0)
        return 0;
    return std::max(0, (odjezd - cas_min()) * 60 - cas_hodin() % 60);
}

int planovana_kolej(const Vlak& v) {
    const TextPohled pokyn = orez(v.pokyn);
    if (pokyn.empty())
        return kZadny;
    for (int e = 0; e < kPrvniTrat; ++e)
        if (uzel::je_kolej_hlavniho(e) && je_cislo_koleje(e) && orez(relief.cislo_koleje[e].popis()) == pokyn)
            return e;
    return kZadny;
}

bool je_zastavka_na_trati(int stanice) {
    return std::any_of(uzel::kMistaStopu.begin(), uzel::kMistaStopu.end(), [=](const uzel::MistoStopu& m) {
        return m.stanice == stanice && je_usek_trati(m.od) && m.od != uzel::kT2;
    });
}

bool je_zdvojen(int v) {
    const Vlak& t = vlak_c(v);
    const auto u_nastupiste = [](const Vlak& x) { return uzel::je_kolej_hlavniho(kolej_cela(x)); };
    const auto poradi = [](const Vlak& x) { return kolej_cela(x) == planovana_kolej(x) ? 0 : 1; };
    if (t.cislo < 1 || t.posun || t.prvky.empty() || t.stanice_index > 0 || jen_loko(t) ||
        t.zastavky.empty() || t.zastavky.front().stanice != dopravna::tesk || !u_nastupiste(t))
        return false;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& jiny = vlaky[i];
        if (static_cast<int>(i) == v || jiny.cislo != t.cislo || jiny.posun || jiny.prvky.empty() ||
            jen_loko(jiny))
            continue;
        if (!u_nastupiste(jiny) || poradi(jiny) < poradi(t) ||
            (poradi(jiny) == poradi(t) && static_cast<int>(i) < v))
            return true;
    }
    return false;
}

int kdo_drzi(int e) {
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (vlaky[v].cislo > 0 && drzi_prvek(vlaky[v], e))
            return static_cast<int>(v);
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && c.Vlak >= 0 && posledni_prvek(c) == e)
            return c.Vlak;
    return kZadny;
}

int prijde_vlaku(int stanice, int minut) {
    int pocet = 0;
    const int ted = minuta_dne(cas_hodin());
    for (int m = ted; m <= ted + minut; ++m)
        for (const int n : gvd_vlaky.v_minute(m % kDen_min)) {
            const GvdVlak& r = radek_gvd(n);
            pocet += r.zastavky.front().stanice == stanice && aktivni_dnes(r) &&
                             zpozdeni_vlaku(r.cislo) == 0 && !je_na_stole(r.cislo)
                         ? 1
                         : 0;
        }
    for (const Hlaseni& h : hlaseni)
        if (h.zpozdeni)
            for (const auto& [klic, n] : gvd_vlaky.s_cislem(h.cislo)) {
                const GvdVlak& r = radek_gvd(n);
                const int za = ((cas_vstupu(r) + h.minut - ted) % kDen_min + kDen_min) % kDen_min;
                pocet +=
                    r.zastavky.front().stanice == stanice && za <= minut && !je_na_stole(h.cislo) ? 1 : 0;
            }
    return pocet;
}

Text jmeno_vlaku(const Vlak& v) {
    return druh_a_cislo(v.cislo2_platne ? v.druh2 : v.druh, zobrazene_cislo(v));
}

Text jmeno_koleje(int e) {
    const int stanice = planovani::stanice_elementu(e);
    Text t("kolej "_cz);
    const TextPohled popis = je_cislo_koleje(e) ? orez(relief.cislo_koleje[e].popis()) : TextPohled{};
    t += popis.empty() ? text_cisla(e) : Text(popis);
    if (stanice != 0 && !nazev_stanice(stanice).empty()) {
        t += " (";
        t += nazev_stanice(stanice);
        t += ")";
    }
    return t;
}

bool ma_vyluku(int e) {
    const int i = stitek_prvku(e);
    return i >= 0 && !stitky[static_cast<std::size_t>(i)].vyluka.empty();
}

bool je_vyloucena(const ZaznamCesty& z) {
    if (je_zablokovano(z.zacatek) || ma_vyluku(z.konec))
        return true;
    return std::any_of(z.prvky.begin() + 1, z.prvky.end(),
                       [](const PrvekCesty& p) { return p.druh == druh_prvku::kolej && ma_vyluku(p.prvek); });
}

namespace {

Prekazka prekazka_prvku(const ZaznamCesty& z, std::size_t prvku, bool vlakova_cesta) {
    static Cesta c;
    c.zacatek = z.zacatek;
    c.konec = z.konec;
    c.prvky.assign(z.prvky.begin(), z.prvky.begin() + static_cast<std::ptrdiff_t>(prvku));
    c.VC = vlakova_cesta;
    c.prejezd = kBezPrejezdu;
    return prekazka_staveni(c);
}

} // namespace

Prekazka prekazka_cesty(const planovani::Trasa& t, bool vlakova_cesta) {
    return prekazka_prvku(t.zaznam, t.tabulkovych, vlakova_cesta);
}

Prekazka prekazka_cesty(const ZaznamCesty& z, bool vlakova_cesta) {
    return prekazka_prvku(z, z.prvky.size(), vlakova_cesta);
}

const Cesta* ceka_pred_ni(const ZaznamCesty& z) {
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && !c.prehozena && ted_s() - c.cas_stavby < kCerstvaCesta_s)
            for (std::size_t k = 1; k < c.prvky.size(); ++k)
                if (std::find_if(z.prvky.begin() + 1, z.prvky.end(), [&](const PrvekCesty& p) {
                        return p.druh == c.prvky[k].druh && p.prvek == c.prvky[k].prvek;
                    }) != z.prvky.end())
                    return &c;
    return nullptr;
}

int cesta_v_zasobniku(int zacatek, int konec) {
    for (std::size_t i = 0; i < cesty.size(); ++i)
        if (cesty[i].zacatek == zacatek && cesty[i].konec == konec && cesty[i].Umazat == 0)
            return static_cast<int>(i);
    return kZadny;
}
