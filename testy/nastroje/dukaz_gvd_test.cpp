// testy/nastroje/dukaz_gvd_test.cpp - the proof of a timetable: a plan that holds, and one fault of each
// kind.
#include "gvd/dukaz.h"
#include "gvd/obrazky_planu.h"
#include "gvd/zprava.h"
#include "pomocne/cele_kolejiste.h"

#include <gtest/gtest.h>

namespace {

const planovani::Sit& sit() {
    static const planovani::Sit s = planovani::sestav_sit(data_kolejiste().top, data_kolejiste().zat);
    return s;
}

// A unit comes from Lhotín and goes back, a railcar from Vrbice does so, and a train changes its locomotive.
const std::string kPlan = R"(
popis "Zkušební"
vzor jednotka
  dny denně
  rychlost 90
  delka 71
  loko 843
  vozy 843 054 943
vlak Os 1 "Lhoták"
  podle jednotka
  obeh 2
  kolej "4"
  stavi LHO -    4:45
  stavi TVH 4:51 4:52
  stavi THN 4:58 -
vlak Os 2 "Lhoták"
  podle jednotka
  kolej "4"
  stavi THN -    5:25
  stavi TVH 5:31 5:32
  stavi LHO 5:38 -
vlak Os 3
  dny denně
  rychlost 80
  delka 14
  loko 810
  vozy 810
  obeh 4
  kolej "6"
  stavi VRB -    5:05
  stavi THN 5:10 -
vlak Os 4
  dny denně
  rychlost 80
  delka 14
  loko 810
  vozy 810
  kolej "6"
  stavi THN -    5:24
  stavi VRB 5:29 -
vlak Pn 5
  dny Po-Pá
  rychlost 80
  delka 152
  loko 362
  loko2 754
  vozy 362 Eas Eas
  kolej "2"
  stavi LHO -    8:10
  stavi THN 8:21 8:41
  stavi VRB 8:47 -
)";

std::vector<ChybaZdroje> dokaz_zdroj(const std::string& zdroj) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad(zdroj, chyby);
    if (!chyby.empty())
        return chyby;
    return planovani::dokaz(rad, sit()).chyby;
}

std::string s_chybou(std::string zdroj, const std::string& co, const std::string& cim) {
    const auto misto = zdroj.find(co);
    EXPECT_NE(misto, std::string::npos) << co;
    return zdroj.replace(misto, co.size(), cim);
}

std::string vse(const std::vector<ChybaZdroje>& chyby) {
    std::string text;
    for (const ChybaZdroje& c : chyby)
        text += c.zprava + "\n";
    return text;
}

// The plan with the change has a fault that says so.
void najde(const std::string& zdroj, const std::string& veta) {
    const std::string nalezy = vse(dokaz_zdroj(zdroj));
    EXPECT_NE(nalezy.find(veta), std::string::npos) << "chybí: " << veta << "\nje: " << nalezy;
}
void zmena(const std::string& co, const std::string& cim, const std::string& veta) {
    najde(s_chybou(kPlan, co, cim), veta);
}

} // namespace

TEST(DukazGvd, PlanThatCanBeRunHasNoFault) {
    EXPECT_EQ(vse(dokaz_zdroj(kPlan)), "");
}

TEST(DukazGvd, FaultsStandInTheOrderOfTheSourceAndNameTheirTrain) {
    const auto chyby = dokaz_zdroj(s_chybou(kPlan, "THN 4:58", "THN 4:54"));
    ASSERT_FALSE(chyby.empty());
    EXPECT_EQ(chyby[0].radek, 9);
    EXPECT_EQ(chyby[0].zprava.substr(0, 8), "vlak 1: ");
}

TEST(DukazGvd, RunThatTheLineDoesNotAllowIsAFault) {
    zmena("stavi THN 4:58 -", "stavi THN 4:54 -", "do stanice Tesk hl. n. přijede v 4:5");
    zmena("rychlost 90", "rychlost 30", "místo v 4:51: ze stanice Lhotín potřebuje");
}

TEST(DukazGvd, WayThatNoRouteLeadsIsAFault) {
    zmena("stavi VRB 5:29 -", "stavi PST 5:29 -", "do stanice Pošta nevede z předchozího místa");
}

TEST(DukazGvd, SecondTrainOnALineIsAFault) {
    najde(kPlan + "vlak Lv 7\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\n"
                  "stavi LHO - 4:47\nstavi TVH 4:53 4:54\nstavi THN 5:03 -\n",
          "vlak 7: v 4:46 (So) je na trati Lhotín-Vyšní Hrabov (kolej 600) ještě vlak 1");
}

TEST(DukazGvd, SingleTrackIsUsedInOneDirectionAtATime) {
    zmena("stavi THN -    5:24\n  stavi VRB 5:29 -", "stavi THN -    5:06\n  stavi VRB 5:11 -",
          "vlak 4: v 5:05 (Po) je na trati Vrbice-Tesk hl. n. ještě vlak 3");
}

TEST(DukazGvd, TwoTrainsOnOnePlatformAreAFault) {
    najde(kPlan + "vlak Os 9\npodle jednotka\nkolej \"4\"\nobeh 10\nstavi LHO - 5:05\nstavi TVH 5:11 5:12\n"
                  "stavi THN 5:18 -\nvlak Os 10\npodle jednotka\nkolej \"4\"\nstavi THN - 5:45\n"
                  "stavi TVH 5:51 5:52\nstavi LHO 5:58 -\n",
          "vlak 9: v 5:1");
}

TEST(DukazGvd, SetStandsAtItsPlatformBeforeItsTrainAndBehindIt) {
    const std::string navic = "vlak Lv 7\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\nkolej \"6\"\n"
                              "stavi LHO - 5:27\nstavi THN 5:40 -\n"
                              "vlak Lv 9\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\nkolej \"6\"\n"
                              "stavi THN - 5:58\nstavi LHO 6:12 -\n";
    najde(kPlan + navic, "vlak 9: v 5:46 (So) je na koleji 6 hlavního nádraží vlak 7");
    EXPECT_EQ(vse(dokaz_zdroj(s_chybou(kPlan + navic, "5:58\nstavi LHO 6:12", "6:28\nstavi LHO 6:42"))), "");
}

TEST(DukazGvd, TwoMovementsThroughOneThroatAreAFault) {
    const std::string z_paty =
        s_chybou(s_chybou(kPlan, "kolej \"4\"", "kolej \"5\""), "kolej \"4\"", "kolej \"5\"");
    const std::string lv = "vlak Lv 7\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\nkolej \"6\"\n";
    najde(z_paty + lv + "stavi LHO - 5:18\nstavi THN 5:32 -\n",
          "vlak 2: v 5:24 (So) potřebuje na hlavním nádraží totéž zhlaví jako vlak 7");
    EXPECT_EQ(vse(dokaz_zdroj(z_paty + lv + "stavi LHO - 5:20\nstavi THN 5:34 -\n")), "");
}

TEST(DukazGvd, GateOfTheDepotHoldsOneLocomotive) {
    const std::string lv = "\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\n"
                           "stavi DVH - 6:00\nstavi THN 6:07 -\n";
    najde(kPlan + "vlak Lv 80001" + lv + "vlak Lv 80003" + lv, "nemá ve stanici DKV VH volnou kolej");
}

TEST(DukazGvd, TrainFitsItsPlatform) {
    zmena("delka 152\n  loko 362\n  loko2 754\n  vozy 362 Eas Eas\n  kolej \"2\"",
          "delka 460\n  loko 362\n  loko2 754\n  vozy 362 Eas Eas\n  kolej \"2\"",
          "vlak 5: 460 m se ve stanici Tesk hl. n. na kolej o 430 m nevejde");
}

TEST(DukazGvd, ChangeOfLocomotivesTakesItsTime) {
    zmena("8:21 8:41\n  stavi VRB 8:47", "8:21 8:25\n  stavi VRB 8:31",
          "na výměnu lokomotivy ve stanici Tesk hl. n. má jen 4 min");
}

TEST(DukazGvd, SetThatHasToBeRunRoundTakesItsTime) {
    const std::string zdroj = s_chybou(kPlan, "vozy 843 054 943", "vozy 843 054 054");
    EXPECT_EQ(vse(dokaz_zdroj(zdroj)), "");
    najde(s_chybou(zdroj, "stavi THN -    5:25\n  stavi TVH 5:31 5:32\n  stavi LHO 5:38 -",
                   "stavi THN -    5:05\n  stavi TVH 5:11 5:12\n  stavi LHO 5:18 -"),
          "vlak 2 má jet v 5:05, potřebuje 12 min");
}

TEST(DukazGvd, NextTrainHasItsSetInTimeAndPlace) {
    zmena("stavi THN -    5:25\n  stavi TVH 5:31 5:32\n  stavi LHO 5:38 -",
          "stavi THN -    5:00\n  stavi TVH 5:06 5:07\n  stavi LHO 5:13 -",
          "vlak 2 má jet v 5:00, potřebuje 4 min");
    zmena("stavi THN -    5:25\n  stavi TVH 5:31 5:32\n  stavi LHO 5:38 -",
          "stavi THN -    4:25\n  stavi TVH 4:31 4:32\n  stavi LHO 4:38 -", "dřív, než souprava přijede");
    zmena("obeh 2", "obeh 22", "pokračuje jako vlak 22, který v jízdním řádu není");
    zmena("obeh 2\n  kolej \"4\"", "obeh 2\n  kolej \"5\"",
          "souprava stojí na koleji 5, vlak 2 má jet z koleje 4");
    zmena("vlak Os 2 \"Lhoták\"\n  podle jednotka",
          "vlak Os 2 \"Lhoták\"\n  dny Po\n  rychlost 90\n  delka 71\n  loko 843\n  vozy 843 054 943",
          "vlak 2 nejede všechny dny");
    zmena("vlak Os 2 \"Lhoták\"\n  podle jednotka",
          "vlak Os 2 \"Lhoták\"\n  dny denně\n  rychlost 90\n  delka 71\n  loko 843\n  vozy 843 943",
          "vlak 2: má jet jako 843 + 943, ale přijde 054 + 843 + 943");
}

TEST(DukazGvd, RailcarsAloneDoNotWaitForTheYardToBringOthers) {
    zmena("stavi THN -    5:24\n  stavi VRB 5:29 -", "stavi THN -    5:26\n  stavi VRB 5:31 -",
          "souprava samých motorových vozů čeká na vlak 4 déle než 15 min");
}

TEST(DukazGvd, StockThatLeavesComesBackWithinTheWeek) {
    najde(kPlan + "vlak Os 9\npodle jednotka\nkolej \"1\"\nstavi THN - 9:00\nstavi LHO 9:15 -\n",
          "místo Lhotín má za týden o 7 víc");
}

TEST(DukazGvd, NumbersAreThoseOfOneTrain) {
    const std::string navic = "vlak Lv 4\ndny PP\nrychlost 90\ndelka 18\nloko 362\nvozy 362\n"
                              "stavi LHO - 15:00\nstavi THN 15:20 -\n";
    std::string ruzne_dny = kPlan + navic;
    ruzne_dny = s_chybou(ruzne_dny, "vlak Os 4\n  dny denně", "vlak Os 4\n  dny denně");
    najde(ruzne_dny, "číslo 4 má už jiný vlak týdne");
    najde(s_chybou(kPlan + navic, "vlak Lv 4", "vlak Lv 74811"), "čísla 70000 až 79999");
}

TEST(DukazGvd, NameBelongsToOneTrainOfItsKindFromAPlaceADay) {
    zmena("vlak Pn 5", "vlak Pn 5 \"Lhoták\"", "jméno „Lhoták“ má už vlak 1 jiného druhu");
    najde(
        kPlan +
            "vlak Os 9 \"Lhoták\"\npodle jednotka\nkolej \"1\"\nobeh 10\nstavi LHO - 9:00\nstavi THN 9:15 -\n"
            "vlak Os 10\npodle jednotka\nkolej \"1\"\nstavi THN - 9:25\nstavi LHO 9:40 -\n",
        "jméno „Lhoták“ má týž den z téže stanice vlak 1");
}

TEST(DukazGvd, TrainBeginsAndEndsWhereTheJunctionLetsIt) {
    zmena("stavi TVH 4:51 4:52\n  stavi THN 4:58 -", "stavi TVH 4:51 -",
          "ve stanici Vyšní Hrabov by vlak zůstal stát");
    zmena("stavi LHO -    4:45\n", "", "ve stanici Vyšní Hrabov nemůže vlak začínat");
    zmena("stavi VRB -    5:05", "stavi VRB -    0:00", "vjezd v 0:00 se před půlnocí neohlásí");
    zmena("kolej \"2\"", "kolej \"7\"", "kolej „7“ na hlavním nádraží není");
    zmena("  kolej \"2\"\n", "", "vlak 5: nemá na hlavním nádraží kolej");
    najde(kPlan + "vlak Lv 7\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\nkolej \"1\"\n"
                  "stavi THN - 0:10\nstavi LHO 0:25 -\n",
          "by před půlnocí z depa nevyjela");
}

TEST(DukazGvd, TrainDoesNotStopOnTheLineBehindMidnight) {
    const std::string nocni =
        "vlak Os 7\npodle jednotka\nkolej \"5\"\nstavi THN - 23:47\nstavi LIP 23:58 23:58\n"
        "stavi TKL 24:01 24:02\nstavi OLS 24:05 24:05\nstavi ROK 24:11 -\n";
    const std::string nalezy = vse(dokaz_zdroj(kPlan + nocni));
    EXPECT_NE(nalezy.find("vlak 7: po půlnoci nesmí zastavovat na trati (Olšany)"), std::string::npos)
        << nalezy;
    EXPECT_EQ(nalezy.find("na trati (Tesk Lipina)"), std::string::npos);  // a halt before midnight
    EXPECT_EQ(nalezy.find("na trati (Knížecí Luka)"), std::string::npos); // a station
}

TEST(DukazGvd, EasternGateOfTheDepotSendsNobodyAndTheYardIsEnteredWithoutAStop) {
    const std::string lv = "vlak Lv 7\ndny So\nrychlost 90\ndelka 18\nloko 362\nvozy 362\n";
    najde(kPlan + lv + "stavi 30 - 6:00\nstavi THN 6:20 -\n",
          "vlak 7: z východní brány DKV žádný vlak nevyjede");
    najde(kPlan + lv + "stavi LHO - 12:00\nstavi THJ 12:40 12:50\nstavi THS 12:56 -\n",
          "vlak 7: před vjezdem do nádraží nesmí mít zastavení v Hájovicích");
    EXPECT_EQ(vse(dokaz_zdroj(kPlan + lv + "stavi LHO - 12:00\nstavi THS 12:40 -\n")), "");
}

TEST(DukazGvd, LocomotiveThatComesForATrainIsOfItsSeries) {
    const std::string lv = "vlak Lv 80005\ndny Po-Pá\nrychlost 90\ndelka 18\nloko 754\nvozy 754\ndale 5\n"
                           "souprava 5\nstavi DVH - 8:00\nstavi THN 8:08 -\n";
    EXPECT_EQ(vse(dokaz_zdroj(kPlan + lv)), "");
    najde(s_chybou(kPlan + lv, "loko 754\nvozy 754", "loko 230\nvozy 230"),
          "vlak 80005: vlak 5 nečeká lokomotivu řady 230");
}

TEST(DukazGvd, TrainThatGoesBackOnItsWayIsRunRound) {
    const std::string pn =
        "vlak Pn 7\ndny So\nrychlost 100\ndelka 120\nloko 754\nvozy 754 Eas Eas\nkolej \"3\"\n"
        "stavi LHO - 12:00\nstavi THN 12:15 12:20\nstavi TVH 12:27 12:28\nstavi LHO 12:36 -\n";
    najde(kPlan + pn, "vlak 7: na objetí soupravy ve stanici Tesk hl. n. má jen 5 min");
    EXPECT_EQ(vse(dokaz_zdroj(s_chybou(kPlan + pn, "vozy 754 Eas Eas", "vozy 754 Eas 754"))), "");
}

TEST(DukazGvd, LineIsUsedAgainstItsDirectionForWantOfAnotherWayOnly) {
    planovani::Ukol ukol;
    ukol.body = {{.stanice = 1, .stavi = true}, {.stanice = 8, .stavi = true}, {.stanice = 9, .stavi = true}};
    std::size_t kam_az = 0;
    const auto obvykly = planovani::najdi_pruchod(sit(), ukol, kam_az);
    ASSERT_TRUE(obvykly);
    EXPECT_FALSE(obvykly->protismer);
    ukol.mimo = {20, 21};
    const auto po_leve = planovani::najdi_pruchod(sit(), ukol, kam_az);
    ASSERT_TRUE(po_leve);
    EXPECT_TRUE(po_leve->protismer);
    ukol.mimo = {19, 20, 21};
    EXPECT_FALSE(planovani::najdi_pruchod(sit(), ukol, kam_az));
    EXPECT_EQ(kam_az, 2u);
}

TEST(DukazGvd, ReportTellsWhatIsLeftToHands) {
    std::vector<ChybaZdroje> chyby;
    const JizdniRad rad = preloz_jizdni_rad(kPlan, chyby);
    const auto dukaz = planovani::dokaz(rad, sit());
    const std::string zprava = planovani::zprava_planu(rad, dukaz, "GVD_zkusebni");
    EXPECT_NE(zprava.find("Výměny lokomotiv: 1"), std::string::npos) << zprava;
    EXPECT_NE(zprava.find("- Vrbice-Tesk hl. n.: 425 min od 22:00"), std::string::npos) << zprava;
    EXPECT_NE(zprava.find("plán lze odjet"), std::string::npos);
    EXPECT_NE(zprava.find("| Os | 4 | 4 | 4 | 4 | 4 | 4 | 4 | |"), std::string::npos) << zprava;
}

TEST(ObrazkyPlanu, EveryVehicleHasItsPictureAndCommonSeriesTwo) {
    const auto chybi = [](const std::string& zdroj, const std::set<Text>& soubory) {
        std::vector<ChybaZdroje> chyby;
        const JizdniRad rad = preloz_jizdni_rad(zdroj, chyby);
        EXPECT_TRUE(chyby.empty());
        return vse(planovani::chybejici_obrazky(rad, soubory));
    };
    const std::set<Text> plne = {"a-843_5.ico", "b-843_2.ico", "a-943_5.ico",   "943p.ico",   "a-054_5.ico",
                                 "a-810_7.ico", "Eas.ico",     "a-362_5_l.ico", "c-754_1.ico"};
    EXPECT_EQ(chybi(kPlan, plne), "");
    for (const auto& [soubor, veta] :
         {std::pair{"a-810_7.ico", "vlak 3: řada 810 nemá obrázek"},
          std::pair{"Eas.ico", "vlak 5: vůz Eas nemá obrázek"},
          std::pair{"c-754_1.ico", "vlak 5: řada 754 nemá obrázek"},
          std::pair{"943p.ico", "vlak 1: řada 943 nemá obrázek s kabinou vpravo"}}) {
        std::set<Text> bez = plne;
        bez.erase(soubor);
        EXPECT_EQ(chybi(kPlan, bez), std::string(veta) + "\n");
    }
    const std::string casto = s_chybou(kPlan, "stavi VRB 5:29 -\n", "stavi VRB 5:29 -\ntakt 60 19:24 2\n");
    EXPECT_EQ(chybi(casto, plne), "vlak 3: řada 810 jede za týden 112krát a má jen jednu podobu\n");
}
