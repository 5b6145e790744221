// cesty/prekazky.cpp - what stands in the way of a route.
#include "cesty/prekazky.h"

#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/smer_trati.h"
#include "prvky/barvi_prvek.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/volnost.h"
#include "prvky/vyhybky.h"
#include "uzel/trate.h"

namespace {

bool navestidlo_zablokovano(const Cesta& c) {
    const Barva barva = navestidla(c.zacatek)[c.zacatek].barva;
    return barva == (je_seriovy(c.zacatek) ? barvy::modra : barvy::cervena);
}

// A free switch that goes over with n and has a train on it; kZadny when none has.
int partner_pod_vlakem(int n) {
    int pod_vlakem = kZadny;
    projdi_partnery(n, [&](int b) {
        if (pod_vlakem == kZadny && stav_vyhybky_cislo(b) < stav_vyhybky::vlak && stoji_na_vyhybce(b))
            pod_vlakem = b;
    });
    return pod_vlakem;
}

Prekazka prekazka_vyhybky(const Cesta& c, std::size_t k) {
    const int n = c.prvky[k].prvek;
    if (stav_vyhybky_cislo(n) > 49)
        return {DruhPrekazky::vyhybka, n, k};
    if (vyhybka_v_pohybu(n))
        return {DruhPrekazky::pohyb_vyhybky, n, k};
    // What RNZ or NOUZ has freed under a train never moves under it.
    if (stoji_na_vyhybce(n))
        return {DruhPrekazky::pod_vlakem, n, k};
    if (stav_vyhybky_cislo(n) != poloha_na(c, k))
        if (const int partner = partner_pod_vlakem(n); partner != kZadny)
            return {DruhPrekazky::pod_vlakem, partner, k};
    if (cesta_vlaku_na_vyhybku(n) != nullptr)
        return {DruhPrekazky::pred_vlakem, n, k};
    if (druh_na(c, k + 1) == druh_prvku::vyhybka)
        if (const int bocni = bocni_vyhybka(n, c.prvky[k + 1].prvek); bocni != kZadny)
            return {DruhPrekazky::bocni_vyhybka, bocni, k};
    return {};
}

// Wagons or another shunting movement may stand where a shunt or a calling-on route ends.
bool smi_na_obsazenou(const Cesta& c, std::size_t k) {
    if (k != posledni_index(c) || (c.VC && !c.PN))
        return false;
    const Barva barva = relief.kolej[c.prvky[k].prvek].barva;
    return barva == barvy::cervena || barva == barvy::bila || barva == barvy::azurova;
}

Prekazka prekazka_prvku(const Cesta& c) {
    for (std::size_t k = 1; k < c.prvky.size(); ++k) {
        const int n = c.prvky[k].prvek;
        if (druh_na(c, k) == druh_prvku::vyhybka) {
            if (const Prekazka p = prekazka_vyhybky(c, k))
                return p;
        } else if (druh_na(c, k) == druh_prvku::kolej) {
            if (!smi_na_obsazenou(c, k) && n != uzel::kUsekIObsazeny && !je_volna(n))
                return {DruhPrekazky::usek, n, k};
        }
    }
    return {DruhPrekazky::zadna, kZadny, c.prvky.size()};
}

Prekazka prekazka_konce(const Cesta& c) {
    const std::size_t vse = c.prvky.size();
    if (c.VC && !c.PN && !je_usek_trati(c.konec) && !cil_volny(c.konec))
        return {DruhPrekazky::konec, c.konec, vse};
    if (!c.VC && je_vlak_do(posledni_prvek(c)))
        return {DruhPrekazky::vlakova_cesta, posledni_prvek(c), vse};
    return {DruhPrekazky::zadna, kZadny, vse};
}

Prekazka prekazka_trati(const Cesta& c) {
    const std::size_t vse = c.prvky.size();
    const int posledni = posledni_prvek(c);
    if (!c.PN) {
        // A route that ends on the far section of a line runs down its numbers.
        const int sipka = sipka_konce(c.konec);
        if (je_usek_trati(c.konec) && c.konec <= kPosledniTrat + 1 &&
            sipka_drzi(sipka, posledni >= uzel::kDruheUseky ? kSipkaVpravo : kSipkaVlevo))
            return {DruhPrekazky::opacny_smer, sipka, vse};
        for (int k = 0; k < 3; ++k)
            if (c.konec == uzel::kKonceTrati[static_cast<std::size_t>(k)].usek && relief.lblSouhlas.je(k) &&
                relief.lblSouhlas[k].barva != barvy::seda)
                return {DruhPrekazky::souhlas, k, vse};
        const int predposledni = vse < 2 ? kZadny : c.prvky[vse - 2].prvek;
        if ((predposledni == uzel::kKeKamenciOdMokriny || predposledni == uzel::kKeKamenciOdTesku) &&
            sipka_neni_seda(uzel::kKamenec))
            return {DruhPrekazky::kolej_118, uzel::kKamenec, vse};
    }
    if (vede_na_trat(c)) {
        const int sipka = sipka_konce(c.konec);
        const bool vpravo = smer_na_trat(c) == kSipkaVpravo;
        if (sipka_drzi(sipka, vpravo ? kSipkaVlevo : kSipkaVpravo))
            return {DruhPrekazky::opacny_smer, sipka, vse};
    }
    return {DruhPrekazky::zadna, kZadny, vse};
}

} // namespace

FazeCesty faze_cesty(const Cesta& c, std::int32_t ted) {
    if (c.cas_ruseni >= 0 && ted >= c.cas_ruseni && c.Umazat == 0)
        return FazeCesty::zruseni;
    if (c.PN_do >= 0 && ted < c.PN_do && c.PN && c.Postavena)
        return FazeCesty::privolavaci;
    if (c.PN_do > 0 && ted >= c.PN_do)
        return FazeCesty::konec_privolavaci;
    if (c.cas_ruseni > 0)
        return FazeCesty::odpocet_ruseni;
    if (c.cas_stavby < 0 || ted < c.cas_stavby || c.varovani != 0 || c.Provedena || c.prvky.empty())
        return FazeCesty::klid;
    return c.prehozena ? FazeCesty::zaver : FazeCesty::staveni;
}

Prekazka prekazka_staveni(const Cesta& c) {
    if (navestidlo_zablokovano(c))
        return {DruhPrekazky::navestidlo, c.zacatek, 0};
    Prekazka p = prekazka_prvku(c);
    if (!p)
        p = prekazka_konce(c);
    if (!p)
        p = prekazka_trati(c);
    return p;
}

Prekazka prekazka_zaveru(const Cesta& c) {
    for (std::size_t k = 1; k < c.prvky.size(); ++k) {
        if (druh_na(c, k) != druh_prvku::vyhybka)
            continue;
        const int n = c.prvky[k].prvek;
        if (stoji_na_vyhybce(n))
            return {DruhPrekazky::pod_vlakem, n, k};
        if (drzitel(druh_prvku::vyhybka, n) != &c)
            return {DruhPrekazky::ztracena, n, k};
        if (hazi_se_rukou(n))
            return {DruhPrekazky::pohyb_vyhybky, n, k};
    }
    return {};
}

std::int32_t zbyva_prejezdu(const Cesta& c, std::int32_t ted) {
    if (c.prejezd >= stanicni_prejezdy.size() || !c.prejezd_zaver)
        return 0;
    const std::int32_t cas = stanicni_prejezdy[c.prejezd].cas;
    return cas > 0 && cas > ted ? cas - ted : 0;
}
