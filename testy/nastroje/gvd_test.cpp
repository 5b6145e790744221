// testy/nastroje/gvd_test.cpp - the timetable compiler.
#include "gvd/prekladac.h"
#include "pomocne/zastavky.h"
#include "zaklad/balik.h"

#include <gtest/gtest.h>

namespace {

constexpr std::string_view kOsobni = R"(
popis "Zkušební"
vlak Os 7501 "Lhoták"
  dny Po-Pá PP
  rychlost 80
  delka 60
  loko 943
  vozy 943 054
  dale 0 7502
  kolej "1"
  stavi LHO -    8:10
  projede "Podolí" 8:15
  stavi THN 8:25 -
)";

std::vector<ChybaZdroje> chyby_zdroje(std::string_view zdroj) {
    std::vector<ChybaZdroje> chyby;
    preloz_jizdni_rad(zdroj, chyby);
    return chyby;
}

} // namespace

TEST(PrekladGvd, TrainBecomesOneRowWithItsStops) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad(kOsobni, chyby);
    ASSERT_TRUE(chyby.empty()) << chyby[0].zprava;
    ASSERT_EQ(rad.vlaky.size(), 1u);
    const GvdVlak& v = rad.vlaky[0];
    EXPECT_EQ(sloupec(v.zastavky, &ZastavkaGvd::stanice), (std::vector<std::uint8_t>{1, 24, 9}));
    EXPECT_EQ(sloupec(v.zastavky, &ZastavkaGvd::prijezd), (std::vector<std::int16_t>{-1, -1, 505}));
    EXPECT_EQ(sloupec(v.zastavky, &ZastavkaGvd::odjezd), (std::vector<std::int16_t>{490, 495, -1}));
    EXPECT_EQ(v.druh, 7);
    EXPECT_EQ(v.cislo, 7501);
    EXPECT_EQ(v.nazev, "Lhoták"_cz);
    EXPECT_EQ(v.dny, 0x80 | 0x1F);
    EXPECT_EQ(v.vozy_vlaky, (std::vector<std::int16_t>{0, 7502}));
}

TEST(PrekladGvd, WrittenFileReadsBackAsTheSameRows) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad(kOsobni, chyby);
    const Bajty bajty = zapis_jizdni_rad(rad);
    Ctenar c{bajty};
    std::int32_t znacka = -1;
    Text popis;
    c.l(znacka);
    c.text(popis);
    GvdVlak vlak;
    popis_poli(c, vlak);
    EXPECT_TRUE(c.ok);
    EXPECT_TRUE(c.na_konci());
    EXPECT_EQ(popis, "Zkušební"_cz);
    EXPECT_EQ(vlak, rad.vlaky[0]);
}

TEST(PrekladGvd, SmallestRowOfTheFileHasNinetyFiveBytes) {
    GvdVlak v;
    v.zastavky = {{1, 0, 0}};
    v.vozy_vlaky = {0};
    v.vozy = {""};
    Miric m;
    popis_poli(m, v);
    EXPECT_EQ(m.misto, 95u);
}

TEST(PrekladGvd, ClockFaceServiceRepeatsToTheLastDeparture) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad(std::string(kOsobni) + "  takt 60 10:10 2\n", chyby);
    ASSERT_EQ(rad.vlaky.size(), 3u);
    EXPECT_EQ(rad.vlaky[2].cislo, 7505);
    EXPECT_EQ(rad.vlaky[2].zastavky[0].odjezd, 610);
    EXPECT_EQ(rad.vlaky[2].zastavky[0].prijezd, -1);
}

TEST(PrekladGvd, RepeatedTrainHandsItsSetToTheRepeatedOne) {
    std::vector<ChybaZdroje> chyby;
    const char* zdroj = "vlak Os 12\ndny Po\nrychlost 80\nvozy 843 054\ndale 0 14\nsouprava 14\n"
                        "stavi LHO - 8:10\nstavi TVH 8:20 -\ntakt 60 10:10 4\n";
    const JizdniRad rad = preloz_jizdni_rad(zdroj, chyby);
    ASSERT_TRUE(chyby.empty());
    ASSERT_EQ(rad.vlaky.size(), 3u);
    EXPECT_EQ(rad.vlaky[2].cislo, 20);
    EXPECT_EQ(rad.vlaky[2].vozy_vlaky, (std::vector<std::int16_t>{0, 22}));
    EXPECT_EQ(rad.vlaky[2].navazny_vlak, "22");

    const auto velke = chyby_zdroje("vlak Os 12\ndny Po\nrychlost 80\nvozy 843\ndale 32766\n"
                                    "stavi LHO - 8:10\nstavi TVH 8:20 -\ntakt 60 9:10 4\n");
    ASSERT_EQ(velke.size(), 1u);
    EXPECT_EQ(velke[0].radek, 1);
}

TEST(PrekladGvd, FaultsNameTheLineAndTheTrain) {
    const auto chyby =
        chyby_zdroje("vlak Os 12\n  dny Po\n  rychlost 80\n  vozy 943\n  stavi XYZ 8:00 8:01\n");
    ASSERT_EQ(chyby.size(), 2u);
    EXPECT_EQ(chyby[0].radek, 5);
    EXPECT_EQ(chyby[0].zprava, "vlak 12: neznámá stanice „XYZ“");
    EXPECT_EQ(chyby[1].radek, 1);
}

TEST(PrekladGvd, TimesThatRunBackAreRefused) {
    const auto chyby =
        chyby_zdroje("vlak Os 12\ndny Po\nrychlost 80\nvozy 943\nstavi LHO - 8:10\nstavi TVH 8:05 8:06\n");
    ASSERT_EQ(chyby.size(), 1u);
    EXPECT_NE(chyby[0].zprava.find("časy jdou zpět"), std::string::npos);
}

TEST(PrekladGvd, NameWithoutATrackMayBearTheDepartureOfTheStopBehindIt) {
    EXPECT_TRUE(chyby_zdroje("vlak Os 12\ndny Po\nrychlost 80\nvozy 943\nstavi LHO - 8:10\nprojede VES 8:20\n"
                             "stavi TVH 8:15 8:20\nstavi THN 8:25 -\n")
                    .empty());
}

TEST(PrekladGvd, OneNumberTwiceOnADayIsRefused) {
    const std::string dvakrat = std::string(kOsobni) + std::string(kOsobni);
    EXPECT_FALSE(chyby_zdroje(dvakrat).empty());
}

TEST(PrekladGvd, WordsOutsideATrainAreRefused) {
    const auto chyby = chyby_zdroje("rychlost 80\n");
    ASSERT_EQ(chyby.size(), 1u);
    EXPECT_EQ(chyby[0].radek, 1);
}

TEST(PrekladGvd, BlocksGiveTrainsTheirSetAndTheirRun) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad =
        preloz_jizdni_rad("vzor souprava\nrychlost 80\nvozy 843 054 943\n"
                          "trasa tam\nstavi LHO - 0:00\nprojede TVH 0:05\nstavi THN 0:12 -\n"
                          "vlak Os 12\ndny Po\npodle souprava\njede tam 8:10\n"
                          "vlak Os 14\ndny Po\npodle souprava\njede tam 9:55\n",
                          chyby);
    ASSERT_TRUE(chyby.empty()) << chyby[0].zprava;
    ASSERT_EQ(rad.vlaky.size(), 2u);
    EXPECT_EQ(rad.vlaky[1].zastavky, (std::vector<ZastavkaGvd>{{1, -1, 595}, {8, -1, 600}, {9, 607, -1}}));
    EXPECT_EQ(rad.vlaky[1].vozy.size(), 3u);
    EXPECT_EQ(rad.radky, (std::vector<int>{8, 12}));
}

TEST(PrekladGvd, BlockThatNobodyTakesOrKnowsIsRefused) {
    const auto nikdo = chyby_zdroje("vzor souprava\nrychlost 80\n");
    ASSERT_EQ(nikdo.size(), 1u);
    EXPECT_EQ(nikdo[0].zprava, "podle jména „souprava“ nic nejede");
    const auto nezname = chyby_zdroje("vlak Os 12\ndny Po\nrychlost 80\nvozy 843\npodle xyz\n"
                                      "stavi LHO - 8:10\nstavi TVH 8:20 -\n");
    ASSERT_EQ(nezname.size(), 1u);
    EXPECT_EQ(nezname[0].zprava, "vlak 12: neznámé jméno „xyz“");
    EXPECT_FALSE(chyby_zdroje("vzor a\npodle a\nvlak Os 12\ndny Po\nrychlost 80\nvozy 843\npodle a\n"
                              "stavi LHO - 8:10\nstavi TVH 8:20 -\n")
                     .empty());
}

TEST(PrekladGvd, WholeSetGoesOnAsTheNextTrain) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad("vlak Os 12\ndny Po\nrychlost 80\nvozy 843 054 943\nobeh 14\n"
                                            "stavi LHO - 8:10\nstavi TVH 8:20 -\ntakt 60 9:10 4\n",
                                            chyby);
    ASSERT_EQ(rad.vlaky.size(), 2u);
    EXPECT_EQ(rad.vlaky[1].vozy_vlaky, (std::vector<std::int16_t>{18, 18, 18}));
    EXPECT_EQ(rad.vlaky[1].navazny_vlak, "18");
}

TEST(PrekladGvd, ClockFaceLeavesOutWhatIsExcepted) {
    std::vector<ChybaZdroje> chyby;
    const char* zdroj = "vlak Os 12\ndny Po\nrychlost 80\nvozy 843\nstavi LHO - 8:10\nstavi TVH 8:20 -\n"
                        "takt 60 11:10 2\nkrome 9:10 10:10\n";
    const JizdniRad rad = preloz_jizdni_rad(zdroj, chyby);
    ASSERT_EQ(rad.vlaky.size(), 2u);
    EXPECT_EQ(rad.vlaky[1].cislo, 18);
    EXPECT_EQ(rad.vlaky[1].zastavky[0].odjezd, 670);

    const auto zadny = chyby_zdroje(std::string(zdroj) + "krome 9:15\n");
    ASSERT_EQ(zadny.size(), 1u);
    EXPECT_NE(zadny[0].zprava.find("vynechává odjezd 9:15"), std::string::npos);
}

// Between the neighbours on the left and the stations on the right of it a train with one cab could not turn.
TEST(PrekladGvd, TrainWithOneCabGetsItsNameAtVysniHrabov) {
    const auto stanice = [](const std::string& vozy, const std::string& body) {
        std::vector<ChybaZdroje> chyby;
        const JizdniRad rad =
            preloz_jizdni_rad("vlak Os 12\ndny Po\nrychlost 80\nvozy " + vozy + "\n" + body, chyby);
        EXPECT_TRUE(chyby.empty());
        std::vector<std::uint8_t> kody;
        for (const ZastavkaGvd& z : rad.vlaky.at(0).zastavky)
            kody.push_back(z.stanice);
        return kody;
    };
    using Stanice = std::vector<std::uint8_t>;
    const std::string tam = "stavi LHO - 8:10\nstavi TVH 8:15 8:20\nstavi THN 8:26 -\n";
    const std::string zpet = "stavi THN - 8:10\nstavi TVH 8:16 8:18\nstavi LHO 8:25 -\n";
    EXPECT_EQ(stanice("754 Bp", tam), (Stanice{1, 36, 8, 9}));
    EXPECT_EQ(stanice("754 Bp", zpet), (Stanice{9, 8, 36, 1}));
    EXPECT_EQ(stanice("843 943", tam), (Stanice{1, 8, 9}));
    EXPECT_EQ(
        stanice("754 Bp", "stavi LHO - 8:10\nprojede SKA 8:20\nstavi TVH 8:15 8:20\nstavi THN 8:26 -\n"),
        (Stanice{1, 37, 8, 9}));
}
