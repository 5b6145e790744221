// testy/gvd/skladba_test.cpp - a timetable row becomes a train: times, vehicles, pictures.
#include "desk/hlaseni.h"
#include "gvd/casy.h"
#include "gvd/skladba.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Texty = std::vector<Text>;

class Skladba : public SProvozem {
protected:
    Skladba() { koleje({50, 87, 538, 569, 656}); }

    static Vlak& vytvor(bool smer, int element, int index = kNaVstupu) {
        return vlaky[static_cast<std::size_t>(
            vytvor_vlak(smer, element, true, index, static_cast<int>(gvd_vlaky.size()) - 1))];
    }
    void obrazky(std::initializer_list<const char*> jmena) {
        for (const char* jmeno : jmena)
            svet.zapis("DATA/VOZY/" + std::string(jmeno), "x");
    }
    static GvdVlak dalkovy() {
        GvdVlak r = radek(4701, {{2, -1, 600}, {12, 620, 625}, {9, 640, 645}, {8, 660, 661}});
        r.loko_rada = 362;
        r.loko_rada2 = 754;
        r.vozy = {"362", "Bp", "A"};
        return r;
    }
};

// --- the record

TEST_F(Skladba, RowIsCopiedIntoTheRecord) {
    GvdVlak r = dalkovy();
    r.cislo2 = 4703;
    r.druh2 = 6;
    r.stanice_zmeny = 9;
    r.nazev = "Hrad";
    r.kolej = "5k";
    r.poznamka = "x";
    r.gvd_hodnota = 11;
    r.hodnota_2 = 12;
    r.priznaky = 1;
    r.dny = 0xFF;
    pridej(r);
    const Vlak& v = vytvor(true, 87);
    EXPECT_EQ(v.cislo, 4701);
    EXPECT_EQ(v.cislo2, 4703);
    EXPECT_EQ(v.druh2, 6);
    EXPECT_EQ(v.stanice_zmeny, 9);
    EXPECT_EQ(v.nazev, "Hrad");
    EXPECT_EQ(v.pokyn, "5k");
    EXPECT_EQ(v.poznamka, "x");
    EXPECT_EQ(v.gvd_hodnota, 11);
    EXPECT_EQ(v.hodnota_2, 12);
    EXPECT_EQ(v.dny, 0xFF);
    EXPECT_EQ(v.max_rychlost, 90);
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::stanice), sloupec(r.zastavky, &ZastavkaGvd::stanice));
    EXPECT_EQ(v.stanice_index, -4);
    EXPECT_EQ(v.prvek_konec, 0);
    EXPECT_EQ(polohy_prvku(v.prvky), std::vector<std::uint8_t>{2});
    EXPECT_EQ(druhy_prvku(v.prvky), std::vector<std::uint8_t>{1});
    EXPECT_EQ(v.rychlost, 0);
    EXPECT_FALSE(v.cislo2_platne);
    ASSERT_EQ(koleje_vlaky.size(), 2u);
    EXPECT_EQ(koleje_vlaky[1].prvek, 87);
}

TEST_F(Skladba, LineAndHighElementsHaveNoListAndNoLabelMark) {
    pridej(dalkovy());
    EXPECT_EQ(polohy_prvku(vytvor(true, 656).prvky), std::vector<std::uint8_t>{0});
    EXPECT_EQ(polohy_prvku(vytvor(true, 538).prvky), std::vector<std::uint8_t>{2});
    EXPECT_EQ(koleje_vlaky.size(), 1u);
}

TEST_F(Skladba, FirstFreeRecordIsTakenElseTheTableGrows) {
    pridej(dalkovy());
    for (std::size_t i = 0; i < vlaky.size(); ++i)
        vlaky[i].cislo = i == 7 ? -3 : 100 + static_cast<int>(i);
    vlaky[7].rychlost = 90; // of the train that is gone
    EXPECT_EQ(vytvor_vlak(true, 87, true, kNaVstupu, 0), 7);
    EXPECT_EQ(vlaky[7].rychlost, 0);
    EXPECT_EQ(vytvor_vlak(true, 538, true, kNaVstupu, 0), 51);
    EXPECT_EQ(vlaky.size(), 52u);
    EXPECT_EQ(vlaky[51].rezerva, -3);
}

// --- times

TEST_F(Skladba, TimesAreLiftedIntoRunningMinutes) {
    simulace.cas_zacatku = 599;
    simulace.minuty_simulace = 1;
    EXPECT_EQ(korekce(-3), 0);
    EXPECT_EQ(korekce(-1), 0);
    EXPECT_EQ(korekce(0), 0);
    EXPECT_EQ(korekce(601), 0);
    EXPECT_EQ(korekce(400), 0);    // 600 / 400 is 1.5, not above
    EXPECT_EQ(korekce(399), 1440); // so far behind that tomorrow is meant
    simulace.minuty_simulace = 1441;
    EXPECT_EQ(korekce(601), 1440);
    EXPECT_EQ(korekce(399), 2880);
    simulace.cas_zacatku = -1; // a start at midnight
    simulace.minuty_simulace = 0;
    EXPECT_EQ(korekce(5), 0);
}

TEST_F(Skladba, StopsCarryTimesOfTheirDay) {
    simulace.cas_zacatku = 1400;
    simulace.minuty_simulace = 20;
    hodiny("23:40:00");
    pridej(radek(1, {{2, -1, 1421}, {9, 1438, 2}, {8, 30, -1}}));
    const Vlak& v = vytvor(false, 87);
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::prijezd), (std::vector<std::int16_t>{-1, 1438, 1470}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd), (std::vector<std::int16_t>{1421, 1442, -1}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd_realny), sloupec(v.zastavky, &Zastavka::odjezd));
}

TEST_F(Skladba, LatenessAtTheEntryIsNeverNegative) {
    pridej(radek(1, {{2, -1, 622}, {9, 640, -1}}));
    hodiny("10:30:00");
    EXPECT_EQ(vytvor(false, 87).zpozdeni, 8);
    hodiny("10:20:00");
    EXPECT_EQ(vytvor(false, 87).zpozdeni, 0);
    zmen_radek_gvd(0,
                   [](GvdVlak& g) { g.zastavky[0].prijezd = 615; }); // counts for a neighbour without consent
    EXPECT_EQ(vytvor(false, 87).zpozdeni, 5);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky[0].stanice = 19; }); // there the departure counts
    hodiny("10:25:00");
    EXPECT_EQ(vytvor(false, 87).zpozdeni, 3);
    prevezmi_hlaseni({Text("Zpoždění vlaku 1 +12´"_cz)});
    EXPECT_EQ(vytvor(false, 87).zpozdeni_vstup, 12);
    EXPECT_EQ(vytvor(false, 87, 1).zpozdeni, 0);
}

// --- first speed

TEST_F(Skladba, FirstSpeedIsThatOfTheStation) {
    struct Rychlost {
        std::uint8_t stanice;
        int rychlost;
    };
    for (const Rychlost& r :
         {Rychlost{1, 100}, Rychlost{6, 100}, Rychlost{2, 70}, Rychlost{5, 70}, Rychlost{12, 70},
          Rychlost{3, 80}, Rychlost{8, 80}, Rychlost{9, 40}, Rychlost{18, 40}, Rychlost{13, 100},
          Rychlost{19, 65}, Rychlost{20, 65}, Rychlost{27, 60}, Rychlost{31, 60}, Rychlost{34, 80}}) {
        GvdVlak rad = radek(1, {{r.stanice, -1, 620}, {9, 640, -1}});
        rad.rychlost = 120;
        pridej(rad);
        EXPECT_EQ(vytvor(false, 538).rychlost_trati, r.rychlost) << int{r.stanice};
        zmen_radek_gvd(gvd_vlaky.size() - 1, [](GvdVlak& g) { g.rychlost = 50; });
        const int pomaly = vytvor(false, 538).rychlost_trati;
        EXPECT_EQ(pomaly,
                  r.stanice == 1 || r.stanice == 6 || r.stanice == 19 || r.stanice == 20 ? 50 : r.rychlost);
    }
}

TEST_F(Skladba, TrainPlacedAtTheVeryStartMovesAtOnce) {
    simulace.minuty_simulace = 0;
    pridej(dalkovy());
    EXPECT_EQ(vytvor(false, 50, 1).rychlost, 70);
    EXPECT_EQ(vytvor(false, 50, 2).rychlost, 40);
}

// --- next work of the vehicles

TEST_F(Skladba, VehiclesGoOnAsTheRowSays) {
    GvdVlak r = radek(4701, {{8, -1, 600}, {9, 640, -1}});
    r.vozy_vlaky = {4702, 4702, 0};
    pridej(r);
    EXPECT_EQ(urceni_vozu(vytvor(false, 87).vozy), (Texty{"4702", "4702", ""}));
    EXPECT_EQ(urceni_vozu(vytvor(false, 538).vozy), (Texty{"4701", "4701", "4701"}));
    EXPECT_EQ(urceni_vozu(vytvor(false, 569).vozy), (Texty{"4701", "4701", "4701"}));
}

TEST_F(Skladba, FirstVehicleWithoutNextWorkTakesTheSetNumber) {
    GvdVlak r = radek(4701, {{8, -1, 600}, {9, 640, -1}});
    r.vozy_vlaky = {0, 4702, 0};
    r.navazny_vlak = "ZAL";
    pridej(r);
    EXPECT_EQ(urceni_vozu(vytvor(false, 87).vozy), (Texty{"ZAL", "4702", ""}));
}

TEST_F(Skladba, UnitKeepsTogether) {
    GvdVlak r = radek(4701, {{8, -1, 600}, {9, 640, -1}});
    r.loko_rada = 560;
    r.vozy = {"560", "060", "560"};
    r.vozy_vlaky = {1, 2, 3};
    r.navazny_vlak = "4702";
    pridej(r);
    EXPECT_EQ(urceni_vozu(vytvor(false, 87).vozy), (Texty{"4702", "4702", "4702"}));
    EXPECT_EQ(urceni_vozu(vytvor(false, 538).vozy), (Texty{"4701", "4701", "4701"}));
}

// --- locomotives

TEST_F(Skladba, StopsWithALocomotiveChangeWaitForTheOrder) {
    pridej(dalkovy());
    const Vlak& v = vytvor(false, 87);
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd_realny), (std::vector<std::int16_t>{600, -10, -10, 661}));
    EXPECT_EQ(v.zastavky[2].odjezd, 645);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.loko_rada2 = 0; });
    EXPECT_EQ(vytvor(false, 538).zastavky[2].odjezd_realny, 645);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.priznaky = 2; }); // an assisting locomotive is to come
    EXPECT_EQ(vytvor(false, 538).zastavky[2].odjezd_realny, -10);
}

TEST_F(Skladba, TrainPlacedBehindTheChangeHasTheOtherLocomotive) {
    obrazky({"754_3.ico", "362_3.ico"});
    GvdVlak r = dalkovy();
    r.vozy = {"362", "362", "Bp", "A"};
    r.vozy_vlaky = {0, 0, 0, 0};
    pridej(r);
    const Vlak& v = vytvor(false, 50, 3);
    EXPECT_EQ(rady_vozu(v.vozy), (Texty{"754", "Bp", "Bp", "A"}));
    EXPECT_EQ(obrazky_vozu(v.vozy), (Texty{"754_3.ico", "B.ico", "B.ico", "A.ico"}));
    EXPECT_EQ(v.vozy[0].urceni, "0");
}

TEST_F(Skladba, TrainPlacedBeforeTheChangeKeepsItsLocomotive) {
    GvdVlak r = dalkovy();
    zmen_stanice(r.zastavky, {2, 22, 23, 12}); // no change before the last stop
    pridej(r);
    EXPECT_EQ(vytvor(false, 50, 1).vozy[0].rada, "362");
}

TEST_F(Skladba, SecondAndAssistingLocomotivesStandWhereTheFlagsSay) {
    GvdVlak r = dalkovy();
    r.vozy = {"362", "Bp", "Bp", "A"};
    r.vozy_vlaky = {0, 0, 0, 0};
    r.priznaky = 3;
    pridej(r);
    const Vlak& v = vytvor(false, 50, 2);
    EXPECT_EQ(rady_vozu(v.vozy), (Texty{"754", "754", "Bp", "754"}));
}

TEST_F(Skladba, LightSecondLocomotiveRunsInFront) {
    obrazky({"754_1.ico", "210_1.ico"});
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.vozy = {"754", "210", "Bp"};
    pridej(r);
    EXPECT_EQ(rady_vozu(vytvor(false, 87).vozy), (Texty{"210", "754", "Bp"}));
    EXPECT_EQ(obrazky_vozu(vytvor(false, 87).vozy), (Texty{"210_1.ico", "754_1.ico", "B.ico"}));
    zmen_radek_gvd(0, [](GvdVlak& g) { g.vozy = {"754", "754", "Bp"}; });
    EXPECT_EQ(rady_vozu(vytvor(false, 87).vozy), (Texty{"754", "754", "Bp"}));
    zmen_radek_gvd(0, [](GvdVlak& g) { g.vozy = {"754", "210"}; });
    EXPECT_EQ(rady_vozu(vytvor(false, 87).vozy), (Texty{"754", "210"})); // a pair stays
}

TEST_F(Skladba, SingleVehicleHasNothingToSwap) {
    GvdVlak r = dalkovy();
    r.vozy = {"362"};
    r.vozy_vlaky = {0};
    r.priznaky = 3;
    pridej(r);
    const Vlak& v = vytvor(false, 50, 3);
    EXPECT_EQ(rady_vozu(v.vozy), Texty{"754"});
    EXPECT_EQ(urceni_vozu(v.vozy), Texty{"0"});
}

TEST_F(Skladba, RowWithoutVehiclesIsATrainAllTheSame) {
    GvdVlak r = dalkovy();
    r.vozy.clear();
    r.vozy_vlaky.clear();
    pridej(r);
    EXPECT_TRUE(vytvor(false, 50, 3).vozy.empty());
}

TEST_F(Skladba, NumberOfTheTrainThatTakesTheSet) {
    pridej(radek(4701, {{8, -1, 600}, {9, 640, -1}}));
    GvdVlak r = radek(4702, {{9, -1, 700}, {8, 740, -1}});
    r.navazny_vlak = "4701";
    pridej(r, [](GvdVlak& g) { g.dny = 2; });
    const int v = vytvor_vlak(false, 87, true, kNaVstupu, 0);
    EXPECT_EQ(cislo_vlaku_pred(v), 0); // not today
    zmen_radek_gvd(1, [](GvdVlak& g) { g.dny = 1; });
    EXPECT_EQ(cislo_vlaku_pred(v), 4702);
    zmen_radek_gvd(1, [](GvdVlak& g) { g.loko_rada = 362; });
    EXPECT_EQ(cislo_vlaku_pred(v), 0);
}

// --- beep

TEST_F(Skladba, NewTrainBeepsOnceAStep) {
    pridej(dalkovy());
    vytvor(false, 50, 2);
    EXPECT_TRUE(svet.pipnuti.empty());
    vytvor(false, 87);
    vytvor(false, 538);
    EXPECT_EQ(svet.pipnuti, (std::vector<VirtualniPlatforma::Pipnuti>{{500, 200}}));
    simulace.nova_pipnuti = false;
    simulace.zvuk_vypnut = true;
    vytvor(false, 569);
    EXPECT_EQ(svet.pipnuti.size(), 1u);
    EXPECT_FALSE(simulace.nova_pipnuti);
}

// --- pictures

TEST_F(Skladba, SameSeriesMayShowDifferentPictures) {
    obrazky({"a054_1.ico", "b054_1.ico"});
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.vozy.assign(40, "054");
    r.vozy_vlaky.assign(40, 0);
    pridej(r);
    zasej_nahodu(1);
    const Vlak& v = vytvor(false, 87);
    const std::vector<Text> obrazky_v = obrazky_vozu(v.vozy);
    const std::set<Text> videne(obrazky_v.begin() + 1, obrazky_v.end());
    EXPECT_GE(videne.size(), 1u);
    obrazky({"c054_9.ico"});
    const Vlak& w = vytvor(false, 538);
    const std::vector<Text> obrazky_w = obrazky_vozu(w.vozy);
    EXPECT_GT(std::set<Text>(obrazky_w.begin() + 1, obrazky_w.end()).size(), 1u);
}

TEST_F(Skladba, TrailerIsNotDrawnAsALocomotiveWhoseNumberEndsAlike) {
    obrazky({"054_1.ico", "a754_9.ico", "954_9.ico"});
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.loko_rada = 843;
    r.vozy = {"843", "054", " 054 "};
    r.vozy_vlaky = {0, 0, 0};
    pridej(r);
    EXPECT_EQ(obrazky_vozu(vytvor(false, 87).vozy), (Texty{"", "054_1.ico", "054_1.ico"}));
}

TEST_F(Skladba, CabOfTheUnitFollowsTheDirection) {
    obrazky({"560_5.ico"});
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.loko_rada = 560;
    r.vozy = {"560", "060", "060", "560"};
    pridej(r);
    EXPECT_EQ(obrazky_vozu(vytvor(false, 87).vozy),
              (Texty{"560_5.ico", "060_5.ico", "060_5.ico", "560p_5.ico"}));
    EXPECT_EQ(obrazky_vozu(vytvor(true, 538).vozy),
              (Texty{"560p_5.ico", "060_5.ico", "060_5.ico", "560_5.ico"}));
}

TEST_F(Skladba, DrivingTrailersShowTheirCab) {
    obrazky({"943_1.ico", "843_1.ico", "954_1.ico"});
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.loko_rada = 943;
    r.vozy = {"943", "843", "954"};
    pridej(r);
    EXPECT_EQ(obrazky_vozu(vytvor(false, 87).vozy), (Texty{"943_1.ico", "843_1.ico", "954p.ico"}));
    EXPECT_EQ(obrazky_vozu(vytvor(true, 538).vozy), (Texty{"943p.ico", "843_1.ico", "954_1.ico"}));
}

TEST_F(Skladba, SetWithoutALocomotiveIsDrawnByItsFirstVehicle) {
    GvdVlak r = radek(1, {{8, -1, 600}, {9, 640, -1}});
    r.loko_rada = 0;
    r.vozy = {"Bee", "A"};
    pridej(r);
    EXPECT_EQ(obrazky_vozu(vytvor(false, 87).vozy), (Texty{"Bee.ico", "A.ico"}));
}

} // namespace
