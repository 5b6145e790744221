// testy/gvd/umisteni_test.cpp - where the trains on their way are placed.
#include "gvd/umisteni.h"
#include "pomocne/provoz_sveta.h"
#include "pomocne/prvky_cesty.h"

#include <gtest/gtest.h>

namespace {

using Prvky = std::vector<std::int16_t>;

class Umisteni : public SProvozem {
protected:
    Umisteni() { simulace.minuty_simulace = 0; }

    // Row 0 stands at `stanice`, and goes on to `dalsi`.
    static std::int16_t umisti(std::uint8_t stanice, std::uint8_t dalsi, std::uint8_t druh = 7,
                               std::uint8_t predchozi = 0, TextPohled kolej = {}) {
        static std::int32_t cislo = 100;
        gvd_vlaky =
            TabulkaGvd({radek(++cislo, {{predchozi, -1, 600}, {stanice, 620, 640}, {dalsi, 660, -1}})});
        zmen_radek_gvd(0, [&](GvdVlak& g) {
            g.druh = druh;
            g.kolej = kolej;
        });
        umisti_vlak_do_stanice(stanice, predchozi, dalsi, 1, 0);
        const Vlak* v = najdi(cislo);
        return v == nullptr ? std::int16_t{-1} : v->prvky[0].prvek;
    }
};

TEST_F(Umisteni, StationsHaveTheirTracks) {
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

TEST_F(Umisteni, StationsWithoutARulePlaceNothing) {
    for (int n = 1; n < 100; ++n)
        koleje({n});
    for (const std::uint8_t kod : {10, 16, 17, 18, 19, 20, 27, 28, 30, 31, 33, 34, 36, 99})
        EXPECT_EQ(umisti(kod, 9), -1) << int{kod};
    EXPECT_EQ(umisti(3, 8, 7), -1);          // neither from PLH nor from HVO
    EXPECT_EQ(umisti(7, 9, 7, 9), -1);       // no line of the branch
    EXPECT_EQ(umisti(9, 8, 7, 0, "99"), -1); // a track that the main station has not
}

TEST_F(Umisteni, PlannedTrackOfTheMainStationIsTakenElseItsNeighbour) {
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

TEST_F(Umisteni, TrainOnALineHasItsRouteAndTheDirection) {
    koleje({604, 654});
    relief.lblSouhlas2.zaloz(604);
    EXPECT_EQ(umisti(32, 8, 7, 3), 604);
    ASSERT_EQ(cesty.size(), 1u);
    const Cesta& c = cesty[0];
    EXPECT_EQ(c.zacatek, 202);
    EXPECT_EQ(c.konec, 604);
    EXPECT_EQ(cisla_prvku(c.prvky), (Prvky{604, 654}));
    EXPECT_EQ(druhy_prvku(c.prvky), (std::vector<std::uint8_t>{1, 1}));
    EXPECT_EQ(polohy_prvku(c.prvky), (std::vector<std::uint8_t>{0, 2}));
    EXPECT_EQ(c.Vlak, 0);
    EXPECT_EQ(c.Umazat, 0);
    EXPECT_EQ(c.ZT, 999);
    EXPECT_EQ(relief.lblSouhlas2[604].text, ">>");
    EXPECT_EQ(relief.lblSouhlas2[604].barva(), barvy::azurova);
    const Vlak& v = vlaky[0];
    EXPECT_TRUE(v.smer);
    EXPECT_TRUE(v.omezeni_ukonceno);
    EXPECT_EQ(v.rychlost_cesty, 100);
    EXPECT_EQ(polohy_prvku(v.prvky), std::vector<std::uint8_t>{0});
}

TEST_F(Umisteni, LineSectionsThatLabelAtReleaseAreMarked) {
    koleje({606, 654, 656});
    relief.lblSouhlas2.zaloz(604);
    relief.lblSouhlas2.zaloz(606);
    EXPECT_EQ(umisti(32, 3, 7, 8), 606);
    EXPECT_EQ(polohy_prvku(vlaky[0].prvky), std::vector<std::uint8_t>{2});
    EXPECT_EQ(relief.lblSouhlas2[606].text, "<<");
    EXPECT_EQ(umisti(24, 8, 7, 3), 654);
    EXPECT_EQ(polohy_prvku(vlaky[1].prvky), std::vector<std::uint8_t>{2});
    EXPECT_EQ(relief.lblSouhlas2[604].text, ">>");
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[1].konec, 604);
    EXPECT_EQ(cisla_prvku(cesty[1].prvky), Prvky{654});
}

TEST_F(Umisteni, MouthOfTheBranchShowsTheNumberOnBothItsSections) {
    koleje({96, 632, 682, 638, 688, 738});
    relief.lblSouhlas2.zaloz(632);
    EXPECT_EQ(umisti(7, 13, 7, 9), 96);
    EXPECT_EQ(orez(relief.cislo_koleje[632].text()), text_cisla(vlaky[0].cislo));
    EXPECT_EQ(relief.lblSouhlas2[632].text, ">>");
    EXPECT_EQ(polohy_prvku(cesty[0].prvky), (std::vector<std::uint8_t>{0, 0, 2}));
    EXPECT_EQ(umisti(7, 22, 7, 9), 638);
    EXPECT_EQ(polohy_prvku(cesty[1].prvky), (std::vector<std::uint8_t>{2, 0, 2}));
}

TEST_F(Umisteni, LineThatIsNotDrawnWholeTakesNoTrain) {
    koleje({604});
    EXPECT_EQ(umisti(32, 8, 7, 3), -1);
    EXPECT_EQ(barva(604), barvy::seda);
}

TEST_F(Umisteni, TrainOfATakenLineIsLeftOutAndNotPutOnElementZero) {
    koleje({0, 604, 654});
    EXPECT_EQ(umisti(32, 8), 604);
    EXPECT_EQ(umisti(32, 8), -1);
    EXPECT_EQ(umisti(24, 8), 654);
    EXPECT_EQ(umisti(1, 8), -1); // 86 is not drawn
}

} // namespace
