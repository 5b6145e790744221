// testy/desk/predvidane_vlaky_test.cpp - the prediction of trains in the journal.
#include "app/cas.h"
#include "desk/hlaseni.h"
#include "desk/menu.h"
#include "desk/predvidane_vlaky.h"
#include "gvd/gvd.h"
#include "obsluha/vstup.h"
#include "pomocne/jizdni_rad.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zastavky.h"
#include "relief/relief.h"

namespace {

class PredvidaneVlaky : public SPlatformou {
protected:
    PredvidaneVlaky() {
        gvd_vlaky = {};
        simulace.den = 1;
        simulace.pp_povoleno = false;
        simulace.pauza = false;
        cas("8:00:30");
    }
    ~PredvidaneVlaky() override { gvd_vlaky = {}; }

    static void cas(const char* text) { nastav_cas(text); }
    // A train from a station to another, by its first and its last minute.
    static void vlak(std::int32_t cislo, int odkud, int kam, int odjezd, int prijezd) {
        GvdVlak r;
        r.cislo = cislo;
        r.druh = 5;
        r.zastavky =
            zastavky_radku({static_cast<std::uint8_t>(odkud), 9, static_cast<std::uint8_t>(kam)},
                           {-1, static_cast<std::int16_t>(odjezd + 10), static_cast<std::int16_t>(prijezd)},
                           {static_cast<std::int16_t>(odjezd), static_cast<std::int16_t>(odjezd + 12), -1});
        r.vozy = {"754"};
        r.vozy_vlaky = {0};
        r.dny = 1;
        pridej_radek_gvd(r);
    }
    static const std::vector<Text>& denik() { return relief.lstDenik.radky; }
};

} // namespace

TEST_F(PredvidaneVlaky, LineHasCategoryNumberTimeAndDelayAtTheirColumns) {
    vlak(1234, 1, 5, 485, 510);
    prevezmi_hlaseni({Text("Zpoždění vlaku 1234 +7´"_cz)});
    predvidane_vlaky(1);
    ASSERT_EQ(denik().size(), 2u);
    EXPECT_EQ(denik()[0], "R     1234   8:05 +7´    "_cz);
    EXPECT_EQ(denik()[0].size(), 25u);
    EXPECT_EQ(denik()[1], "Předvídané vlaky v LHO 8:00"_cz);
    zmen_radek_gvd(0, [](GvdVlak& g) {
        g.cislo = 123456;
        g.zastavky[0].odjezd = 490;
        g.druh = 8;
    });
    predvidane_vlaky(1);
    EXPECT_EQ(denik()[2], "Zvl 123456   8:10        ");
}

TEST_F(PredvidaneVlaky, ThoseDueLastComeFirstAndTheHeadStandsBelow) {
    vlak(10, 1, 5, 480, 510);
    vlak(20, 1, 5, 540, 570);
    vlak(30, 1, 5, 500, 530);
    vlak(40, 1, 5, 500, 530); // of the same minute: in the order of the timetable
    vlak(50, 1, 5, 541, 570);
    vlak(60, 1, 5, 479, 500);
    predvidane_vlaky(1);
    std::vector<Text> cisla;
    for (const Text& r : denik())
        cisla.emplace_back(orez(vyrez(r, 5, 6)));
    EXPECT_EQ(cisla, (std::vector<Text>{"20", "30", "40", "10", Text("vídané"_cz)}));
}

TEST_F(PredvidaneVlaky, DelayMovesATrainIntoTheHourAndOutOfIt) {
    vlak(10, 1, 5, 470, 510);
    vlak(20, 1, 5, 535, 570);
    prevezmi_hlaseni({Text("Zpoždění vlaku 10 +15´"_cz), Text("Zpoždění vlaku 20 +15´"_cz)});
    predvidane_vlaky(1);
    ASSERT_EQ(denik().size(), 2u);
    EXPECT_EQ(denik()[0], "R       10   7:50 +15´   "_cz);
}

TEST_F(PredvidaneVlaky, ArrivalAtTheFirstStopRulesBeforeItsDeparture) {
    vlak(10, 1, 5, 485, 510);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky[0].prijezd = 482; });
    predvidane_vlaky(1);
    EXPECT_EQ(denik()[0], "R       10   8:02        ");
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky[0].prijezd = 0; }); // midnight is a time, and it is past
    predvidane_vlaky(1);
    EXPECT_EQ(denik().size(), 3u);
}

TEST_F(PredvidaneVlaky, TrainThatEndsThereIsSortedByTheMinuteOfTheDay) {
    vlak(10, 5, 1, 485, 510);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky.back().odjezd = 515; });
    predvidane_vlaky(1);
    EXPECT_EQ(denik(), (std::vector<Text>{Text("Předvídané vlaky v LHO 8:00"_cz)})); // 515 is no minute to 60
    relief.lstDenik.radky.clear();
    cas("0:05:00");
    zmen_radek_gvd(0, [](GvdVlak& g) {
        for (std::size_t i = 0; i < 3; ++i)
            g.zastavky[i].odjezd = std::array<std::int16_t, 3>{10, 22, 40}[i];
    });
    predvidane_vlaky(1);
    ASSERT_EQ(denik().size(), 2u);
    EXPECT_EQ(denik()[0], "R       10   0:40        ");
}

TEST_F(PredvidaneVlaky, LateTrainThatEndsThereComesWithItsPlannedArrival) {
    vlak(10, 5, 1, 485, 510);
    prevezmi_hlaseni({Text("Zpoždění vlaku 10 +5´"_cz)}); // no departure: sorted by 5 - 1
    predvidane_vlaky(1);
    ASSERT_EQ(denik().size(), 2u);
    EXPECT_EQ(denik()[0], "R       10   8:30 +5´    "_cz);
}

TEST_F(PredvidaneVlaky, TrainOfAnotherDayIsNotPredicted) {
    vlak(10, 1, 5, 485, 510);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 2; });
    predvidane_vlaky(1);
    EXPECT_EQ(denik().size(), 1u);
    simulace.den = 2;
    predvidane_vlaky(1);
    EXPECT_EQ(denik().size(), 3u);
}

TEST_F(PredvidaneVlaky, StationOutsideTheListGivesNoBlock) {
    for (int stanice = -3; stanice <= 255; ++stanice) {
        relief.lstDenik.radky.clear();
        predvidane_vlaky(stanice);
        const bool ma = stanice == 1 || stanice == 2 || (stanice >= 4 && stanice <= 6) ||
                        (stanice >= 17 && stanice <= 20);
        EXPECT_EQ(denik().size(), ma ? 1u : 0u) << stanice;
        EXPECT_EQ(ma_predpoved(stanice), ma) << stanice;
    }
}

TEST_F(PredvidaneVlaky, WithNoTrainDueOnlyTheHeadLineAppears) {
    vlak(10, 1, 5, 700, 730);
    vlak(20, 2, 5, 485, 510);
    relief.lstDenik.radky = {"dosud"};
    predvidane_vlaky(1);
    EXPECT_EQ(denik(), (std::vector<Text>{"dosud", Text("Předvídané vlaky v LHO 8:00"_cz)}));
}

TEST_F(PredvidaneVlaky, PauseBlocksThePrediction) {
    vlak(10, 1, 5, 485, 510);
    simulace.pauza = true;
    predvidane_vlaky(1);
    EXPECT_TRUE(denik().empty());
}

TEST_F(PredvidaneVlaky, MenuOfThePostWritesTheBlock) {
    vlak(10, 1, 5, 485, 510);
    relief.imgStanoviste.zaloz(1);
    for (const Tlacitko tlacitko : {Tlacitko::leve, Tlacitko::prave}) {
        klik(Druh::imgStanoviste, 1, tlacitko, false);
        EXPECT_EQ(menu.jmeno, "mnuStanoviste");
        EXPECT_EQ(polozka_menu("miNazev_stanoviste").text, "Lhotín"_cz);
        EXPECT_EQ(polozka_menu("miNazev_stanoviste_zkr").text, "LHO");
        EXPECT_EQ(polozka_menu("miPredvidane_vlaky").text, "PR. VLAKY");
        EXPECT_TRUE(zvol_v_menu("miPredvidane_vlaky"));
        EXPECT_EQ(menu.jmeno, "");
    }
    EXPECT_EQ(denik().size(), 4u);
}
