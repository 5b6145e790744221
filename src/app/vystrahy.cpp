// app/vystrahy.cpp - what the operator must not miss.
#include "app/vystrahy.h"

#include "app/cas.h"
#include "app/sledovani_provozu.h"
#include "app/zprava_o_provozu.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "vypravci/pohled.h"
#include "zaklad/slozeni.h"

#include <algorithm>

namespace {

static_assert(std::tuple_size_v<decltype(StavVystrah::zavreno_od_s)> == uzel::kPrejezdyStanic.size());

Text minut(std::int32_t kolik) {
    return text_cisla(kolik) + " min";
}

// --- what is kept

void sleduj_prejezdy() {
    for (std::size_t k = 0; k < stanicni_prejezdy.size(); ++k) {
        const StanicniPrejezd& p = stanicni_prejezdy[k];
        std::int32_t& od = stav_vystrah.zavreno_od_s[k];
        if (!p.uzavren && p.pocet == kBezVlaku)
            od = kZadny;
        else if (od < 0)
            od = ted_s();
    }
}

void sleduj_zpozdeni(const Vlak& vlak, StopaZpozdeni& s, std::int32_t ted) {
    const std::int32_t cislo = vlak.posun ? 0 : std::max<std::int32_t>(vlak.cislo, 0);
    if (cislo != s.cislo) {
        s = {cislo, vlak.zpozdeni, vlak.zpozdeni, ted};
    } else if (vlak.zpozdeni > s.posledni) {
        s.posledni = vlak.zpozdeni;
        s.rostlo_min = ted;
    } else if (vlak.zpozdeni < s.posledni || ted - s.rostlo_min >= kKlidZpozdeni_min) {
        s.od = s.posledni = vlak.zpozdeni;
    }
}

// --- what is told

// The sign that the operator looks for: the label of the track, where it has one.
void ukaz_kolej(Vystraha& v, int kolej) {
    v.prvek = je_cislo_koleje(kolej) ? Druh::cislo_koleje : Druh::kolej;
    v.n = v.prvek == Druh::cislo_koleje || je_kolej(kolej) ? kolej : kZadny;
}

void pridej_souhlasy(std::vector<Vystraha>& vse) {
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k) {
        if (!souhlasy.zada[k])
            continue;
        Vystraha v;
        v.vlak = *souhlasy.zada[k];
        v.prvek = Druh::lblSouhlas;
        v.n = static_cast<int>(k);
        v.text = slozeny({nazev_stanice(uzel::kKonceTrati[k].stanice), " žádá o souhlas pro vlak "_cz,
                          text_cisla(v.vlak)});
        vse.push_back(v);
    }
}

// The one that stands on the line is seen; a route may wait for one behind it.
void pridej_hlaseni(std::vector<Vystraha>& vse) {
    const std::vector<ZpravaFronty>& fronta = prikaz_radek.fronta_zprav;
    if (fronta.size() < 2) // the spare
        return;
    Vystraha v;
    v.druh = DruhVystrahy::fronta;
    v.prvek = Druh::lblPrikaz;
    v.n = 0;
    v.text = slozeny({"za hlášením čekají další: "_cz, text_cisla(static_cast<int>(fronta.size()) - 1)});
    if (std::any_of(fronta.begin(), fronta.end() - 1,
                    [](const ZpravaFronty& z) { return je_varovani(z.slovo.druh()); }))
        v.text += ", cesta čeká na potvrzení"_cz;
    vse.push_back(v);
}

// Those that have stood for longest first.
void pridej_stojici(std::vector<Vystraha>& vse) {
    std::vector<const JizdaVlaku*> stojici;
    for (const JizdaVlaku& j : sledovani.jizdy)
        if (j.stav == StavJizdy::jede && j.vlak >= 0 && j.nyni.trva_s >= kDlouheStani_min * 60 &&
            !vlak_c(j.vlak).posun)
            stojici.push_back(&j);
    std::stable_sort(stojici.begin(), stojici.end(), [](const JizdaVlaku* a, const JizdaVlaku* b) {
        return a->nyni.trva_s > b->nyni.trva_s;
    });
    for (const JizdaVlaku* j : stojici) {
        const Vlak& vlak = vlak_c(j->vlak);
        Stani stani = j->nyni;
        stani.veta.clear(); // the row has no room for what the automatic dispatcher says
        Vystraha v;
        v.druh = stani.duvod == DuvodStani::bez_lokomotivy ? DruhVystrahy::bez_lokomotivy
                                                           : DruhVystrahy::vlak_stoji;
        v.vlak = zobrazene_cislo(vlak);
        ukaz_kolej(v, stani.prvek);
        v.text = slozeny({jmeno_vlaku(vlak), " stojí "_cz, minut(stani.trva_s / 60), ", ",
                          jmeno_mista(stani.prvek), ": ", duvod_stani(stani)});
        vse.push_back(v);
    }
}

void pridej_prejezdy(std::vector<Vystraha>& vse) {
    for (std::size_t k = 0; k < stav_vystrah.zavreno_od_s.size(); ++k) {
        const std::int32_t od = stav_vystrah.zavreno_od_s[k];
        const std::int32_t trva_min = od < 0 ? 0 : (ted_s() - od) / 60;
        if (trva_min < kDlouheZavreni_min)
            continue;
        Vystraha v;
        v.druh = DruhVystrahy::prejezd;
        v.prvek = Druh::lblPrejezd;
        v.n = static_cast<int>(k);
        v.text =
            slozeny({"přejezd "_cz, uzel::kPrejezdyStanic[k].kilometr, " je zavřen "_cz, minut(trva_min)});
        vse.push_back(v);
    }
}

// A train that is told of already because it stands is not told of twice.
void pridej_zpozdene(std::vector<Vystraha>& vse) {
    for (std::size_t i = 0; i < std::min(vlaky.size(), stav_vystrah.stopy.size()); ++i) {
        const StopaZpozdeni& s = stav_vystrah.stopy[i];
        const Vlak& vlak = vlaky[i];
        if (s.cislo < 1 || s.cislo != vlak.cislo || s.posledni - s.od < kRustZpozdeni_min ||
            vlak.prvky.empty() || vlak.posun)
            continue;
        Vystraha v;
        v.druh = DruhVystrahy::zpozdeni;
        v.vlak = zobrazene_cislo(vlak);
        if (std::any_of(vse.begin(), vse.end(), [&](const Vystraha& jina) { return jina.vlak == v.vlak; }))
            continue;
        ukaz_kolej(v, kolej_cela(vlak));
        v.text = slozeny({jmeno_vlaku(vlak), ": zpoždění roste, "_cz, minut(s.posledni), " (+",
                          text_cisla(s.posledni - s.od), ")"});
        vse.push_back(v);
    }
}

} // namespace

void sleduj_vystrahy() {
    const std::int32_t ted = cas_min();
    if (ted < stav_vystrah.minuta) // the clock was turned back: these are other trains
        stav_vystrah = {};
    sleduj_prejezdy();
    if (ted == stav_vystrah.minuta)
        return;
    stav_vystrah.minuta = ted;
    if (stav_vystrah.stopy.size() < vlaky.size())
        stav_vystrah.stopy.resize(vlaky.size());
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        sleduj_zpozdeni(vlaky[i], stav_vystrah.stopy[i], ted);
}

std::vector<Vystraha> vystrahy() {
    std::vector<Vystraha> vse;
    pridej_souhlasy(vse);
    pridej_hlaseni(vse);
    pridej_stojici(vse);
    pridej_prejezdy(vse);
    pridej_zpozdene(vse);
    return vse;
}
