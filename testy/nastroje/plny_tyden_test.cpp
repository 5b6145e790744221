// testy/nastroje/plny_tyden_test.cpp - the full week on the whole junction: a start at any minute puts its
// trains where they belong.
#include "app/cas.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "cesty/zasobnik.h"
#include "desk/zprava.h"
#include "gvd/dukaz.h"
#include "gvd/zprava.h"
#include "jizda/souprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/volba.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/semena.h"
#include "uzel/dopravny.h"

#include <set>

namespace {

std::filesystem::path zdroj_plneho() {
    return std::filesystem::path(kZdrojeKolejiste) / "gvd" / "GVD_plny.gvd";
}

const JizdniRad& plny() {
    static const JizdniRad rad = [] {
        std::vector<ChybaZdroje> chyby;
        JizdniRad r = preloz_jizdni_rad(obsah_souboru(zdroj_plneho()), chyby);
        EXPECT_TRUE(chyby.empty());
        return r;
    }();
    return rad;
}

// One day of the week, a start at every quarter of an hour.
class PlnyTyden : public testing::TestWithParam<int> {
protected:
    static std::string stav() {
        if (const auto nalez = kontrola_stavu())
            return na_utf8(*nalez);
        if (const auto nalez = kontrola_majitelu())
            return na_utf8(*nalez);
        return {};
    }

    // A track that two trains keep.
    static std::string dva_na_miste() {
        std::set<int> drzene;
        for (const Vlak& v : vlaky)
            for (std::size_t k = static_cast<std::size_t>(std::max<int>(v.prvek_konec, 0));
                 v.cislo > 0 && k < v.prvky.size(); ++k)
                if (v.prvky[k].druh == druh_prvku::kolej && !drzene.insert(v.prvky[k].prvek).second)
                    return "two trains on track " + std::to_string(v.prvky[k].prvek);
        return {};
    }

    // A train at a station that it never calls at.
    static std::string cizi_kolej() {
        for (const Vlak& v : vlaky) {
            if (v.cislo < 1 || v.posun || v.prvky.empty())
                continue;
            const int stanice = planovani::stanice_elementu(v.prvky.back().prvek);
            const bool stavi = std::any_of(v.zastavky.begin(), v.zastavky.end(),
                                           [=](const Zastavka& z) { return z.stanice == stanice; });
            if (stanice != 0 && !stavi)
                return "train " + std::to_string(v.cislo) + " on track " +
                       std::to_string(v.prvky.back().prvek);
        }
        return {};
    }
};

} // namespace

TEST_P(PlnyTyden, StartAtAnyQuarterPutsEveryTrainInItsPlaceAndRunsOn) {
    const int startu = static_cast<int>(dil_zkousek(24 * 4));
    const auto jizdni_rad = zapis_jizdni_rad(plny());
    std::size_t umisteno = 0;
    for (int minuta = 0; minuta < 24 * 60; minuta += 24 * 60 / startu) {
        const std::string kdy = std::to_string(minuta / 60) + ":" + std::to_string(minuta % 60);
        VirtualniPlatforma svet;
        VolbyStartu volby;
        volby.hodina = static_cast<std::uint8_t>(minuta / 60);
        volby.minuta = static_cast<std::uint8_t>(minuta % 60);
        volby.den = static_cast<std::uint8_t>(GetParam());
        spust_cele_kolejiste(svet, jizdni_rad, volby);
        ASSERT_FALSE(simulace.pauza) << kdy;
        EXPECT_TRUE(svet.okna.empty()) << kdy;
        simulace.rychlost = 8;
        for (const Vlak& v : vlaky)
            umisteno += v.cislo > 0 ? 1 : 0;
        ASSERT_EQ(stav(), "") << kdy;
        ASSERT_EQ(dva_na_miste(), "") << kdy;
        ASSERT_EQ(cizi_kolej(), "") << kdy;
        for (int s = 0; s < 75; ++s) { // ten minutes
            sekunda(svet);
            ASSERT_EQ(stav(), "") << kdy << " +" << s * 8 << " s";
            ASSERT_EQ(dva_na_miste(), "") << kdy << " +" << s * 8 << " s";
        }
        ASSERT_EQ(cizi_kolej(), "") << kdy << " and ten minutes";
    }
    EXPECT_GT(umisteno, 5u * static_cast<unsigned>(startu));
}

INSTANTIATE_TEST_SUITE_P(Dny, PlnyTyden, testing::Range(0, 7));

TEST(PlnyTydenPlan, WorkingDaysHaveThreeHundredTrainsAndWeekendsFewer) {
    std::array<int, 8> dny{};
    std::set<int> druhy;
    for (const GvdVlak& r : plny().vlaky) {
        druhy.insert(r.druh);
        if (r.cislo2 > 0)
            druhy.insert(r.druh2);
        for (unsigned d = 0; d < 8; ++d)
            dny[d] += (r.dny >> d & 1) != 0 ? 1 : 0;
    }
    for (unsigned d = 0; d < 5; ++d) {
        EXPECT_GE(dny[d], 300) << d;
        EXPECT_LE(dny[d], 450) << d;
    }
    for (const unsigned d : {5u, 6u})
        EXPECT_LT(dny[d], dny[0]) << d;
    EXPECT_GT(dny[7], 0);
    EXPECT_EQ(druhy.size(), 18u);
}

TEST(PlnyTydenPlan, TableInTheDocumentsIsThatOfTheWeek) {
    const auto dokument = std::filesystem::path(kZdrojeKolejiste).parent_path() / "docs" / "gvd-plny.md";
    EXPECT_EQ(obsah_souboru(dokument), planovani::tabulka_provozu(plny(), "GVD_plny"));
}

namespace {

// The trains of a day from the hour on that run without shunting: their sets come from a neighbour or
// another train, and go back so; no locomotive is changed, and none runs round its train.
JizdniRad bez_posunu(int den, int od_h) {
    JizdniRad rad = plny();
    const auto vyrad = [&](auto co) {
        std::vector<GvdVlak> vlaky;
        std::vector<int> radky;
        for (std::size_t i = 0; i < rad.vlaky.size(); ++i)
            if (!co(rad.vlaky[i])) {
                vlaky.push_back(rad.vlaky[i]);
                radky.push_back(rad.radky[i]);
            }
        const bool zmena = vlaky.size() != rad.vlaky.size();
        rad.vlaky = std::move(vlaky);
        rad.radky = std::move(radky);
        return zmena;
    };
    const auto jede = [&](std::int32_t cislo) {
        return std::any_of(rad.vlaky.begin(), rad.vlaky.end(),
                           [=](const GvdVlak& r) { return r.cislo == cislo; });
    };
    const auto ma_soupravu = [&](std::int32_t cislo) {
        return std::any_of(rad.vlaky.begin(), rad.vlaky.end(),
                           [=](const GvdVlak& r) { return planovani::dalsi_vlak(r, 0) == cislo; });
    };
    const auto s_rukama = [&](const GvdVlak& r) {
        const bool zacina = r.zastavky.front().stanice == dopravna::tesk,
                   konci = r.zastavky.back().stanice == dopravna::tesk;
        const auto jede_pres = [&](int stanice) {
            return std::any_of(r.zastavky.begin(), r.zastavky.end(),
                               [=](const ZastavkaGvd& z) { return z.stanice == stanice; });
        };
        const bool pres_tesk = jede_pres(dopravna::tesk);
        const bool otaci = jede_pres(dopravna::dolni) || zacina || konci;
        return r.zastavky.front().odjezd < od_h * 60 + 5 || planovani::je_posun(r) || r.loko_rada2 != 0 ||
               (r.dny >> den & 1) == 0 || r.priznaky != 0 || (otaci && !planovani::je_vratna(r.vozy)) ||
               (zacina && !ma_soupravu(r.cislo)) || (konci && !jede(planovani::dalsi_vlak(r, 0))) ||
               (pres_tesk && r.druh >= 10 && !zacina && !konci);
    };
    while (vyrad(s_rukama)) {
    }
    return rad;
}

// A route that a signalman sets by the timetable.
struct Povel {
    int sekunda = 0;
    int zacatek = 0, konec = 0;
    std::int32_t vlak = 0;
};
std::vector<Povel> povely_dne(const JizdniRad& rad, const planovani::Sit& sit,
                              const planovani::Dukaz& dukaz) {
    constexpr int kPredem_s = 75; // a crossing takes its time
    std::vector<Povel> povely;
    for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
        const planovani::Jizda& j = dukaz.jizdy[i];
        for (std::size_t k = 0; k < j.pruchod.kroky.size(); ++k)
            if (j.pruchod.kroky[k].zacatek) {
                const ZaznamCesty& z = sit.trasy[j.pruchod.kroky[k].trasa].zaznam;
                povely.push_back({static_cast<int>(j.prujezd.vstup[k]) - kPredem_s, z.zacatek, z.konec,
                                  rad.vlaky[i].cislo});
            }
    }
    std::stable_sort(povely.begin(), povely.end(),
                     [](const Povel& a, const Povel& b) { return a.sekunda < b.sekunda; });
    return povely;
}

} // namespace

class PlnyTydenProvoz : public testing::TestWithParam<int> {};

// What the proof says of running times, lines, platforms and throats is what the trains do.
TEST_P(PlnyTydenProvoz, TrainsKeepTheirTimesWhenRoutesAreSetByThePlan) {
    constexpr int kOd_h = 4, kHodin = TESK_DIL_ZKOUSEK > 1 ? 3 : 19, kDo_h = kOd_h + kHodin, kZrychleni = 4;
    const JizdniRad rad = bez_posunu(GetParam(), kOd_h);
    ASSERT_GT(rad.vlaky.size(), 150u);
    const planovani::Sit sit = planovani::sestav_sit(data_kolejiste().top, data_kolejiste().zat);
    const planovani::Dukaz dukaz = planovani::dokaz(rad, sit);
    const std::vector<Povel> povely = povely_dne(rad, sit, dukaz);

    VirtualniPlatforma svet;
    VolbyStartu volby;
    volby.hodina = kOd_h;
    volby.den = static_cast<std::uint8_t>(GetParam());
    volby.zpozdeni = volby.pp = false;
    spust_cele_kolejiste(svet, zapis_jizdni_rad(rad), volby);
    ASSERT_FALSE(simulace.pauza);
    simulace.rychlost = kZrychleni;
    prepni_pv_vz(false); // a route that has to wait holds back no other one
    auto povel =
        std::find_if(povely.begin(), povely.end(), [=](const Povel& p) { return p.sekunda >= kOd_h * 3600; });
    std::set<std::int32_t> videno;
    std::map<std::int32_t, int> zpozdeni;
    for (int s = kOd_h * 3600; s < kDo_h * 3600; s = cas_hodin()) {
        for (; povel != povely.end() && povel->sekunda <= s; ++povel)
            najdi_cestu(povel->zacatek, povel->konec, druh_volby::vlak, false);
        for (const int k : {0, 1, 2})
            if (!relief.lblSouhlas[k].popis->empty())
                udel_souhlas(k);
        for (int i = 0; i < 5 && prikaz_radek.obsazen; ++i)
            klavesa({KodKlavesy::enter});
        sekunda(svet);
        for (const Vlak& v : vlaky)
            if (v.cislo > 0 && !v.posun) {
                videno.insert(v.cislo);
                zpozdeni[v.cislo] = std::max<int>(zpozdeni[v.cislo], v.zpozdeni);
            }
    }
    std::string pozde, chybi;
    for (std::size_t i = 0; i < rad.vlaky.size(); ++i) {
        const GvdVlak& r = rad.vlaky[i];
        const int konec_s =
            (r.zastavky.back().prijezd >= 0 ? r.zastavky.back().prijezd : r.zastavky.back().odjezd) * 60;
        if (konec_s > kDo_h * 3600 - 300)
            continue;
        if (zpozdeni[r.cislo] > 2)
            pozde += " " + std::to_string(r.cislo) + " +" + std::to_string(zpozdeni[r.cislo]);
        const bool stoji = std::any_of(vlaky.begin(), vlaky.end(),
                                       [&](const Vlak& v) { return v.cislo == r.cislo && !v.posun; });
        if (!videno.contains(r.cislo) || stoji)
            chybi += " " + std::to_string(r.cislo);
    }
    EXPECT_EQ(pozde, "");
    EXPECT_EQ(chybi, "");
    EXPECT_GT(videno.size(), 8u * kHodin);
}

INSTANTIATE_TEST_SUITE_P(Dny, PlnyTydenProvoz, testing::Range(0, 7));
