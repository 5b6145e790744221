// nastroje/gvd/obehy_planu.cpp - where the stock of a plan comes from and goes to, and what it leaves to
// hands.
#include "gvd/druhy_vlaku.h"
#include "gvd/plan_dukazu.h"
#include "jizda/souprava.h"
#include "uzel/dopravny.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <map>

namespace planovani {

namespace {

constexpr int kObratSoupravy = 4;        // minutes of a set with a cab at each end
constexpr int kObjetiSoupravy = 12;      // of a set whose locomotive has to run round it
constexpr int kNejdelStojiMotorova = 15; // of motor vehicles alone, before the yard would bring others
constexpr int kSoupravovy = 12;          // category of trains of empty stock

Texty vozy_bez_loko(const Texty& vozy) {
    Texty vysledek;
    for (const Text& v : vozy)
        if (!je_tazna(v))
            vysledek.push_back(v);
    std::sort(vysledek.begin(), vysledek.end());
    return vysledek;
}

std::string vypis(const Texty& vozy) {
    std::string text;
    for (std::size_t i = 0; i < vozy.size();) {
        std::size_t n = i;
        while (n < vozy.size() && vozy[n] == vozy[i])
            ++n;
        text += (text.empty() ? "" : " + ") + (n - i > 1 ? std::to_string(n - i) + "x " : std::string()) +
                na_utf8(vozy[i]);
        i = n;
    }
    return text;
}

struct Obehy : Plan {
    void obehy() {
        // by target and day: what comes
        std::map<std::pair<std::size_t, int>, std::vector<std::pair<std::size_t, Texty>>> prijde;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const GvdVlak& r = radek(i);
            std::map<std::int32_t, Texty> dily;
            for (std::size_t k = 0; k < r.vozy.size(); ++k)
                if (const std::int32_t n = dalsi_vlak(r, k); n > 0)
                    dily[n].push_back(r.vozy[k]);
            for (const auto& [n, vozy] : dily)
                predani(i, n, vozy, prijde);
        }
        for (auto& [kam, dily] : prijde) {
            const GvdVlak& cil = radek(kam.first);
            Texty vozy;
            for (const auto& [odkud, dil] : dily)
                vozy.insert(vozy.end(), dil.begin(), dil.end());
            const Texty jsou = vozy_bez_loko(vozy), maji_byt = vozy_bez_loko(cil.vozy);
            if (jsou != maji_byt && !jsou.empty() && je_prvni_den(prijde, kam))
                hlas(kam.first, "má jet jako " + vypis(maji_byt) + ", ale přijde " + vypis(jsou) + " (" +
                                    jmeno_dne(kam.second) + ")");
        }
        zasoba();
    }
    template <class Mapa> static bool je_prvni_den(const Mapa& m, const std::pair<std::size_t, int>& kam) {
        const auto prvni = m.lower_bound({kam.first, 0});
        return prvni->first == kam;
    }

    template <class Mapa> void predani(std::size_t i, std::int32_t n, const Texty& vozy, Mapa& prijde) {
        const GvdVlak& r = radek(i);
        const auto misto = podle_cisla.find(n);
        if (misto == podle_cisla.end()) {
            hlas(i, "pokračuje jako vlak " + cislo(n) + ", který v jízdním řádu není");
            return;
        }
        const std::size_t m = misto->second;
        const GvdVlak& cil = radek(m);
        // A locomotive that is changed here goes on while its train runs away with another one.
        const bool loko = std::all_of(vozy.begin(), vozy.end(), je_tazna);
        std::size_t misto_predani = r.zastavky.size() - 1;
        if (loko)
            for (std::size_t q = 1; q < r.zastavky.size(); ++q)
                if (meni_loko(r, q) && r.zastavky[q].stanice == dopravna::tesk)
                    misto_predani = q;
        if (r.zastavky[misto_predani].stanice != dopravna::tesk &&
            r.zastavky.back().stanice != dopravna::dkv_2) {
            hlas(i, "souprava na vlak " + cislo(n) + " může přejít jen na hlavním nádraží");
            return;
        }
        const auto v_tesku = zastavka_ve(cil, dopravna::tesk);
        if (!v_tesku) {
            hlas(i, "vlak " + cislo(n) + " na hlavní nádraží nejede");
            return;
        }
        const std::size_t k = *v_tesku;
        if (k > 0 && !loko)
            hlas(i, "vlak " + cislo(n) + " na hlavním nádraží nezačíná");
        if (loko && k > 0 && rada_vozu(vozy.front()) != cil.loko_rada2)
            hlas(i, "vlak " + cislo(n) + " nečeká lokomotivu řady " + na_utf8(vozy.front()));
        const int prijezd = r.zastavky[misto_predani].prijezd;
        int odjezd = cil.zastavky[k].odjezd;
        const bool dalsi_den = odjezd < prijezd;
        if (dalsi_den)
            odjezd += 1440;
        const int treba = loko                                           ? kObratSoupravy
                          : je_vratna(cil.vozy) || otaci_se_sama(r, cil) ? kObratSoupravy
                                                                         : kObjetiSoupravy;
        if (odjezd - prijezd < treba)
            hlas(i, "přijede v " + hodina(prijezd * 60.0) + " a vlak " + cislo(n) + " má jet v " +
                        hodina(odjezd * 60.0) + ", potřebuje " + std::to_string(treba) + " min");
        // A set of motor vehicles alone counts as locomotives: the yard would bring another one.
        if (!loko && odjezd - prijezd > kNejdelStojiMotorova &&
            std::all_of(cil.vozy.begin(), cil.vozy.end(), [](const Text& v) { return je_loko(v); }))
            hlas(i, "souprava samých motorových vozů čeká na vlak " + cislo(n) + " déle než " +
                        std::to_string(kNejdelStojiMotorova) + " min, z depa by vyjela druhá");
        if (odjezd - prijezd > 12 * 60)
            hlas(i, "vlak " + cislo(n) + " jede v " + hodina(odjezd * 60.0) + " dřív, než souprava přijede");
        if (!loko && !r.kolej.empty() && r.kolej != cil.kolej)
            hlas(i, "souprava stojí na koleji " + na_utf8(r.kolej) + ", vlak " + cislo(n) +
                        " má jet z koleje " + na_utf8(cil.kolej));
        for (int den = 0; den < 8; ++den) {
            if ((r.dny >> den & 1) == 0)
                continue;
            const int jede = den == 7 ? 7 : (den + (dalsi_den ? 1 : 0)) % 7;
            if ((cil.dny >> jede & 1) == 0) {
                hlas(i, "vlak " + cislo(n) + " nejede všechny dny, kdy mu souprava přijede");
                return;
            }
            prijde[{m, jede}].push_back({i, vozy});
        }
    }

    // What of each kind of set comes from a place must go back there within the week.
    void zasoba() {
        std::map<std::pair<Text, int>, std::array<int, 8>> bilance; // kind and place, by day
        std::map<Text, std::string> jmena;
        std::map<std::pair<Text, int>, std::size_t> vlak;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const GvdVlak& r = radek(i);
            const Texty vozy = vozy_bez_loko(r.vozy);
            if (vozy.empty() || (r.druh >= druh_vlaku::prvni_nakladni && r.druh != kSoupravovy))
                continue; // goods wagons go where their load goes
            if (r.zastavky.front().stanice == dopravna::posta)
                continue; // the vans of the post go back by a shunt, that no row tells of
            Text druh;
            for (const Text& v : vozy)
                druh += v + " ";
            jmena[druh] = vypis(vozy);
            bool pokracuje = false;
            for (std::size_t k = 0; k < r.vozy.size(); ++k)
                pokracuje = pokracuje || (dalsi_vlak(r, k) > 0 && !je_tazna(r.vozy[k]));
            const bool z_vlaku = ma_soupravu_vozu(i);
            for (int den = 0; den < 8; ++den) {
                if ((r.dny >> den & 1) == 0)
                    continue;
                const auto d = static_cast<std::size_t>(den);
                if (!z_vlaku)
                    --bilance[{druh, misto(r.zastavky.front().stanice)}][d];
                if (!pokracuje)
                    ++bilance[{druh, misto(r.zastavky.back().stanice)}][d];
                vlak.emplace(
                    std::pair{druh, misto(z_vlaku ? r.zastavky.back().stanice : r.zastavky.front().stanice)},
                    i);
            }
        }
        for (const auto& [co, dny] : bilance) {
            int tyden = 0;
            for (int d = 0; d < 7; ++d)
                tyden += dny[static_cast<std::size_t>(d)];
            const std::string kde =
                co.second == dopravna::tesk ? "odstavné nádraží" : jmeno_stanice(co.second);
            const auto v = vlak.find(co);
            const std::size_t i = v == vlak.end() ? 0 : v->second;
            if (tyden != 0)
                hlas(i, "souprava " + jmena[co.first] + ": místo " + kde + " má za týden o " +
                            std::to_string(std::abs(tyden)) + (tyden > 0 ? " víc" : " méně"));
            else if (dny[7] != 0)
                hlas(i, "souprava " + jmena[co.first] + ": místo " + kde + " má ve dni PP o " +
                            std::to_string(std::abs(dny[7])) + (dny[7] > 0 ? " víc" : " méně"));
            std::string pres;
            int zasoba_dne = 0;
            for (int d = 0; d < 7; ++d) {
                zasoba_dne += dny[static_cast<std::size_t>(d)];
                if (zasoba_dne != 0)
                    pres += " " + jmeno_dne(d) + (zasoba_dne > 0 ? " +" : " ") + std::to_string(zasoba_dne);
            }
            if (tyden == 0 && !pres.empty())
                vysledek.neslibuje.push_back("Souprava " + jmena[co.first] + ", " + kde +
                                             ": přes noc jinak než začátkem týdne:" + pres);
        }
    }
    static int misto(int stanice) {
        switch (stanice) {
        case dopravna::hajovice_sn_2: return dopravna::hajovice_sn;
        case dopravna::dkv_2: return dopravna::dkv;
        default: return stanice;
        }
    }
    // The coaches of the row come from another train.
    bool ma_soupravu_vozu(std::size_t i) const {
        const std::int32_t n = radek(i).cislo;
        return std::any_of(rad.vlaky.begin(), rad.vlaky.end(), [n](const GvdVlak& r) {
            for (std::size_t k = 0; k < r.vozy.size(); ++k)
                if (dalsi_vlak(r, k) == n && !je_tazna(r.vozy[k]))
                    return true;
            return false;
        });
    }

    void co_neslibuje() {
        int z_depa = 0, do_depa = 0, vymen = 0, objeti = 0, privesy = 0;
        std::map<int, std::vector<std::int32_t>> vyjezdy; // by minute of the week
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
            const GvdVlak& r = radek(i);
            for (std::size_t k = 1; k < r.zastavky.size(); ++k)
                vymen += meni_loko(r, k) ? 1 : 0;
            privesy += (r.priznaky & 3) != 0 ? 1 : 0;
            if (r.zastavky.front().stanice == dopravna::tesk && !ma_soupravu(i)) {
                ++z_depa;
                for (int d = 0; d < 7; ++d)
                    if ((r.dny >> d & 1) != 0)
                        vyjezdy[d * 1440 + r.zastavky.front().odjezd - 30].push_back(r.cislo);
            }
            const auto n = nastupce(i);
            if (r.zastavky.back().stanice == dopravna::tesk && !n && !je_loko_vlak(r))
                ++do_depa;
            if (n && !je_vratna(r.vozy) && !otaci_se_sama(r, radek(*n)))
                ++objeti;
        }
        const auto rci = [this](int kolik, const std::string& co) {
            vysledek.neslibuje.push_back(co + ": " + std::to_string(kolik));
        };
        rci(z_depa, "Vlaky hlavního nádraží, jejichž soupravu přistaví posun z odstavného nádraží");
        rci(do_depa, "Vlaky, jejichž soupravu posun odstaví");
        rci(vymen, "Výměny lokomotiv");
        rci(objeti, "Soupravy, které lokomotiva objede");
        rci(privesy, "Vlaky s posilou nebo přípřeží");
        for (const auto& [minuta, cisla] : vyjezdy)
            if (cisla.size() > 1) {
                std::string text = "V " + jmeno_dne(minuta / 1440) + " " + hodina(minuta % 1440 * 60.0) +
                                   " vyjíždějí z odstavného nádraží naráz soupravy vlaků";
                for (const std::int32_t n : cisla)
                    text += " " + cislo(n);
                vysledek.neslibuje.push_back(text);
            }
    }
};

} // namespace

void over_obehy(const Plan& plan) {
    Obehy o{plan};
    o.obehy();
    o.co_neslibuje();
}

} // namespace planovani
