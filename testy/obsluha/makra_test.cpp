// testy/obsluha/makra_test.cpp - recording, replaying and deleting macros.
#include "cesty/stavedlo.h"
#include "cesty/ulozena_makra.h"
#include "obsluha/makra.h"
#include "zaklad/chyba.h"

struct Makra : Stavedlo {
    std::vector<ZaznamMakra> ulozena() const { return cti_makra(svet.precti("data/tesk.mak")); }
};

TEST_F(Makra, RecordedPicksAreStoredAndNotSet) {
    zacni_makro('A');
    EXPECT_TRUE(vyber.makro_zaznam);
    EXPECT_EQ(relief.lblMakro_pismeno[0].text(), " A ");
    klik(240);
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::seda);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::azurova);
    klik_cil(41);
    EXPECT_EQ(cesty[0].zacatek, -3);
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::oranzova);
    EXPECT_TRUE(relief.navestidlo[240].ramecek) << "the highlights are a picture of the macro";
    klik(41, true);
    klik_cil(40);
    uloz_makro();
    EXPECT_FALSE(vyber.makro_zaznam);
    EXPECT_FALSE(makro_se_zaznamenava());
    EXPECT_EQ(prikaz(), "");
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    ASSERT_EQ(ulozena().size(), 1u);
    EXPECT_EQ(ulozena()[0], (ZaznamMakra{"A", {{240, 41, 1}, {41, 40, 2}}}));
}

TEST_F(Makra, FailedLookUpAddsNoStep) {
    zacni_makro('A');
    klik(240);
    klik_cil(44);
    EXPECT_EQ(volba(), " Cesta nenalezena v závěrové tabulce ! "_cz);
    uloz_makro();
    EXPECT_TRUE(ulozena().empty());
}

TEST_F(Makra, CallingOnRoutesAreNotRecorded) {
    zacni_makro('A');
    volba_pn(240);
    klik_cil(41);
    EXPECT_EQ(vyber.makro_kroky, std::vector<KrokMakra>(1));
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Makra, EscDropsTheRecording) {
    zacni_makro('B');
    klik(240);
    klik_cil(41);
    zrus_volbu();
    EXPECT_FALSE(makro_se_zaznamenava());
    EXPECT_FALSE(vyber.makro_zaznam);
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_TRUE(ulozena().empty());
}

TEST_F(Makra, NewRecordingTakesThePictureOfTheOldOneAway) {
    zacni_makro('A');
    klik(240);
    klik_cil(41);
    zacni_makro('B');
    EXPECT_FALSE(relief.navestidlo[240].ramecek);
    EXPECT_EQ(relief.lblMakro_pismeno[0].text(), " B ");
    EXPECT_EQ(vyber.makro_kroky, std::vector<KrokMakra>(1));
}

TEST_F(Makra, NewMacroStandsBehindTheLastByte) {
    for (const char pismeno : {'A', 'B', 'A'}) {
        zacni_makro(pismeno);
        klik(240);
        klik_cil(pismeno == 'A' ? 41 : 42);
        uloz_makro();
        vyber = Vyber{};
    }
    ASSERT_EQ(ulozena().size(), 3u);
    EXPECT_EQ(ulozena()[1].pismeno, "B");
    EXPECT_EQ(svet.precti("data/tesk.mak").size(), 3u * (33 + 5));
}

TEST_F(Makra, MissingFileIsMadeByTheFirstMacro) {
    std::filesystem::remove(svet.koren / "data" / "tesk.mak");
    EXPECT_THROW(prehraj_makro('A'), BehovaChyba);
    EXPECT_THROW(nacti_makra(), BehovaChyba);
    zacni_makro('A');
    klik(240);
    klik_cil(41);
    uloz_makro();
    EXPECT_EQ(ulozena().size(), 1u);
}

struct Prehrani : Makra {
    Prehrani() {
        Zapisovac z;
        const std::vector<ZaznamMakra> makra = {
            {"A", {{240, 41, 1}}}, {"B", {{42, 40, 1}}}, {" A ", {{-3, -3, 1}, {241, 604, 1}, {41, 40, 2}}}};
        for (const ZaznamMakra& makro : makra)
            popis_zaznamu_makra(z, makro);
        svet.zapis("data/tesk.mak", z.bajty);
    }
};

TEST_F(Prehrani, AllRecordsOfTheLetterRunBehindWhatIsQueued) {
    zarad(240, 43);
    prehraj_makro('A');
    ASSERT_EQ(cesty.size(), 4u);
    EXPECT_EQ(cesty[0].konec, 43);
    EXPECT_EQ(cesty[1].konec, 41);
    EXPECT_EQ(cesty[2].zacatek, 241);
    EXPECT_EQ(cesty[3].zacatek, 41);
    EXPECT_FALSE(cesty[3].VC);
    EXPECT_EQ(relief.navestidlo[240].pozadi, barvy::zelena);
    EXPECT_EQ(relief.navestidlo[41].pozadi, barvy::bila);
}

TEST_F(Prehrani, NothingRunsInAPause) {
    simulace.pauza = true;
    prehraj_makro('A');
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Prehrani, UnknownLetterDoesNothing) {
    prehraj_makro('Z');
    EXPECT_EQ(cesty[0].zacatek, -3);
}

TEST_F(Prehrani, DeletedMacroLeavesTheOthers) {
    smaz_makro("A");
    ASSERT_EQ(ulozena().size(), 2u) << "\" A \" is another name";
    EXPECT_EQ(ulozena()[0].pismeno, "B");
}

TEST_F(Prehrani, ListNamesTheSteps) {
    const SeznamMaker seznam = nacti_makra();
    ASSERT_EQ(seznam.radky.size(), 3u);
    EXPECT_EQ(seznam.radky[0], "A VC TST S240 TST L41");
    EXPECT_EQ(seznam.radky[1], "B VC TST L42 TST L40");
    EXPECT_EQ(seznam.klavesy, "A\x0D"
                              "B\x0D A ");
}

TEST_F(Prehrani, DamagedFileNeverEndsTheProcess) {
    const Bajty cele = svet.precti("data/tesk.mak");
    for (std::size_t i = 0; i < cele.size(); ++i) {
        Bajty bajty = cele;
        bajty[i] = 0xFF;
        svet.zapis("data/tesk.mak", bajty);
        EXPECT_NO_THROW(prehraj_makro('A')) << i;
        EXPECT_NO_THROW(nacti_makra()) << i;
    }
}
