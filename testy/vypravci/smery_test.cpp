// testy/vypravci/smery_test.cpp - the automatic dispatcher and lines that are run the other way round.
#include "cesty/smer_trati.h"
#include "desk/stitky.h"
#include "prvky/barvi_prvek.h"
#include "vypravci/svet_vypravciho.h"

namespace {

class Smery : public SVypravcim {
protected:
    static void drz(int n, TextPohled smer) {
        napis_sipku(n, smer);
        relief.lblSouhlas2[n].barva = barvy::azurova;
    }
};

} // namespace

TEST_F(Smery, ArrowThatNobodyNeedsGoesOut) {
    zacni(8, 0);
    vypravci::predej();
    for (const auto& [n, smer] : {std::pair{622, kSipkaVpravo}, {622, kSipkaVlevo}, {602, kSipkaVpravo}}) {
        drz(n, smer);
        sekund(200);
        EXPECT_FALSE(sipka_neni_seda(n)) << n;
    }
    for (const Cesta& c : cesty)
        EXPECT_LT(c.zacatek, 0) << "the route that was set for it is gone";
}

TEST_F(Smery, ArrowOfALineWithATrainStays) {
    motorak(1001, {dopravna::rokytno, dopravna::knizeci_luka, dopravna::tesk}, {-1, 510, 530},
            {480, 511, -1});
    zacni(8, 0);
    vypravci::predej();
    bool na_trati = false;
    sekund(12 * 60, [&] {
        const Vlak* v = najdi(1001);
        if (v == nullptr || v->prvky.back().prvek < kPrvniTrat)
            return;
        na_trati = true;
        ASSERT_TRUE(sipka_drzi(626, kSipkaVlevo)) << na_utf8(text_hodin());
        for (const Cesta& c : cesty)
            ASSERT_TRUE(c.zacatek < 0 || c.Vlak >= 0 || prvni_prvek(c) == v->prvky.back().prvek);
    });
    EXPECT_TRUE(na_trati);
}

// It has passed Rybnice without a stop when it stands on the line behind it: nothing but the elements that it
// ran over tells so.
TEST_F(Smery, TrainThatHasPassedAStationFindsItsWayFromBehindIt) {
    motorak(1001, {dopravna::tesk, dopravna::rybnice, dopravna::jivova, dopravna::javorna, dopravna::borovec},
            {-1, -1, -1, -1, 514}, {485, 491, 500, 507, -1});
    rad.vlaky.back().kolej = "2";
    zacni(7, 50);
    stitky.push_back(
        {.prvek = 638, .stitek = {}, .nvl = {}, .vyluka = "T2"}); // the track that leads straight to the line
    vypravci::predej();
    bool proti = false;
    sekund(55 * 60, [&] {
        const Vlak* v = najdi(1001);
        proti = proti || (v != nullptr && v->prvky.back().prvek == 686);
    });
    EXPECT_TRUE(proti) << "it goes the other way";
    EXPECT_EQ(najdi(1001), nullptr) << ceka(1001);
}
