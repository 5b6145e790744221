// testy/ui/platno_test.cpp - the desk as a picture: what is redrawn, what the pointer finds.
#include "relief/relief.h"
#include "relief/tvary_vyhybek.h"
#include "ui/platno.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <random>

namespace {

constexpr int kRadek = 690; // first row of the relief, twips

// A desk of one track with a signal before it, drawn at the size of the desk.
struct Stul : testing::Test {
    Platno platno;

    void SetUp() override {
        relief = novy_relief();
        Prvek& kolej = relief.kolej.zaloz(1);
        kolej.viditelny = true;
        kolej.barva = barvy::seda;
        kolej.x1 = 3000;
        kolej.x2 = 6000;
        kolej.y1 = kolej.y2 = kRadek + kOsaRadku;
        do_popredi(kolej);
        Prvek& navestidlo = relief.navestidlo.zaloz(1);
        navestidlo.viditelny = true;
        navestidlo.vlastni_velikost = true;
        navestidlo.vlevo = 2880;
        navestidlo.nahore = kRadek;
        nastav_text(navestidlo, znak(229));
        do_popredi(navestidlo);
        platno.nastav_velikost(QSize(1024, 768), kSirkaStolu);
        platno.obnov();
    }
    void TearDown() override { relief = Relief{}; }

    QColor barva_v(int x, int y) const { return platno.obraz().pixelColor(x, y); }
    QRect misto(Druh druh, int n) const {
        const Prvek& p = platno.prvek(druh, n);
        return {p.vlevo, p.nahore, p.sirka, p.vyska};
    }
    // Another page of the panel is chosen, or this one again. Its lines stand in three columns, as at a
    // start.
    static void ukaz_tabulku(bool ano) {
        for (int n = 0; n < 24; ++n)
            for (Prvek* p :
                 {&relief.lblTabulka_vlaku[n], &relief.shpblikacka[n], &relief.shpblikacka[n + 24]}) {
                p->vlevo = (p == &relief.lblTabulka_vlaku[n] ? 630 : 120) + n / 8 * 4700;
                p->nahore = 9600 + n % 8 * 205;
            }
        for (TabulkaPrvku* prvky : {&relief.lblTabulka_vlaku, &relief.shpblikacka})
            for (int n = 0; n <= prvky->nejvyssi(); ++n)
                (*prvky)[n].viditelny = ano;
    }
};

} // namespace

TEST_F(Stul, PaintsNothingWhileNothingChanges) {
    EXPECT_TRUE(platno.obnov().isEmpty());
}

TEST_F(Stul, PaintsTheTrackInItsColourOnBlack) {
    EXPECT_EQ(barva_v(300, 52), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(barva_v(300, 49), QColor(Qt::black));
    EXPECT_EQ(barva_v(300, 56), QColor(Qt::black));
}

TEST_F(Stul, RepaintsOnlyThePlaceOfTheTrackThatWasOccupied) {
    relief.kolej[1].barva = barvy::cervena;
    const QRegion zmenene = platno.obnov();
    EXPECT_EQ(barva_v(300, 52), QColor(0xFF, 0, 0));
    EXPECT_TRUE(QRect(190, 40, 220, 30).contains(zmenene.boundingRect()));
}

TEST_F(Stul, TrackThatIsHiddenLeavesNoTrace) {
    relief.kolej[1].viditelny = false;
    platno.obnov();
    EXPECT_EQ(barva_v(300, 52), QColor(Qt::black));
}

TEST_F(Stul, PartialRepaintGivesTheSamePictureAsAFullOne) {
    relief.kolej[1].barva = barvy::zelena;
    relief.navestidlo[1].ramecek = true;
    relief.navestidlo[1].pozadi = barvy::azurova;
    relief.lblPauza[0].viditelny = true;
    platno.obnov();
    const QImage castecny = platno.obraz().copy();
    platno.prekresli();
    EXPECT_EQ(castecny, platno.obraz());
}

TEST_F(Stul, PointerFindsTheSignalThoughItsGlyphIsOnlyEightPixelsWide) {
    const Nalezeny navestidlo{Druh::navestidlo, 1};
    for (const int x : {192, 196, 199, 191}) // one pixel beside it too: a target is ten pixels wide
        EXPECT_EQ(platno.prvek_pod(QPoint(x * kTwipu, 52 * kTwipu)), navestidlo) << x;
    EXPECT_EQ(platno.prvek_pod(QPoint(180 * kTwipu, 52 * kTwipu)), std::nullopt);
}

TEST_F(Stul, PointerPassesThroughATrackThatTakesNoInput) {
    EXPECT_EQ(platno.prvek_pod(QPoint(300 * kTwipu, 52 * kTwipu)), std::nullopt);
}

TEST_F(Stul, PointerDoesNotFindWhatIsHidden) {
    relief.navestidlo[1].viditelny = false;
    platno.obnov();
    EXPECT_EQ(platno.prvek_pod(QPoint(196 * kTwipu, 52 * kTwipu)), std::nullopt);
}

TEST_F(Stul, KeepsItsProportionsInAnyWindow) {
    platno.nastav_velikost(QSize(2000, 768), kSirkaStolu);
    EXPECT_DOUBLE_EQ(platno.meritko().bod(), 1.0);
    EXPECT_EQ(platno.meritko().x0, 488);
    platno.nastav_velikost(QSize(2048, 2048), kSirkaStolu);
    EXPECT_DOUBLE_EQ(platno.meritko().bod(), 2.0);
    EXPECT_EQ(platno.meritko().y0, 256);
}

TEST_F(Stul, BottomPanelOfTwoMonitorsHasAPageOnEachHalf) {
    relief.lblTabulka_vlaku[9].text = " Os  17860  42m, PLH, 80km/h";
    for (const bool jedina : {true, false})
        for (const QSize velikost : {QSize(2048, 768), QSize(3840, 1080), QSize(3440, 1440)}) {
            SCOPED_TRACE(testing::Message() << velikost.width() << (jedina ? " one screen" : " two screens"));
            platno.nastav_velikost(velikost, 2 * kSirkaStolu, true, jedina);
            ukaz_tabulku(true);
            platno.obnov();
            ASSERT_EQ(platno.druha_stranka(), DruhaStranka::seznamy);
            const QRect prvni = platno.misto_seznamu(), zpravy = platno.misto_seznamu_vedle(0),
                        denik = platno.misto_seznamu_vedle(1);
            const double pulka = velikost.width() / 2 / platno.meritko().k;
            if (jedina)
                EXPECT_GE(prvni.right(), pulka - 10 * kTwipu);
            else
                EXPECT_NEAR(prvni.right(), pulka, 10 * kTwipu);
            EXPECT_GT(zpravy.left(), prvni.right());
            EXPECT_GT(denik.left(), zpravy.right());
            EXPECT_NEAR(denik.right(), 2 * pulka, 10 * kTwipu);
            EXPECT_GE(zpravy.width(), 30 * kSirkaZnaku);
            EXPECT_GE(denik.width(), 48 * kSirkaZnaku);
            EXPECT_LT(misto(Druh::lblTabulka_vlaku, 23).right(), prvni.right());

            ukaz_tabulku(false); // another page is chosen
            platno.obnov();
            ASSERT_EQ(platno.druha_stranka(), DruhaStranka::tabulka);
            for (const Druh druh : {Druh::lblTabulka_vlaku, Druh::shpblikacka})
                for (int n = 0; n <= tabulka(druh).nejvyssi(); ++n) {
                    EXPECT_TRUE(platno.prvek(druh, n).viditelny);
                    EXPECT_GT(misto(druh, n).left(), pulka);
                    EXPECT_LE(misto(druh, n).right(), 2 * pulka);
                }
            const Nalezeny radek{Druh::lblTabulka_vlaku, 9};
            EXPECT_EQ(platno.prvek_pod(misto(radek.druh, radek.n).center()), radek);
            relief.lblTabulka_vlaku[9].barva = barvy::zelena;
            platno.obnov();
            const QImage castecny = platno.obraz().copy();
            platno.prekresli();
            EXPECT_EQ(castecny, platno.obraz());
        }
}

TEST_F(Stul, DeskOfOneMonitorAndOneInItsOwnProportionsHaveNoSecondPage) {
    for (const bool vidi : {true, false}) {
        ukaz_tabulku(vidi);
        platno.nastav_velikost({1920, 1080}, kSirkaStolu, true, true);
        platno.obnov();
        EXPECT_EQ(platno.druha_stranka(), DruhaStranka::zadna);
        platno.nastav_velikost({3840, 1080}, 2 * kSirkaStolu, false, true);
        platno.obnov();
        EXPECT_EQ(platno.druha_stranka(), DruhaStranka::zadna);
        EXPECT_EQ(platno.prvek(Druh::lblTabulka_vlaku, 0).viditelny(), vidi);
    }
}

TEST_F(Stul, TrainLongerThanItsHalfOfThePanelTakesTheSecondHalfToo) {
    constexpr int kVuz = 80 * kTwipu;
    ukaz_tabulku(false);
    const auto souprava = [&](int vozu) {
        for (int n = 0; n <= relief.imgObrzaek_vlaku.nejvyssi(); ++n) {
            relief.imgObrzaek_vlaku[n].viditelny = n < vozu;
            relief.imgObrzaek_vlaku[n].vlevo = 4 * kTwipu + n * kVuz;
        }
        platno.obnov();
        return misto(Druh::imgObrzaek_vlaku, vozu - 1).right();
    };
    for (const QSize velikost : {QSize(2048, 768), QSize(3840, 1080), QSize(3440, 1440)}) {
        platno.nastav_velikost(velikost, 2 * kSirkaStolu, true, true);
        const double pulka = velikost.width() / 2 / platno.meritko().k;
        for (const int vozu : {3, 8, 12}) {
            EXPECT_LE(souprava(vozu), pulka) << vozu;
            EXPECT_EQ(platno.druha_stranka(), DruhaStranka::tabulka);
        }
        for (const int vozu : {13, 20, 25}) {
            EXPECT_GT(souprava(vozu), pulka) << vozu;
            EXPECT_LE(souprava(vozu), 2 * pulka) << vozu;
            EXPECT_EQ(platno.druha_stranka(), DruhaStranka::zadna);
            EXPECT_FALSE(platno.prvek(Druh::lblTabulka_vlaku, 0).viditelny);
        }
        const QImage castecny = platno.obraz().copy();
        platno.prekresli();
        EXPECT_EQ(castecny, platno.obraz());
    }
}

TEST_F(Stul, PageOfTheTrainSaysHowToAskForOneUntilOneIsThere) {
    Prvek& radek = relief.lblIinfo_o_vlaku[0];
    const auto kresleno = [&] { // of the right part of its line
        platno.obnov();
        int bodu = 0;
        for (int y = 640; y < 653; ++y)
            for (int x = 100; x < 500; ++x)
                bodu += barva_v(x, y) != QColor(Qt::black);
        return bodu;
    };
    ukaz_tabulku(false);
    EXPECT_EQ(kresleno(), 0);
    radek.viditelny = true;
    EXPECT_GT(kresleno(), 100);
    radek.text = "Os 14756";
    EXPECT_EQ(kresleno(), 0);
    radek.text = Text{};
    EXPECT_GT(kresleno(), 100);
    radek.viditelny = false;
    EXPECT_EQ(kresleno(), 0);
}

TEST_F(Stul, CaptionsOfVehiclesLeaveTheLastLineOfThePanelFree) {
    for (const char* popis : {"943", "943 (14756)"}) {
        for (int n = 0; n < 12; ++n) {
            relief.lblPopis_vozu[n].viditelny = relief.imgObrzaek_vlaku[n].viditelny = true;
            relief.lblPopis_vozu[n].text = "CD " + Text(popis);
        }
        for (const QSize velikost : {QSize(1024, 768), QSize(1366, 768), QSize(1536, 768), QSize(1920, 1080),
                                     QSize(1280, 1024), QSize(3440, 1440)}) {
            const bool dve = velikost.width() >= 2 * 1024;
            platno.nastav_velikost(velikost, dve ? 2 * kSirkaStolu : kSirkaStolu, true, true);
            platno.obnov();
            const Prvek& p = platno.prvek(Druh::lblPopis_vozu, 0);
            const Prvek& text = platno.prvek(Druh::lblIinfo_o_vlaku, 0);
            EXPECT_GT(platno.prvek(Druh::imgSberac, 0).nahore, text.nahore + kVyskaZnaku + 2 * kTwipu)
                << "a pantograph touches the line of the train at " << velikost.width();
            EXPECT_LE(p.nahore + radku_popisu(p) * kVyskaZnaku, platno.posledni_radek_panelu())
                << popis << ' ' << velikost.width();
            EXPECT_LE(
                platno.v_bodech(QRect(0, platno.posledni_radek_panelu(), kSirkaZnaku, kVyskaZnaku)).bottom(),
                velikost.height() - 1);
        }
    }
}

TEST_F(Stul, WhateverAReliefFileHoldsIsDrawnSafely) {
    std::mt19937 g(7);
    const auto pod = [&](unsigned n) { return static_cast<int>(g() % n); };
    const auto hodnota = [&] {
        const int k = pod(6);
        return k == 0 ? -32768 : k == 1 ? 32767 : k == 2 ? 0 : pod(65536) - 32768;
    };
    for (int kolo = 0; kolo < 12; ++kolo) {
        platno.nastav_velikost(QSize(1 + pod(1500), 1 + pod(1000)), kSirkaStolu);
        for (int i = 0; i < 300; ++i) {
            Prvek& p =
                (relief.*kDruhy[static_cast<std::size_t>(pod(kDruhy.size()))].tabulka).zaloz(pod(1000));
            p.viditelny = pod(5) > 0;
            p.ramecek = pod(2) == 0;
            p.barva = static_cast<Barva>(g());
            p.obrazek = static_cast<std::int16_t>(hodnota());
            p.zarovnani = static_cast<std::uint8_t>(pod(3));
            for (Vlastnost<std::int32_t>* v :
                 {&p.x1, &p.x2, &p.y1, &p.y2, &p.vlevo, &p.nahore, &p.sirka, &p.vyska})
                *v = hodnota();
            Text text;
            for (int k = pod(30); k > 0; --k)
                text += static_cast<char>(pod(256));
            p.text = text;
            p.stav = std::to_string(pod(400) - 50);
        }
        EXPECT_FALSE(platno.obnov().isEmpty());
        platno.prvek_pod(platno.na_twipy(QPointF(pod(1500), pod(1000))));
    }
}

int main(int pocet, char** slova) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication aplikace(pocet, slova);
    testing::InitGoogleTest(&pocet, slova);
    return RUN_ALL_TESTS();
}

// --- the sign of a note, and the way from element to element

namespace {

constexpr QColor kVyluka(0x80, 0, 0);

// The track of the desk with its target and labels at both of its ends, and a note on it.
void poloz_poznamku(int obrazek) {
    Prvek& cil = relief.Image1.zaloz(1);
    cil.viditelny = true;
    cil.vlevo = 3000;
    cil.nahore = kRadek;
    cil.sirka = 3000;
    cil.vyska = kVyskaZnaku;
    cil.obrazek = static_cast<std::int16_t>(obrazek);
    do_pozadi(cil);
    for (const auto& [n, vlevo] : {std::pair{1, 3240}, std::pair{201, 5400}}) {
        Prvek& cislo = relief.cislo_koleje.zaloz(n);
        cislo.viditelny = true;
        cislo.vlastni_velikost = true;
        cislo.vlevo = vlevo;
        cislo.nahore = kRadek;
        cislo.popis = " 1 ";
        nastav_text(cislo, " 1 ");
        do_popredi(cislo);
    }
}

} // namespace

TEST_F(Stul, SignOfANoteLiesOverTheLineOfItsTrackBetweenTheLabels) {
    poloz_poznamku(103);
    platno.obnov();
    int vlevo = 1024, vpravo = 0;
    for (int x = 200; x < 400; ++x)
        if (barva_v(x, 47) == kVyluka) {
            vlevo = std::min(vlevo, x);
            vpravo = std::max(vpravo, x);
        }
    EXPECT_EQ(vpravo - vlevo + 1, 10);
    EXPECT_GT(vlevo, 216 + 40) << "a train's number has room";
    EXPECT_LT(vpravo, 360);
    EXPECT_NE(barva_v(vlevo, 52), QColor(0x80, 0x80, 0x80)) << "the line does not cross the sign";
}

TEST_F(Stul, SignOfANoteIsGoneWithTheNote) {
    poloz_poznamku(101);
    platno.obnov();
    const QImage se_znackou = platno.obraz().copy();
    relief.Image1[1].obrazek = 0;
    platno.obnov();
    const QImage bez_znacky = platno.obraz().copy();
    EXPECT_NE(se_znackou, bez_znacky);
    platno.prekresli();
    EXPECT_EQ(platno.obraz(), bez_znacky);
}

TEST_F(Stul, NoTargetIsSmallerThanAHandNeeds) {
    const Prvek& navestidlo = relief.navestidlo[1];
    const QRect cil = misto_vstupu(Druh::navestidlo, navestidlo);
    EXPECT_GE(cil.width(), 13 * kTwipu);
    EXPECT_GE(cil.height(), 13 * kTwipu);
}

TEST_F(Stul, KeysFindTheNextElementThatWay) {
    poloz_poznamku(0);
    platno.obnov();
    const QPoint u_prvniho(3240 + 180, kRadek + kVyskaZnaku / 2);
    const auto vpravo = platno.soused(u_prvniho, {1, 0});
    ASSERT_TRUE(vpravo);
    EXPECT_GT(vpravo->x(), u_prvniho.x());
    const auto vlevo = platno.soused(u_prvniho, {-1, 0});
    ASSERT_TRUE(vlevo);
    EXPECT_EQ(*vlevo, misto_vstupu(Druh::navestidlo, relief.navestidlo[1]).center());
    relief.navestidlo[1].viditelny = false;
    platno.obnov();
    EXPECT_NE(platno.soused(u_prvniho, {-1, 0}), vlevo) << "what is not seen is passed over";
}

TEST_F(Stul, CaptionOfAVehicleKeepsWithinItsPicture) {
    Prvek& popis = relief.lblPopis_vozu[0];
    popis.viditelny = true;
    popis.barva = barvy::bila;
    popis.vlevo = 3000;
    popis.nahore = 728 * kTwipu;
    popis.text = "UNIPETROL 753 (99152)";
    const QRegion zmenene = platno.obnov();
    bool pod_prvnim_radkem = false;
    for (int y = 728; y < 768; ++y)
        for (int x = 0; x < 1024; ++x)
            if (barva_v(x, y) == QColor(Qt::white)) {
                EXPECT_GE(x, 200);
                EXPECT_LT(x, 280);
                pod_prvnim_radkem |= y >= 754;
            }
    EXPECT_TRUE(pod_prvnim_radkem) << "its three lines stand under each other";
    EXPECT_GE(zmenene.boundingRect().bottom(), 766);
}

TEST_F(Stul, CaptionLongerThanAShortVehicleDoesNotReachOverTheNextOne) {
    Prvek& popis = relief.lblPopis_vozu[0];
    popis.viditelny = true;
    popis.barva = barvy::bila;
    popis.vlevo = 3000;
    popis.nahore = 728 * kTwipu;
    popis.sirka = 34 * kTwipu;
    popis.text = "362 (651)"; // five letters have 40 pixels
    platno.obnov();
    int bilych = 0;
    for (int y = 728; y < 768; ++y)
        for (int x = 0; x < 1024; ++x)
            if (barva_v(x, y).value() > 200) {
                EXPECT_GE(x, 200);
                EXPECT_LT(x, 234);
                bilych += y >= 741 ? 1 : 0;
            }
    EXPECT_GT(bilych, 20) << "the second line is there";
}

// --- letters on a ground of nearly their own light

TEST_F(Stul, LettersOnAGroundTooNearToThemAreOutlined) {
    Prvek& radek = relief.lblPrikaz[0];
    radek.viditelny = radek.ramecek = true;
    radek.vlastni_velikost = true;
    radek.vlevo = 0;
    radek.nahore = 24 * kTwipu;
    nastav_text(radek, "VC");
    const auto tmavych = [&](Barva pismo, Barva pozadi) {
        radek.barva = pismo;
        radek.pozadi = pozadi;
        platno.obnov();
        int kolik = 0;
        for (int y = 24; y < 37; ++y)
            for (int x = 0; x < 16; ++x)
                kolik += barva_v(x, y).value() < 128;
        return kolik;
    };
    const auto na_podkladu = [&](QColor podklad) { // letters that touch their ground
        int kolik = 0;
        for (int y = 24; y < 37; ++y)
            for (int x = 0; x < 16; ++x)
                if (barva_v(x, y) == QColor(Qt::white))
                    for (const QPoint vedle :
                         {QPoint(x - 1, y), QPoint(x + 1, y), QPoint(x, y - 1), QPoint(x, y + 1)})
                        kolik += vedle.x() >= 0 && barva_v(vedle.x(), vedle.y()) == podklad;
        return kolik;
    };
    EXPECT_GT(tmavych(barvy::bila, barvy::zelena), 10);
    EXPECT_EQ(na_podkladu(QColor(0, 255, 0)), 0);
    EXPECT_GT(tmavych(barvy::bila, barvy::azurova), 10);
    EXPECT_EQ(tmavych(barvy::bila, barvy::cervena), 0);
    EXPECT_EQ(tmavych(barvy::zelena, barvy::zelena), 0);
}

// --- one stroke

namespace {

// A track line between places of the glyph lattice; halves of a row are its edges.
void poloz_kolej(int cislo, int x1, int y1, int x2, int y2, Barva barva) {
    Prvek& k = relief.kolej.zaloz(cislo);
    k.viditelny = true;
    k.barva = barva;
    k.x1 = x1;
    k.y1 = y1;
    k.x2 = x2;
    k.y2 = y2;
    do_popredi(k);
}

void poloz_vyhybku(int cislo, int x, int y, int stav) {
    Prvek& v = relief.imgVyhybka.zaloz(cislo);
    v.viditelny = true;
    v.vlevo = x;
    v.nahore = y;
    v.stav = std::to_string(stav);
    do_popredi(v);
}

} // namespace

// Down from the first row to the fifth: a switch, a slanted line, a bend.
TEST_F(Stul, RouteOverASwitchAndABendIsOneStrokeAtAnyScale) {
    constexpr int kRadku = 4;
    const auto osa = [](int radek) { return kRadek + radek * kVyskaZnaku + kOsaRadku; };
    relief.kolej[1].viditelny = relief.navestidlo[1].viditelny = false;
    poloz_kolej(10, 1200, osa(0), 3600, osa(0), barvy::zelena);
    poloz_vyhybku(1, 3600, kRadek, 52); // locked, from the left to the right below
    const int roh_x = 3600 + kSirkaVyhybky, roh_y = kRadek + kVyskaVyhybky;
    const int delka = (osa(kRadku) - roh_y) * kSirkaVyhybky / kVyskaVyhybky;
    poloz_kolej(11, roh_x, roh_y, roh_x + delka, osa(kRadku), barvy::zelena);
    poloz_kolej(12, roh_x + delka, osa(kRadku), roh_x + delka + 2400, osa(kRadku), barvy::zelena);
    for (const double krat : {1.0, 1.25, 1.40625, 1.5, 1.875, 2.0, 2.5}) {
        platno.nastav_velikost((QSizeF(1024, 768) * krat).toSize(), kSirkaStolu);
        platno.obnov();
        const Meritko& m = platno.meritko();
        const auto bod = [&](double x, double y) { return QPointF(m.x0 + x * m.k, m.y0 + y * m.k); };
        const QPointF cesta[] = {bod(1300, osa(0)), bod(3600 + kSirkaVyhybky / 2, osa(0)),
                                 bod(roh_x + delka, osa(kRadku)), bod(roh_x + delka + 2300, osa(kRadku))};
        for (std::size_t usek = 0; usek + 1 < std::size(cesta); ++usek) {
            const QPointF od = cesta[usek], po = cesta[usek + 1];
            const int kroku = static_cast<int>(4 * (po.x() - od.x()));
            for (int i = 0; i <= kroku; ++i) {
                const QPointF p = od + (po - od) * i / kroku;
                const QColor barva = barva_v(static_cast<int>(p.x()), static_cast<int>(p.y()));
                ASSERT_GT(barva.green(), 200) << krat << "x, " << p.x() << ' ' << p.y();
                ASSERT_EQ(barva.red(), 0);
            }
        }
        if (HasFailure())
            return;
    }
}

TEST_F(Stul, TwoSectionsOfALinePartByAGap) {
    poloz_kolej(2, 6000, kRadek + kOsaRadku, 9000, kRadek + kOsaRadku, barvy::seda);
    platno.obnov();
    EXPECT_EQ(barva_v(400, 52), QColor(Qt::black));
    EXPECT_EQ(barva_v(402, 52), QColor(0x80, 0x80, 0x80));
}

// A slanted line ends in the corner of a cell; its stroke reaches over the edge of the next cell, where a
// text stands.
TEST_F(Stul, TextTakesNothingFromASlantedLineAtItsCorner) {
    const int vlevo = 3840, nahore = kRadek + 2 * kVyskaZnaku;
    poloz_kolej(2, vlevo - 2 * kSirkaVyhybky, nahore - 2 * kVyskaVyhybky, vlevo, nahore, barvy::bila);
    for (const bool s_pozadim : {false, true}) {
        if (relief.cislo_koleje.je(3))
            relief.cislo_koleje[3].viditelny = false;
        platno.obnov();
        const QImage bez_textu = platno.obraz().copy();
        Prvek& cislo = relief.cislo_koleje.zaloz(3);
        cislo.viditelny = true;
        cislo.vlastni_velikost = true;
        cislo.ramecek = s_pozadim;
        cislo.pozadi = barvy::cervena;
        cislo.barva = barvy::bila;
        cislo.vlevo = vlevo;
        cislo.nahore = nahore;
        nastav_text(cislo, "3");
        platno.obnov();
        int okraj = 0;
        for (int y = 0; y < 768; ++y)
            for (int x = 0; x < 1024; ++x)
                if (bez_textu.pixelColor(x, y).value() > 150 && QRect(250, 70, 16, 4).contains(x, y)) {
                    ++okraj;
                    EXPECT_GE(barva_v(x, y).green(), bez_textu.pixelColor(x, y).green()) << x << ' ' << y;
                }
        EXPECT_GT(okraj, 0);
    }
}

TEST_F(Stul, LevelLineLeavesRoomForTheTextThatStandsOnIt) {
    poloz_poznamku(0);
    platno.obnov();
    EXPECT_EQ(barva_v((3240 + kSirkaZnaku) / kTwipu - 1, 52), QColor(Qt::black)) << "beside the digit";
    EXPECT_EQ(barva_v(300, 52), QColor(0x80, 0x80, 0x80));
}

// --- what has to be read

TEST_F(Stul, NumberOfATrackWithANoteCanBeRead) {
    poloz_poznamku(0);
    Prvek& cislo = relief.cislo_koleje[1];
    cislo.barva = barvy::seda;
    cislo.ramecek = true;
    for (const Barva pozadi : {0x808000u, 0xFF0000u, 0x000080u}) {
        cislo.pozadi = pozadi;
        platno.obnov();
        int svetlych = 0;
        for (int y = 46; y < 59; ++y)
            for (int x = 216; x < 240; ++x)
                svetlych += barva_v(x, y).green() > 200 && barva_v(x, y).red() > 200;
        EXPECT_GT(svetlych, 5) << std::hex << pozadi;
    }
}

TEST_F(Stul, WaitingLineOfTheStackCanBeReadWhileItIsBlack) {
    Prvek& radek = relief.lblZasobnik_blokv[0];
    radek.viditelny = true;
    nastav_text(radek, "VC LHO S1 TVH 2");
    const auto rozsah = [&](Barva barva) {
        radek.barva = barva;
        platno.obnov();
        int tma = 255, svetlo = 0;
        const QRect kde(radek.vlevo / kTwipu, radek.nahore / kTwipu, 120, 13);
        for (int y = kde.top(); y <= kde.bottom(); ++y)
            for (int x = kde.left(); x <= kde.right(); ++x) {
                tma = std::min(tma, barva_v(x, y).value());
                svetlo = std::max(svetlo, barva_v(x, y).value());
            }
        return svetlo - tma;
    };
    EXPECT_GT(rozsah(barvy::bila), 100);
    EXPECT_GT(rozsah(barvy::cerna), 100);
}

TEST_F(Stul, MastOfTheSignalPanelHasItsHeight) {
    for (const Druh druh : {Druh::lblnavestidlo, Druh::lblNavestidlo_stanice}) {
        Prvek& popisek = tabulka(druh)[0];
        popisek.viditelny = true;
        nastav_text(popisek, "S1");
    }
    const auto pata = [&](TvarPanelu tvar) { // the lowest row of the panel with anything in it
        panel_navestidla.tvar = tvar;
        platno.obnov();
        for (int y = 210; y > 46; --y)
            for (int x = 940; x < 1010; ++x)
                if (barva_v(x, y).value() > 60)
                    return y;
        return 0;
    };
    const int kratky = pata(TvarPanelu::kratky), stredni = pata(TvarPanelu::bez_zluteho),
              dlouhy = pata(TvarPanelu::dlouhy);
    EXPECT_GT(stredni, kratky + 3);
    EXPECT_GT(dlouhy, stredni + 3);
    EXPECT_EQ(pata(TvarPanelu::bez_pruhu) > 0, true);
    panel_navestidla = {};
}

TEST_F(Stul, PictureAtTheSidingOfThePostIsDrawn) {
    Prvek& posta = relief.imgV1[0];
    posta.vlevo = 3000;
    posta.nahore = 3000;
    posta.viditelny = true;
    platno.obnov();
    int bodu = 0;
    for (int y = 200; y < 216; ++y)
        for (int x = 200; x < 216; ++x)
            bodu += barva_v(x, y).value() > 100;
    EXPECT_GT(bodu, 30);
}
