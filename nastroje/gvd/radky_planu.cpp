// nastroje/gvd/radky_planu.cpp - what each row of a plan has to keep by itself, and the run of its train.
#include "app/cas.h"
#include "gvd/plan_dukazu.h"
#include "uzel/dopravny.h"
#include "uzel/umisteni.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace planovani {

namespace {

constexpr int kMinutObjeti = 12;      // minutes in which a locomotive runs round a train that goes back
constexpr int kVymenaLoko = 8;        // change of locomotives
constexpr int kObjetiCestou = 20;     // a stop in which a train may be turned on its way
constexpr int kNejdelePoPulnoci = 30; // sets for the first trains behind midnight are not looked for
constexpr double kTolerance_s = 30;   // the timetable tells whole minutes
constexpr std::int32_t kPrvniCisloPultu = 70'000, kPosledniCisloPultu = 79'999;

int kolej_podle_jmena(const Text& kolej) {
    for (const uzel::KolejHlavniStanice& k : uzel::kHlavniStanice)
        if (kolej == k.kolej)
            return k.prvky[0];
    return 0;
}

struct Radky : Plan {
    void vse() {
        cisla_a_jmena();
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const bool lze = zacatek_a_konec(i);
            kolej_hlavni(i);
            hrabov(i);
            zastavky_po_pulnoci(i);
            if (lze)
                jizda(i);
        }
    }

    void cisla_a_jmena() {
        std::map<Text, std::size_t> jmena;
        std::set<std::int32_t> obsazena;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const GvdVlak& r = radek(i);
            for (const std::int32_t n : {r.cislo, r.cislo2}) {
                if (n <= 0)
                    continue;
                if (!obsazena.insert(n).second)
                    hlas(i, "číslo " + cislo(n) + " má už jiný vlak týdne");
                if (n >= kPrvniCisloPultu && n <= kPosledniCisloPultu)
                    hlas(i, "čísla 70000 až 79999 dává pult lokomotivám sám");
            }
            if (r.nazev.empty())
                continue;
            const auto [misto, novy] = jmena.emplace(r.nazev, i);
            if (!novy && radek(misto->second).druh != r.druh)
                hlas(i, "jméno „" + na_utf8(r.nazev) + "“ má už vlak " + cislo(radek(misto->second).cislo) +
                            " jiného druhu");
            for (std::size_t k = 0; k < i; ++k)
                if (radek(k).nazev == r.nazev && (dny_radku(radek(k)) & dny_radku(r)) != 0 &&
                    radek(k).zastavky.front().stanice == r.zastavky.front().stanice) {
                    hlas(i, "jméno „" + na_utf8(r.nazev) + "“ má týž den z téže stanice vlak " +
                                cislo(radek(k).cislo));
                    break;
                }
        }
    }

    bool zacatek_a_konec(std::size_t i) {
        const GvdVlak& r = radek(i);
        using namespace dopravna;
        const int odkud = r.zastavky.front().stanice, kam = r.zastavky.back().stanice;
        if (odkud == dkv_2) {
            hlas(i, "z východní brány DKV žádný vlak nevyjede");
            return false;
        }
        if (!je_v(odkud, {lhotin, borovec, dubnice, rokytno, polska_lhota, hvozdy, vrbice, tesk, dkv,
                          hajovice_sn, hajovice_sn_2, posta, dkv_vh})) {
            hlas(i, "ve stanici " + jmeno_stanice(odkud) + " nemůže vlak začínat");
            return false;
        }
        if (!je_v(kam, {lhotin, borovec, dubnice, rokytno, polska_lhota, hvozdy, vrbice, tesk, dkv, dkv_2,
                        hajovice_sn, hajovice_sn_2, posta, dkv_vh})) {
            hlas(i, "ve stanici " + jmeno_stanice(kam) + " by vlak zůstal stát");
            return false;
        }
        if (r.zastavky.front().odjezd < 0) {
            hlas(i, "nemá odjezd z první stanice");
            return false;
        }
        const int od = r.zastavky.front().odjezd;
        if (je_v(odkud, {lhotin, borovec, dubnice, rokytno, polska_lhota, hvozdy, vrbice}) && od == 0)
            hlas(i, "vjezd v 0:00 se před půlnocí neohlásí");
        if (odkud == tesk && od < kNejdelePoPulnoci && !ma_soupravu(i))
            hlas(i, "souprava na odjezd v " + hodina(od * 60.0) + " by před půlnocí z depa nevyjela");
        for (std::size_t k = 1; k + 1 < r.zastavky.size(); ++k)
            if (r.zastavky[k].stanice == hajovice && je_v(r.zastavky[k + 1].stanice, {hajovice_sn, dkv}))
                hlas(i, "před vjezdem do nádraží nesmí mít zastavení v Hájovicích");
        return true;
    }

    void kolej_hlavni(std::size_t i) {
        const GvdVlak& r = radek(i);
        const bool v_tesku = zastavka_ve(r, dopravna::tesk).has_value();
        if (!r.kolej.empty()) {
            vysledek.jizdy[i].kolej = kolej_podle_jmena(r.kolej);
            if (vysledek.jizdy[i].kolej == 0)
                hlas(i, "kolej „" + na_utf8(r.kolej) + "“ na hlavním nádraží není");
        } else if (v_tesku && !je_loko_vlak(r) && !je_posun(r)) {
            hlas(i, "nemá na hlavním nádraží kolej");
        }
    }

    // A service that begins at midnight puts the train down with the times of the day behind it. In a station
    // it is told to leave; at a halt on the line nobody can tell it, and it would keep the line for a day.
    void zastavky_po_pulnoci(std::size_t i) {
        for (const ZastavkaGvd& z : radek(i).zastavky)
            if (z.prijezd >= 0 && z.odjezd >= kDen_min &&
                std::none_of(uzel::kKolejeStanic.begin(), uzel::kKolejeStanic.end(),
                             [&](const uzel::KolejeStanice& k) { return k.stanice == z.stanice; }))
                hlas(i, "po půlnoci nesmí zastavovat na trati (" + jmeno_stanice(z.stanice) + ")");
    }

    void hrabov(std::size_t i) {
        const GvdVlak& r = radek(i);
        if (je_vratna(r.vozy))
            return;
        for (std::size_t k = 1; k + 1 < r.zastavky.size(); ++k) {
            if (r.zastavky[k].stanice != dopravna::vysni_hrabov)
                continue;
            const auto je_jmeno = [&](std::size_t m) {
                return r.zastavky[m].stanice >= 36 && r.zastavky[m].stanice <= 38 &&
                       r.zastavky[m].odjezd == r.zastavky[k].odjezd;
            };
            if (!je_jmeno(k + 1) && !je_jmeno(k - 1))
                hlas(i, "u Vyšního Hrabova chybí jméno bez koleje, při startu by stál obráceně");
        }
    }

    // --- the run

    void jizda(std::size_t i) {
        const GvdVlak& r = radek(i);
        Jizda& j = vysledek.jizdy[i];
        if (je_posun(r))
            return;
        for (std::size_t k = 0; k < r.zastavky.size(); ++k) {
            Bod b{.stanice = r.zastavky[k].stanice, .stavi = k == 0 || r.zastavky[k].prijezd >= 0};
            if (k + 1 == r.zastavky.size())
                b.stavi = true;
            b.odjezd_s = r.zastavky[k].odjezd * 60.0;
            b.muze_otocit = k > 0 && r.zastavky[k].prijezd >= 0 &&
                            r.zastavky[k].odjezd - r.zastavky[k].prijezd >= kObjetiCestou;
            if (b.stanice == dopravna::tesk && j.kolej != 0)
                b.koleje = {j.kolej};
            j.ukol.body.push_back(std::move(b));
        }
        j.ukol.delka = r.delka;
        j.ukol.druh = r.druh;
        std::size_t kam_az = 0;
        auto pruchod = najdi_pruchod(sit, j.ukol, kam_az);
        if (!pruchod) {
            const std::size_t k = std::min(kam_az, r.zastavky.size() - 1);
            hlas(i, "do stanice " + jmeno_stanice(r.zastavky[k].stanice) +
                        (r.zastavky[k].stanice == dopravna::tesk && !r.kolej.empty()
                             ? " na kolej " + na_utf8(r.kolej)
                             : std::string()) +
                        " nevede z předchozího místa vlaková cesta");
            return;
        }
        j.jede = true;
        j.pruchod = std::move(*pruchod);
        j.prujezd = projed(sit, j.pruchod, j.ukol, {r.druh, r.rychlost, r.delka});
        if (j.pruchod.protismer)
            hlas(i, "jede po některé trati proti jejímu směru");
        delky(i);
        jizdni_doby(i);
        pobyty(i);
    }

    void delky(std::size_t i) {
        const GvdVlak& r = radek(i);
        const Jizda& j = vysledek.jizdy[i];
        for (std::size_t k = 0; k < r.zastavky.size(); ++k) {
            if (!j.ukol.body[k].stavi || (r.zastavky[k].stanice >= 36 && r.zastavky[k].stanice <= 38))
                continue;
            const int e = j.pruchod.kroky[j.pruchod.mista[k]].prvek.prvek;
            const int koleje = sit.delky[static_cast<std::size_t>(e)];
            if (koleje < r.delka && (k > 0 || r.zastavky[k].stanice == dopravna::tesk))
                hlas(i, std::to_string(r.delka) + " m se ve stanici " + jmeno_stanice(r.zastavky[k].stanice) +
                            " na kolej o " + std::to_string(koleje) + " m nevejde");
        }
    }

    void jizdni_doby(std::size_t i) {
        const GvdVlak& r = radek(i);
        const Jizda& j = vysledek.jizdy[i];
        std::size_t od = 0;
        for (std::size_t k = 1; k < r.zastavky.size(); ++k) {
            if (r.zastavky[k].stanice >= 36 && r.zastavky[k].stanice <= 38)
                continue;
            const std::size_t krok = j.pruchod.mista[k];
            const bool stoji = j.ukol.body[k].stavi;
            // A line stop at which another point of the row is stopped too has one arrival.
            const double tam = stoji ? j.prujezd.stani[krok] : j.prujezd.vstup[krok];
            const double plan =
                (r.zastavky[k].prijezd >= 0 ? r.zastavky[k].prijezd : r.zastavky[k].odjezd) * 60.0;
            if (tam < 0 || plan < 0)
                continue;
            if (tam > plan + kTolerance_s) {
                const double potreba = (tam - r.zastavky[od].odjezd * 60.0) / 60;
                hlas(i, "do stanice " + jmeno_stanice(r.zastavky[k].stanice) + " přijede v " +
                            hodina(tam + 30) + " místo v " + hodina(plan) + ": ze stanice " +
                            jmeno_stanice(r.zastavky[od].stanice) + " potřebuje " +
                            std::to_string(static_cast<int>(std::ceil(potreba - 0.5))) + " min");
            }
            if (stoji)
                od = k;
        }
    }

    void pobyty(std::size_t i) {
        const GvdVlak& r = radek(i);
        const Jizda& j = vysledek.jizdy[i];
        for (std::size_t k = 1; k + 1 < r.zastavky.size(); ++k) {
            if (r.zastavky[k].prijezd < 0 || r.zastavky[k].odjezd < 0)
                continue;
            const int pobyt = r.zastavky[k].odjezd - r.zastavky[k].prijezd;
            if (meni_loko(r, k) && pobyt < kVymenaLoko)
                hlas(i, "na výměnu lokomotivy ve stanici " + jmeno_stanice(r.zastavky[k].stanice) +
                            " má jen " + std::to_string(pobyt) + " min");
            // The way goes back by where it came: the sense of the next step tells.
            const std::size_t krok = j.pruchod.mista[k];
            if (krok + 1 >= j.pruchod.kroky.size() || r.zastavky[k].stanice >= 36)
                continue;
            const std::size_t dalsi = j.pruchod.kroky[krok + 1].trasa;
            const bool obraci = dalsi != kBezTrasy && j.pruchod.kroky[krok + 1].zacatek &&
                                sit.trasy[dalsi].smer != j.pruchod.kroky[krok].smer;
            if (obraci && !je_vratna(r.vozy) && !meni_loko(r, k) && pobyt < kMinutObjeti)
                hlas(i, "na objetí soupravy ve stanici " + jmeno_stanice(r.zastavky[k].stanice) + " má jen " +
                            std::to_string(pobyt) + " min");
        }
    }
};

} // namespace

void over_radky(const Plan& plan) {
    Radky{plan}.vse();
}

} // namespace planovani
