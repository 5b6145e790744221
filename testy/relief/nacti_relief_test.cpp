// testy/relief/nacti_relief_test.cpp - what each record of the relief file makes of the store.
#include "pomocne/male_kolejiste.h"
#include "relief/nacti_relief.h"
#include "zaklad/chyba.h"

#include <gtest/gtest.h>

namespace {

using T = TypReliefu;
constexpr auto zaznam = zaznam_reliefu;

class SouborReliefu : public testing::Test {
protected:
    DocasnaSlozka slozka;

    SouborReliefu() {
        simulace = Simulace{};
        simulace.cesta_aplikace = slozka.cesta;
        relief = novy_relief();
        zaloz_slozku(slozka.cesta + "data");
    }
    ~SouborReliefu() override {
        simulace = Simulace{};
        relief = Relief{};
    }
    void nacti(const Bajty& bajty) {
        zapis_soubor(slozka.cesta + "data\\tesk.rea", bajty);
        nacti_relief();
    }
    void nacti(const std::vector<ZaznamReliefu>& zaznamy) { nacti(soubor_reliefu(zaznamy)); }
};

// Left, top, width, height.
std::array<std::int32_t, 4> misto(const Prvek& p) {
    return {p.vlevo, p.nahore, p.sirka, p.vyska};
}
// From x1, y1 to x2, y2.
std::array<std::int32_t, 4> cara(const Prvek& p) {
    return {p.x1, p.y1, p.x2, p.y2};
}
using Ctyri = std::array<std::int32_t, 4>;

TEST_F(SouborReliefu, JustAHeaderYieldsNoElements) {
    const Relief pred = relief;
    nacti(std::vector<ZaznamReliefu>{});
    EXPECT_EQ(relief, pred);
}

TEST_F(SouborReliefu, SixBytesAreTheSmallestFile) {
    const Relief pred = relief;
    nacti(Bajty{1, 2, 3, 4, 0, 0});
    EXPECT_EQ(relief, pred);
    nacti(Bajty{});
    EXPECT_EQ(relief, pred);
}

TEST_F(SouborReliefu, IsRequired) {
    try {
        nacti_relief();
        FAIL() << "a missing relief was read";
    } catch (const BehovaChyba& e) {
        EXPECT_EQ(e.kod, KodChyby::soubor_nenalezen);
    }
}

TEST_F(SouborReliefu, UnknownTypeIsSkippedAndTheRecordsBehindItAreRead) {
    nacti({{18, 5, 1, "co to je", 1, 2, 3, 4},
           {0, 5, 1, "", 1, 2, 3, 4},
           {255, 5, 1, "", 1, 2, 3, 4},
           zaznam(T::kolej, 62, 0, "", 1, 2, 3, 4)});
    EXPECT_TRUE(je_kolej(62));
    EXPECT_FALSE(je_kolej(5));
}

TEST_F(SouborReliefu, SameBytesUnderBothNamesGiveTheSameStore) {
    zapis_male_kolejiste(slozka.cesta);
    nacti_relief();
    const Relief jeden = relief;
    relief = novy_relief();
    simulace.dva_monitory = true;
    nacti_relief();
    EXPECT_EQ(relief, jeden);
}

TEST_F(SouborReliefu, TwoMonitorsReadTheFileForTwo) {
    zapis_soubor(slozka.cesta + "data\\tesk.reb", soubor_reliefu({zaznam(T::kolej, 63, 0, "", 1, 2, 3, 4)}));
    simulace.dva_monitory = true;
    nacti({zaznam(T::kolej, 62, 0, "", 1, 2, 3, 4)});
    EXPECT_FALSE(je_kolej(62));
    EXPECT_TRUE(je_kolej(63));
}

TEST_F(SouborReliefu, CutLastRecordIsDroppedAtEveryByte) {
    const std::vector<ZaznamReliefu> prvni = {zaznam(T::kolej, 62, 0, "jedna", 1, 2, 3, 4)};
    std::vector<ZaznamReliefu> oba = prvni;
    oba.push_back(zaznam(T::kolej, 63, 0, "dva", 1, 2, 3, 4));
    const std::size_t kratky = soubor_reliefu(prvni).size();
    Bajty bajty = soubor_reliefu(oba);
    while (bajty.size() > kratky) {
        bajty.pop_back();
        relief = novy_relief();
        nacti(bajty);
        ASSERT_TRUE(je_kolej(62));
        ASSERT_FALSE(je_kolej(63)) << bajty.size();
    }
}

TEST_F(SouborReliefu, HasTheLayoutOfTheFormat) {
    Zapisovac z;
    const ZaznamReliefu vzor = zaznam(T::vyhybka, 258, 9, "208", -1, 2, 3, -32768);
    popis_reliefu(z, vzor);
    EXPECT_EQ(z.bajty, (Bajty{12, 2, 1, 9, 3, 0, '2', '0', '8', 0xFF, 0xFF, 2, 0, 3, 0, 0, 0x80}));
    EXPECT_EQ(z.bajty.size(), 14u + 3u);
}

TEST_F(SouborReliefu, TrackIsAGreyLine) {
    nacti({zaznam(T::kolej, 62, 0, "", 100, 200, 300, 400)});
    const Prvek& kolej = relief.kolej[62];
    EXPECT_EQ(cara(kolej), (Ctyri{100, 300, 200, 400}));
    EXPECT_EQ(kolej.barva(), barvy::seda);
    EXPECT_TRUE(kolej.viditelny());
}

TEST_F(SouborReliefu, TracksForTheLogicOnlyStayHidden) {
    for (const int n : {678, 680, 450, 454, 679})
        nacti({zaznam(T::kolej, n, 0, "", 100, 200, 300, 400)});
    for (const int n : {678, 680, 450, 454})
        EXPECT_FALSE(relief.kolej[n].viditelny()) << n;
    EXPECT_TRUE(relief.kolej[679].viditelny());
}

TEST_F(SouborReliefu, LineAcrossTheFlyoverLiesOnTop) {
    nacti({zaznam(T::kolej, 189, 0, "", 0, 1, 0, 1), zaznam(T::most, 1, 0, "", 0, 1, 0, 1),
           zaznam(T::kolej, 62, 0, "", 0, 1, 0, 1)});
    EXPECT_GT(relief.kolej[189].poradi(), relief.kolej[62].poradi());
    EXPECT_GT(relief.most[1].poradi(), relief.kolej[62].poradi());
}

TEST_F(SouborReliefu, EndOfSomeTracksCarriesThreeGlyphs) {
    for (const int n : {574, 112}) {
        nacti({zaznam(T::kolej, n, 0, "", 1000, 2000, 3000, 4000)});
        ASSERT_EQ(relief.napisy.size(), 1u) << n;
        EXPECT_EQ(relief.napisy[0], (NapisPozadi{2000, 3930, "\x14\x14\x14"})) << n;
    }
    for (const int n : {105, 557, 569, 119}) {
        nacti({zaznam(T::kolej, n, 0, "", 1000, 2000, 3000, 4000)});
        ASSERT_EQ(relief.napisy.size(), 1u) << n;
        EXPECT_EQ(relief.napisy[0], (NapisPozadi{600, 2930, "\x14\x14\x14"})) << n;
    }
}

TEST_F(SouborReliefu, PictureAtTheEndOfTrack574FollowsIt) {
    relief = Relief{}; // a screen without the picture
    nacti({zaznam(T::kolej, 574, 0, "", 1000, 2000, 3000, 4000)});
    EXPECT_FALSE(relief.imgV1.je(0));
    relief = novy_relief();
    nacti({zaznam(T::kolej, 574, 0, "", 1000, 2000, 3000, 4000)});
    EXPECT_EQ(relief.imgV1[0].vlevo(), 2100);
    EXPECT_EQ(relief.imgV1[0].nahore(), 3820);
    EXPECT_TRUE(relief.imgV1[0].viditelny);
}

TEST_F(SouborReliefu, MainSignalShowsItsGlyph) {
    nacti({zaznam(T::navestidlo, 262, 228, "BOR S262", 10, 0, 20, 0),
           zaznam(T::navestidlo, 227, 227, "", 10, 0, 20, 0),
           zaznam(T::navestidlo, 229, 229, "", 10, 0, 20, 0),
           zaznam(T::navestidlo, 230, 230, "", 10, 0, 20, 0),
           zaznam(T::navestidlo, 226, 226, "", 10, 0, 20, 0)});
    const Prvek& n = relief.navestidlo[262];
    EXPECT_EQ(n.text(), "\xE4");
    EXPECT_EQ(n.popis(), "BOR S262");
    EXPECT_EQ(misto(n), (Ctyri{10, 20, kSirkaZnaku, kVyskaZnaku}));
    EXPECT_EQ(relief.navestidlo[226].text(), "\xE2");
    for (const int siroky : {227, 229, 230}) {
        EXPECT_EQ(relief.navestidlo[siroky].text(), " " + znak(siroky) + " ");
        EXPECT_EQ(relief.navestidlo[siroky].sirka(), 3 * kSirkaZnaku);
    }
}

TEST_F(SouborReliefu, ShuntSignalIsNeverPadded) {
    nacti({zaznam(T::navestidlo_ser, 540, 229, "BOR S540", 10, 0, 20, 0)});
    EXPECT_EQ(relief.navestidlo_ser[540].text(), "\xE5");
    EXPECT_EQ(relief.navestidlo_ser[540].popis(), "BOR S540");
    EXPECT_FALSE(relief.navestidlo.je(540));
}

TEST_F(SouborReliefu, TrackLabelHasNameCaptionAndAlignment) {
    nacti({zaznam(T::cislo_koleje, 62, 2, "12a", 10, 0, 20, 0),
           zaznam(T::cislo_koleje, 63, 77, "13", 10, 0, 20, 0)});
    const Prvek& cislo = relief.cislo_koleje[62];
    EXPECT_EQ(cislo.text(), "12a");
    EXPECT_EQ(cislo.popis(), "12a");
    EXPECT_EQ(cislo.zarovnani, 2);
    EXPECT_EQ(misto(cislo), (Ctyri{10, 20, 3 * kSirkaZnaku, kVyskaZnaku}));
    EXPECT_EQ(relief.cislo_koleje[63].zarovnani, 0); // no such alignment
    nastav_text(relief.cislo_koleje[62], "54321");
    EXPECT_EQ(relief.cislo_koleje[62].sirka(), 5 * kSirkaZnaku);
}

TEST_F(SouborReliefu, TargetIsARectangleBehindAllOthers) {
    nacti({zaznam(T::kolej, 62, 0, "", 1, 2, 3, 4), zaznam(T::cil, 62, 0, "1. kolej", 10, 300, 20, 400)});
    const Prvek& cil = relief.Image1[62];
    EXPECT_EQ(misto(cil), (Ctyri{10, 20, 300, 400}));
    EXPECT_EQ(cil.stav(), "1. kolej");
    EXPECT_EQ(cil.text(), "");
    EXPECT_LT(cil.poradi(), relief.kolej[62].poradi());
    EXPECT_LT(cil.poradi(), relief.kolej[0].poradi());
}

TEST_F(SouborReliefu, LampsOfAStationCrossingGrowInFront) {
    nacti({zaznam(T::prejezd_stanice, 0, 5, "", 10, 0, 20, 0),
           zaznam(T::prejezd_stanice, 1, 10, "", 1, 0, 2, 0)});
    EXPECT_EQ(relief.lblPrejezd[0].text(), "\x10\x0D\x10\x0D\x10");
    EXPECT_EQ(relief.lblPrejezd[1].text(), "\x0D\x10\x0D\x10\x0D\x10\x0D\x10\x0D\x10");
    EXPECT_EQ(relief.lblPrejezd[0].vlevo(), 10);
    EXPECT_EQ(relief.lblPrejezd[0].nahore(), 20);
}

TEST_F(SouborReliefu, CrossingOfNoLampsHasAnEmptyCaption) {
    nacti({zaznam(T::prejezd_stanice, 0, 0, "jmeno", 10, 0, 20, 0)});
    EXPECT_EQ(relief.lblPrejezd[0].text(), "");
    EXPECT_TRUE(relief.lblPrejezd[0].viditelny());
}

TEST_F(SouborReliefu, LineCrossingIsANumberBetweenTwoLamps) {
    nacti({zaznam(T::prejezd_trati, 3, 12, "", 1000, 0, 2000, 0)});
    EXPECT_EQ(relief.lblPrejezdy[3].text(), "12");
    EXPECT_EQ(relief.lblPrejezdy[3].vlevo(), 1000);
    EXPECT_EQ(relief.shpPrejezdy[3].vlevo(), 900);
    EXPECT_EQ(relief.shpPrejezdy[3].nahore(), 2000);
    EXPECT_EQ(relief.shpPrejezdy[13].vlevo(), 1150);
    EXPECT_EQ(relief.shpPrejezdy[13].nahore(), 2000);
    EXPECT_EQ(relief.shpPrejezdy[13].okraj(), 0xC0C0C0);
    EXPECT_TRUE(relief.shpPrejezdy[3].viditelny());
    EXPECT_TRUE(relief.shpPrejezdy[13].viditelny());
}

TEST_F(SouborReliefu, LineCrossingAtTheEndOfTheTableKeepsWhatFits) {
    nacti({zaznam(T::prejezd_trati, 995, 1, "", 1000, 0, 2000, 0)});
    EXPECT_TRUE(relief.lblPrejezdy.je(995));
    EXPECT_TRUE(relief.shpPrejezdy.je(995));
    EXPECT_EQ(relief.shpPrejezdy.nejvyssi(), 995);
}

TEST_F(SouborReliefu, BridgeIsALineOfItsOwnKind) {
    nacti({zaznam(T::most, 4, 0, "", 100, 200, 300, 400)});
    EXPECT_EQ(cara(relief.most[4]), (Ctyri{100, 300, 200, 400}));
    EXPECT_FALSE(je_kolej(4));
}

TEST_F(SouborReliefu, PlatformStandsFiftyTwipsHigherAndBehindEverything) {
    nacti({zaznam(T::nastupiste, 1, 0, "", 10, 1440, 2000, 195), zaznam(T::cil, 62, 0, "", 1, 2, 3, 4)});
    const Prvek& nastupiste = relief.lblnastupiste[1];
    EXPECT_EQ(misto(nastupiste), (Ctyri{10, 1950, 1440, 195}));
    EXPECT_EQ(nastupiste.text(), Text(12, '\xEE'));
    EXPECT_LT(nastupiste.poradi(), relief.Image1[62].poradi());
}

TEST_F(SouborReliefu, OperatorPostIsAPictureOf320Twips) {
    nacti({zaznam(T::stanoviste, 6, 44, "ROK", 10, 0, 20, 0)});
    EXPECT_EQ(misto(relief.imgStanoviste[6]), (Ctyri{10, 20, 320, 320}));
    EXPECT_EQ(relief.imgStanoviste[6].obrazek(), 44);
    EXPECT_EQ(relief.imgStanoviste[6].stav(), "ROK");
}

TEST_F(SouborReliefu, StationNameHasTheSizeOfTheRecord) {
    nacti({zaznam(T::popis_stanice, 2, 0, "Borovec", 10, 2400, 20, 390)});
    EXPECT_EQ(misto(relief.popis_stanice[2]), (Ctyri{10, 20, 2400, 390}));
    EXPECT_EQ(relief.popis_stanice[2].text(), "Borovec");
}

TEST_F(SouborReliefu, SwitchStartsInTheStateOfItsName) {
    nacti({zaznam(T::vyhybka, 7, 0, "2", 4000, 0, 3900, 0), zaznam(T::vyhybka, 8, 0, "", 1, 0, 2, 0),
           zaznam(T::vyhybka, 9, 0, "99999", 1, 0, 2, 0)});
    EXPECT_EQ(relief.imgVyhybka[7].stav(), "2");
    EXPECT_EQ(relief.imgVyhybka[7].obrazek(), 102);
    EXPECT_EQ(relief.imgVyhybka[7].vlevo(), 4000);
    EXPECT_EQ(relief.imgVyhybka[7].nahore(), 3900);
    EXPECT_EQ(relief.imgVyhybka[8].obrazek(), 100);
    EXPECT_EQ(relief.imgVyhybka[9].stav(), "99999"); // no picture has that number
    EXPECT_EQ(relief.imgVyhybka[9].obrazek(), 0);
}

TEST_F(SouborReliefu, ConsentLampsAndArrowsShowTheirName) {
    nacti(
        {zaznam(T::souhlas, 2, 0, "\xB0", 10, 0, 20, 0), zaznam(T::smer_trati, 604, 0, "<<", 30, 0, 40, 0)});
    EXPECT_EQ(relief.lblSouhlas[2].text(), "\xB0");
    EXPECT_EQ(relief.lblSouhlas[2].barva(), barvy::seda);
    EXPECT_EQ(relief.lblSouhlas2[604].text(), "<<");
    EXPECT_EQ(relief.lblSouhlas2[604].vlevo(), 30);
    EXPECT_EQ(relief.lblSouhlas2[604].barva(), barvy::seda);
}

TEST_F(SouborReliefu, EveryArrowIsVisible) {
    for (const int n : {634, 636, 638, 632})
        nacti({zaznam(T::smer_trati, n, 0, ">>", 30, 0, 40, 0)});
    for (const int n : {634, 636, 638, 632})
        EXPECT_TRUE(relief.lblSouhlas2[n].viditelny()) << n;
}

TEST_F(SouborReliefu, BufferStopsAndSignalMarksArePaintedOnTheBackground) {
    const Relief pred = relief;
    nacti({zaznam(T::napis_zarazedla, 3, 60, "", 1000, 0, 2000, 0),
           zaznam(T::napis_zarazedla, 3, 62, "", 1000, 0, 2000, 0),
           zaznam(T::napis_navestidla, 3, 0, "", 1000, 0, 2000, 0)});
    EXPECT_EQ(relief.napisy,
              (std::vector<NapisPozadi>{
                  {850, 2025, "\x14\x12"}, {970, 2025, "\x13\x14"}, {1000, 2000, "\xE5\x14\x12"}}));
    relief.napisy.clear();
    EXPECT_EQ(relief, pred); // they belong to no element
}

TEST_F(SouborReliefu, DerailerShowsItsGlyph) {
    nacti({zaznam(T::vykolejka, 1, 23, "", 10, 0, 20, 0)});
    EXPECT_EQ(relief.lblVykolejka[1].text(), "\x17");
}

TEST_F(SouborReliefu, NumberOutsideTheTableLeavesNothingAndDisturbsNothing) {
    for (int typ = 1; typ <= 17; ++typ) {
        if (typ == 15 || typ == 16) // painted texts have no number
            continue;
        for (const int cislo : {5000, 1000, -1, -3, -32768, 32767}) {
            relief = novy_relief();
            const Relief pred = relief;
            nacti({zaznam(static_cast<T>(typ), cislo, 10, "2", 1, 2, 3, 4)});
            const bool soused = typ == 7 && cislo >= -10 && cislo < 0; // the second lamp still fits
            EXPECT_EQ(relief == pred, !soused) << typ << " " << cislo;
        }
    }
}

TEST_F(SouborReliefu, SecondRecordOfANumberOverwritesTheAttributes) {
    nacti({zaznam(T::cislo_koleje, 62, 1, "prvni", 10, 0, 20, 0),
           zaznam(T::cislo_koleje, 62, 0, "druhy", 30, 0, 40, 0)});
    EXPECT_EQ(relief.cislo_koleje[62].text(), "druhy");
    EXPECT_EQ(relief.cislo_koleje[62].popis(), "druhy");
    EXPECT_EQ(relief.cislo_koleje[62].zarovnani, 0);
    EXPECT_EQ(relief.cislo_koleje[62].vlevo(), 30);
}

TEST_F(SouborReliefu, ElementZeroOnlyTakesAttributes) {
    EXPECT_FALSE(relief.kolej[0].viditelny());
    nacti({zaznam(T::kolej, 0, 0, "", 1, 2, 3, 4)});
    EXPECT_TRUE(relief.kolej[0].viditelny());
    EXPECT_EQ(relief.kolej.nejvyssi(), 0);
}

TEST_F(SouborReliefu, LaterElementLiesOnTop) {
    nacti({zaznam(T::navestidlo, 62, 229, "", 1, 0, 2, 0), zaznam(T::kolej, 62, 0, "", 1, 2, 3, 4),
           zaznam(T::cislo_koleje, 62, 0, "", 1, 0, 2, 0)});
    EXPECT_LT(relief.navestidlo[62].poradi(), relief.kolej[62].poradi());
    EXPECT_LT(relief.kolej[62].poradi(), relief.cislo_koleje[62].poradi());
}

TEST_F(SouborReliefu, IsReadTwiceWithTheSameResult) {
    zapis_male_kolejiste(slozka.cesta);
    nacti_relief();
    const std::vector<NapisPozadi> napisy = relief.napisy;
    nacti_relief();
    EXPECT_EQ(relief.napisy, napisy);
}

} // namespace
