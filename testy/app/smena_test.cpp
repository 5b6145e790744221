// testy/app/smena_test.cpp - the record of the shift plays it again, to the byte of its log.
#include "app/prestavky.h"
#include "davka/skript.h"
#include "obsluha/povely.h"
#include "pomocne/semena.h"
#include "pomocne/smena_ruky.h"
#include "technologie/technologie.h"
#include "vypravci/vypravci.h"
#include "zaklad/slova.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <set>
#include <sys/resource.h>

namespace {

// Simulated minutes of a shift; TESK_HODIN=1 for whole hours.
std::int64_t minut() {
    const char* text = std::getenv("TESK_HODIN");
    return text != nullptr ? std::atoi(text) * 60 : 20;
}

class ZaznamSmeny : public SmenaRuky {
protected:
    std::string soubor() const {
        if (!std::filesystem::is_directory(koren / "smeny"))
            return {};
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
            delka_minuty = static_cast<std::size_t>(gtn_misto().delka);
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

// The notes of a record that tell of time turned back.
std::vector<std::string> navraty(const std::string& zaznam) {
    std::vector<std::string> vse;
    std::istringstream radky(zaznam);
    for (std::string radek; std::getline(radky, radek);)
        if (radek.starts_with("vraceno "))
            vse.push_back(radek.substr(0, radek.find(" #")));
    return vse;
}

TEST_F(ZaznamSmeny, TellsFromWhichMomentTimeWasTurnedBackAndThatThisWasUndone) {
    zacni(14, true);
    const auto hodin = [] { return na_utf8(text_casu(cas_hodin())); };
    pracuj_minut(10);
    const std::string odkud = hodin();
    ASSERT_EQ(vrat_o(3 * 60), Navrat::hotovo);
    const std::string kam = hodin();
    EXPECT_EQ(navraty(zaznam_smeny()), std::vector{"vraceno " + odkud + " " + kam});
    ASSERT_EQ(zrus_navrat(), Navrat::hotovo);
    EXPECT_EQ(navraty(zaznam_smeny()), std::vector{"vraceno " + odkud + " " + kam + " zruseno"});
    // two that hold, the second one to a time before the first: the course that is dropped had its note, too
    pracuj_minut(12);
    const std::string podruhe = hodin();
    ASSERT_EQ(vrat_o(60), Navrat::hotovo);
    const std::string o_minutu = hodin();
    klik_na_plochu();
    pracuj_minut(12);
    const std::string potreti = hodin();
    ASSERT_EQ(vrat_o(8 * 60), Navrat::hotovo);
    const std::vector<std::string> vse = {"vraceno " + odkud + " " + kam + " zruseno",
                                          "vraceno " + podruhe + " " + o_minutu,
                                          "vraceno " + potreti + " " + hodin()};
    EXPECT_EQ(navraty(zaznam_smeny()), vse);
    klik_na_plochu();
    los.seed(1000);
    pracuj_minut(10);
    dopis_smenu();
    const std::string na_disku = soubor();
    EXPECT_EQ(navraty(na_disku), vse);
    over_prehrani(zaznam_smeny());
    EXPECT_EQ(navraty(zaznam_smeny()), vse) << "a record of the record tells it as well";
    over_prehrani(na_disku);
}

TEST_F(ZaznamSmeny, HasEveryKindOfActOfTheHands) {
    zacni(15);
    skript("cekej 2min");
    ASSERT_EQ(vrat_o(30), Navrat::hotovo);
    klik_na_plochu();
    odjeti();
    klavesa({KodKlavesy::f2}); // the search opens the field
    pis_do_pole("LHO 1");
    klavesa({KodKlavesy::esc});
    int kolej = 0, navestidlo = 0;
    while (!relief.cislo_koleje.je(kolej))
        ++kolej;
    while (!relief.navestidlo.je(navestidlo))
        ++navestidlo;
    najeti(Druh::cislo_koleje, kolej);
    dvojklik(Druh::cislo_koleje, kolej);
    skript("cekej 1500ms");
    pohyb_mysi();
    odjeti();
    klik(Druh::navestidlo, navestidlo, Tlacitko::leve, true);
    klavesa({KodKlavesy::esc});
    klik(Druh::navestidlo, navestidlo, Tlacitko::prostredni, false);
    klavesa({KodKlavesy::esc});
    klik(Druh::navestidlo, 287, Tlacitko::leve, false);
    klik(Druh::Image1, 600, Tlacitko::leve, false);
    klavesa({KodKlavesy::enter});
    skript("cekej 3s");
    klik(Druh::navestidlo, 287, Tlacitko::prave, false);
    ASSERT_FALSE(menu.jmeno.empty());
    zahod_menu();
    klik(Druh::navestidlo, 287, Tlacitko::prave, false);
    const auto polozka = std::find_if(menu.polozky.begin(), menu.polozky.end(), [](const PolozkaMenu& p) {
        return p.viditelna && p.povolena && p.akce != nullptr;
    });
    ASSERT_NE(polozka, menu.polozky.end());
    ASSERT_TRUE(zvol_v_menu(Text(polozka->jmeno)));
    klavesa({KodKlavesy::esc});
    klavesa({KodKlavesy::esc});
    ukaz_vlak(4711);
    for (const Vlak& v : vlaky)
        if (v.cislo > 0) {
            ukaz_vlak(zobrazene_cislo(v));
            break;
        }
    klik(Druh::imgObrzaek_vlaku, 0, Tlacitko::leve, false); // a vehicle of its page
    klavesa({KodKlavesy::esc});
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::leve, false);
    klik(Druh::lblrychlost_simulace, 0, Tlacitko::prave, false);
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    klik(Druh::imgPauza, 0, Tlacitko::leve, false);
    svet.odpovedi = {"kazdy.sim"};
    klavesa(klavesa_podle_jmena("Ctrl+S"));
    klavesa({KodKlavesy::print_screen});
    ASSERT_TRUE(technologie_kryje_stul());
    klik_na_zalozku(Technologie::provoz2);
    klavesa({KodKlavesy::esc});
    okno_zmizelo();
    okno_se_vratilo();
    zastav_sluzbu();
    spust_sluzbu();
    zavri_okno(); // to the question whether to end he says no
    prestavka(4000, false);
    prestavka(70'000, true);
    klik(Druh::cmDenik, 0, Tlacitko::leve, false); // where that stands now
    klik_na_radek(relief.lstDenik, 0);
    ohlas_vadu_deniku(KodChyby::disk_plny);
    const auto lhotin = static_cast<std::uint8_t>(vypravci::stanice_kodu("LHO"));
    vypravci::predej(std::span(&lhotin, 1));
    skript("cekej 4min");
    vypravci::vezmi();
    skript("krok jizdy");
    skript("cekej 2min");
    std::set<DruhUkonu> druhy;
    for (const Ukon& u : ukony_smeny.ukony)
        druhy.insert(u.co);
    for (int d = 0; d <= static_cast<int>(DruhUkonu::vraceno); ++d)
        EXPECT_TRUE(druhy.contains(static_cast<DruhUkonu>(d))) << d;
    ASSERT_FALSE(simulace.pauza);
    const Bajty log = denik();
    const std::string zaznam = zaznam_smeny();
    const std::int32_t cas = cas_hodin();
    try {
        prehraj(zaznam);
    } catch (const ChybaSkriptu& chyba) {
        FAIL() << chyba.proc;
    }
    EXPECT_EQ(cas_hodin(), cas);
    EXPECT_TRUE(denik() == log);
}

TEST_F(ZaznamSmeny, PlaysToTheSameLogWhenTheDispatcherHadTheDeskAndTimeWasTurnedBack) {
    zacni(19);
    vypravci::predej();
    skript("cekej 12min");
    ASSERT_EQ(vrat_o(5 * 60), Navrat::hotovo);
    skript("cekej 5min");
    vypravci::vezmi();
    klik_na_plochu();
    skript("cekej 5min");
    const Bajty log = denik();
    const std::int64_t cas_ms = virtualni_hodiny.cas_ms;
    const Nahoda zdroj = nahoda;
    EXPECT_GT(log.size(), 500u);
    prehraj(zaznam_smeny());
    EXPECT_EQ(virtualni_hodiny.cas_ms, cas_ms);
    EXPECT_EQ(nahoda, zdroj);
    EXPECT_TRUE(denik() == log);
}

TEST_F(ZaznamSmeny, IsNeverWrittenOverAnotherOne) {
    for (int i = 0; i < 3; ++i) { // within one second of the clock
        zacni(20, true);
        skript("cekej 1min");
    }
    const auto zaznamy = std::filesystem::directory_iterator(koren / "smeny");
    EXPECT_EQ(std::distance(begin(zaznamy), end(zaznamy)), 3);
}

TEST(TextVZaznamu, WithALineBreakStandsInOneLine) {
    EXPECT_EQ(jako_slovo("a\nb"), "\"a b\"");
}

// --- a disk that does not take it

TEST_F(ZaznamSmeny, IsWrittenWholeAgainWhenItsFileHasVanished) {
    zacni(16, true);
    pracuj_minut(3);
    ASSERT_FALSE(soubor().empty());
    std::filesystem::remove_all(koren / "smeny");
    pracuj_minut(5);
    EXPECT_FALSE(vada_smeny()) << "nothing is lost";
    const std::string cely = soubor();
    EXPECT_TRUE(cely.starts_with("# Záznam směny"));
    EXPECT_GT(cely.size(), 1000u);
    std::ofstream(std::filesystem::directory_iterator(koren / "smeny")->path()) << "something else";
    pracuj_minut(7);
    dopis_smenu();
    over_prehrani(soubor());
}

TEST_F(ZaznamSmeny, ThatTheDiskDoesNotTakeIsToldOnceAndTheShiftGoesOn) {
    std::ofstream(koren / "smeny") << "no folder"; // where the folder would be
    zacni(17, true);
    const std::optional<Text> vada = vada_smeny();
    ASSERT_TRUE(vada);
    EXPECT_NE(na_utf8(*vada).find("Záznam směny nelze zapsat na disk"), std::string::npos) << na_utf8(*vada);
    EXPECT_TRUE(soubor_smeny().empty());
    pracuj_minut(4);
    EXPECT_FALSE(vada_smeny());
    EXPECT_GE(ubehlo_s(), 4 * 60);
    std::filesystem::remove(koren / "smeny"); // there is room for it again
    pracuj_minut(6);
    EXPECT_FALSE(soubor_smeny().empty());
    dopis_smenu();
    over_prehrani(soubor());
}

TEST_F(ZaznamSmeny, OfAFullDiskIsWholeUpToItsLastLineAndGoesOnWhenThereIsRoom) {
    zacni(18, true);
    pracuj_minut(3);
    const std::string pred = soubor();
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    const auto obsluha = std::signal(SIGXFSZ, SIG_IGN);
    const auto nejvic = [&](std::size_t bajtu) {
        const rlimit mez{bajtu, puvodni.rlim_max};
        setrlimit(RLIMIT_FSIZE, &mez);
    };
    const auto do_minuty = [](std::int64_t kolika) {
        while (ubehlo_s() < kolika * 60) {
            plyn_do(virtualni_hodiny.cas_ms + 1000);
            pohyb_mysi();
        }
    };
    nejvic(pred.size() + 10);
    do_minuty(5);
    const std::string plny = soubor();
    nejvic(pred.size() / 2);
    const Navrat navrat = vrat_o(60); // nor can the record be written anew
    klik_na_plochu();
    do_minuty(6);
    const std::string po_navratu = soubor();
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, obsluha);
    EXPECT_EQ(navrat, Navrat::hotovo);
    EXPECT_EQ(plny, pred);
    EXPECT_EQ(po_navratu, pred) << "the record of what is no more is better than none";
    EXPECT_TRUE(vada_smeny());
    do_minuty(8);
    EXPECT_FALSE(vada_smeny());
    dopis_smenu();
    const std::string na_disku = soubor();
    EXPECT_EQ(navraty(na_disku).size(), 1u);
    over_prehrani(na_disku);
}

TEST_F(ZaznamSmeny, KeepsNoMoreThanTheNewestRecords) {
    std::filesystem::create_directories(koren / "smeny");
    for (std::size_t i = 0; i < kNejviceSmen + 5; ++i)
        std::ofstream(koren / "smeny" / ("2501" + std::to_string(10 + i) + "_080000.tesk")) << "smena";
    for (const char* stranka : {"250110_080000.html", "250164_080000.html", "moje.html"})
        std::ofstream(koren / "smeny" / stranka) << "html";
    zacni(11, true);
    EXPECT_FALSE(std::filesystem::exists(koren / "smeny" / "250110_080000.html")) << "with its record";
    EXPECT_TRUE(std::filesystem::exists(koren / "smeny" / "250164_080000.html"));
    EXPECT_TRUE(std::filesystem::exists(koren / "smeny" / "moje.html"));
    std::size_t zaznamu = 0;
    for (const auto& zaznam : std::filesystem::directory_iterator(koren / "smeny"))
        zaznamu += zaznam.path().extension() == ".tesk" ? 1 : 0;
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
