// gvd/soupravy.cpp - locomotives and sets out of the depots.
#include "gvd/soupravy.h"

#include "app/cas.h"
#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/obrazky_vozu.h"
#include "gvd/provoz.h"
#include "gvd/skladba.h"
#include "gvd/stav_provozu.h"
#include "jizda/na_koleji.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/volnost.h"
#include "uzel/dopravny.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <algorithm>
#include <array>

namespace {

constexpr TextPohled kZaloha = "ZAL";

// At least one vehicle is no locomotive.
bool ma_vozy(const Vlak& v) {
    return std::any_of(v.vozy.begin(), v.vozy.end(), [](const Vuz& vuz) { return !je_loko(vuz.rada); });
}

// One of the rows runs today and leaves within the next 45 minutes.
bool odjede_brzy(TabulkaGvd::Zapisy radky) {
    const int ted = minuta_dne(cas_hodin());
    return std::any_of(radky.begin(), radky.end(), [ted](const TabulkaGvd::Zapis& z) {
        const int m = (radek_gvd(z.radek).zastavky.front().odjezd - ted) % kDen_min;
        return m > 0 && m < 45 && aktivni_dnes(radek_gvd(z.radek));
    });
}

void nasad_posunovou(Vlak& v, std::size_t i) {
    v.vozy[i] = {Text(uzel::kVuzPosunovaci), Text(kZaloha), obrazek_vozu(uzel::kRadaPosunovaci)};
    ++stav_provozu.pocet_zaloh;
}

// The shunting locomotive takes the place of the vehicle at the side of the depot.
void pripoj_posunovou(Vlak& v, int element) {
    if (v.vozy.empty())
        return;
    if (element == uzel::kPristaveniA) {
        nasad_posunovou(v, 0);
        return;
    }
    std::rotate(v.vozy.begin(), v.vozy.begin() + 1, v.vozy.end());
    nasad_posunovou(v, v.vozy.size() - 1);
}

// First free one of the depot's tracks; -1 none. Without any the locomotive exists, but on no track.
int kolej_depa() {
    return prvni_volna_kolej(uzel::kOdstavneKoleje);
}

// The record of a lone locomotive that stands on the element and may go to the main station. Of element 0,
// where it stands behind the gate of a full depot, it holds nothing: a station track has that number.
Vlak lokomotiva(int rada, int element, bool smer, TextPohled urceni, bool posun) {
    Vlak v;
    v.cislo = na_long(74800 + dolu(nahodne() * 200.0));
    v.druh = druh_vlaku::lv;
    v.max_rychlost = v.rychlost_trati = 80;
    v.delka = 20;
    v.smer = smer;
    v.posun = posun;
    v.muze_jet = true;
    v.loko_rada = na_integer(rada);
    v.vozy = {{text_cisla(rada), Text(urceni), obrazek_vozu(rada)}};
    if (element == 0)
        v.prvky.assign(1, {0, 0, 0});
    else
        v.prvky = {{na_integer(element), druh_prvku::kolej, 2}};
    v.prvek_konec = 0;
    v.zastavky = {{dopravna::dkv_vh, kZadny, cas_min(), cas_min()},
                  {dopravna::tesk, na_integer(cas_min() + 7), kZadny, kZadny}};
    return v;
}

void zapocti_zalohu(int rada) {
    ++stav_provozu.pocet_zaloh;
    if (rada == uzel::kRadaZalohy)
        stav_provozu.zaloha_731_jede = true;
}

} // namespace

void vytvor_lokomotivu(int rada, int element, bool smer, TextPohled urceni, bool posun) {
    const bool v_depu = element == 0;
    if (v_depu)
        element = std::max(kolej_depa(), 0);
    else if (!je_kolej(element))
        return;
    const auto volny = std::find_if(vlaky.begin(), vlaky.end(), [](const Vlak& v) { return v.cislo < 1; });
    if (volny == vlaky.end())
        return;
    const auto i = static_cast<int>(volny - vlaky.begin());
    *volny = lokomotiva(rada, element, smer, urceni, posun);
    if (urceni == kZaloha)
        zapocti_zalohu(rada);
    if (element == 0)
        return;
    pridej_na_kolej(element, i, smer, -1);
    barvi_prvek(element, barvy::cervena);
    relief.kolej[element].stav.nastav_cislo(200);
    if (posun) {
        pis_cislo(element, {});
        return;
    }
    pridej_do_tabulky(i);
    pis_cislo(element, text_cisla(vlak_c(i).cislo));
    postav_cesty_z(element);
}

std::int16_t kontrola_soupravy(std::int32_t cislo, bool& jsou_vozy) {
    jsou_vozy = false;
    for (const Vlak& v : vlaky) {
        if (v.cislo < 1)
            continue;
        if (v.cislo == cislo && ma_vozy(v)) {
            if (je_cislo(v.vozy.front().rada, v.loko_rada2 > 0 ? v.loko_rada2 : v.loko_rada))
                jsou_vozy = true;
            return -1;
        }
        for (const Vuz& vuz : v.vozy) {
            if (!je_cislo(vuz.urceni, cislo))
                continue;
            if (je_loko(vuz.rada))
                return -1;
            jsou_vozy = true;
        }
    }
    if (odjede_brzy(gvd_vlaky.s_navaznym(cislo)))
        jsou_vozy = true;
    return odjede_brzy(gvd_vlaky.s_predanou_soupravou(cislo)) ? std::int16_t{-1} : std::int16_t{0};
}

bool souprava_pripravena(int gvd_index, std::int16_t ted) {
    const TabulkaGvd::Zapisy predavaji = gvd_vlaky.s_predanou_soupravou(radek_gvd(gvd_index).cislo);
    return std::none_of(predavaji.begin(), predavaji.end(), [ted](const TabulkaGvd::Zapis& z) {
        return radek_gvd(z.radek).zastavky.front().odjezd > ted && aktivni_dnes(radek_gvd(z.radek));
    });
}

void stanice_start(int gvd_index) {
    const GvdVlak& r = radek_gvd(gvd_index);
    bool jsou_vozy = false;
    if (kontrola_soupravy(r.cislo, jsou_vozy) != 0 || (r.vozy.size() == 1 && jsou_vozy))
        return;
    const int element =
        je_v(r.zastavky.back().stanice, uzel::kCilePristaveniA) ? uzel::kPristaveniA : uzel::kPristaveniB;
    if (!je_kolej(element))
        return;
    if (!je_volna(element)) {
        pridej_cekajici(r.cislo);
        return;
    }
    vyrad_cekajici(gvd_index);
    const int i = vytvor_vlak(true, element, true, kNaVstupu, gvd_index);
    Vlak& v = vlak_c(i);
    v.posun = true;
    pridej_do_tabulky(i);
    barvi_prvek(element, barvy::cervena);
    pridej_na_kolej(element, i, true, -1);
    if (jsou_vozy && v.loko_rada != uzel::kJednotka)
        pripoj_posunovou(v, element);
    relief.kolej[element].stav.nastav_cislo(600);
    posun_po_vytvoreni(i);
    if (element == uzel::kPristaveniB && !jsou_vozy && stav_provozu.pocet_zaloh < 2)
        pridej_posunovou(i);
}

void posun_po_vytvoreni(int vlak) {
    const Vlak& v = vlak_c(vlak);
    if (v.vozy.empty() || v.loko_rada == uzel::kJednotka || uzel::je_rada_ridiciho(v.loko_rada) ||
        (v.loko_rada == uzel::kMotorovyVuzSRidicim && v.vozy.back().rada == uzel::kRidiciVozy[0].vuz))
        return;
    const auto stanice = [&v](std::size_t i) { return i < v.zastavky.size() ? v.zastavky[i].stanice : 0; };
    const int druha = stanice(1), treti = stanice(2), posledni = stanice(v.zastavky.size() - 1);
    if (druha == dopravna::dkv_vh &&
        je_v(treti, {dopravna::vysni_hrabov, dopravna::kamenec, dopravna::mokrina})) {
        obrat_soupravy(vlak);
        return;
    }
    // Both may hold: a set that comes back by the way it went is turned twice and stands as before.
    if (posledni == dopravna::dubnice && druha == dopravna::rybnice)
        obrat_soupravy(vlak);
    if (je_v(druha, {dopravna::vrbice, dopravna::vysni_hrabov, dopravna::lhotin, dopravna::javorin,
                     dopravna::hvozdy, dopravna::polska_lhota, dopravna::kamenec, dopravna::mokrina}) ||
        posledni == dopravna::dubnice)
        obrat_soupravy(vlak);
}

void pridej_posunovou(int vlak) {
    Vlak& v = vlak_c(vlak);
    const bool na_konec = !v.vozy.empty() && je_loko(v.vozy.front().rada);
    v.vozy.insert(na_konec ? v.vozy.end() : v.vozy.begin(), Vuz{});
    nasad_posunovou(v, na_konec ? v.vozy.size() - 1 : 0);
}

void obrat_soupravy(int vlak) {
    Vlak& v = vlak_c(vlak);
    std::reverse(v.vozy.begin(), v.vozy.end());
    v.smer = true;
}
