// testy/relief/topologie_test.cpp - lengths of elements.
#include "pomocne/male_kolejiste.h"
#include "relief/topologie.h"
#include "zaklad/chyba.h"
#include "zaklad/platforma.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace {

class Topologie : public testing::Test {
protected:
    DocasnaSlozka slozka;

    Topologie() {
        simulace = Simulace{};
        simulace.cesta_aplikace = slozka.cesta;
        zaloz_slozku(slozka.cesta + "data");
    }
    ~Topologie() override { simulace = Simulace{}; }
    void pis(TextPohled text) { zapis_soubor(slozka.cesta + "data\\tesk.top", bajty_textu(text)); }
};

TEST_F(Topologie, ElementNotInTheFileIs60MetresLong) {
    pis("");
    EXPECT_EQ(delka_koleje(62), 60);
    pis(" 63 400");
    EXPECT_EQ(delka_koleje(62), 60);
    EXPECT_EQ(delka_koleje(63), 400);
}

TEST_F(Topologie, LengthOfZeroOrOfBlanksIs60Metres) {
    pis("062000063    ");
    EXPECT_EQ(delka_koleje(62), 60);
    pis("0620000063    ");
    EXPECT_EQ(delka_koleje(62), 60);
    EXPECT_EQ(delka_koleje(63), 60);
}

TEST_F(Topologie, FirstRecordOfANumberWins) {
    pis("06201000620200");
    EXPECT_EQ(delka_koleje(62), 100);
    pis("06200000620500"); // also when it says nothing
    EXPECT_EQ(delka_koleje(62), 60);
}

TEST_F(Topologie, NumbersEndAt999) {
    pis("99901001000200");
    EXPECT_EQ(delka_koleje(999), 100);
    EXPECT_EQ(delka_koleje(1000), 60);
    EXPECT_EQ(delka_koleje(100), 200); // three digits of the number, four of the length: "100" "0200"
    for (const int n : {-32768, -3, -1, 32767})
        EXPECT_EQ(delka_koleje(n), 60) << n;
}

TEST_F(Topologie, FieldsAreReadLeniently) {
    pis(" 62 12a"
        "63   7 "
        "6x9 1-2"
        " 5 9999");
    EXPECT_EQ(delka_koleje(62), 12);
    EXPECT_EQ(delka_koleje(63), 7);
    EXPECT_EQ(delka_koleje(6), 1);
    EXPECT_EQ(delka_koleje(69), 60);
    EXPECT_EQ(delka_koleje(5), 9999);
}

TEST_F(Topologie, BlankNumberIsElementZero) {
    pis("    123");
    EXPECT_EQ(delka_koleje(0), 123);
}

TEST_F(Topologie, CutRecordIsDropped) {
    pis("0620100063020");
    EXPECT_EQ(delka_koleje(62), 100);
    EXPECT_EQ(delka_koleje(63), 60);
}

TEST_F(Topologie, ChangedFileGivesTheNewAnswer) {
    for (int metry = 100; metry < 150; ++metry) {
        pis("062" + text_cisla_mist(metry, 4));
        ASSERT_EQ(delka_koleje(62), metry);
    }
}

TEST_F(Topologie, FileChangedByAnotherProgramIsSeenWithinTenSeconds) {
    std::int32_t tik = 1;
    platforma.tik_ms = [&] { return tik; };
    pis("0620100");
    EXPECT_EQ(delka_koleje(62), 100);
    Text na_disku = slozka.cesta + "data/tesk.top";
    std::replace(na_disku.begin(), na_disku.end(), '\\', '/');
    std::ofstream(na_disku) << "0620200   ";
    tik += 9'999;
    EXPECT_EQ(delka_koleje(62), 100);
    ++tik;
    EXPECT_EQ(delka_koleje(62), 200);
    platforma = prazdna_platforma();
}

TEST_F(Topologie, OtherFolderGivesItsOwnAnswer) {
    pis("0620100");
    EXPECT_EQ(delka_koleje(62), 100);
    DocasnaSlozka druha;
    simulace.cesta_aplikace = druha.cesta;
    zaloz_slozku(druha.cesta + "DATA");
    zapis_soubor(druha.cesta + "DATA\\TESK.TOP", bajty_textu("0620200")); // found in any case
    EXPECT_EQ(delka_koleje(62), 200);
    simulace.cesta_aplikace = slozka.cesta;
    EXPECT_EQ(delka_koleje(62), 100);
}

TEST_F(Topologie, FileThatWasNeverThereIsError53AndOneTakenAwayGoesOnHolding) {
    const auto kod = [] {
        try {
            delka_koleje(62);
        } catch (const BehovaChyba& e) {
            return e.kod;
        }
        return KodChyby{};
    };
    EXPECT_EQ(kod(), KodChyby::soubor_nenalezen);
    pis("0620100");
    EXPECT_EQ(kod(), KodChyby{});
    smaz_soubor(slozka.cesta + "data\\tesk.top");
    EXPECT_EQ(kod(), KodChyby{});
    EXPECT_EQ(delka_koleje(62), 100);
    pis("0620300"); // it comes back as another one
    EXPECT_EQ(delka_koleje(62), 300);
    const DocasnaSlozka jina; // of another folder nothing is known
    simulace.cesta_aplikace = jina.cesta;
    EXPECT_EQ(kod(), KodChyby::soubor_nenalezen);
}

} // namespace
