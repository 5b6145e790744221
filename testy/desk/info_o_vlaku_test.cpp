// testy/desk/info_o_vlaku_test.cpp - the information of a train and the row of its vehicles.
#include "desk/hlaseni.h"
#include "desk/info_o_vlaku.h"
#include "desk/zprava.h"
#include "gvd/gvd.h"
#include "jizda/spojovani.h"
#include "jizda/vlak.h"
#include "obsluha/vstup.h"
#include "pomocne/jizdni_rad.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "pomocne/vozy_vlaku.h"
#include "pomocne/zastavky.h"
#include "relief/relief.h"
#include "zaklad/cisla.h"

#include <utility>

namespace {

class InfoVlaku : public SPlatformou {
protected:
    InfoVlaku() {
        gvd_vlaky = {};
        simulace.den = 1;
        simulace.pp_povoleno = false;
    }
    ~InfoVlaku() override { gvd_vlaky = {}; }

    // R 1234 from Lhotin by the main station to Vrbice.
    static Vlak& vlak(int i = 0) {
        Vlak& v = vlaky[static_cast<std::size_t>(i)];
        v = Vlak{};
        v.cislo = 1234;
        v.druh = 5;
        v.delka = 220;
        v.max_rychlost = 120;
        v.zastavky = zastavky_vlaku({1, 9, 5}, {-3, 610, 625}, {600, 612, -3});
        v.stanice_index = 1;
        v.smer = true;
        v.vozy = vozy_vlaku({"363", "Bp", "A"}, {"", "", ""}, {"363_5.ico", "B.ico", "A.ico"});
        return v;
    }
    static Vlak& posun(const std::vector<Text>& vozy, const Text& urceni = {}) {
        Vlak& v = vlak();
        v.posun = true;
        v.vozy = vozy_vlaku(vozy, std::vector<Text>(vozy.size(), urceni));
        v.stanice_index = 0;
        return v;
    }
    // A row that hands its second vehicle on to the train `dale`.
    static void radek(std::int32_t cislo, std::int16_t dale = 0) {
        GvdVlak r;
        r.cislo = cislo;
        r.druh = 7;
        r.zastavky = zastavky_radku({2, 12, 9, 1}, {-1, 745, 750, 800}, {720, 746, 755, -1});
        r.loko_rada = 754;
        r.vozy = {"754", "Bp"};
        r.vozy_vlaky = {0, dale};
        r.dny = 1;
        pridej_radek_gvd(r);
    }
    static const Text& radka() { return relief.lblIinfo_o_vlaku[0].text(); }
    static bool obsahuje(const Text& text, TextPohled co) { return text.find(co) != Text::npos; }
};

const TextPohled kTrasa = "(Lhotín průj. 10:00 ... Vrbice příj. 10:25)"_cz;

} // namespace

TEST_F(InfoVlaku, TrainIsToldInOneLine) {
    Vlak& v = vlak();
    Text text("R 1234  "_cz);
    text += kTrasa;
    EXPECT_EQ(text_vlaku(0), text + ">> 0min; 220m, 120km/h");
    v.nazev = "Skalák"_cz;
    v.dny = 128;
    v.zpozdeni = 7;
    v.smer = false;
    v.pokyn = "5k";
    text = "R 1234 pp Skalák "_cz;
    text += kTrasa;
    EXPECT_EQ(text_vlaku(0), text + "<< 7min; 220m, 120km/h; Kolej 5k");
    v.zpozdeni = -3;
    EXPECT_TRUE(obsahuje(text_vlaku(0), "<< -3min; "));
}

TEST_F(InfoVlaku, SecondNumberStandsBehindASlash) {
    Vlak& v = vlak();
    v.cislo2 = 0;
    EXPECT_FALSE(obsahuje(text_vlaku(0), "/1"));
    EXPECT_FALSE(obsahuje(text_vlaku(0), "1234/"));
    v.cislo2 = -3;
    EXPECT_TRUE(text_vlaku(0).starts_with("R 1234 "));
    v.cislo2 = 17001;
    v.druh2 = 7;
    EXPECT_TRUE(text_vlaku(0).starts_with("R 1234/17001 "));
}

TEST_F(InfoVlaku, AfterTheChangeOnlyTheNewNumberStands) {
    Vlak& v = vlak();
    v.cislo2 = 17001;
    v.druh2 = 7;
    v.cislo2_platne = true;
    EXPECT_TRUE(text_vlaku(0).starts_with("Os 17001 "));
    EXPECT_FALSE(obsahuje(text_vlaku(0), "1234"));
}

TEST_F(InfoVlaku, CategoryWithoutAbbreviationLeavesALeadingBlank) {
    vlak().druh = 9;
    EXPECT_TRUE(text_vlaku(0).starts_with(" 1234 "));
}

TEST_F(InfoVlaku, IndexBelowZeroLeavesTheBarAsItIs) {
    vlak();
    info_o_vlaku({}, 0);
    const Relief pred = relief;
    for (const int nic : {-1, -3, 12345, 7}) // none, beyond the table, a free record
        info_o_vlaku("x", nic);
    EXPECT_EQ(relief, pred);
}

TEST_F(InfoVlaku, TextOfTheCallerStandsInFront) {
    vlak();
    info_o_vlaku("abc ", 0);
    EXPECT_EQ(radka(), "abc " + text_vlaku(0));
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].stav(), "0");
}

TEST_F(InfoVlaku, TrainOfThePageDoesNotHangOnTheStateTextOfTheLine) {
    vlak();
    EXPECT_EQ(vlak_na_panelu(), kZadny);
    info_o_vlaku({}, 0);
    relief.lblIinfo_o_vlaku[0].stav = TextPohled("");
    EXPECT_EQ(vlak_na_panelu(), 0);
    zapomen_info(0);
    EXPECT_EQ(vlak_na_panelu(), kZadny);
    EXPECT_EQ(relief.lblIinfo_o_vlaku[0].stav(), "");
}

TEST_F(InfoVlaku, TrainThatBeginsAtAnOwnStationDepartsAndOneFromANeighbourPasses) {
    Vlak& v = vlak();
    for (const int kod : {1, 2, 3, 4, 5, 6}) {
        v.zastavky.front().stanice = static_cast<std::uint8_t>(kod);
        EXPECT_TRUE(obsahuje(text_vlaku(0), Text(nazev_stanice(kod)) + Text(" průj. 10:00 ... "_cz)));
    }
    for (const int kod : {7, 9, 19, 28}) {
        v.zastavky.front().stanice = static_cast<std::uint8_t>(kod);
        EXPECT_TRUE(obsahuje(text_vlaku(0), Text(nazev_stanice(kod)) + " odj. 10:00 ... "));
    }
}

TEST_F(InfoVlaku, TimesOfAnotherDayAreTimesOfTheDay) {
    Vlak& v = vlak();
    v.zastavky.front().odjezd = 1440 + 65;
    v.zastavky.back().prijezd = 2 * 1440 + 5;
    EXPECT_TRUE(obsahuje(text_vlaku(0), "(Lhotín průj. 1:05 ... Vrbice příj. 0:05)"_cz));
}

TEST_F(InfoVlaku, TrainWithoutATimetableHasNoRoute) {
    Vlak& v = vlak();
    v.zastavky.clear();
    EXPECT_EQ(text_vlaku(0), "R 1234  >> 0min; 220m, 120km/h");
    v.zastavky = zastavky_vlaku({9}, {-3}, {600});
    EXPECT_TRUE(obsahuje(text_vlaku(0), "(Tesk hl. n. odj. 10:00)>> "));
}

TEST_F(InfoVlaku, SecondLocomotiveIsToldWhileItIsOnTheTrain) {
    Vlak& v = vlak();
    v.priznaky = 1;
    v.loko_rada2 = 363;
    EXPECT_FALSE(obsahuje(text_vlaku(0), "lok. 2x"));
    v.vozy = vozy_vlaku({"363", "363", "Bp"});
    EXPECT_TRUE(text_vlaku(0).ends_with("km/h; z THJ lok. 2x363"));
    v.loko_rada2 = 0;
    EXPECT_FALSE(obsahuje(text_vlaku(0), "lok. 2x"));
}

TEST_F(InfoVlaku, PassengerTrainWithoutItsBankingLocomotiveSaysWhereItComesOn) {
    Vlak& v = vlak();
    v.priznaky = 2;
    v.loko_rada = 754;
    v.loko_rada2 = 210;
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THN 210pk"));
    v.loko_rada2 = 0;
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THN 754pk"));
    zmen_stanice(v.zastavky, {1, 12, 5});
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THJ 754pk"));
    v.vozy.back().rada = "754";
    EXPECT_FALSE(obsahuje(text_vlaku(0), "pk"));
    EXPECT_TRUE(text_vlaku(0).ends_with("; THN-TRY sune; TRY kolej T4"));
}

TEST_F(InfoVlaku, FreightTrainIsToldItsAssistingLocomotive) {
    Vlak& v = vlak();
    v.druh = 14;
    v.priznaky = 2;
    v.loko_rada2 = 742;
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THN přípřež ř.742"_cz));
    zmen_stanice(v.zastavky, {1, 12, 5});
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THJ přípřež ř.742"_cz));
}

TEST_F(InfoVlaku, ChangeOfTheLocomotiveIsToldUntilItIsDone) {
    Vlak& v = vlak();
    v.loko_rada2 = 754;
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THN lok.ř.754(1234)"_cz));
    zmen_stanice(v.zastavky, {1, 12, 5});
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THJ lok.ř.754(1234)"_cz));
    radek(1400);
    zmen_radek_gvd(0, [](GvdVlak& g) {
        g.vozy_vlaky = {1234, 0};
    }); // the timetable tells which train brings it
    EXPECT_TRUE(text_vlaku(0).ends_with("; z THJ lok.ř.754(1400)"_cz));
    v.vozy.front().rada = "754";
    EXPECT_TRUE(text_vlaku(0).ends_with("km/h"));
}

TEST_F(InfoVlaku, SetIsTheSetOfItsTrain) {
    posun({"754", "Bp"});
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234");
    for (const char* jednotka : {"810", "943", "801"}) {
        posun({jednotka});
        EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234") << jednotka;
    }
    posun({"Bp"}); // a lone coach is neither a set nor a locomotive
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234");
}

TEST_F(InfoVlaku, SetThatCameUnderAnotherNumberIsToldByThatOne) {
    posun({"754", "Bp"}).loko_rada = 754;
    radek(900);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.navazny_vlak = "1234"; });
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 900");
    zmen_radek_gvd(0, [](GvdVlak& g) { g.dny = 2; });
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234");
}

TEST_F(InfoVlaku, LoneLocomotiveIsToldByWhatItDoesNext) {
    posun({"754"}, "DKV");
    EXPECT_EQ(text_vlaku(0), " Lokomotiva do DKV");
    posun({"754"});
    EXPECT_EQ(text_vlaku(0), " Lokomotiva pro ?????");
    posun({"754"}, "ZAL").druh = 16;
    EXPECT_EQ(text_vlaku(0), " Lokomotiva pro ?????");
    posun({"754"}, "ZAL");
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234");
}

TEST_F(InfoVlaku, NextWorkOfTheSetFollows) {
    posun({"754", "Bp"}, "1500").zastavky = zastavky_vlaku({1, 5});
    radek(1400, 1500);
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234 Os 1400 (příj. 12:25 z BOR)"_cz);
}

TEST_F(InfoVlaku, SetAtTheMainStationIsToldItsDeparture) {
    Vlak& v = posun({"754", "Bp"}, "1500");
    v.zastavky = zastavky_vlaku({9, 5}, {-3, 640}, {615, -3});
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234 (Tesk hl.n. odj. 10:15 směr VRB)"_cz);
    v.druh = 16;
    EXPECT_FALSE(obsahuje(text_vlaku(0), "Tesk hl.n."));
    v.druh = 5;
    nastav_urceni(v.vozy, {"ZAL", ""});
    EXPECT_FALSE(obsahuje(text_vlaku(0), "Tesk hl.n."));
    nastav_urceni(v.vozy, {"1500", ""});
    v.vozy.pop_back();
    EXPECT_FALSE(obsahuje(text_vlaku(0), "Tesk hl.n."));
}

TEST_F(InfoVlaku, SetThatEndedAtTheMainStationIsToldTheDepartureOfItsNextTrain) {
    Vlak& v = posun({"754", "Bp"}, "1400");
    v.zastavky = zastavky_vlaku({5, 9}, {-3, 640}, {615, -3});
    v.stanice_index = 1;
    radek(1400);
    EXPECT_TRUE(text_vlaku(0).ends_with(" (Tesk hl.n. odj. 12:35 směr LHO)"_cz));
    v.stanice_index = 0; // stands elsewhere
    EXPECT_FALSE(obsahuje(text_vlaku(0), "Tesk hl.n."));
    v.stanice_index = 1;
    gvd_vlaky = {};
    EXPECT_EQ(text_vlaku(0), " Souprava vlaku 1234");
}

TEST_F(InfoVlaku, NextWorkIsTheTrainThatBringsTheVehicles) {
    radek(1500);
    zmen_radek_gvd(0, [](GvdVlak& g) { zmen_stanice(g.zastavky, {9, 9, 9, 1}); });
    radek(1400, 1500);
    EXPECT_EQ(navazny_spoj("1500"), "Os 1400 (příj. 12:25 z BOR)"_cz);
    zmen_radek_gvd(1, [](GvdVlak& g) { g.dny = 2; }); // not today
    EXPECT_TRUE(navazny_spoj("1500").starts_with("Os 1500 "));
    zmen_radek_gvd(1, [](GvdVlak& g) { g.dny = 1; });
    zmen_radek_gvd(1, [](GvdVlak& g) { g.vozy_vlaky = {1500}; }); // only the second vehicle is asked
    EXPECT_TRUE(navazny_spoj("1500").starts_with("Os 1500 "));
}

TEST_F(InfoVlaku, NextWorkIsTheTrainItselfWhereItPassesTheMainStation) {
    radek(1400);
    EXPECT_EQ(navazny_spoj("1400"), "Os 1400 (příj. 12:25 z BOR)"_cz);
    zmen_radek_gvd(0, [](GvdVlak& g) { g.zastavky[1].stanice = 7; });
    EXPECT_EQ(navazny_spoj(" 1400 "), "Os 1400 (příj. 12:30 z BOR)"_cz);
    zmen_radek_gvd(0, [](GvdVlak& g) { zmen_stanice(g.zastavky, {9, 8, 2, 1}); });
    EXPECT_EQ(navazny_spoj("1400"), "Os 1400"); // it begins there: nothing arrives
}

TEST_F(InfoVlaku, NoNumberAndUnknownNumberHaveNoNextWork) {
    radek(1400);
    for (const char* nic : {"", "0", "ZAL", "DKV", "1400x", "1401"})
        EXPECT_EQ(navazny_spoj(nic), "") << nic;
}

TEST_F(InfoVlaku, VehicleIsTitledByItsOperator) {
    EXPECT_EQ(popis_vozu("350", "0"), "ZSSK 350");
    EXPECT_EQ(popis_vozu("753", "0"), "UNIPETROL 753");
    EXPECT_EQ(popis_vozu("741", "0"), "VIAMONT 741");
    EXPECT_EQ(popis_vozu("740", "0"), "OKD 740");
    EXPECT_EQ(popis_vozu("754", "0"), "ČD 754"_cz);
    EXPECT_EQ(popis_vozu("060", "0"), "ČD 060"_cz);
    EXPECT_EQ(popis_vozu("OBB Bmpz", "0"), "ÖBB Bmpz"_cz);
    EXPECT_EQ(popis_vozu("Bp", "0"), "Bp");
}

TEST_F(InfoVlaku, NextTrainOfAVehicleStandsInBrackets) {
    EXPECT_EQ(popis_vozu("754", "1500"), "ČD 754 (1500)"_cz);
    EXPECT_EQ(popis_vozu("754", "ZAL"), "ČD 754 (ZAL)"_cz);
    EXPECT_EQ(popis_vozu("Bp", "0"), "Bp");
    EXPECT_EQ(popis_vozu("Bp", ""), "Bp"); // the vehicle ends with its train
}

TEST_F(InfoVlaku, VehiclesStandFromTheLeftWithTheirPictures) {
    Vlak& v = vlak();
    v.vozy[0].obrazek = "363_5_l.ico";
    v.vozy[0].urceni = "1500";
    info_o_vlaku({}, 0);
    EXPECT_EQ(vozu_na_panelu(), 3);
    EXPECT_EQ(vlak_na_panelu(), 0);
    EXPECT_TRUE(info_ukazuje(0));
    EXPECT_FALSE(info_ukazuje(1));
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(relief.imgObrzaek_vlaku[i].viditelny);
        EXPECT_TRUE(relief.lblPopis_vozu[i].viditelny);
    }
    EXPECT_FALSE(relief.imgObrzaek_vlaku[3].viditelny);
    EXPECT_EQ(relief.imgObrzaek_vlaku[0].stav(), "363_5_l.ico");
    EXPECT_EQ(relief.imgObrzaek_vlaku[0].popis(), "363");
    EXPECT_TRUE(relief.imgObrzaek_vlaku[0].ramecek);
    EXPECT_FALSE(relief.imgObrzaek_vlaku[1].ramecek);
    EXPECT_EQ(relief.lblPopis_vozu[0].text(), "ČD 363 (1500)"_cz);
    EXPECT_EQ(relief.lblPopis_vozu[1].text(), "Bp");
    EXPECT_FALSE(relief.lblPokracuje[0].viditelny);
    EXPECT_EQ(relief.cmdVLAK[0].pozadi, 0x800000);
}

TEST_F(InfoVlaku, PantographsStandOverTheFirstFourElectricVehicles) {
    for (int n = 1; n <= 3; ++n)
        relief.imgSberac.zaloz(n) = Prvek(relief.imgSberac[0]);
    vlak().vozy = vozy_vlaku({"754", "363", "Bp", "560", "943", "363", "363", "363"});
    info_o_vlaku({}, 0);
    const std::vector<int> pod_dratem = {1, 3, 5, 6};
    for (int n = 0; n < 4; ++n) {
        const Prvek& sberac = relief.imgSberac[n];
        const Prvek& vuz = relief.imgObrzaek_vlaku[pod_dratem[static_cast<std::size_t>(n)]];
        EXPECT_TRUE(sberac.viditelny);
        EXPECT_GT(sberac.vlevo(), vuz.vlevo());
        EXPECT_LT(sberac.vlevo() + sberac.sirka(), vuz.vlevo() + vuz.sirka());
    }
    vlak().vozy = vozy_vlaku({"754"});
    info_o_vlaku({}, 0);
    for (int n = 0; n < 4; ++n)
        EXPECT_FALSE(relief.imgSberac[n].viditelny);
}

TEST_F(InfoVlaku, PicturesBehindThePanelAreHiddenAndSaidToGoOn) {
    vlak().vozy.assign(40, {"Bp", {}, {}});
    info_o_vlaku({}, 0);
    EXPECT_EQ(vozu_na_panelu(), 40);
    for (int i = 0; i < 40; ++i) {
        const Prvek& obrazek = relief.imgObrzaek_vlaku[i];
        EXPECT_EQ(obrazek.viditelny(), obrazek.vlevo() + obrazek.sirka() <= 14400) << i;
        EXPECT_EQ(relief.lblPopis_vozu[i].viditelny(), obrazek.viditelny()) << i;
    }
    EXPECT_TRUE(relief.imgObrzaek_vlaku[0].viditelny);
    EXPECT_FALSE(relief.imgObrzaek_vlaku[39].viditelny);
    EXPECT_TRUE(relief.lblPokracuje[0].viditelny);
}

TEST_F(InfoVlaku, SecondMonitorShowsEveryVehicle) {
    simulace.dva_monitory = true;
    vlak().vozy.assign(40, {"Bp", {}, {}});
    info_o_vlaku({}, 0);
    for (int i = 0; i < 40; ++i)
        EXPECT_TRUE(relief.imgObrzaek_vlaku[i].viditelny) << i;
    EXPECT_FALSE(relief.lblPokracuje[0].viditelny);
}

TEST_F(InfoVlaku, TrainLongerThanTheRowGetsItsPicturesMade) {
    simulace.dva_monitory = true;
    vlak().vozy.assign(55, {"Bp", {}, {}});
    info_o_vlaku({}, 0);
    EXPECT_EQ(vozu_na_panelu(), 55);
    EXPECT_EQ(relief.imgObrzaek_vlaku[54].vlevo(),
              relief.imgObrzaek_vlaku[53].vlevo() + relief.imgObrzaek_vlaku[53].sirka());
    vlak();
    info_o_vlaku({}, 0);
    EXPECT_EQ(vozu_na_panelu(), 3);
    EXPECT_FALSE(relief.imgObrzaek_vlaku[54].viditelny);
    EXPECT_FALSE(relief.lblPopis_vozu[54].viditelny);
    EXPECT_EQ(relief.imgObrzaek_vlaku[3].stav(), "");
}

TEST_F(InfoVlaku, OtherPagesHideTheVehiclesAndTheTrainPageBringsThemBack) {
    vlak();
    info_o_vlaku({}, 0);
    for (const Druh tlacitko : {Druh::cmdZpravy, Druh::cmDenik, Druh::cmdTABULKA}) {
        klik(tlacitko, 0, Tlacitko::leve, false);
        EXPECT_FALSE(relief.lblIinfo_o_vlaku[0].viditelny);
        EXPECT_FALSE(relief.imgObrzaek_vlaku[0].viditelny);
        EXPECT_FALSE(relief.lblPopis_vozu[0].viditelny);
        EXPECT_FALSE(relief.imgSberac[0].viditelny);
        EXPECT_FALSE(info_ukazuje(0));
        EXPECT_EQ(radka().empty(), tlacitko == Druh::cmdTABULKA); // the table empties the bar
        klik(Druh::cmdVLAK, 0, Tlacitko::leve, false);
        EXPECT_TRUE(relief.lblIinfo_o_vlaku[0].viditelny);
        EXPECT_TRUE(relief.imgObrzaek_vlaku[0].viditelny);
        EXPECT_TRUE(relief.imgSberac[0].viditelny);
        EXPECT_EQ(radka(), text_vlaku(0));
    }
}

TEST_F(InfoVlaku, TrainThatIsNoMoreIsNotOnDisplay) {
    Vlak& v = vlak();
    v.prvky = prvky_cesty({9});
    info_o_vlaku({}, 0);
    const Text rikalo = radka();
    zrus_vlak(0);
    EXPECT_EQ(vlak_na_panelu(), kZadny);
    EXPECT_EQ(vozu_na_panelu(), 0);
    EXPECT_EQ(radka(), rikalo); // what stood there may still be read
    vlak();                     // its record becomes another train
    EXPECT_FALSE(info_ukazuje(0));
}

TEST_F(InfoVlaku, NumberWithoutATrainIsToldByTheTimetable) {
    vlak();
    info_o_vlaku({}, 0);
    radek(1400);
    zmen_radek_gvd(0, [](GvdVlak& g) {
        g.delka = 71;
        g.rychlost = 90;
        g.kolej = "4";
        g.dny = 2;
    });
    radek(1400);
    zmen_radek_gvd(1, [](GvdVlak& g) { zmen_stanice(g.zastavky, {6, 12, 9, 1}); });
    prevezmi_hlaseni({Text("Zpoždění vlaku 1400 +8´"_cz)});
    info_podle_gvd(1400); // today's row
    EXPECT_TRUE(radka().starts_with("Os 1400  (Rokytno průj. 12:00 ... Lhotín příj. 13:20) 8min; "_cz));
    EXPECT_EQ(vlak_na_panelu(), kZadny);
    EXPECT_EQ(vozu_na_panelu(), 0);
    EXPECT_FALSE(relief.imgObrzaek_vlaku[0].viditelny);
    gvd_vlaky = TabulkaGvd({gvd_vlaky[0]});
    info_podle_gvd(1400);
    EXPECT_EQ(radka(), "Os 1400  (Borovec průj. 12:00 ... Lhotín příj. 13:20) 8min; 71m, 90km/h; Kolej 4"_cz);
    const Relief pred = relief;
    info_podle_gvd(77);
    EXPECT_EQ(relief, pred);
}

TEST_F(InfoVlaku, EmptyPageShowsNothing) {
    klavesa({KodKlavesy::f3});
    EXPECT_TRUE(relief.lblIinfo_o_vlaku[0].viditelny);
    EXPECT_EQ(radka(), "");
    EXPECT_EQ(vozu_na_panelu(), 0);
    EXPECT_FALSE(relief.imgObrzaek_vlaku[0].viditelny);
    EXPECT_EQ(relief.cmdVLAK[0].barva, barvy::bila);
    EXPECT_EQ(relief.cmdTABULKA[0].barva, barvy::cerna);
    EXPECT_EQ(relief.cmdTABULKA[0].pozadi, 0xE0E0E0);
}

TEST_F(InfoVlaku, NumberOnTheReliefTellsKindWayDelayAndTrack) {
    Vlak& v = vlak();
    v.zpozdeni = 7;
    v.pokyn = "5k";
    EXPECT_EQ(souhrn_cisla("1234"),
              Text("R 1234\nLhotín průj. 10:00 ... Vrbice příj. 10:25\nzpoždění 7 min\n"_cz) +
                  Text("kolej podle jízdního řádu 5k"_cz));
    v.zpozdeni = 0;
    v.pokyn = "";
    EXPECT_TRUE(obsahuje(souhrn_cisla("1234"), "bez zpoždění"_cz));
    EXPECT_FALSE(obsahuje(souhrn_cisla("1234"), "kolej"_cz));
}

TEST_F(InfoVlaku, NumberOfATrainToComeIsToldByTheTimetable) {
    radek(4321);
    EXPECT_EQ(souhrn_cisla("4321"),
              Text("Os 4321\nBorovec průj. 12:00 ... Lhotín příj. 13:20\nbez zpoždění"_cz));
    EXPECT_EQ(souhrn_cisla("1"), "");
    EXPECT_EQ(souhrn_cisla("5k"), "");
}
