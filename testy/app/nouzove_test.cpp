// testy/app/nouzove_test.cpp - a run-time error ends the program, and the game goes on from its emergency
// save.
#include "app/bezpecne.h"
#include "app/blikani.h"
#include "app/cas.h"
#include "app/casovace.h"
#include "app/hlaseni_chyby.h"
#include "app/nouzove.h"
#include "app/nova_simulace.h"
#include "app/pad.h"
#include "app/parametry.h"
#include "app/start.h"
#include "cesty/cesta.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "jizda/krok_jizdy.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"
#include "save/gtn.h"
#include "save/ulozeni.h"
#include "zaklad/chyba.h"
#include "zaklad/cisla.h"

#include <csignal>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

class Nouzove : public SPlatformou {
protected:
    void SetUp() override {
        zapis_male_kolejiste(svet.cesta());
        svet.zapis("GVD/GVDtyden.dat", Bajty{0, 0, 0, 0, 0, 0});
        VolbyStartu volby;
        volby.hodina = 12;
        volby.gvd = "GVDtyden";
        prevezmi_volby(volby);
        priprava_simulace();
        nastav_hodiny(volby);
        start_simulace();
    }
    static void prihlas() {
        for (int i = 0; i < 3; ++i)
            klavesa({KodKlavesy::enter});
    }
    // A shift of some minutes with an occupied track that tells this game from any other.
    void hraj(int minut = 3) {
        prihlas();
        relief.kolej[63].barva = barvy::cervena;
        for (int i = 0; i < minut; ++i)
            jdi_o_minutu();
        svet.okna.clear();
    }
    void jdi_o_minutu() {
        svet.posun_ms(60'000);
        spust_hodiny();
        nastav_cas(cas_hodin() + 60);
        krok_minuty();
    }
    std::vector<Text> cekajici() const { return soubory_slozky(svet.cesta() + "save\\nouzove", "*"); }
    // The start screen of a fresh process.
    void start_formulare() {
        nova_simulace();
        simulace.cesta_aplikace = svet.cesta();
        svet.okna.clear();
        svet.otazky.clear();
        svet.konec.reset();
        parametry.nactena = true;
    }
    void over_pokracovani(TextPohled cas) {
        start_formulare();
        ASSERT_TRUE(nabidni_nouzovy());
        ASSERT_EQ(svet.otazky.size(), 1u);
        start_simulace();
        ASSERT_FALSE(svet.konec) << na_utf8(svet.okna.back().text);
        EXPECT_EQ(text_hodin(), cas);
        EXPECT_EQ(relief.kolej[63].barva(), barvy::cervena);
        prihlas();
        EXPECT_FALSE(simulace.pauza);
    }
    void over_konec_s_ulozenim(int kod) {
        ASSERT_EQ(svet.okna.size(), 1u);
        EXPECT_TRUE(svet.okna[0].text.starts_with(Text("Chyba č. "_cz) + text_cisla(kod) + ": "))
            << svet.okna[0].text;
        EXPECT_EQ(svet.konec, 1);
        EXPECT_EQ(cekajici().size(), 1u);
    }
    // The world fails at the next question of that kind, once.
    template <class Sluzba> static void selze_jednou(Sluzba& sluzba, int co) {
        sluzba = [puvodni = sluzba, co, selhala = false](auto&&... slova) mutable {
            if (!std::exchange(selhala, true))
                hod(co);
            return puvodni(slova...);
        };
    }
    static void hod(int co) {
        switch (co) {
        case 0: chyba(KodChyby::preteceni);
        case 1: throw std::bad_alloc();
        case 2: throw std::out_of_range("at");
        case 3: throw std::length_error("resize");
        default: relief.kolej[999].barva = 0;
        }
    }
};

constexpr int kCisla[] = {6, 7, 9, 5, 340}; // of the errors that hod() makes

class NouzoveDruhy : public Nouzove, public testing::WithParamInterface<int> {};

} // namespace

TEST_P(NouzoveDruhy, GameGoesOnAfterTheError) {
    hraj();
    const Text cas = text_hodin();
    EXPECT_FALSE(bezpecne([] { hod(GetParam()); }));
    over_konec_s_ulozenim(kCisla[GetParam()]);
    over_pokracovani(cas);
    EXPECT_TRUE(cekajici().empty()) << "it is offered once";
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save", "nouzove_*.sim").size(), 1u) << "and kept";
}

INSTANTIATE_TEST_SUITE_P(Druhy, NouzoveDruhy, testing::Range(0, 5));

TEST_F(Nouzove, ErrorInTheClockEndsWithASave) {
    hraj();
    selze_jednou(platforma.tik_ms, 0);
    simulace.tick_hodin -= 2000;
    EXPECT_FALSE(bezpecne(casovace[0].telo));
    over_konec_s_ulozenim(6);
    over_pokracovani("12:02:58");
}

TEST_F(Nouzove, ErrorInTheMovementOfTrainsEndsWithASave) {
    hraj();
    selze_jednou(platforma.tik_ms, 2);
    EXPECT_FALSE(bezpecne(krok_jizdy));
    over_konec_s_ulozenim(9);
    over_pokracovani("12:02:58");
}

// A state with such a route could not be loaded either: the last minute is.
TEST_F(Nouzove, ErrorInTheRouteMachineEndsWithTheStateOfTheLastMinute) {
    hraj();
    nastav_cas("12:03:40");
    Cesta vadna;
    vadna.zacatek = 61; // no such signal
    vadna.konec = 62;
    vadna.VC = vadna.prehozena = true;
    vadna.Kdy_prehoz = 0;
    cesty.insert(cesty.begin(), vadna);
    vyber.volba_cas = 1; // a pick that nobody has ended is told with a beep
    selze_jednou(platforma.pipni, 4);
    EXPECT_FALSE(bezpecne(krok_volby));
    over_konec_s_ulozenim(340);
    over_pokracovani("12:02:58");
}

TEST_F(Nouzove, ErrorInTheBlinkStepEndsWithASave) {
    hraj();
    simulace.nova_zprava = true; // beeps
    selze_jednou(platforma.pipni, 3);
    EXPECT_FALSE(bezpecne(krok_blikani));
    over_konec_s_ulozenim(5);
    over_pokracovani("12:02:58");
}

TEST_F(Nouzove, ErrorInACommandOfTheOperatorEndsWithASave) {
    hraj();
    selze_jednou(platforma.pipni, 4); // every key of the desk beeps
    EXPECT_FALSE(bezpecne([] { klavesa({KodKlavesy::f3}); }));
    over_konec_s_ulozenim(340);
    over_pokracovani("12:02:58");
}

TEST_F(Nouzove, ErrorInTheSaveItselfEndsWithTheStateOfTheLastMinute) {
    hraj();
    nastav_cas("12:03:40");
    relief.kolej[62].stav = TextPohled("40000"); // metres that no save can hold
    svet.zapis("debug.dat", "");
    EXPECT_FALSE(bezpecne([this] { uloz_simulaci(svet.cesta() + "save\\hra.sim", false); }));
    over_konec_s_ulozenim(6);
    svet.okna.clear();
    over_pokracovani("12:02:58");
}

TEST_F(Nouzove, MinuteThatNoSaveCanHoldEndsNothing) {
    hraj();
    relief.kolej[62].stav = TextPohled("40000");
    EXPECT_TRUE(bezpecne([this] { jdi_o_minutu(); }));
}

TEST_F(Nouzove, FullDiskIsToldBesideTheError) {
    hraj();
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    const rlimit mez{16, puvodni.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mez);
    EXPECT_FALSE(bezpecne([] { hod(0); }));
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, SIG_DFL);
    ASSERT_EQ(svet.okna.size(), 2u);
    EXPECT_EQ(svet.okna[1].text, "Rozehranou simulaci se nepodařilo nouzově uložit!"_cz);
    EXPECT_EQ(svet.konec, 1);
    EXPECT_TRUE(cekajici().empty());
}

TEST_F(Nouzove, WithoutAGameThereIsNothingToSave) {
    EXPECT_FALSE(bezpecne([] { hod(0); })) << "during the login";
    EXPECT_EQ(svet.okna.back().text, "Chyba č. 6: Přetečení"_cz);
    EXPECT_TRUE(cekajici().empty());
    nova_simulace();
    simulace.cesta_aplikace = svet.cesta();
    EXPECT_FALSE(bezpecne([] { hod(0); })) << "on the start screen";
    EXPECT_TRUE(cekajici().empty());
}

// --- the offer

TEST_F(Nouzove, WhoDoesNotWantTheOldGameHasItAmongHisSaves) {
    hraj();
    bezpecne([] { hod(0); });
    start_formulare();
    svet.odpovedi = {false};
    EXPECT_FALSE(nabidni_nouzovy());
    EXPECT_FALSE(simulace.nacitani_zaznamu);
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save", "nouzove_*.sim").size(), 1u);
    EXPECT_FALSE(nabidni_nouzovy());
    EXPECT_EQ(svet.otazky.size(), 1u);
}

TEST_F(Nouzove, NewestOfSeveralIsOffered) {
    hraj();
    bezpecne([] { hod(0); });
    svet.konec.reset();
    svet.posun_ms(5000);
    jdi_o_minutu();
    bezpecne([] { hod(0); });
    ASSERT_EQ(cekajici().size(), 2u);
    over_pokracovani("12:03:58");
    EXPECT_EQ(soubory_slozky(svet.cesta() + "save", "nouzove_*.sim").size(), 2u);
}

TEST_F(Nouzove, SaveThatCannotBeLoadedIsNotOfferedForEver) {
    svet.zapis("save/nouzove/nouzove_260105_080000_120000.sim", "123");
    start_formulare();
    ASSERT_TRUE(nabidni_nouzovy());
    start_simulace();
    EXPECT_EQ(svet.konec, 1);
    start_formulare();
    EXPECT_FALSE(nabidni_nouzovy());
}

TEST_F(Nouzove, WithoutAnEmergencyNothingIsAsked) {
    start_formulare();
    EXPECT_FALSE(nabidni_nouzovy());
    EXPECT_TRUE(svet.otazky.empty());
}

// --- the report

namespace {

class HlaseniChyb : public Nouzove {
protected:
    void SetUp() override {
        Nouzove::SetUp();
        pis_hlaseni_chyb(true);
    }
    void TearDown() override { pis_hlaseni_chyb(false); }

    std::vector<Text> hlaseni_v(Pad pad) const { return soubory_slozky(slozka_hlaseni(pad), "chyba_*.txt"); }
    std::string text_hlaseni_v(Pad pad) const {
        const std::vector<Text> jmena = hlaseni_v(pad);
        if (jmena.size() != 1)
            return std::to_string(jmena.size()) + " souborů";
        const Bajty bajty = nacti_soubor(slozka_hlaseni(pad) + jmena[0]);
        return std::string(bajty.begin(), bajty.end());
    }
    static void ma(const std::string& text, const std::string& cast) {
        EXPECT_NE(text.find(cast), std::string::npos) << cast << " není v:\n" << text;
    }
    // Falls in a process of its own; answers with the signal that ended it, and what it said.
    struct Konec {
        int signal = 0;
        std::string receno;
    };
    static Konec spadni(const std::function<void()>& jak) {
        std::FILE* chyby = std::tmpfile();
        const pid_t dite = ::fork();
        if (dite == 0) {
            ::dup2(::fileno(chyby), STDERR_FILENO);
            const rlimit bez_jadra{0, 0};
            setrlimit(RLIMIT_CORE, &bez_jadra);
            hlidej_pad();
            jak();
            ::_exit(0);
        }
        int stav = 0;
        ::waitpid(dite, &stav, 0);
        Konec konec{WIFSIGNALED(stav) ? WTERMSIG(stav) : 0, {}};
        std::rewind(chyby);
        for (int znak = std::fgetc(chyby); znak != EOF; znak = std::fgetc(chyby))
            konec.receno += static_cast<char>(znak);
        std::fclose(chyby);
        return konec;
    }
};

} // namespace

TEST_F(HlaseniChyb, ErrorIsReportedWithAllThatHelpsToFindIt) {
    hraj();
    klavesa({KodKlavesy::f3});
    gtn_zapis(63, gtn::barva_koleje, 255);
    EXPECT_FALSE(bezpecne([] { hod(2); }));
    over_konec_s_ulozenim(9);
    const std::string text = text_hlaseni_v(Pad::receny);
    ma(text, "Chyba č. 9: ");
    ma(text, "KPS RVZ TESK " + na_utf8(text_verze()));
    ma(text, "Čas simulace:     12:02:58, pondělí, odehráno minut 3");
    ma(text, na_utf8(posledni_nouzovy()));
    ma(text, "12:02:58  73 63 255\n");
    ma(na_utf8(svet.okna[0].text), na_utf8(slozka_hlaseni(Pad::receny)) + "chyba_");
    ma(na_utf8(svet.okna[0].text), "příští spuštění ji nabídne");
}

TEST_F(HlaseniChyb, ErrorThatWasToldIsNotToldAgain) {
    hraj();
    bezpecne([] { hod(2); });
    start_formulare();
    EXPECT_TRUE(nabidni_nouzovy());
    EXPECT_TRUE(svet.okna.empty());
    EXPECT_EQ(svet.otazky.at(0).find("Hlášení"_cz), Text::npos);
}

TEST_F(HlaseniChyb, HostThatKeepsNoneWritesNone) {
    pis_hlaseni_chyb(false);
    hraj();
    bezpecne([] { hod(0); });
    EXPECT_EQ(svet.okna.back().text, "Chyba č. 6: Přetečení"_cz);
    EXPECT_FALSE(soubor_existuje(svet.cesta() + "hlaseni"));
}

TEST_F(HlaseniChyb, WatchedShiftLeavesAReportAndNoGame) {
    hraj();
    pise_se_na_disk(false);
    EXPECT_FALSE(bezpecne([] { hod(2); }));
    EXPECT_FALSE(pise_se_na_disk(true));
    EXPECT_TRUE(cekajici().empty());
    ma(text_hlaseni_v(Pad::receny), "nic nebylo rozehráno");
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text.find("nabídne"_cz), Text::npos);
}

TEST_F(HlaseniChyb, OldReportsMakeRoom) {
    for (std::size_t i = 0; i < kNejviceHlaseni + 5; ++i) {
        svet.posun_ms(1000);
        ASSERT_TRUE(zapis_hlaseni("chyba", NouzoveUlozeni::neni_co, Pad::receny));
    }
    EXPECT_EQ(hlaseni_v(Pad::receny).size(), kNejviceHlaseni);
}

TEST_F(HlaseniChyb, FallOfTheProcessLeavesTheGameOfTheLastMinuteAndAReport) {
    hraj();
    const Konec konec = spadni([] {
        nastav_cas("12:03:40");
        ::raise(SIGSEGV);
    });
    EXPECT_EQ(konec.signal, SIGSEGV);
    ma(konec.receno, "Program ukončil signál SIGSEGV");
    ma(konec.receno, "příští spuštění ji nabídne");
    ASSERT_EQ(cekajici().size(), 1u);
    const std::string text = text_hlaseni_v(Pad::nereceny);
    ma(text, "Program ukončil signál SIGSEGV.");
    ma(text, na_utf8(cekajici()[0]));
    over_pokracovani("12:02:58");
    ma(na_utf8(svet.otazky[0]), "Hlášení o chybě: " + na_utf8(slozka_hlaseni(Pad::receny)) + "chyba_");
    EXPECT_TRUE(hlaseni_v(Pad::nereceny).empty()) << "it is told once";
    EXPECT_EQ(hlaseni_v(Pad::receny).size(), 1u) << "and kept";
}

TEST_F(HlaseniChyb, ExceptionThatNobodyCaughtLeavesThePresentGameAndAReport) {
    hraj();
    const Konec konec = spadni([] {
        nastav_cas("12:03:40");
        []() noexcept { hod(3); }();
    });
    EXPECT_EQ(konec.signal, SIGABRT);
    ma(text_hlaseni_v(Pad::nereceny), "nezachycená výjimka: resize");
    ASSERT_EQ(cekajici().size(), 1u);
    over_pokracovani("12:03:40");
}

TEST_F(HlaseniChyb, FallBeforeTheGameIsToldByTheNextStart) {
    const Konec konec = spadni([] { ::raise(SIGABRT); });
    EXPECT_EQ(konec.signal, SIGABRT);
    EXPECT_TRUE(cekajici().empty());
    start_formulare();
    EXPECT_FALSE(nabidni_nouzovy());
    ASSERT_EQ(svet.okna.size(), 1u);
    ma(na_utf8(svet.okna[0].text), "Program minule skončil chybou.");
    svet.okna.clear();
    EXPECT_FALSE(nabidni_nouzovy());
    EXPECT_TRUE(svet.okna.empty());
}

TEST_F(HlaseniChyb, WhatFallsAfterTheOrderlyEndIsNoLoss) {
    hraj();
    const Konec konec = spadni([] {
        nehlidej_pad();
        if (konec_bez_rozlouceni("obrazovka"))
            ::_exit(1);
        ::raise(SIGSEGV);
    });
    EXPECT_EQ(konec.signal, SIGSEGV);
    EXPECT_TRUE(cekajici().empty());
    EXPECT_TRUE(hlaseni_v(Pad::nereceny).empty());
}

TEST_F(HlaseniChyb, LostScreenLeavesTheGameAndAReport) {
    hraj();
    spadni([] { EXPECT_TRUE(konec_bez_rozlouceni("Program ukončila ztráta obrazovky")); });
    ma(text_hlaseni_v(Pad::nereceny), "Program ukončila ztráta obrazovky.\n");
    over_pokracovani("12:02:58");
}
