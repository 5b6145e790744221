// testy/vypravci/predani_test.cpp - the desk, or single stations, handed over and taken back, and what goes
// on beside the dispatcher: saves, macros, another speed, another hand.
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "app/start.h"
#include "cesty/cesta.h"
#include "obsluha/klavesy.h"
#include "obsluha/makra.h"
#include "obsluha/vstup.h"
#include "save/ulozeni.h"
#include "vypravci/pohled.h"
#include "vypravci/ruce.h"
#include "vypravci/svet_vypravciho.h"

#include <set>

namespace {

using namespace dopravna;

class PredaniStolu : public SVypravcim {
protected:
    // Two trains through the main station, one from each side.
    void provoz(int minuta) {
        motorak(101, {lhotin, vysni_hrabov, tesk, rybnice, knizeci_luka, rokytno},
                {-1, 491, 498, 510, 517, 527}, {485, 492, 502, 511, 518, -1})
            .kolej = "2";
        motorak(102, {rokytno, knizeci_luka, rybnice, tesk, vysni_hrabov, lhotin},
                {-1, 492, 499, 506, 515, 522}, {483, 493, 500, 510, 516, -1})
            .kolej = "3";
        zacni(8, minuta);
    }
    // The trains to their ends; how late they were at most.
    int dojed(int sekund_celkem) {
        int nejvic = 0;
        bool byl = false;
        sekund(sekund_celkem, [&] {
            for (const std::int32_t cislo : {101, 102})
                if (const Vlak* v = najdi(cislo)) {
                    byl = true;
                    nejvic = std::max<int>(nejvic, v->zpozdeni);
                }
        });
        EXPECT_TRUE(byl);
        EXPECT_EQ(najdi(101), nullptr);
        EXPECT_EQ(najdi(102), nullptr);
        return nejvic;
    }
    void klavesy(const char* jmeno) { klavesa(klavesa_podle_jmena(jmeno)); }
};

} // namespace

TEST_F(PredaniStolu, EveryStationThatCanBeHandedOverHasItsThreeLetters) {
    const auto kody = vypravci::kody_stanic();
    EXPECT_GT(kody.size(), 10u);
    std::set<int> stanice;
    for (const TextPohled kod : kody) {
        EXPECT_EQ(kod.size(), 3u);
        const int s = vypravci::stanice_kodu(kod);
        EXPECT_NE(s, 0) << na_utf8(kod);
        EXPECT_TRUE(stanice.insert(s).second) << na_utf8(kod);
    }
    EXPECT_EQ(vypravci::stanice_kodu("TVH"), vysni_hrabov);
    EXPECT_EQ(vypravci::stanice_kodu("LHO"), lhotin);
    for (const char* neni : {"", "TV", "TVX", "TVHL", "tvh"})
        EXPECT_EQ(vypravci::stanice_kodu(neni), 0) << neni;
}

TEST_F(PredaniStolu, SignalsGoWithTheirStationAndThoseWithoutLettersWithTheWholeDesk) {
    provoz(0);
    EXPECT_FALSE(vypravci::ma_navestidlo(287));
    EXPECT_FALSE(vypravci::ma_stanici(lhotin));
    vypravci::predej(std::vector<std::uint8_t>{lhotin, vysni_hrabov});
    EXPECT_TRUE(vypravci::ma_navestidlo(287));
    EXPECT_TRUE(vypravci::ma_stanici(vysni_hrabov));
    EXPECT_FALSE(vypravci::ma_stanici(tesk));
    EXPECT_FALSE(vypravci::ma_stanici(-1));
    EXPECT_FALSE(vypravci::ma_stanici(200));
    vypravci::predej(std::vector<std::uint8_t>{tesk});
    EXPECT_FALSE(vypravci::ma_navestidlo(287)) << "the stations that he has are those named last";
    vypravci::predej();
    EXPECT_TRUE(vypravci::ma_navestidlo(287));
    EXPECT_TRUE(vypravci::ma_stanici(tesk));
    vypravci::vezmi();
    EXPECT_FALSE(vypravci::ma_navestidlo(287));
}

TEST_F(PredaniStolu, OfManyDecisionsTheNewestAreKept) {
    provoz(0);
    vypravci::predej();
    for (int i = 0; i < 1000; ++i)
        vypravci::rekni(i, Text("rozhodnutí"_cz));
    EXPECT_GE(stav_vypravciho.vety.size(), kVetVypravciho);
    EXPECT_LE(stav_vypravciho.vety.size(), 2 * kVetVypravciho);
    EXPECT_EQ(stav_vypravciho.vety.back().vlak, 999);
    EXPECT_EQ(stav_vypravciho.vety.front().vlak, 1000 - static_cast<int>(stav_vypravciho.vety.size()));
}

TEST_F(PredaniStolu, WaitIsToldOnceATrainAndKeepsItsBeginning) {
    provoz(0);
    vypravci::predej();
    vypravci::rekni_cekani(7, Text("čeká na kolej"_cz));
    vypravci::rekni_cekani(5, Text("čeká"_cz));
    const int od = cas_hodin();
    simulace.pauza = false;
    for (int i = 0; i < 3; ++i)
        sekunda(svet);
    vypravci::rekni_cekani(7, Text("čeká na souhlas"_cz));
    const auto& cekani = stav_vypravciho.cekani;
    ASSERT_EQ(cekani.size(), 2u);
    EXPECT_EQ(cekani[0].vlak, 5);
    EXPECT_EQ(na_utf8(cekani[1].text), "čeká na souhlas");
    EXPECT_EQ(cekani[1].cas_s, od);
    vypravci::neceka(7);
    vypravci::neceka(8);
    EXPECT_EQ(cekani.size(), 1u);
    vypravci::vezmi();
    EXPECT_TRUE(cekani.empty());
}

TEST_F(PredaniStolu, DeskTakenBackInTheMiddleLeavesWhatStandsAndIsTakenUpAgain) {
    provoz(0);
    vypravci::predej();
    std::vector<Cesta> predane;
    bool vzato = false;
    sekund(5 * 60, [&] {
        if (vzato || cesta_v_zasobniku(287, 600) < 0)
            return;
        vypravci::vezmi(); // in the second in which he has ordered it
        vzato = true;
        predane = cesty;
    });
    ASSERT_TRUE(vzato);
    EXPECT_FALSE(vypravci::zapnut());
    EXPECT_TRUE(stav_vypravciho.cekani.empty());
    sekund(60);
    EXPECT_NE(najdi(101)->prvky.back().prvek, 87) << "the train leaves over the route that he has set";
    vypravci::predej();
    EXPECT_LE(dojed(60 * 60), 2);
}

TEST_F(PredaniStolu, StationsOfTheOperatorAndOfTheDispatcherServeOneTrainTogether) {
    provoz(0);
    vypravci::predej(std::vector<std::uint8_t>{lhotin, vysni_hrabov});
    bool v_hrabove = false, v_tesku = false;
    sekund(16 * 60, [&] {
        for (int e = 9; e <= 18; ++e)
            v_hrabove = v_hrabove || (najdi(101) != nullptr && drzi_prvek(*najdi(101), e));
        for (int e = 26; e <= 35; ++e)
            v_tesku = v_tesku || (najdi(102) != nullptr && drzi_prvek(*najdi(102), e));
    });
    EXPECT_TRUE(v_hrabove);
    EXPECT_FALSE(v_tesku) << "there the operator has set nothing";
    for (const Veta& v : stav_vypravciho.vety)
        EXPECT_NE(v.vlak, 102) << na_utf8(v.text);
    EXPECT_EQ(ceka(102), "") << "for what is not his he says no reason";
    vypravci::predej();
    dojed(75 * 60);
}

TEST_F(PredaniStolu, LoadedGameGoesOnAtOnceWithTheDeskThatIsHandedOverAgain) {
    provoz(0);
    vypravci::predej();
    sekund(14 * 60);
    ASSERT_NE(najdi(101), nullptr);
    ASSERT_NE(najdi(102), nullptr);
    const Text soubor = svet.cesta() + "save\\predani.sim";
    zastav_hodiny();
    uloz_simulaci(soubor, true);
    nova_simulace();
    EXPECT_FALSE(vypravci::zapnut()) << "who has the desk is no part of a save";
    simulace.cesta_aplikace = svet.cesta();
    priprav_nacteni(soubor, {});
    start_simulace();
    for (int i = 0; i < 3; ++i)
        klavesa({KodKlavesy::enter});
    ASSERT_FALSE(simulace.pauza);
    ASSERT_NE(najdi(101), nullptr);
    vypravci::predej();
    EXPECT_LE(dojed(50 * 60), 2);
}

TEST_F(PredaniStolu, LookAtEverythingAnewChangesNothingForTheTrains) {
    provoz(0);
    vypravci::predej();
    int s = 0;
    sekund(14 * 60, [&] {
        if (++s % 37 == 0)
            vypravci::zapomen();
    });
    EXPECT_TRUE(vypravci::zapnut());
    EXPECT_LE(dojed(50 * 60), 2);
}

TEST_F(PredaniStolu, HeWaitsWhileAMacroIsRecordedAndARouteOfAMacroServesHisTrain) {
    provoz(0);
    vypravci::predej();
    sekund(2 * 60);
    klavesy("Alt+Shift+A");
    ASSERT_TRUE(makro_se_zaznamenava());
    klik(Druh::navestidlo, 287, Tlacitko::leve, false);
    klik(Druh::Image1, 600, Tlacitko::leve, false);
    const auto povelu = stav_vypravciho.povelu;
    sekund(6 * 60);
    EXPECT_EQ(stav_vypravciho.povelu, povelu);
    EXPECT_EQ(najdi(101)->prvky.back().prvek, 87) << "its departure is over";
    klavesa({KodKlavesy::enter});
    ASSERT_FALSE(makro_se_zaznamenava());
    klavesy("Alt+A");
    ASSERT_GE(cesta_v_zasobniku(287, 600), 0);
    sekund(60);
    EXPECT_NE(najdi(101)->prvky.back().prvek, 87);
    EXPECT_FALSE(rekl("LHO S1")) << "the route is there, he orders no second one";
    dojed(55 * 60);
}

TEST_F(PredaniStolu, AnotherSpeedInTheMiddleMakesNoTrainLate) {
    provoz(0);
    vypravci::predej();
    sekund(6 * 60);
    simulace.rychlost = 8;
    sekund(80);
    simulace.rychlost = 1;
    sekund(60);
    simulace.rychlost = 4;
    EXPECT_LE(dojed(9 * 60), 2);
    simulace.rychlost = 1;
}
