// testy/app/blikani_test.cpp - what flashes, and what half a second drives.
#include "app/blikani.h"
#include "app/cas.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "prvky/stanicni_prejezdy.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"

#include <array>

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

constexpr Barva kModrozelena = 0x808000;

class BlikaniDesky : public SPlatformou {
protected:
    void SetUp() override {
        simulace.pauza = false;
        nastav_cas("12:00:00");
    }
    static Text znaky(std::initializer_list<int> kody) {
        Text text;
        for (const int kod : kody)
            text += znak(kod);
        return text;
    }
    Prvek& lampa(int k, int kod) {
        Prvek& p = relief.lblSouhlas.zaloz(k);
        p.text = znak(kod);
        return p;
    }
    const Text zavreno = znaky({16, 13, 13, 13, 13, 13, 13, 13, 13, 16});
    const Text otevreno = znaky({13, 16, 13, 16, 13, 16, 13, 16, 13, 16});
    const Text vystraha_b = znaky({16, 13, 16, 13, 16, 13, 16, 13, 16, 13});
};

TEST_F(BlikaniDesky, StandsStillInAPause) {
    blikani.blikani_radku[3] = true;
    krok_blikani();
    simulace.pauza = true;
    lampa(0, 8);
    zadej_souhlas(0, 123);
    simulace.nova_zprava = true;
    simulace.pn_bezi = true;
    blikani.ramecek_hledani = 6;
    stanicni_prejezdy[0].cas = 1;
    svet.pipnuti.clear();
    const Relief pred = relief;
    const Blikani pred_blikani = blikani;
    for (int i = 0; i < 10; ++i)
        krok_blikani();
    EXPECT_EQ(relief, pred);
    EXPECT_EQ(blikani, pred_blikani);
    EXPECT_TRUE(svet.pipnuti.empty());
    EXPECT_EQ(stanicni_prejezdy[0].cas, 1);
}

TEST_F(BlikaniDesky, MarksOfAFlashingRowTakeTurns) {
    blikani.blikani_radku[5] = true;
    for (int i = 0; i < 3; ++i) {
        krok_blikani();
        EXPECT_EQ(relief.shpblikacka[5].barva, kZnackaRozsvicena);
        EXPECT_EQ(relief.shpblikacka[29].barva, kZnackaVypnuta);
        krok_blikani();
        EXPECT_EQ(relief.shpblikacka[5].barva, kZnackaVypnuta);
        EXPECT_EQ(relief.shpblikacka[29].barva, kZnackaRozsvicena);
    }
    EXPECT_EQ(relief.shpblikacka[4].barva, kZnackaVypnuta);
}

TEST_F(BlikaniDesky, RowThatNoLongerFlashesGoesDarkAtTheNextStep) {
    for (const int kroku : {1, 2}) {
        blikani.blikani_radku[0] = true;
        for (int i = 0; i < kroku; ++i)
            krok_blikani();
        blikani.blikani_radku[0] = false;
        krok_blikani();
        EXPECT_EQ(relief.shpblikacka[0].barva, kZnackaVypnuta);
        EXPECT_EQ(relief.shpblikacka[24].barva, kZnackaVypnuta);
    }
}

TEST_F(BlikaniDesky, WarningOnTheLineFlashesAndBeepsWhenItTurnsVisible) {
    zprava(" POZOR NVL ", "text", barvy::cervena);
    krok_blikani();
    EXPECT_FALSE(relief.lblPrikaz[0].viditelny);
    EXPECT_TRUE(svet.pipnuti.empty());
    krok_blikani();
    EXPECT_TRUE(relief.lblPrikaz[0].viditelny);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{450, 200}}));
}

TEST_F(BlikaniDesky, TwinOfTheLineFlashesAlike) {
    simulace.dva_monitory = true;
    relief.lblPrikaz.zaloz(1);
    relief.lblVolba.zaloz(1);
    zprava(" POZOR NVL ", "text", barvy::cervena);
    EXPECT_TRUE(relief.lblPrikaz[1].viditelny);
    krok_blikani();
    EXPECT_FALSE(relief.lblPrikaz[1].viditelny);
}

TEST_F(BlikaniDesky, OrdinaryMessageDoesNotFlash) {
    zprava(" ZAM ", "text", barvy::cervena);
    krok_blikani();
    EXPECT_TRUE(relief.lblPrikaz[0].viditelny);
}

TEST_F(BlikaniDesky, ClockPictureRunsThroughFourPictures) {
    std::vector<int> obrazky;
    for (int i = 0; i < 5; ++i) {
        krok_blikani();
        obrazky.push_back(relief.imgToc[0].obrazek);
    }
    EXPECT_EQ(obrazky, (std::vector<int>{111, 112, 113, 110, 111}));
}

TEST_F(BlikaniDesky, ClockPictureOfTheSecondMonitorFollows) {
    relief.imgToc2.zaloz(0);
    krok_blikani();
    EXPECT_EQ(relief.imgToc2[0].obrazek, 0);
    simulace.dva_monitory = true;
    for (int i = 0; i < 6; ++i) {
        krok_blikani();
        EXPECT_EQ(relief.imgToc2[0].obrazek, relief.imgToc[0].obrazek);
    }
}

TEST_F(BlikaniDesky, NothingBeepsWithTheSoundOff) {
    simulace.zvuk_vypnut = true;
    simulace.nova_zprava = true;
    simulace.pn_bezi = true;
    lampa(0, 8);
    zadej_souhlas(0, 4711);
    zprava(" POZOR PN ", "text", barvy::cervena);
    for (int i = 0; i < 4; ++i)
        krok_blikani();
    EXPECT_TRUE(svet.pipnuti.empty());
    EXPECT_FALSE(simulace.nova_zprava);
}

TEST_F(BlikaniDesky, ConsentLampMovesAndKeepsItsGlyph) {
    Prvek& p = lampa(2, 176);
    zadej_souhlas(2, 4711);
    for (int i = 0; i < 25; ++i) {
        krok_blikani();
        EXPECT_EQ(p.text(), " " + znak(176));
        krok_blikani();
        EXPECT_EQ(p.text(), znak(176));
    }
    krok_blikani();
    zadej_souhlas(2, TextPohled());
    krok_blikani();
    EXPECT_EQ(p.text(), znak(176));
    krok_blikani();
    EXPECT_EQ(p.text(), znak(176));
}

TEST_F(BlikaniDesky, WaitingConsentBeepsUntilSilenced) {
    lampa(0, 8);
    zadej_souhlas(0, 4711);
    krok_blikani();
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{500, 40}}));
    simulace.ticho_souhlasu = true;
    krok_blikani();
    EXPECT_EQ(svet.pipnuti.size(), 1u);
}

TEST_F(BlikaniDesky, StationCrossingClosesWhenItsTimeIsPast) {
    StanicniPrejezd& p = stanicni_prejezdy[1];
    p.cas = 12 * 3600;
    krok_blikani();
    EXPECT_FALSE(p.uzavren); // reached is not past
    nastav_cas("12:00:01");
    krok_blikani();
    EXPECT_TRUE(p.uzavren);
    EXPECT_EQ(p.cas, -3);
    EXPECT_FALSE(stanicni_prejezdy[0].uzavren);
}

TEST_F(BlikaniDesky, ClosingCrossingIsLoggedOnceAndOnlyWhenItWasOpen) {
    gtn_otevri();
    stanicni_prejezdy[1].cas = 1;
    stanicni_prejezdy[0].cas = 1;
    stanicni_prejezdy[0].uzavren = true;
    krok_blikani();
    krok_blikani();
    gtn_vyprazdni();
    const Bajty log = svet.precti("GTN/260105.gtn");
    ASSERT_GE(log.size(), 11u);
    EXPECT_EQ((log.size() - 28 - 8) % 11, 0u);
    const std::size_t z = log.size() - 11;
    EXPECT_EQ(log[z + 4], 76);
    EXPECT_EQ(log[z + 5], 1);
    EXPECT_EQ(log[z + 7], 1);
    EXPECT_EQ(log.size(), 36u + 11u);
}

TEST_F(BlikaniDesky, StationCrossingShowsOpenWarningAndClosed) {
    Prvek& p = relief.lblPrejezd.zaloz(1);
    StanicniPrejezd& prejezd = stanicni_prejezdy[1];
    krok_blikani();
    EXPECT_EQ(p.text(), otevreno);
    EXPECT_TRUE(p.ramecek);
    prejezd.cas = 13 * 3600; // the warning period
    krok_blikani();
    EXPECT_EQ(p.text(), vystraha_b);
    EXPECT_FALSE(p.ramecek);
    krok_blikani();
    EXPECT_EQ(p.text(), zavreno);
    EXPECT_TRUE(p.ramecek);
    krok_blikani();
    EXPECT_EQ(p.text(), vystraha_b);
    prejezd.uzavren = true;
    krok_blikani();
    EXPECT_EQ(p.text(), zavreno);
    EXPECT_FALSE(p.ramecek);
}

TEST_F(BlikaniDesky, CrossingWithATrainInItsAreaShowsClosed) {
    Prvek& p = relief.lblPrejezd.zaloz(1);
    stanicni_prejezdy[1].pocet = 129;
    krok_blikani();
    EXPECT_EQ(p.text(), zavreno);
    EXPECT_FALSE(p.ramecek);
}

TEST_F(BlikaniDesky, CrossingsOfOneGroupShareTheirNumber) {
    prejezdy.resize(11);
    relief.lblPrejezdy.zaloz(0);
    relief.lblPrejezdy.zaloz(1);
    relief.shpPrejezdy.zaloz(10);
    relief.shpPrejezdy.zaloz(11);
    prejezdy[4].zona = true;
    prejezdy[3].uvolnen = true;
    krok_blikani();
    EXPECT_TRUE(relief.shpPrejezdy[10].viditelny);
    EXPECT_FALSE(relief.shpPrejezdy[11].viditelny);
    EXPECT_EQ(relief.lblPrejezdy[0].barva, kModrozelena);
    EXPECT_EQ(relief.lblPrejezdy[1].barva, barvy::bila);
    prejezdy[4].zona = false;
    krok_blikani();
    EXPECT_FALSE(relief.shpPrejezdy[10].viditelny);
}

TEST_F(BlikaniDesky, EveryLineCrossingDrivesItsOwnLampAndNumber) {
    // crossing -> number of its label; the lamp of its zone stands ten higher
    constexpr std::array kNapisy = {0, 1, 0, 1, 0, 1, 2, 3, 4, 6, 7};
    prejezdy.resize(kNapisy.size());
    for (const int n : {0, 1, 2, 3, 4, 6, 7}) {
        relief.lblPrejezdy.zaloz(n);
        relief.shpPrejezdy.zaloz(n);
        relief.shpPrejezdy.zaloz(n + 10);
    }
    for (std::size_t k = 0; k < kNapisy.size(); ++k) {
        prejezdy.assign(kNapisy.size(), Prejezd{});
        prejezdy[k].zona = prejezdy[k].uvolnen = prejezdy[k].vyluka = true;
        krok_blikani();
        for (const int n : {0, 1, 2, 3, 4, 6, 7}) {
            const bool sviti = n == kNapisy[k];
            EXPECT_EQ(relief.shpPrejezdy[n + 10].viditelny(), sviti) << k << ' ' << n;
            EXPECT_EQ(relief.lblPrejezdy[n].barva, sviti ? barvy::bila : kModrozelena) << k << ' ' << n;
            if (n >= 2) {
                EXPECT_EQ(relief.shpPrejezdy[n].okraj, sviti ? barvy::cervena : 0x008000) << k << ' ' << n;
            }
        }
    }
}

TEST_F(BlikaniDesky, SingleCrossingsSkipTheLampNumberFive) {
    prejezdy.resize(11);
    for (const int n : {6, 7, 16, 17})
        relief.shpPrejezdy.zaloz(n);
    relief.lblPrejezdy.zaloz(6);
    prejezdy[9].zona = prejezdy[9].vyluka = prejezdy[9].uvolnen = true;
    krok_blikani();
    EXPECT_TRUE(relief.shpPrejezdy[16].viditelny);
    EXPECT_FALSE(relief.shpPrejezdy[17].viditelny);
    EXPECT_EQ(relief.shpPrejezdy[6].okraj, barvy::cervena);
    EXPECT_EQ(relief.shpPrejezdy[7].okraj, 0x008000);
    EXPECT_EQ(relief.lblPrejezdy[6].barva, barvy::bila);
}

TEST_F(BlikaniDesky, JunctionWithoutLineCrossingsBlinksOn) {
    relief.lblPrejezdy[0].barva = barvy::seda;
    ASSERT_TRUE(prejezdy.empty());
    EXPECT_NO_THROW(krok_blikani());
    EXPECT_EQ(relief.lblPrejezdy[0].barva, barvy::seda);
}

TEST_F(BlikaniDesky, NewDelayMarksTheMessageButton) {
    prevezmi_hlaseni({"a", "b"});
    simulace.nova_zprava = true;
    krok_blikani();
    EXPECT_EQ(relief.cmdZpravy[0].pozadi, barvy::zelena);
    EXPECT_EQ(relief.lstZpravy.vybrany, 0);
    EXPECT_FALSE(simulace.nova_zprava);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{500, 50}}));
}

TEST_F(BlikaniDesky, CallingOnAspectBeeps) {
    simulace.pn_bezi = true;
    krok_blikani();
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{1200, 30}}));
    simulace.zvuk_vypnut = true;
    krok_blikani();
    EXPECT_EQ(svet.pipnuti.size(), 1u);
}

TEST_F(BlikaniDesky, SearchFrameClosesInInSixSteps) {
    Prvek& p = relief.shpVyhledavani[0];
    p.vlevo = 1000;
    p.nahore = 2000;
    p.sirka = 640;
    p.vyska = 595;
    blikani.ramecek_hledani = 6;
    for (int i = 1; i <= 6; ++i) {
        krok_blikani();
        EXPECT_EQ(p.vlevo, 1000 + 40 * i);
        EXPECT_EQ(p.sirka, 640 - 80 * i);
        EXPECT_EQ(p.viditelny(), i % 2 == 0);
    }
    EXPECT_EQ(p.nahore, 2240);
    EXPECT_EQ(p.vyska, 595 - 480);
    EXPECT_EQ(blikani.ramecek_hledani, 0);
    const Prvek pred = p;
    krok_blikani();
    EXPECT_EQ(p, pred);
}

} // namespace
