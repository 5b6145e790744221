// testy/obsluha/stanoviste_test.cpp - the operator's posts: through routes that repeat themselves (AH), the
// menu.
#include "cesty/opakovani.h"
#include "desk/menu.h"
#include "obsluha/stanoviste.h"
#include "obsluha/vyber.h"
#include "prvky/svety.h"

namespace {

struct Stanoviste : ObsluhaNavestidla {};

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

// --- the menu of a post

TEST_F(Stanoviste, PostMenuKeepsTheLookOfTheRealDesk) {
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

TEST_F(Stanoviste, StationNamesGoOffAndOnTogether) {
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
