// testy/prvky/vyhybky_test.cpp - throwing of switches, couplings, derailers, throws by hand.
#include "prvky/svety.h"
#include "prvky/vyhybky.h"
#include "zaklad/chyba.h"

TEST_F(Vyhybka, MovingPictureBelongsToTheTripleOrToTheShape) {
    for (int p = 1; p <= 24; ++p)
        EXPECT_EQ(vyhybka_obrazek(p), (p - 1) / 3 * 3 + 1) << p;
    for (int p = 25; p <= 28; ++p)
        EXPECT_EQ(vyhybka_obrazek(p), 33) << p;
    for (int p = 29; p <= 34; ++p)
        EXPECT_EQ(vyhybka_obrazek(p), 34) << p;
    for (const int p : {35, 49, 58, 75, 100})
        EXPECT_EQ(vyhybka_obrazek(p), 0) << p;
    EXPECT_EQ(vyhybka_obrazek(108), 7);
    EXPECT_EQ(vyhybka_obrazek(126), 33);
    EXPECT_EQ(vyhybka_obrazek(208), 0);
}

TEST_F(Vyhybka, EmergencyEndOfAMovementTakesTheEndOfTheTripleBefore) {
    const std::map<int, int> cekano = {{1, 3},   {2, 3},   {3, 3},   {4, 3},   {5, 3},   {6, 6},   {7, 6},
                                       {8, 6},   {9, 9},   {22, 21}, {23, 21}, {24, 24}, {25, 25}, {28, 25},
                                       {29, 30}, {32, 30}, {33, 30}, {34, 30}, {35, 0},  {49, 0},  {0, 3}};
    for (const auto& [p, n] : cekano)
        EXPECT_EQ(nouz(p), n) << p;
}

TEST_F(Vyhybka, OrdersMoveOneEndOnly) {
    using P = PovelVyhybky;
    const std::map<P, std::map<int, int>> tabulka = {{P::plus, {{26, 28}, {27, 25}, {30, 31}, {32, 29}}},
                                                     {P::minus, {{25, 27}, {28, 26}, {29, 32}, {31, 30}}},
                                                     {P::plus_b, {{26, 27}, {28, 25}, {30, 32}, {31, 29}}},
                                                     {P::minus_b, {{25, 28}, {27, 26}, {29, 31}, {32, 30}}}};
    for (const auto& [povel, radek] : tabulka)
        for (int p = 25; p <= 32; ++p)
            EXPECT_EQ(cilova_poloha(p, povel), radek.count(p) ? radek.at(p) : p) << p;
    for (int p = 1; p <= 24; ++p) {
        EXPECT_EQ(cilova_poloha(p, P::plus), p % 3 == 2 ? p + 1 : p);
        EXPECT_EQ(cilova_poloha(p, P::minus), p % 3 == 0 ? p - 1 : p);
        EXPECT_EQ(cilova_poloha(p, P::plus_b), p);
        EXPECT_EQ(cilova_poloha(p, P::minus_b), p);
    }
}

TEST_F(Vyhybka, ThrowShowsTheMovingPictureAndTheNewPositionAtOnce) {
    prehod(6, 9, true, true);
    EXPECT_EQ(stav(6), 9);
    EXPECT_EQ(relief.imgVyhybka[6].obrazek(), 107);
    EXPECT_TRUE(vyhybka_v_pohybu(6));
    EXPECT_EQ(udalosti(), (std::vector<Udalost>{{74, 6, 107}}));
    vyhybka_stav(6, 9, true, true);
    EXPECT_EQ(relief.imgVyhybka[6].obrazek(), 109);
    EXPECT_FALSE(vyhybka_v_pohybu(6));
    EXPECT_EQ(udalosti(), (std::vector<Udalost>{{74, 6, 107}, {74, 6, 109}}));
}

TEST_F(Vyhybka, ThrowIntoThePositionItHasDoesNothing) {
    const Relief pred = relief;
    const StavVyhybek pohyb = stav_vyhybek;
    prehod(1, 2, true, true);
    EXPECT_EQ(relief, pred);
    EXPECT_EQ(stav_vyhybek, pohyb);
    EXPECT_TRUE(udalosti().empty());
}

TEST_F(Vyhybka, EveryPositionHasItsPictureInEveryClass) {
    for (const int trida : {0, 50, 100, 150, 200})
        for (int poloha = 1; poloha <= 32; ++poloha) {
            vyhybka_stav(6, trida + poloha, false, false);
            EXPECT_EQ(relief.imgVyhybka[6].obrazek(), trida + poloha + 100);
            EXPECT_EQ(stav(6), trida + poloha);
        }
}

TEST_F(Vyhybka, UnknownSwitchIsAnError) {
    EXPECT_THROW(prehod(77, 3, true, true), BehovaChyba);
    EXPECT_THROW(vyhybka_stav(77, 3, true, true), BehovaChyba);
    EXPECT_FALSE(vyhybka_v_pohybu(77));
    EXPECT_FALSE(vyhybka_v_pohybu(-3));
}

// --- couplings: every position of the thrown switch with every position of its partner

TEST_F(Vyhybka, DoubleSlipDragsADoubleSlip) {
    const std::map<int, int> vpravo_plus = {{30, 31}, {32, 29}, {26, 28}, {27, 25}};
    const std::map<int, int> vpravo_minus = {{31, 30}, {29, 32}, {25, 27}, {28, 26}};
    const std::map<int, int> vlevo_plus = {{28, 25}, {26, 27}, {30, 32}, {31, 29}};
    const std::map<int, int> vlevo_minus = {{25, 28}, {27, 26}, {29, 31}, {32, 30}};
    for (int n = 25; n <= 32; ++n)
        for (int b = 25; b <= 32; ++b) {
            stav(1, n == 25 ? 26 : 25);
            stav(2, b);
            stav(3, b);
            prehod(1, n, true, false);
            const bool vlevo = n == 25 || n == 27 || n == 29 || n == 32; // seen from a partner on the right
            const bool vpravo = n == 25 || n == 28 || n == 29 || n == 31;
            const auto& tab3 = vlevo ? vpravo_plus : vpravo_minus;
            const auto& tab2 = vpravo ? vlevo_plus : vlevo_minus;
            EXPECT_EQ(stav(3), tab3.count(b) ? tab3.at(b) : b) << n << " " << b;
            EXPECT_EQ(stav(2), tab2.count(b) ? tab2.at(b) : b) << n << " " << b;
            EXPECT_EQ(vyhybka_v_pohybu(3), tab3.count(b) > 0);
            EXPECT_EQ(vyhybka_v_pohybu(2), tab2.count(b) > 0);
            stav_vyhybek = {};
        }
}

TEST_F(Vyhybka, DoubleSlipDragsAPlainSwitch) {
    for (int n = 25; n <= 32; ++n)
        for (int b = 1; b <= 24; ++b) {
            stav(1, n == 25 ? 26 : 25);
            stav(2, b);
            stav(3, b);
            prehod(1, n, true, false);
            const int trojice = (b - 1) / 3 * 3 + 1;
            EXPECT_EQ(stav(3), trojice + (n == 25 || n == 27 || n == 29 || n == 32 ? 2 : 1)) << n << " " << b;
            EXPECT_EQ(stav(2), trojice + (n == 25 || n == 28 || n == 29 || n == 31 ? 2 : 1)) << n << " " << b;
        }
}

TEST_F(Vyhybka, PlainSwitchDragsADoubleSlip) {
    const std::map<int, int> vlevo1 = {{25, 27}, {28, 26}, {29, 32}, {31, 30}};
    const std::map<int, int> vlevo2 = {{27, 25}, {26, 28}, {32, 29}, {30, 31}};
    const std::map<int, int> jinak1 = {{25, 28}, {27, 26}, {29, 31}, {32, 30}};
    const std::map<int, int> jinak2 = {{28, 25}, {26, 27}, {31, 29}, {30, 32}};
    for (int n = 1; n <= 24; ++n) {
        const int d = (n - 1) % 3;
        if (d == 0)
            continue; // a moving position is no target
        for (int b = 25; b <= 32; ++b) {
            stav(1, n - d);
            stav(2, b);
            stav(3, b);
            prehod(1, n, true, false);
            const auto& tab3 = d == 1 ? vlevo1 : vlevo2;
            const auto& tab2 = d == 1 ? jinak1 : jinak2;
            EXPECT_EQ(stav(3), tab3.count(b) ? tab3.at(b) : b) << n << " " << b;
            EXPECT_EQ(stav(2), tab2.count(b) ? tab2.at(b) : b) << n << " " << b;
        }
    }
}

TEST_F(Vyhybka, PlainSwitchDragsAPlainSwitchIntoTheSameEndOfItsOwnShape) {
    for (int n = 1; n <= 24; ++n) {
        const int d = (n - 1) % 3;
        if (d == 0)
            continue;
        for (int b = 1; b <= 24; ++b) {
            stav(1, n - d);
            stav(2, b);
            prehod(1, n, true, false);
            EXPECT_EQ(stav(2), (b - 1) / 3 * 3 + 1 + d) << n << " " << b;
        }
    }
    stav(1, 2);
    stav(2, 2);
    prehod(1, 53, true, false); // the class of the order goes over, too
    EXPECT_EQ(stav(2), 53);
}

TEST_F(Vyhybka, PartnerAtTheSamePlaceCountsAsLeftOfTheThrownSwitch) {
    relief.imgVyhybka[3].vlevo = 1000;
    stav(1, 25);
    stav(3, 25);
    prehod(1, 27, true, false); // A to minus: the partner on the left moves its B, the one on the right none
    EXPECT_EQ(stav(3), 28);
}

TEST_F(Vyhybka, LockedPartnerStaysAsItIsAndTheMenuIsDisabled) {
    for (const int zaver : {53, 103, 153, 203, 75}) {
        stav(1, 2);
        stav(2, zaver);
        EXPECT_EQ(nabidka(1), "0000") << zaver;
        prehod(1, 3, true, false);
        EXPECT_EQ(stav(2), zaver);
        EXPECT_EQ(stav(3), 3);
        EXPECT_FALSE(vyhybka_v_pohybu(2));
        vyhybka_stav(1, 3, true, false);
        EXPECT_EQ(stav(2), zaver);
        stav(3, 2);
    }
}

TEST_F(Vyhybka, FirstEntry255MeansNoPartnerThoughTheListHasAnEntry) {
    prehod(5, 3, true, false);
    vyhybka_stav(5, 3, true, false);
    EXPECT_EQ(udalosti().size(), 2u);
    EXPECT_EQ(nabidka(5), "0100");
}

TEST_F(Vyhybka, CouplingGoesOneLevelDeep) {
    prehod(2, 3, true, false); // drags 1, which would drag 3
    EXPECT_EQ(stav(1), 3);
    EXPECT_EQ(stav(3), 2);
}

TEST_F(Vyhybka, PartnerThatTheReliefDoesNotHoldIsSkipped) {
    prehod(8, 3, true, false);
    EXPECT_EQ(stav(5), 3);
    vyhybka_stav(8, 3, true, false);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    EXPECT_EQ(nabidka(8), "0100");
}

TEST_F(Vyhybka, EndOfTheThrowEndsThePartnersToo) {
    prehod(1, 3, true, false);
    EXPECT_TRUE(vyhybka_v_pohybu(1) && vyhybka_v_pohybu(2) && vyhybka_v_pohybu(3));
    vyhybka_stav(1, 3, true, false);
    EXPECT_FALSE(vyhybka_v_pohybu(1) || vyhybka_v_pohybu(2) || vyhybka_v_pohybu(3));
    EXPECT_EQ(relief.imgVyhybka[2].obrazek(), 103);
    prehod(1, 2, true, false);
    vyhybka_stav(1, 2, false, false);
    EXPECT_TRUE(vyhybka_v_pohybu(2));
}

// --- derailers

using V = std::vector<int>;

TEST_F(Vykolejky, FirstGoesWithSwitch202) {
    prehod(202, 24, false, true);
    EXPECT_EQ(jedou(), V{0});
    vyhybka_stav(202, 24, false, true);
    EXPECT_EQ(jedou(), V{});
    EXPECT_EQ(znaky(), (V{21, 21, 21}));
    prehod(202, 23, false, true);
    vyhybka_stav(202, 23, false, true);
    EXPECT_EQ(znaky(), (V{23, 21, 21}));
    vyhybka_stav(202, 74, false, true); // locked in the passable position
    EXPECT_EQ(znaky(), (V{21, 21, 21}));
    EXPECT_EQ(relief.lblVykolejka[0].barva(), barvy::seda);
    EXPECT_EQ(relief.lblVykolejka[0].pozadi(), barvy::cerna);
}

TEST_F(Vykolejky, Switch190MovesTheOneThatLiesOnTheRail) {
    znaky(21, 21, 21);
    prehod(190, 5, false, true);
    EXPECT_EQ(jedou(), V{1});
    znaky(21, 23, 21);
    prehod(190, 8, false, true);
    EXPECT_EQ(jedou(), V{2});
    znaky(21, 23, 23);
    prehod(190, 5, false, true);
    EXPECT_EQ(jedou(), V{});
    znaky(21, 21, 21);
    prehod(190, 6, false, true);
    EXPECT_EQ(jedou(), V{});

    vyhybka_stav(190, 6, false, true);
    EXPECT_EQ(znaky(), (V{21, 21, 21}));
    vyhybka_stav(190, 56, false, true);
    EXPECT_EQ(znaky(), (V{21, 21, 21}));
    vyhybka_stav(190, 5, false, true);
    EXPECT_EQ(znaky(), (V{21, 23, 21}));
    vyhybka_stav(190, 5, false, true);
    EXPECT_EQ(znaky(), (V{21, 23, 23}));
}

TEST_F(Vykolejky, Switch206MovesTheOneOfItsPosition) {
    prehod(206, 14, false, true);
    EXPECT_EQ(jedou(), V{1});
    znaky(21, 23, 21);
    prehod(206, 15, false, true);
    EXPECT_EQ(jedou(), V{2});
    znaky(21, 21, 21);
    prehod(206, 64, false, true); // a locked state is no throw
    EXPECT_EQ(jedou(), V{});

    vyhybka_stav(206, 14, false, true);
    EXPECT_EQ(znaky(), (V{21, 21, 23}));
    znaky(21, 21, 21);
    vyhybka_stav(206, 15, false, true);
    EXPECT_EQ(znaky(), (V{21, 23, 21}));
}

TEST_F(Vykolejky, StayWithoutTheirFlagAndWithoutALabel) {
    for (const int n : {190, 202, 206}) {
        prehod(n, 5, false, false);
        vyhybka_stav(n, 5, false, false);
    }
    EXPECT_EQ(jedou(), V{});
    EXPECT_EQ(znaky(), (V{21, 21, 21}));
    relief.lblVykolejka = {};
    for (const int n : {190, 202, 206}) {
        prehod(n, 8, false, true);
        EXPECT_NO_THROW(vyhybka_stav(n, 8, false, true));
    }
}

TEST_F(Vykolejky, Switch14PaintsTheShortTrack4) {
    relief.kolej.zaloz(4).barva = barvy::purpurova;
    vyhybka_stav(14, 9, false, false);
    EXPECT_EQ(relief.kolej[4].barva(), barvy::purpurova);
    const std::map<int, Barva> barvy_stavu = {{8, barvy::seda},
                                              {58, barvy::zelena},
                                              {108, barvy::azurova},
                                              {158, barvy::cervena},
                                              {208, barvy::bila}};
    for (const auto& [s, barva] : barvy_stavu) {
        vyhybka_stav(14, s, false, false);
        EXPECT_EQ(relief.kolej[4].barva(), barva) << s;
    }
    vyhybka_stav(6, 158, false, false); // another switch of the same shape
    EXPECT_EQ(relief.kolej[4].barva(), barvy::bila);
}

TEST_F(Vyhybka, ThrowByHandTakesThreeSeconds) {
    const std::int32_t ted = ted_s();
    hod_vyhybku(1, PovelVyhybky::plus);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, 1);
    EXPECT_EQ(stav_vyhybek.prehoz_cas, ted + 3);
    EXPECT_EQ(stav(1), 3);
    EXPECT_EQ(stav(2), 3);
    EXPECT_EQ(stav(3), 3);
    EXPECT_TRUE(vyhybka_v_pohybu(1));
}

TEST_F(Vyhybka, SecondThrowByHandLeavesTheFirstSwitchMovingUntilNouz) {
    hod_vyhybku(5, PovelVyhybky::plus);
    hod_vyhybku(6, PovelVyhybky::plus);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, 6);
    EXPECT_TRUE(vyhybka_v_pohybu(5));
    vyhybka_nouz(5);
    EXPECT_FALSE(vyhybka_v_pohybu(5));
    EXPECT_EQ(stav(5), 3);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, 6);
}

TEST_F(Vyhybka, EmergencyEndFreesALockedSwitchAndLeavesItsPartnersAlone) {
    stav(1, 58);
    stav(2, 52);
    vyhybka_nouz(1);
    EXPECT_EQ(stav(1), 6);
    EXPECT_EQ(stav(2), 52);
    EXPECT_EQ(relief.imgVyhybka[1].obrazek(), 106);
}

TEST_F(Vyhybka, BothEndsOfADoubleSlipAreThrownByHand) {
    using P = PovelVyhybky;
    for (const auto& [z, povel, na] : std::vector<std::tuple<int, P, int>>{
             {26, P::plus, 28}, {25, P::minus, 27}, {28, P::plus_b, 25}, {29, P::minus_b, 31}}) {
        stav(6, z);
        hod_vyhybku(6, povel);
        EXPECT_EQ(stav(6), na);
        EXPECT_EQ(relief.imgVyhybka[6].obrazek(), na < 29 ? 133 : 134);
        vyhybka_stav(6, na, true, true);
        EXPECT_EQ(relief.imgVyhybka[6].obrazek(), na + 100);
    }
}

TEST_F(Vykolejky, OfTheFourOrdersOfADoubleSlipOnlySMinusMovesDerailers) {
    using P = PovelVyhybky;
    for (const auto& [z, povel] :
         std::vector<std::pair<int, P>>{{26, P::plus}, {25, P::minus}, {28, P::plus_b}, {29, P::minus_b}}) {
        znaky(21, 21, 21);
        relief.imgVyhybka[202].stav = text_cisla(z);
        hod_vyhybku(202, povel);
        EXPECT_EQ(jede(0), povel == P::minus) << z;
    }
}
