// vypravci/cesta_vlaku.cpp - frontiers, ways and needs of trains, worked out of what is seen.
#include "vypravci/cesta_vlaku.h"

#include "app/cas.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/navest.h"
#include "desk/stitky.h"
#include "gvd/druhy_vlaku.h"
#include "jizda/metry.h"
#include "jizda/souprava.h"
#include "jizda/zastavky.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "uzel/rychlosti.h"
#include "uzel/vozidla.h"
#include "vypravci/banker.h"
#include "vypravci/pohled.h"
#include "vypravci/rezervace.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <map>
#include <utility>

using planovani::KrokTrasy;

namespace vypravovani {

std::vector<Jizda> jizdy;
std::vector<Objednana> objednane;

namespace {

constexpr int kPostaveni_s = 30;      // a route is locked so long before the train comes to it
constexpr int kPlatnostSlibu_s = 6;   // promises are as exact as this
constexpr int kObzorSlibu_s = 900;    // so far ahead promises are made
constexpr int kObjetiCestou_min = 12; // a stop in which a locomotive may run round its train
constexpr std::size_t kNejvicKroku = 40;

std::map<std::pair<int, int>, std::size_t> trasa_podle_koncu; // start signal and end
std::vector<std::uint8_t> nejsou;                             // routes that do not exist now
std::uint32_t zmena = 0;
std::int32_t prehled_s = kZadny; // when all trains were looked at last
std::int32_t slibeno_s = kZadny; // when the promises were made last
// Tracks under possession when the routes were looked at last.
std::vector<std::int16_t> vyloucene_prvky;

// It can be driven from either end: it turns, or the operator turns it.
bool je_vratny(const Vlak& v) {
    return otoci_se_sam(v) || (v.vozy.size() > 1 && posledni_je_loko(v));
}

bool jede_vlakem(const Vlak& v) {
    return v.cislo > 0 && !v.posun && !v.prvky.empty() && v.prvek_konec >= 0 && !v.zastavky.empty() &&
           ma_loko(v);
}

struct Postup {
    const Vlak& vlak;
    const Jizda& jizda;
    Hranice h;
    double s = 0;                            // seconds from now
    double rychlost = 0;                     // line speed, km/h
    std::vector<Potreba>* potreby = nullptr; // written down as it goes
    int kolej = kZadny;                      // the first stop on the way

    double sekund_na(double m) const {
        const double km_h = std::max(20.0, std::min<double>(vlak.max_rychlost, rychlost));
        return m / (km_h / 3.6);
    }
    void rychlost_na(int prvek) {
        if (const int r = uzel::rychlost_prvku(prvek, h.smer); r != 0)
            rychlost = r;
    }
    // Planned departure of the stop, seconds from now; it waits until then.
    void pockej(std::size_t k) {
        if (k + 1 >= vlak.zastavky.size() || k >= vlak.zastavky.size())
            return;
        const Zastavka& z = vlak.zastavky[k];
        if (z.prijezd < 0)
            return;
        s += 55; // a minute at least, counted from the full one
        if (z.odjezd > 0)
            s = std::max(s, (z.odjezd - cas_min()) * 60.0 - cas_hodin() % 60);
    }
    void obsluz(int prvek, bool konec) {
        while (h.bodu < jizda.body.size() && planovani::slouzi(jizda.body[h.bodu], prvek, konec)) {
            const std::size_t k = h.bodu;
            h.bodu = planovani::preskoc_jmena(jizda.body, k + 1);
            if (jizda.body[k].stavi)
                pockej(k);
            if (konec && jizda.body[k].stavi && h.bodu < jizda.body.size())
                h.smer = planovani::smer_po_obratu(jizda.body[k].stanice, jizda.body[k + 1].stanice, h.smer);
        }
    }
    // Over the entries from `od` on of the elements of a route.
    void projed(const std::vector<PrvekCesty>& prvky, std::size_t od) {
        const double od_s = s - kPostaveni_s;
        for (std::size_t i = od; i < prvky.size(); ++i) {
            if (prvky[i].druh != druh_prvku::kolej) {
                s += sekund_na(20);
                zapis(prvky[i], od_s);
                continue;
            }
            h.prvek = prvky[i].prvek;
            rychlost_na(h.prvek);
            h.smer = planovani::smer_za_prvkem(prvky, i, h.smer);
            s += sekund_na(delka_koleje(h.prvek));
            const std::size_t bodu = h.bodu;
            obsluz(h.prvek, i + 1 == prvky.size());
            zapis(prvky[i], od_s);
            if (potreby != nullptr && h.bodu != bodu && kolej < 0 && i + 1 == prvky.size())
                kolej = h.prvek;
        }
    }
    // It needs the element from the setting of the route until its tail has left it.
    void zapis(const PrvekCesty& p, double od_s) const {
        if (potreby != nullptr)
            potreby->push_back({p.prvek, p.druh, static_cast<std::int32_t>(ted_s() + od_s),
                                static_cast<std::int32_t>(ted_s() + s + sekund_na(vlak.delka) + 5)});
    }
};

const planovani::Trasa* trasa_cesty(const Cesta& c) {
    const auto misto = trasa_podle_koncu.find({c.zacatek, c.konec});
    return misto == trasa_podle_koncu.end() ? nullptr : &trasa_c(misto->second);
}

// The route that the train is on: its head stands on one of its entries but not at its end.
const Cesta* cesta_pod_vlakem(int v) {
    const Vlak& vlak = vlak_c(v);
    for (const Cesta& c : cesty)
        if (c.zacatek >= 0 && c.Vlak == v && c.VC && c.Umazat < c.prvky.size() &&
            c.prvky[c.Umazat].prvek == vlak.prvky.back().prvek &&
            c.prvky[c.Umazat].druh == vlak.prvky.back().druh)
            return &c;
    return nullptr;
}

// The route was ordered for another train, or another one stands before its signal.
bool je_pro_jineho(const Cesta& c, int v) {
    if (c.Vlak == v)
        return false;
    for (const Objednana& o : objednane)
        if (o.zacatek == c.zacatek && o.konec == c.konec)
            return o.vlak != vlak_c(v).cislo;
    const int e = prvni_prvek(c);
    if (kolej_cela(vlak_c(v)) == e)
        return false;
    return std::any_of(vlaky.begin(), vlaky.end(), [e](const Vlak& w) {
        return w.cislo > 0 && !w.posun && !w.prvky.empty() && w.prvky.back().prvek == e &&
               w.prvky.back().druh == druh_prvku::kolej;
    });
}

// A train route that is queued or stands, from the track on in that sense, and nobody has entered it.
const Cesta* dalsi_cesta(int prvek, bool smer, int v) {
    for (const Cesta& c : cesty) {
        if (c.zacatek < 0 || !c.VC || c.Umazat != 0 || c.cas_ruseni >= 0 || c.prvky.size() < 2 ||
            c.prvky.front().prvek != prvek || (c.Vlak >= 0 && c.Vlak != v) || (c.Provedena && je_ztracena(c)))
            continue;
        const planovani::Trasa* t = trasa_cesty(c);
        if ((t == nullptr || t->smer == smer) && !je_pro_jineho(c, v))
            return &c;
    }
    return nullptr;
}

const std::vector<PrvekCesty>& prvky_cesty(const Cesta& c) {
    const planovani::Trasa* t = trasa_cesty(c);
    return t != nullptr && t->zaznam.prvky.size() > c.prvky.size() ? t->zaznam.prvky : c.prvky;
}

// Points of its timetable that the train has behind it: up to the stop that it made last, and those that it
// has passed since without a stop. Of these its record tells nothing; the elements that it ran over do.
std::size_t projete_body(const Vlak& vlak, const Jizda& j) {
    const auto obslouzeno = static_cast<std::size_t>(std::max<int>(vlak.stanice_index, 0));
    std::size_t bodu = planovani::preskoc_jmena(j.body, std::min(obslouzeno + 1, j.body.size()));
    if (bodu >= j.body.size() || j.body[bodu].stavi)
        return bodu;
    std::size_t k = vlak.prvky.size();
    while (k > 0 && !(vlak.prvky[k - 1].druh == druh_prvku::kolej &&
                      planovani::slouzi(j.body[obslouzeno], vlak.prvky[k - 1].prvek, true)))
        --k;
    for (; k < vlak.prvky.size(); ++k)
        while (vlak.prvky[k].druh == druh_prvku::kolej && bodu < j.body.size() && !j.body[bodu].stavi &&
               planovani::slouzi(j.body[bodu], vlak.prvky[k].prvek, false))
            bodu = planovani::preskoc_jmena(j.body, bodu + 1);
    return bodu;
}

// The train as it stands or runs, and over what is set for it: to its frontier.
Postup postup_na_hranici(int v, Jizda& j, std::vector<Potreba>* potreby) {
    const Vlak& vlak = vlak_c(v);
    Postup p{vlak, j, {kolej_cela(vlak), vlak.smer, 0}, 0, 0};
    p.h.bodu = projete_body(vlak, j);
    p.rychlost = std::max<int>(vlak.rychlost_trati, 40);
    p.potreby = potreby;
    const Cesta* c = cesta_pod_vlakem(v);
    j.stoji = false;
    if (!vlak.muze_jet) {
        p.s = do_odjezdu_s(vlak);
        j.stoji = true;
    }
    const PrvekCesty hlava = vlak.prvky.back();
    if (c != nullptr && (c->Umazat + 1u < prvky_cesty(*c).size() || vlak.obslouzeno != vlak.prvky.size())) {
        if (hlava.druh == druh_prvku::kolej)
            p.s += p.sekund_na(std::max(0.0, delka_koleje(hlava.prvek) - metry(hlava.prvek)));
        const auto& prvky = prvky_cesty(*c);
        if (c->Umazat + 1u >= prvky.size()) { // on the last track, its stop not made yet
            if (vlak.muze_jet)
                p.obsluz(p.h.prvek, true);
        } else {
            p.projed(prvky, c->Umazat + 1u);
        }
        j.stoji = false;
    } else if (vlak.muze_jet) {
        j.stoji = vlak.rychlost == 0;
    }
    bool prvni = true;
    for (std::size_t i = 0; i < kNejvicKroku; ++i) {
        const Cesta* d = dalsi_cesta(p.h.prvek, p.h.smer, v);
        if (d == nullptr && prvni && je_vratny(vlak) && (d = dalsi_cesta(p.h.prvek, !p.h.smer, v)) != nullptr)
            p.h.smer = !p.h.smer;
        if (d == nullptr)
            break;
        const planovani::Trasa* t = trasa_cesty(*d);
        p.h.smer = t != nullptr ? t->smer : p.h.smer;
        p.projed(prvky_cesty(*d), 1);
        prvni = false;
        j.stoji = false;
    }
    return p;
}

void najdi_hranici(int v, Jizda& j) {
    const Postup p = postup_na_hranici(v, j, nullptr);
    j.hranice = p.h;
    j.do_hranice_s = static_cast<std::int32_t>(std::min<double>(p.s, kNikdy_s));
    j.doma = j.hranice.bodu >= j.body.size();
}

std::vector<float> prirazky;

// Metres by which the search avoids each track for this train: at the main station all but the planned one,
// and what is kept by trains that stay.
void udelej_prirazky(const Vlak& vlak, bool obsazene, int v) {
    constexpr float kJinaKolej_m = 3'000, kObsazena_m = 40'000;
    prirazky.assign(kNejvyssiPrvek + 1, 0);
    if (const int planovana = planovana_kolej(vlak); planovana >= 0)
        for (int e = 0; e < kPrvniOdstavna; ++e)
            if (uzel::je_kolej_hlavniho(e) && e != planovana)
                prirazky[static_cast<std::size_t>(e)] = kJinaKolej_m;
    if (!obsazene)
        return;
    for (std::size_t w = 0; w < vlaky.size(); ++w) {
        const Vlak& jiny = vlaky[w];
        if (jiny.cislo < 1 || static_cast<int>(w) == v || jiny.prvky.empty())
            continue;
        for (std::size_t k = static_cast<std::size_t>(std::max<int>(jiny.prvek_konec, 0));
             k < jiny.prvky.size(); ++k)
            if (jiny.prvky[k].druh == druh_prvku::kolej)
                prirazky[static_cast<std::size_t>(jiny.prvky[k].prvek)] += kObsazena_m;
        if (w < jizdy.size() && jizdy[w].jede && jizdy[w].hranice.prvek >= 0)
            prirazky[static_cast<std::size_t>(jizdy[w].hranice.prvek)] += kObsazena_m;
    }
}

// The way as it is after the frontier has moved: what has been set of it goes.
bool zkrat_cestu(Jizda& j) {
    if (j.cesta_od == j.hranice)
        return true;
    for (std::size_t i = 0; i < j.cesta.size(); ++i)
        if (j.cesta[i].prvek == j.hranice.prvek && j.cesta[i].smer == j.hranice.smer &&
            j.cesta[i].bodu == j.hranice.bodu) {
            j.cesta.erase(j.cesta.begin(), j.cesta.begin() + static_cast<std::ptrdiff_t>(i) + 1);
            j.cesta_od = j.hranice;
            return true;
        }
    return false;
}

// What the train will need within the next minutes, and where it will stand first.
void slib_jizdy(int v) {
    Jizda& j = jizda_vlaku(v);
    std::vector<Potreba> potreby;
    j.useky.clear();
    Postup p = postup_na_hranici(v, j, &potreby);
    if (p.s < kNikdy_s)
        for (const KrokTrasy& k : j.cesta) {
            if (p.s > kObzorSlibu_s)
                break;
            p.h.smer = trasa_c(k.trasa).smer;
            const double od_s = p.s;
            p.projed(trasa_c(k.trasa).zaznam.prvky, 1);
            j.useky.push_back({misto_prvku(k.prvek), trasa_c(k.trasa).konec_smer,
                               static_cast<std::int32_t>(od_s), static_cast<std::int32_t>(p.s)});
        }
    slib_jizde(v, p.kolej, std::move(potreby));
}

} // namespace

// --- when the desk is handed over

void zapomen_cesty_vlaku() {
    nacti_site();
    zapomen_nahrady();
    jizdy.clear();
    trasa_podle_koncu.clear();
    for (std::size_t i = 0; i < sit().trasy.size(); ++i)
        trasa_podle_koncu.emplace(std::pair{trasa_c(i).zaznam.zacatek, trasa_c(i).zaznam.konec}, i);
    slibeno_s = prehled_s = kZadny;
    ++zmena;
    objednane.clear();
}

// --- by the dispatcher

void obnov_vyluky() {
    vyloucene_prvky.clear();
    for (const StitekPrvku& s : stitky)
        if (!s.vyluka.empty())
            vyloucene_prvky.push_back(s.prvek);
    nejsou.assign(sit().trasy.size(), 0);
    for (std::size_t i = 0; i < nejsou.size(); ++i) {
        const ZaznamCesty& z = trasa_c(i).zaznam;
        nejsou[i] = (vyloucene_prvky.empty() ? je_zablokovano(z.zacatek) : je_vyloucena(z)) ? 1 : 0;
    }
}

void obnov_jizdu(int v) {
    ++zmena;
    if (jizdy.size() < vlaky.size())
        jizdy.resize(vlaky.size());
    Jizda& j = jizda_vlaku(v);
    const Vlak& vlak = vlak_c(v);
    if (vlak.cislo < 1 || !jede_vlakem(vlak)) {
        if (j.jede || j.cislo != 0) {
            zrus_slib(v);
            prestan_cekat(j);
            j = Jizda{};
        }
        return;
    }
    if (j.cislo != vlak.cislo || j.zastavek != vlak.zastavky.size()) {
        prestan_cekat(j);
        j = Jizda{};
        j.cislo = vlak.cislo;
        j.zastavek = vlak.zastavky.size();
        udelej_body(j, vlak.zastavky);
    }
    j.jede = true;
    najdi_hranici(v, j);
    if (j.doma) {
        j.cesta.clear();
        return;
    }
    if (!zkrat_cestu(j) || (j.cesta.empty() && ted_s() >= j.hledat_s)) {
        najdi_cestu_vlaku(v, j, false);
        j.hledat_s = ted_s() + kHledani_s;
    }
}

void obnov_vsechny() {
    if (prehled_s == ted_s())
        return;
    prehled_s = ted_s();
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        obnov_jizdu(static_cast<int>(v));
}

void najdi_cestu_vlaku(int v, Jizda& j, bool obsazene) {
    const Vlak& vlak = vlak_c(v);
    planovani::Ukol ukol;
    ukol.body = j.body;
    ukol.delka = vlak.delka;
    ukol.druh = vlak.druh;
    // At Hrabov the start of the service may have put a train down the wrong way round, whatever draws it.
    const bool stoji = j.stoji && cely_na_koleji(vlak) && kolej_cela(vlak) == j.hranice.prvek;
    const bool v_hrabove = planovani::stanice_elementu(j.hranice.prvek) == dopravna::vysni_hrabov;
    ukol.pocatek = planovani::Pocatek{j.hranice.prvek, j.hranice.smer, j.hranice.bodu,
                                      stoji && (je_vratny(vlak) || v_hrabove)};
    udelej_prirazky(vlak, obsazene, v);
    ukol.prirazky = prirazky;
    ukol.bez_tras = nejsou;
    auto cesta = najdi_trasy(sit(), ukol);
    if (!cesta && obsazene)
        return; // the way that there is stays
    ++zmena;
    j.cesta = cesta ? std::move(*cesta) : std::vector<KrokTrasy>{};
    j.cesta_od = j.hranice;
}

void udelej_body(Jizda& j, const std::vector<Zastavka>& zastavky) {
    j.body.clear();
    for (std::size_t k = 0; k < zastavky.size(); ++k) {
        const Zastavka& z = zastavky[k];
        planovani::Bod b{.stanice = z.stanice, .stavi = k == 0 || z.prijezd >= 0 || k + 1 == zastavky.size()};
        b.odjezd_s = z.odjezd * 60.0;
        b.muze_otocit = k > 0 && z.prijezd >= 0 && z.odjezd - z.prijezd >= kObjetiCestou_min;
        j.body.push_back(std::move(b));
    }
}

void prestan_cekat(Jizda& j) {
    j.ceka_od_s = kZadny;
    if (j.receno != 0)
        vypravci::neceka(j.receno);
    j.receno = 0;
}

// --- by the promises

void obnov_sliby_jizd() {
    const std::int32_t ted = ted_s();
    if (slibeno_s >= 0 && ted >= slibeno_s && ted - slibeno_s < kPlatnostSlibu_s)
        return;
    slibeno_s = ted;
    obnov_vsechny();
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        if (jizdy[v].jede)
            slib_jizdy(static_cast<int>(v));
}

// --- at any time, without change

Jizda& jizda_vlaku(int v) {
    return jizdy[static_cast<std::size_t>(v)];
}

const planovani::Sit& sit() {
    return sit_vlaku();
}

const planovani::Trasa& trasa_c(std::size_t i) {
    return sit().trasy[i];
}

const std::vector<std::uint8_t>& bez_tras() {
    return nejsou;
}

std::uint32_t zmena_cest() {
    return zmena;
}

bool vyluky_se_zmenily() {
    std::size_t k = 0;
    for (const StitekPrvku& s : stitky)
        if (!s.vyluka.empty() && (k >= vyloucene_prvky.size() || vyloucene_prvky[k++] != s.prvek))
            return true;
    return k != vyloucene_prvky.size();
}

bool otoci_se_sam(const Vlak& v) {
    if (v.vozy.empty())
        return false;
    const Text& celo = v.vozy.front().rada;
    return je_ridici_vuz(celo) || celo == uzel::kVuzJednotky || v.druh == druh_vlaku::lv ||
           je_loko(v.vozy.back().rada);
}

bool je_ztracena(const Cesta& c) {
    return c.prehozena && !c.Postavena && c.Umazat == 0 && c.cas_ruseni < 0 && ted_s() > c.Kdy_prehoz &&
           ztracena_vyhybka(c) != kZadny;
}

bool vede_pres(int v, const Cesta& hledana) {
    const Vlak& vlak = vlak_c(v);
    if (cesta_pod_vlakem(v) == &hledana)
        return true;
    const Cesta* c = cesta_pod_vlakem(v);
    Hranice h{kolej_cela(vlak), vlak.smer, 0};
    if (c != nullptr)
        h.prvek = prvky_cesty(*c).back().prvek;
    for (std::size_t i = 0; i < kNejvicKroku; ++i) {
        const Cesta* d = nullptr;
        for (const Cesta& k : cesty)
            if (k.zacatek >= 0 && k.VC && k.Umazat == 0 && k.cas_ruseni < 0 && k.prvky.size() > 1 &&
                k.prvky.front().prvek == h.prvek) {
                if (&k == &hledana)
                    return true;
                d = &k;
            }
        if (d == nullptr)
            return false;
        h.prvek = prvky_cesty(*d).back().prvek;
    }
    return false;
}

} // namespace vypravovani
