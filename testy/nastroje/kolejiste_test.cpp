// testy/nastroje/kolejiste_test.cpp - the compiler of the layout, and the junction that it compiles.
#include "kolejiste/graf.h"
#include "kolejiste/kontroly.h"
#include "kolejiste/kresba.h"
#include "kolejiste/vystup.h"
#include "pomocne/zdroj_kolejiste.h"
#include "relief/nacti_relief.h"
#include "relief/relief.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace kolejiste;

namespace {

// A source, compiled as far as it goes.
struct Preklad {
    Plan plan;
    std::vector<Zavada> zavady;
    Graf graf;
    std::vector<ZaznamReliefu> jeden, dva;

    explicit Preklad(std::string_view zdroj) {
        precti(zdroj, "zkouska.tk", plan, zavady);
        dokonci();
    }
    Preklad() = default;
    void dokonci() {
        graf = sestav_graf(plan, zavady);
        jeden = nakresli(plan, Obraz::jeden, zavady);
        dva = nakresli(plan, Obraz::dva, zavady);
        zkontroluj(plan, graf, jeden, dva, zavady);
    }
    bool hlasi(std::string_view cast) const {
        return std::any_of(zavady.begin(), zavady.end(),
                           [&](const Zavada& z) { return veta(z).find(cast) != std::string::npos; });
    }
    std::string vsechny() const {
        std::string s;
        for (const Zavada& z : zavady)
            s += veta(z) + "\n";
        return s;
    }
    const ZaznamReliefu* zaznam(TypReliefu typ, int cislo, Obraz obraz = Obraz::jeden) const {
        for (const ZaznamReliefu& z : obraz == Obraz::jeden ? jeden : dva)
            if (z.typ == static_cast<std::uint8_t>(typ) && z.cislo == cislo)
                return &z;
        return nullptr;
    }
};

// A track that parts in two; the lower one ends at a buffer stop.
constexpr std::string_view kMale = R"(# a comment
stanice BOR "Borovec"
jeden 10,5
dva   20,5
vsun  14 10
kolej  62   0,1  10,1 400m stitek K1 cil
vyhybka 7  10,1 hrot vlevo dole jmeno A
kolej  63  12,1  30,1 600m stitek 2 druhy cil "BOR druhá"
kolej 441  12,2^ 13,2  60m
kolej  64  13,2  24,2 450m stitek 3 cil
okraj 62:vlevo 63:vpravo
zarazedlo 64:vpravo
navestidlo 262 S1 vpravo
navestidlo 263 S2 vpravo
navestidlo  63 L2 vlevo
)";

std::string s_radkem(std::string_view radek) {
    return std::string(kMale) + std::string(radek) + "\n";
}

// The junction itself.
const Preklad& tesk() {
    static const Preklad preklad = [] {
        Preklad p;
        precti_kolejiste(p.plan, p.zavady);
        p.dokonci();
        return p;
    }();
    return preklad;
}

std::vector<int> koleje_cesty(const Preklad& p, int od, bool vpravo, int do_) {
    std::vector<int> koleje;
    for (const Krok& k : nejkratsi_cesta(p.plan, p.graf, od, vpravo, do_))
        if (k.typ == Typ::kolej)
            koleje.push_back(k.cislo);
    return koleje;
}

bool obsahuje(const std::vector<int>& koleje, int kolej) {
    return std::find(koleje.begin(), koleje.end(), kolej) != koleje.end();
}

} // namespace

// --- the source

TEST(ZdrojKolejiste, SmallStationHasNoFault) {
    const Preklad p(kMale);
    EXPECT_EQ(p.vsechny(), "");
}

TEST(ZdrojKolejiste, FaultNamesFileLineAndElement) {
    const Preklad p("stanice BOR \"Borovec\"\nkolej 26 0,0 ahoj\n");
    ASSERT_EQ(p.zavady.size(), 1u);
    EXPECT_EQ(veta(p.zavady[0]), "zkouska.tk:2: kolej 26: pravý konec má být sloupec,řádek, je tu \"ahoj\"");
}

TEST(ZdrojKolejiste, EveryFaultOfASourceIsReported) {
    const Preklad p("kolej 1 0,0 5,0\n"
                    "stanice BORO\n"
                    "stanice BOR \"Borovec\"\n"
                    "hranice 5\n"
                    "kolej 1000 0,0 5,0\n"
                    "popis \"nedopsaný\n"
                    "vyhybka 256 0,0 hrot vlevo dole\n"
                    "vyhybka 7 0,0 hrot vlevo\n"
                    "kolej 5 0,0 5,0 100m nesmysl\n"
                    "kolej 6 0,0 5,0 0m\n"
                    "popis \"日本\" 0,0\n");
    const char* cekane[] = {"zkouska.tk:1: kolej: prvek stojí před první stanicí",
                            "zkouska.tk:2: stanice BORO: kód má mít tři písmena",
                            "zkouska.tk:4: nerozumím slovu \"hranice\"",
                            "zkouska.tk:5: kolej 1000: čísla prvků jsou 0 až 999",
                            "zkouska.tk:6: uvozovky nejsou uzavřeny",
                            "zkouska.tk:7: vyhybka 256: čísla výhybek jsou nejvýše 255",
                            "zkouska.tk:8: vyhybka 7: výhybka s hrotem \"vlevo\" a odbočkou \"\" není",
                            "zkouska.tk:9: kolej 5: nerozumím slovu \"nesmysl\"",
                            "zkouska.tk:10: kolej 6: délka má být 1 až 9999 m",
                            "zkouska.tk:11: popis: znak v \"日本\" nemá místo ve znakové sadě 1250"};
    for (const char* c : cekane)
        EXPECT_TRUE(p.hlasi(c)) << c << "\n" << p.vsechny();
    EXPECT_EQ(p.zavady.size(), std::size(cekane)) << p.vsechny();
}

TEST(ZdrojKolejiste, ElementDrawnTwiceIsAFaultThatNamesTheFirst) {
    const Preklad p(s_radkem("kolej 62 0,8 5,8"));
    EXPECT_TRUE(p.hlasi("zkouska.tk:16: kolej 62: už stojí v zkouska.tk:6")) << p.vsechny();
}

TEST(ZdrojKolejiste, PlacesAndNumbersBeyondAllMeasureAreFaults) {
    EXPECT_TRUE(
        Preklad(s_radkem("kolej 65 0,8 2000000000,8")).hlasi("kolej 65: pravý konec má být sloupec,řádek"));
    EXPECT_TRUE(
        Preklad(s_radkem("kolej 65 0,8 99999999999,8")).hlasi("kolej 65: pravý konec má být sloupec,řádek"));
    EXPECT_TRUE(
        Preklad(s_radkem("nastupiste 1 0,8 100000")).hlasi("nastupiste 1: délka ve sloupcích je mimo meze"));
    EXPECT_TRUE(
        Preklad(s_radkem("kolej 65 0,8 9,8 stitek A sirka 0")).hlasi("kolej 65: šířka štítku je mimo meze"));
    EXPECT_TRUE(Preklad(s_radkem("prejezd 0 70000 100 \"A\"")).hlasi("prejezd 0: hodnota je mimo meze"));
    EXPECT_TRUE(Preklad(s_radkem("prejezd -1 62 100 \"A\"")).hlasi("prejezd -1: hodnota je mimo meze"));
}

// --- the graph

TEST(GrafKolejiste, EndsOnTheSamePointMeet) {
    const Preklad p(kMale);
    using enum Port;
    EXPECT_EQ(p.graf.soused({Typ::kolej, 62, vpravo}), (Konec{Typ::vyhybka, 7, vlevo}));
    EXPECT_EQ(p.graf.soused({Typ::vyhybka, 7, vpravo}), (Konec{Typ::kolej, 63, vlevo}));
    EXPECT_EQ(p.graf.soused({Typ::vyhybka, 7, vpravo_dole}), (Konec{Typ::kolej, 441, vlevo}));
    EXPECT_EQ(p.graf.soused({Typ::kolej, 64, vlevo}), (Konec{Typ::kolej, 441, vpravo}));
    EXPECT_EQ(p.graf.soused({Typ::kolej, 62, vlevo}), std::nullopt);
}

TEST(GrafKolejiste, SwitchLeadsByItsPosition) {
    const Preklad p(kMale);
    const auto z_hrotu = pruchody(p.plan, {Typ::vyhybka, 7, Port::vlevo});
    ASSERT_EQ(z_hrotu.size(), 2u);
    EXPECT_EQ(z_hrotu[0].poloha, 3); // plus first
    EXPECT_EQ(z_hrotu[0].kam.port, Port::vpravo);
    EXPECT_EQ(z_hrotu[1].poloha, 2);
    EXPECT_EQ(z_hrotu[1].kam.port, Port::vpravo_dole);
    const auto z_odbocky = pruchody(p.plan, {Typ::vyhybka, 7, Port::vpravo_dole});
    ASSERT_EQ(z_odbocky.size(), 1u); // no way from leg to leg
    EXPECT_EQ(z_odbocky[0].kam.port, Port::vlevo);
}

TEST(GrafKolejiste, WayNeverTurnsBackInASwitch) {
    const Preklad p(kMale);
    EXPECT_EQ(nejkratsi_cesta(p.plan, p.graf, 62, true, 64),
              (std::vector<Krok>{
                  {Typ::kolej, 62, 0}, {Typ::vyhybka, 7, 2}, {Typ::kolej, 441, 0}, {Typ::kolej, 64, 0}}));
    EXPECT_TRUE(nejkratsi_cesta(p.plan, p.graf, 63, false, 64).empty());
}

TEST(GrafKolejiste, EndThatHangsFreeIsAFault) {
    const Preklad p(s_radkem("kolej 65 0,5 5,5\nokraj 65:vpravo"));
    EXPECT_TRUE(p.hlasi("zkouska.tk:16: kolej 65 vlevo: konec v 0,5 na nic nenavazuje")) << p.vsechny();
    EXPECT_EQ(p.zavady.size(), 1u) << p.vsechny();
}

TEST(GrafKolejiste, ThreeEndsOnOnePointAreAFault) {
    const Preklad p(s_radkem("kolej 65 30,1 34,1\nkolej 66 30,1 34,1\nokraj 65:vpravo 66:vpravo"));
    EXPECT_TRUE(p.hlasi("se potkávají: ")) << p.vsechny();
}

TEST(GrafKolejiste, BlocksMeetOnlyByName) {
    const std::string druhy =
        "stanice TKL \"Luka\"\njeden 10,5\ndva 20,5\nkolej 70 30,1 34,1 90m\nokraj 70:vpravo\n";
    EXPECT_TRUE(Preklad(s_radkem(druhy)).hlasi("kolej 70 vlevo: konec v 30,1 na nic nenavazuje"));
    std::string zdroj(kMale);
    zdroj.replace(zdroj.find(" 63:vpravo"), 10, "");
    const Preklad p(zdroj + druhy + "spoj 63:vpravo 70:vlevo\n");
    EXPECT_EQ(p.graf.soused({Typ::kolej, 63, Port::vpravo}), (Konec{Typ::kolej, 70, Port::vlevo}));
    EXPECT_FALSE(p.hlasi("nenavazuje")) << p.vsechny();
}

TEST(GrafKolejiste, JoinToAnUnknownEndIsAFault) {
    EXPECT_TRUE(Preklad(s_radkem("spoj 63:vpravo 99:vlevo")).hlasi("kolej 99 vlevo: takový konec není"));
    EXPECT_TRUE(
        Preklad(s_radkem("okraj v7:vlevo_nahore")).hlasi("vyhybka 7 vlevo_nahore: takový konec není"));
    EXPECT_TRUE(Preklad(s_radkem("okraj 62:nahore")).hlasi("\"nahore\" není konec tohoto prvku"));
    EXPECT_TRUE(Preklad(s_radkem("okraj 63:vpravo")).hlasi("už spojen nebo ukončen jinde"));
}

TEST(GrafKolejiste, SecondDrawingIsNoPartOfTheGraph) {
    const Preklad p(s_radkem("obrazy 63 70\nobraz 70 vzor 63 40,8 44,8\npopis \"A\" 37,8\npopis \"B\" 45,8"));
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.graf.soused({Typ::kolej, 70, Port::vlevo}), std::nullopt);
    ASSERT_NE(p.zaznam(TypReliefu::kolej, 70), nullptr);
}

// --- the picture

TEST(KresbaKolejiste, TrackLiesInTheMiddleOfItsRow) {
    const Preklad p(kMale);
    const ZaznamReliefu* k = p.zaznam(TypReliefu::kolej, 62);
    ASSERT_NE(k, nullptr);
    EXPECT_EQ(k->a, 10 * 120);
    EXPECT_EQ(k->b, 20 * 120);
    EXPECT_EQ(k->c, 690 + 6 * 195 + 97);
    EXPECT_EQ(k->d, k->c);
    const ZaznamReliefu* v = p.zaznam(TypReliefu::vyhybka, 7);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->a, k->b); // the cell begins where the track ends
    EXPECT_EQ(v->c, k->c - kOsaRadku);
    EXPECT_EQ(v->nazev, "3");
}

TEST(KresbaKolejiste, SignalStandsInTheLastColumnOfItsTrack) {
    const Preklad p(kMale);
    const ZaznamReliefu* n = p.zaznam(TypReliefu::navestidlo, 262);
    ASSERT_NE(n, nullptr);
    EXPECT_EQ(n->a, (20 - 1) * 120);
    EXPECT_EQ(n->parametr, 229);
    EXPECT_EQ(n->nazev, "BOR S1");
    EXPECT_EQ(p.zaznam(TypReliefu::navestidlo, 63)->parametr, 230);
    EXPECT_EQ(p.zaznam(TypReliefu::navestidlo, 63)->a, 22 * 120);
}

TEST(KresbaKolejiste, FailedLampIsMovedToItsPlaceByTheDesk) {
    const Preklad p(s_radkem("kolej 105 0,8 9,8 90m\nokraj 105:vlevo 105:vpravo\nnavestidlo 305 Sk vpravo"));
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.zaznam(TypReliefu::navestidlo, 305)->a, (10 + 9 - 2) * 120);
}

TEST(KresbaKolejiste, SignalOfAFoldedTrackStandsAtTheOtherEnd) {
    const Preklad p(s_radkem("kolej 118 0,8 9,8 90m\nokraj 118:vlevo 118:vpravo\n"
                             "navestidlo 998 KS vpravo na 118 konec vlevo"));
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.zaznam(TypReliefu::navestidlo, 998)->a, 10 * 120);
    EXPECT_EQ(p.zaznam(TypReliefu::navestidlo, 998)->parametr, 229);
    ASSERT_NE(p.plan.navestidlo_u(118, Strana::vlevo), nullptr);
    EXPECT_EQ(p.plan.navestidlo_u(118, Strana::vlevo)->cislo, 998);
    EXPECT_EQ(p.plan.navestidlo_u(118, Strana::vpravo), nullptr);
}

TEST(KresbaKolejiste, SecondLabelCarriesTheNumberPlusTwoHundredAndTheSameName) {
    const Preklad p(kMale);
    ASSERT_NE(p.zaznam(TypReliefu::cislo_koleje, 263), nullptr);
    EXPECT_EQ(p.zaznam(TypReliefu::cislo_koleje, 263)->nazev, p.zaznam(TypReliefu::cislo_koleje, 63)->nazev);
    EXPECT_EQ(p.zaznam(TypReliefu::cil, 62)->nazev, "BOR K1");
    EXPECT_EQ(p.zaznam(TypReliefu::cil, 63)->nazev, "BOR druhá"_cz);
}

TEST(KresbaKolejiste, TargetIsCalledAfterItsLabelWithoutTheBlanksBesideTheName) {
    const Preklad p(s_radkem("kolej 65 0,8 9,8 90m stitek \" X9 \" cil\nokraj 65:vlevo 65:vpravo"));
    ASSERT_NE(p.zaznam(TypReliefu::cislo_koleje, 65), nullptr);
    EXPECT_EQ(p.zaznam(TypReliefu::cislo_koleje, 65)->nazev, " X9 ");
    EXPECT_EQ(p.zaznam(TypReliefu::cil, 65)->nazev, "BOR X9");
}

TEST(KresbaKolejiste, BlockMovesAsAWhole) {
    std::string jinde(kMale);
    jinde.replace(jinde.find("jeden 10,5"), 10, "jeden 15,8");
    const Preklad a(kMale), b(jinde);
    ASSERT_EQ(a.jeden.size(), b.jeden.size());
    for (std::size_t i = 0; i < a.jeden.size(); ++i) {
        EXPECT_EQ(b.jeden[i].a - a.jeden[i].a, 5 * 120);
        EXPECT_EQ(b.jeden[i].c - a.jeden[i].c, 3 * 195);
    }
    EXPECT_EQ(a.dva, b.dva);
}

TEST(KresbaKolejiste, ColumnsLetInLengthenTheLinesThatCrossThem) {
    const Preklad p(kMale);
    const auto sirka = [&](int kolej, Obraz o) {
        return p.zaznam(TypReliefu::kolej, kolej, o)->b - p.zaznam(TypReliefu::kolej, kolej, o)->a;
    };
    EXPECT_EQ(sirka(62, Obraz::dva), sirka(62, Obraz::jeden));
    EXPECT_EQ(sirka(63, Obraz::dva), sirka(63, Obraz::jeden) + 10 * 120);
    EXPECT_EQ(sirka(441, Obraz::dva), sirka(441, Obraz::jeden));
}

TEST(KresbaKolejiste, ColumnsLetInInsideASwitchAreAFault) {
    std::string zdroj(kMale);
    zdroj.replace(zdroj.find("vsun  14 10"), 11, "vsun  11 10");
    EXPECT_TRUE(Preklad(zdroj).hlasi("na dvou monitorech se nedotýká prvku"));
}

TEST(KresbaKolejiste, TrackMayLieElsewhereOnTwoMonitors) {
    const Preklad p(s_radkem("kolej 65 0,8 5,8 60m dva 50,8 60,8\nokraj 65:vlevo 65:vpravo"));
    EXPECT_EQ(p.vsechny(), "");
    EXPECT_EQ(p.zaznam(TypReliefu::kolej, 65)->a, 10 * 120);
    EXPECT_EQ(p.zaznam(TypReliefu::kolej, 65, Obraz::dva)->a, (20 + 50 + 10) * 120);
}

TEST(KresbaKolejiste, DiagonalOffTheRasterIsAFault) {
    EXPECT_TRUE(Preklad(s_radkem("kolej 65 0,8 5,9 60m\nokraj 65:vlevo 65:vpravo"))
                    .hlasi("kolej 65: šikmá kolej neběží po rastru"));
    EXPECT_FALSE(Preklad(s_radkem("kolej 65 0,8^ 4,10^ 60m\nokraj 65:vlevo 65:vpravo")).hlasi("rastru"));
}

TEST(KresbaKolejiste, ThingsOutsideThePictureAndUnderThePanelAreFaults) {
    EXPECT_TRUE(Preklad(s_radkem("popis \"DALEKO\" 115,8")).hlasi("popis \"DALEKO\": leží mimo obraz"));
    EXPECT_TRUE(Preklad(s_radkem("popis \"NÍZKO\" 0,37")).hlasi("leží mimo obraz (jeden monitor)"));
    EXPECT_TRUE(
        Preklad(s_radkem("popis \"PANEL\" 108,1")).hlasi("leží pod návěstním panelem (jeden monitor)"));
}

TEST(KresbaKolejiste, LabelsThatCollideAreFaults) {
    EXPECT_TRUE(Preklad(s_radkem("popis \"X\" 2,1")).hlasi("překrývá se s popis \"X\""));
    EXPECT_TRUE(Preklad(s_radkem("popis \"PRES\" 15,1")).hlasi("běží přes popis \"PRES\""));
    EXPECT_TRUE(Preklad(s_radkem("kolej 65 0,8 6,8 60m stitek A druhy\nokraj 65:vlevo 65:vpravo"))
                    .hlasi("kolej 65: mezi štítky a návěstidly nezbývá místo pro čáru"));
}

TEST(KresbaKolejiste, CoreReadsWhatTheCompilerWrites) {
    const Preklad p(kMale);
    relief = novy_relief();
    nacti_relief(soubor_reliefu(p.jeden, "zkouska"));
    ASSERT_TRUE(relief.kolej.je(441));
    EXPECT_EQ(relief.kolej[441].y2 - relief.kolej[441].y1, 97);
    EXPECT_EQ(relief.navestidlo[262].popis, "BOR S1"_cz);
    EXPECT_EQ(relief.imgVyhybka[7].stav, "3"_cz);
    EXPECT_EQ(relief.Image1[62].stav, "BOR K1"_cz);
    EXPECT_EQ(relief.cislo_koleje[263].popis, "2"_cz);
    EXPECT_EQ(jmeno(263), "BOR S2"_cz);
    relief = novy_relief();
}

// --- the files, byte for byte

TEST(SouboryKolejiste, ReliefOfATinyLayoutByteForByte) {
    const Preklad p("stanice ABC \"A\"\njeden 1,0\nkolej 5 0,0 8,0 90m stitek 7\nokraj 5:vlevo 5:vpravo\n"
                    "navestidlo 205 S vpravo\n");
    ASSERT_EQ(p.vsechny(), "");
    const Bajty cekane = {
        0, 0,    0, 0,   1, 0, 'x',                                                                 // header
        1, 5,    0, 0,   0, 0, 0x78, 0x00, 0x38, 0x04, 0x13, 0x03, 0x13, 0x03,                      // track
        3, 5,    0, 0,   1, 0, '7',  0x78, 0x00, 0,    0,    0xB2, 0x02, 0,    0,                   // label
        2, 0xCD, 0, 229, 5, 0, 'A',  'B',  'C',  ' ',  'S',  0xC0, 0x03, 0,    0, 0xB2, 0x02, 0, 0, // signal
    };
    EXPECT_EQ(soubor_reliefu(p.jeden, "x"), cekane);
}

TEST(SouboryKolejiste, LengthsStandByRisingNumberInThreeAndFourPlaces) {
    const Bajty b = soubor_delek(Preklad(kMale).plan);
    EXPECT_EQ(std::string(b.begin(), b.end()), " 62 400 63 600 64 450441  60");
}

TEST(SouboryKolejiste, LinksNameTheSwitchAndItsMates) {
    const Preklad p(s_radkem("vyhybka 9 0,8 hrot vlevo dole jmeno 1 spojka 12\n"
                             "vyhybka 12 2,9 hrot vpravo nahore jmeno 3 spojka 9\n"
                             "okraj v9:vlevo v9:vpravo v12:vlevo v12:vpravo"));
    EXPECT_EQ(p.vsechny(), "");
    const Bajty cekane = {
        7,  1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 255, 1, 0, 'A',           // no mate
        9,  1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 12,  3, 0, '1', '/', '3', //
        12, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 9,   3, 0, '3', '/', '1', //
    };
    EXPECT_EQ(soubor_vazeb(p.plan), cekane);
}

TEST(SouboryKolejiste, CrossingsStandByTheirIndex) {
    const Preklad p(s_radkem("prejezd_na 63 0 1\nprejezd 1 63 400 \"B\"\nprejezd 0 63 390 \"A\""));
    EXPECT_TRUE(p.hlasi("potřebuje nejméně 350 m koleje na obě strany")); // 600 m are too few
    EXPECT_EQ(soubor_prejezdu(p.plan),
              (Bajty{0, 1, 0, 'A', 63, 0, 0x86, 0x01, 0, 1, 0, 'B', 63, 0, 0x90, 0x01}));
}

// --- what the rules demand

TEST(KontrolaKolejiste, SignalFacesAsItsNumberSays) {
    EXPECT_TRUE(
        Preklad(s_radkem("navestidlo 64 L3 vpravo")).hlasi("navestidlo 64: podle čísla platí doleva"));
    EXPECT_TRUE(
        Preklad(s_radkem("navestidlo 64 L3 vlevo znak 229")).hlasi("navestidlo 64: znak 229 neplatí doleva"));
    EXPECT_TRUE(Preklad(s_radkem("navestidlo 64 S1 vlevo")).hlasi("jméno \"BOR S1\" už nese 262"));
    EXPECT_TRUE(
        Preklad(s_radkem("posunove 500 Se vlevo na 64")).hlasi("číslo 500 není ani hlavní, ani posunové"));
    EXPECT_TRUE(Preklad(s_radkem("navestidlo 564 L3 vlevo na 64")).hlasi("toto číslo patří posunovým"));
}

TEST(KontrolaKolejiste, LabelMustNotBelongToAnotherTrack) {
    // a train on the track 263 would be written down on the second label of 63
    EXPECT_TRUE(Preklad(s_radkem("kolej 263 0,8 9,8 90m\nokraj 263:vlevo 263:vpravo"))
                    .hlasi("kolej 263: štítek 263 patří něčemu jinému"));
    EXPECT_TRUE(Preklad(s_radkem("zakazane cislo_koleje 260-265"))
                    .hlasi("cislo_koleje 263: toto číslo nesmí být použito"));
    EXPECT_TRUE(Preklad(s_radkem("kolej 12 0,8 20,8 90m stitek 2 druhy\nokraj 12:vlevo 12:vpravo"))
                    .hlasi("kolej 12: nesmí mít druhý štítek"));
}

TEST(KontrolaKolejiste, LineNeedsItsArrowItsLabelAndBothSignals) {
    const Preklad p(s_radkem("povinne kolej 640 690\nkolej 640 0,8 9,8 90m\nkolej 690 9,8 14,8 90m\n"
                             "okraj 640:vlevo 690:vpravo"));
    for (const char* c : {"trať nemá návěstidlo 640", "trať nemá návěstidlo 641", "trať nemá šipku směru",
                          "trať nemá štítek čísla vlaku"})
        EXPECT_TRUE(p.hlasi(c)) << c;
    EXPECT_EQ(p.zavady.size(), 4u) << p.vsechny();
    // the signal at the right end stands on the last section
    const Preklad q(s_radkem("povinne kolej 640 690\nkolej 640 0,8 9,8 90m\nkolej 690 9,8 14,8 90m\n"
                             "okraj 640:vlevo 690:vpravo\nnavestidlo 641 L vpravo"));
    EXPECT_EQ(q.zaznam(TypReliefu::navestidlo, 641)->a, (10 + 14 - 1) * 120);
}

TEST(KontrolaKolejiste, CoupledSwitchesKnowEachOther) {
    EXPECT_TRUE(
        Preklad(s_radkem("vyhybka 8 0,8 hrot vlevo dole spojka 7\n")).hlasi("výhybka 7 o spojení neví"));
    EXPECT_TRUE(
        Preklad(s_radkem("vyhybka 8 0,8 hrot vlevo dole spojka 99\n")).hlasi("spojená výhybka 99 není"));
    EXPECT_TRUE(
        Preklad(s_radkem("vyhybka 8 0,8 hrot vlevo dole jmeno a\n")).hlasi("jméno \"a\" už nese výhybka 7"));
}

TEST(KontrolaKolejiste, NumberNearByChanceIsNoFlank) {
    const auto s_cislem = [](const char* cislo) {
        return Preklad(s_radkem("vyhybka 20 0,8 hrot vlevo dole spojka 21\nvyhybka 21 2,9 hrot vpravo nahore "
                                "spojka 20\n"
                                "vyhybka " +
                                std::string(cislo) + " 2,8 hrot vpravo nahore\n"))
            .hlasi("stojí ve čtvrtém rohu výhybek 20 a 21");
    };
    EXPECT_TRUE(s_cislem("22"));
    EXPECT_FALSE(s_cislem("25"));
}

TEST(KontrolaKolejiste, OrderFromLeftToRightIsKept) {
    EXPECT_FALSE(Preklad(s_radkem("zleva 62 pred 63")).hlasi("má začínat"));
    EXPECT_TRUE(Preklad(s_radkem("zprava 62 za 63")).hlasi("kolej 62: má začínat vpravo od koleje 63"));
}

TEST(KontrolaKolejiste, TrackIsNotShorterThanItsRuleDemands) {
    EXPECT_TRUE(Preklad(s_radkem("nejmene 62 420")).hlasi("kolej 62: délka 400 m je menší než 420 m"));
    EXPECT_FALSE(Preklad(s_radkem("nejmene 62 400")).hlasi("délka"));
}

TEST(KontrolaKolejiste, DemandedNumbersThatAreMissingAreListed) {
    const Preklad p(s_radkem("povinne kolej 60-64\npovinne navestidlo 262 264"));
    const auto chybi = chybejici(p.plan, p.jeden);
    EXPECT_EQ(chybi.at("kolej"), (std::vector<int>{60, 61}));
    EXPECT_EQ(chybi.at("navestidlo"), (std::vector<int>{264}));
}

// --- the junction

TEST(Tesk, IsDrawnWithoutFaults) {
    EXPECT_EQ(tesk().vsechny(), "");
    EXPECT_GT(tesk().jeden.size(), 400u);
}

TEST(Tesk, EveryLineOfHrabovReachesItsTracks) {
    for (const int kolej : {9, 10, 11, 12, 13, 14, 15, 16, 17, 18}) {
        for (const int trat : {650, 652})
            EXPECT_FALSE(koleje_cesty(tesk(), trat, true, kolej).empty()) << trat << " " << kolej;
        for (const int trat : {19, 20, 21})
            EXPECT_FALSE(koleje_cesty(tesk(), trat, false, kolej).empty()) << trat << " " << kolej;
    }
    for (const int kolej : {9, 10, 11, 18}) {
        EXPECT_TRUE(obsahuje(koleje_cesty(tesk(), 97, true, kolej), 427)) << kolej;
        EXPECT_TRUE(obsahuje(koleje_cesty(tesk(), kolej, false, 97), 427)) << kolej;
    }
}

TEST(Tesk, JavorinLiesBetweenItsThreeLines) {
    for (const int konec : {84, 85})
        for (const int kolej : {0, 1, 2, 3}) {
            const auto koleje = koleje_cesty(tesk(), konec, true, kolej);
            EXPECT_FALSE(koleje.empty()) << konec << " " << kolej;
            EXPECT_TRUE(obsahuje(koleje, konec == 84 ? 413 : 414)) << konec << " " << kolej;
        }
    for (const int kolej : {0, 1, 2, 3})
        for (const int trat : {604, 606}) {
            EXPECT_FALSE(koleje_cesty(tesk(), kolej, true, trat).empty()) << kolej << " " << trat;
            EXPECT_FALSE(koleje_cesty(tesk(), trat, false, kolej).empty()) << kolej << " " << trat;
        }
    EXPECT_EQ(koleje_cesty(tesk(), 654, true, 97), (std::vector<int>{654, 418, 97}));
    const auto zpet = koleje_cesty(tesk(), 10, false, 656);
    EXPECT_TRUE(obsahuje(zpet, 427) && obsahuje(zpet, 97) && obsahuje(zpet, 419));
}

TEST(Tesk, WhoCrossesTheRoadOfHrabovLeavesItOnce) {
    for (const int trat : {650, 652, 97})
        for (const int kolej : {9, 10, 11, 12, 13, 14, 15, 16, 17, 18}) {
            const auto koleje = koleje_cesty(tesk(), trat, true, kolej);
            if (koleje.empty())
                continue; // from Javořín only some
            const auto kolik = [&](std::initializer_list<int> ktere) {
                return std::count_if(ktere.begin(), ktere.end(), [&](int n) { return obsahuje(koleje, n); });
            };
            EXPECT_EQ(kolik({107, 108, 427}), 1) << trat << " " << kolej;
            EXPECT_EQ(kolik({100, 106, 543, 544, 4, 427}), 1) << trat << " " << kolej;
        }
}

TEST(Tesk, EveryLineReachesEveryTrackOfTheMainStation) {
    for (const int odkud : {19, 20, 21, 117, 187, 25, 569, 538, 503})
        for (int kolej = 26; kolej <= 35; ++kolej)
            EXPECT_FALSE(koleje_cesty(tesk(), odkud, true, kolej).empty()) << odkud << " " << kolej;
    for (int kolej = 26; kolej <= 35; ++kolej)
        for (const int kam : {19, 20, 117, 187, 25, 557, 595})
            EXPECT_FALSE(koleje_cesty(tesk(), kolej, false, kam).empty()) << kolej << " " << kam;
    EXPECT_EQ(koleje_cesty(tesk(), 32, true, 574), (std::vector<int>{32, 574}));
}

TEST(Tesk, EveryLineReachesEveryTrackOfMokrinaOverOneOfItsLevelCrossings) {
    for (int kolej = 36; kolej <= 40; ++kolej) {
        for (const auto& [trat, prejezd, zahlavi] : {std::array{666, 279, 270}, std::array{668, 280, 271}}) {
            const auto tam = koleje_cesty(tesk(), trat, true, kolej),
                       zpet = koleje_cesty(tesk(), kolej, false, trat);
            EXPECT_TRUE(obsahuje(tam, prejezd) && obsahuje(tam, zahlavi)) << trat << " " << kolej;
            EXPECT_TRUE(obsahuje(zpet, prejezd) && obsahuje(zpet, zahlavi)) << trat << " " << kolej;
        }
        EXPECT_FALSE(koleje_cesty(tesk(), kolej, true, 123).empty()) << kolej;
        EXPECT_FALSE(koleje_cesty(tesk(), kolej, true, 120).empty()) << kolej;
    }
    for (const int kolej : {41, 42, 43})
        for (const int trat : {120, 123})
            EXPECT_FALSE(koleje_cesty(tesk(), kolej, false, trat).empty()) << kolej << " " << trat;
}

TEST(Tesk, KamenecLiesBetweenTheMainStationAndMokrina) {
    EXPECT_EQ(tesk().plan.kolej(118)->delka, 6050);
    EXPECT_EQ(*tesk().graf.soused({Typ::kolej, 118, Port::vlevo}), (Konec{Typ::kolej, 187, Port::vlevo}));
    EXPECT_EQ(*tesk().graf.soused({Typ::kolej, 118, Port::vpravo}), (Konec{Typ::kolej, 303, Port::vlevo}));
    for (int kolej = 36; kolej <= 40; ++kolej)
        EXPECT_FALSE(koleje_cesty(tesk(), 118, true, kolej).empty()) << kolej;
}

TEST(Tesk, TheFoldTurnsTrainsBetweenPlainSectionsOnly) {
    for (const int kolej : {115, 116})
        for (const Port strana : {Port::vlevo, Port::vpravo}) {
            const auto soused = tesk().graf.soused({Typ::kolej, kolej, strana});
            ASSERT_TRUE(soused) << kolej;
            EXPECT_EQ(soused->typ, Typ::kolej) << kolej;
            EXPECT_FALSE(tesk().plan.kolej(soused->cislo)->cil) << kolej;
        }
    for (const int odkud : {113, 114})
        for (const int trat : {616, 618})
            EXPECT_FALSE(koleje_cesty(tesk(), odkud, true, trat).empty()) << odkud << " " << trat;
}

TEST(Tesk, HajoviceLeadFromBothTracksOfRybniceToTheYardAndTheDepot) {
    for (int kolej = 47; kolej <= 54; ++kolej) {
        for (const int odkud : {76, 77})
            EXPECT_FALSE(koleje_cesty(tesk(), odkud, true, kolej).empty()) << odkud << " " << kolej;
        for (const int kam : {55, 56, 112})
            EXPECT_FALSE(koleje_cesty(tesk(), kolej, true, kam).empty()) << kolej << " " << kam;
    }
}

TEST(Tesk, RepeatersLeadOnFromTheirSections) {
    EXPECT_FALSE(koleje_cesty(tesk(), 21, true, 24).empty());
    EXPECT_FALSE(koleje_cesty(tesk(), 22, true, 27).empty());
    EXPECT_FALSE(koleje_cesty(tesk(), 23, true, 28).empty());
    EXPECT_FALSE(koleje_cesty(tesk(), 24, true, 26).empty());
}

TEST(Tesk, DerailersLieOnTheStubsOfTheirSwitches) {
    // 202 opens 0 in plus, 206 opens 1 in minus and 2 in plus
    const auto ma = [](int od, bool vpravo, int do_, Krok vyhybka, Krok vykolejka) {
        const auto cesta = nejkratsi_cesta(tesk().plan, tesk().graf, od, vpravo, do_);
        return std::find(cesta.begin(), cesta.end(), vyhybka) != cesta.end() &&
               std::find(cesta.begin(), cesta.end(), vykolejka) != cesta.end();
    };
    EXPECT_TRUE(ma(503, true, 145, {Typ::vyhybka, 202, 24}, {Typ::vykolejka, 0, 0}));
    EXPECT_TRUE(ma(145, true, 509, {Typ::vyhybka, 206, 14}, {Typ::vykolejka, 1, 0}));
    EXPECT_TRUE(ma(145, true, 510, {Typ::vyhybka, 206, 15}, {Typ::vykolejka, 2, 0}));
    EXPECT_TRUE(ma(145, true, 510, {Typ::vyhybka, 190, 6}, {Typ::vykolejka, 2, 0}));
}
