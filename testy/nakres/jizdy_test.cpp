// testy/nakres/jizdy_test.cpp - runs out of a log, and lines of trains over time and distance.
#include "app/cas.h"
#include "gvd/gvd.h"
#include "jizda/metry.h"
#include "jizda/vlak.h"
#include "nakres/jizdy.h"
#include "pomocne/instalace.h"
#include "pomocne/zdroje.h"
#include "zaklad/soubory.h"

#include <sstream>

namespace {

class Nakres : public SPlatformou {
protected:
    void SetUp() override {
        zapis_instalaci(svet);
        k = koridory();
    }
    const Koridor& trat(TextPohled jmeno) const {
        return *std::find_if(k.trate.begin(), k.trate.end(),
                             [&](const Koridor& t) { return t.jmeno == jmeno; });
    }
    OsaKoridoru osa(TextPohled jmeno) const { return osa_koridoru(k, trat(jmeno)); }
    int misto(TextPohled zkratka) const {
        for (std::size_t i = 0; i < k.mista.size(); ++i)
            if (k.mista[i].zkratka == zkratka)
                return static_cast<int>(i);
        return kZadny;
    }
    // Puts a train on the desk whose way was these tracks, the head so many metres on the last one.
    static void postav_vlak(std::int32_t cislo, std::initializer_list<int> koleje, int metru) {
        Vlak v;
        v.cislo = cislo;
        for (const int n : koleje)
            v.prvky.push_back({static_cast<std::int16_t>(n), druh_prvku::kolej, 0});
        relief.kolej.zaloz(v.prvky.back().prvek);
        nastav_metry(v.prvky.back().prvek, metru);
        vlaky.push_back(v);
    }
    Koridory k;
};

using JizdyLogu = Nakres;
using CaryVlaku = Nakres;

TEST_F(JizdyLogu, MovementsBecomeTheRunsOfTheExampleThatTheReaderOfTheLogKeepsToo) {
    std::ifstream soubor(std::string(kZdrojeKolejiste) + "/../testy/nakres/jizdy.txt");
    std::string radek;
    std::vector<std::string> cekane;
    std::vector<PohybVlaku> pohyby;
    int prikladu = 0;
    const auto porovnej = [&] {
        SkladJizd sklad(k);
        for (const PohybVlaku& p : pohyby)
            sklad.pridej(p);
        std::vector<std::string> jizdy;
        for (const JizdaNakresu& j : sklad.jizdy()) {
            std::string text = text_cisla(j.cislo);
            for (const BodJizdy& b : j.body)
                text += " " + k.mista[static_cast<std::size_t>(b.misto)].zkratka + "@" + text_cisla(b.cas);
            jizdy.push_back(text);
        }
        EXPECT_EQ(jizdy, cekane) << "example " << prikladu + 1;
        ++prikladu;
        cekane.clear();
        pohyby.clear();
    };
    bool konec = false, neco = false;
    while (!konec) {
        konec = !std::getline(soubor, radek);
        if (konec)
            radek.clear();
        std::istringstream slova(radek.substr(0, radek.find('#')));
        std::string prvni;
        if (!(slova >> prvni)) {
            if (neco)
                porovnej();
            neco = false;
        } else if (prvni == "=") {
            neco = true;
            std::string zbytek;
            std::getline(slova >> std::ws, zbytek);
            if (!zbytek.empty())
                cekane.push_back(zbytek);
        } else {
            PohybVlaku p;
            std::string smer;
            slova >> smer >> p.prvek >> p.cislo;
            p.cas = std::stoi(prvni);
            p.na_kolej = smer == "+";
            pohyby.push_back(p);
        }
    }
    EXPECT_EQ(prikladu, 9);
}

TEST_F(JizdyLogu, MovementsOfTrainsAreKeptAsTheLogHasThemUntilTheNextLogIsOpened) {
    gtn_otevri();
    nastav_cas("8:00:00");
    gtn_zapis(12, gtn::vlak_na_kolej, 4711);
    gtn_zapis(12, gtn::barva_koleje, 0);
    gtn_zapis(12, gtn::vlak_z_koleje, 4711);
    ASSERT_EQ(gtn_pohyby().size(), 2u);
    EXPECT_EQ(gtn_pohyby()[0], (PohybVlaku{ted_s(), 12, 4711, true}));
    EXPECT_FALSE(gtn_pohyby()[1].na_kolej);
    gtn_otevri();
    EXPECT_TRUE(gtn_pohyby().empty());
}

TEST_F(CaryVlaku, TrainOnTheLineIsDrawnToWhereItsHeadIs) {
    const OsaKoridoru o = osa("lho-rok");
    const double tvh = *metry_mista(o, misto("TVH"));
    ASSERT_EQ(tvh, 3800);
    postav_vlak(100, {87, 600, 650}, 300);
    const std::vector<CaraVlaku> cary =
        jete_cary(k, o, {{100, {{1000, misto("LHO")}, {1060, misto("LHO")}}}}, 1200);
    ASSERT_EQ(cary.size(), 1u);
    EXPECT_TRUE(cary[0].na_stole);
    EXPECT_EQ(cary[0].body, (std::vector<BodCary>{{1000, 0}, {1060, 0}, {1200, 2800}}));
}

TEST_F(CaryVlaku, TrainThatComesTheOtherWayIsDrawnFromTheOtherEnd) {
    postav_vlak(101, {12, 652, 602}, 500);
    const std::vector<CaraVlaku> cary = jete_cary(k, osa("lho-rok"), {{101, {{1000, misto("TVH")}}}}, 1200);
    ASSERT_EQ(cary.size(), 1u);
    EXPECT_EQ(cary[0].body, (std::vector<BodCary>{{1000, 3800}, {1200, 2000}}));
}

TEST_F(CaryVlaku, TrainInAThroatIsWhereItEnteredItAndOneOnAnotherLineIsNowhere) {
    postav_vlak(102, {87, 600, 650, 107}, 100);
    postav_vlak(103, {12, 137}, 100);
    const OsaKoridoru o = osa("lho-rok");
    const std::vector<CaraVlaku> cary =
        jete_cary(k, o, {{102, {{1000, misto("LHO")}}}, {103, {{1000, misto("TVH")}}}}, 1200);
    ASSERT_EQ(cary.size(), 1u);
    EXPECT_EQ(cary[0].cislo, 102);
    EXPECT_EQ(cary[0].body.back().m, 3800);
}

TEST_F(CaryVlaku, TrainOfTodayDoesNotGoOnWithYesterdaysRun) {
    SkladJizd sklad(k);
    for (const PohybVlaku& p :
         {PohybVlaku{21600, 87, 104, true}, PohybVlaku{21700, 87, 104, false},
          PohybVlaku{21900, 12, 104, true}, PohybVlaku{21960, 12, 104, false},
          PohybVlaku{kDen_s + 22000, 20, 104, true}}) // it is seen on the open line first
        sklad.pridej(p);
    postav_vlak(104, {20, 26}, 10);
    const OsaKoridoru o = osa("lho-rok");
    const std::vector<CaraVlaku> cary = jete_cary(k, o, sklad.jizdy(), kDen_s + 22100);
    ASSERT_EQ(cary.size(), 2u);
    EXPECT_FALSE(cary[0].na_stole);
    EXPECT_EQ(cary[0].body.back().s, 21960);
    EXPECT_TRUE(cary[1].na_stole);
    EXPECT_EQ(cary[1].body.size(), 1u);
}

TEST_F(CaryVlaku, RunsOfOtherHoursAreLeftOutUnlessTheTrainIsOnTheDesk) {
    const auto jizda = [&](std::int32_t cislo, std::int32_t od) {
        return JizdaNakresu{cislo, {{od, misto("LHO")}, {od + 300, misto("TVH")}}};
    };
    postav_vlak(3, {12}, 10);
    const std::vector<CaraVlaku> cary =
        jete_cary(k, osa("lho-rok"), {jizda(1, 1000), jizda(2, 7000), jizda(3, 1000), jizda(4, 9000)}, 8000,
                  6000, 8500);
    ASSERT_EQ(cary.size(), 2u);
    EXPECT_EQ(cary[0].cislo, 2);
    EXPECT_EQ(cary[1].cislo, 3);
    EXPECT_EQ(cary[1].body.back().s, 8000) << "it has stood there since";
}

TEST_F(CaryVlaku, RunLeavesTheLineAtAPlaceOffIt) {
    const JizdaNakresu pres_dolni{7,
                                  {{0, misto("LHO")},
                                   {100, misto("TVH")},
                                   {200, misto("TDN")},
                                   {300, misto("TRY")},
                                   {400, misto("TKL")}}};
    const std::vector<CaraVlaku> cary = jete_cary(k, osa("lho-rok"), {pres_dolni}, 1000);
    ASSERT_EQ(cary.size(), 2u);
    EXPECT_EQ(cary[0].body.back().s, 100);
    EXPECT_EQ(cary[1].body.front().s, 300);
}

TEST_F(CaryVlaku, TrainThatStoodOnTheDeskWhenTheLogBeganHasItsPlace) {
    postav_vlak(55, {26}, 10);
    const std::vector<CaraVlaku> cary = jete_cary(k, osa("lho-rok"), {}, 500);
    ASSERT_EQ(cary.size(), 1u);
    EXPECT_EQ(cary[0].body.size(), 1u);
}

TEST_F(CaryVlaku, PlanHasEachTrainOfTheDayAndThoseOfTheEveningBefore) {
    GvdVlak denni, pres_pulnoc, nedelni;
    denni.cislo = 1;
    denni.dny = 127;
    denni.zastavky = {{1, -1, 480}, {8, 484, 485}, {9, 490, -1}};
    pres_pulnoc.cislo = 2;
    pres_pulnoc.dny = 64; // of Sunday
    pres_pulnoc.zastavky = {{1, -1, 1435}, {8, 1439, 1440}, {9, 1445, -1}};
    nedelni = pres_pulnoc;
    nedelni.cislo = 3;
    nedelni.zastavky = denni.zastavky;
    for (GvdVlak* v : {&denni, &pres_pulnoc, &nedelni})
        v->druh = 7;
    gvd_vlaky = TabulkaGvd({denni, pres_pulnoc, nedelni});
    simulace.den = 1; // Monday
    nastav_cas("6:00:00");
    const OsaKoridoru o = osa("lho-thn");
    const std::vector<CaraVlaku> cary = planovane_cary(k, o, 0, 12 * 3600);
    ASSERT_EQ(cary.size(), 2u);
    EXPECT_EQ(cary[0].cislo, 2);
    EXPECT_EQ(cary[0].body.front(), (BodCary{-300, 0}));
    EXPECT_EQ(cary[0].body.back(), (BodCary{300, o.delka()}));
    EXPECT_EQ(cary[1].cislo, 1);
    EXPECT_EQ(cary[1].body.size(), 4u);
    EXPECT_TRUE(cary[1].plan);
    // a week later the same evening train is there again
    EXPECT_EQ(planovane_cary(k, o, 7 * kDen_s, 7 * kDen_s + 600).size(), 1u);
}

TEST_F(CaryVlaku, ChangeOfNumberEndsOneLineAndBeginsTheNext) {
    GvdVlak v;
    v.druh = 5;
    v.cislo = 10;
    v.druh2 = 7;
    v.cislo2 = 11;
    v.stanice_zmeny = 8;
    v.dny = 127;
    v.zastavky = {{1, -1, 480}, {8, 484, 486}, {9, 490, -1}};
    gvd_vlaky = TabulkaGvd({v});
    nastav_cas("6:00:00");
    const std::vector<CaraVlaku> cary = planovane_cary(k, osa("lho-thn"), 0, kDen_s - 1);
    ASSERT_EQ(cary.size(), 2u);
    EXPECT_EQ(cary[0].cislo, 10);
    EXPECT_EQ(cary[0].body.back(), cary[1].body.front());
    EXPECT_EQ(cary[1].cislo, 11);
    EXPECT_EQ(cary[1].druh, 7);
}

TEST_F(CaryVlaku, TrainsOfNeedAreThereOnlyWhenTheyAreAllowed) {
    GvdVlak v;
    v.druh = 15;
    v.cislo = 10;
    v.dny = 128;
    v.zastavky = {{1, -1, 480}, {9, 490, -1}};
    gvd_vlaky = TabulkaGvd({v});
    nastav_cas("6:00:00");
    EXPECT_EQ(planovane_cary(k, osa("lho-thn"), 0, kDen_s - 1).size(), 1u);
    EXPECT_TRUE(planovane_cary(k, osa("lho-thn"), 0, kDen_s - 1)[0].navic);
    simulace.pp_povoleno = false;
    EXPECT_TRUE(planovane_cary(k, osa("lho-thn"), 0, kDen_s - 1).empty());
}

} // namespace
