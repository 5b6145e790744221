// testy/vypravci/jizdy_test.cpp - what the automatic dispatcher does with trains.
#include "cesty/cesta.h"
#include "cesty/navest.h"
#include "cesty/prehoz_rukou.h"
#include "cesty/zasobnik.h"
#include "desk/stitky.h"
#include "obsluha/vyber.h"
#include "relief/relief.h"
#include "uzel/trate.h"
#include "vypravci/jizdy.h"
#include "vypravci/pohled.h"
#include "vypravci/svet_vypravciho.h"

namespace {

using namespace dopravna;

class VypravciJizdy : public SVypravcim {
protected:
    // From Lhotín to Rokytno through the main station.
    GvdVlak& z_lhotina(std::int32_t cislo, std::int16_t m) {
        const auto t = [m](int za) { return static_cast<std::int16_t>(m + za); };
        GvdVlak& r = motorak(cislo, {lhotin, vysni_hrabov, tesk, rybnice, knizeci_luka, rokytno},
                             {-1, t(6), t(13), t(25), t(32), t(42)}, {t(0), t(7), t(17), t(26), t(33), -1});
        r.kolej = "2";
        return r;
    }
    static bool je_kolej_lhotina(int e) { return e >= 86 && e <= 90; }
};

} // namespace

TEST_F(VypravciJizdy, TrainRunsThroughTheJunctionWithoutAnotherHandAndWithoutDelay) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej();
    int nejvic = 0;
    bool byl = false;
    sekund(55 * 60, [&] {
        if (const Vlak* v = najdi(101)) {
            byl = true;
            nejvic = std::max<int>(nejvic, v->zpozdeni);
        }
    });
    EXPECT_TRUE(byl);
    EXPECT_EQ(najdi(101), nullptr);
    EXPECT_LE(nejvic, 1);
    EXPECT_TRUE(std::any_of(relief.lstDenik.radky.begin(), relief.lstDenik.radky.end(),
                            [](const Text& t) { return t.find("Vlak 101 odjel z Teska Kn") != Text::npos; }));
    EXPECT_GT(stav_vypravciho.vety.size(), 5u);
}

TEST_F(VypravciJizdy, StackThatHeTurnedToPvIsRemembered) {
    z_lhotina(101, 485);
    zacni(8, 0);
    ASSERT_TRUE(plati_vz());
    vypravci::predej();
    sekund(10 * 60);
    EXPECT_FALSE(plati_vz());
    EXPECT_TRUE(stav_vypravciho.prepnul_pv);
    vypravci::vezmi();
    EXPECT_FALSE(plati_vz());
    EXPECT_FALSE(stav_vypravciho.prepnul_pv);
    vypravci::predej();
    sekund(60);
    EXPECT_FALSE(stav_vypravciho.prepnul_pv) << "it stood at PV when he came";
}

TEST_F(VypravciJizdy, NobodyMovesWhileTheDeskIsTheOperators) {
    z_lhotina(101, 485);
    zacni(8, 0);
    sekund(10 * 60);
    ASSERT_NE(najdi(101), nullptr);
    EXPECT_EQ(cesty.front().zacatek, -3);
    EXPECT_TRUE(stav_vypravciho.vety.empty());
}

TEST_F(VypravciJizdy, DepartureRouteIsOrderedJustBeforeItIsNeeded) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej();
    int prvni = 0;
    sekund(6 * 60, [&] {
        if (prvni == 0 && cesty.front().zacatek >= 0)
            prvni = cas_hodin();
    });
    EXPECT_GE(prvni, 8 * 3600 + 5 * 60 - 75);
    EXPECT_LT(prvni, 8 * 3600 + 5 * 60);
    EXPECT_TRUE(najdi(101)->muze_jet);
}

TEST_F(VypravciJizdy, OfTwoTrainsAgainstEachOtherOnASingleLineOneWaitsWhereItCanBePassed) {
    GvdVlak& ven = motorak(201, {vrbice, tesk, kamenec, mokrina, dubnice}, {-1, 488, 500, 505, 512},
                           {480, 492, 501, 506, -1});
    ven.kolej = "3";
    GvdVlak& domu = motorak(202, {dubnice, mokrina, kamenec, tesk, vrbice}, {-1, 493, 499, 508, 518},
                            {488, 494, 500, 512, -1});
    domu.kolej = "4";
    zacni(7, 55);
    vypravci::predej();
    bool cekal = false, na_trati = false;
    sekund(75 * 60, [&] {
        const Vlak *a = najdi(201), *b = najdi(202);
        const bool a118 = a != nullptr && drzi_prvek(*a, uzel::kKamenec);
        const bool b118 = b != nullptr && drzi_prvek(*b, uzel::kKamenec);
        ASSERT_FALSE(a118 && b118);
        na_trati = na_trati || a118 || b118;
        for (const std::int32_t cislo : {201, 202})
            cekal = cekal || ceka(cislo).find("Kamenec") != std::string::npos;
    });
    EXPECT_TRUE(na_trati);
    EXPECT_TRUE(cekal);
    EXPECT_EQ(najdi(201), nullptr);
    EXPECT_EQ(najdi(202), nullptr);
}

TEST_F(VypravciJizdy, TrackUnderAPossessionIsNoTrackForATrain) {
    z_lhotina(101, 485);
    zacni(8, 0);
    stitky.push_back({27, {}, {}, "výluka"});
    vypravci::predej();
    bool na_vyluce = false, na_jine = false;
    sekund(55 * 60, [&] {
        const Vlak* v = najdi(101);
        na_vyluce = na_vyluce || (v != nullptr && drzi_prvek(*v, 27));
        for (int e = 26; e <= 31; ++e)
            na_jine = na_jine || (e != 27 && v != nullptr && drzi_prvek(*v, e));
    });
    EXPECT_FALSE(na_vyluce);
    EXPECT_TRUE(na_jine);
    EXPECT_EQ(najdi(101), nullptr);
}

TEST_F(VypravciJizdy, TrainBeforeABlockedSignalWaitsAndGoesOnWhenItIsGivenBack) {
    z_lhotina(101, 485);
    zacni(8, 0);
    for (const int s : {287, 288, 286, 290, 289})
        relief.navestidlo[s].barva = barvy::cervena;
    vypravci::predej();
    sekund(15 * 60);
    ASSERT_NE(najdi(101), nullptr);
    EXPECT_NE(ceka(101), "");
    for (const int s : {287, 288, 286, 290, 289})
        relief.navestidlo[s].barva = barvy::seda;
    sekund(50 * 60);
    EXPECT_EQ(najdi(101), nullptr);
}

TEST_F(VypravciJizdy, RoutesOfAStationThatIsNotHandedOverAreLeftToTheOperator) {
    z_lhotina(101, 485);
    zacni(8, 0);
    const std::vector<std::uint8_t> jen{vysni_hrabov};
    vypravci::predej(jen);
    sekund(10 * 60);
    ASSERT_NE(najdi(101), nullptr);
    EXPECT_EQ(cesty.front().zacatek, -3);
    // The operator sets the way out of Lhotín: the rest up to the main station is the dispatcher's.
    const int kolej = najdi(101)->prvky.back().prvek;
    klik(Druh::navestidlo, kolej + 200, Tlacitko::leve, false);
    klik(Druh::cislo_koleje, 600, Tlacitko::leve, false);
    bool v_hrabove = false, v_tesku = false;
    sekund(20 * 60, [&] {
        for (int e = 9; e <= 18; ++e)
            v_hrabove = v_hrabove || drzi_prvek(*najdi(101), e);
        for (int e = 26; e <= 35; ++e)
            v_tesku = v_tesku || drzi_prvek(*najdi(101), e);
    });
    EXPECT_TRUE(v_hrabove);
    EXPECT_FALSE(v_tesku);
}

TEST_F(VypravciJizdy, SelectionThatAnOperatorHasBegunIsLeftToHim) {
    z_lhotina(101, 485);
    zacni(8, 4);
    sekund(5);
    vypravci::predej();
    klik(Druh::navestidlo, 264, Tlacitko::leve, false);
    const Vyber vyber_pred = vyber;
    sekund(5);
    EXPECT_EQ(vyber.volba_zacatek, vyber_pred.volba_zacatek);
    EXPECT_EQ(cesty.front().zacatek, -3);
}

TEST_F(VypravciJizdy, DeskThatIsTakenBackGetsNoMoreRoutes) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej();
    sekund(8 * 60);
    vypravci::vezmi();
    const auto povelu = stav_vypravciho.povelu;
    EXPECT_GT(povelu, 0);
    sekund(10 * 60);
    EXPECT_EQ(stav_vypravciho.povelu, povelu);
    EXPECT_FALSE(vypravci::zapnut());
}

TEST_F(VypravciJizdy, TrainThatHasLeftItsStopDoesNotComeBackToItInOrderToTurn) {
    zacni(8, 0);
    vypravci::predej();
    const auto& trasy = sit_vlaku().trasy;
    planovani::Ukol ukol;
    ukol.body = {{.stanice = borovec, .stavi = true},
                 {.stanice = tesk, .stavi = true, .muze_otocit = true},
                 {.stanice = vrbice, .stavi = true}};
    ukol.pocatek = planovani::Pocatek{28, false, 2, false};
    std::vector<std::uint8_t> bez(trasy.size(), 0);
    ukol.bez_tras = bez;
    const auto primo = planovani::najdi_trasy(sit_vlaku(), ukol);
    ASSERT_TRUE(primo);
    ASSERT_EQ(primo->size(), 1u);
    bez[primo->front().trasa] = 1;
    const auto jinudy = planovani::najdi_trasy(sit_vlaku(), ukol);
    EXPECT_TRUE(!jinudy || std::none_of(jinudy->begin(), jinudy->end(), [](const planovani::KrokTrasy& k) {
        return k.prvek == uzel::kKamenec;
    })) << "out to Kamenec, and back to the platforms";
}

TEST_F(VypravciJizdy, RouteThatHasLostASwitchIsTakenBackAndOrderedAgain) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej();
    const auto cesta = [] { return cesta_v_zasobniku(287, 600); };
    sekund(5 * 60 - 10);
    ASSERT_GE(cesta(), 0);
    ASSERT_TRUE(cesta_c(cesta()).Provedena);
    vyhybka_nouz(36); // the route goes to stop and is never cleared again
    ASSERT_FALSE(cesta_c(cesta()).Postavena);
    sekund(10 * 60);
    ASSERT_NE(najdi(101), nullptr);
    EXPECT_NE(najdi(101)->prvky.back().prvek, 87);
    EXPECT_LE(najdi(101)->zpozdeni, 5);
}

// The operator's locomotive stands between the train and its signal at a station where the dispatcher does
// not shunt. It may be waiting for the very route that the train holds.
TEST_F(VypravciJizdy, RouteOfATrainThatMayGoAndIsKeptByAnotherMovementForTenMinutesGoesBack) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej(std::vector<std::uint8_t>{lhotin});
    sekund(3 * 60 + 30);
    ASSERT_NE(najdi(101), nullptr);
    ASSERT_EQ(najdi(101)->prvky.back().prvek, 87);
    const int stroj = lokomotiva(87, true, 1);
    int objednano = 0, ruseno = 0;
    sekund(20 * 60, [&] {
        const int i = cesta_v_zasobniku(287, 600);
        if (objednano == 0 && i >= 0)
            objednano = cas_hodin();
        if (ruseno == 0 && i >= 0 && cesta_c(i).cas_ruseni >= 0)
            ruseno = cas_hodin();
    });
    ASSERT_GT(objednano, 0);
    EXPECT_TRUE(najdi(101)->muze_jet);
    EXPECT_EQ(najdi(101)->prvky.back().prvek, 87);
    EXPECT_GT(ruseno, objednano + 600);
    EXPECT_LT(ruseno, objednano + 600 + 90);
    EXPECT_TRUE(rekl("Ruší se cesta od návěstidla"));
    odstran(87, stroj);
    sekund(120);
    EXPECT_NE(najdi(101)->prvky.back().prvek, 87) << "it goes when nothing keeps it";
}

// What an operator has set before the train, and nobody runs over.
TEST_F(VypravciJizdy, RouteThatNobodyRunsOverGoesOutOfTheWayOfATrainWhereTheWholeDeskIsHis) {
    for (const bool vse : {false, true}) {
        rad = {};
        z_lhotina(101, 485);
        zacni(8, 0);
        sekund(3 * 60);
        klik(Druh::navestidlo, 286, Tlacitko::leve, false);
        klik(Druh::cislo_koleje, 600, Tlacitko::leve, false);
        if (vse)
            vypravci::predej();
        else
            vypravci::predej(std::vector<std::uint8_t>{lhotin});
        bool cekal = false;
        sekund(7 * 60, [&] { cekal = cekal || ceka(101).find("v cestě je") != std::string::npos; });
        EXPECT_TRUE(cekal) << vse;
        EXPECT_EQ(cesta_v_zasobniku(286, 600) < 0, vse);
        EXPECT_EQ(rekl("stojí v cestě a nikdo po ní nepojede, ruší se."), vse);
        sekund(60);
        ASSERT_NE(najdi(101), nullptr);
        EXPECT_EQ(najdi(101)->prvky.back().prvek == 87, !vse);
    }
}

TEST_F(VypravciJizdy, RouteThatIsNotSetForLongLeavesTheStack) {
    z_lhotina(101, 485);
    zacni(8, 0);
    vypravci::predej();
    sekund(8 * 60, [&] {
        if (cesta_v_zasobniku(287, 600) >= 0)
            relief.navestidlo[287].barva = barvy::cervena; // the operator blocks it before it clears
    });
    EXPECT_LT(cesta_v_zasobniku(287, 600), 0);
    EXPECT_TRUE(rekl("Cesta od návěstidla LHO S1 se dlouho nepostavila, odchází ze zásobníku."));
    EXPECT_NE(ceka(101).find("výluku nebo zablokované návěstidlo"), std::string::npos) << ceka(101);
}

TEST_F(VypravciJizdy, SlowTrainLetsAnExpressGoFirst) {
    GvdVlak& pomaly = motorak(501, {lhotin, vysni_hrabov, tesk}, {-1, 506, 530}, {485, 507, -1});
    pomaly.druh = 15;
    pomaly.rychlost = 30;
    pomaly.kolej = "2";
    GvdVlak& rychlik = motorak(502, {lhotin, vysni_hrabov, tesk}, {-1, 490, 496}, {486, 490, -1});
    rychlik.druh = 1;
    rychlik.rychlost = 120;
    rychlik.kolej = "3";
    zacni(8, 0);
    vypravci::predej();
    bool prednost = false;
    sekund(8 * 60,
           [&] { prednost = prednost || ceka(501).find("dává přednost vlaku") != std::string::npos; });
    EXPECT_TRUE(prednost);
    ASSERT_NE(najdi(501), nullptr);
    ASSERT_NE(najdi(502), nullptr);
    EXPECT_TRUE(je_kolej_lhotina(najdi(501)->prvky.back().prvek));
    EXPECT_FALSE(je_kolej_lhotina(najdi(502)->prvky.back().prvek));
    sekund(12 * 60); // it has waited for seven minutes at most
    EXPECT_FALSE(je_kolej_lhotina(najdi(501)->prvky.back().prvek));
}

TEST_F(VypravciJizdy, TrainWhosePlatformIsTakenForLongStopsAtAnotherOne) {
    z_lhotina(101, 485);
    zacni(8, 0);
    const int stoji =
        postav(27, true, 900, {"843", "943"}, zastavky_vlaku({tesk, rokytno}, {480, 700}, {640, -1}), 60);
    vypravci::predej();
    bool na_jine = false;
    sekund(55 * 60, [&] {
        for (int e = 26; e <= 31; ++e)
            na_jine = na_jine || (e != 27 && najdi(101) != nullptr && drzi_prvek(*najdi(101), e));
    });
    EXPECT_TRUE(na_jine);
    EXPECT_EQ(najdi(101), nullptr);
    EXPECT_EQ(vlak_c(stoji).prvky.back().prvek, 27);
}

TEST_F(VypravciJizdy, TrainThatStandsTheWrongWayRoundAtHrabovIsTurned) {
    zacni(8, 0);
    const int v = postav(11, true, 900, {"742", "Bp"},
                         zastavky_vlaku({vysni_hrabov, lhotin}, {-1, 500}, {481, -1}), 60);
    vlak_c(v).loko_rada = 742;
    vypravci::predej();
    sekund(6 * 60);
    EXPECT_TRUE(rekl("se otáčí: odjíždí na druhou stranu."));
    EXPECT_NE(vlak_c(v).prvky.back().prvek, 11);
    EXPECT_FALSE(vlak_c(v).smer);
}

TEST_F(VypravciJizdy, NobodyWaitsWhoIsNotOnTheDesk) {
    motorak(301, {vrbice, tesk}, {-1, 490}, {482, -1}).kolej = "3";
    zacni(7, 55);
    vypravci::predej();
    sekund(60);
    vypravci::rekni_cekani(999, Text("čeká"_cz));
    sekund(8 * 60);
    EXPECT_EQ(ceka(999), "");
}

TEST_F(VypravciJizdy, TrainThatAsksForConsentGetsIt) {
    motorak(301, {vrbice, tesk}, {-1, 490}, {482, -1}).kolej = "3";
    zacni(7, 55);
    vypravci::predej();
    bool na_koleji = false;
    sekund(20 * 60, [&] {
        const Vlak* v = najdi(301);
        na_koleji = na_koleji || (v != nullptr && drzi_prvek(*v, 28));
    });
    EXPECT_TRUE(na_koleji);
}
