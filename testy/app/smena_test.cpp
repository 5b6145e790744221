// testy/app/smena_test.cpp - the record of the shift plays it again, to the byte of its log.
#include "pomocne/semena.h"
#include "pomocne/smena_ruky.h"

#include <cstdlib>

namespace {

// Simulated minutes of a shift; TESK_HODIN=1 for whole hours.
std::int64_t minut() {
    const char* text = std::getenv("TESK_HODIN");
    return text != nullptr ? std::atoi(text) * 60 : 20;
}

class ZaznamSmeny : public SmenaRuky {
protected:
    std::string soubor() const {
        for (const auto& zaznam : std::filesystem::directory_iterator(koren / "smeny")) {
            std::ifstream proud(zaznam.path(), std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(proud), {});
        }
        return {};
    }
    void pracuj_minut(std::int64_t kolik) {
        while (ubehlo_s() < kolik * 60)
            pracuj(5000);
    }
    // The record is played: the same log, the same state, at the same millisecond.
    void over_prehrani(const std::string& zaznam) {
        const Bajty log = denik();
        StavSimulace stav = stav_simulace();
        const Nahoda zdroj = nahoda;
        const std::int64_t cas_ms = virtualni_hodiny.cas_ms;
        prehraj(zaznam);
        stav.parametry = parametry; // the start screen that is gone
        EXPECT_EQ(virtualni_hodiny.cas_ms, cas_ms);
        EXPECT_EQ(rozdil(stav_simulace(), stav), "");
        EXPECT_EQ(nahoda, zdroj);
        EXPECT_TRUE(denik() == log);
        EXPECT_TRUE(svet.odpovedi.empty());
    }
};

class ZaznamNahodneSmeny : public ZaznamSmeny, public testing::WithParamInterface<unsigned> {};

TEST_P(ZaznamNahodneSmeny, PlaysToTheSameLogAndState) {
    zacni(GetParam());
    pracuj_minut(minut());
    EXPECT_GT(denik().size(), 500u);
    over_prehrani(zaznam_smeny());
}

TEST_P(ZaznamNahodneSmeny, OnTheDiskHoldsAllUpToTheLastWholeMinuteAfterAKill) {
    zacni(GetParam(), true);
    std::size_t delka_minuty = 0; // of the log, at the last minute
    std::int16_t minuta = simulace.minuty_simulace;
    planovac.po_okamziku = [&, dal = planovac.po_okamziku] {
        dal();
        if (std::exchange(minuta, simulace.minuty_simulace) != simulace.minuty_simulace)
            delka_minuty = static_cast<std::size_t>(gtn_delka());
    };
    pracuj_minut(minut() / 2);
    const std::string zaznam = soubor();
    const std::int16_t minut_pri_padu = simulace.minuty_simulace;
    const Bajty log = denik();
    prehraj(zaznam);
    EXPECT_EQ(simulace.minuty_simulace, minut_pri_padu);
    const Bajty prehrany = denik();
    ASSERT_EQ(prehrany.size(), delka_minuty);
    EXPECT_TRUE(std::equal(prehrany.begin(), prehrany.end(), log.begin()));
}

INSTANTIATE_TEST_SUITE_P(Semena, ZaznamNahodneSmeny, semena(1, 3));

TEST_F(ZaznamSmeny, BringsTheSavedGameFromWhichTheShiftBegan) {
    zacni(5);
    pracuj_minut(5);
    skript("uloz hra.sim");
    novy_svet();
    skript("nacti hra.sim");
    skript("prihlas");
    pracuj_minut(5);
    const std::string zaznam = zaznam_smeny();
    std::filesystem::remove_all(koren / "save");
    over_prehrani(zaznam);
}

TEST_F(ZaznamSmeny, BringsTheMacrosAndLeavesThoseOfTheOperatorAlone) {
    zacni(6);
    const Bajty pred = obsah_maker();
    nahraj_makro();
    const Bajty makra = obsah_maker();
    ASSERT_NE(makra, pred);
    const std::string prvni = zaznam_smeny();
    zacni(7);
    skript("klavesa Alt+A");
    skript("cekej 1min");
    const std::string druhy = zaznam_smeny();
    const Bajty log = denik();
    obnov_makra({});
    prehraj(druhy);
    EXPECT_TRUE(denik() == log);
    prehraj(prvni);
    EXPECT_EQ(obsah_maker(), makra);
    novy_svet();
    EXPECT_TRUE(obsah_maker().empty());
}

TEST_F(ZaznamSmeny, PlayedAgainWritesNoSaveOverThoseOfTheOperator) {
    zacni(8);
    svet.odpovedi = {"smena.sim"};
    skript("klavesa Ctrl+S");
    skript("uloz druha.sim");
    skript("cekej 10min");
    ASSERT_TRUE(std::filesystem::exists(koren / "save" / "smena.sim"));
    ASSERT_TRUE(std::filesystem::exists(koren / "save" / "autosave"));
    const std::string zaznam = zaznam_smeny();
    std::filesystem::remove_all(koren / "save");
    over_prehrani(zaznam);
    EXPECT_FALSE(std::filesystem::exists(koren / "save"));
}

TEST_F(ZaznamSmeny, HoldsWhatTheOperatorAnsweredWhateverIsOnTheDisk) {
    zacni(9);
    svet.odpovedi = {"smena.sim"};
    skript("klavesa Ctrl+S");
    svet.odpovedi = {"smena.sim", "ne", "jina.sim"}; // the file is there: not over it
    skript("klavesa Ctrl+S");
    svet.odpovedi = {"ne"};
    skript("klik imgKONEC");
    EXPECT_TRUE(svet.odpovedi.empty());
    skript("cekej 1min");
    EXPECT_FALSE(simulace.pauza);
    const std::string zaznam = zaznam_smeny();
    std::filesystem::remove_all(koren / "save");
    over_prehrani(zaznam);
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(ZaznamSmeny, EndsWhereTimeWasTurnedBackAndGoesOnWithWhatIsDoneThen) {
    zacni(10, true);
    pracuj_minut(10);
    ASSERT_EQ(vrat_o(5 * 60), Navrat::hotovo);
    los.seed(1000);
    pracuj_minut(8);
    dopis_smenu();
    const std::string na_disku = soubor();
    over_prehrani(zaznam_smeny());
    over_prehrani(na_disku);
}

TEST_F(ZaznamSmeny, KeepsNoMoreThanTheNewestRecords) {
    std::filesystem::create_directories(koren / "smeny");
    for (std::size_t i = 0; i < kNejviceSmen + 5; ++i)
        std::ofstream(koren / "smeny" / ("2501" + std::to_string(10 + i) + "_080000.tesk")) << "smena";
    zacni(11, true);
    std::size_t zaznamu = 0;
    for (const auto& zaznam : std::filesystem::directory_iterator(koren / "smeny"))
        zaznamu += zaznam.is_regular_file() ? 1 : 0;
    EXPECT_EQ(zaznamu, kNejviceSmen + 1); // those of the past, and the present one
    EXPECT_FALSE(std::filesystem::exists(koren / "smeny" / "250110_080000.tesk"));
    EXPECT_TRUE(std::filesystem::exists(koren / "smeny" / "250164_080000.tesk"));
}

TEST(BajtyJakoPismena, ComeBackAsTheyWere) {
    EXPECT_EQ(na_base64({}), "");
    EXPECT_EQ(na_base64({'a'}), "YQ==");
    EXPECT_EQ(na_base64({'a', 'b'}), "YWI=");
    EXPECT_EQ(na_base64({'a', 'b', 'c'}), "YWJj");
    Bajty vse;
    for (int i = 0; i < 256; ++i) {
        vse.push_back(static_cast<std::uint8_t>(i));
        EXPECT_EQ(z_base64(na_base64(vse)), vse);
    }
    for (const char* text : {"Y", "YQ=", "Y===", "YQ=a", "Y?==", "YQ==YQ=="})
        EXPECT_FALSE(z_base64(text)) << text;
}

} // namespace
