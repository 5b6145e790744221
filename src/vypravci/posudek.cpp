// vypravci/posudek.cpp - what keeps a route from being ordered.
#include "vypravci/posudek.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "gvd/casy.h"
#include "gvd/gvd.h"
#include "prvky/jmena.h"
#include "prvky/volnost.h"
#include "uzel/dopravny.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/vstupy.h"
#include "vypravci/banker.h"
#include "vypravci/cesta_vlaku.h"
#include "vypravci/pohled.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <vector>

using planovani::KrokTrasy;

namespace vypravovani {

namespace {

constexpr int kStavba_s = 10;   // a route takes so long, and with the speed of the clock more
constexpr int kPredstih_s = 12; // and stands so long before it is needed
constexpr int kPrejezd_s = 50;  // a crossing that has to close before the signal clears
constexpr int kVstup_min = 4;   // so long ahead entry tracks are kept free

std::vector<UcastnikBankere> ucastnici;
std::vector<int> ucastnik_vlaku; // index in `vlaky` of each
std::vector<std::uint8_t> obsazena, uvazli_pred, uvazli_po;
std::uint32_t posouzena_zmena = 0; // who is stuck is known for the ways as they were then

// The tracks on which trains of one station or depot come into the junction, when `prvek` is one of them; its
// code in `stanice`. Empty for any other track.
std::span<const int> vstupni_koleje(int prvek, int& stanice) {
    const auto ma = [prvek](const auto& koleje) {
        return prvek != 0 && std::find(koleje.begin(), koleje.end(), prvek) != koleje.end();
    };
    for (const uzel::StaniceOhlaseni& s : uzel::kOhlasovane)
        if (ma(s.koleje)) {
            stanice = s.kod;
            return s.koleje;
        }
    for (const uzel::VstupZeStanice& s : uzel::kVstupy)
        if (ma(s.koleje)) {
            stanice = s.stanice;
            return s.koleje;
        }
    static constexpr std::array kDepoVh = {uzel::kBranaVh.kolej};
    if (ma(kDepoVh)) {
        stanice = dopravna::dkv_vh;
        return kDepoVh;
    }
    return {};
}

// An exit: who comes there leaves the junction, or is taken over by a neighbour.
bool je_konecna(int prvek) {
    int stanice = 0;
    return !vstupni_koleje(prvek, stanice).empty() || prvek == uzel::kBranaVychod.kolej ||
           uzel::konec_trati(prvek) >= 0;
}

void priprav_bankere() {
    ucastnici.clear();
    ucastnik_vlaku.clear();
    obsazena.assign(kMist, 0);
    for (std::size_t w = 0; w < vlaky.size(); ++w) {
        const Vlak& vlak = vlaky[w];
        if (vlak.cislo < 1 || vlak.prvky.empty())
            continue;
        const Jizda& j = jizdy[w];
        if (!j.jede || (j.cesta.empty() && !(j.doma && je_konecna(j.hranice.prvek)))) {
            for (std::size_t k = static_cast<std::size_t>(std::max<int>(vlak.prvek_konec, 0));
                 k < vlak.prvky.size(); ++k)
                if (vlak.prvky[k].druh == druh_prvku::kolej)
                    ++obsazena[static_cast<std::size_t>(misto_prvku(vlak.prvky[k].prvek))];
            if (j.jede && j.hranice.prvek != kolej_cela(vlak))
                ++obsazena[static_cast<std::size_t>(misto_prvku(j.hranice.prvek))];
            continue;
        }
        UcastnikBankere u;
        u.misto = misto_prvku(j.hranice.prvek);
        u.poradi = j.do_hranice_s;
        u.cesta = j.cesta;
        ucastnici.push_back(u);
        ucastnik_vlaku.push_back(static_cast<int>(w));
    }
}

// Who is stuck as the desk stands.
void posud_stul() {
    if (posouzena_zmena == zmena_cest())
        return;
    priprav_bankere();
    uvazli(sit(), ucastnici, obsazena, bez_tras(), uvazli_pred);
    posouzena_zmena = zmena_cest();
}

// Nobody is stuck with the participants as they are now who is not stuck without what is asked.
bool nikdo_dalsi_neuvazne() {
    uvazli(sit(), ucastnici, obsazena, bez_tras(), uvazli_po);
    for (std::size_t k = 0; k < uvazli_po.size(); ++k)
        if (uvazli_po[k] != 0 && (k >= uvazli_pred.size() || uvazli_pred[k] == 0))
            return false;
    return true;
}

// The train may take the first route of its way, to the track `prvek`: nobody is stuck by it who was not
// before.
bool je_bezpecne(int v, int prvek, std::span<const KrokTrasy> zbytek) {
    posud_stul();
    const auto i = static_cast<std::size_t>(std::find(ucastnik_vlaku.begin(), ucastnik_vlaku.end(), v) -
                                            ucastnik_vlaku.begin());
    if (i >= ucastnici.size())
        return true;
    const UcastnikBankere pred = ucastnici[i];
    ucastnici[i].misto = misto_prvku(prvek);
    ucastnici[i].poradi += 100'000; // behind those that are there
    ucastnici[i].cesta = zbytek;
    // One that would not get to its end in any case stays off the lines.
    const bool lze = nikdo_dalsi_neuvazne() && (uvazli_po[i] == 0 || !planovani::je_tratovy(prvek));
    ucastnici[i] = pred;
    return lze;
}

// A train that ends there would take the last track on which one is due to come in.
bool brani_vstupu(int prvek) {
    int stanice = 0;
    const auto koleje = vstupni_koleje(prvek, stanice);
    if (koleje.empty())
        return false;
    const int prijde = prijde_vlaku(stanice, kVstup_min);
    if (prijde == 0)
        return false;
    int volnych = 0;
    for (const int e : koleje)
        volnych += e != 0 && e != prvek && je_volna_kolej(e) ? 1 : 0;
    return volnych < prijde;
}

Text veta_prekazky(const Prekazka& p) {
    switch (p.druh) {
    case DruhPrekazky::usek:
    case DruhPrekazky::konec: {
        Text t = jmeno_koleje(p.prvek);
        const int w = kdo_drzi(p.prvek);
        if (w >= 0) {
            t += " drží "_cz;
            t += jmeno_vlaku(vlak_c(w));
        } else {
            t += " není volná"_cz;
        }
        return t;
    }
    case DruhPrekazky::navestidlo:
        return Text("návěstidlo "_cz) + jmeno_navestidla(p.prvek) + Text(" je zablokováno"_cz);
    case DruhPrekazky::opacny_smer: return Text("trať drží vlak opačného směru"_cz);
    case DruhPrekazky::souhlas: return Text("na trati je udělen souhlas sousední stanici"_cz);
    case DruhPrekazky::kolej_118: return Text("trať přes Kamenec je obsazena"_cz);
    case DruhPrekazky::vyhybka:
    case DruhPrekazky::bocni_vyhybka:
        if (const Cesta* c = drzitel(druh_prvku::vyhybka, p.prvek); c != nullptr)
            return Text("v cestě je "_cz) + popis_cesty(*c);
        return Text("zhlaví ještě není volné"_cz);
    default: return Text("zhlaví ještě není volné"_cz);
    }
}

// Another train is before it at the track where the route begins: it would take the route.
int jiny_na_zacatku(const planovani::Trasa& t, int v) {
    const int e = t.zaznam.prvky.front().prvek;
    if (kolej_cela(vlak_c(v)) == e)
        return kZadny;
    const Jizda& moje = jizda_vlaku(v);
    for (std::size_t w = 0; w < vlaky.size(); ++w) {
        const Vlak& vlak = vlaky[w];
        if (static_cast<int>(w) == v || vlak.cislo < 1 || vlak.posun || vlak.prvky.empty())
            continue;
        const bool stoji_tam = vlak.prvky.back().prvek == e && vlak.prvky.back().druh == druh_prvku::kolej;
        const Jizda& j = jizdy[w];
        if (stoji_tam || (j.jede && !j.doma && j.hranice.prvek == e && j.hranice.smer == moje.hranice.smer &&
                          j.do_hranice_s < moje.do_hranice_s))
            return static_cast<int>(w);
    }
    return kZadny;
}

} // namespace

Posudek posud(int v, std::size_t trasa, std::span<const KrokTrasy> zbytek) {
    const planovani::Trasa& t = trasa_c(trasa);
    if (!vypravci::ma_navestidlo(t.zaznam.zacatek))
        return {Verdikt::cizi, {}};
    if (const int w = jiny_na_zacatku(t, v); w >= 0)
        return {Verdikt::zatim_ne, jmeno_vlaku(vlak_c(w)) + Text(" je před ním"_cz)};
    if (bez_tras()[trasa] != 0)
        return {Verdikt::neni, Text("cesta je vyloučena"_cz)};
    if (const Prekazka p = prekazka_cesty(t, true)) {
        const bool konec =
            p.druh == DruhPrekazky::konec || (p.druh == DruhPrekazky::usek && p.prvek == t.konec);
        return {konec ? Verdikt::kolej : Verdikt::zatim_ne, veta_prekazky(p)};
    }
    if (const Cesta* c = ceka_pred_ni(t.zaznam); c != nullptr)
        return {posledni_prvek(*c) == t.zaznam.prvky.back().prvek ? Verdikt::kolej : Verdikt::zatim_ne,
                Text("v cestě je "_cz) + popis_cesty(*c)};
    if (brani_vstupu(t.konec))
        return {Verdikt::kolej, Text("kolej se drží volná pro vlak, který má vjet do uzlu"_cz)};
    // A single line is entered only when the station behind it can take the train.
    if (!je_bezpecne(v, t.konec, zbytek))
        return {Verdikt::nebezpecne, Text("jinak by se vlaky navzájem zablokovaly"_cz)};
    return {};
}

int predstih_s(std::size_t trasa, bool stoji) {
    const planovani::Trasa& t = trasa_c(trasa);
    int s = kStavba_s + 5 * simulace.rychlost + kPredstih_s;
    if (stoji)
        s += 10;
    for (const PrvekCesty& p : t.zaznam.prvky)
        if (p.druh == druh_prvku::kolej && uzel::prejezd_nad(p.prvek) >= 0)
            return s + kPrejezd_s;
    return s;
}

bool je_bezpecny_vjezd(int k, std::int32_t cislo) {
    const auto radky = gvd_vlaky.s_cislem(cislo);
    if (radky.empty())
        return true;
    const uzel::KonecTrati& konec = uzel::kKonceTrati[static_cast<std::size_t>(k)];
    Jizda j;
    const GvdVlak& r = radek_gvd(radky.front().radek);
    udelej_body(j, dnesni_zastavky(r));
    planovani::Ukol ukol;
    ukol.body = j.body;
    ukol.delka = r.delka;
    ukol.druh = r.druh;
    ukol.pocatek = planovani::Pocatek{konec.usek, true, 1, false};
    ukol.bez_tras = bez_tras();
    const auto cesta = najdi_trasy(sit(), ukol);
    if (!cesta)
        return true; // it comes, whatever becomes of it then
    obnov_vsechny();
    posud_stul();
    UcastnikBankere u;
    u.misto = misto_prvku(konec.usek);
    u.poradi = kNikdy_s;
    u.cesta = *cesta;
    ucastnici.push_back(u);
    const bool lze = nikdo_dalsi_neuvazne();
    ucastnici.pop_back();
    return lze;
}

} // namespace vypravovani
