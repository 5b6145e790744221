// testy/save/ulozeni_test.cpp - saving to files and starting from them, on a little junction.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/kontrola.h"
#include "app/nacteni.h"
#include "app/nova_simulace.h"
#include "cesty/opakovani.h"
#include "cesty/prehoz_rukou.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "desk/stitky.h"
#include "desk/tabulka_vlaku.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "gvd/stav_provozu.h"
#include "jizda/krok_jizdy.h"
#include "jizda/vlak.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/volba.h"
#include "obsluha/vstup.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "prvky/navestidla.h"
#include "prvky/souhlasy.h"
#include "prvky/stav_vyhybek.h"
#include "prvky/vyhybky.h"
#include "relief/prejezdy.h"
#include "save/gtn.h"
#include "save/ulozeni.h"
#include "save/zaznam.h"
#include "zaklad/chyba.h"

#include <array>
#include <csignal>
#include <initializer_list>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

const std::vector<PrvekCesty> kDvaPrvky = prvky_cesty({62, 63}, {1, 1}, {0, 2});

// The bytes with the piece `co` in them changed for `za`.
Bajty vymeneno(Bajty bajty, const Bajty& co, const Bajty& za) {
    const auto misto = std::search(bajty.begin(), bajty.end(), co.begin(), co.end());
    EXPECT_NE(misto, bajty.end());
    if (misto != bajty.end())
        bajty.insert(bajty.erase(misto, misto + std::ssize(co)), za.begin(), za.end());
    return bajty;
}

class Ulozeni : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        svet.zapis("GVD/GVDtyden.dat", Bajty{0, 0, 0, 0, 0, 0});
        svet.nastaveni_pis("Obrazovka", "X", "1024");
        svet.nastaveni_pis("Obrazovka", "Y", "768");
        spust();
    }
    void spust(int hodina = 12) {
        VolbyStartu volby;
        volby.hodina = static_cast<std::uint8_t>(hodina);
        volby.gvd = "GVDtyden";
        prevezmi_volby(volby);
        priprava_simulace();
        nastav_hodiny(volby);
        start_simulace();
        prihlas();
    }
    static void prihlas() {
        for (int i = 0; i < 3; ++i)
            klavesa({KodKlavesy::enter});
    }
    Text soubor(TextPohled jmeno = "hra.sim") const { return svet.cesta() + "save\\" + Text(jmeno); }
    void uloz() {
        zastav_hodiny();
        uloz_simulaci(soubor(), true);
    }
    // A fresh process that opens the file.
    void nacti(MoznostiStartu moznosti = {}) {
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        svet.okna.clear();
        priprav_nacteni(soubor(), moznosti);
        start_simulace();
    }
    // The same after the saved record was changed.
    template <class Zmena> void nacti_zmeneny(Zmena zmena) {
        uloz();
        Zaznam z = precti_zaznam(svet.precti("save/hra.sim"));
        zmena(z);
        svet.zapis("save/hra.sim", bajty_zaznamu(z));
        nacti();
    }
    bool nacteno() const { return !svet.konec && simulace.obrazovka == "frmMain" && prikaz_radek.obsazen; }
    Text okno(std::size_t i = 0) const { return i < svet.okna.size() ? svet.okna[i].text : Text("-"); }
    Text jmeno_okna(TextPohled pred, TextPohled za) const { return Text(pred) + soubor() + Text(za); }
    static void jed(int s) {
        for (int i = 0; i < s; ++i) {
            nastav_cas(cas_hodin() + 1);
            krok_volby();
        }
    }
    static void pridej_koleje(Cesta& c, std::initializer_list<std::int16_t> koleje) {
        c.prvky = prvky_cesty(koleje, std::vector<std::uint8_t>(koleje.size(), druh_prvku::kolej));
    }
    // The process dies in the midst of the write: its file size limit ends it at byte `po`.
    void zemri_pri_zapisu(std::size_t po) {
        const pid_t dite = fork();
        if (dite == 0) {
            rlimit mez{po, po};
            setrlimit(RLIMIT_FSIZE, &mez);
            std::signal(SIGXFSZ, SIG_DFL); // a core file is of no use
            rlimit zadny{0, 0};
            setrlimit(RLIMIT_CORE, &zadny);
            zastav_hodiny();
            uloz_simulaci(soubor(), true);
            _exit(0);
        }
        int stav = 0;
        waitpid(dite, &stav, 0);
        ASSERT_TRUE(WIFSIGNALED(stav));
    }
};

} // namespace

// --- the dialogue

TEST_F(Ulozeni, CtrlSAsksForANameAndTheClockGoesOn) {
    svet.soubory = {"  " + soubor("moje") + " "};
    svet.okna.clear();
    Klavesa k;
    k.kod = KodKlavesy::pismeno;
    k.pismeno = 'S';
    k.ctrl = true;
    EXPECT_TRUE(klavesa(k));
    EXPECT_EQ(okno(), Text("Stav simulace byl uložen do souboru "_cz) + soubor("moje.sim") + "!");
    EXPECT_FALSE(simulace.pauza);
    EXPECT_GT(svet.precti("save/moje.sim").size(), 3000u);
}

TEST_F(Ulozeni, CancelLeavesTheSimulationPaused) {
    klik(Druh::imgUloz, 0, Tlacitko::leve, false);
    EXPECT_TRUE(simulace.pauza);
    EXPECT_TRUE(relief.lblPauza[0].viditelny);
}

TEST_F(Ulozeni, SaveMadeInAPauseLeavesTheSimulationRunning) {
    klavesa({KodKlavesy::f10});
    ASSERT_TRUE(simulace.pauza);
    svet.soubory = {soubor()};
    klik(Druh::imgUloz, 0, Tlacitko::leve, false);
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(Ulozeni, OldFileIsOverwrittenOnlyWithAYes) {
    uloz();
    const Bajty stary = svet.precti("save/hra.sim");
    relief.kolej[62].barva = barvy::cervena;
    svet.soubory = {soubor(), soubor("jiny")};
    svet.odpovedi = {false};
    zastav_hodiny();
    uloz_dialog();
    EXPECT_EQ(svet.otazky, std::vector<Text>{Text("Soubor již existuje. Přepsat?"_cz)});
    EXPECT_EQ(svet.tituly_otazek, std::vector<Text>{Text("Uložit záznam"_cz)});
    EXPECT_EQ(svet.precti("save/hra.sim"), stary);
    EXPECT_NE(svet.precti("save/jiny.sim"), stary);
    svet.soubory = {soubor()};
    svet.odpovedi = {true};
    uloz_dialog();
    EXPECT_NE(svet.precti("save/hra.sim"), stary);
}

TEST_F(Ulozeni, EmptyFileIsOverwrittenWithoutAQuestion) {
    svet.zapis("save/prazdny.sim", "");
    svet.soubory = {soubor("prazdny.sim")};
    uloz_dialog();
    EXPECT_TRUE(svet.otazky.empty());
    EXPECT_GT(svet.precti("save/prazdny.sim").size(), 0u);
}

TEST_F(Ulozeni, NoSaveBeforeTheLogin) {
    uloz();
    nacti();
    svet.soubory = {soubor()};
    klavesa(klavesa_podle_jmena("Ctrl+S"));
    EXPECT_TRUE(simulace.pauza);
    EXPECT_EQ(svet.soubory.size(), 1u);
}

// --- the file

TEST_F(Ulozeni, LongerOldFileKeepsItsTail) {
    uloz();
    const std::size_t delka = svet.precti("save/hra.sim").size();
    Bajty dlouhy(delka + 100, 0x55);
    svet.zapis("save/hra.sim", dlouhy);
    uloz();
    const Bajty novy = svet.precti("save/hra.sim");
    ASSERT_EQ(novy.size(), delka + 100);
    EXPECT_EQ(Bajty(novy.end() - 100, novy.end()), Bajty(100, 0x55));
    nacti();
    EXPECT_TRUE(nacteno());
}

TEST_F(Ulozeni, FoldersOfSavesAreMade) {
    uloz();
    EXPECT_TRUE(std::filesystem::is_directory(svet.koren / "save" / "autosave"));
}

TEST_F(Ulozeni, FailedSaveIsToldAndTheClockGoesOn) {
    svet.zapis("neni_slozka", "");
    const Text kam = svet.cesta() + "neni_slozka\\hra.sim";
    zastav_hodiny();
    svet.okna.clear();
    uloz_simulaci(kam, false);
    EXPECT_TRUE(okno().starts_with("Stav simulace se nepodařilo uložit do souboru "_cz)) << okno();
    EXPECT_TRUE(okno().ends_with(")"));
    EXPECT_NE(okno().find(kam + "! ("), Text::npos);
    EXPECT_FALSE(simulace.pauza);
    zastav_hodiny();
    svet.okna.clear();
    uloz_simulaci(kam, true); // in silence
    EXPECT_TRUE(svet.okna.empty());
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(Ulozeni, WithTheDebugMarkerAFaultStopsTheProgram) {
    svet.zapis("debug.dat", "");
    svet.zapis("neni_slozka", "");
    EXPECT_THROW(uloz_simulaci(svet.cesta() + "neni_slozka\\hra.sim", false), BehovaChyba);
    svet.zapis("save/hra.sim", "123");
    EXPECT_THROW(nacti(), BehovaChyba);
}

TEST_F(Ulozeni, DeathInTheMidstOfAWriteLeavesTheOldSave) {
    relief.kolej[62].barva = barvy::cervena;
    uloz();
    const Bajty stary = svet.precti("save/hra.sim");
    relief.kolej[62].barva = barvy::seda;
    for (const std::size_t po : {std::size_t{1}, stary.size() / 2, stary.size() - 1}) {
        zemri_pri_zapisu(po);
        EXPECT_EQ(svet.precti("save/hra.sim"), stary) << po;
    }
    nacti();
    EXPECT_TRUE(nacteno());
    EXPECT_EQ(relief.kolej[62].barva(), barvy::cervena);
}

TEST_F(Ulozeni, FullDiskLeavesTheOldSave) {
    uloz();
    const Bajty stary = svet.precti("save/hra.sim");
    relief.kolej[62].barva = barvy::cervena;
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    rlimit mez{5000, puvodni.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mez);
    zastav_hodiny();
    svet.okna.clear();
    uloz_simulaci(soubor(), false);
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_TRUE(okno().starts_with("Stav simulace se nepodařilo uložit"_cz)) << okno();
    EXPECT_EQ(svet.precti("save/hra.sim"), stary);
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save", "*").size(), 1u);
}

// --- the periodic save

TEST_F(Ulozeni, PeriodicSaveComesAtMultiplesOfItsPeriodAlsoAcrossALoad) {
    svet.nastaveni_pis("Nastaveni", "Autosaved", "7");
    const auto ulozenych = [&] { return soubory_slozky(svet.cesta() + "save\\autosave", "*.sim").size(); };
    const auto minuta = [&] {
        svet.posun_ms(60'000);
        nastav_cas(cas_hodin() + 60);
        krok_minuty();
    };
    simulace.autosave = true;
    simulace.autosave_minut = 7;
    for (int m = 1; m <= 10; ++m) {
        minuta();
        EXPECT_EQ(ulozenych(), m < 7 ? 0u : 1u) << m;
    }
    EXPECT_FALSE(simulace.pauza);
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save\\autosave", "*").front(),
              "autosave_260105_080700_120658.sim");
    uloz();
    nacti({.autosave = true, .autosaved = "7"});
    prihlas();
    for (int m = 11; m <= 14; ++m) {
        minuta();
        EXPECT_EQ(ulozenych(), m < 14 ? 1u : 2u) << m;
    }
}

TEST_F(Ulozeni, TenNewestPeriodicSavesOfTheGameAreKeptAndNothingElseGoes) {
    svet.zapis("save/autosave/autosave_moje.sim", "a");
    svet.zapis("save/autosave/autosave_200101_000000_000000.sim", "of another game");
    for (int i = 0; i < 14; ++i) {
        svet.posun_ms(1000);
        uloz_prubezne();
    }
    const std::vector<Text> jmena = soubory_slozky(svet.cesta() + "save\\autosave", "*");
    ASSERT_EQ(jmena.size(), 12u);
    EXPECT_EQ(jmena[0], "autosave_200101_000000_000000.sim");
    EXPECT_EQ(jmena[1], "autosave_260105_080005_115958.sim");
    EXPECT_EQ(jmena.back(), "autosave_moje.sim");
}

TEST_F(Ulozeni, FailedPeriodicSaveIsToldAndTakesNoOlderOneAway) {
    for (int i = 0; i < 10; ++i) {
        svet.posun_ms(1000);
        uloz_prubezne();
    }
    svet.posun_ms(1000);
    std::filesystem::create_directories(
        (svet.koren / "save" / "autosave" / "autosave_260105_080011_115958.sim")); // in the way
    svet.okna.clear();
    uloz_prubezne();
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save\\autosave", "*.sim").size(), 10u);
    EXPECT_FALSE(simulace.pauza);
    EXPECT_TRUE(svet.okna.empty());
    EXPECT_EQ(relief.lblPrikaz[0].text(), " POZOR ");
    EXPECT_EQ(relief.lblVolba[0].text(), "Průběžné uložení se nepodařilo: Přístup odepřen"_cz);
}

TEST_F(Ulozeni, FullDiskUnderTheLogWarnsOnceAndTheGameGoesOn) {
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    const rlimit mez{16, puvodni.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mez);
    gtn_zapis(1, gtn::barva_koleje, 0);
    EXPECT_NO_THROW(krok_minuty());
    EXPECT_EQ(relief.lblPrikaz[0].text(), " POZOR ");
    EXPECT_EQ(relief.lblVolba[0].text(),
              "Deník událostí (GTN) nelze zapsat: Disk je plný. Simulace pokračuje."_cz);
    klavesa({KodKlavesy::enter});
    gtn_zapis(1, gtn::barva_koleje, 0);
    EXPECT_NO_THROW(krok_minuty());
    EXPECT_FALSE(prikaz_radek.obsazen);
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, SIG_DFL);
}

// --- a save costs no simulated time

TEST_F(Ulozeni, SaveByHandAndPeriodicSaveLeaveTheClockAndTheTrainsWithinTheirStep) {
    const auto rozbeh = [&] {
        return std::pair(svet.tik - simulace.tick_hodin, svet.tik - simulace.tick_jizdy);
    };
    spust_hodiny();
    svet.posun_ms(100);
    simulace.tick_hodin -= 600;
    const auto pred = rozbeh();
    ASSERT_NE(pred.first, pred.second);
    uloz_prubezne();
    EXPECT_EQ(rozbeh(), pred);
    svet.soubory = {soubor()};
    klavesa(klavesa_podle_jmena("Ctrl+S"));
    EXPECT_EQ(rozbeh(), pred);
    klik(Druh::imgUloz, 0, Tlacitko::leve, false); // cancelled: a pause like any other
    EXPECT_TRUE(simulace.pauza);
    svet.posun_ms(60'000);
    klavesa({KodKlavesy::f10});
    EXPECT_EQ(rozbeh(), (std::pair{0, 0}));
}

TEST_F(Ulozeni, TimeThatTheDialogueOfASaveTakesIsNotSimulated) {
    spust_hodiny();
    svet.posun_ms(140);
    svet.soubory = {soubor()};
    platforma.okno = [this](TextPohled, TextPohled) { svet.posun_ms(180'000); };
    klavesa(klavesa_podle_jmena("Ctrl+S"));
    EXPECT_EQ(svet.tik - simulace.tick_hodin, 140);
    EXPECT_EQ(svet.tik - simulace.tick_jizdy, 140);
}

// --- the name that the dialogue proposes

TEST_F(Ulozeni, DialogueProposesTheDayAndTheTime) {
    nastav_cas("8:05:30");
    relief.lblDEN[0].text = nazev_dne(1);
    uloz_dialog();
    EXPECT_EQ(svet.navrzena_jmena, std::vector<Text>{Text("Tesk úterý 8-05-30.sim"_cz)});
}

// --- the load

TEST_F(Ulozeni, OpenCommandStartsFromTheChosenFile) {
    relief.kolej[63].barva = barvy::cervena;
    uloz();
    nova_simulace();
    simulace.cesta_aplikace = svet.cesta();
    EXPECT_FALSE(nacti_dialog({})); // cancelled: the start screen stays
    EXPECT_FALSE(simulace.nacitani_zaznamu);
    svet.soubory = {" " + soubor() + " "};
    svet.okna.clear();
    EXPECT_TRUE(nacti_dialog({.noresize = true, .autosave = true}));
    EXPECT_EQ(svet.nastaveni_cti("Nastaveni", "Noresize"), "1");
    EXPECT_EQ(simulace.soubor_zaznamu, soubor());
    start_simulace();
    EXPECT_EQ(okno(), jmeno_okna("Stav simulace načten ze souboru "_cz, "!"));
    EXPECT_TRUE(simulace.pauza); // the login follows
    EXPECT_EQ(relief.lblPrikaz[0].text(), " INIT ");
    EXPECT_TRUE(simulace.autosave);
    EXPECT_EQ(relief.kolej[63].barva(), barvy::cervena);
    prihlas();
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(Ulozeni, CrossingsComeFromTheFileAlone) {
    ASSERT_EQ(prejezdy.size(), 1u);
    prejezdy[0].uvolnen = true;
    uloz();
    svet.zapis("data/tesk.pzz", soubor_prejezdu({{0, "X", 1, 2}, {0, "Y", 3, 4}}));
    nacti();
    ASSERT_EQ(prejezdy.size(), 1u);
    EXPECT_EQ(prejezdy[0], (Prejezd{false, false, true, 640, 500, "BOR 1"}));
    EXPECT_EQ(vlaky.size(), 51u);
}

TEST_F(Ulozeni, CrossingThatTheOperatorKeepsClosedIsWhiteAgain) {
    stanicni_prejezdy[0].UZ = true;
    relief.lblPrejezd[0].barva = barvy::bila;
    uloz();
    nacti();
    EXPECT_TRUE(stanicni_prejezdy[0].UZ);
    EXPECT_EQ(relief.lblPrejezd[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblPrejezd[1].barva, barvy::seda);
}

TEST_F(Ulozeni, EmptyDelayListIsReadAsNothing) {
    ASSERT_TRUE(relief.lstZpravy.radky.empty());
    uloz();
    const Bajty b = svet.precti("save/hra.sim");
    EXPECT_EQ(Bajty(b.end() - 2, b.end()), (Bajty{0, 0}));
    nacti();
    EXPECT_TRUE(relief.lstZpravy.radky.empty());
    prevezmi_hlaseni({Text("Zpoždění vlaku 1"_cz), "b"});
    uloz();
    nacti();
    EXPECT_EQ(relief.lstZpravy.radky.size(), 2u);
}

TEST_F(Ulozeni, TrackOfAnUnknownColourComesBackGrey) {
    relief.kolej[64].barva = 0x123456;
    relief.kolej[63].barva = barvy::purpurova;
    uloz();
    nacti();
    EXPECT_EQ(relief.kolej[64].barva(), barvy::seda);
    EXPECT_EQ(relief.kolej[63].barva(), barvy::purpurova);
}

TEST_F(Ulozeni, AutomaticModeOfSignalsComesBack) {
    prepni_ab(262);
    ASSERT_EQ(kod_znaku(relief.navestidlo[262].text()), 8);
    const int bez = kod_znaku(relief.navestidlo[263].text());
    uloz();
    nacti();
    EXPECT_EQ(kod_znaku(relief.navestidlo[262].text()), 8);
    EXPECT_EQ(kod_znaku(relief.navestidlo[263].text()), bez);
    EXPECT_EQ(relief.navestidlo[262].barva(), barvy::seda);
}

TEST_F(Ulozeni, SignalsComeBackWithTheirColoursAndAFailedLamp) {
    relief.navestidlo[62].barva = barvy::cervena;
    relief.navestidlo[63].barva = barvy::cerna;
    relief.navestidlo[63].pozadi = barvy::seda;
    relief.navestidlo[63].ramecek = true;
    relief.navestidlo_ser[540].barva = barvy::modra; // a blocked shunting signal is lost: meant
    uloz();
    nacti();
    EXPECT_EQ(relief.navestidlo[62].barva(), barvy::cervena);
    EXPECT_EQ(relief.navestidlo[63].barva(), barvy::cerna);
    EXPECT_EQ(relief.navestidlo[63].pozadi(), barvy::seda);
    EXPECT_TRUE(relief.navestidlo[63].ramecek);
    EXPECT_EQ(relief.navestidlo_ser[540].barva(), barvy::seda);
}

// The relief may leave an arrow empty: then it shows a direction only while one is held.
TEST_F(Ulozeni, ArrowOfALineComesBackWithTheDirectionThatIsHeld) {
    struct Sipka {
        TextPohled v_reliefu;
        Barva barva;
        TextPohled ukazuje, potom;
    };
    const std::array sipky = {Sipka{"", barvy::azurova, "<<", "<<"}, Sipka{"", barvy::azurova, ">>", ">>"},
                              Sipka{"", barvy::seda, "", ""}, Sipka{">>", barvy::seda, "<<", "<<"},
                              Sipka{">>", barvy::azurova, "<<", "<<"}};
    for (const Sipka& s : sipky) {
        std::vector<ZaznamReliefu> zaznamy = relief_maleho_kolejiste();
        for (ZaznamReliefu& z : zaznamy)
            if (z.typ == static_cast<std::uint8_t>(TypReliefu::smer_trati))
                z.nazev = Text(s.v_reliefu);
        svet.zapis("data/tesk.rea", soubor_reliefu(zaznamy));
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        spust();
        relief.lblSouhlas2[640].barva = s.barva;
        nastav_text(relief.lblSouhlas2[640], s.ukazuje);
        uloz();
        nacti();
        ASSERT_TRUE(nacteno());
        EXPECT_EQ(relief.lblSouhlas2[640].barva, s.barva);
        EXPECT_EQ(relief.lblSouhlas2[640].text(), s.potom);
    }
}

TEST_F(Ulozeni, VersionOfAnotherProgramIsToldAndTheLoadGoesOn) {
    nacti_zmeneny([](Zaznam& z) { z.verze_revize = 77; });
    EXPECT_EQ(
        okno(),
        Text("Načítaný záznam byl vytvořen ve starší verzi (2.0.77), než je současná verze simulace ("_cz) +
            text_verze() + Text("). Mohou nastat problémy s kompatibilitou."_cz));
    EXPECT_TRUE(nacteno());
    nacti_zmeneny([](Zaznam& z) { z.podpis = "jiny podpis"; });
    EXPECT_EQ(svet.okna.size(), 1u); // the signature is not tested
    EXPECT_TRUE(nacteno());
}

TEST_F(Ulozeni, TimeMarkIsSearchedByWholeDaysAndComparedExactly) {
    constexpr TextPohled kNeshoda = "V záznamu se neshoduje časová značka! Značka bude opravena."_cz;
    const auto zkus = [&](TextPohled cas, std::int32_t zacatek, std::int16_t minuty) {
        nacti_zmeneny([&](Zaznam& z) {
            z.cas = cas;
            z.cas_zacatku = zacatek;
            z.minuty_simulace = minuty;
        });
        return okno() == kNeshoda;
    };
    EXPECT_FALSE(zkus("23:59:00", 1320, 119));
    EXPECT_EQ(simulace.minuty_simulace, 119);
    EXPECT_FALSE(zkus("0:10:00", 1319, 131)); // past midnight
    EXPECT_FALSE(zkus("0:10:00", 1319, 131 + 1440));
    EXPECT_EQ(simulace.minuty_simulace, 131 + 1440);
    EXPECT_TRUE(zkus("12:05:00", 719, 1)); // five minutes off
    EXPECT_EQ(simulace.minuty_simulace, 6);
    EXPECT_EQ(relief.lblcas_od_zacatku[0].text(), "6");
    EXPECT_TRUE(nacteno());
    EXPECT_TRUE(zkus("12:05:00", 719, 106));
    EXPECT_EQ(simulace.minuty_simulace, 6);
}

TEST_F(Ulozeni, TimeMarkTooFarBelowTheClockNeverMatches) {
    nacti_zmeneny([](Zaznam& z) {
        z.cas = "14:00:00";
        z.minuty_simulace = 10;
    });
    EXPECT_EQ(okno(),
              jmeno_okna("Stav simulace ze soboru "_cz,
                         Text(" se nepodařilo načíst! ("_cz) + Text(text_chyby(KodChyby::preteceni)) + ")"));
    EXPECT_EQ(svet.konec, 1);
}

TEST_F(Ulozeni, MissingAndDamagedFilesEndTheProgramWithTheirBox) {
    nacti(); // there is none
    EXPECT_EQ(okno(),
              jmeno_okna("Stav simulace ze soboru "_cz, " se nepodařilo načíst! (Soubor nenalezen)"_cz));
    EXPECT_EQ(svet.konec, 1);
    svet.konec.reset();
    svet.zapis("save/hra.sim", "nic");
    nacti();
    EXPECT_TRUE(okno().starts_with("Stav simulace ze soboru "_cz)) << okno();
    EXPECT_EQ(svet.konec, 1);
}

TEST_F(Ulozeni, ContradictionsAreRefusedAndNothingChanges) {
    const auto odmitne = [&](auto zmena) {
        svet.konec.reset();
        nacti_zmeneny(zmena);
        const bool odmitnuto = svet.konec == 1 && text_hodin() == "0:00:00" && cesty.size() == 1;
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        spust();
        return odmitnuto;
    };
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cas = "25:00:00"; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.den = 3; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.rychlost = 9; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cas_zacatku = 40000; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.gvd = "..\\x"; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.dalsi_vlaky.pop_back(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.stanicni_prejezdy.pop_back(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cesty.clear(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cesty[0].prvky.clear(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cesty[0].zacatek = 262; })); // its list holds no element
    const auto s_priznaky = [](auto priznaky) {
        return [priznaky](Zaznam& z) {
            z.cesty.insert(z.cesty.begin(), Cesta{});
            Cesta& c = z.cesty.front();
            c.zacatek = 262;
            c.konec = 63;
            c.VC = true;
            c.prejezd = kBezPrejezdu;
            pridej_koleje(c, {62, 63});
            priznaky(c);
        };
    };
    EXPECT_FALSE(odmitne(s_priznaky([](Cesta&) {}))); // a route that waits
    EXPECT_TRUE(odmitne(s_priznaky([](Cesta& c) { c.Postavena = true; })));
    EXPECT_TRUE(odmitne(s_priznaky([](Cesta& c) { c.Provedena = true; })));
    EXPECT_TRUE(odmitne(s_priznaky([](Cesta& c) { c.prehozena = true; }))); // with no second of its locking
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.vyhybky[7] = 0; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.koleje_vlaky[0].vlaky = {51}; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.koleje_vlaky[0].prvek = 1000; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.koleje_barva[62] = 6; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.vyhybky[7] = 250; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.vyhybky.pop_back(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.vykolejky_barva[0] = 4; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.prehoz_vyhybka = 8; }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.tabulka.pop_back(); }));
    EXPECT_TRUE(odmitne([](Zaznam& z) { z.cekajici_vlaky = {1, 0}; }));
    EXPECT_FALSE(odmitne([](Zaznam&) {}));
}

TEST_F(Ulozeni, ListsOfDifferentLengthsAreRefusedByTheirTableAndRecord) {
    Zapisovac prvky, nestejne_prvky, vozy, nestejne_vozy, zastavky, nestejne_zastavky;
    popis_prvku(prvky, kDvaPrvky, "", "", "");
    const std::vector<std::int16_t> cisla{62, 63};
    const std::vector<std::uint8_t> druhy{1}, polohy{0, 0, 0};
    pole_i(nestejne_prvky, cisla);
    pole_b(nestejne_prvky, druhy);
    pole_b(nestejne_prvky, polohy);
    const std::vector<Text> rady{"754", "Bp"}, urceni{"ZAL", "7"}, jedno{"ZAL"};
    pole_textu(vozy, rady);
    pole_textu(vozy, urceni);
    pole_textu(nestejne_vozy, rady);
    pole_textu(nestejne_vozy, jedno);
    const std::vector<std::uint8_t> stanice{9, 1};
    const std::vector<std::int16_t> minuty{601, 602}, jedna{601};
    for (Zapisovac* z : {&zastavky, &nestejne_zastavky}) {
        pole_b(*z, stanice);
        pole_i(*z, minuty);
        pole_i(*z, minuty);
    }
    pole_i(zastavky, minuty);
    pole_i(nestejne_zastavky, jedna);
    const auto nacti_s = [&](const Zapisovac& co, const Zapisovac& za, auto zmena) {
        svet.konec.reset();
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        spust();
        uloz();
        Zaznam z = precti_zaznam(svet.precti("save/hra.sim"));
        zmena(z);
        svet.zapis("save/hra.sim", vymeneno(bajty_zaznamu(z), co.bajty, za.bajty));
        nacti();
    };
    const auto odmitnuto_pro = [&](TextPohled co) {
        return svet.konec == 1 &&
               okno() == jmeno_okna("Stav simulace ze soboru "_cz, Text(" se nepodařilo načíst! ("_cz) +
                                                                       Text(text_chyby(KodChyby::mimo_meze)) +
                                                                       ": " + Text(co) + ")");
    };
    nacti_s(prvky, nestejne_prvky, [](Zaznam& z) { z.cesty[0].prvky = kDvaPrvky; });
    EXPECT_TRUE(odmitnuto_pro("cesty 0: prvky")) << okno();
    nacti_s(prvky, nestejne_prvky, [](Zaznam& z) { z.vlaky[3].cislo = 5, z.vlaky[3].prvky = kDvaPrvky; });
    EXPECT_TRUE(odmitnuto_pro("vlaky 3: prvky")) << okno();
    nacti_s(vozy, nestejne_vozy,
            [&](Zaznam& z) { z.vlaky[4].cislo = 5, z.vlaky[4].vozy = vozy_vlaku(rady, urceni); });
    EXPECT_TRUE(odmitnuto_pro("vlaky 4: vozy")) << okno();
    nacti_s(zastavky, nestejne_zastavky, [](Zaznam& z) {
        z.vlaky[4].cislo = 5, z.vlaky[4].zastavky = {{9, 601, 601, 601}, {1, 602, 602, 602}};
    });
    EXPECT_TRUE(odmitnuto_pro("vlaky 4: stanice")) << okno();
    nacti_s(prvky, nestejne_prvky, [](Zaznam& z) { z.vlaky[3].prvky = kDvaPrvky; });
    EXPECT_FALSE(svet.konec) << "a free record holds no train: " << okno();
    EXPECT_EQ(vlaky[3].prvky, (std::vector<PrvekCesty>{{62, 1, 0}, {63, 0, 0}}));
}

TEST_F(Ulozeni, TrackUnderATrainIsOccupiedWhateverTheFileSays) {
    nacti_zmeneny([](Zaznam& z) {
        Vlak& v = z.vlaky[0];
        v.cislo = 4701;
        v.muze_jet = true;
        v.prvky = prvky_cesty({62}, {1}, {0});
        v.prvek_konec = 0;
        z.koleje_vlaky.push_back({62, {0}});
    });
    EXPECT_TRUE(nacteno());
    EXPECT_EQ(relief.kolej[62].barva(), barvy::cervena);
    EXPECT_FALSE(kontrola_stavu());
}

TEST_F(Ulozeni, FreeTrainRecordsAreInNoService) {
    nacti_zmeneny([](Zaznam& z) {
        z.vlaky[5].cislo = -3;
        z.vlaky[5].muze_jet = true;
    });
    EXPECT_FALSE(vlaky[5].muze_jet);
}

TEST_F(Ulozeni, ConsentsAreKnownAgainByTheTrainsThatWait) {
    GvdVlak radek;
    radek.zastavky = zastavky_radku({20, 3}, {-1, 700}, {690, -1});
    radek.vozy = {"754"};
    radek.vozy_vlaky = {0, 0};
    radek.cislo = 4701;
    Zapisovac gvd;
    gvd.l(0);
    gvd.text("");
    popis_poli(gvd, radek);
    svet.zapis("GVD/GVDtyden.dat", gvd.bajty);
    nova_simulace();
    simulace.cesta_aplikace = svet.cesta();
    spust();
    zadej_souhlas(1, 4701);
    udel_souhlas(1);
    ASSERT_TRUE(souhlasy.souhlas[1]);
    uloz();
    nacti();
    EXPECT_EQ(souhlasy.souhlas, (std::array<bool, 3>{false, true, false}));
    EXPECT_EQ(souhlasy.cekajici_vlaky, std::vector<std::int32_t>{4701});
    EXPECT_EQ(relief.lblSouhlas[1].barva(), barvy::modra);
}

TEST_F(Ulozeni, NotesComeBackWithTheirColoursAndPictures) {
    stitky = {{62, "a", "", ""}, {63, "a", "b", ""}, {64, "a", "b", "c"}};
    uloz();
    nacti();
    EXPECT_EQ(stitky.size(), 3u);
    EXPECT_EQ(relief.cislo_koleje[62].pozadi(), 0x808000);
    EXPECT_EQ(relief.cislo_koleje[63].pozadi(), 0xFF0000);
    EXPECT_EQ(relief.cislo_koleje[64].pozadi(), 0x000080);
    EXPECT_TRUE(relief.cislo_koleje[64].ramecek);
    EXPECT_EQ(relief.Image1[62].obrazek(), 101);
    EXPECT_EQ(relief.Image1[63].obrazek(), 102);
    EXPECT_EQ(relief.Image1[64].obrazek(), 103);
}

TEST_F(Ulozeni, WarningOfARouteIsToldAgainBehindTheLogin) {
    stitky = {{63, "Stroj", "", ""}};
    klik_navestidlo(262, Tlacitko::leve, false);
    klik_cil(63);
    ASSERT_EQ(cesty[0].varovani, -1);
    uloz();
    nacti();
    EXPECT_EQ(cesty[0].varovani, -1);
    prihlas();
    EXPECT_EQ(relief.lblPrikaz[0].text(), " POZOR STITEK ");
    klavesa({KodKlavesy::enter});
    EXPECT_EQ(cesty[0].varovani, 0);
}

TEST_F(Ulozeni, RouteInTheMidstOfItsSettingGoesOn) {
    klik_navestidlo(262, Tlacitko::leve, false);
    klik_cil(64); // the switch has to run
    jed(5);
    ASSERT_TRUE(cesty[0].prehozena);
    ASSERT_TRUE(vyhybka_v_pohybu(7));
    uloz();
    nacti();
    EXPECT_TRUE(vyhybka_v_pohybu(7));
    EXPECT_EQ(relief.imgVyhybka[7].obrazek(), 101);
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), "01");
    prihlas();
    jed(8);
    EXPECT_TRUE(cesty[0].Postavena);
    EXPECT_EQ(relief.navestidlo[262].barva(), barvy::zelena);
    EXPECT_FALSE(vyhybka_v_pohybu(7));
}

TEST_F(Ulozeni, ManualThrowInProgressEndsAfterTheLoad) {
    hod_vyhybku(7, PovelVyhybky::plus);
    ASSERT_TRUE(vyhybka_v_pohybu(7));
    const Text stav = relief.imgVyhybka[7].stav;
    uloz();
    nacti();
    EXPECT_TRUE(vyhybka_v_pohybu(7));
    prihlas();
    jed(5);
    EXPECT_FALSE(vyhybka_v_pohybu(7));
    EXPECT_EQ(relief.imgVyhybka[7].stav(), stav);
    EXPECT_EQ(stav_vyhybek.prehoz_cas, -3);
}

TEST_F(Ulozeni, CallingOnAspectCountsDownOn) {
    volba_pn(262);
    klik_cil(63);
    jed(12);
    ASSERT_GT(cesty[0].PN_do, 0);
    const Text odpocet = relief.lblPN[1].text;
    uloz();
    nacti();
    EXPECT_EQ(relief.lblPN[1].text(), odpocet);
    prihlas();
    jed(40);
    EXPECT_TRUE(relief.lblPN[1].text->empty());
    EXPECT_EQ(cesty[0].PN_do, -3);
}

TEST_F(Ulozeni, TrainTableFlashesOn) {
    prevezmi_radek_tabulky(3, "Os  4701");
    blikani.blikani_radku[3] = true;
    uloz();
    nacti();
    EXPECT_EQ(relief.lblTabulka_vlaku[3].text(), "Os  4701");
    EXPECT_TRUE(blikani.blikani_radku[3]);
}

TEST_F(Ulozeni, TwoMonitorsShowTheClockOfTheFile) {
    uloz();
    nova_simulace();
    simulace.cesta_aplikace = svet.cesta();
    simulace.dva_monitory = true;
    priprav_nacteni(soubor(), {});
    start_simulace();
    EXPECT_EQ(relief.lblcas[1].text(), "11:59:58");
    EXPECT_FALSE(kontrola_stavu());
}

TEST_F(Ulozeni, DayTimetableAndOptionsComeFromTheFile) {
    simulace.den = 32;
    simulace.pp_povoleno = false;
    simulace.zpozdeni_povoleno = false;
    simulace.rychlost = 3;
    stav_provozu.pocet_zaloh = 2;
    stav_provozu.zaloha_731_jede = true;
    stav_provozu.dalsi_vlaky[38] = {3, 77, 5, 600};
    uloz();
    nacti();
    EXPECT_EQ(simulace.den, 32);
    EXPECT_EQ(relief.lblDEN[0].text(), "sobota"_cz);
    EXPECT_FALSE(simulace.pp_povoleno);
    EXPECT_FALSE(simulace.zpozdeni_povoleno);
    EXPECT_EQ(relief.lblrychlost_simulace[0].text(), "3");
    EXPECT_EQ(relief.lblGVD[0].text(), "GVDtyden");
    EXPECT_EQ(simulace.soubor_gvd, svet.cesta() + "GVD\\GVDtyden.dat");
    EXPECT_EQ(stav_provozu.pocet_zaloh, 2);
    EXPECT_TRUE(stav_provozu.zaloha_731_jede);
    EXPECT_EQ(stav_provozu.dalsi_vlaky[38], (DalsiVlak{3, 77, 5, 600}));
}
