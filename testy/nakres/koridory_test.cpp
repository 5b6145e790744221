// testy/nakres/koridory_test.cpp - the lines of the diagrams, as they are told and as the junction has them.
#include "nakres/koridory.h"
#include "pomocne/instalace.h"
#include "relief/topologie.h"
#include "zaklad/soubory.h"

#include <set>

namespace {

class KoridoryInstalace : public SPlatformou {
protected:
    void SetUp() override { zapis_instalaci(svet); }
};

Koridory precti(std::string_view text, std::size_t zavad = 0) {
    std::vector<Text> zavady;
    const Koridory k =
        precti_koridory({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, zavady);
    EXPECT_EQ(zavady.size(), zavad) << (zavady.empty() ? "" : zavady.front());
    return k;
}

TEST(CteniKoridoru, SaysPlacesSectionsAndLines) {
    const Koridory k = precti("# comment\n"
                              "misto AAA 1 \"Alfa\" koleje 5-7,9\r\n"
                              "misto BBB 2,30 \"Béta\" zastavka # a stop\n"
                              "misto CCC 3 \"Gama\" jen_jmeno\n"
                              "usek AAA BBB 600,602*0.25 21\n"
                              "trat a-b \"Alfa – Béta\" AAA BBB+CCC\n");
    ASSERT_EQ(k.mista.size(), 3u);
    EXPECT_EQ(k.mista[0].koleje, (std::vector{5, 6, 7, 9}));
    EXPECT_EQ(k.mista[1].nazev, "Béta"_cz);
    EXPECT_TRUE(k.mista[1].zastavka);
    EXPECT_TRUE(k.mista[2].jen_jmeno);
    EXPECT_EQ(misto_stanice(k, 30), 1);
    EXPECT_EQ(misto_stanice(k, 4), kZadny);
    EXPECT_EQ(misto_koleje(k, 9), 0);
    EXPECT_EQ(misto_koleje(k, 8), kZadny);
    ASSERT_EQ(k.useky.size(), 1u);
    EXPECT_EQ(k.useky[0].dily[0].prvky, (std::vector{600, 602}));
    EXPECT_EQ(k.useky[0].dily[0].cast, 0.25);
    EXPECT_TRUE(je_v_useku(k, 602));
    EXPECT_EQ(k.trate[0].rady, (std::vector<std::vector<int>>{{0}, {1, 2}}));
    EXPECT_EQ(k.trate[0].nadpis, "Alfa – Béta"_cz);
}

TEST(CteniKoridoru, LinesThatCannotBeUnderstoodAreLeftOutAndTold) {
    const Koridory k = precti(
        "misto AAA 1 \"Alfa\"\nmisto BBB x \"Béta\"\nmisto\nnesmysl\nusek AAA NIC 5\nusek AAA AAA 5*2\n"
        "trat a \"A\" AAA\nmisto CCC 5000 \"C\"\nmisto DDD 4 \"D\" koleje",
        8);
    EXPECT_EQ(k.mista.size(), 1u);
    EXPECT_TRUE(k.useky.empty());
    EXPECT_TRUE(k.trate.empty());
}

TEST(CteniKoridoru, RangeThatEndsBeforeItBeginsIsNone) {
    const Koridory k = precti("misto AAA 1 \"Alfa\" koleje 5\nmisto BBB 2 \"Béta\" koleje 18-9\n"
                              "misto CCC 3 \"Gama\"\nusek AAA CCC 18-9\ntrat a-c \"A\" AAA CCC\n",
                              2);
    ASSERT_EQ(k.mista.size(), 2u);
    EXPECT_TRUE(k.useky.empty());
    EXPECT_EQ(osa_koridoru(k, k.trate.at(0)).delka(), 0);
}

TEST(CteniKoridoru, RangeHasTwoBoundsAndAListEachNumberOnce) {
    const Koridory k = precti("misto AAA 1 \"Alfa\" koleje 1-2-3\nmisto BBB 2 \"Béta\" koleje 4-4,6\n"
                              "misto CCC 3 \"Gama\" koleje 4-7,6\nmisto DDD 4 \"Delta\" koleje -3\n",
                              3);
    ASSERT_EQ(k.mista.size(), 1u);
    EXPECT_EQ(k.mista[0].koleje, (std::vector{4, 6}));
}

TEST(CteniKoridoru, CodeBeyondThoseOfATimetableLosesItsLineAlone) {
    const Koridory k = precti("misto AAA 1 \"Alfa\"\nmisto BBB 256 \"Béta\"\nmisto CCC 250-260 \"Gama\"\n"
                              "misto DDD 255 \"Delta\"\n",
                              2);
    ASSERT_EQ(k.mista.size(), 2u);
    EXPECT_EQ(k.mista[1].kody, (std::vector<std::uint8_t>{255}));
}

TEST(CteniKoridoru, SectionHasEachElementOnceAndALineEachPlace) {
    const Koridory k = precti("misto AAA 1 \"Alfa\"\nmisto BBB 2 \"Béta\"\n"
                              "usek AAA BBB 5,6 6\nusek AAA BBB 5*0.5*0.5\nusek AAA BBB 5*0.5 6\n"
                              "trat a \"A\" AAA BBB+AAA\ntrat b \"B\" AAA BBB\n",
                              3);
    ASSERT_EQ(k.useky.size(), 1u);
    EXPECT_EQ(k.useky[0].dily.size(), 2u);
    ASSERT_EQ(k.trate.size(), 1u);
    EXPECT_EQ(k.trate[0].jmeno, "b");
}

TEST(CteniKoridoru, FileThatIsNoTableOfLinesIsLeftOutWhole) {
    std::string text = "misto AAA 1 \"Alfa\"\n";
    text.append(kNejvetsiKoridory, '#');
    EXPECT_TRUE(precti(text, 1).mista.empty());
}

TEST_F(KoridoryInstalace, WithoutTheFileThereAreNone) {
    smaz_soubor(simulace.cesta_aplikace + "data\\tesk.kor");
    EXPECT_TRUE(koridory().trate.empty());
}

TEST_F(KoridoryInstalace, FileOfTheJunctionIsUnderstoodToItsLastLine) {
    const Bajty bajty = nacti_soubor(simulace.cesta_aplikace + "data\\tesk.kor");
    std::vector<Text> zavady;
    const Koridory k = precti_koridory(bajty, zavady);
    EXPECT_TRUE(zavady.empty()) << zavady.front();
    EXPECT_EQ(k.trate.size(), 16u);
    EXPECT_EQ(k, koridory());
}

TEST_F(KoridoryInstalace, EveryElementOfALineHasALengthOfItsOwnAndEachTrackOnePlace) {
    const Koridory& k = koridory();
    const Delky delky = delky_kolejiste(nacti_soubor(simulace.cesta_aplikace + "data\\tesk.top"));
    std::set<int> videne;
    for (const MistoNakresu& m : k.mista)
        for (const int n : m.koleje)
            EXPECT_TRUE(videne.insert(n).second) << "track " << n;
    for (const UsekNakresu& u : k.useky)
        for (const DilUseku& d : u.dily)
            for (const int n : d.prvky)
                EXPECT_GE(delky[static_cast<std::size_t>(n)], 60) << "element " << n;
}

TEST_F(KoridoryInstalace, NeighboursOnALineLieApartAndItsPiecesFillTheWay) {
    const Koridory& k = koridory();
    for (const Koridor& t : k.trate) {
        const OsaKoridoru osa = osa_koridoru(k, t);
        ASSERT_EQ(osa.rady.size(), t.rady.size());
        for (std::size_t i = 1; i < osa.rady.size(); ++i)
            EXPECT_GT(osa.rady[i].metry, osa.rady[i - 1].metry + 100) << t.jmeno;
        double kryto = 0;
        for (const PrvekOsy& p : osa.prvky) {
            EXPECT_LE(p.od, p.po) << t.jmeno << " " << p.prvek;
            kryto = std::max(kryto, p.po);
        }
        EXPECT_NEAR(kryto, osa.delka(), 0.01) << t.jmeno;
    }
}

TEST_F(KoridoryInstalace, BranchThatIsLongerThanTheLineBesideItEndsWithIt) {
    const Koridory k = precti("misto AAA 1 \"Alfa\"\nmisto BBB 2 \"Béta\"\nmisto CCC 3 \"Gama\"\n"
                              "usek AAA CCC 87\nusek BBB CCC 600 602 650\ntrat a \"A\" AAA+BBB CCC\n");
    const OsaKoridoru osa = osa_koridoru(k, k.trate.at(0));
    EXPECT_EQ(osa.delka(), delka_koleje(87));
    ASSERT_EQ(osa.prvky.size(), 4u);
    for (const PrvekOsy& p : osa.prvky) {
        EXPECT_LE(p.od, p.po) << p.prvek;
        EXPECT_LE(p.po, osa.delka()) << p.prvek;
    }
}

TEST_F(KoridoryInstalace, SectionThatAStopDividesIsOnePieceOfTheLine) {
    const Koridory& k = koridory();
    for (const Koridor& t : k.trate)
        if (t.jmeno == "jav") {
            const OsaKoridoru osa = osa_koridoru(k, t);
            int kolikrat = 0;
            for (const PrvekOsy& p : osa.prvky)
                if (p.prvek == 606) {
                    ++kolikrat;
                    EXPECT_NEAR(p.po - p.od, delka_koleje(606), 0.01);
                }
            EXPECT_EQ(kolikrat, 1);
        }
}

} // namespace
