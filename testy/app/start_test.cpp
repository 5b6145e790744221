// testy/app/start_test.cpp - from the start command to the running clock.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/konec.h"
#include "app/nova_simulace.h"
#include "app/rezim.h"
#include "app/start.h"
#include "cesty/cesta.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/zastavky.h"
#include "prvky/stav_vyhybek.h"
#include "relief/prejezdy.h"
#include "relief/relief.h"
#include "save/ulozeni.h"
#include "zaklad/chyba.h"

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

class Start : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        svet.zapis("GVD/GVDtyden.dat", Bajty{0, 0, 0, 0, 0, 0});
        volby.gvd = "GVDtyden";
        svet.nastaveni_pis("Obrazovka", "X", "1024");
        svet.nastaveni_pis("Obrazovka", "Y", "768");
    }
    // The relief file with further records.
    void pridej_do_reliefu(const std::vector<ZaznamReliefu>& dalsi) {
        std::vector<ZaznamReliefu> vse = relief_maleho_kolejiste();
        vse.insert(vse.end(), dalsi.begin(), dalsi.end());
        svet.zapis("data/tesk.rea", soubor_reliefu(vse));
        svet.zapis("data/tesk.reb", soubor_reliefu(vse));
    }
    void spust() {
        prevezmi_volby(volby);
        priprava_simulace();
        nastav_hodiny(volby);
        start_simulace();
    }
    void prihlas() {
        for (int i = 0; i < 3; ++i)
            klavesa({KodKlavesy::enter});
    }
    const Text& kod() { return relief.lblPrikaz[0].text; }
    VolbyStartu volby;
};

TEST_F(Start, ClockIsSetTwoSecondsEarly) {
    spust();
    EXPECT_EQ(text_hodin(), "11:59:58");
    EXPECT_EQ(simulace.cas_zacatku, 719);
    EXPECT_EQ(simulace.den, 1);
    EXPECT_EQ(relief.lblDEN[0].text(), "pondělí"_cz);
    EXPECT_EQ(relief.lblGVD[0].text(), "GVDtyden");
    EXPECT_TRUE(relief.lblcas[0].viditelny);
}

TEST_F(Start, AtMidnightCrossesIntoTheChosenDay) {
    volby.hodina = 0;
    spust();
    EXPECT_EQ(text_hodin(), "23:59:58");
    EXPECT_EQ(simulace.cas_zacatku, -1);
    EXPECT_EQ(simulace.den, 64);
    EXPECT_EQ(relief.lblDEN[0].text(), "pondělí"_cz);
    prihlas();
    svet.posun_ms(2000);
    krok_hodin();
    EXPECT_EQ(text_hodin(), "0:00:00");
    EXPECT_EQ(simulace.den, 1);
    EXPECT_EQ(relief.lblDEN[0].text(), "pondělí"_cz);
}

TEST_F(Start, MinutesPastMidnightBelongToTheChosenDay) {
    volby.hodina = 0;
    volby.minuta = 1;
    volby.den = 2;
    spust();
    EXPECT_EQ(simulace.den, 4);
    EXPECT_EQ(text_hodin(), "0:00:58");
}

TEST_F(Start, ChoicesAreStored) {
    volby.rychlost = 3;
    volby.pp = false;
    spust();
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "GVD"), "GVDtyden.dat");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Rychlost"), "2");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "PP"), "0");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Zpozdeni"), "1");
    EXPECT_FALSE(simulace.pp_povoleno);
    EXPECT_EQ(relief.lblrychlost_simulace[0].text(), "3");
}

TEST_F(Start, OptionsAreTakenAndStoredButNoPeriodThatIsNoNumber) {
    simulace.dva_monitory = true;
    uloz_volby({.noresize = true,
                .bez_dvou_monitoru = true,
                .zvuk_vypnut = true,
                .autosave = true,
                .autosaved = "x"});
    EXPECT_TRUE(simulace.noresize);
    EXPECT_TRUE(simulace.zvuk_vypnut);
    EXPECT_TRUE(simulace.autosave);
    EXPECT_FALSE(simulace.dva_monitory);
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Dual"), "1");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Autosaved"), std::nullopt);
    uloz_volby({.autosaved = "7"});
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Autosaved"), "7");
    priprava_simulace();
    EXPECT_EQ(simulace.autosave_minut, 7);
}

TEST_F(Start, UnchangedDisplayIsLeftAloneAndTheTaskBarGoes) {
    spust();
    EXPECT_TRUE(svet.prepnute_rezimy.empty());
    EXPECT_EQ(svet.lista, (std::vector<bool>{false}));
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(Start, DisplayOfAnotherSizeIsSwitchedAndTheOldModeKept) {
    svet.nastaveni.clear();
    svet.rezim = {1920, 1080, 75, 24};
    svet.rezimy = {{640, 480, 60, 32}, {1024, 768, 60, 32}};
    spust();
    ASSERT_EQ(svet.prepnute_rezimy.size(), 1u);
    EXPECT_EQ(svet.prepnute_rezimy[0], (RezimObrazovky{1024, 768, 75, 24}));
    EXPECT_EQ(svet.nastaveni_cti("obrazovka", "x"), "1920");
    EXPECT_EQ(svet.nastaveni_cti("obrazovka", "y"), "1080");
    EXPECT_EQ(svet.nastaveni_cti("obrazovka", "F"), "75");
    EXPECT_EQ(svet.nastaveni_cti("obrazovka", "bpp"), "24");
}

TEST_F(Start, TwoMonitorsAreSwitchedToTwoDesks) {
    svet.rezim = {3840, 1080, 60, 32};
    svet.rezimy = {{2048, 768, 60, 32}};
    simulace.dva_monitory = true;
    spust();
    ASSERT_EQ(svet.prepnute_rezimy.size(), 1u);
    EXPECT_EQ(svet.prepnute_rezimy[0].sirka, 2048);
}

TEST_F(Start, DisplayThatMustNotBeTouchedIsNot) {
    svet.rezim = {1920, 1080, 60, 32};
    svet.rezimy = {{1024, 768, 60, 32}};
    simulace.noresize = true;
    spust();
    EXPECT_TRUE(svet.prepnute_rezimy.empty());
    EXPECT_TRUE(svet.lista.empty());
}

TEST_F(Start, DisplayWithoutTheNeededModeGetsABoxAndTheStartGoesOn) {
    svet.rezim = {1920, 1080, 60, 32};
    spust();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_NE(svet.okna[0].text.find("1024*768"), Text::npos);
    EXPECT_EQ(kod(), " INIT ");
}

TEST_F(Start, DamagedDisplaySettingIsToldWithTheNumberOfItsStep) {
    svet.nastaveni_pis("Obrazovka", "X", "abc");
    spust();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text,
              Text("Chyba na řádku 3 ;chyba č.13 "_cz) + Text(text_chyby(KodChyby::neshoda_typu)));
    EXPECT_EQ(kod(), " INIT ");
}

TEST_F(Start, MissingReliefIsToldAndTheNextStepsGoOn) {
    smaz_soubor(svet.cesta() + "data\\tesk.rea");
    spust();
    ASSERT_GE(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text,
              Text("Chyba na řádku 17 ;chyba č.53 "_cz) + Text(text_chyby(KodChyby::soubor_nenalezen)));
    EXPECT_EQ(prejezdy.size(), 1u);
    EXPECT_EQ(kod(), " INIT ");
}

TEST_F(Start, MissingTimetableIsFatal) {
    volby.gvd = "GVDneni";
    spust();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text, text_chyby(KodChyby::soubor_nenalezen));
    EXPECT_EQ(svet.konec, 1);
    EXPECT_EQ(kod(), "");
}

TEST_F(Start, ElementsAreMagentaBetweenTheStagesAndGreyAfterThem) {
    prevezmi_volby(volby);
    priprava_simulace();
    nastav_hodiny(volby);
    EXPECT_EQ(relief.kolej[62].barva, barvy::purpurova);
    EXPECT_EQ(relief.kolej[62].stav(), "0");
    EXPECT_EQ(relief.navestidlo[262].barva, barvy::purpurova);
    EXPECT_EQ(relief.navestidlo_ser[540].barva, barvy::purpurova);
    EXPECT_EQ(relief.lblVykolejka[0].barva, barvy::purpurova);
    EXPECT_EQ(relief.lblPrejezd[1].barva, barvy::purpurova);
    EXPECT_EQ(relief.navestidlo[262].text(), " " + znak(229) + " ");
    start_simulace();
    for (const PopisDruhu& d : kDruhy)
        for (int n = 0; n <= (relief.*d.tabulka).nejvyssi(); ++n)
            if ((relief.*d.tabulka).je(n)) {
                EXPECT_NE((relief.*d.tabulka)[n].barva, barvy::purpurova) << d.jmeno << " " << n;
            }
    EXPECT_EQ(relief.kolej[62].barva, barvy::seda);
    EXPECT_EQ(relief.navestidlo[262].text(), znak(229));
}

TEST_F(Start, LabelsShowTheirNamesGreyAndLineLabelsWhite) {
    using T = TypReliefu;
    pridej_do_reliefu({zaznam_reliefu(T::cislo_koleje, 638, 0, " T2 ", 0, 0, 0, 0),
                       zaznam_reliefu(T::cislo_koleje, 604, 0, "LH", 0, 0, 0, 0)});
    spust();
    EXPECT_EQ(relief.cislo_koleje[62].barva, barvy::seda);
    EXPECT_TRUE(relief.cislo_koleje[62].viditelny);
    EXPECT_EQ(relief.cislo_koleje[640].barva, barvy::bila);
    EXPECT_FALSE(relief.cislo_koleje[640].viditelny);
    EXPECT_EQ(relief.cislo_koleje[638].barva, barvy::seda);
    EXPECT_EQ(relief.cislo_koleje[604].barva, barvy::bila);
}

TEST_F(Start, FailedLampOfSignal305IsTheFirstFault) {
    pridej_do_reliefu({zaznam_reliefu(TypReliefu::navestidlo, 305, 229, "THN L105", 1000, 0, 2000, 0)});
    spust();
    const Prvek& p = relief.navestidlo[305];
    EXPECT_EQ(p.barva, barvy::cerna);
    EXPECT_EQ(p.pozadi, barvy::seda);
    EXPECT_TRUE(p.ramecek);
    EXPECT_EQ(p.vlevo, 1120);
    EXPECT_EQ(simulace.poruchy, (std::vector<Text>{Text("11:59:58 Zhaslé návěstidlo THN L105"_cz)}));
}

TEST_F(Start, JunctionWithoutSignal305HasNoFault) {
    spust();
    EXPECT_TRUE(simulace.poruchy.empty());
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(Start, SwitchesShowThePictureOfTheirState) {
    spust();
    EXPECT_EQ(relief.imgVyhybka[7].obrazek, 102);
    EXPECT_EQ(stav_vyhybek.vyhybka_pohyb.size(), 8u);
}

TEST_F(Start, ConsentLampsPointInwards) {
    spust();
    EXPECT_EQ(relief.lblSouhlas[0].text(), znak(8));
    EXPECT_EQ(relief.lblSouhlas[1].text(), znak(8));
    EXPECT_EQ(relief.lblSouhlas[2].text(), znak(176));
    EXPECT_EQ(relief.imgSberac.nejvyssi(), 3);
}

TEST_F(Start, MinuteOfADepartureStandsOneSignBehindTheLampOfTheConsent) {
    spust();
    const Prvek& lampa = relief.lblSouhlas[1];
    const Prvek& minuta = relief.lblPredvidany_odjezd[1];
    EXPECT_EQ(minuta.vlevo() - lampa.vlevo(), 240) << "the lamp and a blank, 8 pixels of 15 twips each";
    EXPECT_EQ(minuta.nahore(), lampa.nahore());
}

TEST_F(Start, CrossingsAreReadUnlessASavedSimulationBringsThem) {
    prevezmi_volby(volby);
    simulace.nacitani_zaznamu = true;
    priprava_simulace();
    EXPECT_TRUE(prejezdy.empty());
    simulace.nacitani_zaznamu = false;
    priprava_simulace();
    EXPECT_EQ(prejezdy.size(), 1u);
}

TEST_F(Start, SecondPreparationOfANumberThatExistsIsHarmless) {
    using T = TypReliefu;
    pridej_do_reliefu({zaznam_reliefu(T::navestidlo, 262, 228, "jine", 77, 0, 88, 0),
                       zaznam_reliefu(T::navestidlo, 5000, 228, "mimo", 0, 0, 0, 0)});
    spust();
    EXPECT_EQ(relief.navestidlo[262].popis(), "jine");
    EXPECT_EQ(relief.navestidlo[262].vlevo, 77);
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(Start, TrainsStartWithNoElementHeld) {
    spust();
    ASSERT_EQ(vlaky.size(), 51u);
    for (const Vlak& v : vlaky) {
        EXPECT_EQ(v.rezerva, -3);
        EXPECT_EQ(v.prvek_konec, -3);
    }
}

// A train from Borovec at 12:01 is announced by the traffic step that ends the fill, at 11:59:58.
TEST_F(Start, TrafficIsThereAtOnceUnlessASavedSimulationBringsIt) {
    GvdVlak radek;
    radek.zastavky = zastavky_radku({2, 9}, {-1, 740}, {721, -1});
    radek.cislo = 4701;
    radek.dny = 0x7F;
    radek.vozy = {"754"};
    radek.vozy_vlaky = {0};
    Zapisovac soubor;
    soubor.l(0);
    soubor.text("");
    popis_poli(soubor, radek);
    svet.zapis("GVD/GVDtyden.dat", soubor.bajty);
    spust();
    EXPECT_EQ(vlaky[0].cislo, 4701);
    EXPECT_EQ(relief.kolej[63].barva(), barvy::zelena);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{500, 200}, {400, 150}}));
    EXPECT_FALSE(simulace.nova_pipnuti);

    // the start from a save: no traffic step runs, and another crossing file is not read
    const Text zaznam = svet.cesta() + "save\\stav.sim";
    uloz_simulaci(zaznam, true);
    const std::vector<Vlak> ulozene_vlaky = vlaky;
    const std::vector<Prejezd> ulozene_prejezdy = prejezdy;
    svet.zapis("data/tesk.pzz", soubor_prejezdu({{0, "JINY", 640, 77}, {0, "DALSI", 640, 88}}));
    svet.pipnuti.clear();
    nova_simulace();
    simulace.cesta_aplikace = svet.cesta();
    simulace.nacitani_zaznamu = true;
    simulace.soubor_zaznamu = zaznam;
    priprava_simulace();
    start_simulace();
    ASSERT_EQ(vlaky.size(), ulozene_vlaky.size());
    for (std::size_t i = 0; i < vlaky.size(); ++i) {
        EXPECT_EQ(vlaky[i].cislo, ulozene_vlaky[i].cislo) << i;
        EXPECT_EQ(vlaky[i].prvky, ulozene_vlaky[i].prvky) << i;
        EXPECT_EQ(vlaky[i].zastavky, ulozene_vlaky[i].zastavky) << i;
    }
    EXPECT_EQ(prejezdy, ulozene_prejezdy);
    EXPECT_EQ(gvd_vlaky.size(), 1u);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{400, 150}})) << "no train was announced anew";
    EXPECT_TRUE(simulace.pauza);
}

TEST_F(Start, TrainTableStandsInThreeColumns) {
    spust();
    const TabulkaPrvku& r = relief.lblTabulka_vlaku;
    const int pod = r[0].vyska() + 10;
    EXPECT_EQ(r[1].nahore, r[0].nahore() + pod);
    EXPECT_EQ(r[7].nahore, r[0].nahore() + 7 * pod);
    EXPECT_EQ(r[8].nahore, r[0].nahore());
    EXPECT_EQ(r[23].nahore, r[7].nahore());
    EXPECT_EQ(r[1].vlevo, 630);
    EXPECT_EQ(r[8].vlevo, 5310);
    EXPECT_EQ(r[16].vlevo, 10100);
    EXPECT_EQ(relief.shpblikacka[23].vlevo, 9600);
    EXPECT_EQ(relief.shpblikacka[47].vlevo, 9800);
    EXPECT_EQ(relief.shpblikacka[9].vlevo, 4800);
    EXPECT_EQ(relief.shpblikacka[33].vlevo, 5010);
    EXPECT_EQ(relief.shpblikacka[33].nahore, r[9].nahore() + 40);
}

TEST_F(Start, SecondMonitorGetsItsTwins) {
    simulace.dva_monitory = true;
    spust();
    EXPECT_EQ(relief.lblcas[1].text(), "11:59:58");
    EXPECT_TRUE(relief.lblcas[1].viditelny);
    EXPECT_EQ(relief.lblcas[1].vlevo, relief.lblcas[0].vlevo() + 15400);
    EXPECT_EQ(relief.lblVolba[1].text(), " OK ");
    EXPECT_TRUE(relief.imgToc2.je(0));
}

TEST_F(Start, OneMonitorHasNoTwins) {
    spust();
    EXPECT_FALSE(relief.lblcas.je(1));
    EXPECT_FALSE(relief.lblPrikaz.je(1));
}

TEST_F(Start, DebugMarkerShowsDemoAndSupervisor) {
    svet.zapis("debug.dat", "");
    spust();
    EXPECT_EQ(relief.lblVerze[0].text(), Text("KPS RVZ TESK 2.0.1\r\nDEMO - pouze pro testovací účely"_cz));
    EXPECT_EQ(relief.lblPrava[0].text(), "P - SUPERVIZOR");
    EXPECT_TRUE(relief.imgDEBUG[0].viditelny);
}

TEST_F(Start, OrdinaryStartShowsTheDispatcher) {
    spust();
    EXPECT_EQ(relief.lblVerze[0].text(), "KPS RVZ TESK 2.0.1");
    EXPECT_EQ(relief.lblPrava[0].text(), "B - DISPEČER"_cz);
    EXPECT_TRUE(relief.imgDEBUG[0].viditelny); // the dump is for everyone
}

TEST_F(Start, SilencedSoundIsShownAndNothingBeeps) {
    simulace.zvuk_vypnut = true;
    spust();
    prihlas();
    EXPECT_EQ(relief.imgSound[0].popis(), "Zvuk vypnut");
    EXPECT_TRUE(svet.pipnuti.empty());
}

TEST_F(Start, FoldersAndTheLogAreMade) {
    spust();
    EXPECT_TRUE(std::filesystem::is_directory(svet.koren / "ARCHIV"));
    gtn_vyprazdni();
    EXPECT_EQ(svet.precti("GTN/260105.gtn").size(), 36u);
}

TEST_F(Start, MainScreenIsShownTwoSecondsBeforeItIsPainted) {
    svet.cas.sekunda = 3;
    svet.cas.milisekunda = 400;
    spust();
    EXPECT_NEAR(svet.cekano_s, 1.6, 1e-9); // 3.4 is rounded to 3, and two seconds more are 5
}

TEST_F(Start, LoginTakesThreeConfirmationsAndStartsTheClock) {
    spust();
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{400, 150}}));
    EXPECT_EQ(kod(), " INIT ");
    EXPECT_EQ(relief.lblVolba[0].text(), " OK ");
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::zelena);
    EXPECT_EQ(relief.lblVolba[0].pozadi, barvy::bila);
    klavesa({KodKlavesy::enter});
    EXPECT_EQ(kod(), " TPC ");
    EXPECT_EQ(relief.lblVolba[0].text(), " OK ");
    klavesa({KodKlavesy::enter});
    EXPECT_EQ(kod(), " ARCHIV ");
    EXPECT_EQ(relief.lblVolba[0].text(), " Karta PIK - opravnění B Dispečer , ARCHIV INIT OK "_cz);
    EXPECT_TRUE(simulace.pauza);
    svet.posun_ms(60'000);
    klavesa({KodKlavesy::enter});
    EXPECT_FALSE(simulace.pauza);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(kod(), "");
    EXPECT_EQ(svet.pipnuti.size(), 4u);
    krok_hodin();
    EXPECT_EQ(text_hodin(), "11:59:58");
}

TEST_F(Start, PauseKeyDoesNothingDuringTheLogin) {
    spust();
    for (int i = 0; i < 3; ++i) {
        klavesa({KodKlavesy::f10});
        EXPECT_TRUE(simulace.pauza);
        klavesa({KodKlavesy::enter});
    }
    EXPECT_FALSE(simulace.pauza);
    klavesa({KodKlavesy::f10});
    EXPECT_TRUE(simulace.pauza);
}

// --- the end, and the window

class Konec : public Start {};

TEST_F(Konec, IsAskedForAndNoIsTheDefault) {
    klik(Druh::imgKONEC, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.otazky, (std::vector<Text>{Text("Opravdu chcete ukončit simulaci?"_cz)}));
    EXPECT_FALSE(svet.konec);
    svet.odpovedi = {true};
    klik(Druh::imgKONEC, 0, Tlacitko::leve, false);
    EXPECT_EQ(svet.konec, 0);
}

TEST_F(Konec, BringsTheOperatorsDisplayModeBackAndForgetsIt) {
    svet.nastaveni_pis("Obrazovka", "X", "1920");
    svet.nastaveni_pis("Obrazovka", "y", "1080");
    svet.nastaveni_pis("Obrazovka", "f", "75");
    svet.nastaveni_pis("Obrazovka", "bpp", "24");
    svet.rezimy = {{1920, 1080, 60, 32}};
    klavesa({KodKlavesy::f10, 0, true, true, false});
    EXPECT_EQ(svet.konec, 0);
    ASSERT_EQ(svet.prepnute_rezimy.size(), 1u);
    EXPECT_EQ(svet.prepnute_rezimy[0], (RezimObrazovky{1920, 1080, 75, 24}));
    EXPECT_TRUE(svet.nastaveni.empty());
    EXPECT_EQ(svet.lista, (std::vector<bool>{true}));
    EXPECT_TRUE(svet.otazky.empty());
}

TEST_F(Konec, DamagedSettingDoesNotKeepTheProgramFromEnding) {
    svet.nastaveni_pis("Obrazovka", "X", "abc");
    konec_programu(false);
    EXPECT_EQ(svet.konec, 0);
}

TEST_F(Konec, LogIsWholeAtTheEnd) {
    spust();
    gtn_zapis(62, gtn::barva_koleje, 0);
    konec_ihned();
    EXPECT_EQ(svet.precti("GTN/260105.gtn").size(), 36u + 11u);
}

TEST_F(Konec, MinimisedWindowPausesAndReturnsTheDisplay) {
    svet.nastaveni_pis("Obrazovka", "X", "1920");
    svet.nastaveni_pis("Obrazovka", "y", "1080");
    svet.rezimy = {{1920, 1080, 60, 32}, {1024, 768, 60, 32}};
    spust_hodiny();
    klavesa({KodKlavesy::f11});
    EXPECT_EQ(svet.minimalizovano, 1);
    EXPECT_TRUE(simulace.pauza);
    EXPECT_EQ(svet.rezim.sirka, 1920);
    minimalizuj(); // the window system tells it too
    EXPECT_EQ(svet.prepnute_rezimy.size(), 1u);
    obnov_okno();
    EXPECT_EQ(svet.rezim.sirka, 1024);
    EXPECT_TRUE(simulace.pauza);
    EXPECT_EQ(svet.lista, (std::vector<bool>{true, false}));
}

} // namespace
