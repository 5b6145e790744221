// testy/obsluha/zadani_test.cpp - the input field: notes, the search of a unit, a train's number.
#include "desk/menu.h"
#include "desk/stitky.h"
#include "gvd/gvd.h"
#include "jizda/svet_vlaku.h"
#include "obsluha/vstup.h"
#include "obsluha/vyber.h"
#include "obsluha/zadani.h"
#include "pomocne/jizdni_rad.h"
#include "pomocne/zastavky.h"
#include "relief/prejezdy.h"

namespace {

class Zadani : public SVlaky {
protected:
    Zadani() {
        gvd_vlaky = {};
        svet.pipnuti.clear();
    }
    ~Zadani() override { gvd_vlaky = {}; }

    static void stiskni(TextPohled jmeno) { klavesa(klavesa_podle_jmena(jmeno)); }
    static void odpovez(TextPohled text) {
        pis_do_pole(text);
        stiskni("Enter");
    }
    static void napis(int prvek, DruhStitku druh, TextPohled text) {
        otevri_stitek(prvek, druh);
        odpovez(text);
    }
    static const StitekPrvku& zaznam(int prvek) {
        return stitky.at(static_cast<std::size_t>(stitek_prvku(prvek)));
    }
    static void hledej(TextPohled text) {
        odjeti();
        stiskni("F2");
        odpovez(text);
    }
    // The question about the number of a train, as the menu of its track asks it.
    static void civ(int v) {
        zastav_hodiny();
        prikaz_radek.zadany_prvek = static_cast<std::int16_t>(v);
        prikaz_radek.rezim_zadani = rezim_zadani::cislo_vlaku;
        zprava(" CIV ", {}, barvy::azurova, 9, true);
        relief.txtZadav_pole[0].text = text_cisla(vlak(v).cislo);
    }
    static void radek_gvd(std::int32_t cislo) {
        GvdVlak r;
        r.cislo = cislo;
        r.druh = 11;
        r.kolej = "3";
        r.poznamka = "veze uhli";
        r.zastavky = zastavky_radku({2, 12}, {479, 500}, {490, -1});
        pridej_radek_gvd(r);
    }
    static bool pole_otevrene() { return relief.txtZadav_pole[0].povoleny; }
    static Text menu_jmeno() { return menu.jmeno; }
};

// --- notes

TEST_F(Zadani, EachKindOfNoteAsksUnderItsWordInWhiteOnCyan) {
    const std::array<std::pair<DruhStitku, Text>, 3> slova = {
        {{DruhStitku::stitek, " STIT "}, {DruhStitku::nvl, " NVL "}, {DruhStitku::vyluka, " VYL "}}};
    std::int16_t rezim = 1;
    for (const auto& [druh, slovo] : slova) {
        otevri_stitek(63, druh);
        EXPECT_EQ(relief.lblPrikaz[0].text(), slovo);
        EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::bila);
        EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::azurova);
        EXPECT_EQ(relief.lblVolba[0].text(), "");
        EXPECT_EQ(prikaz_radek.rezim_zadani, rezim++);
        EXPECT_EQ(prikaz_radek.zadany_prvek, 63);
        EXPECT_TRUE(pole_otevrene());
        stiskni("Esc");
        EXPECT_EQ(prikaz_radek.rezim_zadani, 0);
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
    EXPECT_EQ(stitky.size(), 1u); // Esc has written nothing
}

TEST_F(Zadani, AnElementHoldsOneNoteOfEachKindInOneRecord) {
    napis(63, DruhStitku::stitek, "vozy k opravě"_cz);
    napis(63, DruhStitku::nvl, "40 km/h");
    napis(64, DruhStitku::vyluka, "trolej");
    napis(63, DruhStitku::vyluka, "kolej 3");
    ASSERT_EQ(stitky.size(), 3u);
    EXPECT_EQ(zaznam(63), (StitekPrvku{63, Text("vozy k opravě"_cz), "40 km/h", "kolej 3"}));
    EXPECT_EQ(zaznam(64), (StitekPrvku{64, "", "", "trolej"}));
}

TEST_F(Zadani, FieldOpensWithThePresentTextOfThatKind) {
    napis(63, DruhStitku::nvl, "40 km/h");
    otevri_stitek(63, DruhStitku::nvl);
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "40 km/h");
    stiskni("Esc");
    otevri_stitek(63, DruhStitku::stitek);
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "");
}

TEST_F(Zadani, PossessionRulesBeforeNvlAndNvlBeforeTheTag) {
    const auto vidi = [](int obrazek, Barva pozadi, bool ramecek) {
        EXPECT_EQ(relief.Image1[63].obrazek, obrazek);
        EXPECT_EQ(relief.cislo_koleje[63].pozadi, pozadi);
        EXPECT_EQ(relief.cislo_koleje[63].ramecek, ramecek);
    };
    napis(63, DruhStitku::stitek, "a");
    vidi(101, 0x808000, true);
    napis(63, DruhStitku::vyluka, "c");
    vidi(103, 0x000080, true);
    napis(63, DruhStitku::nvl, "b");
    vidi(103, 0x000080, true);
    napis(63, DruhStitku::vyluka, "");
    vidi(102, 0xFF0000, true);
    napis(63, DruhStitku::nvl, "");
    vidi(101, 0x808000, true);
    napis(63, DruhStitku::stitek, "");
    vidi(0, barvy::cerna, false);
    EXPECT_EQ(stitky.size(), 2u); // the record stays, blank
}

TEST_F(Zadani, NumberOfAStandingTrainReturnsToItsColoursWithoutTheNote) {
    vlak_na(63, true, 601);
    napis(63, DruhStitku::nvl, "b");
    EXPECT_EQ(relief.cislo_koleje[63].pozadi, 0xFF0000);
    zobraz_kolej(zaznam_koleje(63)); // the note stays behind the number
    EXPECT_EQ(relief.cislo_koleje[63].pozadi, 0xFF0000);
    napis(63, DruhStitku::nvl, "");
    EXPECT_EQ(relief.cislo_koleje[63].pozadi, barvy::cerna);
    EXPECT_EQ(relief.cislo_koleje[63].barva, barvy::cervena);
    EXPECT_EQ(stitek(63), "601");
}

TEST_F(Zadani, RightLabelOfATrackDoesNotKeepTheBackgroundOfARemovedNote) {
    napis(63, DruhStitku::nvl, "b");
    nastav_pozadi_stitku(263, 0xFF0000); // as it stood behind a number there
    napis(63, DruhStitku::nvl, "");
    EXPECT_EQ(relief.cislo_koleje[263].pozadi, barvy::cerna);
    EXPECT_FALSE(relief.cislo_koleje[263].ramecek);
}

TEST_F(Zadani, PossessionOfTheLineMarksItsCrossing) {
    prejezdy.resize(11);
    for (const auto& [trat, prejezd] : {std::pair{602, 9u}, std::pair{600, 10u}}) {
        napis(trat, DruhStitku::nvl, "x");
        EXPECT_FALSE(prejezdy[prejezd].vyluka);
        napis(trat, DruhStitku::vyluka, "x");
        EXPECT_TRUE(prejezdy[prejezd].vyluka);
        napis(trat, DruhStitku::stitek, "");
        EXPECT_TRUE(prejezdy[prejezd].vyluka);
        napis(trat, DruhStitku::vyluka, "");
        EXPECT_FALSE(prejezdy[prejezd].vyluka);
    }
    prejezdy.resize(3);
    EXPECT_NO_THROW(napis(602, DruhStitku::vyluka, "x"));
}

TEST_F(Zadani, NoteOnTheEndWarnsBeforeTheRoute) {
    napis(63, DruhStitku::vyluka, "trolej");
    const Barva pozadi = relief.cislo_koleje[63].pozadi;
    klik(Druh::navestidlo, 262, Tlacitko::leve, false);
    klik(Druh::Image1, 63, Tlacitko::leve, false);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " POZOR VYLUKA ");
    EXPECT_EQ(relief.lblVolba[0].text(), " trolej");
    EXPECT_EQ(cesty[0].varovani, -1);
    EXPECT_EQ(cesty[0].barva_cisla, pozadi);
    stiskni("Enter");
    EXPECT_EQ(cesty[0].varovani, 0);
    stiskni("Esc"); // the route goes again and the label shows its note
    EXPECT_EQ(relief.cislo_koleje[63].pozadi, pozadi);
}

// --- the field

TEST_F(Zadani, PointerIsHiddenDuringInputAndShownByEnterAndEsc) {
    for (const TextPohled klavesa_konce : {"Enter", "Esc"}) {
        odjeti();
        stiskni("F2");
        EXPECT_FALSE(svet.kurzor_viditelny);
        stiskni(klavesa_konce);
        EXPECT_TRUE(svet.kurzor_viditelny);
        EXPECT_FALSE(pole_otevrene());
    }
}

TEST_F(Zadani, EnterClosesTheFieldWithItsBeepAndBringsTheNextMessage) {
    odjeti();
    stiskni("F2");
    zprava(" POZOR ", " ceka", barvy::cervena);
    svet.pipnuti.clear();
    odpovez("nic takoveho");
    EXPECT_EQ(svet.pipnuti, (std::vector<VirtualniPlatforma::Pipnuti>{{400, 150}}));
    EXPECT_EQ(relief.lblVolba[0].text(), " ceka");
    EXPECT_FALSE(pole_otevrene());
}

TEST_F(Zadani, EnterInTheFieldDoesNotStoreAMacro) {
    stiskni("Alt+Shift+A");
    otevri_stitek(63, DruhStitku::stitek);
    odpovez("x");
    EXPECT_TRUE(vyber.makro_zaznam);
    EXPECT_EQ(zaznam(63).stitek, "x");
}

TEST_F(Zadani, NewerQuestionTakesThePlaceOfTheOneThatStands) {
    otevri_stitek(63, DruhStitku::stitek);
    pis_do_pole("rozepsano");
    otevri_stitek(64, DruhStitku::nvl);
    EXPECT_EQ(relief.lblPrikaz[0].text(), " NVL ");
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "");
    odpovez("b");
    EXPECT_EQ(zaznam(64).nvl, "b");
    EXPECT_EQ(stitek_prvku(63), -1);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Zadani, QuestionThatWaitsBehindAMessageStillBelongsToItsElement) {
    zprava(" POZOR ", " neco", barvy::cervena);
    otevri_stitek(63, DruhStitku::stitek);
    otevri_stitek(64, DruhStitku::nvl); // the first one is dropped: there is one field
    EXPECT_FALSE(pole_otevrene());
    stiskni("Enter");
    EXPECT_EQ(relief.lblPrikaz[0].text(), " NVL ");
    EXPECT_TRUE(pole_otevrene());
    odpovez("b");
    EXPECT_EQ(zaznam(64).nvl, "b");
    EXPECT_EQ(stitek_prvku(63), -1);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

// --- the search

TEST_F(Zadani, SearchAsksUnderItsWord) {
    odjeti();
    stiskni("F2");
    EXPECT_EQ(relief.lblPrikaz[0].text(), " JEDNOTKA? ");
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::azurova);
    EXPECT_EQ(prikaz_radek.rezim_zadani, 4);
    EXPECT_TRUE(pole_otevrene());
}

TEST_F(Zadani, NamedSignalGetsThePointerAndItsMenu) {
    hledej("  bor s262 ");
    EXPECT_EQ(menu_jmeno(), "mnuNAVESTIDLO");
    EXPECT_EQ(menu.prvek, 262);
    const Prvek& p = relief.navestidlo[262];
    EXPECT_EQ(svet.kurzor.x, (p.vlevo() + p.sirka() / 2) / 15);
    EXPECT_EQ(svet.kurzor.y, (p.nahore() + p.vyska() / 2) / 15);
    EXPECT_EQ(vyber.mys_prvek, 262);
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(Zadani, ShuntingSignalIsFoundLikeAMainOne) {
    hledej("BOR S540");
    EXPECT_EQ(menu_jmeno(), "mnuSe_navestidlo");
    EXPECT_EQ(menu.prvek, 540);
    EXPECT_EQ(vyber.mys_druh, Druh::navestidlo_ser);
}

TEST_F(Zadani, StationIsFoundByItsCaptionAndOpensItsPost) {
    relief.popis_stanice[1].popis = TextPohled("BOR");
    for (const TextPohled jmeno : {"BOROVEC", "bor"}) {
        relief.popis_stanice[1].text = TextPohled("Borovec");
        hledej(jmeno);
        EXPECT_EQ(vyber.mys_druh, Druh::popis_stanice);
        EXPECT_EQ(menu_jmeno(), "mnuStanoviste");
        zavri_menu();
    }
}

TEST_F(Zadani, StationWithoutAPostOpensItsMenuAndASignThatIsNoStationOpensNone) {
    relief.popis_stanice.zaloz(8).text = Text("VYŠNÍ HRABOV"_cz);
    relief.popis_stanice.zaloz(996).text = TextPohled("TVH 13");
    hledej("vyšní hrabov"_cz);
    EXPECT_EQ(menu_jmeno(), "mnuStanoviste");
    EXPECT_EQ(menu.hlava, "Vyšní Hrabov"_cz);
    EXPECT_TRUE(tabulka(menu.druh).je(menu.prvek));
    zavri_menu();
    hledej("tvh 13");
    EXPECT_EQ(vyber.mys_prvek, 996);
    EXPECT_EQ(menu_jmeno(), "");
}

TEST_F(Zadani, TrackIsFoundByStationCodeBlankAndName) {
    hledej("bor k64");
    EXPECT_EQ(vyber.mys_druh, Druh::cislo_koleje);
    EXPECT_EQ(vyber.mys_prvek, 64);
    const Prvek& p = relief.cislo_koleje[64];
    EXPECT_EQ(svet.kurzor.x, (p.vlevo() + p.sirka() / 2) / 15);
    hledej("K63"); // not without the code
    EXPECT_EQ(vyber.mys_prvek, kZadny);
}

TEST_F(Zadani, SwitchIsFoundInCapitalsByTheNameBeforeTheSlash) {
    zapis_soubor(simulace.cesta_aplikace + "data\\tesk.stg", soubor_vazeb({{7, {255}, "bor 12a/12b"}}));
    hledej("BOR 12A");
    EXPECT_EQ(menu_jmeno(), "mnuVYHYBKA");
    EXPECT_EQ(menu.prvek, 7);
    zavri_menu();
    hledej("12b");
    EXPECT_EQ(menu_jmeno(), "");
}

TEST_F(Zadani, UnknownOrBlankNameJustClosesTheField) {
    for (const TextPohled jmeno : {"nic", "", "   "}) {
        svet.kurzor = {11, 12};
        hledej(jmeno);
        EXPECT_EQ(menu_jmeno(), "");
        EXPECT_EQ(svet.kurzor.x, 11);
        EXPECT_FALSE(prikaz_radek.obsazen);
        EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 1u);
    }
}

TEST_F(Zadani, SignalIsFoundBeforeATrackOfTheSameName) {
    relief.navestidlo_ser[540].popis = TextPohled("BOR K62");
    hledej("BOR K62");
    EXPECT_EQ(vyber.mys_druh, Druh::navestidlo_ser);
}

TEST_F(Zadani, TracksBelongToTheirStationsUpToTheLastOne) {
    const std::pair<int, const char*> kraje[] = {
        {-3, ""},    {0, "JAV"},  {3, "JAV"},  {4, ""},     {8, ""},     {9, "TVH"},  {18, "TVH"},
        {19, ""},    {21, ""},    {22, "THN"}, {35, "THN"}, {36, "TMK"}, {40, "TMK"}, {41, "DUB"},
        {43, "DUB"}, {44, "TRY"}, {46, "TRY"}, {47, "THJ"}, {61, "THJ"}, {62, "BOR"}, {65, "BOR"},
        {66, "ROK"}, {69, "ROK"}, {70, "TKL"}, {75, "TKL"}, {76, "THJ"}, {77, "THJ"}, {78, "TDN"},
        {83, "TDN"}, {84, ""},    {85, ""},    {86, "LHO"}, {90, "LHO"}, {91, ""},    {93, "TRY"},
        {94, "TRY"}, {95, ""},    {96, "TRY"}, {97, "TVH"}, {98, ""},    {600, ""},   {999, ""},
    };
    for (const auto& [kolej, kod] : kraje)
        EXPECT_EQ(kod_stanice_prvku(kolej), TextPohled(kod)) << kolej;
}

// --- the number of a train

TEST_F(Zadani, RenumberedTrainTakesTheTimetableOfItsNewNumber) {
    const int v = vlak_na(63, true, 601);
    pridej_do_tabulky(v);
    radek_gvd(2002);
    civ(v);
    EXPECT_TRUE(simulace.pauza);
    odpovez("2002");
    const Vlak& t = vlak(v);
    EXPECT_EQ(t.cislo, 2002);
    EXPECT_EQ(t.druh, 11);
    EXPECT_EQ(t.pokyn, "3");
    EXPECT_EQ(t.poznamka, "veze uhli");
    EXPECT_EQ(sloupec(t.zastavky, &Zastavka::stanice), (std::vector<std::uint8_t>{2, 12}));
    EXPECT_EQ(sloupec(t.zastavky, &Zastavka::prijezd), (std::vector<std::int16_t>{479, 500}));
    EXPECT_EQ(sloupec(t.zastavky, &Zastavka::odjezd), (std::vector<std::int16_t>{490, -1}));
    EXPECT_EQ(t.zastavky.size(), 2u);
    EXPECT_EQ(t.stanice_index, 0); // it starts again where it stands: a stop of the new number
    EXPECT_FALSE(t.muze_jet);
    EXPECT_EQ(stitek(63), "2002");
    EXPECT_LT(radek_tabulky(601), 0);
    EXPECT_GE(radek_tabulky(2002), 0);
    EXPECT_FALSE(simulace.pauza);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 0);
}

TEST_F(Zadani, NumberWithoutATimetableChangesOnlyTheNumber) {
    const int v = vlak_na(63, true, 601);
    zastavky(v, {1, 2}, {-3, 500}, {470, -3});
    vlak(v).cislo2 = 777;
    vlak(v).cislo2_platne = true;
    zobraz_kolej(zaznam_koleje(63));
    pridej_do_tabulky(v);
    const Vlak pred = vlak(v);
    civ(v);
    odpovez(" 4711 ");
    EXPECT_EQ(vlak(v).cislo, 4711);
    EXPECT_FALSE(vlak(v).cislo2_platne);
    EXPECT_EQ(vlak(v).zastavky, pred.zastavky);
    EXPECT_EQ(vlak(v).stanice_index, pred.stanice_index);
    EXPECT_EQ(stitek(63), "4711");
    EXPECT_LT(radek_tabulky(777), 0);
    EXPECT_GE(radek_tabulky(4711), 0);
}

TEST_F(Zadani, NumberOnTheLineFollowsTheTrain) {
    const int v = vlak_na(640, true, 601);
    nastav_text(relief.cislo_koleje[640], " 601");
    civ(v);
    odpovez("602");
    EXPECT_EQ(relief.cislo_koleje[640].text(), " 602");
}

TEST_F(Zadani, RefusedNumberLeavesWithoutAWordAndTheClockGoesOn) {
    const int v = vlak_na(63, true, 601);
    for (const TextPohled text : {"399999", "400000", "0", "-5", "12a", "", "   ", "99999999999"}) {
        const Vlak pred = vlak(v);
        civ(v);
        odpovez(text);
        EXPECT_EQ(vlak(v), pred) << text;
        EXPECT_FALSE(simulace.pauza);
        EXPECT_FALSE(prikaz_radek.obsazen);
        EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 1u);
        EXPECT_TRUE(svet.kurzor_viditelny);
    }
    civ(v);
    odpovez("399998");
    EXPECT_EQ(vlak(v).cislo, 399998);
}

TEST_F(Zadani, EscOnTheNumberOfATrainLeavesItAndStartsTheClock) {
    const int v = vlak_na(63, true, 601);
    civ(v);
    pis_do_pole("5");
    stiskni("Esc");
    EXPECT_EQ(vlak(v).cislo, 601);
    EXPECT_FALSE(simulace.pauza);
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 0);
}

TEST_F(Zadani, TrainThatIsGoneGetsNoNumber) {
    const int v = vlak_na(63, true, 601);
    civ(v);
    vlak(v).cislo = kZadny;
    odpovez("602");
    EXPECT_EQ(vlak(v).cislo, kZadny);
    EXPECT_FALSE(simulace.pauza);
}

// --- F8

TEST_F(Zadani, F8ShowsTheTrainsOfTheTrackOneAfterTheOther) {
    const int a = vlak_na(63, true, 601), b = vlak_na(63, true, 602);
    const std::vector<std::int16_t> seznam = koleje_vlaky[static_cast<std::size_t>(zaznam_koleje(63))].vlaky;
    ASSERT_EQ(seznam.size(), 2u);
    ASSERT_NE(a, b);
    najeti(Druh::cislo_koleje, 263);
    const auto zobrazene = [] { return relief.lblIinfo_o_vlaku[0].text(); };
    stiskni("F8");
    const Text prvni = zobrazene();
    EXPECT_NE(prvni.find(text_cisla(vlak(seznam[0]).cislo)), Text::npos);
    stiskni("F8");
    EXPECT_NE(zobrazene().find(text_cisla(vlak(seznam[1]).cislo)), Text::npos);
    stiskni("F8");
    EXPECT_EQ(zobrazene(), prvni);
}

TEST_F(Zadani, F8DoesNothingInAPauseOnLinesAndOnOtherElements) {
    vlak_na(63, true, 601);
    const Text pred = relief.lblIinfo_o_vlaku[0].text();
    najeti(Druh::cislo_koleje, 640);
    stiskni("F8");
    najeti(Druh::navestidlo, 63);
    stiskni("F8");
    zastav_hodiny();
    najeti(Druh::Image1, 63);
    stiskni("F8");
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), pred);
    EXPECT_TRUE(svet.pipnuti.empty());
    spust_hodiny();
    stiskni("F8");
    EXPECT_NE(relief.lblIinfo_o_vlaku[0].text(), pred);
}

} // namespace
