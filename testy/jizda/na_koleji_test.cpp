// testy/jizda/na_koleji_test.cpp - lists of trains on tracks, and the number labels.
#include "desk/stitky.h"
#include "jizda/svet_vlaku.h"

namespace {

class NaKoleji : public SVlaky {
protected:
    static const std::vector<std::int16_t>& seznam(int prvek) {
        return koleje_vlaky.at(static_cast<std::size_t>(zaznam_koleje(prvek))).vlaky;
    }
};
using Indexy = std::vector<std::int16_t>;

} // namespace

TEST_F(NaKoleji, SingleTrainStandsOnTheLeftLabelAndTheNameOnTheRight) {
    vlak_na(62, true, 1234);
    EXPECT_EQ(stitek(62), "1234");
    EXPECT_EQ(stitek(262), "K62");
    EXPECT_TRUE(relief.cislo_koleje[62].viditelny);
}

TEST_F(NaKoleji, TwoTrainsStandByTheirOrderOnTheTrack) {
    const int a = vlak_na(62, true, 11);
    const int b = vlak_na(62, true, 22);
    EXPECT_EQ(seznam(62), (Indexy{static_cast<std::int16_t>(b), static_cast<std::int16_t>(a)}));
    EXPECT_EQ(stitek(62), "22");
    EXPECT_EQ(stitek(262), "11");
    const int c = vlak_na(62, false, 33);
    EXPECT_EQ(seznam(62).back(), c);
    EXPECT_EQ(stitek(262), "33");
}

TEST_F(NaKoleji, ShuntShowsNoNumber) {
    const int a = vlak_na(62, false, 11);
    const int b = vlak_na(62, false, 22);
    vlak(b).posun = true;
    zobraz_kolej(zaznam_koleje(62));
    EXPECT_EQ(stitek(62), "11");
    EXPECT_EQ(stitek(262), "K62");
    vlak(a).posun = true;
    zobraz_kolej(zaznam_koleje(62));
    EXPECT_EQ(stitek(62), "");
    EXPECT_FALSE(relief.cislo_koleje[62].viditelny);
    EXPECT_EQ(stitek(262), "K62");
}

TEST_F(NaKoleji, LabelOfALineEndIsNoSecondLabelOfTheTrackBelowIt) {
    for (const int e : {12, 13, 19}) {
        pridej_kolej(e);
        pridej_kolej(e + 200);
        relief.cislo_koleje[e + 200].text = TextPohled("77");
        const int a = vlak_na(e, false, 11);
        EXPECT_EQ(stitek(e), "11") << e;
        EXPECT_EQ(stitek(e + 200), "77") << e << ": the train at the line end";
        vlak(a).posun = true;
        zobraz_kolej(zaznam_koleje(e));
        EXPECT_EQ(stitek(e), "") << e << ": a shunting movement has no number";
        vlak(a).posun = false;
        vlak(a).cislo = 22;
        zobraz_kolej(zaznam_koleje(e));
        EXPECT_EQ(stitek(e), "22") << e;
    }
}

TEST_F(NaKoleji, LabelOfATrainThatBecameAShuntWaitsForNothing) {
    pridej_kolej(34);
    const int a = vlak_na(34, false, 11);
    Prvek& stitek34 = relief.cislo_koleje[34];
    vlak(a).muze_jet = false;
    nastav_pozadi_stitku(34, barvy::cervena); // it waits for its departure
    zobraz_kolej(zaznam_koleje(34));
    EXPECT_EQ(stitek34.pozadi, barvy::cervena);
    vlak(a).posun = true;
    zobraz_kolej(zaznam_koleje(34));
    EXPECT_EQ(stitek34.pozadi, barvy::cerna);
    EXPECT_FALSE(stitek34.ramecek);
    stitky = {{34, "x", "", ""}};
    zobraz_kolej(zaznam_koleje(34));
    EXPECT_EQ(stitek34.pozadi, 0x808000u) << "the note of the track";
    stitky = {{}};
}

TEST_F(NaKoleji, TrainThatMayRunDoesNotTakeOverTheColourOfOneThatWaited) {
    pridej_kolej(34);
    const int a = vlak_na(34, false, 11);
    const int b = vlak_na(34, false, 22);
    nastav_pozadi_stitku(34, barvy::cervena);
    vlak(a).muze_jet = false;
    zobraz_kolej(zaznam_koleje(34));
    EXPECT_EQ(relief.cislo_koleje[34].pozadi, barvy::cervena) << "it still waits";
    uber_z_koleje(34, a);
    EXPECT_EQ(stitek(34), "22");
    EXPECT_TRUE(vlak(b).muze_jet);
    EXPECT_EQ(relief.cislo_koleje[34].pozadi, barvy::cerna);
    nastav_pozadi_stitku(34, barvy::zelena); // the end that the operator has picked
    zobraz_kolej(zaznam_koleje(34));
    EXPECT_EQ(relief.cislo_koleje[34].pozadi, barvy::zelena);
}

TEST_F(NaKoleji, RemovalOfTheOnlyTrainLeavesItsNumberOnTheLabel) {
    const int a = vlak_na(62, true, 11);
    uber_z_koleje(62, a);
    EXPECT_EQ(seznam(62), (Indexy{-3}));
    EXPECT_FALSE(vlak_na_koleji(62));
    EXPECT_EQ(stitek(62), "11");
    zobraz_kolej(zaznam_koleje(62));
    EXPECT_EQ(stitek(62), "");
}

TEST_F(NaKoleji, SenseTurnsInTheListOf118) {
    pridej_kolej(118);
    const int a = vlak_na(118, true, 11);
    const int b = vlak_na(118, true, 22);
    const int c = vlak_na(118, false, 33);
    EXPECT_EQ(seznam(118), (Indexy{static_cast<std::int16_t>(c), static_cast<std::int16_t>(a),
                                   static_cast<std::int16_t>(b)}));
}

TEST_F(NaKoleji, TrainGoesBesideTheOneThatIsNamed) {
    const int a = vlak_na(62, false, 11);
    const int b = vlak_na(62, false, 22);
    const int pred = novy_vlak();
    vlak(pred).cislo = 33;
    pridej_na_kolej(62, pred, false, b);
    const int za = novy_vlak();
    vlak(za).cislo = 44;
    pridej_na_kolej(62, za, true, a);
    EXPECT_EQ(seznam(62), (Indexy{static_cast<std::int16_t>(a), static_cast<std::int16_t>(za),
                                  static_cast<std::int16_t>(pred), static_cast<std::int16_t>(b)}));
}

TEST_F(NaKoleji, RecordsGrowOnlyByTracksThatAreUsed) {
    const std::size_t pred = koleje_vlaky.size();
    uber_z_koleje(63, 0);
    EXPECT_FALSE(vlak_na_koleji(63));
    EXPECT_EQ(koleje_vlaky.size(), pred);
    vlak_na(63, true, 1);
    EXPECT_EQ(koleje_vlaky.size(), pred + 1);
}
