// testy/nastroje/plny_tyden_test.cpp - the full week on the whole junction: a start at any minute puts its
// trains where they belong.
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/kontrola_majitelu.h"
#include "gvd/dukaz.h"
#include "gvd/zprava.h"
#include "jizda/vlak.h"
#include "jizda/zastavky.h"
#include "pomocne/cele_kolejiste.h"
#include "pomocne/semena.h"

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

// The timers for one second.
void sekunda(VirtualniPlatforma& svet) {
    for (int ms = 50; ms <= 1000; ms += 50) {
        svet.posun_ms(50);
        for (const Casovac& casovac : casovace)
            if (svet.tik % casovac.perioda_ms == 0)
                casovac.telo();
    }
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
    std::size_t umisteno = 0;
    for (int minuta = 0; minuta < 24 * 60; minuta += 24 * 60 / startu) {
        const std::string kdy = std::to_string(minuta / 60) + ":" + std::to_string(minuta % 60);
        VirtualniPlatforma svet;
        VolbyStartu volby;
        volby.hodina = static_cast<std::uint8_t>(minuta / 60);
        volby.minuta = static_cast<std::uint8_t>(minuta % 60);
        volby.den = static_cast<std::uint8_t>(GetParam());
        spust_cele_kolejiste(svet, zapis_jizdni_rad(plny()), volby);
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
