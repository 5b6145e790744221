// testy/vypravci/posudek_test.cpp - what keeps a route from being ordered, and the sentence that says it.
#include "cesty/cesta.h"
#include "cesty/nova_cesta.h"
#include "cesty/smer_trati.h"
#include "desk/stitky.h"
#include "relief/relief.h"
#include "vypravci/cesta_vlaku.h"
#include "vypravci/pohled.h"
#include "vypravci/posudek.h"
#include "vypravci/ruce.h"
#include "vypravci/svet_vypravciho.h"

namespace {

using namespace dopravna;
using namespace vypravovani;

class PosudekCesty : public SVypravcim {
protected:
    // A train at Lhotín that leaves to the right.
    int vlak_na(int kolej, std::int32_t cislo) {
        const int v =
            postav(kolej, true, cislo, {"843", "943"},
                   zastavky_vlaku({lhotin, vysni_hrabov, tesk}, {-1, 500, 510}, {490, 501, -1}), 60);
        obnov_vsechny();
        obnov_jizdu(v);
        return v;
    }
    // The desk is his, and he has looked at it; no timetable.
    void predano(int minuta = 0) {
        zacni(8, minuta);
        vypravci::predej();
        vypravci::krok();
        obnov_vyluky();
    }
    static std::size_t trasa(int zacatek, int konec) {
        const auto& trasy = sit().trasy;
        const auto t = std::find_if(trasy.begin(), trasy.end(), [=](const planovani::Trasa& x) {
            return x.zaznam.zacatek == zacatek && x.zaznam.konec == konec;
        });
        EXPECT_NE(t, trasy.end());
        return static_cast<std::size_t>(t - trasy.begin());
    }
    // Any route that ends on the track.
    static std::size_t trasa_na(int konec) {
        const auto& trasy = sit().trasy;
        return static_cast<std::size_t>(
            std::find_if(trasy.begin(), trasy.end(),
                         [=](const planovani::Trasa& x) { return x.konec == konec; }) -
            trasy.begin());
    }
    static void over(int v, std::size_t t, Verdikt co, const char* proc) {
        const Posudek p = posud(v, t, {});
        EXPECT_EQ(static_cast<int>(p.co), static_cast<int>(co));
        EXPECT_EQ(na_utf8(p.proc), proc);
    }
};

} // namespace

TEST_F(PosudekCesty, RouteWithoutAnythingInItsWayIsOrdered) {
    predano();
    over(vlak_na(87, 900), trasa(287, 600), Verdikt::lze, "");
}

TEST_F(PosudekCesty, SignalOfAStationThatIsTheOperatorsIsHis) {
    predano();
    vypravci::predej(std::vector<std::uint8_t>{vysni_hrabov});
    over(vlak_na(87, 900), trasa(287, 600), Verdikt::cizi, "");
}

TEST_F(PosudekCesty, TrainBehindAnotherOneAtTheSignalWaitsForIt) {
    predano();
    const int v = vlak_na(88, 900);
    vlak_na(87, 901);
    over(v, trasa(287, 600), Verdikt::zatim_ne, "Os 901 je před ním");
}

TEST_F(PosudekCesty, RouteOverAPossessionDoesNotExist) {
    predano();
    const int v = vlak_na(87, 900);
    stitky.push_back({600, {}, {}, "výluka"});
    EXPECT_TRUE(vyluky_se_zmenily());
    obnov_vyluky();
    EXPECT_FALSE(vyluky_se_zmenily());
    over(v, trasa(287, 600), Verdikt::neni, "cesta je vyloučena");
}

TEST_F(PosudekCesty, SignalThatHasJustBeenBlockedKeepsTheTrain) {
    predano();
    const int v = vlak_na(87, 900);
    relief.navestidlo[287].barva = barvy::cervena;
    over(v, trasa(287, 600), Verdikt::zatim_ne, "návěstidlo LHO S1 je zablokováno");
}

TEST_F(PosudekCesty, TrackThatIsTakenIsNamedWithWhoHoldsIt) {
    predano();
    const int v = vlak_na(87, 900);
    const int w = postav(600, true, 901, {"843"}, {}, 20);
    over(v, trasa(287, 600), Verdikt::zatim_ne, "kolej 600 drží Os 901");
    odstran(600, w); // it is red still, of nobody who could be named
    over(v, trasa(287, 600), Verdikt::zatim_ne, "kolej 600 není volná");
}

// Another track may serve.
TEST_F(PosudekCesty, TrackAtTheEndIsToldFromWhatLiesOnTheWay) {
    predano();
    const int v = vlak_na(87, 900);
    postav(11, true, 901, {"843"}, {}, 20);
    over(v, trasa_na(11), Verdikt::kolej, "kolej 1 (Vyšní Hrabov) drží Os 901");
}

// It would come to the last track on which a train of the timetable is due.
TEST_F(PosudekCesty, TrackOnWhichATrainIsDueIsKeptFree) {
    motorak(301, {borovec, tesk}, {-1, 500}, {483, -1});
    predano();
    const int v = vlak_na(87, 900);
    for (const int e : {62, 63, 64})
        postav(e, true, 910 + e, {"843"}, {}, 20);
    over(v, trasa_na(65), Verdikt::kolej, "kolej se drží volná pro vlak, který má vjet do uzlu");
    rad = {};
    predano();
    const int w = vlak_na(87, 900);
    for (const int e : {62, 63, 64})
        postav(e, true, 910 + e, {"843"}, {}, 20);
    over(w, trasa_na(65), Verdikt::lze, "");
}

TEST_F(PosudekCesty, RouteThatWasOrderedBeforeIsNamed) {
    predano();
    const int v = vlak_na(87, 900);
    ASSERT_TRUE(zvol_cestu(286, 600, druh_volby::vlak));
    over(v, trasa(287, 600), Verdikt::zatim_ne, "v cestě je VC LHO S3 LHO 1TK");
    vypravci::vezmi();
    sekund(20); // it is set
    vypravci::predej();
    vypravci::krok();
    over(v, trasa(287, 600), Verdikt::zatim_ne, "v cestě je VC LHO S3 LHO 1TK");
}

TEST_F(PosudekCesty, LineThatIsRunTheOtherWayIsWaitedFor) {
    predano();
    const int v = vlak_na(87, 900);
    relief.lblSouhlas2[600].barva = barvy::azurova;
    nastav_text(relief.lblSouhlas2[600], kSipkaVlevo);
    over(v, trasa(287, 600), Verdikt::zatim_ne, "trať drží vlak opačného směru");
}

TEST_F(PosudekCesty, RouteIsOrderedEarlierForATrainAtSpeedAndForACrossing) {
    predano();
    const std::size_t bez = trasa(287, 600);
    const int jede = predstih_s(bez, false), stoji = predstih_s(bez, true);
    EXPECT_GT(stoji, jede);
    simulace.rychlost = 8;
    EXPECT_GT(predstih_s(bez, false), jede);
    simulace.rychlost = 1;
}
