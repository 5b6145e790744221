// testy/cesty/tabulky_test.cpp - reading the interlocking tables.
#include "cesty/stavedlo.h"
#include "cesty/tabulky.h"
#include "zaklad/chyba.h"

#include <fstream>

using Tabulky = Stavedlo;

TEST_F(Tabulky, FirstRecordOfAPairWins) {
    svet.zapis("data/tesk.zat", bajty_cest({{1, 9, prvky_cesty({1, 9}, {1, 1}, {0, 0}), 0},
                                            {240, 41, prvky_cesty({40, 41}, {1, 1}, {0, 0}), 3},
                                            {240, 41, prvky_cesty({40, 5, 41}, {1, 2, 1}, {0, 2, 0}), 1}}));
    const NalezenaCesta nalezena = najdi_v_tabulce(TabulkaCest::zat, 240, 41);
    ASSERT_TRUE(nalezena);
    EXPECT_EQ(nalezena.radek, 2);
    EXPECT_EQ(nalezena.zaznam->rychlost, 3);
    zarad(240, 41);
    EXPECT_EQ(cesty.back().ZT, 2);
}

TEST_F(Tabulky, UnknownPairIsNoRoute) {
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zat, 240, 44));
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zpc, 241, 604));
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zat, -3, -3));
}

TEST_F(Tabulky, ChangedFileIsReadAgain) {
    EXPECT_TRUE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
    svet.zapis("data/tesk.zat", bajty_cest({{7, 8, prvky_cesty({7, 8}, {1, 1}, {0, 0}), 0}}));
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
    EXPECT_TRUE(najdi_v_tabulce(TabulkaCest::zat, 7, 8));
}

TEST_F(Tabulky, CutRecordAtTheEndIsDropped) {
    Bajty bajty = bajty_cest(zat);
    const std::size_t cely = bajty.size();
    for (std::size_t delka = cely - 1; delka > cely - 20; --delka) {
        bajty.resize(delka);
        EXPECT_EQ(cti_cesty(bajty).size(), zat.size() - 1) << delka;
    }
}

TEST_F(Tabulky, RecordOfARouteTakesItsBytes) {
    // 35 + 4 m
    EXPECT_EQ(bajty_cest({zat[0]}).size(), 35u + 4 * 3);
    // 13 + k + n
    EXPECT_EQ(bajty_vazeb({{5, {6, 7}, "5/6"}}).size(), 13u + 2 + 3);
    Zapisovac z;
    const ZaznamMakra makro{"A", {{240, 41, 1}, {41, 40, 2}}};
    popis_zaznamu_makra(z, makro);
    EXPECT_EQ(z.bajty.size(), 33u + 5 * 2);
}

TEST_F(Tabulky, WhatTheListsOfADamagedRecordLackReadsAsZero) {
    Zapisovac z;
    z.i(240);
    z.i(41);
    const std::vector<std::int16_t> prvky{40, 5, 41};
    const std::vector<std::uint8_t> druhy{1, 2}, polohy{2, 3, 0, 9};
    pole_i(z, prvky);
    pole_b(z, druhy);
    pole_b(z, polohy);
    z.b(1);
    EXPECT_EQ(cti_cesty(z.bajty),
              (std::vector<ZaznamCesty>{{240, 41, prvky_cesty({40, 5, 41}, {1, 2, 0}, {2, 3, 0}), 1}}));
}

TEST_F(Tabulky, DamagedMacroHasThePicksThatAllItsListsHave) {
    Zapisovac z;
    const std::vector<std::uint8_t> druhy{1, 2, 1};
    const std::vector<std::int16_t> zacatky{240, 41}, konce{41, 40, 42};
    z.text("A");
    pole_b(z, druhy);
    pole_i(z, zacatky);
    pole_i(z, konce);
    EXPECT_EQ(cti_makra(z.bajty), (std::vector<ZaznamMakra>{{"A", {{240, 41, 1}, {41, 40, 2}}}}));
}

TEST_F(Tabulky, DamagedBytesNeverEndTheProcess) {
    const Bajty cele = bajty_cest(zat);
    for (std::size_t i = 0; i < cele.size(); ++i)
        for (const std::uint8_t hodnota : {std::uint8_t{0}, std::uint8_t{0x7F}, std::uint8_t{0xFF}}) {
            Bajty bajty = cele;
            bajty[i] = hodnota;
            EXPECT_LE(cti_cesty(bajty).size(), bajty.size() / 11);
        }
}

TEST_F(Tabulky, RouteWithoutElementsIsNoRoute) {
    svet.zapis("data/tesk.zat", bajty_cest({{240, 41, {}, 0}}));
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
    EXPECT_FALSE(najdi_cestu(240, 41, druh_volby::vlak, false));
}

TEST_F(Tabulky, TableChangedByAnotherProgramIsSeenWithinTenSeconds) {
    ASSERT_TRUE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
    const Bajty prazdna = bajty_cest({{240, 41, {}, 0}});
    std::ofstream(svet.koren / "data" / "tesk.zat", std::ios::binary)
        .write(reinterpret_cast<const char*>(prazdna.data()), std::ssize(prazdna));
    svet.tik += 9'999;
    EXPECT_TRUE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
    ++svet.tik;
    EXPECT_FALSE(najdi_v_tabulce(TabulkaCest::zat, 240, 41));
}

TEST_F(Tabulky, MissingTableIsAnError) {
    std::filesystem::remove(svet.koren / "data" / "tesk.zpc");
    try {
        najdi_v_tabulce(TabulkaCest::zpc, 240, 41);
        FAIL();
    } catch (const BehovaChyba& chyba) {
        EXPECT_EQ(chyba.kod, KodChyby::soubor_nenalezen);
    }
}

TEST_F(Tabulky, SwitchIsFoundByItsNameInAnyCase) {
    EXPECT_EQ(cislo_vyhybky("7A"), 7);
    EXPECT_EQ(cislo_vyhybky("7a"), 7);
    EXPECT_EQ(cislo_vyhybky("7b"), -1);
    EXPECT_EQ(cislo_vyhybky("7a/7b"), -1);
    EXPECT_EQ(cislo_vyhybky("5"), 5);
    EXPECT_EQ(cislo_vyhybky(""), -1);
}

TEST_F(Tabulky, FirstRecordOfASwitchHoldsItsLinks) {
    svet.zapis("data/tesk.stg", bajty_vazeb({{5, {9}, "prvni"}, {5, {255}, "druhy"}}));
    ASSERT_NE(najdi_vazby(5), nullptr);
    EXPECT_EQ(najdi_vazby(5)->nazev, "prvni");
    EXPECT_EQ(najdi_vazby(6), nullptr);
    EXPECT_EQ(najdi_vazby(-3), nullptr);
    EXPECT_EQ(najdi_vazby(300), nullptr);
}
