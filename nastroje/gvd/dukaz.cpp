// nastroje/gvd/dukaz.cpp - runs the rules over a plan, and answers what they ask of its rows.
#include "gvd/dukaz.h"

#include "gvd/plan_dukazu.h"
#include "jizda/souprava.h"
#include "uzel/dopravny.h"
#include "uzel/vozidla.h"
#include "zaklad/cisla.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace planovani {

namespace {

constexpr std::int32_t kCislaDepa = 70'000; // from here a row of the small depot runs as a train

} // namespace

void Plan::hlas(std::size_t i, const std::string& co) {
    vysledek.chyby.push_back({rad.radky[i], "vlak " + cislo(radek(i).cislo) + ": " + co});
}

bool Plan::ma_soupravu(std::size_t i) const {
    const std::int32_t n = radek(i).cislo;
    return std::any_of(rad.vlaky.begin(), rad.vlaky.end(), [n](const GvdVlak& r) {
        for (std::size_t k = 0; k < r.vozy.size(); ++k)
            if (dalsi_vlak(r, k) == n)
                return true;
        return false;
    });
}

std::optional<std::size_t> Plan::nastupce(std::size_t i) const {
    const GvdVlak& r = radek(i);
    for (std::size_t k = 0; k < r.vozy.size(); ++k) {
        const auto n = podle_cisla.find(dalsi_vlak(r, k));
        if (n != podle_cisla.end() && !je_tazna(r.vozy[k]) &&
            radek(n->second).zastavky.front().stanice == dopravna::tesk)
            return n->second;
    }
    return std::nullopt;
}

std::optional<std::size_t> zastavka_ve(const GvdVlak& r, int stanice) {
    for (std::size_t k = 0; k < r.zastavky.size(); ++k)
        if (r.zastavky[k].stanice == stanice)
            return k;
    return std::nullopt;
}

bool je_hlavni(int e) {
    return uzel::je_kolej_hlavniho(e);
}

std::string cislo(std::int32_t n) {
    return std::to_string(n);
}

std::string jmeno_stanice(int kod) {
    return na_utf8(nazev_stanice(kod));
}

std::string hodina(double s) {
    const int m = static_cast<int>(std::floor(s / 60));
    const int v_den = (m % 1440 + 1440) % 1440;
    return std::to_string(v_den / 60) + ":" + (v_den % 60 < 10 ? "0" : "") + std::to_string(v_den % 60);
}

unsigned dny_radku(const GvdVlak& r) {
    return (r.dny & 0x80) != 0 ? 0x7Fu : r.dny & 0x7Fu;
}

std::string jmeno_dne(int den) {
    constexpr std::array<const char*, 7> kDny = {"Po", "Út", "St", "Čt", "Pá", "So", "Ne"};
    return kDny[static_cast<std::size_t>(den)];
}

bool je_tazna(const Text& vuz) {
    return je_loko(vuz) && rada_vozu(vuz) < kPrvniMotorovyVuz && vuz != uzel::kVuzJednotky;
}

bool je_loko_vlak(const GvdVlak& r) {
    return !r.vozy.empty() && std::all_of(r.vozy.begin(), r.vozy.end(), je_tazna);
}

bool meni_loko(const GvdVlak& r, std::size_t i) {
    return r.loko_rada2 != 0 && (r.priznaky & 3) == 0 && i > 0 && i + 1 < r.zastavky.size() &&
           r.zastavky[i].prijezd >= 0 &&
           (r.zastavky[i].stanice == dopravna::tesk || r.zastavky[i].stanice == dopravna::hajovice);
}

bool otaci_se_sama(const GvdVlak& r, const GvdVlak& cil) {
    const auto vlevo = [](int s) {
        return je_v(s, {dopravna::lhotin, dopravna::vysni_hrabov, dopravna::javorin, dopravna::vrbice,
                        dopravna::kamenec, dopravna::mokrina, dopravna::dkv_vh, 36, 37, 38});
    };
    return r.zastavky.size() > 1 && cil.zastavky.size() > 1 &&
           vlevo(r.zastavky[r.zastavky.size() - 2].stanice) != vlevo(cil.zastavky[1].stanice);
}

std::int32_t dalsi_vlak(const GvdVlak& r, std::size_t vuz) {
    if (r.loko_rada != uzel::kJednotka && vuz < r.vozy_vlaky.size() && r.vozy_vlaky[vuz] > 0)
        return r.vozy_vlaky[vuz];
    // the unit follows the set's number as a whole; of others the first vehicle
    if (vuz == 0 || r.loko_rada == uzel::kJednotka)
        if (const auto n = ciselny_text(r.navazny_vlak); n && *n > 0)
            return static_cast<std::int32_t>(*n);
    return 0;
}

bool je_vratna(const std::vector<Text>& vozy) {
    const auto stanoviste = [](const Text& v) { return je_loko(v) || je_ridici_vuz(v); };
    return !vozy.empty() && stanoviste(vozy.front()) && stanoviste(vozy.back());
}

bool je_posun(const GvdVlak& r) {
    return r.zastavky.front().stanice == dopravna::posta ||
           (r.zastavky.front().stanice == dopravna::dkv_vh && r.cislo < kCislaDepa);
}

Dukaz dokaz(const JizdniRad& rad, const Sit& sit) {
    Dukaz vysledek;
    vysledek.jizdy.resize(rad.vlaky.size());
    std::map<std::int32_t, std::size_t> podle_cisla;
    for (std::size_t i = 0; i < rad.vlaky.size(); ++i)
        podle_cisla.emplace(rad.vlaky[i].cislo, i);
    const Plan plan{rad, sit, podle_cisla, vysledek};
    over_radky(plan);
    over_strety(plan);
    over_obehy(plan);
    std::stable_sort(vysledek.chyby.begin(), vysledek.chyby.end(),
                     [](const ChybaZdroje& a, const ChybaZdroje& b) { return a.radek < b.radek; });
    return vysledek;
}

} // namespace planovani
