// testy/app/parametry_test.cpp - the start screen: its checks, its fields, its commands.
#include "app/nova_simulace.h"
#include "app/parametry.h"
#include "app/rezim.h"
#include "desk/menu.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"
#include "zaklad/nahoda.h"

#include <array>
#include <ctime>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>

namespace {

class StartovniObrazovka : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        zapis_gvd("GVD/GVDb.dat", "druhy rad");
        zapis_gvd("GVD/GVDtyden.dat", "cely tyden");
        svet.zapis("GVD/jiny.dat", "x");
        svet.zapis("GVD/GVDstary.txt", "x");
        svet.nastaveni_pis("Obrazovka", "X", "1024");
        platforma.otevri_dokument = [this](TextPohled soubor) {
            dokumenty.emplace_back(soubor);
            return dokument_jde;
        };
        platforma.registruj_pismo = [this](TextPohled soubor) {
            pisma.emplace_back(soubor);
            return true;
        };
        platforma.bezi_jina_instance = [this] { return jina_instance; };
    }
    void zapis_gvd(const std::string& jmeno, TextPohled popis) {
        Zapisovac z;
        z.l(0);
        z.text(popis);
        svet.zapis(jmeno, z.bajty);
    }
    bool nacti() { return nacti_start(svet.koren.string()); }
    // The load ends the program after this box.
    void konci_oknem(TextPohled text) {
        EXPECT_FALSE(nacti());
        ASSERT_EQ(svet.okna.size(), 1u);
        EXPECT_EQ(svet.okna[0].text, text);
        EXPECT_EQ(svet.konec, 1);
        EXPECT_FALSE(parametry.nactena);
    }
    Text posledni_okno() { return svet.okna.empty() ? Text() : svet.okna.back().text; }
    void napis(const char* hodiny, const char* minuty) {
        pis_do_pole_startu(PoleStartu::txtHodiny, hodiny);
        pis_do_pole_startu(PoleStartu::txtMinuty, minuty);
    }
    std::vector<Text> dokumenty, pisma;
    bool dokument_jde = true, jina_instance = false;
};

// --- load: the order of the checks and their boxes

TEST_F(StartovniObrazovka, SecondInstanceEndsBeforeAnythingElseIsLookedAt) {
    jina_instance = true;
    std::filesystem::remove_all(svet.koren / "data");
    konci_oknem("Již je spuštěna jedna instance simulátoru TESK! Další instanci bez ukončení předešlé nelze "
                "spustit!"_cz);
    EXPECT_TRUE(svet.lista.empty());
}

TEST_F(StartovniObrazovka, FolderOnTheNetworkIsRefused) {
    EXPECT_FALSE(nacti_start("\\\\server\\tesk"));
    EXPECT_EQ(posledni_okno(),
              "Simulátor není možné spouštět ze sítě. Překopírujte si ho na místní pevný disk."_cz);
    EXPECT_EQ(svet.konec, 1);
    EXPECT_TRUE(svet.lista.empty());
    EXPECT_TRUE(pisma.empty());
}

TEST_F(StartovniObrazovka, EachDataFileIsCheckedInItsOrder) {
    constexpr std::array<const char*, 8> kPoradi = {"zat", "rea", "reb", "pzz", "top", "mak", "stg", "zpc"};
    for (const char* pripona : kPoradi)
        smaz_soubor(svet.cesta() + "data\\tesk." + pripona);
    for (const char* pripona : kPoradi) {
        svet.okna.clear();
        svet.konec.reset();
        Text text("Soubor "_cz);
        text += svet.cesta() + "data\\tesk." + pripona;
        text += " je poškozen, nelze ho otevřít nebo chybí! Nahraďte jej originálním souborem z instalačního "
                "balíčku."_cz;
        konci_oknem(text);
        svet.zapis(std::string("data/tesk.") + pripona, "");
    }
    EXPECT_TRUE(nacti());
}

TEST_F(StartovniObrazovka, FolderInPlaceOfADataFileHasNoLength) {
    std::filesystem::remove(svet.koren / "data/tesk.stg");
    std::filesystem::create_directory(svet.koren / "data/tesk.stg");
    EXPECT_FALSE(nacti());
    EXPECT_NE(posledni_okno().find("tesk.stg"), Text::npos);
}

TEST_F(StartovniObrazovka, WithoutATimetableThereIsNoSimulation) {
    std::filesystem::remove_all(svet.koren / "GVD");
    konci_oknem("Nenalezen žádný soubor s GVD daty (...\\GVD\\*GVD*.dat)! Simulaci nelze spustit. Problém "
                "odstraníte opětovným rozbalením(spuštěním) instalačního balíčku."_cz);
}

TEST_F(StartovniObrazovka, LoadShowsTheTaskBarAndRegistersTheFont) {
    ASSERT_TRUE(nacti());
    EXPECT_EQ(svet.lista, (std::vector<bool>{true}));
    EXPECT_EQ(pisma, (std::vector<Text>{svet.cesta() + "data\\kps.fon"}));
    EXPECT_EQ(parametry.lblVerze, " KPS RVZ TESK " + text_verze());
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(StartovniObrazovka, LoadSeedsTheRandomSource) {
    svet.semeno = 4711;
    ASSERT_TRUE(nacti());
    EXPECT_EQ(nahoda.stav, 4711u);
}

TEST_F(StartovniObrazovka, FolderGetsExactlyOneBackslash) {
    for (const char* slozka : {"C:\\", "C:"}) {
        nacti_start(slozka);
        EXPECT_EQ(simulace.cesta_aplikace, "C:\\");
    }
    for (const char* slozka : {"C:\\a", "C:\\a\\", "C:\\a\\\\"}) {
        nacti_start(slozka);
        EXPECT_EQ(simulace.cesta_aplikace, "C:\\a\\");
    }
    ASSERT_TRUE(nacti_start(svet.koren.string() + "/"));
    EXPECT_EQ(simulace.cesta_aplikace, svet.cesta());
}

TEST_F(StartovniObrazovka, FieldsShowTheWallClockAndItsDay) {
    svet.cas = {2026, 1, 11, 7, 5, 30, 0}; // a Sunday
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.txtHodiny, "7");
    EXPECT_EQ(parametry.txtMinuty, "05");
    EXPECT_EQ(parametry.cboDen, 6);
    EXPECT_EQ(kDnyStartu[6], "Neděle"_cz);
}

// --- list of versions

TEST_F(StartovniObrazovka, VersionListHasItsColumns) {
    std::tm mistni{};
    mistni.tm_year = 126, mistni.tm_mon = 2, mistni.tm_mday = 9, mistni.tm_hour = 4, mistni.tm_min = 5;
    mistni.tm_sec = 6, mistni.tm_isdst = -1;
    const std::time_t cas = std::mktime(&mistni);
    const timespec casy[2] = {{cas, 0}, {cas, 0}};
    for (const char* jmeno : {"data/tesk.zat", "GVD/GVDtyden.dat"})
        ASSERT_EQ(::utimensat(AT_FDCWD, (svet.koren / jmeno).c_str(), casy, 0), 0);
    ASSERT_TRUE(nacti());
    const std::vector<Text>& v = parametry.lblInfo_verze;
    ASSERT_EQ(v.size(), 12u);
    EXPECT_EQ(v[0], "Verze souborů simulace:"_cz);
    EXPECT_EQ(v[2], "Závěrová tabulka     \\data\\tesk.zat 09.03.26 04:05:06  "_cz);
    EXPECT_EQ(v[9], "Dostupné GVD:"_cz);
    EXPECT_EQ(v[11], "GVDtyden                            09.03.26 04:05:06  ");
    constexpr std::array<const char*, 8> kCesty = {
        "\\data\\kps.fon  ", "\\data\\tesk.zat ", "\\data\\tesk.zpc ", "\\data\\tesk.pzz ",
        "\\data\\tesk.top ", "\\data\\tesk.stg ", "\\data\\tesk.rea ", "\\data\\tesk.reb "};
    const std::array<TextPohled, 8> kNazvy = {
        "KPS Core Font",          "Závěrová tabulka"_cz,  "Závěrová tabulka"_cz, "Definice přejezdů"_cz,
        "Topologie kolejiště"_cz, "Konverzní tabulka"_cz, "Reliéf"_cz,           "Reliéf"_cz};
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(v[i + 1].size(), 55u);
        EXPECT_EQ(orez(v[i + 1].substr(0, 21)), kNazvy[i]);
        EXPECT_EQ(v[i + 1].substr(21, 15), kCesty[i]);
    }
}

TEST_F(StartovniObrazovka, MissingFontIsALineWithoutADate) {
    smaz_soubor(svet.cesta() + "data\\kps.fon");
    ASSERT_TRUE(nacti());
    EXPECT_EQ(orez(parametry.lblInfo_verze[1].substr(36)), "");
}

// --- timetables

TEST_F(StartovniObrazovka, OnlyFilesOfTimetablesAreOffered) {
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.miGVD, (std::vector<Text>{"GVDb", "GVDtyden"}));
}

TEST_F(StartovniObrazovka, FirstTimetableIsSelectedUnlessTheSettingNamesALaterOne) {
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblAktualni_GVD, "GVDb");
    svet.nastaveni_pis("Nastaveni", "GVD", "gvdTYDEN.dat");
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblAktualni_GVD, "GVDtyden");
    EXPECT_EQ(parametry.lblGVD_popis_aktualni, "cely tyden");
    EXPECT_EQ(simulace.soubor_gvd, svet.cesta() + "GVD\\GVDtyden.dat");
}

TEST_F(StartovniObrazovka, SettingOfATimetableThatIsGoneLeavesTheFirst) {
    svet.nastaveni_pis("Nastaveni", "GVD", "GVDneni.dat");
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblAktualni_GVD, "GVDb");
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(StartovniObrazovka, MenuOfTimetablesSelectsOne) {
    ASSERT_TRUE(nacti());
    otevri_nabidku_gvd();
    ASSERT_EQ(menu.polozky.size(), 2u);
    EXPECT_EQ(menu.polozky[1].text, "GVDtyden");
    EXPECT_TRUE(zvol_v_menu("miGVD1"));
    EXPECT_EQ(parametry.lblAktualni_GVD, "GVDtyden");
    vyber_gvd(2);
    vyber_gvd(-1);
    EXPECT_EQ(parametry.lblAktualni_GVD, "GVDtyden");
}

TEST_F(StartovniObrazovka, DamagedTimetableHasNoDescription) {
    svet.zapis("GVD/GVDb.dat", Bajty{1, 2});
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblGVD_popis_aktualni, "");
}

// --- display

TEST_F(StartovniObrazovka, WideDisplayIsTwoMonitors) {
    svet.rezim = {2048, 768, 60, 32};
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblMonitor, "DUAL monitor detected");
    EXPECT_TRUE(simulace.dva_monitory);
    EXPECT_EQ(parametry.vlevo, 4000);
    svet.rezim = {1920, 768, 60, 32}; // 768: exactly the height is not greater
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.lblMonitor, "SINGLE monitor  detected");
    EXPECT_FALSE(simulace.dva_monitory);
    EXPECT_EQ(parametry.vlevo, kZadny);
}

// --- settings

TEST_F(StartovniObrazovka, EmptyStoreGivesTheDefaults) {
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.cboRychlost, 0);
    EXPECT_TRUE(parametry.chkZpozdeni);
    EXPECT_TRUE(parametry.chkPP);
    EXPECT_FALSE(parametry.chkNoresize);
    EXPECT_FALSE(parametry.chkDualMonitor);
    EXPECT_FALSE(parametry.chkZvuk);
    EXPECT_FALSE(parametry.chkAutosave);
    EXPECT_FALSE(parametry.chkVypravci);
    EXPECT_EQ(parametry.txtAutosave, "60");
    EXPECT_EQ(parametry.stranka, 0);
}

TEST_F(StartovniObrazovka, StoredSettingsFillTheControls) {
    for (const auto& [klic, hodnota] : {std::pair{"Rychlost", "3"},
                                        {"Zpozdeni", "0"},
                                        {"PP", "0"},
                                        {"Noresize", "1"},
                                        {"Dual", "1"},
                                        {"Zvuk", "1"},
                                        {"Autosave", "1"},
                                        {"Vypravci", "1"},
                                        {"Autosaved", "7.5"}})
        svet.nastaveni_pis("Nastaveni", klic, hodnota);
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.cboRychlost, 3);
    EXPECT_FALSE(parametry.chkZpozdeni);
    EXPECT_FALSE(parametry.chkPP);
    EXPECT_TRUE(parametry.chkNoresize);
    EXPECT_TRUE(parametry.chkDualMonitor);
    EXPECT_TRUE(parametry.chkAutosave);
    EXPECT_TRUE(parametry.chkVypravci);
    EXPECT_EQ(parametry.txtAutosave, "7.5");
    EXPECT_TRUE(parametry.chkZvuk);
    EXPECT_TRUE(simulace.zvuk_vypnut) << "the box counts at once, also when a setting ticks it";
}

TEST_F(StartovniObrazovka, SettingThatIsNoNumberIsAFatalConversionError) {
    for (const char* klic :
         {"Rychlost", "Zpozdeni", "PP", "Noresize", "Dual", "Zvuk", "Autosave", "Autosaved"}) {
        svet.nastaveni = {{"Nastaveni", klic, "ano"}};
        try {
            nacti();
            ADD_FAILURE() << klic;
        } catch (const BehovaChyba& chyba) {
            EXPECT_EQ(chyba.kod, KodChyby::neshoda_typu) << klic;
        }
    }
}

// --- fields

TEST_F(StartovniObrazovka, ArrowsStepTheHourRound) {
    ASSERT_TRUE(nacti());
    napis("22", "00");
    for (const char* dalsi : {"23", "0", "1"}) {
        krok_casu(PoleStartu::txtHodiny, 1);
        EXPECT_EQ(parametry.txtHodiny, dalsi);
    }
    for (const char* dalsi : {"0", "23", "22"}) {
        krok_casu(PoleStartu::txtHodiny, -1);
        EXPECT_EQ(parametry.txtHodiny, dalsi);
    }
}

TEST_F(StartovniObrazovka, ArrowsStepTheMinuteRound) {
    ASSERT_TRUE(nacti());
    napis("22", "58");
    for (const char* dalsi : {"59", "00", "01"}) {
        krok_casu(PoleStartu::txtMinuty, 1);
        EXPECT_EQ(parametry.txtMinuty, dalsi);
    }
    for (const char* dalsi : {"00", "59", "58"}) {
        krok_casu(PoleStartu::txtMinuty, -1);
        EXPECT_EQ(parametry.txtMinuty, dalsi);
    }
    EXPECT_EQ(parametry.txtHodiny, "22");
}

TEST_F(StartovniObrazovka, ArrowsComeBackFromWhatIsNoTime) {
    ASSERT_TRUE(nacti());
    for (const auto& [napsano, nahoru, dolu_] :
         {std::array{"24", "0", "23"}, std::array{"99999999999", "0", "23"}, std::array{"-5", "0", "23"},
          std::array{"x", "1", "23"}, std::array{"", "1", "23"}}) {
        napis(napsano, "00");
        krok_casu(PoleStartu::txtHodiny, 1);
        EXPECT_EQ(parametry.txtHodiny, nahoru) << napsano;
        napis(napsano, "00");
        krok_casu(PoleStartu::txtHodiny, -1);
        EXPECT_EQ(parametry.txtHodiny, dolu_) << napsano;
    }
    const Parametry predtim = parametry;
    krok_casu(PoleStartu::txtAutosave, 1);
    krok_casu(PoleStartu::zadne, 1);
    EXPECT_EQ(parametry, predtim);
}

TEST_F(StartovniObrazovka, RandomTimeNeverHasTheLastHourNorTheLastMinute) {
    ASSERT_TRUE(nacti());
    std::set<Text> hodiny, minuty;
    for (int i = 0; i < 5000; ++i) {
        nahodny_cas();
        hodiny.insert(parametry.txtHodiny);
        minuty.insert(parametry.txtMinuty);
    }
    EXPECT_EQ(hodiny.size(), 23u);
    EXPECT_EQ(hodiny.count("23"), 0u);
    EXPECT_EQ(minuty.size(), 59u);
    EXPECT_EQ(minuty.count("59"), 0u);
    EXPECT_EQ(minuty.count("00"), 1u);
    EXPECT_EQ(hodiny.count("0"), 1u);
}

TEST_F(StartovniObrazovka, SoundIsSilencedAtOnce) {
    ASSERT_TRUE(nacti());
    nastav_zvuk(true);
    EXPECT_TRUE(simulace.zvuk_vypnut);
    nastav_zvuk(false);
    EXPECT_FALSE(simulace.zvuk_vypnut);
}

// --- favourites

TEST_F(StartovniObrazovka, FavouritesAreStoredUnderTheNextFreeKeyAndOffered) {
    ASSERT_TRUE(nacti());
    napis("9", "5");
    pridej_oblibeny();
    napis("23", "59");
    pridej_oblibeny();
    EXPECT_EQ(svet.nastaveni_cti("Casy", "0"), "9:05");
    EXPECT_EQ(svet.nastaveni_cti("Casy", "1"), "23:59");
    platforma.nastaveni_smaz("Casy", "0");
    napis("12", "00");
    pridej_oblibeny();
    EXPECT_EQ(svet.nastaveni_cti("Casy", "0"), "12:00");
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.miOblibena, (std::vector<Text>{"12:00", "23:59"}));
    otevri_oblibene();
    EXPECT_EQ(menu.jmeno, "miOblibena");
    EXPECT_TRUE(zvol_v_menu("miOblibena1"));
    EXPECT_EQ(parametry.txtHodiny, "23");
    EXPECT_EQ(parametry.txtMinuty, "59");
}

TEST_F(StartovniObrazovka, FavouriteWithOneDigitOfTheHourIsTakenRight) {
    svet.nastaveni_pis("Casy", "10", "8:30");
    svet.nastaveni_pis("Casy", "2", "9:05");
    svet.nastaveni_pis("Casy", "jine", "1:00");
    ASSERT_TRUE(nacti());
    EXPECT_EQ(parametry.miOblibena, (std::vector<Text>{"9:05", "8:30"})) << "in the order of their numbers";
    vyber_oblibeny(0);
    EXPECT_EQ(parametry.txtHodiny, "9");
    EXPECT_EQ(parametry.txtMinuty, "05");
    vyber_oblibeny(2);
    vyber_oblibeny(-1);
    EXPECT_EQ(parametry.txtHodiny, "9");
}

TEST_F(StartovniObrazovka, DamagedFavouriteIsHarmless) {
    for (const char* hodnota : {"", ":", "x", "12345678901234567890", "1:2"}) {
        svet.nastaveni_pis("Casy", "0", hodnota);
        ASSERT_TRUE(nacti());
        vyber_oblibeny(0);
        EXPECT_LE(parametry.txtHodiny.size(), 2u) << hodnota;
    }
}

TEST_F(StartovniObrazovka, WithoutFavouritesThereIsAMessageAndNoMenu) {
    ASSERT_TRUE(nacti());
    otevri_oblibene();
    EXPECT_EQ(menu.jmeno, "");
    EXPECT_EQ(posledni_okno(),
              "Nemáte uloženy žádné oblíbené časy. Uložení provedete tlačítkem přidat oblíbený čas"_cz);
}

TEST_F(StartovniObrazovka, TimeThatIsNoneIsNoFavourite) {
    ASSERT_TRUE(nacti());
    napis("24", "00");
    pridej_oblibeny();
    EXPECT_EQ(posledni_okno(), "Neplatný čas, opravte jej!"_cz);
    EXPECT_EQ(svet.nastaveni_cti("Casy", "0"), std::nullopt);
}

// --- pages, manual, end

TEST_F(StartovniObrazovka, PageImagesGoThereAndBack) {
    ASSERT_TRUE(nacti());
    EXPECT_EQ(kStrankyStartu[1], "Nastavení dalších možností"_cz);
    EXPECT_EQ(kStrankyStartu[2], "O aplikaci"_cz);
    prepni_stranku(1);
    EXPECT_EQ(parametry.stranka, 1);
    prepni_stranku(2);
    EXPECT_EQ(parametry.stranka, 2);
    prepni_stranku(2);
    EXPECT_EQ(parametry.stranka, 0);
    prepni_stranku(3);
    prepni_stranku(0);
    EXPECT_EQ(parametry.stranka, 0);
}

TEST_F(StartovniObrazovka, ManualIsOpenedByTheSystem) {
    ASSERT_TRUE(nacti());
    otevri_navod();
    EXPECT_EQ(dokumenty, (std::vector<Text>{svet.cesta() + "navod.pdf"}));
    EXPECT_TRUE(svet.okna.empty());
    dokument_jde = false;
    otevri_navod();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].titul, "Chyba");
    EXPECT_TRUE(svet.okna[0].text.starts_with(
        "Nepodařilo se otevřít soubor s návodem (NAVOD.PDF ve složce simulátoru)! Zkuste to ručně. Je možné, "
        "že nemáte potřebný prohlížeč Adobe Acrobat Reader. "_cz));
}

TEST_F(StartovniObrazovka, EndImageEndsTheProgram) {
    ASSERT_TRUE(nacti());
    konec_startu();
    EXPECT_EQ(svet.konec, 0);
}

// --- start

TEST_F(StartovniObrazovka, TimesThatAreNoneAreRefusedAndNothingIsStored) {
    ASSERT_TRUE(nacti());
    for (const auto& [hodiny, minuty] : {std::pair{"24", "00"},
                                         {"12", "60"},
                                         {"-1", "00"},
                                         {"12", "-1"},
                                         {"x", "00"},
                                         {"12", ""},
                                         {"", "00"},
                                         {"1e400", "0"},
                                         {"23.7", "0"},
                                         {"12", "59.5"}}) {
        svet.okna.clear();
        napis(hodiny, minuty);
        EXPECT_FALSE(start_prikaz()) << hodiny << ":" << minuty;
        EXPECT_EQ(posledni_okno(), "Neplatný čas!"_cz);
        EXPECT_EQ(parametry.txtHodiny, hodiny) << "the field keeps what was typed";
        EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "GVD"), std::nullopt);
        EXPECT_EQ(simulace.obrazovka, "frmParametry");
    }
}

TEST_F(StartovniObrazovka, TimesAtTheBoundsAreAccepted) {
    for (const auto& [hodiny, minuty, zacatek] :
         {std::tuple{"23", "59", 1438}, {"0", "0", -1}, {" 7 ", "5", 424}, {"7.5", "0.5", 479}}) {
        nova_simulace();
        ASSERT_TRUE(nacti());
        napis(hodiny, minuty);
        EXPECT_TRUE(start_prikaz()) << hodiny << ":" << minuty;
        EXPECT_EQ(simulace.cas_zacatku, zacatek);
        EXPECT_EQ(parametry.txtMinuty.size(), 2u) << "the start writes the minutes with two digits";
    }
}

TEST_F(StartovniObrazovka, StartHandsOverAndStores) {
    svet.nastaveni_pis("Nastaveni", "GVD", "GVDtyden.dat");
    ASSERT_TRUE(nacti());
    napis("12", "00");
    parametry.cboDen = 2;
    parametry.cboRychlost = 2;
    parametry.chkPP = false;
    parametry.chkNoresize = parametry.chkAutosave = true;
    pis_do_pole_startu(PoleStartu::txtAutosave, "15");
    EXPECT_TRUE(start_prikaz());
    EXPECT_EQ(relief.lblcas[0].text(), "11:59:58");
    EXPECT_EQ(relief.lblDEN[0].text(), "středa"_cz);
    EXPECT_EQ(relief.lblGVD[0].text(), "GVDtyden");
    EXPECT_EQ(simulace.den, 4);
    EXPECT_EQ(simulace.cas_zacatku, 719);
    EXPECT_EQ(simulace.rychlost, 3);
    EXPECT_FALSE(simulace.pp_povoleno);
    EXPECT_TRUE(simulace.zpozdeni_povoleno);
    EXPECT_TRUE(simulace.noresize);
    EXPECT_TRUE(simulace.autosave);
    EXPECT_EQ(simulace.autosave_minut, 15);
    EXPECT_EQ(simulace.obrazovka, "frmUvod");
    const std::array<std::pair<const char*, const char*>, 9> ulozeno = {{{"GVD", "GVDtyden.dat"},
                                                                         {"Rychlost", "2"},
                                                                         {"Zpozdeni", "1"},
                                                                         {"PP", "0"},
                                                                         {"Noresize", "1"},
                                                                         {"Dual", "0"},
                                                                         {"Zvuk", "0"},
                                                                         {"Autosave", "1"},
                                                                         {"Autosaved", "15"}}};
    for (const auto& [klic, hodnota] : ulozeno)
        EXPECT_EQ(svet.nastaveni_cti("nastaveni", klic), hodnota) << klic;
}

TEST_F(StartovniObrazovka, PeriodThatIsNoNumberIsNotStored) {
    ASSERT_TRUE(nacti());
    pis_do_pole_startu(PoleStartu::txtAutosave, "casto");
    EXPECT_TRUE(start_prikaz());
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Autosaved"), std::nullopt);
    EXPECT_EQ(simulace.autosave_minut, 60);
}

TEST_F(StartovniObrazovka, BoxOfTheSecondMonitorGivesItUp) {
    svet.rezim = {2048, 768, 60, 32};
    ASSERT_TRUE(nacti());
    parametry.chkDualMonitor = true;
    EXPECT_TRUE(start_prikaz());
    EXPECT_FALSE(simulace.dva_monitory);
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Dual"), "1");
}

TEST_F(StartovniObrazovka, SecondStartCommandChangesNothing) {
    ASSERT_TRUE(nacti());
    napis("12", "00");
    EXPECT_TRUE(start_prikaz());
    napis("13", "00");
    EXPECT_FALSE(start_prikaz());
    EXPECT_FALSE(otevri_zaznam());
    EXPECT_EQ(simulace.cas_zacatku, 719);
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(StartovniObrazovka, CancelledOpenLeavesTheScreen) {
    ASSERT_TRUE(nacti());
    EXPECT_FALSE(otevri_zaznam());
    EXPECT_EQ(simulace.obrazovka, "frmParametry");
    EXPECT_FALSE(simulace.nacitani_zaznamu);
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Zvuk"), std::nullopt);
}

TEST_F(StartovniObrazovka, OpenStoresTheOptionsButNotTheChoicesOfAStart) {
    ASSERT_TRUE(nacti());
    parametry.chkAutosave = true;
    svet.soubory = {svet.cesta() + "save\\a.sim"};
    EXPECT_TRUE(otevri_zaznam());
    EXPECT_TRUE(simulace.nacitani_zaznamu);
    EXPECT_EQ(simulace.soubor_zaznamu, svet.cesta() + "save\\a.sim");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Autosave"), "1");
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "GVD"), std::nullopt);
}

TEST_F(StartovniObrazovka, LogOfAnOpenedSimulationIsFiledUnderTheDayOfTheList) {
    ASSERT_TRUE(nacti());
    parametry.cboDen = 4;
    svet.soubory = {svet.cesta() + "save\\a.sim"};
    EXPECT_TRUE(otevri_zaznam());
    EXPECT_EQ(simulace.den_startu, 4);
}

TEST_F(StartovniObrazovka, NewSimulationForgetsTheScreen) {
    ASSERT_TRUE(nacti());
    prepni_stranku(1);
    nova_simulace();
    EXPECT_EQ(parametry, Parametry{});
}

// --- display modes

TEST_F(StartovniObrazovka, OperatorsModeIsStoredUnderItsFourKeys) {
    svet.rezim = {1920, 1080, 75, 24};
    zapamatuj_rezim();
    EXPECT_EQ(svet.nastaveni_cti("Obrazovka", "X"), "1920");
    EXPECT_EQ(svet.nastaveni_cti("Obrazovka", "y"), "1080");
    EXPECT_EQ(svet.nastaveni_cti("Obrazovka", "f"), "75");
    EXPECT_EQ(svet.nastaveni_cti("Obrazovka", "bpp"), "24");
    EXPECT_EQ(ulozeny_rezim(), svet.rezim);
}

TEST_F(StartovniObrazovka, ModeIsSwitchedOnlyWhenTheDisplayListsIt) {
    svet.rezim = {1920, 1080, 75, 24};
    svet.rezimy = {{1024, 768, 60, 32}, {800, 600, 60, 32}};
    nastav_rezim(640, 480, 0, 0);
    EXPECT_TRUE(svet.prepnute_rezimy.empty());
    EXPECT_TRUE(svet.okna.empty()) << "only the desk's own size is needed";
    nastav_rezim(800, 600, 0, 0);
    nastav_rezim(1024, 768, 60, 16);
    EXPECT_EQ(svet.prepnute_rezimy, (std::vector<RezimObrazovky>{{800, 600, 75, 24}, {1024, 768, 60, 16}}));
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(StartovniObrazovka, NeededModeThatIsMissingOrFailsGetsItsBox) {
    svet.rezim = {1920, 1080, 75, 24};
    nastav_rezim(1024, 768, 0, 0);
    svet.rezimy = {{800, 600, 60, 32}};
    svet.rezim_selze = true;
    nastav_rezim(800, 600, 0, 0);
    ASSERT_EQ(svet.okna.size(), 2u);
    const Text text(
        "Vaše grafická karta/monitor/ovladače zřejmě nepodporují rozlišení 1024*768 pixelů nutné pro "
        "korektní zobrazení simulace! Simulátor bude pokračovat, ale zřejmě nebude viditelné celé "
        "okno simulace!"_cz);
    EXPECT_EQ(svet.okna[0].text, text);
    EXPECT_EQ(svet.okna[1].text, text);
}

TEST_F(StartovniObrazovka, TaskBarIsHiddenAndShown) {
    skryj_listu();
    ukaz_listu();
    EXPECT_EQ(svet.lista, (std::vector<bool>{false, true}));
}

} // namespace
