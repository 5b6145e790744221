// nastroje/kolejiste/trasy.cpp - derives the routes from the graph and writes their files.
#include "kolejiste/trasy.h"

#include "relief/relief.h"
#include "uzel/trate.h"

#include <queue>

#include <algorithm>
#include <optional>
#include <tuple>

namespace kolejiste {

namespace {

bool je_posunova(int kolej) {
    return kolej > kPrvniOdstavna && kolej < kPrvniTrat;
}

Strana strana_konce(Port port) {
    return port == Port::vpravo ? Strana::vpravo : Strana::vlevo;
}
Port port_strany(Strana strana) {
    return strana == Strana::vpravo ? Port::vpravo : Port::vlevo;
}

const char* jmeno_druhu(DruhTrasy druh) {
    return druh == DruhTrasy::vlak ? "vlaková" : "posunová";
}

std::uint8_t druh_prvku(Typ typ) {
    switch (typ) {
    case Typ::kolej: return static_cast<std::uint8_t>(DruhPrvku::kolej);
    case Typ::vyhybka: return static_cast<std::uint8_t>(DruhPrvku::vyhybka);
    case Typ::vykolejka: return static_cast<std::uint8_t>(DruhPrvku::vykolejka);
    }
    return 0;
}

std::string jmeno_pravidla(const PravidlaTras::RucniTrasa& r) {
    return "trasa " + s(r.zacatek) + " " + s(r.konec);
}

// How far the search has come: out of an element by `vystup`, having met so many of the elements that the
// way must run over.
struct Stav {
    Konec vystup;
    Krok krok;
    std::size_t splneno = 0; // elements of the wanted way
    int minusu = 0, prvku = 1;
    std::size_t odkud = 0;
};

// The way from the start to a state of the search.
std::vector<Krok> kroky_do(const std::vector<Stav>& stavy, std::size_t i) {
    std::vector<Krok> kroky;
    for (; i != 0; i = stavy[i].odkud)
        kroky.push_back(stavy[i].krok);
    kroky.push_back(stavy[0].krok);
    std::reverse(kroky.begin(), kroky.end());
    return kroky;
}

// A way to an end.
struct Nalez {
    int konec = 0;
    std::vector<Krok> kroky;
    int minusu = 0;
};

// What a route does on a track that it enters.
struct Dojezd {
    bool konci = false, pokracuje = false;
    int konec = 0;
    int saha = -1; // the track behind, which belongs to the route
};

class Odvozeni {
public:
    Odvozeni(const Plan& plan_, const Graf& graf_, std::vector<Zavada>& zavady_)
        : plan(plan_), graf(graf_), pravidla(plan_.pravidla_tras), zavady(zavady_) {
        for (const Kolej& k : plan.koleje)
            if (!k.vzor)
                koleje[k.cislo] = &k;
        for (const Navestidlo& n : plan.navestidla)
            navestidla[{plan.kolej_navestidla(n), n.u_konce()}].push_back(&n);
    }
    std::vector<Trasa> vsechny();

private:
    const Plan& plan;
    const Graf& graf;
    const PravidlaTras& pravidla;
    std::vector<Zavada>& zavady;
    std::map<int, const Kolej*> koleje;
    std::map<std::pair<int, Strana>, std::vector<const Navestidlo*>> navestidla;
    std::set<int> hlaseno;                        // tracks already reported
    std::set<const PravidlaTras::Zakaz*> pouzite; // that have kept a route out

    struct Odvozena {
        int minusu = 0; // ends of switches in minus
        Trasa trasa;
    };

    Dojezd dojezd(DruhTrasy druh, const Konec& vystup, const std::set<int>& kolem);
    std::vector<Nalez> hledej(DruhTrasy druh, const Navestidlo& od, const std::vector<PrvekTrasy>& pres,
                              const std::set<int>& kolem);
    Trasa zaznam(DruhTrasy druh, const Navestidlo& od, const Nalez& nalez, const Misto& misto) const;
    bool zacina(DruhTrasy druh, const Navestidlo& n) const;
    bool zakazana(DruhTrasy druh, int zacatek, int konec);
    std::optional<Odvozena> rucni_trasa(const PravidlaTras::RucniTrasa& r, const Navestidlo& od,
                                        const std::vector<Nalez>& bez_pravidla);
    std::vector<Odvozena> odtud(DruhTrasy druh, const Navestidlo& od);
    void zkontroluj_pravidla();
};

Dojezd Odvozeni::dojezd(DruhTrasy druh, const Konec& vystup, const std::set<int>& kolem) {
    const Kolej& k = *koleje.at(vystup.cislo);
    const bool vlak = druh == DruhTrasy::vlak;
    if (je_usek_trati(k.cislo)) // the whole line belongs to the route into it, under its lowest number
        return vlak ? Dojezd{true, false, kPrvniTrat + k.cislo % kKrokTrati, -1} : Dojezd{};
    if (vlak ? k.cil && je_posunova(k.cislo) : pravidla.jen_vlak.contains(k.cislo))
        return {};
    const auto dal = graf.soused(vystup);
    if (const auto i = pravidla.saha.find(k.cislo);
        i != pravidla.saha.end() && dal && dal->typ == Typ::kolej && dal->cislo == i->second)
        return {k.cil.has_value(), false, k.cislo, i->second};
    bool navestidlo = false, hlavni = false;
    if (const auto i = navestidla.find({k.cislo, strana_konce(vystup.port)}); i != navestidla.end())
        for (const Navestidlo* n : i->second)
            if (!kolem.contains(n->cislo))
                (n->posunove ? navestidlo : hlavni) = true;
    navestidlo = navestidlo || hlavni;
    if (!k.cil) {
        if (hlavni && hlaseno.insert(k.cislo).second)
            zavady.push_back({k.misto, "kolej " + s(k.cislo),
                              "cesty k návěstidlu na jejím konci by nebylo kam zadat: není cílem"});
        return {false, !hlavni && dal.has_value(), 0, -1};
    }
    const bool projede = dal && pravidla.prujezdne.contains(k.cislo);
    if (vlak)
        return {hlavni || !dal, !hlavni && projede, k.cislo, -1};
    return {true, !navestidlo && projede, k.cislo, -1};
}

// The straightest way to each end that a route of this kind reaches from the signal.
std::vector<Nalez> Odvozeni::hledej(DruhTrasy druh, const Navestidlo& od, const std::vector<PrvekTrasy>& pres,
                                    const std::set<int>& kolem) {
    const int kolej = plan.kolej_navestidla(od);
    std::vector<Stav> stavy;
    // the straightest first; among equals the one found first, whose switches stand in plus earlier
    using Klic = std::tuple<int, int, std::size_t>;
    std::priority_queue<Klic, std::vector<Klic>, std::greater<>> fronta;
    std::set<std::pair<Konec, std::size_t>> hotove;
    const auto pridej = [&](Stav stav) {
        fronta.emplace(stav.minusu, stav.prvku, stavy.size());
        stavy.push_back(std::move(stav));
    };
    pridej({{Typ::kolej, kolej, port_strany(od.u_konce())}, {Typ::kolej, kolej, 0}, 0, 0, 1, 0});
    std::map<int, Nalez> nalezy; // by end
    std::vector<int> poradi;
    while (!fronta.empty()) {
        const std::size_t i = std::get<2>(fronta.top());
        fronta.pop();
        const Stav stav = stavy[i];
        if (!hotove.insert({stav.vystup, stav.splneno}).second)
            continue;
        if (i > 0 && stav.krok.typ == Typ::kolej) {
            const Dojezd d = dojezd(druh, stav.vystup, kolem);
            if (d.konci && stav.splneno == pres.size() && !nalezy.contains(d.konec)) {
                Nalez n{d.konec, kroky_do(stavy, i), stav.minusu};
                if (d.saha >= 0)
                    n.kroky.push_back({Typ::kolej, d.saha, 0});
                nalezy.emplace(d.konec, std::move(n));
                poradi.push_back(d.konec);
            }
            if (!d.pokracuje)
                continue;
        }
        const auto vstup = graf.soused(stav.vystup);
        if (!vstup)
            continue;
        for (const Pruchod& p : pruchody(plan, *vstup)) {
            const bool chteny = stav.splneno < pres.size() && pres[stav.splneno].typ == vstup->typ &&
                                pres[stav.splneno].cislo == vstup->cislo;
            pridej({p.kam,
                    {vstup->typ, vstup->cislo, p.poloha},
                    stav.splneno + chteny,
                    stav.minusu + (vstup->typ == Typ::vyhybka ? minusu(p.poloha) : 0),
                    stav.prvku + 1,
                    i});
        }
    }
    std::vector<Nalez> vysledek;
    for (const int konec : poradi)
        vysledek.push_back(std::move(nalezy.at(konec)));
    return vysledek;
}

// The marks of the third list are those that the locking sets: before the signal, on every target and at
// the end the number of the train is taken off its label when its tail leaves. The first section of a line
// has none: the number stays on the line until the train has left the last section, which the locking marks.
Trasa Odvozeni::zaznam(DruhTrasy druh, const Navestidlo& od, const Nalez& nalez, const Misto& misto) const {
    Trasa t{druh, misto, {}, {}};
    ZaznamCesty& z = t.zaznam;
    z.zacatek = static_cast<std::int16_t>(od.cislo);
    z.konec = static_cast<std::int16_t>(nalez.konec);
    int trida = 0; // the slowest branch counts: 1, 2, 3 are 40, 60, 80 km/h, 0 is no limit
    for (std::size_t k = 0; k < nalez.kroky.size(); ++k) {
        const Krok& krok = nalez.kroky[k];
        int poloha = krok.poloha;
        if (krok.typ == Typ::kolej) {
            const Kolej& kolej = *koleje.at(krok.cislo);
            const bool na_trati = kolej.cislo >= kPrvniTrat && kolej.cislo != uzel::kT2;
            const bool na_konci = k + 1 == nalez.kroky.size();
            poloha = k == 0 || (!na_trati && (na_konci || kolej.cil)) ? 2 : 0;
        } else if (krok.typ == Typ::vyhybka && minusu(poloha) > 0) {
            const auto i = pravidla.rychlost.find(krok.cislo);
            const int odbockou = i == pravidla.rychlost.end() ? 1 : i->second;
            if (odbockou != 0 && (trida == 0 || odbockou < trida))
                trida = odbockou;
        }
        z.prvky.push_back(
            {static_cast<std::int16_t>(krok.cislo), druh_prvku(krok.typ), static_cast<std::uint8_t>(poloha)});
    }
    z.rychlost = static_cast<std::uint8_t>(trida);
    return t;
}

bool Odvozeni::zacina(DruhTrasy druh, const Navestidlo& n) const {
    const int kolej = plan.kolej_navestidla(n);
    if (!koleje.contains(kolej))
        return false; // its track is not drawn yet
    if (druh == DruhTrasy::vlak)
        return !n.posunove;
    return !je_usek_trati(kolej) && (n.posunove || !pravidla.jen_vlak.contains(kolej));
}

bool Odvozeni::zakazana(DruhTrasy druh, int zacatek, int konec) {
    bool ano = false;
    for (const PravidlaTras::Zakaz& z : pravidla.zakazy)
        if (z.druhy.contains(druh) && (z.zacatky.empty() || z.zacatky.contains(zacatek)) &&
            (z.konce.empty() || z.konce.contains(konec))) {
            pouzite.insert(&z);
            ano = true;
        }
    return ano;
}

// The route over the way that the author wants; nothing when it cannot be run, which is told.
std::optional<Odvozeni::Odvozena> Odvozeni::rucni_trasa(const PravidlaTras::RucniTrasa& r,
                                                        const Navestidlo& od,
                                                        const std::vector<Nalez>& bez_pravidla) {
    const auto do_konce = [&](const std::vector<Nalez>& nalezy) {
        return std::find_if(nalezy.begin(), nalezy.end(), [&](const Nalez& n) { return n.konec == r.konec; });
    };
    const std::vector<Nalez> nalezy = hledej(r.druh, od, r.pres, r.kolem);
    const auto n = do_konce(nalezy);
    if (n == nalezy.end()) {
        zavady.push_back({r.misto, jmeno_pravidla(r), "takovou cestu nelze projet"});
        return std::nullopt;
    }
    Trasa t = zaznam(r.druh, od, *n, r.misto);
    t.kolem = r.kolem;
    const auto sama = do_konce(bez_pravidla);
    if (sama != bez_pravidla.end() && zaznam(r.druh, od, *sama, {}).zaznam == t.zaznam)
        zavady.push_back({r.misto, jmeno_pravidla(r), "tudy vede i bez tohoto pravidla"});
    return Odvozena{n->minusu, std::move(t)};
}

// Routes of a signal, the straightest first.
std::vector<Odvozeni::Odvozena> Odvozeni::odtud(DruhTrasy druh, const Navestidlo& od) {
    std::vector<Odvozena> trasy;
    const std::vector<Nalez> nalezy = hledej(druh, od, {}, {});
    const auto je_rucni = [&](int konec) {
        return std::any_of(pravidla.rucni.begin(), pravidla.rucni.end(), [&](const auto& r) {
            return r.druh == druh && r.zacatek == od.cislo && r.konec == konec;
        });
    };
    for (const Nalez& n : nalezy)
        if (!zakazana(druh, od.cislo, n.konec) && !je_rucni(n.konec))
            trasy.push_back({n.minusu, zaznam(druh, od, n, od.misto)});
    for (const PravidlaTras::RucniTrasa& r : pravidla.rucni)
        if (r.druh == druh && r.zacatek == od.cislo && koleje.contains(r.konec))
            if (auto t = rucni_trasa(r, od, nalezy))
                trasy.push_back(std::move(*t));
    std::stable_sort(trasy.begin(), trasy.end(), [](const Odvozena& a, const Odvozena& b) {
        const auto klic = [](const Odvozena& o) {
            return std::tuple(o.minusu, o.trasa.zaznam.prvky.size(), o.trasa.zaznam.konec);
        };
        return klic(a) < klic(b);
    });
    return trasy;
}

// Rules that no route heeds, although all that they name is drawn, are mistakes.
void Odvozeni::zkontroluj_pravidla() {
    const auto nakresleno = [&](const PravidlaTras::Zakaz& z) {
        return std::all_of(z.zacatky.begin(), z.zacatky.end(), [&](int n) { return plan.navestidlo(n); }) &&
               std::all_of(z.konce.begin(), z.konce.end(), [&](int n) { return koleje.contains(n); });
    };
    for (const PravidlaTras::Zakaz& z : pravidla.zakazy)
        if (!pouzite.contains(&z) && nakresleno(z))
            zavady.push_back({z.misto, "nechci", "žádná taková cesta by nebyla"});
    for (const PravidlaTras::RucniTrasa& r : pravidla.rucni) {
        const Navestidlo* od = plan.navestidlo(r.zacatek);
        if (od && koleje.contains(plan.kolej_navestidla(*od)) && !zacina(r.druh, *od))
            zavady.push_back(
                {r.misto, jmeno_pravidla(r),
                 std::string("od tohoto návěstidla nezačíná ") + jmeno_druhu(r.druh) + " cesta"});
    }
}

std::vector<Trasa> Odvozeni::vsechny() {
    std::vector<Trasa> trasy;
    for (const DruhTrasy druh : kDruhyTras)
        for (const Navestidlo& od : plan.navestidla)
            if (zacina(druh, od))
                for (Odvozena& o : odtud(druh, od))
                    trasy.push_back(std::move(o.trasa));
    zkontroluj_pravidla();
    return trasy;
}

} // namespace

bool konec_a_minus(int p) {
    return p < tvary::kPrvniDKS ? (p - 1) % 3 == 1 : p == 26 || p == 27 || p == 30 || p == 32;
}

bool konec_b_minus(int p) {
    return p >= tvary::kPrvniDKS && (p == 26 || p == 28 || p == 30 || p == 31);
}

int minusu(int poloha) {
    return konec_a_minus(poloha) + konec_b_minus(poloha);
}

std::vector<Trasa> odvod_trasy(const Plan& plan, const Graf& graf, std::vector<Zavada>& zavady) {
    return Odvozeni(plan, graf, zavady).vsechny();
}

bool ceka_na_dokresleni(const Plan& plan, const Graf& graf, int kolej, Strana strana) {
    std::set<Konec> videno;
    std::vector<Konec> fronta{{Typ::kolej, kolej, port_strany(strana)}};
    while (!fronta.empty()) {
        const Konec vystup = fronta.back();
        fronta.pop_back();
        if (vystup.typ == Typ::kolej && vystup.cislo != kolej) {
            const Kolej* k = plan.kolej(vystup.cislo);
            if (k->cil || je_usek_trati(k->cislo) || plan.pravidla_tras.slepe.contains(k->cislo))
                continue;
            for (const UzavrenyKonec& u : plan.konce)
                if (u.konec == vystup && u.jak == Zakonceni::okraj)
                    return true;
        }
        if (const auto vstup = graf.soused(vystup))
            for (const Pruchod& p : pruchody(plan, *vstup))
                if (videno.insert(p.kam).second)
                    fronta.push_back(p.kam);
    }
    return false;
}

Bajty soubor_tras(const std::vector<Trasa>& trasy, DruhTrasy druh) {
    Zapisovac a;
    std::size_t radek = 0;
    for (const Trasa& t : trasy) {
        if (t.druh != druh)
            continue;
        if (++radek == kRadekProgramovych) {
            const ZaznamCesty prazdny{kZadny, kZadny, {PrvekCesty{}}, 0};
            popis_zaznamu_cesty(a, prazdny);
            ++radek;
        }
        popis_zaznamu_cesty(a, t.zaznam);
    }
    return a.bajty;
}

} // namespace kolejiste
