// testy/davka/davka_test.cpp - scripts of the headless runner on the little junction.
#include "app/simulace.h"
#include "davka/davka.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/semena.h"
#include "vypravci/vypravci.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <iostream>
#include <iterator>
#include <sstream>
#include <streambuf>
#include <sys/file.h>
#include <unistd.h>

namespace {

struct Vysledek {
    int kod = -1;
    std::string vystup, chyby;
};

class Davka : public ::testing::Test {
protected:
    Davka() {
        zapis_male_kolejiste(slozka.cesta);
        zaloz_slozku(slozka.cesta + "gvd");
        Zapisovac prazdny;
        prazdny.l(0);
        prazdny.text("maly rad");
        zapis_soubor(slozka.cesta + "gvd\\GVD_male.dat", prazdny.bajty);
        zapis_soubor(slozka.cesta + "gvd\\GVD_druhe.dat", prazdny.bajty);
    }

    Vysledek proved(const std::string& text, bool kontrola = true) {
        std::istringstream skript(text);
        std::ostringstream vystup, chyby;
        VolbyDavky volby;
        volby.slozka = slozka.cesta.substr(0, slozka.cesta.size() - 1);
        volby.kontrola = kontrola;
        Vysledek v;
        v.kod = spust_davku(volby, skript, vystup, chyby);
        v.vystup = vystup.str();
        v.chyby = chyby.str();
        return v;
    }

    // Runs a script that must go through without a word, and gives what it prints.
    std::string vypis(const std::string& text) {
        const Vysledek v = proved(text);
        EXPECT_EQ(v.kod, navrat::v_poradku) << v.chyby << v.vystup;
        EXPECT_EQ(v.chyby, "");
        return v.vystup;
    }

    // The reason for which a script is refused.
    std::string duvod(const std::string& text) {
        const Vysledek v = proved(text);
        EXPECT_EQ(v.kod, navrat::chyba_skriptu) << text;
        return v.chyby;
    }

    DocasnaSlozka slozka;
};

bool obsahuje(const std::string& text, const std::string& co) {
    return text.find(co) != std::string::npos;
}

const std::string kStart = "spust cas=12:00 den=0\nprihlas\n";

} // namespace

// --- start

TEST_F(Davka, StartStopsAtTheLoginDialogue) {
    const std::string v = vypis("spust cas=12:00 den=2 gvd=gvd_male\n"
                                "vypis prikaz\nvypis hodiny\nvypis obrazovka\nvypis lblGVD\n");
    EXPECT_TRUE(obsahuje(v, R"("prikaz": " INIT ", "volba": " OK ")")) << v;
    EXPECT_TRUE(obsahuje(v, R"("cas": "11:59:58", "den": 4, "den_text": "středa", "cas_zacatku": 719)")) << v;
    EXPECT_TRUE(obsahuje(v, R"("pauza": true, "rychlost": 1)"));
    EXPECT_TRUE(obsahuje(v, R"("tik_ms": 10000)")) << "ten virtual seconds of the splash screen";
    EXPECT_TRUE(obsahuje(v, R"("obrazovka": "frmMain")"));
    EXPECT_TRUE(obsahuje(v, R"("text": "GVD_male")"));
}

TEST_F(Davka, StartScreenOffersTheWallClock) {
    const std::string v = vypis("pc 2026-01-10 14:07:30\nspust\nvypis hodiny\n");
    EXPECT_TRUE(obsahuje(v, R"("cas": "14:06:58", "den": 32, "den_text": "sobota", "cas_zacatku": 846)"))
        << v;
}

TEST_F(Davka, StartScreenTakesItsBoxesFromTheSettings) {
    vypis("nastaveni Nastaveni Rychlost 2\nnastaveni Nastaveni PP 0\nnastaveni Nastaveni Zvuk 1\n"
          "nastaveni Nastaveni Autosave 1\nnastaveni Nastaveni Autosaved 15\n"
          "nastaveni nastaveni gvd GVD_male.dat\nspust\n"
          "over hodiny rychlost=3\nover lblGVD text=GVD_male\nover pipnuti pocet=0\n");
    EXPECT_FALSE(simulace.pp_povoleno);
    EXPECT_TRUE(simulace.zpozdeni_povoleno);
    EXPECT_TRUE(simulace.zvuk_vypnut);
    EXPECT_TRUE(simulace.autosave);
    EXPECT_EQ(simulace.autosave_minut, 15);
}

TEST_F(Davka, WordsOfTheStartFillTheScreen) {
    vypis("spust cas=6:30 den=6 rychlost=8 gvd=GVD_male.dat pp=0 zpozdeni=0 zvuk=1 autosave=1 autosaved=7 "
          "noresize=1\nover hodiny cas=6:29:58 den=64 rychlost=8\n");
    EXPECT_FALSE(simulace.pp_povoleno);
    EXPECT_FALSE(simulace.zpozdeni_povoleno);
    EXPECT_TRUE(simulace.zvuk_vypnut);
    EXPECT_TRUE(simulace.autosave);
    EXPECT_EQ(simulace.autosave_minut, 7);
    EXPECT_TRUE(simulace.noresize);
    EXPECT_FALSE(simulace.dva_monitory);
}

TEST_F(Davka, TwoMonitorsGiveTheSecondClock) {
    vypis("spust cas=12:00 dual=1\nover lblcas 1 text=11:59:58\n");
    EXPECT_TRUE(simulace.dva_monitory);
    vypis("spust cas=12:00\nover lblcas 1 existuje=ne\n");
}

TEST_F(Davka, TimeThatTheScreenRefusesStartsNothing) {
    for (const char* cas : {"24:00", "12:60", "-1:00", "x:00"}) {
        const std::string v = vypis("spust cas=" + std::string(cas) + "\nvypis okna\nvypis obrazovka\n");
        EXPECT_TRUE(obsahuje(v, "Neplatný čas!")) << cas;
        EXPECT_TRUE(obsahuje(v, R"("obrazovka": "frmParametry")")) << cas;
    }
}

TEST_F(Davka, StartScreenIsSeenAndWorkedBeforeTheStart) {
    vypis("pc 2026-01-10 14:07:30\nover obrazovka obrazovka=frmParametry txtHodiny=14 txtMinuty=07 cboDen=5\n"
          "over obrazovka miGVD=GVD_druhe,GVD_male lblAktualni_GVD=GVD_druhe lblGVD_popis_aktualni=\"maly "
          "rad\"\n"
          "klik txtHodiny\nover obrazovka vybrane=txtHodiny\npis 23\nklavesa Up\nover obrazovka txtHodiny=0\n"
          "klik txtMinuty\npis 00\nklavesa Down\nover obrazovka txtMinuty=59\n"
          "klik cboDen 2\nklik cboRychlost 3\nklik chkPP\nklik chkZvuk\nklik imgStranka 1\n"
          "over obrazovka stranka=1 chkPP=ne chkZvuk=ano\n"
          "klik miGVD\nmenu miGVD1\nklavesa Enter\n"
          "over hodiny cas=0:58:58 den=4 rychlost=4\nover lblGVD text=GVD_male\nover pipnuti pocet=0\n"
          "over obrazovka obrazovka=frmMain\n");
    EXPECT_FALSE(simulace.pp_povoleno);
}

TEST_F(Davka, TabGoesRoundTheFieldsOfTheStartScreen) {
    vypis("klavesa Tab\nover obrazovka vybrane=txtHodiny\nklavesa Tab\nover obrazovka vybrane=txtMinuty\n"
          "klavesa Tab\nklavesa Tab\nover obrazovka vybrane=txtHodiny\nklavesa Shift+Tab\n"
          "over obrazovka vybrane=txtAutosave\npis 15\nover obrazovka txtAutosave=15\n");
}

TEST_F(Davka, FavouriteTimesAreKeptInTheSettings) {
    vypis("klik miOblibena\nover okna pocet=1\nover menu menu=null\nklik txtHodiny\npis 9\nklik "
          "txtMinuty\npis 5\n"
          "klik cmdPridat\nover obrazovka miOblibena=9:05\nklik cmdNahodny\n"
          "klik miOblibena\nmenu miOblibena0\nover obrazovka txtHodiny=9 txtMinuty=05\n");
}

TEST_F(Davka, RefusedTimeStaysInTheFields) {
    vypis("spust cas=24:00\nover okna pocet=1\nover obrazovka obrazovka=frmParametry txtHodiny=24 "
          "txtMinuty=00\n"
          "over nastaveni pocet=0\nspust cas=23:59\nover hodiny cas=23:58:58\n");
}

TEST_F(Davka, MissingDataFileEndsTheStart) {
    smaz_soubor(slozka.cesta + "data\\tesk.mak");
    for (const char* skript : {"spust\nvypis okna\n", "vypis obrazovka\nvypis okna\n"}) {
        const Vysledek v = proved(skript);
        EXPECT_EQ(v.kod, navrat::konec_simulace);
        EXPECT_TRUE(obsahuje(v.vystup, "tesk.mak je poškozen, nelze ho otevřít nebo chybí!")) << v.vystup;
    }
}

TEST_F(Davka, SetUpFillsTheStartScreenAnew) {
    vypis("over obrazovka txtHodiny=8\nklik cboDen 6\npc 2026-01-05 17:30:00\nover obrazovka txtHodiny=17 "
          "cboDen=0\n");
}

TEST_F(Davka, TwoMonitorsAreDetectedOnTheStartScreen) {
    vypis("nastaveni Nastaveni Dual 1\nover obrazovka lblMonitor=\"SINGLE monitor  detected\" "
          "chkDualMonitor=ano\n"
          "spust dual=1 cas=25:00\nover obrazovka lblMonitor=\"DUAL monitor detected\" chkDualMonitor=ne "
          "vlevo=4000\nspust cas=12:00\nover lblcas 1 text=11:59:58\n");
}

TEST_F(Davka, ManualAndEndOfTheStartScreen) {
    const std::string v = vypis("klik cmdNavod\nvypis okna\n");
    EXPECT_TRUE(obsahuje(v, R"("titul": "Chyba", "text": "Nepodařilo se otevřít soubor s návodem)")) << v;
    EXPECT_EQ(proved("klik imgKONEC\n").kod, navrat::konec_simulace);
}

TEST_F(Davka, StartScreenHasNoControlsOfTheDesk) {
    EXPECT_TRUE(obsahuje(duvod("klavesa F10\n"), "potřebuje spuštěnou simulaci"));
    EXPECT_TRUE(obsahuje(duvod("pis 7\n"), "není vybrané žádné pole"));
    EXPECT_TRUE(obsahuje(duvod("klik cboDen 7\n"), "od 0 do 6"));
    EXPECT_TRUE(obsahuje(duvod("klik cboDen\n"), "píše se klik cboDen CISLO"));
    EXPECT_TRUE(obsahuje(duvod("klik chkPP 1\n"), "píše se klik chkPP"));
    EXPECT_TRUE(obsahuje(duvod("menu miGVD0\n"), "žádné menu není otevřené"));
}

TEST_F(Davka, StartAtMidnightBelongsToTheDayBefore) {
    const std::string v = vypis("spust cas=0:00 den=0\nvypis hodiny\n");
    EXPECT_TRUE(obsahuje(v, R"("cas": "23:59:58", "den": 64, "den_text": "pondělí", "cas_zacatku": -1)"))
        << v;
}

TEST_F(Davka, LoginTakesThreeConfirmationsAndStartsTheClock) {
    vypis("spust cas=12:00\nklavesa Enter\nover prikaz prikaz=\" TPC \"\nklavesa Enter\n"
          "over prikaz prikaz=\" ARCHIV \"\nover hodiny pauza=ano\nklavesa Enter\nover hodiny pauza=ne\n");
    vypis("spust cas=12:00\nklavesa Enter\nprihlas\nover hodiny pauza=ne\nover prikaz viditelny=ne\n");
    EXPECT_TRUE(obsahuje(duvod("spust\nprihlas\nprihlas\n"), "řádek 3: přihlášení není na řadě"));
}

TEST_F(Davka, DebugModeIsPlayedWithoutTheMarker) {
    vypis("spust\nover lblPrava text=\"B - DISPEČER\"\n");
    vypis("ladeni ano\nspust\nover lblPrava text=\"P - SUPERVIZOR\"\n");
}

// --- time

TEST_F(Davka, WaitingMovesTheVirtualClockExactly) {
    vypis(kStart + "cekej 1s\ncekej 500ms\ncekej 2min\nover hodiny tik_ms=131500\n");
}

TEST_F(Davka, WaitingBeforeTheStartRunsNoTimer) {
    vypis("pc 2026-01-05 08:00:00\ncekej 61s\nover hodiny tik_ms=61000\nspust\nover hodiny cas=8:00:58\n");
}

TEST_F(Davka, ClockStepsAtSpeedEightOneSecondATick) {
    // 150 ms a step, one second each
    vypis("spust cas=12:00 rychlost=8\nprihlas\ncekej 1500ms\nover hodiny cas=12:00:08\n");
}

TEST_F(Davka, WaitingForATimeStopsAtItsNextReading) {
    vypis(kStart + "cekej_do 12:10:00\nover hodiny cas=12:10:00 minuty_simulace=11\n"
                   "cekej_do 12:10:00\nover hodiny cas=12:10:00\n");
    vypis("spust cas=23:50 rychlost=8\nprihlas\ncekej_do 0:10:00\nover hodiny cas=0:10:00\n");
    if (TESK_DIL_ZKOUSEK == 1) // a whole day: long under the sanitizers
        vypis("spust cas=12:00 rychlost=8\nprihlas\ncekej 5s\ncekej_do 12:00:00\n"
              "over hodiny cas=12:00:00 minuty_simulace=1441\n");
}

TEST_F(Davka, WaitingForATimeInAPauseIsRefused) {
    EXPECT_TRUE(obsahuje(duvod(kStart + "klavesa F10\ncekej_do 13:00:00\n"), "řádek 4: cekej_do"));
    EXPECT_TRUE(obsahuje(duvod("cekej_do 13:00:00\n"), "potřebuje spuštěnou simulaci"));
}

TEST_F(Davka, StepRunsOneTimerOnce) {
    vypis(kStart + "cekej 1s\nover imgToc obrazek=112\nkrok blikani\nover imgToc obrazek=113\n"
                   "over hodiny tik_ms=11000\n");
    EXPECT_TRUE(obsahuje(duvod(kStart + "krok nic\n"), "řádek 3: krok je"));
}

TEST_F(Davka, TimersRunAtTheMultiplesOfTheirPeriods) {
    // two clock steps of the third second have passed: 10050 and so on; the second is full at 11100
    vypis(kStart + "cekej 1050ms\nover hodiny cas=11:59:58\ncekej 50ms\nover hodiny cas=11:59:59\n");
}

// --- hands

TEST_F(Davka, KeysAndClicksReachTheDesk) {
    vypis(kStart + "klavesa F10\nover hodiny pauza=ano\nover lblPauza viditelny=ano\nklavesa F10\n"
                   "over hodiny pauza=ne\nklik lblrychlost_simulace\nover hodiny rychlost=2\n"
                   "pravy lblrychlost_simulace 0\nover hodiny rychlost=1\nklavesa Num+\n"
                   "over hodiny rychlost=2\nklavesa Num-\nklik plocha\nnajed navestidlo 262\nnajed plocha\n"
                   "dvojklik cislo_koleje 62\nprostredni navestidlo 262\nklik kolej 62 ctrl\n");
}

TEST_F(Davka, BeepsAreToldOnceWithTheirMoment) {
    const std::string v =
        vypis(kStart + "vypis pipnuti\ncekej 1s\nklavesa F3\nvypis pipnuti\nvypis pipnuti\n");
    EXPECT_TRUE(obsahuje(v, R"({"i": 0, "hz": 400, "ms": 150, "cas_ms": 10000})")) << v;
    EXPECT_TRUE(
        obsahuje(v, R"({"vypis": "pipnuti", "radky": [{"i": 0, "hz": 800, "ms": 10, "cas_ms": 11000}]})"))
        << v;
    EXPECT_TRUE(obsahuje(v, R"({"vypis": "pipnuti", "radky": []})"));
}

TEST_F(Davka, HandsNeedAnElementThatExists) {
    EXPECT_EQ(duvod(kStart + "klik navestidlo 999\n"), "řádek 3: prvek navestidlo 999 neexistuje\n");
    EXPECT_TRUE(obsahuje(duvod(kStart + "klik navestidlo\n"), "chybí číslo prvku"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "klik navestydlo 262\n"), "nemělo to být „navestidlo“?"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "klik cesty 0\n"), "je tabulka, ne prvek"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "pravy navestidlo 262 ctrl\n"), "příkaz se píše"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "klavesa F99\n"), "pult nezná"));
}

TEST_F(Davka, PartOfTheDeskThatIsNotSeenTakesNoButton) {
    EXPECT_EQ(duvod(kStart + "klik imgObrzaek_vlaku 0\n"), "řádek 3: prvek imgObrzaek_vlaku 0 není vidět\n");
    EXPECT_EQ(duvod(kStart + "nastav imgUloz viditelny=ne\nklik imgUloz\n"),
              "řádek 4: prvek imgUloz 0 není vidět\n");
    EXPECT_EQ(duvod(kStart + "nastav lblrychlost_simulace viditelny=ne\npravy lblrychlost_simulace\n"),
              "řádek 4: prvek lblrychlost_simulace 0 není vidět\n");
    EXPECT_EQ(duvod(kStart + "klik lblVolba\n"), "řádek 3: prvek lblVolba 0 není vidět\n");
    vypis(kStart + "klavesa F2\nklik lblVolba\nover prikaz viditelny=ne\n");
}

TEST_F(Davka, WordThatFlashesTakesTheButtonInItsDarkHalf) {
    vypis(kStart + "pravy cislo_koleje 63\nmenu miSTIT_kolej\npis pozor\nklavesa Enter\n"
                   "klik navestidlo 262\nklik Image1 63\nkrok blikani\nover lblPrikaz viditelny=ne\n"
                   "over prikaz prikaz=\" POZOR STITEK \" viditelny=ano\nklik lblPrikaz\n"
                   "over prikaz viditelny=ne\n");
    EXPECT_TRUE(obsahuje(duvod(kStart + "klik lblPrikaz\n"), "není vidět"));
}

TEST_F(Davka, MenuNeedsAnEntryThatCanBeChosen) {
    EXPECT_EQ(duvod(kStart + "menu miVC\n"), "řádek 3: žádné menu není otevřené\n");
}

TEST_F(Davka, TypingGoesIntoTheOpenField) {
    vypis(kStart + "klavesa F2\nover prikaz prikaz=\" JEDNOTKA? \" vstup=ano\npis \"k 63\"\n"
                   "over prikaz pole=\"k 63\"\npis děčín\nover txtZadav_pole text=děčín\n");
}

TEST_F(Davka, KeysWithoutAUseOnTheDeskAreNoErrorOfTheScript) {
    vypis(kStart + "vypis pipnuti\nklavesa F1\nklavesa PageUp\nklavesa Space\nklavesa 7\nklavesa Tab\n"
                   "klavesa A\nover pipnuti pocet=0\nover prikaz viditelny=ne\nover hodiny pauza=ne\n");
}

// --- saves

TEST_F(Davka, SaveDuringTheLoginLeavesTheClockStanding) {
    vypis("spust cas=12:00\nuloz pred.sim\nover hodiny pauza=ano\nover lblPauza viditelny=ne\n"
          "over prikaz prikaz=\" INIT \"\ncekej 5s\nover hodiny cas=11:59:58\nprihlas\ncekej 5s\n"
          "uloz po.sim\nover hodiny pauza=ne\n");
    vypis("nacti pred.sim\nover hodiny cas=11:59:58 pauza=ano\nover prikaz prikaz=\" INIT \"\n");
}

TEST_F(Davka, FolderOfTheProgramIsFoundWhateverItsCase) {
    const std::string misto = slozka.cesta.substr(0, slozka.cesta.size() - 1);
    std::filesystem::create_directory(misto + "/Jina Instalace");
    for (const char* co : {"data", "gvd"})
        std::filesystem::copy(misto + "/" + co, misto + "/Jina Instalace/" + (co[0] == 'd' ? "DATA" : "Gvd"),
                              std::filesystem::copy_options::recursive);
    for (const char* jmeno : {"/jina INSTALACE", "/Jina Instalace/", "\\JINA instalace\\"})
        vypis("slozka \"" + misto + jmeno + "\"\nspust cas=12:00 gvd=gvd_DRUHE\nuloz \"ma prace.sim\"\n" +
              "over okna 0 text=\"Stav simulace byl uložen do souboru " + misto +
              "/Jina Instalace\\save\\ma prace.sim!\"\n");
    EXPECT_TRUE(std::filesystem::exists(misto + "/Jina Instalace/save/ma prace.sim"));
    vypis("slozka \"" + misto +
          "/jina instalace\"\nnacti \"SAVE/Ma Prace.SIM\"\nover lblGVD text=GVD_druhe\n");
}

// --- looking

TEST_F(Davka, ElementShowsAllItsAttributes) {
    EXPECT_EQ(vypis(kStart + "vypis kolej 62\n"),
              R"({"vypis": "kolej", "cislo": 62, "existuje": true, "barva": "0x00808080", )"
              R"("pozadi": "0x00000000", "text": "", "kody": [], "popis": "", "stav": "0", )"
              R"("viditelny": true, "ramecek": false, "x1": 1500, "x2": 3500, "y1": 4000, "y2": 4000})"
              "\n");
    const std::string v = vypis(kStart + "vypis navestidlo 262\n");
    EXPECT_TRUE(obsahuje(v, R"("text": "ĺ", "kody": [229], "popis": "BOR S262")")) << v;
    EXPECT_TRUE(obsahuje(v, R"("vlevo": 3300, "nahore": 3903, "sirka": 120, "vyska": 195)")) << v;
}

TEST_F(Davka, MissingElementIsToldNotThrown) {
    for (const char* cislo : {"999", "-1", "1000", "32767"})
        EXPECT_EQ(vypis(kStart + "vypis imgVyhybka " + cislo + "\n"),
                  "{\"vypis\": \"imgVyhybka\", \"cislo\": " + std::string(cislo) +
                      ", \"existuje\": false}\n");
}

TEST_F(Davka, EveryWordOfTheLanguagePrintsOneLine) {
    int radku = 0;
    for (const char* slovo : {"hodiny",
                              "prikaz",
                              "cesty",
                              "vlaky",
                              "koleje_vlaky",
                              "prejezdy",
                              "stanicni_prejezdy",
                              "stitky",
                              "cekajici_vlaky",
                              "gvd_vlaky",
                              "zpravy",
                              "denik",
                              "tabulka",
                              "zasobnik",
                              "volba",
                              "panel",
                              "menu",
                              "obrazovka",
                              "pipnuti",
                              "okna"}) {
        const std::string v = vypis(kStart + "vypis " + slovo + "\n");
        EXPECT_TRUE(v.starts_with("{\"vypis\": \"" + std::string(slovo) + "\", ")) << v;
        EXPECT_EQ(std::count(v.begin(), v.end(), '\n'), 1) << slovo;
        ++radku;
    }
    EXPECT_EQ(radku, 20);
}

TEST_F(Davka, TablesShowTheirRecordsInOrder) {
    const std::string v = vypis(kStart + "vypis prejezdy\nvypis cekajici_vlaky\nvypis stitky\n");
    EXPECT_TRUE(obsahuje(v, R"("radky": [{"i": 0, "zona": false, "vyluka": false, "uvolnen": false, )"
                            R"("kolej": 640, "poloha": 500, "nazev": "BOR 1"}])"))
        << v;
    EXPECT_TRUE(obsahuje(v, R"({"vypis": "cekajici_vlaky", "radky": [0]})"));
    EXPECT_TRUE(obsahuje(v, R"("radky": [{"i": 0, "prvek": 0, "stitek": "", "nvl": "", "vyluka": ""}])"));
}

TEST_F(Davka, ClosedMenuHasNoName) {
    EXPECT_EQ(vypis(kStart + "vypis menu\n"),
              "{\"vypis\": \"menu\", \"menu\": null, \"hlava\": \"\", \"polozky\": []}\n");
}

// --- checks and settings

TEST_F(Davka, FailedCheckIsPrintedAndTheScriptGoesOn) {
    const Vysledek v = proved(kStart + "over hodiny rychlost=2 pauza=ne\nvypis zpravy\n");
    EXPECT_EQ(v.kod, navrat::over_selhal);
    EXPECT_EQ(v.vystup, "{\"over\": \"hodiny rychlost\", \"radek\": 3, \"chtel\": 2, \"nasel\": 1}\n"
                        "{\"vypis\": \"zpravy\", \"radky\": [], \"vybrany\": -1}\n");
}

TEST_F(Davka, ChecksCompareByTheKindOfTheValue) {
    vypis(kStart + "over kolej 62 barva=0x808080 pozadi=0 stav=0 viditelny=true x1=1500 kody=\n"
                   "over navestidlo 262 kody=229 text=ĺ\nover cesta 0 zacatek=-3 prvky=-3 VC=ne\n"
                   "over cesty pocet=1 radky.0.konec=-3\nover menu menu=null\nover volba volba_zacatek=-3\n"
                   "over cekajici_vlaky 0 hodnota=0\nover panel svetla=false,false,false,false,false,false\n"
                   "over panel svetla=ne,ne,0,false,ne,ne\n"
                   "over kolej 999 existuje=ne\nover tabulka 3 text=\"\" blika=ne\n"
                   "over tabulka 3=\"\" pocet=24\nover cesty 0.konec=-3\nover cekajici_vlaky 0=0\n");
    for (const char* over : {"kolej 62 barva=0x00FF00", "kolej 62 viditelny=ne", "kolej 62 viditelny=mozna",
                             "kolej 62 x1=15", "kolej 62 x1=", "navestidlo 262 text=x", "cesta 7 zacatek=-3",
                             "kolej 999 barva=0x00808080", "menu menu=mnuVLAK", "cesty radky.5.konec=-3",
                             "cesty 5.konec=-3", "zpravy 0=x", "tabulka blika=ne"})
        EXPECT_EQ(proved(kStart + "over " + over + "\n").kod, navrat::over_selhal) << over;
}

TEST_F(Davka, CheckOfAnUnknownFieldIsAnErrorOfTheScript) {
    EXPECT_TRUE(obsahuje(duvod(kStart + "over hodiny rychlst=1\n"), "nemělo to být „rychlost“?"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "over hodiny rychlost\n"), "chybí POLE=HODNOTA"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "over kolej 62\n"), "chybí POLE=HODNOTA"));
}

TEST_F(Davka, AttributesCanBeSetByHand) {
    vypis(kStart + "nastav kolej 62 barva=0x000000FF stav=120.5 viditelny=ne\n"
                   "over kolej 62 barva=0x000000FF stav=120.5 viditelny=ne\n"
                   "nastav cislo_koleje 62 text=\" 4711\" pozadi=0x00808000 ramecek=ano popis=K\n"
                   "over cislo_koleje 62 text=\" 4711\" pozadi=0x00808000 ramecek=ano popis=K sirka=600\n"
                   "nastav navestidlo 262 kody=8\nover navestidlo 262 kody=8\n"
                   "nastav hodiny cas=6:05:09\nover hodiny cas=6:05:09\n"
                   "nastav vlak 3 cislo=4711 vozy=754,B,560 muze_jet=ano\n"
                   "over vlak 3 cislo=4711 vozy=754,B,560 muze_jet=true\n");
}

TEST_F(Davka, ListsOfOneLengthAreSetInOneCommand) {
    vypis(kStart + "nastav vlak 3 prvky=62,63 prvky_druh=1,2 prvky_poloha=0,3\n"
                   "over vlak 3 prvky=62,63 prvky_druh=1,2 prvky_poloha=0,3\n"
                   "nastav vlak 3 prvky_poloha=2,5\n"
                   "over vlak 3 prvky=62,63 prvky_druh=1,2 prvky_poloha=2,5\n"
                   "nastav vlak 3 vozy=754,B,Bp vozy_urceni=ZAL\n"
                   "over vlak 3 vozy=754,B,Bp vozy_urceni=ZAL,, vozy_obrazek=,,\n"
                   "nastav vlak 3 vozy=943,810\n"
                   "over vlak 3 vozy=943,810 vozy_urceni=ZAL, vozy_obrazek=,\n"
                   "nastav cesta 0 polohy=2,3,0 prvky=62,7,63 druhy=1,2,1\n"
                   "over cesta 0 prvky=62,7,63 druhy=1,2,1 polohy=2,3,0\n");
    for (const char* prikaz :
         {"vlak 3 prvky=62,63 prvky_druh=1 prvky_poloha=0,0", "vlak 3 prvky_druh=1,1", "vlak 3 prvky=62",
          "vlak 3 stanice=1,2", "vlak 3 stanice=1,2 prijezd=-3,5 odjezd=3,-3 odjezd_realny=3",
          "vlak 3 vozy=754 vozy_urceni=1,2", "vlak 3 vozy_obrazek=a", "cesta 0 druhy=1,1",
          "cesta 0 prvky=", "cesta 0 prvky=1,2 druhy=1,2 polohy=1,2,3"})
        EXPECT_TRUE(obsahuje(duvod(kStart + "nastav " + prikaz + "\n"), "musí být stejně dlouhé")) << prikaz;
}

TEST_F(Davka, SettingRefusesWhatDoesNotFit) {
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav zpozdeni 4711=30\n"), "v jízdním řádu není"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav kolej 999 barva=0\n"), "neexistuje"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav kolej 62 barva=cervena\n"), "čeká se barva"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav kolej 62 sirka=5\n"), "nemá pole"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav vlak 51 cislo=1\n"), "záznamů je 51"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav vlak 0 druh=256\n"), "celé číslo od 0 do 255"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav cesta 0 neco=1\n"), "nemá pole"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav hodiny cas=25:00:00\n"), "čas se píše"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav zpravy 0 text=x\n"), "nastavit jde"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "nastav kolej 62 text=日\n"), "kódové stránce"));
}

// --- errors and exit status

TEST_F(Davka, ErrorOfTheScriptEndsItWithItsLine) {
    const Vysledek v = proved("vypis menu\n\n# nic\nvipis menu\nvypis menu\n");
    EXPECT_EQ(v.kod, navrat::chyba_skriptu);
    EXPECT_EQ(v.chyby, "řádek 4: neznámý příkaz „vipis“; nemělo to být „vypis“?\n");
    EXPECT_EQ(std::count(v.vystup.begin(), v.vystup.end(), '\n'), 1) << "nothing behind the error runs";
}

TEST_F(Davka, CommandsHaveTheirTime) {
    EXPECT_TRUE(obsahuje(duvod("klik imgUloz\n"), "potřebuje spuštěnou simulaci"));
    for (const char* prikaz : {"spust", "semeno 1", "pc 2026-01-05 08:00:00", "slozka /tmp", "ladeni ano"})
        EXPECT_TRUE(obsahuje(duvod("spust\n" + std::string(prikaz) + "\n"), "patří před spuštění")) << prikaz;
}

TEST_F(Davka, SetUpRefusesWhatItCannotRead) {
    EXPECT_TRUE(obsahuje(duvod("slozka /takova/neni\n"), "neexistuje"));
    EXPECT_TRUE(obsahuje(duvod("semeno x\n"), "semeno"));
    EXPECT_TRUE(obsahuje(duvod("pc 2026-02-29 08:00:00\n"), "datum"));
    EXPECT_TRUE(obsahuje(duvod("pc 2026-1-5 08:00:00\n"), "datum"));
    EXPECT_TRUE(obsahuje(duvod("pc 2026-01-05\n"), "příkaz se píše: pc"));
    EXPECT_TRUE(obsahuje(duvod("spust den=7\n"), "od 0 do 6"));
    EXPECT_TRUE(obsahuje(duvod("spust rychlost=9\n"), "od 1 do 8"));
    EXPECT_TRUE(obsahuje(duvod("spust gvd=neni\n"), "jsou tam: GVD_druhe, GVD_male"));
    EXPECT_TRUE(obsahuje(duvod("spust casik=8:00\n"), "spust nezná"));
    EXPECT_TRUE(obsahuje(duvod("spust pp=2\n"), "čeká se 0 nebo 1"));
}

TEST_F(Davka, SimulationThatEndsItselfCanStillBeLookedAt) {
    const Vysledek v = proved(kStart + "odpovez ano\nklik imgKONEC\ncekej 10s\nvypis hodiny\nvypis okna\n");
    EXPECT_EQ(v.kod, navrat::konec_simulace);
    EXPECT_TRUE(v.chyby.starts_with("řádek 4: simulace skončila sama")) << v.chyby;
    EXPECT_TRUE(obsahuje(v.vystup, R"("tik_ms": 10000)")) << "time stands after the end";
    EXPECT_TRUE(obsahuje(v.vystup, "Opravdu chcete ukončit simulaci?")) << v.vystup;
}

TEST_F(Davka, EndIsAskedForAndNoIsTheDefault) {
    vypis(kStart + "klik imgKONEC\nodpovez ne\nklik imgKONEC\nvypis hodiny\n");
}

TEST_F(Davka, MissingTimetableEndsTheStart) {
    std::filesystem::remove_all(slozka.cesta.substr(0, slozka.cesta.size() - 1) + "/gvd");
    const Vysledek v = proved("spust cas=12:00\nvypis okna\n");
    EXPECT_EQ(v.kod, navrat::konec_simulace);
    EXPECT_TRUE(obsahuje(v.vystup, "Nenalezen žádný soubor s GVD daty")) << v.vystup;
}

TEST_F(Davka, RunTimeErrorIsABoxAndTheEnd) {
    // the store is written by the program alone; what is no number in it is fatal
    const Vysledek v = proved("nastaveni Nastaveni PP ano\nspust\nvypis okna\n");
    EXPECT_EQ(v.kod, navrat::konec_simulace);
    EXPECT_TRUE(obsahuje(v.vystup, "Chyba č. 13: Neshoda typů")) << v.vystup;
}

TEST_F(Davka, StateCheckNamesTheFault) {
    const std::string skript = kStart + "nastav kolej 62 barva=0x00123456\ncekej 1s\nvypis hodiny\n";
    const Vysledek v = proved(skript);
    EXPECT_EQ(v.kod, navrat::chyba_stavu);
    EXPECT_EQ(v.chyby, "řádek 4: kontrola stavu v 11:59:58 (10050 ms): kolej 62: barva není stavem koleje\n");
    EXPECT_TRUE(obsahuje(v.vystup, R"("tik_ms": 10050)"));
    EXPECT_EQ(proved(skript, false).kod, navrat::v_poradku) << "only when it is asked for";
}

// --- the same again

TEST_F(Davka, SameScriptGivesTheSameOutputAndTheSameLog) {
    const std::string skript = "semeno 7\npc 2026-03-29 01:59:00\nspust cas=23:55 rychlost=8\nprihlas\n"
                               "klik navestidlo 262\nklik Image1 63\ncekej 5min\nvypis hodiny\nvypis cesty\n"
                               "vypis pipnuti\nvypis volba\n";
    const std::string prvni = vypis(skript);
    const Bajty prvni_log = nacti_soubor(slozka.cesta + "GTN\\260329.gtn");
    EXPECT_EQ(vypis(skript), prvni);
    EXPECT_EQ(nacti_soubor(slozka.cesta + "GTN\\260329.gtn"), prvni_log);
    EXPECT_GT(prvni_log.size(), 28u);
}

namespace {

// A script that hands out line by line, and notes what had been flushed when the next one was asked for.
class RadekPoRadku : public std::streambuf {
public:
    RadekPoRadku(std::vector<std::string> co, const std::function<void()>& pri_cteni)
        : radky(std::move(co)), nove(pri_cteni) {}

protected:
    int_type underflow() override {
        nove();
        if (dalsi == radky.size())
            return traits_type::eof();
        std::string& r = radky[dalsi++];
        setg(r.data(), r.data(), r.data() + r.size());
        return traits_type::to_int_type(r.front());
    }

private:
    std::vector<std::string> radky;
    std::size_t dalsi = 0;
    std::function<void()> nove;
};

class SVyplachnutim : public std::stringbuf {
public:
    int vyplachnuto = 0;

protected:
    int sync() override {
        vyplachnuto = static_cast<int>(str().size());
        return 0;
    }
};

} // namespace

TEST_F(Davka, PipeIsAnsweredLineByLine) {
    SVyplachnutim cil;
    std::vector<int> stav;
    RadekPoRadku zdroj({"vypis menu\n", "vypis zpravy\n"}, [&] { stav.push_back(cil.vyplachnuto); });
    std::istream skript(&zdroj);
    std::ostream vystup(&cil);
    std::ostringstream chyby;
    VolbyDavky volby;
    volby.slozka = slozka.cesta.substr(0, slozka.cesta.size() - 1);
    volby.po_radcich = true;
    EXPECT_EQ(spust_davku(volby, skript, vystup, chyby), navrat::v_poradku);
    ASSERT_EQ(stav.size(), 3u);
    EXPECT_EQ(stav[0], 0);
    EXPECT_GT(stav[1], 0) << "the first answer is out before the second line is read";
    EXPECT_GT(stav[2], stav[1]);
}

TEST_F(Davka, LineThatNobodyWritesIsNoScript) {
    const Vysledek v = proved("vypis menu\n" + std::string(1'100'000, 'a') + "\n");
    EXPECT_EQ(v.kod, navrat::chyba_skriptu);
    EXPECT_NE(v.chyby.find("milion"), std::string::npos) << v.chyby;
}

// --- the program

namespace {

struct VysledekProgramu {
    int kod;
    std::string vystup, chyby;
};

VysledekProgramu program(const std::vector<std::string>& argumenty, const std::string& slozka) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int kod = hlavni_davky(argumenty, slozka);
    std::cout.flush();
    return {kod, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

// --- one folder

TEST_F(Davka, RunsBesideAnotherScriptAndNotBesideADesk) {
    const std::string na_disku = slozka.cesta.substr(0, slozka.cesta.size() - 1);
    const int cizi = ::open(na_disku.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(cizi, LOCK_SH | LOCK_NB), 0); // as another script holds it
    EXPECT_EQ(proved("spust cas=12:00\n").kod, navrat::v_poradku);
    ::flock(cizi, LOCK_UN);
    const DocasnaSlozka jina; // the lock of the run before goes with the next one
    proved("slozka \"" + jina.cesta.substr(0, jina.cesta.size() - 1) + "\"\nspust\n");
    ASSERT_EQ(::flock(cizi, LOCK_EX | LOCK_NB), 0); // as a desk does
    const Vysledek v = proved("spust cas=12:00\nvypis okna\n");
    EXPECT_EQ(v.kod, navrat::konec_simulace);
    EXPECT_TRUE(obsahuje(v.vystup, "Již je spuštěna jedna instance simulátoru TESK!")) << v.vystup;
    ::close(cizi);
}

// The routes of the second run are commanded, locked and taken back at the very seconds of the first one,
// however often it is saved.
TEST_F(Davka, RunWithSavesLeavesTheSameLogAsTheRunWithout) {
    const auto log = [&](const std::string& start, const std::string& ulozeni) {
        std::string skript = "spust cas=12:00" + start + "\nprihlas\n";
        for (int i = 0; i < 8; ++i)
            skript += "cekej 730ms\n" + ulozeni + "klik navestidlo 262\nklik Image1 " +
                      (i % 2 == 0 ? "63" : "64") + "\ncekej 8450ms\n" + ulozeni +
                      "pravy navestidlo 262\nmenu miRC\ncekej 12370ms\n" + ulozeni;
        vypis(skript);
        return nacti_soubor(slozka.cesta + "GTN\\260105.gtn");
    };
    const Bajty bez = log("", "");
    EXPECT_GT(bez.size(), 36u + 11u * 50u);
    EXPECT_EQ(log("", "uloz hra.sim\n"), bez);
    EXPECT_EQ(log(" autosave=1 autosaved=1", ""), bez);
}

} // namespace

TEST_F(Davka, ProgramRunsAFileInItsOwnFolderOrAnotherOne) {
    const std::string misto = slozka.cesta.substr(0, slozka.cesta.size() - 1);
    zapis_soubor(slozka.cesta + "a.tesk", bajty_textu("spust cas=12:00\nvypis menu\n"));
    const std::string ceka = "{\"vypis\": \"menu\", \"menu\": null, \"hlava\": \"\", \"polozky\": []}\n";
    EXPECT_EQ(program({misto + "/a.tesk"}, misto).vystup, ceka);
    EXPECT_EQ(program({"--kontrola", "--semeno", "5", misto + "/a.tesk", "--slozka=" + misto}, "/").vystup,
              ceka);
    const VysledekProgramu v = program({"--vystup", misto + "/b.json", misto + "/a.tesk"}, misto);
    EXPECT_EQ(v.kod, 0);
    EXPECT_EQ(v.vystup, "");
    EXPECT_EQ(nacti_soubor(slozka.cesta + "b.json"), bajty_textu(ceka));
}

TEST_F(Davka, ProgramRefusesWhatItDoesNotKnow) {
    const std::string misto = slozka.cesta.substr(0, slozka.cesta.size() - 1);
    EXPECT_TRUE(obsahuje(program({"--neznama", "x", "a"}, misto).chyby, "neznámá volba „--neznama“"));
    EXPECT_TRUE(obsahuje(program({"--neznama"}, misto).chyby, "neznámá volba „--neznama“"));
    EXPECT_TRUE(obsahuje(program({"a", "b"}, misto).chyby, "přebývá „b“"));
    EXPECT_TRUE(obsahuje(program({"--semeno", "x", "a"}, misto).chyby, "semeno je celé číslo"));
    EXPECT_TRUE(obsahuje(program({"--slozka"}, misto).chyby, "chybí hodnota"));
    EXPECT_TRUE(obsahuje(program({misto + "/neni.tesk"}, misto).chyby, "nelze otevřít"));
    EXPECT_TRUE(obsahuje(program({misto}, misto).chyby, "nelze otevřít")) << "a folder is no script";
    EXPECT_TRUE(obsahuje(program({}, misto).chyby, "tesk-davka [--slozka"));
    EXPECT_EQ(program({}, misto).kod, navrat::chyba_skriptu);
    EXPECT_EQ(program({"--pomoc"}, misto).kod, navrat::v_poradku);
    zapis_soubor(slozka.cesta + "a.tesk", bajty_textu("vypis menu\n"));
    const VysledekProgramu v = program({"--slozka", misto + "/neni", misto + "/a.tesk"}, misto);
    EXPECT_EQ(v.kod, navrat::chyba_skriptu);
    EXPECT_TRUE(v.chyby.starts_with("tesk-davka: složka")) << v.chyby;
}

TEST_F(Davka, SavedSimulationIsOpenedAgainByItsName) {
    vypis(kStart + "cekej 10s\n"
                   "klik navestidlo 262\n"
                   "klik Image1 63\n"
                   "cekej 20s\n"
                   "over cesty 0 Postavena=ano\n"
                   "uloz hra.sim\n"
                   "over hodiny pauza=ne\n"
                   "over okna radky.0.titul=\"KPS RVZ TESK\"\n");
    EXPECT_TRUE(soubor_existuje(slozka.cesta + "save\\hra.sim"));
    for (const char* jmeno : {"hra.sim", "hra", "save/hra.sim"})
        vypis(std::string("nacti ") + jmeno +
              "\n"
              "over cesty 0 Postavena=ano zacatek=262\n"
              "over kolej 63 barva=0x0000FF00\n"
              "over hodiny pauza=ano\n"
              "prihlas\n"
              "over hodiny pauza=ne\n"
              "cekej 1min\n");
    vypis("nacti hra.sim dual=1 autosave=1 autosaved=1\nprihlas\ncekej 3min\n");
    EXPECT_FALSE(soubory_slozky(slozka.cesta + "save\\autosave", "*.sim").empty());
}

TEST_F(Davka, SaveThatCannotBeReadEndsTheSimulation) {
    const Vysledek v = proved("nacti neni.sim\nvypis okna\n");
    EXPECT_EQ(v.kod, navrat::konec_simulace);
    EXPECT_TRUE(obsahuje(v.vystup, "Stav simulace ze soboru")) << v.vystup;
    EXPECT_TRUE(obsahuje(duvod("uloz hra.sim\n"), "potřebuje spuštěnou simulaci"));
}

// --- the automatic dispatcher

TEST_F(Davka, DeskOrSingleStationsAreHandedToTheDispatcherAndTakenBack) {
    vypis(kStart + "over vypravci zapnut=ne povelu=0 pocet=0\n"
                   "vypravci ano LHO TVH\nover vypravci zapnut=ano stanice=TVH,LHO\n"
                   "vypravci ano\nover vypravci zapnut=ano stanice=\n"
                   "krok vypravci\ncekej 10s\nvypravci ne\nover vypravci zapnut=ne\n");
}

TEST_F(Davka, UnknownStationIsNotHandedOver) {
    EXPECT_TRUE(obsahuje(duvod(kStart + "vypravci ano TVX\n"), "řádek 3: stanice „TVX“ není; nemělo to být"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "vypravci ne TVH\n"), "píše se vypravci ano, vypravci ne"));
    EXPECT_TRUE(obsahuje(duvod(kStart + "vypravci snad\n"), "píše se vypravci ano, vypravci ne"));
    EXPECT_TRUE(obsahuje(duvod("vypravci ano\n"), "potřebuje spuštěnou simulaci"));
    EXPECT_FALSE(vypravci::zapnut());
}
