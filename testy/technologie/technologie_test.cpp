// testy/technologie/technologie_test.cpp - the five maintenance screens: opening, tabs, contents, timers.
#include "app/cas.h"
#include "app/casovace.h"
#include "app/nova_simulace.h"
#include "cesty/dotazy.h"
#include "cesty/duvod.h"
#include "cesty/stavedlo.h"
#include "cesty/uvolneni.h"
#include "desk/menu.h"
#include "obsluha/vstup.h"
#include "pomocne/prvky_cesty.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"
#include "prvky/prejezdy_stanice.h"
#include "prvky/stanicni_prejezdy.h"
#include "technologie/dohled.h"
#include "technologie/penet.h"
#include "technologie/provoz1.h"
#include "technologie/provoz2.h"
#include "technologie/sekvence.h"
#include "technologie/technologie.h"

namespace {

struct ObrazovkyTechnologie : Stavedlo {
    ObrazovkyTechnologie() {
        simulace.obrazovka = "frmMain";
        relief.lblPauza[0].viditelny = false;
    }
    static void stiskni(TextPohled jmeno) { klavesa(klavesa_podle_jmena(jmeno)); }
    static TextPohled formular(Technologie t) { return kTechnologie[static_cast<std::size_t>(t)].formular; }
    // The screen as it stands anew.
    static void otevri(Technologie t) {
        zavri_technologii();
        otevri_technologii(t);
    }
    static const std::vector<Text>& radky_jc() {
        otevri(Technologie::dohled);
        return dohled.lstJC.radky;
    }
    static Text radek_prejezdu(std::size_t k) {
        otevri(Technologie::dohled);
        return dohled.lblStav_prejezdu.radky.at(k);
    }
    static bool ma_radek(const std::vector<Text>& radky, TextPohled zacatek) {
        return std::any_of(radky.begin(), radky.end(),
                           [=](const Text& r) { return r.substr(0, zacatek.size()) == zacatek; });
    }
    // A route that is in use, from signal 240 to track 41.
    static Cesta& postavena() {
        postav(240, 41);
        return cesty[0];
    }
};

constexpr std::array kVsechny = {Technologie::provoz1, Technologie::provoz2, Technologie::penet,
                                 Technologie::dohled, Technologie::sekvence};

} // namespace

// --- opening and closing

TEST_F(ObrazovkyTechnologie, EachStopsTheSimulationForAsLongAsItIsOpen) {
    for (const Technologie t : kVsechny) {
        otevri_technologii(t);
        EXPECT_EQ(simulace.obrazovka, formular(t));
        EXPECT_TRUE(simulace.pauza);
        EXPECT_TRUE(relief.lblPauza[0].viditelny);
        svet.posun_ms(3'600'000);
        zavri_technologii();
        EXPECT_EQ(simulace.obrazovka, "frmMain");
        EXPECT_FALSE(simulace.pauza);
        EXPECT_FALSE(relief.lblPauza[0].viditelny);
        EXPECT_EQ(simulace.tick_hodin, svet.tik) << "the hour over the screen costs no simulated time";
        EXPECT_EQ(simulace.tick_jizdy, svet.tik);
    }
}

TEST_F(ObrazovkyTechnologie, PrintScreenOpensProvoz1AndTheStacksSignProvoz2) {
    stiskni("PrintScreen");
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie");
    EXPECT_EQ(svet.pipnuti.back(), (VirtualniPlatforma::Pipnuti{800, 10}));
    stiskni("Esc");
    ::klik(Druh::lblZasobnik_EZ, 0, Tlacitko::leve, false);
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie2");
}

TEST_F(ObrazovkyTechnologie, TabsAndSideArrowsGoThroughAllFive) {
    stiskni("PrintScreen");
    for (const Technologie t : kVsechny) {
        klik_na_zalozku(t);
        EXPECT_EQ(simulace.obrazovka, formular(t));
        EXPECT_TRUE(simulace.pauza);
        EXPECT_FALSE(technologie.jen_pohled);
    }
    stiskni("Vpravo");
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie") << "round at the end";
    stiskni("Vlevo");
    EXPECT_EQ(simulace.obrazovka, "frmSekvence");
    stiskni("Vlevo");
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie4");
    stiskni("Enter");
    EXPECT_EQ(simulace.obrazovka, "frmMain");
}

TEST_F(ObrazovkyTechnologie, TabOfAClosedScreenDoesNothing) {
    klik_na_zalozku(Technologie::penet);
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_FALSE(simulace.pauza);
    dalsi_technologie(1);
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    zavri_technologii();
    EXPECT_FALSE(simulace.pauza);
}

TEST_F(ObrazovkyTechnologie, OpeningClosesAnOpenMenuAndCoversTheDesk) {
    for (const Technologie t : kVsechny) {
        otevri_menu({"mnuVYHYBKA", "", Druh::imgVyhybka, 5, {}});
        otevri(t);
        EXPECT_TRUE(menu.jmeno.empty());
        ::klik(Druh::imgVyhybka, 5, Tlacitko::prave, false);
        EXPECT_TRUE(menu.jmeno.empty());
        EXPECT_EQ(simulace.obrazovka, formular(t));
    }
}

TEST_F(ObrazovkyTechnologie, ClosingForgetsWhatTheyShowed) {
    postavena();
    for (const Technologie t : kVsechny) {
        otevri_technologii(t);
        zavri_technologii();
        EXPECT_EQ(provoz1, Provoz1{});
        EXPECT_EQ(provoz2, Provoz2{});
        EXPECT_EQ(penet, PeNet{});
        EXPECT_EQ(dohled, Dohled{});
        EXPECT_EQ(sekvence, Sekvence{});
        EXPECT_EQ(technologie.lblDatum, "");
    }
    otevri_technologii(Technologie::penet);
    nova_simulace();
    EXPECT_EQ(penet, PeNet{});
    EXPECT_EQ(technologie, StavTechnologie{});
    EXPECT_FALSE(otevrena_technologie());
}

TEST_F(ObrazovkyTechnologie, NoneOfThemTouchesTheSimulation) {
    postavena();
    zarad(242, 604);
    const auto otisk = [] {
        return std::tuple(cesty, relief.kolej, relief.navestidlo, relief.imgVyhybka, stanicni_prejezdy,
                          stav_vyhybek, nahoda);
    };
    const auto predtim = otisk();
    for (const Technologie t : kVsechny) {
        otevri_technologii(t);
        for (int i = 0; i < 20; ++i) {
            svet.posun_ms(250);
            tik_technologie();
            tik_driveru();
            for (const Casovac& c : casovace)
                c.telo();
        }
        stiskni("Dolu");
        stiskni("Delete");
        stiskni("Tab");
        stiskni("Delete");
        zavri_technologii();
        if (t != Technologie::provoz2) { // where Delete has its work
            EXPECT_TRUE(otisk() == predtim) << formular(t);
        } else {
            zarad(242, 604);
        }
        cesty.back().cas_stavby = std::get<0>(predtim).back().cas_stavby;
    }
}

// --- head

TEST_F(ObrazovkyTechnologie, EachHasTheHeadTheTitleAndTheDate) {
    svet.cas = {2005, 1, 1, 12, 38, 39, 0};
    const std::array<TextPohled, 5> tituly = {"PROVOZ 1", "PROVOZ 2", "PE-NET", "ES DOHLED",
                                              "Potvrzovací sekvence:"_cz};
    EXPECT_EQ(hlava_technologie(), " RVZ     Tesk     t0049 f0230      ver 2.0");
    for (const Technologie t : kVsechny) {
        otevri(t);
        EXPECT_EQ(technologie.lblDatum, " 01.01.05 12:38:39");
        EXPECT_EQ(kTechnologie[static_cast<std::size_t>(t)].titul, tituly[static_cast<std::size_t>(t)]);
    }
}

TEST_F(ObrazovkyTechnologie, ChangingTheComputersClockChangesTheDateAndNotTheSimulatedTime) {
    for (const Technologie t : kVsechny) {
        otevri(t);
        const Text cas = text_hodin();
        const Text predtim = technologie.lblDatum;
        svet.cas.rok += 1;
        EXPECT_EQ(technologie.lblDatum, predtim) << "only its timer writes it";
        tik_technologie();
        EXPECT_NE(technologie.lblDatum, predtim);
        EXPECT_EQ(text_hodin(), cas);
    }
}

TEST_F(ObrazovkyTechnologie, TimersRunOnlyWhileTheScreenIsSeen) {
    tik_technologie();
    tik_driveru();
    EXPECT_EQ(technologie.lblDatum, "");
    EXPECT_EQ(perioda_technologie(), 0);
    EXPECT_EQ(perioda_driveru(), 0);
    for (const Technologie t : kVsechny) {
        otevri(t);
        EXPECT_GT(perioda_technologie(), 0);
        EXPECT_EQ(perioda_driveru() > 0, t == Technologie::provoz1);
    }
}

TEST_F(ObrazovkyTechnologie, ListsHaveTheirNumbersFromOne) {
    for (const Technologie t : kVsechny) {
        otevri(t);
        const auto seznamy = seznamy_technologie(t);
        ASSERT_LE(seznamy.size(), 4u);
        for (std::size_t i = 0; i < seznamy.size(); ++i) {
            const Text& cisla = cisla_seznamu(i);
            EXPECT_EQ(cisla.substr(0, 8), " 1\r\n 2\r\n") << seznamy[i].jmeno;
            EXPECT_GE(std::count(cisla.begin(), cisla.end(), '\n'),
                      static_cast<std::ptrdiff_t>(seznamy[i].seznam->radky.size()));
        }
        EXPECT_EQ(cisla_seznamu(4), "");
    }
}

// --- PROVOZ 1

TEST_F(ObrazovkyTechnologie, DriversStandForEverySwitchAndASlashBecomesAnUnderscore) {
    stiskni("PrintScreen");
    const std::vector<Text>& radky = provoz1.lblDrivery.radky;
    EXPECT_TRUE(ma_radek(radky, "PN  |L1 "));
    EXPECT_TRUE(ma_radek(radky, "VC  |L1 "));
    EXPECT_TRUE(ma_radek(radky, "S+  |13 "));
    EXPECT_TRUE(ma_radek(radky, "S+  |7a_7b "));
    EXPECT_TRUE(ma_radek(radky, "S+  |5 ") || ma_radek(radky, "S-  |5 "));
    for (const Text& radek : radky)
        EXPECT_EQ(radek.find('/'), Text::npos) << radek;
}

TEST_F(ObrazovkyTechnologie, DriverOfASwitchTellsWhereItStands) {
    relief.imgVyhybka[5].stav = TextPohled("3");
    otevri(Technologie::provoz1);
    const bool plus = ma_radek(provoz1.lblDrivery.radky, "S+  |5 ");
    relief.imgVyhybka[5].stav = TextPohled("2");
    otevri(Technologie::provoz1);
    EXPECT_NE(ma_radek(provoz1.lblDrivery.radky, "S+  |5 "), plus);
    EXPECT_NE(ma_radek(provoz1.lblDrivery.radky, "S-  |5 "), !plus);
}

TEST_F(ObrazovkyTechnologie, RouteInUseHasADriverOfItsSignal) {
    postavena();
    otevri(Technologie::provoz1);
    EXPECT_TRUE(ma_radek(provoz1.lblDrivery.radky, "VC  |" + jmeno_navestidla(240) + " "));
}

TEST_F(ObrazovkyTechnologie, LastSignOfEachDriverTurns) {
    otevri(Technologie::provoz1);
    for (const char znacka : {'\\', '|', '/', '-', '\\'}) {
        for (const Text& radek : provoz1.lblDrivery.radky)
            EXPECT_EQ(radek.back(), znacka) << radek;
        const std::vector<Text> predtim = provoz1.lblDrivery.radky;
        tik_driveru();
        for (std::size_t i = 0; i < predtim.size(); ++i)
            EXPECT_EQ(provoz1.lblDrivery.radky[i].substr(0, predtim[i].size() - 1),
                      predtim[i].substr(0, predtim[i].size() - 1))
                << "nothing but the mark moves";
    }
}

TEST_F(ObrazovkyTechnologie, UnacknowledgedFailuresStandInTheListOfFaults) {
    simulace.poruchy = {Text("8:00:00 Zhaslé návěstidlo TST S1"_cz)};
    stiskni("PrintScreen");
    EXPECT_EQ(provoz1.lstporuchy.radky, simulace.poruchy);
    EXPECT_TRUE(provoz1.lstporuchy_volby.radky.empty());
    EXPECT_TRUE(provoz1.lstnevratne.radky.empty());
}

TEST_F(ObrazovkyTechnologie, RouteThatCannotBeSetIsAFaultOfTheSelection) {
    relief.kolej[41].barva = barvy::cervena;
    zarad(240, 41);
    cekej(12);
    const Text duvod = duvod_cekani(0);
    ASSERT_NE(duvod, "");
    otevri(Technologie::provoz1);
    EXPECT_EQ(provoz1.lstporuchy_volby.radky, std::vector<Text>{popis_cesty(0) + ": " + duvod});
}

TEST_F(ObrazovkyTechnologie, SwitchThatNothingWillEverStopIsBeyondRepair) {
    stav_vyhybek.vyhybka_pohyb.assign(10, false);
    stav_vyhybek.vyhybka_pohyb[5] = stav_vyhybek.vyhybka_pohyb[7] = true;
    stav_vyhybek.prehoz_vyhybka = 7; // the throw by hand has gone over to 7
    otevri(Technologie::provoz1);
    EXPECT_EQ(provoz1.lstnevratne.radky, std::vector<Text>{Text("Výhybka 5 nemá dohled: NOUZ"_cz)});
    stav_vyhybek.prehoz_vyhybka = 5;
    otevri(Technologie::provoz1);
    EXPECT_EQ(provoz1.lstnevratne.radky, std::vector<Text>{Text("Výhybka 7a_7b nemá dohled: NOUZ"_cz)});
}

TEST_F(ObrazovkyTechnologie, SwitchesOfARouteBeingSetAreNoFault) {
    zarad(240, 42);
    while (!cesty[0].prehozena)
        cekej(1);
    stav_vyhybek.vyhybka_pohyb.assign(10, false);
    stav_vyhybek.vyhybka_pohyb[5] = true;
    otevri(Technologie::provoz1);
    EXPECT_TRUE(provoz1.lstnevratne.radky.empty());
}

TEST_F(ObrazovkyTechnologie, OpensWithoutTheFileOfTheSwitches) {
    std::filesystem::remove(svet.koren / "data" / "tesk.stg");
    stiskni("PrintScreen");
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie");
    EXPECT_TRUE(ma_radek(provoz1.lblDrivery.radky, "PN  |L1 "));
    EXPECT_FALSE(svet.konec.has_value());
}

// --- PE-NET

TEST_F(ObrazovkyTechnologie, EachListStandsUnderItsHeading) {
    const auto nadpisy = [](Technologie ktera) {
        std::vector<Text> texty;
        for (const SeznamTechnologie& s : seznamy_technologie(ktera))
            texty.emplace_back(s.nadpis);
        return texty;
    };
    EXPECT_EQ(nadpisy(Technologie::provoz1),
              (std::vector<Text>{"Poruchy volby", "Drivery", "Poruchy technologie",
                                 Text("Nevratné poruchy tech."_cz)}));
    EXPECT_EQ(nadpisy(Technologie::provoz2),
              (std::vector<Text>{Text("Zásobník jízdních cest"_cz), "VYL+UPO", "Seznam maker",
                                 Text("Zapojené počítače"_cz)}));
    EXPECT_EQ(nadpisy(Technologie::penet), (std::vector<Text>{"Indikace st: 31", "Stav PP podle SS"}));
    EXPECT_EQ(nadpisy(Technologie::dohled).back(),
              " č.přejezdu        PODMÍNKA VÝSTRAHY                     čas    stav PZZ      DATA"_cz);
    EXPECT_EQ(nadpisy(Technologie::sekvence),
              (std::vector<Text>{" S  F P1 P2 P3", Text("KONTROLOVANÉ PODMÍNKY"_cz)}));
    EXPECT_EQ(kRizikovaFunkce, "!!! PROBÍHÁ RIZIKOVÁ FUNKCE !!!"_cz);
}

TEST_F(ObrazovkyTechnologie, PeNetHasTheSignalsOfTheLineInTheirOrder) {
    otevri(Technologie::penet);
    const auto jmena = [](const Seznam& s) {
        Text vse;
        for (const Text& radek : s.radky)
            vse += radek.substr(0, radek.find(' ')) + " ";
        return vse;
    };
    EXPECT_EQ(jmena(penet.lstStav_PP), "PP RC VL JC KO S1 S2 S3 S4 S5 BI1 BI2 BI3 ");
    EXPECT_EQ(jmena(penet.lstIndikace),
              "IN2 DFL DFH B1L B1H B2L B2H B3L B3H B4L B4H B5L B5H I1 I2 I3 I4 I5 I6 ");
}

TEST_F(ObrazovkyTechnologie, FiguresOfPeNetChangeInTheirPlacesAndLeaveTheChanceOfTheSimulationAlone) {
    zasej_nahodu(99);
    const Nahoda predtim = nahoda;
    otevri(Technologie::penet);
    for (int i = 0; i < 50; ++i) {
        const PeNet minule = penet;
        tik_technologie();
        EXPECT_NE(penet, minule);
        for (const Seznam PeNet::*s : {&PeNet::lstIndikace, &PeNet::lstStav_PP})
            for (std::size_t r = 0; r < (penet.*s).radky.size(); ++r) {
                EXPECT_EQ((penet.*s).radky[r].size(), (minule.*s).radky[r].size());
                EXPECT_EQ((penet.*s).radky[r].substr(0, 5), (minule.*s).radky[r].substr(0, 5));
            }
    }
    EXPECT_EQ(nahoda, predtim);
}

// --- ES DOHLED: routes

TEST_F(ObrazovkyTechnologie, WithNoRouteInUseTheListIsEmpty) {
    EXPECT_TRUE(radky_jc().empty());
    zavri_technologii();
    zarad(240, 41); // it waits in the stack
    EXPECT_TRUE(radky_jc().empty());
}

TEST_F(ObrazovkyTechnologie, RouteLineHasItsColumns) {
    Cesta& c = postavena();
    c.ZT = 123;
    ASSERT_EQ(radky_jc().size(), 1u);
    const Text radek = dohled.lstJC.radky[0];
    EXPECT_EQ(radek.size(), 77u);
    EXPECT_EQ(vyrez(radek, 1, 5), "123. ");
    EXPECT_EQ(vyrez(radek, 6, 5), "VC   ");
    const Text jmeno = jmeno_navestidla(240) + " " + jmeno_konce(41);
    EXPECT_EQ(orez(vyrez(radek, 11, 31)), orez(jmeno));
    EXPECT_EQ(radek[10], jmeno[0]);
    EXPECT_EQ(orez(vyrez(radek, 42)), aspekt_text(0));
    EXPECT_NE(radek[41], ' ');
}

TEST_F(ObrazovkyTechnologie, KindOfARouteIsTrainShuntOrCallingOn) {
    Cesta& c = postavena();
    c.VC = false;
    EXPECT_EQ(vyrez(radky_jc().at(0), 6, 2), "PC");
    c.VC = c.PN = true;
    EXPECT_EQ(vyrez(radky_jc().at(0), 6, 2), "PN");
}

TEST_F(ObrazovkyTechnologie, AspectTellsTheSpeedHereAndTheSpeedThatTheNextSignalAnnounces) {
    Cesta& c = postavena();
    const auto navest = [] { return Text(orez(vyrez(radky_jc().at(0), 42))); };
    EXPECT_EQ(navest(), "VYSTR.") << "nothing is set behind track 41";
    c.rychlost = 1;
    EXPECT_EQ(navest(), "40/VYS");
    c.rychlost = 2;
    EXPECT_EQ(navest(), "60/VYS");
    c.rychlost = 3;
    EXPECT_EQ(navest(), "80/VYS");
    zavri_technologii();
    postav(241, 604); // the next route, without a limit
    cesty[0].rychlost = 0;
    EXPECT_EQ(navest(), "VOLNO");
    for (const auto& [tady, dal, text] :
         {std::tuple{0, 1, "MAX/40"}, std::tuple{0, 2, "MAX/60"}, std::tuple{0, 3, "MAX/80"},
          std::tuple{1, 0, "40/MAX"}, std::tuple{1, 1, "40/40"}, std::tuple{1, 2, "40/60"},
          std::tuple{1, 3, "40/80"}, std::tuple{2, 0, "60/MAX"}, std::tuple{2, 1, "60/40"},
          std::tuple{2, 2, "60/60"}, std::tuple{2, 3, "60/80"}, std::tuple{3, 0, "80/MAX"},
          std::tuple{3, 1, "80/40"}, std::tuple{3, 2, "80/60"}, std::tuple{3, 3, "80/80"}}) {
        cesty[0].rychlost = static_cast<std::uint8_t>(tady);
        cesty[1].rychlost = static_cast<std::uint8_t>(dal);
        EXPECT_EQ(navest(), text);
    }
    relief.navestidlo[240].barva = barvy::bila;
    EXPECT_EQ(navest(), "POS.DOV");
    relief.navestidlo[240].barva = barvy::seda;
    EXPECT_EQ(navest(), "") << "at stop it shows none";
    cesty[0].PN = true;
    cesty[0].PN_do = 1'000'000;
    EXPECT_EQ(navest(), "OP");
}

TEST_F(ObrazovkyTechnologie, RoutesThatTrainsMadeOnTheLineAreLeftOut) {
    Cesta& c = postavena();
    c.ZT = kZTprogramu;
    EXPECT_TRUE(radky_jc().empty());
    c.ZT = 7;
    c.konec = -3;
    EXPECT_TRUE(radky_jc().empty());
    c.konec = 41;
    c.prehozena = false;
    EXPECT_TRUE(radky_jc().empty());
}

TEST_F(ObrazovkyTechnologie, LineRoutesThatAreInRunningAreNotListed) {
    Cesta& c = postavena();
    c.prvky = prvky_cesty({40, 5, 604});
    c.Umazat = 1;
    EXPECT_EQ(radky_jc().size(), 1u) << "the head is still within the station";
    c.Umazat = 2;
    EXPECT_TRUE(radky_jc().empty());
    c.Umazat = 0;
    EXPECT_EQ(radky_jc().size(), 1u);
    c.Umazat = 200; // behind the list of a damaged record
    EXPECT_TRUE(radky_jc().empty());
}

TEST_F(ObrazovkyTechnologie, NameOfARouteFallsBackToTheSignalAtItsEnd) {
    Cesta& c = postavena();
    c.konec = 241; // neither target nor track, but a signal
    EXPECT_EQ(orez(vyrez(radky_jc().at(0), 11, 31)), jmeno_navestidla(240) + " " + jmeno_navestidla(241));
}

// --- ES DOHLED: crossings

TEST_F(ObrazovkyTechnologie, CrossingLinesHaveTheirColumns) {
    const Text prvni = radek_prejezdu(0), druhy = radek_prejezdu(1);
    EXPECT_EQ(vyrez(prvni, 1, 19), "TVH 140,310        ");
    EXPECT_EQ(vyrez(druhy, 1, 19), "TMK 5,911          ");
    for (const Text& radek : {prvni, druhy}) {
        EXPECT_EQ(vyrez(radek, 60, 19), Text("OTEVŘEN            "_cz));
        EXPECT_EQ(vyrez(radek, 79), "OK");
        EXPECT_EQ(vyrez(radek, 20, 2), "- ");
    }
    EXPECT_EQ(dohled.lblStav_prejezdu.radky.size(), 2u);
    EXPECT_EQ(seznamy_technologie(Technologie::dohled)[1].nadpis,
              Text(" č.přejezdu        PODMÍNKA VÝSTRAHY                     čas    stav PZZ      DATA"_cz));
}

TEST_F(ObrazovkyTechnologie, CrossingIsOpenClosedClosedByTheOperatorOrAnnulled) {
    const auto stav = [] { return Text(orez(vyrez(radek_prejezdu(0), 60, 18))); };
    StanicniPrejezd& p = stanicni_prejezdy[0];
    p.uzavren = true;
    EXPECT_EQ(stav(), Text("UZAVŘEN"_cz));
    p.UZ = true;
    EXPECT_EQ(stav(), Text("UZAVŘENO VÝPRAVČÍM"_cz));
    EXPECT_EQ(vyrez(radek_prejezdu(0), 20, 3), "UZ ");
    EXPECT_EQ(vyrez(radek_prejezdu(0), 79), "OK") << "the longest state just fits";
    p = {};
    p.pocet = 129; // the train has run in, the demand of its route is over
    EXPECT_EQ(stav(), "ANULACE");
    EXPECT_EQ(orez(vyrez(radek_prejezdu(0), 20, 39)), Text("vlak v obvodu, počet 1"_cz));
    p = {};
    EXPECT_EQ(stav(), Text("OTEVŘEN"_cz));
}

TEST_F(ObrazovkyTechnologie, CrossingThatIsAboutToCloseShowsTheTimeLeft) {
    StanicniPrejezd& p = stanicni_prejezdy[0];
    p.cas = ted_s() + 40;
    EXPECT_EQ(orez(vyrez(radek_prejezdu(0), 60, 18)), "0:40");
    p.cas = ted_s() + 75;
    EXPECT_EQ(orez(vyrez(radek_prejezdu(0), 60, 18)), "1:15");
    p.cas = ted_s() - 2;
    EXPECT_EQ(orez(vyrez(radek_prejezdu(0), 60, 18)), "0:00");
}

TEST_F(ObrazovkyTechnologie, CrossingNamesTheRouteThatClosesIt) {
    Cesta& c = postavena();
    c.prejezd = 1;
    EXPECT_EQ(orez(vyrez(radek_prejezdu(1), 20, 39)), orez(popis_cesty(0)).substr(0, 39));
    EXPECT_EQ(orez(vyrez(radek_prejezdu(0), 20, 39)), "-");
}

// --- the confirmation sequence

TEST_F(ObrazovkyTechnologie, SequenceHasNinetyNineRowsOfFigures) {
    otevri(Technologie::sekvence);
    ASSERT_EQ(sekvence.List1.radky.size(), 99u);
    for (const Text& radek : sekvence.List1.radky) {
        ASSERT_EQ(radek.size(), kHlavaSekvence.size());
        for (std::size_t s = 0; s < 5; ++s) {
            const int cislo = cele_z_textu(radek.substr(s == 0 ? 0 : 3 * s - 1, s == 0 ? 2 : 3));
            EXPECT_GE(cislo, 1);
            EXPECT_LE(cislo, 99);
        }
    }
    EXPECT_EQ(technologie.lblcisla, cisla_radku(99));
    EXPECT_EQ(sekvence.funkce, RizikovaFunkce{});
    EXPECT_TRUE(sekvence.lstPodminky.radky.empty());
}

TEST_F(ObrazovkyTechnologie, EmergencyOpeningShowsTheSequenceAsAViewThatStopsNothing) {
    stanicni_prejezdy[0].uzavren = true;
    stanicni_prejezdy[0].pocet = 129;
    ::klik(Druh::lblPrejezd, 0, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("miNOT"));
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
    EXPECT_EQ(simulace.obrazovka, "frmSekvence");
    EXPECT_TRUE(technologie.jen_pohled);
    EXPECT_FALSE(simulace.pauza);
    EXPECT_FALSE(relief.lblPauza[0].viditelny);
    EXPECT_EQ(sekvence.funkce.nazev, "NOT 140,310");
    ASSERT_EQ(sekvence.lstPodminky.radky.size(), 4u);
    EXPECT_EQ(sekvence.lstPodminky.radky[0].substr(0, 27), Text("V obvodu přejezdu není vlak"_cz));
    EXPECT_EQ(sekvence.lstPodminky.radky[0].substr(44), "NE") << "as it was before the function ran";
    EXPECT_EQ(sekvence.lstPodminky.radky[3].substr(44), "ANO");
}

TEST_F(ObrazovkyTechnologie, EndOfTheOperatorsClosureShowsItToo) {
    relief.lblPrejezd.zaloz(1);
    prejezd_uz(1);
    ::klik(Druh::lblPrejezd, 1, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("miZUZ"));
    EXPECT_EQ(simulace.obrazovka, "frmSekvence");
    EXPECT_EQ(sekvence.funkce.nazev, "ZUZ 5,910");
    EXPECT_EQ(sekvence.lstPodminky.radky.at(3).substr(44), "NE");
}

TEST_F(ObrazovkyTechnologie, ReleaseOfACallingOnRouteShowsItToo) {
    Cesta& c = postavena();
    c.PN = c.Provedena = true;
    c.PN_do = ted_s() - 1;
    relief.navestidlo[240].barva = barvy::seda;
    ::klik(Druh::navestidlo, 240, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("miRNZ"));
    EXPECT_EQ(cesty[0].zacatek, -3) << "the route is released";
    EXPECT_EQ(simulace.obrazovka, "frmSekvence");
    EXPECT_EQ(sekvence.funkce.nazev, "RNZ " + jmeno_navestidla(240));
    ASSERT_EQ(sekvence.lstPodminky.radky.size(), 4u);
    for (const Text& radek : sekvence.lstPodminky.radky)
        EXPECT_EQ(radek.substr(44), "ANO") << radek;
}

TEST_F(ObrazovkyTechnologie, OtherFunctionsOfTheMenusShowNothing) {
    ::klik(Druh::lblPrejezd, 0, Tlacitko::prave, false);
    ASSERT_TRUE(zvol_v_menu("miUZ"));
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_FALSE(rizikova_funkce("miRC", 240));
    EXPECT_TRUE(rizikova_funkce("miNOT", 77)) << "a crossing that there is not: a name without conditions";
}

TEST_F(ObrazovkyTechnologie, ViewLeavesTheDeskToTheOperatorAndGoesWithHisNextMove) {
    const auto ukaz = [] {
        ohlas_rizikovou_funkci({"NOT 140,310", {}});
        EXPECT_EQ(simulace.obrazovka, "frmSekvence");
        EXPECT_FALSE(technologie_kryje_stul());
    };
    ukaz();
    ::klik(Druh::imgVyhybka, 5, Tlacitko::prave, false);
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_FALSE(menu.jmeno.empty()) << "the click itself has done its work";
    zavri_menu();
    ukaz();
    klik_na_plochu();
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    ukaz();
    vyber.volba_zacatek = 240;
    stiskni("Esc");
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_EQ(vyber.volba_zacatek, 240) << "Esc takes the view away and nothing else";
    vyber.volba_zacatek = -3;
    ukaz();
    vyber.mys_nad_prvkem = true;
    vyber.mys_druh = Druh::navestidlo;
    vyber.mys_prvek = 240;
    stiskni("Enter");
    EXPECT_EQ(simulace.obrazovka, "frmMain");
    EXPECT_EQ(vyber.volba_zacatek, -3) << "Enter on the view is no click";
    ukaz();
    stiskni("PrintScreen");
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie");
    EXPECT_TRUE(simulace.pauza);
    EXPECT_EQ(sekvence.funkce, RizikovaFunkce{});
}

TEST_F(ObrazovkyTechnologie, ViewDoesNotComeOverAnOpenScreen) {
    otevri_technologii(Technologie::dohled);
    ohlas_rizikovou_funkci({"NOT 140,310", {}});
    EXPECT_EQ(simulace.obrazovka, "frmTechnologie4");
    EXPECT_TRUE(simulace.pauza);
}

TEST_F(ObrazovkyTechnologie, SimulationRunsOnUnderTheView) {
    zarad(240, 41);
    ohlas_rizikovou_funkci({"NOT 140,310", {}});
    while (!cesty[0].Postavena)
        cekej(1);
    EXPECT_EQ(simulace.obrazovka, "frmSekvence");
    EXPECT_EQ(relief.navestidlo[240].barva, barvy::zelena);
}
