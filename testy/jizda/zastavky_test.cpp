// testy/jizda/zastavky_test.cpp - stops, waiting, departures, delays, the journal, the number change.
#include "app/casovace.h"
#include "desk/stav_blikani.h"
#include "gvd/gvd.h"
#include "jizda/posun.h"
#include "jizda/svet_vlaku.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/stanicni_prejezdy.h"

#include <algorithm>
#include <array>

namespace {

class Zastavky : public SVlaky {
protected:
    Zastavky() {
        pridej_kolej(26);
        pridej_kolej(574);
    }
    // The platform track 62 of Borovec: a train that stops there and goes on.
    int zastavi_v_borovci(std::int16_t prijezd, std::int16_t odjezd) {
        const int v = vlak_na(62, true, 1234);
        zastavky(v, {9, 2, 6}, {-3, prijezd, 700}, {470, odjezd, -3});
        vlak(v).stanice_index = 0;
        vlak_v_cili(62, v);
        return v;
    }
    bool piplo(int hz) const {
        return std::any_of(svet.pipnuti.begin(), svet.pipnuti.end(),
                           [hz](const VirtualniPlatforma::Pipnuti& p) { return p.hz == hz; });
    }
};

} // namespace

TEST_F(Zastavky, EarlyTrainWaitsForItsTimetable) {
    const int v = zastavi_v_borovci(482, 490);
    EXPECT_EQ(vlak(v).stanice_index, 1);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 490);
    EXPECT_FALSE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).rychlost, 0);
    EXPECT_EQ(relief.cislo_koleje[62].pozadi, barvy::cervena);
    EXPECT_EQ(relief.cislo_koleje[62].barva, barvy::bila);
}

TEST_F(Zastavky, LateTrainStaysForTheShorterOfItsStopAndTheMinimum) {
    const int v = zastavi_v_borovci(470, 473);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, 481);
    minuta();
    EXPECT_TRUE(vlak(v).muze_jet);
    const int w = vlak_na(63, true, 55);
    zastavky(w, {2}, {470}, {470}); // no dwell at all
    vlak_v_cili(63, w);
    EXPECT_EQ(vlak(w).zastavky[0].odjezd_realny, 481); // 470 is over: the present minute
    EXPECT_TRUE(vlak(w).muze_jet);
}

TEST_F(Zastavky, LabelCountsTheMinutesDown) {
    const int v = zastavi_v_borovci(482, 484);
    pridej_do_tabulky(v);
    const Prvek& s = relief.cislo_koleje[62];
    EXPECT_FALSE(piplo(900));
    minuta(2); // two left
    EXPECT_EQ(s.barva, barvy::cervena);
    EXPECT_EQ(s.pozadi, 0x808080);
    EXPECT_TRUE(piplo(900));
    EXPECT_FALSE(blikani.blikani_radku[0]);
    svet.pipnuti.clear();
    minuta();
    EXPECT_EQ(s.pozadi, 0x00FFFF);
    EXPECT_TRUE(blikani.blikani_radku[0]);
    EXPECT_FALSE(vlak(v).muze_jet);
    EXPECT_EQ(svet.pipnuti.size(), 1u);
    zobraz_cekani(v);
    EXPECT_EQ(svet.pipnuti.size(), 1u); // once a minute
    minuta();
    EXPECT_EQ(s.barva, barvy::cervena);
    EXPECT_EQ(s.pozadi, barvy::cerna);
    EXPECT_FALSE(s.ramecek);
    EXPECT_FALSE(blikani.blikani_radku[0]);
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).rychlost, 0);
}

TEST_F(Zastavky, CancelledStopWaitsUntilTheOperatorOrdersDeparture) {
    const int v = zastavi_v_borovci(482, 484);
    vlak(v).zastavky[1].odjezd_realny = -10;
    for (int i = 0; i < 60; ++i) {
        minuta();
        ASSERT_FALSE(vlak(v).muze_jet);
    }
    odjezd_povel(v);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, cas_min() + 1);
    EXPECT_FALSE(vlak(v).muze_jet);
    minuta();
    EXPECT_TRUE(vlak(v).muze_jet);
}

TEST_F(Zastavky, TrainWithoutALocomotiveDoesNotGo) {
    const int v = zastavi_v_borovci(482, 484);
    vlak(v).vozy = vozy_vlaku({"B", "B"});
    minuta(10);
    EXPECT_FALSE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, -10);
    EXPECT_EQ(relief.cislo_koleje[62].barva, barvy::cerna);
    EXPECT_EQ(relief.cislo_koleje[62].pozadi, barvy::cervena);
}

TEST_F(Zastavky, TrainThatEndsAtTheMainStationStays) {
    const int v = vlak_na(26, false, 77);
    zastavky(v, {2, 9}, {-3, 478}, {470, -3});
    vlak_v_cili(26, v);
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, -10);
    minuta(30);
    EXPECT_FALSE(vlak(v).muze_jet);
}

TEST_F(Zastavky, StationOutOfTheTimetableIsRunThrough) {
    const int v = vlak_na(62, true, 77);
    zastavky(v, {9, 6}, {-3, 500}, {470, -3});
    vlak(v).stanice_index = 0;
    vlak_v_cili(62, v);
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).stanice_index, 0);
    zastavky(v, {9, 2, 6}, {-3, -3, 500}, {470, 480, -3});
    vlak_v_cili(62, v); // passing point: noted, no stop
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).stanice_index, 1);
}

TEST_F(Zastavky, SearchBeginsAtTheFirstStationForAnEnteringTrain) {
    const int v = vlak_na(62, true, 77);
    zastavky(v, {2, 9}, {478, 500}, {490, -3});
    vlak(v).stanice_index = -4;
    vlak_v_cili(62, v);
    EXPECT_EQ(vlak(v).stanice_index, 0);
    EXPECT_FALSE(vlak(v).muze_jet);
}

TEST_F(Zastavky, StationThatStandsTwiceIsServedTwiceButOnceForAnArrival) {
    pridej_kolej(440);
    const int v = vlak_na(62, true, 77);
    zastavky(v, {9, 2, 6, 2}, {-3, 478, 500, 520}, {470, 481, 501, -3});
    vlak(v).stanice_index = 0;
    cesta({62, 62, {440, 62}, {1, 1}, {0, 0}, 0});
    vlak(v).prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0});
    vlak(v).prvek_konec = 1;
    vlak(v).smer = false; // no exit for this sense
    cesty[0].Umazat = 1;
    cesty[0].Vlak = static_cast<std::int16_t>(v);
    nastav_metry(62, 400);
    krok();
    EXPECT_EQ(vlak(v).stanice_index, 1);
    EXPECT_FALSE(vlak(v).muze_jet);
    EXPECT_EQ(cesty[0].zacatek, 62); // the train waits on its route
    krok();
    vlak(v).obslouzeno = 0; // as a load leaves it
    obnov_obslouzene();
    minuta();
    ASSERT_TRUE(vlak(v).muze_jet);
    krok();
    EXPECT_EQ(vlak(v).stanice_index, 1);
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(cesty[0].zacatek, -3);
    vlak_v_cili(62, v); // the next arrival
    EXPECT_EQ(vlak(v).stanice_index, 3);
}

TEST_F(Zastavky, TrainThatStartsAtTheMainStationWaitsForItsDeparture) {
    const int v = vlak_na(26, true, 77);
    zastavky(v, {9, 12}, {-3, 500}, {485, -3});
    vlak_v_cili(26, v);
    EXPECT_EQ(vlak(v).stanice_index, 0);
    EXPECT_FALSE(vlak(v).muze_jet);
    minuta(5);
    EXPECT_TRUE(vlak(v).muze_jet);
}

TEST_F(Zastavky, StopsOfTheLinesLookAtSenseAndDistance) {
    pridej_kolej(604);
    const int v = vlak_na(604, false, 77);
    zastavky(v, {3, 32}, {-3, 482}, {470, 485});
    vlak(v).stanice_index = 0;
    nastav_metry(604, 2499);
    vlak_v_cili(604, v);
    EXPECT_TRUE(vlak(v).muze_jet);
    nastav_metry(604, 2500);
    vlak_v_cili(604, v);
    EXPECT_FALSE(vlak(v).muze_jet);
    nastav_text(relief.cislo_koleje[604], "77");
    minuta(1);
    EXPECT_EQ(relief.cislo_koleje[604].pozadi, 0x808000);
    minuta(4);
    EXPECT_TRUE(vlak(v).muze_jet);
    EXPECT_EQ(vlak(v).rychlost, 5);
    EXPECT_EQ(relief.cislo_koleje[604].pozadi, barvy::cerna);
    EXPECT_EQ(relief.cislo_koleje[604].barva, barvy::bila);
}

TEST_F(Zastavky, EndTracks55And56AreNoStop) {
    EXPECT_EQ(stanice_prvku(54), 12);
    EXPECT_EQ(stanice_prvku(55), 0);
    EXPECT_EQ(stanice_prvku(56), 0);
    EXPECT_EQ(stanice_prvku(57), 12);
    EXPECT_EQ(stanice_prvku(18), 8);
    EXPECT_EQ(stanice_prvku(638), 7);
    EXPECT_EQ(stanice_prvku(0), 3);
}

TEST_F(Zastavky, MinuteStepOfTheClockLooksAtTheWaitingTrains) {
    const int v = zastavi_v_borovci(478, 481);
    EXPECT_FALSE(vlak(v).muze_jet);
    krok_minuty();
    EXPECT_TRUE(vlak(v).muze_jet);
}

TEST_F(Zastavky, StopOverMidnightDepartsInTheRunningMinutesOfTheNextDay) {
    simulace.cas_zacatku = 1437;
    const int v = vlak_na(62, true, 77);
    zastavky(v, {2, 9}, {1436, 1500}, {1442, -3});
    vlak_v_cili(62, v);
    EXPECT_EQ(vlak(v).zastavky[0].odjezd_realny, 1442);
    minuta(4);
    EXPECT_FALSE(vlak(v).muze_jet);
    minuta();
    EXPECT_EQ(cas_min(), 1442);
    EXPECT_TRUE(vlak(v).muze_jet);
}

// --- delay and journal

TEST_F(Zastavky, MinuteOfDelayCountsAsOnTime) {
    const int v = vlak_na(62, true, 77);
    const auto zpozdeni = [&](int odjezd) {
        zastavky(v, {2}, {-3}, {static_cast<std::int16_t>(odjezd)});
        spocti_zpozdeni(v, 2);
        return vlak(v).zpozdeni;
    };
    EXPECT_EQ(zpozdeni(480), 0);
    EXPECT_EQ(zpozdeni(479), 0);
    EXPECT_EQ(zpozdeni(478), 2);
    EXPECT_EQ(zpozdeni(483), -3);
    simulace.minuty_simulace = 900;
    EXPECT_EQ(zpozdeni(79), -139); // 1301
    simulace.minuty_simulace = 0;
    EXPECT_EQ(zpozdeni(1481), 439); // -1001
    vlak(v).zpozdeni = 9;
    EXPECT_EQ(zpozdeni(-3), 9);
    spocti_zpozdeni(v, 6);
    EXPECT_EQ(vlak(v).zpozdeni, 9);
}

TEST_F(Zastavky, StopForgetsThatTheTrainRanEarly) {
    const int v = vlak_na(62, true, 77);
    zastavky(v, {2}, {478}, {490});
    vlak(v).zpozdeni = -4;
    vlak_v_cili(62, v);
    EXPECT_EQ(vlak(v).zpozdeni, 0);
}

TEST_F(Zastavky, JournalTellsTheDepartureUnderTheShownNumberButInJavorinTheFirst) {
    const int v = vlak_na(62, true, 77);
    vlak(v).cislo2 = 88;
    vlak(v).cislo2_platne = true;
    vlak(v).prvky = prvky_cesty({18, 17, 26, 3, 638}, {1});
    for (int j = 0; j < 5; ++j)
        ohlas_odjezd(v, j);
    EXPECT_EQ(relief.lstDenik.radky,
              (std::vector<Text>{Text("Vlak 88 odjel z Teska Vyšního Hrabova v 8:00"_cz),
                                 Text("Vlak 88 odjel z Teska hl. n. v 8:00"_cz),
                                 Text("Vlak 77 odjel z Javořína v 8:00"_cz),
                                 Text("Vlak 88 odjel z Teska Rybnic v 8:00"_cz)}));
    vlak(v).posun = true;
    ohlas_odjezd(v, 2);
    EXPECT_EQ(relief.lstDenik.radky.size(), 4u);
}

TEST_F(Zastavky, JournalNamesTheStationOfEveryTrack) {
    struct Radek {
        int od, po;
        TextPohled text;
    };
    constexpr std::array kRadky = {
        Radek{86, 90, "Vlak 77 odjel z Lhotína v 8:00"_cz},
        Radek{62, 65, "Vlak 77 odjel z Borovce v 8:00"_cz},
        Radek{66, 69, "Vlak 77 odjel z Rokytna v 8:00"_cz},
        Radek{26, 35, "Vlak 77 odjel z Teska hl. n. v 8:00"_cz},
        Radek{9, 17, "Vlak 77 odjel z Teska Vyšního Hrabova v 8:00"_cz},
        Radek{44, 46, "Vlak 77 odjel z Teska Rybnic v 8:00"_cz},
        Radek{93, 94, "Vlak 77 odjel z Teska Rybnic v 8:00"_cz},
        Radek{96, 96, "Vlak 77 odjel z Teska Rybnic v 8:00"_cz},
        Radek{638, 638, "Vlak 77 odjel z Teska Rybnic v 8:00"_cz},
        Radek{70, 75, "Vlak 77 odjel z Teska Knížecích Luk v 8:00"_cz},
        Radek{36, 40, "Vlak 77 odjel z Teska Mokřiny v 8:00"_cz},
        Radek{41, 43, "Vlak 77 odjel z Dubnice v 8:00"_cz},
        Radek{78, 83, "Vlak 77 odjel z Teska dolního n. v 8:00"_cz},
        Radek{0, 3, "Vlak 77 odjel z Javořína v 8:00"_cz},
    };
    const int v = vlak_na(62, true, 77);
    for (int n = 0; n <= kNejvyssiPrvek; ++n) {
        relief.lstDenik.radky.clear();
        vlak(v).prvky = prvky_cesty({static_cast<std::int16_t>(n)}, {1});
        ohlas_odjezd(v, 0);
        const auto radek = std::find_if(kRadky.begin(), kRadky.end(),
                                        [n](const Radek& r) { return n >= r.od && n <= r.po; });
        EXPECT_EQ(relief.lstDenik.radky,
                  radek == kRadky.end() ? std::vector<Text>{} : std::vector<Text>{Text(radek->text)})
            << n;
    }
}

TEST_F(Zastavky, TailOverACrossingThatNotHasOpenedLeavesItsCounterAtRest) {
    const int v = vlak_na(62, true, 77);
    vlak(v).prvky = prvky_cesty({427, 280}, {1});
    stanicni_prejezdy[0].pocet = 129;
    stanicni_prejezdy[1].pocet = 130;
    prejezd_not(1);
    ohlas_odjezd(v, 0);
    ohlas_odjezd(v, 1);
    EXPECT_EQ(stanicni_prejezdy[0].pocet, kBezVlaku);
    EXPECT_EQ(stanicni_prejezdy[1].pocet, kBezVlaku);
    EXPECT_TRUE(prejezd_v_klidu(1));
}

// --- number and direction

TEST_F(Zastavky, SecondNumberTakesOverAtItsStation) {
    const int v = vlak_na(62, true, 77);
    Vlak& t = vlak(v);
    zastavky(v, {9, 2, 6}, {-3, -3, 500}, {470, 480, -3});
    t.stanice_index = 0;
    t.cislo2 = 8888;
    t.druh2 = 5;
    t.stanice_zmeny = 2;
    pridej_do_tabulky(v);
    nastav_text(relief.cislo_koleje[640], " 77 ");
    vlak_v_cili(62, v);
    EXPECT_TRUE(t.cislo2_platne);
    EXPECT_EQ(stitek(62), "8888");
    EXPECT_EQ(relief.cislo_koleje[640].text(), " 8888 ");
    EXPECT_EQ(radek_tabulky(77), -1);
    EXPECT_EQ(radek_tabulky(8888), 0);
    EXPECT_EQ(relief.lblTabulka_vlaku[0].text().substr(0, 11), "R   8888   ");
}

TEST_F(Zastavky, TrainTurnsWhereItsWayRunsBack) {
    const int v = vlak_na(26, true, 77, {"754", "B", "B"});
    zastavky(v, {9, 3}, {-3, 500}, {470, -3});
    otoc_podle_stanic(v); // none served yet: the first two
    EXPECT_FALSE(vlak(v).smer);
    EXPECT_EQ(vlak(v).vozy.back().rada, "754");
    otoc_podle_stanic(v);
    EXPECT_FALSE(vlak(v).smer);
    vlak(v).stanice_index = 1; // no next station
    otoc_podle_stanic(v);
    EXPECT_FALSE(vlak(v).smer);
    zastavky(v, {15, 7}, {-3, 500}, {470, -3});
    otoc_podle_stanic(v);
    EXPECT_TRUE(vlak(v).smer);
}

// --- locomotives at the stops

TEST_F(Zastavky, LocomotiveOfAnotherSeriesComesOffAtTheMainStation) {
    const int v = vlak_na(26, true, 77, {"754", "B", "B"});
    zastavky(v, {2, 9, 12}, {-3, 478, 500}, {470, 490, -3});
    vlak(v).stanice_index = 0;
    vlak(v).loko_rada2 = 363;
    vlak(v).delka = 70;
    vlak_v_cili(26, v);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), (std::vector<Text>{"B", "B"}));
    EXPECT_EQ(vlak(v).zastavky[1].odjezd_realny, -10);
    EXPECT_EQ(vlak(v).cislo, 77);
    EXPECT_EQ(vlak(v).stanice_index, 1); // a through train keeps its timetable
    const int loko = koleje_vlaky.back().vlaky.back();
    EXPECT_EQ(rady_vozu(vlak(loko).vozy), std::vector<Text>{"754"});
    EXPECT_TRUE(vlak(loko).posun);
}

TEST_F(Zastavky, LocomotiveStaysWithoutAChangeAndForTheBranch) {
    const int v = vlak_na(26, true, 77, {"754", "B"});
    zastavky(v, {2, 9, 12}, {-3, 478, 500}, {470, 490, -3});
    vlak_v_cili(26, v);
    EXPECT_EQ(vlak(v).vozy.size(), 2u);
    vlak(v).loko_rada2 = 363;
    nastav_urceni(vlak(v).vozy, {"VH", ""});
    vlak(v).stanice_index = 0;
    vlak_v_cili(26, v);
    EXPECT_EQ(vlak(v).vozy.size(), 2u);
}

TEST_F(Zastavky, HajoviceTakesTheLocomotiveFromTheHead) {
    pridej_kolej(47);
    const int v = vlak_na(47, false, 77, {"754", "B"});
    zastavky(v, {2, 9, 12}, {-3, 478, 482}, {470, 490, 500});
    vlak(v).stanice_index = 1;
    vlak(v).loko_rada2 = 754;
    vlak_v_cili(47, v);
    EXPECT_EQ(vlak(v).vozy.size(), 2u);
    vlak(v).stanice_index = 1;
    vlak(v).loko_rada2 = 363;
    vlak_v_cili(47, v);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), std::vector<Text>{"B"});
}

TEST_F(Zastavky, LowerStationDetachesTheLocomotiveThatMustRunRound) {
    pridej_kolej(78);
    const int v = vlak_na(78, false, 77, {"754", "B"});
    zastavky(v, {12, 15, 7}, {-3, 478, 500}, {470, 490, -3});
    vlak(v).stanice_index = 0;
    vlak_v_cili(78, v);
    EXPECT_EQ(rady_vozu(vlak(v).vozy), std::vector<Text>{"B"});
    EXPECT_TRUE(vlak(v).smer); // and the way on runs back
}

TEST_F(Zastavky, LowerStationDetachesWhateverLeadsATrainThatGoesOnTheOtherWayRound) {
    pridej_kolej(78);
    const auto po_zastavce = [&](int dalsi, bool smer) {
        const int v = vlak_na(78, smer, 77, {"B", "754", "C"});
        zastavky(v, {12, 15, static_cast<std::uint8_t>(dalsi)}, {-3, 478, 500}, {470, 490, -3});
        vlak(v).stanice_index = 0;
        vlak_v_cili(78, v);
        const std::size_t vozu = vlak(v).vozy.size();
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
        return vozu;
    };
    EXPECT_EQ(po_zastavce(7, false), 2u); // a coach
    EXPECT_EQ(po_zastavce(8, true), 1u);  // with the locomotive behind it
    EXPECT_EQ(po_zastavce(7, true), 3u);  // goes on straight
}

TEST_F(Zastavky, SetAtItsPlannedPlatformBecomesTheTrain) {
    const int v = vlak_na(26, true, 5000, {"843", "943"});
    Vlak& t = vlak(v);
    t.posun = true;
    zastavky(v, {9, 12}, {-3, 520}, {490, -3});
    vlak_v_cili(26, v);
    EXPECT_TRUE(vlak(v).posun); // without a working instruction nothing happens
    t.pokyn = "K26";
    t.stanice_index = 0;
    vlak_v_cili(26, v);
    EXPECT_FALSE(vlak(v).posun);
    EXPECT_FALSE(vlak(v).muze_jet); // it waits for 8:10
    EXPECT_GE(radek_tabulky(5000), 0);
    EXPECT_EQ(stitek(26), "5000");
}

TEST_F(Zastavky, ChangeDemandedByTheTimetableHoldsTheTrain) {
    const int v = vlak_na(26, true, 77, {"754", "B", "B"});
    zastavky(v, {2, 9, 12}, {-3, 478, 500}, {470, 490, -3});
    Vlak& t = vlak(v);
    t.priznaky = 1;
    t.stanice_index = 0;
    EXPECT_TRUE(muze_tahnout(v)); // no such station yet
    t.stanice_index = 1;
    EXPECT_FALSE(muze_tahnout(v));
    t.vozy = vozy_vlaku({"754", "363", "B"});
    EXPECT_TRUE(muze_tahnout(v));
    t.priznaky = 2;
    EXPECT_FALSE(muze_tahnout(v));
    t.vozy = vozy_vlaku({"754", "B", "363"});
    EXPECT_TRUE(muze_tahnout(v));
    t.stanice_index = -4;
    EXPECT_TRUE(muze_tahnout(v));
}
