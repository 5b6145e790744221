// testy/app/prehravani_test.cpp - a recorded shift is watched at the desk, gone back and forth in, and taken
// over.
#include "app/historie.h"
#include "app/parametry.h"
#include "app/prehravani.h"
#include "cesty/ulozena_makra.h"
#include "pomocne/smena_ruky.h"

namespace {

class Prehravani : public SmenaRuky {
protected:
    ~Prehravani() override { zapomen_prehravani(); }

    // A shift of some minutes, and what it came to.
    std::string odslouzena_smena(unsigned semeno) {
        zacni(semeno);
        while (ubehlo_s() < 15 * 60)
            pracuj(5000);
        log = denik();
        stav = stav_simulace();
        konec_ms = virtualni_hodiny.cas_ms;
        zdroj = nahoda;
        return zaznam_smeny();
    }
    void spust(const std::string& zaznam) {
        novy_svet();
        ASSERT_TRUE(nacti_start(simulace.cesta_aplikace));
        const std::optional<Text> vada = cti_smenu(zaznam);
        ASSERT_FALSE(vada) << na_utf8(*vada);
        spust_prehravani();
        ASSERT_TRUE(prehrava_se());
    }
    void over_konec() {
        EXPECT_TRUE(prehravani_skoncilo());
        EXPECT_EQ(virtualni_hodiny.cas_ms, konec_ms);
        stav.parametry = parametry; // the start screen that is gone
        EXPECT_EQ(rozdil(stav_simulace(), stav), "");
        EXPECT_EQ(nahoda, zdroj);
        EXPECT_TRUE(denik() == log);
    }
    Bajty denik() const {
        gtn_vyprazdni();
        const bool prehrany = std::filesystem::exists(koren / "GTN" / "260105_prehrani.gtn");
        std::ifstream proud(koren / "GTN" / (prehrany ? "260105_prehrani.gtn" : "260105.gtn"),
                            std::ios::binary);
        return Bajty(std::istreambuf_iterator<char>(proud), {});
    }

    Bajty log;
    StavSimulace stav;
    Nahoda zdroj;
    std::int64_t konec_ms = 0;
};

TEST_F(Prehravani, ShowsTheShiftAsItWasInWhateverSteps) {
    spust(odslouzena_smena(41));
    while (!prehravani_skoncilo())
        prehravej_do(virtualni_hodiny.cas_ms + 1 + static_cast<std::int64_t>(los() % 20'000));
    over_konec();
}

TEST_F(Prehravani, LeavesTheLogAndTheSavesOfTheOperatorAlone) {
    const std::string zaznam = odslouzena_smena(42);
    const auto puvodni = koren / "GTN" / "260105.gtn";
    const auto delka = std::filesystem::file_size(puvodni);
    std::filesystem::remove_all(koren / "save");
    spust(zaznam);
    prehravej_do(konec_ms);
    over_konec();
    EXPECT_EQ(std::filesystem::file_size(puvodni), delka);
    EXPECT_FALSE(std::filesystem::exists(koren / "save"));
    EXPECT_FALSE(std::filesystem::exists(koren / "smeny"));
}

TEST_F(Prehravani, GoesForthAndBackAndComesToTheSameEnd) {
    spust(odslouzena_smena(43));
    for (int i = 0; i < 30; ++i) {
        const std::int64_t pred = ubehlo_s();
        const auto o = static_cast<std::int64_t>(los() % 400) - 200;
        if (prehraj_o(o) && o > 0) {
            EXPECT_GE(ubehlo_s(), pred + o);
        }
        over_stav();
    }
    EXPECT_FALSE(prehraj_o(-ubehlo_s() - 1));
    EXPECT_FALSE(prehraj_o(24 * 3600));
    over_konec();
}

TEST_F(Prehravani, CanBeTakenOverAndIsThenAShiftWithARecordOfItsOwn) {
    spust(odslouzena_smena(44));
    ASSERT_TRUE(prehraj_o(5 * 60));
    prevezmi_smenu();
    EXPECT_FALSE(prehrava_se());
    los.seed(4);
    while (ubehlo_s() < 12 * 60)
        pracuj(3000);
    dopis_smenu();
    std::string na_disku;
    for (const auto& soubor : std::filesystem::directory_iterator(koren / "smeny")) {
        std::ifstream proud(soubor.path(), std::ios::binary);
        na_disku.assign(std::istreambuf_iterator<char>(proud), {});
    }
    ASSERT_FALSE(na_disku.empty());
    log = denik();
    stav = stav_simulace();
    konec_ms = virtualni_hodiny.cas_ms;
    zdroj = nahoda;
    spust(na_disku);
    prehravej_do(konec_ms);
    over_konec();
}

TEST_F(Prehravani, EndsWhereACrashHasEndedTheRecord) {
    const std::string zaznam = odslouzena_smena(45);
    novy_svet();
    ASSERT_TRUE(nacti_start(simulace.cesta_aplikace));
    ASSERT_FALSE(cti_smenu(zaznam));
    const std::int64_t cely = delka_zaznamu_ms();
    const std::size_t posledni = zaznam.rfind("cekej ");
    ASSERT_FALSE(cti_smenu(zaznam.substr(0, zaznam.size() - 3)));
    EXPECT_EQ(cely - delka_zaznamu_ms(), std::stoll(zaznam.substr(posledni + 6)));
}

TEST_F(Prehravani, RefusesWhatIsNoRecord) {
    EXPECT_TRUE(cti_smenu(""));
    EXPECT_TRUE(cti_smenu("klik navestidlo 287\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=25:00\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00\nnastav kolej 73 barva=1\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00\npis \"bez konce\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nmakra nejsou*to\nspust cas=5:00\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\npc 99999999-01-05 08:00:00\nspust cas=5:00\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00\nprestavka -5000ms\n")) << "time does not run back";
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00\nvraceno 8:00:00 brzo\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00 gvd=GVD_ktery_neni\n"));
    std::string dlouhy = "smena 2.0.1\nspust cas=5:00\n";
    for (int i = 0; i < 2000; ++i)
        dlouhy += "cekej 9000000000000000ms\n";
    EXPECT_TRUE(cti_smenu(dlouhy)) << "no shift lasts as long";
    for (const char* radek : {"klavesa Nikde", "klik kolej 1000", "klik kolej -1", "klik kolej 99999999999",
                              "prestavka 5ms jindy", "klik lstZpravy 99999999999", "ukaz_vlak 99999999999"})
        EXPECT_TRUE(cti_smenu(std::string("smena 2.0.1\nspust cas=5:00\n") + radek + "\n")) << radek;
    EXPECT_TRUE(cti_smenu("smena 2.0.1\npc 2026-02-31 08:00:00\nspust cas=5:00\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00 gvd=..\\..\\x\n"));
    EXPECT_TRUE(cti_smenu("smena 2.0.1\nspust cas=5:00\npis " + std::string(20'000, 'a') + "\n"));
    EXPECT_TRUE(cti_smenu(std::string(kNejdelsiZaznamSmeny_B + 1, 'a')));
    EXPECT_FALSE(cti_smenu("smena 2.0.1\npc 2026-01-05 08:00:00\nspust cas=5:00 den=0\n"));
}

TEST_F(Prehravani, EndsBeforeTheActThatEndedTheProgram) {
    for (const char* konec : {"klik imgKONEC 0", "okno zavri", "klavesa Ctrl+Shift+F10"}) {
        std::filesystem::remove(koren / "GTN" / "260105_prehrani.gtn"); // of the one before
        const std::string zaznam = odslouzena_smena(46);
        const std::string odpoved = std::string_view(konec).starts_with("klavesa") ? "" : "odpovez ano\n";
        spust(zaznam + odpoved + konec + "\n");
        EXPECT_NO_THROW(prehravej_do(konec_ms + 1000)) << konec;
        over_konec();
        EXPECT_TRUE(prehraj_o(-60)) << "from there it can be looked back";
        zapomen_prehravani();
    }
}

TEST_F(Prehravani, TellsWhyTheGameInARecordCannotBeLoaded) {
    std::string zaznam = "smena 2.0.1\npc 2026-01-05 08:00:00\nsemeno 1\nhra " + na_base64({1, 2, 3, 4, 5}) +
                         "\nnacti hra.sim den=0\n";
    novy_svet();
    ASSERT_TRUE(nacti_start(simulace.cesta_aplikace));
    ASSERT_FALSE(cti_smenu(zaznam));
    EXPECT_THROW(spust_prehravani(), KonecProgramu);
    ASSERT_FALSE(svet.okna.empty());
    EXPECT_NE(na_utf8(svet.okna.back().text).find("se nepodařilo načíst"), std::string::npos)
        << na_utf8(svet.okna.back().text);
}

TEST_F(Prehravani, GoingBackWhileWatchingIsNoGoingBackOfTheShift) {
    spust(odslouzena_smena(47));
    ASSERT_TRUE(prehraj_o(5 * 60));
    ASSERT_TRUE(prehraj_o(-60));
    prehravej_do(konec_ms);
    over_konec();
    EXPECT_EQ(zaznam_smeny().find("vraceno"), std::string::npos);
}

TEST_F(Prehravani, HasTheMacrosOfItsShiftAndNotTheWatchers) {
    zacni(48);
    nahraj_makro();
    zacni(48);
    while (ubehlo_s() < 5 * 60)
        pracuj(5000);
    skript("klavesa Alt+A");
    skript("cekej 3min");
    log = denik();
    stav = stav_simulace();
    konec_ms = virtualni_hodiny.cas_ms;
    zdroj = nahoda;
    const std::string zaznam = zaznam_smeny();
    const Bajty makra = obsah_maker();
    obnov_makra({});
    spust(zaznam);
    ASSERT_TRUE(prehraj_o(4 * 60));
    ASSERT_TRUE(prehraj_o(-2 * 60));
    prehravej_do(konec_ms);
    over_konec();
    EXPECT_EQ(obsah_maker(), makra);
    prevezmi_smenu();
    ASSERT_EQ(vrat_o(60), Navrat::hotovo);
    EXPECT_EQ(obsah_maker(), makra);
    zapomen_prehravani();
    EXPECT_TRUE(obsah_maker().empty()) << "the watcher's own";
}

TEST_F(Prehravani, TellsThatARecordIsOfAnotherVersion) {
    std::string zaznam = odslouzena_smena(49);
    spust(zaznam);
    const std::size_t oken = svet.okna.size();
    zapomen_prehravani();
    const std::size_t verze = zaznam.find("smena ") + 6;
    spust(zaznam.replace(verze, zaznam.find('\n', verze) - verze, "1.9.0"));
    ASSERT_EQ(svet.okna.size(), oken + 1);
    EXPECT_NE(na_utf8(svet.okna.back().text).find("1.9.0"), std::string::npos);
    zapomen_prehravani();
}

} // namespace
