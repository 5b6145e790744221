// testy/app/casovace_test.cpp - the simulated clock, its minutes and its days.
#include "app/cas.h"
#include "app/casovace.h"
#include "cesty/cesta.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zastavky.h"
#include "prvky/stanicni_prejezdy.h"
#include "prvky/stav_vyhybek.h"
#include "relief/relief.h"
#include "save/ulozeni.h"
#include "zaklad/chyba.h"

#include <array>

namespace {

class Hodiny : public SPlatformou {
protected:
    void SetUp() override {
        nastav("12:00:00");
        spust_hodiny();
    }
    void nastav(TextPohled cas) { nastav_cas(cas); }
    const Text& cas() { return relief.lblcas[0].text; }
    void krok(int ms) {
        svet.posun_ms(ms);
        krok_hodin();
    }
};

TEST_F(Hodiny, StandWhileNotAWholeSimulatedSecondHasPassed) {
    krok(999);
    EXPECT_EQ(cas(), "12:00:00");
    krok(1);
    EXPECT_EQ(cas(), "12:00:01");
}

TEST_F(Hodiny, StandInAPause) {
    simulace.pauza = true;
    krok(5000);
    EXPECT_EQ(cas(), "12:00:00");
}

TEST_F(Hodiny, StandAtSpeedZero) {
    simulace.rychlost = 0;
    krok(5000);
    EXPECT_EQ(cas(), "12:00:00");
}

TEST_F(Hodiny, CarryAtMostSixMilliseconds) {
    krok(1050);
    EXPECT_EQ(simulace.tick_hodin, svet.tik - 6);
    spust_hodiny();
    krok(1004);
    EXPECT_EQ(simulace.tick_hodin, svet.tik - 4);
}

TEST_F(Hodiny, RoundHalfASecondToTheEvenOne) {
    krok(1500); // 1.5 -> 2
    EXPECT_EQ(cas(), "12:00:02");
    spust_hodiny();
    krok(2500); // 2.5 -> 2
    EXPECT_EQ(cas(), "12:00:04");
}

TEST_F(Hodiny, RunASecondPerStepAtSpeedEight) {
    simulace.rychlost = 8;
    for (int i = 0; i < 100; ++i)
        krok(150);
    EXPECT_EQ(cas(), "12:01:40");
    EXPECT_EQ(simulace.minuty_simulace, 1);
}

TEST_F(Hodiny, LoseWhatExceedsTheCarryAtSpeedOne) {
    for (int i = 0; i < 400; ++i) // a minute of steps of 150 ms
        krok(150);
    EXPECT_LT(sekundy_textu(cas()), 12 * 3600 + 60);
    EXPECT_GT(sekundy_textu(cas()), 12 * 3600 + 50);
}

TEST_F(Hodiny, StallAddsAllSecondsButOneMinuteStep) {
    simulace.rychlost = 4;
    krok(200'000);
    EXPECT_EQ(cas(), "12:13:20");
    EXPECT_EQ(simulace.minuty_simulace, 1);
    EXPECT_EQ(simulace.tick_hodin, svet.tik - 6);
}

TEST_F(Hodiny, StallOfAMinuteDoesNotOverflowTheCarry) {
    krok(60'000);
    EXPECT_EQ(cas(), "12:01:00");
    EXPECT_EQ(simulace.tick_hodin, svet.tik - 6);
}

TEST_F(Hodiny, RunOnWhenTheTickCounterWraps) {
    svet.tik = 2147483000;
    spust_hodiny();
    svet.tik = static_cast<std::int32_t>(2147483000u + 1000u);
    krok_hodin();
    EXPECT_EQ(cas(), "12:00:01");
}

TEST_F(Hodiny, PauseOfAnHourAddsNothing) {
    zastav_hodiny();
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
    krok(3'600'000);
    spust_hodiny();
    EXPECT_FALSE(relief.lblPauza[0].viditelny);
    krok(150);
    EXPECT_EQ(cas(), "12:00:00");
    EXPECT_EQ(simulace.tick_jizdy, svet.tik - 150);
}

TEST_F(Hodiny, TwinShowsTheSameTimeWithTwoMonitors) {
    simulace.dva_monitory = true;
    relief.lblcas.zaloz(1);
    krok(1000);
    EXPECT_EQ(relief.lblcas[1].text(), "12:00:01");
}

TEST_F(Hodiny, MinuteStepComesWhenTheMinuteChanges) {
    nastav("12:00:58");
    krok(1000);
    EXPECT_EQ(simulace.minuty_simulace, 0);
    krok(1000);
    EXPECT_EQ(simulace.minuty_simulace, 1);
    EXPECT_EQ(relief.lblcas_od_zacatku[0].text(), "1");
}

TEST_F(Hodiny, MidnightShowsTheNextDayAndNoDate) {
    relief.lblDEN[0].text = TextPohled("pondělí"_cz);
    simulace.den = 1;
    nastav("23:59:59");
    krok(1000);
    EXPECT_EQ(cas(), "0:00:00");
    EXPECT_EQ(simulace.den, 2);
    EXPECT_EQ(relief.lblDEN[0].text(), "úterý"_cz);
}

TEST_F(Hodiny, OrdersOfTheTwoSecondsBeforeAStartAtMidnightKeepTheirTerms) {
    simulace.cas_zacatku = -1;
    nastav("23:59:58");
    cesty = {Cesta{}, Cesta{}};
    cesty[0].cas_stavby = 86398 + 2;
    cesty[0].Kdy_prehoz = 86398 + 7;
    cesty[1].cas_ruseni = 86398;
    stanicni_prejezdy[0].cas = 86398 + 40;
    stav_vyhybek.prehoz_cas = 86398 + 3;
    krok(2000);
    EXPECT_EQ(cas(), "0:00:00");
    EXPECT_EQ(ted_s(), 0);
    EXPECT_EQ(cesty[0].cas_stavby, 1); // due at once: 0 would mean none
    EXPECT_EQ(cesty[0].Kdy_prehoz, 5);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    EXPECT_EQ(cesty[1].cas_ruseni, 1);
    EXPECT_EQ(stanicni_prejezdy[0].cas, 38);
    EXPECT_EQ(stanicni_prejezdy[1].cas, -3);
    EXPECT_EQ(stav_vyhybek.prehoz_cas, 1);
    krok(60'000);
    EXPECT_EQ(cesty[0].Kdy_prehoz, 5) << "at every other minute terms stay";
}

TEST_F(Hodiny, TrafficOfTheFirstMinuteBelongsToTheOldDay) {
    GvdVlak nedelni;
    nedelni.zastavky = zastavky_radku({27, 12}, {0, 20}, {0, -1});
    nedelni.cislo = 601;
    nedelni.dny = 64;
    nedelni.vozy = {"742"};
    nedelni.vozy_vlaky = {0};
    GvdVlak pondelni = nedelni;
    pondelni.cislo = 602;
    pondelni.dny = 1;
    gvd_vlaky = TabulkaGvd({pondelni, nedelni});
    relief.kolej.zaloz(55).barva = barvy::seda;
    relief.kolej.zaloz(56).barva = barvy::seda;
    simulace.den = 64;
    nastav("23:59:59");
    krok(1000);
    EXPECT_EQ(vlaky[0].cislo, 601);
    EXPECT_EQ(vlaky[1].cislo, 0);
    EXPECT_EQ(simulace.den, 1);
}

TEST_F(Hodiny, WeekGoesRound) {
    const std::array<TextPohled, 7> dny = {"úterý"_cz,  "středa"_cz, "čtvrtek"_cz, "pátek"_cz,
                                           "sobota"_cz, "neděle"_cz, "pondělí"_cz};
    simulace.den = 1;
    for (int i = 0; i < 7; ++i) {
        nastav("0:00:00");
        krok_minuty();
        EXPECT_EQ(simulace.den, 1 << ((i + 1) % 7));
        EXPECT_EQ(relief.lblDEN[0].text(), dny[static_cast<std::size_t>(i)]);
    }
}

TEST_F(Hodiny, StallThatSkipsMidnightChangesNoDay) {
    simulace.den = 1;
    nastav("23:59:00");
    krok(120'000);
    EXPECT_EQ(cas(), "0:01:00");
    EXPECT_EQ(simulace.den, 1);
}

TEST_F(Hodiny, TooManyPlayedMinutesAreAnErrorAndDoNotWrap) {
    simulace.minuty_simulace = 32767;
    try {
        krok_minuty();
        FAIL();
    } catch (const BehovaChyba& chyba) {
        EXPECT_EQ(chyba.kod, KodChyby::preteceni);
    }
}

TEST_F(Hodiny, ServiceIsToldToEndADayBeforeItsLastMinute) {
    simulace.cas_zacatku = 1000;
    const auto zbyva = [](int minut) {
        simulace.minuty_simulace = static_cast<std::int16_t>(32767 - 1001 - minut);
    };
    zbyva(1442);
    nastav("12:00:00");
    krok_minuty();
    EXPECT_FALSE(prikaz_radek.obsazen);
    krok_minuty();
    EXPECT_EQ(minut_do_konce_sluzby(), 1440);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " POZOR ");
    EXPECT_NE(relief.lblVolba[0].text->find("za den skončit"_cz), Text::npos);
    potvrd_prikaz();
    krok_minuty();
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Hodiny, LastMinuteOfTheServiceStopsTheClockAndOffersTheSave) {
    simulace.cas_zacatku = 1000;
    simulace.minuty_simulace = 32767 - 1001 - 1;
    simulace.cesta_aplikace = svet.cesta();
    nastav("12:00:59");
    svet.soubory = {svet.cesta() + "save\\posledni.sim"};
    krok(1000);
    EXPECT_EQ(cas(), "12:01:00");
    EXPECT_EQ(minut_do_konce_sluzby(), 0);
    ASSERT_EQ(svet.otazky.size(), 1u);
    EXPECT_NE(svet.otazky[0].find("uložit"_cz), Text::npos);
    EXPECT_FALSE(svet.precti("save/posledni.sim").empty());
    EXPECT_TRUE(simulace.pauza) << "also behind the save";
    for (int i = 0; i < 3; ++i) { // ending the pause leads nowhere
        svet.odpovedi = {false};
        spust_hodiny();
        for (int s = 0; s < 60; ++s)
            krok(1000);
        EXPECT_EQ(cas(), "12:01:59");
        EXPECT_TRUE(simulace.pauza);
        EXPECT_EQ(svet.otazky.size(), static_cast<std::size_t>(2 + i));
    }
    EXPECT_FALSE(svet.konec);
}

TEST_F(Hodiny, PeriodicSaveComesAtMultiplesOfThePlayedMinutes) {
    simulace.autosave = true;
    simulace.autosave_minut = 7;
    for (int minuta = 1; minuta <= 30; ++minuta) {
        simulace.minuty_simulace = static_cast<std::int16_t>(minuta);
        EXPECT_EQ(je_cas_ulozit(), minuta % 7 == 0) << minuta;
    }
    simulace.minuty_simulace = 14;
    simulace.autosave = false;
    EXPECT_FALSE(je_cas_ulozit());
}

TEST_F(Hodiny, PeriodOfNoMinutesNeverSaves) {
    simulace.autosave = true;
    simulace.autosave_minut = 0;
    EXPECT_FALSE(je_cas_ulozit());
}

TEST_F(Hodiny, PeriodicSaveIsNamedByWallClockAndSimulatedTime) {
    svet.cas = {2026, 3, 7, 9, 5, 2, 0};
    nastav("6:04:30");
    simulace.cesta_aplikace = "C:\\TESK\\";
    EXPECT_EQ(soubor_autosave(), "C:\\TESK\\save\\autosave\\autosave_260307_090502_060430.sim");
}

TEST_F(Hodiny, SignalOnWhichThePointerRestsComesToThePanel) {
    relief.navestidlo.zaloz(262).popis = TextPohled("BOR S262");
    najeti(Druh::navestidlo, 262);
    krok(1300);
    EXPECT_EQ(simulace.detail_navestidlo, -3);
    krok(100);
    EXPECT_EQ(simulace.detail_navestidlo, 262);
}

TEST_F(Hodiny, PointerThatMovesShowsNothing) {
    relief.navestidlo.zaloz(262);
    najeti(Druh::navestidlo, 262);
    for (int i = 0; i < 10; ++i) {
        krok(1000);
        pohyb_mysi();
    }
    EXPECT_EQ(simulace.detail_navestidlo, -3);
}

TEST_F(Hodiny, RestOfThePointerIsCountedAnewAtMidnightOfTheWallClock) {
    relief.navestidlo.zaloz(262);
    svet.cas = {2026, 1, 5, 23, 59, 59, 900};
    najeti(Druh::navestidlo, 262);
    krok(1000); // 0:00:00.9
    EXPECT_EQ(simulace.detail_navestidlo, -3);
    krok(500);
    EXPECT_EQ(simulace.detail_navestidlo, 262);
}

TEST_F(Hodiny, TimersRunClockFirstThenRoutesThenBlinkingAndTheDispatcherLast) {
    ASSERT_EQ(casovace.size(), 5u);
    EXPECT_EQ(casovace.front().jmeno, "tmrHodiny");
    EXPECT_EQ(casovace.front().perioda_ms, 150);
    EXPECT_EQ(casovace[2].jmeno, "tmrVolby");
    EXPECT_EQ(casovace[2].perioda_ms, 1100);
    EXPECT_EQ(casovace[3].jmeno, "tmrBlikani");
    EXPECT_EQ(casovace[3].perioda_ms, 500);
    EXPECT_EQ(casovace.back().jmeno, "tmrVypravci");
    EXPECT_EQ(casovace.back().perioda_ms, 1000);
}

TEST_F(Hodiny, TimersDoNothingInAPause) {
    zastav_hodiny();
    simulace.pn_bezi = true;
    svet.posun_ms(60'000);
    const Relief pred = relief;
    for (const Casovac& c : casovace)
        c.telo();
    EXPECT_EQ(relief, pred);
    EXPECT_TRUE(svet.pipnuti.empty());
}

} // namespace
