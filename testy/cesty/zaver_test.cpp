// testy/cesty/zaver_test.cpp - what takes a switch out of its route, or a route out of the operator's hands:
// NOUZ, ZAM, a throw by hand, RNZ under a train.
#include "cesty/drzeni.h"
#include "cesty/duvod.h"
#include "cesty/odpocet_pn.h"
#include "cesty/opakovani.h"
#include "cesty/prehoz_rukou.h"
#include "cesty/stavedlo.h"
#include "cesty/uvolneni.h"
#include "jizda/vlak.h"
#include "obsluha/menu_prvku.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/stanicni_prejezdy.h"

namespace {

struct Zaver : Stavedlo {
    Zaver() { prepni_pv_vz(false); }
    // The route from 240 over switch 5 in its end 2, and one from 42 that needs its end 3.
    static void postav_prvni(int druh = druh_volby::vlak) { postav(240, 41, druh); }
    static void postav_druhou() {
        zarad(42, 40).varovani = 0; // a calling-on signal may shine in the same station
        cekej(12);
        ASSERT_EQ(stav(5), 53);
        ASSERT_EQ(navestni(42), barvy::zelena);
    }
    // A train that stands on switch 5 and before it.
    static Vlak& vlak_na_vyhybce() {
        Vlak& v = vlaky[0];
        v.cislo = 77;
        v.prvky = prvky_cesty({40, 5, 41}, {1, 2, 1}, {2, 2, 0});
        v.prvek_konec = 0;
        return v;
    }
    static bool lze_hodit(int n) {
        menu_vyhybky(n);
        return polozka_menu("miPLUS").povolena || polozka_menu("miMINUS").povolena ||
               polozka_menu("miPLUS_B").povolena || polozka_menu("miMINUS_B").povolena;
    }
    static bool lze_nouz(int n) {
        menu_vyhybky(n);
        return polozka_menu("miVyh_nouz").povolena;
    }
    static const Cesta* cesta_od(int s) {
        const auto c =
            std::find_if(cesty.begin(), cesty.end(), [s](const Cesta& x) { return x.zacatek == s; });
        return c == cesty.end() ? nullptr : &*c;
    }
};

} // namespace

// --- NOUZ on a switch of a standing route

TEST_F(Zaver, NouzUnderAClearedRoutePutsItsSignalToStopForGood) {
    for (const int druh : {druh_volby::vlak, druh_volby::posun}) {
        postav_prvni(druh);
        relief.cislo_koleje[40].text = TextPohled("1234");
        vyhybka_nouz(5);
        EXPECT_EQ(stav(5), 3);
        EXPECT_EQ(navestni(240), barvy::seda);
        EXPECT_FALSE(cesty[0].Postavena);
        EXPECT_TRUE(cesty[0].Provedena);
        EXPECT_EQ(zapsano({75, 240, barvy::seda}), druh == druh_volby::vlak ? 1u : 3u);
        obnov_cestu(240);
        cekej(20);
        EXPECT_EQ(navestni(240), barvy::seda);
        EXPECT_FALSE(cesty[0].Postavena);
        EXPECT_EQ(duvod_cekani(0), "výhybka 5 není v poloze cesty (NOUZ), cestu lze jen zrušit (RC)"_cz);
        hod_vyhybku(5, PovelVyhybky::minus); // lying right it is still not locked
        cekej(5);
        ASSERT_EQ(stav(5), 2);
        EXPECT_EQ(duvod_cekani(0), "výhybka 5 není pod závěrem (NOUZ), cestu lze jen zrušit (RC)"_cz);
        obnov_cestu(240);
        EXPECT_FALSE(cesty[0].Postavena);
        zrus_cestu(240);
        cekej(6);
        EXPECT_LT(cesty[0].zacatek, 0);
        EXPECT_EQ(barva(41), barvy::seda);
    }
}

TEST_F(Zaver, NouzSwitchesTheAutomaticModeOffAsStujDoes) {
    postav_prvni();
    prepni_ab(240);
    vyhybka_nouz(5);
    EXPECT_FALSE(ab_zapnuto(240));
}

TEST_F(Zaver, SwitchThatNouzHasTakenServesAnotherRouteUntilThatOneEnds) {
    postav_prvni();
    vyhybka_nouz(5);
    postav_druhou();
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_EQ(duvod_cekani(0), Text("výhybka 5 je pod závěrem cesty "_cz) + popis_cesty(1) +
                                   Text(", cestu lze jen zrušit (RC)"_cz));
    zrus_cestu(240); // what it has lost it does not free
    cekej(6);
    ASSERT_EQ(cesta_od(240), nullptr);
    EXPECT_EQ(stav(5), 53);
    EXPECT_EQ(navestni(42), barvy::zelena);
    EXPECT_EQ(barva(40), barvy::zelena);
    EXPECT_EQ(barva(41), barvy::seda);
    zrus_cestu(42);
    cekej(6);
    EXPECT_EQ(stav(5), 3);
}

// Both records name the switch in the same position and of the same class: it is the later one's.
TEST_F(Zaver, SwitchOfTwoRoutesInOnePositionIsTheLaterOnes) {
    for (const bool prvni_drive : {false, true}) {
        postav_prvni();
        vyhybka_nouz(5);
        hod_vyhybku(5, PovelVyhybky::minus);
        cekej(5);
        postav(41, 40);
        ASSERT_EQ(stav(5), 52);
        obnov_cestu(240);
        EXPECT_EQ(navestni(240), barvy::seda);
        zrus_cestu(prvni_drive ? 240 : 41);
        cekej(6);
        EXPECT_EQ(stav(5), prvni_drive ? 52 : 2);
        obnov_cestu(240);
        EXPECT_EQ(navestni(240), barvy::seda);
        zrus_cestu(prvni_drive ? 41 : 240);
        cekej(6);
        EXPECT_LT(cesty[0].zacatek, 0);
        EXPECT_EQ(stav(5), 2);
        EXPECT_EQ(barva(41), barvy::seda);
    }
}

// The route commanded first has lost the switch to the second, and gets it back when NOUZ takes it from that.
TEST_F(Zaver, SwitchLockedUnderAClearedSignalIsNotFreedByCancellingTheRouteThatLostIt) {
    zarad(242, 604);
    cekej(2);
    vyhybka_nouz(6); // the end in which the switch lies is one that NOUZ keeps
    ASSERT_EQ(stav(6), 6);
    zarad(242, 604);
    cekej(12);
    ASSERT_TRUE(cesty[1].Postavena);
    ASSERT_FALSE(cesty[0].Provedena);
    vyhybka_nouz(6);
    ASSERT_FALSE(cesty[1].Postavena);
    cekej(1);
    ASSERT_TRUE(cesty[0].Postavena);
    ASSERT_EQ(stav(6), 56);
    EXPECT_EQ(drzitel(druh_prvku::vyhybka, 6), &cesty[0]);
    obnov_cestu(242);
    EXPECT_FALSE(cesty[1].Postavena);
    zrus_cestu(242); // the newer one, and the signal goes to stop for both
    EXPECT_FALSE(cesty[0].Postavena);
    obnov_cestu(242);
    cekej(6);
    ASSERT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(navestni(242), barvy::zelena);
    EXPECT_EQ(cesty.size(), 1u);
    EXPECT_EQ(stav(6), 56);
}

TEST_F(Zaver, NouzOnASwitchOfAnotherRouteLeavesThisOneAlone) {
    postav(240, 47);
    vyhybka_nouz(5);
    vyhybka_nouz(6);
    EXPECT_EQ(navestni(240), barvy::zelena);
    vyhybka_nouz(7);
    EXPECT_EQ(navestni(240), barvy::seda);
}

TEST_F(Zaver, SignalPutToStopBeforehandIsNotGivenBackOverALostSwitch) {
    postav_prvni();
    navestidlo_stuj(240);
    vyhybka_nouz(5);
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::seda);
    zrus_cestu(240);
    ASSERT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::seda) << "nor does DN stop its cancellation";
    EXPECT_EQ(cesty[0].cas_ruseni, ted_s() + 5);
}

// --- NOUZ on a switch of a route that is not locked yet

TEST_F(Zaver, CommandedRouteIsNotLockedWithoutItsSwitch) {
    zarad(240, 42);
    cekej(3);
    ASSERT_TRUE(cesty[0].prehozena);
    relief.imgVyhybka[5].stav = TextPohled("2"); // as NOUZ leaves one of the triple behind it
    stav_vyhybek.vyhybka_pohyb[5] = false;
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3) << "while the switches run it is refused";
    cekej(20);
    EXPECT_FALSE(cesty[0].Provedena);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_EQ(barva(42), barvy::azurova);
    EXPECT_EQ(stav(5), 2);
    EXPECT_EQ(duvod_cekani(0), "výhybka 5 není v poloze cesty (NOUZ)"_cz);
    zrus_cestu(240);
    cekej(1);
    EXPECT_LT(cesty[0].zacatek, 0);
    EXPECT_EQ(barva(42), barvy::seda);
    EXPECT_EQ(stav(5), 2);
}

TEST_F(Zaver, CommandedRouteIsLockedOnceItsSwitchLiesRightAgain) {
    zarad(240, 41); // the switch lies there
    cekej(3);
    vyhybka_nouz(5);
    ASSERT_EQ(stav(5), 3);
    cekej(8);
    ASSERT_FALSE(cesty[0].Provedena);
    ASSERT_TRUE(lze_hodit(5)) << "it is nobody's";
    hod_vyhybku(5, PovelVyhybky::minus);
    cekej(2);
    EXPECT_FALSE(cesty[0].Provedena) << "it still moves";
    EXPECT_EQ(duvod_cekani(0), Text("výhybka 5 se přestavuje pro cestu "_cz) + popis_cesty(0));
    cekej(2);
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(stav(5), 52);
    EXPECT_EQ(navestni(240), barvy::zelena);
}

TEST_F(Zaver, CommandedRouteWaitsWhileAnotherOneHasItsSwitch) {
    zarad(240, 41);
    cekej(3);
    vyhybka_nouz(5);
    postav_druhou();
    cekej(10);
    EXPECT_FALSE(cesty[0].Provedena);
    EXPECT_EQ(duvod_cekani(0), Text("výhybka 5 je pod závěrem cesty "_cz) + popis_cesty(1));
    EXPECT_EQ(stav(5), 53);
    zrus_cestu(42);
    cekej(6);
    EXPECT_EQ(stav(5), 3);
    EXPECT_FALSE(cesty[0].Provedena);
}

TEST_F(Zaver, RouteThatWaitsForItsCrossingIsNotLockedAnew) {
    zat.push_back({240, 44, prvky_cesty({40, 107, 5, 44}, {1, 1, 2, 1}, {0, 0, 2, 0}), 0});
    postav_tabulky();
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 44);
    cekej(12);
    ASSERT_EQ(stav(5), 52);
    ASSERT_FALSE(cesty[0].Provedena);
    vyhybka_nouz(5);
    cekej(60);
    EXPECT_FALSE(cesty[0].Provedena);
    EXPECT_EQ(stav(5), 3);
    EXPECT_EQ(duvod_cekani(0), "výhybka 5 není v poloze cesty (NOUZ)"_cz);
}

TEST_F(Zaver, RouteWithoutItsSwitchHoldsTheStackBackUnderVZ) {
    prepni_pv_vz(true);
    zarad(240, 41);
    cekej(3);
    vyhybka_nouz(5);
    cekej(5);
    zarad(46, 118);
    cekej(12);
    EXPECT_FALSE(cesty[1].prehozena);
    EXPECT_EQ(duvod_cekani(1), Text("před ní čeká cesta "_cz) + popis_cesty(0) + " (VZ)");
}

// --- calling-on

TEST_F(Zaver, NouzEndsTheCallingOnAspect) {
    postav_prvni(druh_volby::pn);
    ASSERT_TRUE(pn_sviti(240));
    vyhybka_nouz(5);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_FALSE(pn_sviti(240));
    cekej(3);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_TRUE(relief.lblPN[1].text->empty());
    postav_druhou();
    rnz(240);
    EXPECT_EQ(cesta_od(240), nullptr);
    EXPECT_EQ(stav(5), 53) << "it is the other route's";
}

TEST_F(Zaver, NouzBehindTheTrainEndsTheCallingOnAspectThatStillRuns) {
    postav_prvni(druh_volby::pn);
    cesty[0].Umazat = 2;
    cesty[0].Vlak = 0;
    vyhybka_nouz(5);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_FALSE(pn_sviti(240));
}

TEST_F(Zaver, CallingOnRouteThatIsNeverLockedCanBeCancelled) {
    zarad(240, 41, druh_volby::pn);
    cekej(3);
    vyhybka_nouz(5);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    cekej(10);
    ASSERT_FALSE(cesty[0].Provedena);
    relief.kolej[41].barva = barvy::bila; // another route has painted where it ends
    zrus_cestu(240);
    cekej(1);
    EXPECT_LT(cesty[0].zacatek, 0);
    EXPECT_EQ(barva(41), barvy::bila);
}

TEST_F(Zaver, CallingOnRouteIsNotCancelledInAnyOtherWay) {
    postav_prvni(druh_volby::pn);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3);
    vyhybka_nouz(5);
    zrus_cestu(240);
    EXPECT_EQ(cesty[0].cas_ruseni, -3) << "it was locked: RNZ is its end";
}

// --- RNZ

TEST_F(Zaver, RnzInTheSecondAfterTheAspectPutsTheSignalToStop) {
    postav_prvni(druh_volby::pn);
    relief.navestidlo[240].barva = barvy::bila;
    posun_cas(cesty[0].PN_do - ted_s() + 1); // the machine has not looked since
    rnz(240);
    EXPECT_LT(cesty[0].zacatek, 0);
    EXPECT_EQ(navestni(240), barvy::seda);
    EXPECT_TRUE(relief.lblPN[1].text->empty());
    EXPECT_EQ(zapsano_kodu(gtn::konec_pn), 1u);
    EXPECT_EQ(zapsano({75, 240, barvy::seda}), 1u);
}

TEST_F(Zaver, SwitchUnderATrainIsThrownByNobody) {
    postav_prvni(druh_volby::pn);
    cekej(31);
    cesty[0].Umazat = 2;
    cesty[0].Vlak = 0;
    Vlak& v = vlak_na_vyhybce();
    rnz(240);
    ASSERT_EQ(stav(5), 2);
    EXPECT_FALSE(lze_hodit(5));
    EXPECT_TRUE(lze_nouz(5));
    hod_vyhybku(5, PovelVyhybky::plus);
    EXPECT_EQ(stav(5), 2);
    for (const int druh : {druh_volby::vlak, druh_volby::posun}) { // one throws it, one finds it right
        zarad(druh == druh_volby::vlak ? 42 : 41, 40, druh).varovani = 0;
        relief.kolej[40].barva = barvy::seda;
        cekej(3);
        EXPECT_FALSE(cesty.back().prehozena);
        EXPECT_EQ(duvod_cekani(static_cast<int>(cesty.size()) - 1), "výhybka 5 je pod vlakem"_cz);
        cesty.pop_back();
    }
    zarad(42, 40).varovani = 0;
    v.prvek_konec = 2; // the tail has left it
    cekej(3);
    EXPECT_TRUE(cesty.back().prehozena);
}

TEST_F(Zaver, RnzAfterNouzUnderATrainMovesNothingUnderIt) {
    postav_prvni(druh_volby::pn);
    cekej(31);
    cesty[0].Umazat = 2;
    cesty[0].Vlak = 0;
    vlak_na_vyhybce();
    vyhybka_nouz(5);
    rnz(240);
    EXPECT_EQ(stav(5), 3);
    vlaky[0].prvek_konec = 2;
    cesty[0].PN_zaver = false;
    rnz(240);
    EXPECT_EQ(stav(5), 2);
}

TEST_F(Zaver, SwitchCoupledWithOneUnderATrainIsThrownByNobody) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {6}, "5"}, {6, {5}, "6"}, {7, {255}, "7a/7b"}}));
    vlak_na_vyhybce();
    EXPECT_FALSE(lze_hodit(6));
    zarad(242, 604); // has to throw 6, and 5 with it
    cekej(3);
    EXPECT_FALSE(cesty[0].prehozena);
    EXPECT_EQ(duvod_cekani(0), "výhybka 5 je pod vlakem"_cz);
    vlaky[0].prvek_konec = 2;
    cekej(1);
    EXPECT_TRUE(cesty[0].prehozena);
}

// --- ZAM between the command and the lock

TEST_F(Zaver, SignalBlockedWhileTheSwitchesRunIsNotLit) {
    struct Pripad {
        int s, konec, druh;
        Barva blokovano, povoleno;
    };
    relief.kolej[40].barva = barvy::cervena;
    for (const auto& [s, konec, druh, blokovano, povoleno] :
         {Pripad{240, 42, druh_volby::vlak, barvy::cervena, barvy::zelena},
          Pripad{240, 41, druh_volby::posun, barvy::cervena, barvy::bila},
          Pripad{545, 44, druh_volby::posun, barvy::modra, barvy::bila}}) {
        relief.cislo_koleje[40].text = TextPohled("1234");
        zarad(s, konec, druh);
        cekej(3);
        ASSERT_TRUE(cesty[0].prehozena);
        zam(s);
        cekej(20);
        EXPECT_EQ(navestni(s), blokovano);
        EXPECT_TRUE(cesty[0].Provedena);
        EXPECT_FALSE(cesty[0].Postavena);
        EXPECT_EQ(zapsano({75, s, povoleno}), 0u);
        if (s == 240) {
            EXPECT_GE(stav(5), 50);
            EXPECT_NE(relief.cislo_koleje[konec].text(), "1234") << "no number runs ahead";
        }
        EXPECT_EQ(duvod_cekani(0),
                  Text("návěstidlo "_cz) + jmeno_navestidla(s) + Text(" je zablokováno (ZAM)"_cz));
        obnov_cestu(s);
        EXPECT_EQ(navestni(s), blokovano);
        zam(s);
        cekej(5);
        EXPECT_EQ(navestni(s), barvy::seda) << "only DN gives it";
        obnov_cestu(s);
        EXPECT_EQ(navestni(s), povoleno);
        EXPECT_TRUE(cesty[0].Postavena);
        if (druh == druh_volby::vlak) {
            EXPECT_EQ(relief.cislo_koleje[konec].text(), "1234");
        }
        zrus_cestu(s);
        cekej(181);
        ASSERT_LT(cesty[0].zacatek, 0);
    }
}

TEST_F(Zaver, BlockedSignalDoesNotBeginToCallOn) {
    zarad(240, 41, druh_volby::pn);
    cekej(3);
    zam(240);
    cekej(20);
    EXPECT_EQ(navestni(240), barvy::cervena);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_FALSE(cesty[0].Postavena);
    EXPECT_EQ(cesty[0].PN_do, -3);
    EXPECT_EQ(stav(5), 102);
    EXPECT_TRUE(relief.lblPN[1].text->empty());
    EXPECT_EQ(duvod_cekani(0), "přivolávací návěst nesvítila (ZAM), závěr uvolní RNZ"_cz);
    rnz(240);
    EXPECT_LT(cesty[0].zacatek, 0);
    EXPECT_EQ(stav(5), 2);
    EXPECT_EQ(navestni(240), barvy::cervena);
}

TEST_F(Zaver, SignalBlockedWhileItWaitsForTheCrossingIsNotLit) {
    relief.kolej[40].barva = barvy::cervena;
    zarad(240, 43);
    cekej(12);
    ASSERT_FALSE(cesty[0].Provedena);
    zam(240);
    cekej(60);
    EXPECT_TRUE(cesty[0].Provedena);
    EXPECT_FALSE(cesty[0].Postavena);
    EXPECT_EQ(navestni(240), barvy::cervena);
    zam(240);
    obnov_cestu(240);
    EXPECT_EQ(navestni(240), barvy::zelena);
}

TEST_F(Zaver, BlockingTakenOffInTimeChangesNothing) {
    zarad(240, 41);
    cekej(3);
    zam(240);
    cekej(2);
    zam(240);
    cekej(5);
    EXPECT_EQ(navestni(240), barvy::zelena);
    EXPECT_TRUE(cesty[0].Postavena);
}

// --- a throw by hand while the switches run for a route

TEST_F(Zaver, SwitchThatRunsForARouteIsThrownByNoHand) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {6}, "5"}, {6, {5}, "6"}, {7, {255}, "7a/7b"}}));
    zarad(240, 42);
    cekej(3);
    ASSERT_TRUE(vyhybka_v_pohybu(5));
    EXPECT_FALSE(lze_hodit(5));
    EXPECT_FALSE(lze_hodit(6)) << "it goes with 5";
    EXPECT_TRUE(lze_hodit(7));
    EXPECT_TRUE(lze_nouz(5));
    EXPECT_TRUE(lze_nouz(6));
    hod_vyhybku(5, PovelVyhybky::minus);
    hod_vyhybku(6, PovelVyhybky::plus);
    hod_vyhybku(6, PovelVyhybky::minus);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, -3);
    cekej(5);
    EXPECT_EQ(stav(5), 53);
    EXPECT_EQ(stav(6), 6) << "the pair lies alike";
    EXPECT_FALSE(lze_hodit(6)) << "locked now";
    zrus_cestu(240);
    cekej(6);
    EXPECT_TRUE(lze_hodit(5));
    EXPECT_TRUE(lze_hodit(6));
}

// --- RC while the switches run

TEST_F(Zaver, SwitchThatRunsWithOneOfACancelledRouteArrivesWithIt) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {6}, "5"}, {6, {5}, "6"}, {7, {255}, "7a/7b"}}));
    zarad(240, 42);
    cekej(3);
    ASSERT_TRUE(vyhybka_v_pohybu(5));
    ASSERT_TRUE(vyhybka_v_pohybu(6));
    zrus_cestu(240);
    cekej(1);
    ASSERT_LT(cesty[0].zacatek, 0);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    EXPECT_FALSE(vyhybka_v_pohybu(6));
    EXPECT_EQ(stav(6), 6) << "the pair lies alike";
    EXPECT_EQ(relief.imgVyhybka[6].obrazek, 106);
    postav(604, 41); // over switch 6 in its other end
    EXPECT_EQ(stav(6), 55);
}

TEST_F(Zaver, CancellingLeavesASwitchThatRunsForAnotherRoute) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {6}, "5"}, {6, {5}, "6"}, {7, {255}, "7a/7b"}}));
    relief.imgVyhybka[5].stav = TextPohled("3");
    relief.imgVyhybka[6].stav = TextPohled("5");
    zarad(240, 42); // switch 5 lies right and does not run
    zarad(242, 604);
    cekej(3);
    ASSERT_TRUE(cesty[0].prehozena && cesty[1].prehozena);
    ASSERT_TRUE(vyhybka_v_pohybu(6));
    zrus_cestu(240);
    cekej(1);
    ASSERT_EQ(cesty[0].zacatek, 242);
    EXPECT_TRUE(vyhybka_v_pohybu(6));
    cekej(5);
    EXPECT_EQ(stav(6), 56);
    EXPECT_EQ(navestni(242), barvy::zelena);
}

TEST_F(Zaver, SwitchLeftByASecondThrowByHandRunsOnWhenAnotherRouteIsCancelled) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {255}, "5"}, {6, {255}, "6"}, {7, {255}, "7a/7b"}}));
    hod_vyhybku(6, PovelVyhybky::plus);
    hod_vyhybku(7, PovelVyhybky::minus);
    zarad(240, 42);
    cekej(3);
    zrus_cestu(240);
    cekej(20);
    EXPECT_FALSE(vyhybka_v_pohybu(7));
    EXPECT_TRUE(vyhybka_v_pohybu(6)) << "until NOUZ";
}
