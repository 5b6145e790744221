// testy/gvd/gvd_test.cpp - reading the timetable, names of stations and categories.
#include "app/simulace.h"
#include "gvd/gvd.h"
#include "pomocne/zastavky.h"
#include "zaklad/chyba.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

GvdVlak radek(std::int32_t cislo) {
    GvdVlak v;
    v.zastavky = zastavky_radku({1, 8}, {-1, 500}, {490, 501});
    v.cislo = cislo;
    v.vozy = {"943", "054"};
    v.vozy_vlaky = {0, 7};
    v.dny = 1;
    return v;
}

Bajty soubor(const std::vector<GvdVlak>& radky) {
    Zapisovac z;
    z.l(12345);
    z.text("Zkušební řád"_cz);
    for (const GvdVlak& v : radky)
        popis_poli(z, v);
    return z.bajty;
}

class Gvd : public testing::Test {
protected:
    std::string slozka = testing::TempDir() + "tesk-gvd-XXXXXX"; // tests run side by side

    void SetUp() override {
        ASSERT_NE(::mkdtemp(slozka.data()), nullptr);
        simulace.soubor_gvd = slozka + "\\GVD\\Zkouska.DAT";
        std::filesystem::create_directories(slozka + "/gvd");
    }
    void TearDown() override {
        std::filesystem::remove_all(slozka);
        simulace.soubor_gvd.clear();
        simulace.den = 1;
        simulace.pp_povoleno = true;
        gvd_vlaky = {};
    }
    void zapis(const Bajty& bajty) {
        std::ofstream soubor(slozka + "/gvd/zkouska.dat", std::ios::binary);
        soubor.write(reinterpret_cast<const char*>(bajty.data()), static_cast<std::streamsize>(bajty.size()));
    }
};

// The rows that a register gives.
std::vector<int> radky(TabulkaGvd::Zapisy zapisy) {
    std::vector<int> vysledek;
    for (const auto& [klic, n] : zapisy)
        vysledek.push_back(n);
    return vysledek;
}

} // namespace

TEST_F(Gvd, RowsAreFoundInFileOrderByNumberByNextTrainAndByTheSetHandedOn) {
    std::vector<GvdVlak> rad = {radek(1702), radek(1701), radek(1702), radek(-5)};
    rad[0].navazny_vlak = " 0044 ";
    rad[2].navazny_vlak = "44";
    rad[3].navazny_vlak = "44.5";
    rad[1].vozy_vlaky = {9, 8, 9};
    rad[2].vozy = {"810"}; // one vehicle alone keeps no set
    rad[3].vozy_vlaky = {7};
    gvd_vlaky = TabulkaGvd(rad);
    EXPECT_EQ(radky(gvd_vlaky.s_cislem(1702)), (std::vector{0, 2}));
    EXPECT_EQ(radky(gvd_vlaky.s_cislem(-5)), std::vector{3});
    EXPECT_TRUE(gvd_vlaky.s_cislem(1702.5).empty());
    EXPECT_TRUE(gvd_vlaky.s_cislem(1e12).empty());
    EXPECT_EQ(radky(gvd_vlaky.s_navaznym(44)), (std::vector{0, 2}));
    EXPECT_TRUE(gvd_vlaky.s_navaznym(44.5).empty());
    EXPECT_EQ(radky(gvd_vlaky.s_predanou_soupravou(7)), std::vector{0});
    EXPECT_EQ(radky(gvd_vlaky.s_predanou_soupravou(8)), std::vector{1});
}

TEST_F(Gvd, RowsAreFoundByTheirMinuteOfEntryWhateverTheFileHolds) {
    std::vector<GvdVlak> rad = {radek(1), radek(2), radek(3), radek(4), radek(5)};
    rad[1].zastavky.front().prijezd = 100; // it comes before it leaves
    rad[2].zastavky.front().odjezd = -1;
    rad[3].zastavky.front().odjezd = 1440 + 490;
    rad[4].zastavky.front().odjezd = -32768;
    gvd_vlaky = TabulkaGvd(rad);
    const auto v_minute = [](int m) {
        const auto nalez = gvd_vlaky.v_minute(m);
        return std::vector<int>(nalez.begin(), nalez.end());
    };
    EXPECT_EQ(v_minute(490), (std::vector{0, 3}));
    EXPECT_EQ(v_minute(100), std::vector{1});
    EXPECT_EQ(v_minute(1439), std::vector{2});
    EXPECT_EQ(v_minute(352), std::vector{4});
    EXPECT_TRUE(v_minute(0).empty());
    gvd_vlaky = {};
    EXPECT_TRUE(v_minute(490).empty());
}

TEST_F(Gvd, LastRecordThatEndsWithTheFileIsKept) {
    zapis(soubor({radek(1), radek(2)}));
    nacti_gvd();
    ASSERT_EQ(gvd_vlaky.size(), 2u);
    EXPECT_EQ(gvd_vlaky[1], radek(2));
}

TEST_F(Gvd, EveryCutFileKeepsItsWholeRows) {
    const Bajty cely = soubor({radek(1), radek(2)});
    const Bajty jeden = soubor({radek(1)});
    for (std::size_t delka = 0; delka < cely.size(); ++delka) {
        zapis(Bajty(cely.begin(), cely.begin() + static_cast<std::ptrdiff_t>(delka)));
        nacti_gvd();
        ASSERT_EQ(gvd_vlaky.size(), delka >= jeden.size() ? 1u : 0u) << delka;
    }
}

TEST_F(Gvd, RowWhoseTimesDoNotMatchItsStationsIsLeftOut) {
    constexpr std::ptrdiff_t kBajtuZastavek = 3 * 10 + 2 * (1 + 2 + 2); // three lists of two
    const auto bajty_radku = [](const GvdVlak& r) {
        Zapisovac z;
        popis_poli(z, r);
        return z.bajty;
    };
    for (const unsigned kratky : {0u, 1u, 2u}) {
        Zapisovac z;
        const std::vector<std::uint8_t> stanice(kratky == 0 ? 1 : 2, 1);
        const std::vector<std::int16_t> prijezdy(kratky == 1 ? 1 : 2, 500), odjezdy(kratky == 2 ? 1 : 2, 500);
        pole_b(z, stanice);
        pole_i(z, prijezdy);
        pole_i(z, odjezdy);
        const Bajty cely = bajty_radku(radek(5)), dalsi = bajty_radku(radek(2));
        Bajty bajty = soubor({radek(1)});
        bajty.insert(bajty.end(), z.bajty.begin(), z.bajty.end());
        bajty.insert(bajty.end(), cely.begin() + kBajtuZastavek, cely.end());
        bajty.insert(bajty.end(), dalsi.begin(), dalsi.end());
        zapis(bajty);
        nacti_gvd();
        ASSERT_EQ(gvd_vlaky.size(), 2u) << kratky;
        EXPECT_EQ(gvd_vlaky[0], radek(1)) << kratky;
        EXPECT_EQ(gvd_vlaky[1], radek(2)) << kratky;
    }
}

TEST_F(Gvd, FileWithoutRowsLeavesAnEmptyTimetable) {
    zapis(soubor({}));
    nacti_gvd();
    EXPECT_TRUE(gvd_vlaky.empty());
}

TEST_F(Gvd, MissingFileIsARunTimeError) {
    try {
        nacti_gvd();
        FAIL();
    } catch (const BehovaChyba& c) {
        EXPECT_EQ(c.kod, KodChyby::soubor_nenalezen);
    }
}

TEST_F(Gvd, DescriptionComesFromTheHeaderAlone) {
    zapis(soubor({}));
    EXPECT_EQ(popis_gvd(simulace.soubor_gvd), "Zkušební řád"_cz);
    EXPECT_EQ(popis_gvd("nikde\\neni.dat"), "");
}

TEST_F(Gvd, RowRunsOnItsDayOnly) {
    GvdVlak v = radek(1);
    v.dny = 2 | 4;
    simulace.den = 1;
    EXPECT_FALSE(aktivni_dnes(v));
    simulace.den = 4;
    EXPECT_TRUE(aktivni_dnes(v));
}

TEST_F(Gvd, HolidayRowRunsOnlyWhenPPTrainsAreAllowed) {
    GvdVlak v = radek(1);
    v.dny = 128;
    EXPECT_TRUE(aktivni_dnes(v));
    simulace.pp_povoleno = false;
    EXPECT_FALSE(aktivni_dnes(v));
}

TEST(NazvyStanic, MainStationAnswersTheNoneCodeToo) {
    EXPECT_EQ(nazev_stanice(-3), "Tesk hl. n."_cz);
    EXPECT_EQ(nazev_stanice(9), "Tesk hl. n."_cz);
    EXPECT_EQ(kod_stanice(-3), "");
}

TEST(NazvyStanic, PointsWithoutACodeHaveAnEmptyOne) {
    for (const int kod : {7, 10, 11, 14, 15, 16, 21, 22, 23, 24, 32, 35, 36, 37, 38}) {
        EXPECT_EQ(kod_stanice(kod), "") << kod;
        EXPECT_NE(nazev_stanice(kod), "") << kod;
    }
    EXPECT_EQ(kod_stanice(34), "DVH"_cz);
}

TEST(NazvyStanic, UnknownCodesAreEmpty) {
    for (const int kod : {-1, 0, 25, 26, 29, 39, 255}) {
        EXPECT_EQ(nazev_stanice(kod), "") << kod;
        EXPECT_EQ(kod_stanice(kod), "") << kod;
    }
}

TEST(DruhyVlaku, NineHasNoShortForm) {
    EXPECT_EQ(zkratka_druhu(1), "EC");
    EXPECT_EQ(zkratka_druhu(9), "");
    EXPECT_EQ(zkratka_druhu(10), "Nex");
    EXPECT_EQ(zkratka_druhu(18), "Vle");
    EXPECT_EQ(zkratka_druhu(19), "");
}
