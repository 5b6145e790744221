// testy/prvky/navestidla_test.cpp - blocking, calling-on, automatic mode.
#include "cesty/opakovani.h"
#include "cesty/uvolneni.h"
#include "cesty/zasobnik.h"
#include "prvky/navestidla.h"
#include "prvky/svety.h"

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

TEST_F(ObsluhaNavestidla, TurningTheModeOffDropsTheCopiesOfAllRoutesThatWereRunOver) {
    prepni_ab(20);
    for (const std::int16_t konec : {std::int16_t{40}, std::int16_t{41}})
        cesta(20, {20, konec}).Umazat = 1;
    kopie_ab(0);
    kopie_ab(1);
    ASSERT_EQ(cesty.size(), 4u);
    prepni_ab(20);
    ASSERT_EQ(cesty.size(), 2u);
    EXPECT_EQ(cesty[0].Umazat, 1);
    EXPECT_EQ(cesty[1].Umazat, 1);
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
