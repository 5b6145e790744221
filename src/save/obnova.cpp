// save/obnova.cpp - a saved record takes the place of the present state.
#include "save/obnova.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/odpocet_pn.h"
#include "cesty/prekazky.h"
#include "cesty/zasobnik.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "desk/tabulka_vlaku.h"
#include "jizda/krok_jizdy.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/navestidla.h"
#include "prvky/souhlasy.h"
#include "prvky/vyhybky.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"
#include "zaklad/platforma.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>
#include <vector>

namespace {

// --- the relief

void obnov_koleje(const Zaznam& z) {
    for (int n = 0; n <= relief.kolej.nejvyssi(); ++n)
        if (relief.kolej.je(n)) {
            relief.kolej[n].barva = barva_kodu(z.koleje_barva[static_cast<std::size_t>(n)]);
            relief.kolej[n].stav.nastav_cislo(z.koleje_poloha[static_cast<std::size_t>(n)]);
        }
}

// A label that stands there for train numbers only is white while its track is free.
void obarvi_stitek(int n, Barva barva) {
    if (!relief.cislo_koleje.je(n))
        return;
    Prvek& stitek = relief.cislo_koleje[n];
    if (stitek.barva != barvy::bila || barva != barvy::seda)
        stitek.barva = barva;
}

void obnov_stitky_koleji(const Zaznam& z) {
    TabulkaPrvku& stitky_koleji = relief.cislo_koleje;
    for (int n = 0; n <= stitky_koleji.nejvyssi(); ++n) {
        if (!stitky_koleji.je(n))
            continue;
        Prvek& stitek = stitky_koleji[n];
        nastav_text(stitek, z.koleje_popis[static_cast<std::size_t>(n)]);
        do_popredi(stitek);
        stitek.viditelny = !orez(stitek.text()).empty();
    }
    for (int n = 0; n <= stitky_koleji.nejvyssi(); ++n) {
        if (!stitky_koleji.je(n))
            continue;
        if (stitek_ma_barvu_koleje(n) && je_kolej(n)) {
            const Barva barva = relief.kolej[n].barva;
            obarvi_stitek(n, barva);
            if (muze_mit_pravy_stitek(n))
                obarvi_stitek(n + kDruhyStitek, barva);
        }
        Prvek& stitek = stitky_koleji[n];
        const bool bez_vyznamu = je_odstavna(n) && orez(stitek.popis()).empty();
        const bool pod_vlakem =
            n < kDruhyStitek && stitek.barva == barvy::cervena && stitek.text() == stitek.popis();
        if (bez_vyznamu || pod_vlakem)
            stitek.viditelny = false;
    }
    obnov_zrcadla_stitku(); // of them the save knows the text alone
}

// Numbers beyond the saved ones, and unknown codes, leave the signal at rest.
void obnov_navestidla(const Zaznam& z) {
    for (std::size_t i = 0; i < z.navestidla_barva.size() && i <= kNejvyssiPrvek; ++i) {
        const int n = static_cast<int>(i);
        TabulkaPrvku& druh = navestidla(n);
        if (!druh.je(n))
            continue;
        Prvek& p = druh[n];
        const std::uint8_t kod = z.navestidla_barva[i];
        if (kod >= kKodAB)
            for (const auto& [bez, s] : kZnakyAB)
                if (kod_znaku(orez(p.text())) == bez) {
                    nastav_text(p, znak(s));
                    break;
                }
        if (const auto barva = barva_navestidla_kodu(kod))
            p.barva = *barva;
        const bool zhasle = i < z.navestidla_pozadi.size() && z.navestidla_pozadi[i] == 1;
        p.pozadi = zhasle ? barvy::seda : barvy::cerna;
        p.ramecek = zhasle;
    }
}

// A switch without a state has none after the load either.
void obnov_vyhybky(const Zaznam& z) {
    for (int n = 0; n <= relief.imgVyhybka.nejvyssi(); ++n) {
        if (!relief.imgVyhybka.je(n))
            continue;
        Prvek& p = relief.imgVyhybka[n];
        const std::uint8_t stav = z.vyhybky[static_cast<std::size_t>(n)];
        p.stav = stav == 0 ? Text{} : text_cisla(stav);
        if (stav != 0)
            p.obrazek = static_cast<std::int16_t>(stav + kObrazekVyhybky);
    }
    for (int n = 0; n <= relief.lblVykolejka.nejvyssi(); ++n) {
        if (!relief.lblVykolejka.je(n))
            continue;
        const int glyf = z.vykolejky_znak[static_cast<std::size_t>(n)];
        nastav_text(relief.lblVykolejka[n], glyf == 0 ? Text{} : znak(glyf));
        relief.lblVykolejka[n].barva = barva_vykolejky_kodu(z.vykolejky_barva[static_cast<std::size_t>(n)]);
    }
}

void obnov_smery(const Zaznam& z) {
    TabulkaPrvku& sipky = relief.lblSouhlas2;
    int prvni = 0;
    while (prvni <= sipky.nejvyssi() && !sipky.je(prvni))
        ++prvni;
    for (int n = prvni; n <= sipky.nejvyssi(); ++n) {
        const auto i = static_cast<std::size_t>(n - prvni);
        if (!sipky.je(n) || i >= z.souhlas2_barva.size() || i >= z.souhlas2_smer.size())
            continue;
        // an arrow that stands empty in the relief shows a direction only while one is held
        const bool drzi = z.souhlas2_barva[i] == 1;
        if (!drzi && sipky[n].text->empty())
            continue;
        if (z.souhlas2_barva[i] <= 1)
            sipky[n].barva = drzi ? barvy::azurova : barvy::seda;
        nastav_text(sipky[n], z.souhlas2_smer[i] != 0 ? ">>" : "<<");
    }
    for (int k = 0; k < 3; ++k) {
        const auto i = static_cast<std::size_t>(k);
        if (relief.lblSouhlas.je(k)) {
            Prvek& lampa = relief.lblSouhlas[k];
            lampa.barva = z.souhlas_barva[i] == 0 ? barvy::modra : barvy::seda;
            nastav_text(lampa, z.souhlas_text[i]);
            zadej_souhlas(k, z.souhlas_tag[i]);
        }
        if (relief.lblPredvidany_odjezd.je(k)) {
            Prvek& odjezd = relief.lblPredvidany_odjezd[k];
            if (odjezd.text() != z.predvidany_odjezd[i])
                nastav_text(odjezd, z.predvidany_odjezd[i]);
            if (!odjezd.text->empty())
                odjezd.viditelny = true;
        }
    }
}

// Notes on the labels of their tracks and on the targets.
void obnov_stitky() {
    for (const StitekPrvku& stitek : stitky) {
        const auto pozadi = pozadi_stitku(stitek);
        if (!pozadi)
            continue;
        if (relief.cislo_koleje.je(stitek.prvek)) {
            relief.cislo_koleje[stitek.prvek].ramecek = true;
            relief.cislo_koleje[stitek.prvek].pozadi = *pozadi;
        }
        if (relief.Image1.je(stitek.prvek))
            relief.Image1[stitek.prvek].obrazek = obrazek_stitku(stitek);
    }
}

// --- the tables and the clock

void prevezmi_tabulky(Zaznam& z) {
    cesty = std::move(z.cesty);
    std::copy(z.stanicni_prejezdy.begin(), z.stanicni_prejezdy.end(), stanicni_prejezdy.begin());
    prejezdy = std::move(z.prejezdy);
    stitky = std::move(z.stitky);
    vlaky = std::move(z.vlaky);
    for (Vlak& v : vlaky)
        if (v.cislo < 1)
            v.muze_jet = false;
    koleje_vlaky = std::move(z.koleje_vlaky);
    souhlasy.cekajici_vlaky = std::move(z.cekajici_vlaky);
    stav_vyhybek.prehoz_vyhybka = z.prehoz_vyhybka;
    stav_vyhybek.prehoz_cas = z.prehoz_cas;
}

void prevezmi_cas(const Zaznam& z, std::int16_t minuty) {
    nastav_cas(z.cas);
    simulace.cas_zacatku = static_cast<std::int16_t>(z.cas_zacatku);
    if (minuty != z.minuty_simulace)
        platforma.okno("KPS RVZ TESK", "V záznamu se neshoduje časová značka! Značka bude opravena."_cz);
    simulace.minuty_simulace = minuty;
    relief.lblcas_od_zacatku[0].text = text_cisla(minuty);
    simulace.den = z.den;
    simulace.den_startu = static_cast<std::uint8_t>(std::countr_zero(z.den));
    relief.lblDEN[0].text = nazev_dne(simulace.den_startu);
}

void prevezmi_provoz(const Zaznam& z) {
    std::copy(z.dalsi_vlaky.begin(), z.dalsi_vlaky.end(), stav_provozu.dalsi_vlaky.begin());
    relief.lblGVD[0].text = z.gvd;
    simulace.soubor_gvd = simulace.cesta_aplikace + "GVD\\" + z.gvd + ".dat";
    simulace.pp_povoleno = z.pp_povoleno;
    simulace.zpozdeni_povoleno = z.zpozdeni_povoleno;
    simulace.rychlost = z.rychlost;
    stav_provozu.pocet_zaloh = z.pocet_zaloh;
    stav_provozu.zaloha_731_strana = z.zaloha_731_strana;
    stav_provozu.zaloha_731_jede = z.zaloha_731_jede;
}

void prevezmi_seznamy(Zaznam& z) {
    for (std::size_t i = 0; i < z.tabulka.size(); ++i)
        if (relief.lblTabulka_vlaku.je(static_cast<int>(i)))
            prevezmi_radek_tabulky(static_cast<int>(i), z.tabulka[i]);
    prevezmi_hlaseni(z.zpravy);
}

// --- what no field holds, and the others tell

// Fail-safe: a track under a train is occupied, whatever the file says of it. A train that is announced at a
// neighbouring station stands there on green.
void obsad_koleje_pod_vlaky() {
    for (const Vlak& v : vlaky) {
        const bool ohlaseny = !v.muze_jet && !v.posun && v.stanice_index < 0;
        if (v.cislo < 1 || v.prvky.empty() || ohlaseny)
            continue;
        for (std::size_t j = static_cast<std::size_t>(v.prvek_konec); j < v.prvky.size(); ++j)
            if (v.prvky[j].druh == druh_prvku::kolej && je_kolej(v.prvky[j].prvek))
                relief.kolej[v.prvky[j].prvek].barva = barvy::cervena;
    }
}

// The countdowns of the calling-on aspects, the first to end first, and the time-measuring.
void obnov_odpocty() {
    std::vector<const Cesta*> privolavaci;
    const std::int32_t ted = ted_s();
    for (const Cesta& c : cesty)
        switch (faze_cesty(c, ted)) {
        case FazeCesty::privolavaci: privolavaci.push_back(&c); break;
        case FazeCesty::odpocet_ruseni: relief.lblMereni_casu[0].viditelny = true; break;
        default: break;
        }
    std::stable_sort(privolavaci.begin(), privolavaci.end(),
                     [](const Cesta* a, const Cesta* b) { return a->PN_do < b->PN_do; });
    for (const Cesta* c : privolavaci) {
        pridej_odpocet_pn(c->zacatek);
        obnov_odpocet_pn(c->zacatek, c->PN_do - ted);
    }
}

// The kilometres of a crossing that the operator keeps closed are white.
void obnov_uz() {
    for (std::size_t k = 0; k < stanicni_prejezdy.size(); ++k)
        if (const int n = static_cast<int>(k); stanicni_prejezdy[k].UZ && relief.lblPrejezd.je(n))
            relief.lblPrejezd[n].barva = barvy::bila;
}

void dopocti() {
    obsad_koleje_pod_vlaky();
    obnov_pohyb_vyhybek();
    obnov_odjete();
    obnov_obslouzene();
    obnov_odpocty();
    obnov_uz();
    aktualizuj_cekani();
    zmena_zasobniku();
}

} // namespace

void obnov_stav(Zaznam z, std::int16_t minuty) {
    std::transform(z.tabulka_blikani.begin(), z.tabulka_blikani.end(), blikani.blikani_radku.begin(),
                   [](std::int16_t priznak) { return priznak != 0; });
    simulace.tick_hodin = platforma.tik_ms();
    obnov_koleje(z);
    obnov_stitky_koleji(z);
    obnov_navestidla(z);
    obnov_vyhybky(z);
    prevezmi_tabulky(z);
    prevezmi_cas(z, minuty);
    prevezmi_provoz(z);
    obnov_smery(z);
    prevezmi_seznamy(z);
    obnov_stitky();
    dopocti();
}
