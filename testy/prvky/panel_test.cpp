// testy/prvky/panel_test.cpp - aspects, in the panel and in words.
#include "app/casovace.h"
#include "app/simulace.h"
#include "cesty/cesta.h"
#include "pomocne/prvky_cesty.h"
#include "pomocne/virtualni_platforma.h"
#include "prvky/navestidla.h"
#include "prvky/panel.h"
#include "prvky/svety.h"

#include <set>

namespace {

struct Navest : testing::Test {
    VirtualniPlatforma svet;

    Navest() {
        navestidlo(20, "THN S20");
        navestidlo(501, "THN Se1");
        navestidlo(221, "THN Op221");
    }
    static Prvek& navestidlo(int n, TextPohled nazev) {
        Prvek& prvek = navestidla(n).zaloz(n);
        prvek.popis = Text(nazev);
        prvek.text = znak(229);
        prvek.barva = barvy::seda;
        return prvek;
    }
    static Prvek& kolej(int n, Barva barva = barvy::seda) {
        Prvek& prvek = relief.kolej.zaloz(n);
        prvek.barva = barva;
        return prvek;
    }
    // A train route that stands with its signal cleared.
    static Cesta& cesta(int zacatek, const std::vector<std::int16_t>& prvky, int rychlost = 0) {
        Cesta& c = stojici_cesta(zacatek, prvky);
        c.rychlost = static_cast<std::uint8_t>(rychlost);
        return c;
    }
    static std::set<int> sviti() {
        std::set<int> vse;
        for (int i = 0; i < 6; ++i)
            if (relief.svetlo[i].viditelny)
                vse.insert(i);
        return vse;
    }
    static std::set<int> pruhy() {
        std::set<int> vse;
        for (int i = 0; i < 2; ++i)
            if (relief.pruh[i].viditelny)
                vse.insert(i);
        return vse;
    }
};
using S = std::set<int>;

} // namespace

TEST_F(Navest, ShowsEveryAspectOfEverySpeedAndEveryNextSignal) {
    const S dolni[] = {{}, {4}, {4}, {4}};
    const S pruh[] = {{}, {}, {0}, {1}};
    struct {
        int n, svetlo, interval;
    } const horni[] = {{0, 1, 0}, {1, 0, 500}, {2, 0, 250}, {3, 1, 500}, {255, 0, 0}};
    const char* const slova[4][5] = {{"VOLNO", "MAX/40", "MAX/60", "MAX/80", "VYSTR."},
                                     {"40/MAX", "40/40", "40/60", "40/80", "40/VYS"},
                                     {"60/MAX", "60/40", "60/60", "60/80", "60/VYS"},
                                     {"80/MAX", "80/40", "80/60", "80/80", "80/VYS"}};
    for (int r = 0; r < 4; ++r)
        for (int k = 0; k < 5; ++k) {
            cesty.assign(1, Cesta{});
            relief.navestidlo[20].barva = barvy::zelena;
            cesta(20, {20, 40}, r);
            if (horni[k].n != 255)
                cesta(240, {40, 44}, horni[k].n);
            obnov_panel(20);
            S cekano = dolni[r];
            cekano.insert(horni[k].svetlo);
            EXPECT_EQ(sviti(), cekano) << r << " " << horni[k].n;
            EXPECT_EQ(pruhy(), pruh[r]) << r << " " << horni[k].n;
            EXPECT_EQ(panel_navestidla.interval, horni[k].interval);
            EXPECT_EQ(panel_navestidla.blika, horni[k].interval == 0 ? -1 : horni[k].svetlo);
            EXPECT_EQ(aspekt_text(0), slova[r][k]) << r << " " << horni[k].n;
        }
}

TEST_F(Navest, SplitsTheNameIntoStationAndSignal) {
    obnov_panel(20);
    EXPECT_EQ(relief.lblnavestidlo[0].text(), "S20");
    EXPECT_EQ(relief.lblNavestidlo_stanice[0].text(), "THN");
    EXPECT_EQ(simulace.detail_navestidlo, 20);
    navestidlo(20, "THN L 20a");
    obnov_panel(20);
    EXPECT_EQ(relief.lblnavestidlo[0].text(), "L 20a");
    navestidlo(20, "X");
    obnov_panel(20);
    EXPECT_EQ(relief.lblnavestidlo[0].text(), "");
    EXPECT_EQ(relief.lblNavestidlo_stanice[0].text(), "X");
}

TEST_F(Navest, SignalWithoutRouteShowsStop) {
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    obnov_panel(501);
    EXPECT_EQ(sviti(), S{5});
    EXPECT_EQ(panel_navestidla.tvar, TvarPanelu::serizovaci);
}

TEST_F(Navest, CommandedRouteWithItsSignalStillAtStopShowsStop) {
    cesta(20, {20, 40}, 3);
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    EXPECT_EQ(pruhy(), S{});
}

TEST_F(Navest, RouteThatIsOnlyQueuedOrMadeByTheProgramIsNotShown) {
    relief.navestidlo[20].barva = barvy::zelena;
    cesta(20, {20, 40}).prehozena = false;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    cesty[0].prehozena = true;
    cesty[0].ZT = kZTprogramu;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    cesty[0].ZT = 7;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{0});
}

TEST_F(Navest, RouteUnderATrainIsShownOnlyWhenTheHeadIsOnTheLine) {
    relief.navestidlo[20].barva = barvy::zelena; // so that finding the route shows
    kolej(604, barvy::cervena);
    kolej(654);
    Cesta& c = cesta(20, {20, 40, 604, 654});
    c.Umazat = 1;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    c.Umazat = 2;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{0}); // the line is occupied behind the signal
    relief.navestidlo[20].barva = barvy::seda;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    c.Umazat = 200; // beyond the list
    relief.navestidlo[20].barva = barvy::zelena;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
}

TEST_F(Navest, CallingOnRouteKeepsTheRedLampAndLeavesTheWhiteOneToTheRouteMachine) {
    Cesta& c = cesta(20, {20, 40});
    c.PN = true;
    for (const std::int32_t pn_do : {-3, 100, 99999999}) {
        c.PN_do = pn_do;
        for (const Barva barva : {barvy::seda, barvy::bila}) {
            relief.navestidlo[20].barva = barva;
            obnov_panel(20);
            EXPECT_EQ(sviti(), S{2});
        }
        EXPECT_EQ(aspekt_text(0), pn_do >= 0 ? "OP" : "");
    }
}

TEST_F(Navest, ShuntRouteShowsWhiteWhenCleared) {
    cesta(20, {20, 40}).VC = false;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{2});
    EXPECT_EQ(aspekt_text(0), "");
    relief.navestidlo[20].barva = barvy::bila;
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{3});
    EXPECT_EQ(aspekt_text(0), "POS.DOV");

    cesta(501, {101, 102}).VC = false;
    obnov_panel(501);
    EXPECT_EQ(sviti(), S{5});
    relief.navestidlo_ser[501].barva = barvy::bila;
    obnov_panel(501);
    EXPECT_EQ(sviti(), S{3});
}

TEST_F(Navest, RepeatersShowTheirWhiteLampWithTheAspect) {
    for (const int s : {221, 222, 223, 224, 609, 611, 220, 225, 610}) {
        cesty.assign(1, Cesta{});
        navestidlo(s, "THN Op").barva = barvy::zelena;
        cesta(s, {21, 40});
        obnov_panel(s);
        const bool opakovaci = (s >= 221 && s <= 224) || s == 609 || s == 611;
        EXPECT_EQ(sviti(), opakovaci ? (S{0, 3}) : S{0}) << s;
        relief.navestidlo[s].barva = barvy::seda;
        obnov_panel(s);
        EXPECT_EQ(sviti(), S{2}) << s;
    }
}

TEST_F(Navest, FlashesItsLampByItsOwnTimerAndStopsWithTheAspect) {
    relief.navestidlo[20].barva = barvy::zelena;
    cesta(20, {20, 40}, 0);
    cesta(240, {40, 44}, 2);
    obnov_panel(20);
    EXPECT_EQ(perioda_blikani_diag(), 250);
    krok_blikani_diag();
    EXPECT_EQ(sviti(), S{});
    krok_blikani_diag();
    EXPECT_EQ(sviti(), S{0});
    krok_blikani_diag(); // dark phase
    relief.navestidlo[20].barva = barvy::seda;
    obnov_panel_kdyz_ukazuje(20);
    EXPECT_EQ(sviti(), S{2});
    EXPECT_EQ(perioda_blikani_diag(), 0);
    krok_blikani_diag();
    EXPECT_EQ(sviti(), S{2});
}

TEST_F(Navest, RefreshLeavesThePanelToTheSignalThatItShows) {
    obnov_panel(501);
    relief.navestidlo[20].barva = barvy::zelena;
    cesta(20, {20, 40});
    obnov_panel_kdyz_ukazuje(20);
    EXPECT_EQ(simulace.detail_navestidlo, 501);
    EXPECT_EQ(sviti(), S{5});
}

TEST_F(Navest, SignalThatDoesNotExistChangesNothing) {
    obnov_panel(20);
    obnov_panel(77);
    obnov_panel(kZadny);
    EXPECT_EQ(simulace.detail_navestidlo, 20);
}

TEST_F(Navest, MastFollowsTheNumberOfTheSignal) {
    const std::set<int> kratke = {637, 639, 277, 634, 636, 315, 316, 998, 609, 611, 41,  42,
                                  43,  284, 285, 200, 201, 202, 203, 22,  23,  24,  25,  26,
                                  27,  28,  29,  30,  31,  32,  33,  34,  35,  222, 223, 224,
                                  226, 227, 228, 229, 230, 231, 232, 233, 234, 235};
    const std::set<int> bez_pruhu = {613, 615, 93, 96};
    const std::set<int> bez_zluteho = {221, 345, 225};
    for (int s = 0; s <= 999; ++s) {
        const bool ser = (s >= 500 && s <= 599) || (s >= 700 && s != 998);
        const TvarPanelu cekany = ser                    ? TvarPanelu::serizovaci
                                  : kratke.count(s)      ? TvarPanelu::kratky
                                  : bez_pruhu.count(s)   ? TvarPanelu::bez_pruhu
                                  : bez_zluteho.count(s) ? TvarPanelu::bez_zluteho
                                                         : TvarPanelu::dlouhy;
        EXPECT_EQ(tvar_panelu(s), cekany) << s;
        EXPECT_EQ(popis_panelu(tvar_panelu(s)).tvar, cekany) << s;
    }
    EXPECT_FALSE(popis_panelu(TvarPanelu::bez_zluteho).svetla[svetla::horni_zlute]);
    EXPECT_FALSE(popis_panelu(TvarPanelu::bez_pruhu).pruhy[0]);
    EXPECT_TRUE(popis_panelu(TvarPanelu::serizovaci).svetla[svetla::modre]);
}

// --- what the next signal announces

TEST_F(Navest, ExitsOfTheJunctionAnnounceAFreeLine) {
    for (const int e : {212, 213, 219, 120, 123, 118, 64, 67, 88})
        EXPECT_EQ(dalsi_navest(e), 0) << e;
    EXPECT_EQ(dalsi_navest(65), kNavestStuj);
}

TEST_F(Navest, WithoutAFurtherRouteTheNextSignalIsAtStop) {
    EXPECT_EQ(dalsi_navest(40), kNavestStuj);
    EXPECT_EQ(dalsi_navest(-3), kNavestStuj);
    Cesta& c = cesta(240, {40, 44}, 2);
    EXPECT_EQ(dalsi_navest(40), 2);
    c.Postavena = false;
    EXPECT_EQ(dalsi_navest(40), kNavestStuj);
    c.Postavena = true;
    c.cas_ruseni = 0;
    EXPECT_EQ(dalsi_navest(40), kNavestStuj);
    c.cas_ruseni = -3;
    c.VC = false;
    EXPECT_EQ(dalsi_navest(40), kNavestStuj);
}

TEST_F(Navest, RepeaterShowsWhatTheSignalBehindItShows) {
    cesta(221, {40, 44}, 0);
    cesta(222, {44, 45}, 1);
    EXPECT_EQ(dalsi_navest(40), kNavestStuj); // the true signal behind both is at stop
    cesta(245, {45, 46}, 3);
    EXPECT_EQ(dalsi_navest(40), 3);
    cesty.pop_back();
    cesty.back().konec = 120;
    EXPECT_EQ(dalsi_navest(40), 0);
}

TEST_F(Navest, RingOfRepeatersIsTakenForStop) {
    cesta(221, {40, 44});
    cesta(224, {44, 40});
    EXPECT_EQ(dalsi_navest(40), kNavestStuj);
}

TEST_F(Navest, RouteToTheLineAnnouncesItsSectionNextToTheSignal) {
    for (const int n : {604, 654, 704})
        kolej(n);
    // upwards: the route ends on 704, the train enters over 604
    EXPECT_EQ(dalsi_navest(704), 0);
    relief.kolej[604].barva = barvy::cervena;
    EXPECT_EQ(dalsi_navest(704), kNavestStuj);
    EXPECT_EQ(dalsi_navest(604), 0);
    // downwards: the route ends on 604, the train enters over 704
    relief.kolej[604].barva = barvy::seda;
    relief.kolej[704].barva = barvy::cervena;
    EXPECT_EQ(dalsi_navest(604), kNavestStuj);
    EXPECT_EQ(dalsi_navest(704), 0);
    relief.kolej[704].barva = barvy::azurova; // whatever is not grey
    EXPECT_EQ(dalsi_navest(604), kNavestStuj);
    EXPECT_EQ(dalsi_navest(610), kNavestStuj); // a line that does not exist
}

TEST_F(Navest, AspectOfARouteThatDoesNotExistIsEmpty) {
    EXPECT_EQ(aspekt_text(0), ""); // the empty record
    EXPECT_EQ(aspekt_text(-1), "");
    EXPECT_EQ(aspekt_text(5), "");
    cesta(20, {20, 40}).prvky.clear(); // as a damaged save could bring it
    relief.navestidlo[20].barva = barvy::zelena;
    EXPECT_EQ(aspekt_text(0), "VYSTR.");
    obnov_panel(20);
    EXPECT_EQ(sviti(), S{0});
}
