// vypravci/jizdy.cpp - train movements.
#include "vypravci/jizdy.h"

#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/dotazy.h"
#include "cesty/drzeni.h"
#include "cesty/navest.h"
#include "cesty/nova_cesta.h"
#include "desk/stitky.h"
#include "gvd/casy.h"
#include "gvd/druhy_vlaku.h"
#include "gvd/gvd.h"
#include "jizda/metry.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "prvky/jmena.h"
#include "prvky/souhlasy.h"
#include "prvky/volnost.h"
#include "relief/relief.h"
#include "relief/topologie.h"
#include "uzel/dopravny.h"
#include "uzel/prejezdy.h"
#include "uzel/rychlosti.h"
#include "uzel/trate.h"
#include "uzel/vozidla.h"
#include "uzel/vstupy.h"
#include "vypravci/banker.h"
#include "vypravci/pohled.h"
#include "vypravci/rezervace.h"
#include "vypravci/ruce.h"
#include "vypravci/vypravci.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <optional>
#include <utility>

using planovani::kBezTrasy;
using planovani::KrokTrasy;

namespace {

constexpr int kNikdy_s = 1'000'000;
constexpr int kStavba_s = 10;           // a route takes so long, and with the speed of the clock more
constexpr int kPredstih_s = 12;         // and stands so long before it is needed
constexpr int kPrejezd_s = 50;          // a crossing that has to close before the signal clears
constexpr int kNejdelePrednost_s = 420; // so long a train lets others go first
constexpr int kZaSebou_s = 60;          // between two trains on a line
constexpr int kNepotrebna_s = 90;       // a route without a use goes back so long after its order
constexpr int kNehybe_s = 600;          // who may go over his route and does not for so long cannot
constexpr int kPostaveni_s = 30;        // a route is locked so long before the train comes to it
constexpr int kPlatnostSlibu_s = 6;     // promises are as exact as this
constexpr int kObzorSlibu_s = 900;      // so far ahead promises are made
constexpr int kPohledBankere_s = 10;    // between two looks at a train that waits for others,
constexpr int kPohledNaCekani_s = 4;    // and at one that waits for its way
constexpr int kHledani_s = 60;          // between two searches for another way
constexpr int kCekatNaKolej_s = 150;    // a train waits for its own platform that is free so soon,
constexpr int kCekatNaVlastni_s = 240;  // and no longer than this;
constexpr int kCekatNaJinou_s = 60;     // for any other track
constexpr int kCerstvaCesta_s = 30;     // a route that nothing hinders is commanded by then
constexpr int kJinaKolejPo_s = 16;      // between two looks for another track
constexpr int kUvolnitPo_s = 180;       // so long it waits before routes that nobody uses go out of its way
constexpr int kVstup_min = 4;           // so long ahead entry tracks are kept free
constexpr int kObjetiCestou_min = 12;   // a stop in which a locomotive may run round its train
constexpr std::size_t kNejvicKroku = 40;

std::vector<Jizda> jizdy;
std::map<std::pair<int, int>, std::size_t> trasa_podle_koncu; // start signal and end
std::vector<std::uint8_t> bez_tras;                           // routes that do not exist now
std::int32_t dalsi_vyluky_s = 0;
std::array<std::int32_t, uzel::kKonceTrati.size()> dalsi_souhlas_s{};
std::int32_t dalsi_uvolneni_s = 0;
std::int32_t prehled_s = kZadny; // when all trains were looked at last
bool banker_plati = false;       // who is stuck as the desk stands is known
std::int32_t slibeno_s = kZadny; // when the promises were made last

const planovani::Sit& sit() {
    return sit_vlaku();
}
const planovani::Trasa& trasa_c(std::size_t i) {
    return sit().trasy[i];
}

// A route that he has ordered, and for whom. Whoever takes the desk over finds it by what is set.
struct Objednana {
    std::int16_t zacatek = kZadny, konec = kZadny;
    std::int32_t vlak = 0; // number of the record
    std::int32_t cas_s = 0;
};
std::vector<Objednana> objednane;

// --- what a train is

// It turns by itself for its first route.
bool otoci_se_sam(const Vlak& v) {
    if (v.vozy.empty())
        return false;
    const Text& celo = v.vozy.front().rada;
    return je_ridici_vuz(celo) || celo == uzel::kVuzJednotky || v.druh == druh_vlaku::lv ||
           je_loko(v.vozy.back().rada);
}

// It can be driven from either end: it turns, or the operator turns it.
bool je_vratny(const Vlak& v) {
    return otoci_se_sam(v) || (v.vozy.size() > 1 && posledni_je_loko(v));
}

bool jede_vlakem(const Vlak& v) {
    return v.cislo > 0 && !v.posun && !v.prvky.empty() && v.prvek_konec >= 0 && !v.zastavky.empty() &&
           ma_loko(v);
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

// --- how long it takes

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

// Commanded, and a switch of it taken since, by NOUZ or a train. One that was locked is never cleared again:
// it can only be cancelled.
bool je_ztracena(const Cesta& c) {
    return c.prehozena && !c.Postavena && c.Umazat == 0 && c.cas_ruseni < 0 && ted_s() > c.Kdy_prehoz &&
           ztracena_vyhybka(c) != kZadny;
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

// --- the frontier

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

// What is set for the train leads over the route.
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

void najdi_hranici(int v, Jizda& j) {
    const Postup p = postup_na_hranici(v, j, nullptr);
    j.hranice = p.h;
    j.do_hranice_s = static_cast<std::int32_t>(std::min<double>(p.s, kNikdy_s));
    j.doma = j.hranice.bodu >= j.body.size();
}

// --- the way

bool je_vstupni(int prvek) {
    for (const uzel::StaniceOhlaseni& s : uzel::kOhlasovane)
        if (std::find(s.koleje.begin(), s.koleje.end(), prvek) != s.koleje.end() && prvek != 0)
            return true;
    for (const uzel::VstupZeStanice& s : uzel::kVstupy)
        if (std::find(s.koleje.begin(), s.koleje.end(), prvek) != s.koleje.end() && prvek != 0)
            return true;
    return false;
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
    ukol.bez_tras = bez_tras;
    auto cesta = najdi_trasy(sit(), ukol);
    if (!cesta && obsazene)
        return; // the way that there is stays
    banker_plati = false;
    j.cesta = cesta ? std::move(*cesta) : std::vector<KrokTrasy>{};
    j.cesta_od = j.hranice;
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

void prestan_cekat(Jizda& j) {
    j.ceka_od_s = kZadny;
    if (j.receno != 0)
        vypravci::neceka(j.receno);
    j.receno = 0;
}

void obnov_jizdu(int v) {
    banker_plati = false;
    if (jizdy.size() < vlaky.size())
        jizdy.resize(vlaky.size());
    Jizda& j = jizdy[static_cast<std::size_t>(v)];
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

// All trains as they are in this second.
void obnov_vsechny() {
    if (prehled_s == ted_s())
        return;
    prehled_s = ted_s();
    for (std::size_t v = 0; v < vlaky.size(); ++v)
        obnov_jizdu(static_cast<int>(v));
}

// What the train will need within the next minutes, and where it will stand first.
void slib_jizdy(int v) {
    Jizda& j = jizdy[static_cast<std::size_t>(v)];
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

// --- the banker

std::vector<UcastnikBankere> ucastnici;
std::vector<int> ucastnik_vlaku; // index in `vlaky` of each
std::vector<std::uint8_t> obsazena, uvazli_pred, uvazli_po;

// An exit: who comes there leaves the junction, or is taken over by a neighbour.
bool je_konecna(int prvek) {
    return je_vstupni(prvek) || je_v(prvek, {uzel::kBranaVh.kolej, uzel::kBranaVychod.kolej}) ||
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
    if (banker_plati)
        return;
    priprav_bankere();
    uvazli(sit(), ucastnici, obsazena, bez_tras, uvazli_pred);
    banker_plati = true;
}

// Nobody is stuck with the participants as they are now who is not stuck without what is asked.
bool nikdo_dalsi_neuvazne() {
    uvazli(sit(), ucastnici, obsazena, bez_tras, uvazli_po);
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

// --- entries are kept free

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

// --- promises of platforms

// Another train that is on its way will stand on the track before v has left it.
int ceka_na_kolej(int e, int v) {
    const Jizda& moje = jizdy[static_cast<std::size_t>(v)];
    for (std::size_t w = 0; w < jizdy.size(); ++w) {
        const Jizda& j = jizdy[w];
        if (static_cast<int>(w) == v || !j.jede || j.cesta.empty() || planovana_kolej(vlaky[w]) != e)
            continue;
        if (j.do_hranice_s > moje.do_hranice_s + 420)
            continue;
        for (const KrokTrasy& k : j.cesta)
            if (k.prvek == e)
                return static_cast<int>(w);
    }
    return kZadny;
}

// --- the sentences

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

Text veta_cekani(int v, TextPohled proc) {
    const Vlak& vlak = vlak_c(v);
    Text t = jmeno_vlaku(vlak);
    t += " čeká"_cz;
    if (const int s = planovani::stanice_elementu(jizdy[static_cast<std::size_t>(v)].hranice.prvek); s != 0) {
        t += " ("_cz;
        t += nazev_stanice(s);
        t += ")";
    }
    t += ": ";
    t += proc;
    t += ".";
    return t;
}

// --- one route

enum class Verdikt : std::uint8_t { lze, cizi, neni, zatim_ne, nebezpecne, kolej };
struct Posudek {
    Verdikt co = Verdikt::lze;
    Text proc;
};

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

// Another train is before it at the track where the route begins: it would take the route.
int jiny_na_zacatku(const planovani::Trasa& t, int v) {
    const int e = t.zaznam.prvky.front().prvek;
    if (kolej_cela(vlak_c(v)) == e)
        return kZadny;
    const Jizda& moje = jizdy[static_cast<std::size_t>(v)];
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

// A route that has just been ordered holds nothing that can be seen, and will all the same. One that has
// waited for long waits for something else, perhaps for this very train.
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

// May the train take route `trasa` now, with that rest of its way behind it?
Posudek posud(int v, std::size_t trasa, std::span<const KrokTrasy> zbytek) {
    const planovani::Trasa& t = trasa_c(trasa);
    if (!vypravci::ma_navestidlo(t.zaznam.zacatek))
        return {Verdikt::cizi, {}};
    if (const int w = jiny_na_zacatku(t, v); w >= 0)
        return {Verdikt::zatim_ne, jmeno_vlaku(vlak_c(w)) + Text(" je před ním"_cz)};
    if (bez_tras[trasa] != 0)
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

// --- who goes first

// How much a minute of the train weighs.
int vaha(const Vlak& v) {
    switch (v.cislo2_platne ? v.druh2 : v.druh) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 8: return 4;
    case 5:
    case 6: return 3;
    case 7: return 2;
    default: return 1;
    }
}

// A train for which v waits with its line: it would lose more behind v than v behind it. kZadny none.
int ma_prednost(int v, const Jizda& j) {
    const KrokTrasy& k = j.cesta.front();
    if (!planovani::je_tratovy(k.prvek) || (j.ceka_od_s >= 0 && ted_s() - j.ceka_od_s > kNejdelePrednost_s))
        return kZadny;
    const int misto = misto_prvku(k.prvek);
    if (j.useky.empty() || j.useky.front().misto != misto)
        return kZadny;
    const Usek moje = j.useky.front();
    const int kde = misto_prvku(j.hranice.prvek);
    int prvni = kZadny;
    for (std::size_t w = 0; w < jizdy.size(); ++w) {
        const Jizda& jiny = jizdy[w];
        if (static_cast<int>(w) == v || !jiny.jede || jiny.ceka_od_s >= 0)
            continue;
        for (const Usek& u : jiny.useky) {
            if (u.misto == kde)
                break; // it comes over the track on which v stands
            if (u.misto != misto)
                continue;
            // Behind v it runs as slowly; against v it waits until the line is free.
            const int ztrati =
                u.smer == moje.smer ? moje.do_s + kZaSebou_s - u.do_s : moje.do_s + kZaSebou_s - u.od_s;
            const int ztratim =
                u.smer == moje.smer ? u.od_s + kZaSebou_s - moje.od_s : u.do_s + kZaSebou_s - moje.od_s;
            if (ztrati > 30 && u.od_s >= moje.od_s - 30 && ztratim > 0 &&
                ztrati * vaha(vlaky[w]) > ztratim * vaha(vlak_c(v)))
                prvni = static_cast<int>(w);
            break;
        }
    }
    return prvni;
}

// --- routes that were ordered, and are of no use any more

// The train for which the route was set does not come, or not soon: it goes back, as it stands in the way.
void zrus_nepotrebne() {
    std::erase_if(objednane, [](const Objednana& o) { return cesta_v_zasobniku(o.zacatek, o.konec) < 0; });
    for (const Objednana& o : objednane) {
        if (ted_s() - o.cas_s < kNepotrebna_s || !vypravci::ma_navestidlo(o.zacatek))
            continue;
        const Cesta& c = cesta_c(cesta_v_zasobniku(o.zacatek, o.konec));
        if (!c.prehozena && c.varovani == 0) {
            if (!odeber_cestu(o.zacatek, o.konec))
                continue;
            Text veta("Cesta od návěstidla "_cz);
            veta += jmeno_navestidla(o.zacatek);
            veta += " se dlouho nepostavila, odchází ze zásobníku."_cz;
            vypravci::rekni(o.vlak, std::move(veta));
            return;
        }
        if (c.cas_ruseni >= 0 || c.Vlak >= 0 || !rc_mozne(o.zacatek))
            continue;
        const auto w =
            std::find_if(vlaky.begin(), vlaky.end(), [&](const Vlak& v) { return v.cislo == o.vlak; });
        const auto i = static_cast<std::size_t>(w - vlaky.begin());
        const bool prijede = w != vlaky.end() && i < jizdy.size() && jizdy[i].jede &&
                             vede_pres(static_cast<int>(i), c) && (w->muze_jet || do_odjezdu_s(*w) < 300);
        // It may go, stands before the signal and does not go: another movement stands between them, and may
        // be waiting for this very route to be gone.
        const bool nemuze = prijede && w->muze_jet && w->rychlost == 0 && ted_s() - o.cas_s > kNehybe_s &&
                            kolej_cela(*w) == prvni_prvek(c);
        if (prijede && !nemuze && !je_ztracena(c))
            continue;
        if (povel_navestidla(o.zacatek, "miRC")) {
            Text veta("Ruší se cesta od návěstidla "_cz);
            veta += jmeno_navestidla(o.zacatek);
            veta += ", vlak po ní nepojede."_cz;
            vypravci::rekni(o.vlak, std::move(veta));
        }
        return; // one a time: the table of routes may have changed
    }
}

// A route is ordered.
bool objednej(int v, std::size_t trasa) {
    const planovani::Trasa& t = trasa_c(trasa);
    if (!zvol_cestu(t.zaznam.zacatek, t.zaznam.konec, druh_volby::vlak))
        return false;
    const Vlak& vlak = vlak_c(v);
    objednane.push_back({t.zaznam.zacatek, t.zaznam.konec, vlak.cislo, ted_s()});
    Text veta = jmeno_vlaku(vlak);
    veta += ": cesta "_cz;
    veta += jmeno_navestidla(t.zaznam.zacatek);
    veta += " – "_cz;
    veta += jmeno_koleje(t.konec);
    veta += ".";
    vypravci::rekni(zobrazene_cislo(vlak), std::move(veta));
    return true;
}

// Another track on which the train may end its next route and go on as planned; nothing when there is none.
std::optional<Nahrada> jina_kolej(int v, const Jizda& j) {
    const std::size_t dalsi = j.cesta.size() > 1 ? j.cesta[1].trasa : kBezTrasy;
    const Vlak& vlak = vlak_c(v);
    const bool hlavni = uzel::je_kolej_hlavniho(j.cesta.front().prvek);
    for (const Nahrada& n : nahrady(sit(), j.cesta.front().trasa, dalsi)) {
        if (delka_koleje(n.prvek) < vlak.delka)
            continue;
        if (hlavni && ceka_na_kolej(n.prvek, v) >= 0)
            continue;
        if (const int w = slibena(n.prvek); w >= 0 && w != v)
            continue;
        if (dalsi != kBezTrasy && bez_tras[n.dalsi] != 0)
            continue;
        std::vector<KrokTrasy> zbytek(j.cesta.begin() + 1, j.cesta.end());
        if (dalsi != kBezTrasy)
            zbytek.front().trasa = n.dalsi;
        if (posud(v, n.trasa, zbytek).co == Verdikt::lze)
            return n;
    }
    return std::nullopt;
}

void vezmi_nahradu(Jizda& j, const Nahrada& n) {
    j.cesta[0].trasa = n.trasa;
    j.cesta[0].prvek = n.prvek;
    if (j.cesta.size() > 1)
        j.cesta[1].trasa = n.dalsi;
}

void cekej(int v, Jizda& j, TextPohled proc) {
    if (j.do_hranice_s > 5)
        return;
    if (j.ceka_od_s < 0)
        j.ceka_od_s = ted_s();
    if (const std::int32_t cislo = zobrazene_cislo(vlak_c(v)); j.receno != cislo) {
        if (j.receno != 0)
            vypravci::neceka(j.receno);
        j.receno = cislo;
    }
    vypravci::rekni_cekani(j.receno, veta_cekani(v, proc));
}

// A train, or a shunting movement that stands before it, is to run over the route.
bool ma_uzivatele(const Cesta& c) {
    for (std::size_t w = 0; w < vlaky.size(); ++w) {
        const Vlak& vlak = vlaky[w];
        if (vlak.cislo < 1 || vlak.prvky.empty())
            continue;
        if (c.VC ? !vlak.posun && vede_pres(static_cast<int>(w), c)
                 : vlak.posun && drzi_prvek(vlak, prvni_prvek(c)))
            return true;
    }
    return false;
}

// A route that somebody has left standing or waiting, and that nobody runs over, keeps a train from going on:
// it goes back. Only where the whole desk is his.
void uvolni_z_cesty(const ZaznamCesty& z) {
    if (!stav_vypravciho.vse || ted_s() < dalsi_uvolneni_s)
        return;
    for (const Cesta& c : cesty) {
        const bool stara = c.cas_stavby >= 0 && ted_s() - c.cas_stavby > kNepotrebna_s;
        if (c.zacatek < 0 || c.Umazat != 0 || c.Vlak != kZadny || c.cas_ruseni >= 0 || !stara ||
            (ma_uzivatele(c) && !je_ztracena(c)))
            continue;
        const bool prekazi = std::any_of(c.prvky.begin() + 1, c.prvky.end(), [&](const PrvekCesty& p) {
            return std::any_of(z.prvky.begin() + 1, z.prvky.end(),
                               [&](const PrvekCesty& q) { return p.druh == q.druh && p.prvek == q.prvek; });
        });
        if (!prekazi)
            continue;
        dalsi_uvolneni_s = ted_s() + kPohledNaCekani_s * 2;
        Text veta("Cesta "_cz);
        veta += popis_cesty(c);
        veta += " stojí v cestě a nikdo po ní nepojede, ruší se."_cz;
        if (c.prehozena ? povel_navestidla(c.zacatek, "miRC") : odeber_cestu(c.zacatek, c.konec))
            vypravci::rekni(0, std::move(veta));
        return;
    }
}

// The platform that it is planned on: how long until the one who stands there goes, at least.
int uvolni_se_za_s(int e) {
    const int w = kdo_drzi(e);
    if (w < 0)
        return 30;
    if (static_cast<std::size_t>(w) >= jizdy.size() || !jizdy[static_cast<std::size_t>(w)].jede ||
        jizdy[static_cast<std::size_t>(w)].cesta.empty())
        return kNikdy_s;
    return do_odjezdu_s(vlak_c(w));
}

// It stands the other way round than it goes, and does not turn by itself.
bool ma_se_otocit(const Vlak& vlak, const Jizda& j) {
    return j.stoji && cely_na_koleji(vlak) && kolej_cela(vlak) == j.hranice.prvek &&
           trasa_c(j.cesta.front().trasa).smer != vlak.smer && !otoci_se_sam(vlak);
}

// The next route of the train, when its time has come. True when one was ordered.
bool zkus(int v) {
    Jizda& j = jizdy[static_cast<std::size_t>(v)];
    const std::int32_t ted = ted_s();
    if (!j.jede || j.doma) {
        j.podivat_s = ted + 20;
        return false;
    }
    if (j.cesta.empty()) {
        j.podivat_s = ted + 10;
        cekej(v, j,
              std::find(bez_tras.begin(), bez_tras.end(), 1) != bez_tras.end()
                  ? "cesta po jeho zastávkách vede přes výluku nebo zablokované návěstidlo"_cz
                  : "nevede odtud cesta po jeho zastávkách"_cz);
        return false;
    }
    const std::size_t trasa = j.cesta.front().trasa;
    const int predstih = predstih_s(trasa, j.stoji);
    if (j.do_hranice_s > predstih) {
        // Until an order lets it go the departure is nobody's guess.
        const int nejdele = j.do_hranice_s >= kNikdy_s ? kPohledNaCekani_s : 60;
        j.podivat_s = ted + std::min(nejdele, std::max(1, j.do_hranice_s - predstih));
        return false;
    }
    obnov_vsechny();
    if (j.cesta.empty() || j.cesta.front().trasa != trasa)
        return false;
    const Vlak& vlak = vlak_c(v);
    if (j.stoji && je_zdvojen(v)) { // it goes to the yard
        j.podivat_s = ted + 10;
        return false;
    }
    if (!muze_tahnout(v) && j.stoji && !vlak.muze_jet) { // an order lets it go without
        j.podivat_s = ted + 10;
        return false;
    }
    // Promises are worked out where they are asked for; that makes ways anew that are wanting.
    const auto se_sliby = [&] {
        obnov_sliby_jizd();
        return !j.cesta.empty() && j.cesta.front().trasa == trasa;
    };
    Posudek p = posud(v, trasa, std::span(j.cesta).subspan(1));
    if (p.co == Verdikt::lze && planovani::je_tratovy(j.cesta.front().prvek)) {
        if (!se_sliby())
            return false;
        if (const int w = ma_prednost(v, j); w >= 0)
            p = {Verdikt::zatim_ne, Text("dává přednost vlaku "_cz) + jmeno_vlaku(vlak_c(w))};
    }
    const int ceka = j.ceka_od_s >= 0 ? ted - j.ceka_od_s : 0;
    const int e = j.cesta.front().prvek;
    const bool vlastni = uzel::je_kolej_hlavniho(e) && planovana_kolej(vlak) == e;
    const int trpelivost = vlastni ? kCekatNaVlastni_s : kCekatNaJinou_s;
    if (p.co == Verdikt::kolej || p.co == Verdikt::neni ||
        ((p.co == Verdikt::zatim_ne || p.co == Verdikt::nebezpecne) && ceka > trpelivost)) {
        const bool pocka =
            p.co == Verdikt::kolej && vlastni && ceka <= trpelivost && uvolni_se_za_s(e) < kCekatNaKolej_s;
        if (!pocka && ted >= j.nahrada_s) {
            j.nahrada_s = ted + kJinaKolejPo_s;
            if (!se_sliby())
                return false;
            if (const auto n = jina_kolej(v, j)) {
                vezmi_nahradu(j, *n);
                p = {};
            }
        }
    }
    if (p.co == Verdikt::lze && ma_se_otocit(vlak, j)) {
        if (povel_vlaku(kolej_cela(vlak), v, "miOtoc")) {
            vypravci::rekni(zobrazene_cislo(vlak),
                            jmeno_vlaku(vlak) + Text(" se otáčí: odjíždí na druhou stranu."_cz));
            return true;
        }
        j.podivat_s = ted + 10;
        return false;
    }
    if (p.co == Verdikt::lze) {
        if (objednej(v, j.cesta.front().trasa)) {
            prestan_cekat(j);
            return true;
        }
        j.podivat_s = ted + 10;
        return false;
    }
    if (p.co != Verdikt::cizi) {
        cekej(v, j, p.proc);
        if (ceka > kUvolnitPo_s)
            uvolni_z_cesty(trasa_c(j.cesta.front().trasa).zaznam);
    }
    if ((p.co == Verdikt::neni || (j.ceka_od_s >= 0 && ted - j.ceka_od_s > 120)) && ted >= j.hledat_s) {
        najdi_cestu_vlaku(v, j, true);
        j.hledat_s = ted + kHledani_s;
    }
    j.podivat_s = ted + std::max<int>(p.co == Verdikt::nebezpecne ? kPohledBankere_s : kPohledNaCekani_s,
                                      simulace.rychlost);
    return false;
}

// --- consents

// The train that asks at line end k would come onto the line: nobody is stuck by it.
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
    ukol.bez_tras = bez_tras;
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

void rozhodni_souhlas(int k) {
    const auto cislo = souhlasy.zada[static_cast<std::size_t>(k)];
    if (!cislo)
        return;
    const uzel::KonecTrati& konec = uzel::kKonceTrati[static_cast<std::size_t>(k)];
    if (!vypravci::ma_navestidlo(konec.vjezd))
        return;
    if (!je_bezpecny_vjezd(k, *cislo)) {
        vypravci::rekni_cekani(*cislo, Text("Vlak "_cz) + text_cisla(*cislo) +
                                           Text(" čeká u sousední stanice na souhlas: jinak by se vlaky "
                                                "navzájem zablokovaly."_cz));
        dalsi_souhlas_s[static_cast<std::size_t>(k)] = ted_s() + kPohledNaCekani_s;
        return;
    }
    Text veta("Souhlas pro vlak "_cz);
    veta += text_cisla(*cislo);
    veta += " od stanice "_cz;
    veta += nazev_stanice(konec.stanice);
    veta += ".";
    const std::int32_t ktery = *cislo; // the consent takes the question away
    if (dej_souhlas(k)) {
        vypravci::neceka(ktery);
        vypravci::rekni(ktery, std::move(veta));
    }
}

// Tracks under possession when the routes were looked at last.
std::vector<std::int16_t> vyloucene_prvky;

// A possession has come or gone since.
bool vyluky_se_zmenily() {
    std::size_t k = 0;
    for (const StitekPrvku& s : stitky)
        if (!s.vyluka.empty() && (k >= vyloucene_prvky.size() || vyloucene_prvky[k++] != s.prvek))
            return true;
    return k != vyloucene_prvky.size();
}

void obnov_vyluky() {
    vyloucene_prvky.clear();
    for (const StitekPrvku& s : stitky)
        if (!s.vyluka.empty())
            vyloucene_prvky.push_back(s.prvek);
    bez_tras.assign(sit().trasy.size(), 0);
    const bool vyluky =
        std::any_of(stitky.begin(), stitky.end(), [](const StitekPrvku& s) { return !s.vyluka.empty(); });
    for (std::size_t i = 0; i < bez_tras.size(); ++i) {
        const ZaznamCesty& z = trasa_c(i).zaznam;
        bez_tras[i] = (vyluky ? je_vyloucena(z) : je_zablokovano(z.zacatek)) ? 1 : 0;
    }
}

// It will stop where nobody can tell it to leave, and by the times of the next day there.
bool zustal_by_na_trati(const Vlak& v) {
    return std::any_of(v.zastavky.begin() + v.stanice_index + 1, v.zastavky.end(),
                       [](const Zastavka& z) { return z.prijezd >= 0 && je_zastavka_na_trati(z.stanice); });
}

// A train that a delay has brought over midnight carries the times of the next day. It is told to leave
// when its own time has come, else it would keep its track for a day. But a line is not to be kept either:
// better a track.
void vyprav_pulnocni() {
    constexpr int kPul_dne_s = 12 * 3600, kDva_dny_s = 4 * kPul_dne_s;
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        const Vlak& v = vlaky[i];
        if (v.cislo <= 0 || v.posun || v.muze_jet || v.stanice_index < 0 || !cely_na_koleji(v))
            continue;
        const int ceka_s = do_odjezdu_s(v), e = kolej_cela(v);
        const Zastavka& z = v.zastavky.at(static_cast<std::size_t>(v.stanice_index));
        if (ceka_s < kPul_dne_s || ceka_s > kDva_dny_s || z.odjezd - kDen_min > cas_min() ||
            !ma_menu_koleje(e) || !vypravci::ma_stanici(z.stanice) || zustal_by_na_trati(v))
            continue;
        if (povel_vlaku(e, static_cast<int>(i), "miOdjezd"))
            vypravci::rekni(zobrazene_cislo(v),
                            jmeno_vlaku(v) + Text(" dostává povel k odjezdu: má časy až zítřejší."_cz));
    }
}

} // namespace

void zacni_jizdy() {
    nacti_site();
    zapomen_nahrady();
    jizdy.clear();
    trasa_podle_koncu.clear();
    for (std::size_t i = 0; i < sit().trasy.size(); ++i)
        trasa_podle_koncu.emplace(std::pair{trasa_c(i).zaznam.zacatek, trasa_c(i).zaznam.konec}, i);
    dalsi_vyluky_s = 0;
    dalsi_souhlas_s = {};
    dalsi_uvolneni_s = 0;
    slibeno_s = prehled_s = kZadny;
    banker_plati = false;
    objednane.clear();
}

void krok_jizd() {
    const std::int32_t ted = ted_s();
    if (jizdy.size() < vlaky.size())
        jizdy.resize(vlaky.size());
    bool neco = false;
    for (std::size_t v = 0; v < vlaky.size() && !neco; ++v)
        neco = vlaky[v].cislo > 0 && !vlaky[v].posun &&
               (jizdy[v].podivat_s <= ted || jizdy[v].cislo != vlaky[v].cislo);
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k)
        neco = neco || (souhlasy.zada[k] && dalsi_souhlas_s[k] <= ted);
    if (!neco)
        return;
    bool uklid = false;
    if (ted >= dalsi_vyluky_s || vyluky_se_zmenily()) {
        obnov_vyluky();
        uklid_rezervace();
        vypravci::uklid_cekani();
        uklid = true;
        dalsi_vyluky_s = ted + 30;
    }
    zapni_pv();
    for (std::size_t k = 0; k < souhlasy.zada.size(); ++k)
        if (souhlasy.zada[k] && dalsi_souhlas_s[k] <= ted)
            rozhodni_souhlas(static_cast<int>(k));
    if (uklid) {
        zrus_nepotrebne();
        vyprav_pulnocni();
    }
    static std::vector<int> poradi;
    poradi.clear();
    for (std::size_t v = 0; v < vlaky.size(); ++v) {
        if (jizdy[v].cislo != 0 || vlaky[v].cislo > 0)
            if (jizdy[v].podivat_s <= ted || jizdy[v].cislo != vlaky[v].cislo)
                obnov_jizdu(static_cast<int>(v));
        if (jizdy[v].jede && jizdy[v].podivat_s <= ted)
            poradi.push_back(static_cast<int>(v));
    }
    std::stable_sort(poradi.begin(), poradi.end(), [](int a, int b) {
        const Jizda &x = jizdy[static_cast<std::size_t>(a)], &y = jizdy[static_cast<std::size_t>(b)];
        return x.do_hranice_s != y.do_hranice_s ? x.do_hranice_s < y.do_hranice_s
                                                : vlak_c(a).druh < vlak_c(b).druh;
    });
    for (const int v : poradi)
        for (std::size_t i = 0; i < kNejvicKroku && zkus(v); ++i)
            obnov_jizdu(v);
}

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
