// testy/gvd/zaplneni_test.cpp - the layout at the start minute; locomotives and sets out of the depot.
#include "fuzz/cile.h"
#include "gvd/provoz.h"
#include "gvd/zaplneni.h"
#include "pomocne/provoz_sveta.h"

#include <gtest/gtest.h>

namespace {

using Texty = std::vector<Text>;
using Prvky = std::vector<std::int16_t>;

class Zaplneni : public SProvozem {
protected:
    Zaplneni() { simulace.minuty_simulace = 0; }

    static void depo() { koleje({503, 509, 510, 558, 559, 560}); }
    static GvdVlak& do_tesku() {
        koleje({10, 9, 11, 12, 26, 27, 28});
        GvdVlak r = radek(1701, {{1, -1, 600}, {8, 620, 640}, {9, 660, -1}});
        r.kolej = "1";
        return pridej(r);
    }
    // Row 0 stands at `stanice`, and goes on to `dalsi`.
    static std::int16_t umisti(std::uint8_t stanice, std::uint8_t dalsi, std::uint8_t druh = 7,
                               std::uint8_t predchozi = 0, TextPohled kolej = {}) {
        static std::int32_t cislo = 100;
        gvd_vlaky = {radek(++cislo, {{predchozi, -1, 600}, {stanice, 620, 640}, {dalsi, 660, -1}})};
        gvd_vlaky[0].druh = druh;
        gvd_vlaky[0].kolej = kolej;
        umisti_vlak_do_stanice(stanice, predchozi, dalsi, 1, 0);
        const Vlak* v = najdi(cislo);
        return v == nullptr ? std::int16_t{-1} : v->prvky[0];
    }
};

// --- the passes

TEST_F(Zaplneni, TrainStandsAtTheFirstStopThatItHasNotLeft) {
    do_tesku();
    vlaky_na_trati(630, true);
    const Vlak* v = najdi(1701);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->prvky, Prvky{11}); // TVH, from LHO towards THN
    EXPECT_FALSE(v->smer);
    EXPECT_EQ(v->stanice_index, 1); // the stop has begun
    EXPECT_EQ(barva(11), barvy::cervena);
    EXPECT_EQ(relief.kolej[11].stav, "40"); // 60 m of an unknown length, less 20
}

TEST_F(Zaplneni, TrainBeforeItsRunAndBehindItIsNotPlaced) {
    do_tesku();
    koleje({86});
    for (const std::int16_t ted : {599, 660, 661, 0, 1439})
        vlaky_na_trati(ted, true);
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Zaplneni, TrainAtItsFirstStopInTheStartMinuteIsLeftToTheTrafficStep) {
    do_tesku();
    koleje({86, 87});
    vlaky_na_trati(600, true);
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(601, true);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Zaplneni, RowOfTheMainStationStandsAtThePlatformFrom29MinutesBefore) {
    koleje({26, 27});
    GvdVlak r = radek(1702, {{9, -1, 640}, {8, 660, -1}});
    r.kolej = "1";
    pridej(r);
    vlaky_na_trati(610, false);
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(611, true); // that pass is for the others
    EXPECT_EQ(pocet_vlaku(), 0);
    vlaky_na_trati(611, false);
    ASSERT_NE(najdi(1702), nullptr);
    EXPECT_EQ(najdi(1702)->prvky, Prvky{26});
    EXPECT_EQ(najdi(1702)->stanice_index, 0);
    EXPECT_FALSE(najdi(1702)->muze_jet);
}

TEST_F(Zaplneni, TrainOverMidnightIsOnTheWay) {
    koleje({10, 9, 11, 12});
    pridej(radek(1, {{1, -1, 1430}, {8, 1438, 1439}, {9, 10, -1}}));
    vlaky_na_trati(1438, true);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Zaplneni, TakenTracksLeaveTheTrainOut) {
    do_tesku();
    obsad(11);
    vlaky_na_trati(630, true);
    EXPECT_EQ(pocet_vlaku(), 0);
}

TEST_F(Zaplneni, TrainOfATakenLineIsLeftOutAndNotPutOnElementZero) {
    koleje({0, 604, 654});
    EXPECT_EQ(umisti(32, 8), 604);
    EXPECT_EQ(umisti(32, 8), -1);
    EXPECT_EQ(umisti(24, 8), 654);
    EXPECT_EQ(umisti(1, 8), -1); // 86 is not drawn
}

TEST_F(Zaplneni, TrainOfAnotherDayAndOneWhoseSetRunsAreLeftOut) {
    do_tesku().dny = 2;
    vlaky_na_trati(630, true);
    EXPECT_EQ(pocet_vlaku(), 0);
    gvd_vlaky[0].dny = 1;
    vlaky[5].cislo = 99;
    vlaky[5].vozy = {"754"};
    vlaky[5].vozy_urceni = {"1701"};
    vlaky_na_trati(630, true);
    EXPECT_EQ(najdi(1701), nullptr);
}

TEST_F(Zaplneni, NumberChangesAtTheStopOfTheTrain) {
    GvdVlak& r = do_tesku();
    r.cislo2 = 1801;
    r.stanice_zmeny = 8;
    vlaky_na_trati(630, true);
    EXPECT_TRUE(najdi(1701)->cislo2_platne);
}

TEST_F(Zaplneni, WholeFillBeginsWithTheStandbyLocomotive) {
    depo();
    do_tesku();
    zaplneni_kolejiste(630);
    EXPECT_EQ(vlaky[0].prvky, Prvky{509});
    EXPECT_EQ(vlaky[0].vozy, Texty{"731"});
    EXPECT_EQ(vlaky[0].vozy_urceni, Texty{"ZAL"});
    EXPECT_FALSE(vlaky[0].smer);
    EXPECT_TRUE(vlaky[0].posun);
    EXPECT_GE(vlaky[0].cislo, 74800);
    EXPECT_LE(vlaky[0].cislo, 74999);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
    EXPECT_NE(najdi(1701), nullptr);
}

TEST_F(Zaplneni, EmptyLayoutAndEmptyTimetableAreHarmless) {
    EXPECT_NO_THROW(zaplneni_kolejiste(600));
    EXPECT_EQ(pocet_vlaku(), 0);
    for (std::uint8_t kod = 0; kod < 40; ++kod)
        pridej(radek(1000 + kod, {{1, -1, 590}, {kod, 620, 640}, {9, 660, -1}}));
    for (std::uint8_t kod = 0; kod < 40; ++kod)
        pridej(radek(2000 + kod, {{kod, -1, 640}, {9, 660, -1}})).kolej = "13k";
    EXPECT_NO_THROW(zaplneni_kolejiste(630));
    EXPECT_EQ(pocet_vlaku(), 0);
}

// What the damaged timetables are made from is no idle example.
TEST_F(Zaplneni, ExampleOfTheDamagedTimetablesFillsTheLayout) {
    fuzz::postav_pro_provoz();
    nacti_gvd_z(fuzz::vzor_provozu());
    ASSERT_EQ(gvd_vlaky.size(), 8u);
    hodiny("9:59:00");
    zaplneni_kolejiste(599);
    EXPECT_NE(najdi(20), nullptr); // at the platform
    EXPECT_NE(najdi(8), nullptr);  // in Rybnice
    EXPECT_NE(najdi(10), nullptr); // on its way to Javořín
    EXPECT_EQ(cesty.back().ZT, 999);
    hodiny("10:06:00");
    krok_provozu();
    EXPECT_NE(najdi(2), nullptr); // announced
    hodiny("10:25:00");
    krok_provozu();
    EXPECT_NE(najdi(22), nullptr); // out of the depot
}

// --- where a train is placed

TEST_F(Zaplneni, StationsHaveTheirTracks) {
    struct Misto {
        std::uint8_t stanice, dalsi, druh, predchozi;
        int prvek;
    };
    for (const Misto& m : {Misto{1, 8, 7, 0, 86},    Misto{3, 8, 10, 0, 1},   Misto{3, 8, 7, 19, 2},
                           Misto{3, 20, 7, 0, 3},    Misto{7, 4, 7, 13, 93},  Misto{7, 9, 7, 22, 94},
                           Misto{7, 12, 7, 9, 44},   Misto{8, 3, 7, 9, 10},   Misto{8, 1, 7, 9, 12},
                           Misto{8, 9, 7, 1, 11},    Misto{8, 9, 14, 3, 18},  Misto{8, 1, 14, 9, 11},
                           Misto{8, 1, 14, 0, 16},   Misto{11, 4, 15, 9, 38}, Misto{11, 4, 7, 9, 36},
                           Misto{11, 9, 7, 4, 37},   Misto{12, 2, 7, 9, 59},  Misto{12, 13, 7, 9, 50},
                           Misto{13, 21, 15, 9, 74}, Misto{13, 6, 7, 9, 73},  Misto{13, 9, 7, 6, 72},
                           Misto{15, 9, 15, 7, 82},  Misto{15, 7, 7, 9, 79},  Misto{15, 9, 7, 7, 78}}) {
        for (int n = 1; n < 100; ++n)
            koleje({n});
        EXPECT_EQ(umisti(m.stanice, m.dalsi, m.druh, m.predchozi), m.prvek)
            << int{m.stanice} << " " << int{m.dalsi};
    }
}

TEST_F(Zaplneni, StationsWithoutARulePlaceNothing) {
    for (int n = 1; n < 100; ++n)
        koleje({n});
    for (const std::uint8_t kod : {10, 16, 17, 18, 19, 20, 27, 28, 30, 31, 33, 34, 36, 99})
        EXPECT_EQ(umisti(kod, 9), -1) << int{kod};
    EXPECT_EQ(umisti(3, 8, 7), -1);          // neither from PLH nor from HVO
    EXPECT_EQ(umisti(7, 9, 7, 9), -1);       // no line of the branch
    EXPECT_EQ(umisti(9, 8, 7, 0, "99"), -1); // a track that the main station has not
}

TEST_F(Zaplneni, PlannedTrackOfTheMainStationIsTakenElseItsNeighbour) {
    koleje({26, 27, 28, 29, 30, 31, 32, 33, 34, 35});
    EXPECT_EQ(umisti(9, 8, 7, 0, "6"), 31);
    EXPECT_EQ(umisti(9, 8, 7, 0, "6"), 30);
    EXPECT_EQ(umisti(9, 8, 7, 0, "6"), -1);
    EXPECT_EQ(umisti(9, 8, 7, 0, "13k"), 35);
    EXPECT_EQ(umisti(9, 8, 7, 0, "11k"), 34);
    EXPECT_EQ(umisti(9, 8, 7, 0, "1"), 26);
    EXPECT_EQ(umisti(9, 7, 7, 0, "1"), 27);
    EXPECT_TRUE(vlaky[5].smer);
}

TEST_F(Zaplneni, TrainOnALineHasItsRouteAndTheDirection) {
    koleje({604, 654});
    relief.lblSouhlas2.zaloz(604);
    EXPECT_EQ(umisti(32, 8, 7, 3), 604);
    ASSERT_EQ(cesty.size(), 1u);
    const Cesta& c = cesty[0];
    EXPECT_EQ(c.zacatek, 202);
    EXPECT_EQ(c.konec, 604);
    EXPECT_EQ(c.prvky, (Prvky{604, 654}));
    EXPECT_EQ(c.druhy, (std::vector<std::uint8_t>{1, 1}));
    EXPECT_EQ(c.polohy, (std::vector<std::uint8_t>{0, 2}));
    EXPECT_EQ(c.Vlak, 0);
    EXPECT_EQ(c.Umazat, 0);
    EXPECT_EQ(c.ZT, 999);
    EXPECT_EQ(relief.lblSouhlas2[604].text, ">>");
    EXPECT_EQ(relief.lblSouhlas2[604].barva(), barvy::azurova);
    const Vlak& v = vlaky[0];
    EXPECT_TRUE(v.smer);
    EXPECT_TRUE(v.omezeni_ukonceno);
    EXPECT_EQ(v.rychlost_cesty, 100);
    EXPECT_EQ(v.prvky_poloha, std::vector<std::uint8_t>{0});
}

TEST_F(Zaplneni, LineSectionsThatLabelAtReleaseAreMarked) {
    koleje({606, 654, 656});
    relief.lblSouhlas2.zaloz(604);
    relief.lblSouhlas2.zaloz(606);
    EXPECT_EQ(umisti(32, 3, 7, 8), 606);
    EXPECT_EQ(vlaky[0].prvky_poloha, std::vector<std::uint8_t>{2});
    EXPECT_EQ(relief.lblSouhlas2[606].text, "<<");
    EXPECT_EQ(umisti(24, 8, 7, 3), 654);
    EXPECT_EQ(vlaky[1].prvky_poloha, std::vector<std::uint8_t>{2});
    EXPECT_EQ(relief.lblSouhlas2[604].text, ">>");
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[1].konec, 604);
    EXPECT_EQ(cesty[1].prvky, Prvky{654});
}

TEST_F(Zaplneni, MouthOfTheBranchShowsTheNumberOnBothItsSections) {
    koleje({96, 632, 682, 638, 688, 738});
    relief.lblSouhlas2.zaloz(632);
    EXPECT_EQ(umisti(7, 13, 7, 9), 96);
    EXPECT_EQ(orez(relief.cislo_koleje[632].text()), text_cisla(vlaky[0].cislo));
    EXPECT_EQ(relief.lblSouhlas2[632].text, ">>");
    EXPECT_EQ(cesty[0].polohy, (std::vector<std::uint8_t>{0, 0, 2}));
    EXPECT_EQ(umisti(7, 22, 7, 9), 638);
    EXPECT_EQ(cesty[1].polohy, (std::vector<std::uint8_t>{2, 0, 2}));
}

TEST_F(Zaplneni, LineThatIsNotDrawnWholeTakesNoTrain) {
    koleje({604});
    EXPECT_EQ(umisti(32, 8, 7, 3), -1);
    EXPECT_EQ(barva(604), barvy::seda);
}

// --- locomotives

TEST_F(Zaplneni, LocomotiveTakesTheFirstFreeTrackOfTheDepot) {
    depo();
    obsad(558);
    vytvor_lokomotivu(754, 0, false, "4701", true);
    const Vlak& v = vlaky[0];
    EXPECT_EQ(v.prvky, Prvky{559});
    EXPECT_EQ(barva(559), barvy::cervena);
    EXPECT_EQ(relief.kolej[559].stav, "200");
    EXPECT_EQ(v.druh, 16);
    EXPECT_EQ(v.delka, 20);
    EXPECT_EQ(v.max_rychlost, 80);
    EXPECT_EQ(v.rychlost_trati, 80);
    EXPECT_EQ(v.rychlost, 0);
    EXPECT_EQ(v.stanice, (std::vector<std::uint8_t>{34, 9}));
    EXPECT_EQ(v.prijezd, (Prvky{-3, 607}));
    EXPECT_EQ(v.odjezd, (Prvky{600, -3}));
    EXPECT_EQ(v.vozy_urceni, Texty{"4701"});
    EXPECT_EQ(stav_provozu.pocet_zaloh, 0);
    EXPECT_FALSE(stav_provozu.zaloha_731_jede);
}

TEST_F(Zaplneni, FullDepotLeavesALocomotiveOnNoTrack) {
    depo();
    koleje({0});
    for (const int n : {503, 509, 510, 558, 559, 560})
        obsad(n);
    vytvor_lokomotivu(731, 0, false, "ZAL", true);
    EXPECT_EQ(vlaky[0].prvky, Prvky{0});
    EXPECT_EQ(barva(0), barvy::seda);
    EXPECT_EQ(koleje_vlaky.size(), 1u);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
}

TEST_F(Zaplneni, WithoutAFreeRecordNoLocomotiveIsMade) {
    depo();
    for (Vlak& v : vlaky)
        v.cislo = 5;
    vytvor_lokomotivu(731, 0, false, "ZAL", true);
    EXPECT_EQ(vlaky.size(), 51u);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 0);
}

TEST_F(Zaplneni, LocomotiveThatRunsAsATrainShowsItsNumber) {
    depo();
    vytvor_lokomotivu(754, 503, true, "DKV", false);
    EXPECT_EQ(cislo_na(503), text_cisla(vlaky[0].cislo));
}

TEST_F(Zaplneni, LocomotiveWaitsForASetThatIsStillToCome) {
    depo();
    GvdVlak drivejsi = radek(4702, {{8, -1, 500}, {9, 560, -1}});
    drivejsi.navazny_vlak = "4703";
    pridej(drivejsi);
    pridej(radek(4703, {{8, -1, 700}, {9, 720, -1}})); // comes to the main station after the start
    soupravy_do_depa(600);
    ASSERT_EQ(pocet_vlaku(), 1);
    EXPECT_EQ(vlaky[0].vozy_urceni, Texty{"4703"});
    EXPECT_EQ(vlaky[0].loko_rada, 754);

    vlaky = prvni_vlaky();
    relief.kolej[558].barva = barvy::seda;
    gvd_vlaky[1].stanice = {8, 1}; // it does not come there, and no train hands it a set
    soupravy_do_depa(600);
    EXPECT_EQ(pocet_vlaku(), 0);
    GvdVlak predava = radek(4750, {{8, -1, 650}, {9, 660, -1}});
    predava.vozy_vlaky = {0, 4703, 0};
    pridej(predava);
    soupravy_do_depa(600);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Zaplneni, SetNumbersThatAreNoTrainMakeNoLocomotive) {
    depo();
    for (const TextPohled text : {"", "ZAL", "0", "-4703", "4799"}) {
        GvdVlak r = radek(4702, {{8, -1, 500}, {9, 560, -1}});
        r.navazny_vlak = text;
        gvd_vlaky = {r, radek(4703, {{8, -1, 700}, {9, 720, -1}})};
        soupravy_do_depa(600);
    }
    EXPECT_EQ(pocet_vlaku(), 0);
}

// --- sets

class KontrolaSoupravy : public Zaplneni {
protected:
    KontrolaSoupravy() {
        vlaky[2].cislo = 1700;
        vlaky[2].loko_rada = 754;
        vlaky[2].vozy = {"754", "Bp"};
        vlaky[2].vozy_urceni = {"", ""};
    }
    static std::pair<int, bool> kontrola(std::int32_t cislo) {
        bool jsou_vozy = true;
        const int vysledek = kontrola_soupravy(cislo, jsou_vozy);
        return {vysledek, jsou_vozy};
    }
    static constexpr std::pair kVolno{0, false}, kVozy{0, true}, kNelze{-1, false}, kNelzeVozy{-1, true};
};

TEST_F(KontrolaSoupravy, RunningSetOfTheNumberBlocks) {
    EXPECT_EQ(kontrola(1800), kVolno);
    EXPECT_EQ(kontrola(1700), kNelzeVozy);
    vlaky[2].loko_rada2 = 362; // another locomotive is to take it over
    EXPECT_EQ(kontrola(1700), kNelze);
    vlaky[2].vozy = {"754"};
    EXPECT_EQ(kontrola(1700), kVolno); // locomotives alone are no set
}

TEST_F(KontrolaSoupravy, LocomotiveForTheNumberBlocksAndVehiclesAreCounted) {
    vlaky[2].vozy_urceni = {"", "1800"};
    EXPECT_EQ(kontrola(1800), kVozy);
    vlaky[2].vozy_urceni = {"1800", ""};
    EXPECT_EQ(kontrola(1800), kNelze);
    vlaky[2].vozy_urceni = {"ZAL", "x1800"};
    EXPECT_EQ(kontrola(1800), kVolno);
}

TEST_F(KontrolaSoupravy, OnlyDeparturesOfTheNextThreeQuartersOfAnHourCount) {
    for (const int m : {-5, 0, 1, 44, 45, 60}) {
        GvdVlak r = radek(5, {{8, -1, static_cast<std::int16_t>(630 + m)}, {9, 900, -1}});
        r.vozy_vlaky = {0, 1800, 0};
        gvd_vlaky = {r};
        EXPECT_EQ(kontrola(1800), (m == 1 || m == 44 ? kNelze : kVolno)) << m;
        gvd_vlaky[0].vozy_vlaky = {1800, 0, 0};
        gvd_vlaky[0].navazny_vlak = "1800";
        EXPECT_EQ(kontrola(1800), (m == 1 || m == 44 ? kVozy : kVolno)) << m;
        gvd_vlaky[0].dny = 2;
        EXPECT_EQ(kontrola(1800), kVolno);
    }
}

TEST_F(KontrolaSoupravy, LaterTrainThatBringsTheVehiclesIsWaitedFor) {
    pridej(radek(1800, {{9, -1, 700}, {8, 720, -1}}));
    GvdVlak r = radek(5, {{8, -1, 640}, {9, 660, -1}});
    r.vozy_vlaky = {0, 1800, 0};
    pridej(r);
    EXPECT_FALSE(souprava_pripravena(0, 639));
    EXPECT_TRUE(souprava_pripravena(0, 640));
    gvd_vlaky[1].vozy = {"754"};
    EXPECT_TRUE(souprava_pripravena(0, 639)); // a lone vehicle hands nothing on
}

// --- the start at the main station

class StaniceStart : public Zaplneni {
protected:
    StaniceStart() {
        koleje({538, 569});
        stav_provozu.zaloha_731_jede = true; // no other locomotive comes meanwhile
    }
    static GvdVlak& vlak_z_tesku(std::uint8_t cil) {
        return pridej(radek(
            1702,
            {{9, -1, 655}, {cil == 1 ? std::uint8_t{24} : std::uint8_t{12}, 680, 681}, {cil, 700, -1}}));
    }
};

TEST_F(StaniceStart, SetComesOutOfTheDepotAsAShuntingMovement) {
    vlak_z_tesku(2);
    stanice_start(0);
    const Vlak* v = najdi(1702);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->prvky, Prvky{538});
    EXPECT_TRUE(v->posun);
    EXPECT_TRUE(v->smer);
    EXPECT_EQ(barva(538), barvy::cervena);
    EXPECT_EQ(relief.kolej[538].stav, "600");
    EXPECT_EQ(koleje_vlaky.back().prvek, 538);
    // no other set at hand: the shunting locomotive joins behind the locomotive's train
    EXPECT_EQ(v->vozy, (Texty{"754", "Bp", "A", "210"}));
    EXPECT_EQ(v->vozy_urceni, (Texty{"1702", "1702", "1702", "ZAL"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    stanice_start(0); // not a second time
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(StaniceStart, SetsToTheOtherSideComeOutOf569) {
    vlak_z_tesku(1);
    stanice_start(0);
    EXPECT_EQ(najdi(1702)->prvky, Prvky{569});
    EXPECT_EQ(najdi(1702)->vozy.size(), 3u);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 0);
}

TEST_F(StaniceStart, TwoStandbyLocomotivesAreEnough) {
    vlak_z_tesku(2);
    stav_provozu.pocet_zaloh = 2;
    stanice_start(0);
    EXPECT_EQ(najdi(1702)->vozy.size(), 3u);
}

TEST_F(StaniceStart, OccupiedExitMakesTheTrainWait) {
    vlak_z_tesku(2);
    obsad(538);
    stanice_start(0);
    stanice_start(0);
    EXPECT_EQ(pocet_vlaku(), 0);
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{1702});
    relief.kolej[538].barva = barvy::seda;
    stanice_start(0);
    EXPECT_EQ(pocet_vlaku(), 1);
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{0});
}

TEST_F(StaniceStart, VehiclesAtHandGetAShuntingLocomotiveInPlaceOfTheirOwn) {
    vlak_z_tesku(2);
    vlaky[5].cislo = 1800;
    vlaky[5].vozy = {"754", "Bp"};
    vlaky[5].vozy_urceni = {"", "1702"};
    stanice_start(0);
    EXPECT_EQ(najdi(1702)->vozy, (Texty{"Bp", "A", "210"}));
    EXPECT_EQ(najdi(1702)->vozy_urceni, (Texty{"1702", "1702", "ZAL"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);

    gvd_vlaky[0].stanice = {9, 24, 1};
    najdi(1702)->cislo = -3;
    stanice_start(0);
    EXPECT_EQ(najdi(1702)->prvky, Prvky{569});
    EXPECT_EQ(najdi(1702)->vozy, (Texty{"210", "Bp", "A"}));
    EXPECT_EQ(najdi(1702)->vozy_urceni, (Texty{"ZAL", "1702", "1702"}));
}

TEST_F(StaniceStart, SingleVehicleAtHandIsNotBroughtOut) {
    GvdVlak& r = vlak_z_tesku(2);
    r.vozy = {"810"};
    r.vozy_vlaky = {0};
    vlaky[5].cislo = 1800;
    vlaky[5].vozy = {"810"};
    vlaky[5].vozy_urceni = {"1702"};
    vlaky[5].vozy = {"Bp"};
    stanice_start(0);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(StaniceStart, TrafficStepBringsSetsOutFrom30To16MinutesBefore) {
    vlak_z_tesku(2);
    for (const TextPohled cas : {"10:24:00", "10:40:00", "10:54:00"}) {
        hodiny(cas);
        zaplneni_kolejiste(0);
        EXPECT_EQ(pocet_vlaku(), 0) << cas;
    }
    hodiny("10:25:00");
    zaplneni_kolejiste(0);
    EXPECT_EQ(pocet_vlaku(), 1);
}

// --- turning of sets

class ObratSoupravy : public Zaplneni {
protected:
    static Texty po_vytvoreni(std::vector<std::uint8_t> stanice, std::int16_t rada = 754,
                              Texty vozy = {"754", "Bp"}) {
        Vlak v;
        v.stanice = std::move(stanice);
        v.loko_rada = rada;
        v.vozy_urceni = vozy;
        v.vozy_obrazek = vozy;
        v.vozy = std::move(vozy);
        vlaky[0] = v;
        posun_po_vytvoreni(0);
        EXPECT_EQ(vlaky[0].vozy, vlaky[0].vozy_urceni);
        EXPECT_EQ(vlaky[0].vozy, vlaky[0].vozy_obrazek);
        return vlaky[0].vozy;
    }
};

TEST_F(ObratSoupravy, SetsThatLeaveBackwardsAreTurned) {
    const Texty stejne{"754", "Bp"}, obracene{"Bp", "754"};
    for (const std::uint8_t druha : {5, 8, 1, 3, 20, 19, 10, 11})
        EXPECT_EQ(po_vytvoreni({9, druha, 2}), obracene) << int{druha};
    EXPECT_TRUE(vlaky[0].smer);
    EXPECT_EQ(po_vytvoreni({9, 12, 2}), stejne);
    EXPECT_FALSE(vlaky[0].smer);
    EXPECT_EQ(po_vytvoreni({9, 34, 8}), obracene);
    EXPECT_EQ(po_vytvoreni({9, 34, 12}), stejne);
    EXPECT_EQ(po_vytvoreni({9}), stejne);
    EXPECT_EQ(po_vytvoreni({9, 11, 4}), obracene);
    EXPECT_EQ(po_vytvoreni({9, 34, 11, 4}), obracene);
}

TEST_F(ObratSoupravy, TwoTurnsOnTheWayOverRybniceKeepTheOrder) {
    EXPECT_EQ(po_vytvoreni({9, 7, 4}), (Texty{"754", "Bp"}));
    EXPECT_TRUE(vlaky[0].smer);
}

TEST_F(ObratSoupravy, UnitsWithACabAtBothEndsAreNotTurned) {
    for (const std::int16_t rada : {560, 943, 954})
        EXPECT_EQ(po_vytvoreni({9, 8, 1}, rada), (Texty{"754", "Bp"}));
    EXPECT_EQ(po_vytvoreni({9, 8, 1}, 843, {"843", "943"}), (Texty{"843", "943"}));
    EXPECT_EQ(po_vytvoreni({9, 8, 1}, 843, {"843", "054"}), (Texty{"054", "843"}));
    EXPECT_EQ(po_vytvoreni({9, 8, 1}, 754, {}), Texty{});
}

TEST_F(ObratSoupravy, ShuntingLocomotiveJoinsTheEndWithoutALocomotive) {
    vlaky[0].vozy = vlaky[0].vozy_urceni = vlaky[0].vozy_obrazek = {"Bp", "754"};
    pridej_posunovou(0);
    EXPECT_EQ(vlaky[0].vozy, (Texty{"210", "Bp", "754"}));
    EXPECT_EQ(vlaky[0].vozy_urceni[0], "ZAL");
    pridej_posunovou(0);
    EXPECT_EQ(vlaky[0].vozy, (Texty{"210", "Bp", "754", "210"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 2);
}

} // namespace
