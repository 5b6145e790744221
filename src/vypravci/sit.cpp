// vypravci/sit.cpp - searches ways through the routes, and runs trains over them second by second.
#include "vypravci/sit.h"

#include "gvd/druhy_vlaku.h"
#include "jizda/zastavky.h"
#include "uzel/cislovani.h"
#include "uzel/navestidla.h"
#include "uzel/rychlosti.h"
#include "uzel/trate.h"
#include "uzel/umisteni.h"
#include "uzel/vstupy.h"
#include "uzel/zastavky.h"

#include <queue>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace planovani {

namespace {

constexpr int kVyhybka_m = 20;        // of train length on a switch
constexpr int kKonec_m = 9;           // never run at the end of a track
constexpr int kOdjezdSouseda_m = 400; // where the head of an announced train stands when it sets off
constexpr int kOdjezdBranyVh_m = 500; // of one from the gate of the small depot
constexpr int kProtismer_m = 200'000; // what a line in the unusual direction is avoided by
constexpr int kNavest_m = 10;         // what each signal on the way is avoided by,
constexpr std::array kOdbocka_m = {0, 600, 400, 200}; // and a route over diverging switches, by its speed
constexpr int kVjezdOdbockou_m = 300;
constexpr int kNeobvykla_m = 2'000;  // a stop on a track that the station keeps for other trains
constexpr int kObjeti_m = 5'000;     // what a run of the locomotive round its train is avoided by
constexpr int kKratka_m = 2'000'000; // what a track that is too short is avoided by
constexpr int kNejvyssi = 1000;      // switches are numbered from here where kinds are mixed

bool je_rodina(int prvek) {
    return prvek >= kPrvniTrat && prvek <= kNejvyssiPrvek;
}

// The sense in which a route leads, by the number of its start signal.
bool smer_navestidla(int s) {
    if (je_v(s, uzel::kVpravoProtiCislu) || s == uzel::kObrazKamence)
        return true;
    if (je_na_ser(s))
        return s >= kPrvniTrat;
    return s >= kPrvniTrat ? s % 2 == 1 : s >= 200;
}

void pridej_useky(const Sit& sit, ZaznamCesty& z, bool smer) {
    const int posledni = z.prvky.back().prvek;
    if (!je_rodina(posledni) || z.prvky.back().druh != druh_prvku::kolej)
        return;
    const int krok = smer ? kKrokTrati : -kKrokTrati;
    for (int n = posledni + krok; je_rodina(n) && sit.koleje[static_cast<std::size_t>(n)]; n += krok)
        z.prvky.push_back({static_cast<std::int16_t>(n), druh_prvku::kolej, 2});
}

} // namespace

namespace {

int najdi_stanici(int prvek) {
    if (const int k = uzel::konec_trati(prvek); k >= 0)
        return uzel::kKonceTrati[static_cast<std::size_t>(k)].stanice;
    for (const uzel::VstupZeStanice& v : uzel::kVstupy)
        if (prvek > 0 && je_v(prvek, v.koleje))
            return v.stanice;
    for (const uzel::Brana& b : {uzel::kBranaZapad, uzel::kBranaVychod, uzel::kBranaVh})
        if (prvek == b.kolej)
            return b.popis;
    return prvek == uzel::kKusaKolej ? dopravna::posta : stanice_prvku(prvek);
}

} // namespace

int stanice_elementu(int prvek) {
    static const auto stanice = [] {
        std::array<std::uint8_t, kNejvyssiPrvek + 1> s{};
        for (int n = 0; n <= kNejvyssiPrvek; ++n)
            s[static_cast<std::size_t>(n)] = static_cast<std::uint8_t>(najdi_stanici(n));
        return s;
    }();
    return prvek >= 0 && prvek <= kNejvyssiPrvek ? stanice[static_cast<std::size_t>(prvek)] : 0;
}

int trat_elementu(int prvek) {
    if (je_rodina(prvek))
        return kPrvniTrat + prvek % kKrokTrati;
    if (const int usek = uzel::usek_za_vstupem(prvek); usek >= 0)
        return usek;
    if (const uzel::KolejPredTrati* k = uzel::kolej_pred_trati(prvek))
        return k->usek;
    for (const uzel::KusTrati& k : uzel::kOhybMokriny)
        if (prvek == k.kus)
            return k.prvni;
    return prvek;
}

bool je_tratovy(int prvek) {
    const int t = trat_elementu(prvek);
    return je_rodina(t) || (t >= 19 && t <= 21) || t == uzel::kKamenec || uzel::je_trat_dubnice(t) ||
           je_v(t, uzel::kTrateObousmerne);
}

namespace {

bool urci_protismer(int prvek, bool smer) {
    if (!je_tratovy(prvek))
        return false;
    const int t = trat_elementu(prvek);
    return !je_v(t, uzel::kTrateObousmerne) && smer == je_v(t, uzel::kTrateVlevo);
}

bool je_protismer(int prvek, bool smer) {
    static const auto protismer = [] {
        std::array<std::array<bool, kNejvyssiPrvek + 1>, 2> p{};
        for (int n = 0; n <= kNejvyssiPrvek; ++n)
            for (const bool vpravo : {false, true})
                p[vpravo ? 1 : 0][static_cast<std::size_t>(n)] = urci_protismer(n, vpravo);
        return p;
    }();
    return protismer[smer ? 1 : 0].at(static_cast<std::size_t>(prvek));
}

// Trains stop there with all their length on the section, not at its end.
bool stavi_na_trati(int prvek) {
    return prvek > kPrvniTrat || prvek == uzel::kKolejStopuPredTrati || prvek == uzel::kKamenec;
}

struct Stav {
    int prvek = 0;
    bool smer = false;
    std::size_t bodu = 0; // that are served
    auto operator<=>(const Stav&) const = default;
};

// Names without a track are passed with the point before them.
bool je_jmeno(int stanice) {
    return stanice >= 36 && stanice <= 38;
}

} // namespace

std::size_t preskoc_jmena(const std::vector<Bod>& body, std::size_t k) {
    while (k < body.size() && je_jmeno(body[k].stanice))
        ++k;
    return k;
}

bool slouzi(const Bod& bod, int prvek, bool konec) {
    return stanice_elementu(prvek) == bod.stanice &&
           (bod.koleje.empty() ||
            std::find(bod.koleje.begin(), bod.koleje.end(), prvek) != bod.koleje.end()) &&
           (konec || !bod.stavi || stavi_na_trati(prvek));
}

bool smer_po_obratu(int odkud, int kam, bool smer) {
    for (const uzel::Obrat& o : uzel::kObraty)
        if (o.odkud == odkud && o.kam == kam && o.smer == smer)
            return !smer;
    return smer;
}

bool smer_za_prvkem(const std::vector<PrvekCesty>& prvky, std::size_t i, bool smer) {
    if (i == 0 || prvky[i].druh != druh_prvku::kolej)
        return smer;
    const bool ohyb = prvky[i - 1].druh == druh_prvku::kolej ? je_v(prvky[i].prvek, uzel::kOhybyZKoleje)
                                                             : je_v(prvky[i].prvek, uzel::kOhybyZVyhybky);
    return smer != ohyb;
}

namespace {

// What a search knows of each state, kept from search to search: only those of the present one count.
struct Uzel {
    double cena = 0;
    Stav odkud{};
    std::size_t trasa = kBezTrasy;
    std::uint32_t hledani = 0; // the search that has written it
    bool hotov = false;
};
struct Uzly {
    std::vector<Uzel> vse;
    std::uint32_t hledani = 0;
};
Uzly& spolecne_uzly() {
    static thread_local Uzly uzly;
    return uzly;
}

struct Hledani {
    const Sit& sit;
    const Ukol& ukol;
    Uzly& uzly = spolecne_uzly();
    std::size_t nejdal = 0;

    std::size_t index(const Stav& s) const {
        return Sit::misto(s.prvek, s.smer) * (ukol.body.size() + 1) + s.bodu;
    }
    bool je(const Stav& s) const { return uzly.vse[index(s)].hledani == uzly.hledani; }
    const Uzel& uzel(const Stav& s) const { return uzly.vse[index(s)]; }
    void zaloz() {
        const std::size_t stavu = 2u * (kNejvyssiPrvek + 1) * (ukol.body.size() + 1);
        if (uzly.vse.size() < stavu)
            uzly.vse.resize(stavu);
        if (++uzly.hledani == 0) { // the count has wrapped: all of them are old
            std::fill(uzly.vse.begin(), uzly.vse.end(), Uzel{});
            uzly.hledani = 1;
        }
    }

    std::size_t preskoc_jmena(std::size_t k) const { return planovani::preskoc_jmena(ukol.body, k); }
    bool hodi_se(std::size_t k, int prvek) const {
        const Bod& b = ukol.body[k];
        return stanice_elementu(prvek) == b.stanice &&
               (b.koleje.empty() || std::find(b.koleje.begin(), b.koleje.end(), prvek) != b.koleje.end());
    }
    double cena_stani(std::size_t k, int prvek) const {
        if (!ukol.body[k].stavi)
            return 0;
        return (sit.delky[static_cast<std::size_t>(prvek)] < ukol.delka ? kKratka_m : 0) +
               (k == 0 || k + 1 == ukol.body.size() || je_obvykla(k, prvek) ? 0 : kNeobvykla_m);
    }
    bool je_pro_vlak(uzel::ProVlaky vlaky) const {
        switch (vlaky) {
        case uzel::ProVlaky::vsechny: return true;
        case uzel::ProVlaky::osobni: return ukol.druh < druh_vlaku::prvni_nakladni;
        case uzel::ProVlaky::nakladni: return ukol.druh >= druh_vlaku::prvni_nakladni;
        case uzel::ProVlaky::mn: return ukol.druh == druh_vlaku::mn;
        case uzel::ProVlaky::mn_a_lokomotivni: return ukol.druh >= druh_vlaku::mn;
        }
        return true;
    }
    // The track is one of those that the station keeps for trains of this kind and way, if it keeps any.
    bool je_obvykla(std::size_t k, int prvek) const {
        const int predchozi = k > 0 ? ukol.body[k - 1].stanice : 0;
        const int dalsi = k + 1 < ukol.body.size() ? ukol.body[k + 1].stanice : 0;
        for (const uzel::KolejeUmisteni& u : uzel::kKolejeUmisteni) {
            const bool soused = u.sousedni.pocet == 0 || u.sousedni.ma(predchozi) || u.sousedni.ma(dalsi);
            if (u.stanice == ukol.body[k].stanice && je_pro_vlak(u.vlaky) && soused &&
                (u.dalsi == dopravna::zadna || u.dalsi == dalsi))
                return u.smer != uzel::ProSmer::oba ||
                       std::find(u.koleje.begin(), u.koleje.end(), prvek) != u.koleje.end();
        }
        return true;
    }
    bool zakazan(const PrvekCesty& p) const {
        const int n = p.druh == druh_prvku::vyhybka ? kNejvyssi + p.prvek : p.prvek;
        return std::find(ukol.mimo.begin(), ukol.mimo.end(), n) != ukol.mimo.end();
    }

    // The state behind a route; nothing when the train cannot take it.
    std::optional<Stav> za_trasou(const Stav& s, const Trasa& t, double& cena) const {
        Stav dal{0, s.smer, s.bodu};
        const auto& prvky = t.zaznam.prvky;
        for (std::size_t i = 1; i < prvky.size(); ++i) {
            const PrvekCesty& p = prvky[i];
            if (zakazan(p))
                return std::nullopt;
            if (p.druh != druh_prvku::kolej) {
                cena += 2 * kVyhybka_m;
                continue;
            }
            dal.smer = smer_za_prvkem(prvky, i, dal.smer);
            cena += sit.delky[static_cast<std::size_t>(p.prvek)];
            if (!ukol.prirazky.empty())
                cena += static_cast<double>(ukol.prirazky[static_cast<std::size_t>(p.prvek)]);
            if (je_protismer(p.prvek, dal.smer))
                cena += kProtismer_m;
            const bool posledni = i + 1 == prvky.size();
            while (dal.bodu < ukol.body.size() && hodi_se(dal.bodu, p.prvek) &&
                   (posledni || !ukol.body[dal.bodu].stavi || stavi_na_trati(p.prvek))) {
                cena += cena_stani(dal.bodu, p.prvek);
                dal.bodu = preskoc_jmena(dal.bodu + 1);
            }
            if (posledni)
                dal.prvek = p.prvek;
        }
        // Only the arrival at a stop turns the train: who has left it does not come back there for that.
        if (dal.bodu > s.bodu)
            otoc(dal);
        return dal;
    }

    // Behind a stop the train goes on the other way where the junction turns it.
    void otoc(Stav& s) const {
        if (s.bodu == 0 || s.bodu >= ukol.body.size())
            return;
        const Bod& tady = bod_pred(s);
        if ((tady.stavi || &tady == ukol.body.data()) && stanice_elementu(s.prvek) == tady.stanice)
            s.smer = smer_po_obratu(tady.stanice, (&tady + 1)->stanice, s.smer);
    }
    bool muze_objet(const Stav& s) const {
        return s.bodu > 0 && s.bodu < ukol.body.size() && bod_pred(s).muze_otocit &&
               stanice_elementu(s.prvek) == bod_pred(s).stanice;
    }
    // The last point that is served, a name apart.
    const Bod& bod_pred(const Stav& s) const {
        std::size_t i = s.bodu - 1;
        while (i > 0 && je_jmeno(ukol.body[i].stanice))
            --i;
        return ukol.body[i];
    }

    struct Polozka {
        double cena;
        Stav stav;
        bool operator<(const Polozka& o) const { return std::tie(o.cena, o.stav) < std::tie(cena, stav); }
    };
    std::priority_queue<Polozka> fronta{};

    void pridej(const Stav& s, double cena, const Stav& odkud, std::size_t trasa) {
        Uzel& u = uzly.vse[index(s)];
        if (u.hledani == uzly.hledani && u.cena <= cena)
            return;
        u = {cena, odkud, trasa, uzly.hledani, false};
        nejdal = std::max(nejdal, s.bodu);
        fronta.push({cena, s});
    }

    void zacni_odtud(const Pocatek& p) {
        const Stav s{p.prvek, p.smer, preskoc_jmena(p.bodu)};
        pridej(s, 0, s, kBezTrasy);
        const Stav obraceny{p.prvek, !p.smer, s.bodu};
        if (p.vratny)
            pridej(obraceny, kObjeti_m, obraceny, kBezTrasy);
    }

    void zacni() {
        if (ukol.pocatek) {
            zacni_odtud(*ukol.pocatek);
            return;
        }
        const int odkud = ukol.body.front().stanice;
        const auto z = [&](int prvek, bool smer) {
            if (!sit.koleje[static_cast<std::size_t>(prvek)] || !hodi_se(0, prvek))
                return;
            Stav s{prvek, smer, preskoc_jmena(1)};
            pridej(s, cena_stani(0, prvek), s, kBezTrasy);
        };
        for (const uzel::StaniceOhlaseni& s : uzel::kOhlasovane)
            if (s.kod == odkud) {
                double cena = 0;
                for (const int e : s.koleje)
                    if (e != 0 && sit.koleje[static_cast<std::size_t>(e)] && hodi_se(0, e)) {
                        Stav stav{e, s.smer, preskoc_jmena(1)};
                        pridej(stav, cena + cena_stani(0, e), stav, kBezTrasy);
                        cena += 100; // the first free one
                    }
            }
        for (const uzel::VstupZeStanice& v : uzel::kVstupy)
            if (v.stanice == odkud)
                for (const int e : v.koleje)
                    if (e != 0)
                        z(e, v.smer);
        if (const int k = uzel::konec_ke_stanici(odkud); k >= 0)
            z(uzel::kKonceTrati[static_cast<std::size_t>(k)].usek, true);
        if (odkud == dopravna::dkv_vh)
            z(uzel::kBranaVh.kolej, uzel::kBranaVh.smer);
        // Where a train begins within the junction it stands the way that it goes.
        if (odkud == dopravna::tesk || odkud == dopravna::vysni_hrabov || odkud == dopravna::javorin ||
            odkud == dopravna::rybnice || odkud == dopravna::hajovice || odkud == dopravna::dolni ||
            odkud == dopravna::knizeci_luka || odkud == dopravna::mokrina)
            for (int e = 0; e < kPrvniTrat; ++e)
                if (stanice_elementu(e) == odkud)
                    for (const bool smer : {false, true}) {
                        Stav s{e, smer, preskoc_jmena(1)};
                        if (!sit.koleje[static_cast<std::size_t>(e)] || !hodi_se(0, e))
                            continue;
                        otoc(s);
                        pridej(s, cena_stani(0, e), s, kBezTrasy);
                    }
    }

    std::optional<Stav> hledej() {
        zaloz();
        zacni();
        while (!fronta.empty()) {
            const auto [cena, s] = fronta.top();
            fronta.pop();
            Uzel& u = uzly.vse[index(s)];
            if (u.hotov)
                continue;
            u.hotov = true;
            if (s.bodu == ukol.body.size())
                return s;
            for (const std::size_t i : sit.z_mista(s.prvek, s.smer)) {
                if (!ukol.bez_tras.empty() && ukol.bez_tras[i] != 0)
                    continue;
                const std::uint8_t rychlost = sit.trasy[i].zaznam.rychlost;
                double dal = cena + kNavest_m + kOdbocka_m[std::min<std::size_t>(rychlost, 3)];
                const auto kam = za_trasou(s, sit.trasy[i], dal);
                if (!kam)
                    continue;
                // A train comes in straight and goes out over the branch: it stands on the track of its line.
                if (rychlost != 0 && stanice_elementu(kam->prvek) != 0 && !je_tratovy(kam->prvek))
                    dal += kVjezdOdbockou_m;
                pridej(*kam, dal, s, i);
                if (kam->bodu > s.bodu && muze_objet(*kam))
                    pridej({kam->prvek, !kam->smer, kam->bodu}, dal + kObjeti_m, s, i);
            }
        }
        return std::nullopt;
    }

    std::vector<Stav> stavy_do(const Stav& konec) const {
        std::vector<Stav> stavy{konec};
        while (uzel(stavy.back()).trasa != kBezTrasy)
            stavy.push_back(uzel(stavy.back()).odkud);
        std::reverse(stavy.begin(), stavy.end());
        return stavy;
    }

    Pruchod sloz(const Stav& konec) const {
        const std::vector<Stav> stavy = stavy_do(konec);
        Pruchod p;
        p.mista.assign(ukol.body.size(), 0);
        p.kratka_kolej = uzel(konec).cena >= kKratka_m;
        p.protismer = std::fmod(uzel(konec).cena, kKratka_m) >= kProtismer_m;
        const int prvni = stavy.front().prvek;
        const bool souhlas = uzel::je_usek_konce(prvni);
        if (souhlas) {
            const int k = uzel::konec_trati(prvni);
            p.kroky.push_back(
                {{static_cast<std::int16_t>(uzel::kKonceTrati[static_cast<std::size_t>(k)].navestidlo),
                  druh_prvku::kolej, 2},
                 kBezTrasy,
                 true,
                 false});
        }
        p.kroky.push_back(
            {{static_cast<std::int16_t>(prvni), druh_prvku::kolej, 2}, kBezTrasy, stavy.front().smer, false});
        std::size_t bodu = preskoc_jmena(1);
        for (std::size_t k = 1; k < bodu; ++k)
            p.mista[k] = p.kroky.size() - 1;
        for (std::size_t i = 1; i < stavy.size(); ++i)
            pridej_trasu(p, uzel(stavy[i]).trasa, stavy[i - 1].smer, bodu);
        return p;
    }

    void pridej_trasu(Pruchod& p, std::size_t trasa, bool smer, std::size_t& bodu) const {
        const auto& prvky = sit.trasy[trasa].zaznam.prvky;
        for (std::size_t i = 1; i < prvky.size(); ++i) {
            smer = smer_za_prvkem(prvky, i, smer);
            p.kroky.push_back({prvky[i], trasa, smer, i == 1});
            if (prvky[i].druh != druh_prvku::kolej)
                continue;
            const bool posledni = i + 1 == prvky.size();
            while (bodu < ukol.body.size() && hodi_se(bodu, prvky[i].prvek) &&
                   (posledni || !ukol.body[bodu].stavi || stavi_na_trati(prvky[i].prvek))) {
                const std::size_t dal = preskoc_jmena(bodu + 1);
                for (; bodu < dal; ++bodu)
                    p.mista[bodu] = p.kroky.size() - 1;
            }
        }
    }
};

} // namespace

Sit sestav_sit(const Bajty& top, const Bajty& zat) {
    Sit sit;
    sit.odkud.resize(2u * (kNejvyssiPrvek + 1));
    sit.delky = delky_kolejiste(top);
    const TextPohled text(reinterpret_cast<const char*>(top.data()), top.size());
    for (std::size_t i = 0; i + 7 <= text.size(); i += 7)
        sit.koleje.set(static_cast<std::size_t>(cele_z_textu(text.substr(i, 3))));
    for (ZaznamCesty& z : cti_cesty(zat)) {
        if (z.prvky.empty())
            continue;
        Trasa t;
        t.zaznam = std::move(z);
        t.smer = smer_navestidla(t.zaznam.zacatek);
        t.tabulkovych = t.zaznam.prvky.size();
        // To Kamenec the sense turns on the way: the route leads on as the train runs before it.
        pridej_useky(sit, t.zaznam, t.smer);
        for (std::size_t i = 0; i < t.zaznam.prvky.size(); ++i)
            if (t.zaznam.prvky[i].druh == druh_prvku::vyhybka)
                t.posledni_vyhybka = i;
        t.konec_smer = t.smer;
        for (std::size_t i = 1; i < t.zaznam.prvky.size(); ++i)
            t.konec_smer = smer_za_prvkem(t.zaznam.prvky, i, t.konec_smer);
        t.konec = t.zaznam.prvky.back().prvek;
        sit.odkud[Sit::misto(t.zaznam.prvky.front().prvek, t.smer)].push_back(sit.trasy.size());
        sit.trasy.push_back(std::move(t));
    }
    return sit;
}

std::optional<Pruchod> najdi_pruchod(const Sit& sit, const Ukol& ukol, std::size_t& kam_az) {
    Hledani h{sit, ukol};
    const auto konec = h.hledej();
    kam_az = h.nejdal;
    if (!konec)
        return std::nullopt;
    return h.sloz(*konec);
}

std::optional<std::vector<KrokTrasy>> najdi_trasy(const Sit& sit, const Ukol& ukol) {
    Hledani h{sit, ukol};
    const auto konec = h.hledej();
    if (!konec)
        return std::nullopt;
    std::vector<KrokTrasy> kroky;
    for (const Stav& s : h.stavy_do(*konec))
        if (const std::size_t trasa = h.uzel(s).trasa; trasa != kBezTrasy)
            kroky.push_back({trasa, s.prvek, s.smer, s.bodu});
    return kroky;
}

namespace {

// A train on its way, as the movement step runs it at the speed of the clock.
struct Beh {
    const Sit& sit;
    const Pruchod& p;
    const Vlastnosti& vlak;
    Prujezd vysledek{};
    std::size_t i = 0;     // step of the head
    std::size_t konec = 0; // of the tail
    double metry = 0, sekundy = 0;
    int rychlost = 0, trat = 0, cesta = 0;
    std::size_t omezeni_do = 0; // the step whose clearing ends the limit of the route
    bool omezeno = false;

    double delka_kroku(std::size_t k) const {
        return p.kroky[k].prvek.druh == druh_prvku::kolej
                   ? sit.delky[static_cast<std::size_t>(p.kroky[k].prvek.prvek)]
               : p.kroky[k].prvek.druh == druh_prvku::vyhybka ? kVyhybka_m
                                                              : 0;
    }
    bool cely_na_kroku() const { return konec == i; }

    void uprav_rychlost() {
        float d = 1;
        if (vlak.druh >= druh_vlaku::prvni_nakladni && vlak.druh != druh_vlaku::lv)
            d = static_cast<float>(vlak.delka) / 350.0f + 1.0f;
        if (vlak.druh == druh_vlaku::vn)
            d = d / 2.0f + 1.0f;
        const float a = 3.0f / d;
        const int cil = omezeno && cesta != 0 ? cesta : trat;
        if (cil < rychlost || a > static_cast<float>(cil - rychlost))
            rychlost = cil;
        else
            rychlost = static_cast<int>(std::nearbyint(static_cast<float>(rychlost) + a));
        rychlost = std::min(rychlost, vlak.rychlost);
    }

    void dal() {
        metry = 0;
        ++i;
        const Krok& k = p.kroky[i];
        vysledek.vstup[i] = sekundy;
        if (k.zacatek && k.trasa != kBezTrasy)
            omez(k);
        if (k.prvek.druh == druh_prvku::kolej) {
            const bool smer = p.kroky[i - 1].smer; // the speed is that of the sense in which it comes
            if (const int r = uzel::rychlost_prvku(k.prvek.prvek, smer); r != 0)
                trat = r;
        }
    }
    void omez(const Krok& k) {
        constexpr std::array<int, 4> kTridy = {0, 40, 60, 80};
        const Trasa& t = sit.trasy[k.trasa];
        cesta =
            t.zaznam.rychlost == 0 || t.zaznam.rychlost >= kTridy.size() ? trat : kTridy[t.zaznam.rychlost];
        omezeno = t.posledni_vyhybka != 0;
        omezeni_do = i + t.posledni_vyhybka - 1;
    }

    void uvolni() {
        double obsazeno = metry;
        for (std::size_t k = konec; k < i; ++k)
            obsazeno += delka_kroku(k);
        while (konec < i && obsazeno - delka_kroku(konec) >= vlak.delka) {
            obsazeno -= delka_kroku(konec);
            vysledek.uvolneni[konec] = sekundy;
            if (omezeno && konec == omezeni_do)
                omezeno = false;
            ++konec;
        }
    }

    // One second; false at the end of the way, or of the track on which it has to stop.
    bool krok(bool posledni) {
        sekundy += 1;
        const double delka_s = std::nearbyint(std::floor(rychlost * 1000.0 / 3600.0) * 0.97);
        uprav_rychlost();
        const bool kolej = p.kroky[i].prvek.druh == druh_prvku::kolej;
        if (kolej && metry + delka_s <= delka_kroku(i) - kKonec_m) {
            metry += delka_s;
        } else if (posledni) {
            metry = delka_kroku(i);
            uvolni();
            return false;
        } else {
            dal();
        }
        uvolni();
        return true;
    }

    bool stoji_na_trati() const {
        const int e = p.kroky[i].prvek.prvek;
        if (e == uzel::kKamenec) {
            const bool od_mokriny = i > 0 && p.kroky[i - 1].prvek.prvek == uzel::kKeKamenciOdMokriny;
            const uzel::Nastupiste& n = od_mokriny ? uzel::kKamenecOdMokriny : uzel::kKamenecOdTesku;
            return metry > n.od_m;
        }
        if (!cely_na_kroku())
            return false;
        for (const uzel::MistoStopu& m : uzel::kMistaStopu)
            if (e >= m.od && e <= m.po && m.od_metru >= 0 && !p.kroky[i].smer && metry < m.od_metru)
                return false;
        return true;
    }
};

} // namespace

Prujezd projed(const Sit& sit, const Pruchod& pruchod, const Ukol& ukol, const Vlastnosti& vlak) {
    Beh b{sit, pruchod, vlak};
    b.vysledek.vstup.assign(pruchod.kroky.size(), 0);
    b.vysledek.uvolneni.assign(pruchod.kroky.size(), -1);
    b.vysledek.stani.assign(pruchod.kroky.size(), -1);
    const int odkud = ukol.body.front().stanice;
    b.trat = uzel::kRychlostJinde;
    for (const uzel::PrvniRychlost& r : uzel::kPrvniRychlosti)
        if (r.stanice == odkud)
            b.trat = r.strop ? std::min<int>(r.rychlost, vlak.rychlost) : r.rychlost;
    for (const uzel::StaniceOhlaseni& s : uzel::kOhlasovane)
        if (s.kod == odkud)
            b.metry = kOdjezdSouseda_m;
    if (odkud == dopravna::dkv_vh)
        b.metry = kOdjezdBranyVh_m;
    if (odkud == dopravna::tesk)
        b.metry = b.delka_kroku(0);
    b.sekundy = ukol.body.front().odjezd_s;
    b.vysledek.vstup[0] = b.sekundy;
    std::map<std::size_t, double> stopy; // and the departures from them
    for (std::size_t k = 1; k < ukol.body.size(); ++k)
        if (ukol.body[k].stavi && pruchod.mista[k] > 0)
            stopy[pruchod.mista[k]] = ukol.body[k].odjezd_s;
    const std::size_t posledni = pruchod.kroky.size() - 1;
    stopy.emplace(posledni, 0);
    while (true) {
        const bool stop = stopy.contains(b.i) && b.vysledek.stani[b.i] < 0;
        const bool na_trati = stop && stavi_na_trati(pruchod.kroky[b.i].prvek.prvek) && b.i != posledni;
        bool stoji = na_trati && b.stoji_na_trati();
        if (!stoji)
            stoji = !b.krok(stop && !na_trati);
        if (!stoji)
            continue;
        b.vysledek.stani[b.i] = b.sekundy;
        if (b.i == posledni)
            break;
        b.sekundy = stopy.at(b.i);
        b.rychlost = na_trati ? 5 : 0;
    }
    for (std::size_t k = b.konec; k <= posledni; ++k)
        b.vysledek.uvolneni[k] = b.vysledek.stani[posledni];
    return b.vysledek;
}

} // namespace planovani
