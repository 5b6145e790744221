// cesty/tik_volby.cpp - the route machine.
//
// There is no queue of events: each tick decides anew from the fields of the routes and the colours of
// the elements. A route that cannot go on is tried again at the next tick, for ever and without a word.
#include "cesty/tik_volby.h"

#include "app/cas.h"
#include "app/pocty_provozu.h"
#include "app/simulace.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/navest.h"
#include "cesty/odpocet_pn.h"
#include "cesty/prekazky.h"
#include "cesty/smer_trati.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "cesty/zvyrazneni.h"
#include "desk/zprava.h"
#include "obsluha/vyber.h"
#include "prvky/barvi_prvek.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/volba.h"
#include "zaklad/cisla.h"

#include <algorithm>

namespace {

constexpr std::int32_t kPrestaveni_s = 5; // switches have run, the route may be locked
constexpr std::int32_t kZavirani_s = 40;  // the crossing begins to close
constexpr std::int32_t kPrivolavaci_s = 30;

// What one walk carries from route to route.
struct Pruchod {
    std::int32_t ted;
    bool zdrzeno = false; // a route was blocked and VZ holds back all behind it
};

// --- the manual throw

void dokonci_rucni_prehoz(std::int32_t ted) {
    if (stav_vyhybek.prehoz_cas == kZadny || ted < stav_vyhybek.prehoz_cas)
        return;
    const int n = stav_vyhybek.prehoz_vyhybka;
    if (relief.imgVyhybka.je(n))
        vyhybka_stav(n, stav_vyhybky_cislo(n), true, true);
    stav_vyhybek.prehoz_vyhybka = kZadny;
    stav_vyhybek.prehoz_cas = kZadny;
}

// --- calling-on aspects

void blikni_privolavaci(const Cesta& c, std::int32_t ted) {
    simulace.pn_bezi = true;
    TabulkaPrvku& druh = navestidla(c.zacatek);
    if (druh.je(c.zacatek)) {
        Prvek& navestidlo = druh[c.zacatek];
        navestidlo.barva = navestidlo.barva == barvy::seda ? barvy::bila : barvy::seda;
        if (simulace.detail_navestidlo == c.zacatek && relief.svetlo.je(svetla::bile))
            relief.svetlo[svetla::bile].viditelny = navestidlo.barva == barvy::bila;
    }
    obnov_odpocet_pn(c.zacatek, c.PN_do - ted);
}

// --- a route that cannot go on in this tick

void zablokuj(const Cesta& c, Pruchod& pruchod) {
    // Without a fresh selection the highlight goes: that the route waits is told by the stack alone.
    if (vyber.volba_konec < 0 && vyber.volba_zacatek != c.zacatek)
        odznac_navestidlo(c.zacatek);
    vrat_barvu_konce(c);
    // An automatic copy waits in the background and holds nobody back.
    if (plati_vz() && c.Vlak != kKopieAB)
        pruchod.zdrzeno = true;
    if (ceka_na_ni_zasobnik(c))
        relief.lblZasobnik_blokv[0].barva = barvy::bila;
}

// --- stage one: the switches are commanded

// The names are asked for as the operator reads them on the line, not the elements: those that bear one name
// are one signal and one end to him.
bool je_ve_volbe(TextPohled jmeno) {
    return !jmeno.empty() &&
           (" " + relief.lblVolba[0].text() + " ").find(" " + Text(jmeno) + " ") != Text::npos;
}

// The prompt names the signal that was clicked: the start of the route, or of the one before it that the
// same click made.
bool je_zacatek_ve_volbe(const Cesta& c) {
    return je_ve_volbe(jmeno_navestidla(c.zacatek)) ||
           je_ve_volbe(jmeno_navestidla(uzel::zacatek_dvojite_volby(c.zacatek, c.konec)));
}

// The prompt that picked this route has done its work.
void skryj_vyzvu(const Cesta& c) {
    const auto stoji = stojici_zprava();
    if (!stoji || !je_vyzva_cesty(*stoji))
        return;
    if (je_zacatek_ve_volbe(c) && (!c.VC || je_ve_volbe(jmeno_konce(c.konec)))) {
        skryj_prikaz();
        nastav_text(relief.lblVolba[0], {});
    }
}

void zapamatuj_barvu_konce(Cesta& c) {
    if (je_cislo_koleje(c.konec) && !je_barva_vyberu(relief.cislo_koleje[c.konec].pozadi))
        c.barva_cisla = relief.cislo_koleje[c.konec].pozadi;
}

void uvolni_vyber(const Cesta& c) {
    if (vyber.volba_zacatek == c.zacatek && vyber.volba_konec == c.konec) {
        vyber.volba_zacatek = kZadny;
        vyber.volba_konec = kZadny;
    }
}

// What the walk over the elements finds on its way, up to the entry at which it ended: the crossing,
// the switch that ends the speed limit, sections whose label is cleared at release.
void oznac_prvky(Cesta& c, std::size_t dosel) {
    c.prejezd = kBezPrejezdu;
    c.vyhybka = kZadny;
    for (std::size_t k = 1; k < c.prvky.size() && k <= dosel; ++k) {
        const int n = c.prvky[k].prvek;
        if (druh_na(c, k) == druh_prvku::vyhybka && k < dosel)
            c.vyhybka = c.prvky[k].prvek;
        if (druh_na(c, k) != druh_prvku::kolej)
            continue;
        if (const int prejezd = uzel::prejezd_nad(n); prejezd >= 0)
            c.prejezd = na_byte(prejezd);
        if (je_cil(n) && (!je_usek_trati(n) || n == uzel::kT2))
            c.prvky[k].poloha = 2;
    }
}

// A train that stands before the signal needs the crossing closed before the signal clears; without
// one the crossing is left to the approach of a train.
void objednej_prejezd(Cesta& c, std::int32_t ted) {
    if (c.prejezd >= stanicni_prejezdy.size() || c.PN)
        return;
    c.prejezd_zaver = relief.kolej[prvni_prvek(c)].barva == barvy::cervena;
    if (!c.prejezd_zaver)
        return;
    StanicniPrejezd& prejezd = stanicni_prejezdy[c.prejezd];
    if (prejezd_v_klidu(c.prejezd))
        prejezd.cas = ted + kZavirani_s;
    else
        prejezd.uzavren = true;
}

// End of a triple of a plain switch: 1 or 2; a double slip has none.
int konec_trojice(int poloha) {
    return poloha >= 1 && poloha < 25 ? (poloha - 1) % 3 : 0;
}

void prikaz_vyhybce(int n, int poloha) {
    if (stav_vyhybky_cislo(n) == poloha)
        vyhybka_stav(n, poloha + stav_vyhybky::rezervace, false, false);
    else if (poloha < 25)
        prehod(n, poloha, konec_trojice(poloha) != 1, true);
    else
        prehod(n, poloha, true, false);
}

void prikaz_prvkum(const Cesta& c) {
    const std::size_t posledni = posledni_index(c);
    for (std::size_t k = 1; k <= posledni; ++k) {
        const int n = c.prvky[k].prvek;
        switch (druh_na(c, k)) {
        case druh_prvku::vyhybka: prikaz_vyhybce(n, poloha_na(c, k)); break;
        case druh_prvku::vykolejka: rezervuj_vykolejku(n); break;
        case druh_prvku::kolej:
            if (k == posledni && !c.VC)
                return; // the last track of a shunt route stays as it is
            if (!c.PN)
                barvi_prvek(n, barvy::azurova, false, k == posledni);
            break;
        }
    }
}

// Lamp of the line end at which the route ends; -1 none.
int lampa_konce(int konec) {
    const int k = uzel::konec_trati(konec);
    return k >= 0 && uzel::kKonceTrati[static_cast<std::size_t>(k)].usek == konec && relief.lblSouhlas.je(k)
               ? k
               : -1;
}

// Directions that the route lays when its switches are commanded; the caption of a lamp points out.
void napis_smery(const Cesta& c) {
    if (c.PN)
        return;
    const int k = lampa_konce(c.konec);
    if (k >= 0)
        nastav_text(relief.lblSouhlas[k], znak(uzel::kKonceTrati[static_cast<std::size_t>(k)].znak_ven));
    const std::size_t vse = c.prvky.size();
    const int predposledni = vse < 2 ? kZadny : c.prvky[vse - 2].prvek;
    if (predposledni == uzel::kKeKamenciOdMokriny)
        napis_sipku(uzel::kKamenec, kSipkaVlevo);
    if (predposledni == uzel::kKeKamenciOdTesku)
        napis_sipku(uzel::kKamenec, kSipkaVpravo);
}

void prikaz_ceste(Cesta& c, std::int32_t ted) {
    odznac_navestidlo(c.zacatek);
    vrat_barvu_konce(c);
    napis_smery(c);
    objednej_prejezd(c, ted);
    gtn_zapis(c.zacatek, !c.VC ? gtn::cesta_posun : c.PN ? gtn::cesta_pn : gtn::cesta_vlak, c.konec);
    c.prehozena = true;
    prikaz_prvkum(c);
    if (!c.PN && je_kolej(c.konec) && je_volna(c.konec))
        barvi_prvek(c.konec, barvy::azurova, false, true);
    if (uzel::je_trat_dubnice(c.konec))
        napis_sipku(c.konec, sude_navestidlo(c.zacatek) ? kSipkaVpravo : kSipkaVlevo);
    if (vede_na_trat(c))
        poloz_smer(c);
    if (c.Kdy_prehoz < 0)
        c.Kdy_prehoz = ted + kPrestaveni_s;
    if (c.VC && !c.PN && c.konec != uzel::kT2 && je_cislo_koleje(c.konec) &&
        relief.cislo_koleje[c.konec].barva != barvy::bila)
        relief.cislo_koleje[c.konec].barva = barvy::azurova;
    if (ceka_na_ni_zasobnik(c))
        relief.lblZasobnik_blokv[0].barva = barvy::cerna;
}

// Everything that refuses the route is looked at first; only a route that nothing refuses leaves marks.
void stav_cestu(Cesta& c, Pruchod& pruchod) {
    skryj_vyzvu(c);
    zapamatuj_barvu_konce(c);
    uvolni_vyber(c);
    ohlas_cekani(c);
    if (pruchod.zdrzeno) {
        zablokuj(c, pruchod);
        return;
    }
    const Prekazka prekazka = prekazka_staveni(c);
    if (prekazka.druh != DruhPrekazky::navestidlo) {
        c.prvky.front().poloha = 2;
        oznac_prvky(c, prekazka.dosel);
    }
    if (prekazka)
        zablokuj(c, pruchod);
    else
        prikaz_ceste(c, pruchod.ted);
}

// --- stage two: everything is locked, the signal clears

void uzavri_vyhybku(const Cesta& c, int n, int poloha) {
    // Into the first end of its triple a switch of a route locks without a word about its derailers: one
    // that ran with it goes on showing that until the switch is released: its end position is told with the
    // other end of the triple alone.
    vyhybka_stav(n, poloha + zaver_vyhybek(c), true, konec_trojice(poloha) != 1);
}

void uzavri_prvky(const Cesta& c) {
    const std::size_t posledni = posledni_index(c);
    for (std::size_t k = 1; k <= posledni; ++k) {
        const int n = c.prvky[k].prvek;
        switch (druh_na(c, k)) {
        case druh_prvku::vyhybka: uzavri_vyhybku(c, n, poloha_na(c, k)); break;
        case druh_prvku::vykolejka: uzavri_vykolejku(n); break;
        case druh_prvku::kolej:
            if (k == posledni && !c.VC)
                return;
            // What has been occupied since, by a train on the calling-on aspect, stays occupied.
            if (!c.PN && relief.kolej[n].barva != barvy::cervena)
                barvi_prvek(n, c.VC ? barvy::zelena : barvy::bila, false, k == posledni);
            break;
        }
    }
}

bool maji_spolecnou_vyhybku(const Cesta& a, const Cesta& b) {
    return std::any_of(a.prvky.begin(), a.prvky.end(), [&b](const PrvekCesty& p) {
        return p.druh == druh_prvku::vyhybka &&
               std::any_of(b.prvky.begin(), b.prvky.end(),
                           [&p](const PrvekCesty& q) { return q.druh == p.druh && q.prvek == p.prvek; });
    });
}

// A route that had to wait until its switch lies right again may lock it after a route commanded later has
// locked it and lost it. The switch belongs to the one commanded last, so from here on that is this one:
// else the cancelling of the other would free a switch under a cleared signal.
void prevezmi_vyhybky(Cesta& c) {
    for (const Cesta& jina : cesty)
        if (&jina != &c && jina.zacatek >= 0 && jina.Provedena && jina.Kdy_prehoz >= c.Kdy_prehoz &&
            maji_spolecnou_vyhybku(c, jina))
            c.Kdy_prehoz = jina.Kdy_prehoz + 1;
}

void pripoj_usek(Cesta& c, int n) {
    if (!je_kolej(n) || obsahuje(c.prvky, n))
        return;
    c.prvky.push_back({static_cast<std::int16_t>(n), druh_prvku::kolej, 0});
}

// The open line becomes part of the route, section by section in its direction. While the signal waits
// for a crossing this runs again and finds nothing to add.
void prodluz_po_trati(Cesta& c) {
    const int posledni = posledni_prvek(c);
    if (smer_na_trat(c) == kSipkaVpravo) {
        for (int n = posledni + kKrokTrati; n <= kNejvyssiPrvek; n += kKrokTrati)
            pripoj_usek(c, n);
    } else {
        for (int n = posledni - kKrokTrati; n >= kPrvniTrat; n -= kKrokTrati)
            pripoj_usek(c, n);
    }
}

void rozsvit_navestidlo(Cesta& c, std::int32_t ted) {
    if (!c.PN) {
        nastav_navest(c.zacatek, volnoznak(c));
        return;
    }
    c.PN_do = ted + kPrivolavaci_s;
    pridej_odpocet_pn(c.zacatek);
    gtn_zapis(c.zacatek, gtn::barva_navestidla, barvy::bila); // the tick flashes it
}

void uzavri_cestu(int i, Pruchod& pruchod) {
    Cesta& c = cesta_c(i);
    if (pruchod.ted <= c.Kdy_prehoz)
        return;
    if (prekazka_zaveru(c)) {
        zablokuj(c, pruchod);
        return;
    }
    prevezmi_vyhybky(c);
    uzavri_prvky(c);
    if (!c.PN && je_kolej(c.konec) && relief.kolej[c.konec].barva == barvy::azurova)
        barvi_prvek(c.konec, c.VC ? barvy::zelena : barvy::bila, false, true);
    if (const int k = lampa_konce(c.konec); k >= 0)
        relief.lblSouhlas[k].barva = barvy::modra;
    if (vede_na_trat(c)) {
        poloz_smer(c);
        prodluz_po_trati(c);
    }
    c.prvky.back().poloha = 2;
    if (zbyva_prejezdu(c, pruchod.ted) > 0) {
        zablokuj(c, pruchod);
        return;
    }
    // Over a signal that the operator has blocked meanwhile nobody runs: it is locked, and DN gives it.
    const bool dovolena = !je_zablokovano(c.zacatek);
    if (dovolena)
        rozsvit_navestidlo(c, pruchod.ted);
    c.Postavena = dovolena;
    c.Provedena = true;
    ++pocty_provozu.cest;
    uvolni_cekani(c);
    gtn_zapis(c.zacatek, c.VC ? gtn::postavena_vlak : gtn::postavena_posun, c.konec);
    obnov_panel_kdyz_ukazuje(c.zacatek);
    zmena_zasobniku();
    if (dovolena)
        postup_cisla(i);
}

// --- the walk

// One action of route i; true when the route is gone and the walk must start again.
bool krok_cesty(int i, Pruchod& pruchod) {
    Cesta& c = cesta_c(i);
    switch (faze_cesty(c, pruchod.ted)) {
    case FazeCesty::zruseni: proved_zruseni(i); return true;
    case FazeCesty::privolavaci: blikni_privolavaci(c, pruchod.ted); break;
    case FazeCesty::konec_privolavaci: ukonci_privolavaci(c); break;
    case FazeCesty::odpocet_ruseni: relief.lblMereni_casu[0].viditelny = true; break;
    case FazeCesty::staveni: stav_cestu(c, pruchod); break;
    case FazeCesty::zaver: uzavri_cestu(i, pruchod); break;
    case FazeCesty::klid: break;
    }
    return false;
}

void projdi_cesty(std::int32_t ted) {
    Pruchod pruchod{ted};
    std::size_t mez = std::min(cesty.size(), kNejvicCest);
    for (std::size_t i = 0; i < mez && i < cesty.size();) {
        if (krok_cesty(static_cast<int>(i), pruchod)) {
            pruchod = Pruchod{ted};
            mez = std::min(cesty.size(), kNejvicCest);
            i = 0;
        } else {
            ++i;
        }
    }
}

} // namespace

void tik_volby() {
    if (simulace.pauza)
        return;
    const std::int32_t ted = ted_s();
    uklid_odjete();            // tracks whose train has gone on are at rest
    simulace.pn_bezi = false;  // set again below while a calling-on aspect runs
    dokonci_rucni_prehoz(ted); // a switch thrown by hand has reached its end
    projdi_cesty(ted);         // the routes, in the order of the stack
}
