// testy/vypravci/rezervace_test.cpp - promises of tracks and throats.
#include "vypravci/rezervace.h"
#include "vypravci/svet_vypravciho.h"

namespace {

class Rezervace : public SVypravcim {
protected:
    // A train under way, whose promises are made by hand from then on. kZadny when it did not come.
    int vlak_na_ceste() {
        motorak(101, {dopravna::lhotin, dopravna::tesk}, {-1, 499}, {485, -1});
        zacni(8, 0);
        vypravci::predej();
        sekund(5 * 60);
        const Vlak* v = najdi(101);
        vypravci::vezmi();
        return v == nullptr ? kZadny : static_cast<int>(v - vlaky.data());
    }
};

} // namespace

TEST_F(Rezervace, TrainNeedsItsPlatformAtItsTimeAndNotBefore) {
    motorak(101, {dopravna::lhotin, dopravna::vysni_hrabov, dopravna::tesk}, {-1, 491, 499}, {485, 492, -1})
        .kolej = "3";
    zacni(8, 0);
    vypravci::predej();
    sekund(6 * 60);
    ASSERT_NE(najdi(101), nullptr);
    const std::vector<PrvekCesty> kolej3{{28, druh_prvku::kolej, 0}};
    EXPECT_TRUE(volno_pro_posun(kolej3, 120, kZadny, kZadny));
    EXPECT_FALSE(volno_pro_posun(kolej3, 15 * 60, kZadny, kZadny));
    EXPECT_GT(volna_jeste_s(28, kZadny), 120);
    EXPECT_LT(volna_jeste_s(28, kZadny), 15 * 60);
    EXPECT_EQ(slibena(28), kZadny); // it stops at Hrabov first
}

TEST_F(Rezervace, PromiseOfAShuntingMovementEndsWithItsRecord) {
    const int i = vlak_na_ceste();
    ASSERT_GE(i, 0);
    vlaky[static_cast<std::size_t>(i)].posun = true;
    sekund(8);
    ASSERT_EQ(slibena(530), kZadny); // what it was promised as a train is gone
    slib_posunu(i, 530);
    EXPECT_EQ(slibena(530), i);
    uvolni_jinou_kolej(i, 530);
    EXPECT_EQ(slibena(530), i);
    vlaky[static_cast<std::size_t>(i)].cislo = 0;
    EXPECT_EQ(slibena(530), kZadny);
    uklid_rezervace();
}

TEST_F(Rezervace, ShuntingMovementThatGoesElsewhereFreesTheTrackKeptForIt) {
    const int i = vlak_na_ceste();
    ASSERT_GE(i, 0);
    slib_posunu(i, 530);
    uvolni_jinou_kolej(i, 28);
    EXPECT_EQ(slibena(530), kZadny);
}
