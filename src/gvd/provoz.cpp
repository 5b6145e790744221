// gvd/provoz.cpp - the traffic step.
#include "gvd/provoz.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/dotazy.h"
#include "cesty/nova_cesta.h"
#include "desk/hlaseni.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "gvd/soupravy.h"
#include "gvd/stav_provozu.h"
#include "jizda/na_koleji.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "uzel/dopravny.h"
#include "uzel/trate.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <vector>

namespace {

constexpr std::int16_t kPoOhlaseni = 100;             // the announced train no longer is the nearest one
constexpr int kVyjezdZDepa = 30, kNejdriveStart = 16; // minutes before its departure when a set comes out
constexpr std::int32_t kCislaDepa = 70000;            // numbers from here run as trains at the depot of VH

// --- delays

struct Zpozdeny {
    std::int32_t cislo = 0;
    std::int16_t minut = 0;
};

// The delays of the message list, sorted once a step: by number, of equal ones the first line of the list.
std::vector<Zpozdeny> zpozdeni_kroku;

// The rows that the step looks at, in file order.
std::vector<int> radky_kroku;

void serad_zpozdeni() {
    zpozdeni_kroku.clear();
    for (const Hlaseni& h : hlaseni)
        if (h.zpozdeni)
            zpozdeni_kroku.push_back({h.cislo, h.minut});
    std::stable_sort(zpozdeni_kroku.begin(), zpozdeni_kroku.end(),
                     [](const Zpozdeny& a, const Zpozdeny& b) { return a.cislo < b.cislo; });
}

std::int16_t zpozdeni_v_kroku(std::int32_t cislo) {
    if (zpozdeni_kroku.empty())
        return 0;
    const auto z = std::lower_bound(zpozdeni_kroku.begin(), zpozdeni_kroku.end(), cislo,
                                    [](const Zpozdeny& a, std::int32_t c) { return a.cislo < c; });
    return z != zpozdeni_kroku.end() && z->cislo == cislo ? z->minut : std::int16_t{0};
}

void losuj_zpozdeni(int gvd_index) {
    const std::int16_t minut = nahodne_zpozdeni(gvd_index);
    if (minut <= 0)
        return;
    pridej_zpozdeni(radek_gvd(gvd_index).cislo, minut);
    simulace.nova_zprava = true;
    serad_zpozdeni();
}

// --- entries

void objev_vlak(int gvd_index, int element, bool smer, bool muze_jet) {
    const std::int16_t v = vytvor_vlak(smer, element, muze_jet, kNaVstupu, gvd_index);
    pridej_do_tabulky(v);
    barvi_prvek(element, muze_jet ? barvy::cervena : barvy::zelena);
    pis_cislo(element, text_cisla(radek_gvd(gvd_index).cislo));
    postav_cesty_z(element);
}

bool stoji_tam(std::int32_t cislo, int e) {
    return std::any_of(vlaky.begin(), vlaky.end(), [=](const Vlak& v) {
        return v.cislo > 0 && (v.cislo == cislo || v.cislo2 == cislo) && drzi_prvek(v, e);
    });
}

// The announced train leaves the neighbouring station: the element that shows its number is the one. Where
// only its number has run ahead, over a route back to that station, nobody sets off.
void rozjed(std::int32_t cislo, std::span<const int> prvky) {
    for (const int e : prvky) {
        if (!je_cislo_koleje(e) || !je_kolej(e) ||
            cislo_z_textu(orez(relief.cislo_koleje[e].text())) != cislo || !stoji_tam(cislo, e))
            continue;
        barvi_prvek(e, barvy::cervena);
        relief.kolej[e].stav.nastav_cislo(400);
        const int v = spust_vlak(cislo);
        Vlak& vlak = vlak_c(v);
        if (vlak.cislo != cislo && vlak.cislo2 != cislo)
            return;
        if (vlak.stanice_index >= 0) { // ordered to depart by hand: its label and its row wait no more
            zobraz_cekani(v);
            vlak.muze_jet = true;
        }
        vlak_v_cili(e, v);
        return;
    }
}

// A locomotive or set of the post: it shunts in, and its first vehicle then stands by.
void vstup_z_posty(int gvd_index) {
    if (!je_volna_kolej(uzel::kKusaKolej))
        return;
    const std::int16_t v = vytvor_vlak(false, uzel::kKusaKolej, true, kNaVstupu, gvd_index);
    Vlak& vlak = vlak_c(v);
    if (!vlak.vozy.empty())
        vlak.vozy.front().urceni = "ZAL";
    ++stav_provozu.pocet_zaloh;
    pridej_do_tabulky(v);
    barvi_prvek(uzel::kKusaKolej, barvy::cervena);
    vlak.posun = true;
    pridej_na_kolej(uzel::kKusaKolej, v, false, -1);
    postav_cesty_z(uzel::kKusaKolej);
}

void vstup_z_depa_vh(int gvd_index) {
    constexpr int kDepoVH = uzel::kBranaVh.kolej;
    bool jsou_vozy = false;
    if (!je_volna_kolej(kDepoVH) || kontrola_soupravy(radek_gvd(gvd_index).cislo, jsou_vozy) != 0)
        return;
    const std::int16_t v = vytvor_vlak(true, kDepoVH, true, kNaVstupu, gvd_index);
    Vlak& vlak = vlak_c(v);
    const bool posun = vlak.cislo < kCislaDepa;
    vlak.posun = posun;
    pridej_do_tabulky(v);
    barvi_prvek(kDepoVH, barvy::cervena);
    pis_cislo(kDepoVH, posun ? Text{} : text_cisla(vlak.cislo));
    postav_cesty_z(kDepoVH);
    relief.kolej[kDepoVH].stav.nastav_cislo(500);
    posun_po_vytvoreni(v);
}

// The lamp of the line end tells that the consented train is in, and the minute at which it came.
void ukaz_vjezd(int k) {
    if (relief.lblPredvidany_odjezd.je(k)) {
        nastav_text(relief.lblPredvidany_odjezd[k], text_cisla_mist(minuta_dne(cas_hodin()) % 60, 2));
        relief.lblPredvidany_odjezd[k].viditelny = true;
    }
    Prvek& lampa = relief.lblSouhlas[k];
    nastav_text(lampa, znak(uzel::kKonceTrati[static_cast<std::size_t>(k)].znak_dovnitr));
    lampa.barva = barvy::modra;
    souhlasy.souhlas[static_cast<std::size_t>(k)] = false;
}

// --- announcements

std::span<const int> koleje_ohlaseni(const uzel::StaniceOhlaseni& s) {
    return {s.koleje.begin(), std::find(s.koleje.begin(), s.koleje.end(), 0)};
}

const uzel::StaniceOhlaseni* ohlasovana(int stanice) {
    const auto s = std::find_if(uzel::kOhlasovane.begin(), uzel::kOhlasovane.end(),
                                [stanice](const uzel::StaniceOhlaseni& o) { return o.kod == stanice; });
    return s == uzel::kOhlasovane.end() ? nullptr : &*s;
}

int kolej_ohlaseni(const uzel::StaniceOhlaseni& s, bool predbiha, std::uint8_t druh) {
    if (predbiha && je_volna_kolej(s.predjizdna))
        return s.predjizdna;
    if (druh == druh_vlaku::mn && je_volna_kolej(s.manipulacni))
        return s.manipulacni;
    return prvni_volna_kolej(koleje_ohlaseni(s));
}

// A later train is due before this late one, which may be overtaken.
bool je_predbihan(const GvdVlak& r) {
    const DalsiVlak& dalsi = stav_provozu.dalsi_vlaky[r.zastavky.front().stanice];
    return dalsi.predpoklad != 0 && dalsi.predpoklad < zpozdeni_vlaku(r.cislo) + r.zastavky.front().odjezd &&
           dalsi.cislo != r.cislo;
}

// --- the step

// Standby locomotives come in turns from the two sides of the main station.
void zaloha_731() {
    const auto privez = [](int element) {
        if (!stav_provozu.zaloha_731_jede && je_volna_kolej(element))
            vytvor_lokomotivu(uzel::kRadaZalohy, element, true, "ZAL", true);
    };
    if (stav_provozu.zaloha_731_strana)
        privez(uzel::kPristaveniA);
    if (!stav_provozu.zaloha_731_strana)
        privez(uzel::kPristaveniB);
}

void zapis_dalsi_vlak(const GvdVlak& r, int zbyva, int zpozdeni) {
    const std::size_t stanice = r.zastavky.front().stanice;
    if (zbyva <= 5 || stanice >= stav_provozu.dalsi_vlaky.size())
        return;
    DalsiVlak& dalsi = stav_provozu.dalsi_vlaky[stanice];
    if (dalsi.cas <= zbyva)
        return;
    dalsi = {na_integer(zbyva), r.cislo, r.druh, na_integer(zpozdeni + r.zastavky.front().odjezd)};
}

void krok_radku(int gvd_index, int ted) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const bool aktivni = aktivni_dnes(r);
    if (!aktivni && zpozdeni_v_kroku(r.cislo) <= 0)
        return;
    const int stanice = r.zastavky.front().stanice;
    int zbyva = (cas_vstupu(r) - ted) % kDen_min;
    const bool ceka = je_cekajici(r.cislo);
    if (ceka)
        zbyva = stanice == dopravna::tesk ? 30 : 1;
    if (zbyva == 20 && aktivni && simulace.zpozdeni_povoleno &&
        !je_v(stanice, {dopravna::dkv, dopravna::dkv_2, dopravna::tesk, dopravna::dkv_vh}))
        losuj_zpozdeni(gvd_index);
    const int zpozdeni = zpozdeni_v_kroku(r.cislo);
    if (!ceka)
        zbyva = (zbyva + zpozdeni) % kDen_min;
    zapis_dalsi_vlak(r, zbyva, zpozdeni);
    if (zbyva == 0)
        vstup_v_minute(gvd_index);
    else if (!aktivni)
        return;
    else if (zbyva == 1 && uzel::konec_ke_stanici(stanice) >= 0)
        vstup_se_souhlasem(gvd_index);
    else if (zbyva == 1 || zbyva == 2)
        ohlaseni(gvd_index);
    else if (zbyva >= kNejdriveStart && zbyva <= kVyjezdZDepa && stanice == dopravna::tesk)
        stanice_start(gvd_index);
}

// --- the rows of a step

// How far ahead of its entry a row is of any concern, minutes: sets come out of the depot, and the nearest
// train of each announced station is kept.
int obzor() {
    int minut = std::max<int>(kVyjezdZDepa, kPoOhlaseni);
    for (const DalsiVlak& dalsi : stav_provozu.dalsi_vlaky)
        minut = std::max<int>(minut, dalsi.cas);
    return std::min(minut, kDen_min - 1);
}

// A late train and one that may enter do not come by the timetable: their rows are looked at in every step.
bool jede_mimo_cas(std::int32_t cislo) {
    return je_cekajici(cislo) || zpozdeni_v_kroku(cislo) != 0;
}

void pridej_radky(TabulkaGvd::Zapisy radky) {
    for (const auto& [klic, n] : radky)
        radky_kroku.push_back(n);
}

// All rows for which krok_radku may do anything. The minutes are counted as it counts them: a row behind
// midnight is not seen before midnight.
void vyber_radky(int ted) {
    radky_kroku.clear();
    for (int m = ted, po = ted + obzor(); m <= po; ++m) {
        const auto radky = gvd_vlaky.v_minute(m % kDen_min);
        std::copy_if(radky.begin(), radky.end(), std::back_inserter(radky_kroku),
                     [](int n) { return aktivni_dnes(radek_gvd(n)); });
    }
    for (const Zpozdeny& z : zpozdeni_kroku)
        pridej_radky(gvd_vlaky.s_cislem(z.cislo));
    for (const std::int32_t cislo : souhlasy.cekajici_vlaky)
        pridej_radky(gvd_vlaky.s_cislem(cislo));
    std::sort(radky_kroku.begin(), radky_kroku.end());
    radky_kroku.erase(std::unique(radky_kroku.begin(), radky_kroku.end()), radky_kroku.end());
}

// The train of the row `n` has just become late, or may enter: other rows with its number come into the step.
void pridej_radky_cisla(int n) {
    for (const auto& [klic, dalsi] : gvd_vlaky.s_cislem(radek_gvd(n).cislo)) {
        const auto misto = std::lower_bound(radky_kroku.begin(), radky_kroku.end(), dalsi);
        if (dalsi > n && (misto == radky_kroku.end() || *misto != dalsi))
            radky_kroku.insert(misto, dalsi);
    }
}

} // namespace

void krok_provozu() {
    simulace.nova_pipnuti = false;
    zaloha_731();
    const int ted = minuta_dne(cas_hodin());
    serad_zpozdeni();
    vyber_radky(ted);
    for (std::size_t i = 0; i < radky_kroku.size(); ++i) {
        const int n = radky_kroku[i];
        krok_radku(n, ted);
        if (jede_mimo_cas(radek_gvd(n).cislo))
            pridej_radky_cisla(n);
    }
}

void vstup_v_minute(int gvd_index) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const int stanice = r.zastavky.front().stanice;
    if (const uzel::StaniceOhlaseni* s = ohlasovana(stanice)) {
        rozjed(r.cislo, koleje_ohlaseni(*s));
        return;
    }
    for (const uzel::VstupZeStanice& v : uzel::kVstupy) {
        if (v.stanice != stanice || (v.cil_volny && !cil_volny(v.koleje.front())))
            continue;
        const int e = prvni_volna_kolej({v.koleje.begin(), std::find(v.koleje.begin(), v.koleje.end(), 0)});
        if (e >= 0)
            objev_vlak(gvd_index, e, v.smer, true);
    }
    switch (stanice) {
    case dopravna::posta: vstup_z_posty(gvd_index); break;
    case dopravna::dkv_vh: vstup_z_depa_vh(gvd_index); break;
    default: break;
    }
}

void vstup_se_souhlasem(int gvd_index) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const int k = uzel::konec_ke_stanici(r.zastavky.front().stanice);
    if (!relief.lblSouhlas.je(k))
        return;
    const uzel::KonecTrati& konec = uzel::kKonceTrati[static_cast<std::size_t>(k)];
    if (!je_kolej(konec.navestidlo) || !je_kolej(konec.usek))
        return;
    if (!je_cekajici(r.cislo)) {
        zadej_souhlas(k, r.cislo);
        simulace.ticho_souhlasu = false;
        return;
    }
    for (const int e : {konec.navestidlo, konec.usek})
        if (!cil_volny(e) || !je_volna(e))
            return;

    const std::int16_t v = vytvor_vlak(true, konec.navestidlo, true, kNaVstupu, gvd_index);
    pridej_do_tabulky(v);
    barvi_prvek(konec.navestidlo, barvy::cervena);
    for (const int e : {konec.navestidlo, konec.usek})
        pis_cislo(e, text_cisla(r.cislo));
    pridej_cestu_souhlasu(k);
    postav_cesty_z(konec.usek);
    vyrad_cekajici(gvd_index);
    ukaz_vjezd(k);
}

void ohlaseni(int gvd_index) {
    const GvdVlak& r = radek_gvd(gvd_index);
    const uzel::StaniceOhlaseni* s = ohlasovana(r.zastavky.front().stanice);
    if (s == nullptr ||
        std::any_of(vlaky.begin(), vlaky.end(), [&r](const Vlak& v) { return v.cislo == r.cislo; }))
        return;
    bool predbiha = false;
    if (s->predjizdi) {
        predbiha = je_predbihan(r);
        DalsiVlak& dalsi = stav_provozu.dalsi_vlaky[r.zastavky.front().stanice];
        if (dalsi.cislo == r.cislo)
            dalsi.cas = kPoOhlaseni;
    }
    if (const int e = kolej_ohlaseni(*s, predbiha, r.druh); e >= 0)
        objev_vlak(gvd_index, e, s->smer, false);
}

// Thresholds as they are written, draws in single precision: 0.9 itself is just below the first one.
std::int16_t nahodne_zpozdeni(int gvd_index) {
    const int druh = radek_gvd(gvd_index).druh;
    const double r1 = nahodne();
    int nejvyse = 30;
    bool zpozden = false;
    switch (druh) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 8: zpozden = r1 >= 0.9; break;
    case 5:
    case 6: zpozden = r1 > 0.85; break;
    case 7: zpozden = r1 > 0.81; break;
    default: zpozden = r1 > 0.8; nejvyse = 90;
    }
    if (!zpozden)
        return 0;
    const std::int16_t minut = na_integer(dolu(static_cast<double>(nahodne()) * nejvyse));
    return minut >= 1 && minut <= 4 ? std::int16_t{5} : minut;
}

void pridej_cekajici(std::int32_t cislo) {
    std::vector<std::int32_t>& cekajici = souhlasy.cekajici_vlaky;
    if (je_cekajici(cislo))
        return;
    if (cekajici.size() == 1 && cekajici.front() == 0)
        cekajici.front() = cislo;
    else
        cekajici.push_back(cislo);
}

void vyrad_cekajici(int gvd_index) {
    std::vector<std::int32_t>& cekajici = souhlasy.cekajici_vlaky;
    const auto misto = std::find(cekajici.begin(), cekajici.end(), radek_gvd(gvd_index).cislo);
    if (misto == cekajici.end())
        return;
    if (cekajici.size() == 1)
        cekajici.front() = 0;
    else
        cekajici.erase(misto);
}

int spust_vlak(std::int32_t cislo) {
    const auto v = std::find_if(vlaky.begin(), vlaky.end(), [cislo](const Vlak& vlak) {
        return vlak.cislo == cislo || vlak.cislo2 == cislo;
    });
    if (v == vlaky.end())
        return 0;
    v->muze_jet = true;
    return static_cast<int>(v - vlaky.begin());
}

void postav_cesty_z(int e) {
    for (std::size_t i = 0; i < cesty.size(); ++i) {
        const Cesta& c = cesty[i];
        if (prvni_prvek(c) == e && c.Postavena && c.cas_ruseni < 0 && c.Umazat == 0) {
            postup_cisla(static_cast<int>(i));
            return;
        }
    }
}

void pridej_cestu_souhlasu(int k) {
    const uzel::KonecTrati& konec = uzel::kKonceTrati.at(static_cast<std::size_t>(k));
    const std::array prvky = {na_integer(konec.navestidlo), na_integer(konec.usek)};
    pridej_programovou_cestu(konec.vjezd, konec.usek, prvky);
}

bool je_cekajici(std::int32_t cislo) {
    const std::vector<std::int32_t>& cekajici = souhlasy.cekajici_vlaky;
    return cislo != 0 && std::find(cekajici.begin(), cekajici.end(), cislo) != cekajici.end();
}
