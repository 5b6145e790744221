// testy/prvky/navestidla_test.cpp - signal menu, blocking, calling-on, automatic mode, AH.
#include "app/cas.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "cesty/opakovani.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "desk/menu.h"
#include "obsluha/menu_prvku.h"
#include "obsluha/stanoviste.h"
#include "obsluha/vyber.h"
#include "pomocne/male_kolejiste.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/pult.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/jmena.h"
#include "prvky/navestidla.h"

#include <algorithm>
#include <map>

namespace {

// Signals 20 (facing 229), 60 (230), 61 (228), 62 (226), shunting signal 540.
struct ObsluhaNavestidla : testing::Test {
    VirtualniPlatforma svet;

    ObsluhaNavestidla() {
        navestidlo(20, 229, "THN S20").text = " " + znak(229) + " ";
        navestidlo(60, 230, "THN L60");
        navestidlo(61, 228, "THN L61");
        navestidlo(62, 226, "THN L62");
        navestidlo(540, 240, "THN Se40");
        nastav_cas("12:00:00");
        simulace.pauza = false;
        gtn_otevri();
        zacatek_logu = bajty_logu(svet).size();
    }
    static Prvek& navestidlo(int n, int glyf, TextPohled nazev) {
        Prvek& prvek = navestidla(n).zaloz(n);
        prvek.popis = Text(nazev);
        prvek.text = znak(glyf);
        prvek.barva = barvy::seda;
        return prvek;
    }
    static int glyf(int s) { return glyf_navestidla(s); }
    static Cesta& cesta(int zacatek, const std::vector<std::int16_t>& prvky) {
        Cesta c;
        c.zacatek = static_cast<std::int16_t>(zacatek);
        c.konec = prvky.back();
        for (PrvekCesty& p : c.prvky = prvky_cesty(prvky))
            p.druh = druh_prvku::kolej;
        c.cas_stavby = 0;
        c.VC = c.prehozena = c.Postavena = c.Provedena = true;
        if (cesty.front().zacatek < 0)
            cesty.front() = c;
        else
            cesty.push_back(c);
        return cesty.back();
    }
    // A calling-on route whose aspect runs `zbyva` seconds more.
    static Cesta& pn_cesta(int zacatek, int zbyva) {
        Cesta& c = cesta(zacatek, {20, 40});
        c.PN = true;
        c.PN_do = ted_s() + zbyva;
        return c;
    }
    std::vector<Udalost> udalosti() const { return udalosti_logu(svet, zacatek_logu); }
    // Captions of the enabled entries, in order.
    static std::string nabidka(int s) {
        menu_navestidla(s);
        std::string vse;
        for (const PolozkaMenu& m : menu.polozky)
            if (m.povolena)
                vse += (vse.empty() ? "" : " ") + m.text;
        return vse;
    }
    std::size_t zacatek_logu = 0;
};

} // namespace

// --- menu

TEST_F(ObsluhaNavestidla, MenuHasItsEntriesInOrder) {
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

TEST_F(ObsluhaNavestidla, MenuFollowsTheColourOfTheSignal) {
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

TEST_F(ObsluhaNavestidla, MenuFollowsTheRouteOfTheSignal) {
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

TEST_F(ObsluhaNavestidla, MenuDuringAndAfterACallingOnAspect) {
    Cesta& c = pn_cesta(20, 30);
    for (const Barva barva : {barvy::bila, barvy::seda}) { // it flashes
        relief.navestidlo[20].barva = barva;
        EXPECT_EQ(nabidka(20), "STUJ DN PPN");
    }
    c.PN_do = ted_s() - 1;
    relief.navestidlo[20].barva = barvy::seda;
    EXPECT_EQ(nabidka(20), "PN RNZ");
}

// --- ZAM, PPN

TEST_F(ObsluhaNavestidla, BlockingChangesNothingButTheColour) {
    const std::pair<int, Barva> zamky[] = {{20, barvy::cervena}, {540, barvy::modra}};
    for (const auto& [s, blokovano] : zamky) {
        Relief pred = relief;
        zam(s);
        EXPECT_EQ(navestidla(s)[s].barva(), blokovano);
        zam(s);
        EXPECT_EQ(relief, pred);
    }
    for (const Barva barva : {barvy::zelena, barvy::bila, barvy::cerna, barvy::purpurova}) {
        relief.navestidlo[20].barva = barva;
        zam(20);
        EXPECT_EQ(relief.navestidlo[20].barva(), barva);
    }
    relief.navestidlo[20].barva = barvy::modra; // the other kind's blocking
    zam(20);
    EXPECT_EQ(relief.navestidlo[20].barva(), barvy::modra);
    EXPECT_TRUE(udalosti().empty());
}

TEST_F(ObsluhaNavestidla, CallingOnAspectIsProlongedByHalfAMinute) {
    cesta(20, {20, 40});
    Cesta druha = pn_cesta(20, 30);
    cesty[1].PN_do = -3; // over: not the one that runs
    cesty.push_back(druha);
    const std::int32_t konec = druha.PN_do;
    ppn(20);
    EXPECT_EQ(cesty[2].PN_do, konec + 30);
    EXPECT_EQ(cesty[1].PN_do, -3);
    ppn(20);
    EXPECT_EQ(cesty[2].PN_do, konec + 60);
    ppn(60);
    EXPECT_EQ(cesty[2].PN_do, konec + 60);
}

// --- automatic mode

TEST_F(ObsluhaNavestidla, AutomaticModeIsTheGlyphsTwin) {
    const std::map<int, std::pair<int, int>> dvojice = {
        {20, {229, 8}}, {60, {230, 15}}, {61, {228, 176}}, {62, {226, 183}}};
    for (const auto& [s, znaky] : dvojice) {
        EXPECT_FALSE(ab_zapnuto(s));
        const Text pred = relief.navestidlo[s].text;
        prepni_ab(s);
        EXPECT_TRUE(ab_zapnuto(s));
        EXPECT_EQ(glyf(s), znaky.second);
        EXPECT_EQ(relief.navestidlo[s].text->size(), pred.size()); // blanks around the glyph stay
        prepni_ab(s);
        EXPECT_FALSE(ab_zapnuto(s));
        EXPECT_EQ(relief.navestidlo[s].text(), pred);
        EXPECT_EQ(glyf(s), znaky.first);
    }
    EXPECT_EQ(udalosti().size(), 8u);
    EXPECT_EQ(udalosti()[0], (Udalost{0, 20, 0}));
}

TEST_F(ObsluhaNavestidla, AutomaticModeDoesNotChangeTheFacing) {
    for (const int s : {20, 60, 61, 62}) {
        const bool pred = sude_navestidlo(s);
        prepni_ab(s);
        EXPECT_EQ(sude_navestidlo(s), pred) << s;
    }
}

TEST_F(ObsluhaNavestidla, ShuntingSignalHasNoAutomaticMode) {
    EXPECT_FALSE(ab_zapnuto(540));
    prepni_ab(540);
    EXPECT_EQ(glyf(540), 240);
    EXPECT_FALSE(ab_zapnuto(77));
}

TEST_F(ObsluhaNavestidla, TurningTheModeOffDropsTheWaitingCopy) {
    prepni_ab(20);
    cesta(60, {60, 61});
    Cesta& kopie = cesta(20, {20, 40});
    kopie.Vlak = kKopieAB;
    kopie.prehozena = kopie.Postavena = kopie.Provedena = false;
    cesta(20, {20, 41}); // a queued route of the operator
    cesty.back().prehozena = cesty.back().Postavena = cesty.back().Provedena = false;
    prepni_ab(20);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[0].zacatek, 60);
    EXPECT_EQ(cesty[1].konec, 41);
}

TEST_F(ObsluhaNavestidla, CopyThatIsBeingSetIsNotDropped) {
    prepni_ab(20);
    cesta(20, {20, 40}).Vlak = kKopieAB;
    prepni_ab(20);
    EXPECT_EQ(cesty.size(), 1u);
    EXPECT_EQ(cesty[0].konec, 40);
}

TEST_F(ObsluhaNavestidla, AutomaticModeOnlyByGlyphsBelow200CopiesTheRoute) {
    cesta(20, {20, 40});
    kopie_ab(0);
    EXPECT_EQ(cesty.size(), 1u); // glyph 229
    prepni_ab(20);
    const Cesta vzor = cesty[0];
    kopie_ab(0);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[0], vzor);
    Cesta cekana = vzor;
    cekana.Provedena = cekana.Postavena = cekana.prehozena = false;
    cekana.Kdy_prehoz = -3;
    cekana.Vlak = -4;
    EXPECT_EQ(cesty[1], cekana);
}

TEST_F(ObsluhaNavestidla, CopyIsNotCountedInTheStack) {
    prepni_ab(20);
    cesta(20, {20, 40}).Umazat = 1;
    zmena_zasobniku();
    const Text pred = relief.lblZasobnik_pocet[0].text;
    kopie_ab(0);
    zmena_zasobniku();
    EXPECT_EQ(relief.lblZasobnik_pocet[0].text(), pred);
    EXPECT_EQ(cesty.back().Umazat, 0);
}

TEST_F(ObsluhaNavestidla, ShuntCallingOnAndProgramMadeRoutesAreNeverCopied) {
    prepni_ab(20);
    cesta(20, {20, 40}).VC = false;
    kopie_ab(0);
    cesty[0].VC = true;
    cesty[0].PN = true;
    kopie_ab(0);
    cesty[0].PN = false;
    cesty[0].ZT = kZTprogramu;
    kopie_ab(0);
    EXPECT_EQ(cesty.size(), 1u);
}

TEST_F(ObsluhaNavestidla, CopyOfARouteIntoTheLineEndsOnItsFirstLineSection) {
    prepni_ab(20);
    struct {
        std::vector<std::int16_t> prvky, kopie;
    } const pripady[] = {
        {{2, 7, 604, 654, 704}, {2, 7, 604}}, {{2, 7, 604}, {2, 7, 604}},
        {{600, 7, 12}, {600, 7, 12}}, // an entry route begins on the line
        {{600, 7, 604, 654}, {600, 7, 604}},  {{600, 650}, {600, 650}},
        {{20, 21, 40}, {20, 21, 40}},
    };
    for (const auto& pripad : pripady) {
        cesty.assign(1, Cesta{});
        Cesta& c = cesta(20, pripad.prvky);
        for (std::size_t k = 0; k < c.prvky.size(); ++k) {
            c.prvky[k].druh = static_cast<std::uint8_t>(k == 1 ? 2 : 1);
            c.prvky[k].poloha = static_cast<std::uint8_t>(k);
        }
        const auto konec = c.konec;
        kopie_ab(0);
        ASSERT_EQ(cesty.size(), 2u);
        EXPECT_EQ(cisla_prvku(cesty[1].prvky), pripad.kopie);
        EXPECT_EQ(cesty[1].prvky.back().druh, pripad.kopie.size() == 2 ? 2 : 1);
        EXPECT_EQ(cesty[1].prvky.back().poloha, pripad.kopie.size() - 1);
        EXPECT_EQ(cesty[1].konec, konec);
        EXPECT_EQ(cisla_prvku(cesty[0].prvky), pripad.prvky);
    }
}

TEST_F(ObsluhaNavestidla, MenuAbPicksTheEndOfTheFirstRunOnlyWithoutARoute) {
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

// --- AH

namespace {

struct Automat : ObsluhaNavestidla {
    static constexpr int kPost = 2; // (629, 64), (63, 630)
    Automat() {
        navestidlo(629, 229, "BOR 629");
        navestidlo(63, 229, "BOR S63");
        for (const int n : {63, 64, 628, 630})
            relief.kolej.zaloz(n).barva = barvy::seda;
        svet.zapis("data/tesk.zat", soubor_cest({{629, 64, {628, 64}, {1, 1}, {0, 0}, 0},
                                                 {63, 630, {63, 630}, {1, 1}, {0, 0}, 0}}));
    }
};

} // namespace

TEST_F(Automat, SetsTheThroughRoutesAndTheirAutomaticMode) {
    automat(kPost);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[0].zacatek, 629);
    EXPECT_EQ(cesty[0].konec, 64);
    EXPECT_EQ(cesty[1].zacatek, 63);
    EXPECT_EQ(cesty[1].konec, 630);
    EXPECT_TRUE(cesty[0].VC && cesty[1].VC);
    EXPECT_EQ(cesty[0].cas_stavby, ted_s() + 1);
    EXPECT_TRUE(ab_zapnuto(629) && ab_zapnuto(63));
    EXPECT_EQ(vyber.volba_druh, 0);
}

TEST_F(Automat, LeavesAModeThatIsOnAlreadyOn) {
    prepni_ab(63);
    automat(kPost);
    EXPECT_TRUE(ab_zapnuto(629) && ab_zapnuto(63));
    EXPECT_EQ(cesty.size(), 2u);
}

TEST_F(Automat, WithAllModesOnTurnsThemOffAndCancelsTheRoutes) {
    automat(kPost);
    for (Cesta& c : cesty) {
        c.prehozena = c.Postavena = c.Provedena = true;
        c.Kdy_prehoz = ted_s();
        navestidla(c.zacatek)[c.zacatek].barva = barvy::zelena;
        for (std::size_t k = 1; k < c.prvky.size(); ++k)
            relief.kolej[c.prvky[k].prvek].barva = barvy::zelena;
    }
    automat(kPost);
    EXPECT_FALSE(ab_zapnuto(629) || ab_zapnuto(63));
    for (const Cesta& c : cesty) {
        EXPECT_EQ(c.cas_ruseni, ted_s() + 5);
        EXPECT_EQ(navestidla(c.zacatek)[c.zacatek].barva(), barvy::seda);
    }
}

TEST_F(Automat, DoesNothingWhileASignalOfTheListIsCleared) {
    prepni_ab(629);
    cesta(63, {63, 630});
    relief.navestidlo[63].barva = barvy::zelena;
    const std::vector<Cesta> pred = cesty;
    automat(kPost);
    EXPECT_EQ(cesty, pred);
    EXPECT_FALSE(ab_zapnuto(63));
}

TEST_F(Automat, SignalThatTheReliefDoesNotHoldIsLeftOut) {
    relief = novy_relief();
    nastav_cas("12:00:00");
    automat(kPost);
    EXPECT_EQ(cesty.size(), 1u);
    EXPECT_LT(cesty[0].zacatek, 0);
    navestidlo(63, 229, "BOR S63");
    relief.kolej.zaloz(63);
    relief.kolej.zaloz(630);
    automat(kPost);
    EXPECT_EQ(cesty[0].zacatek, 63);
    EXPECT_TRUE(ab_zapnuto(63));
}

TEST_F(Automat, EveryPostHasItsOwnPairs) {
    const std::map<int, std::vector<std::pair<int, int>>> seznamy = {
        {1, {{287, 600}, {602, 88}}},
        {2, {{629, 64}, {63, 630}}},
        {4, {{323, 41}, {42, 120}}},
        {6, {{625, 67}, {68, 626}}},
        {11, {{617, 36}, {236, 123}, {120, 37}, {37, 618}}},
        {13, {{621, 73}, {273, 624}, {626, 72}, {72, 622}}}};
    std::vector<RadekCesty> radky;
    for (const auto& [post, pary] : seznamy)
        for (const auto& [z, k] : pary) {
            navestidlo(z, 229, "THN " + text_cisla(z));
            radky.push_back({static_cast<std::int16_t>(z),
                             static_cast<std::int16_t>(k),
                             {100, static_cast<std::int16_t>(k)},
                             {1, 1},
                             {0, 0},
                             0});
        }
    svet.zapis("data/tesk.zat", soubor_cest(radky));
    for (int post = -3; post <= 38; ++post) {
        cesty.assign(1, Cesta{});
        automat(post);
        std::vector<std::pair<int, int>> nalezene;
        for (const Cesta& c : cesty)
            if (c.zacatek >= 0)
                nalezene.emplace_back(c.zacatek, c.konec);
        EXPECT_EQ(nalezene, seznamy.count(post) ? seznamy.at(post) : decltype(nalezene){}) << post;
    }
}

TEST_F(ObsluhaNavestidla, PostMenuKeepsTheLookOfTheRealDesk) {
    menu_stanoviste(2);
    EXPECT_EQ(menu.jmeno, "mnuStanoviste");
    std::vector<Text> texty;
    for (const PolozkaMenu& m : menu.polozky)
        texty.push_back(m.text);
    ASSERT_EQ(texty.size(), 19u);
    EXPECT_EQ(std::vector<Text>(texty.begin() + 2, texty.end()),
              (std::vector<Text>{"?POR", "NAPAJ", "DEN", "NOC", "NAP", "OV", "EOV", "OBSL", "DP", "MP",
                                 "REZIM", "AH", "VDS", "DK", "RESET", "PR. VLAKY", "POPISKY"}));
    EXPECT_EQ(menu.polozky[0].jmeno, "miNazev_stanoviste");
    EXPECT_EQ(menu.polozky[1].jmeno, "miNazev_stanoviste_zkr");
    EXPECT_EQ(polozka_menu("miRESET").akce, nullptr);
    for (int post = 0; post <= 38; ++post) {
        menu_stanoviste(post);
        const bool predpoved = (post >= 1 && post <= 6 && post != 3) || (post >= 17 && post <= 20);
        EXPECT_EQ(polozka_menu("miPredvidane_vlaky").viditelna, predpoved) << post;
        EXPECT_TRUE(polozka_menu("miAH").povolena) << "a post without through routes offers it as well";
    }
    const std::size_t pred = cesty.size();
    menu_stanoviste(9);
    polozka_menu("miAH").akce(polozka_menu("miAH").cil);
    EXPECT_EQ(cesty.size(), pred);
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(ObsluhaNavestidla, StationNamesGoOffAndOnTogether) {
    relief.popis_stanice.zaloz(0).viditelny = false;
    relief.popis_stanice.zaloz(3).viditelny = true;
    relief.popis_stanice.zaloz(7).viditelny = true;
    menu_stanoviste(1);
    polozka_menu("miPopisky").akce(polozka_menu("miPopisky").cil);
    EXPECT_FALSE(relief.popis_stanice[3].viditelny());
    EXPECT_FALSE(relief.popis_stanice[7].viditelny());
    prepni_popisky();
    EXPECT_TRUE(relief.popis_stanice[3].viditelny());
    EXPECT_TRUE(relief.popis_stanice[7].viditelny());
}
