// testy/vypravci/banker_test.cpp - in which orders all trains reach their ends.
#include "vypravci/banker.h"

namespace {

using planovani::kBezTrasy;

// Places in a row, joined by routes; a number of a place is that of its track.
class Banker : public testing::Test {
protected:
    planovani::Sit sit;

    Banker() {
        sit.odkud.resize(2000);
        sit.delky.fill(500);
        zapomen_nahrady();
    }
    ~Banker() override { zapomen_nahrady(); }

    std::size_t trasa(int odkud, int kam, bool smer) {
        planovani::Trasa t;
        t.zaznam.zacatek = static_cast<std::int16_t>(odkud);
        t.zaznam.konec = static_cast<std::int16_t>(kam);
        t.zaznam.prvky = {{static_cast<std::int16_t>(odkud), druh_prvku::kolej, 0},
                          {static_cast<std::int16_t>(kam), druh_prvku::kolej, 0}};
        t.smer = t.konec_smer = smer;
        t.konec = kam;
        sit.odkud[planovani::Sit::misto(odkud, smer)].push_back(sit.trasy.size());
        sit.trasy.push_back(t);
        return sit.trasy.size() - 1;
    }
    std::vector<planovani::KrokTrasy> cesta(const std::vector<int>& mista, bool smer) {
        std::vector<planovani::KrokTrasy> kroky;
        for (std::size_t i = 1; i < mista.size(); ++i)
            for (std::size_t t = 0; t < sit.trasy.size(); ++t)
                if (sit.trasy[t].zaznam.zacatek == mista[i - 1] && sit.trasy[t].konec == mista[i] &&
                    sit.trasy[t].smer == smer)
                    kroky.push_back({t, mista[i], smer, 0});
        EXPECT_EQ(kroky.size() + 1, mista.size());
        return kroky;
    }
    static UcastnikBankere vlak(int misto, const std::vector<planovani::KrokTrasy>& cesta,
                                std::int32_t poradi = 0) {
        UcastnikBankere u;
        u.misto = misto;
        u.cesta = cesta;
        u.poradi = poradi;
        return u;
    }
    std::vector<std::uint8_t> posud(const std::vector<UcastnikBankere>& vsichni,
                                    const std::vector<int>& drzene = {}) {
        std::vector<std::uint8_t> obsazena(kMist, 0), vysledek;
        for (const int m : drzene)
            ++obsazena[static_cast<std::size_t>(m)];
        uvazli(sit, vsichni, obsazena, {}, vysledek);
        return vysledek;
    }
};

// Lhotín 88 and 87 - Hrabov 11 and 12 - main station 26.
class BankerDveKoleje : public Banker {
protected:
    BankerDveKoleje() {
        for (const int stanicni : {11, 12}) {
            trasa(20, stanicni, false); // from the line to the station and on
            trasa(stanicni, 88, false);
            trasa(600, stanicni, true);
            trasa(stanicni, 20, true);
        }
        trasa(26, 20, false);
        trasa(20, 26, true);
        trasa(88, 600, true);
    }
};

} // namespace

TEST_F(BankerDveKoleje, TwoTrainsAgainstEachOtherPassInAStationWithTwoTracks) {
    const auto tam = cesta({11, 20, 26}, true), zpet = cesta({20, 12, 88}, false);
    EXPECT_EQ(posud({vlak(11, tam), vlak(20, zpet)}), (std::vector<std::uint8_t>{0, 0}));
}

TEST_F(BankerDveKoleje, HopThatFillsTheStationAgainstATrainOnTheLineLeavesBothStuck) {
    // On either track a train that wants onto the single line, and one on the line that wants in.
    const auto prvni = cesta({11, 20, 26}, true), druhy = cesta({12, 20, 26}, true),
               proti = cesta({20, 12, 88}, false);
    EXPECT_EQ(posud({vlak(11, prvni), vlak(12, druhy), vlak(20, proti)}),
              (std::vector<std::uint8_t>{1, 1, 1}));
}

TEST_F(BankerDveKoleje, AnotherTrackOfTheStationServesAsWell) {
    const auto proti = cesta({20, 12, 88}, false);
    EXPECT_EQ(posud({vlak(20, proti)}, {12}), (std::vector<std::uint8_t>{0}));
    EXPECT_EQ(posud({vlak(20, proti)}, {11, 12}), (std::vector<std::uint8_t>{1}));
}

TEST_F(BankerDveKoleje, TrainBehindAnotherOnALineWaitsForIt) {
    const auto proti = cesta({20, 12, 88}, false);
    EXPECT_EQ(posud({vlak(20, proti, 60), vlak(20, proti, 10)}), (std::vector<std::uint8_t>{0, 0}));
    EXPECT_EQ(posud({vlak(20, proti, 60), vlak(20, proti, 10)}, {88}), (std::vector<std::uint8_t>{1, 1}));
}

TEST(MistaBankere, AllSectionsOfALineAreOnePlaceAndT2IsItsOwn) {
    EXPECT_EQ(misto_prvku(600), misto_prvku(650));
    EXPECT_NE(misto_prvku(600), misto_prvku(602));
    EXPECT_NE(misto_prvku(638), misto_prvku(738));
    EXPECT_EQ(misto_prvku(212), 84);
    EXPECT_EQ(misto_prvku(27), 27);
}
