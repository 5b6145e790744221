// nastroje/kolejiste/kontrola_tras.cpp - the proof of the routes.
#include "kolejiste/kontrola_tras.h"

#include "kolejiste/kresba.h"
#include "relief/relief.h"
#include "uzel/navestidla.h"
#include "uzel/prejezdy.h"
#include "uzel/trate.h"
#include "uzel/vyhybky.h"
#include "uzel/zastavky.h"

#include <algorithm>
#include <bitset>
#include <cstdlib>

namespace kolejiste {

namespace {

constexpr std::size_t kNejvicPrvku = 256; // a train counts the elements of its route in a byte

// --- what the running and the locking do by number

// A train on the first element of a route may not have entered the line of a neighbour, nor turned.
bool nesmi_byt_prvni(int kolej) {
    return uzel::je_usek_konce(kolej) || je_v(kolej, uzel::kOhybyZKoleje);
}
// The other drawings of the folds stand in no route.
bool je_jen_obraz_ohybu(int kolej) {
    return je_v(kolej, uzel::kOhybyZVyhybky) && !je_v(kolej, uzel::kOhybyZKoleje);
}

// Trains that come to the track in that sense leave the area.
bool odjizdi(int kolej, bool vpravo) {
    return std::any_of(uzel::kVystupy.begin(), uzel::kVystupy.end(), [=](const uzel::Vystup& v) {
        return kolej >= v.od && kolej <= v.po && v.smer == vpravo;
    });
}

// The sense of a train turns where the drawing is folded.
bool obraci_se(DruhPrvku odkud, int kolej) {
    return odkud == DruhPrvku::kolej ? je_v(kolej, uzel::kOhybyZKoleje) : je_v(kolej, uzel::kOhybyZVyhybky);
}

// The last element of a route whose end stands for the section of a line behind it; kZadny: the end itself.
int za_koncem(int konec) {
    for (const uzel::KonecTrati& k : uzel::kKonceTrati)
        if (k.usek == konec)
            return k.navestidlo;
    const uzel::KolejPredTrati* pred = uzel::kolej_pred_trati(konec);
    return pred == nullptr ? kZadny : pred->usek;
}

// The track of a start signal, by which the machine of the routes and the trains know it.
int kolej_startu(const Plan& plan, int signal) {
    if (signal == uzel::kPosunoveKamence || signal == uzel::kObrazKamence)
        return uzel::kKamenec;
    if (je_usek_trati(signal) && !je_na_ser(signal))
        return signal % 2 ? plan.posledni_oddil(signal - 1) : signal;
    if (je_odstavna(signal) && signal != uzel::kPosunoveNaKoleji)
        return signal;
    return ::kolej_navestidla(signal);
}

// Ends of switches: A of switch n is 2n, B 2n+1.
using Konce = std::bitset<512>;
struct Naroky { // what a route needs of ends of switches, of its own and by the couplings
    Konce plus, minus;
    void chce(int vyhybka, bool konec_b, bool v_minus) {
        (v_minus ? minus : plus).set(static_cast<std::size_t>(2 * vyhybka + konec_b));
    }
};
// Elements that stop a second route: a track is held by shunt routes among themselves, of the others only
// switches count, for a calling-on route holds no track.
using Zamcene = std::bitset<2048>;

struct Projeta { // a route as far as it could be followed
    bool cela = false;
    Konec vystup; // out of its last element
};

class KontrolaTras {
public:
    KontrolaTras(const Plan& plan_, const Graf& graf_, const std::vector<Trasa>& trasy_,
                 std::vector<Zavada>& zavady_)
        : plan(plan_), graf(graf_), trasy(trasy_), zavady(zavady_) {
        for (const Kolej& k : plan.koleje)
            if (!k.vzor)
                koleje[k.cislo] = &k;
        for (const Vyhybka& v : plan.vyhybky)
            vyhybky[v.cislo] = &v;
        for (const Navestidlo& n : plan.navestidla) {
            navestidla[n.cislo] = &n;
            u_konce[{plan.kolej_navestidla(n), n.u_konce()}].push_back(&n);
        }
    }
    void vse();

private:
    const Plan& plan;
    const Graf& graf;
    const std::vector<Trasa>& trasy;
    std::vector<Zavada>& zavady;
    std::map<int, const Kolej*> koleje;
    std::map<int, const Vyhybka*> vyhybky;
    std::map<int, const Navestidlo*> navestidla;
    std::map<std::pair<int, Strana>, std::vector<const Navestidlo*>> u_konce;
    std::vector<Projeta> projete;

    static std::string jmeno(const Trasa& t) {
        return (t.druh == DruhTrasy::vlak ? "cesta " : "posun ") + s(t.zaznam.zacatek) + " " +
               s(t.zaznam.konec);
    }
    void zavada(const Trasa& t, std::string text) { zavady.push_back({t.misto, jmeno(t), std::move(text)}); }
    bool ma_kolej(const ZaznamCesty& z, int n, std::size_t od = 0) const {
        for (std::size_t k = od; k < z.prvky.size(); ++k)
            if (z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::kolej) && z.prvky[k].prvek == n)
                return true;
        return false;
    }
    BodKresby misto_vyhybky(const Vyhybka& v, Obraz obraz) const {
        return na_plochu(plan.bloky[v.blok], v.kde, obraz);
    }

    bool tvar_zaznamu(const Trasa& t);
    Projeta projed(const Trasa& t);
    void konec(const Trasa& t);
    void trat(const Trasa& t);
    void zvlastni_koleje(const Trasa& t);
    void prejezdy(const Trasa& t);
    void smysl(const Trasa& t, const Projeta& p);
    Naroky naroky(const ZaznamCesty& z) const;
    Zamcene zamcene(const Trasa& t) const;
    void dvojice();
    void boky();
    void podle_cisel();
    void odjezdy();
};

// Every element is there once and exists.
bool KontrolaTras::tvar_zaznamu(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    if (z.prvky.size() < 2) {
        zavada(t, "nemá ani dva prvky");
        return false;
    }
    std::set<std::pair<int, int>> videno;
    std::size_t delka = z.prvky.size();
    for (std::size_t k = 0; k < z.prvky.size(); ++k) {
        const int n = z.prvky[k].prvek;
        bool je = false;
        switch (static_cast<DruhPrvku>(z.prvky[k].druh)) {
        case DruhPrvku::kolej: je = koleje.contains(n); break;
        case DruhPrvku::vyhybka: je = vyhybky.contains(n); break;
        case DruhPrvku::vykolejka:
            je = std::any_of(plan.vykolejky.begin(), plan.vykolejky.end(),
                             [&](const Vykolejka& v) { return v.cislo == n; });
            break;
        }
        if (!je) {
            zavada(t, "prvek " + s(n) + " druhu " + s(z.prvky[k].druh) + " není nakreslen");
            return false;
        }
        if (!videno.insert({z.prvky[k].druh, n}).second)
            zavada(t, "prvek " + popis_prvku_trasy(z, k) + " v ní je dvakrát");
    }
    if (z.prvky.back().druh != static_cast<std::uint8_t>(DruhPrvku::kolej))
        zavada(t, "nekončí na koleji, vlak by z ní vyjel mimo koleje");
    // the locking appends the rest of a line
    for (int n = z.prvky.back().prvek; n >= kPrvniTrat && n <= kNejvyssiPrvek; n += kKrokTrati)
        delka += koleje.contains(n);
    if (delka > kNejvicPrvku)
        zavada(t, "má víc než 256 prvků");
    return true;
}

Projeta KontrolaTras::projed(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    const auto od = navestidla.find(z.zacatek);
    if (od == navestidla.end()) {
        zavada(t, "návěstidlo " + s(z.zacatek) + " není nakresleno");
        return {};
    }
    const Navestidlo& n = *od->second;
    if (t.druh == DruhTrasy::vlak && n.posunove)
        zavada(t, "vlaková cesta nezačíná u posunového návěstidla");
    const int kolej = plan.kolej_navestidla(n);
    if (z.prvky[0].prvek != kolej || z.prvky[0].druh != static_cast<std::uint8_t>(DruhPrvku::kolej) ||
        kolej != kolej_startu(plan, z.zacatek)) {
        zavada(t,
               "nezačíná kolejí " + s(kolej_startu(plan, z.zacatek)) + " před návěstidlem " + s(z.zacatek));
        return {};
    }
    Konec vystup{Typ::kolej, kolej, n.u_konce() == Strana::vpravo ? Port::vpravo : Port::vlevo};
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        const auto vstup = graf.soused(vystup);
        const auto druh = static_cast<DruhPrvku>(z.prvky[k].druh);
        const Typ typ = druh == DruhPrvku::kolej     ? Typ::kolej
                        : druh == DruhPrvku::vyhybka ? Typ::vyhybka
                                                     : Typ::vykolejka;
        if (!vstup || vstup->typ != typ || vstup->cislo != z.prvky[k].prvek) {
            zavada(t, "prvek " + popis_prvku_trasy(z, k) + " nenavazuje na " + popis_prvku_trasy(z, k - 1));
            return {};
        }
        const std::vector<Pruchod> ven = pruchody(plan, *vstup);
        const auto p = std::find_if(ven.begin(), ven.end(), [&](const Pruchod& x) {
            return typ != Typ::vyhybka || x.poloha == z.prvky[k].poloha;
        });
        if (p == ven.end()) {
            zavada(t,
                   "výhybka " + s(z.prvky[k].prvek) + " v poloze " + s(z.prvky[k].poloha) + " tudy nevede");
            return {};
        }
        vystup = p->kam;
        // who starts at this signal does not run past another one
        if (typ != Typ::kolej || k + 1 == z.prvky.size())
            continue;
        const Kolej& ta = *koleje.at(z.prvky[k].prvek);
        if (ta.cil && ta.cislo != z.konec && !plan.pravidla_tras.prujezdne.contains(ta.cislo) &&
            t.kolem.empty())
            zavada(t, "projíždí kolejí " + s(ta.cislo) + ", která je cílem");
        if (const auto i =
                u_konce.find({ta.cislo, vystup.port == Port::vpravo ? Strana::vpravo : Strana::vlevo});
            i != u_konce.end())
            for (const Navestidlo* jine : i->second) {
                const bool plati = !jine->posunove || (t.druh == DruhTrasy::posun && ta.cil);
                if (plati && !t.kolem.contains(jine->cislo))
                    zavada(t, "míjí návěstidlo " + s(jine->cislo));
            }
    }
    return {true, vystup};
}

void KontrolaTras::konec(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    const auto cil = koleje.find(z.konec);
    if (cil == koleje.end() || !cil->second->cil)
        zavada(t, "kolej " + s(z.konec) + " není cílem");
    else if (z.konec < kPrvniTrat && !cil->second->stitky[0] && !cil->second->jediny_vpravo)
        zavada(t, "kolej " + s(z.konec) + " nemá štítek, zamčená by se neobarvila");
    const int posledni = z.prvky.back().prvek;
    bool ok = posledni == z.konec;
    if (const int za = za_koncem(z.konec); za != kZadny && posledni != z.konec)
        ok = posledni == za;
    if (posledni >= kPrvniTrat && z.konec >= kPrvniTrat) // a line is known by its lowest number
        ok = z.konec == kPrvniTrat + posledni % kKrokTrati;
    if (!ok)
        zavada(t, "končí kolejí " + s(posledni) + ", ne " + s(z.konec));
}

// The direction that a route lays in a line follows from the picture; the locking appends the sections
// behind the one that stands in the route.
void KontrolaTras::trat(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    const int posledni = z.prvky.back().prvek;
    if (posledni < kPrvniTrat)
        return;
    if (t.druh == DruhTrasy::posun) {
        zavada(t, "posun na trať " + s(posledni) + " by neměl její směr");
        return;
    }
    const bool vpravo = navestidla.at(z.zacatek)->strana == Strana::vpravo;
    const int prvni_oddil = kPrvniTrat + posledni % kKrokTrati;
    const int ma_byt = vpravo ? prvni_oddil : plan.posledni_oddil(prvni_oddil);
    if (posledni != ma_byt)
        zavada(t, "do trati vjíždí oddílem " + s(posledni) + ", má být " + s(ma_byt));
    for (std::size_t k = 1; k + 1 < z.prvky.size(); ++k)
        if (z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::kolej) &&
            z.prvky[k].prvek >= kPrvniTrat && z.prvky[k].prvek % kKrokTrati == posledni % kKrokTrati)
            zavada(t, "oddíl " + s(z.prvky[k].prvek) + " trati by v ní byl dvakrát");
    for (const Obraz o : kObrazy) {
        const int x1 = konce_koleje(plan, *koleje.at(z.prvky[0].prvek), o)[0].x,
                  x2 = konce_koleje(plan, *koleje.at(posledni), o)[1].x;
        if ((x1 <= x2 || z.prvky[0].prvek == uzel::kKamenec) != vpravo)
            zavada(t, std::string("směr trati by podle obrazu vyšel opačně") +
                          (o == Obraz::jeden ? " (jeden monitor)" : " (dva monitory)"));
    }
}

void KontrolaTras::zvlastni_koleje(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    const auto je_tu_kolej = [&](std::size_t k) {
        return z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::kolej);
    };
    if (je_tu_kolej(1) && nesmi_byt_prvni(z.prvky[1].prvek))
        zavada(t, "kolej " + s(z.prvky[1].prvek) + " nesmí být hned za návěstidlem");
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        if (!je_tu_kolej(k))
            continue;
        const int n = z.prvky[k].prvek;
        if (je_jen_obraz_ohybu(n))
            zavada(t, "kolej " + s(n) + " je jen druhým obrazem");
        if (je_v(n, uzel::kOhybyZKoleje) && !je_v(n, uzel::kOhybyZVyhybky) && !je_tu_kolej(k - 1))
            zavada(t, "na kolej " + s(n) + " se vjíždí z výhybky, smysl jízdy by se neobrátil");
        if (n == uzel::kKamenec && k + 1 == z.prvky.size() &&
            !(je_tu_kolej(k - 1) && (z.prvky[k - 1].prvek == uzel::kKeKamenciOdTesku ||
                                     z.prvky[k - 1].prvek == uzel::kKeKamenciOdMokriny)))
            zavada(t, "před kolejí " + s(n) + " má být " + s(uzel::kKeKamenciOdTesku) + " nebo " +
                          s(uzel::kKeKamenciOdMokriny));
    }
    for (const uzel::Krizeni& d : uzel::kKrizeni)
        if (ma_kolej(z, d.a) && ma_kolej(z, d.b))
            zavada(t, "koleje " + s(d.a) + " a " + s(d.b) + " se kříží, v jedné cestě nemohou být obě");
}

// The counter of a crossing rises once and falls once, or the road stays closed.
void KontrolaTras::prejezdy(const Trasa& t) {
    const ZaznamCesty& z = t.zaznam;
    const auto pocet = [&](const auto& cisla) {
        return std::count_if(cisla.begin(), cisla.end(), [&](int n) { return ma_kolej(z, n, 1); });
    };
    // what lies in front of the signal is not run over by this route
    int prejezdu = 0;
    for (std::size_t k = 0; k < uzel::kPrejezdyStanic.size(); ++k) {
        const auto zavira = pocet(uzel::kPrejezdyStanic[k].zavira),
                   otvira = pocet(uzel::kPrejezdyStanic[k].otvira);
        if (zavira > 1 || (zavira == 1) != (otvira == 1) || (zavira == 0 && otvira > 0))
            zavada(t, "přejezd " + s(static_cast<int>(k)) + " uzavře " + s(static_cast<int>(zavira)) +
                          "krát a otevře " + s(static_cast<int>(otvira)) + "krát");
        prejezdu += zavira > 0;
    }
    if (prejezdu > 1)
        zavada(t, "vede přes přejezdy víckrát");
}

// A train keeps its sense along the route but for the folds. So every signal that it comes to behind the
// route must be for that sense, and it leaves the area only where the running lets it go.
void KontrolaTras::smysl(const Trasa& t, const Projeta& p) {
    const ZaznamCesty& z = t.zaznam;
    bool vpravo = navestidla.at(z.zacatek)->strana == Strana::vpravo;
    for (std::size_t k = 1; k < z.prvky.size(); ++k)
        if (z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::kolej) &&
            obraci_se(static_cast<DruhPrvku>(z.prvky[k - 1].druh), z.prvky[k].prvek))
            vpravo = !vpravo;
    const Strana ven = p.vystup.port == Port::vpravo ? Strana::vpravo : Strana::vlevo;
    int posledni = z.prvky.back().prvek;
    if (posledni >= kPrvniTrat)
        posledni = ven == Strana::vpravo ? plan.posledni_oddil(posledni) : kPrvniTrat + posledni % kKrokTrati;
    if (const auto i = u_konce.find({posledni, ven}); i != u_konce.end())
        for (const Navestidlo* n : i->second)
            if ((n->strana == Strana::vpravo) != vpravo)
                zavada(t, "přijíždí k návěstidlu " + s(n->cislo) + ", které platí pro opačný smysl");
    if (odjizdi(posledni, !vpravo) && !graf.soused({Typ::kolej, posledni, p.vystup.port}))
        zavada(t, "vlak by na koleji " + s(posledni) + " oblast neopustil: jede opačným smyslem");
}

Naroky KontrolaTras::naroky(const ZaznamCesty& z) const {
    Naroky n;
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        if (z.prvky[k].druh != static_cast<std::uint8_t>(DruhPrvku::vyhybka))
            continue;
        const int p = z.prvky[k].poloha;
        const bool dks = p >= tvary::kPrvniDKS;
        const Vyhybka& v = *vyhybky.at(z.prvky[k].prvek);
        n.chce(v.cislo, false, konec_a_minus(p));
        if (dks)
            n.chce(v.cislo, true, konec_b_minus(p));
        // Throwing a switch drags the coupled ones, one level deep: of a double slip the end that faces the
        // other switch follows or leads, and which one that is the places of the pictures tell.
        for (const int cislo : v.vazby) {
            const auto i = vyhybky.find(cislo);
            if (i == vyhybky.end())
                continue;
            const Vyhybka& b = *i->second;
            const bool vlevo = misto_vyhybky(v, Obraz::jeden).x < misto_vyhybky(b, Obraz::jeden).x;
            const bool v_minus = dks && vlevo ? konec_b_minus(p) : konec_a_minus(p);
            n.chce(b.cislo, b.poloha >= tvary::kPrvniDKS && !vlevo, v_minus);
        }
    }
    return n;
}

Zamcene KontrolaTras::zamcene(const Trasa& t) const {
    Zamcene d;
    const ZaznamCesty& z = t.zaznam;
    for (std::size_t k = 1; k < z.prvky.size(); ++k) {
        const auto n = static_cast<std::size_t>(z.prvky[k].prvek);
        if (z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::vyhybka))
            d.set(2 * n + 1);
        else if (z.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::kolej) &&
                 t.druh == DruhTrasy::posun && k + 1 < z.prvky.size())
            d.set(2 * n);
    }
    return d;
}

std::string popis_konce(std::size_t i) {
    return "výhybka " + s(static_cast<int>(i / 2)) + (i % 2 ? " koncem B" : "");
}

void KontrolaTras::dvojice() {
    std::vector<Naroky> chteji;
    std::vector<Zamcene> drzi;
    for (const Trasa& t : trasy) {
        chteji.push_back(naroky(t.zaznam));
        drzi.push_back(zamcene(t));
        const Konce oboji = chteji.back().plus & chteji.back().minus;
        for (std::size_t i = 0; i < oboji.size(); ++i)
            if (oboji[i])
                zavada(t, "potřebuje, aby " + popis_konce(i) +
                              " ležela v plusu i v mínusu: spojené výhybky si odporují");
    }
    for (std::size_t a = 0; a < trasy.size(); ++a)
        for (std::size_t b = a + 1; b < trasy.size(); ++b) {
            const Konce spor = (chteji[a].plus & chteji[b].minus) | (chteji[a].minus & chteji[b].plus);
            if (spor.none() || (drzi[a] & drzi[b]).any())
                continue;
            for (std::size_t i = 0; i < spor.size(); ++i)
                if (spor[i])
                    zavada(trasy[a], "může stát zároveň s " + jmeno(trasy[b]) + ", která má ležet " +
                                         popis_konce(i) + " opačně");
        }
}

// Flank: between two switches that follow each other on neighbouring rows the locking asks for the one at
// the fourth corner of their rectangle, but only at its own setting. So whoever runs over that one must
// exclude the route anyway.
void KontrolaTras::boky() {
    std::vector<Zamcene> drzi;
    for (const Trasa& t : trasy)
        drzi.push_back(zamcene(t));
    for (const Obraz obraz : kObrazy) {
        std::map<BodKresby, std::vector<int>> na_miste;
        for (const auto& [n, v] : vyhybky)
            na_miste[misto_vyhybky(*v, obraz)].push_back(n);
        std::map<int, std::vector<std::size_t>> cesty_pres;
        for (std::size_t i = 0; i < trasy.size(); ++i)
            for (std::size_t k = 1; k < trasy[i].zaznam.prvky.size(); ++k)
                if (trasy[i].zaznam.prvky[k].druh == static_cast<std::uint8_t>(DruhPrvku::vyhybka))
                    cesty_pres[trasy[i].zaznam.prvky[k].prvek].push_back(i);
        for (std::size_t j = 0; j < trasy.size(); ++j)
            for (std::size_t k = 1; k + 1 < trasy[j].zaznam.prvky.size(); ++k) {
                const ZaznamCesty& z = trasy[j].zaznam;
                const auto vyhybka = static_cast<std::uint8_t>(DruhPrvku::vyhybka);
                if (z.prvky[k].druh != vyhybka || z.prvky[k + 1].druh != vyhybka)
                    continue;
                const int a = z.prvky[k].prvek, b = z.prvky[k + 1].prvek;
                const BodKresby ma = misto_vyhybky(*vyhybky.at(a), obraz),
                                mb = misto_vyhybky(*vyhybky.at(b), obraz);
                if (uzel::bez_bocni_ochrany(a) || std::abs(ma.y - mb.y) != kRadek)
                    continue;
                for (const BodKresby roh : {BodKresby{mb.x, ma.y}, BodKresby{ma.x, mb.y}})
                    for (const int n : na_miste[roh])
                        if (n != a && n != b && std::abs(n - a) <= 3)
                            for (const std::size_t i : cesty_pres[n])
                                if ((drzi[j] & drzi[i]).none())
                                    zavada(trasy[j], "výhybka " + s(n) + " ji chrání z boku, ale " +
                                                         jmeno(trasy[i]) + " po ní může stát zároveň");
            }
    }
}

// What the program asks for: pairs that must be in the table or may not, lines that it runs trains on.
void KontrolaTras::podle_cisel() {
    const PravidlaTras& p = plan.pravidla_tras;
    std::map<std::pair<int, int>, const Trasa*> vlakove;
    std::set<int> vlakove_od; // tracks
    for (const Trasa& t : trasy)
        if (t.druh == DruhTrasy::vlak) {
            vlakove[{t.zaznam.zacatek, t.zaznam.konec}] = &t;
            vlakove_od.insert(t.zaznam.prvky[0].prvek);
        }
    for (const PravidlaTras::Povinna& c : p.povinne) {
        const std::string kdo = "cesta " + s(c.zacatek) + " " + s(c.konec);
        const auto i = vlakove.find({c.zacatek, c.konec});
        if (i == vlakove.end()) {
            const auto od = navestidla.find(c.zacatek);
            if (plan.pozadavky.uplne ||
                (od != navestidla.end() && koleje.contains(plan.kolej_navestidla(*od->second)) &&
                 koleje.contains(c.konec) &&
                 !ceka_na_dokresleni(plan, graf, plan.kolej_navestidla(*od->second), od->second->u_konce())))
                zavady.push_back({c.misto, kdo, "program ji potřebuje a v tabulce není"});
            continue;
        }
        for (const std::set<int>& jedna : c.koleje)
            if (std::none_of(jedna.begin(), jedna.end(),
                             [&](int n) { return ma_kolej(i->second->zaznam, n); }))
                zavady.push_back({c.misto, kdo, "má vést přes kolej " + s(*jedna.begin())});
    }
    for (const PravidlaTras::Povinna& c : p.nesmi)
        if (vlakove.contains({c.zacatek, c.konec}))
            zavady.push_back({c.misto, "cesta " + s(c.zacatek) + " " + s(c.konec), "v tabulce nesmí být"});
    for (const PravidlaTras::Programova& c : p.programove) {
        const std::string kdo = "cesta " + s(c.zacatek) + " " + s(c.konec) + " programu";
        const auto chybi =
            std::find_if(c.koleje.begin(), c.koleje.end(), [&](int n) { return !koleje.contains(n); });
        if (chybi != c.koleje.end()) {
            if (plan.pozadavky.uplne)
                zavady.push_back({c.misto, kdo, "kolej " + s(*chybi) + " není nakreslena"});
            continue;
        }
        if (!navestidla.contains(c.zacatek))
            zavady.push_back({c.misto, kdo, "návěstidlo " + s(c.zacatek) + " není nakresleno"});
        else if (!vlakove_od.contains(c.koleje.back()))
            zavady.push_back({c.misto, kdo, "z koleje " + s(c.koleje.back()) + " nevede žádná cesta dál"});
    }
}

void KontrolaTras::odjezdy() {
    std::set<std::tuple<int, Strana, DruhTrasy>> vedou;
    for (const Trasa& t : trasy)
        if (const auto od = navestidla.find(t.zaznam.zacatek); od != navestidla.end())
            vedou.insert({t.zaznam.prvky[0].prvek, od->second->u_konce(), t.druh});
    for (const PravidlaTras::Odjezdy& o : plan.pravidla_tras.odjezdy)
        for (const int n : o.koleje)
            if (!vedou.contains({n, o.strana, o.druh}) &&
                (plan.pozadavky.uplne ||
                 (koleje.contains(n) && !ceka_na_dokresleni(plan, graf, n, o.strana))))
                zavady.push_back({o.misto, "kolej " + s(n),
                                  std::string("nevede z ní žádná cesta ") +
                                      (o.strana == Strana::vpravo ? "vpravo" : "vlevo")});
}

void KontrolaTras::vse() {
    std::set<std::tuple<DruhTrasy, int, int>> dvojice_cest;
    bool uplne = true;
    for (const Trasa& t : trasy) {
        if (!dvojice_cest.insert({t.druh, t.zaznam.zacatek, t.zaznam.konec}).second)
            zavada(t, "je v tabulce dvakrát, druhou nikdo nenajde");
        if (!tvar_zaznamu(t)) {
            uplne = false;
            continue;
        }
        const Projeta p = projed(t);
        konec(t);
        zvlastni_koleje(t);
        prejezdy(t);
        if (p.cela) {
            trat(t);
            smysl(t, p);
        }
    }
    if (!uplne)
        return; // the rest reads elements that do not exist
    dvojice();
    boky();
    podle_cisel();
    odjezdy();
}

} // namespace

void zkontroluj_trasy(const Plan& plan, const Graf& graf, const std::vector<Trasa>& trasy,
                      std::vector<Zavada>& zavady) {
    KontrolaTras(plan, graf, trasy, zavady).vse();
}

int cekajici_povinne(const Plan& plan, const std::vector<Trasa>& trasy) {
    int ceka = 0;
    for (const PravidlaTras::Povinna& c : plan.pravidla_tras.povinne)
        ceka += std::none_of(trasy.begin(), trasy.end(), [&](const Trasa& t) {
            return t.druh == DruhTrasy::vlak && t.zaznam.zacatek == c.zacatek && t.zaznam.konec == c.konec;
        });
    return ceka;
}

} // namespace kolejiste
