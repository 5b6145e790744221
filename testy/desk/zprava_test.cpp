// testy/desk/zprava_test.cpp - the command line and what waits for it.
#include "app/blikani.h"
#include "desk/hlaseni.h"
#include "desk/stav_blikani.h"
#include "desk/zprava.h"
#include "gvd/provoz.h"
#include "obsluha/vstup.h"
#include "pomocne/virtualni_platforma.h"
#include "relief/relief.h"

namespace {

using Pipnuti = VirtualniPlatforma::Pipnuti;

class PrikazovyRadek : public SPlatformou {
protected:
    void enter() { klavesa({KodKlavesy::enter}); }
    const Text& kod() { return relief.lblPrikaz[0].text; }
    const Text& text() { return relief.lblVolba[0].text; }
    std::size_t ceka() { return prikaz_radek.fronta_zprav.size() - 1; }
};

TEST_F(PrikazovyRadek, IsEmptyAtFirst) {
    EXPECT_FALSE(prikaz_radek.obsazen);
    EXPECT_FALSE(relief.lblPrikaz[0].viditelny);
    EXPECT_FALSE(relief.lblVolba[0].viditelny);
    EXPECT_EQ(prikaz_radek.fronta_zprav.size(), 1u);
}

TEST_F(PrikazovyRadek, ShowsCodeAndTextSideBySide) {
    zprava(" ZAM ", "text", barvy::cervena, 7, false, 0xC0C0C0, barvy::bila);
    EXPECT_TRUE(relief.lblPrikaz[0].viditelny);
    EXPECT_EQ(kod(), " ZAM ");
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::cervena);
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::bila);
    EXPECT_EQ(text(), "text");
    EXPECT_EQ(relief.lblVolba[0].pozadi, 0xC0C0C0);
    EXPECT_EQ(relief.lblVolba[0].barva, barvy::cerna);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 7);
    EXPECT_EQ(relief.lblVolba[0].vlevo, relief.lblPrikaz[0].vlevo() + 5 * kSirkaZnaku);
}

TEST_F(PrikazovyRadek, WarningInOrangeHasWhiteText) {
    zprava(" POZOR ", "text", 33023);
    EXPECT_EQ(relief.lblPrikaz[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblVolba[0].barva, barvy::bila);
}

TEST_F(PrikazovyRadek, SameTextIsNotSaidTwiceThoughItsCodeDiffers) {
    zprava(" A ", "text", barvy::cervena);
    zprava(" B ", "text", barvy::zelena);
    EXPECT_EQ(kod(), " A ");
    EXPECT_EQ(ceka(), 0u);
}

TEST_F(PrikazovyRadek, PromptGivesWayAndDoesNotReturn) {
    for (const char* vyzva : {" VC ", " PC ", " PN "}) {
        zprava(vyzva, "S1", barvy::zelena);
        zprava(" ZAM ", "jina", barvy::cervena, 0, false, 0xFFFFFF, 0, true);
        EXPECT_EQ(kod(), " ZAM ");
        enter();
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
}

TEST_F(PrikazovyRadek, PromptNeverWaits) {
    zprava(" ZAM ", "text", barvy::cervena);
    for (const char* vyzva : {" VC ", " PC ", " PN "})
        zprava(vyzva, "S1", barvy::zelena);
    EXPECT_EQ(kod(), " ZAM ");
    EXPECT_EQ(ceka(), 0u);
}

TEST_F(PrikazovyRadek, TrainNumberQuestionTakesTheLineAndTheOldMessageIsLost) {
    zprava(" ZAM ", "text", barvy::cervena);
    zprava(" CIV ", "", barvy::azurova, 9, true);
    EXPECT_EQ(kod(), " CIV ");
    EXPECT_EQ(ceka(), 0u);
}

TEST_F(PrikazovyRadek, MessagesComeOnePerEnterInTheOrderOfTheirArrival) {
    zprava(" M ", "0", barvy::cervena);
    zprava(" M ", "A", barvy::cervena);
    zprava(" M ", "B", barvy::cervena);
    zprava(" M ", "C", barvy::cervena);
    for (const char* dalsi : {"A", "B", "C"}) {
        enter();
        EXPECT_EQ(text(), dalsi);
    }
    enter();
    EXPECT_FALSE(prikaz_radek.obsazen);
}

TEST_F(PrikazovyRadek, MessageThatStandsCanBePutBackIntoTheQueue) {
    zprava(" A ", "prvni", barvy::cervena, 0, true, 0x101010, barvy::bila);
    zprava(" B ", "druha", barvy::zelena, 0, false, 0xFFFFFF, 0, true);
    EXPECT_EQ(kod(), " B ");
    ASSERT_EQ(ceka(), 1u);
    const ZpravaFronty& z = prikaz_radek.fronta_zprav[0];
    EXPECT_EQ(z, (ZpravaFronty{" A ", "prvni", barvy::cervena, 0x101010, barvy::bila, true}));
    enter();
    EXPECT_EQ(kod(), " A ");
    EXPECT_TRUE(relief.txtZadav_pole[0].povoleny);
    EXPECT_EQ(prikaz_radek.kod_zpravy, 0);
}

TEST_F(PrikazovyRadek, IsOccupiedInTheDarkHalfOfABlinking) {
    simulace.pauza = false;
    zprava(" POZOR NVL ", "varovani", barvy::cervena);
    krok_blikani();
    ASSERT_FALSE(relief.lblPrikaz[0].viditelny);
    zprava(" M ", "dalsi", barvy::cervena);
    EXPECT_EQ(text(), "varovani");
    EXPECT_EQ(ceka(), 1u);
    enter();
    EXPECT_EQ(text(), "dalsi");
    EXPECT_TRUE(relief.lblPrikaz[0].viditelny);
}

TEST_F(PrikazovyRadek, OnlyTheWarningsOfARouteAndTheConsentQuestionFlash) {
    for (const TextPohled blika :
         {" POZOR STITEK "_cz, " POZOR NVL "_cz, " POZOR VYLUKA "_cz, " POZOR PN "_cz, " ZPRÁVA "_cz}) {
        zprava(blika, "text", barvy::cervena);
        EXPECT_TRUE(prikaz_radek.blikani_prikazu);
        skryj_prikaz();
        EXPECT_FALSE(prikaz_radek.blikani_prikazu);
    }
    zprava(" POZOR ", "text", barvy::cervena);
    EXPECT_FALSE(prikaz_radek.blikani_prikazu);
}

TEST_F(PrikazovyRadek, AnsweredMessageBeepsOnce) {
    zprava(" M ", "text", barvy::cervena, 3);
    enter();
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{400, 150}}));
    EXPECT_EQ(prikaz_radek.kod_zpravy, 0);
}

TEST_F(PrikazovyRadek, TypingHidesThePointerUntilEnterOrEsc) {
    for (const KodKlavesy konec : {KodKlavesy::enter, KodKlavesy::esc}) {
        zprava(" STIT ", "", barvy::azurova, 0, true);
        EXPECT_FALSE(svet.kurzor_viditelny);
        EXPECT_TRUE(relief.txtZadav_pole[0].povoleny);
        EXPECT_EQ(relief.txtZadav_pole[0].vlevo, relief.lblVolba[0].vlevo());
        klavesa({konec});
        EXPECT_TRUE(svet.kurzor_viditelny);
        EXPECT_FALSE(relief.txtZadav_pole[0].povoleny);
        EXPECT_FALSE(prikaz_radek.obsazen);
    }
}

TEST_F(PrikazovyRadek, EscInTheFieldOfATrainNumberLetsTheClockGoOn) {
    simulace.pauza = true;
    prikaz_radek.rezim_zadani = 5;
    zprava(" CIV ", "", barvy::azurova, 9, true);
    pis_do_pole("123");
    klavesa({KodKlavesy::esc});
    EXPECT_FALSE(simulace.pauza);
    EXPECT_EQ(prikaz_radek.rezim_zadani, 0);
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "");
}

TEST_F(PrikazovyRadek, TextGoesOnlyIntoAnOpenField) {
    pis_do_pole("abc");
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "");
    zprava(" NVL ", "", barvy::azurova, 0, true);
    pis_do_pole("abc");
    EXPECT_EQ(relief.txtZadav_pole[0].text(), "abc");
}

TEST_F(PrikazovyRadek, TwinStandsOneMonitorFurther) {
    simulace.dva_monitory = true;
    relief.lblPrikaz.zaloz(1);
    relief.lblVolba.zaloz(1);
    zprava(" M ", "text", barvy::cervena);
    EXPECT_EQ(relief.lblVolba[1].text(), "text");
    EXPECT_EQ(relief.lblVolba[1].vlevo, relief.lblVolba[0].vlevo() + 15400);
    EXPECT_EQ(relief.lblPrikaz[1].pozadi, barvy::cervena);
    enter();
    EXPECT_FALSE(relief.lblPrikaz[1].viditelny);
    EXPECT_FALSE(relief.lblVolba[1].viditelny);
}

TEST_F(PrikazovyRadek, QueuedQuestionWithoutTextDoesNotBlockThoseBehindIt) {
    zprava(" M ", "text", barvy::cervena);
    zprava(" NVL ", "", barvy::azurova, 0, true);
    zprava(" M ", "dalsi", barvy::cervena);
    enter();
    EXPECT_EQ(kod(), " NVL ");
    enter();
    EXPECT_EQ(text(), "dalsi");
}

TEST_F(PrikazovyRadek, WordOfAKindIsAMessageOfThatKind) {
    const std::vector<std::pair<DruhZpravy, TextPohled>> slova = {{DruhZpravy::init, " INIT "},
                                                                  {DruhZpravy::tpc, " TPC "},
                                                                  {DruhZpravy::archiv, " ARCHIV "},
                                                                  {DruhZpravy::vc, " VC "},
                                                                  {DruhZpravy::pc, " PC "},
                                                                  {DruhZpravy::pn, " PN "},
                                                                  {DruhZpravy::souhlas, " ZPRÁVA "_cz},
                                                                  {DruhZpravy::stitek, " POZOR STITEK "},
                                                                  {DruhZpravy::nvl, " POZOR NVL "},
                                                                  {DruhZpravy::vyluka, " POZOR VYLUKA "},
                                                                  {DruhZpravy::sviti_pn, " POZOR PN "},
                                                                  {DruhZpravy::cislo_vlaku, " CIV "}};
    for (const auto& [druh, slovo] : slova) {
        EXPECT_EQ(SlovoZpravy(druh).text(), slovo);
        EXPECT_EQ(SlovoZpravy(slovo), SlovoZpravy(druh)) << slovo;
    }
    for (const TextPohled jine : {"", "VC", " POZOR ", " ZAM "}) {
        EXPECT_EQ(SlovoZpravy(jine).druh(), DruhZpravy::sdeleni);
        EXPECT_EQ(SlovoZpravy(jine).text(), jine);
    }
}

TEST_F(PrikazovyRadek, KindOfTheMessageDoesNotHangOnWhatTheLabelShows) {
    zprava(DruhZpravy::stitek, "text", barvy::cervena);
    EXPECT_EQ(stojici_zprava(), DruhZpravy::stitek);
    relief.lblPrikaz[0].text = TextPohled(" VC ");
    zprava(" ZAM ", "jina", barvy::cervena); // would take the place of a prompt
    EXPECT_EQ(text(), "text");
    EXPECT_EQ(ceka(), 1u);
}

TEST_F(PrikazovyRadek, NothingStandsOnAnAnsweredLine) {
    EXPECT_EQ(stojici_zprava(), std::nullopt);
    zprava(DruhZpravy::init, " OK ", barvy::zelena);
    EXPECT_TRUE(je_prihlaseni(prikaz_radek.slovo.druh()));
    potvrd_prikaz();
    EXPECT_EQ(stojici_zprava(), std::nullopt);
    EXPECT_EQ(prikaz_radek.slovo, SlovoZpravy());
    EXPECT_EQ(kod(), "");
}

TEST_F(PrikazovyRadek, SelectionWritesBothLabelsInItsOwnColours) {
    zobraz_prikaz(" VC ", "S1", barvy::bila, barvy::zelena);
    EXPECT_TRUE(prikaz_radek.obsazen);
    EXPECT_EQ(relief.lblVolba[0].barva, barvy::bila);
    EXPECT_EQ(relief.lblVolba[0].pozadi, barvy::zelena);
    EXPECT_EQ(relief.lblPrikaz[0].pozadi, barvy::zelena);
}

class DolniPanel : public SPlatformou {};

TEST_F(DolniPanel, PressedButtonIsWhiteOnNavy) {
    prepni_panel(Panel::denik);
    EXPECT_EQ(relief.cmDenik[0].barva, barvy::bila);
    EXPECT_EQ(relief.cmDenik[0].pozadi, 0x800000);
    EXPECT_EQ(relief.cmdTABULKA[0].barva, barvy::cerna);
    EXPECT_EQ(relief.cmdTABULKA[0].pozadi, 0xE0E0E0);
    EXPECT_TRUE(relief.lstDenik.viditelny);
    EXPECT_FALSE(relief.lstZpravy.viditelny);
    EXPECT_FALSE(relief.lblTabulka_vlaku[0].viditelny);
}

TEST_F(DolniPanel, UnreadDelayStaysMarkedUntilTheMessagesAreOpened) {
    relief.cmdZpravy[0].pozadi = barvy::zelena;
    prepni_panel(Panel::denik);
    EXPECT_EQ(relief.cmdZpravy[0].pozadi, barvy::zelena);
    prepni_panel(Panel::zpravy);
    EXPECT_EQ(relief.cmdZpravy[0].pozadi, 0x800000);
    prepni_panel(Panel::denik);
    EXPECT_EQ(relief.cmdZpravy[0].pozadi, 0xE0E0E0);
}

TEST_F(DolniPanel, TableHidesTheTrainAndEmptiesItsText) {
    relief.lblIinfo_o_vlaku[0].text = TextPohled("vlak");
    relief.imgObrzaek_vlaku[2].viditelny = true;
    relief.lblPokracuje[0].viditelny = true;
    prepni_panel(Panel::tabulka);
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].text(), "");
    EXPECT_FALSE(relief.imgObrzaek_vlaku[2].viditelny);
    EXPECT_FALSE(relief.lblPokracuje[0].viditelny);
    EXPECT_TRUE(relief.lblTabulka_vlaku[23].viditelny);
}

TEST_F(DolniPanel, DeleteTakesTheSelectedDelayAway) {
    prevezmi_hlaseni({"a", "b", "c"});
    prepni_panel(Panel::zpravy);
    klik_na_radek(relief.lstZpravy, 1);
    klavesa({KodKlavesy::delete_});
    EXPECT_EQ(relief.lstZpravy.radky, (std::vector<Text>{"a", "c"}));
    klik_na_radek(relief.lstZpravy, 7);
    klavesa({KodKlavesy::delete_});
    EXPECT_EQ(relief.lstZpravy.radky.size(), 2u);
}

TEST_F(DolniPanel, DeletedDelayMakesTheTrainPunctual) {
    prevezmi_hlaseni({Text("Zpoždění vlaku 1234 +7´"_cz), Text("Zpoždění vlaku 5678 +15´"_cz)});
    ASSERT_EQ(zpozdeni_vlaku(1234), 7);
    klik(Druh::cmdZpravy, 0, Tlacitko::leve, false);
    klik_na_radek(relief.lstZpravy, 0);
    klavesa({KodKlavesy::delete_});
    EXPECT_EQ(zpozdeni_vlaku(1234), 0);
    EXPECT_EQ(zpozdeni_vlaku(5678), 15);
    klik(Druh::cmDenik, 0, Tlacitko::leve, false);
    klik_na_radek(relief.lstZpravy, 0);
    klavesa({KodKlavesy::delete_}); // the journal is open: nothing is deleted behind it
    EXPECT_EQ(zpozdeni_vlaku(5678), 15);
}

TEST_F(DolniPanel, NewDelayIsMarkedAndItsListSelectedOnce) {
    simulace.pauza = false;
    prevezmi_hlaseni({Text("Zpoždění vlaku 1234 +7´"_cz)});
    simulace.nova_zprava = true;
    krok_blikani();
    EXPECT_EQ(relief.cmdZpravy[0].pozadi, barvy::zelena);
    EXPECT_EQ(relief.lstZpravy.vybrany, 0);
    EXPECT_EQ(svet.pipnuti, (std::vector<Pipnuti>{{500, 50}}));
    EXPECT_FALSE(simulace.nova_zprava);
    krok_blikani();
    EXPECT_EQ(svet.pipnuti.size(), 1u);
}

TEST_F(DolniPanel, SoundKeySilencesEveryBeep) {
    prepni_zvuk();
    EXPECT_TRUE(simulace.zvuk_vypnut);
    EXPECT_EQ(relief.imgSound[0].popis(), "Zvuk vypnut");
    EXPECT_EQ(relief.imgSound[0].obrazek, kObrazekZvukVypnut);
    pipni(400, 150);
    EXPECT_TRUE(svet.pipnuti.empty());
    prepni_zvuk();
    EXPECT_EQ(relief.imgSound[0].obrazek, kObrazekZvukZapnut);
    pipni(400, 150);
    EXPECT_EQ(svet.pipnuti.size(), 1u);
}

} // namespace
