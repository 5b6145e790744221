// testy/gvd/soupravy_test.cpp - locomotives and sets out of the depots.
#include "gvd/provoz.h"
#include "gvd/soupravy.h"
#include "gvd/zaplneni.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"

#include <gtest/gtest.h>

namespace {

using Texty = std::vector<Text>;
using Prvky = std::vector<std::int16_t>;

class Soupravy : public SProvozem {
protected:
    Soupravy() { simulace.minuty_simulace = 0; }

    static void depo() { koleje({503, 509, 510, 558, 559, 560}); }
};

// --- locomotives

TEST_F(Soupravy, LocomotiveTakesTheFirstFreeTrackOfTheDepot) {
    depo();
    obsad(558);
    vytvor_lokomotivu(754, 0, false, "4701", true);
    const Vlak& v = vlaky[0];
    EXPECT_EQ(cisla_prvku(v.prvky), Prvky{559});
    EXPECT_EQ(barva(559), barvy::cervena);
    EXPECT_EQ(relief.kolej[559].stav, "200");
    EXPECT_EQ(v.druh, 16);
    EXPECT_EQ(v.delka, 20);
    EXPECT_EQ(v.max_rychlost, 80);
    EXPECT_EQ(v.rychlost_trati, 80);
    EXPECT_EQ(v.rychlost, 0);
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::stanice), (std::vector<std::uint8_t>{34, 9}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::prijezd), (Prvky{-3, 607}));
    EXPECT_EQ(sloupec(v.zastavky, &Zastavka::odjezd), (Prvky{600, -3}));
    EXPECT_EQ(urceni_vozu(v.vozy), Texty{"4701"});
    EXPECT_EQ(stav_provozu.pocet_zaloh, 0);
    EXPECT_FALSE(stav_provozu.zaloha_731_jede);
}

TEST_F(Soupravy, FullDepotLeavesALocomotiveOnNoTrack) {
    depo();
    koleje({0});
    for (const int n : {503, 509, 510, 558, 559, 560})
        obsad(n);
    vytvor_lokomotivu(731, 0, false, "ZAL", true);
    EXPECT_EQ(cisla_prvku(vlaky[0].prvky), Prvky{0});
    EXPECT_EQ(barva(0), barvy::seda);
    EXPECT_FALSE(drzi_jiny(0, kZadny)); // the station track of that number is free for trains
    EXPECT_EQ(koleje_vlaky.size(), 1u);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
}

TEST_F(Soupravy, WithoutAFreeRecordNoLocomotiveIsMade) {
    depo();
    for (Vlak& v : vlaky)
        v.cislo = 5;
    vytvor_lokomotivu(731, 0, false, "ZAL", true);
    EXPECT_EQ(vlaky.size(), 51u);
    EXPECT_EQ(stav_provozu.pocet_zaloh, 0);
}

TEST_F(Soupravy, LocomotiveThatRunsAsATrainShowsItsNumber) {
    depo();
    vytvor_lokomotivu(754, 503, true, "DKV", false);
    EXPECT_EQ(cislo_na(503), text_cisla(vlaky[0].cislo));
}

TEST_F(Soupravy, LocomotiveWaitsForASetThatIsStillToCome) {
    depo();
    GvdVlak drivejsi = radek(4702, {{8, -1, 500}, {9, 560, -1}});
    drivejsi.navazny_vlak = "4703";
    pridej(drivejsi);
    pridej(radek(4703, {{8, -1, 700}, {9, 720, -1}})); // comes to the main station after the start
    soupravy_do_depa(600);
    ASSERT_EQ(pocet_vlaku(), 1);
    EXPECT_EQ(urceni_vozu(vlaky[0].vozy), Texty{"4703"});
    EXPECT_EQ(vlaky[0].loko_rada, 754);

    vlaky = prvni_vlaky();
    relief.kolej[558].barva = barvy::seda;
    zmen_radek_gvd(1, [](GvdVlak& g) {
        zmen_stanice(g.zastavky, {8, 1});
    }); // it does not come there, and no train hands it a set
    soupravy_do_depa(600);
    EXPECT_EQ(pocet_vlaku(), 0);
    GvdVlak predava = radek(4750, {{8, -1, 650}, {9, 660, -1}});
    predava.vozy_vlaky = {0, 4703, 0};
    pridej(predava);
    soupravy_do_depa(600);
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(Soupravy, SetNumbersThatAreNoTrainMakeNoLocomotive) {
    depo();
    for (const TextPohled text : {"", "ZAL", "0", "-4703", "4799"}) {
        GvdVlak r = radek(4702, {{8, -1, 500}, {9, 560, -1}});
        r.navazny_vlak = text;
        gvd_vlaky = TabulkaGvd({r, radek(4703, {{8, -1, 700}, {9, 720, -1}})});
        soupravy_do_depa(600);
    }
    EXPECT_EQ(pocet_vlaku(), 0);
}

// --- sets

class KontrolaSoupravy : public Soupravy {
protected:
    KontrolaSoupravy() {
        vlaky[2].cislo = 1700;
        vlaky[2].loko_rada = 754;
        vlaky[2].vozy = vozy_vlaku({"754", "Bp"}, {"", ""});
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
    vlaky[2].vozy = vozy_vlaku({"754"});
    EXPECT_EQ(kontrola(1700), kVolno); // locomotives alone are no set
}

TEST_F(KontrolaSoupravy, LocomotiveForTheNumberBlocksAndVehiclesAreCounted) {
    nastav_urceni(vlaky[2].vozy, {"", "1800"});
    EXPECT_EQ(kontrola(1800), kVozy);
    nastav_urceni(vlaky[2].vozy, {"1800", ""});
    EXPECT_EQ(kontrola(1800), kNelze);
    nastav_urceni(vlaky[2].vozy, {"ZAL", "x1800"});
    EXPECT_EQ(kontrola(1800), kVolno);
}

TEST_F(KontrolaSoupravy, OnlyDeparturesOfTheNextThreeQuartersOfAnHourCount) {
    for (const int m : {-5, 0, 1, 44, 45, 60}) {
        GvdVlak r = radek(5, {{8, -1, static_cast<std::int16_t>(630 + m)}, {9, 900, -1}});
        r.vozy_vlaky = {0, 1800, 0};
        gvd_vlaky = TabulkaGvd({r});
        EXPECT_EQ(kontrola(1800), (m == 1 || m == 44 ? kNelze : kVolno)) << m;
        zmen_radek_gvd(0, [](GvdVlak& g) {
            g.vozy_vlaky = {1800, 0, 0};
            g.navazny_vlak = "1800";
        });
        EXPECT_EQ(kontrola(1800), (m == 1 || m == 44 ? kVozy : kVolno)) << m;
        zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 2; });
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
    zmen_radek_gvd(1, [](GvdVlak& g) { g.vozy = {"754"}; });
    EXPECT_TRUE(souprava_pripravena(0, 639)); // a lone vehicle hands nothing on
}

// --- the start at the main station

class StaniceStart : public Soupravy {
protected:
    StaniceStart() {
        koleje({538, 569});
        stav_provozu.zaloha_731_jede = true; // no other locomotive comes meanwhile
    }
    static void vlak_z_tesku(std::uint8_t cil) {
        pridej(radek(
            1702,
            {{9, -1, 655}, {cil == 1 ? std::uint8_t{24} : std::uint8_t{12}, 680, 681}, {cil, 700, -1}}));
    }
};

TEST_F(StaniceStart, SetComesOutOfTheDepotAsAShuntingMovement) {
    vlak_z_tesku(2);
    stanice_start(0);
    const Vlak* v = najdi(1702);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(cisla_prvku(v->prvky), Prvky{538});
    EXPECT_TRUE(v->posun);
    EXPECT_TRUE(v->smer);
    EXPECT_EQ(barva(538), barvy::cervena);
    EXPECT_EQ(relief.kolej[538].stav, "600");
    EXPECT_EQ(koleje_vlaky.back().prvek, 538);
    // no other set at hand: the shunting locomotive joins behind the locomotive's train
    EXPECT_EQ(rady_vozu(v->vozy), (Texty{"754", "Bp", "A", "210"}));
    EXPECT_EQ(urceni_vozu(v->vozy), (Texty{"1702", "1702", "1702", "ZAL"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);
    stanice_start(0); // not a second time
    EXPECT_EQ(pocet_vlaku(), 1);
}

TEST_F(StaniceStart, SetsToTheOtherSideComeOutOf569) {
    vlak_z_tesku(1);
    stanice_start(0);
    EXPECT_EQ(cisla_prvku(najdi(1702)->prvky), Prvky{569});
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
    vlaky[5].vozy = vozy_vlaku({"754", "Bp"}, {"", "1702"});
    stanice_start(0);
    EXPECT_EQ(rady_vozu(najdi(1702)->vozy), (Texty{"Bp", "A", "210"}));
    EXPECT_EQ(urceni_vozu(najdi(1702)->vozy), (Texty{"1702", "1702", "ZAL"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 1);

    zmen_radek_gvd(0, [](GvdVlak& g) { zmen_stanice(g.zastavky, {9, 24, 1}); });
    najdi(1702)->cislo = -3;
    stanice_start(0);
    EXPECT_EQ(cisla_prvku(najdi(1702)->prvky), Prvky{569});
    EXPECT_EQ(rady_vozu(najdi(1702)->vozy), (Texty{"210", "Bp", "A"}));
    EXPECT_EQ(urceni_vozu(najdi(1702)->vozy), (Texty{"ZAL", "1702", "1702"}));
}

TEST_F(StaniceStart, SingleVehicleAtHandIsNotBroughtOut) {
    vlak_z_tesku(2);
    zmen_radek_gvd(0, [](GvdVlak& g) {
        g.vozy = {"810"};
        g.vozy_vlaky = {0};
    });
    vlaky[5].cislo = 1800;
    vlaky[5].vozy = vozy_vlaku({"Bp"}, {"1702"});
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

class ObratSoupravy : public Soupravy {
protected:
    static Texty po_vytvoreni(const std::vector<std::uint8_t>& stanice, std::int16_t rada = 754,
                              const Texty& vozy = {"754", "Bp"}) {
        Vlak v;
        v.zastavky = zastavky_vlaku(stanice);
        v.loko_rada = rada;
        v.vozy = vozy_vlaku(vozy, vozy, vozy);
        vlaky[0] = v;
        posun_po_vytvoreni(0);
        EXPECT_EQ(rady_vozu(vlaky[0].vozy), urceni_vozu(vlaky[0].vozy));
        return rady_vozu(vlaky[0].vozy);
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
    vlaky[0].vozy = vozy_vlaku({"Bp", "754"});
    pridej_posunovou(0);
    EXPECT_EQ(rady_vozu(vlaky[0].vozy), (Texty{"210", "Bp", "754"}));
    EXPECT_EQ(vlaky[0].vozy[0].urceni, "ZAL");
    pridej_posunovou(0);
    EXPECT_EQ(rady_vozu(vlaky[0].vozy), (Texty{"210", "Bp", "754", "210"}));
    EXPECT_EQ(stav_provozu.pocet_zaloh, 2);
}

} // namespace
