// testy/lekce/pruvodce_test.cpp - the guide of a lesson forgives: whatever goes another way is told, put
// right and walked on from.
#include "app/historie.h"
#include "pomocne/zak.h"

namespace {

using lekce::Potiz;

class PruvodceLekce : public Zak {
protected:
    // At the step of the three clicks, the train announced.
    void az_k_volbe() {
        novy_svet();
        zacni_lekci(z_instalace("1-prvni-vlak.lekce"));
        while (pruvodce->krok() < 5)
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
        ASSERT_EQ(na_utf8(pruvodce->popis().jmeno), "volba");
        po("cekej 2s");
    }
    void po(const std::string& radek) {
        skript(radek);
        pruvodce->pohled();
    }
    // The pupil does what is shown until nothing is wrong.
    void naprav() {
        for (int i = 0; pruvodce->potiz() != Potiz::zadna; ++i) {
            if (const lekce::UkonLekce* u = pruvodce->dalsi_ukon()) {
                ASSERT_NO_FATAL_FAILURE(udelej(*u));
            }
            po("cekej 1500ms");
            ASSERT_LT(i, 200) << kde() << " " << na_utf8(pruvodce->text_potizi());
        }
    }
    void dokonci_krok() {
        const std::size_t krok = pruvodce->krok();
        for (int i = 0; pruvodce->krok() == krok; ++i) {
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
            ASSERT_LT(i, 600) << kde();
        }
    }
};

TEST_F(PruvodceLekce, FollowsTheClicksAndShowsAllThatAreToCome) {
    az_k_volbe();
    ASSERT_EQ(pruvodce->mista().size(), 3U);
    EXPECT_EQ(pruvodce->mista()[0], (lekce::Misto{Druh::navestidlo, 287, 1, true}));
    EXPECT_EQ(pruvodce->mista()[2], (lekce::Misto{Druh::cislo_koleje, 12, 3, false}));
    po("klik navestidlo 287");
    ASSERT_EQ(pruvodce->mista().size(), 2U);
    EXPECT_EQ(pruvodce->mista()[0], (lekce::Misto{Druh::navestidlo, 601, 2, true}));
    EXPECT_EQ(na_utf8(lekce::popis_ukonu(*pruvodce->dalsi_ukon())), "klepněte: **TVH 1S**");
    po("klik navestidlo 601");
    po("klik Image1 12"); // the track itself is as good as its number
    EXPECT_EQ(pruvodce->krok(), 6U);
    EXPECT_FALSE(pruvodce->receno().empty());
}

TEST_F(PruvodceLekce, ForgivesAnotherSignal) {
    az_k_volbe();
    po("klik navestidlo 288");
    EXPECT_EQ(pruvodce->potiz(), Potiz::jiny_zacatek);
    EXPECT_NE(na_utf8(pruvodce->text_potizi()).find("LHO S2"), std::string::npos);
    po("klavesa Esc");
    EXPECT_EQ(pruvodce->potiz(), Potiz::zadna);
    EXPECT_EQ(pruvodce->hotovych_ukonu(), 0U);
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, ForgivesTheTenSecondsAndGoesOnFromTheRouteThatStands) {
    az_k_volbe();
    po("klik navestidlo 287");
    po("cekej 12s");
    EXPECT_EQ(pruvodce->potiz(), Potiz::pozde);
    EXPECT_EQ(na_utf8(pruvodce->dalsi_ukon()->radek), "klavesa Enter");
    naprav();
    EXPECT_EQ(pruvodce->hotovych_ukonu(), 0U);
    po("klik navestidlo 287");
    po("klik navestidlo 601");
    po("cekej 12s");
    EXPECT_EQ(pruvodce->potiz(), Potiz::pozde);
    naprav();
    EXPECT_EQ(pruvodce->hotovych_ukonu(), 1U)
        << "the first route stands: its signal need not be picked again";
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, WaitsUntilARouteToAWrongPlaceIsTakenBack) {
    az_k_volbe();
    po("klik navestidlo 287");
    po("klik navestidlo 601");
    po("klik cislo_koleje 10");
    EXPECT_EQ(pruvodce->potiz(), Potiz::cizi_cesta);
    skript("cekej 10s");
    naprav();
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, SendsToTheStackForARouteThatCannotBeSet) {
    az_k_volbe();
    po("klik navestidlo 287");
    po("klik navestidlo 601");
    po("klik cislo_koleje 11"); // a train stands there
    EXPECT_EQ(pruvodce->potiz(), Potiz::cizi_cesta);
    po("cekej 20s");
    EXPECT_EQ(na_utf8(pruvodce->dalsi_ukon()->radek), "klik lblZasobnik_EZ 0");
    for (const char* radek :
         {"klik lblZasobnik_EZ 0", "klik lstZasobnik 0", "klavesa Delete", "klavesa Esc"}) {
        ASSERT_NE(pruvodce->dalsi_ukon(), nullptr) << radek;
        EXPECT_EQ(na_utf8(pruvodce->dalsi_ukon()->radek), radek);
        po(radek);
    }
    EXPECT_EQ(pruvodce->potiz(), Potiz::zadna) << na_utf8(pruvodce->text_potizi());
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, HasTheMissingRouteOfTheExpressPickedAgain) {
    novy_svet();
    zacni_lekci(z_instalace("2-posun-a-lokomotiva.lekce"));
    while (pruvodce->krok() < 5) {
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
        ASSERT_EQ(pruvodce->potiz(), Potiz::zadna) << na_utf8(pruvodce->text_potizi());
    }
    po("pravy navestidlo 222");
    po("menu miRC");
    po("cekej 10s");
    EXPECT_EQ(pruvodce->potiz(), Potiz::odbocka);
    EXPECT_EQ(pruvodce->mista().front().n, 222);
    naprav();
    EXPECT_EQ(pruvodce->krok(), 5U);
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, TellsThatTheServiceStands) {
    az_k_volbe();
    po("klavesa F10");
    EXPECT_EQ(pruvodce->potiz(), Potiz::pauza);
    po("klavesa F10");
    EXPECT_EQ(pruvodce->potiz(), Potiz::zadna);
}

TEST_F(PruvodceLekce, GoesBackToTheStepWhoseRouteWasLost) {
    az_k_volbe();
    for (const char* radek : {"klik navestidlo 287", "klik navestidlo 601", "klik cislo_koleje 12"})
        po(radek);
    ASSERT_EQ(pruvodce->krok(), 6U);
    po("klavesa Esc"); // takes back the route that was picked last
    for (int i = 0; i < 10 && pruvodce->krok() == 6U; ++i)
        po("cekej 1s");
    EXPECT_EQ(na_utf8(pruvodce->popis().jmeno), "volba");
    pruvodce->pohled();
    EXPECT_EQ(pruvodce->mista().front().n, 601) << "the other route stands";
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

TEST_F(PruvodceLekce, OffersToTryAgainAStepThatLasts) {
    az_k_volbe();
    EXPECT_FALSE(pruvodce->trva_dlouho());
    po("cekej 6min");
    EXPECT_TRUE(pruvodce->trva_dlouho());
    EXPECT_EQ(pruvodce->krok(), 5U);
}

TEST_F(PruvodceLekce, PassesOverAndGoesBack) {
    az_k_volbe();
    pruvodce->dal();
    EXPECT_EQ(pruvodce->krok(), 6U);
    pruvodce->na_krok(4);
    EXPECT_EQ(pruvodce->krok(), 4U);
    EXPECT_TRUE(pruvodce->popis().jen_cteni());
    ASSERT_EQ(pruvodce->mista().size(), 3U);
    EXPECT_EQ(pruvodce->mista()[1].poradi, 2);
}

// Both places are framed at once, so that they can be found before the first click; then the second alone.
TEST_F(PruvodceLekce, FramesEachActOfAMendInItsTurn) {
    novy_svet();
    zacni_lekci(z_instalace("2-posun-a-lokomotiva.lekce"));
    while (pruvodce->krok() < 5)
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    po("pravy navestidlo 222");
    po("menu miRC");
    po("cekej 10s");
    ASSERT_EQ(pruvodce->potiz(), Potiz::odbocka);
    ASSERT_EQ(pruvodce->mista().size(), 2U);
    EXPECT_EQ(pruvodce->mista()[0], (lekce::Misto{Druh::navestidlo, 222, 1, true}));
    EXPECT_EQ(pruvodce->mista()[1], (lekce::Misto{Druh::cislo_koleje, 27, 2, false}));
    po("klik navestidlo 222");
    ASSERT_EQ(pruvodce->mista().size(), 1U);
    EXPECT_EQ(pruvodce->mista()[0], (lekce::Misto{Druh::cislo_koleje, 27, 2, true}));
    po("cekej 12s"); // too late: both again
    EXPECT_EQ(pruvodce->potiz(), Potiz::pozde);
    po("klavesa Enter");
    EXPECT_EQ(pruvodce->potiz(), Potiz::odbocka);
    ASSERT_EQ(pruvodce->mista().size(), 2U);
    EXPECT_TRUE(pruvodce->mista()[0].ted);
}

TEST_F(PruvodceLekce, SendsAShuntRouteBackWhereATrainIsToGo) {
    novy_svet();
    zacni_lekci(z_instalace("4-poruchy.lekce"));
    while (pruvodce->krok() < 4)
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    po("klik navestidlo 212 ctrl");
    po("klik Image1 20");
    po("cekej 10s");
    ASSERT_EQ(pruvodce->potiz(), Potiz::cizi_cesta);
    EXPECT_NE(na_utf8(pruvodce->text_potizi()).find("Ctrl"), std::string::npos);
    EXPECT_EQ(pruvodce->krok(), 4U);
    naprav();
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 5U);
}

TEST_F(PruvodceLekce, AsksForTheDeskWhileTheAutomaticDispatcherHasIt) {
    az_k_volbe();
    vypravci::predej();
    pruvodce->pohled();
    ASSERT_EQ(pruvodce->potiz(), Potiz::vypravci);
    EXPECT_TRUE(pruvodce->dalsi_ukon()->predani);
    po("cekej 3min");
    EXPECT_EQ(pruvodce->krok(), 5U) << "what he does is not done by the pupil";
    vypravci::vezmi();
    pruvodce->pohled();
    EXPECT_NE(pruvodce->potiz(), Potiz::vypravci);
    EXPECT_NE(pruvodce->potiz(), Potiz::cizi_cesta) << "what he has set is not to be undone";
    po("cekej 2s");
    const auto bod = pruvodce->bod_kroku(5);
    ASSERT_TRUE(bod);
    EXPECT_LT(bod->sekunda, cas_hodin() - 150) << "back means before him";
}

TEST_F(PruvodceLekce, LeadsOutOfWhatWasOpenedByMistake) {
    az_k_volbe();
    po("klik lblZasobnik_EZ");
    EXPECT_EQ(pruvodce->potiz(), Potiz::obrazovka);
    naprav();
    po("pravy cislo_koleje 12");
    po("menu miSTIT_kolej"); // a question for the text of a note
    EXPECT_EQ(pruvodce->potiz(), Potiz::psani);
    naprav();
    po("klavesa Alt+Shift+Q"); // the recording of a macro
    EXPECT_EQ(pruvodce->potiz(), Potiz::makro);
    naprav();
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), 6U);
}

// The speed was turned down before: once faster is not fast enough, and it is asked for again.
TEST_F(PruvodceLekce, AsksAgainForAnActThatHasNotDone) {
    az_k_volbe();
    while (pruvodce->krok() < 7)
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    po("pravy lblrychlost_simulace");
    po("klavesa Num+");
    ASSERT_EQ(pruvodce->krok(), 7U);
    for (int i = 0; pruvodce->krok() == 7; ++i) {
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
        ASSERT_LT(i, 60) << kde();
    }
}

TEST_F(PruvodceLekce, HasASignalThatWasBlockedFreedAgain) {
    az_k_volbe();
    po("pravy navestidlo 287");
    po("menu miZAM");
    ASSERT_EQ(pruvodce->potiz(), Potiz::zablokovano);
    EXPECT_EQ(pruvodce->mista().front().n, 287);
    po("pravy navestidlo 287");
    EXPECT_EQ(na_utf8(pruvodce->polozka()), "miZAM");
    po("menu miZAM");
    EXPECT_EQ(pruvodce->potiz(), Potiz::zadna);
}

TEST_F(PruvodceLekce, AsksAgainForATextThatWasWrittenOtherwise) {
    novy_svet();
    zacni_lekci(z_instalace("4-poruchy.lekce"));
    while (na_utf8(pruvodce->popis().nadpis) != "Četa skončila")
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    const std::size_t krok = pruvodce->krok();
    for (const char* radek : {"pravy cislo_koleje 26", "menu miVYL", "pis x", "klavesa Enter"})
        po(radek);
    EXPECT_EQ(na_utf8(pruvodce->dalsi_ukon()->radek), "pravy cislo_koleje 26");
    dokonci_krok();
    EXPECT_EQ(pruvodce->krok(), krok + 1);
}

// Back goes only where something can be done again: a text, or a step that time can be turned back to.
TEST_F(PruvodceLekce, GoesBackOnlyToWhatCanBeDoneAgain) {
    novy_svet();
    zacni_lekci(z_instalace("1-prvni-vlak.lekce"));
    EXPECT_FALSE(pruvodce->lze_zpet()) << "the first step";
    for (int i = 0; i < 3; ++i)
        po("klavesa Enter");
    po("cekej 2s");
    ASSERT_EQ(pruvodce->krok(), 1U);
    EXPECT_FALSE(pruvodce->lze_zpet()) << "nobody logs in twice";
    while (pruvodce->krok() < 4)
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
    EXPECT_TRUE(pruvodce->lze_zpet());
    pruvodce->dal();
    EXPECT_TRUE(pruvodce->lze_zpet()) << "a text";
}

// Whoever turns time back himself finds the lesson where it was then.
TEST_F(PruvodceLekce, GoesBackWithTheClockThatTheOperatorTurnsBack) {
    az_k_volbe();
    const auto bod = pruvodce->bod_kroku(3);
    ASSERT_TRUE(bod);
    ASSERT_EQ(bod->krok, 3U);
    dokonci_krok();
    po("cekej 2s");
    ASSERT_EQ(vrat_na(bod->sekunda + 1), Navrat::hotovo);
    pruvodce->pohled();
    EXPECT_EQ(pruvodce->krok(), 3U);
    EXPECT_TRUE(pruvodce->je_vraceni());
    for (int i = 0; pruvodce->krok() < 6; ++i) {
        ASSERT_NO_FATAL_FAILURE(krok_zaka());
        ASSERT_LT(i, 600) << kde();
    }
}

// Whatever keys and clicks come: a lesson says what to do about it, and doing that leads on.
TEST_F(PruvodceLekce, LeadsOutOfWhateverAStepWasMessedUpWith) {
    const std::vector<std::vector<std::string>> omyly = {
        {"klavesa F10"},
        {"klavesa F2", "pis nesmysl", "klavesa Enter"},
        {"klavesa F3"},
        {"klavesa F8"},
        {"klavesa Print"},
        {"klavesa Esc", "klavesa Esc"},
        {"klavesa Enter", "klavesa Enter"},
        {"klavesa Alt+Shift+K", "klik navestidlo 317", "klik cislo_koleje 27"},
        {"klik lblZasobnik_VZ"},
        {"klik cmTABULKA"},
        {"pravy navestidlo 317"},
        {"pravy cislo_koleje 27"},
        {"pravy cislo_koleje 27", "menu miSTIT_kolej"},
        {"klik navestidlo 317", "klik cislo_koleje 27"},
        {"klik navestidlo 317 ctrl", "klik cislo_koleje 27"},
        {"klik navestidlo 317", "cekej 12s"},
        {"klik navestidlo 317", "klik navestidlo 317"},
        {"klavesa Alt+L"},
        {"klavesa Alt+T"},
        {"klik navestidlo 287 ctrl", "klik navestidlo 601"},
        {"pravy navestidlo 287", "menu miPN", "klik Image1 600"},
        {"pravy navestidlo 287", "menu miZAM", "klik navestidlo 287"},
        {"klik navestidlo 287 ctrl", "klik navestidlo 601 ctrl", "klik cislo_koleje 12"},
        {"klik navestidlo 287", "klik navestidlo 601", "klik cislo_koleje 12", "klavesa Esc"},
    };
    for (const std::vector<std::string>& omyl : omyly) {
        az_k_volbe();
        for (const std::string& radek : omyl)
            try {
                po(radek);
            } catch (const ChybaSkriptu&) { // not there now
            }
        po("cekej 2s");
        for (int i = 0; pruvodce->krok() == 5U; ++i) {
            ASSERT_NO_FATAL_FAILURE(krok_zaka());
            ASSERT_LT(i, 600) << omyl.front() << " " << kde() << " " << na_utf8(pruvodce->text_potizi());
        }
    }
}

TEST_F(PruvodceLekce, ChangesNothingOfTheSimulation) {
    const auto bez = [&](bool s_lekci) {
        novy_svet();
        zacni_lekci(z_instalace("1-prvni-vlak.lekce"));
        for (const char* radek : {"klavesa Enter", "klavesa Enter", "klavesa Enter", "cekej 150s",
                                  "klik navestidlo 287", "klik navestidlo 601", "klik cislo_koleje 12"})
            skript(radek);
        for (int i = 0; i < 200; ++i) {
            skript("cekej 1s");
            if (s_lekci)
                pruvodce->pohled();
        }
        return stav_simulace();
    };
    const StavSimulace prvni = bez(true);
    EXPECT_EQ(rozdil(prvni, bez(false)), "");
}

} // namespace
