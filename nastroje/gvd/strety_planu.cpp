// nastroje/gvd/strety_planu.cpp - trains that are in each other's way: on lines, at platforms, in throats, at
// stations and gates.
#include "gvd/plan_dukazu.h"
#include "uzel/dopravny.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <tuple>

namespace planovani {

namespace {

constexpr int kPristaveni = 12; // minutes that a set out of the yard stands at its platform before it leaves
constexpr int kOdstaveni = 12;  // and one that goes back there behind its arrival
constexpr double kPredNavesti_s = 30; // a route stands before the train comes to its signal

// Lines by their first sections, and the tracks between stations that are no numbered lines.
struct JmenoTrati {
    std::array<int, 4> koleje;
    const char* jmeno;
};
constexpr std::array<JmenoTrati, 15> kJmenaTrati = {{
    {{600, 602, 0, 0}, "Lhotín-Vyšní Hrabov"},
    {{604, 606, 0, 0}, "Javořín-Vyšní Hrabov"},
    {{608, 610, 612, 614}, "Tesk hl. n.-Rybnice"},
    {{616, 618, 113, 115}, "Rybnice-Mokřina"},
    {{620, 622, 0, 0}, "Lipina-Knížecí Luka"},
    {{624, 626, 0, 0}, "Knížecí Luka-Rokytno"},
    {{628, 630, 0, 0}, "Lipina-Borovec"},
    {{632, 634, 636, 638}, "Rybnice-Lipina"},
    {{19, 20, 21, 0}, "Vyšní Hrabov-Tesk hl. n."},
    {{76, 77, 0, 0}, "Rybnice-Hájovice"},
    {{84, 0, 0, 0}, "Pol. Lhota-Javořín"},
    {{85, 0, 0, 0}, "Hvozdy-Javořín"},
    {{117, 0, 0, 0}, "Vrbice-Tesk hl. n."},
    {{118, 0, 0, 0}, "Tesk hl. n.-Kamenec-Mokřina"},
    {{120, 123, 0, 0}, "Mokřina-Dubnice"},
}};
std::string jmeno_trati(int t) {
    for (const JmenoTrati& j : kJmenaTrati)
        if (std::find(j.koleje.begin(), j.koleje.end(), t) != j.koleje.end())
            return j.jmeno + std::string(j.koleje[1] != 0 ? " (kolej " + std::to_string(t) + ")" : "");
    return "kolej " + std::to_string(t);
}

struct Strety : Plan {
    struct Zabor {
        double od = 0, po = 0; // of the week, seconds
        std::size_t vlak = 0;
        bool operator<(const Zabor& z) const { return std::tie(od, po, vlak) < std::tie(z.od, z.po, z.vlak); }
    };
    using Zabory = std::map<int, std::vector<Zabor>>;

    // On all days of the row, and what reaches over the end of the week at its beginning too.
    void zaber(Zabory& kam, int co, double od, double po, std::size_t i) {
        for (int den = 0; den < 7; ++den) {
            if ((dny_radku(radek(i)) >> den & 1) == 0)
                continue;
            const double d = den * kDen_s;
            kam[co].push_back({od + d, po + d, i});
            if (po + d > 7 * kDen_s)
                kam[co].push_back({od + d - 7 * kDen_s, po + d - 7 * kDen_s, i});
            if (od + d < 0)
                kam[co].push_back({od + d + 7 * kDen_s, po + d + 7 * kDen_s, i});
        }
    }

    // All pairs that overlap, each pair of trains once.
    template <class Co> void projdi_strety(Zabory& zabory, Co co) {
        for (auto& [klic, seznam] : zabory) {
            std::sort(seznam.begin(), seznam.end());
            std::set<std::pair<std::size_t, std::size_t>> hlasene;
            for (std::size_t a = 0; a < seznam.size(); ++a)
                for (std::size_t b = a + 1; b < seznam.size() && seznam[b].od < seznam[a].po; ++b) {
                    const auto dvojice = std::minmax(seznam[a].vlak, seznam[b].vlak);
                    if (dvojice.first != dvojice.second && hlasene.insert(dvojice).second)
                        co(klic, seznam[a], seznam[b]);
                }
        }
    }

    void trate() {
        Zabory zabory;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const Jizda& j = vysledek.jizdy[i];
            if (!j.jede)
                continue;
            std::map<int, std::pair<double, double>> casy;
            double navest = j.ukol.body.front().odjezd_s;
            for (std::size_t k = 0; k < j.pruchod.kroky.size(); ++k) {
                const Krok& krok = j.pruchod.kroky[k];
                if (krok.zacatek)
                    navest = std::max(j.prujezd.vstup[k] - kPredNavesti_s,
                                      k > 0 && j.prujezd.stani[k - 1] >= 0 ? j.prujezd.vstup[k] - 5 : 0.0);
                if (krok.prvek.druh != druh_prvku::kolej || !je_tratovy(krok.prvek.prvek))
                    continue;
                const int t = trat_elementu(krok.prvek.prvek);
                const auto [misto, nove] = casy.try_emplace(t, navest, j.prujezd.uvolneni[k]);
                if (!nove)
                    misto->second.second = std::max(misto->second.second, j.prujezd.uvolneni[k]);
            }
            for (const auto& [t, c] : casy)
                zaber(zabory, t, c.first, c.second, i);
        }
        nocni_klid(zabory);
        projdi_strety(zabory, [this](int t, const Zabor& a, const Zabor& b) {
            hlas(b.vlak, "v " + hodina(b.od) + " (" + jmeno_dne(den(b.od)) + ") je na trati " +
                             jmeno_trati(t) + " ještě vlak " + cislo(radek(a.vlak).cislo) + ", uvolní ji v " +
                             hodina(a.po + 59));
        });
    }
    // The longest time without a train between 22 and 6 o'clock, in the busiest night of each line.
    void nocni_klid(Zabory& zabory) {
        constexpr double kVecer_s = 22 * 3600, kNoc_s = 8 * 3600;
        for (auto& [t, seznam] : zabory) {
            std::sort(seznam.begin(), seznam.end());
            double nejkratsi = kNoc_s, zacatek = 0;
            for (int noc = 0; noc < 6; ++noc) {
                const double od = noc * kDen_s + kVecer_s, po = od + kNoc_s;
                double volno_od = od, nejdelsi = 0, kdy = od;
                const auto mezera = [&](double konec) {
                    if (konec - volno_od > nejdelsi)
                        nejdelsi = konec - (kdy = volno_od);
                };
                for (const Zabor& z : seznam) {
                    if (z.po <= od || z.od >= po)
                        continue;
                    mezera(z.od);
                    volno_od = std::max(volno_od, z.po);
                }
                mezera(po);
                if (nejdelsi < nejkratsi) {
                    nejkratsi = nejdelsi;
                    zacatek = kdy;
                }
            }
            vysledek.klid.push_back(jmeno_trati(t) + ": " + std::to_string(static_cast<int>(nejkratsi / 60)) +
                                    " min" + (nejkratsi < kNoc_s ? " od " + hodina(zacatek + 59) : ""));
        }
    }
    static int den(double s) { return static_cast<int>(std::floor(s / kDen_s) + 7) % 7; }

    // From when to when a train keeps its platform, without what its set does behind it.
    std::pair<double, double> na_koleji(std::size_t i) const {
        const GvdVlak& r = radek(i);
        const Jizda& j = vysledek.jizdy[i];
        double od = -1, po = -1;
        if (!j.jede) { // a shunt
            od = r.zastavky.back().prijezd * 60.0;
            return {od, od + kOdstaveni * 60.0};
        }
        for (std::size_t k = 0; k < j.pruchod.kroky.size(); ++k)
            if (j.pruchod.kroky[k].prvek.druh == druh_prvku::kolej &&
                je_hlavni(j.pruchod.kroky[k].prvek.prvek)) {
                od = od < 0 ? j.prujezd.vstup[k] : od;
                po = j.prujezd.uvolneni[k];
            }
        if (r.zastavky.front().stanice == dopravna::tesk && !ma_soupravu(i))
            od -= kPristaveni * 60.0;
        if (r.zastavky.back().stanice == dopravna::tesk)
            po += kOdstaveni * 60.0;
        return {od, po};
    }

    void koleje_hlavniho() {
        Zabory zabory;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const int kolej = vysledek.jizdy[i].kolej;
            if (kolej == 0 || (!vysledek.jizdy[i].jede && !je_posun(radek(i))))
                continue;
            auto [od, po] = na_koleji(i);
            if (od < 0 && po < 0)
                continue;
            // The set that becomes another train keeps the track until that one leaves.
            if (const auto n = nastupce(i); n && vysledek.jizdy[*n].kolej == kolej)
                po = std::max(po - kOdstaveni * 60.0,
                              po_pulnoci(i, *n) + radek(*n).zastavky.front().odjezd * 60.0);
            zaber(zabory, kolej, od, po, i);
        }
        projdi_strety(zabory, [this](int, const Zabor& a, const Zabor& b) {
            if (nastupce(a.vlak) == b.vlak || nastupce(b.vlak) == a.vlak)
                return;
            hlas(b.vlak, "v " + hodina(b.od) + " (" + jmeno_dne(den(b.od)) + ") je na koleji " +
                             na_utf8(radek(b.vlak).kolej) + " hlavního nádraží vlak " +
                             cislo(radek(a.vlak).cislo) + " až do " + hodina(a.po));
        });
    }

    // What is added to the times of the next train when the row's own set comes behind midnight.
    double po_pulnoci(std::size_t i, std::size_t n) const {
        return radek(i).zastavky.back().prijezd > radek(n).zastavky.front().odjezd ? kDen_s : 0;
    }

    void kapacity() {
        Zabory zabory;
        std::map<int, int> koleji;
        std::map<int, std::string> jmena;
        const auto klic = [](int e) { return stanice_elementu(e) * 10 + (e >= 57 && e <= 61 ? 1 : 0); };
        const auto stanicni = [](int e) {
            return e < 200 && stanice_elementu(e) != 0 && !je_tratovy(e) && !je_hlavni(e);
        };
        for (int e = 0; e < 200; ++e)
            if (sit.koleje[static_cast<std::size_t>(e)] && stanicni(e)) {
                ++koleji[klic(e)];
                jmena[klic(e)] = jmeno_stanice(stanice_elementu(e));
            }
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const Jizda& j = vysledek.jizdy[i];
            for (std::size_t k = 0; j.jede && k < j.pruchod.kroky.size(); ++k) {
                const int e = j.pruchod.kroky[k].prvek.prvek;
                if (j.pruchod.kroky[k].prvek.druh != druh_prvku::kolej || !stanicni(e))
                    continue;
                // a train of a neighbour is announced two minutes before
                zaber(zabory, klic(e), j.prujezd.vstup[k] - (k == 0 ? 120 : 0), j.prujezd.uvolneni[k], i);
            }
        }
        for (auto& [co, seznam] : zabory) {
            std::sort(seznam.begin(), seznam.end());
            std::multiset<double> konce;
            std::set<std::size_t> hlasene;
            for (const Zabor& z : seznam) {
                konce.erase(konce.begin(), konce.upper_bound(z.od));
                konce.insert(z.po);
                if (static_cast<int>(konce.size()) > koleji[co] && hlasene.insert(z.vlak).second)
                    hlas(z.vlak, "v " + hodina(z.od) + " (" + jmeno_dne(den(z.od)) + ") nemá ve stanici " +
                                     jmena[co] + " volnou kolej, vlaků je tam " +
                                     std::to_string(konce.size()));
            }
        }
    }

    // --- the throats of the main station

    // The steps of the route over which the train comes to its platform, or leaves it.
    struct Zhlavi {
        double od = 0, po = 0;
        std::set<int> prvky;
        bool odjezd = false;
    };
    std::vector<Zhlavi> zhlavi(std::size_t i) const {
        const Jizda& j = vysledek.jizdy[i];
        std::vector<Zhlavi> vysledne;
        const auto& kroky = j.pruchod.kroky;
        for (std::size_t k = 0; k < kroky.size(); ++k) {
            if (kroky[k].prvek.druh != druh_prvku::kolej || !je_hlavni(kroky[k].prvek.prvek))
                continue;
            std::size_t od = k;
            while (od > 0 && !kroky[od].zacatek && kroky[od].trasa != kBezTrasy)
                --od;
            std::size_t po = k + 1;
            while (po < kroky.size() && (po == k + 1 || !kroky[po].zacatek))
                ++po;
            for (const auto& [a, b, odjezd] : {std::tuple{od, k, false}, std::tuple{k + 1, po, true}}) {
                if (a >= b)
                    continue;
                Zhlavi z{j.prujezd.vstup[a] - 5, j.prujezd.uvolneni[a], {}, odjezd};
                for (std::size_t m = a; m < b; ++m) {
                    const PrvekCesty& p = kroky[m].prvek;
                    if (p.druh == druh_prvku::kolej && (je_tratovy(p.prvek) || je_hlavni(p.prvek)))
                        continue;
                    z.prvky.insert(p.druh == druh_prvku::vyhybka ? 1000 + p.prvek : p.prvek);
                    z.po = std::max(z.po, odjezd ? j.prujezd.uvolneni[m] : j.prujezd.vstup[b]);
                }
                vysledne.push_back(std::move(z));
            }
        }
        return vysledne;
    }

    // Another way of the train on the same platform that leaves these elements alone.
    bool ma_jinou_cestu(std::size_t i, const std::set<int>& mimo) const {
        Ukol u = vysledek.jizdy[i].ukol;
        u.mimo.assign(mimo.begin(), mimo.end());
        std::size_t kam = 0;
        const auto p = najdi_pruchod(sit, u, kam);
        return p && p->protismer == vysledek.jizdy[i].pruchod.protismer && !p->kratka_kolej;
    }

    void zhlavi_hlavniho() {
        std::vector<std::vector<Zhlavi>> vse(rad.vlaky.size());
        Zabory zabory;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            if (!vysledek.jizdy[i].jede)
                continue;
            vse[i] = zhlavi(i);
            for (const Zhlavi& z : vse[i])
                zaber(zabory, 0, z.od, z.po, i);
        }
        std::map<std::pair<std::size_t, std::size_t>, bool> jde;
        projdi_strety(zabory, [&](int, const Zabor& a, const Zabor& b) {
            for (const Zhlavi& x : vse[a.vlak])
                for (const Zhlavi& y : vse[b.vlak]) {
                    const double posun = (den(a.od) - den(b.od)) * kDen_s;
                    if (x.od + posun >= y.po || y.od >= x.po + posun ||
                        std::none_of(x.prvky.begin(), x.prvky.end(),
                                     [&](int e) { return y.prvky.contains(e); }))
                        continue;
                    if (!ma_jinou_cestu(b.vlak, x.prvky) && !ma_jinou_cestu(a.vlak, y.prvky))
                        hlas(b.vlak, "v " + hodina(y.od) + " (" + jmeno_dne(den(b.od)) +
                                         ") potřebuje na hlavním nádraží totéž zhlaví jako vlak " +
                                         cislo(radek(a.vlak).cislo));
                }
        });
    }
};

} // namespace

void over_strety(const Plan& plan) {
    Strety s{plan};
    s.trate();
    s.koleje_hlavniho();
    s.kapacity();
    s.zhlavi_hlavniho();
}

} // namespace planovani
