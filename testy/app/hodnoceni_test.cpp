// testy/app/hodnoceni_test.cpp - the assessment of the shift: where delay is counted, what is counted
// besides.
#include "app/cas.h"
#include "app/hodnoceni.h"
#include "gvd/gvd.h"
#include "obsluha/ukony.h"
#include "pomocne/instalace.h"

namespace {

class Hodnoceni : public SPlatformou {
protected:
    void SetUp() override {
        zapis_instalaci(svet);
        gtn_otevri();
        simulace.den = 1;
        simulace.cas_zacatku = 0;
        ukony_smeny.ukony.clear();
        // a train from Lhotín over Vyšní Hrabov to the main station
        GvdVlak v;
        v.cislo = kVlak;
        v.druh = 7;
        v.dny = 127;
        v.zastavky = {{1, -1, 480}, {8, 484, 486}, {9, 490, -1}};
        gvd_vlaky = TabulkaGvd({v});
        sledovani.bezi = true;
        sledovani.jizdy = {jizda(0, 0)};
        sledovani.od_s = 470 * 60;
        nastav_cas("8:30:00");
    }
    static void jdi(int minuta) {
        simulace.minuty_simulace = minuta / kDen_min * kDen_min;
        simulace.den = static_cast<std::uint8_t>(1 << minuta / kDen_min);
        nastav_cas(minuta % kDen_min * 60);
    }
    // The train comes to a track and leaves it, minutes from the midnight of the first day on; there it may
    // have got another number.
    static void pobyt(int kolej, int prisel, int odesel, std::int32_t cislo = kVlak,
                      std::int32_t odjel_jako = kVlak) {
        jdi(prisel);
        gtn_zapis(kolej, gtn::vlak_na_kolej, cislo);
        if (odesel < 0)
            return;
        jdi(odesel + 1); // its tail a minute after it has started
        gtn_zapis(kolej, gtn::vlak_z_koleje, odjel_jako);
    }
    // The train's run on a day, as the observer has it.
    static JizdaVlaku jizda(int den, int prevzal, int radek = 0) {
        JizdaVlaku j;
        j.radek = radek;
        j.cas = den * kDen_min + cas_vstupu(radek_gvd(radek));
        j.mela_jet = j.objevena = true;
        j.zpozdeni_vstup = prevzal;
        return j;
    }
    static HodnoceniSmeny hodnot(int minuta = 8 * 60 + 30) {
        jdi(minuta);
        return hodnoceni_smeny();
    }
    static constexpr std::int32_t kVlak = 14707;
    static constexpr int kLhotin = 87, kHrabov = 12, kHlavni = 26;
};

TEST_F(Hodnoceni, TrainThatRunsByItsTimetableLosesNothing) {
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, 486);
    pobyt(kHlavni, 490, -1);
    const HodnoceniSmeny h = hodnot();
    EXPECT_EQ(h.pridano, 0);
    EXPECT_EQ(h.nahnano, 0);
    EXPECT_TRUE(h.useky.empty());
    EXPECT_TRUE(h.vlaky.empty());
}

TEST_F(Hodnoceni, DelayIsCountedBetweenTheDeparturesWhereItArose) {
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, 493); // held for seven minutes
    pobyt(kHlavni, 497, -1);
    const HodnoceniSmeny h = hodnot();
    ASSERT_EQ(h.useky.size(), 1u);
    EXPECT_EQ(h.useky[0].odkud, "Lhotín"_cz);
    EXPECT_EQ(h.useky[0].kam, "Vyšní Hrabov"_cz);
    EXPECT_EQ(h.useky[0].pridano, 7);
    EXPECT_EQ(h.pridano, 7);
    ASSERT_EQ(h.vlaky.size(), 1u);
    EXPECT_EQ(h.vlaky[0].cislo, kVlak);
    EXPECT_EQ(h.vlaky[0].pridal, 7);
    EXPECT_EQ(h.vlaky[0].kde, "Lhotín – Vyšní Hrabov"_cz);
}

TEST_F(Hodnoceni, DelayThatATrainBroughtIsNobodysHereAndMakingItUpCounts) {
    sledovani.jizdy[0].zpozdeni_vstup = 10;
    pobyt(kLhotin, 485, 490);
    pobyt(kHrabov, 494, 494); // of a dwell of two minutes none is taken
    pobyt(kHlavni, 498, -1);
    const HodnoceniSmeny h = hodnot();
    EXPECT_EQ(h.prevzato, 10);
    EXPECT_EQ(h.pridano, 0);
    EXPECT_EQ(h.nahnano, 2);
    EXPECT_TRUE(h.vlaky.empty());
}

TEST_F(Hodnoceni, TimeBeforeTheTimetableMakesNothingGood) {
    pobyt(kLhotin, 470, 475); // five minutes early
    pobyt(kHrabov, 479, 486);
    pobyt(kHlavni, 490, -1);
    const HodnoceniSmeny h = hodnot();
    EXPECT_EQ(h.pridano, 0);
    EXPECT_EQ(h.nahnano, 0);
}

TEST_F(Hodnoceni, TrainThatStandsStillHasNotLeftYet) {
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, -1);
    sledovani.jizdy[0].nyni.trva_s = 44 * 60;
    EXPECT_EQ(hodnot().pridano, 0);
    EXPECT_EQ(hodnot().ceka_dosud, 44) << "and yet it is not forgotten";
}

TEST_F(Hodnoceni, DispatcherStandsInAColumnBesideTheShift) {
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, 493);
    pobyt(kHlavni, 497, -1);
    const HodnoceniSmeny vase = hodnot();
    ASSERT_EQ(vase.useky.size(), 1u);
    HodnoceniSmeny jeho = vase;
    jeho.pridano = 3;
    jeho.useky[0].pridano = 3;
    const std::string sama = html_hodnoceni(vase), obe = html_hodnoceni(vase, &jeho);
    EXPECT_EQ(sama.find("výpravčí"), std::string::npos);
    EXPECT_NE(obe.find("<td>zpoždění, které vzniklo zde</td><td>7 min</td><td>3 min</td>"), std::string::npos)
        << obe;
    EXPECT_NE(obe.find("<td>7 min</td><td>0 min</td><td>3 min</td></tr>"), std::string::npos) << "by places";
    EXPECT_NE(sama.find("<tr><td>žádné</td></tr>"), std::string::npos) << "nobody waits";
    const auto kolik = [](const std::string& html, const char* co) {
        std::size_t n = 0;
        for (std::size_t i = 0; (i = html.find(co, i)) != std::string::npos; ++i)
            ++n;
        return n;
    };
    EXPECT_EQ(kolik(obe, "<table"), kolik(obe, "</table>"));
    EXPECT_EQ(kolik(obe, "<tr>"), kolik(obe, "</tr>"));
}

TEST_F(Hodnoceni, GoingBackInTimeIsCountedUnlessItWasUndone) {
    for (const char* text : {"8:10:00 8:05:00", "8:12:00 8:11:00 zruseno", "8:20:00 8:00:00"})
        ukony_smeny.ukony.push_back({.co = DruhUkonu::vraceno, .text = text});
    const HodnoceniSmeny h = hodnot();
    EXPECT_EQ(h.ukony.back().nazev, "návraty v čase (F4)"_cz);
    EXPECT_EQ(h.ukony.back().kolik, 2);
}

TEST_F(Hodnoceni, EachDayIsMeasuredByTheDelayThatItsOwnTrainBrought) {
    sledovani.jizdy = {jizda(0, 10), jizda(1, 0)};
    pobyt(kLhotin, 485, 490); // late from the neighbour, and as late at the end
    pobyt(kHrabov, 494, 496);
    pobyt(kHlavni, 500, 505);
    pobyt(kLhotin, kDen_min + 475, kDen_min + 480);
    pobyt(kHrabov, kDen_min + 484, kDen_min + 493); // held for seven minutes
    pobyt(kHlavni, kDen_min + 497, -1);
    const HodnoceniSmeny h = hodnot(kDen_min + 510);
    EXPECT_EQ(h.prevzato, 10);
    EXPECT_EQ(h.pridano, 7);
    EXPECT_EQ(h.nahnano, 0);
    ASSERT_EQ(h.vlaky.size(), 1u);
    EXPECT_EQ(h.vlaky[0].prevzal, 0);
    EXPECT_EQ(h.vlaky[0].pridal, 7);
    EXPECT_EQ(h.vlaky[0].vstup_s, kDen_s + 480 * 60);
    EXPECT_NE(html_hodnoceni(h).find("Os 14707 (úterý)"), std::string::npos);
}

TEST_F(Hodnoceni, DelayOfEveryDayCounts) {
    sledovani.jizdy = {jizda(0, 0), jizda(1, 0), jizda(2, 0)};
    for (int den = 0; den < 3; ++den) {
        const int od = den * kDen_min;
        pobyt(kLhotin, od + 475, od + 480);
        pobyt(kHrabov, od + 484, od + 488 + den); // two, three and four minutes
        pobyt(kHlavni, od + 492 + den, od + 500);
    }
    const HodnoceniSmeny h = hodnot(2 * kDen_min + 510);
    EXPECT_EQ(h.pridano, 9);
    ASSERT_EQ(h.useky.size(), 1u);
    EXPECT_EQ(h.useky[0].vlaku, 3);
    ASSERT_EQ(h.vlaky.size(), 3u);
    EXPECT_EQ(h.vlaky[0].pridal, 4);
    EXPECT_EQ(h.vlaky[0].vstup_s, 2 * kDen_s + 480 * 60);
}

TEST_F(Hodnoceni, TrainIsMeasuredByTheTimetableOfItsDay) {
    GvdVlak pondelni = radek_gvd(0), uterni = radek_gvd(0);
    pondelni.dny = 1;
    uterni.dny = 2;
    for (ZastavkaGvd& z : uterni.zastavky) { // an hour later
        z.prijezd = z.prijezd < 0 ? z.prijezd : static_cast<std::int16_t>(z.prijezd + 60);
        z.odjezd = z.odjezd < 0 ? z.odjezd : static_cast<std::int16_t>(z.odjezd + 60);
    }
    gvd_vlaky = TabulkaGvd({pondelni, uterni});
    sledovani.jizdy = {jizda(0, 0, 0), jizda(1, 0, 1)};
    for (const int od : {0, kDen_min + 60}) {
        pobyt(kLhotin, od + 475, od + 480);
        pobyt(kHrabov, od + 484, od + 486);
        pobyt(kHlavni, od + 490, od + 495);
    }
    const HodnoceniSmeny h = hodnot(kDen_min + 600);
    EXPECT_EQ(h.pridano, 0);
    EXPECT_TRUE(h.useky.empty());
}

TEST_F(Hodnoceni, TrainThatRunsOverMidnightIsOfTheDayOfItsEntry) {
    GvdVlak v = radek_gvd(0);
    v.zastavky = {{1, -1, 1435}, {8, 1439, 1441}, {9, 1445, -1}};
    gvd_vlaky = TabulkaGvd({v});
    sledovani.jizdy = {jizda(0, 0)};
    pobyt(kLhotin, 1430, 1435);
    pobyt(kHrabov, 1439, 1446); // held for five minutes
    pobyt(kHlavni, 1450, -1);
    const HodnoceniSmeny h = hodnot(1460);
    EXPECT_EQ(h.pridano, 5);
    ASSERT_EQ(h.vlaky.size(), 1u);
    EXPECT_EQ(h.vlaky[0].vstup_s, 1435 * 60);
}

TEST_F(Hodnoceni, TrainThatGetsItsSecondNumberIsTheSameTrain) {
    GvdVlak v = radek_gvd(0);
    v.cislo2 = kVlak + 1;
    v.druh2 = 7;
    v.stanice_zmeny = 8;
    gvd_vlaky = TabulkaGvd({v});
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, 493, kVlak, kVlak + 1); // held for seven minutes
    pobyt(kHlavni, 499, -1, kVlak + 1);         // and two more
    const HodnoceniSmeny h = hodnot();
    EXPECT_EQ(h.pridano, 9);
    ASSERT_EQ(h.useky.size(), 2u);
    EXPECT_EQ(h.useky[1].kam, "Tesk hl. n."_cz);
    EXPECT_EQ(h.useky[1].pridano, 2);
    ASSERT_EQ(h.vlaky.size(), 1u);
    EXPECT_EQ(h.vlaky[0].cislo, kVlak);
}

TEST_F(Hodnoceni, ActsBeyondTheOrdinaryAreCountedFromTheShift) {
    for (const char* polozka : {"miRC", "mirc", "miPN", "miInfo"})
        ukony_smeny.ukony.push_back({.co = DruhUkonu::polozka_menu, .text = polozka});
    ukony_smeny.ukony.push_back({.co = DruhUkonu::psani, .text = "miRC"});
    const HodnoceniSmeny h = hodnot();
    const auto kolik = [&](TextPohled nazev) {
        for (const PocetUkonu& u : h.ukony)
            if (u.nazev == nazev)
                return u.kolik;
        return -1;
    };
    EXPECT_EQ(kolik("zrušené cesty (RC)"_cz), 2);
    EXPECT_EQ(kolik("přivolávací návěsti (PN)"_cz), 1);
    EXPECT_EQ(kolik("uvolnění závěru (RNZ)"_cz), 0);
}

TEST_F(Hodnoceni, ClosingsOfACrossingAreMeasuredUpToNow) {
    const std::vector<ZmenaPrejezdu> zmeny = {{100, 0, true}, {130, 0, true}, {220, 0, false},
                                              {300, 1, true}, {400, 0, true}, {430, 0, false},
                                              {500, 0, false}};
    const std::vector<PrejezdSmeny> p = zavreni_prejezdu(zmeny, 1000);
    ASSERT_EQ(p.size(), 2u);
    EXPECT_EQ(p[0].zavreni, 2);
    EXPECT_EQ(p[0].celkem_s, 150);
    EXPECT_EQ(p[0].nejdele_s, 120);
    EXPECT_EQ(p[0].nejdele_od_s, 100);
    EXPECT_EQ(p[1].zavreni, 1);
    EXPECT_EQ(p[1].nejdele_s, 700) << "it is closed still";
}

TEST_F(Hodnoceni, CrossingsAreKeptAsTheLogHasThem) {
    gtn_zapis(1, gtn::prejezd, 1);
    ASSERT_EQ(gtn_prejezdy().size(), 1u);
    EXPECT_EQ(gtn_prejezdy()[0], (ZmenaPrejezdu{ted_s(), 1, true}));
    const MistoGtn misto = gtn_misto();
    gtn_zapis(1, gtn::prejezd, 0);
    const KonecGtn konec = gtn_odrizni(misto);
    EXPECT_EQ(gtn_prejezdy().size(), 1u);
    gtn_pripoj(konec, misto, misto);
    ASSERT_EQ(gtn_prejezdy().size(), 2u);
    EXPECT_FALSE(gtn_prejezdy()[1].zavren);
}

TEST_F(Hodnoceni, PageTellsTheTrainsAndHasTheDiagramsWhenAsked) {
    pobyt(kLhotin, 475, 480);
    pobyt(kHrabov, 484, 493);
    pobyt(kHlavni, 497, -1);
    const HodnoceniSmeny h = hodnot();
    const std::string s_nakresy = html_hodnoceni(h, nullptr, nakresy_hodnoceni(h)),
                      bez = bez_nakresu(s_nakresy);
    EXPECT_EQ(bez, html_hodnoceni(h));
    for (const char* co :
         {"Hodnocení služby", "Dochvilnost", "Os 14707", "Lhotín – Vyšní Hrabov", "km 140,310"})
        EXPECT_NE(bez.find(co), std::string::npos) << co;
    EXPECT_EQ(bez.find("<svg"), std::string::npos);
    EXPECT_NE(s_nakresy.find("<svg"), std::string::npos);
    EXPECT_NE(s_nakresy.find("vlak 14707"), std::string::npos);
    std::size_t tabulek = 0, koncu = 0;
    for (std::size_t i = 0; (i = bez.find("<table", i)) != std::string::npos; ++i)
        ++tabulek;
    for (std::size_t i = 0; (i = bez.find("</table>", i)) != std::string::npos; ++i)
        ++koncu;
    EXPECT_EQ(tabulek, koncu);
}

} // namespace
