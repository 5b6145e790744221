// testy/relief/tvary_vyhybek_test.cpp - the table of switch pictures.
#include "relief/tvary_vyhybek.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

Port naproti(Port p) { // the port that the neighbouring cell shows at the same place
    switch (p) {
    case Port::vlevo: return Port::vpravo;
    case Port::vpravo: return Port::vlevo;
    case Port::vlevo_nahore: return Port::vpravo_dole;
    case Port::vpravo_dole: return Port::vlevo_nahore;
    case Port::vlevo_dole: return Port::vpravo_nahore;
    case Port::vpravo_nahore: return Port::vlevo_dole;
    case Port::zadny: break;
    }
    return Port::zadny;
}

bool vlevo(Port p) {
    return misto_portu(p).x == 0;
}

} // namespace

TEST(TvaryVyhybek, EveryTripleHasAMovingPictureAndTwoEndPositions) {
    for (int k = 0; k < tvary::kPocetTrojic; ++k) {
        EXPECT_EQ(tvar_vyhybky(3 * k + 1).druh, DruhObrazku::pohyb) << k;
        EXPECT_EQ(tvar_vyhybky(3 * k + 2).druh, DruhObrazku::koncovy) << k;
        EXPECT_EQ(tvar_vyhybky(3 * k + 3).druh, DruhObrazku::koncovy) << k;
        EXPECT_EQ(tvar_vyhybky(3 * k + 2).a, tvar_vyhybky(3 * k + 3).a) << "one port before the blades";
        EXPECT_NE(tvar_vyhybky(3 * k + 2).b, tvar_vyhybky(3 * k + 3).b) << k;
    }
}

TEST(TvaryVyhybek, PathsRunThroughFromLeftToRight) {
    for (int p = 1; p < tvary::kPocet; ++p) {
        const TvarVyhybky& t = tvar_vyhybky(p);
        if (t.druh != DruhObrazku::koncovy)
            continue;
        EXPECT_NE(vlevo(t.a), vlevo(t.b)) << "a train cannot turn back on switch position " << p;
        EXPECT_TRUE(ma_port(p, t.a)) << p;
        EXPECT_TRUE(ma_port(p, t.b)) << p;
    }
}

TEST(TvaryVyhybek, PlusRunsToTheMiddlePortAndMinusToTheCorner) {
    for (const tvary::Vyhybka& v : tvary::kVyhybky) {
        EXPECT_EQ(misto_portu(v.plus).y, kOsaRadku);
        EXPECT_NE(misto_portu(v.minus).y, kOsaRadku);
    }
}

TEST(TvaryVyhybek, PlainSwitchesAreAllDifferent) {
    for (std::size_t i = 0; i < tvary::kVyhybky.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(tvary::kVyhybky[i].hrot == tvary::kVyhybky[j].hrot &&
                         tvary::kVyhybky[i].minus == tvary::kVyhybky[j].minus);
}

TEST(TvaryVyhybek, CrossoverOnNeighbouringRowsJoinsAtACorner) {
    // the upper switch sends its minus leg down to the right; the lower one stands one cell further
    const tvary::Vyhybka &horni = tvary::kVyhybky[0], &dolni = tvary::kVyhybky[3];
    EXPECT_EQ(naproti(horni.minus), dolni.minus);
    const MistoPortu odtud = misto_portu(horni.minus), sem = misto_portu(dolni.minus);
    EXPECT_EQ(odtud, (MistoPortu{sem.x + kSirkaVyhybky, sem.y + kVyskaVyhybky}));
}

TEST(TvaryVyhybek, DoubleSlipShowsTheFourCombinationsOfItsEnds) {
    struct Radek {
        int poloha;
        bool a_plus, b_plus;
    };
    for (const Radek& r :
         {Radek{25, true, true}, Radek{27, false, true}, Radek{28, true, false}, Radek{26, false, false},
          Radek{29, true, true}, Radek{32, false, true}, Radek{31, true, false}, Radek{30, false, false}}) {
        const TvarVyhybky& t = tvar_vyhybky(r.poloha);
        ASSERT_TRUE(vlevo(t.a) && !vlevo(t.b)) << "end A is the left one";
        EXPECT_EQ(misto_portu(t.a).y == kOsaRadku, r.a_plus) << r.poloha;
        EXPECT_EQ(misto_portu(t.b).y == kOsaRadku, r.b_plus) << r.poloha;
    }
}

TEST(TvaryVyhybek, ColourClassDoesNotChangeThePicture) {
    for (int p = 1; p < tvary::kPocet; ++p)
        for (int trida = 1; trida < 5; ++trida)
            EXPECT_EQ(&tvar_vyhybky(p), &tvar_vyhybky(p + 50 * trida));
}

TEST(TvaryVyhybek, NumberWithoutPictureGivesTheEmptyOne) {
    for (const int stav : {-1, 0, 38, 49, 50, 88, 250})
        EXPECT_EQ(tvar_vyhybky(stav).druh, DruhObrazku::zadny) << stav;
}

TEST(TvaryVyhybek, PositionIsFoundByThePortsOfTheTrain) {
    EXPECT_EQ(poloha_mezi(8, Port::vpravo, Port::vlevo), 9);
    EXPECT_EQ(poloha_mezi(9, Port::vlevo_dole, Port::vpravo), 8);
    EXPECT_EQ(poloha_mezi(7, Port::vlevo_dole, Port::vpravo), 8) << "also from the moving picture";
    EXPECT_EQ(poloha_mezi(8, Port::vlevo, Port::vlevo_dole), 0) << "no way between two legs";
    EXPECT_EQ(poloha_mezi(33, Port::vpravo, Port::vlevo_nahore), 27);
    EXPECT_EQ(poloha_mezi(30, Port::vlevo, Port::vpravo_nahore), 31);
    EXPECT_EQ(poloha_mezi(30, Port::vlevo_nahore, Port::vpravo), 0) << "not a leg of this slip";
    EXPECT_EQ(poloha_mezi(36, Port::vlevo, Port::vpravo), 0) << "a spare picture is no switch";
}
