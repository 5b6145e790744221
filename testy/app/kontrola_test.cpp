// testy/app/kontrola_test.cpp - the state check finds each kind of fault, and none in a sound state.
#include "app/cas.h"
#include "app/kontrola.h"
#include "app/stav_simulace.h"
#include "cesty/cesta.h"
#include "desk/menu.h"
#include "desk/stitky.h"
#include "desk/zprava.h"
#include "jizda/vlak.h"
#include "obsluha/vyber.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/souhlasy.h"
#include "prvky/stav_vyhybek.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

class Kontrola : public SPlatformou {
protected:
    Kontrola() {
        zapis_male_kolejiste(simulace.cesta_aplikace);
        relief = novy_relief();
        nacti_relief();
        for (int n = 0; n <= relief.kolej.nejvyssi(); ++n)
            if (relief.kolej.je(n))
                relief.kolej[n].barva = barvy::seda;
        nastav_cas("12:00:00");
        relief.lblcas[0].viditelny = true;
        vlaky = prvni_vlaky();
        koleje_vlaky = prvni_koleje_vlaky();
    }

    // A standing route over the switch.
    static Cesta cesta_pres_vyhybku(std::uint8_t poloha) {
        Cesta c;
        c.zacatek = 262;
        c.konec = 63;
        c.prvky = prvky_cesty({62, 440, 7, 63}, {1, 1, 2, 1}, {2, 0, poloha, 0});
        c.prejezd = kBezPrejezdu;
        c.prehozena = true;
        return c;
    }

    static std::string nalez() {
        const std::optional<Text> text = kontrola_stavu();
        return text ? na_utf8(*text) : std::string();
    }
};

bool obsahuje(const std::string& text, const std::string& co) {
    return text.find(co) != std::string::npos;
}

} // namespace

TEST_F(Kontrola, SoundStateHasNoFault) {
    EXPECT_EQ(nalez(), "");
    cesty = {cesta_pres_vyhybku(2), cesta_pres_vyhybku(2)};
    EXPECT_EQ(nalez(), "");
}

TEST_F(Kontrola, NothingIsLookedAtBeforeTheStart) {
    relief.kolej[62].barva = 0x123456;
    relief.lblcas[0].viditelny = false;
    EXPECT_EQ(nalez(), "");
}

TEST_F(Kontrola, ClockMustReadATime) {
    for (const char* cas :
         {"", "12:00", "24:00:00", "12:60:00", "12:00:60", "1x:00:00", "112:00:00", "12:00:0"}) {
        nastav_cas(cas);
        EXPECT_TRUE(obsahuje(nalez(), "hodiny: čas")) << cas;
    }
    for (const char* cas : {"0:00:00", "9:05:59", "23:59:59"}) {
        nastav_cas(cas);
        EXPECT_EQ(nalez(), "") << cas;
    }
}

TEST_F(Kontrola, DayMustBeOneDay) {
    for (const int den : {0, 3, 128, 127}) {
        simulace.den = static_cast<std::uint8_t>(den);
        EXPECT_TRUE(obsahuje(nalez(), "hodiny: den")) << den;
    }
    simulace.den = 64;
    EXPECT_EQ(nalez(), "");
    simulace.rychlost = 9;
    EXPECT_TRUE(obsahuje(nalez(), "rychlost"));
}

TEST_F(Kontrola, TrackMustBeInAState) {
    relief.kolej[63].barva = 0x123456;
    EXPECT_EQ(nalez(), "kolej 63: barva není stavem koleje");
    relief.kolej[63].barva = barvy::cervena;
    relief.kolej[63].stav = Text("12.5");
    EXPECT_EQ(nalez(), "");
    relief.kolej[63].stav = Text("daleko");
    EXPECT_EQ(nalez(), "kolej 63: poloha vlaku není číslo");
}

TEST_F(Kontrola, FaultIsToldAtEachLookUntilItIsMended) {
    ASSERT_EQ(nalez(), "");
    relief.kolej[63].barva = 0x123456;
    for (const char* popis : {"1", "2", "3"}) {
        EXPECT_EQ(nalez(), "kolej 63: barva není stavem koleje") << popis;
        relief.kolej[62].text = Text(popis);
    }
    relief.kolej[63].barva = barvy::seda;
    ASSERT_EQ(nalez(), "");
    relief.imgVyhybka[7].stav.nastav_cislo(50);
    EXPECT_EQ(nalez(), "imgVyhybka 7: stav není obrazem výhybky");
    EXPECT_EQ(nalez(), "imgVyhybka 7: stav není obrazem výhybky");
}

TEST_F(Kontrola, StateThatIsGivenBackIsLookedAtAsAWhole) {
    StavSimulace sestavena = stav_simulace();
    sestavena.relief.kolej[63].barva = 0x123456;
    ASSERT_EQ(nalez(), "");
    vrat_stav(std::move(sestavena));
    EXPECT_EQ(nalez(), "kolej 63: barva není stavem koleje");
}

TEST_F(Kontrola, SwitchMustShowOneOfItsPictures) {
    for (const char* stav : {"0", "50", "250", "-2", "2.5", "x"}) {
        relief.imgVyhybka[7].stav = Text(stav);
        EXPECT_EQ(nalez(), "imgVyhybka 7: stav není obrazem výhybky") << stav;
    }
    for (const char* stav : {"1", "49", "51", "249"}) {
        relief.imgVyhybka[7].stav = Text(stav);
        EXPECT_EQ(nalez(), "") << stav;
    }
    stav_vyhybek.prehoz_vyhybka = 8;
    EXPECT_TRUE(obsahuje(nalez(), "prehoz_vyhybka 8"));
}

TEST_F(Kontrola, RouteMustConsistOfElements) {
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].prvky[2].prvek = 8;
    EXPECT_EQ(nalez(), "cesty 0: prvek 8 druhu 2 neexistuje");
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].prvky[2].druh = 3;
    EXPECT_EQ(nalez(), "cesty 0: prvek 7 druhu 3 neexistuje");
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].prvky.clear();
    EXPECT_TRUE(obsahuje(nalez(), "nemá žádný prvek"));
    cesty.clear();
    EXPECT_TRUE(obsahuje(nalez(), "tabulka je prázdná"));
}

TEST_F(Kontrola, RouteMustPointAtWhatExists) {
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].Umazat = 4;
    EXPECT_TRUE(obsahuje(nalez(), "Umazat"));
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].Vlak = 51;
    EXPECT_EQ(nalez(), "cesty 0: vlak 51 neexistuje");
    for (const std::int16_t vlak : {-3, -4, -10, 0, 50}) {
        cesty[0].Vlak = vlak;
        EXPECT_EQ(nalez(), "") << vlak;
    }
    cesty[0].prejezd = 2;
    EXPECT_EQ(nalez(), "cesty 0: přejezd 2 neexistuje");
}

TEST_F(Kontrola, SignalAtProceedHasItsSwitchesRightLockedAndForItself) {
    const std::string vadna =
        "cesty 0: návěst dovoluje jízdu přes výhybku 7, která neleží nebo není pod závěrem";
    cesty = {cesta_pres_vyhybku(2)};
    cesty[0].VC = cesty[0].Postavena = cesty[0].Provedena = true;
    for (const auto& [stav, nalezeno] :
         {std::pair{52, ""}, std::pair{2, vadna.c_str()}, std::pair{53, vadna.c_str()},
          std::pair{202, vadna.c_str()}, std::pair{102, vadna.c_str()}}) {
        relief.imgVyhybka[7].stav = text_cisla(stav);
        EXPECT_EQ(nalez(), nalezeno) << stav;
    }
    cesty[0].Postavena = false;
    EXPECT_EQ(nalez(), "") << "its signal shows stop";
    cesty[0].Postavena = true;
    cesty[0].Umazat = 3;
    EXPECT_EQ(nalez(), "") << "what lies behind the train is history";
    cesty[0].Umazat = 0;
    relief.imgVyhybka[7].stav = "52"_cz;
    cesty.push_back(cesty[0]);
    EXPECT_EQ(nalez(), "cesty 1: návěst dovoluje jízdu přes výhybku 7 jako cesta 0");
}

TEST_F(Kontrola, SelectionMustBeOfAKind) {
    vyber.volba_druh = 4;
    EXPECT_TRUE(obsahuje(nalez(), "volba: druh 4"));
    vyber.volba_druh = 3;
    EXPECT_EQ(nalez(), "");
}

TEST_F(Kontrola, CommandLineMustBeWhole) {
    relief.lblPrikaz[0].viditelny = true;
    EXPECT_TRUE(obsahuje(nalez(), "není obsazen"));
    prikaz_radek.obsazen = true;
    EXPECT_EQ(nalez(), "");
    prikaz_radek.fronta_zprav[0].volba = Text("čeká"_cz);
    EXPECT_TRUE(obsahuje(nalez(), "fronta_zprav"));
    prikaz_radek.fronta_zprav.emplace_back();
    EXPECT_EQ(nalez(), "");
    relief.lblPrikaz[0].viditelny = false;
    prikaz_radek.obsazen = false;
    prikaz_radek.blikani_prikazu = true;
    EXPECT_TRUE(obsahuje(nalez(), "bliká"));
}

TEST_F(Kontrola, MenuMustStandOnAnElement) {
    menu.polozky.emplace_back();
    EXPECT_TRUE(obsahuje(nalez(), "položky bez otevřeného menu"));
    menu.jmeno = "mnuNAVESTIDLO";
    menu.druh = Druh::navestidlo;
    menu.prvek = 262;
    EXPECT_EQ(nalez(), "");
    menu.prvek = 999;
    EXPECT_EQ(nalez(), "menu: prvek 999 neexistuje");
}

TEST_F(Kontrola, TablesAreNeverEmpty) {
    stitky.clear();
    EXPECT_TRUE(obsahuje(nalez(), "stitky"));
    stitky = std::vector<StitekPrvku>(1);
    souhlasy.cekajici_vlaky.clear();
    EXPECT_TRUE(obsahuje(nalez(), "cekajici_vlaky"));
    souhlasy.cekajici_vlaky = {4711, 0};
    EXPECT_EQ(nalez(), "cekajici_vlaky 1: číslo 0 mezi čísly vlaků");
    souhlasy.cekajici_vlaky = {0};
    EXPECT_EQ(nalez(), "");
}

TEST_F(Kontrola, TracksHoldTrainsThatExist) {
    koleje_vlaky[0].vlaky = {0, 51};
    EXPECT_EQ(nalez(), "koleje_vlaky 0: vlak 51 neexistuje");
    koleje_vlaky[0].vlaky.clear();
    EXPECT_TRUE(obsahuje(nalez(), "seznam vlaků je prázdný"));
}

TEST_F(Kontrola, TrainHoldsOccupiedTracksThatExist) {
    Vlak& v = vlaky[2];
    v.cislo = 1234;
    v.posun = true;
    v.prvky = prvky_cesty({62, 440, 7}, {1, 1, 2}, {0, 0, 2});
    v.prvek_konec = 1;
    EXPECT_EQ(nalez(), "vlaky 2: drží kolej 440, která není obsazená");
    relief.kolej[440].barva = barvy::cervena;
    EXPECT_EQ(nalez(), ""); // 62 is history
    stav_vyhybek.vyhybka_pohyb.assign(10, false);
    stav_vyhybek.vyhybka_pohyb[7] = true;
    EXPECT_EQ(nalez(), "vlaky 2: pod vlakem se přestavuje výhybka 7");
    stav_vyhybek.vyhybka_pohyb[7] = false;
    v.prvky.back().prvek = 8;
    EXPECT_EQ(nalez(), "vlaky 2: prvek 8 druhu 2 neexistuje");
    v.prvek_konec = 3;
    EXPECT_EQ(nalez(), "vlaky 2: prvek_konec neukazuje na držený prvek");
    v.cislo = -3;
    EXPECT_EQ(nalez(), ""); // a free record holds nothing
}

TEST_F(Kontrola, LocomotiveBehindTheGateOfAFullDepotHoldsNoTrack) {
    vlaky[2].cislo = 74890;
    vlaky[2].posun = true;
    vlaky[2].prvek_konec = 0;
    vlaky[2].prvky = prvky_cesty({0}, {0}, {0});
    EXPECT_EQ(nalez(), "");
    vlaky[2].prvky = prvky_cesty({0}, {1}, {0});
    EXPECT_EQ(nalez(), "vlaky 2: drží kolej 0, která není obsazená");
}

TEST_F(Kontrola, AnnouncedTrainStandsOnAGreenTrack) {
    Vlak& v = vlaky[0];
    v.cislo = 1234;
    v.prvky = prvky_cesty({62}, {1}, {0});
    v.prvek_konec = 0;
    v.stanice_index = -4;
    relief.kolej[62].barva = barvy::zelena;
    EXPECT_EQ(nalez(), "");
    v.posun = v.muze_jet = true; // the operator has made it a shunting movement
    EXPECT_EQ(nalez(), "");
    relief.kolej[62].barva = barvy::seda;
    EXPECT_EQ(nalez(), "vlaky 0: drží kolej 62, která není obsazená");
    relief.kolej[62].barva = barvy::zelena;
    v.prvky = prvky_cesty({440, 62}, {1, 1}, {0, 0}); // it has come to it from elsewhere
    v.prvek_konec = 1;
    EXPECT_EQ(nalez(), "vlaky 0: drží kolej 62, která není obsazená");
}

TEST_F(Kontrola, ListOfATrackHasNoGap) {
    koleje_vlaky.push_back({62, {0, -3}});
    EXPECT_EQ(nalez(), "koleje_vlaky 1: prázdné místo mezi vlaky");
}
