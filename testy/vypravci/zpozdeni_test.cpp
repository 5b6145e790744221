// testy/vypravci/zpozdeni_test.cpp - how the automatic dispatcher keeps the list of delays.
#include "desk/hlaseni.h"
#include "desk/zprava.h"
#include "prvky/souhlasy.h"
#include "vypravci/svet_vypravciho.h"

namespace {

class Zpozdeni : public SVypravcim {
protected:
    // From Rokytno to the main station, where it ends.
    void konecny(std::int32_t cislo, int minuta) {
        const auto m = static_cast<std::int16_t>(minuta);
        motorak(cislo, {dopravna::rokytno, dopravna::tesk}, {-1, static_cast<std::int16_t>(m + 15)}, {m, -1});
    }
    // From Vrbice with consent to the main station.
    void od_vrbice(std::int32_t cislo, int minuta) {
        const auto m = static_cast<std::int16_t>(minuta);
        motorak(cislo, {dopravna::vrbice, dopravna::tesk}, {-1, static_cast<std::int16_t>(m + 15)}, {m, -1});
    }
    static bool je_v_seznamu(std::int32_t cislo) { return zpozdeni_vlaku(cislo) > 0; }
};

} // namespace

TEST_F(Zpozdeni, LineOfATrainThatEndedInsideGoes) {
    konecny(1001, 8 * 60 + 25);
    zacni(8, 0);
    vypravci::predej();
    pridej_zpozdeni(1001, 5);
    bool byl = false, drive = false;
    sekund(60 * 60, [&] {
        const Vlak* v = najdi(1001);
        byl = byl || v != nullptr;
        drive = drive || (v != nullptr && !v->posun && !je_v_seznamu(1001));
    });
    EXPECT_TRUE(byl);
    EXPECT_FALSE(drive) << "the operator sees it as long as it is a train";
    EXPECT_FALSE(je_v_seznamu(1001));
}

TEST_F(Zpozdeni, LineStaysUntilItsTrainHasCome) {
    konecny(1001, 9 * 60 + 20);
    konecny(1003, 23 * 60 + 50);
    zacni(8, 0);
    vypravci::predej();
    pridej_zpozdeni(1001, 20);
    sekund(60 * 95, [] { ASSERT_TRUE(je_v_seznamu(1001)) << na_utf8(text_hodin()); });
    const Vlak* v = najdi(1001);
    EXPECT_EQ(v, nullptr) << "it comes at twenty to ten";
    nastav_cas("23:35:00");
    pridej_zpozdeni(1003, 20); // it comes behind midnight
    sekund(60 * 30, [] { ASSERT_TRUE(je_v_seznamu(1003)) << na_utf8(text_hodin()); });
}

TEST_F(Zpozdeni, LineOfNobodysTrainIsTheOperators) {
    zacni(8, 0);
    vypravci::predej();
    pridej_zpozdeni(4711, 20);
    sekund(120);
    EXPECT_TRUE(je_v_seznamu(4711));
}

TEST_F(Zpozdeni, LinesAreLeftToTheOperatorWhereTheStationIsHis) {
    konecny(1001, 8 * 60);
    zacni(9, 0);
    pridej_zpozdeni(1001, 5);
    const std::uint8_t jina = static_cast<std::uint8_t>(vypravci::stanice_kodu("LHO"));
    vypravci::predej(std::span(&jina, 1));
    sekund(120);
    EXPECT_TRUE(je_v_seznamu(1001));
    vypravci::predej();
    sekund(120);
    EXPECT_FALSE(je_v_seznamu(1001));
}

TEST_F(Zpozdeni, PanelThatWasOpenComesBack) {
    konecny(1001, 6 * 60);
    zacni(9, 0);
    vypravci::predej();
    struct Pripad {
        Panel panel;
        const Prvek& tlacitko;
    };
    for (const Pripad& p :
         {Pripad{Panel::tabulka, relief.cmdTABULKA[0]}, Pripad{Panel::denik, relief.cmDenik[0]},
          Pripad{Panel::vlak, relief.cmdVLAK[0]}, Pripad{Panel::zpravy, relief.cmdZpravy[0]}}) {
        prepni_panel(p.panel);
        pridej_zpozdeni(1001, 5);
        sekund(61);
        EXPECT_FALSE(je_v_seznamu(1001));
        EXPECT_EQ(p.tlacitko.barva, barvy::bila);
        EXPECT_EQ(relief.lstZpravy.viditelny, p.panel == Panel::zpravy);
    }
}

TEST_F(Zpozdeni, ChosenLineOfTheOpenListStaysChosen) {
    konecny(1001, 6 * 60);
    konecny(1003, 10 * 60);
    zacni(9, 0);
    pridej_zpozdeni(1001, 5);
    pridej_zpozdeni(1003, 5);
    prepni_panel(Panel::zpravy);
    relief.lstZpravy.vybrany = 1;
    vypravci::predej();
    sekund(3);
    EXPECT_FALSE(je_v_seznamu(1001));
    EXPECT_TRUE(relief.lstZpravy.viditelny);
    EXPECT_EQ(relief.lstZpravy.vybrany, 0);
    EXPECT_TRUE(je_v_seznamu(1003));
}

// The lamp holds one number: of two trains that ask in one minute the first one would never be heard of
// again.
TEST_F(Zpozdeni, TrainComesOnTimeRatherThanAskInTheMinuteOfAnother) {
    od_vrbice(1001, 8 * 60 + 10);
    od_vrbice(1003, 8 * 60 + 25);
    zacni(8, 0);
    vypravci::predej();
    pridej_zpozdeni(1001, 15);
    bool prvni = false, druhy = false;
    sekund(45 * 60, [&] {
        prvni = prvni || najdi(1001) != nullptr;
        druhy = druhy || najdi(1003) != nullptr;
    });
    EXPECT_TRUE(prvni);
    EXPECT_TRUE(druhy);
}

TEST_F(Zpozdeni, TrainComesLateWhenNobodyAsksInItsMinute) {
    od_vrbice(1001, 8 * 60 + 10);
    od_vrbice(1003, 8 * 60 + 25);
    zacni(8, 0);
    vypravci::predej();
    pridej_zpozdeni(1001, 16);
    sekund(9 * 60, [] { ASSERT_EQ(zpozdeni_vlaku(1001), 16); });
    sekund(3 * 60);
    EXPECT_EQ(zpozdeni_vlaku(1001), 16);
    EXPECT_EQ(najdi(1001), nullptr);
}

// From Rokytno with a stop at Zlata: behind midnight it would stand there for a day, and nobody can tell it
// to go.
TEST_F(Zpozdeni, TrainThatStopsOnALineComesBeforeMidnight) {
    motorak(1001, {dopravna::rokytno, dopravna::zlata, dopravna::tesk}, {-1, 23 * 60 + 57, 24 * 60 + 20},
            {23 * 60 + 50, 23 * 60 + 58, -1});
    motorak(1003, {dopravna::rokytno, dopravna::tesk}, {-1, 24 * 60 + 25}, {23 * 60 + 58, -1});
    zacni(23, 30);
    vypravci::predej();
    pridej_zpozdeni(1001, 20);
    pridej_zpozdeni(1003, 20);
    sekund(21 * 60);
    EXPECT_EQ(zpozdeni_vlaku(1001), 0);
    EXPECT_NE(najdi(1001), nullptr);
    EXPECT_EQ(zpozdeni_vlaku(1003), 20) << "it can be told to leave wherever it stands";
    sekund(12 * 60);
    ASSERT_NE(najdi(1001), nullptr);
    EXPECT_GT(najdi(1001)->stanice_index, 0) << "it has left Zlata";
}

// The fill of a start at midnight takes the trains of the evening, and reads their times as those of today.
TEST_F(Zpozdeni, TrainWithTheTimesOfTomorrowIsKeptOffTheLine) {
    motorak(1001,
            {dopravna::tesk, dopravna::rybnice, dopravna::knizeci_luka, dopravna::olsany, dopravna::rokytno},
            {-1, 23 * 60 + 53, 24 * 60 + 1, 24 * 60 + 5, 24 * 60 + 11},
            {23 * 60 + 47, 23 * 60 + 54, 24 * 60 + 2, 24 * 60 + 5, -1});
    zacni(0, 0);
    ASSERT_NE(najdi(1001), nullptr);
    vypravci::predej();
    sekund(40 * 60);
    const Vlak* v = najdi(1001);
    ASSERT_NE(v, nullptr);
    EXPECT_LT(v->prvky.back().prvek, kPrvniTrat) << "it keeps a track of Knizeci Luka";
}
