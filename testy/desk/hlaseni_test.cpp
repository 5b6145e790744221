// testy/desk/hlaseni_test.cpp - the message list: late trains, their lines, and what a load makes of them.
#include "app/nova_simulace.h"
#include "desk/hlaseni.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"

namespace {

class SeznamHlaseni : public SPlatformou {
protected:
    static const std::vector<Text>& radky() { return relief.lstZpravy.radky; }
};

TEST_F(SeznamHlaseni, LateTrainIsALineForTheOperatorAndMinutesForTheTraffic) {
    pridej_zpozdeni(1701, 18);
    EXPECT_EQ(radky(), (std::vector<Text>{Text("Zpoždění vlaku 1701 +18´"_cz)}));
    EXPECT_EQ(zpozdeni_vlaku(1701), 18);
    EXPECT_EQ(zpozdeni_vlaku(170), 0);
}

TEST_F(SeznamHlaseni, TrainThatIsToldTwiceIsAsLateAsItsOlderLineSays) {
    pridej_zpozdeni(1701, 7);
    pridej_zpozdeni(1701, 30);
    EXPECT_EQ(zpozdeni_vlaku(1701), 7);
    relief.lstZpravy.vybrany = 0;
    smaz_radek_zprav();
    EXPECT_EQ(zpozdeni_vlaku(1701), 30);
}

TEST_F(SeznamHlaseni, DelayDoesNotHangOnWhatTheListShows) {
    pridej_zpozdeni(1701, 18);
    relief.lstZpravy.radky = {Text("Zpoždění vlaku 1701 +90´"_cz)};
    EXPECT_EQ(zpozdeni_vlaku(1701), 18);
}

TEST_F(SeznamHlaseni, LineOfASaveTellsTheDelayThatWasSaved) {
    pridej_zpozdeni(1701, 5);
    pridej_zpozdeni(12, 89);
    const std::vector<Hlaseni> pred = hlaseni;
    const std::vector<Text> ulozene = texty_hlaseni();
    nova_simulace();
    ASSERT_TRUE(radky().empty());
    prevezmi_hlaseni(ulozene);
    EXPECT_EQ(hlaseni, pred);
    EXPECT_EQ(radky(), ulozene);
}

TEST_F(SeznamHlaseni, LineOfASaveStaysAsItIsAndTheLastThreeCharactersAreItsMinutes) {
    std::vector<Text> ulozene;
    for (const TextPohled radek :
         {TextPohled("Zpoždění vlaku 1 +123´"_cz), TextPohled("Zpoždění vlaku 2"_cz),
          TextPohled("Zpoždění vlaku"_cz), TextPohled("Jiná zpráva 4701 +33´"_cz), TextPohled()})
        ulozene.emplace_back(radek);
    prevezmi_hlaseni(ulozene);
    EXPECT_EQ(radky(), ulozene);
    EXPECT_EQ(zpozdeni_vlaku(1), 23);
    EXPECT_EQ(zpozdeni_vlaku(2), 0);
    EXPECT_TRUE(hlaseni[1].zpozdeni); // it is a delay, of no minutes
    EXPECT_EQ(hlaseni[2], (Hlaseni{ulozene[2], true, 0, 0}));
    EXPECT_EQ(hlaseni[3], (Hlaseni{ulozene[3], false, 0, 0}));
    EXPECT_EQ(hlaseni[4], Hlaseni{});
}

TEST_F(SeznamHlaseni, TrainThatLeavesTakesTheLinesOfBothItsNumbersAndOfNoOther) {
    prevezmi_hlaseni({"bez vlaku"});
    for (const std::int32_t cislo : {1701, 17010, 2, 1701, 0})
        pridej_zpozdeni(cislo, 5);
    relief.lstZpravy.vybrany = 2;
    smaz_zpozdeni(1701, 2);
    EXPECT_EQ(radky(), (std::vector<Text>{"bez vlaku", Text("Zpoždění vlaku 17010 +5´"_cz),
                                          Text("Zpoždění vlaku 0 +5´"_cz)}));
    EXPECT_EQ(relief.lstZpravy.vybrany, 1); // the selection stays on its line
}

TEST_F(SeznamHlaseni, SelectionBehindTheEndGoesToTheLastLine) {
    pridej_zpozdeni(1, 5);
    pridej_zpozdeni(2, 5);
    relief.lstZpravy.vybrany = 1;
    smaz_zpozdeni(2, 2);
    EXPECT_EQ(relief.lstZpravy.vybrany, 0);
    smaz_radek_zprav();
    EXPECT_EQ(relief.lstZpravy.vybrany, -1);
    smaz_radek_zprav(); // of an empty list
    EXPECT_TRUE(hlaseni.empty());
}

} // namespace
