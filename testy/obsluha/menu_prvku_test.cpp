// testy/obsluha/menu_prvku_test.cpp - the menus of signals, switches, consents and station crossings.
#include "cesty/opakovani.h"
#include "desk/menu.h"
#include "desk/zprava.h"
#include "obsluha/klavesy.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "prvky/svety.h"
#include "zaklad/chyba.h"

namespace {

struct MenuNavestidla : ObsluhaNavestidla {
    // Captions of the enabled entries, in order.
    static std::string nabidka(int s) {
        menu_navestidla(s);
        std::string vse;
        for (const PolozkaMenu& m : menu.polozky)
            if (m.povolena)
                vse += (vse.empty() ? "" : " ") + m.text;
        return vse;
    }
};
struct MenuVyhybky : Vyhybka {
    // Which of S+, S-, S+ b, S- b the menu of n offers.
    static std::string nabidka(int n) {
        menu_vyhybky(n);
        std::string vse;
        for (const TextPohled jmeno : {"miPLUS", "miMINUS", "miPLUS_B", "miMINUS_B"})
            vse += polozka_menu(jmeno).povolena ? '1' : '0';
        return vse;
    }
};
struct MenuSouhlasu : Souhlas {};
struct MenuPrejezdu : PrejezdStanice {};

} // namespace

// --- signals

TEST_F(MenuNavestidla, MenuHasItsEntriesInOrder) {
    menu_navestidla(20);
    EXPECT_EQ(menu.jmeno, "mnuNAVESTIDLO");
    EXPECT_EQ(menu.hlava, "= THN S20 =");
    std::vector<Text> jmena;
    for (const PolozkaMenu& m : menu.polozky) {
        jmena.push_back(m.jmeno);
        EXPECT_EQ(m.jmeno, "mi" + m.text);
        EXPECT_NE(m.akce, nullptr);
        EXPECT_EQ(m.cil, 20);
    }
    EXPECT_EQ(jmena, (std::vector<Text>{"miSTUJ", "miDN", "miAB", "miRC", "miZAM", "miVC", "miPC", "miPN",
                                        "miPPN", "miRNZ"}));
    menu_navestidla(540);
    EXPECT_EQ(menu.jmeno, "mnuSe_navestidlo");
    EXPECT_EQ(menu.hlava, "= THN Se40 =");
    jmena.clear();
    for (const PolozkaMenu& m : menu.polozky)
        jmena.push_back(m.jmeno);
    EXPECT_EQ(jmena, (std::vector<Text>{"miSTUJ", "miDN", "miRC", "miZAM", "miPC"}));
}

TEST_F(MenuNavestidla, MenuFollowsTheColourOfTheSignal) {
    const std::map<Barva, std::string> hlavni = {{barvy::seda, "AB ZAM VC PC PN"},
                                                 {barvy::zelena, "STUJ AB VC PC"},
                                                 {barvy::bila, "STUJ VC PC"},
                                                 {barvy::cervena, "AB ZAM VC PC"}};
    for (const auto& [barva, cekano] : hlavni) {
        relief.navestidlo[20].barva = barva;
        EXPECT_EQ(nabidka(20), cekano) << barva;
    }
    const std::map<Barva, std::string> serizovaci = {
        {barvy::seda, "ZAM PC"}, {barvy::bila, "STUJ PC"}, {barvy::modra, "ZAM PC"}};
    for (const auto& [barva, cekano] : serizovaci) {
        relief.navestidlo_ser[540].barva = barva;
        EXPECT_EQ(nabidka(540), cekano) << barva;
    }
}

TEST_F(MenuNavestidla, MenuFollowsTheRouteOfTheSignal) {
    Cesta& c = cesta(20, {20, 40});
    relief.navestidlo[20].barva = barvy::zelena;
    EXPECT_EQ(nabidka(20), "STUJ DN AB RC VC PC");
    c.cas_ruseni = ted_s() + 100; // a cancellation counts: DN would stop it
    relief.navestidlo[20].barva = barvy::seda;
    EXPECT_EQ(nabidka(20), "DN AB RC ZAM VC PC PN");
    c.Umazat = 1;
    EXPECT_EQ(nabidka(20), "AB ZAM VC PC PN");
    c.Umazat = 0;
    c.Postavena = c.Provedena = false;
    c.cas_ruseni = -3;
    EXPECT_EQ(nabidka(20), "AB RC ZAM VC PC PN");
    c.prehozena = false;
    EXPECT_EQ(nabidka(20), "AB ZAM VC PC PN");
}

TEST_F(MenuNavestidla, MenuDuringAndAfterACallingOnAspect) {
    Cesta& c = pn_cesta(20, 30);
    for (const Barva barva : {barvy::bila, barvy::seda}) { // it flashes
        relief.navestidlo[20].barva = barva;
        EXPECT_EQ(nabidka(20), "STUJ DN PPN");
    }
    c.PN_do = ted_s() - 1;
    relief.navestidlo[20].barva = barvy::seda;
    EXPECT_EQ(nabidka(20), "PN RNZ");
}

TEST_F(MenuNavestidla, MenuAbPicksTheEndOfTheFirstRunOnlyWithoutARoute) {
    menu_ab(20);
    EXPECT_TRUE(ab_zapnuto(20));
    EXPECT_EQ(vyber.volba_zacatek, 20);
    EXPECT_EQ(vyber.volba_druh, 1);
    vyber = Vyber{};
    cesta(60, {60, 61});
    menu_ab(60);
    EXPECT_TRUE(ab_zapnuto(60));
    EXPECT_EQ(vyber.volba_zacatek, kZadny);
    cesty[0].Umazat = 1; // a train is on it: the next run has no route yet
    prepni_ab(60);
    menu_ab(60);
    EXPECT_EQ(vyber.volba_zacatek, 60);
}

// --- switches

TEST_F(MenuVyhybky, MenuCarriesTheNameAndAllEntriesInOrder) {
    menu_vyhybky(1);
    EXPECT_EQ(menu.jmeno, "mnuVYHYBKA");
    EXPECT_EQ(menu.hlava, "1/3");
    EXPECT_EQ(menu.prvek, 1);
    const std::vector<std::pair<Text, Text>> cekano = {
        {"miPLUS", "S+"},         {"miMINUS", "S-"},        {"miPLUS_B", "S+ b"},
        {"miMINUS_B", "S- b"},    {"miZAV_vyhybka", "ZAV"}, {"miSTIT_vyhybka", "STIT"},
        {"miVYL_vyhybka", "VYL"}, {"miMST", "MST"},         {"miVyh_nouz", "NOUZ"}};
    ASSERT_EQ(menu.polozky.size(), cekano.size());
    for (std::size_t i = 0; i < cekano.size(); ++i) {
        EXPECT_EQ(menu.polozky[i].jmeno, cekano[i].first);
        EXPECT_EQ(menu.polozky[i].text, cekano[i].second);
        EXPECT_TRUE(menu.polozky[i].viditelna);
        EXPECT_EQ(menu.polozky[i].akce == nullptr, i >= 4 && i <= 7) << i; // kept for the look
    }
    menu_vyhybky(6);
    EXPECT_EQ(menu.hlava, "");
}

TEST_F(MenuVyhybky, MenuOffersWhatThePositionAllowsInEveryState) {
    for (int s = 1; s <= 249; ++s) {
        stav(6, s);
        std::string cekano = "0000";
        if (s >= 25 && s <= 32) {
            const bool a_plus = s == 25 || s == 28 || s == 29 || s == 31;
            const bool b_plus = s == 25 || s == 27 || s == 29 || s == 32;
            cekano = {a_plus ? '0' : '1', a_plus ? '1' : '0', b_plus ? '0' : '1', b_plus ? '1' : '0'};
        } else if (s < 25) {
            cekano[0] = s % 3 == 2 ? '1' : '0';
            cekano[1] = s % 3 == 0 ? '1' : '0';
        } else if (s < 50) {
            continue; // no such position
        }
        EXPECT_EQ(nabidka(6), cekano) << s;
        EXPECT_TRUE(polozka_menu("miVyh_nouz").povolena);
    }
}

TEST_F(MenuVyhybky, OrderThatTheStateNoLongerAllowsIsRefused) {
    menu_vyhybky(1);
    const PolozkaMenu plus = polozka_menu("miPLUS");
    stav(1, 52); // a route has locked it while the menu was open
    plus.akce(plus.cil);
    EXPECT_EQ(stav(1), 52);
    EXPECT_EQ(stav_vyhybek.prehoz_vyhybka, -3);
    stav(1, 2);
    stav(2, 53);
    plus.akce(plus.cil);
    EXPECT_EQ(stav(1), 2);
    EXPECT_FALSE(vyhybka_v_pohybu(1));
}

TEST_F(MenuVyhybky, UnknownSwitchIsAnError) {
    EXPECT_THROW(menu_vyhybky(-3), BehovaChyba);
}

// --- consents

TEST_F(MenuSouhlasu, LeftClickAsksWhetherToTakeTheTrain) {
    const TextPohled vyzvy[] = {" PLH: Přijmete vlak 4711 ?"_cz, " HVO: Přijmete vlak 4711 ?"_cz,
                                " VRB: Přijmete vlak 4711 ?"_cz};
    for (int k = 0; k < 3; ++k) {
        prikaz_radek = Prikaz{};
        skryj_prikaz();
        zadej_souhlas(k, 4711);
        klik_souhlas(k, Tlacitko::leve);
        EXPECT_EQ(relief.lblPrikaz[0].text(), " ZPRÁVA "_cz);
        EXPECT_EQ(relief.lblPrikaz[0].pozadi(), barvy::azurova);
        EXPECT_EQ(relief.lblVolba[0].text(), vyzvy[k]);
        EXPECT_EQ(prikaz_radek.kod_zpravy, k + 1);
        EXPECT_TRUE(prikaz_radek.blikani_prikazu);
    }
}

TEST_F(MenuSouhlasu, LeftClickSaysNothingWhenNobodyAsks) {
    klik_souhlas(0, Tlacitko::leve);
    klik_souhlas(0, Tlacitko::prostredni);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(MenuSouhlasu, RightClickOpensTheMenuOfTheLine) {
    const TextPohled nazvy[] = {"PLH-JAV", "HVO-JAV", "VRB-THN"};
    for (int k = 0; k < 3; ++k) {
        klik_souhlas(k, Tlacitko::prave);
        EXPECT_EQ(menu.jmeno, "mnuSouhlas");
        EXPECT_EQ(menu.hlava, nazvy[k]);
        ASSERT_EQ(menu.polozky.size(), 1u);
        EXPECT_EQ(menu.polozky[0].jmeno, "miUS");
        EXPECT_EQ(menu.polozky[0].text, "US");
    }
}

TEST_F(MenuSouhlasu, GivenFromTheMenuConfirmsTheQuestionOfItsLine) {
    zadej_souhlas(0, 4711);
    klik_souhlas(0, Tlacitko::leve);
    zprava(" OK ", "dalsi", barvy::zelena);
    udel_souhlas(0);
    EXPECT_EQ(relief.lblVolba[0].text(), "dalsi"); // the message that waited
    EXPECT_EQ(svet.pipnuti, (std::vector<VirtualniPlatforma::Pipnuti>{{400, 150}}));
}

TEST_F(MenuSouhlasu, QuestionBroughtByTheQueueIsConfirmedToo) {
    zadej_souhlas(0, 4711);
    zprava(" OK ", "prvni", barvy::zelena);
    klik_souhlas(0, Tlacitko::leve);
    potvrd_prikaz();
    dalsi_zprava();
    ASSERT_EQ(relief.lblVolba[0].text(), " PLH: Přijmete vlak 4711 ?"_cz);
    udel_souhlas(0);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(MenuSouhlasu, QuestionOfAnotherLineIsNotAnsweredByIt) {
    zadej_souhlas(0, 4711);
    zadej_souhlas(1, 4712);
    klik_souhlas(1, Tlacitko::leve);
    udel_souhlas(0);
    EXPECT_TRUE(prikaz_radek.obsazen);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 2);
    EXPECT_FALSE(souhlasy.souhlas[1]);
}

TEST_F(MenuSouhlasu, EnterOnTheQuestionGivesTheConsentOnce) {
    zadej_souhlas(1, 4711);
    klik(Druh::lblSouhlas, 1, Tlacitko::leve, false);
    zprava(" OK ", "dalsi", barvy::zelena);
    klavesa(klavesa_podle_jmena("Enter"));
    EXPECT_EQ(souhlasy.cekajici_vlaky, (std::vector<std::int32_t>{4711}));
    EXPECT_TRUE(souhlasy.souhlas[1]);
    EXPECT_TRUE(relief.lblSouhlas[1].popis->empty());
    EXPECT_EQ(udalosti(), (Udalosti{{103, 1}}));
    EXPECT_EQ(relief.lblVolba[0].text(), "dalsi"); // the message behind it is not lost
    klavesa(klavesa_podle_jmena("Enter"));
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(souhlasy.cekajici_vlaky.size(), 1u);
}

TEST_F(MenuSouhlasu, UnknownLineOrMissingLampIsIgnored) {
    relief = novy_relief();
    relief.lblSouhlas.zaloz(0).popis = Text("1");
    for (const int k : {-1, 1, 2, 3}) {
        klik_souhlas(k, Tlacitko::leve);
        klik_souhlas(k, Tlacitko::prave);
        udel_souhlas(k);
    }
    EXPECT_EQ(souhlasy, Souhlasy{});
    EXPECT_TRUE(menu.jmeno.empty());
}

// --- station crossings

TEST_F(MenuPrejezdu, MenuNamesTheCrossingByItsKilometre) {
    menu_prejezdu(0);
    EXPECT_EQ(menu.hlava, "140,310");
    EXPECT_EQ(menu.prvek, 0);
    EXPECT_EQ(menu.druh, Druh::lblPrejezd);
    menu_prejezdu(1);
    EXPECT_EQ(menu.hlava, "5,910");
}

TEST_F(MenuPrejezdu, EmergencyOpeningIsCalledEndOfTheClosureWhileTheOperatorHoldsTheCrossing) {
    const auto texty = [] {
        std::vector<Text> videt;
        for (const PolozkaMenu& polozka : menu.polozky)
            if (polozka.viditelna)
                videt.push_back(polozka.text);
        return videt;
    };
    menu_prejezdu(0);
    EXPECT_EQ(texty(), (std::vector<Text>{"UZ", "NOT", "STIT", "DK"}));
    EXPECT_FALSE(zvol_v_menu("miZUZ"));
    EXPECT_TRUE(zvol_v_menu("miUZ"));
    menu_prejezdu(0);
    EXPECT_EQ(texty(), (std::vector<Text>{"UZ", "ZUZ", "STIT", "DK"}));
    EXPECT_EQ(polozka_menu("miSTIT").akce, nullptr);
    EXPECT_EQ(polozka_menu("miDK").akce, nullptr);
    EXPECT_TRUE(zvol_v_menu("miZUZ"));
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
    prejezd_uz(0);
    menu_prejezdu(0);
    EXPECT_TRUE(zvol_v_menu("miNOT")); // the same entry
    EXPECT_EQ(stanicni_prejezdy[0], StanicniPrejezd{});
}

TEST_F(MenuPrejezdu, MenuShowsTheCounterToTheDeveloperOnly) {
    stanicni_prejezdy[1].pocet = 130;
    stanicni_prejezdy[1].uzavren = true;
    menu_prejezdu(1);
    EXPECT_FALSE(menu.polozky.front().viditelna);
    simulace.polozky_ladeni = true;
    menu_prejezdu(1);
    EXPECT_TRUE(menu.polozky.front().viditelna);
    EXPECT_EQ(menu.polozky.front().text, "130 -1");
}

TEST_F(MenuPrejezdu, AnIndexThatIsNoCrossingOpensNoMenu) {
    for (const int k : {-3, -1, 2, 128})
        menu_prejezdu(k);
    EXPECT_TRUE(menu.jmeno.empty());
}
