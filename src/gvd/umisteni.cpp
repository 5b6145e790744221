// gvd/umisteni.cpp - places the train of a timetable row where it is on its way.
#include "gvd/umisteni.h"

#include "cesty/cesta.h"
#include "cesty/cisla_vlaku.h"
#include "cesty/nova_cesta.h"
#include "desk/tabulka_vlaku.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "gvd/skladba.h"
#include "gvd/soupravy.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/barvi_prvek.h"
#include "prvky/volnost.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "uzel/umisteni.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <span>

namespace {

constexpr int kOdKonce_m = 20;        // from its head to the end of the track on which it is put down
constexpr int kRychlostNaTrati = 100; // km/h of the route of a train that is put down on a line

// The sense of a train that stands at `stanice` and goes on to `dalsi`.
bool smer_ve_stanici(int stanice, int dalsi) {
    for (const uzel::SmerVeStanici& s : uzel::kSmeryVeStanici)
        if (s.stanice == stanice)
            return s.obvykly != s.opacny.ma(dalsi);
    return false;
}

std::span<const std::int16_t> prvky_na_trati(const uzel::CestaNaTrati& c) {
    return {c.prvky.begin(), std::find(c.prvky.begin(), c.prvky.end(), 0)};
}

const uzel::CestaNaTrati* najdi_cestu_na_trati(int element) {
    const auto c = std::find_if(uzel::kCestyNaTrati.begin(), uzel::kCestyNaTrati.end(),
                                [element](const uzel::CestaNaTrati& t) { return t.klic == element; });
    return c == uzel::kCestyNaTrati.end() ? nullptr : &*c;
}

bool je_cela_nakreslena(const uzel::CestaNaTrati& c) {
    const auto prvky = prvky_na_trati(c);
    return std::all_of(prvky.begin(), prvky.end(), [](int e) { return je_kolej(e); });
}

// Element for a row at a stop: the tracks that come into question in their order.
struct Umisteni {
    std::array<int, 5> koleje{}; // 0 none
    int index = 0;
    bool smer = false;
    bool na_trati = false; // with the route of a line
};

std::span<const int> koleje_umisteni(const Umisteni& u) {
    return {u.koleje.begin(), std::find(u.koleje.begin(), u.koleje.end(), 0)};
}

bool je_pro_vlak(uzel::ProVlaky vlaky_rady, int druh) {
    switch (vlaky_rady) {
    case uzel::ProVlaky::vsechny: return true;
    case uzel::ProVlaky::osobni: return druh < druh_vlaku::prvni_nakladni;
    case uzel::ProVlaky::nakladni: return druh >= druh_vlaku::prvni_nakladni;
    case uzel::ProVlaky::mn: return druh == druh_vlaku::mn;
    case uzel::ProVlaky::mn_a_lokomotivni: return druh >= druh_vlaku::mn;
    }
    return false;
}

bool je_pro_smer(uzel::ProSmer pro, bool smer) {
    return pro == uzel::ProSmer::oba || (pro == uzel::ProSmer::vpravo) == smer;
}

// The tracks of a station for a train that comes from `predchozi` and goes to `dalsi`.
std::optional<Umisteni> vyber_koleje(int stanice, int predchozi, int dalsi, int index, const GvdVlak& r) {
    const bool smer = smer_ve_stanici(stanice, dalsi);
    if (stanice == dopravna::tesk) {
        for (const uzel::KolejHlavniStanice& k : uzel::kHlavniStanice)
            if (r.kolej == k.kolej)
                return Umisteni{{k.prvky[0], k.prvky[1]}, index, smer, false};
        return std::nullopt;
    }
    for (const uzel::StopNaTrati& s : uzel::kStopyNaTrati)
        if (s.stanice == stanice)
            return Umisteni{{smer ? s.vpravo : s.vlevo}, index, smer, true};
    for (const uzel::KolejeUmisteni& k : uzel::kKolejeUmisteni) {
        const bool soused = k.sousedni.pocet == 0 || k.sousedni.ma(predchozi) || k.sousedni.ma(dalsi);
        if (k.stanice == stanice && je_pro_vlak(k.vlaky, r.druh) && je_pro_smer(k.smer, smer) && soused &&
            (k.dalsi == dopravna::zadna || k.dalsi == dalsi))
            return Umisteni{k.koleje, index - (k.predchozi_zastavka ? 1 : 0), smer, k.na_trati};
    }
    return std::nullopt;
}

} // namespace

void umisti_vlak_do_stanice(int stanice, int predchozi, int dalsi, int index, int gvd_index) {
    const auto kde = vyber_koleje(stanice, predchozi, dalsi, index, radek_gvd(gvd_index));
    if (!kde)
        return;
    const int element = prvni_volna_kolej(koleje_umisteni(*kde));
    if (element < 0)
        return;
    if (const uzel::CestaNaTrati* trat = kde->na_trati ? najdi_cestu_na_trati(element) : nullptr;
        trat != nullptr && !je_cela_nakreslena(*trat))
        return;
    const int v = umisti_vlak(element, kde->smer, kde->index, gvd_index);
    if (kde->na_trati)
        cesta_na_trati(element, v);
}

int umisti_vlak(int element, bool smer, int index, int gvd_index) {
    barvi_prvek(element, barvy::cervena);
    relief.kolej[element].stav.nastav_cislo(delka_koleje(element) - kOdKonce_m);
    pis_cislo(element, text_cisla(radek_gvd(gvd_index).cislo));
    const int i = vytvor_vlak(smer, element, true, index, gvd_index);
    Vlak& v = vlak_c(i);
    if (element == uzel::kKolejStopuPredTrati || element > kPrvniTrat) {
        v.omezeni_ukonceno = true;
        v.rychlost_cesty = kRychlostNaTrati;
        if (je_v(element, uzel::kKonceCestyNaTrat))
            v.prvky.front().poloha = 2;
    }
    pridej_do_tabulky(i);
    const auto zastavka = static_cast<std::size_t>(std::max(index, 0));
    if (v.cislo2 > 0 && v.stanice_zmeny != 0 && zastavka < v.zastavky.size() &&
        v.stanice_zmeny == v.zastavky[zastavka].stanice)
        prepni_cislo(i);
    if (index < 1 && v.zastavky.size() > 1 && v.zastavky[1].stanice == dopravna::rybnice &&
        v.zastavky.back().stanice == dopravna::dubnice)
        obrat_soupravy(i);
    vlak_v_cili(element, i);
    return i;
}

void cesta_na_trati(int element, int vlak) {
    const uzel::CestaNaTrati* vzor = najdi_cestu_na_trati(element);
    if (vzor == nullptr)
        return;
    Cesta& c = pridej_programovou_cestu(vzor->zacatek, vzor->konec, prvky_na_trati(*vzor));
    c.prvky.back().poloha = 2;
    if (element == uzel::kT2)
        c.prvky.front().poloha = 2;
    c.Vlak = na_integer(vlak);

    if (const uzel::KolejPredTrati* pred = uzel::kolej_pred_trati(element))
        pis_cislo(pred->usek, text_cisla(zobrazene_cislo(vlak_c(vlak))));
    if (!relief.lblSouhlas2.je(vzor->sipka))
        return;
    Prvek& sipka = relief.lblSouhlas2[vzor->sipka];
    nastav_text(sipka, vzor->stoupa ? ">>" : "<<");
    sipka.barva = barvy::azurova;
}
