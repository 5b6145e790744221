// testy/save/gtn_test.cpp - the train-number log, byte by byte.
#include "app/cas.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "zaklad/chyba.h"

#include <csignal>
#include <sys/resource.h>

namespace {

class Denik : public SPlatformou {
protected:
    static constexpr std::size_t kHlavicka = 36; // with a date of eight letters
    void SetUp() override {
        svet.cas = {2026, 1, 5, 8, 0, 5, 0};
        nastav_cas("12:00:00");
    }
    Bajty obsah(const char* jmeno = "GTN/260105.gtn") {
        gtn_vyprazdni();
        return svet.precti(jmeno);
    }
    static std::int32_t cas_zaznamu(const Bajty& log, std::size_t i) {
        const std::size_t z = kHlavicka + 11 * i;
        return static_cast<std::int32_t>(log[z] | log[z + 1] << 8 | log[z + 2] << 16 | log[z + 3] << 24);
    }
};

TEST_F(Denik, BeginsWithTheHeaderOfTheDay) {
    simulace.den_startu = 3;
    gtn_otevri();
    Zapisovac ceka;
    ceka.text("5.1.2026");
    ceka.l(8 * 3600 + 5);
    ceka.text("KPS RVZ TESK2");
    ceka.b(3);
    ceka.i(kVerzeRevize);
    ceka.i(kVerzeMajor);
    ceka.i(kVerzeMinor);
    EXPECT_EQ(ceka.bajty.size(), kHlavicka);
    EXPECT_EQ(obsah(), ceka.bajty);
}

TEST_F(Denik, RecordIsElevenBytes) {
    gtn_otevri();
    gtn_zapis(262, gtn::barva_navestidla, barvy::zelena);
    const Bajty log = obsah();
    const Bajty zaznam(log.begin() + kHlavicka, log.end());
    EXPECT_EQ(zaznam, (Bajty{0xC0, 0xA8, 0, 0, 75, 6, 1, 0, 0xFF, 0, 0}));
}

TEST_F(Denik, TellsItsLastEventsUntilTimeIsTurnedBack) {
    gtn_otevri();
    EXPECT_TRUE(gtn_posledni().empty());
    const MistoGtn misto = gtn_misto();
    for (int i = 0; i < 100; ++i)
        gtn_zapis(i, gtn::barva_koleje, 7);
    const std::vector<UdalostDeniku> posledni = gtn_posledni();
    ASSERT_EQ(posledni.size(), kPoslednichUdalosti);
    EXPECT_EQ(posledni.front(), (UdalostDeniku{12 * 3600, gtn::barva_koleje, 36, 7}));
    EXPECT_EQ(posledni.back().prvek, 99);
    gtn_odrizni(misto);
    EXPECT_TRUE(gtn_posledni().empty());
    gtn_zapis(5, gtn::zrusena, 0);
    EXPECT_EQ(gtn_posledni().size(), 1u);
}

TEST_F(Denik, HoldsRecordsInTheOrderOfTheEventsAndWholeOnesOnly) {
    gtn_otevri();
    for (int i = 0; i < 20000; ++i)
        gtn_zapis(i % 1000, gtn::barva_koleje, i);
    EXPECT_GT(svet.precti("GTN/260105.gtn").size(), kHlavicka); // written out before the end comes
    const Bajty log = obsah();
    ASSERT_EQ(log.size(), kHlavicka + 11u * 20000u);
    EXPECT_EQ(log[kHlavicka + 11 * 300 + 7], 300 % 256);
    EXPECT_EQ(log[kHlavicka + 11 * 300 + 8], 300 / 256);
}

TEST_F(Denik, SecondStartOfADayLeavesOnlyTheSecondLog) {
    gtn_otevri();
    gtn_zapis(1, gtn::barva_koleje, 0);
    gtn_otevri();
    EXPECT_EQ(obsah().size(), kHlavicka);
}

TEST_F(Denik, RunsOnInTheFileOfItsFirstDay) {
    gtn_otevri();
    svet.cas.den = 6;
    gtn_zapis(1, gtn::barva_koleje, 0);
    EXPECT_EQ(obsah().size(), kHlavicka + 11);
    EXPECT_TRUE(svet.precti("GTN/260106.gtn").empty());
}

TEST_F(Denik, TimeGrowsAcrossMidnight) {
    gtn_otevri();
    simulace.cas_zacatku = 1438;
    simulace.minuty_simulace = 1;
    nastav_cas("23:59:59");
    gtn_zapis(1, gtn::barva_koleje, 0);
    simulace.minuty_simulace = 2;
    nastav_cas("0:00:00");
    gtn_zapis(1, gtn::barva_koleje, 0);
    const Bajty log = obsah();
    EXPECT_EQ(cas_zaznamu(log, 0), 86399);
    EXPECT_EQ(cas_zaznamu(log, 1), 86400);
}

TEST_F(Denik, ClosingWritesOutWhatIsHeldBack) {
    gtn_otevri();
    gtn_zapis(1, gtn::barva_koleje, 0);
    gtn_zavri();
    EXPECT_EQ(svet.precti("GTN/260105.gtn").size(), kHlavicka + 11);
    gtn_zapis(2, gtn::barva_koleje, 0); // no log is open: nothing happens
    EXPECT_EQ(svet.precti("GTN/260105.gtn").size(), kHlavicka + 11);
}

TEST_F(Denik, LogThatCannotBeOpenedIsAnErrorAndNothingIsLogged) {
    svet.zapis("GTN", "a file where the folder should be"); // so the folder cannot be made
    EXPECT_THROW(gtn_otevri(), BehovaChyba);
    EXPECT_NO_THROW(gtn_zapis(1, gtn::barva_koleje, 0));
    EXPECT_NO_THROW(gtn_vyprazdni());
}

TEST_F(Denik, FullDiskIsToldOnceAndNothingIsLostWhenThereIsRoomAgain) {
    gtn_otevri();
    gtn_zapis(1, gtn::barva_koleje, 1);
    EXPECT_FALSE(gtn_vyprazdni());
    const Bajty zacatek = obsah();
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    const rlimit mez{zacatek.size() + 5, puvodni.rlim_max}; // half a record more
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mez);
    gtn_zapis(2, gtn::barva_koleje, 2);
    EXPECT_EQ(gtn_vyprazdni(), KodChyby::disk_plny);
    for (int i = 0; i < 20'000; ++i)
        gtn_zapis(3, gtn::barva_koleje, i);
    EXPECT_FALSE(gtn_vyprazdni());
    EXPECT_EQ(svet.precti("GTN/260105.gtn"), zacatek) << "whole records only";
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(obsah().size(), zacatek.size() + 11u * 20'001u);
}

TEST_F(Denik, KeepsItsMovementsWhenTimeIsTurnedBackThoughItHasNoFile) {
    gtn_do_souboru(false);
    gtn_otevri();
    gtn_do_souboru(true);
    gtn_zapis(12, gtn::vlak_na_kolej, 4711);
    const MistoGtn misto = gtn_misto();
    gtn_zapis(12, gtn::vlak_z_koleje, 4711);
    gtn_zapis(13, gtn::vlak_na_kolej, 4711);
    gtn_zapis(1, gtn::prejezd, 1);
    const KonecGtn konec = gtn_odrizni(misto);
    EXPECT_EQ(gtn_pohyby().size(), 1u);
    EXPECT_TRUE(gtn_prejezdy().empty());
    gtn_zapis(12, gtn::vlak_z_koleje, 4711); // a part of it comes again as it was
    gtn_pripoj(konec, misto, gtn_misto());
    ASSERT_EQ(gtn_pohyby().size(), 3u);
    EXPECT_EQ(gtn_pohyby()[2], (PohybVlaku{43'200, 13, 4711, true}));
    EXPECT_EQ(gtn_prejezdy().size(), 1u);
    EXPECT_TRUE(svet.precti("GTN/260105.gtn").empty()) << "and nothing is on the disk";
}

} // namespace
