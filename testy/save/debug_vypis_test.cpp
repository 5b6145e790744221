// testy/save/debug_vypis_test.cpp - the debug dump, line by line.
#include "app/cas.h"
#include "cesty/cesta.h"
#include "desk/hlaseni.h"
#include "desk/stitky.h"
#include "gvd/gvd.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"
#include "prvky/souhlasy.h"
#include "relief/relief.h"
#include "save/debug_vypis.h"

#include <algorithm>
#include <sstream>

namespace {

class LadiciVypis : public SPlatformou {
protected:
    static constexpr const char* kSoubor = "debug/260105_0807.dat";

    void SetUp() override {
        svet.cas = {2026, 1, 5, 8, 7, 6, 0};
        nastav_cas("22:15:03");
        relief.lblDEN[0].text = TextPohled("středa"_cz);
        simulace.pp_povoleno = false;
        simulace.cas_zacatku = 1319;
        simulace.den = 4;
    }
    std::vector<Text> radky(const char* jmeno = kSoubor) const {
        const Bajty bajty = svet.precti(jmeno);
        std::istringstream text(Text(bajty.begin(), bajty.end()));
        std::vector<Text> vse;
        for (Text radek; std::getline(text, radek);)
            vse.push_back(radek);
        return vse;
    }
    // The lines from the one that reads `prvni` on, as many as asked for.
    std::vector<Text> od(TextPohled prvni, std::size_t kolik) const {
        std::vector<Text> vse = radky();
        const auto zacatek = std::find(vse.begin(), vse.end(), prvni);
        const auto zbyva = static_cast<std::size_t>(vse.end() - zacatek);
        return {zacatek, zacatek + static_cast<std::ptrdiff_t>(std::min(kolik, zbyva))};
    }
    static Vlak vlak(std::int32_t cislo) {
        Vlak v;
        v.druh = 1;
        v.cislo = cislo;
        return v;
    }
};

TEST_F(LadiciVypis, BeginsWithBothClocksAndTheChoicesOfTheStart) {
    debug_vypis();
    const std::vector<Text> vse = radky();
    ASSERT_GE(vse.size(), 7u);
    EXPECT_EQ(vse[0], "5.1.2026 8:07:06");
    EXPECT_EQ(vse[1], "KPS RVZ TESK " + text_verze());
    EXPECT_EQ(vse[2], Text("Čas: 22:15:03 den středa"_cz));
    EXPECT_EQ(vse[3], "PP 0");
    EXPECT_EQ(vse[4], Text("čas začátku 1319"_cz));
    EXPECT_EQ(vse[5], "den: 4");
    EXPECT_EQ(vse[6], "");
}

TEST_F(LadiciVypis, RouteStandsWithItsFieldsInTheOrderOfTheDumpAndOneOnALine) {
    Cesta c;
    c.ZT = 17;
    c.zacatek = 240;
    c.konec = 41;
    c.VC = c.PN = true;
    c.PN_do = 80130;
    c.vyhybka = 5;
    c.rychlost = 1;
    c.Umazat = 2;
    c.Kdy_prehoz = 80105;
    c.Provedena = true;
    c.prvky = prvky_cesty({40, 5, 41}, {1, 2, 1}, {2, 3, 0});
    cesty = {Cesta{}, c};
    debug_vypis();
    EXPECT_EQ(
        od("Cesta 1", 14),
        (std::vector<Text>{"Cesta 1", "\tZT 17", "\tVC -1", "\tPN -1", "\tPN do 80130", "\tPN zaver 0",
                           "\tvyhybka 5", "\trychlost 1", "\tUmazat 2", "\tVlak -3 (-)", "\tKdy_prehoz 80105",
                           "\tPostavena 0", "\tProvedena -1", "\t40_2_1\t5_3_2\t41_0_1"}));
    EXPECT_EQ(od("Cesta 0", 2), (std::vector<Text>{"Cesta 0", "\tZT 0"})) << "the empty record too";
}

TEST_F(LadiciVypis, RouteNamesTheTrainThatHasTakenIt) {
    vlaky.assign(3, Vlak{});
    vlaky[2] = vlak(7305);
    cesty[0].Vlak = 2;
    debug_vypis();
    EXPECT_EQ(od("\tVlak 7305 (" + Text(zkratka_druhu(1)) + " 7305)", 1).size(), 1u);
    cesty[0].Vlak = 60; // no such record
    debug_vypis();
    EXPECT_EQ(od("\tVlak 60 (-)", 1).size(), 1u);
    cesty[0].Vlak = kKopieAB;
    debug_vypis();
    EXPECT_EQ(od("\tVlak -4 (-)", 1).size(), 1u);
}

TEST_F(LadiciVypis, TrainStandsWithItsTracksAndVehiclesAndFreeRecordsAreLeftOut) {
    vlaky.assign(4, Vlak{});
    vlaky[3] = vlak(59012);
    vlaky[3].prvek_konec = 1;
    vlaky[3].muze_jet = true;
    vlaky[3].prvky = prvky_cesty({40, 5, 41}, {1, 2, 1}, {0, 3, 2});
    vlaky[3].vozy = vozy_vlaku({"242", "Bdt"}, {"7306", ""}, {"242_1.ico", "Bdt.ico"});
    debug_vypis();
    EXPECT_EQ(od("VLAK 3", 6),
              (std::vector<Text>{"VLAK 3", "\tCislo 59012", "\tUM 1", "\tmuze jet -1",
                                 "\t40_1_0\t5_2_3\t41_1_2", "\t242_7306_242_1.ico\tBdt__Bdt.ico"}));
    EXPECT_TRUE(od("VLAK 0", 1).empty());
}

TEST_F(LadiciVypis, TracksMessagesConsentsAndNotesClose) {
    vlaky.assign(2, Vlak{});
    vlaky[0] = vlak(7305);
    vlaky[1] = vlak(59012);
    koleje_vlaky = {{0, {-3}}, {41, {1, 0}}};
    prevezmi_hlaseni({"Zpoždění vlaku 7305"});
    souhlasy.cekajici_vlaky = {1234, 5678};
    stitky = {{0, "", "", ""}, {41, "tag", "omezeni", "vyluka"}};
    debug_vypis();
    EXPECT_EQ(od("obsazeni 0", 20),
              (std::vector<Text>{"obsazeni 0", "obsazeni 41\t59012\t7305", "Zpravy:", "Zpoždění vlaku 7305",
                                 "Souhlas", "1234", "5678", "Stitky", "0", "\t", "\t", "\t", "41",
                                 "\tomezeni", "\ttag", "\tvyluka"}))
        << "the restriction stands before the tag here";
}

TEST_F(LadiciVypis, LinesEndAsThePlatformsTextLinesDo) {
    debug_vypis();
    const Bajty bajty = svet.precti(kSoubor);
    ASSERT_FALSE(bajty.empty());
    EXPECT_EQ(bajty.back(), '\n');
    EXPECT_EQ(std::count(bajty.begin(), bajty.end(), '\r'), 0);
}

TEST_F(LadiciVypis, ImageOfTheBarWritesItWithAndWithoutTheMarkerAndInAPause) {
    simulace.obrazovka = "frmMain";
    for (const bool pauza : {true, false}) {
        simulace.pauza = pauza;
        svet.okna.clear();
        klik(Druh::imgDEBUG, 0, Tlacitko::leve, false);
        ASSERT_EQ(svet.okna.size(), 1u);
        EXPECT_EQ(svet.okna[0].text, Text("Ladící záznam byl uložen do souboru 260105_0807.dat!"_cz));
        EXPECT_EQ(simulace.pauza, pauza);
    }
    EXPECT_TRUE(relief.imgDEBUG[0].viditelny);
}

TEST_F(LadiciVypis, SecondOneOfTheMinuteTakesThePlaceOfTheFirst) {
    debug_vypis();
    const std::size_t delka = radky().size();
    stitky = {{41, "a", "b", "c"}};
    debug_vypis();
    EXPECT_EQ(radky().size(), delka);
    debug_vypis();
    EXPECT_EQ(radky().size(), delka);
    EXPECT_EQ(radky()[delka - 4], "41");
}

TEST_F(LadiciVypis, FolderThatCannotBeMadeIsToldAndTheSimulationGoesOn) {
    svet.zapis("debug", "a file where the folder should be");
    debug_vypis();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text,
              Text("Během vytváření ladící výpisu se vyskytly problémy, výpis nebyl uložen "
                   "nebo nebude kompletní!"_cz));
    EXPECT_FALSE(svet.konec.has_value());
}

TEST_F(LadiciVypis, FullDiskIsTold) {
    std::filesystem::create_directories(svet.koren / "debug");
    std::filesystem::create_symlink("/dev/full", svet.koren / kSoubor);
    debug_vypis();
    ASSERT_EQ(svet.okna.size(), 1u);
    EXPECT_EQ(svet.okna[0].text.substr(0, 9), Text("Během vyt"_cz));
    EXPECT_FALSE(svet.konec.has_value());
}

} // namespace
